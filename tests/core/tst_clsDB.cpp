#include "TestDatabase.h"
#include "core/RecordIO.h"
#include "core/clsDB.h"
#include "core/modGeneral.h"
#include "core/modSchema.h"

#include <QFile>
#include <QtTest>
#include <memory>
#include <sqlite3.h>
#include <unistd.h>

// A throwaway record class over ROLE_DICT, to exercise the record pattern itself.
struct clsROLE_PROBE {
    QString ROLE_ID;
    QString ROLE_TX;
    static const RecordTable<clsROLE_PROBE>& Table() {
        static const RecordTable<clsROLE_PROBE> table{
            "ROLE_DICT", "ROLE_ID", {{"ROLE_ID", &clsROLE_PROBE::ROLE_ID}, {"ROLE_TX", &clsROLE_PROBE::ROLE_TX}}};
        return table;
    }
};

class tst_clsDB : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static QString FileWith(const QString& path, const QByteArray& bytes) {
        QFile f(path);
        if (!f.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(path));
        f.write(bytes);
        return path;
    }

    sqlite3* OtherConnection() const {
        sqlite3* other = nullptr;
        sqlite3_open(gDB().DatabasePath.toUtf8().constData(), &other);
        return other;
    }

    static QByteArray Bytes(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void freshDatabaseHasEveryTableAndItsSeeds() {
        for (const QString& table : modSchema::TableNames())
            QVERIFY2(gDB().TableExists(table), qPrintable(table));
        QCOMPARE(db->Scalar("SELECT ROLE_TX FROM ROLE_DICT WHERE ROLE_ID = 1"), QStringLiteral("Bride"));
        QCOMPARE(db->Scalar("SELECT ROLE_TX FROM ROLE_DICT WHERE ROLE_ID = 2"), QStringLiteral("Groom"));
        QCOMPARE(db->Scalar("SELECT TITLE_TX FROM TITLE_DICT WHERE TITLE_ID = 12"), QStringLiteral("Sra."));
        QCOMPARE(db->Scalar("SELECT TASK_GROUP_TX FROM TASK_GROUP_DICT WHERE TASK_GROUP_ID = 0"), QStringLiteral("1 year+"));
        QCOMPARE(db->Scalar("SELECT COUNT(DISTINCT TASK_GROUP_ID) FROM TASK"), QStringLiteral("11"));
        QVERIFY(db->Scalar("SELECT COUNT(*) FROM TASK").toInt() >= 75);
        QCOMPARE(db->Scalar("SELECT COUNT(*) FROM VOWREN"), QStringLiteral("9"));
        QCOMPARE(db->Scalar("SELECT VOWREN_TX FROM VOWREN WHERE VOWREN_ID = 4"), QStringLiteral("15385258"));
        QCOMPARE(db->Scalar("SELECT COUNT(*) FROM WORDING"), QStringLiteral("3"));
        QCOMPARE(db->Scalar("SELECT EVENT_ID FROM EVENT"), QStringLiteral("1"));
        QCOMPARE(db->Scalar("SELECT group_concat(ATTENDING_FG) FROM CONTACT"), QStringLiteral("Y,Y"));
        QCOMPARE(db->Scalar("PRAGMA foreign_keys"), QStringLiteral("1"));
        QCOMPARE(db->Scalar("PRAGMA journal_mode"), QStringLiteral("delete"));
        QCOMPARE(db->Scalar("PRAGMA synchronous"), QStringLiteral("2"));
        const auto permissions = QFile::permissions(gDB().DatabasePath);
        QCOMPARE(int(permissions & 0x00FF), 0);
    }

    void createNeverTouchesAnExistingFile() {
        const QString path = db->File("other.quilldata");
        FileWith(path, "precious");
        QString error;
        QVERIFY(!modSchema::CreateDatabaseFile(path, &error));
        QVERIFY(error.contains(path));
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), QByteArray("precious"));
    }

    void badFilesGiveAClearMessageAndStayUntouched_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("says");
        QTest::newRow("missing") << "missing" << "does not exist";
        QTest::newRow("not a database") << "text" << "is not a Vowren database";
        QTest::newRow("cut off") << "truncated" << "is not a Vowren database";
        QTest::newRow("a folder") << "folder" << "is a folder";
    }
    void badFilesGiveAClearMessageAndStayUntouched() {
        QFETCH(QString, kind);
        QFETCH(QString, says);
        const QString path = db->File("bad.quilldata");
        QByteArray before;
        if (kind == "text") {
            before = QByteArray("Dear guests,\nthis is a letter, not a database.\n").repeated(100);
            FileWith(path, before);
        } else if (kind == "truncated") {
            QFile real(gDB().DatabasePath);
            QVERIFY(real.open(QIODevice::ReadOnly));
            before = real.readAll().left(6000);
            FileWith(path, before);
        } else if (kind == "folder") {
            QDir().mkpath(path);
        }
        clsDB other;
        other.DatabasePath = path;
        QVERIFY(!other.OpenConnection());
        QVERIFY2(other.OpenError().contains(says), qPrintable(other.OpenError()));
        QVERIFY(other.OpenError().contains(path));
        if (!before.isEmpty()) {
            QFile f(path);
            QVERIFY(f.open(QIODevice::ReadOnly));
            QCOMPARE(f.readAll(), before);
        }
    }

    void readOnlyFileIsRefusedWithAMessage() {
        if (geteuid() == 0)
            QSKIP("running as root: file permissions do not hold back root");
        const QString path = gDB().DatabasePath;
        gDB().CloseConnection();
        QFile::setPermissions(path, QFileDevice::ReadOwner);
        clsDB other;
        other.DatabasePath = path;
        QVERIFY(!other.OpenConnection());
        QVERIFY(other.OpenError().contains("read-only"));
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }

    void referencedRowsCannotBeDeleted_data() {
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QString>("deleteSql");
        QTest::addColumn<QString>("message");
        QTest::newRow("meal eaten by a guest")
            << "UPDATE CONTACT SET MEAL_ID = 2 WHERE CONTACT_ID = 1" << "DELETE FROM MEAL_DICT WHERE MEAL_ID = 2"
            << "Unable to delete.  Contacts are associated with this entry.";
        QTest::newRow("category with budget lines")
            << "INSERT INTO BUDGET (BUDGET_ID, DUE_DT, BUDGET_CATEGORY_ID) VALUES (1, '2027-01-01', 3)"
            << "DELETE FROM BUDGET_CATEGORY_DICT WHERE BUDGET_CATEGORY_ID = 3"
            << "Unable to delete.  Budget entries are associated with this entry.";
        QTest::newRow("songlist with songs")
            << "INSERT INTO SONG (SONG_ID, SONG_FILE_PATH_TX, SORT_ORDER_NB, SONGLIST_ID) VALUES (1, '/m/a.mp3', 1, 2)"
            << "DELETE FROM SONGLIST_DICT WHERE SONGLIST_ID = 2"
            << "Unable to delete.  Songs are associated with this songlist.";
        QTest::newRow("contact who gave a gift")
            << "INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, GIFT_TX) VALUES (1, 1, 2, 'Toaster')"
            << "DELETE FROM CONTACT WHERE CONTACT_ID = 2" << "Unable to delete.  Gift records exist for this contact.";
    }
    void referencedRowsCannotBeDeleted() {
        QFETCH(QString, setup);
        QFETCH(QString, deleteSql);
        QFETCH(QString, message);
        db->Exec(setup);
        QVERIFY(!RecordIO::Attempt([&] { RecordIO::Run(deleteSql); }));
        QCOMPARE(db->Messages().Prompts, QStringList{message});
    }

    void cascadesRemoveTimelineAndWidgetRows() {
        db->Exec("INSERT INTO EVENT (EVENT_ID, EVENT_TX) VALUES (2, 'Rehearsal')");
        db->Exec("INSERT INTO TIMELINE (TIMELINE_ID, TIMELINE_START_DT, TIMELINE_END_DT, TIMELINE_DESC, EVENT_ID) "
                 "VALUES (1, '2027-06-04 17:00:00', '2027-06-04 18:00:00', 'Walk-through', 2)");
        RecordIO::Delete("EVENT", "EVENT_ID", "2");
        QCOMPARE(db->Scalar("SELECT COUNT(*) FROM TIMELINE"), QStringLiteral("0"));
    }

    void duplicateTitlesAreRefused() {
        QVERIFY(!RecordIO::Attempt(
            [&] { RecordIO::Run("INSERT INTO TITLE_DICT (TITLE_ID, TITLE_TX) VALUES (99, 'dr.')"); }));
        QCOMPARE(db->Messages().Prompts, QStringList{"Duplicate value.  Ensure that entry is unique."});
    }

    void recordPatternStoresExactlyWhatWasTyped_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("quote") << "O'Brien";
        QTest::newRow("accents and signs") << "Zoë O'Brien-Łukasik {Jr.} C:\\temp";
        QTest::newRow("CJK and emoji") << "山田 花子 💍👰";
        QTest::newRow("SQL") << "x'); DELETE FROM CONTACT; --";
        QTest::newRow("10 000 characters") << QString(10000, QChar(0x00E9));
        QTest::newRow("line breaks") << "line 1\r\nline 2\n";
    }
    void recordPatternStoresExactlyWhatWasTyped() {
        QFETCH(QString, text);
        clsROLE_PROBE role;
        role.ROLE_TX = text;
        RecordIO::Save(role, clsROLE_PROBE::Table(), true);
        QCOMPARE(role.ROLE_ID, QStringLiteral("19")); // after the 18 seeded roles
        clsROLE_PROBE back;
        QVERIFY(RecordIO::OpenRecord(back, clsROLE_PROBE::Table(), role.ROLE_ID));
        QCOMPARE(back.ROLE_TX, text);
        QCOMPARE(db->Scalar("SELECT COUNT(*) FROM CONTACT"), QStringLiteral("2"));
    }

    void emptyMembersAreWrittenAsNull() {
        clsROLE_PROBE role;
        RecordIO::Save(role, clsROLE_PROBE::Table(), true);
        QCOMPARE(db->Scalar("SELECT ROLE_TX IS NULL FROM ROLE_DICT WHERE ROLE_ID = ?", {role.ROLE_ID}), QStringLiteral("1"));
    }

    void keysAreReusedAfterTheHighestIsDeleted() {
        QCOMPARE(RecordIO::NextID("DINING_TABLE", "DINING_TABLE_ID"), QStringLiteral("1"));
        for (int i = 1; i <= 5; ++i)
            db->Exec("INSERT INTO DINING_TABLE (DINING_TABLE_ID, DINING_TABLE_NB) VALUES (?, ?)", {i, i});
        QCOMPARE(RecordIO::NextID("DINING_TABLE", "DINING_TABLE_ID"), QStringLiteral("6"));
        RecordIO::Delete("DINING_TABLE", "DINING_TABLE_ID", "5");
        QCOMPARE(RecordIO::NextID("DINING_TABLE", "DINING_TABLE_ID"), QStringLiteral("5"));
    }

    void openRecordOfAMissingKeyChangesNothing() {
        clsROLE_PROBE role;
        role.ROLE_TX = "unchanged";
        QVERIFY(!RecordIO::OpenRecord(role, clsROLE_PROBE::Table(), "777"));
        QCOMPARE(role.ROLE_TX, QStringLiteral("unchanged"));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void updateOfADeletedRowIsASuccessThatChangesNothing() {
        clsROLE_PROBE role{"500", "Gone"};
        RecordIO::Save(role, clsROLE_PROBE::Table(), false);
        QCOMPARE(db->Scalar("SELECT COUNT(*) FROM ROLE_DICT WHERE ROLE_ID = 500"), QStringLiteral("0"));
    }

    void datesAreStoredAsIsoAndReadInTheProgramsFormat() {
        db->Exec("UPDATE EVENT SET EVENT_DT = ? WHERE EVENT_ID = 1", {DbDates::ToStorage("05-Jun-2027 3:30 PM", "EVENT_DT")});
        QCOMPARE(gDB().ExecuteRaw("SELECT EVENT_DT FROM EVENT").Scalar(), QStringLiteral("2027-06-05 15:30:00"));
        const QString shown = db->Scalar("SELECT EVENT_DT FROM EVENT");
        QVERIFY2(shown == "05-Jun-2027 3:30 PM" || shown == "05-Jun-2027 15:30", qPrintable(shown));
        QCOMPARE(DbDates::ToStorage("05-Jun-2027", "X_DT"), QStringLiteral("2027-06-05"));
        QCOMPARE(DbDates::FromStorage("2027-06-05"), QStringLiteral("05-Jun-2027"));
        QVERIFY_THROWS_EXCEPTION(clsDbError, DbDates::ToStorage("next Saturday", "EVENT_DT"));
    }

    void storedDatesReadInTheProgramsFormat_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        const QString time = FormatTime(QTime(15, 30));
        QTest::newRow("date") << "2027-06-05" << "05-Jun-2027";
        QTest::newRow("date and time") << "2027-06-05 15:30:00" << "05-Jun-2027 " + time;
        QTest::newRow("no seconds") << "2027-06-05 15:30" << "05-Jun-2027 " + time;
        QTest::newRow("midnight is the date alone") << "2027-06-05 00:00:00" << "05-Jun-2027";
        QTest::newRow("leap day") << "2028-02-29" << "29-Feb-2028";
        QTest::newRow("no such day stays as stored") << "2027-02-30" << "2027-02-30";
        QTest::newRow("no such hour stays as stored") << "2027-06-05 25:00:00" << "2027-06-05 25:00:00";
        QTest::newRow("older text is still read") << "5-Jun-2027" << "05-Jun-2027";
        QTest::newRow("no date stays as typed") << "next Saturday" << "next Saturday";
        QTest::newRow("digits in the wrong places") << "2027/06/05" << "2027/06/05";
    }

    void storedDatesReadInTheProgramsFormat() {
        QFETCH(QString, stored);
        QFETCH(QString, shown);
        QCOMPARE(DbDates::FromStorage(stored), shown);
    }

    // Values repeat down a column and are shared between rows; each row must still read as its own, and
    // a record changed after reading must not change the next one.
    void repeatedValuesReadRowByRow() {
        db->Exec("CREATE TABLE PROBE (N INTEGER, T TEXT, F TEXT, X_DT TEXT, R REAL) STRICT");
        const QList<QVariantList> rows = {
            {1, "Anne", "Y", "2027-06-05", 1.5},   {1, "Anne", "Y", "2027-06-05", 1.5},
            {QVariant(), QVariant(), QVariant(), QVariant(), QVariant()},
            {300, "Anne", "N", "2027-06-06", 2.0}, {300, "Zoë", "é", "2027-06-06", 2.0},
            {-4, "Zoë", "é", "2027-06-06 15:30:00", -0.25}};
        int id = 0;
        for (const QVariantList& row : rows)
            db->Exec("INSERT INTO PROBE (rowid, N, T, F, X_DT, R) VALUES (?, ?, ?, ?, ?, ?)",
                     QVariantList{++id} + row);
        const clsRecordset rs = gDB().Execute("SELECT N, T, F, X_DT, R FROM PROBE ORDER BY rowid");
        QList<QStringList> read;
        for (int row = 0; row < rs.RowCount(); ++row)
            read << rs.Row(row);
        QStringList changed = rs.Row(0);
        changed[1].append(QStringLiteral(" Lee"));
        QCOMPARE(rs.Row(1).at(1), QStringLiteral("Anne"));
        const QString time = FormatTime(QTime(15, 30));
        const QList<QStringList> expected = {
            {"1", "Anne", "Y", "05-Jun-2027", "1.5"}, {"1", "Anne", "Y", "05-Jun-2027", "1.5"},
            {"", "", "", "", ""},
            {"300", "Anne", "N", "06-Jun-2027", "2"}, {"300", "Zoë", "é", "06-Jun-2027", "2"},
            {"-4", "Zoë", "é", "06-Jun-2027 " + time, "-0.25"}};
        QCOMPARE(read, expected);
    }

    void valuesOfTheWrongTypeAreRefused() {
        db->Exec("INSERT INTO DINING_TABLE (DINING_TABLE_ID, DINING_TABLE_NB) VALUES (1, 1)");
        QVERIFY_THROWS_EXCEPTION(
            clsDbError,
            RecordIO::Run("UPDATE DINING_TABLE SET SEATS_NB = ? WHERE DINING_TABLE_ID = 1", {"ten"}));
        RecordIO::Run("UPDATE DINING_TABLE SET SEATS_NB = ? WHERE DINING_TABLE_ID = 1", {"10"});
        QCOMPARE(db->Scalar("SELECT typeof(SEATS_NB) || SEATS_NB FROM DINING_TABLE"), QStringLiteral("integer10"));
    }

    void transactionsAreAllOrNothing() {
        {
            clsTransaction outer(gDB());
            db->Exec("UPDATE ROLE_DICT SET ROLE_TX = 'Partner A' WHERE ROLE_ID = 1");
            {
                clsTransaction inner(gDB());
                db->Exec("UPDATE ROLE_DICT SET ROLE_TX = 'Partner B' WHERE ROLE_ID = 2");
                inner.Commit();
            }
            // outer goes out of scope without Commit: both changes are undone
        }
        QCOMPARE(db->Scalar("SELECT group_concat(ROLE_TX) FROM (SELECT ROLE_TX FROM ROLE_DICT WHERE ROLE_ID <= 2 ORDER BY ROLE_ID)"),
                 QStringLiteral("Bride,Groom"));
        {
            clsTransaction tx(gDB());
            db->Exec("UPDATE ROLE_DICT SET ROLE_TX = 'Partner A' WHERE ROLE_ID = 1");
            tx.Commit();
        }
        QCOMPARE(db->Scalar("SELECT ROLE_TX FROM ROLE_DICT WHERE ROLE_ID = 1"), QStringLiteral("Partner A"));
    }

    void existenceTestsSayNothing() {
        QVERIFY(gDB().TableExists("CONTACT"));
        QVERIFY(!gDB().TableExists("NO_SUCH_TABLE"));
        QVERIFY(gDB().FieldExists("CONTACT", "GENDER_FG"));
        QVERIFY(!gDB().FieldExists("CONTACT", "NO_SUCH_FIELD"));
        QVERIFY(gDB().ForeignKeyExists("CONTACT", "CONTACT_TO_HOTEL_FK"));
        QVERIFY(!gDB().ForeignKeyExists("CONTACT", "CONTACT_TO_NOWHERE_FK"));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void rebuildKeepsRowsAndLinks() {
        db->Exec("INSERT INTO HOTEL (HOTEL_ID, HOTEL_NB, HOTEL_NM, ROOMS_NB, POS_X, POS_Y) VALUES (1, 1, 'Inn', 5, 0, 0)");
        db->Exec("UPDATE CONTACT SET HOTEL_ID = 1 WHERE CONTACT_ID = 2");
        gDB().RebuildTable("HOTEL", modSchema::TableDDL("HOTEL"));
        QCOMPARE(db->Scalar("SELECT HOTEL_NM FROM HOTEL"), QStringLiteral("Inn"));
        QCOMPARE(db->Scalar("SELECT HOTEL_ID FROM CONTACT WHERE CONTACT_ID = 2"), QStringLiteral("1"));
        QVERIFY_THROWS_EXCEPTION(clsDbError,
                                 RecordIO::Delete("HOTEL", "HOTEL_ID", "1")); // the link still holds
        QCOMPARE(db->Scalar("PRAGMA foreign_keys"), QStringLiteral("1"));
    }

    void rebuildDropsOnlyTheColumnsItIsTold() {
        db->Exec("ALTER TABLE HOTEL ADD COLUMN STARS_NB INTEGER");
        db->Exec("INSERT INTO HOTEL (HOTEL_ID, HOTEL_NB, HOTEL_NM, ROOMS_NB, POS_X, POS_Y, STARS_NB) "
                 "VALUES (1, 1, 'Inn', 5, 0, 0, 4)");
        QVERIFY_THROWS_EXCEPTION(clsDbError, gDB().RebuildTable("HOTEL", modSchema::TableDDL("HOTEL")));
        QCOMPARE(db->Scalar("SELECT STARS_NB FROM HOTEL"), QStringLiteral("4"));
        QVERIFY(!gDB().InTransaction());
        gDB().RebuildTable("HOTEL", modSchema::TableDDL("HOTEL"), {"STARS_NB"});
        QVERIFY(!gDB().FieldExists("HOTEL", "STARS_NB"));
        QCOMPARE(db->Scalar("SELECT HOTEL_NM FROM HOTEL"), QStringLiteral("Inn"));
    }

    // Another program reading the file makes the commit fail: the change is undone, the connection is out
    // of the transaction, and the next save reaches the file.
    void aCommitThatFailsLeavesNoDeadTransaction() {
        sqlite3* reader = OtherConnection();
        sqlite3_exec(reader, "BEGIN; SELECT COUNT(*) FROM CONTACT;", nullptr, nullptr, nullptr);
        gDB().SetBusyTimeout(50);
        try {
            clsTransaction tx(gDB());
            db->Exec("UPDATE ROLE_DICT SET ROLE_TX = 'Lost' WHERE ROLE_ID = 1");
            tx.Commit();
            QFAIL("the commit went through while another program read the file");
        } catch (const clsDbError& e) {
            QVERIFY2(e.Message().contains("in use by another program"), qPrintable(e.Message()));
        }
        QVERIFY(!gDB().InTransaction());
        sqlite3_exec(reader, "COMMIT", nullptr, nullptr, nullptr);
        {
            clsTransaction tx(gDB());
            db->Exec("UPDATE ROLE_DICT SET ROLE_TX = 'Kept' WHERE ROLE_ID = 2");
            tx.Commit();
        }
        sqlite3_close(reader);
        gDB().CloseConnection();
        QVERIFY(gDB().OpenConnection());
        QCOMPARE(db->Scalar("SELECT group_concat(ROLE_TX) FROM (SELECT ROLE_TX FROM ROLE_DICT WHERE ROLE_ID <= 2 "
                            "ORDER BY ROLE_ID)"),
                 QStringLiteral("Bride,Kept"));
    }

    void aLockedFileIsInUseNotDamaged() {
        sqlite3* holder = OtherConnection();
        QCOMPARE(sqlite3_exec(holder, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
        clsDB other;
        other.DatabasePath = gDB().DatabasePath;
        other.SetBusyTimeout(50);
        QVERIFY(!other.OpenConnection());
        QVERIFY2(other.OpenError().contains("in use by another program"), qPrintable(other.OpenError()));
        QVERIFY(!other.OpenError().contains("damaged"));
        sqlite3_exec(holder, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(holder);
        QVERIFY(other.OpenConnection());
    }

    // Files that are not ours are refused untouched; a newer Vowren's file is read but never written.
    void fileIdentity_data() {
        QTest::addColumn<QString>("script");
        QTest::addColumn<bool>("opens");
        QTest::addColumn<QString>("says");
        QTest::newRow("another program's tables") << "CREATE TABLE photos (id INTEGER, path TEXT);" << false
                                                  << "is not a Vowren database";
        QTest::newRow("another program's id") << "PRAGMA application_id=1234; CREATE TABLE CONTACT (x);" << false
                                              << "belongs to another program";
        QTest::newRow("a newer Vowren") << QStringLiteral("PRAGMA user_version=%1;").arg(DbIdentity::kSchemaVersion + 1)
                                        << true << "newer version of Vowren";
    }
    void fileIdentity() {
        QFETCH(QString, script);
        QFETCH(bool, opens);
        QFETCH(QString, says);
        const QString path = db->File("other.quilldata");
        QFile::copy(gDB().DatabasePath, path);
        if (!opens)
            QFile(path).resize(0); // another program's file starts from nothing
        sqlite3* raw = nullptr;
        sqlite3_open(path.toUtf8().constData(), &raw);
        QCOMPARE(sqlite3_exec(raw, script.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(raw);
        const QByteArray before = Bytes(path);
        clsDB other;
        other.DatabasePath = path;
        QCOMPARE(other.OpenConnection(), opens);
        const QString told = opens ? other.OpenNotice() : other.OpenError();
        QVERIFY2(told.contains(says), qPrintable(told));
        if (opens) {
            QVERIFY(other.IsReadOnly());
            QVERIFY_THROWS_EXCEPTION(clsDbError, other.Execute("UPDATE ROLE_DICT SET ROLE_TX = 'x'"));
        }
        other.CloseConnection();
        QCOMPARE(Bytes(path), before);
    }

    void formatSQL() {
        QCOMPARE(clsDB::FormatSQL("select a from t where x = 1 and y = 2 order by a", true),
                 QStringLiteral("SELECT A\r\n  FROM T\r\n WHERE X = 1\r\n   AND Y = 2\r\nORDER BY A"));
        QCOMPARE(clsDB::FormatSQL("SELECT a\r\nFROM t WHERE x", false), QStringLiteral("SELECT a\r\nFROM t WHERE x"));
        QCOMPARE(clsDB::FormatSQL("SELECT a MINUS SELECT b", false), QStringLiteral("SELECT a \r\n MINUS SELECT b"));
    }
};

QTEST_GUILESS_MAIN(tst_clsDB)
#include "tst_clsDB.moc"
