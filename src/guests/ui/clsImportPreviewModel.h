#pragma once

#include "guests/clsContactImport.h"

#include <QAbstractTableModel>
#include <QIcon>

// The rows of an import before they are written, for lvwTop: a tick and the duplicate mark in the first
// column, the name and address as the lists show them, and the parts behind them in hidden columns.
class clsImportPreviewModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column : int {
        ICO = 0,
        Name,
        HiddenTitle,
        HiddenFirst,
        HiddenMiddle,
        HiddenLast,
        HiddenSuffix,
        Address,
        HiddenAddress,
        HiddenCity,
        HiddenState,
        HiddenZip,
        HiddenCountry,
        Nickname,
        Email,
        Phone,
        Phone2,
        AB,
        FriendOf,
        Gender,
        Child,
        OutOfTowner,
        Notes,
        RSVPID,
        ColumnCount
    };

    explicit clsImportPreviewModel(QObject* parent = nullptr);

    void SetRows(QList<clsImportRow> rows);
    const QList<clsImportRow>& Rows() const { return mRows; }
    int TickedCount() const;
    int DuplicateCount() const;
    // Ticks every row, none, or turns each tick over.
    void TickAll(bool ticked);
    void InvertTicks();
    static bool IsHidden(int column);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    void TicksChanged();

private:
    QList<clsImportRow> mRows;
    QIcon mDuplicate;

    QString Text(const clsImportRow& row, int column) const;
    void TicksRewritten();
};
