#include "TestHome.h"
#include "platform/clsLabelDesk.h"

#include <QDir>
#include <QFile>
#include <QtTest>

// The hand-off to the external label program: when it counts as set up, and what it is started with.
class tst_clsLabelDesk : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;

    // A program in a folder whose name holds a blank; it writes each argument it gets on a line of
    // "args.txt" beside itself.
    QString MakeProgram(bool executable = true) {
        const QString folder = home->File("Label Desk");
        QDir().mkpath(folder);
        QFile script(folder + "/labeldesk");
        if (!script.open(QIODevice::WriteOnly))
            return {};
        script.write("#!/bin/sh\nfor a in \"$@\"; do echo \"$a\"; done > \"$(dirname \"$0\")/args.tmp\"\n"
                     "mv \"$(dirname \"$0\")/args.tmp\" \"$(dirname \"$0\")/args.txt\"\n");
        script.close();
        QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner;
        if (executable)
            permissions |= QFile::ExeOwner;
        script.setPermissions(permissions);
        return folder;
    }

private slots:
    void init() { home = std::make_unique<TestHome>(); }
    void cleanup() { home.reset(); }

    void isActive_data() {
        QTest::addColumn<QString>("folder"); // "@" stands for the made program's folder
        QTest::addColumn<QString>("exe");
        QTest::addColumn<bool>("executable");
        QTest::addColumn<bool>("active");
        QTest::newRow("nothing set (the default)") << "" << "" << true << false;
        QTest::newRow("folder only") << "@" << "" << true << false;
        QTest::newRow("blank folder") << "   " << "labeldesk" << true << false;
        QTest::newRow("stale path: the program has gone") << "@/../Gone" << "labeldesk" << true << false;
        QTest::newRow("a file that can't be run") << "@" << "labeldesk" << false << false;
        QTest::newRow("set up") << "@" << "labeldesk" << true << true;
        QTest::newRow("set up, folder with a trailing slash and blanks") << "  @/ " << "labeldesk" << true << true;
    }
    void isActive() {
        QFETCH(QString, folder);
        QFETCH(QString, exe);
        QFETCH(bool, executable);
        QFETCH(bool, active);
        const QString made = MakeProgram(executable);
        clsLabelDesk labelDesk;
        labelDesk.SetAppPath(QString(folder).replace("@", made));
        labelDesk.SetExeName(exe);
        QCOMPARE(clsLabelDesk().IsActive(), active);
    }

    // A blank in the folder stands unquoted in the command line, as the program has always been called,
    // and the started program still gets one argument.
    void handsOverOneArgument() {
        const QString folder = MakeProgram();
        clsLabelDesk labelDesk;
        labelDesk.SetAppPath(folder);
        labelDesk.SetExeName("labeldesk");
        QCOMPARE(labelDesk.CommandLine(6, 3, 2), folder + "/labeldesk 1,6,3,2");
        QVERIFY2(labelDesk.Show(6, 3, 2), qPrintable(labelDesk.Message()));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(folder + "/args.txt"), 10000);
        QFile args(folder + "/args.txt");
        QVERIFY(args.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(args.readAll()), QStringLiteral("1,6,3,2\n"));
    }

    void notSetUpSaysWhereToSetIt() {
        clsLabelDesk labelDesk;
        QVERIFY(!labelDesk.Show(1, 0, 0));
        QVERIFY(labelDesk.Message().contains("Options, Label Program"));
    }
};

QTEST_GUILESS_MAIN(tst_clsLabelDesk)
#include "tst_clsLabelDesk.moc"
