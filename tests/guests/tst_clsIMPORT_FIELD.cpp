#include "TestDatabase.h"
#include "guests/clsIMPORT_FIELD.h"

#include <QtTest>
#include <memory>

class tst_clsIMPORT_FIELD : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    // One row per column of a file header, as the import's first step saves them.
    static void LoadHeader(const QStringList& columns) {
        clsIMPORT_FIELD::Delete();
        for (const QString& column : columns) {
            clsIMPORT_FIELD field;
            field.IMPORT_FIELD_NM = column;
            field.MAP_IMPORT_FIELD_NM = clsIMPORT_FIELD::SuggestMAP_IMPORT_FIELD_NM(column);
            field.Save(true);
        }
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void suggestions_data() {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("field");
        QTest::newRow("zip code") << "Zip Code"
                                  << "ZIP_TX";
        QTest::newRow("zipcode is no alias") << "ZIPCODE"
                                             << "";
        QTest::newRow("lower case") << "first name"
                                    << "FIRST_NM";
        QTest::newRow("blank around is no match") << " Last"
                                                  << "";
        QTest::newRow("unknown") << "Birthday"
                                 << "";
        QTest::newRow("empty") << ""
                               << "";
    }
    void suggestions() {
        QFETCH(QString, column);
        QFETCH(QString, field);
        QCOMPARE(clsIMPORT_FIELD::SuggestMAP_IMPORT_FIELD_NM(column), field);
    }

    void mappingFollowsTheFileOrder() {
        LoadHeader({"Last", "First", "Birthday", "Zip Code"});
        const QList<clsIMPORT_FIELD> all = clsIMPORT_FIELD::OpenRecords(false);
        QCOMPARE(all.size(), 4);
        QCOMPARE(all[2].IMPORT_FIELD_NM, QStringLiteral("Birthday"));
        QCOMPARE(all[2].MAP_IMPORT_FIELD_NM, QString());
        QCOMPARE(all[2].ArrayIndex, 2);

        const QList<clsIMPORT_FIELD> mapped = clsIMPORT_FIELD::OpenRecords(true);
        QCOMPARE(mapped.size(), 3);
        QCOMPARE(mapped.last().MAP_IMPORT_FIELD_NM, QStringLiteral("ZIP_TX"));
        QCOMPARE(mapped.last().ArrayIndex, 3);

        QCOMPARE(clsIMPORT_FIELD::GetIMPORT_FIELD_NM("FIRST_NM"), QStringLiteral("First"));
        QCOMPARE(clsIMPORT_FIELD::GetIMPORT_FIELD_NM("EMAIL_TX"), QString());
    }

    void aFieldIsMappedAtMostOnce() {
        LoadHeader({"Phone", "Day Phone", "Home Phone"});
        // All three suggest PHONE_TX; the import frees the target before it maps a column to it.
        QCOMPARE(
            TestDatabase::Scalar("SELECT COUNT(*) FROM IMPORT_FIELD WHERE MAP_IMPORT_FIELD_NM = 'PHONE_TX'"),
            QStringLiteral("3"));
        clsIMPORT_FIELD::UpdateMAP_IMPORT_FIELD_NM_ToNull("PHONE_TX");
        clsIMPORT_FIELD chosen;
        QVERIFY(chosen.OpenRecord("2"));
        QCOMPARE(chosen.ArrayIndex, 1);
        chosen.MAP_IMPORT_FIELD_NM = QStringLiteral("PHONE_TX");
        chosen.Save(false);
        QCOMPARE(clsIMPORT_FIELD::OpenRecords(true).size(), 1);
        QCOMPARE(clsIMPORT_FIELD::GetIMPORT_FIELD_NM("PHONE_TX"), QStringLiteral("Day Phone"));
    }

    void aNewFileStartsAfresh() {
        LoadHeader({"Title", "First", "Last"});
        LoadHeader({"Email"});
        const QList<clsIMPORT_FIELD> all = clsIMPORT_FIELD::OpenRecords(false);
        QCOMPARE(all.size(), 1);
        QCOMPARE(all.first().IMPORT_FIELD_ID, QStringLiteral("1"));
        QCOMPARE(all.first().ArrayIndex, 0);
        QCOMPARE(clsIMPORT_FIELD::GetIMPORT_FIELD_NM("TITLE_TX"), QString());
    }
};

QTEST_GUILESS_MAIN(tst_clsIMPORT_FIELD)
#include "tst_clsIMPORT_FIELD.moc"
