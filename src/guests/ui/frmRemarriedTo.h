#pragma once

#include <QDialog>

class QLabel;
class usrDropdown;

// Names who a remarried parent's new spouse is. It lists every contact by last and first name, with a
// link to add a new one; OK gives the chosen contact the role and tells the opener by NameSelected
// (an empty id when nobody is chosen). Children: "lblHeader", "lbl_0" (the parent's role), "lbl_1",
// "usrCONTACTS", "linkAddContact", "cmdOK", "cmdCancel".
class frmRemarriedTo : public QDialog {
    Q_OBJECT

public:
    // The role of the parent: 3 to 6.
    explicit frmRemarriedTo(int roleId, QWidget* parent = nullptr);

    // "Father of the Bride" ... "Mother of the Groom" for the roles 3 to 6, "" otherwise.
    static QString RoleCaption(int roleId);

    QString SelectedContactId() const;

signals:
    void NameSelected(const QString& contactId);

public slots:
    // A contact added from here joins the list, chosen.
    void mfrmContact_Added(const QString& contactId);
    void mfrmContact_Updated(const QString& contactId);

private:
    void LoadContacts();
    void linkAddContact_Click();
    void cmdOK_Click();

    int mRoleId;
    usrDropdown* mContacts = nullptr;
};
