#include "shell/grid/clsGridProxy.h"

#include "shell/grid/clsGridModel.h"

#include <QDate>
#include <QTime>
#include <algorithm>
#include <limits>

namespace {

// An empty or unset date or time sorts first.
qint64 DayOf(const QVariant& value) {
    const QDate date = value.toDate();
    return date.isValid() ? date.toJulianDay() : std::numeric_limits<qint64>::min();
}

int ClockOf(const QVariant& value) {
    const QTime time = value.toTime();
    return time.isValid() ? time.msecsSinceStartOfDay() : -1;
}

} // namespace

clsGridProxy::clsGridProxy(clsGridModel* model, QObject* parent) : QSortFilterProxyModel(parent), mModel(model) {
    setSourceModel(model);
    setDynamicSortFilter(false);
    // A group stays while one of its records is found.
    setRecursiveFilteringEnabled(true);
}

void clsGridProxy::SetSearch(const QString& text, int columnCount) {
    mSearch = text;
    mSearchColumns.clear();
    const int last = columnCount < 0 ? mModel->columnCount() : std::min(columnCount, mModel->columnCount());
    for (int column = 0; column < last; ++column)
        if (mModel->Column(column).Kind != GridColumnKind::Icon) mSearchColumns.append(column);
    invalidateFilter();
}

bool clsGridProxy::Matches(const clsGridRow& row) const {
    return std::any_of(mSearchColumns.begin(), mSearchColumns.end(),
                       [&](int column) { return row.Cell(column).contains(mSearch, Qt::CaseInsensitive); });
}

bool clsGridProxy::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const {
    const clsGridRow* row = mModel->RowAt(mModel->index(sourceRow, 0, sourceParent));
    if (row == nullptr) return false;
    if (mSearch.isEmpty()) return true;
    // A group row is kept through its records.
    return !row->IsGroup && Matches(*row);
}

int clsGridProxy::ShownRecords() const {
    int count = 0;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex top = index(row, 0);
        count += top.data(GridRole::IsGroup).toBool() ? rowCount(top) : 1;
    }
    return count;
}

bool clsGridProxy::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const clsGridRow* a = mModel->RowAt(left);
    const clsGridRow* b = mModel->RowAt(right);
    if (a == nullptr || b == nullptr) return false;
    if (a->IsGroup || b->IsGroup) {
        const bool before = a->Row < b->Row;
        return sortOrder() == Qt::AscendingOrder ? before : !before;
    }
    const int column = left.column();
    const QVariant x = a->SortValue(column);
    const QVariant y = b->SortValue(column);
    switch (mModel->Column(column).Kind) {
    case GridColumnKind::Icon:
    case GridColumnKind::Number:
    case GridColumnKind::Money: return x.toDouble() < y.toDouble();
    case GridColumnKind::Date: return DayOf(x) < DayOf(y);
    case GridColumnKind::Time: return ClockOf(x) < ClockOf(y);
    case GridColumnKind::Text: break;
    }
    return x.toString().compare(y.toString(), Qt::CaseInsensitive) < 0;
}
