#pragma once

#include "planning/clsGIFT.h"
#include "shell/frmEditorBase.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QRadioButton;
class usrDropdown;
class usrDate;
class usrHyperlink;

// One gift: from a contact or from a whole invitation, chosen in a list with the giver's address shown,
// at an event, received on a day (or not yet known), and whether the thank-you note went out. Save is
// offered once something changed and the gift, the event and the giver are filled. "Save And New"
// keeps the event and the kind of giver.
class frmGift : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds a new gift.
    explicit frmGift(const QString& giftId, QWidget* parent = nullptr);

    enum GiverKind : int { FromContact = 0, FromInvitation = 1 };
    // "CONTACT12 ID" or "INVITE4 ID": the key of a row of the list.
    static QString RowKey(GiverKind kind, const QString& id);

    const clsGIFT& Gift() const { return mGift; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mGift.GIFT_ID; }
    void StartNew() override;

private:
    void BuildControls();
    void LoadGift();
    void FillGivers();
    void ShowGiver();
    void SelectGiver(const QString& rowKey);
    GiverKind Kind() const;
    QString GiverId() const;
    void RefreshEnabling();
    // Adds a person through the contact editor and makes them the giver.
    void linkAddContact_Click();

    clsGIFT mGift;
    QRadioButton* optContact;
    QRadioButton* optInvitation;
    QLabel* lblList;
    QListWidget* lvw;
    usrHyperlink* linkAddContact;
    QPlainTextEdit* txtAddress;
    usrDropdown* usrEVENT;
    usrDate* usrRECEIVED_DT;
    QLineEdit* txtGIFT_TX;
    QCheckBox* chk;
    QPlainTextEdit* txtNOTES_TX;
};
