#pragma once

#include <QDialog>

class QPushButton;

// Numbers the invitations: every unsent invitation gets a number from 1 upward, by invitation name,
// passing over the numbers that sent invitations carry already. While the RSVP IDs are locked the
// sort cannot run. Children: "lblText", "lblWhy", "lblWhyText", "linkSample", "lblLocked", "cmdSort",
// "cmdClose".
class frmInviteRSVPIDs : public QDialog {
    Q_OBJECT

public:
    explicit frmInviteRSVPIDs(QWidget* parent = nullptr);

    // Runs the sort (all or nothing), tells the opener and closes. False, with the dialog left open,
    // when the IDs are locked or the sort failed.
    bool SortRSVPIDs();

signals:
    void RSVPIDsChanged();

private:
    QPushButton* mSort = nullptr;
};
