#include "TestHome.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsVOWREN.h"
#include "core/modBackup.h"
#include "core/modDatabaseLock.h"
#include "core/modSchema.h"
#include "core/modSubMain.h"
#include "guests/clsCONTACT.h"
#include "planning/clsEVENT.h"

#include <QFile>
#include <QLockFile>
#include <QtTest>
#include <memory>

namespace {

// Columns each patch added after the first release, by table.
const QMap<QString, QStringList>& AddedByPatches() {
    static const QMap<QString, QStringList> added = {
        {"CONTACT", {"OUT_OF_TOWNER_FG", "FLIGHT_ID", "HOTEL_ID", "PHONE2_TX", "GENDER_FG", "CHILD_FG", "NOTES_TX"}},
        {"INVITE", {"AUTO_UPDATE_FG"}},
        {"DINING_TABLE", {"DINING_TABLE_TYPE_ID"}},
        {"GIFT", {"RECEIVED_DT"}},
        {"BUDGET", {"DUE_DT", "BUDGET_CATEGORY_ID", "PAID_BY_ID"}},
        {"VENDOR", {"VENDOR_CATEGORY_ID", "FILE_PATH_TX"}},
        {"TASK", {"SORT_ORDER_NB"}},
        {"MEAL_DICT", {"PRICE_NB"}},
    };
    return added;
}

// The definition of a shipped table as the first release had it: no STRICT, without the later columns.
QString FirstReleaseDDL(const QString& table, const QStringList& without) {
    QString ddl = modSchema::TableDDL(table);
    ddl.remove(QStringLiteral(" STRICT"));
    const qsizetype open = ddl.indexOf(QLatin1Char('('));
    const qsizetype close = ddl.lastIndexOf(QLatin1Char(')'));
    QStringList columns = ddl.mid(open + 1, close - open - 1).split(QStringLiteral(", "));
    columns.erase(std::remove_if(columns.begin(), columns.end(),
                                 [&](const QString& c) { return without.contains(c.section(QLatin1Char(' '), 0, 0)); }),
                  columns.end());
    return ddl.left(open + 1) + columns.join(QStringLiteral(", ")) + QLatin1Char(')');
}

const QStringList kShippedTables = {"ROLE_DICT", "MEAL_DICT", "TASK_GROUP_DICT", "INVITE", "DINING_TABLE", "EVENT",
                                    "CONTACT", "VENDOR", "BUDGET", "TASK", "GIFT", "IMPORT_FIELD"};

// Every column of every table: name, declared type, required, key.
QStringList SchemaShape(clsDB& db) {
    QStringList shape;
    for (const QString& table : modSchema::TableNames()) {
        const clsRecordset info = db.Execute(
            QStringLiteral("SELECT name, upper(type), \"notnull\", pk FROM pragma_table_info(?) ORDER BY name"), {table});
        for (int i = 0; i < info.RowCount(); ++i)
            shape << table + QLatin1Char('.') + info.Row(i).join(QLatin1Char(' '));
        const clsRecordset keys = db.Execute(
            QStringLiteral("SELECT \"from\", \"table\", on_delete FROM pragma_foreign_key_list(?) ORDER BY \"from\""),
            {table});
        for (int i = 0; i < keys.RowCount(); ++i)
            shape << table + QStringLiteral(" FK ") + keys.Row(i).join(QLatin1Char(' '));
    }
    const clsRecordset indexes =
        db.Execute(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL ORDER BY 1"));
    for (int i = 0; i < indexes.RowCount(); ++i)
        shape << QStringLiteral("INDEX ") + indexes.Value(i, 0);
    return shape;
}

QStringList Dump(clsDB& db) {
    QStringList rows;
    for (const QString& table : modSchema::TableNames()) {
        const clsRecordset rs = db.ExecuteRaw(QStringLiteral("SELECT * FROM %1 ORDER BY 1").arg(table));
        for (int i = 0; i < rs.RowCount(); ++i)
            rows << table + QLatin1Char(':') + rs.Row(i).join(QLatin1Char('|'));
    }
    return rows;
}

} // namespace

class tst_modSubMain : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;

    QString DataFile() const { return home->File("Database/Vowren.quilldata"); }

    // A database file with the first release's tables only, filled with a little of everything.
    void MakeFirstReleaseFile() {
        QDir().mkpath(home->File("Database"));
        QFile(DataFile()).open(QIODevice::WriteOnly);
        clsDB old;
        old.DatabasePath = DataFile();
        QVERIFY(old.OpenConnection());
        for (const QString& table : kShippedTables)
            old.ExecuteScript(FirstReleaseDDL(table, AddedByPatches().value(table)));
        old.ExecuteScript(
            "INSERT INTO ROLE_DICT VALUES (1, 'Bride'), (2, 'Groom'), (3, 'Father of the Bride');"
            "INSERT INTO MEAL_DICT VALUES (1, 'Beef'), (2, 'Fish');"
            "INSERT INTO TASK_GROUP_DICT VALUES (1, '9-12 months'), (9, 'Wedding day');"
            "INSERT INTO EVENT (EVENT_ID, EVENT_TX, EVENT_DT, ADDRESS_TX, CITY_TX, STATE_TX, ZIP_TX) "
            "  VALUES (1, 'Wedding Day', '2027-06-12 15:30:00', '1 Chapel Rd', 'Salem', 'MA', '01970');"
            "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, LAST_NM, ROLE_ID, ATTENDING_FG, ADDRESS_TX, CITY_TX, "
            "  STATE_TX, ZIP_TX) VALUES (1, 'Ms.', 'Ann', 'Lee', 1, 'N', '5 Elm St', 'Boston', 'MA', '02101'),"
            "  (2, 'Mr.', 'Bo', 'Kim', 2, NULL, NULL, NULL, NULL, NULL),"
            "  (3, 'Mrs.', 'Cy', 'Lee', 3, 'Y', NULL, NULL, NULL, NULL);"
            "INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM) VALUES (1, 'Bloom & Co.');"
            "INSERT INTO BUDGET (BUDGET_ID, ACTUAL_AMOUNT_NB, ITEM_NM, VENDOR_ID) VALUES (5, 100, 'Officiant', NULL),"
            "  (13, 450.5, 'Bouquets', 1), (17, 20, 'Odd line', NULL);"
            "INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG) VALUES"
            "  (1, 'Book the band', 1, '2026-08-01', 'N'), (2, 'Breathe', 9, '2027-06-12', 'N'),"
            "  (3, 'Agree the budget', 1, '2026-07-01', 'Y');"
            "INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, GIFT_TX, THANK_YOU_SENT_FG) VALUES (1, 1, 3, 'Vase', 'N');");
    }

    static void Start() {
        QString message;
        QVERIFY2(modSubMain::Start(&message), qPrintable(message));
    }

private slots:
    void init() { home = std::make_unique<TestHome>(); }
    void cleanup() {
        gDB().CloseConnection();
        modDatabaseLock::Release();
        home.reset();
    }

    void firstStartCreatesTheDatabaseAndASecondChangesNothing() {
        Start();
        QVERIFY(QFile::exists(DataFile()));
        QVERIFY(QDir(home->File("Reports")).exists());
        QCOMPARE(gRegistry().GetSetting(clsApp::RootKey(), "Release", ""), clsApp::MajorMinor());
        const QStringList before = Dump(gDB());
        const QStringList shape = SchemaShape(gDB());
        gDB().CloseConnection();
        Start();
        QCOMPARE(Dump(gDB()), before);
        QCOMPARE(SchemaShape(gDB()), shape);
        QVERIFY2(home->Messages().Prompts.isEmpty(), qPrintable(home->Messages().Prompts.join("\n")));
        QCOMPARE(gVowren().Get_VOWREN_TX(9), QStringLiteral("0"));
    }

    void theCoupleAlwaysAttends() {
        Start();
        gDB().Execute("UPDATE CONTACT SET ATTENDING_FG = 'N' WHERE CONTACT_ID = 1");
        gDB().Execute("UPDATE CONTACT SET ATTENDING_FG = NULL WHERE CONTACT_ID = 2");
        gDB().CloseConnection();
        Start();
        QCOMPARE(gDB().Execute("SELECT group_concat(ATTENDING_FG) FROM CONTACT").Scalar(), QStringLiteral("Y,Y"));
    }

    void anEmptyGuestListStartsQuietly() {
        Start();
        gDB().Execute("DELETE FROM CONTACT");
        gDB().CloseConnection();
        Start();
        QCOMPARE(gDB().Execute("SELECT COUNT(*) FROM CONTACT").Scalar(), QStringLiteral("0"));
        QVERIFY(home->Messages().Prompts.isEmpty());
    }

    void skippedPatchesStillOpenTheWeddingDay() {
        Start();
        gDB().Execute("DROP TABLE NOTEBOOK");
        gDB().Execute("UPDATE EVENT SET EVENT_DT = '2027-06-12' WHERE EVENT_ID = 1");
        gDB().CloseConnection();
        gRegistry().SaveSetting(clsApp::RootKey(), "SkipPatches", "1");
        gWeddingEvent() = clsEVENT();
        Start();
        QVERIFY(!gDB().TableExists("NOTEBOOK"));
        QCOMPARE(gWeddingEvent().EVENT_DT, QStringLiteral("12-Jun-2027"));
        gRegistry().SaveSetting(clsApp::RootKey(), "SkipPatches", "0");
        gDB().CloseConnection();
        Start();
        QVERIFY(gDB().TableExists("NOTEBOOK"));
    }

    void aFirstReleaseFileIsBroughtToTheCurrentShape() {
        MakeFirstReleaseFile();
        Start();
        QVERIFY2(home->Messages().Prompts.isEmpty(), qPrintable(home->Messages().Prompts.join("\n")));
        const QStringList upgraded = SchemaShape(gDB());
        gDB().CloseConnection();

        TestHome fresh;
        Start();
        QCOMPARE(upgraded, SchemaShape(gDB()));
    }

    void aFirstReleaseFileKeepsAndMigratesItsData() {
        MakeFirstReleaseFile();
        Start();
        auto value = [](const QString& sql) { return gDB().ExecuteRaw(sql).Scalar(); };
        // budget lines: category by their own id, payer "Bride's Family", the wedding day as due date
        QCOMPARE(value("SELECT group_concat(BUDGET_ID || ':' || BUDGET_CATEGORY_ID, ' ') FROM "
                       "(SELECT * FROM BUDGET ORDER BY BUDGET_ID)"),
                 QStringLiteral("5:3 13:5 17:10"));
        QCOMPARE(value("SELECT group_concat(DISTINCT PAID_BY_ID) FROM BUDGET"), QStringLiteral("4"));
        QCOMPARE(value("SELECT group_concat(DISTINCT DUE_DT) FROM BUDGET"), QStringLiteral("2027-06-12"));
        QCOMPARE(value("SELECT ACTUAL_AMOUNT_NB FROM BUDGET WHERE BUDGET_ID = 13"), QStringLiteral("450.5"));
        // genders from titles, flags for old rows
        QCOMPARE(value("SELECT group_concat(GENDER_FG, '') FROM (SELECT * FROM CONTACT ORDER BY CONTACT_ID)"),
                 QStringLiteral("FMF"));
        QCOMPARE(value("SELECT group_concat(DISTINCT CHILD_FG) FROM CONTACT"), QStringLiteral("N"));
        QCOMPARE(value("SELECT group_concat(DISTINCT OUT_OF_TOWNER_FG) FROM CONTACT"), QStringLiteral("N"));
        QCOMPARE(value("SELECT ATTENDING_FG FROM CONTACT WHERE CONTACT_ID = 1"), QStringLiteral("Y"));
        // the address parts became one block
        QCOMPARE(value("SELECT ADDRESS_TX FROM CONTACT WHERE CONTACT_ID = 1"), QStringLiteral("5 Elm St\r\nBoston, MA  02101"));
        QCOMPARE(value("SELECT CITY_TX IS NULL OR CITY_TX = '' FROM CONTACT WHERE CONTACT_ID = 1"), QStringLiteral("1"));
        QVERIFY(value("SELECT ADDRESS_TX FROM EVENT WHERE EVENT_ID = 1").startsWith("1 Chapel Rd\r\nSalem"));
        QVERIFY(gApp().Patch_1_Applied());
        // meals priced 0, tasks numbered in group order, the new time frame, new tables seeded
        QCOMPARE(value("SELECT group_concat(PRICE_NB = 0) FROM MEAL_DICT"), QStringLiteral("1,1"));
        QCOMPARE(value("SELECT group_concat(TASK_ID, ',') FROM (SELECT * FROM TASK ORDER BY SORT_ORDER_NB)"),
                 QStringLiteral("3,1,2"));
        QCOMPARE(value("SELECT TASK_GROUP_TX FROM TASK_GROUP_DICT WHERE TASK_GROUP_ID = 0"), QStringLiteral("1 year+"));
        QCOMPARE(value("SELECT COUNT(*) FROM VOWREN"), QStringLiteral("9"));
        QCOMPARE(value("SELECT COUNT(*) FROM TITLE_DICT"), QStringLiteral("12"));
        QCOMPARE(value("SELECT VENDOR_CATEGORY_ID FROM VENDOR"), QStringLiteral("1"));
        QCOMPARE(value("SELECT AUTO_UPDATE_FG IS NULL FROM INVITE"), QString()); // no invitations, nothing invented
        QCOMPARE(value("SELECT GIFT_TX FROM GIFT"), QStringLiteral("Vase"));
    }

    // A file of the release before the seventh patch: no task order, genders, gift dates, the first time
    // frame or the etiquette rows yet; budget lines with actual amounts and categories without estimates.
    void aFileBeforePatchSevenIsMigrated() {
        Start();
        gDB().ExecuteScript(
            "INSERT INTO BUDGET (BUDGET_ID, ACTUAL_AMOUNT_NB, DUE_DT, BUDGET_CATEGORY_ID, PAID_BY_ID) VALUES "
            "  (1, 120.25, '2027-01-01', 5, 1), (2, 79.75, '2027-02-01', 5, 2), (3, 300, '2027-03-01', 6, 3);"
            "UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = 999 WHERE BUDGET_CATEGORY_ID = 6;"
            "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, LAST_NM) VALUES (3, 'Sra.', 'Lía', 'Núñez'), "
            "  (4, 'Dr.', 'Al', 'Ng');"
            "INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, GIFT_TX, THANK_YOU_SENT_FG) VALUES (1, 1, 3, 'Bowl', 'Y');"
            "DELETE FROM TASK_GROUP_DICT WHERE TASK_GROUP_ID = 0;"
            "DELETE FROM VOWREN WHERE VOWREN_ID >= 7;"
            "ALTER TABLE TASK DROP COLUMN SORT_ORDER_NB; ALTER TABLE GIFT DROP COLUMN RECEIVED_DT;"
            "ALTER TABLE CONTACT DROP COLUMN GENDER_FG; ALTER TABLE CONTACT DROP COLUMN CHILD_FG;"
            "ALTER TABLE CONTACT DROP COLUMN PHONE2_TX; ALTER TABLE CONTACT DROP COLUMN NOTES_TX;");
        gDB().CloseConnection();
        gRegistry().SaveSetting(clsApp::RootKey(), "EtiquetteIsFormal", "1");
        gRegistry().SaveSetting(clsApp::RootKey(), "GoogleMapIndex", "2");
        Start();
        QVERIFY2(home->Messages().Prompts.isEmpty(), qPrintable(home->Messages().Prompts.join("\n")));
        auto value = [](const QString& sql) { return gDB().ExecuteRaw(sql).Scalar(); };
        QCOMPARE(value("SELECT ESTIMATE_AMOUNT_NB FROM BUDGET_CATEGORY_DICT WHERE BUDGET_CATEGORY_ID = 5"),
                 QStringLiteral("200"));
        QCOMPARE(value("SELECT ESTIMATE_AMOUNT_NB FROM BUDGET_CATEGORY_DICT WHERE BUDGET_CATEGORY_ID = 6"),
                 QStringLiteral("999")); // an estimate of its own is kept
        QCOMPARE(value("SELECT group_concat(GENDER_FG, '') FROM (SELECT * FROM CONTACT ORDER BY CONTACT_ID)"),
                 QStringLiteral("MMFM")); // the couple had no titles: the old default holds
        QCOMPARE(value("SELECT COUNT(DISTINCT SORT_ORDER_NB) = COUNT(*) FROM TASK"), QStringLiteral("1"));
        QCOMPARE(value("SELECT group_concat(VOWREN_TX) FROM VOWREN WHERE VOWREN_ID >= 7"), QStringLiteral("True,True,2"));
        QCOMPARE(value("SELECT GIFT_TX FROM GIFT"), QStringLiteral("Bowl"));
        const QStringList upgraded = SchemaShape(gDB());
        gDB().CloseConnection();
        TestHome fresh;
        Start();
        QCOMPARE(upgraded, SchemaShape(gDB()));
    }

    // A file of the release before the sixth patch: no hotels, flights, notebook, table types, attached
    // files or report colours yet.
    // A file of the version before the seating rules gets their table, after a copy of it as it was.
    void aFileBeforeTheSeatingRulesGetsThem() {
        Start();
        gDB().ExecuteScript("DROP TABLE SEATING_RULE; PRAGMA user_version=1;");
        gDB().CloseConnection();
        Start();
        QVERIFY(gDB().TableExists("SEATING_RULE"));
        QVERIFY(gDB().ForeignKeyExists("SEATING_RULE", "SEATING_RULE_TO_OTHER_CONTACT_FK"));
        QCOMPARE(gDB().SchemaVersion(), DbIdentity::kSchemaVersion);
        const QStringList copies = QDir(modBackup::Folder()).entryList({"*v1-before-update*"});
        QCOMPARE(copies.size(), 1);
    }

    void aFileBeforePatchSixIsMigrated() {
        Start();
        gDB().ExecuteScript(
            "INSERT INTO DINING_TABLE (DINING_TABLE_ID, DINING_TABLE_NB, DINING_TABLE_NM, SEATS_NB, POS_X, POS_Y) "
            "  VALUES (1, 1, 'Rose', 8, 100, 100);"
            "UPDATE CONTACT SET DINING_TABLE_ID = 1;"
            "DROP TABLE NOTEBOOK; DROP TABLE TENTCARD;"
            "ALTER TABLE DINING_TABLE DROP COLUMN DINING_TABLE_TYPE_ID; ALTER TABLE VENDOR DROP COLUMN FILE_PATH_TX;"
            "DELETE FROM VOWREN WHERE VOWREN_ID >= 4;");
        gDB().RebuildTable("CONTACT", FirstReleaseDDL("CONTACT", {"FLIGHT_ID", "HOTEL_ID"}), {"FLIGHT_ID", "HOTEL_ID"});
        gDB().ExecuteScript("DROP TABLE FLIGHT; DROP TABLE HOTEL;");
        gDB().CloseConnection();
        Start();
        QVERIFY2(home->Messages().Prompts.isEmpty(), qPrintable(home->Messages().Prompts.join("\n")));
        auto value = [](const QString& sql) { return gDB().ExecuteRaw(sql).Scalar(); };
        QCOMPARE(value("SELECT DINING_TABLE_TYPE_ID FROM DINING_TABLE"), QStringLiteral("1"));
        QCOMPARE(value("SELECT group_concat(DINING_TABLE_ID) FROM CONTACT"), QStringLiteral("1,1"));
        QCOMPARE(value("SELECT group_concat(VOWREN_TX) FROM VOWREN WHERE VOWREN_ID BETWEEN 4 AND 6"),
                 QStringLiteral("15385258,16246749,13158600"));
        QVERIFY(gDB().ForeignKeyExists("CONTACT", "CONTACT_TO_HOTEL_FK"));
        QCOMPARE(value("SELECT COUNT(*) FROM TENTCARD"), QStringLiteral("1")); // the couple at table 1
        const QStringList upgraded = SchemaShape(gDB());
        gDB().CloseConnection();
        TestHome fresh;
        Start();
        QCOMPARE(upgraded, SchemaShape(gDB()));
    }

    void aBudgetLineWithoutDueDateAndNoWeddingDayShowsTheUpdateMessage() {
        MakeFirstReleaseFile();
        {
            clsDB old;
            old.DatabasePath = DataFile();
            QVERIFY(old.OpenConnection());
            old.Execute("UPDATE EVENT SET EVENT_DT = NULL");
        }
        Start();
        QVERIFY(!home->Messages().Prompts.isEmpty());
        const QString told = home->Messages().Prompts.first();
        QVERIFY(told.startsWith("Database update error.\r\n\r\nPlease contact Quill Software."));
        // the failed step was undone as a whole, and the copy made before the update is named
        QVERIFY2(told.contains("Step 7 of the update failed and was undone"), qPrintable(told));
        const QString copy = told.section("A copy from before the update is at:\r\n", 1);
        QVERIFY2(QFile::exists(copy), qPrintable(copy));
        QVERIFY(!gDB().FieldExists("BUDGET", "DUE_DT"));
        QCOMPARE(gDB().SchemaVersion(), 0); // not marked current: the next start tries again
        // the rest of the driver went on: later steps did their work
        QVERIFY(gDB().TableExists("TIMELINE"));
        QCOMPARE(gDB().Execute("SELECT COUNT(*) FROM BUDGET").Scalar(), QStringLiteral("3"));
    }

    void aSecondWriterIsRefusedWhileAReaderReadsTheFileAsItIs() {
        Start();
        gDB().CloseConnection();
        QLockFile other(DataFile() + ".lock");
        QVERIFY(other.tryLock(0));
        QString message;
        QVERIFY(!modSubMain::StartForChange(&message, 50));
        QVERIFY2(message.contains("is in use by") && message.contains(DataFile()), qPrintable(message));
        QVERIFY(!gDB().IsOpen());
        QVERIFY2(modSubMain::StartForReading(&message), qPrintable(message));
        QVERIFY(gDB().IsReadOnly());
        other.unlock();
        gDB().CloseConnection();
        QVERIFY(modSubMain::StartForChange(&message, 50));
        QVERIFY(modDatabaseLock::Held());
    }

    void theFirstStartAlreadyHoldsTheLock() {
        QString message;
        QVERIFY2(modSubMain::StartForChange(&message, 0), qPrintable(message));
        QVERIFY(QFile::exists(DataFile() + ".lock"));
    }

    void aNewerVowrensFileIsReadAndNeverWritten() {
        Start();
        gDB().ExecuteScript(QStringLiteral("UPDATE CONTACT SET ATTENDING_FG = 'N' WHERE CONTACT_ID = 1; "
                                           "PRAGMA user_version=%1;")
                                .arg(DbIdentity::kSchemaVersion + 1));
        gDB().CloseConnection();
        QFile file(DataFile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        file.close();
        Start();
        QVERIFY(gDB().IsReadOnly());
        QVERIFY(gDB().OpenNotice().contains("newer version of Vowren"));
        QCOMPARE(gBride().ATTENDING_FG, QStringLiteral("N"));
        QString message;
        QVERIFY(!modSubMain::StartForChange(&message, 0));
        gDB().CloseConnection();
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);
    }

    void badDatabasesEndInTheConnectMessage_data() {
        QTest::addColumn<QString>("connectTo");
        QTest::addColumn<QByteArray>("dataFile");
        QTest::addColumn<QString>("says");
        QTest::newRow("connect names a missing file") << "/nowhere/Wedding.quilldata" << QByteArray() << "does not exist";
        QTest::newRow("not a database") << QString() << QByteArray("PK\x03\x04 a zip, not a database").repeated(50)
                                        << "is not a Vowren database";
    }
    void badDatabasesEndInTheConnectMessage() {
        QFETCH(QString, connectTo);
        QFETCH(QByteArray, dataFile);
        QFETCH(QString, says);
        QDir().mkpath(home->File("Database"));
        if (!connectTo.isEmpty()) {
            QFile f(home->File("Database/Vowren.connect"));
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(connectTo.toUtf8() + "\r\n");
        }
        if (!dataFile.isEmpty()) {
            QFile f(DataFile());
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(dataFile);
        }
        QString message;
        QVERIFY(!modSubMain::Start(&message));
        QVERIFY2(message.startsWith("Unable to connect to database: "), qPrintable(message));
        QVERIFY2(message.contains(says), qPrintable(message));
        QVERIFY(message.contains("Please e-mail: "));
        QVERIFY(!QFile::exists(connectTo));
        if (!dataFile.isEmpty()) {
            QFile f(DataFile());
            QVERIFY(f.open(QIODevice::ReadOnly));
            QCOMPARE(f.readAll(), dataFile);
        }
    }
};

QTEST_GUILESS_MAIN(tst_modSubMain)
#include "tst_modSubMain.moc"
