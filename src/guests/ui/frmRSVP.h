#pragma once

#include "guests/clsINVITE.h"

#include <QDialog>
#include <QList>

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class usrDropdown;
class usrHyperlink;

// The reply to one invitation: received or not, and for every person on it whether they come and
// what they eat. Children: "lblHeader", "lblRSVPID" ("# 12"), "lblInvitation", "imgRSVPClosed",
// "imgRSVPOpen", "chkRSVP_RECEIVED_FG", and per person (from 0) "linkContact_i", "chkATTENDING_FG_i",
// "usrMEAL_i"; "lblSummary", "cmdSave", "cmdCancel".
class frmRSVP : public QDialog {
    Q_OBJECT

public:
    explicit frmRSVP(const QString& inviteId, QWidget* parent = nullptr);

    const clsINVITE& Invite() const { return mInvite; }
    int AttendingCount() const;
    // Writes the reply: the received flag on the invitation, attendance and meal on each person, all
    // or nothing. A person who does not come keeps no meal and no seat. False after a message.
    bool SaveRSVP();
    bool IsDirty() const;

signals:
    void RSVPUpdated(const QString& inviteId);

public slots:
    void mfrmContact_Updated(const QString& contactId);
    void reject() override;

private:
    struct Line {
        usrHyperlink* Name = nullptr;
        QCheckBox* Attending = nullptr;
        usrDropdown* Meal = nullptr;
    };

    QWidget* BuildTop();
    QWidget* BuildLines();
    void AddLine(QGridLayout* grid, int index, const clsCONTACT& person);
    void RefreshEnabling();
    void RefreshSummary();

    clsINVITE mInvite;
    QList<Line> mLines;
    QCheckBox* mReceived = nullptr;
    QLabel* mClosed = nullptr;
    QLabel* mOpen = nullptr;
    QLabel* mSummary = nullptr;
    QPushButton* mSave = nullptr;
};
