#include "UiTestTools.h"
#include "core/modGeneral.h"
#include "planning/PlanningTestTools.h"
#include "planning/ui/frmEvent.h"
#include "planning/ui/frmMain_09_Timelines.h"
#include "planning/ui/frmMain_11_Events.h"
#include "planning/ui/frmTimeline.h"
#include "platform/clsRegistry.h"
#include "reports/clsRTFCalendar.h"
#include "reports/ui/frmReportEventDates.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimeEdit>
#include <QtTest>
#include <memory>

using UiTestTools::Child;

namespace {

QString Time(int hour, int minute) {
    return FormatTime(QTime(hour, minute));
}

void Click(const QWidget* parent, const char* name) {
    QTest::mouseClick(Child<QPushButton>(parent, QLatin1String(name)), Qt::LeftButton);
}

QString Iso(const QString& value) {
    return ParseDateTimeText(value).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

// Every entry as "start|end|description", in the order of their starts.
QStringList StoredEntries() {
    QStringList entries;
    for (const clsTIMELINE& t : clsTIMELINE().OpenRecords())
        entries << Iso(t.TIMELINE_START_DT) + QLatin1Char('|') + Iso(t.TIMELINE_END_DT) + QLatin1Char('|') +
                       t.TIMELINE_DESC;
    return entries;
}

} // namespace

class tst_EventPages : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() {
        db = std::make_unique<PlanningDatabase>();
        TestDatabase::Exec(QStringLiteral("DELETE FROM TIMELINE"));
        TestDatabase::Exec(QStringLiteral("DELETE FROM EVENT"));
        AddTestEvent(QStringLiteral("1"), QStringLiteral("Wedding"), QStringLiteral("2027-06-05 15:30:00"));
        AddTestEvent(QStringLiteral("2"), QStringLiteral("Shower"), QStringLiteral("2027-05-15 11:00:00"));
    }
    void cleanup() { db.reset(); }

    // The Delete key asks first; the wedding day is never deleted, whatever the answer.
    void deletingAnEvent_data() {
        QTest::addColumn<QString>("eventId");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("deleted");
        QTest::addColumn<QString>("lastMessage");
        QTest::newRow("the shower, yes") << "2" << int(Msg::Yes) << true << "Delete 'Shower'?";
        QTest::newRow("the shower, no") << "2" << int(Msg::No) << false << "Delete 'Shower'?";
        QTest::newRow("the wedding day")
            << "1" << int(Msg::Yes) << false << "You cannot delete the Wedding Day event.";
    }
    void deletingAnEvent() {
        QFETCH(QString, eventId);
        QFETCH(int, answer);
        QFETCH(bool, deleted);
        QFETCH(QString, lastMessage);
        frmMain_11_Events page;
        UiTestTools::ShowActive(page);
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {eventId});
        db->Messages().NextAnswer = answer;
        page.Grid()->setFocus();
        QTest::keyClick(page.Grid(), Qt::Key_Delete);
        QCOMPARE(db->Messages().Prompts.last(), lastMessage);
        QCOMPARE(PlanningDatabase::Count("EVENT", "WHERE EVENT_ID = " + eventId), deleted ? "0" : "1");
        QCOMPARE(page.Grid()->Model()->FindRecord(eventId.toLongLong()).isValid(), !deleted);
    }

    // The links of the selected event are there only when they can work.
    void actionsFollowTheSelectedEvent_data() {
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("site");
        QTest::addColumn<bool>("canMail");
        QTest::addColumn<bool>("canVisit");
        QTest::newRow("address and site") << "hall@example.com"
                                          << "hall.example.com" << true << true;
        QTest::newRow("no @ in the e-mail, no site") << "ask at the door"
                                                     << "" << false << false;
    }
    void actionsFollowTheSelectedEvent() {
        QFETCH(QString, email);
        QFETCH(QString, site);
        QFETCH(bool, canMail);
        QFETCH(bool, canVisit);
        TestDatabase::Exec("UPDATE EVENT SET EMAIL_TX = ?, WEB_SITE_TX = ? WHERE EVENT_ID = 2",
                           {email, site.isEmpty() ? QVariant() : site});
        frmMain_11_Events page;
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {"2"});
        using P = frmMain_11_Events;
        const auto enabled = [&page](int action) {
            return Child<usrHyperlink>(&page, QStringLiteral("linkAction_%1").arg(action))->isEnabled();
        };
        QCOMPARE(enabled(P::EmailEvent), canMail);
        QCOMPARE(enabled(P::VisitWebSite), canVisit);
        QVERIFY(enabled(P::MapLocation));
        QCOMPARE(page.Grid()->Model()->FlatRowCount(), 2);
        // By date: the shower comes first.
        QCOMPARE(page.Grid()->Model()->KeyAt(page.Grid()->Model()->FlatRow(1)), 2);
    }

    // Saving the wedding day in the editor moves the program's wedding date, and the frame hears of it.
    void savingTheWeddingDayMovesTheWeddingDate() {
        frmMain_11_Events page;
        page.LoadNow();
        QSignalSpy couple(&page, &usrPage::UpdateWeddingCouple);
        frmEvent editor(QStringLiteral("1"), &page);
        connect(&editor, &frmEditorBase::Updated, &page, &frmMain_11_Events::mfrmEvent_Refresh);
        QVERIFY(!Child<QPushButton>(&editor, "cmdSave")->isEnabled());
        Child<QDateEdit>(&editor, "dt")->setDate(QDate(2028, 9, 16));
        Child<QTimeEdit>(&editor, "tm")->setTime(QTime(16, 0));
        Click(&editor, "cmdSave");
        QCOMPARE(Iso(TestDatabase::Scalar("SELECT EVENT_DT FROM EVENT WHERE EVENT_ID = 1")),
                 QStringLiteral("2028-09-16 16:00"));
        QCOMPARE(gWeddingEvent().EVENT_DT_DateFormat(), QStringLiteral("16-Sep-2028"));
        QCOMPARE(couple.count(), 1);
        QCOMPARE(gRegistry().GetSetting(clsApp::RootKey(), "WeddingDate", ""), "16-Sep-2028 " + Time(16, 0));
    }

    // An event needs a name before it can be saved; the heading shows it.
    void anEventNeedsAName() {
        frmEvent editor{QString()};
        QCOMPARE(Child<QLabel>(&editor, "lblTop")->text(), QStringLiteral("Event"));
        QLineEdit* name = Child<QLineEdit>(&editor, "txtEVENT_TX");
        name->setText(QStringLiteral("   "));
        QVERIFY(!Child<QPushButton>(&editor, "cmdSave")->isEnabled());
        name->setText(QStringLiteral("Rehearsal"));
        QCOMPARE(Child<QLabel>(&editor, "lblTop")->text(), QStringLiteral("Rehearsal"));
        Click(&editor, "cmdSaveAndNew");
        QCOMPARE(PlanningDatabase::Count("EVENT", "WHERE EVENT_TX = 'Rehearsal'"), QStringLiteral("1"));
        QCOMPARE(name->text(), QString());
        QCOMPARE(editor.windowTitle(), QStringLiteral("Add New Event"));
    }

    // Entries typed one after the other chain: each starts where the last ended, with the same length.
    void entriesChainWithoutTypingTimes() {
        frmTimeline editor(QString(), QStringLiteral("1"));
        QComboBox* start = Child<QComboBox>(&editor, "cboTime_0");
        QComboBox* end = Child<QComboBox>(&editor, "cboTime_1");
        QCOMPARE(start->currentText(), Time(8, 0));
        QCOMPARE(end->currentText(), Time(8, 30) + " (30 minutes)");
        Child<QLineEdit>(&editor, "txtTIMELINE_DESC")->setText("Hair");
        Click(&editor, "cmdSaveAndNew");
        QCOMPARE(start->currentText(), Time(8, 30));
        end->setCurrentIndex(3); // 1.5 hours
        emit end->activated(3);
        Child<QLineEdit>(&editor, "txtTIMELINE_DESC")->setText("Makeup");
        Click(&editor, "cmdSaveAndNew");
        QCOMPARE(end->currentText(), Time(11, 30) + " (1.5 hours)");
        QCOMPARE(StoredEntries(), (QStringList{"2027-06-05 08:00|2027-06-05 08:30|Hair",
                                               "2027-06-05 08:30|2027-06-05 10:00|Makeup"}));
        // A new editor starts at the latest end, whatever order the entries were typed in.
        frmTimeline next(QString(), QStringLiteral("1"));
        QCOMPARE(Child<QComboBox>(&next, "cboTime_0")->currentText(), Time(10, 0));
    }

    void anEntryOverMidnightEndsTheNextDay() {
        frmTimeline editor(QString(), QStringLiteral("1"));
        QComboBox* start = Child<QComboBox>(&editor, "cboTime_0");
        start->setCurrentIndex(47); // 11:30 PM
        emit start->activated(47);
        QCOMPARE(Child<QComboBox>(&editor, "cboTime_1")->currentText(), Time(0, 0) + " (30 minutes)");
        QCOMPARE(Child<QDateEdit>(&editor, "dtEnd")->date(), QDate(2027, 6, 6));
        Child<QLineEdit>(&editor, "txtTIMELINE_DESC")->setText("Sparklers");
        Click(&editor, "cmdSave");
        QCOMPARE(StoredEntries(), QStringList{"2027-06-05 23:30|2027-06-06 00:00|Sparklers"});
    }

    // What can't be saved is refused with a message, and nothing reaches the database.
    void refusedEntries_data() {
        QTest::addColumn<QString>("startText");
        QTest::addColumn<bool>("endBeforeStart");
        QTest::addColumn<QString>("message");
        QTest::newRow("a start that is no time")
            << "half past nine" << false << "\"half past nine\" is not a time.";
        QTest::newRow("no such hour") << "27:15" << false << "\"27:15\" is not a time.";
        QTest::newRow("end date before the start")
            << "" << true << "The end date you entered occurs before the start date.";
    }
    void refusedEntries() {
        QFETCH(QString, startText);
        QFETCH(bool, endBeforeStart);
        QFETCH(QString, message);
        frmTimeline editor(QString(), QStringLiteral("1"));
        UiTestTools::ShowActive(editor);
        Child<QLineEdit>(&editor, "txtTIMELINE_DESC")->setText("Toasts");
        if (!startText.isEmpty())
            Child<QComboBox>(&editor, "cboTime_0")->setEditText(startText);
        if (endBeforeStart) {
            QDateEdit* endDate = Child<QDateEdit>(&editor, "dtEnd");
            const QSignalBlocker quiet(endDate);
            endDate->setDate(QDate(2027, 6, 1));
        }
        Click(&editor, "cmdSave");
        QVERIFY2(db->Messages().Prompts.value(0).startsWith(message),
                 qPrintable(db->Messages().Prompts.value(0)));
        QCOMPARE(PlanningDatabase::Count("TIMELINE"), QStringLiteral("0"));
        QVERIFY(editor.isVisible());
        if (endBeforeStart)
            QCOMPARE(QApplication::focusWidget(), Child<QDateEdit>(&editor, "dtEnd"));
    }

    // A link for each event with entries, its count beside it; a filter whose last entry goes falls back.
    void filterLinksFollowTheEntries() {
        AddTestEvent(QStringLiteral("3"), QStringLiteral("Brunch"), QStringLiteral("2027-06-06 10:00:00"));
        AddTestEntry("1", "Ceremony", "2027-06-05 15:30:00", "2027-06-05 16:00:00");
        AddTestEntry("1", "Toasts", "2027-06-05 18:00:00", "2027-06-05 18:30:00");
        AddTestEntry("2", "Gifts", "2027-05-15 12:00:00", "2027-05-15 13:00:00");
        frmMain_09_Timelines page;
        QSignalSpy crumbs(&page, &usrPage::Breadcrumb);
        page.LoadNow();
        QCOMPARE(Child<QLabel>(&page, "lblStat_0")->text(), QStringLiteral("3"));
        QCOMPARE(Child<QLabel>(&page, "lblStat_1")->text(), QStringLiteral("2"));
        QCOMPARE(Child<QLabel>(&page, "lblStat_2")->text(), QStringLiteral("1"));
        QVERIFY(!page.findChild<usrHyperlink*>("linkFilter_3"));
        QCOMPARE(page.Grid()->Model()->TopRows().size(), size_t(2)); // a group for each event's day

        page.SetFilter(2);
        QCOMPARE(crumbs.last().value(0).toString(), QStringLiteral("Timelines>Shower"));
        QCOMPARE(page.FilterEvent(), QStringLiteral("2"));
        UiTestTools::SelectRecords(page.Grid(), {"3"});
        db->Messages().NextAnswer = Msg::Yes;
        QVERIFY(page.DeleteSelected());
        QCOMPARE(db->Messages().Prompts.last(), QStringLiteral("Delete entry?"));
        QCOMPARE(PlanningDatabase::Count("TIMELINE"), QStringLiteral("2"));
        QCOMPARE(page.CurrentFilter(), int(frmMain_09_Timelines::AllEntries));
        QVERIFY(!page.findChild<usrHyperlink*>("linkFilter_2"));
        QCOMPARE(crumbs.last().value(0).toString(), QStringLiteral("Timelines"));
    }

    void calendarMonthsAreCheckedAndKept() {
        frmReportEventDates dialog;
        const auto choose = [&dialog](const char* list, int value) {
            QComboBox* box = Child<QComboBox>(&dialog, QLatin1String(list));
            box->setCurrentIndex(box->findData(value));
            QVERIFY(box->currentIndex() >= 0);
        };
        choose("cboFromMonth", 7);
        choose("cboFromYear", 2027);
        choose("cboToMonth", 6);
        choose("cboToYear", 2027);
        Click(&dialog, "cmdOK");
        QCOMPARE(db->Messages().Prompts.value(0),
                 QStringLiteral("From Date must be equal to or before To Date."));
        QVERIFY(!dialog.Continue());
        choose("cboToMonth", 1);
        choose("cboToYear", 2028);
        Click(&dialog, "cmdOK");
        QVERIFY(dialog.Continue());
        clsCalendarMonths kept;
        kept.TakeStoredRange();
        QCOMPARE(kept.RangeText(), QStringLiteral("2027-07:2028-01"));
    }
};

QTEST_MAIN(tst_EventPages)
#include "tst_EventPages.moc"
