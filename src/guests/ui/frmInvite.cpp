#include "guests/ui/frmInvite.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/ui/frmInviteTip.h"
#include "shell/modContactEditor.h"
#include "guests/ui/modGuestEditors.h"
#include "guests/ui/usrGuestList.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/options/frmOptions.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

const QString kAddressHint = QStringLiteral("(Double-click to enter Primary Address)");
const QString kAddressNeeded =
    QStringLiteral("Primary Address Needed before Invitation can be marked as 'Sent'.");
const QString kAndGuest = QStringLiteral("And &Guest");
const QString kNoTitle = QStringLiteral("(No Title)");

qsizetype IndexOf(const QList<clsCONTACT>& people, const QString& contactId) {
    for (qsizetype i = 0; i < people.size(); ++i) {
        if (usrGuestList::RowKey(people.at(i)) == contactId)
            return i;
    }
    return -1;
}

// The order of the upper list: the order in which OpenRecords gives the contacts.
bool ByName(const clsCONTACT& a, const clsCONTACT& b) {
    const auto key = [](const clsCONTACT& c) {
        return QStringList{c.LAST_NM.toCaseFolded(), c.FIRST_NM.toCaseFolded(), c.MIDDLE_NM.toCaseFolded()};
    };
    return key(a) < key(b);
}

// The keys of saved people among the keys of rows (a guest not saved yet has no contact to open).
QStringList ContactKeys(const QStringList& rowKeys) {
    QStringList keys;
    for (const QString& key : rowKeys) {
        if (!key.startsWith(QLatin1Char('+')))
            keys << key;
    }
    return keys;
}

} // namespace

frmInvite::frmInvite(const QString& inviteId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmInvite"));
    SetRecordNoun(QStringLiteral("Invitation"));

    auto* body = new QHBoxLayout;
    body->setSpacing(16);
    body->addWidget(BuildLists(), 3);
    auto* right = new QVBoxLayout;
    right->addWidget(BuildEnvelope());
    right->addWidget(BuildBottom());
    right->addStretch(1);
    body->addLayout(right, 2);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Header());
    layout->addLayout(body, 1);
    layout->addWidget(ButtonRow());

    BuildMenu();
    AddShortcuts();
    connect(&gOptionsEvents(), &OptionsEvents::EtiquetteUpdated, this,
            &frmInvite::mfrmOptions_EtiquetteUpdated);

    LoadInvitation(inviteId);
    resize(1000, 660);
    mUpper->setFocus();
}

// ---- Building ---------------------------------------------------------------------------------------

QWidget* frmInvite::BuildLists() {
    auto* panel = new QWidget(this);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);

    mListHeadings[0] = modLayout::BoldLabel(QStringLiteral("lblList_0"), panel);
    mListHeadings[1] = modLayout::BoldLabel(QStringLiteral("lblList_1"), panel);
    mUpper = new usrGuestList(QStringLiteral("Guests to be Invited"), panel);
    mUpper->setObjectName(QStringLiteral("lvw_0"));
    mLower = new usrGuestList(QStringLiteral("Guests on Invitation"), panel);
    mLower->setObjectName(QStringLiteral("lvw_1"));
    mLower->setDeleteHandsOver(true);
    mUpper->setPartner(mLower);
    mLower->setPartner(mUpper);
    mListHeadings[0]->setBuddy(mUpper);
    mListHeadings[1]->setBuddy(mLower);
    mUpper->setToolTip(
        QStringLiteral("Double-click or press Enter to put the selected people on the invitation"));
    mLower->setToolTip(QStringLiteral("Double-click or press Delete to take the selected people off"));

    connect(mLower, &usrGuestList::PeopleDropped, this,
            [this](const QStringList& keys, int row) { AddPeople(keys, row); });
    connect(mUpper, &usrGuestList::HandOver, this, [this](const QStringList& keys) { AddPeople(keys); });
    connect(mUpper, &usrGuestList::PeopleDropped, this,
            [this](const QStringList& keys, int) { RemovePeople(keys); });
    connect(mLower, &usrGuestList::HandOver, this, [this](const QStringList& keys) { RemovePeople(keys); });
    connect(mLower, &QTreeWidget::itemSelectionChanged, this, &frmInvite::RefreshEnabling);
    connect(mUpper, &QTreeWidget::itemSelectionChanged, this, &frmInvite::RefreshEnabling);

    mAddLink = new usrHyperlink(QStringLiteral("Add new contact"), panel);
    mAddLink->setObjectName(QStringLiteral("linkAdd"));
    mAddLink->setPicture(ControlIcons::Plus());
    mAddLink->setToolTip(QStringLiteral("Add a new contact (Ctrl+N)"));
    connect(mAddLink, &usrHyperlink::Click, this, [this] { OpenContact(QString()); });
    mEditLink = new usrHyperlink(QStringLiteral("Edit contact"), panel);
    mEditLink->setObjectName(QStringLiteral("linkEdit"));
    mEditLink->setPicture(ControlIcons::Pencil());
    mEditLink->setToolTip(QStringLiteral("Edit the selected contact (F2)"));
    connect(mEditLink, &usrHyperlink::Click, this, &frmInvite::EditSelectedContact);

    auto* links = new QHBoxLayout;
    links->addWidget(mListHeadings[0]);
    links->addStretch(1);
    links->addWidget(mAddLink);
    links->addSpacing(12);
    links->addWidget(mEditLink);

    auto* hint = new QLabel(QStringLiteral("Drag name(s) to the list below"), panel);
    hint->setObjectName(QStringLiteral("lblHint"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setStyleSheet(QStringLiteral("color: palette(mid); font-style: italic;"));
    auto* hintRow = new QHBoxLayout;
    hintRow->addWidget(modGuestEditors::ArrowLabel(panel, true));
    hintRow->addWidget(hint);
    hintRow->addWidget(modGuestEditors::ArrowLabel(panel, true));
    hintRow->addStretch(1);
    hintRow->insertStretch(0, 1);

    auto* moves = new QVBoxLayout;
    const char* captions[] = {"Move up", "Move down"};
    for (int i = 0; i < 2; ++i) {
        mUpDown[i] = new usrHyperlink(QString::fromLatin1(captions[i]), panel);
        mUpDown[i]->setObjectName(QStringLiteral("linkUpDown_%1").arg(i));
        mUpDown[i]->setPicture(modGuestEditors::ArrowIcon(i == 0));
        mUpDown[i]->setToolTip(i == 0 ? QStringLiteral("Move the selected person up (Ctrl+Up)")
                                      : QStringLiteral("Move the selected person down (Ctrl+Down)"));
        connect(mUpDown[i], &usrHyperlink::Click, this, [this, i] { MoveSelected(i == 0 ? -1 : 1); });
        moves->addWidget(mUpDown[i]);
    }
    moves->addStretch(1);

    mAndGuest = new QCheckBox(kAndGuest, panel);
    mAndGuest->setObjectName(QStringLiteral("chkAND_GUEST"));
    connect(mAndGuest, &QCheckBox::toggled, this, &frmInvite::chkAND_GUEST_Click);

    grid->addLayout(links, 0, 0, 1, 2);
    grid->addWidget(mUpper, 1, 0, 1, 2);
    grid->addLayout(hintRow, 2, 0, 1, 2);
    grid->addWidget(mListHeadings[1], 3, 0, 1, 2);
    grid->addWidget(mLower, 4, 0);
    grid->addLayout(moves, 4, 1);
    grid->addWidget(mAndGuest, 5, 0, 1, 2);
    grid->setRowStretch(1, 3);
    grid->setRowStretch(4, 2);

    for (usrGuestList* list : {mUpper, mLower}) {
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(list, &QWidget::customContextMenuRequested, this,
                [this, list](const QPoint& position) { ShowMenu(list, position); });
    }
    return panel;
}

QWidget* frmInvite::BuildEnvelope() {
    QGroupBox* box = modLayout::Group(QStringLiteral("Envelope"), this, QStringLiteral("fraEnvelope"));
    auto* layout = new QVBoxLayout(box);

    mAutoUpdate = new QCheckBox(QStringLiteral("Auto-suggest &wording"), box);
    mAutoUpdate->setObjectName(QStringLiteral("chkAUTO_UPDATE_FG"));
    mAutoUpdate->setToolTip(QStringLiteral("While ticked, the envelope wording follows the people on the "
                                           "invitation; untick it to type your own"));
    connect(mAutoUpdate, &QCheckBox::toggled, this, &frmInvite::chkAUTO_UPDATE_FG_Click);

    auto* outer = new QLabel(QStringLiteral("&Outer"), box);
    outer->setObjectName(QStringLiteral("lblOuter"));
    mOuter = new QLineEdit(box);
    mOuter->setObjectName(QStringLiteral("txt_0"));
    mOuter->setMaxLength(255);
    mAddress = new QPlainTextEdit(box);
    mAddress->setObjectName(QStringLiteral("txt_1"));
    mAddress->setReadOnly(true);
    mAddress->setTabChangesFocus(true);
    mAddress->setFixedHeight(mAddress->fontMetrics().lineSpacing() * 4 + 12);
    mAddress->setToolTip(QStringLiteral("The address of the primary contact. Double-click (or press Enter) "
                                        "to change it at the contact."));
    mAddress->viewport()->installEventFilter(this);
    mAddress->installEventFilter(this);

    auto* innerRow = new QHBoxLayout;
    auto* inner = new QLabel(QStringLiteral("I&nner"), box);
    inner->setObjectName(QStringLiteral("lblInner"));
    mEtiquette = new usrHyperlink(box);
    mEtiquette->setObjectName(QStringLiteral("linkEtiquette"));
    mEtiquette->setToolTip(QStringLiteral("Choose the etiquette of the inner envelope"));
    connect(mEtiquette, &usrHyperlink::Click, this, &frmInvite::linkEtiquette_Click);
    innerRow->addWidget(inner);
    innerRow->addWidget(mEtiquette);
    innerRow->addStretch(1);
    mInner = new QLineEdit(box);
    mInner->setObjectName(QStringLiteral("txt_2"));
    mInner->setMaxLength(255);
    outer->setBuddy(mOuter);
    inner->setBuddy(mInner);

    for (QWidget* w :
         {static_cast<QWidget*>(mOuter), static_cast<QWidget*>(mAddress), static_cast<QWidget*>(mInner)})
        w->setProperty("envelope", true);
    box->setStyleSheet(QStringLiteral("QLineEdit[envelope=\"true\"], QPlainTextEdit[envelope=\"true\"] {"
                                      " font-family: serif; font-size: 11pt; }"));

    layout->addWidget(mAutoUpdate);
    layout->addSpacing(4);
    layout->addWidget(outer);
    layout->addWidget(mOuter);
    layout->addWidget(mAddress);
    layout->addSpacing(4);
    layout->addLayout(innerRow);
    layout->addWidget(mInner);
    connect(mOuter, &QLineEdit::textEdited, this, &frmInvite::RefreshEnabling);
    connect(mInner, &QLineEdit::textEdited, this, &frmInvite::RefreshEnabling);
    return box;
}

QWidget* frmInvite::BuildBottom() {
    QGroupBox* box = modLayout::Group(QStringLiteral("Invitation"), this);
    auto* layout = new QVBoxLayout(box);
    mSent = new QCheckBox(QStringLiteral("Invitation &Sent"), box);
    mSent->setObjectName(QStringLiteral("chkINVITE_SENT_FG"));
    connect(mSent, &QCheckBox::toggled, this, &frmInvite::chkINVITE_SENT_FG_Click);

    mRsvpFrame = new QWidget(box);
    mRsvpFrame->setObjectName(QStringLiteral("fraRSVP"));
    auto* rsvp = new QHBoxLayout(mRsvpFrame);
    rsvp->setContentsMargins(20, 0, 0, 0);
    auto* label = new QLabel(QStringLiteral("RSVP I&D"), mRsvpFrame);
    mRsvpId = new QLineEdit(mRsvpFrame);
    mRsvpId->setObjectName(QStringLiteral("txt_3"));
    mRsvpId->setValidator(new QIntValidator(1, 99999, mRsvpId));
    mRsvpId->setMaximumWidth(80);
    label->setBuddy(mRsvpId);
    auto* picture = new usrHyperlink(mRsvpFrame);
    picture->setObjectName(QStringLiteral("imgRSVP"));
    picture->setPicture(modGuestEditors::CardIcon());
    picture->setToolTip(QStringLiteral("Click to view RSVP ID graphic"));
    picture->setMinimumSize(28, 28);
    connect(picture, &usrHyperlink::Click, this, &frmInvite::ShowTip);
    rsvp->addWidget(label);
    rsvp->addWidget(mRsvpId);
    rsvp->addWidget(picture);
    rsvp->addStretch(1);
    mRsvpLocked = new QLabel(QStringLiteral("RSVP IDs are locked."), box);
    mRsvpLocked->setObjectName(QStringLiteral("lblLocked"));
    mRsvpLocked->setStyleSheet(QStringLiteral("color: palette(mid);"));
    mRsvpLocked->setContentsMargins(20, 0, 0, 0);
    connect(mRsvpId, &QLineEdit::textEdited, this, &frmInvite::RefreshEnabling);

    layout->addWidget(mSent);
    layout->addWidget(mRsvpFrame);
    layout->addWidget(mRsvpLocked);
    return box;
}

void frmInvite::BuildMenu() {
    mMenu = new QMenu(this);
    QAction* add =
        mMenu->addAction(QStringLiteral("Add new contact"), this, [this] { OpenContact(QString()); });
    add->setObjectName(QStringLiteral("mnuAdd"));
    QAction* edit = mMenu->addAction(QStringLiteral("Edit contact"), this, &frmInvite::EditSelectedContact);
    edit->setObjectName(QStringLiteral("mnuEdit"));
    QMenu* titles = mMenu->addMenu(QStringLiteral("Title"));
    titles->setObjectName(QStringLiteral("mnuTitle"));
    connect(titles, &QMenu::aboutToShow, this, [this, titles] {
        titles->clear();
        clsDICT dict(clsDICT::Title);
        for (const clsDICT& row : RecordIO::Read([&dict] { return dict.OpenRecords(clsDICT::Title); }))
            titles->addAction(row.TX, this, [this, text = row.TX] { SetTitleOfSelected(text); });
        titles->addSeparator();
        titles->addAction(kNoTitle, this, [this] { SetTitleOfSelected(QString()); });
    });
}

void frmInvite::AddShortcuts() {
    const auto shortcut = [this](const QKeySequence& keys, auto slot) {
        auto* s = new QShortcut(keys, this);
        connect(s, &QShortcut::activated, this, slot);
    };
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Up), [this] { MoveSelected(-1); });
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Down), [this] { MoveSelected(1); });
    shortcut(QKeySequence::New, [this] { OpenContact(QString()); });
    shortcut(QKeySequence(Qt::Key_F2), [this] { EditSelectedContact(); });
}

// ---- Loading and showing ------------------------------------------------------------------------

void frmInvite::LoadInvitation(const QString& inviteId) {
    const bool found = RecordIO::Read([&] { return mInvite.OpenRecord(inviteId, true); });
    SetAdding(!found);
    if (!found) {
        mInvite = clsINVITE();
        mInvite.AUTO_UPDATE_FG = QStringLiteral("Y");
    }
    mPeople = mInvite.GUESTS;
    SaveButton()->setText(found ? QStringLiteral("Save") : QStringLiteral("Create Invitation"));

    mUpdatingChecks = true;
    mAutoUpdate->setChecked(mInvite.AUTO_UPDATE_FG_VALUE() == 1);
    mSent->setChecked(mInvite.INVITE_SENT_FG == QLatin1String("Y"));
    mUpdatingChecks = false;
    mRsvpId->setText(mInvite.INVITE_RSVP_ID);
    mOuter->setText(mInvite.OUTER_ENVELOPE_TX);
    mInner->setText(mInvite.INNER_ENVELOPE_TX);

    LoadCandidates();
    ShowLists();
    RefreshEtiquetteLink();
    MarkClean();
    RefreshEnabling();
}

void frmInvite::LoadCandidates() {
    mCandidates = RecordIO::Read([] {
        return clsCONTACT::OpenRecords(
            0,
            QStringLiteral(
                "CONTACT.INVITE_ID Is Null AND (CONTACT.ROLE_ID Not In (1,2) OR CONTACT.ROLE_ID Is Null)"));
    });
    // A brought guest left without an invitation is no one to invite: it goes at the next save.
    mCandidates.removeIf([](const clsCONTACT& c) { return !c.GUEST_OF_ID.isEmpty(); });
}

// After every change of the people: both lists, the wording, the guest box and the buttons.
void frmInvite::ShowLists() {
    mUpper->ShowPeople(mCandidates);
    mLower->ShowPeople(mPeople, QStringLiteral(" (Primary)"));
    mListHeadings[0]->setText(QStringLiteral("Contacts to be &Invited (%1)").arg(mCandidates.size()));
    mListHeadings[1]->setText(QStringLiteral("&Contacts on Invitation (%1)").arg(mPeople.size()));
    RefreshWording();
    RefreshAndGuest();
    RefreshEnabling();
}

void frmInvite::RefreshWording() {
    mInvite.GUESTS = mPeople;
    mInvite.SetAUTO_UPDATE_FG_VALUE(mAutoUpdate->isChecked() ? 1 : 0);
    if (mPeople.isEmpty())
        mInvite.OUTER_ENVELOPE_ADDRESS_TX.clear();
    RecordIO::Attempt([this] { mInvite.RefreshLabeling(false, false); });
    if (mAutoUpdate->isChecked()) {
        mOuter->setText(mInvite.OUTER_ENVELOPE_TX);
        mInner->setText(mInvite.INNER_ENVELOPE_TX);
    }
    mAddress->setPlainText(mInvite.OUTER_ENVELOPE_ADDRESS_Text(true, true));
}

void frmInvite::RefreshAndGuest() {
    mUpdatingChecks = true;
    if (mPeople.size() == 1) {
        mAndGuest->setEnabled(true);
        mAndGuest->setChecked(false);
        mAndGuest->setText(mPeople.first().FirstMiddle() + QStringLiteral(" may bring a '&Guest'"));
    } else if (mPeople.size() == 2 && !mPeople.at(1).GUEST_OF_ID.isEmpty()) {
        mAndGuest->setEnabled(true);
        mAndGuest->setChecked(true);
        mAndGuest->setText(mPeople.first().FirstMiddle() + QStringLiteral(" may bring a '&Guest'"));
    } else {
        mAndGuest->setEnabled(false);
        mAndGuest->setChecked(false);
        mAndGuest->setText(kAndGuest);
    }
    mUpdatingChecks = false;
}

void frmInvite::RefreshEtiquetteLink() {
    mEtiquette->setCaption(clsINVITE::EtiquetteIsFormal() ? QStringLiteral("(Formal)")
                                                          : QStringLiteral("(Personal)"));
}

void frmInvite::RefreshEnabling() {
    const bool autoOn = mAutoUpdate->isChecked();
    mOuter->setReadOnly(autoOn);
    mInner->setReadOnly(autoOn);
    const bool locked = gApp().LockRSVPIDs();
    mRsvpFrame->setEnabled(mSent->isChecked() && !locked);
    mRsvpLocked->setVisible(locked);
    const QStringList selected = mLower->SelectedKeys();
    const qsizetype first = selected.isEmpty() ? -1 : IndexOf(mPeople, selected.first());
    const qsizetype last = selected.isEmpty() ? -1 : IndexOf(mPeople, selected.last());
    const bool movable = selected.size() == 1 && !HasBroughtGuest();
    mUpDown[0]->setEnabled(movable && first > 0);
    mUpDown[1]->setEnabled(movable && last >= 0 && last < mPeople.size() - 1);
    const int oneSelected = static_cast<int>(mUpper->SelectedKeys().size() + selected.size());
    mEditLink->setEnabled(oneSelected == 1 && modContactEditor::Available());
    mAddLink->setEnabled(modContactEditor::Available());
    SaveButton()->setEnabled(!mPeople.isEmpty());
}

QStringList frmInvite::Snapshot() const {
    QStringList state;
    for (const clsCONTACT& c : mPeople)
        state << usrGuestList::RowKey(c) + QLatin1Char('/') + c.TITLE_TX;
    state << mOuter->text() << mInner->text() << mRsvpId->text() << QString::number(mSent->isChecked())
          << QString::number(mAutoUpdate->isChecked());
    return state;
}

// ---- Moving people ----------------------------------------------------------------------------------

void frmInvite::AddPeople(const QStringList& contactIds, int row) {
    qsizetype at = row < 0 || row > mPeople.size() ? mPeople.size() : row;
    // A brought guest stays second, behind the person who brings them.
    if (HasBroughtGuest() && at > 1)
        at = mPeople.size();
    QStringList added;
    for (const QString& id : contactIds) {
        const qsizetype i = IndexOf(mCandidates, id);
        if (i < 0)
            continue;
        mPeople.insert(at++, mCandidates.takeAt(i));
        added << id;
    }
    if (added.isEmpty())
        return;
    ShowLists();
    mLower->SelectKeys(added);
}

void frmInvite::RemovePeople(const QStringList& contactIds) {
    QStringList removed = contactIds;
    for (const clsCONTACT& c : std::as_const(mPeople)) {
        if (contactIds.contains(c.GUEST_OF_ID))
            removed << usrGuestList::RowKey(c); // a guest goes with the person who brings them
    }
    QStringList back;
    for (qsizetype i = mPeople.size() - 1; i >= 0; --i) {
        const clsCONTACT& c = mPeople.at(i);
        if (!removed.contains(usrGuestList::RowKey(c)))
            continue;
        clsCONTACT person = mPeople.takeAt(i);
        // A brought guest exists only through an invitation: off the list, it is gone.
        if (!person.GUEST_OF_ID.isEmpty())
            continue;
        back << person.CONTACT_ID;
        mCandidates.insert(std::lower_bound(mCandidates.begin(), mCandidates.end(), person, ByName), person);
    }
    ShowLists();
    mUpper->SelectKeys(back);
}

void frmInvite::MoveSelected(int delta) {
    const QStringList selected = mLower->SelectedKeys();
    if (selected.size() != 1 || HasBroughtGuest())
        return;
    const qsizetype from = IndexOf(mPeople, selected.first());
    const qsizetype to = from + delta;
    if (from < 0 || to < 0 || to >= mPeople.size())
        return;
    mPeople.move(from, to);
    ShowLists();
    mLower->SelectKeys(selected);
}

bool frmInvite::HasBroughtGuest() const {
    for (const clsCONTACT& c : mPeople) {
        if (!c.GUEST_OF_ID.isEmpty())
            return true;
    }
    return false;
}

// ---- Check boxes ------------------------------------------------------------------------------------

clsCONTACT frmInvite::MakeAndGuest(const clsCONTACT& host) const {
    clsCONTACT guest;
    guest.FIRST_NM = host.FIRST_NM + QStringLiteral("'s");
    guest.MIDDLE_NM = QStringLiteral("Guest");
    guest.ATTENDING_FG = QStringLiteral("N");
    guest.PRIMARY_CONTACT_FG = QStringLiteral("N");
    guest.GUEST_OF_ID = host.CONTACT_ID;
    guest.GUEST_OF_FIRST_NM = host.FIRST_NM;
    guest.GUEST_OF_LAST_NM = host.LAST_NM;
    return guest;
}

void frmInvite::chkAND_GUEST_Click(bool checked) {
    if (mUpdatingChecks)
        return;
    if (checked && mPeople.size() == 1)
        mPeople.append(MakeAndGuest(mPeople.first()));
    else if (!checked && mPeople.size() == 2 && !mPeople.at(1).GUEST_OF_ID.isEmpty())
        mPeople.removeAt(1);
    ShowLists();
}

void frmInvite::chkINVITE_SENT_FG_Click(bool checked) {
    if (mUpdatingChecks)
        return;
    if (checked && mAddress->toPlainText() == kAddressHint) {
        ShowMessage(kAddressNeeded, Msg::OKOnly | Msg::Exclamation);
        mUpdatingChecks = true;
        mSent->setChecked(false);
        mUpdatingChecks = false;
    }
    RefreshEnabling();
}

void frmInvite::chkAUTO_UPDATE_FG_Click(bool checked) {
    if (mUpdatingChecks)
        return;
    if (checked)
        RefreshWording();
    RefreshEnabling();
    if (!checked)
        mOuter->setFocus();
}

// ---- Contacts ---------------------------------------------------------------------------------------

void frmInvite::OpenContact(const QString& contactId) {
    modContactEditor::Open(
        this, contactId, [this](const QString& id) { mfrmContact_Added(id); },
        [this](const QString& id) { mfrmContact_Updated(id); });
}

void frmInvite::EditSelectedContact() {
    const QStringList keys = ContactKeys(mLower->SelectedKeys() + mUpper->SelectedKeys());
    if (keys.size() == 1)
        OpenContact(keys.first());
}

void frmInvite::txtAddress_DblClick() {
    if (!mPeople.isEmpty() && !mPeople.first().CONTACT_ID.isEmpty())
        OpenContact(mPeople.first().CONTACT_ID);
}

// A contact made in the contact editor lands on the invitation.
void frmInvite::mfrmContact_Added(const QString& contactId) {
    clsCONTACT contact;
    if (!RecordIO::Read([&] { return contact.OpenRecord(contactId); }) || !contact.INVITE_ID.isEmpty())
        return;
    mCandidates.append(contact);
    AddPeople({contactId});
}

void frmInvite::mfrmContact_Updated(const QString& contactId) {
    clsCONTACT contact;
    if (!RecordIO::Read([&] { return contact.OpenRecord(contactId); }))
        return;
    for (QList<clsCONTACT>* list : {&mPeople, &mCandidates}) {
        const qsizetype i = IndexOf(*list, contactId);
        if (i >= 0)
            (*list)[i] = contact;
    }
    // An anonymous guest is named after the person who brings them.
    for (clsCONTACT& c : mPeople) {
        if (c.GUEST_OF_ID == contactId) {
            c.GUEST_OF_FIRST_NM = contact.FIRST_NM;
            c.GUEST_OF_LAST_NM = contact.LAST_NM;
            if (c.CONTACT_ID.isEmpty())
                c.FIRST_NM = contact.FIRST_NM + QStringLiteral("'s");
        }
    }
    ShowLists();
}

void frmInvite::SetTitleOfSelected(const QString& title) {
    const QStringList keys = ContactKeys(mLower->SelectedKeys() + mUpper->SelectedKeys());
    for (const QString& id : std::as_const(keys)) {
        const bool saved = RecordIO::Attempt([&id, &title] {
            clsCONTACT contact;
            if (!contact.OpenRecord(id))
                return;
            contact.TITLE_TX = title;
            contact.Save(false, true);
        });
        if (!saved)
            return; // the rest is not tried after a refusal
        mfrmContact_Updated(id);
    }
}

void frmInvite::ShowMenu(usrGuestList* list, const QPoint& position) {
    const QStringList keys = ContactKeys(list->SelectedKeys());
    const bool one = keys.size() == 1;
    const bool editor = modContactEditor::Available();
    mMenu->actions().at(0)->setEnabled(editor);
    mMenu->actions().at(1)->setEnabled(editor && one);
    mMenu->actions().at(2)->setEnabled(!keys.isEmpty());
    mMenu->popup(list->viewport()->mapToGlobal(position));
}

// ---- Etiquette and the tip --------------------------------------------------------------------------

void frmInvite::linkEtiquette_Click() {
    ShowOptions(this, frmOptions::Etiquette);
    RefreshEtiquetteLink();
}

void frmInvite::mfrmOptions_EtiquetteUpdated() {
    RefreshEtiquetteLink();
    RefreshWording();
    emit EtiquetteUpdated();
}

void frmInvite::ShowTip() {
    frmInviteTip tip(this);
    tip.exec();
}

bool frmInvite::eventFilter(QObject* watched, QEvent* event) {
    const bool address = watched == mAddress || watched == mAddress->viewport();
    if (address && event->type() == QEvent::MouseButtonDblClick) {
        txtAddress_DblClick();
        return true;
    }
    if (watched == mAddress && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            txtAddress_DblClick();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

// ---- Saving -----------------------------------------------------------------------------------------

void frmInvite::TakeControls(clsINVITE& invite) const {
    invite.INVITE_RSVP_ID = mRsvpId->text().trimmed();
    invite.OUTER_ENVELOPE_TX = mOuter->text().trimmed();
    invite.INNER_ENVELOPE_TX = mInner->text().trimmed();
    invite.INVITE_SENT_FG = mSent->isChecked() ? QStringLiteral("Y") : QStringLiteral("N");
    if (invite.INVITE_SENT_FG == QLatin1String("N") || invite.RSVP_RECEIVED_FG.isEmpty())
        invite.RSVP_RECEIVED_FG = QStringLiteral("N");
    invite.SetAUTO_UPDATE_FG_VALUE(mAutoUpdate->isChecked() ? 1 : 0);
}

bool frmInvite::SaveRecord() {
    if (mPeople.isEmpty()) {
        ShowMessage(QStringLiteral("An invitation needs at least one person.\n\nDrag a name from the "
                                   "upper list to the list of contacts on the invitation."),
                    Msg::OKOnly | Msg::Exclamation);
        return false;
    }
    if (mSent->isChecked() && mInvite.OUTER_ENVELOPE_ADDRESS_TX.trimmed().isEmpty()) {
        ShowMessage(kAddressNeeded, Msg::OKOnly | Msg::Exclamation);
        return false;
    }
    clsINVITE invite = mInvite;
    TakeControls(invite);
    if (!RecordIO::Attempt([this, &invite] { invite.SaveWithPeople(IsAdding(), mPeople); }))
        return false;
    mInvite = invite;
    mPeople = invite.GUESTS;
    return true;
}

QString frmInvite::CloseQuestion() const {
    return IsAdding() ? QStringLiteral("Create Invitation?") : QStringLiteral("Save Changes?");
}
