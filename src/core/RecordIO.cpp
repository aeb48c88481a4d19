#include "core/RecordIO.h"

namespace RecordIO {

QVariant ToDbValue(const QString& column, const QString& text) {
    if (text.isEmpty())
        return {};
    if (DbDates::IsDateColumn(column))
        return DbDates::ToStorage(text, column);
    return text;
}

QString NextID(const QString& table, const QString& keyColumn) {
    const QString next =
        gDB().Execute(QStringLiteral("SELECT Max(%1) + 1 AS MAXID FROM %2").arg(keyColumn, table)).Scalar();
    return next.isEmpty() ? QStringLiteral("1") : next;
}

void Report(const clsDbError& error) { ShowMessage(error.Message(), Msg::OKOnly); }

bool Attempt(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const clsDbError& e) {
        Report(e);
        return false;
    }
}

void Run(const QString& sql, const QVariantList& values) {
    gDB().Execute(sql, values);
}

long Count(const QString& sql, const QVariantList& values) {
    return gDB().Execute(sql, values).Scalar().toLong();
}

void Delete(const QString& table, const QString& keyColumn, const QString& keyValue) {
    Run(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(table, keyColumn), {keyValue});
}

} // namespace RecordIO
