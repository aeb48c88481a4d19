#include "TestDatabase.h"
#include "app/modKnownScreens.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "core/modSubMain.h"
#include "guests/clsCONTACT.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/frmVowren.h"
#include "shell/mdiMain.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"
#include "startup/ui/frmMain_00_Home.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

// A page that only counts how often it was made and lets the test raise its events.
class FakePage : public usrPage {
    Q_OBJECT
public:
    explicit FakePage(QWidget* parent) : usrPage(parent) { ++Made; }
    static inline int Made = 0;
    static inline int TopLevelCalls = 0;
    void GoToTopLevel() override { ++TopLevelCalls; }
    void SubPageClosed(const QString& formName) override { ClosedSubPages << formName; }
    void Leaving() override { ++Left; }
    QList<QAction*> EditActions() const override { return OfferEdit ? QList<QAction*>{mEdit} : QList<QAction*>(); }
    static inline bool OfferEdit = false;
    static inline QStringList ClosedSubPages;
    static inline int Left = 0;

private:
    QAction* mEdit = new QAction(QStringLiteral("&Undo"), this);
};

namespace {

const QString kWedding = QStringLiteral("12-Jun-2027 3:30 PM");

// The couple and the day filled in, the globals opened as the splash opens them.
void GatherCoreInformation() {
    TestDatabase::Exec(QStringLiteral("UPDATE CONTACT SET FIRST_NM = 'Emily', MIDDLE_NM = 'Rose', LAST_NM = 'Carter' "
                                      "WHERE CONTACT_ID = 1"));
    TestDatabase::Exec(QStringLiteral("UPDATE CONTACT SET FIRST_NM = 'Daniel', LAST_NM = 'Whitaker' WHERE CONTACT_ID = 2"));
    TestDatabase::Exec(QStringLiteral("UPDATE EVENT SET EVENT_DT = '2027-06-12 15:30:00' WHERE EVENT_ID = 1"));
    modSubMain::RunPatchesAndOpenGlobals();
}

void RegisterScreens() {
    modPages::Clear();
    RegisterKnownScreens();
    modPages::RegisterPage(5, [](QWidget* parent) { return new FakePage(parent); });
    modPages::RegisterSubPage(QStringLiteral("frmFake_Sub"), [](QWidget* parent) { return new FakePage(parent); });
    FakePage::Made = 0;
    FakePage::TopLevelCalls = 0;
    FakePage::ClosedSubPages.clear();
    FakePage::Left = 0;
    FakePage::OfferEdit = false;
}

QDateTime Before(const QString& wedding, qint64 seconds) { return ParseDateTimeText(wedding).addSecs(-seconds); }

QString Time330() { return FormatTime(QTime(15, 30)); }

QString Scalar(const QString& sql) { return TestDatabase::Scalar(sql); }

constexpr qint64 kDay = 86400;
constexpr qint64 kHour = 3600;

} // namespace

class tst_mdiMain : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { SetNowForTesting(QDateTime()); }

    void countdown_data() {
        QTest::addColumn<qint64>("secondsBefore");
        QTest::addColumn<bool>("showCountdown");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("timeToWedding");
        const QString longDate = QStringLiteral("until June 12, 2027");
        const QString shortDate = QStringLiteral("until Jun 12, 2027 ") + Time330();
        QTest::newRow("40 days, countdown off") << 40 * kDay << false << QStringLiteral("Jun 12, 2027") << "40 days ";
        QTest::newRow("32 days 3 hours: days alone") << 32 * kDay + 3 * kHour << true
                                                    << QStringLiteral("32 days ") + longDate << "32 days ";
        QTest::newRow("31 days 3 hours: days and hours")
            << 31 * kDay + 3 * kHour << true << QStringLiteral("31 days 3 hours ") + longDate << "31 days 3 hours ";
        QTest::newRow("15 days: still the long date") << 15 * kDay << true << QStringLiteral("15 days ") + longDate
                                                     << "15 days ";
        QTest::newRow("14 days 23:59: days, hours, minutes, with the time")
            << 14 * kDay + 23 * kHour + 59 * 60 << true
            << QStringLiteral("14 days 23 hours 59 minutes ") + shortDate << "14 days 23 hours 59 minutes ";
        QTest::newRow("1 day 1 hour 1 minute: singular words")
            << kDay + kHour + 60 + 5 << true << QStringLiteral("1 day 1 hour 1 minute ") + shortDate
            << "1 day 1 hour 1 minute ";
        QTest::newRow("2 hours exactly: no minutes, 0 seconds")
            << 2 * kHour << true << QStringLiteral("2 hours 0 seconds ") + shortDate << "2 hours 0 seconds ";
        QTest::newRow("one second") << qint64(1) << true << QStringLiteral("1 second ") + shortDate << "1 second ";
        QTest::newRow("the second itself is not married yet")
            << qint64(0) << true << QStringLiteral("0 seconds ") + shortDate << "0 seconds ";
        QTest::newRow("86398 seconds already read as a day")
            << qint64(86398) << true << QStringLiteral("1 day ") + shortDate << "1 day ";
        QTest::newRow("married: time since and Married!")
            << -(2 * kDay + 3 * kHour) << true << QStringLiteral("2 days 3 hours Married!") << "2 days 3 hours ";
        QTest::newRow("married, countdown off") << -(2 * kDay) << false << QStringLiteral("You're Married!") << "2 days ";
    }

    void countdown() {
        QFETCH(qint64, secondsBefore);
        QFETCH(bool, showCountdown);
        QFETCH(QString, caption);
        QFETCH(QString, timeToWedding);
        const auto texts = mdiMain::Countdown(kWedding, Before(kWedding, secondsBefore), showCountdown);
        QCOMPARE(texts.Caption, caption);
        QCOMPARE(texts.TimeToWedding, timeToWedding);
    }

    void countdownWithoutDateIsEmpty() {
        const auto texts = mdiMain::Countdown(QString(), QDateTime::currentDateTime(), true);
        QVERIFY(texts.Caption.isEmpty());
        QVERIFY(texts.TimeToWedding.isEmpty());
    }

    void headerShowsCoupleAndCountdownAndClickFlipsIt() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        SetNowForTesting(Before(kWedding, 40 * kDay));
        mdiMain window;
        QCOMPARE(window.WeddingCaption(), QStringLiteral("Emily Rose & Daniel's Wedding"));
        QCOMPARE(window.CountdownCaption(), QStringLiteral("40 days until June 12, 2027"));
        QCOMPARE(gApp().TimeToWedding, QStringLiteral("40 days "));

        QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("lblCountdown")), Qt::LeftButton);
        QCOMPARE(window.CountdownCaption(), QStringLiteral("Jun 12, 2027"));
        QCOMPARE(gApp().ShowCountdown(), false);
        QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("lblCountdown")), Qt::LeftButton);
        QCOMPARE(gApp().ShowCountdown(), true);
    }

    // The label follows the clock each second, and the stored choice decides the form at start.
    void countdownFollowsTheClockAndTheStoredChoice() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        SetNowForTesting(Before(kWedding, 20 * kDay));
        {
            mdiMain window;
            QCOMPARE(window.CountdownCaption(), QStringLiteral("20 days until June 12, 2027"));
            SetNowForTesting(Before(kWedding, 90));
            QTRY_COMPARE(window.CountdownCaption(), QStringLiteral("1 minute 30 seconds until Jun 12, 2027 ") + Time330());
            QCOMPARE(gApp().TimeToWedding, QStringLiteral("1 minute 30 seconds "));
        }
        gApp().SetShowCountdown(false);
        mdiMain window;
        QCOMPARE(window.CountdownCaption(), QStringLiteral("Jun 12, 2027"));
    }

    void breadcrumbLevels_data() {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("root alone") << QStringList{QString()} << QStringList{QStringLiteral("Home")};
        QTest::newRow("two levels") << QStringList{QStringLiteral("Budget>Pastdue")}
                                    << QStringList{QStringLiteral("Home"), QStringLiteral("Budget"), QStringLiteral("Pastdue")};
        QTest::newRow("fewer levels hide the rest")
            << QStringList{QStringLiteral("Attendees>Tables>Table 4"), QStringLiteral("Checklist")}
            << QStringList{QStringLiteral("Home"), QStringLiteral("Checklist")};
        QTest::newRow("blanks around the levels")
            << QStringList{QStringLiteral(" Gifts > To write ")}
            << QStringList{QStringLiteral("Home"), QStringLiteral("Gifts"), QStringLiteral("To write")};
    }

    void breadcrumbLevels() {
        QFETCH(QStringList, texts);
        QFETCH(QStringList, shown);
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        mdiMain window;
        for (const QString& text : texts)
            window.SetBreadcrumb(text, QStringLiteral("Home"));
        QCOMPARE(window.BreadcrumbTexts(), shown);
    }

    void firstScreenDependsOnCoreInformation() {
        TestDatabase db;
        modSubMain::RunPatchesAndOpenGlobals();
        RegisterScreens();
        {
            mdiMain window;
            QCOMPARE(window.CurrentPage()->objectName(), QStringLiteral("frmMain_00_Welcome"));
            QVERIFY(window.windowState() & Qt::WindowMaximized);
            QCOMPARE(window.BreadcrumbTexts(), QStringList{QStringLiteral("Welcome")});
            QVERIFY(window.CountdownCaption().isEmpty());
        }
        GatherCoreInformation();
        mdiMain window;
        QCOMPARE(window.CurrentPage()->objectName(), QStringLiteral("frmMain_00_Home"));
        QCOMPARE(window.BreadcrumbTexts(), QStringList{QStringLiteral("Home")});
    }

    void unavailablePageIsRefusedAndShownDisabled() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        modPages::RegisterPage(3, nullptr);
        modPages::RegisterDialog(QStringLiteral("frmOptions"), nullptr);
        mdiMain window;
        QWidget* home = window.CurrentPage();
        QVERIFY(!window.ShowPage(3));
        QCOMPARE(window.CurrentPage(), home);
        QCOMPARE(gApp().ShowForm(), 0);

        auto* rsvps = window.findChild<QAction*>(QStringLiteral("mnuGo_3"));
        QVERIFY(!rsvps->isEnabled());
        QCOMPARE(rsvps->toolTip(), QStringLiteral("Not available yet"));
        QVERIFY(window.findChild<QAction*>(QStringLiteral("mnuGo_5"))->isEnabled());
        auto* homeLink = home->findChild<QWidget*>(QStringLiteral("linkGM_3"));
        QVERIFY(!homeLink->isEnabled());
        QCOMPARE(homeLink->toolTip(), QStringLiteral("Not available yet"));
        QVERIFY(home->findChild<QWidget*>(QStringLiteral("linkGM_5"))->isEnabled());
        QVERIFY(!window.findChild<QAction*>(QStringLiteral("mnuOptions"))->isEnabled());
    }

    void pageIsRebuiltOnEveryVisitButNotOnItsOwnClick() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        mdiMain window;
        QVERIFY(window.ShowPage(5));
        QCOMPARE(FakePage::Made, 1);
        QCOMPARE(gApp().ShowForm(), 5);
        QCOMPARE(window.BreadcrumbTexts(), (QStringList{QStringLiteral("Home"), QStringLiteral("Gifts")}));
        QPointer<QWidget> first = window.CurrentPage();

        window.ShowPage(5);
        QCOMPARE(FakePage::Made, 1);
        QCOMPARE(window.CurrentPage(), first.data());

        window.ShowPage(0);
        window.ShowPage(5);
        QCOMPARE(FakePage::Made, 2);
        QVERIFY(window.CurrentPage() != first.data());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(first.isNull());
    }

    void pageEventsReachTheFrame() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        mdiMain window;
        window.ShowPage(5);
        auto* page = qobject_cast<FakePage*>(window.CurrentPage());
        QVERIFY(page);
        emit page->Breadcrumb(QStringLiteral("Gifts>Thank Yous"));
        QCOMPARE(window.BreadcrumbTexts(),
                 (QStringList{QStringLiteral("Home"), QStringLiteral("Gifts"), QStringLiteral("Thank Yous")}));
        QTest::mouseClick(window.findChild<usrHyperlink*>(QStringLiteral("linkBreadcrumb_1")), Qt::LeftButton);
        QCOMPARE(FakePage::TopLevelCalls, 1);

        auto* header = window.findChild<QWidget*>(QStringLiteral("picLonghorn"));
        emit page->EnableToolbar(false);
        QVERIFY(!header->isEnabled());
        gBride().FIRST_NM = QStringLiteral("Emma");
        emit page->UpdateWeddingCouple();
        QCOMPARE(window.WeddingCaption(), QStringLiteral("Emma Rose & Daniel's Wedding"));

        emit page->ShowForm(0);
        QCOMPARE(window.CurrentPage()->objectName(), QStringLiteral("frmMain_00_Home"));
        window.ShowPage(5);
        QTest::keyClick(window.findChild<usrHyperlink*>(QStringLiteral("linkBreadcrumb_0")), Qt::Key_Return);
        QCOMPARE(window.CurrentPage()->objectName(), QStringLiteral("frmMain_00_Home"));
    }

    // A sub-page stands over its page; the breadcrumb's page level gives the page back, told what went,
    // and going to another page lets both write what they keep on leaving.
    void subPageOpensOverItsPageAndGivesItBack() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        mdiMain window;
        QVERIFY(!window.ShowSubPage(5, QStringLiteral("frmNoSuch_Sub")));
        QVERIFY(window.ShowSubPage(5, QStringLiteral("frmFake_Sub")));
        QCOMPARE(FakePage::Made, 2);
        QPointer<usrPage> page = window.CurrentPage();
        QPointer<usrPage> subPage = window.CurrentSubPage();
        QVERIFY(subPage && subPage != page);
        QVERIFY(page->isHidden() && !subPage->isHidden());
        emit subPage->Breadcrumb(QStringLiteral("Gifts>Sub"));
        QTest::mouseClick(window.findChild<usrHyperlink*>(QStringLiteral("linkBreadcrumb_1")), Qt::LeftButton);
        QCOMPARE(FakePage::TopLevelCalls, 0);
        QCOMPARE(FakePage::ClosedSubPages, QStringList{QStringLiteral("frmFake_Sub")});
        QCOMPARE(FakePage::Left, 1);
        QVERIFY(!window.CurrentSubPage() && !page->isHidden());
        QCOMPARE(window.BreadcrumbTexts(), (QStringList{QStringLiteral("Home"), QStringLiteral("Gifts")}));

        QVERIFY(window.ShowSubPage(5, QStringLiteral("frmFake_Sub")));
        QCOMPARE(window.CurrentPage(), page.data()); // the page that is up stays
        window.ShowPage(0);
        QCOMPARE(FakePage::Left, 3);
        QVERIFY(!window.CurrentSubPage());
    }

    // The Edit menu is there only while the page in front offers entries for it.
    void editMenuFollowsThePageInFront() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        mdiMain window;
        auto* edit = window.findChild<QMenu*>(QStringLiteral("mnuEdit"));
        QVERIFY(window.ShowPage(5));
        QVERIFY(!edit->menuAction()->isVisible());
        FakePage::OfferEdit = true;
        QVERIFY(window.ShowSubPage(5, QStringLiteral("frmFake_Sub")));
        QVERIFY(edit->menuAction()->isVisible());
        QCOMPARE(edit->actions(), window.CurrentSubPage()->EditActions());
        FakePage::OfferEdit = false;
        window.CloseSubPage();
        QVERIFY(!edit->menuAction()->isVisible());
        QVERIFY(edit->actions().isEmpty());
    }

    // Home's seating and travel links lead to the attendees page's sub-pages, once those exist.
    void homeLinksOpenSubPagesThatExist() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        modPages::RegisterSubPage(modPages::TablesSubPage(), nullptr);
        {
            mdiMain window;
            QVERIFY(!window.CurrentPage()->findChild<usrHyperlink*>(QStringLiteral("linkTables"))->isEnabled());
        }
        modPages::RegisterSubPage(modPages::TablesSubPage(), [](QWidget* parent) { return new FakePage(parent); });
        mdiMain window;
        QTest::keyClick(window.CurrentPage()->findChild<usrHyperlink*>(QStringLiteral("linkTables")), Qt::Key_Space);
        QCOMPARE(window.CurrentPage()->objectName(), QStringLiteral("frmMain_04_Attendees"));
        QVERIFY(window.CurrentSubPage());
        QCOMPARE(window.CurrentSubPage()->objectName(), modPages::TablesSubPage());
    }

    void homeLinksLeadToTheirPages() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        mdiMain window;
        QTest::keyClick(window.CurrentPage()->findChild<usrHyperlink*>(QStringLiteral("linkGM_5")), Qt::Key_Space);
        QCOMPARE(FakePage::Made, 1);
        QCOMPARE(gApp().ShowForm(), 5);
    }

    // The playlist button plays the chosen list; a list deleted meanwhile leads to the songs dialog.
    void playlistButtonPlaysOrExplains() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        int aboutSongs = 0;
        modPages::RegisterDialog(QStringLiteral("frmAboutSongs"), [&aboutSongs](QWidget*) { ++aboutSongs; });
        QDir().mkpath(gApp().PlaylistPath());
        const QString list = QDir(gApp().PlaylistPath()).filePath(QStringLiteral("Reception.wpl"));
        QFile file(list);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        mdiMain window;
        QCOMPARE(window.CurrentPlaylist(), list);
        QCOMPARE(window.findChild<QToolButton*>(QStringLiteral("lblPlaylist"))->text(), QStringLiteral("Reception.wpl"));
        QCOMPARE(window.findChild<QToolButton*>(QStringLiteral("imgMusicPlay"))->toolTip(),
                 QStringLiteral("Listen to playlist"));
        window.findChild<QToolButton*>(QStringLiteral("imgMusicPlay"))->click();
        QCOMPARE(aboutSongs, 0);
        QFile::remove(list);
        window.findChild<QToolButton*>(QStringLiteral("imgMusicPlay"))->click();
        QCOMPARE(aboutSongs, 1);
    }

    void optionsOpenOverThePageThatStays() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        int opened = 0;
        modPages::RegisterDialog(QStringLiteral("frmOptions"), [&opened](QWidget*) { ++opened; });
        mdiMain window;
        window.ShowPage(5);
        QWidget* page = window.CurrentPage();
        QVERIFY(window.findChild<QAction*>(QStringLiteral("mnuOptions"))->isEnabled());
        window.findChild<QAction*>(QStringLiteral("mnuOptions"))->trigger();
        QCOMPARE(opened, 1);
        QCOMPARE(window.CurrentPage(), page);
        QCOMPARE(gApp().ShowForm(), 5);
        QCOMPARE(FakePage::Made, 1);
    }

    // The splash patches on its first showing, waits 1.7 s, then brings up the main window; a click skips
    // the wait. The couple always attend their own wedding after it.
    void splashWaitsAfterPatchingUnlessClicked_data() {
        QTest::addColumn<bool>("click");
        QTest::newRow("waits") << false;
        QTest::newRow("click skips the wait") << true;
    }

    void splashWaitsAfterPatchingUnlessClicked() {
        QFETCH(bool, click);
        TestDatabase db;
        TestDatabase::Exec(QStringLiteral("UPDATE CONTACT SET ATTENDING_FG = 'N' WHERE CONTACT_ID = 1"));
        RegisterScreens();
        auto* splash = new frmVowren;
        QPointer<QWidget> shown;
        connect(splash, &frmVowren::MainWindowShown, this, [&shown](QWidget* w) { shown = w; });
        QElapsedTimer clock;
        clock.start();
        splash->show();
        QTRY_VERIFY(splash->Patched());
        QCOMPARE(Scalar(QStringLiteral("SELECT ATTENDING_FG FROM CONTACT WHERE CONTACT_ID = 1")), QStringLiteral("Y"));
        if (click)
            QTest::mouseClick(splash, Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!shown.isNull(), 5000);
        if (click)
            QVERIFY(clock.elapsed() < frmVowren::kWaitMilliseconds);
        else
            QVERIFY(clock.elapsed() >= frmVowren::kWaitMilliseconds);
        QCOMPARE(shown->objectName(), QStringLiteral("mdiMain"));
        delete shown.data();
    }

    // One picture per page, Welcome step and registered screen, over a demo wedding of its own.
    void screenshotsOfEveryScreen() {
        TestHome home;
        RegisterScreens();
        int made = 0;
        modScreenshots::Register(QStringLiteral("frmTestDialog"), [&made]() -> QWidget* {
            ++made;
            return new QLabel(QStringLiteral("a dialog"));
        });
        QTemporaryDir out;
        QString message;
        const int written = modScreenshots::Run(out.path(), &message);
        QVERIFY2(written >= 9, qPrintable(message));
        QCOMPARE(made, 1);
        for (const char* name : {"frmVowren", "frmMain_00_Welcome", "frmMain_00_Welcome_4", "frmMain_00_Home",
                                 "frmMain_05_Gifts", "frmTestDialog", "frmMain_99_Forums", "frmFeatureTour",
                                 "frmForums", "frmScreenResolution", "frmCustomizeColumns"}) {
            const QImage picture(QDir(out.path()).filePath(QLatin1String(name) + QStringLiteral(".png")));
            QVERIFY2(!picture.isNull(), name);
        }
        QCOMPARE(QImage(QDir(out.path()).filePath(QStringLiteral("frmMain_00_Home.png"))).size(),
                 modScreenshots::MainWindowSize());
        QVERIFY(!QFile::exists(QDir(out.path()).filePath(QStringLiteral("frmMain_03_RSVPs.png"))) ||
                modPages::IsAvailable(3));
    }

    void positionIsSavedAtCloseAndRestored() {
        TestDatabase db;
        GatherCoreInformation();
        RegisterScreens();
        const QRect place(40, 60, 900, 640);
        {
            mdiMain window;
            window.setGeometry(place);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            window.setGeometry(place);
            window.close();
        }
        const QString key = FormRegistryKey(QStringLiteral("mdiMain"));
        QCOMPARE(gRegistry().GetSetting(key, QStringLiteral("Width"), QString()).toInt(), 900 * 15);
        mdiMain again;
        QCOMPARE(again.geometry(), place);
        QVERIFY(again.minimumWidth() >= 400);
    }
};

QTEST_MAIN(tst_mdiMain)
#include "tst_mdiMain.moc"
