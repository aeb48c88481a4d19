#pragma once

#include "guests/clsINVITE.h"
#include "shell/frmEditorBase.h"

#include <QList>

class QCheckBox;
class QGridLayout;
class QLabel;
class usrDropdown;
class usrHyperlink;

// The reply to one invitation: received or not, and for every person on it whether they come and
// what they eat. Children: "lblHeader", "lblRSVPID" ("# 12"), "lblInvitation", "imgRSVPClosed",
// "imgRSVPOpen", "chkRSVP_RECEIVED_FG", and per person (from 0) "linkContact_i", "chkATTENDING_FG_i",
// "usrMEAL_i"; "lblSummary", "cmdSave", "cmdCancel".
class frmRSVP : public frmEditorBase {
    Q_OBJECT

public:
    explicit frmRSVP(const QString& inviteId, QWidget* parent = nullptr);

    const clsINVITE& Invite() const { return mInvite; }
    int AttendingCount() const;

signals:
    void RSVPUpdated(const QString& inviteId);

public slots:
    void mfrmContact_Updated(const QString& contactId);

protected:
    QStringList Snapshot() const override;
    // Writes the reply: the received flag on the invitation, attendance and meal on each person, all
    // or nothing.
    bool SaveRecord() override;
    QString RecordKey() const override { return mInvite.INVITE_ID; }

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
};
