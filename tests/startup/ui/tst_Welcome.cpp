#include "TestDatabase.h"
#include "app/modKnownScreens.h"
#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "core/modSubMain.h"
#include "guests/clsCONTACT.h"
#include "planning/clsEVENT.h"
#include "shell/controls/usrNumberBox.h"
#include "shell/mdiMain.h"
#include "shell/modPages.h"
#include "startup/ui/frmMain_00_Home.h"
#include "startup/ui/frmMain_00_Welcome.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimeEdit>
#include <QToolButton>
#include <QtTest>

namespace {

void TypeName(QWidget* page, const char* field, const QString& text) {
    auto* edit = page->findChild<QLineEdit*>(QLatin1String(field));
    edit->setFocus();
    edit->selectAll();
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    else
        QTest::keyClicks(edit, text);
    emit edit->editingFinished();
}

QPushButton* Continue(QWidget* page) { return page->findChild<QPushButton*>(QStringLiteral("imgContinue")); }

QString Scalar(const QString& sql) { return TestDatabase::Scalar(sql); }

// The shell's own screens and nothing else.
void KnownScreensOnly() {
    modPages::Clear();
    RegisterKnownScreens();
}

} // namespace

class tst_Welcome : public QObject {
    Q_OBJECT

private slots:
    void continueNeedsBothFirstAndLastNames_data() {
        QTest::addColumn<QString>("bride");
        QTest::addColumn<QString>("groom");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("both complete") << "Emily Rose Carter" << "Daniel Whitaker" << true;
        QTest::newRow("a single word is a first name only") << "Dana" << "Daniel Whitaker" << false;
        QTest::newRow("title and last name without a first") << "Emily Carter" << "Mr. Whitaker" << false;
        QTest::newRow("suffix does not make a last name") << "Emily Carter" << "Daniel Jr." << false;
        QTest::newRow("three blanks leave an empty word: no last name") << "Emily   Carter" << "Daniel Whitaker" << false;
        QTest::newRow("blanks around are trimmed") << "  Emily Carter " << "Daniel Whitaker" << true;
    }

    void continueNeedsBothFirstAndLastNames() {
        QFETCH(QString, bride);
        QFETCH(QString, groom);
        QFETCH(bool, enabled);
        TestDatabase db;
        modSubMain::RunPatchesAndOpenGlobals();
        frmMain_00_Welcome page;
        QVERIFY(!Continue(&page)->isEnabled());
        TypeName(&page, "txt_0", bride);
        TypeName(&page, "txt_1", groom);
        QCOMPARE(Continue(&page)->isEnabled(), enabled);
    }

    void estimatesFollowTheBudgetAndTheShares() {
        TestDatabase db;
        modSubMain::RunPatchesAndOpenGlobals();
        frmMain_00_Welcome page;
        auto* grid = page.findChild<QTableWidget*>(QStringLiteral("grid"));
        QCOMPARE(grid->rowCount(), 9);
        QCOMPARE(grid->item(0, 0)->text(), QStringLiteral("Ceremony"));
        QCOMPARE(grid->item(6, 0)->text(), QStringLiteral("Photography"));
        QCOMPARE(grid->item(8, 0)->text(), QStringLiteral("Stationery"));
        page.findChild<usrNumberBox*>(QStringLiteral("usrNumber"))->setValue(20000);
        QCOMPARE(grid->item(7, 1)->text(), QStringLiteral("45%"));
        QCOMPARE(grid->item(7, 2)->text(), mdiMain::CurrencyText(9000));
        QCOMPARE(grid->item(0, 2)->text(), mdiMain::CurrencyText(400));
        grid->item(5, 1)->setText(QStringLiteral("12.5"));
        QCOMPARE(grid->item(5, 1)->text(), QStringLiteral("12.5%"));
        QCOMPARE(grid->item(5, 2)->text(), mdiMain::CurrencyText(2500));
        grid->item(5, 1)->setText(QStringLiteral("lots"));
        QCOMPARE(grid->item(5, 1)->text(), QStringLiteral("12.5%"));
    }

    void iconChoiceIsSavedAtOnce() {
        TestDatabase db;
        modSubMain::RunPatchesAndOpenGlobals();
        frmMain_00_Welcome page;
        QTest::mouseClick(page.findChild<QToolButton*>(QStringLiteral("optBride_3")), Qt::LeftButton);
        QTest::mouseClick(page.findChild<QToolButton*>(QStringLiteral("optGroom_2")), Qt::LeftButton);
        QCOMPARE(Scalar(QStringLiteral("SELECT VOWREN_TX FROM VOWREN WHERE VOWREN_ID = 1")), QStringLiteral("3"));
        QCOMPARE(Scalar(QStringLiteral("SELECT VOWREN_TX FROM VOWREN WHERE VOWREN_ID = 2")), QStringLiteral("2"));
        QCOMPARE(mdiMain::BrideIconKey(), QStringLiteral("BRIDE3"));
    }

    // The whole road of a new database: four steps, then Home with the right counts.
    void welcomeFlowEndsOnHomeWithEverythingSaved() {
        TestDatabase db;
        TestDatabase::Exec(QStringLiteral("INSERT INTO BUDGET (BUDGET_ID, ACTUAL_AMOUNT_NB, DUE_DT, ITEM_NM, "
                                          "BUDGET_CATEGORY_ID, PAID_BY_ID) VALUES (1, 500, '2026-01-01', 'Deposit', 4, 4)"));
        modSubMain::RunPatchesAndOpenGlobals();
        KnownScreensOnly();
        SetNowForTesting(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
        mdiMain window;
        auto* welcome = qobject_cast<frmMain_00_Welcome*>(window.CurrentPage());
        QVERIFY(welcome);

        TypeName(welcome, "txt_0", QStringLiteral("Emily Rose Carter"));
        TypeName(welcome, "txt_1", QStringLiteral("Daniel Whitaker Jr."));
        QCOMPARE(welcome->findChild<QLabel*>(QStringLiteral("lblParts_1"))->text().contains(QStringLiteral("Suffix: Jr.")),
                 true);
        QTest::mouseClick(Continue(welcome), Qt::LeftButton);
        QCOMPARE(welcome->Step(), 2);
        welcome->findChild<QCalendarWidget*>(QStringLiteral("monthYear"))->setSelectedDate(QDate(2027, 6, 12));
        welcome->findChild<QTimeEdit*>(QStringLiteral("timePicker"))->setTime(QTime(15, 30));
        QTest::mouseClick(Continue(welcome), Qt::LeftButton);
        QCOMPARE(welcome->Step(), 3);
        auto* budget = welcome->findChild<usrNumberBox*>(QStringLiteral("usrNumber"));
        budget->selectAll();
        QTest::keyClicks(budget, QStringLiteral("20000"));
        QCOMPARE(budget->Value(), 20000.0);
        QTest::mouseClick(Continue(welcome), Qt::LeftButton);
        QCOMPARE(welcome->Step(), 4);
        QTest::mouseClick(Continue(welcome), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        auto* home = qobject_cast<frmMain_00_Home*>(window.CurrentPage());
        QVERIFY(home);
        QCOMPARE(window.BreadcrumbTexts(), QStringList{QStringLiteral("Home")});
        QCOMPARE(window.WeddingCaption(), QStringLiteral("Emily Rose & Daniel's Wedding"));
        QVERIFY(window.CountdownCaption().endsWith(QStringLiteral("until June 12, 2027")));

        QCOMPARE(Scalar(QStringLiteral("SELECT TITLE_TX || '|' || FIRST_NM || '|' || MIDDLE_NM || '|' || LAST_NM || '|' || "
                                       "AB_LIST_CD || ATTENDING_FG FROM CONTACT WHERE CONTACT_ID = 1")),
                 QStringLiteral("Miss|Emily|Rose|Carter|AY"));
        QCOMPARE(Scalar(QStringLiteral("SELECT TITLE_TX || '|' || FIRST_NM || '|' || LAST_NM || '|' || SUFFIX_TX || '|' || "
                                       "PRIMARY_CONTACT_FG FROM CONTACT WHERE CONTACT_ID = 2")),
                 QStringLiteral("Mr.|Daniel|Whitaker|Jr.|Y"));
        const QDateTime wedding(QDate(2027, 6, 12), QTime(15, 30));
        QCOMPARE(ParseDateTimeText(Scalar(QStringLiteral("SELECT EVENT_DT FROM EVENT WHERE EVENT_ID = 1"))), wedding);
        QCOMPARE(Scalar(QStringLiteral("SELECT TIMELINE_DESC || '|' || CONTACT_NM FROM TIMELINE")),
                 QStringLiteral("Wedding Ceremony|Everyone"));
        QCOMPARE(ParseDateTimeText(Scalar(QStringLiteral("SELECT TIMELINE_START_DT FROM TIMELINE"))), wedding);
        QCOMPARE(Scalar(QStringLiteral("SELECT ESTIMATE_AMOUNT_NB FROM BUDGET_CATEGORY_DICT WHERE BUDGET_CATEGORY_ID = 4"))
                     .toDouble(),
                 9000.0);
        QCOMPARE(Scalar(QStringLiteral("SELECT ESTIMATE_AMOUNT_NB FROM BUDGET_CATEGORY_DICT WHERE BUDGET_CATEGORY_ID = 9"))
                     .toDouble(),
                 0.0);
        QCOMPARE(ParseDateTimeText(Scalar(QStringLiteral("SELECT DUE_DT FROM BUDGET WHERE BUDGET_ID = 1"))).date(),
                 wedding.date());

        // Shares add up to 100% less the honeymoon's nothing: 20000 in all.
        QCOMPARE(home->BudgetText(), mdiMain::CurrencyText(20000));
        QCOMPARE(home->BudgetActualText(), mdiMain::CurrencyText(500) + QStringLiteral(" actual"));
        QCOMPARE(home->BudgetPlusMinusText(), QStringLiteral("+/-  ") + mdiMain::CurrencyText(19500));
        // The count of all contacts keeps the couple in, whatever the flag says.
        QCOMPARE(home->MainText(1), QStringLiteral("2 contacts"));
        QCOMPARE(home->MainText(4), QStringLiteral("2 contacts are coming"));
        QCOMPARE(home->MainText(9), QStringLiteral("1 timeline begun"));
        QCOMPARE(home->SubText(9), QStringLiteral("1 total entries"));
        QVERIFY(clsApp::CoreInformationGathered(gBride().FIRST_NM, gBride().LAST_NM, gGroom().FIRST_NM, gGroom().LAST_NM,
                                                gWeddingEvent().EVENT_DT));
        SetNowForTesting(QDateTime());
    }

    // A database that lost a name opens on Welcome again with what it still knows; finishing twice
    // leaves one ceremony entry.
    void welcomeAgainKeepsWhatIsKnown() {
        TestDatabase db;
        TestDatabase::Exec(QStringLiteral("UPDATE CONTACT SET FIRST_NM = 'Emily', LAST_NM = 'Carter' WHERE CONTACT_ID = 1"));
        TestDatabase::Exec(QStringLiteral("UPDATE EVENT SET EVENT_DT = '2027-09-04 11:00:00' WHERE EVENT_ID = 1"));
        TestDatabase::Exec(QStringLiteral("INSERT INTO TIMELINE (TIMELINE_ID, TIMELINE_START_DT, TIMELINE_END_DT, "
                                          "TIMELINE_DESC, CONTACT_NM, EVENT_ID) VALUES (1, '2027-09-04 11:00:00', "
                                          "'2027-09-04 11:00:00', 'Wedding Ceremony', 'Everyone', 1)"));
        modSubMain::RunPatchesAndOpenGlobals();
        frmMain_00_Welcome page;
        QCOMPARE(page.findChild<QLineEdit*>(QStringLiteral("txt_0"))->text(), QStringLiteral("Emily Carter"));
        QCOMPARE(page.WeddingDateTimeText(), QStringLiteral("04-Sep-2027 ") + FormatTime(QTime(11, 0)));
        QVERIFY(!Continue(&page)->isEnabled());
        TypeName(&page, "txt_1", QStringLiteral("Daniel Whitaker"));
        for (int step = 1; step <= 4; ++step)
            QTest::mouseClick(Continue(&page), Qt::LeftButton);
        QCOMPARE(Scalar(QStringLiteral("SELECT COUNT(*) FROM TIMELINE")), QStringLiteral("1"));
        QCOMPARE(Scalar(QStringLiteral("SELECT FIRST_NM FROM CONTACT WHERE CONTACT_ID = 2")), QStringLiteral("Daniel"));
    }

    void homeCounts_data() {
        QTest::addColumn<QStringList>("statements");
        QTest::addColumn<int>("card");
        QTest::addColumn<QString>("main");
        QTest::addColumn<QString>("sub");
        const QString vendor = QStringLiteral("INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM) VALUES (%1, 'Vendor %1')");
        const QString note = QStringLiteral(
            "INSERT INTO NOTEBOOK (NOTEBOOK_ID, NOTEBOOK_DT, SUBJECT_TX) VALUES (%1, '2026-10-01', 'Note %1')");
        QTest::newRow("no vendor") << QStringList{} << 8 << "0 vendors" << "";
        QTest::newRow("one vendor has no s") << QStringList{vendor.arg(1)} << 8 << "1 vendor" << "";
        QTest::newRow("one note") << QStringList{note.arg(1)} << 10 << "1 note" << "";
        QTest::newRow("the couple are coming") << QStringList{} << 4 << "2 contacts are coming" << "";
        QTest::newRow("one attendee is coming")
            << QStringList{QStringLiteral("UPDATE CONTACT SET ATTENDING_FG = 'N' WHERE CONTACT_ID = 2")} << 4
            << "1 contacts is coming" << "";
        QTest::newRow("nobody is coming")
            << QStringList{QStringLiteral("UPDATE CONTACT SET ATTENDING_FG = 'N'")} << 4 << "0 contacts are coming" << "";
        QTest::newRow("fresh checklist") << QStringList{} << 6 << "" << "0 completed tasks";
        QTest::newRow("budget over the estimate")
            << QStringList{QStringLiteral("UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = 100 WHERE BUDGET_CATEGORY_ID = 1"),
                           QStringLiteral("INSERT INTO BUDGET (BUDGET_ID, ACTUAL_AMOUNT_NB, DUE_DT, ITEM_NM, BUDGET_CATEGORY_ID, "
                                          "PAID_BY_ID) VALUES (1, 150, '2027-01-01', 'Cards', 1, 4)")}
            << 7 << mdiMain::CurrencyText(100) << mdiMain::CurrencyText(150) + QStringLiteral(" actual");
    }

    void homeCounts() {
        QFETCH(QStringList, statements);
        QFETCH(int, card);
        QFETCH(QString, main);
        QFETCH(QString, sub);
        TestDatabase db;
        for (const QString& sql : statements)
            TestDatabase::Exec(sql);
        KnownScreensOnly();
        frmMain_00_Home home;
        if (!main.isEmpty())
            QCOMPARE(home.MainText(card), main);
        if (!sub.isEmpty())
            QCOMPARE(home.SubText(card), sub);
        if (card == 7)
            QCOMPARE(home.BudgetPlusMinusText(), QStringLiteral("+/-  ") + mdiMain::CurrencyText(-50));
    }
};

QTEST_MAIN(tst_Welcome)
#include "tst_Welcome.moc"
