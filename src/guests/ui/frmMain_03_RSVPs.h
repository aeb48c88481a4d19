#pragma once

#include "shell/usrListPage.h"

class clsINVITE;

// The replies: one row per sent invitation with how many of its people come, a panel that filters
// by reply and counts the guests, and the reply editor behind a double click.
class frmMain_03_RSVPs : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_03_RSVPs(QWidget* parent = nullptr);

    // The actions of the row above the grid, by index.
    enum ActionIndex : int {
        OpenRSVP = 0,
        CustomizeMeals,
        PrintReports,
        OpenReportsFolder,
        CustomizeColumns,
    };

    // The grid's columns, in their first order.
    enum Column : int { ICO = 0, RSVP_ID, INVITATION, AB, RECEIVED_FG, NUMBER_ATTENDING, ColumnCount };

    // "No reply" until the reply is in, then "2 / 3": the people coming of the people invited.
    static QString AttendingText(const clsINVITE& invite);

public slots:
    // The reply editor saved: the row and the counts follow.
    void mfrmRSVP_RSVPUpdated(const QString& inviteId);

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    int ShareBaseOf(int filterId) const override;

private:
    void BuildActions();
    void OpenEditor(const QString& inviteId);
    void SetRowCells(const QModelIndex& row, const clsINVITE& invite);
};
