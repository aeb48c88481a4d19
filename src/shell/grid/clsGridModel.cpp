#include "shell/grid/clsGridModel.h"

#include "core/modGeneral.h"

#include <QDate>
#include <QFont>
#include <QTime>
#include <limits>

clsGridModel::clsGridModel(QObject* parent) : QAbstractItemModel(parent) {}

clsGridModel::~clsGridModel() = default;

// ---- Columns ----------------------------------------------------------------------------------------

void clsGridModel::SetColumns(const QList<clsGridColumn>& columns) {
    beginResetModel();
    mColumns = columns;
    mColumnByKey.clear();
    for (int i = 0; i < mColumns.size(); ++i) mColumnByKey.insert(mColumns[i].Key, i);
    endResetModel();
}

// ---- Rows ---------------------------------------------------------------------------------------------

void clsGridModel::Clear() {
    beginResetModel();
    mRoot.Children.clear();
    mGroupByText.clear();
    mGroupCount = 0;
    mRowTextCount = 0;
    endResetModel();
}

clsGridRow* clsGridModel::NewGroup(const QString& text) {
    auto group = std::make_unique<clsGridRow>();
    group->IsGroup = true;
    group->Cells = {text};
    group->Parent = &mRoot;
    group->Row = int(mRoot.Children.size());
    clsGridRow* made = group.get();
    mRoot.Children.push_back(std::move(group));
    mGroupByText.insert(text, made);
    ++mGroupCount;
    return made;
}

clsGridRow* clsGridModel::NewRecord(clsGridRow* parent, qint64 itemData) {
    auto row = std::make_unique<clsGridRow>();
    row->ItemData = itemData;
    row->Parent = parent;
    row->Row = int(parent->Children.size());
    clsGridRow* made = row.get();
    parent->Children.push_back(std::move(row));
    return made;
}

clsGridRow* clsGridModel::RowAt(const QModelIndex& index) const {
    if (!index.isValid() || index.model() != this) return nullptr;
    return static_cast<clsGridRow*>(index.internalPointer());
}

QModelIndex clsGridModel::IndexOf(const clsGridRow* row, int column) const {
    if (row == nullptr || row == &mRoot) return {};
    return createIndex(row->Row, column, const_cast<clsGridRow*>(row));
}

qint64 clsGridModel::KeyAt(const QModelIndex& index) const {
    const clsGridRow* row = RowAt(index);
    return row != nullptr && !row->IsGroup ? row->ItemData : 0;
}

QModelIndex clsGridModel::FindRecord(qint64 itemData) const {
    const clsGridRow* found = nullptr;
    ForEachRow([&](const clsGridRow& row) {
        if (found == nullptr && !row.IsGroup && row.ItemData == itemData) found = &row;
    });
    return IndexOf(found);
}

int clsGridModel::FlatRowCount() const {
    int count = 0;
    for (const auto& top : mRoot.Children) count += 1 + int(top->Children.size());
    return count;
}

QModelIndex clsGridModel::FlatRow(int number) const {
    int left = number - 1;
    if (left < 0) return {};
    for (const auto& top : mRoot.Children) {
        if (left == 0) return IndexOf(top.get());
        left -= 1;
        if (left < int(top->Children.size())) return IndexOf(top->Children[size_t(left)].get());
        left -= int(top->Children.size());
    }
    return {};
}

QModelIndex clsGridModel::AddRecord(qint64 itemData, const QString& groupText) {
    clsGridRow* parent = &mRoot;
    if (!groupText.isNull()) {
        parent = mGroupByText.value(groupText);
        if (parent == nullptr) {
            const int at = int(mRoot.Children.size());
            beginInsertRows({}, at, at);
            parent = NewGroup(groupText);
            endInsertRows();
        }
    }
    const int at = int(parent->Children.size());
    beginInsertRows(IndexOf(parent), at, at);
    clsGridRow* row = NewRecord(parent, itemData);
    endInsertRows();
    return IndexOf(row);
}

void clsGridModel::RemoveRow(const QModelIndex& index) {
    clsGridRow* row = RowAt(index);
    if (row == nullptr) return;
    clsGridRow* parent = row->Parent;
    const int at = row->Row;
    beginRemoveRows(IndexOf(parent), at, at);
    CountRowText(row->RowText, {});
    for (const auto& child : row->Children) CountRowText(child->RowText, {});
    if (row->IsGroup) {
        mGroupByText.remove(row->Cell(0));
        --mGroupCount;
    }
    parent->Children.erase(parent->Children.begin() + at);
    Renumber(*parent, at);
    endRemoveRows();
}

void clsGridModel::Rewrite(const QModelIndex& index, const std::function<void(clsGridCells&)>& write) {
    clsGridRow* row = RowAt(index);
    if (row == nullptr || row->IsGroup) return;
    clsGridCells cells(*this, row);
    write(cells);
    // The row's height may change with its notes, so every cell is told.
    emit dataChanged(IndexOf(row, 0), IndexOf(row, columnCount() - 1));
}

void clsGridModel::SetRowText(const QModelIndex& index, const QString& text) {
    clsGridRow* row = RowAt(index);
    if (row == nullptr || row->IsGroup) return;
    CountRowText(row->RowText, text);
    row->RowText = text;
    // The row's height may change with it, so every cell is told.
    emit dataChanged(IndexOf(row, 0), IndexOf(row, columnCount() - 1));
}

void clsGridModel::SetRowLook(const QModelIndex& index, const QColor& foreground, bool strikeOut) {
    clsGridRow* row = RowAt(index);
    if (row == nullptr || row->IsGroup) return;
    row->Foreground = foreground;
    row->StrikeOut = strikeOut;
    emit dataChanged(IndexOf(row, 0), IndexOf(row, columnCount() - 1), {Qt::ForegroundRole, Qt::FontRole});
}

bool clsGridModel::MoveRow(const QModelIndex& index, int step) {
    clsGridRow* row = RowAt(index);
    if (row == nullptr) return false;
    clsGridRow* parent = row->Parent;
    const int from = row->Row;
    const int to = from + step;
    if (to < 0 || to >= int(parent->Children.size())) return false;
    const QModelIndex parentIndex = IndexOf(parent);
    // beginMoveRows names the place before which the row lands, in the numbering before the move.
    if (!beginMoveRows(parentIndex, from, from, parentIndex, step > 0 ? to + 1 : to)) return false;
    std::swap(parent->Children[size_t(from)], parent->Children[size_t(to)]);
    Renumber(*parent, std::min(from, to));
    endMoveRows();
    return true;
}

void clsGridModel::Renumber(clsGridRow& parent, int from) {
    for (size_t i = size_t(from); i < parent.Children.size(); ++i) parent.Children[i]->Row = int(i);
}

void clsGridModel::CountRowText(const QString& before, const QString& after) {
    mRowTextCount += int(!after.isEmpty()) - int(!before.isEmpty());
}

// ---- QAbstractItemModel -------------------------------------------------------------------------------

const clsGridRow* clsGridModel::ParentRow(const QModelIndex& parent) const {
    if (!parent.isValid()) return &mRoot;
    return parent.column() == 0 ? RowAt(parent) : nullptr;
}

QModelIndex clsGridModel::index(int row, int column, const QModelIndex& parent) const {
    const clsGridRow* owner = ParentRow(parent);
    if (owner == nullptr || row < 0 || row >= int(owner->Children.size()) || column < 0 ||
        column >= mColumns.size())
        return {};
    return createIndex(row, column, owner->Children[size_t(row)].get());
}

QModelIndex clsGridModel::parent(const QModelIndex& child) const {
    const clsGridRow* row = RowAt(child);
    if (row == nullptr || row->Parent == &mRoot) return {};
    return IndexOf(row->Parent);
}

int clsGridModel::rowCount(const QModelIndex& parent) const {
    const clsGridRow* owner = ParentRow(parent);
    return owner == nullptr ? 0 : int(owner->Children.size());
}

int clsGridModel::columnCount(const QModelIndex&) const { return int(mColumns.size()); }

QVariant clsGridModel::data(const QModelIndex& index, int role) const {
    const clsGridRow* row = RowAt(index);
    if (row == nullptr) return {};
    switch (role) {
    case GridRole::ItemData: return row->ItemData;
    case GridRole::IsGroup: return row->IsGroup;
    case GridRole::RowText: return row->RowText;
    case GridRole::Expanded: return row->Expanded;
    case GridRole::SortValue: return row->IsGroup ? QVariant() : row->SortValue(index.column());
    default: break;
    }
    return row->IsGroup ? GroupData(*row, index.column(), role) : RecordData(*row, index.column(), role);
}

QVariant clsGridModel::GroupData(const clsGridRow& row, int column, int role) const {
    if (column != 0) return {};
    if (role == Qt::DisplayRole) return row.Cell(0);
    if (role == Qt::FontRole) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return {};
}

QVariant clsGridModel::RecordData(const clsGridRow& row, int column, int role) const {
    const clsGridColumn& col = mColumns.at(column);
    const bool isIcon = col.Kind == GridColumnKind::Icon;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return isIcon ? QVariant() : QVariant(row.Cell(column));
    case Qt::DecorationRole: {
        if (!isIcon || row.Cell(column).isEmpty()) return {};
        return mImages.value(row.Cell(column).toInt());
    }
    case Qt::TextAlignmentRole: return QVariant::fromValue(col.Alignment);
    case Qt::ToolTipRole: return row.RowText.isEmpty() || isIcon ? QVariant() : QVariant(row.RowText);
    case Qt::ForegroundRole: return row.Foreground.isValid() ? QVariant(row.Foreground) : QVariant();
    case Qt::FontRole: {
        if (!row.StrikeOut) return {};
        QFont struck;
        struck.setStrikeOut(true);
        return struck;
    }
    default: return {};
    }
}

QVariant clsGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= mColumns.size()) return {};
    const clsGridColumn& col = mColumns.at(section);
    switch (role) {
    case Qt::DisplayRole: return col.Caption;
    case Qt::TextAlignmentRole: return QVariant::fromValue(col.Alignment);
    case GridRole::ColumnKey: return col.Key;
    default: return {};
    }
}

Qt::ItemFlags clsGridModel::flags(const QModelIndex& index) const {
    const clsGridRow* row = RowAt(index);
    if (row == nullptr) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return row->IsGroup ? flags : flags | Qt::ItemNeverHasChildren;
}

// ---- clsGridCells -------------------------------------------------------------------------------------

clsGridCells& clsGridCells::Set(int column, const QString& text) {
    if (mRow != nullptr && column >= 0 && column < mRow->Cells.size()) mRow->Cells[column] = text;
    return *this;
}

clsGridCells& clsGridCells::Set(int column, const QString& text, const QVariant& sortValue) {
    if (mRow == nullptr || column < 0 || column >= mRow->Cells.size()) return *this;
    mRow->Cells[column] = text;
    if (mRow->Sorts.size() < mRow->Cells.size()) mRow->Sorts.resize(mRow->Cells.size());
    mRow->Sorts[column] = sortValue;
    return *this;
}

clsGridCells& clsGridCells::Number(int column, qint64 value) { return Set(column, QString::number(value), value); }

clsGridCells& clsGridCells::Number(int column, const QString& digits) {
    bool ok = false;
    const qint64 value = digits.toLongLong(&ok);
    return Set(column, digits, ok ? QVariant(value) : QVariant(std::numeric_limits<qint64>::min()));
}

clsGridCells& clsGridCells::Money(int column, double amount) { return Set(column, CurrencyText(amount), amount); }

clsGridCells& clsGridCells::Date(int column, const QDate& date) {
    return Set(column, FormatDate(date), date);
}

clsGridCells& clsGridCells::Time(int column, const QTime& time) {
    return Set(column, time.isValid() ? FormatTime(time) : QString(), time);
}

clsGridCells& clsGridCells::Icon(int column, int imageIndex) {
    return Set(column, imageIndex < 0 ? QString() : QString::number(imageIndex), imageIndex);
}

clsGridCells& clsGridCells::Look(const QColor& foreground, bool strikeOut) {
    if (mRow == nullptr) return *this;
    mRow->Foreground = foreground;
    mRow->StrikeOut = strikeOut;
    return *this;
}

clsGridCells& clsGridCells::Notes(const QString& text) {
    if (mRow == nullptr) return *this;
    mModel.CountRowText(mRow->RowText, text);
    mRow->RowText = text;
    return *this;
}

// ---- clsGridFill --------------------------------------------------------------------------------------

clsGridFill::clsGridFill(clsGridModel& model) : clsGridCells(model) {
    mModel.beginResetModel();
    mModel.mRoot.Children.clear();
    mModel.mGroupByText.clear();
    mModel.mGroupCount = 0;
    mModel.mRowTextCount = 0;
}

clsGridFill::~clsGridFill() { mModel.endResetModel(); }

clsGridFill& clsGridFill::Group(const QString& text) {
    if (mGroup != nullptr && mGroup->Cells.value(0) == text) return *this;
    mGroup = mModel.mGroupByText.value(text);
    if (mGroup == nullptr) mGroup = mModel.NewGroup(text);
    return *this;
}

clsGridFill& clsGridFill::NoGroup() {
    mGroup = nullptr;
    return *this;
}

clsGridCells& clsGridFill::Row(qint64 itemData) {
    mRow = mModel.NewRecord(mGroup != nullptr ? mGroup : &mModel.mRoot, itemData);
    mRow->Cells.resize(mModel.mColumns.size());
    return *this;
}
