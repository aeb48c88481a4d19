#include "planning/clsBUDGET_CATEGORY_DICT.h"

#include "core/modSchema.h"

namespace {

// An amount column in whole cents, for the database to sum exactly.
QString Cents(const char* column) {
    return QStringLiteral("CAST(round(%1 * 100) AS INTEGER)").arg(QLatin1String(column));
}

// The sum of the amounts of the expenses that the condition picks, in cents; nothing to sum is 0.
clsMoney Sum(const QString& condition, const QVariantList& values = {}) {
    const QString sql = QStringLiteral("SELECT SUM(") + Cents("ACTUAL_AMOUNT_NB") +
                        QStringLiteral(") FROM BUDGET") + condition;
    return clsMoney::FromCents(gDB().Execute(sql, values).Scalar().toLongLong());
}

// " WHERE condition", with " AND BUDGET_CATEGORY_ID = ?" for one category.
clsMoney SumOfCategory(const QString& condition, const QString& categoryId) {
    QString where = condition;
    QVariantList values;
    if (!categoryId.isEmpty()) {
        where += (where.isEmpty() ? QStringLiteral(" WHERE ") : QStringLiteral(" AND ")) +
                 QStringLiteral("BUDGET_CATEGORY_ID = ?");
        values << categoryId;
    }
    return Sum(where, values);
}

} // namespace

const RecordTable<clsBUDGET_CATEGORY_DICT>& clsBUDGET_CATEGORY_DICT::Table() {
    static const RecordTable<clsBUDGET_CATEGORY_DICT> table{
        "BUDGET_CATEGORY_DICT",
        "BUDGET_CATEGORY_ID",
        {{"BUDGET_CATEGORY_ID", &clsBUDGET_CATEGORY_DICT::BUDGET_CATEGORY_ID},
         {"BUDGET_CATEGORY_TX", &clsBUDGET_CATEGORY_DICT::BUDGET_CATEGORY_TX},
         {"ESTIMATE_AMOUNT_NB", &clsBUDGET_CATEGORY_DICT::ESTIMATE_AMOUNT_NB}}};
    return table;
}

clsBudgetCategorySums clsBudgetCategorySums::WholeBudget(const QString& id, const QString& caption) {
    return {id, caption, clsBUDGET_CATEGORY_DICT::TotalSumEstimates(), clsBUDGET_CATEGORY_DICT::TotalSumDue(),
            clsBUDGET_CATEGORY_DICT::TotalSumPaid()};
}

void clsBUDGET_CATEGORY_DICT::CreateTable() {
    clsTransaction tx(gDB());
    if (modSchema::CreateTableIfMissing(gDB(), QStringLiteral("BUDGET_CATEGORY_DICT")))
        modSchema::SeedTable(gDB(), QStringLiteral("BUDGET_CATEGORY_DICT"));
    tx.Commit();
}

void clsBUDGET_CATEGORY_DICT::Delete(const QString& categoryId) {
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("DELETE FROM BUDGET WHERE BUDGET_CATEGORY_ID = ?"), {categoryId});
    gDB().Execute(QStringLiteral("DELETE FROM BUDGET_CATEGORY_DICT WHERE BUDGET_CATEGORY_ID = ?"),
                  {categoryId});
    tx.Commit();
}

double clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT(clsMoney estimate, clsMoney total) {
    return clsMoney::Share(estimate, total);
}

bool clsBUDGET_CATEGORY_DICT::OpenRecord(const QString& categoryId) {
    return RecordIO::OpenRecord(*this, Table(), categoryId);
}

QList<clsBUDGET_CATEGORY_DICT> clsBUDGET_CATEGORY_DICT::OpenRecords() const {
    return RecordIO::ReadAll(
        Table(),
        QStringLiteral("SELECT * FROM BUDGET_CATEGORY_DICT ORDER BY BUDGET_CATEGORY_TX COLLATE NOCASE"));
}

QList<clsBudgetCategorySums> clsBUDGET_CATEGORY_DICT::OpenSums() {
    const clsRecordset rs = gDB().Execute(
        QStringLiteral("SELECT C.BUDGET_CATEGORY_ID, C.BUDGET_CATEGORY_TX, ") +
        Cents("C.ESTIMATE_AMOUNT_NB") + QStringLiteral(", SUM(CASE WHEN B.PAID_DT IS NULL THEN ") +
        Cents("B.ACTUAL_AMOUNT_NB") + QStringLiteral(" END), SUM(CASE WHEN B.PAID_DT IS NOT NULL THEN ") +
        Cents("B.ACTUAL_AMOUNT_NB") +
        QStringLiteral(" END) FROM BUDGET_CATEGORY_DICT AS C LEFT JOIN BUDGET AS B ON "
                       "B.BUDGET_CATEGORY_ID = C.BUDGET_CATEGORY_ID GROUP BY C.BUDGET_CATEGORY_ID "
                       "ORDER BY C.BUDGET_CATEGORY_TX COLLATE NOCASE"));
    QList<clsBudgetCategorySums> sums;
    sums.reserve(rs.RowCount());
    for (int row = 0; row < rs.RowCount(); ++row) {
        const auto cents = [&](int column) {
            return clsMoney::FromCents(rs.Value(row, column).toLongLong());
        };
        sums.append({rs.Value(row, 0), rs.Value(row, 1), cents(2), cents(3), cents(4)});
    }
    return sums;
}

void clsBUDGET_CATEGORY_DICT::SaveEstimates(const QMap<QString, clsMoney>& estimates) {
    clsTransaction tx(gDB());
    for (auto estimate = estimates.cbegin(); estimate != estimates.cend(); ++estimate)
        gDB().Execute(
            QStringLiteral(
                "UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = ? WHERE BUDGET_CATEGORY_ID = ?"),
            {estimate.value().Stored(), estimate.key()});
    tx.Commit();
}

void clsBUDGET_CATEGORY_DICT::Save(bool isNew, bool assignNewKey) {
    RecordIO::Save(*this, Table(), isNew, assignNewKey);
}

long clsBUDGET_CATEGORY_DICT::Total() const {
    return RecordIO::Count(QStringLiteral(
        "SELECT Count(BUDGET_CATEGORY_DICT.BUDGET_CATEGORY_ID) AS CNT FROM BUDGET_CATEGORY_DICT"));
}

clsMoney clsBUDGET_CATEGORY_DICT::TotalSumActual(const QString& categoryId) {
    return SumOfCategory(QString(), categoryId);
}

clsMoney clsBUDGET_CATEGORY_DICT::TotalSumDue(const QString& categoryId) {
    return SumOfCategory(QStringLiteral(" WHERE PAID_DT IS NULL"), categoryId);
}

clsMoney clsBUDGET_CATEGORY_DICT::TotalSumEstimates() {
    return clsMoney::FromCents(gDB()
                                   .Execute(QStringLiteral("SELECT SUM(") + Cents("ESTIMATE_AMOUNT_NB") +
                                            QStringLiteral(") FROM BUDGET_CATEGORY_DICT"))
                                   .Scalar()
                                   .toLongLong());
}

clsMoney clsBUDGET_CATEGORY_DICT::TotalSumPaid(const QString& categoryId) {
    return SumOfCategory(QStringLiteral(" WHERE PAID_DT IS NOT NULL"), categoryId);
}

clsMoney clsBUDGET_CATEGORY_DICT::TotalSumByPaidBy(const QString& paidById) {
    return Sum(QStringLiteral(" WHERE PAID_BY_ID = ?"), {paidById});
}
