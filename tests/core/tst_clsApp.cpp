#include "TestHome.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "platform/VowrenPaths.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QtTest>
#include <functional>
#include <memory>

using SettingReader = std::function<QString()>;
Q_DECLARE_METATYPE(SettingReader)

class tst_clsApp : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;

    QString StoredValue(const QString& name) {
        return gRegistry().GetSetting(clsApp::RootKey(), name, QStringLiteral("<unset>"));
    }

private slots:
    void init() { home = std::make_unique<TestHome>(); }
    void cleanup() { home.reset(); }

    void freshStoreReadsDefaultsAndWritesNothing_data() {
        
        QTest::addColumn<QString>("expected");
        QTest::addColumn<SettingReader>("read");
        auto b = [](bool v) { return v ? QStringLiteral("true") : QStringLiteral("false"); };
        clsApp& a = gApp();
        QTest::newRow("Delimiter") << "," << SettingReader([&] { return a.Delimiter(); });
        QTest::newRow("ShowCountdown") << "true" << SettingReader([=, &a] { return b(a.ShowCountdown()); });
        QTest::newRow("SongPath") << "" << SettingReader([&] { return a.SongPath(); });
    }
    void freshStoreReadsDefaultsAndWritesNothing() {
        QFETCH(QString, expected);
        QFETCH(SettingReader, read);
        QCOMPARE(read(), expected);
        QVERIFY(gRegistry().AllSettings().isEmpty());
        QVERIFY(!QFile::exists(VowrenPaths::SettingsFilePath()));
    }

    void booleansAreWrittenAsOneAndZero() {
        gApp().SetLockRSVPIDs(true);
        QCOMPARE(StoredValue("LockRSVPIDs"), QStringLiteral("1"));
        QVERIFY(gApp().LockRSVPIDs());
        gApp().SetEnsure5DigitZipCode(false);
        QCOMPARE(StoredValue("Ensure5DigitZipCode"), QStringLiteral("0"));
        QVERIFY(!gApp().Ensure5DigitZipCode());
    }

    void handEditedValuesConvert_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("asBool");
        QTest::addColumn<int>("asInt");
        // Booleans default to true here (ShowCountdown), integers to 1 (ShowGrid).
        QTest::newRow("zero") << "0" << false << 0;
        QTest::newRow("minus one") << "-1" << true << -1;
        QTest::newRow("word True") << "True" << true << 1;
        QTest::newRow("word false") << "false" << false << 1;
        QTest::newRow("garbage") << "abc" << true << 1;
        QTest::newRow("empty") << "" << true << 1;
        QTest::newRow("blanks around") << " 12 " << true << 12;
        QTest::newRow("half to even") << "2.5" << true << 2;
        QTest::newRow("beyond 16 bits") << "40000" << true << 1;
        QTest::newRow("lowest 16 bits") << "-32768" << true << -32768;
    }
    void handEditedValuesConvert() {
        QFETCH(QString, stored);
        QFETCH(bool, asBool);
        QFETCH(int, asInt);
        gRegistry().SaveSetting(clsApp::RootKey(), "ShowCountdown", stored);
        gRegistry().SaveSetting(clsApp::RootKey(), "ShowGrid", stored);
        QCOMPARE(gApp().ShowCountdown(), asBool);
        QCOMPARE(gApp().ShowGrid(), asInt);
    }

    void showNotesFollowsTheCurrentPage() {
        gApp().SetShowForm(7);
        gApp().SetShowNotes(false);
        QCOMPARE(StoredValue("ShowNotes7"), QStringLiteral("0"));
        QVERIFY(!gApp().ShowNotes());
        gApp().SetShowForm(2);
        QVERIFY(gApp().ShowNotes());
        gApp().SetShowForm(7);
        QVERIFY(!gApp().ShowNotes());
    }

    void settingsSurviveANewStore() {
        gApp().SetSongPath(QStringLiteral("/music/Zoë's songs"));
        gApp().SetDelimiter(QStringLiteral(";"));
        SetRegistryStore(nullptr); // read the file again
        QCOMPARE(gApp().SongPath(), QStringLiteral("/music/Zoë's songs"));
        QCOMPARE(gApp().Delimiter(), QStringLiteral(";"));
        QSettings raw(VowrenPaths::SettingsFilePath(), QSettings::IniFormat);
        QCOMPARE(raw.value("Software/QuillSoftware/Vowren/Delimiter").toString(), QStringLiteral(";"));
        const auto permissions = QFile::permissions(VowrenPaths::SettingsFilePath());
        QVERIFY(permissions.testFlags(QFileDevice::ReadOwner | QFileDevice::WriteOwner));
        QCOMPARE(int(permissions & 0x00FF), 0); // nothing for the group or others
    }

    void databasePathFollowsTheConnectFile_data() {
        QTest::addColumn<bool>("dataFile");
        QTest::addColumn<QString>("connectText");
        QTest::addColumn<QString>("expected");
        QTest::newRow("nothing there") << false << QString() << "<data>";
        QTest::newRow("data file only") << true << QString() << "<data>";
        QTest::newRow("connect only") << false << "/srv/share/Wedding.quilldata\nignored" << "/srv/share/Wedding.quilldata";
        QTest::newRow("connect with CRLF") << false << "/srv/x.quilldata\r\n" << "/srv/x.quilldata";
        QTest::newRow("data file wins") << true << "/srv/share/Wedding.quilldata" << "<data>";
        QTest::newRow("empty connect") << false << "" << "";
    }
    void databasePathFollowsTheConnectFile() {
        QFETCH(bool, dataFile);
        QFETCH(QString, connectText);
        QFETCH(QString, expected);
        const QString folder = home->File("Database");
        QDir().mkpath(folder);
        const QString data = folder + "/Vowren.quilldata";
        if (dataFile) {
            QFile f(data);
            QVERIFY(f.open(QIODevice::WriteOnly));
        }
        if (!connectText.isNull()) {
            QFile f(folder + "/Vowren.connect");
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(connectText.toUtf8());
        }
        QCOMPARE(gApp().DatabasePath(), expected == "<data>" ? data : expected);
    }

    void foldersAreMadeBelowTheDataRoot() {
        gApp().MakeReportPath();
        gApp().MakePlaylistPath();
        gApp().MakeReportPath(); // a second time is no failure
        QVERIFY(QDir(home->File("Reports")).exists());
        QVERIFY(QDir(home->File("Playlists")).exists());
        QCOMPARE(gApp().ReportPath(), home->File("Reports"));
    }

    void marriedOnlyAfterTheMoment_data() {
        QTest::addColumn<QString>("wedding");
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<bool>("married");
        const QDateTime moment(QDate(2027, 6, 5), QTime(15, 0));
        QTest::newRow("a second before") << "05-Jun-2027 3:00 PM" << moment.addSecs(-1) << false;
        QTest::newRow("the second itself") << "05-Jun-2027 3:00 PM" << moment << false;
        QTest::newRow("a second after") << "05-Jun-2027 3:00 PM" << moment.addSecs(1) << true;
        QTest::newRow("date only, that evening") << "05-Jun-2027" << moment << true;
        QTest::newRow("no wedding date") << "" << moment << false;
    }
    void marriedOnlyAfterTheMoment() {
        QFETCH(QString, wedding);
        QFETCH(QDateTime, now);
        QFETCH(bool, married);
        QCOMPARE(clsApp::Married(wedding, now), married);
    }
};

QTEST_GUILESS_MAIN(tst_clsApp)
#include "tst_clsApp.moc"
