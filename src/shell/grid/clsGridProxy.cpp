#include "shell/grid/clsGridProxy.h"

#include "shell/grid/clsGridModel.h"

#include <QDate>
#include <QTime>

namespace {

double NumberOf(const QString& text) {
    QString digits;
    digits.reserve(text.size());
    for (const QChar c : text)
        if (c.isDigit() || c == QLatin1Char('.') || c == QLatin1Char('-')) digits.append(c);
    return digits.toDouble();
}

// Dates and times as the program shows them; an empty or unreadable cell sorts first.
qint64 DateOf(const QString& text) {
    const QDate date = QDate::fromString(text.left(11), QStringLiteral("dd-MMM-yyyy"));
    return date.isValid() ? date.toJulianDay() : -1;
}

int TimeOf(const QString& text) {
    for (const char* format : {"h:mm AP", "h:mm ap", "H:mm"}) {
        const QTime time = QTime::fromString(text.trimmed(), QLatin1String(format));
        if (time.isValid()) return time.msecsSinceStartOfDay();
    }
    return -1;
}

} // namespace

clsGridProxy::clsGridProxy(clsGridModel* model, QObject* parent) : QSortFilterProxyModel(parent), mModel(model) {
    setSourceModel(model);
    setDynamicSortFilter(false);
}

void clsGridProxy::RefreshHidden() { invalidateFilter(); }

bool clsGridProxy::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const {
    const clsGridRow* row = mModel->RowAt(mModel->index(sourceRow, 0, sourceParent));
    return row != nullptr && !row->Hidden;
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
    const QString x = a->Cell(column);
    const QString y = b->Cell(column);
    switch (mModel->Column(column).Kind) {
    case GridColumnKind::Icon:
    case GridColumnKind::Number: return NumberOf(x) < NumberOf(y);
    case GridColumnKind::Date: return DateOf(x) < DateOf(y);
    case GridColumnKind::Time: return TimeOf(x) < TimeOf(y);
    case GridColumnKind::Text: break;
    }
    return x.compare(y, Qt::CaseInsensitive) < 0;
}
