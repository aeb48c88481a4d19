#include "TestDatabase.h"
#include "core/RecordIO.h"
#include "core/clsDICT.h"

#include <QtTest>
#include <algorithm>
#include <memory>

class tst_clsDICT : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    QStringList Messages() const { return db->Messages().Prompts; }
    static QStringList Texts(const QList<clsDICT>& rows) {
        QStringList texts;
        for (const clsDICT& row : rows)
            texts << row.TX;
        return texts;
    }
    static QString Count(const QString& table) {
        return TestDatabase::Scalar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(table));
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void listsAlphabeticallyWhateverTheCase() {
        TestDatabase::Exec(
            "INSERT INTO PAID_BY_DICT (PAID_BY_ID, PAID_BY_TX) VALUES (6, 'aunt May'), (7, 'Zed')");
        const QStringList texts = Texts(clsDICT().OpenRecords(clsDICT::PaidBy));
        QCOMPARE(texts, QStringList({"aunt May", "Bride", "Bride and Groom", "Bride's Family", "Groom",
                                     "Groom's Family", "Zed"}));
    }

    void savesNewRowsAndEdits_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("extra"); // price of a meal
        QTest::addColumn<QString>("expectedID");
        QTest::addColumn<QString>("expectedExtra"); // price, or sort number of a songlist
        QTest::newRow("meal with price") << 1 << "Lamb"
                                         << "24.5"
                                         << "7"
                                         << "24.5";
        QTest::newRow("title") << 4 << "Capt."
                               << ""
                               << "13"
                               << "";
        QTest::newRow("task group starts at 0") << 7 << "Honeymoon"
                                                << ""
                                                << "11"
                                                << "";
        QTest::newRow("songlist gets next sort number") << 8 << "Cocktails"
                                                        << ""
                                                        << "3"
                                                        << "3";
    }
    void savesNewRowsAndEdits() {
        QFETCH(int, kind);
        QFETCH(QString, text);
        QFETCH(QString, extra);
        QFETCH(QString, expectedID);
        QFETCH(QString, expectedExtra);
        clsDICT row(kind);
        row.TX = text;
        row.PRICE_NB = extra;
        row.Save(true);
        QCOMPARE(row.ID, expectedID);

        clsDICT read(kind);
        QVERIFY(read.OpenRecord(expectedID));
        QCOMPARE(read.TX, text);
        if (kind == clsDICT::Meal)
            QCOMPARE(read.PRICE_NB, expectedExtra);
        if (kind == clsDICT::Songlist) {
            QCOMPARE(row.SORT_ORDER_NB, expectedExtra);
            QCOMPARE(read.SORT_ORDER_NB, expectedExtra);
        }

        read.TX = text + QStringLiteral(" (changed)");
        if (kind == clsDICT::Meal)
            read.PRICE_NB = QStringLiteral("30");
        read.Save(false);
        clsDICT again(kind);
        QVERIFY(again.OpenRecord(expectedID));
        QCOMPARE(again.TX, text + QStringLiteral(" (changed)"));
        if (kind == clsDICT::Meal)
            QCOMPARE(again.PRICE_NB, QStringLiteral("30"));
        QVERIFY(Messages().isEmpty());
    }

    void firstSonglistOfAnEmptyTableIsOneAndOne() {
        TestDatabase::Exec("DELETE FROM SONGLIST_DICT");
        clsDICT row(clsDICT::Songlist);
        row.TX = QStringLiteral("Cake cutting");
        row.Save(true);
        QCOMPARE(row.ID, QStringLiteral("1"));
        QCOMPARE(row.SORT_ORDER_NB, QStringLiteral("1"));
    }

    void reorderingSonglistsWritesTheirPositions() {
        clsDICT dict;
        QList<clsDICT> lists = dict.OpenRecords(clsDICT::Songlist);
        std::reverse(lists.begin(), lists.end());
        for (int i = 0; i < lists.size(); ++i) {
            lists[i].SORT_ORDER_NB = QString::number(i + 1);
            lists[i].Save(false);
        }
        QCOMPARE(Texts(dict.OpenRecords(clsDICT::Songlist)), QStringList({"Reception", "Ceremony"}));
    }

    void refusesDuplicatesOfUniqueTexts_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::newRow("title in other case") << 4 << "MRS.";
        QTest::newRow("budget category") << 0 << "Music";
    }
    void refusesDuplicatesOfUniqueTexts() {
        QFETCH(int, kind);
        QFETCH(QString, text);
        const QString table = clsDICT::DICT_NAME_ByEnum(kind);
        const QString before = Count(table);

        clsDICT added(kind);
        added.TX = text;
        QVERIFY(!RecordIO::Attempt([&] { added.Save(true); }));
        QCOMPARE(Messages(), QStringList({"Duplicate value.  Ensure that entry is unique."}));
        QCOMPARE(Count(table), before);

        // Renaming another row to the taken text is refused the same way and leaves the row as it was.
        clsDICT other(kind);
        QVERIFY(other.OpenRecord("2"));
        const QString oldText = other.TX;
        other.TX = text;
        QVERIFY(!RecordIO::Attempt([&] { other.Save(false); }));
        QCOMPARE(Messages().size(), 2);
        QCOMPARE(Messages().last(), QStringLiteral("Duplicate value.  Ensure that entry is unique."));
        clsDICT reread(kind);
        QVERIFY(reread.OpenRecord("2"));
        QCOMPARE(reread.TX, oldText);
    }

    void refusesDeletingRowsInUse_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("use");
        QTest::addColumn<QString>("message");
        QTest::newRow("meal chosen by a contact")
            << 1 << "UPDATE CONTACT SET MEAL_ID = 3 WHERE CONTACT_ID = 2"
            << "Unable to delete.  Contacts are associated with this entry.";
        QTest::newRow("role of a contact")
            << 3 << "INSERT INTO CONTACT (CONTACT_ID, LAST_NM, ROLE_ID) VALUES (3, 'Best', 3)"
            << "Unable to delete.  Contacts are associated with this entry.";
        QTest::newRow("songlist with songs") << 8
                                             << "INSERT INTO SONG (SONG_ID, SONG_FILE_PATH_TX, "
                                                "SORT_ORDER_NB, SONGLIST_ID) VALUES (1, '/a.mp3', 1, 3)"
                                             << "Unable to delete.  Songs are associated with this songlist.";
        QTest::newRow("payer of a budget line")
            << 2
            << "INSERT INTO BUDGET (BUDGET_ID, DUE_DT, ITEM_NM, PAID_BY_ID) VALUES (1, '2027-06-05', 'Cake', "
               "3)"
            << "Unable to delete.  Budget entries are associated with this entry.";
        QTest::newRow("budget category of a budget line")
            << 0
            << "INSERT INTO BUDGET (BUDGET_ID, DUE_DT, ITEM_NM, BUDGET_CATEGORY_ID) VALUES (1, '2027-06-05', "
               "'Cake', 3)"
            << "Unable to delete.  Budget entries are associated with this entry.";
        QTest::newRow("vendor category of a vendor")
            << 10 << "INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM, VENDOR_CATEGORY_ID) VALUES (1, 'Bakery', 3)"
            << "The record cannot be deleted or changed because table 'VENDOR' includes related records.";
    }
    void refusesDeletingRowsInUse() {
        QFETCH(int, kind);
        QFETCH(QString, use);
        QFETCH(QString, message);
        if (kind == clsDICT::Songlist) {
            clsDICT extra(kind);
            extra.TX = QStringLiteral("Dances");
            extra.Save(true);
            QCOMPARE(extra.ID, QStringLiteral("3"));
        }
        TestDatabase::Exec(use);
        const QString table = clsDICT::DICT_NAME_ByEnum(kind);
        const QString before = Count(table);
        clsDICT dict(kind);
        QVERIFY(!RecordIO::Attempt([&] { dict.Delete("3"); }));
        QCOMPARE(Messages(), QStringList({message}));
        QCOMPARE(Count(table), before);
        QVERIFY(dict.OpenRecord("3"));
    }

    void deletesRowsNotInUse() {
        clsDICT dict(clsDICT::Meal);
        dict.Delete("5");
        QCOMPARE(dict.ID, QStringLiteral("5"));
        QCOMPARE(clsDICT::GetTotal(clsDICT::Meal), 5L);
        QVERIFY(Messages().isEmpty());
        // The key of the highest row comes back after it is deleted.
        dict.Delete("6");
        clsDICT added(clsDICT::Meal);
        added.TX = QStringLiteral("Pasta");
        added.PRICE_NB = QStringLiteral("0");
        added.Save(true);
        QCOMPARE(added.ID, QStringLiteral("5"));
    }

    void brideAndGroomRolesAreNeverDeleted_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("deletable");
        QTest::newRow("role 1") << 3 << "1" << false;
        QTest::newRow("role 3") << 3 << "3" << true;
        QTest::newRow("title 1") << 4 << "1" << true;
        QTest::newRow("group 5 is no dictionary") << 5 << "1" << false;
    }
    void brideAndGroomRolesAreNeverDeleted() {
        QFETCH(int, kind);
        QFETCH(QString, key);
        QFETCH(bool, deletable);
        QCOMPARE(clsDICT::CanDelete(kind, key), deletable);
        if (kind != clsDICT::Role)
            return;
        // Even with nobody holding the role any more, rows 1 and 2 stay.
        TestDatabase::Exec("UPDATE CONTACT SET ROLE_ID = NULL");
        clsDICT dict(kind);
        if (deletable)
            dict.Delete(key);
        else
            QVERIFY_THROWS_EXCEPTION(clsDbError, dict.Delete(key));
        clsDICT reread(kind);
        QCOMPARE(reread.OpenRecord(key), !deletable);
    }

    void brideAndGroomRolesCanBeRenamed() {
        clsDICT role(clsDICT::Role);
        QVERIFY(role.OpenRecord("1"));
        QCOMPARE(role.TX, QStringLiteral("Bride"));
        role.TX = QStringLiteral("Partner");
        role.Save(false);
        QCOMPARE(TestDatabase::Scalar("SELECT ROLE_TX FROM ROLE_DICT WHERE ROLE_ID = 1"),
                 QStringLiteral("Partner"));
    }

    void kindsWithoutTableFailInTheEngine_data() {
        QTest::addColumn<int>("kind");
        QTest::newRow("5") << 5;
        QTest::newRow("42") << 42;
    }
    void kindsWithoutTableFailInTheEngine() {
        QFETCH(int, kind);
        QCOMPARE(clsDICT::DICT_NAME_ByEnum(kind), QString());
        QVERIFY_THROWS_EXCEPTION(clsDbError, clsDICT().OpenRecords(kind));
        QVERIFY_THROWS_EXCEPTION(clsDbError, clsDICT::GetTotal(kind));
        clsDICT row(kind);
        row.TX = QStringLiteral("x");
        QVERIFY_THROWS_EXCEPTION(clsDbError, row.Save(true));
        QVERIFY(Messages().isEmpty());
    }
    void recreatedTitlesKeepTheirUniqueIndex() {
        TestDatabase::Exec("DROP TABLE TITLE_DICT");
        QVERIFY(clsDICT::CreateTable_TITLE_DICT());
        clsDICT title(clsDICT::Title);
        title.TX = QStringLiteral("dr.");
        QVERIFY(!RecordIO::Attempt([&] { title.Save(true); }));
        QCOMPARE(Messages(), QStringList({"Duplicate value.  Ensure that entry is unique."}));
    }

    // A list saved row by row is all or nothing, and its failure is shown once, by whoever asked.
    void aSortOrderWhoseThirdRowFailsWritesNothing() {
        for (const char* name : {"Dinner", "First Dance"}) {
            clsDICT songlist(clsDICT::Songlist);
            songlist.TX = QString::fromLatin1(name);
            songlist.Save(true);
        }
        QList<clsDICT> rows = clsDICT().OpenRecords(clsDICT::Songlist);
        QCOMPARE(rows.size(), 4);
        std::reverse(rows.begin(), rows.end());
        const QString order =
            QStringLiteral("SELECT group_concat(SONGLIST_ID || ':' || SORT_ORDER_NB, ' ') FROM "
                           "(SELECT * FROM SONGLIST_DICT ORDER BY SONGLIST_ID)");
        const QString before = TestDatabase::Scalar(order);
        TestDatabase::Exec(
            QStringLiteral("CREATE TRIGGER forced_failure BEFORE UPDATE ON SONGLIST_DICT WHEN "
                           "OLD.SONGLIST_ID = %1 BEGIN SELECT RAISE(ABORT, 'forced failure'); END")
                .arg(rows[2].ID));
        QVERIFY_THROWS_EXCEPTION(clsDbError, clsDICT::SaveSortOrder(rows));
        QCOMPARE(TestDatabase::Scalar(order), before);
        QVERIFY(Messages().isEmpty());
        QVERIFY(!RecordIO::Attempt([&rows] { clsDICT::SaveSortOrder(rows); }));
        QCOMPARE(TestDatabase::Scalar(order), before);
        QCOMPARE(Messages(), QStringList{QStringLiteral("forced failure")});
    }
};

QTEST_GUILESS_MAIN(tst_clsDICT)
#include "tst_clsDICT.moc"
