#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QMap>
#include <QString>

// A budget category with its estimate, and the sums of the budget: due (unpaid), paid and actual
// (all) amounts per category or in all, the estimates, and the amounts by payer.
class clsBUDGET_CATEGORY_DICT {
public:
    QString BUDGET_CATEGORY_ID;
    QString BUDGET_CATEGORY_TX;
    QString ESTIMATE_AMOUNT_NB;

    static const RecordTable<clsBUDGET_CATEGORY_DICT>& Table();

    double ESTIMATE_AMOUNT_NB_DOUBLE() const;

    // Creates the table with its ten categories when it is missing.
    static void CreateTable();
    // Every operation below that reads or writes throws clsDbError when the database refuses.

    // Deletes the category and all its expenses, all or nothing.
    void Delete(const QString& categoryId);
    // The estimate as a fraction of the total; 0 when the total is 0.
    static double GetESTIMATE_PERCENT(double estimate, double total);
    bool OpenRecord(const QString& categoryId);
    QList<clsBUDGET_CATEGORY_DICT> OpenRecords() const;
    // An insert makes a new key only with assignNewKey; otherwise the key in the object is used.
    void Save(bool isNew, bool assignNewKey = true);
    // The estimate of each category, amount by key; a key that is gone is passed over.
    static void SaveEstimates(const QMap<QString, double>& estimates);
    long Total() const;

    // Sums of the amounts; 0 when there is nothing to sum. An empty category id means all categories.
    static double TotalSumActual(const QString& categoryId = QString());
    // Unpaid amounts, with or without a due date.
    static double TotalSumDue(const QString& categoryId = QString());
    static double TotalSumEstimates();
    static double TotalSumPaid(const QString& categoryId = QString());
    static double TotalSumByPaidBy(const QString& paidById);
};
