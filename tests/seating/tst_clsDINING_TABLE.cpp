#include "TestDatabase.h"
#include "seating/clsDINING_TABLE.h"

#include <QtTest>
#include <functional>
#include <memory>

class tst_clsDINING_TABLE : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static clsDINING_TABLE AddTable(const QString& number, const QString& seats = QStringLiteral("8"),
                                    const QString& label = QString()) {
        clsDINING_TABLE table;
        table.DINING_TABLE_NB = number;
        table.DINING_TABLE_NM = label;
        table.SEATS_NB = seats;
        table.POS_X = QStringLiteral("0");
        table.POS_Y = QStringLiteral("0");
        table.DINING_TABLE_TYPE_ID = QStringLiteral("1");
        table.Save(true);
        return table;
    }
    // Guests 3, 4, ... seated at the table; the couple are contacts 1 and 2.
    static void Seat(int contactID, const QString& tableID, const QString& attending = QStringLiteral("Y")) {
        if (contactID > 2)
            TestDatabase::Exec(
                "INSERT INTO CONTACT (CONTACT_ID, LAST_NM, ATTENDING_FG) VALUES (?, 'Guest', ?)",
                {contactID, attending});
        TestDatabase::Exec("UPDATE CONTACT SET DINING_TABLE_ID = ? WHERE CONTACT_ID = ?",
                           {tableID, contactID});
    }
    static QString TableOf(int contactID) {
        return TestDatabase::Scalar("SELECT DINING_TABLE_ID FROM CONTACT WHERE CONTACT_ID = ?", {contactID});
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void nextNumberAfterDeletes_data() {
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<QStringList>("deleteNumbers");
        QTest::addColumn<QString>("next");
        QTest::newRow("highest deleted: its number comes back")
            << QStringList{"1", "2", "3"} << QStringList{"3"} << "3";
        QTest::newRow("a gap stays") << QStringList{"1", "2", "3"} << QStringList{"2"} << "4";
        QTest::newRow("typed numbers") << QStringList{"5", "12"} << QStringList{} << "13";
        QTest::newRow("all deleted") << QStringList{"1", "2"} << QStringList{"1", "2"} << "1";
    }
    void nextNumberAfterDeletes() {
        QFETCH(QStringList, numbers);
        QFETCH(QStringList, deleteNumbers);
        QFETCH(QString, next);
        for (const QString& number : numbers)
            AddTable(number);
        for (const QString& number : deleteNumbers) {
            clsDINING_TABLE table;
            QVERIFY(table.OpenRecord(QString(), number));
            table.Delete(table.DINING_TABLE_ID);
        }
        QCOMPARE(clsDINING_TABLE::NEXT_NB(), next);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void deleteSendsTheSeatedGuestsBack() {
        const clsDINING_TABLE first = AddTable("1");
        const clsDINING_TABLE second = AddTable("2");
        Seat(1, first.DINING_TABLE_ID);
        Seat(2, first.DINING_TABLE_ID);
        Seat(3, first.DINING_TABLE_ID, "N");
        Seat(4, second.DINING_TABLE_ID);
        TestDatabase::Exec("INSERT INTO TENTCARD VALUES (1, 'Mr. and Mrs. Groom', 'Groom', ?), "
                           "(2, 'Ms. Guest', 'Guest', ?)",
                           {first.DINING_TABLE_ID, second.DINING_TABLE_ID});

        clsDINING_TABLE table;
        table.Delete(first.DINING_TABLE_ID);
        QVERIFY(db->Messages().Prompts.isEmpty());
        QCOMPARE(TableOf(1), QString());
        QCOMPARE(TableOf(2), QString());
        QCOMPARE(TableOf(3), QString());
        QCOMPARE(TableOf(4), second.DINING_TABLE_ID);
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE"), QStringLiteral("1"));
        QCOMPARE(TestDatabase::Scalar("SELECT GROUP_CONCAT(TENTCARD_ID) FROM TENTCARD"), QStringLiteral("2"));
    }

    void aRefusedDeleteKeepsEveryGuestSeated() {
        const clsDINING_TABLE first = AddTable("1");
        Seat(3, first.DINING_TABLE_ID);
        TestDatabase::Exec("CREATE TRIGGER keep_tables BEFORE DELETE ON DINING_TABLE "
                           "BEGIN SELECT RAISE(ABORT, 'tables are kept'); END");
        clsDINING_TABLE table;
        QCOMPARE(ErrorOf([&] { table.Delete(first.DINING_TABLE_ID); }), QStringLiteral("tables are kept"));
        QCOMPARE(TableOf(3), first.DINING_TABLE_ID);
    }

    void totals_data() {
        QTest::addColumn<QString>("seats");
        QTest::addColumn<int>("seated");
        QTest::addColumn<int>("kind");
        QTest::addColumn<long>("expected");
        QTest::newRow("tables in the room") << "8" << 3 << 0 << 2L;
        QTest::newRow("free seats") << "8" << 3 << 1 << 5L;
        QTest::newRow("taken seats count the absent too") << "8" << 3 << 2 << 3L;
        QTest::newRow("over-full goes below zero") << "2" << 3 << 1 << -1L;
    }
    void totals() {
        QFETCH(QString, seats);
        QFETCH(int, seated);
        QFETCH(int, kind);
        QFETCH(long, expected);
        const clsDINING_TABLE table = AddTable("1", seats);
        const clsDINING_TABLE other = AddTable("2");
        for (int i = 0; i < seated; ++i)
            Seat(3 + i, table.DINING_TABLE_ID, i == 0 ? QStringLiteral("N") : QStringLiteral("Y"));
        Seat(20, other.DINING_TABLE_ID);
        QCOMPARE(table.GetTotal(kind), expected);
    }

    void openRecordByKeyOrNumber_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("expectedLabel");
        QTest::newRow("by key") << "2"
                                << ""
                                << "Family";
        QTest::newRow("by number") << ""
                                   << "7"
                                   << "Friends";
        QTest::newRow("the key wins") << "2"
                                      << "7"
                                      << "Family";
        QTest::newRow("missing key") << "99"
                                     << ""
                                     << "untouched";
    }
    void openRecordByKeyOrNumber() {
        QFETCH(QString, key);
        QFETCH(QString, number);
        QFETCH(QString, expectedLabel);
        AddTable("7", "8", "Friends");
        AddTable("3", "8", "Family");
        clsDINING_TABLE table;
        table.DINING_TABLE_NM = QStringLiteral("untouched");
        table.OpenRecord(key, number);
        QCOMPARE(table.DINING_TABLE_NM, expectedLabel);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void listsTablesByNumber() {
        for (const char* number : {"10", "2", "7"})
            AddTable(number);
        QStringList numbers;
        for (const clsDINING_TABLE& table : clsDINING_TABLE::OpenRecords())
            numbers << table.DINING_TABLE_NB;
        QCOMPARE(numbers, QStringList({"2", "7", "10"}));
    }

    void aNumberThatIsNoNumberIsRefused() {
        clsDINING_TABLE table;
        table.DINING_TABLE_NB = QStringLiteral("A1");
        table.SEATS_NB = QStringLiteral("8");
        QVERIFY_THROWS_EXCEPTION(clsDbError, table.Save(true));
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE"), QStringLiteral("0"));
    }

    static clsDINING_TABLE Model(const QString& number, const QString& label = QString()) {
        clsDINING_TABLE model;
        model.DINING_TABLE_NB = number;
        model.DINING_TABLE_NM = label;
        model.SEATS_NB = QStringLiteral("10");
        model.DINING_TABLE_TYPE_ID = QStringLiteral("3");
        return model;
    }
    static QString Refusal(const std::function<void()>& work) {
        try {
            work();
        } catch (const clsDbError& e) {
            return e.Message();
        }
        return {};
    }

    void numberCheck_data() {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("ownKey");
        QTest::addColumn<QString>("refusal");
        const QString inUse = QStringLiteral("Table number is already in use.");
        const QString notWhole =
            QStringLiteral("The table number must be a whole number from 1 up, such as 12.");
        QTest::newRow("free number") << "3"
                                     << ""
                                     << "";
        QTest::newRow("another table's number") << "5"
                                                << "" << inUse;
        QTest::newRow("its own number") << "5"
                                        << "1"
                                        << "";
        QTest::newRow("another's number while editing") << "5"
                                                        << "2" << inUse;
        QTest::newRow("blanks around a free number") << " 4 "
                                                     << ""
                                                     << "";
        QTest::newRow("letters") << "A1"
                                 << "" << notWhole;
        QTest::newRow("zero") << "0"
                              << "" << notWhole;
    }
    void numberCheck() {
        QFETCH(QString, number);
        QFETCH(QString, ownKey);
        QFETCH(QString, refusal);
        AddTable("5");
        AddTable("6");
        QCOMPARE(Refusal([&] { clsDINING_TABLE::CheckNumber(number, ownKey); }), refusal);
    }

    void addManyInRows_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("number");
        QTest::addColumn<int>("columnPixels");
        QTest::addColumn<int>("rowPixels");
        QTest::newRow("the first at the top left") << 13 << 0 << "3" << 0 << 0;
        QTest::newRow("the twelfth ends the first row") << 13 << 11 << "14" << 11 * 32 << 0;
        QTest::newRow("the thirteenth starts the second row") << 13 << 12 << "15" << 0 << 32;
        QTest::newRow("one table takes the typed number") << 1 << 0 << "9" << 0 << 0;
    }
    void addManyInRows() {
        QFETCH(int, count);
        QFETCH(int, index);
        QFETCH(QString, number);
        QFETCH(int, columnPixels);
        QFETCH(int, rowPixels);
        AddTable("2");
        const QStringList keys =
            clsDINING_TABLE::AddTables(count, Model(QStringLiteral("9"), QStringLiteral("Family")));
        QCOMPARE(keys.size(), count);
        clsDINING_TABLE table;
        QVERIFY(table.OpenRecord(keys.at(index)));
        QCOMPARE(table.DINING_TABLE_NB, number);
        QCOMPARE(table.POS_X, QString::number(columnPixels * 15));
        QCOMPARE(table.POS_Y, QString::number(rowPixels * 15));
        QCOMPARE(table.SEATS_NB, QStringLiteral("10"));
        QCOMPARE(table.DINING_TABLE_TYPE_ID, QStringLiteral("3"));
        QCOMPARE(table.DINING_TABLE_NM, count == 1 ? QStringLiteral("Family") : QString());
    }

    void aRefusedAddLeavesNoTable() {
        AddTable("4");
        QCOMPARE(Refusal([] { clsDINING_TABLE::AddTables(1, Model(QStringLiteral("4"))); }),
                 QStringLiteral("Table number is already in use."));
        TestDatabase::Exec("CREATE TRIGGER third_fails BEFORE INSERT ON DINING_TABLE "
                           "WHEN (SELECT COUNT(*) FROM DINING_TABLE) >= 3 "
                           "BEGIN SELECT RAISE(ABORT, 'disk full'); END");
        QCOMPARE(Refusal([] { clsDINING_TABLE::AddTables(5, Model(QString())); }),
                 QStringLiteral("disk full"));
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE"), QStringLiteral("1"));
    }

    void editRefusesAnotherTablesNumber() {
        AddTable("1");
        clsDINING_TABLE second = AddTable("2", "8", "Old");
        second.DINING_TABLE_NB = QStringLiteral("1");
        second.DINING_TABLE_NM = QStringLiteral("New");
        QCOMPARE(Refusal([&] { second.SaveEdited(); }), QStringLiteral("Table number is already in use."));
        QCOMPARE(TestDatabase::Scalar("SELECT DINING_TABLE_NM FROM DINING_TABLE WHERE DINING_TABLE_NB = 2"),
                 QStringLiteral("Old"));
        second.DINING_TABLE_NB = QStringLiteral(" 7 ");
        second.SaveEdited();
        QCOMPARE(TestDatabase::Scalar("SELECT DINING_TABLE_NM FROM DINING_TABLE WHERE DINING_TABLE_NB = 7"),
                 QStringLiteral("New"));
    }

    void swapExchangesGuestsAndLabels() {
        const clsDINING_TABLE first = AddTable("1", "8", "Family");
        const clsDINING_TABLE second = AddTable("2", "4", "");
        const clsDINING_TABLE third = AddTable("3");
        Seat(3, first.DINING_TABLE_ID);
        Seat(4, first.DINING_TABLE_ID);
        Seat(5, second.DINING_TABLE_ID);
        Seat(6, third.DINING_TABLE_ID);
        TestDatabase::Exec("INSERT INTO TENTCARD VALUES (1, 'Ann', 'A', ?)", {first.DINING_TABLE_ID});
        clsDINING_TABLE::SwapTables(first.DINING_TABLE_ID, second.DINING_TABLE_ID);
        QCOMPARE(TableOf(3), second.DINING_TABLE_ID);
        QCOMPARE(TableOf(4), second.DINING_TABLE_ID);
        QCOMPARE(TableOf(5), first.DINING_TABLE_ID);
        QCOMPARE(TableOf(6), third.DINING_TABLE_ID);
        QCOMPARE(TestDatabase::Scalar("SELECT DINING_TABLE_ID FROM TENTCARD"), second.DINING_TABLE_ID);
        QCOMPARE(
            TestDatabase::Scalar("SELECT GROUP_CONCAT(DINING_TABLE_NB || ':' || IFNULL(DINING_TABLE_NM, '') "
                                 "|| ':' || SEATS_NB, ' ') FROM (SELECT * FROM DINING_TABLE ORDER BY 1)"),
            QStringLiteral("1::8 2:Family:4 3::8"));
    }

    void shapePatchGivesOldTablesShapeOne() {
        AddTable("1");
        AddTable("2");
        TestDatabase::Exec("ALTER TABLE DINING_TABLE DROP COLUMN DINING_TABLE_TYPE_ID");
        QVERIFY(!clsDINING_TABLE::Patch_Field_Exists("DINING_TABLE_TYPE_ID"));
        QVERIFY(clsDINING_TABLE::Patch_Field_Exists("SEATS_NB"));
        QVERIFY(clsDINING_TABLE::Patch_6_Apply());
        QVERIFY(clsDINING_TABLE::Patch_Field_Exists("DINING_TABLE_TYPE_ID"));
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE WHERE DINING_TABLE_TYPE_ID = 1"),
                 QStringLiteral("2"));
        TestDatabase::Exec("UPDATE DINING_TABLE SET DINING_TABLE_TYPE_ID = 4");
        QVERIFY(!clsDINING_TABLE::Patch_6_Apply());
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE WHERE DINING_TABLE_TYPE_ID = 4"),
                 QStringLiteral("2"));
    }
};

QTEST_GUILESS_MAIN(tst_clsDINING_TABLE)
#include "tst_clsDINING_TABLE.moc"
