#include "TestHome.h"
#include "core/ShowMessage.h"
#include "platform/VowrenPaths.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"

#include <QFile>
#include <QtTest>
#include <memory>

class tst_platform : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;

private slots:
    void init() { home = std::make_unique<TestHome>(); }
    void cleanup() { home.reset(); }

    void dataRootAndSettingsFollowVowrenHome() {
        QCOMPARE(VowrenPaths::DataRoot(), home->Path());
        QCOMPARE(VowrenPaths::SettingsFilePath(), home->File("Vowren.ini"));
    }

    void joinMakesOneSlash_data() {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("relative");
        QTest::addColumn<QString>("joined");
        QTest::newRow("trailing slash") << "/a/" << "b" << "/a/b";
        QTest::newRow("leading slash") << "/a" << "/b" << "/a/b";
        QTest::newRow("root") << "/" << "b" << "/b";
        QTest::newRow("no folder") << "" << "b" << "b";
    }
    void joinMakesOneSlash() {
        QFETCH(QString, folder);
        QFETCH(QString, relative);
        QFETCH(QString, joined);
        QCOMPARE(VowrenPaths::Join(folder, relative), joined);
    }

    void storesKeepValuesByKeyAndName() {
        std::vector<std::unique_ptr<clsRegistryStore>> stores;
        stores.push_back(std::make_unique<clsMemoryRegistry>());
        stores.push_back(std::make_unique<clsIniRegistry>(home->File("sub/dir/x.ini")));
        for (auto& store : stores) {
            QCOMPARE(store->GetSetting("A/B", "v", "def"), QStringLiteral("def"));
            QVERIFY(!store->HasSetting("A/B", "v"));
            store->SaveSetting("A/B", "v", "");
            QVERIFY(store->HasSetting("A/B", "v"));
            QCOMPARE(store->GetSetting("A/B", "v", "def"), QString()); // empty, not the default
            store->SaveSetting("A/B", "v", "x = \"1\"; [y]");
            store->SaveSetting("A/B/Release 1.0", "v", "other");
            store->SaveSetting("A\\B", "w", "backslash key");
            QCOMPARE(store->GetSetting("A/B", "v", ""), QStringLiteral("x = \"1\"; [y]"));
            QCOMPARE(store->GetSetting("A/B/Release 1.0", "v", ""), QStringLiteral("other"));
            QCOMPARE(store->GetSetting("A/B", "w", ""), QStringLiteral("backslash key"));
        }
    }

    void opensBecomeLogLinesWhenSuppressed() {
        QVERIFY(gShell().OpenDocument(home->File("Reports/x.rtf")));
        QVERIFY(gShell().SendEmail("ann@example.com"));
        QVERIFY(!gShell().OpenDocument(""));
    }

    void readLinesTakesAnyLineEnd() {
        QFile f(home->File("lines.txt"));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("first\r\nsecond\nZo\xc3\xab\n");
        f.close();
        QCOMPARE(gShell().ReadLines(home->File("lines.txt")), (QStringList{"first", "second", "Zoë"}));
        QCOMPARE(gShell().ReadLines(home->File("missing.txt")), QStringList());
    }

    void calculatorWithoutAnyInstalledSaysWhatToDo() {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", home->Path().toUtf8());
        const bool started = gShell().StartCalculator();
        qputenv("PATH", path);
        QVERIFY(!started);
        QVERIFY(gShell().Message().contains("No calculator was found"));
        QVERIFY(gShell().Message().contains("gnome-calculator"));
    }

    void engineMessagesBecomeTheProgramsWords_data() {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("shown");
        QTest::newRow("budget") << "The record cannot be deleted because table 'BUDGET' includes related records."
                                << "Unable to delete.  Budget entries are associated with this entry.";
        QTest::newRow("gift") << "'GIFT' includes related records" << "Unable to delete.  Gift records exist for this contact.";
        QTest::newRow("duplicate") << "would create duplicate values in the index"
                                   << "Duplicate value.  Ensure that entry is unique.";
        QTest::newRow("first hit wins") << "'GIFT' includes related records; 'BUDGET' includes related records"
                                        << "Unable to delete.  Budget entries are associated with this entry.";
        QTest::newRow("case matters") << "'contact' includes related records" << "'contact' includes related records";
        QTest::newRow("other text") << "disk full" << "disk full";
    }
    void engineMessagesBecomeTheProgramsWords() {
        QFETCH(QString, engine);
        QFETCH(QString, shown);
        ShowMessage(engine);
        QCOMPARE(home->Messages().Prompts, QStringList{shown});
        QCOMPARE(home->Messages().Titles, QStringList{"Vowren"});
    }

    void unansweredQuestionsTakeTheFirstButton() {
        QCOMPARE(ShowMessage("Save Changes?", Msg::YesNoCancel | Msg::Question), int(Msg::Yes));
        QCOMPARE(ShowMessage("Done.", Msg::OKOnly, "Import"), int(Msg::OK));
        QCOMPARE(home->Messages().Titles.last(), QStringLiteral("Import"));
        home->Messages().NextAnswer = Msg::No;
        QCOMPARE(ShowMessage("Delete?", Msg::YesNo), int(Msg::No));
    }
};

QTEST_GUILESS_MAIN(tst_platform)
#include "tst_platform.moc"
