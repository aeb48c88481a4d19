#include "PlanningTestTools.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsGIFT.h"
#include "planning/clsNOTEBOOK.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "planning/clsVENDOR.h"

#include <QtTest>
#include <functional>
#include <memory>

// What every planning record shares: texts come back exactly as typed, and a new key is the highest
// key + 1, so the key of a deleted last row is given out again.
namespace {

struct Kind {
    // Adds a row whose text columns all hold the text; gives its key ("" when the save failed).
    std::function<QString(const QString& text)> Add;
    // The text columns of the row, read back through the record class.
    std::function<QStringList(const QString& key)> Read;
    std::function<void(const QString& key)> Remove;
};

template <class T> QString Saved(T record, QString T::*key) {
    record.Save(true);
    return record.*key;
}

template <class T> T Opened(const QString& key) {
    T record;
    record.OpenRecord(key);
    return record;
}

const QMap<QString, Kind>& Kinds() {
    static const QMap<QString, Kind> kinds = {
        {"EVENT",
         {[](const QString& text) {
              clsEVENT r;
              r.EVENT_TX = r.ADDRESS_TX = r.WEB_SITE_TX = r.NOTES_TX = text;
              r.EVENT_DT = QStringLiteral("01-Jan-2027 9:00 AM");
              return Saved(r, &clsEVENT::EVENT_ID);
          },
          [](const QString& key) {
              const auto r = Opened<clsEVENT>(key);
              return QStringList{r.EVENT_TX, r.ADDRESS_TX, r.WEB_SITE_TX, r.NOTES_TX};
          },
          [](const QString& key) { return clsEVENT().Delete(key); }}},
        {"TASK",
         {[](const QString& text) {
              clsTASK r;
              r.TASK_NM = r.NOTES_TX = text;
              r.TASK_GROUP_ID = QStringLiteral("1");
              r.COMPLETED_FG = QStringLiteral("N");
              return Saved(r, &clsTASK::TASK_ID);
          },
          [](const QString& key) {
              const auto r = Opened<clsTASK>(key);
              return QStringList{r.TASK_NM, r.NOTES_TX};
          },
          [](const QString& key) { return clsTASK().Delete(key); }}},
        {"BUDGET",
         {[](const QString& text) {
              clsBUDGET r;
              r.ITEM_NM = r.NOTES_TX = text;
              r.ACTUAL_AMOUNT_NB = QStringLiteral("12.5");
              r.DUE_DT = QStringLiteral("01-Jun-2027");
              r.BUDGET_CATEGORY_ID = QStringLiteral("1");
              r.PAID_BY_ID = QStringLiteral("4");
              return Saved(r, &clsBUDGET::BUDGET_ID);
          },
          [](const QString& key) {
              const auto r = Opened<clsBUDGET>(key);
              return QStringList{r.ITEM_NM, r.NOTES_TX};
          },
          [](const QString& key) { return clsBUDGET().Delete(key); }}},
        {"BUDGET_CATEGORY_DICT",
         {[](const QString& text) {
              clsBUDGET_CATEGORY_DICT r;
              r.BUDGET_CATEGORY_TX = text;
              return Saved(r, &clsBUDGET_CATEGORY_DICT::BUDGET_CATEGORY_ID);
          },
          [](const QString& key) {
              return QStringList{Opened<clsBUDGET_CATEGORY_DICT>(key).BUDGET_CATEGORY_TX};
          },
          [](const QString& key) { return clsBUDGET_CATEGORY_DICT().Delete(key); }}},
        {"VENDOR",
         {[](const QString& text) {
              clsVENDOR r;
              r.VENDOR_NM = r.ADDRESS_TX = r.CONTACT_NM = r.NOTES_TX = text;
              r.VENDOR_CATEGORY_ID = QStringLiteral("13");
              return Saved(r, &clsVENDOR::VENDOR_ID);
          },
          [](const QString& key) {
              const auto r = Opened<clsVENDOR>(key);
              return QStringList{r.VENDOR_NM, r.ADDRESS_TX, r.CONTACT_NM, r.NOTES_TX};
          },
          [](const QString& key) { return clsVENDOR().Delete(key); }}},
        {"TIMELINE",
         {[](const QString& text) {
              clsTIMELINE r;
              r.TIMELINE_DESC = r.CONTACT_NM = r.NOTES_TX = text;
              r.EVENT_ID = QStringLiteral("1");
              r.TIMELINE_START_DT = QStringLiteral("05-Jun-2027 3:00 PM");
              r.TIMELINE_END_DT = QStringLiteral("05-Jun-2027 3:30 PM");
              return Saved(r, &clsTIMELINE::TIMELINE_ID);
          },
          [](const QString& key) {
              const auto r = Opened<clsTIMELINE>(key);
              return QStringList{r.TIMELINE_DESC, r.CONTACT_NM, r.NOTES_TX};
          },
          [](const QString& key) { return clsTIMELINE().Delete(key); }}},
        {"GIFT",
         {[](const QString& text) {
              clsGIFT r;
              r.GIFT_TX = r.NOTES_TX = text;
              r.EVENT_ID = QStringLiteral("1");
              r.THANK_YOU_SENT_FG = QStringLiteral("N");
              return Saved(r, &clsGIFT::GIFT_ID);
          },
          [](const QString& key) {
              const auto r = Opened<clsGIFT>(key);
              return QStringList{r.GIFT_TX, r.NOTES_TX};
          },
          [](const QString& key) { return clsGIFT().Delete(key); }}},
        {"NOTEBOOK",
         {[](const QString& text) {
              clsNOTEBOOK r;
              r.SUBJECT_TX = r.NOTES_TX = text;
              r.NOTEBOOK_DT = QStringLiteral("05-Jun-2027 10:00 AM");
              return Saved(r, &clsNOTEBOOK::NOTEBOOK_ID);
          },
          [](const QString& key) {
              const auto r = Opened<clsNOTEBOOK>(key);
              return QStringList{r.SUBJECT_TX, r.NOTES_TX};
          },
          [](const QString& key) { return clsNOTEBOOK().Delete(key); }}},
    };
    return kinds;
}

} // namespace

class tst_planningRecords : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void textIsStoredExactly_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("text");
        const QList<QPair<const char*, QString>> texts = {
            {"single quotes", QStringLiteral("O'Brien's 'best' cake")},
            {"emoji", QStringLiteral("Cake 🎂 and rings 💍👰🏽")},
            {"SQL-looking", QStringLiteral("x'); DROP TABLE EVENT; --")},
            {"line breaks", QStringLiteral("line one\r\nline two\r\n")},
        };
        for (const QString& kind : Kinds().keys())
            for (const auto& [name, text] : texts)
                QTest::addRow("%s, %s", qPrintable(kind), name) << kind << text;
    }
    void textIsStoredExactly() {
        QFETCH(QString, kind);
        QFETCH(QString, text);
        const QString key = Kinds()[kind].Add(text);
        QVERIFY(!key.isEmpty());
        const QStringList read = Kinds()[kind].Read(key);
        for (const QString& value : read)
            QCOMPARE(value, text);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void keysAreReused_data() {
        QTest::addColumn<QString>("kind");
        for (const QString& kind : Kinds().keys())
            QTest::newRow(qPrintable(kind)) << kind;
    }
    void keysAreReused() {
        QFETCH(QString, kind);
        const Kind& k = Kinds()[kind];
        const QString first = k.Add(QStringLiteral("a"));
        QVERIFY(!first.isEmpty());
        const QString second = k.Add(QStringLiteral("b"));
        const QString third = k.Add(QStringLiteral("c"));
        QCOMPARE(second.toInt(), first.toInt() + 1);
        QCOMPARE(third.toInt(), first.toInt() + 2);
        // The last row's key is given out again; a gap below it is not filled.
        k.Remove(third);
        QCOMPARE(k.Add(QStringLiteral("d")), third);
        k.Remove(second);
        QCOMPARE(k.Add(QStringLiteral("e")).toInt(), third.toInt() + 1);
        QCOMPARE(k.Read(first).first(), QStringLiteral("a"));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_planningRecords)
#include "tst_planningRecords.moc"
