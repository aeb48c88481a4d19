#pragma once

#include "core/RecordIO.h"

#include <QString>
#include <QStringList>

// "TABLE.COLUMN AS COLUMN, ..." for every column of a record's table. Joined queries name their columns
// this way instead of "TABLE.*": the engine names a column that several joined tables share by its own
// rules ("EVENT_ID:1"), and a record would then miss its value.
template <class T> QString QualifiedColumns(const RecordTable<T>& table) {
    QStringList columns;
    const QString prefix = QLatin1String(table.Table) + QLatin1Char('.');
    for (const auto& field : table.Fields) {
        const QString column = QLatin1String(field.Column);
        columns << prefix + column + QStringLiteral(" AS ") + column;
    }
    return columns.join(QStringLiteral(", "));
}
