#pragma once

#include "shell/grid/clsGridModel.h"

#include <QTreeView>

class clsGridProxy;

// The grid of every list page: columns by key, group rows that open and close, a line of notes under a
// row, rows hidden by a search, multiple selection and sorting by a header click. It shows a clsGridModel
// through a clsGridProxy; the routines of modGrid work on it, and a page fills it with clsGridFill.
class usrGrid : public QTreeView {
    Q_OBJECT

public:
    explicit usrGrid(QWidget* parent = nullptr);
    // The room at the left of a group row for its arrow; a click there opens or closes the group.
    static constexpr int kArrowWidth = 18;

    clsGridModel* Model() const { return mModel; }
    clsGridProxy* Proxy() const { return mProxy; }

    // ---- Columns ----
    // Sets the columns and shows them in this order with their widths and visibility.
    void SetColumns(const QList<clsGridColumn>& columns);
    int ColumnIndex(const QString& key) const { return mModel->ColumnIndex(key); }
    bool ColumnShown(int column) const;
    // Shows or hides a column; a column shown again gets its first width back when it had none left.
    void ShowColumn(int column, bool show);
    // Puts the columns in this order of their indexes; columns left out keep their places after them.
    void SetColumnOrder(const QList<int>& columns);
    // The column indexes in the order the user sees them.
    QList<int> ColumnOrder() const;

    // ---- Settings ----
    // The settings key of the page that owns the grid (FormRegistryKey); empty: the grid keeps nothing.
    void SetRegistryKey(const QString& key) { mRegistryKey = key; }
    QString RegistryKey() const { return mRegistryKey; }
    // The key below which opening and closing a group is stored by the group's text; empty: not stored.
    void SetGroupKey(const QString& key) { mGroupKey = key; }
    QString GroupKey() const { return mGroupKey; }

    // ---- Look ----
    // Shows each row's notes on a line of its own under the row.
    void SetRowTextVisible(bool visible);
    bool RowTextVisible() const { return mRowTextVisible; }
    // Lets a click on a header sort the records (inside their groups).
    void SetSortable(bool sortable);
    int LineHeight() const;

    // ---- Rows ----
    QModelIndex ToSource(const QModelIndex& index) const;
    QModelIndex FromSource(const QModelIndex& index) const;
    // The row the user works on: the current row when it is selected, else the first selected row.
    QModelIndex SelectedRow() const;
    // Every selected row (source indexes, column 0) in the grid's order, group rows included.
    QList<QModelIndex> SelectedRows() const;
    // Selects this one row (a source index), makes it current and brings it into view.
    void SelectOnly(const QModelIndex& source);
    // Opens or closes one group and stores the state when the grid has a group key.
    void SetGroupExpanded(clsGridRow& group, bool expanded);
    // Gives the view the open state of every group from the model, after a fill or a search.
    void ApplyGroupState();

public slots:
    // Ctrl+A: every record row, never a group row.
    void selectAll() override;

signals:
    void GroupToggled(const QString& groupText, bool expanded);

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void AfterReset();
    void OnExpandedChanged(const QModelIndex& index, bool expanded);
    void UpdateRowHeights();
    void ApplyGroupRows(int first, int last);
    int NotesIndent() const;
    bool HasShownRowText(const QModelIndex& index) const;
    void DrawRowText(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    friend class clsGridDelegate;
    clsGridModel* mModel;
    clsGridProxy* mProxy;
    QString mRegistryKey;
    QString mGroupKey;
    bool mRowTextVisible = true;
    bool mApplyingGroups = false;
};
