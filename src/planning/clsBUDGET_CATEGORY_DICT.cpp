#include "planning/clsBUDGET_CATEGORY_DICT.h"

#include "core/modSchema.h"

namespace {

// A sum that the database gives as NULL (nothing to sum) counts as 0.
double Sum(const QString& sql, const QVariantList& values = {}) {
    return gDB().Execute(sql, values).Scalar().toDouble();
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

double clsBUDGET_CATEGORY_DICT::ESTIMATE_AMOUNT_NB_DOUBLE() const {
    return ESTIMATE_AMOUNT_NB.toDouble();
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

double clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT(double estimate, double total) {
    return total == 0.0 ? 0.0 : estimate / total;
}

bool clsBUDGET_CATEGORY_DICT::OpenRecord(const QString& categoryId) {
    return RecordIO::OpenRecord(*this, Table(), categoryId);
}

QList<clsBUDGET_CATEGORY_DICT> clsBUDGET_CATEGORY_DICT::OpenRecords() const {
    return RecordIO::ReadAll(
        Table(),
        QStringLiteral("SELECT * FROM BUDGET_CATEGORY_DICT ORDER BY BUDGET_CATEGORY_TX COLLATE NOCASE"));
}

void clsBUDGET_CATEGORY_DICT::SaveEstimates(const QMap<QString, double>& estimates) {
    clsTransaction tx(gDB());
    for (auto estimate = estimates.cbegin(); estimate != estimates.cend(); ++estimate)
        gDB().Execute(
            QStringLiteral(
                "UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = ? WHERE BUDGET_CATEGORY_ID = ?"),
            {QString::number(estimate.value(), 'f', 2), estimate.key()});
    tx.Commit();
}

void clsBUDGET_CATEGORY_DICT::Save(bool isNew, bool assignNewKey) {
    RecordIO::Save(*this, Table(), isNew, assignNewKey);
}

long clsBUDGET_CATEGORY_DICT::Total() const {
    return RecordIO::Count(QStringLiteral(
        "SELECT Count(BUDGET_CATEGORY_DICT.BUDGET_CATEGORY_ID) AS CNT FROM BUDGET_CATEGORY_DICT"));
}

double clsBUDGET_CATEGORY_DICT::TotalSumActual(const QString& categoryId) {
    if (categoryId.isEmpty())
        return Sum(QStringLiteral("SELECT SUM(ACTUAL_AMOUNT_NB) FROM BUDGET"));
    return Sum(QStringLiteral("SELECT SUM(ACTUAL_AMOUNT_NB) FROM BUDGET WHERE BUDGET_CATEGORY_ID = ?"),
               {categoryId});
}

double clsBUDGET_CATEGORY_DICT::TotalSumDue(const QString& categoryId) {
    QString sql = QStringLiteral("SELECT SUM(ACTUAL_AMOUNT_NB) FROM BUDGET WHERE PAID_DT IS NULL");
    if (categoryId.isEmpty())
        return Sum(sql);
    return Sum(sql + QStringLiteral(" AND BUDGET_CATEGORY_ID = ?"), {categoryId});
}

double clsBUDGET_CATEGORY_DICT::TotalSumEstimates() {
    return Sum(QStringLiteral("SELECT SUM(ESTIMATE_AMOUNT_NB) FROM BUDGET_CATEGORY_DICT"));
}

double clsBUDGET_CATEGORY_DICT::TotalSumPaid(const QString& categoryId) {
    QString sql = QStringLiteral("SELECT SUM(ACTUAL_AMOUNT_NB) FROM BUDGET WHERE PAID_DT IS NOT NULL");
    if (categoryId.isEmpty())
        return Sum(sql);
    return Sum(sql + QStringLiteral(" AND BUDGET_CATEGORY_ID = ?"), {categoryId});
}

double clsBUDGET_CATEGORY_DICT::TotalSumByPaidBy(const QString& paidById) {
    return Sum(QStringLiteral("SELECT Sum(ACTUAL_AMOUNT_NB) FROM BUDGET WHERE PAID_BY_ID = ?"), {paidById});
}
