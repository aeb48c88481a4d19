#include "guests/ui/frmRemarriedTo.h"

#include "guests/clsCONTACT.h"
#include "guests/ui/frmContact.h"
#include "guests/ui/modGuestEditors.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const QString kContactsQuery =
    QStringLiteral("SELECT CONTACT_ID, LAST_NM || ', ' || FIRST_NM FROM CONTACT ORDER BY LAST_NM, FIRST_NM");
} // namespace

frmRemarriedTo::frmRemarriedTo(int roleId, QWidget* parent) : QDialog(parent), mRoleId(roleId) {
    setObjectName(QStringLiteral("frmRemarriedTo"));
    setWindowTitle(QStringLiteral("Remarried To"));
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(QStringLiteral("Remarried To"));

    auto* role = new QLabel(RoleCaption(roleId), this);
    role->setObjectName(QStringLiteral("lbl_0"));
    mContacts = new usrDropdown(this);
    mContacts->setObjectName(QStringLiteral("usrCONTACTS"));
    mContacts->ComboBox()->setMinimumContentsLength(28);
    auto* nameLabel = new QLabel(QStringLiteral("&Name"), this);
    nameLabel->setObjectName(QStringLiteral("lbl_1"));
    nameLabel->setBuddy(mContacts->ComboBox());
    auto* add = new usrHyperlink(QStringLiteral("Add new contact"), this);
    add->setObjectName(QStringLiteral("linkAddContact"));
    add->setPicture(ControlIcons::Plus());
    add->setToolTip(QStringLiteral("The new spouse is not a contact yet"));
    connect(add, &usrHyperlink::Click, this, [this] { linkAddContact_Click(); });

    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* roleLabel = new QLabel(QStringLiteral("Parent"), this);
    form->addRow(roleLabel, role);
    form->addRow(nameLabel, mContacts);
    form->addRow(QString(), add);

    QDialogButtonBox* buttons = modGuestEditors::OkCancelButtons(this, [this] { cmdOK_Click(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addLayout(form);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    LoadContacts();
    mContacts->ComboBox()->setFocus();
}

QString frmRemarriedTo::RoleCaption(int roleId) {
    switch (roleId) {
    case 3:
        return QStringLiteral("Father of the Bride");
    case 4:
        return QStringLiteral("Mother of the Bride");
    case 5:
        return QStringLiteral("Father of the Groom");
    case 6:
        return QStringLiteral("Mother of the Groom");
    default:
        return {};
    }
}

QString frmRemarriedTo::SelectedContactId() const {
    return mContacts->Code();
}

void frmRemarriedTo::LoadContacts() {
    const QString chosen = mContacts->Code();
    mContacts->PopulateSQL(kContactsQuery);
    mContacts->setCode(chosen);
}

void frmRemarriedTo::mfrmContact_Added(const QString& contactId) {
    LoadContacts();
    mContacts->setCode(contactId);
}

void frmRemarriedTo::mfrmContact_Updated(const QString& contactId) {
    Q_UNUSED(contactId);
    LoadContacts();
}

void frmRemarriedTo::linkAddContact_Click() {
    frmContact editor(QString(), this);
    connect(&editor, &frmContact::Added, this, &frmRemarriedTo::mfrmContact_Added);
    editor.exec();
}

void frmRemarriedTo::cmdOK_Click() {
    const QString contactId = SelectedContactId();
    if (!RecordIO::Attempt([this, &contactId] { clsCONTACT::SaveRole(contactId, QString::number(mRoleId)); }))
        return;
    emit NameSelected(contactId);
    accept();
}
