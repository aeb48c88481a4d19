#include "TestHome.h"
#include "core/ShowMessage.h"
#include "platform/VowrenPaths.h"
#include "platform/clsPrivateFile.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"

#include <QDir>
#include <QFile>
#include <QtTest>
#include <memory>
#include <sys/stat.h>

namespace {

// Who may read and write the file, as the system keeps it.
mode_t Mode(const QString& path) {
    struct stat st {};
    return ::stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_mode & 0777 : 0;
}

} // namespace

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

    // ---- Files only their owner reads -------------------------------------------------------------

    // With no umask at all, so that nothing but the program's own mode can keep others out.
    void privateFilesAreTheOwnersAlone_data() {
        QTest::addColumn<bool>("keepOthers");
        QTest::addColumn<bool>("commit");
        QTest::addColumn<QString>("files");
        QTest::newRow("replaces the file of its name") << false << true << "a.txt=new";
        QTest::newRow("keeps the file of its name") << true << true << "a.txt=old,a_2.txt=new,a_3.txt=new";
        QTest::newRow("dropped before it was done") << true << false << "a.txt=old";
    }
    void privateFilesAreTheOwnersAlone() {
        QFETCH(bool, keepOthers);
        QFETCH(bool, commit);
        QFETCH(QString, files);
        const NoUmask noUmask;
        const QString path = home->File("a.txt");
        QFile old(path);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
        old.close();
        const auto existing =
            keepOthers ? clsPrivateFile::Existing::KeepOthers : clsPrivateFile::Existing::Replace;
        std::vector<std::unique_ptr<clsPrivateFile>> writers;
        for (int i = 0; i < 2; ++i) {
            writers.push_back(std::make_unique<clsPrivateFile>(path, existing));
            QVERIFY(writers.back()->Open());
            QVERIFY(writers.back()->Write("new", 3));
        }
        // While they are written, every file of the folder but the old one is the owner's alone.
        for (const QFileInfo& info : QDir(home->Path()).entryInfoList(QDir::Files | QDir::Hidden))
            if (info.fileName() != "a.txt")
                QCOMPARE(Mode(info.filePath()), mode_t(0600));
        for (auto& writer : writers)
            QVERIFY2(!commit || writer->Commit(), qPrintable(writer->ErrorString()));
        writers.clear();
        QStringList found;
        for (const QFileInfo& info :
             QDir(home->Path()).entryInfoList(QDir::Files | QDir::Hidden, QDir::Name)) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            found << info.fileName() + "=" + QString::fromUtf8(file.readAll());
            QCOMPARE(Mode(info.filePath()), found.last() == "a.txt=old" ? mode_t(0666) : mode_t(0600));
        }
        QCOMPARE(found.join(','), files);
    }

    void newPrivateFilesNeverTakeAName() {
        const NoUmask noUmask;
        QString error;
        QVERIFY(clsPrivateFile::CreateNew(home->File("backup.db"), &error));
        QVERIFY(!clsPrivateFile::CreateNew(home->File("backup.db"), &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!clsPrivateFile::CreateNew(home->File("no/such/folder.db"), nullptr));
        QCOMPARE(Mode(home->File("backup.db")), mode_t(0600));
    }

    void theSettingsFileIsTheOwnersAlone() {
        const NoUmask noUmask;
        QFile earlier(home->File("old.ini"));
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        earlier.close();
        QVERIFY(earlier.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther |
                                       QFile::ReadGroup));
        clsIniRegistry fresh(home->File("new.ini"));
        fresh.SaveSetting("Key", "Name", "value");
        clsIniRegistry old(home->File("old.ini")); // read only: its mode is mended all the same
        QCOMPARE(Mode(home->File("new.ini")), mode_t(0600));
        QCOMPARE(Mode(home->File("old.ini")), mode_t(0600));
        QCOMPARE(clsIniRegistry(home->File("new.ini")).GetSetting("Key", "Name", ""), QString("value"));
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
