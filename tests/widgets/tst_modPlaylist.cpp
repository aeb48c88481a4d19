#include "TestDatabase.h"
#include "widgets/modPlaylist.h"

#include <QXmlStreamReader>
#include <QtTest>
#include <memory>

// Playlists as files that a media player (and any XML reader) opens, and which files count as songs.
class tst_modPlaylist : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static void AddSong(const QString& path, const QString& list) {
        clsSONG song;
        song.SONG_FILE_PATH_TX = path;
        song.SONGLIST_ID = list;
        song.Save(true);
    }
    // The title and the media sources as an XML reader finds them; fails the test on a parse error.
    static QStringList Parsed(const QByteArray& text, QString* title) {
        QXmlStreamReader xml(text);
        QStringList sources;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement() && xml.name() == QLatin1String("title"))
                *title = xml.readElementText();
            else if (xml.isStartElement() && xml.name() == QLatin1String("media"))
                sources << xml.attributes().value(QLatin1String("src")).toString();
        }
        if (xml.hasError())
            qWarning("%s", qPrintable(xml.errorString()));
        return xml.hasError() ? QStringList{QStringLiteral("<parse error>")} : sources;
    }
    static QByteArray Read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void songFiles_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("song");
        QTest::newRow("mp3") << "First Dance.mp3" << true;
        QTest::newRow("upper WAV") << "MARCH.WAV" << true;
        QTest::newRow("wma") << "a.wma" << true;
        QTest::newRow("m4p") << "b.M4p" << true;
        QTest::newRow("acc, as listed") << "c.acc" << true;
        QTest::newRow("inside the name") << "track.mp3.txt" << true;
        QTest::newRow("mp4") << "track.mp4" << false;
        QTest::newRow("aac") << "track.aac" << false;
        QTest::newRow("no dot") << "mp3" << false;
    }
    void songFiles() {
        QFETCH(QString, name);
        QFETCH(bool, song);
        QCOMPARE(modPlaylist::IsSongFile(name), song);
    }

    // Only the folder's own files, by name; a folder named like a song is no song.
    void songFilesOfAFolder() {
        QDir folder(db->File("music"));
        QVERIFY(folder.mkpath("sub.mp3"));
        for (const char* name : {"b.MP3", "a.wav", "cover.jpg", "sub.mp3/deep.mp3", "track.mp3.txt"}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QCOMPARE(modPlaylist::SongFiles(folder.path()), (QStringList{"a.wav", "b.MP3", "track.mp3.txt"}));
        QVERIFY(modPlaylist::SongFiles(db->File("nowhere")).isEmpty());
    }

    // The file's lines, each with its indent; the XML reader gives back title and paths unharmed.
    void playlistLines_data() {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("paths");
        QTest::newRow("zero songs") << "(All)" << QStringList{};
        QTest::newRow("one song") << "Ceremony (1)" << QStringList{"/music/Canon in D.mp3"};
        QTest::newRow("ampersand and quotes")
            << "Rock & \"Roll\" <1>"
            << QStringList{"/music/Simon & Garfunkel/Cecilia.mp3", "/m/\"x\" <y>.wav"};
        QTest::newRow("non-Latin") << "Ceremony (2)" << QStringList{"/музыка/Вальс.mp3", "/音楽/曲 1.wma"};
    }
    void playlistLines() {
        QFETCH(QString, title);
        QFETCH(QStringList, paths);
        QList<clsSONG> songs;
        for (const QString& path : paths) {
            songs.append(clsSONG());
            songs.last().SONG_FILE_PATH_TX = path;
        }
        const QStringList lines = modPlaylist::Lines(title, songs);
        QCOMPARE(lines.size(), 13 + paths.size());
        QCOMPARE(lines.at(0), QStringLiteral("<?wpl version=\"1.0\"?>"));
        QCOMPARE(lines.at(3),
                 QStringLiteral("        <meta name=\"Generator\" content=\"Vowren Planner\"/>"));
        QCOMPARE(lines.at(4),
                 QStringLiteral("        <meta name=\"ItemCount\" content=\"%1\"/>").arg(paths.size()));
        QCOMPARE(lines.at(9), QStringLiteral("        <seq>"));
        for (qsizetype i = 0; i < paths.size(); ++i)
            QVERIFY(lines.at(10 + i).startsWith(QStringLiteral("            <media src=\"")));
        QCOMPARE(lines.last(), QStringLiteral("</smil>"));
        QString parsedTitle;
        QCOMPARE(Parsed(lines.join('\n').toUtf8(), &parsedTitle), paths);
        QCOMPARE(parsedTitle, title);
    }

    // "(All)" takes every song once, by list order and then by each song's number; a list only its own.
    void writtenFileHoldsTheListsSongs() {
        TestDatabase::Exec("UPDATE SONGLIST_DICT SET SORT_ORDER_NB = 9 WHERE SONGLIST_TX = 'Ceremony'");
        const QString ceremony =
            TestDatabase::Scalar("SELECT SONGLIST_ID FROM SONGLIST_DICT WHERE SONGLIST_TX = 'Ceremony'");
        const QString reception =
            TestDatabase::Scalar("SELECT SONGLIST_ID FROM SONGLIST_DICT WHERE SONGLIST_TX = 'Reception'");
        AddSong("/m/walk & talk.mp3", ceremony);
        AddSong("/m/first dance.mp3", reception);
        AddSong("/m/last dance.mp3", reception);
        const QList<modPlaylist::Entry> entries = modPlaylist::Entries();
        QCOMPARE(entries.size(), 3);
        QCOMPARE(entries.at(0).Caption, QStringLiteral("(All)"));
        QCOMPARE(entries.at(1).Caption, QStringLiteral("Reception (2)"));
        QCOMPARE(modPlaylist::DefaultPath(entries.at(0)), gApp().PlaylistPath() + "/All_Songs.wpl");

        const QString all = db->File("all.wpl");
        QString error;
        QVERIFY(modPlaylist::Write(all, entries.at(0).SonglistID, entries.at(0).Caption, &error));
        QString title;
        QCOMPARE(Parsed(Read(all), &title),
                 (QStringList{"/m/first dance.mp3", "/m/last dance.mp3", "/m/walk & talk.mp3"}));
        QCOMPARE(title, QStringLiteral("(All)"));
        QVERIFY(Read(all).contains("content=\"3\""));

        const QString one = db->File("ceremony.wpl");
        QVERIFY(modPlaylist::Write(one, ceremony, "Ceremony (1)", &error));
        QCOMPARE(Parsed(Read(one), &title), QStringList{"/m/walk & talk.mp3"});
    }

    void unwritablePathSaysWhereAndKeepsNothingHalfWritten() {
        const QString blocked = db->File("not-a-folder");
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QString error;
        QVERIFY(!modPlaylist::Write(blocked + "/x.wpl", "0", "(All)", &error));
        QVERIFY2(error.contains(blocked + "/x.wpl"), qPrintable(error));
        QVERIFY(!QFileInfo::exists(blocked + "/x.wpl"));
    }
};

QTEST_GUILESS_MAIN(tst_modPlaylist)
#include "tst_modPlaylist.moc"
