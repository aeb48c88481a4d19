#pragma once

#include "guests/clsCONTACT.h"
#include "shell/frmEditorBase.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;
class clsParseName;
class usrDropdown;
class usrHyperlink;

// The editor of one contact: a new person, an existing one, or a copy for another person of the
// same household. Each save tells the opener by Added or Updated with the CONTACT_ID; a role added or
// renamed from here raises OptionsChanged. Children carry their names: "cbo_0" title, "txt_1" full
// name (with the link "linkFullName"), "txt_2" address, "txt_3" nickname, "txt_4" e-mail, "txt_5" and
// "txt_6" telephones, "cbo_7" A-B list, "cbo_8" friend of, "usr_9" role, "optGender_0" male,
// "optGender_1" female, "chkCHILD_FG", "chkOUT_OF_TOWNER_FG", "txt_10" notes, "picMapIt", "lblHeader",
// "lblGuestOf", "imgContact", and the buttons "cmd_0" Save and New, "cmd_1" Save, "cmd_2" Cancel.
class frmContact : public frmEditorBase {
    Q_OBJECT

public:
    enum class Mode { Add, Edit, Copy };

    // An empty id opens a new contact; with Copy the id names the person whose household is copied.
    explicit frmContact(const QString& contactId = QString(), QWidget* parent = nullptr,
                        Mode mode = Mode::Edit);

    // A new contact for a given role (a parent, say); the role list shows it.
    void SetRole(const QString& roleId);

    const clsCONTACT& Contact() const { return mContact; }

    // Makes this editor the one that the invitation and reply editors open (modContactEditor).
    static void RegisterEditor();

    // The text the full-name box shows for a copy until the first name is typed.
    static QString FirstNamePlaceholder() { return QStringLiteral("[FirstName]"); }

signals:
    void OptionsChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mContact.CONTACT_ID; }
    // After the husband comes the wife: the next person of the household.
    void StartNew() override;

private:
    QWidget* BuildHeader();
    QWidget* BuildNameGroup();
    QWidget* BuildAddressGroup();
    QWidget* BuildGuestListGroup();
    QWidget* BuildNotesGroup();
    QWidget* BuildButtons();
    void SetTabOrder();
    void ConnectChanges();

    void LoadContact(const QString& contactId, Mode mode);
    void ShowContact();
    void ShowHeader();

    bool TitleIsOneIndividual(const QString& title);
    bool NamesAreComplete();
    void StoreControls();

    void CommitFullName(bool mayAskForParts);
    void ShowCheckName();
    void mfrmCheckName_NameChecked(const clsParseName& name);
    void cbo_0_Change(const QString& title);
    void picMapIt_Click();
    void usr_9_AddClick();
    void usr_9_EditClick();
    void EditRole(bool isNew);
    void ShowPicture();
    QString CleanAddress() const;

    clsCONTACT mContact;
    bool mCommittingName = false;

    QLabel* mPicture = nullptr;
    QLabel* mHeader = nullptr;
    QLabel* mGuestOf = nullptr;
    QComboBox* mTitle = nullptr;
    usrHyperlink* mFullNameLink = nullptr;
    QLineEdit* mFullName = nullptr;
    QPlainTextEdit* mAddress = nullptr;
    usrHyperlink* mMapIt = nullptr;
    QLineEdit* mNick = nullptr;
    QLineEdit* mEmail = nullptr;
    QLineEdit* mPhone = nullptr;
    QLineEdit* mPhone2 = nullptr;
    QComboBox* mABList = nullptr;
    QComboBox* mFriendOf = nullptr;
    usrDropdown* mRole = nullptr;
    QRadioButton* mMale = nullptr;
    QRadioButton* mFemale = nullptr;
    QCheckBox* mChild = nullptr;
    QCheckBox* mOutOfTowner = nullptr;
    QPlainTextEdit* mNotes = nullptr;
};
