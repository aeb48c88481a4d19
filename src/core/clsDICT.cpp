#include "core/clsDICT.h"

#include "core/RecordIO.h"
#include "core/clsDB.h"
#include "core/modSchema.h"

namespace {

struct KindColumns {
    int Kind;
    const char* Table;
    const char* Key;
    const char* Text;
};

constexpr KindColumns kKinds[] = {
    {clsDICT::BudgetCategory, "BUDGET_CATEGORY_DICT", "BUDGET_CATEGORY_ID", "BUDGET_CATEGORY_TX"},
    {clsDICT::Meal, "MEAL_DICT", "MEAL_ID", "MEAL_TX"},
    {clsDICT::PaidBy, "PAID_BY_DICT", "PAID_BY_ID", "PAID_BY_TX"},
    {clsDICT::Role, "ROLE_DICT", "ROLE_ID", "ROLE_TX"},
    {clsDICT::Title, "TITLE_DICT", "TITLE_ID", "TITLE_TX"},
    {clsDICT::TaskGroup, "TASK_GROUP_DICT", "TASK_GROUP_ID", "TASK_GROUP_TX"},
    {clsDICT::Songlist, "SONGLIST_DICT", "SONGLIST_ID", "SONGLIST_TX"},
    {clsDICT::VendorCategory, "VENDOR_CATEGORY_DICT", "VENDOR_CATEGORY_ID", "VENDOR_CATEGORY_TX"},
};

const KindColumns* Find(int kind) {
    for (const auto& k : kKinds) {
        if (k.Kind == kind)
            return &k;
    }
    return nullptr;
}

void FillFrom(clsDICT& record, const clsRecordset& rs, int row) {
    record.ID = rs.Value(row, record.DICT_ID());
    record.TX = rs.Value(row, record.DICT_TX());
    if (record.DICT_TYPE == clsDICT::Songlist)
        record.SORT_ORDER_NB = rs.Value(row, QStringLiteral("SORT_ORDER_NB"));
    if (record.DICT_TYPE == clsDICT::Meal)
        record.PRICE_NB = rs.Value(row, QStringLiteral("PRICE_NB"));
}

} // namespace

QString clsDICT::DICT_NAME_ByEnum(int kind) {
    const KindColumns* k = Find(kind);
    return k ? QString::fromLatin1(k->Table) : QString();
}

QString clsDICT::DICT_ID_ByEnum(int kind) {
    const KindColumns* k = Find(kind);
    return k ? QString::fromLatin1(k->Key) : QString();
}

QString clsDICT::DICT_TX_ByEnum(int kind) {
    const KindColumns* k = Find(kind);
    return k ? QString::fromLatin1(k->Text) : QString();
}

bool clsDICT::IsDictionary(int kind) {
    return Find(kind) != nullptr;
}

bool clsDICT::CanDelete(int kind, const QString& key) {
    if (!IsDictionary(kind))
        return false;
    const QString id = key.trimmed();
    return !(kind == Role && (id == QLatin1String("1") || id == QLatin1String("2")));
}

// ---- Schema ----

bool clsDICT::CreateAndSeed(const QString& table) {
    clsTransaction tx(gDB());
    if (!modSchema::CreateTableIfMissing(gDB(), table))
        return false;
    modSchema::SeedTable(gDB(), table);
    tx.Commit();
    return true;
}

bool clsDICT::CreateTable_PAID_BY_DICT() {
    return CreateAndSeed(QStringLiteral("PAID_BY_DICT"));
}
bool clsDICT::CreateTable_SONGLIST_DICT() {
    return CreateAndSeed(QStringLiteral("SONGLIST_DICT"));
}
bool clsDICT::CreateTable_TITLE_DICT() {
    return CreateAndSeed(QStringLiteral("TITLE_DICT"));
}
bool clsDICT::CreateTable_VENDOR_CATEGORY_DICT() {
    return CreateAndSeed(QStringLiteral("VENDOR_CATEGORY_DICT"));
}

bool clsDICT::Patch_MEAL_DICT_Add_PRICE_NB() {
    if (gDB().FieldExists(QStringLiteral("MEAL_DICT"), QStringLiteral("PRICE_NB")))
        return false;
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("ALTER TABLE MEAL_DICT ADD COLUMN PRICE_NB REAL"));
    gDB().Execute(QStringLiteral("UPDATE MEAL_DICT SET PRICE_NB = 0"));
    tx.Commit();
    return true;
}

// ---- Records ----

void clsDICT::Delete(const QString& key) {
    ID = key;
    if (DICT_TYPE == Role && !CanDelete(DICT_TYPE, key))
        throw clsDbError(
            QStringLiteral("The roles of the bride and the groom can be renamed, but not deleted."), 0);
    RecordIO::Delete(DICT_NAME(), DICT_ID(), key);
}

long clsDICT::GetTotal(int kind) {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) AS CNT FROM %1").arg(DICT_NAME_ByEnum(kind)));
}

bool clsDICT::OpenRecord(const QString& key) {
    if (key.isEmpty())
        return false;
    const clsRecordset rs =
        gDB().Execute(QStringLiteral("SELECT * FROM %1 WHERE %2 = ?").arg(DICT_NAME(), DICT_ID()), {key});
    if (rs.IsEmpty())
        return false;
    FillFrom(*this, rs, 0);
    return true;
}

QList<clsDICT> clsDICT::OpenRecords(int kind) {
    DICT_TYPE = kind;
    // Songlists keep the order the couple gave them; every other list is alphabetical, whatever the case.
    const QString order = kind == Songlist ? QStringLiteral("SORT_ORDER_NB")
                                           : DICT_TX() + QStringLiteral(" COLLATE NOCASE, ") + DICT_ID();
    const clsRecordset rs =
        gDB().Execute(QStringLiteral("SELECT * FROM %1 ORDER BY %2").arg(DICT_NAME(), order));
    QList<clsDICT> records;
    records.reserve(rs.RowCount());
    for (int row = 0; row < rs.RowCount(); ++row) {
        clsDICT record(kind);
        FillFrom(record, rs, row);
        records.append(record);
    }
    return records;
}

void clsDICT::Save(bool insert) {
    const QString table = DICT_NAME();
    const QString key = DICT_ID();
    const QString text = DICT_TX();
    QString extraColumn;
    QString extraValue;
    if (DICT_TYPE == Songlist) {
        extraColumn = QStringLiteral("SORT_ORDER_NB");
        extraValue = SORT_ORDER_NB;
    } else if (DICT_TYPE == Meal) {
        extraColumn = QStringLiteral("PRICE_NB");
        extraValue = PRICE_NB;
    }
    if (insert) {
        const QString newID = RecordIO::NextID(table, key);
        if (DICT_TYPE == Songlist)
            extraValue = RecordIO::NextID(table, QStringLiteral("SORT_ORDER_NB"));
        QString columns = key + QStringLiteral(", ") + text;
        QString marks = QStringLiteral("?, ?");
        QVariantList values{newID, TX};
        if (!extraColumn.isEmpty()) {
            columns += QStringLiteral(", ") + extraColumn;
            marks += QStringLiteral(", ?");
            values << extraValue;
        }
        gDB().Execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns, marks), values);
        ID = newID;
        if (DICT_TYPE == Songlist)
            SORT_ORDER_NB = extraValue;
        return;
    }
    QString sets = text + QStringLiteral(" = ?");
    QVariantList values{TX};
    if (!extraColumn.isEmpty()) {
        sets += QStringLiteral(", ") + extraColumn + QStringLiteral(" = ?");
        values << extraValue;
    }
    values << ID;
    gDB().Execute(QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?").arg(table, sets, key), values);
}

void clsDICT::SaveSortOrder(QList<clsDICT> rows) {
    clsTransaction tx(gDB());
    for (int i = 0; i < rows.size(); ++i) {
        rows[i].SORT_ORDER_NB = QString::number(i + 1);
        rows[i].Save(false);
    }
    tx.Commit();
}
