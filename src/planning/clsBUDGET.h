#pragma once

#include "core/RecordIO.h"
#include "core/clsMoney.h"

#include <QDate>
#include <QList>
#include <QString>

// One expense of the budget: an amount with a due date, a paid date (a filled one is what "paid"
// means), a payer, a category and optionally a vendor. Nothing derived is stored: every figure of the
// budget is summed from these rows.
class clsBUDGET {
public:
    QString BUDGET_ID;
    QString ACTUAL_AMOUNT_NB;
    QString DUE_DT;
    QString PAID_DT;
    QString ITEM_NM;
    QString VENDOR_ID;
    QString VENDOR_NM; // from the join
    QString NOTES_TX;
    QString BUDGET_CATEGORY_ID;
    QString BUDGET_CATEGORY_TX; // from the join; "(none)" when the category row is missing
    QString PAID_BY_ID;
    QString PAID_BY_TX; // from the join

    // The filters of the budget page and its reports.
    enum Filter : int { AllExpenses = 0, Due = 1, Pastdue = 2, Paid = 3 };
    // Every new expense is paid by "Bride's Family" until the user says otherwise.
    static constexpr const char* kDefaultPaidById = "4";

    static const RecordTable<clsBUDGET>& Table();

    clsMoney Amount() const { return clsMoney::FromStored(ACTUAL_AMOUNT_NB); }
    QString DUE_DT_DDMMMYYYY() const;
    QString PAID_DT_DDMMMYYYY() const;
    // Unpaid with a due date before today; the due day itself is not past due.
    bool PASTDUE() const;
    bool PASTDUE(const QDate& today) const;

    // Every operation below throws clsDbError when the database refuses; whoever asked shows it.
    void Delete(const QString& budgetId);
    bool OpenRecord(const QString& budgetId);
    // For the reports: grouped by payer, or by due date under the "Due" filter, then category and name.
    QList<clsBUDGET> OpenRecords(int filter, bool groupByPayer, const QString& categoryId = QString()) const;
    // For the page: by category and name.
    QList<clsBUDGET> OpenRecordsByCategory(int filter, const QString& categoryId = QString()) const;
    void Save(bool isNew);
    // Every expense falls due on the given date ("dd-mmm-yyyy"; empty: none). Throws clsDbError.
    static void SetEveryDueDate(const QString& date);
    long Total(int filter, const QString& categoryId = QString()) const;

    // Schema changes of older files; each looks for itself whether it is needed.
    static void Patch_2_Apply();
    static void Patch_3_Apply();
    static void Patch_4_Apply();
    static void Patch_7_Apply();
    // The category that the fixed budget lines of the oldest files belong to, by their own id.
    static int Patch_2_CategoryFor(int budgetId);

private:
    static const RecordTable<clsBUDGET>& ReadTable();
    static QString SelectSql();
    static QString WhereSql(int filter, const QString& categoryId, QVariantList& values);
    static QList<clsBUDGET> Open(const QString& sql, const QVariantList& values);
};
