#include "planning/clsBUDGET.h"

#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/modPlanningSql.h"

#include <QRegularExpression>

namespace {

QString FormatAsDate(const QString& stored) {
    return FormatDateTime(ParseDateTimeText(stored), QLatin1String(kDateFormat));
}

QString IsoDate(const QDate& date) {
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

} // namespace

const RecordTable<clsBUDGET>& clsBUDGET::Table() {
    static const RecordTable<clsBUDGET> table{"BUDGET",
                                              "BUDGET_ID",
                                              {{"BUDGET_ID", &clsBUDGET::BUDGET_ID},
                                               {"ACTUAL_AMOUNT_NB", &clsBUDGET::ACTUAL_AMOUNT_NB},
                                               {"DUE_DT", &clsBUDGET::DUE_DT},
                                               {"PAID_DT", &clsBUDGET::PAID_DT},
                                               {"ITEM_NM", &clsBUDGET::ITEM_NM},
                                               {"VENDOR_ID", &clsBUDGET::VENDOR_ID},
                                               {"NOTES_TX", &clsBUDGET::NOTES_TX},
                                               {"BUDGET_CATEGORY_ID", &clsBUDGET::BUDGET_CATEGORY_ID},
                                               {"PAID_BY_ID", &clsBUDGET::PAID_BY_ID}}};
    return table;
}

const RecordTable<clsBUDGET>& clsBUDGET::ReadTable() {
    static const RecordTable<clsBUDGET> table = [] {
        RecordTable<clsBUDGET> read = Table();
        read.Fields.push_back({"VENDOR_NM", &clsBUDGET::VENDOR_NM});
        read.Fields.push_back({"BUDGET_CATEGORY_TX", &clsBUDGET::BUDGET_CATEGORY_TX});
        read.Fields.push_back({"PAID_BY_TX", &clsBUDGET::PAID_BY_TX});
        return read;
    }();
    return table;
}

// Only expenses with a payer are listed; one whose category is gone still is. The expenses lead the
// joins, so that each payer, category and vendor is found by its key.
QString clsBUDGET::SelectSql() {
    return QStringLiteral("SELECT ") + QualifiedColumns(Table()) +
           QStringLiteral(
               ", VENDOR.VENDOR_NM, BUDGET_CATEGORY_DICT.BUDGET_CATEGORY_TX, PAID_BY_DICT.PAID_BY_TX "
               "FROM BUDGET INNER JOIN PAID_BY_DICT ON PAID_BY_DICT.PAID_BY_ID = BUDGET.PAID_BY_ID "
               "LEFT JOIN BUDGET_CATEGORY_DICT ON BUDGET_CATEGORY_DICT.BUDGET_CATEGORY_ID = "
               "BUDGET.BUDGET_CATEGORY_ID LEFT JOIN VENDOR ON VENDOR.VENDOR_ID = BUDGET.VENDOR_ID ");
}

QString clsBUDGET::WhereSql(int filter, const QString& categoryId, QVariantList& values) {
    QString where = QStringLiteral("WHERE BUDGET.BUDGET_ID > 0 ");
    switch (filter) {
    case Due:
        where += QStringLiteral("AND BUDGET.DUE_DT IS NOT NULL AND BUDGET.PAID_DT IS NULL");
        break;
    case Pastdue:
        where += QStringLiteral("AND BUDGET.PAID_DT IS NULL AND BUDGET.DUE_DT < ?");
        values << IsoDate(Now().date());
        break;
    case Paid:
        where += QStringLiteral("AND BUDGET.PAID_DT IS NOT NULL");
        break;
    default:
        break;
    }
    if (!categoryId.isEmpty()) {
        where += QStringLiteral(" AND BUDGET.BUDGET_CATEGORY_ID = ?");
        values << categoryId;
    }
    return where;
}

QList<clsBUDGET> clsBUDGET::Open(const QString& sql, const QVariantList& values) {
    QList<clsBUDGET> expenses = RecordIO::ReadAll(ReadTable(), sql, values);
    for (clsBUDGET& expense : expenses) {
        if (expense.BUDGET_CATEGORY_TX.isEmpty())
            expense.BUDGET_CATEGORY_TX = QStringLiteral("(none)");
    }
    return expenses;
}

QString clsBUDGET::DUE_DT_DDMMMYYYY() const {
    return FormatAsDate(DUE_DT);
}

QString clsBUDGET::PAID_DT_DDMMMYYYY() const {
    return FormatAsDate(PAID_DT);
}

bool clsBUDGET::PASTDUE(const QDate& today) const {
    if (ParseDateTimeText(PAID_DT).isValid())
        return false;
    const QDateTime due = ParseDateTimeText(DUE_DT);
    return due.isValid() && today > due.date();
}

bool clsBUDGET::PASTDUE() const {
    return PASTDUE(Now().date());
}

void clsBUDGET::Delete(const QString& budgetId) {
    RecordIO::Delete(QStringLiteral("BUDGET"), QStringLiteral("BUDGET_ID"), budgetId);
}

bool clsBUDGET::OpenRecord(const QString& budgetId) {
    if (budgetId.isEmpty())
        return false;
    const QList<clsBUDGET> found =
        Open(SelectSql() + QStringLiteral("WHERE BUDGET.BUDGET_ID = ?"), {budgetId});
    if (found.isEmpty())
        return false;
    *this = found.first();
    return true;
}

QList<clsBUDGET> clsBUDGET::OpenRecords(int filter, bool groupByPayer, const QString& categoryId) const {
    QVariantList values;
    QString sql = SelectSql() + WhereSql(filter, categoryId, values) + QStringLiteral(" ORDER BY ");
    if (groupByPayer)
        sql += QStringLiteral("PAID_BY_DICT.PAID_BY_TX COLLATE NOCASE, ");
    else if (filter == Due)
        sql += QStringLiteral("BUDGET.DUE_DT, ");
    sql += QStringLiteral(
        "BUDGET_CATEGORY_DICT.BUDGET_CATEGORY_TX COLLATE NOCASE, BUDGET.ITEM_NM COLLATE NOCASE");
    return Open(sql, values);
}

QList<clsBUDGET> clsBUDGET::OpenRecordsByCategory(int filter, const QString& categoryId) const {
    QVariantList values;
    const QString sql = SelectSql() + WhereSql(filter, categoryId, values) +
                        QStringLiteral(" ORDER BY BUDGET_CATEGORY_DICT.BUDGET_CATEGORY_TX COLLATE NOCASE, "
                                       "BUDGET.ITEM_NM COLLATE NOCASE");
    return Open(sql, values);
}

void clsBUDGET::SetEveryDueDate(const QString& date) {
    gDB().Execute(QStringLiteral("UPDATE BUDGET SET DUE_DT = ?"),
                  {RecordIO::ToDbValue(QStringLiteral("DUE_DT"), date)});
}

void clsBUDGET::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
}

long clsBUDGET::Total(int filter, const QString& categoryId) const {
    QVariantList values;
    const QString where = WhereSql(filter, categoryId, values);
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM BUDGET ") + where, values);
}

int clsBUDGET::Patch_2_CategoryFor(int budgetId) {
    switch (budgetId) {
    case 5:
    case 6:
        return 3; // Ceremony
    case 7:
    case 8:
    case 9:
        return 1; // Stationery
    case 10:
    case 11:
    case 12:
    case 20:
    case 25:
    case 28:
        return 2; // Fashion
    case 13:
        return 5; // Flowers
    case 14:
        return 6; // Music
    case 15:
    case 16:
        return 7; // Photography/Videography
    case 18:
        return 8; // Hotels/Transportation
    case 19:
    case 26:
        return 4; // Reception
    case 27:
        return 9; // Honeymoon
    default:
        return 10; // Miscellaneous
    }
}

void clsBUDGET::Patch_2_Apply() {
    if (gDB().FieldExists(QStringLiteral("BUDGET"), QStringLiteral("BUDGET_CATEGORY_ID")))
        return;
    clsTransaction tx(gDB());
    gDB().Execute(
        QStringLiteral("ALTER TABLE BUDGET ADD COLUMN BUDGET_CATEGORY_ID INTEGER CONSTRAINT "
                       "BUDGET_TO_BUDGET_CATEGORY_FK REFERENCES BUDGET_CATEGORY_DICT (BUDGET_CATEGORY_ID)"));
    const clsRecordset rs = gDB().Execute(QStringLiteral("SELECT BUDGET_ID FROM BUDGET"));
    for (int row = 0; row < rs.RowCount(); ++row) {
        const QString id = rs.Value(row, 0);
        gDB().Execute(QStringLiteral("UPDATE BUDGET SET BUDGET_CATEGORY_ID = ? WHERE BUDGET_ID = ?"),
                      {Patch_2_CategoryFor(id.toInt()), id});
    }
    tx.Commit();
}

void clsBUDGET::Patch_3_Apply() {
    if (gDB().FieldExists(QStringLiteral("BUDGET"), QStringLiteral("PAID_BY_ID")))
        return;
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("ALTER TABLE BUDGET ADD COLUMN PAID_BY_ID INTEGER CONSTRAINT "
                                 "BUDGET_TO_PAID_BY_DICT_FK REFERENCES PAID_BY_DICT (PAID_BY_ID)"));
    gDB().Execute(QStringLiteral("UPDATE BUDGET SET PAID_BY_ID = ?"),
                  {QString::fromLatin1(kDefaultPaidById)});
    tx.Commit();
}

void clsBUDGET::Patch_4_Apply() {
    if (gDB().FieldExists(QStringLiteral("BUDGET"), QStringLiteral("DUE_DT")))
        return;
    gDB().Execute(QStringLiteral("ALTER TABLE BUDGET ADD COLUMN DUE_DT TEXT"));
}

// The due date becomes required; a line without one gets the wedding day. With no wedding date such a
// line stops the rebuild, and the table stays as it was. Only the one column changes: the columns that
// later steps of the driver add (payer, category) must still be missing for those steps to fill them.
void clsBUDGET::Patch_7_Apply() {
    const clsRecordset columns = gDB().Execute(
        QStringLiteral("SELECT \"notnull\" FROM pragma_table_info('BUDGET') WHERE name = 'DUE_DT'"));
    if (columns.IsEmpty() || columns.Scalar() != QLatin1String("0"))
        return;
    QString ddl = gDB()
                      .Execute(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = "
                                              "'BUDGET'"))
                      .Scalar();
    static const QRegularExpression dueColumn(QStringLiteral(R"(\bDUE_DT\s+(TEXT|DATE|DATETIME)\b)"),
                                              QRegularExpression::CaseInsensitiveOption);
    const auto match = dueColumn.match(ddl);
    if (!match.hasMatch())
        throw clsDbError(QStringLiteral("The column DUE_DT of BUDGET has a shape that can't be changed."), 0);
    ddl.replace(match.capturedStart(), match.capturedLength(), QStringLiteral("DUE_DT TEXT NOT NULL"));

    const QDateTime wedding = ParseDateTimeText(gWeddingEvent().EVENT_DT);
    if (wedding.isValid())
        gDB().Execute(QStringLiteral("UPDATE BUDGET SET DUE_DT = ? WHERE DUE_DT IS NULL"),
                      {IsoDate(wedding.date())});
    gDB().RebuildTable(QStringLiteral("BUDGET"), ddl);
}
