#include "shell/grid/usrGrid.h"

#include "core/clsApp.h"
#include "platform/clsRegistry.h"
#include "shell/grid/clsGridProxy.h"

#include <QHeaderView>
#include <QItemSelection>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

// Paints a row's cells on its first line and leaves the second line, when the row shows notes, to the
// view, which draws the notes across the whole width.
class clsGridDelegate : public QStyledItemDelegate {
public:
    explicit clsGridDelegate(usrGrid* grid) : QStyledItemDelegate(grid), mGrid(grid) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const int line = mGrid->LineHeight();
        const int width = QStyledItemDelegate::sizeHint(option, index).width();
        return {width, mGrid->HasShownRowText(index) ? 2 * line : line};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem firstLine(option);
        if (mGrid->HasShownRowText(index)) firstLine.rect.setHeight(mGrid->LineHeight());
        if (!index.data(GridRole::IsGroup).toBool()) {
            QStyledItemDelegate::paint(painter, firstLine, index);
            return;
        }
        // A group row: the arrow that opens and closes it, then its heading.
        painter->fillRect(option.rect, QColor(236, 241, 248));
        QStyleOption arrow(option);
        arrow.rect = QRect(option.rect.left(), option.rect.top(), usrGrid::kArrowWidth, option.rect.height());
        arrow.state |= QStyle::State_Children;
        if (index.data(GridRole::Expanded).toBool()) arrow.state |= QStyle::State_Open;
        mGrid->style()->drawPrimitive(QStyle::PE_IndicatorBranch, &arrow, painter, mGrid);
        firstLine.rect.setLeft(firstLine.rect.left() + usrGrid::kArrowWidth);
        QStyledItemDelegate::paint(painter, firstLine, index);
    }

private:
    usrGrid* mGrid;
};

usrGrid::usrGrid(QWidget* parent) : QTreeView(parent), mModel(new clsGridModel(this)), mProxy(new clsGridProxy(mModel, this)) {
    setObjectName(QStringLiteral("grid"));
    setModel(mProxy);
    setItemDelegate(new clsGridDelegate(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
    // Records stand flush under their group rows; a group row draws its own arrow.
    setRootIsDecorated(false);
    setIndentation(0);
    setSortingEnabled(false);
    header()->setSectionsMovable(true);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    connect(mProxy, &QAbstractItemModel::modelReset, this, &usrGrid::AfterReset);
    connect(mProxy, &QAbstractItemModel::layoutChanged, this, &usrGrid::ApplyGroupState);
    connect(mProxy, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& parent, int first, int last) {
        UpdateRowHeights();
        if (!parent.isValid() && mModel->HasGroups()) ApplyGroupRows(first, last);
    });
    connect(mModel, &QAbstractItemModel::dataChanged, this, &usrGrid::UpdateRowHeights);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) { OnExpandedChanged(index, true); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) { OnExpandedChanged(index, false); });
}

// ---- Columns ----------------------------------------------------------------------------------------

void usrGrid::SetColumns(const QList<clsGridColumn>& columns) {
    mModel->SetColumns(columns);
    for (int i = 0; i < columns.size(); ++i) {
        const clsGridColumn& column = columns[i];
        setColumnWidth(i, column.Width);
        setColumnHidden(i, column.Internal || !column.Visible);
        const int visual = header()->visualIndex(i);
        if (visual != i) header()->moveSection(visual, i);
    }
}

bool usrGrid::ColumnShown(int column) const { return !isColumnHidden(column) && columnWidth(column) > 3; }

void usrGrid::ShowColumn(int column, bool show) {
    if (column < 0 || column >= mModel->columnCount()) return;
    const clsGridColumn& definition = mModel->Column(column);
    setColumnHidden(column, !show || definition.Internal);
    if (!isColumnHidden(column) && columnWidth(column) <= 3) setColumnWidth(column, definition.Width);
}

void usrGrid::SetColumnOrder(const QList<int>& columns) {
    int place = 0;
    for (const int column : columns) {
        if (column < 0 || column >= mModel->columnCount()) continue;
        const int from = header()->visualIndex(column);
        if (from != place) header()->moveSection(from, place);
        ++place;
    }
}

QList<int> usrGrid::ColumnOrder() const {
    QList<int> order;
    for (int visual = 0; visual < header()->count(); ++visual) order.append(header()->logicalIndex(visual));
    return order;
}

// ---- Look ---------------------------------------------------------------------------------------------

void usrGrid::SetRowTextVisible(bool visible) {
    mRowTextVisible = visible;
    UpdateRowHeights();
    scheduleDelayedItemsLayout();
}

void usrGrid::SetSortable(bool sortable) {
    setSortingEnabled(sortable);
    if (sortable) header()->setSortIndicator(-1, Qt::AscendingOrder);
}

int usrGrid::LineHeight() const { return std::max(fontMetrics().height() + 6, iconSize().height() + 4); }

void usrGrid::UpdateRowHeights() {
    const bool uniform = !(mRowTextVisible && mModel->HasRowText());
    if (uniform != uniformRowHeights()) setUniformRowHeights(uniform);
}

bool usrGrid::HasShownRowText(const QModelIndex& index) const {
    return mRowTextVisible && !index.data(GridRole::RowText).toString().isEmpty();
}

void usrGrid::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    if (HasShownRowText(index)) DrawRowText(painter, option, index);
}

void usrGrid::DrawRowText(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int line = LineHeight();
    const QRect strip(-header()->offset(), option.rect.top() + line, header()->length(), option.rect.height() - line);
    const bool selected = selectionModel()->isSelected(index);
    painter->save();
    painter->fillRect(strip, selected ? palette().highlight() : palette().base());
    QFont notesFont = font();
    notesFont.setItalic(true);
    painter->setFont(notesFont);
    painter->setPen(selected ? palette().highlightedText().color() : QColor(40, 80, 150));
    const QRect textRect = strip.adjusted(header()->offset() + NotesIndent(), 0, -4, 0);
    const QString text = index.data(GridRole::RowText).toString().simplified();
    painter->drawText(textRect, Qt::AlignLeft | Qt::AlignTop,
                      QFontMetrics(notesFont).elidedText(text, Qt::ElideRight, textRect.width()));
    painter->restore();
}

// ---- Rows ---------------------------------------------------------------------------------------------

QModelIndex usrGrid::ToSource(const QModelIndex& index) const {
    if (index.model() == mProxy) return mProxy->mapToSource(index);
    return index.model() == mModel ? index : QModelIndex();
}

QModelIndex usrGrid::FromSource(const QModelIndex& index) const {
    if (index.model() == mModel) return mProxy->mapFromSource(index);
    return index.model() == mProxy ? index : QModelIndex();
}

QModelIndex usrGrid::SelectedRow() const {
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isRowSelected(current.row(), current.parent()))
        return ToSource(current.siblingAtColumn(0));
    const QList<QModelIndex> rows = SelectedRows();
    return rows.isEmpty() ? QModelIndex() : rows.first();
}

QList<QModelIndex> usrGrid::SelectedRows() const {
    QList<QModelIndex> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) rows.append(ToSource(index));
    // Flat order: a group row, then its records.
    const auto place = [](const QModelIndex& index) {
        const QModelIndex parent = index.parent();
        return parent.isValid() ? std::pair(parent.row(), index.row() + 1) : std::pair(index.row(), 0);
    };
    std::sort(rows.begin(), rows.end(), [&](const QModelIndex& a, const QModelIndex& b) { return place(a) < place(b); });
    return rows;
}

void usrGrid::SelectOnly(const QModelIndex& source) {
    const QModelIndex index = FromSource(source.siblingAtColumn(0));
    if (!index.isValid()) return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

void usrGrid::selectAll() {
    QItemSelection selection;
    const int lastColumn = mProxy->columnCount() - 1;
    const auto addRun = [&](const QModelIndex& parent, int first, int last) {
        if (first <= last) selection.select(mProxy->index(first, 0, parent), mProxy->index(last, lastColumn, parent));
    };
    int runStart = 0;
    const int count = mProxy->rowCount();
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = mProxy->index(row, 0);
        if (!index.data(GridRole::IsGroup).toBool()) continue;
        addRun({}, runStart, row - 1);
        addRun(index, 0, mProxy->rowCount(index) - 1);
        runStart = row + 1;
    }
    addRun({}, runStart, count - 1);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

// ---- Groups -------------------------------------------------------------------------------------------

void usrGrid::SetGroupExpanded(clsGridRow& group, bool expanded) {
    if (!group.IsGroup) return;
    mModel->SetExpanded(group, expanded);
    if (!mGroupKey.isEmpty()) gRegistry().SaveSetting(mGroupKey, group.Cell(0), clsApp::FromBool(expanded));
    const QModelIndex index = FromSource(mModel->IndexOf(&group));
    if (!index.isValid()) return;
    mApplyingGroups = true;
    setExpanded(index, expanded);
    mApplyingGroups = false;
}

void usrGrid::ApplyGroupState() { ApplyGroupRows(0, mProxy->rowCount() - 1); }

void usrGrid::ApplyGroupRows(int first, int last) {
    if (!mModel->HasGroups()) return;
    mApplyingGroups = true;
    QList<int> groupRows;
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = mProxy->index(row, 0);
        if (!index.data(GridRole::IsGroup).toBool()) continue;
        setExpanded(index, index.data(GridRole::Expanded).toBool());
        groupRows.append(row);
    }
    // Spans last: each one lays the view out at once when a layout is pending.
    for (const int row : groupRows) setFirstColumnSpanned(row, {}, true);
    mApplyingGroups = false;
}

void usrGrid::AfterReset() {
    UpdateRowHeights();
    ApplyGroupState();
}

int usrGrid::NotesIndent() const {
    for (const int column : ColumnOrder())
        if (ColumnShown(column) && mModel->Column(column).Kind != GridColumnKind::Icon)
            return columnViewportPosition(column) + 16;
    return 16;
}

void usrGrid::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    const bool onArrow = event->position().x() < visualRect(index).left() + kArrowWidth;
    if (event->button() == Qt::LeftButton && onArrow && index.data(GridRole::IsGroup).toBool()) {
        setExpanded(index, !isExpanded(index));
        return;
    }
    QTreeView::mousePressEvent(event);
}

void usrGrid::OnExpandedChanged(const QModelIndex& index, bool expanded) {
    if (mApplyingGroups) return;
    clsGridRow* group = mModel->RowAt(ToSource(index));
    if (group == nullptr || !group->IsGroup) return;
    SetGroupExpanded(*group, expanded);
    emit GroupToggled(group->Cell(0), expanded);
}
