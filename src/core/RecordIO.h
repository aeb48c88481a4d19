#pragma once

#include "core/ShowMessage.h"
#include "core/clsDB.h"

#include <QList>
#include <QString>
#include <QVariantList>
#include <functional>
#include <vector>

// The one pattern every record class follows: one QString member per column, read as text, written
// whole on every Save, keys from Max(key) + 1. A class describes its table once as a RecordTable
// (key first, then the columns in their fixed order) and hands it to these routines.

template <class T>
struct RecordField {
    const char* Column;
    QString T::*Member;
};

template <class T>
struct RecordTable {
    const char* Table;
    const char* Key;
    std::vector<RecordField<T>> Fields; // the key first
};

// Every routine below throws clsDbError on a failure and shows nothing: the screen or command that asked
// shows it, through Attempt or Read.
namespace RecordIO {

// A member's text as a value to bind: empty is NULL, a date column goes to its stored form.
QVariant ToDbValue(const QString& column, const QString& text);
// "SELECT Max(key) + 1 ..." as text, "1" for an empty table. Throws clsDbError.
QString NextID(const QString& table, const QString& keyColumn);
// Runs a statement. Throws clsDbError.
void Run(const QString& sql, const QVariantList& values = {});
// The count a statement gives. Throws clsDbError.
long Count(const QString& sql, const QVariantList& values = {});
// Deletes by key. Throws clsDbError (a row still referred to, say).
void Delete(const QString& table, const QString& keyColumn, const QString& keyValue);
// The message of a failure, shown the one way messages are shown.
void Report(const clsDbError& error);

// The edge between the records and whoever asked them (a screen, a command): the records throw
// clsDbError, and here the failure is shown the one way messages are shown instead of going further.
// True when the work ran through.
bool Attempt(const std::function<void()>& work);
// The same for work that gives a value: the value, or an empty one after the message.
template <class Work> auto Read(Work&& work) -> decltype(work()) {
    try {
        return work();
    } catch (const clsDbError& e) {
        Report(e);
        return {};
    }
}

// Where each field of the table stands among the columns (-1 when the statement did not give it; the first
// of two equal names wins).
template <class T>
std::vector<int> FieldColumns(const QStringList& names, const RecordTable<T>& table) {
    std::vector<int> columns;
    columns.reserve(table.Fields.size());
    for (const auto& field : table.Fields)
        columns.push_back(static_cast<int>(names.indexOf(QLatin1String(field.Column))));
    return columns;
}

template <class T>
std::vector<int> FieldColumns(const clsRecordset& rs, const RecordTable<T>& table) {
    return FieldColumns(rs.Columns(), table);
}

template <class T>
void Fill(T& record, const clsRecordset& rs, int row, const RecordTable<T>& table, const std::vector<int>& columns) {
    const QStringList& values = rs.Row(row);
    for (size_t i = 0; i < columns.size(); ++i) {
        if (columns[i] >= 0)
            record.*(table.Fields[i].Member) = values.value(columns[i]);
    }
}

template <class T>
void Fill(T& record, const clsRecordset& rs, int row, const RecordTable<T>& table) {
    Fill(record, rs, row, table, FieldColumns(rs, table));
}

// Every row of a query as a record, in the query's order. The rows go straight into the records: where
// each column stands is looked up once, and each value moves from the row into its member. Throws
// clsDbError.
template <class T>
QList<T> ReadAll(const RecordTable<T>& table, const QString& sql, const QVariantList& values = {}) {
    QList<T> records;
    std::vector<int> columns;
    gDB().Stream(
        sql, values, [&](const QStringList& names) { columns = FieldColumns(names, table); },
        [&](QStringList& row) {
            T& record = records.emplaceBack();
            for (size_t i = 0; i < columns.size(); ++i) {
                if (columns[i] >= 0 && columns[i] < row.size())
                    record.*(table.Fields[i].Member) = std::move(row[columns[i]]);
            }
        });
    return records;
}

// Fills the record from the first row of a query; no row leaves it as it was. False for no row; throws
// clsDbError.
template <class T>
bool OpenFirst(T& record, const RecordTable<T>& table, const QString& sql, const QVariantList& values) {
    const clsRecordset rs = gDB().Execute(sql, values);
    if (rs.IsEmpty())
        return false;
    Fill(record, rs, 0, table);
    return true;
}

template <class T>
bool OpenRecord(T& record, const RecordTable<T>& table, const QString& key) {
    if (key.isEmpty())
        return false;
    return OpenFirst(record, table,
                     QStringLiteral("SELECT * FROM %1 WHERE %2 = ?").arg(QLatin1String(table.Table),
                                                                         QLatin1String(table.Key)),
                     {key});
}

// The INSERT or UPDATE of every column. An insert gets its new key (unless assignKey is false, for rows
// that come with their key), which the record holds once the row is written; an UPDATE of a row that is
// gone changes nothing. Throws clsDbError, and the record then keeps the key it had.
template <class T> void Save(T& record, const RecordTable<T>& table, bool insert, bool assignKey = true) {
    const QString tableName = QLatin1String(table.Table);
    const QString keyName = QLatin1String(table.Key);
    QStringList columns;
    QVariantList values;
    QString* keyMember = nullptr;
    for (const auto& field : table.Fields) {
        const QString column = QLatin1String(field.Column);
        if (column == keyName) {
            keyMember = &(record.*(field.Member));
            continue;
        }
        columns << column;
        values << ToDbValue(column, record.*(field.Member));
    }
    if (insert) {
        const QString key = assignKey ? NextID(tableName, keyName) : *keyMember;
        columns.prepend(keyName);
        values.prepend(key);
        QStringList marks;
        for (qsizetype i = 0; i < columns.size(); ++i)
            marks << QStringLiteral("?");
        gDB().Execute(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                          .arg(tableName, columns.join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
                      values);
        *keyMember = key;
    } else {
        QStringList sets;
        for (const QString& column : columns)
            sets << column + QStringLiteral(" = ?");
        values << *keyMember;
        gDB().Execute(
            QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?").arg(tableName, sets.join(QStringLiteral(", ")), keyName),
            values);
    }
}

} // namespace RecordIO
