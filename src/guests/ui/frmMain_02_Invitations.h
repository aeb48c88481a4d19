#pragma once

#include "shell/usrListPage.h"

class clsINVITE;
class QMenu;

// The envelopes: one row per invitation with its wording, the filter panel with counts, and the
// commands on them: add, edit, delete, mark as sent, and the sort and lock of the RSVP IDs.
class frmMain_02_Invitations : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_02_Invitations(QWidget* parent = nullptr);

    // The actions of the row above the grid, by index.
    enum ActionIndex : int {
        AddInvitation = 0,
        EditInvitation,
        DeleteInvitation,
        MarkAsSent,
        SortRSVPIDs,
        LockRSVPIDs,
        PrintReports,
        OpenReportsFolder,
        CustomizeColumns,
    };

    // The grid's columns, in their first order.
    enum Column : int {
        ICO = 0,
        RSVP_ID,
        INVITATION,
        OUTER_ENVELOPE,
        INNER_ENVELOPE,
        CONTACTS_NB,
        A_B,
        INVITE_SENT,
        ColumnCount
    };

    // Sets (sent true) or clears the sent flag of the selected invitations, all or nothing. An
    // invitation without an address is never changed here; marking one as sent is refused with a
    // message. The number of invitations saved.
    int MarkSelectedSent(bool sent);
    // Deletes the selected unsent invitations after asking; sent ones stay, and their count is told.
    // The number deleted.
    int DeleteSelected();
    // Locks the RSVP IDs at once; unlocking asks first.
    void ToggleLock();
    // The context menu as it stands for the selection (not shown).
    QMenu* ContextMenu() const { return mMenu; }

public slots:
    // What the editors raise: the row is refreshed or added, and the counts follow.
    void mfrmInvite_Added(const QString& inviteId);
    void mfrmInvite_Updated(const QString& inviteId);
    void mfrmInvite_EtiquetteUpdated();
    void mfrmInviteRSVPIDs_RSVPIDsChanged();

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;

private:
    void BuildActions();
    void BuildMenu();
    void OpenEditor(const QString& inviteId);
    void OpenSort();
    void SetRowCells(const QModelIndex& row, const clsINVITE& invite);
    void RefreshRow(const QString& inviteId);

    QMenu* mMenu = nullptr;
};
