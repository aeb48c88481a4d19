#pragma once

#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "shell/frmEditorBase.h"

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QWidget;
class usrGuestList;
class usrHyperlink;

// The editor of one invitation: people are put on the envelope by dragging them from the contacts
// who have no invitation ("lvw_0") to the list of the invitation ("lvw_1"), or by a double click or
// Enter; the envelope wording follows at once, unless the user switches the suggestion off and types
// it. Children by name: "lblHeader", "lblList_0"/"lblList_1" (the headings with counts), "lvw_0",
// "lvw_1", "linkUpDown_0" (up), "linkUpDown_1" (down), "linkAdd", "linkEdit", "chkAND_GUEST",
// "chkINVITE_SENT_FG", "chkAUTO_UPDATE_FG", "txt_0" (outer names), "txt_1" (address), "txt_2"
// (inner), "txt_3" (RSVP ID), "fraRSVP", "imgRSVP", "linkEtiquette", "lblOuter", "lblInner",
// "cmdSave", "cmdCancel".
class frmInvite : public frmEditorBase {
    Q_OBJECT

public:
    // An empty id makes a new invitation.
    explicit frmInvite(const QString& inviteId = QString(), QWidget* parent = nullptr);

    bool IsAddMode() const { return IsAdding(); }
    // The invitation as it stands in the editor, with its people in order.
    const clsINVITE& Invite() const { return mInvite; }
    const QList<clsCONTACT>& People() const { return mPeople; }
    // The people not on any invitation, as listed above.
    const QList<clsCONTACT>& Candidates() const { return mCandidates; }

    // Puts people of the upper list on the invitation, before the given row (-1: at the end).
    void AddPeople(const QStringList& contactIds, int row = -1);
    // Takes people off the invitation; a guest they bring goes with them.
    void RemovePeople(const QStringList& contactIds);
    // Moves the selected people of the invitation up (-1) or down (+1).
    void MoveSelected(int delta);

signals:
    // The etiquette changed while the editor was open; every inner envelope was written again.
    void EtiquetteUpdated();

public slots:
    void mfrmContact_Added(const QString& contactId);
    void mfrmContact_Updated(const QString& contactId);
    void mfrmOptions_EtiquetteUpdated();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QStringList Snapshot() const override;
    // Saves the invitation and its people all or nothing. False, with the form left as it is, when
    // anything is refused or fails.
    bool SaveRecord() override;
    QString RecordKey() const override { return mInvite.INVITE_ID; }
    QString CloseQuestion() const override;

private:
    // ---- Building ----
    QWidget* BuildLists();
    QWidget* BuildEnvelope();
    QWidget* BuildBottom();
    void BuildMenu();
    void AddShortcuts();

    // ---- Loading and showing ----
    void LoadInvitation(const QString& inviteId);
    void LoadCandidates();
    void ShowLists();
    void RefreshWording();
    void RefreshAndGuest();
    void RefreshEtiquetteLink();
    void RefreshEnabling();

    // ---- Events of the controls ----
    void chkAND_GUEST_Click(bool checked);
    void chkINVITE_SENT_FG_Click(bool checked);
    void chkAUTO_UPDATE_FG_Click(bool checked);
    void txtAddress_DblClick();
    void linkEtiquette_Click();
    void OpenContact(const QString& contactId);
    void EditSelectedContact();
    void SetTitleOfSelected(const QString& title);
    void ShowMenu(usrGuestList* list, const QPoint& position);
    void ShowTip();

    // ---- Rules ----
    clsCONTACT MakeAndGuest(const clsCONTACT& host) const;
    bool HasBroughtGuest() const;
    void TakeControls(clsINVITE& invite) const;

    clsINVITE mInvite;
    QList<clsCONTACT> mPeople;
    QList<clsCONTACT> mCandidates;
    bool mUpdatingChecks = false;

    std::array<QLabel*, 2> mListHeadings{};
    usrGuestList* mUpper = nullptr;
    usrGuestList* mLower = nullptr;
    std::array<usrHyperlink*, 2> mUpDown{};
    usrHyperlink* mAddLink = nullptr;
    usrHyperlink* mEditLink = nullptr;
    QCheckBox* mAndGuest = nullptr;
    QCheckBox* mSent = nullptr;
    QCheckBox* mAutoUpdate = nullptr;
    QLineEdit* mOuter = nullptr;
    QPlainTextEdit* mAddress = nullptr;
    QLineEdit* mInner = nullptr;
    QLineEdit* mRsvpId = nullptr;
    QWidget* mRsvpFrame = nullptr;
    QLabel* mRsvpLocked = nullptr;
    usrHyperlink* mEtiquette = nullptr;
    QMenu* mMenu = nullptr;
};
