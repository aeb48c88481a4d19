#include "core/clsRecordset.h"

clsRecordset::clsRecordset(QStringList columns) : mColumns(std::move(columns)) {
    for (int i = 0; i < mColumns.size(); ++i) {
        // The first of two equal names wins, as a joined SELECT * reads its own table first.
        if (!mIndex->contains(mColumns[i]))
            mIndex->insert(mColumns[i], i);
    }
}

QString clsRecordset::Value(int row, const QString& column) const { return Value(row, ColumnIndex(column)); }

QString clsRecordset::Value(int row, int column) const {
    if (row < 0 || row >= RowCount() || column < 0)
        return {};
    const QStringList& values = mRows[static_cast<size_t>(row)];
    return column < values.size() ? values[column] : QString();
}

QString clsRecordset::Scalar() const { return Value(0, 0); }
