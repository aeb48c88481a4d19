#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

// The rows a statement gave back, every value as text: a NULL is the empty string, a number its text,
// and a date column (a name ending in _DT) the program's date text ("05-Jun-2027" or
// "05-Jun-2027 3:00 PM"), so a record object never holds anything but text.
class clsRecordset {
public:
    clsRecordset() = default;
    explicit clsRecordset(QStringList columns);

    const QStringList& Columns() const { return mColumns; }
    int RowCount() const { return static_cast<int>(mRows.size()); }
    bool IsEmpty() const { return mRows.empty(); }
    bool HasColumn(const QString& column) const { return mIndex->contains(column); }
    int ColumnIndex(const QString& column) const { return mIndex->value(column, -1); }

    // The value of a column in a row; the empty string for a column the statement did not give.
    QString Value(int row, const QString& column) const;
    QString Value(int row, int column) const;
    const QStringList& Row(int row) const { return mRows[static_cast<size_t>(row)]; }
    // The first column of the first row, or "" when there is none (counts, Max(...) + 1).
    QString Scalar() const;

    void AppendRow(QStringList values) { mRows.push_back(std::move(values)); }

private:
    QStringList mColumns;
    std::shared_ptr<QHash<QString, int>> mIndex = std::make_shared<QHash<QString, int>>();
    std::vector<QStringList> mRows;
};
