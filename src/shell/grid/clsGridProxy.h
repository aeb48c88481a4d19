#pragma once

#include <QSortFilterProxyModel>

class clsGridModel;
struct clsGridRow;

// Between the grid's rows and its view: keeps the records a search finds, with the groups over them, and
// sorts records by a click on a header by the value each cell was given beside its text. Group rows keep
// the order in which they were filled, whatever the sort.
class clsGridProxy : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit clsGridProxy(clsGridModel* model, QObject* parent = nullptr);
    clsGridModel* Model() const { return mModel; }
    // Keeps the records with a cell among the first columnCount columns (-1: all) that holds the text in
    // any case of letters; icon columns are not looked at. An empty text keeps every row.
    void SetSearch(const QString& text, int columnCount = -1);
    QString Search() const { return mSearch; }
    // The records the view shows now.
    int ShownRecords() const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    bool Matches(const clsGridRow& row) const;

    clsGridModel* mModel;
    QString mSearch;
    QList<int> mSearchColumns;
};
