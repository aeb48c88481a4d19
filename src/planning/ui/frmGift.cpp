#include "planning/ui/frmGift.h"

#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDate.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modContactEditor.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int kKeyRole = Qt::UserRole;
constexpr int kAddressRole = Qt::UserRole + 1;
constexpr int kIdRole = Qt::UserRole + 2;

} // namespace

QString frmGift::RowKey(GiverKind kind, const QString& id) {
    return (kind == FromContact ? QStringLiteral("CONTACT") : QStringLiteral("INVITE")) + id +
           QStringLiteral(" ID");
}

frmGift::frmGift(const QString& giftId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmGift"));
    SetRecordNoun(QStringLiteral("Gift"));
    SetAdding(giftId.isEmpty());
    if (!giftId.isEmpty())
        RecordIO::Attempt([&] { mGift.OpenRecord(giftId); });
    BuildControls();
    LoadGift();
    MarkClean();
    RefreshEnabling();
    resize(640, 520);
}

void frmGift::BuildControls() {
    optContact = new QRadioButton(QStringLiteral("Contact"), this);
    optContact->setObjectName(QStringLiteral("opt_0"));
    optInvitation = new QRadioButton(QStringLiteral("Invitation"), this);
    optInvitation->setObjectName(QStringLiteral("opt_1"));
    auto* kinds = new QButtonGroup(this);
    kinds->addButton(optContact, FromContact);
    kinds->addButton(optInvitation, FromInvitation);
    lblList = new QLabel(this);
    lvw = new QListWidget(this);
    lvw->setObjectName(QStringLiteral("lvw"));
    linkAddContact = new usrHyperlink(QStringLiteral("Add new contact"), this);
    linkAddContact->setObjectName(QStringLiteral("linkAddContact"));
    linkAddContact->setEnabled(modContactEditor::Available());
    txtAddress = new QPlainTextEdit(this);
    txtAddress->setObjectName(QStringLiteral("txtAddress"));
    txtAddress->setReadOnly(true);
    usrEVENT = new usrDropdown(this);
    usrEVENT->setObjectName(QStringLiteral("usrEVENT"));
    usrEVENT->PopulateSQL(QStringLiteral("SELECT EVENT_ID, EVENT_TX FROM EVENT ORDER BY EVENT_ID"));
    usrRECEIVED_DT = new usrDate(this);
    usrRECEIVED_DT->setObjectName(QStringLiteral("usrRECEIVED_DT"));
    txtGIFT_TX = new QLineEdit(this);
    txtGIFT_TX->setObjectName(QStringLiteral("txtGIFT_TX"));
    chk = new QCheckBox(QStringLiteral("Thank You Sent"), this);
    chk->setObjectName(QStringLiteral("chk"));
    txtNOTES_TX = new QPlainTextEdit(this);
    txtNOTES_TX->setObjectName(QStringLiteral("txtNOTES_TX"));
    txtNOTES_TX->setTabChangesFocus(true);

    auto* giver = new QVBoxLayout;
    giver->addWidget(modLayout::BoldLabel(QStringLiteral("Gift from"), this));
    auto* kindRow = new QHBoxLayout;
    kindRow->addWidget(optContact);
    kindRow->addWidget(optInvitation);
    kindRow->addStretch(1);
    giver->addLayout(kindRow);
    giver->addWidget(lblList);
    giver->addWidget(lvw, 1);
    giver->addWidget(linkAddContact);
    QFormLayout* form = modLayout::Form(nullptr);
    modLayout::CaptionedRow(form, QStringLiteral("Address"), txtAddress);
    modLayout::CaptionedRow(form, QStringLiteral("&Event"), usrEVENT);
    modLayout::CaptionedRow(form, QStringLiteral("&Received"), usrRECEIVED_DT);
    modLayout::CaptionedRow(form, QStringLiteral("&Gift"), txtGIFT_TX);
    form->addRow(QString(), chk);
    modLayout::CaptionedRow(form, QStringLiteral("&Notes"), txtNOTES_TX);
    auto* columns = new QHBoxLayout;
    columns->addLayout(giver, 1);
    columns->addLayout(form, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Header());
    layout->addLayout(columns, 1);
    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveAndNew");
    names.SaveAndNewCaption = QStringLiteral("Save And New");
    layout->addWidget(ButtonRow(names));

    connect(kinds, &QButtonGroup::idToggled, this, [this](int, bool on) {
        if (on)
            FillGivers();
    });
    connect(lvw, &QListWidget::currentRowChanged, this, [this] {
        ShowGiver();
        RefreshEnabling();
    });
    connect(linkAddContact, &usrHyperlink::Click, this, &frmGift::linkAddContact_Click);
    connect(usrEVENT, &usrDropdown::Click, this, &frmGift::RefreshEnabling);
    connect(usrRECEIVED_DT, &usrDate::Changed, this, &frmGift::RefreshEnabling);
    connect(txtGIFT_TX, &QLineEdit::textChanged, this, &frmGift::RefreshEnabling);
    connect(chk, &QCheckBox::toggled, this, &frmGift::RefreshEnabling);
    connect(txtNOTES_TX, &QPlainTextEdit::textChanged, this, &frmGift::RefreshEnabling);
}

// An existing gift opens on the kind of its giver; a new one on "Contact" with no date.
void frmGift::LoadGift() {
    const bool invitation = !mGift.INVITE_ID.isEmpty();
    (invitation ? optInvitation : optContact)->setChecked(true);
    SelectGiver(invitation ? RowKey(FromInvitation, mGift.INVITE_ID) : RowKey(FromContact, mGift.CONTACT_ID));
    usrEVENT->setCode(mGift.EVENT_ID);
    usrRECEIVED_DT->SetDate(ParseDateTimeText(mGift.RECEIVED_DT).date());
    txtGIFT_TX->setText(mGift.GIFT_TX);
    chk->setChecked(mGift.THANK_YOU_SENT_FG == QLatin1String("Y"));
    txtNOTES_TX->setPlainText(mGift.NOTES_TX);
}

void frmGift::FillGivers() {
    lvw->clear();
    if (Kind() == FromContact) {
        lblList->setText(QStringLiteral("Contacts"));
        for (const clsCONTACT& contact : RecordIO::Read([] { return clsCONTACT::OpenRecords(0); })) {
            auto* item = new QListWidgetItem(contact.LastFirstMiddleSuffix(), lvw);
            item->setData(kKeyRole, RowKey(FromContact, contact.CONTACT_ID));
            item->setData(kIdRole, contact.CONTACT_ID);
            item->setData(kAddressRole, QString(contact.TitleFirstMiddleLastSuffix() +
                                                QStringLiteral("\r\n") + contact.DisplayAddress(true)));
        }
    } else {
        lblList->setText(QStringLiteral("Invitations"));
        for (const clsINVITE& invite : RecordIO::Read([] { return clsINVITE::OpenRecords(0, true); })) {
            auto* item = new QListWidgetItem(invite.DISPLAY_AS_TX, lvw);
            item->setData(kKeyRole, RowKey(FromInvitation, invite.INVITE_ID));
            item->setData(kIdRole, invite.INVITE_ID);
            item->setData(kAddressRole, invite.OUTER_ENVELOPE_TX_AND_OUTER_ENVELOPE_ADDRESS_TX(true));
        }
    }
    ShowGiver();
    RefreshEnabling();
}

void frmGift::SelectGiver(const QString& rowKey) {
    for (int row = 0; row < lvw->count(); ++row) {
        if (lvw->item(row)->data(kKeyRole).toString() == rowKey) {
            lvw->setCurrentRow(row);
            return;
        }
    }
}

void frmGift::ShowGiver() {
    const QListWidgetItem* item = lvw->currentItem();
    txtAddress->setPlainText(
        item ? item->data(kAddressRole).toString().replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
             : QString());
}

void frmGift::linkAddContact_Click() {
    const QString id = modContactEditor::OpenForKey(this, QString());
    if (id.isEmpty())
        return;
    if (optContact->isChecked())
        FillGivers();
    else
        optContact->setChecked(true); // fills the contacts
    SelectGiver(RowKey(FromContact, id));
}

frmGift::GiverKind frmGift::Kind() const {
    return optInvitation->isChecked() ? FromInvitation : FromContact;
}

QString frmGift::GiverId() const {
    const QListWidgetItem* item = lvw->currentItem();
    return item == nullptr ? QString() : item->data(kIdRole).toString();
}

QStringList frmGift::Snapshot() const {
    return {QString::number(Kind()),   GiverId(),          usrEVENT->Code(),
            usrRECEIVED_DT->Text(),    txtGIFT_TX->text(), QString::number(chk->isChecked()),
            txtNOTES_TX->toPlainText()};
}

void frmGift::RefreshEnabling() {
    const bool ready = IsDirty() && !txtGIFT_TX->text().trimmed().isEmpty() && !usrEVENT->Code().isEmpty() &&
                       !GiverId().isEmpty();
    SaveButton()->setEnabled(ready);
    SaveAndNewButton()->setEnabled(ready);
}

bool frmGift::SaveRecord() {
    clsGIFT gift = mGift;
    gift.CONTACT_ID = Kind() == FromContact ? GiverId() : QString();
    gift.INVITE_ID = Kind() == FromInvitation ? GiverId() : QString();
    gift.EVENT_ID = usrEVENT->Code();
    gift.RECEIVED_DT = usrRECEIVED_DT->Text();
    gift.GIFT_TX = txtGIFT_TX->text().trimmed();
    gift.THANK_YOU_SENT_FG = chk->isChecked() ? QStringLiteral("Y") : QStringLiteral("N");
    gift.NOTES_TX = txtNOTES_TX->toPlainText();
    if (!RecordIO::Attempt([&] { gift.Save(IsAdding()); }))
        return false;
    mGift = gift;
    return true;
}

// The gift, notes, date and check box go; the event and the kind of giver stay.
void frmGift::StartNew() {
    mGift = clsGIFT();
    txtGIFT_TX->clear();
    txtNOTES_TX->clear();
    usrRECEIVED_DT->SetDate(QDate());
    chk->setChecked(false);
    txtGIFT_TX->setFocus();
}
