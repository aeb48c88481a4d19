#include "TestDatabase.h"
#include "core/modGeneral.h"
#include "guests/GuestTestData.h"
#include "reports/clsReportCatalogue.h"
#include "reports/clsReportClasses.h"

#include <QtTest>
#include <memory>

using C = clsReportCatalogue;

// A small wedding made by hand: the couple, four guests on two invitations, one table, three events
// with gifts, timeline entries and one guest list.
//
//  id  name  friend  list  gender  child  out of town  address  e-mail  phone  invitation  attends  table
//   1  Anna  bride   A     F       N      N            -        -       -      -           Y        -
//   2  Ben   groom   A     M       N      N            -        -       -      -           Y        -
//   3  Carl  bride   A     M       N      N            yes      yes     yes    1 (first)   Y        1
//   4  Dora  bride   B     F       Y      Y            -        -       -      1           Y        -
//   5  Emil  groom   B     M       N      N            -        yes     -      2 (first)   N        -
//   6  Fay   both    A     F       N      Y            yes      -       yes    -           N        -
// Invitation 1 is sent and answered, invitation 2 not sent. Fay is the maid of honor.
static void MakeWedding() {
    using namespace GuestTestData;
    TestDatabase::Exec(
        QStringLiteral("UPDATE CONTACT SET FIRST_NM = 'Anna', LAST_NM = 'Lund' WHERE CONTACT_ID = 1"));
    TestDatabase::Exec(
        QStringLiteral("UPDATE CONTACT SET FIRST_NM = 'Ben', LAST_NM = 'Moss' WHERE CONTACT_ID = 2"));
    AddInvite({{"INVITE_ID", 1}, {"INVITE_RSVP_ID", 1}, {"INVITE_SENT_FG", "Y"}, {"RSVP_RECEIVED_FG", "Y"}});
    AddInvite({{"INVITE_ID", 2}, {"INVITE_RSVP_ID", 2}});
    AddDiningTable(1, 1, QStringLiteral("Roses"));
    AddContacts(
        {"CONTACT_ID", "FIRST_NM", "FRIEND_OF_CD", "AB_LIST_CD", "ADDRESS_TX", "EMAIL_TX", "PHONE_TX",
         "INVITE_ID", "PRIMARY_CONTACT_FG", "SORT_ORDER_NB", "ATTENDING_FG", "DINING_TABLE_ID", "GENDER_FG",
         "CHILD_FG", "OUT_OF_TOWNER_FG", "ROLE_ID"},
        {{3, "Carl", 1, "A", "1 Main St", "carl@example.org", "555-0100", 1, "Y", 1, "Y", 1, {}, {}, {}, {}},
         {4, "Dora", 1, "B", {}, {}, {}, 1, {}, 2, "Y", {}, "F", "Y", "Y", {}},
         {5, "Emil", 2, "B", {}, "emil@example.org", {}, 2, "Y", 1, {}, {}, {}, {}, {}, {}},
         {6, "Fay", 3, "A", "2 Oak Rd", {}, "555-0101", {}, {}, {}, {}, {}, "F", {}, "Y", 7}});

    TestDatabase::Exec(
        QStringLiteral("UPDATE EVENT SET EVENT_DT = '2027-06-05 15:00:00' WHERE EVENT_ID = 1"));
    TestDatabase::Exec(QStringLiteral("INSERT INTO EVENT (EVENT_ID, EVENT_TX, EVENT_DT) VALUES "
                                      "(2, 'Rehearsal Dinner', '2027-06-04 19:00:00'), "
                                      "(3, 'Bridal Shower', '2027-05-01 14:00:00')"));
    TestDatabase::Exec(QStringLiteral("INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, INVITE_ID, GIFT_TX, "
                                      "THANK_YOU_SENT_FG) VALUES (1, 1, 3, NULL, 'Vase', 'Y'), "
                                      "(2, 1, 5, 2, 'Toaster', 'N'), (3, 3, 4, 1, 'Towels', 'N')"));
    TestDatabase::Exec(QStringLiteral("INSERT INTO TIMELINE (TIMELINE_ID, TIMELINE_START_DT, "
                                      "TIMELINE_END_DT, TIMELINE_DESC, EVENT_ID) VALUES "
                                      "(1, '2027-06-05 15:00:00', '2027-06-05 15:30:00', 'Ceremony', 1), "
                                      "(2, '2027-06-05 18:00:00', '2027-06-05 22:00:00', 'Dinner', 1), "
                                      "(3, '2027-05-01 14:00:00', '2027-05-01 16:00:00', 'Games', 3)"));
    TestDatabase::Exec(
        QStringLiteral("INSERT INTO INVITE_WIDGET (INVITE_WIDGET_ID, EVENT_ID, INVITE_ID, CONTACT_ID) "
                       "VALUES (1, 2, NULL, 6), (2, 2, 1, NULL)"));
}

static int PositionOf(const QList<C::FilterRow>& rows, const QString& caption, int key) {
    for (qsizetype i = 0; i < rows.size(); ++i)
        if (rows[i].FILTER == caption && rows[i].Key == key)
            return int(i);
    return -1;
}

static QString Shape(const QList<C::FilterRow>& rows) {
    QStringList parts;
    for (const auto& row : rows)
        parts << QStringLiteral("%1=%2:%3").arg(row.FILTER).arg(row.Key).arg(row.COUNT);
    return parts.join(QStringLiteral("|"));
}

class tst_ReportCatalogue : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestDatabase> mDb;

private slots:
    void init() {
        mDb = std::make_unique<TestDatabase>();
        for (const QString& name : clsReportClasses::Names())
            clsReportClasses::Unregister(name);
    }
    void cleanup() {
        SetNowForTesting(QDateTime());
        mDb.reset();
    }

    void counts_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("count");

        // The couple count wherever the row's condition does not leave them out ("Not Yet Invited" does).
        QTest::newRow("contacts all") << 1 << "All Contacts" << 0 << "6";
        QTest::newRow("contacts not invited") << 1 << "Not Yet Invited" << 7 << "2";
        QTest::newRow("contacts custom") << 1 << "Custom Filter" << 99999 << "--";
        // Invitations count envelopes, by their first person.
        QTest::newRow("invitations no address") << 2 << "No Address" << 8 << "1";
        QTest::newRow("rsvps all") << 3 << "All RSVPs" << 1 << "1";
        // Attendees include the couple.
        QTest::newRow("attendees all") << 4 << "All Attendees" << 14 << "4";
        QTest::newRow("meals: the meal kinds") << 4 << "Meals" << 98 << "6";
        QTest::newRow("roles: the couple and the maid of honor") << 4 << "Roles" << 99 << "3";
        QTest::newRow("tabula rasa as all") << 4 << "Tabula Rasa" << 100 << "4";
        QTest::newRow("seating chart") << 5 << "Seating Chart" << 1 << "1";
        QTest::newRow("events") << 12 << "All Events" << 1 << "3";
        QTest::newRow("calendar has no count") << 12 << "Calendar" << 2 << "";
        QTest::newRow("statistics") << 14 << "All" << 0 << "All";
        QTest::newRow("custom sql") << 18 << "Custom SQL" << 0 << "--";
    }
    void counts() {
        QFETCH(int, section);
        QFETCH(QString, caption);
        QFETCH(int, key);
        QFETCH(QString, count);
        MakeWedding();
        const auto rows = C::FilterRows(section);
        const int at = PositionOf(rows, caption, key);
        QVERIFY2(at >= 0, qPrintable(Shape(rows)));
        QCOMPARE(rows[at].COUNT, count);
        QCOMPARE(mDb->Messages().Prompts, QStringList());
    }

    // The rows that follow the events: gifts list every event by date, timelines only those with
    // entries, the widgets only the events with a guest list; the vows carry the partners' names.
    void rowsMadeFromEvents_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<QString>("shape");
        QTest::newRow("gifts") << 6
                               << "All Gifts=0:3|Thank You Notes Sent=1:1|Thank You Notes Unsent=2:2|"
                                  "Bridal Shower=3:1|Rehearsal Dinner=2:0|Wedding Day=1:2";
        QTest::newRow("timelines") << 10 << "All Entries=0:3|Bridal Shower=3:1|Wedding Day=1:2";
        QTest::newRow("widgets") << 13
                                 << "Invitation Wording=1:1|All Wedding Vows=2:2|Anna's Wedding Vows=3:1|"
                                    "Ben's Wedding Vows=4:1|Songs=5:0|Rehearsal Dinner=101:2";
    }
    void rowsMadeFromEvents() {
        QFETCH(int, section);
        QFETCH(QString, shape);
        MakeWedding();
        QCOMPARE(Shape(C::FilterRows(section)), shape);
    }

    // A row whose class is not there yet stays in the list, marked; a registered class makes it
    // available; a row that only opens a picture needs no class.
    void availability() {
        auto rows = C::FilterRows(C::Contacts);
        for (const auto& row : rows) {
            QCOMPARE(row.ClassName, QStringLiteral("clsRTFContacts"));
            QVERIFY(!row.Available);
        }
        clsReportClasses::Register(QStringLiteral("clsRTFContacts"),
                                   [](const clsReportRoute&) { return QString(); });
        rows = C::FilterRows(C::Contacts);
        for (const auto& row : rows)
            QVERIFY(row.Available);
        QVERIFY(!C::FilterRows(C::Invitations)[0].Available);

        const auto tables = C::FilterRows(C::Tables);
        QVERIFY(!tables[0].Available);
        QVERIFY(tables[2].ClassName.isEmpty());
        QVERIFY(tables[2].Available);

        clsReportClasses::Unregister(QStringLiteral("clsRTFContacts"));
        QVERIFY(!C::FilterRows(C::Contacts)[0].Available);
    }

    void buildGoesThroughTheRegisteredClass() {
        clsReportRoute seen;
        clsReportClasses::Register(QStringLiteral("clsRTFGift"), [&seen](const clsReportRoute& route) {
            seen = route;
            return QStringLiteral("written");
        });
        MakeWedding();
        const auto rows = C::FilterRows(C::Gifts);
        const auto route = C::Route(C::Gifts, rows, PositionOf(rows, QStringLiteral("Wedding Day"), 1));
        QCOMPARE(clsReportClasses::Build(route), QStringLiteral("written"));
        QCOMPARE(seen.CustomWhere, QStringLiteral("WHERE EVENT.EVENT_ID = 1"));
        clsReportRoute other;
        other.ClassName = QStringLiteral("clsRTFVendor");
        QCOMPARE(clsReportClasses::Build(other), QString());
    }

    void labelsAllowed_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<int>("position"); // from 1, as the screen counts rows
        QTest::addColumn<bool>("labelDesk");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("contacts head") << 1 << 1 << false << true;
        QTest::newRow("contacts custom filter") << 1 << 18 << false << false;
        QTest::newRow("invitations custom filter") << 2 << 12 << false << false;
        QTest::newRow("rsvps never") << 3 << 1 << false << false;
        QTest::newRow("attendees meals") << 4 << 15 << false << true;
        QTest::newRow("tables never") << 5 << 1 << true << false;
        QTest::newRow("tentcards without label program") << 17 << 1 << false << false;
        QTest::newRow("tentcards with label program") << 17 << 1 << true << true;
        QTest::newRow("gifts of an event") << 6 << 5 << false << true;
        QTest::newRow("widgets: songs") << 13 << 5 << false << false;
        QTest::newRow("widgets: a guest list") << 13 << 6 << false << true;
        QTest::newRow("no row selected") << 1 << 0 << false << false;
    }
    void labelsAllowed() {
        QFETCH(int, section);
        QFETCH(int, position);
        QFETCH(bool, labelDesk);
        QFETCH(bool, allowed);
        MakeWedding();
        QCOMPARE(C::LabelsAllowed(section, C::FilterRows(section), position - 1, labelDesk), allowed);
    }

    // The edge cases of the screen: the custom filter row turns the button to "Continue" and back;
    // labels chosen, then a section without labels, falls back to RTF.
    void commandState_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<bool>("labelDesk");
        QTest::addColumn<bool>("labelsEnabled");
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("runEnabled");
        QTest::addColumn<QString>("caption");
        QTest::newRow("contacts, rtf") << 1 << 1 << 0 << false << true << 0 << true << "Run";
        QTest::newRow("contacts custom filter") << 1 << 18 << 0 << false << false << 0 << true << "Continue";
        QTest::newRow("csv stays csv") << 3 << 1 << 1 << false << false << 1 << true << "Run";
        QTest::newRow("labels on contacts") << 1 << 2 << 2 << false << true << 2 << true << "Continue";
        QTest::newRow("labels, then rsvps") << 3 << 1 << 2 << false << false << 0 << true << "Run";
        QTest::newRow("labels, then custom filter")
            << 4 << 18 << 2 << false << false << 0 << true << "Continue";
        QTest::newRow("tentcards with label program")
            << 17 << 1 << 2 << true << true << 2 << true << "Continue";
        QTest::newRow("no row") << 1 << 0 << 0 << false << false << 0 << false << "Run";
        QTest::newRow("unknown section") << 42 << 1 << 0 << false << false << 0 << false << "Run";
    }
    void commandState() {
        QFETCH(int, section);
        QFETCH(int, position);
        QFETCH(int, chosen);
        QFETCH(bool, labelDesk);
        QFETCH(bool, labelsEnabled);
        QFETCH(int, type);
        QFETCH(bool, runEnabled);
        QFETCH(QString, caption);
        auto rows = C::FilterRows(section);
        if (section == 42) // a section the catalogue does not know, with rows of another
            rows = C::FilterRows(C::Contacts);
        const auto state = C::CommandState(section, rows, position - 1, chosen, labelDesk);
        QCOMPARE(state.LabelsEnabled, labelsEnabled);
        QCOMPARE(state.ReportType, type);
        QCOMPARE(state.RunEnabled, runEnabled);
        QCOMPARE(state.RunCaption, caption);
        QCOMPARE(state.LabelsCaption,
                 labelDesk ? QStringLiteral("LabelDesk") : QStringLiteral("Labels (.RTF)"));
    }

    void openingSelection_data() {
        QTest::addColumn<int>("rptRow");
        QTest::addColumn<int>("filterIndex");
        QTest::addColumn<int>("sectionIndex");
        QTest::addColumn<int>("rowIndex");
        QTest::newRow("attendees, seated") << 4 << 21 << 3 << 12;
        QTest::newRow("tables, overview") << 5 << 2 << 6 << 1;
        QTest::newRow("custom filter") << 2 << 99999 << 1 << 11;
        QTest::newRow("unknown filter key") << 4 << 77 << 3 << 0;
        QTest::newRow("unknown section") << 0 << 21 << 0 << 0;
    }
    void openingSelection() {
        QFETCH(int, rptRow);
        QFETCH(int, filterIndex);
        QFETCH(int, sectionIndex);
        QFETCH(int, rowIndex);
        const auto selection = C::OpeningSelection(rptRow, filterIndex);
        QCOMPARE(selection.SectionIndex, sectionIndex);
        QCOMPARE(selection.RowIndex, rowIndex);
    }

    void choicesGoToTheReportSettings_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("paper");
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("useRtf");
        QTest::addColumn<bool>("a4");
        QTest::addColumn<bool>("landscape");
        QTest::newRow("rtf letter landscape") << 0 << 0 << 0 << true << false << true;
        QTest::newRow("csv a4 portrait") << 1 << 1 << 1 << false << true << false;
    }
    void choicesGoToTheReportSettings() {
        QFETCH(int, type);
        QFETCH(int, paper);
        QFETCH(int, orientation);
        QFETCH(bool, useRtf);
        QFETCH(bool, a4);
        QFETCH(bool, landscape);
        C::Choices choices;
        choices.ReportType = type;
        choices.FontName = QStringLiteral("Georgia");
        choices.FontSize = QStringLiteral("11");
        choices.PaperSizeIndex = paper;
        choices.PaperOrientationIndex = orientation;
        choices.Header = clsColor(1, 2, 3);
        clsRTFMasterTemp settings;
        settings.USE_RTF = !useRtf;
        settings.A4 = !a4;
        settings.LANDSCAPE = !landscape;
        C::TakeSettings(choices, settings);
        QCOMPARE(settings.USE_RTF, useRtf);
        QCOMPARE(settings.A4, a4);
        QCOMPARE(settings.LANDSCAPE, landscape);
        QCOMPARE(settings.FONT_NAME, QStringLiteral("Georgia"));
        QCOMPARE(settings.FONT_SIZE, QStringLiteral("11"));
        QVERIFY(settings.RTF_COLOR_TABLE().startsWith(QStringLiteral(
            "\\red1\\green2\\blue3;\\red221\\green231\\blue247;\\red200\\green200\\blue200;")));
    }

    void filterText_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("text");
        QTest::newRow("all contacts") << "All Contacts"
                                      << "All";
        QTest::newRow("bare all") << "All"
                                  << "All";
        QTest::newRow("all inside") << "Not All"
                                    << "Not All";
        QTest::newRow("lower case") << "all sorts"
                                    << "all sorts";
    }
    void filterText() {
        QFETCH(QString, caption);
        QFETCH(QString, text);
        QCOMPARE(C::FilterText(caption), text);
    }

    void route_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<bool>("usesFilter");
        QTest::addColumn<int>("filterEnum");
        QTest::addColumn<QString>("filterText");
        QTest::addColumn<QString>("customWhere");
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("prefix");

        QTest::newRow("contacts custom") << 1 << 18 << "clsRTFContacts"
                                         << "frmReportsCustomFilter" << true << 1000 << ""
                                         << ""
                                         << ""
                                         << "01_Contacts_";
        QTest::newRow("gifts of the shower") << 6 << 4 << "clsRTFGift"
                                             << "" << true << 3 << "Bridal Shower"
                                             << "WHERE EVENT.EVENT_ID = 3"
                                             << ""
                                             << "05_Gifts_";
        QTest::newRow("groom's vows") << 13 << 4 << "clsRTFWidgetsWeddingVows"
                                      << "" << true << 4 << "Ben's Wedding Vows"
                                      << ""
                                      << "4"
                                      << "11_WeddingVows_";
        QTest::newRow("guest list") << 13 << 6 << "clsRTFWidgetInvite"
                                    << "" << true << 101 << "Rehearsal Dinner"
                                    << ""
                                    << "2"
                                    << "11_Invites_for_Rehearsal_Dinner_";
    }
    void route() {
        QFETCH(int, section);
        QFETCH(int, position);
        QFETCH(QString, className);
        QFETCH(QString, dialog);
        QFETCH(bool, usesFilter);
        QFETCH(int, filterEnum);
        QFETCH(QString, filterText);
        QFETCH(QString, customWhere);
        QFETCH(QString, argument);
        QFETCH(QString, prefix);
        MakeWedding();
        const auto rows = C::FilterRows(section);
        const clsReportRoute r = C::Route(section, rows, position - 1);
        QCOMPARE(r.ClassName, className);
        QCOMPARE(r.Dialog, dialog);
        QCOMPARE(r.UsesFilter, usesFilter);
        QCOMPARE(r.FilterEnum, filterEnum);
        QCOMPARE(r.FilterText, filterText);
        QCOMPARE(r.CustomWhere, customWhere);
        QCOMPARE(r.Argument, argument);
        QCOMPARE(r.FilePrefix, prefix);
        QCOMPARE(r.FormNumber, section);
        QVERIFY(r.PictureFile.isEmpty());
        QCOMPARE(rows[position - 1].ClassName, className);
    }

    void picturesOfTheReportFolder_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("message");
        QTest::newRow("table layout")
            << 5 << "TableLayout.bmp"
            << "To get a picture of your Table Layout, go to Attendees--Table layout.";
        QTest::newRow("hotel map") << 16 << "HotelMap.bmp"
                                   << "To get a picture of your Hotel Map, go to Attendees--Hotels.";
    }
    void picturesOfTheReportFolder() {
        QFETCH(int, section);
        QFETCH(QString, file);
        QFETCH(QString, message);
        const clsReportRoute r = C::Route(section, C::FilterRows(section), 2);
        QVERIFY(r.ClassName.isEmpty());
        QCOMPARE(r.PictureFile, gApp().ReportPath() + QLatin1Char('/') + file);
        QCOMPARE(r.MissingPictureMessage, message);
        QVERIFY(C::Route(section, C::FilterRows(section), 3).PictureFile.isEmpty());
    }

    void labelRoute_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("labelDesk");
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<int>("filterEnum");
        QTest::addColumn<QString>("customWhere");
        QTest::addColumn<int>("eventId"); // what the label program is handed last
        QTest::newRow("contacts") << 1 << 2 << false << "frmReportsLabels" << 1 << "" << 0;
        QTest::newRow("gifts third row") << 6 << 3 << false << "frmReportsLabels" << 2 << "" << 0;
        QTest::newRow("gifts of an event")
            << 6 << 4 << true << "clsLabelDesk" << 3 << "WHERE EVENT.EVENT_ID = 3" << 3;
        QTest::newRow("guest list") << 13 << 6 << false << "frmReportsLabels" << 2 << "" << 0;
    }
    void labelRoute() {
        QFETCH(int, section);
        QFETCH(int, position);
        QFETCH(bool, labelDesk);
        QFETCH(QString, dialog);
        QFETCH(int, filterEnum);
        QFETCH(QString, customWhere);
        QFETCH(int, eventId);
        MakeWedding();
        const clsReportRoute r = C::LabelRoute(section, C::FilterRows(section), position - 1, labelDesk);
        QCOMPARE(r.Argument.toInt(), eventId);
        QCOMPARE(r.Dialog, dialog);
        QCOMPARE(r.FormNumber, section);
        QCOMPARE(r.FilterEnum, filterEnum);
        QCOMPARE(r.CustomWhere, customWhere);
    }

    void fileNames_data() {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<bool>("useRtf");
        QTest::addColumn<QString>("name");
        QTest::newRow("rtf") << "01_Contacts_" << true << "01_Contacts_2027-06-05_090407.rtf";
        QTest::newRow("csv") << "04_Meals_" << false << "04_Meals_2027-06-05_090407.csv";
        QTest::newRow("tabula rasa: stamp right behind")
            << "04_Attendees_TabulaRasa" << false << "04_Attendees_TabulaRasa2027-06-05_090407.csv";
    }
    void fileNames() {
        QFETCH(QString, prefix);
        QFETCH(bool, useRtf);
        QFETCH(QString, name);
        SetNowForTesting(QDateTime(QDate(2027, 6, 5), QTime(9, 4, 7)));
        QCOMPARE(C::ReportFullFileName(prefix, useRtf), gApp().ReportPath() + QLatin1Char('/') + name);
        QCOMPARE(C::ReportFileName(prefix) + (useRtf ? ".rtf" : ".csv"), name);
    }

    void prefixOfAGuestList() {
        QCOMPARE(C::FilePrefix(QStringLiteral("clsRTFWidgetInvite"), QStringLiteral("Bridal Shower at Noon")),
                 QStringLiteral("11_Invites_for_Bridal_Shower_at_Noon_"));
        QCOMPARE(C::FilePrefix(QStringLiteral("clsRTFNoSuchReport")), QString());
    }
};

QTEST_GUILESS_MAIN(tst_ReportCatalogue)
#include "tst_ReportCatalogue.moc"
