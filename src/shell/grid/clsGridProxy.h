#pragma once

#include <QSortFilterProxyModel>

class clsGridModel;

// Between the grid's rows and its view: leaves out the rows flagged hidden (a search, a page's own
// hiding), and sorts records by a click on a header in the way their column's kind asks for. Group rows
// keep the order in which they were filled, whatever the sort.
class clsGridProxy : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit clsGridProxy(clsGridModel* model, QObject* parent = nullptr);
    clsGridModel* Model() const { return mModel; }
    // Takes up the hidden flags after they changed; one update of the view for all rows.
    void RefreshHidden();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    clsGridModel* mModel;
};
