#include "TestDatabase.h"
#include "app/modKnownScreens.h"
#include "core/clsApp.h"
#include "core/modSubMain.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"
#include "shell/frmFeatureTour.h"
#include "shell/frmForums.h"
#include "shell/frmMain_99_Forums.h"
#include "shell/mdiMain.h"
#include "shell/modFormPlace.h"
#include "shell/modHelp.h"
#include "shell/modPages.h"
#include "startup/ui/frmMain_00_Home.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

namespace {

// Every target the desktop is asked to open, instead of opening it.
class OpenedTargets {
public:
    OpenedTargets() {
        qunsetenv("VOWREN_NO_OPEN");
        gShell().SetOpener([this](const QString& target) {
            Targets << target;
            return true;
        });
    }
    ~OpenedTargets() {
        gShell().SetOpener(clsShell::Opener());
        qputenv("VOWREN_NO_OPEN", "1");
    }
    QStringList Targets;
};

void GatherCoreInformation() {
    TestDatabase::Exec(
        QStringLiteral("UPDATE CONTACT SET FIRST_NM = 'Emily', LAST_NM = 'Carter' WHERE CONTACT_ID = 1"));
    TestDatabase::Exec(
        QStringLiteral("UPDATE CONTACT SET FIRST_NM = 'Daniel', LAST_NM = 'Whitaker' WHERE CONTACT_ID = 2"));
    TestDatabase::Exec(
        QStringLiteral("UPDATE EVENT SET EVENT_DT = '2027-06-12 15:30:00' WHERE EVENT_ID = 1"));
    modSubMain::RunPatchesAndOpenGlobals();
    modPages::Clear();
    RegisterKnownScreens();
}

// The notices the window shows over its page, by form name.
QStringList VisibleNotices(const QWidget& window) {
    QStringList names;
    for (const QDialog* dialog : window.findChildren<QDialog*>())
        if (dialog->isVisible())
            names << dialog->objectName();
    return names;
}

QString HomeAfterOneVisit(mdiMain& window) {
    for (QDialog* dialog : window.findChildren<QDialog*>())
        dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window.ShowPage(5);
    window.ShowPage(modPages::kHome);
    QTest::qWait(10);
    const QStringList shown = VisibleNotices(window);
    return shown.value(0);
}

} // namespace

class tst_Notices : public QObject {
    Q_OBJECT

private slots:
    // The tour is offered on the first visit, the forums on the next, then nothing; on a small screen the
    // hint about the resolution comes first, once a run.
    void homeBringsOneNoticePerVisit() {
        TestDatabase db;
        GatherCoreInformation();
        modPages::RegisterPage(5, [](QWidget* parent) { return new usrPage(parent); });
        mdiMain window;
        window.show();
        QTest::qWait(10);
        QStringList expected;
        const QRect screen = window.screen()->geometry();
        if (clsApp::Screen_800_x_600(screen.width(), screen.height()))
            expected << QStringLiteral("frmScreenResolution");
        expected << QStringLiteral("frmFeatureTour") << QStringLiteral("frmForums") << QString() << QString();
        QStringList seen = {VisibleNotices(window).value(0)};
        while (seen.size() < expected.size())
            seen << HomeAfterOneVisit(window);
        QCOMPARE(seen, expected);
        QVERIFY(gApp().ShownFeatureTour());
        QVERIFY(gApp().ShownForums());
        // A notice leaves the page behind it usable.
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void noticesLeadWhereTheySay() {
        TestHome home;
        OpenedTargets opened;
        {
            frmFeatureTour tour;
            tour.show();
            tour.findChild<QPushButton*>(QStringLiteral("cmdTakeTour"))->click();
            QCOMPARE(tour.result(), int(QDialog::Accepted));
        }
        {
            frmFeatureTour tour;
            tour.show();
            tour.findChild<QPushButton*>(QStringLiteral("cmdClose"))->click();
            QVERIFY(!tour.isVisible());
        }
        {
            frmForums forums;
            forums.show();
            forums.findChild<QToolButton*>(QStringLiteral("imgForums"))->click();
        }
        QCOMPARE(opened.Targets, (QStringList{gApp().FeatureTourURL(), gApp().ForumsURL()}));
    }

    // What is typed on the forums page is kept below the root key and is there on the next visit.
    void forumsPageKeepsTheLogin() {
        TestDatabase db;
        GatherCoreInformation();
        OpenedTargets opened;
        mdiMain window;
        QVERIFY(modPages::IsAvailable(modPages::kForums));
        QVERIFY(window.ShowPage(modPages::kForums));
        QWidget* page = window.CurrentPage();
        QCOMPARE(page->objectName(), QStringLiteral("frmMain_99_Forums"));
        auto* name = page->findChild<QLineEdit*>(QStringLiteral("txtName"));
        auto* password = page->findChild<QLineEdit*>(QStringLiteral("txtPassword"));
        QCOMPARE(password->echoMode(), QLineEdit::Password);
        name->setText(QStringLiteral("  emily.c  "));
        emit name->editingFinished();
        password->setText(QStringLiteral("s3cret pass"));
        page->findChild<QPushButton*>(QStringLiteral("cmdOpenForums"))->click();
        QCOMPARE(opened.Targets, QStringList{gApp().ForumsURL()});
        QCOMPARE(gRegistry().GetSetting(clsApp::RootKey(), QStringLiteral("ForumLoginName"), QString()),
                 QStringLiteral("emily.c"));
        QCOMPARE(gRegistry().GetSetting(clsApp::RootKey(), QStringLiteral("ForumLoginPassword"), QString()),
                 QStringLiteral("s3cret pass"));

        window.ShowPage(modPages::kHome);
        window.ShowPage(modPages::kForums);
        QCOMPARE(window.CurrentPage()->findChild<QLineEdit*>(QStringLiteral("txtName"))->text(),
                 QStringLiteral("emily.c"));
        QCOMPARE(window.CurrentPage()->findChild<QLineEdit*>(QStringLiteral("txtPassword"))->text(),
                 QStringLiteral("s3cret pass"));
        QCOMPARE(window.BreadcrumbTexts(), (QStringList{QStringLiteral("Home"), QStringLiteral("Forums")}));
    }

    // The help is written anew as a PDF of several pages and opened; a Support folder that can't be made
    // is told, and nothing is opened.
    void helpIsWrittenAndOpened() {
        TestHome home;
        OpenedTargets opened;
        modHelp::ShowHelp();
        QCOMPARE(opened.Targets, QStringList{modHelp::HelpPath()});
        QFile pdf(modHelp::HelpPath());
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF-"));
        QVERIFY2(bytes.count("/Type /Page\n") + bytes.count("/Type /Page ") + bytes.count("/Type /Page>") >=
                     2,
                 "the help has more than one page");
        QVERIFY(home.Messages().Prompts.isEmpty());

        QVERIFY(QFile::remove(modHelp::HelpPath()));
        QVERIFY(QDir(gApp().SupportPath()).removeRecursively());
        QFile blocker(gApp().SupportPath());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        modHelp::ShowHelp();
        QCOMPARE(opened.Targets.size(), 1);
        QCOMPARE(home.Messages().Prompts.size(), 1);
        QVERIFY(home.Messages().Prompts.first().contains(gApp().SupportPath()));
    }

    // A dialog keeps its own size the first time and opens where it was closed after that.
    void dialogOpensWhereItWasClosed() {
        TestHome home;
        const QSize natural(420, 300);
        {
            QDialog dialog;
            dialog.setObjectName(QStringLiteral("frmPlaced"));
            dialog.resize(natural);
            modFormPlace::Remember(&dialog);
            dialog.show();
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QCOMPARE(dialog.size(), natural);
            dialog.setGeometry(30, 40, 500, 360);
            dialog.hide();
        }
        QDialog again;
        again.setObjectName(QStringLiteral("frmPlaced"));
        again.resize(natural);
        modFormPlace::Remember(&again);
        again.show();
        QVERIFY(QTest::qWaitForWindowExposed(&again));
        QCOMPARE(again.geometry(), QRect(30, 40, 500, 360));
    }
};

QTEST_MAIN(tst_Notices)
#include "tst_Notices.moc"
