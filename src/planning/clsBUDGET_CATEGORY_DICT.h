#pragma once

#include "core/RecordIO.h"
#include "core/clsMoney.h"

#include <QList>
#include <QMap>
#include <QString>

// The figures of one budget category as the database sums them, in whole cents: the estimate, the unpaid
// ("due", with or without a due date) and the paid amounts. Due + Paid = Actual, Estimate - Actual = +/-.
struct clsBudgetCategorySums {
    QString BUDGET_CATEGORY_ID;
    QString BUDGET_CATEGORY_TX;
    clsMoney Estimate;
    clsMoney Due;
    clsMoney Paid;

    clsMoney Actual() const { return Due + Paid; }
    clsMoney Remaining() const { return Estimate - Actual(); }
    // The whole budget under the given key and caption; an expense without a category counts too.
    static clsBudgetCategorySums WholeBudget(const QString& id, const QString& caption);
};

// A budget category with its estimate, and the sums of the budget: due (unpaid), paid and actual
// (all) amounts per category or in all, the estimates, and the amounts by payer. Every sum is made by
// the database in whole cents.
class clsBUDGET_CATEGORY_DICT {
public:
    QString BUDGET_CATEGORY_ID;
    QString BUDGET_CATEGORY_TX;
    QString ESTIMATE_AMOUNT_NB;

    static const RecordTable<clsBUDGET_CATEGORY_DICT>& Table();

    clsMoney Estimate() const { return clsMoney::FromStored(ESTIMATE_AMOUNT_NB); }

    // Creates the table with its ten categories when it is missing.
    static void CreateTable();
    // Every operation below that reads or writes throws clsDbError when the database refuses.

    // Deletes the category and all its expenses, all or nothing.
    void Delete(const QString& categoryId);
    // The estimate as a fraction of the total; 0 when the total is 0.
    static double GetESTIMATE_PERCENT(clsMoney estimate, clsMoney total);
    bool OpenRecord(const QString& categoryId);
    QList<clsBUDGET_CATEGORY_DICT> OpenRecords() const;
    // Every category with its figures, in the order of OpenRecords, from one query.
    static QList<clsBudgetCategorySums> OpenSums();
    // An insert makes a new key only with assignNewKey; otherwise the key in the object is used.
    void Save(bool isNew, bool assignNewKey = true);
    // The estimate of each category, amount by key; a key that is gone is passed over.
    static void SaveEstimates(const QMap<QString, clsMoney>& estimates);
    long Total() const;

    // Sums of the amounts; 0 when there is nothing to sum. An empty category id means all categories.
    static clsMoney TotalSumActual(const QString& categoryId = QString());
    // Unpaid amounts, with or without a due date.
    static clsMoney TotalSumDue(const QString& categoryId = QString());
    static clsMoney TotalSumEstimates();
    static clsMoney TotalSumPaid(const QString& categoryId = QString());
    static clsMoney TotalSumByPaidBy(const QString& paidById);
};
