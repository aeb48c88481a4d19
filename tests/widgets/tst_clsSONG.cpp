#include "TestDatabase.h"
#include "core/clsDICT.h"
#include "widgets/clsSONG.h"

#include <QtTest>
#include <memory>

class tst_clsSONG : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    // Songlists 1 "Ceremony" and 2 "Reception" are seeded.
    static clsSONG AddSong(const QString& path, const QString& songlist) {
        clsSONG song;
        song.SONG_FILE_PATH_TX = path;
        song.SONGLIST_ID = songlist;
        song.Save(true);
        return song;
    }
    static QStringList Names(const QList<clsSONG>& songs) {
        QStringList names;
        for (const clsSONG& song : songs)
            names << song.SONG_NM();
        return names;
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void newSongsNumberOverAllLists() {
        const clsSONG first = AddSong("/music/a.mp3", "2");
        const clsSONG second = AddSong("/music/b.mp3", "1");
        const clsSONG third = AddSong("/music/c.mp3", "2");
        QCOMPARE(first.SONG_ID, QStringLiteral("1"));
        QCOMPARE(first.SORT_ORDER_NB, QStringLiteral("1"));
        QCOMPARE(second.SORT_ORDER_NB, QStringLiteral("2"));
        QCOMPARE(third.SONG_ID, QStringLiteral("3"));
        QCOMPARE(third.SORT_ORDER_NB, QStringLiteral("3"));
        // A number given by the caller is replaced by the next one.
        clsSONG given;
        given.SONG_FILE_PATH_TX = QStringLiteral("/music/d.mp3");
        given.SONGLIST_ID = QStringLiteral("1");
        given.SORT_ORDER_NB = QStringLiteral("1");
        given.Save(true);
        QCOMPARE(given.SORT_ORDER_NB, QStringLiteral("4"));
    }

    void songsComeByListOrderThenTheirOwn() {
        AddSong("/m/r1.mp3", "2");
        AddSong("/m/c1.mp3", "1");
        AddSong("/m/r2.mp3", "2");
        AddSong("/m/c2.mp3", "1");
        QCOMPARE(Names(clsSONG::OpenRecords()), QStringList({"c1.mp3", "c2.mp3", "r1.mp3", "r2.mp3"}));
        clsSONG::UpdateSort("4", "0");
        QCOMPARE(Names(clsSONG::OpenRecords()), QStringList({"c2.mp3", "c1.mp3", "r1.mp3", "r2.mp3"}));
        TestDatabase::Exec("UPDATE SONGLIST_DICT SET SORT_ORDER_NB = 5 WHERE SONGLIST_ID = 1");
        const QList<clsSONG> all = clsSONG::OpenRecords();
        QCOMPARE(Names(all), QStringList({"r1.mp3", "r2.mp3", "c2.mp3", "c1.mp3"}));
        QCOMPARE(all.first().SONGLIST_TX, QStringLiteral("Reception"));
        QCOMPARE(all.first().SONGLIST_SORT_ORDER_NB, QStringLiteral("2"));
        QCOMPARE(all.last().SONGLIST_SORT_ORDER_NB, QStringLiteral("5"));
        QCOMPARE(Names(clsSONG::OpenRecords("2")), QStringList({"r1.mp3", "r2.mp3"}));
        QVERIFY(clsSONG::OpenRecords("7").isEmpty());
    }

    void totals_data() {
        QTest::addColumn<QString>("songlist");
        QTest::addColumn<long>("expected");
        QTest::newRow("all songs") << "" << 3L;
        QTest::newRow("ceremony") << "1" << 2L;
        QTest::newRow("no such list") << "99" << 0L;
    }
    void totals() {
        QFETCH(QString, songlist);
        QFETCH(long, expected);
        AddSong("/m/1.mp3", "1");
        AddSong("/m/2.mp3", "1");
        AddSong("/m/3.mp3", "2");
        QCOMPARE(clsSONG::Total(songlist), expected);
    }

    void updateWritesEveryColumnAndKeepsTheKey() {
        AddSong("/m/1.mp3", "1");
        clsSONG song = AddSong("/m/2.mp3", "1");
        AddSong("/m/3.mp3", "1");
        song.SONG_FILE_PATH_TX = QStringLiteral("/m/two.flac");
        song.NOTES_TX = QStringLiteral("first dance");
        song.SONGLIST_ID = QStringLiteral("2");
        song.Save(false);
        clsSONG read;
        QVERIFY(read.OpenRecord(song.SONG_ID));
        QCOMPARE(read.SONG_ID, QStringLiteral("2"));
        QCOMPARE(read.SONG_FILE_PATH_TX, QStringLiteral("/m/two.flac"));
        QCOMPARE(read.NOTES_TX, QStringLiteral("first dance"));
        QCOMPARE(read.SONGLIST_TX, QStringLiteral("Reception"));
        // Moving a song to another list keeps its number.
        QCOMPARE(read.SORT_ORDER_NB, QStringLiteral("2"));
        QCOMPARE(
            TestDatabase::Scalar("SELECT GROUP_CONCAT(SONG_ID) FROM (SELECT SONG_ID FROM SONG ORDER BY 1)"),
            QStringLiteral("1,2,3"));
    }

    void deleteRemovesTheRowOnly() {
        const QString path = db->File("keep.mp3");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const clsSONG song = AddSong(path, "1");
        clsSONG().Delete(song.SONG_ID);
        QCOMPARE(clsSONG::Total(), 0L);
        QVERIFY(QFile::exists(path));
        // With its songs gone, the list itself may go.
        clsDICT(clsDICT::Songlist).Delete("1");
    }

    void aSongNeedsAnExistingList() {
        clsSONG song;
        song.SONG_FILE_PATH_TX = QStringLiteral("/m/x.mp3");
        song.SONGLIST_ID = QStringLiteral("9");
        QVERIFY(!RecordIO::Attempt([&] { song.Save(true); }));
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QCOMPARE(clsSONG::Total(), 0L);
    }

    void songName_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        QTest::newRow("folder path") << "/home/anna/Music/First Dance.mp3"
                                     << "First Dance.mp3";
        QTest::newRow("windows path") << "C:\\Music\\Walk.wma "
                                      << "Walk.wma";
        QTest::newRow("no folder") << " track.mp3"
                                   << "track.mp3";
        QTest::newRow("empty") << ""
                               << "";
    }
    void songName() {
        QFETCH(QString, path);
        QFETCH(QString, name);
        clsSONG song;
        song.SONG_FILE_PATH_TX = path;
        QCOMPARE(song.SONG_NM(), name);
    }

    void cursorWalksAndWraps() {
        AddSong("/m/a.mp3", "1");
        AddSong("/m/b.mp3", "1");
        AddSong("/m/c.mp3", "2");
        clsSONG player;
        QCOMPARE(player.CurrentSong(), QString());
        player.MoveNext();
        QCOMPARE(player.CurrentSongIndex(), 0);

        player.LoadSongs(clsSONG::OpenRecords());
        QCOMPARE(player.CurrentSongIndex(), 1);
        QCOMPARE(player.CurrentSong(), QStringLiteral("/m/a.mp3"));
        player.MovePrevious();
        QCOMPARE(player.CurrentSongInfo(), QStringLiteral("#3 - c.mp3"));
        player.MoveNext();
        QCOMPARE(player.CurrentSongInfo(), QStringLiteral("#1 - a.mp3"));
        player.SetSongIndex(2);
        QCOMPARE(player.CurrentSong(), QStringLiteral("/m/b.mp3"));

        // The playing song keeps its place when the order changes.
        clsSONG::UpdateSort("1", "9");
        player.LoadSongs(clsSONG::OpenRecords());
        player.SetSongIndexAfterSort(QStringLiteral("/m/b.mp3"));
        QCOMPARE(player.CurrentSongIndex(), 1);
        QCOMPARE(player.CurrentSongInfo(), QStringLiteral("#1 - b.mp3"));
        player.SetSongIndexAfterSort(QStringLiteral("/m/gone.mp3"));
        QCOMPARE(player.CurrentSongIndex(), 1);
    }

    // Moving keeps each song's number; trading places swaps the two numbers; removing leaves no row.
    void workOnSeveralSongs() {
        const QString ceremony =
            TestDatabase::Scalar("SELECT SONGLIST_ID FROM SONGLIST_DICT WHERE SONGLIST_TX = 'Ceremony'");
        const QString reception =
            TestDatabase::Scalar("SELECT SONGLIST_ID FROM SONGLIST_DICT WHERE SONGLIST_TX = 'Reception'");
        clsSONG::AddSongs({"/m/a.mp3", "/m/b.mp3", "/m/c.mp3"}, ceremony);
        clsSONG::MoveToSonglist({"1", "3"}, reception);
        QCOMPARE(TestDatabase::Scalar("SELECT GROUP_CONCAT(SONG_ID || ':' || SORT_ORDER_NB) FROM SONG "
                                      "WHERE SONGLIST_ID = ? ORDER BY SONG_ID",
                                      {reception}),
                 QStringLiteral("1:1,3:3"));
        const QList<clsSONG> moved = clsSONG::OpenRecords(reception);
        clsSONG::SwapSort(moved.at(0), moved.at(1));
        QCOMPARE(Names(clsSONG::OpenRecords(reception)), (QStringList{"c.mp3", "a.mp3"}));
        clsSONG::DeleteSongs({"1", "2"});
        QCOMPARE(TestDatabase::Scalar("SELECT GROUP_CONCAT(SONG_ID) FROM SONG"), QStringLiteral("3"));
    }
};

QTEST_GUILESS_MAIN(tst_clsSONG)
#include "tst_clsSONG.moc"
