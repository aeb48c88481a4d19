#include "guests/ui/frmContact.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/clsParseName.h"
#include "guests/ui/GuestIcons.h"
#include "guests/ui/frmCheckName.h"
#include "shell/modContactEditor.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/options/frmOptionsEntry.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const QString kRoleQuery = QStringLiteral("SELECT * FROM ROLE_DICT WHERE ROLE_ID Not In (1,2) ORDER BY 2");
const QString kOneIndividual =
    QStringLiteral("\n\nVowren requires that each contact record represent one "
                   "individual.\n\nPlease edit the title so that it represents one "
                   "individual.");

bool IsBrideOrGroom(const QString& contactId) {
    return contactId == QLatin1String("1") || contactId == QLatin1String("2");
}

// The gender a title stands for: 'M', 'F', or "" when the title says nothing about it.
QString GenderOfTitle(const QString& title) {
    static const QStringList male = {QStringLiteral("Mr."), QStringLiteral("Rabbi"), QStringLiteral("Sr.")};
    static const QStringList female = {QStringLiteral("Mrs."), QStringLiteral("Ms."), QStringLiteral("Miss"),
                                       QStringLiteral("Sra."), QStringLiteral("Srta.")};
    if (male.contains(title))
        return QStringLiteral("M");
    if (female.contains(title))
        return QStringLiteral("F");
    return {};
}

// A multi-line box keeps lines apart by LF; the database by CR LF.
QString ToStored(const QString& text) {
    QString stored = text;
    stored.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return stored.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

QString ToScreen(const QString& stored) {
    QString text = stored;
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

// Removes every space, carriage return and line feed from both ends.
QString CleanEnds(const QString& text) {
    const auto isBlank = [](QChar c) {
        return c == QLatin1Char(' ') || c == QLatin1Char('\r') || c == QLatin1Char('\n');
    };
    qsizetype start = 0, end = text.size();
    while (start < end && isBlank(text.at(start)))
        ++start;
    while (end > start && isBlank(text.at(end - 1)))
        --end;
    return text.mid(start, end - start);
}

QLineEdit* LineBox(const QString& name, QWidget* parent, int maxLength = 0) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    if (maxLength > 0)
        box->setMaxLength(maxLength);
    return box;
}

// A box of several lines; Tab moves on. With grow false it keeps the height of its lines.
QPlainTextEdit* TextBox(const QString& name, int lines, bool grow, QWidget* parent) {
    auto* box = new QPlainTextEdit(parent);
    box->setObjectName(name);
    box->setTabChangesFocus(true);
    const int height = lines * box->fontMetrics().lineSpacing() + 2 * (box->frameWidth() + 4);
    if (grow) {
        box->setMinimumHeight(height);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    } else {
        box->setFixedHeight(height);
    }
    return box;
}

QComboBox* CodeList(const QString& name, const QList<std::pair<QString, QString>>& rows, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    for (const auto& [text, code] : rows)
        list->addItem(text, code);
    list->setCurrentIndex(-1);
    return list;
}

void SelectCode(QComboBox* list, const QString& code) {
    list->setCurrentIndex(list->findData(code));
}

QString SelectedCode(const QComboBox* list) {
    return list->currentIndex() < 0 ? QString() : list->currentData().toString();
}

} // namespace

frmContact::frmContact(const QString& contactId, QWidget* parent, Mode mode) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmContact"));
    SetRecordNoun(QStringLiteral("Contact"));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    auto* left = new QVBoxLayout;
    left->addWidget(BuildNameGroup());
    left->addWidget(BuildAddressGroup());
    left->addStretch(1);
    auto* right = new QVBoxLayout;
    right->addWidget(BuildGuestListGroup());
    right->addWidget(BuildNotesGroup(), 1);
    columns->addLayout(left, 3);
    columns->addLayout(right, 2);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(BuildHeader());
    layout->addLayout(columns, 1);
    layout->addWidget(BuildButtons());

    SetTabOrder();
    LoadContact(contactId, contactId.isEmpty() ? Mode::Add : mode);
    ConnectChanges();
    MarkClean();
    resize(sizeHint().expandedTo(QSize(760, 0)));
    // A copy starts on the name, whose first name is still to type.
    (mode == Mode::Copy && !contactId.isEmpty() ? static_cast<QWidget*>(mFullName) : mTitle)->setFocus();
}

// ---- Building ---------------------------------------------------------------------------------------

QWidget* frmContact::BuildHeader() {
    auto* header = new QWidget(this);
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(0, 0, 0, 4);
    mPicture = new QLabel(header);
    mPicture->setObjectName(QStringLiteral("imgContact"));
    mHeader = Header(header);
    mGuestOf = new QLabel(header);
    mGuestOf->setObjectName(QStringLiteral("lblGuestOf"));
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch(1);
    texts->addWidget(mHeader);
    texts->addWidget(mGuestOf);
    texts->addStretch(1);
    row->addWidget(mPicture);
    row->addSpacing(6);
    row->addLayout(texts, 1);
    return header;
}

QWidget* frmContact::BuildNameGroup() {
    QGroupBox* group = modLayout::Group(QStringLiteral("Name"), this);
    QFormLayout* form = modLayout::Form(group);

    mTitle = new QComboBox(group);
    mTitle->setObjectName(QStringLiteral("cbo_0"));
    mTitle->setEditable(true);
    mTitle->setInsertPolicy(QComboBox::NoInsert);
    mTitle->addItem(QString());
    for (const clsDICT& title : RecordIO::Read([] { return clsDICT().OpenRecords(clsDICT::Title); }))
        mTitle->addItem(title.TX);
    mTitle->setMaximumWidth(mTitle->fontMetrics().averageCharWidth() * 18);
    modLayout::CaptionedRow(form, QStringLiteral("&Title"), mTitle);

    mFullName = LineBox(QStringLiteral("txt_1"), group);
    mFullName->setPlaceholderText(QStringLiteral("First Middle Last Suffix"));
    mFullName->installEventFilter(this);
    mFullNameLink = new usrHyperlink(QStringLiteral("Full Name"), group);
    mFullNameLink->setObjectName(QStringLiteral("linkFullName"));
    mFullNameLink->setToolTip(
        QStringLiteral("Edit the parts of the name one by one (Alt+U moves to the name)"));
    connect(mFullNameLink, &usrHyperlink::Click, this, [this] { ShowCheckName(); });
    form->addRow(mFullNameLink, mFullName);
    auto* toName = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_U), this);
    connect(toName, &QShortcut::activated, mFullName,
            [this] { mFullName->setFocus(Qt::ShortcutFocusReason); });

    mNick = LineBox(QStringLiteral("txt_3"), group, 50);
    modLayout::CaptionedRow(form, QStringLiteral("&Nickname"), mNick);

    auto* genderRow = new QWidget(group);
    genderRow->setObjectName(QStringLiteral("fraGender"));
    auto* genders = new QHBoxLayout(genderRow);
    genders->setContentsMargins(0, 0, 0, 0);
    mMale = new QRadioButton(QStringLiteral("Male"), genderRow);
    mMale->setObjectName(QStringLiteral("optGender_0"));
    mFemale = new QRadioButton(QStringLiteral("Female"), genderRow);
    mFemale->setObjectName(QStringLiteral("optGender_1"));
    auto* genderGroup = new QButtonGroup(genderRow);
    genderGroup->addButton(mMale);
    genderGroup->addButton(mFemale);
    mChild = new QCheckBox(QStringLiteral("C&hild"), genderRow);
    // The gender label moves the focus to whichever of the two is chosen.
    mChild->setObjectName(QStringLiteral("chkCHILD_FG"));
    genders->addWidget(mMale);
    genders->addWidget(mFemale);
    genders->addSpacing(18);
    genders->addWidget(mChild);
    genders->addStretch(1);
    QLabel* genderLabel = modLayout::CaptionedRow(form, QStringLiteral("&Gender"), genderRow, mMale);
    connect(mFemale, &QRadioButton::toggled, genderLabel,
            [this, genderLabel](bool female) { genderLabel->setBuddy(female ? mFemale : mMale); });
    return group;
}

QWidget* frmContact::BuildAddressGroup() {
    QGroupBox* group = modLayout::Group(QStringLiteral("Address and Phone"), this);
    QFormLayout* form = modLayout::Form(group);

    mAddress = TextBox(QStringLiteral("txt_2"), 5, false, group);
    modLayout::CaptionedRow(form, QStringLiteral("&Address"), mAddress)
        ->setAlignment(Qt::AlignRight | Qt::AlignTop);

    mMapIt = new usrHyperlink(QStringLiteral("Map Location with Google Maps"), group);
    mMapIt->setObjectName(QStringLiteral("picMapIt"));
    mMapIt->setPicture(ControlIcons::MapPin());
    mMapIt->setToolTip(QStringLiteral("Show this address on the map in the web browser"));
    connect(mMapIt, &usrHyperlink::Click, this, [this] { picMapIt_Click(); });
    form->addRow(QString(), mMapIt);

    mEmail = LineBox(QStringLiteral("txt_4"), group, 255);
    modLayout::CaptionedRow(form, QStringLiteral("E-&mail"), mEmail);
    mPhone = LineBox(QStringLiteral("txt_5"), group, 50);
    modLayout::CaptionedRow(form, QStringLiteral("&Phone #"), mPhone);
    mPhone2 = LineBox(QStringLiteral("txt_6"), group, 50);
    modLayout::CaptionedRow(form, QStringLiteral("Phone &2 #"), mPhone2);
    return group;
}

QWidget* frmContact::BuildGuestListGroup() {
    QGroupBox* group = modLayout::Group(QStringLiteral("Guest List"), this);
    QFormLayout* form = modLayout::Form(group);

    mABList = CodeList(
        QStringLiteral("cbo_7"),
        {{QStringLiteral("A list"), QStringLiteral("A")}, {QStringLiteral("B list"), QStringLiteral("B")}},
        group);
    modLayout::CaptionedRow(form, QStringLiteral("A-B &List"), mABList);
    mFriendOf = CodeList(QStringLiteral("cbo_8"),
                         {{QStringLiteral("Bride"), QStringLiteral("1")},
                          {QStringLiteral("Groom"), QStringLiteral("2")},
                          {QStringLiteral("Both"), QStringLiteral("3")}},
                         group);
    modLayout::CaptionedRow(form, QStringLiteral("&Friend of"), mFriendOf);

    mRole = new usrDropdown(group);
    mRole->setObjectName(QStringLiteral("usr_9"));
    mRole->PopulateSQL(kRoleQuery);
    mRole->setAddIsVisible(true);
    mRole->setEditIsVisible(true);
    mRole->setAddToolTip(QStringLiteral("Add a new role (Insert)"));
    mRole->setEditToolTip(QStringLiteral("Rename the chosen role (F2)"));
    mRole->ComboBox()->setToolTip(QStringLiteral("Delete clears the role"));
    mRole->ComboBox()->installEventFilter(this);
    connect(mRole, &usrDropdown::AddClick, this, [this] { usr_9_AddClick(); });
    connect(mRole, &usrDropdown::EditClick, this, [this] { usr_9_EditClick(); });
    modLayout::CaptionedRow(form, QStringLiteral("&Role"), mRole, mRole->ComboBox());

    mOutOfTowner = new QCheckBox(QStringLiteral("&Out of Towner"), group);
    mOutOfTowner->setObjectName(QStringLiteral("chkOUT_OF_TOWNER_FG"));
    form->addRow(QString(), mOutOfTowner);
    return group;
}

QWidget* frmContact::BuildNotesGroup() {
    QGroupBox* group = modLayout::Group(QStringLiteral("Notes"), this);
    auto* layout = new QVBoxLayout(group);
    mNotes = TextBox(QStringLiteral("txt_10"), 5, true, group);
    auto* label = new QLabel(QStringLiteral("Not&es about this person:"), group);
    label->setBuddy(mNotes);
    layout->addWidget(label);
    layout->addWidget(mNotes, 1);
    return group;
}

QWidget* frmContact::BuildButtons() {
    EditorButtonNames names;
    names.Save = QStringLiteral("cmd_1");
    names.SaveCaption = QStringLiteral("&Save");
    names.Cancel = QStringLiteral("cmd_2");
    names.SaveAndNew = QStringLiteral("cmd_0");
    names.SaveAndNewCaption = QStringLiteral("Save and Ne&w");
    QWidget* row = ButtonRow(names);
    row->setContentsMargins(0, 6, 0, 0);
    SaveAndNewButton()->setToolTip(
        QStringLiteral("Save, then add the next person of the household (Ctrl+Shift+S)"));
    return row;
}

// Left column top to bottom, then the right column, then the buttons.
void frmContact::SetTabOrder() {
    auto* roleAdd = mRole->findChild<QWidget*>(QStringLiteral("cmdAdd"));
    auto* roleEdit = mRole->findChild<QWidget*>(QStringLiteral("cmdEdit"));
    const QList<QWidget*> order = {mTitle,       mFullNameLink, mFullName,    mNick,     mMale,
                                   mFemale,      mChild,        mAddress,     mMapIt,    mEmail,
                                   mPhone,       mPhone2,       mABList,      mFriendOf, mRole->ComboBox(),
                                   roleAdd,      roleEdit,      mOutOfTowner, mNotes,    SaveAndNewButton(),
                                   SaveButton(), CancelButton()};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}

void frmContact::ConnectChanges() {
    connect(mTitle, &QComboBox::currentTextChanged, this, &frmContact::cbo_0_Change);
    connect(mMale, &QRadioButton::toggled, this, &frmContact::ShowPicture);
    connect(mChild, &QCheckBox::toggled, this, &frmContact::ShowPicture);
    connect(mAddress, &QPlainTextEdit::textChanged, this,
            [this] { mMapIt->setEnabled(!CleanAddress().isEmpty()); });
}

// ---- Loading ----------------------------------------------------------------------------------------

void frmContact::LoadContact(const QString& contactId, Mode mode) {
    SetAdding(mode != Mode::Edit);
    RecordIO::Attempt([this, &contactId] { mContact.OpenRecord(contactId); });
    if (mode == Mode::Copy) {
        // Another person of the same household: the same address and data, a name still to type, no
        // role, and nothing of the first person's invitation, seat or travel.
        const QString lastName = mContact.LAST_NM;
        clsCONTACT copy = mContact;
        mContact = clsCONTACT();
        for (QString clsCONTACT::*field :
             {&clsCONTACT::TITLE_TX, &clsCONTACT::NICK_NM, &clsCONTACT::ADDRESS_TX, &clsCONTACT::CITY_TX,
              &clsCONTACT::STATE_TX, &clsCONTACT::ZIP_TX, &clsCONTACT::COUNTRY_TX, &clsCONTACT::PHONE_TX,
              &clsCONTACT::EMAIL_TX, &clsCONTACT::FRIEND_OF_CD, &clsCONTACT::AB_LIST_CD,
              &clsCONTACT::OUT_OF_TOWNER_FG, &clsCONTACT::PHONE2_TX, &clsCONTACT::GENDER_FG,
              &clsCONTACT::CHILD_FG, &clsCONTACT::NOTES_TX})
            mContact.*field = copy.*field;
        ShowContact();
        mFullName->setText(FirstNamePlaceholder() + QLatin1Char(' ') + lastName);
        return;
    }
    ShowContact();
}

void frmContact::ShowContact() {
    mTitle->setCurrentText(mContact.TITLE_TX);
    mFullName->setText(mContact.FirstMiddleLastSuffix());
    mAddress->setPlainText(ToScreen(mContact.ADDRESS_TX));
    mNick->setText(mContact.NICK_NM);
    mEmail->setText(mContact.EMAIL_TX);
    mPhone->setText(mContact.PHONE_TX);
    mPhone2->setText(mContact.PHONE2_TX);
    SelectCode(mABList, mContact.AB_LIST_CD);
    SelectCode(mFriendOf, mContact.FRIEND_OF_CD);
    // The bride and the groom keep their roles: the list does not offer them, so it shows the role and
    // stays shut.
    const bool fixedRole = IsBrideOrGroom(mContact.ROLE_ID);
    if (fixedRole && mRole->Code() != mContact.ROLE_ID) {
        mRole->AddItem(mContact.ROLE_TX, mContact.ROLE_ID);
    }
    mRole->setCode(mContact.ROLE_ID);
    mRole->setEnabled(!fixedRole);
    (mContact.GENDER_FG == QLatin1String("F") ? mFemale : mMale)->setChecked(true);
    mChild->setChecked(mContact.CHILD_FG == QLatin1String("Y"));
    mOutOfTowner->setChecked(mContact.OUT_OF_TOWNER_FG == QLatin1String("Y"));
    mNotes->setPlainText(ToScreen(mContact.NOTES_TX));
    mMapIt->setEnabled(!CleanAddress().isEmpty());
    ShowHeader();
}

void frmContact::ShowHeader() {
    const bool guest = !mContact.GUEST_OF_ID.isEmpty();
    mGuestOf->setVisible(guest);
    mGuestOf->setText(guest ? QStringLiteral("Guest of ") + mContact.GUEST_OF_FULL_NM() : QString());
    ShowPicture();
}

// The bride, the groom, or a person by gender and age, as chosen on the screen.
void frmContact::ShowPicture() {
    clsCONTACT shown = mContact;
    shown.GENDER_FG = mFemale->isChecked() ? QStringLiteral("F") : QStringLiteral("M");
    shown.CHILD_FG = mChild->isChecked() ? QStringLiteral("Y") : QStringLiteral("N");
    const int side = mHeader->fontMetrics().height() * 2;
    mPicture->setPixmap(GuestIcons::All()
                            .value(GuestIcons::PersonIndex(shown))
                            .pixmap(QSize(side, side), devicePixelRatioF()));
    mPicture->setFixedSize(side, side);
}

// What the user can change, in one list, to tell whether anything was changed.
QStringList frmContact::Snapshot() const {
    return {mTitle->currentText(),
            mFullName->text(),
            mAddress->toPlainText(),
            mNick->text(),
            mEmail->text(),
            mPhone->text(),
            mPhone2->text(),
            SelectedCode(mABList),
            SelectedCode(mFriendOf),
            mRole->Code(),
            mFemale->isChecked() ? QStringLiteral("F") : QStringLiteral("M"),
            mChild->isChecked() ? QStringLiteral("Y") : QStringLiteral("N"),
            mOutOfTowner->isChecked() ? QStringLiteral("Y") : QStringLiteral("N"),
            mNotes->toPlainText()};
}

// A role given by the opener is part of the new contact, not a change by the user.
void frmContact::SetRole(const QString& roleId) {
    mRole->setCode(roleId);
    MarkClean();
}

// ---- Title, name, map, role -------------------------------------------------------------------------

void frmContact::cbo_0_Change(const QString& title) {
    const QString gender = GenderOfTitle(title.trimmed());
    if (gender == QLatin1String("M"))
        mMale->setChecked(true);
    else if (gender == QLatin1String("F"))
        mFemale->setChecked(true);
}

// The one-line name, when changed, is cut into its parts (the title box holds the title) and written
// back in its standard form; a name that looks incomplete opens the dialog of the parts.
void frmContact::CommitFullName(bool mayAskForParts) {
    const QString typed = mFullName->text();
    if (mCommittingName || typed == mContact.FirstMiddleLastSuffix() || typed.trimmed().isEmpty())
        return;
    mCommittingName = true;
    clsParseName parts;
    parts.ParseFullName(typed, false);
    mContact.FIRST_NM = parts.FIRST_NM;
    mContact.MIDDLE_NM = parts.MIDDLE_NM;
    mContact.LAST_NM = parts.LAST_NM;
    mContact.SUFFIX_TX = parts.SUFFIX_TX;
    mFullName->setText(mContact.FirstMiddleLastSuffix());
    if (mayAskForParts && parts.NameUnclear() && gApp().ShowDialogWhenNameUnclear())
        ShowCheckName();
    mCommittingName = false;
}

void frmContact::ShowCheckName() {
    frmCheckName dialog(mTitle->currentText(), mFullName->text(), this);
    connect(&dialog, &frmCheckName::NameChecked, this, &frmContact::mfrmCheckName_NameChecked);
    dialog.PlaceBelow(QRect(mFullNameLink->mapToGlobal(QPoint(0, 0)), mFullNameLink->size()));
    dialog.exec();
}

void frmContact::mfrmCheckName_NameChecked(const clsParseName& name) {
    if (name.ParseTitle) {
        mContact.TITLE_TX = name.TITLE_TX;
        mTitle->setCurrentText(name.TITLE_TX);
    }
    mContact.FIRST_NM = name.FIRST_NM;
    mContact.MIDDLE_NM = name.MIDDLE_NM;
    mContact.LAST_NM = name.LAST_NM;
    mContact.SUFFIX_TX = name.SUFFIX_TX;
    mFullName->setText(mContact.FirstMiddleLastSuffix());
}

QString frmContact::CleanAddress() const {
    return CleanEnds(ToStored(mAddress->toPlainText()));
}

void frmContact::picMapIt_Click() {
    mContact.ADDRESS_TX = CleanAddress();
    mContact.MapIt();
}

void frmContact::usr_9_AddClick() {
    EditRole(true);
}

void frmContact::usr_9_EditClick() {
    if (!mRole->Code().isEmpty())
        EditRole(false);
}

// The role dictionary's own editor; a saved row is chosen here and every list of roles fills again.
void frmContact::EditRole(bool isNew) {
    clsDICT role(clsDICT::Role);
    if (!isNew && !RecordIO::Read([this, &role] { return role.OpenRecord(mRole->Code()); }))
        return;
    frmOptionsEntry editor(role, isNew, clsDICT::Role, this);
    QString saved;
    const auto keep = [&saved](const QString& key) { saved = key; };
    connect(&editor, &frmEditorBase::Added, this, keep);
    connect(&editor, &frmEditorBase::Updated, this, keep);
    editor.exec();
    if (saved.isEmpty())
        return;
    usrDropdown::NotifyOptionsUpdated(clsDICT::Role);
    mRole->setCode(saved);
    emit OptionsChanged();
}

bool frmContact::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mFullName) {
        if (event->type() == QEvent::FocusIn &&
            mFullName->text().startsWith(FirstNamePlaceholder() + QLatin1Char(' '))) {
            // Typing replaces the placeholder; the last name after it stays.
            QTimer::singleShot(0, mFullName,
                               [this] { mFullName->setSelection(0, int(FirstNamePlaceholder().size())); });
        } else if (event->type() == QEvent::FocusOut) {
            // Leaving for another window, or for Cancel, is no reason to take the name apart.
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
                QApplication::focusWidget() != CancelButton())
                CommitFullName(true);
        }
    } else if (watched == mRole->ComboBox() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && mRole->isEnabled()) {
            mRole->setListIndex(-1);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

// ---- Saving -----------------------------------------------------------------------------------------

bool frmContact::TitleIsOneIndividual(const QString& title) {
    QString refusal;
    if (title.contains(QLatin1String(" and "), Qt::CaseInsensitive))
        refusal = QStringLiteral("The 'Title' field cannot contain the word 'and'.");
    else if (title.contains(QLatin1String(" & ")))
        refusal = QStringLiteral("The 'Title' field cannot contain the '&' character.");
    if (refusal.isEmpty())
        return true;
    ShowMessage(refusal + kOneIndividual, Msg::OKOnly | Msg::Exclamation);
    mTitle->setFocus();
    mTitle->lineEdit()->selectAll();
    return false;
}

bool frmContact::NamesAreComplete() {
    // A blank box is no name, whatever the contact held before; the placeholder is no first name.
    if (!mFullName->text().trimmed().isEmpty() && !mContact.FIRST_NM.isEmpty() &&
        mContact.FIRST_NM != FirstNamePlaceholder() && !mContact.LAST_NM.isEmpty())
        return true;
    ShowMessage(QStringLiteral("First and Last names are required."), Msg::OKOnly | Msg::Exclamation);
    mFullName->setFocus();
    return false;
}

void frmContact::StoreControls() {
    mContact.TITLE_TX = mTitle->currentText().trimmed();
    mContact.ADDRESS_TX = CleanAddress();
    mContact.NICK_NM = mNick->text().trimmed();
    mContact.EMAIL_TX = mEmail->text().trimmed();
    mContact.PHONE_TX = mPhone->text().trimmed();
    mContact.PHONE2_TX = mPhone2->text().trimmed();
    mContact.AB_LIST_CD = SelectedCode(mABList);
    mContact.FRIEND_OF_CD = SelectedCode(mFriendOf);
    mContact.ROLE_ID = mRole->Code();
    mContact.GENDER_FG = mFemale->isChecked() ? QStringLiteral("F") : QStringLiteral("M");
    mContact.SetCHILD_FG_VALUE(mChild->isChecked());
    mContact.SetOUT_OF_TOWNER_FG_VALUE(mOutOfTowner->isChecked());
    mContact.NOTES_TX = ToStored(mNotes->toPlainText()).trimmed();
    if (IsAdding()) {
        mContact.PRIMARY_CONTACT_FG = QStringLiteral("N");
        mContact.ATTENDING_FG = QStringLiteral("N");
    }
}

bool frmContact::SaveRecord() {
    if (!TitleIsOneIndividual(mTitle->currentText().trimmed()))
        return false;
    CommitFullName(true);
    if (!NamesAreComplete())
        return false;
    const clsCONTACT before = mContact;
    StoreControls();
    const bool saved = RecordIO::Attempt([this] {
        mContact.Save(IsAdding(), true);
        if (mContact.CONTACT_ID == QLatin1String("1"))
            gBride().OpenRecord(mContact.CONTACT_ID);
        else if (mContact.CONTACT_ID == QLatin1String("2"))
            gGroom().OpenRecord(mContact.CONTACT_ID);
    });
    if (!saved)
        mContact = before;
    return saved;
}

// After the husband comes the wife: the next person of the household keeps the address and the first
// telephone, and what the list says about the household; the personal fields start empty.
void frmContact::StartNew() {
    const QString nextTitle = mContact.TITLE_TX == QLatin1String("Mr.") ? QStringLiteral("Mrs.") : QString();
    clsCONTACT next;
    next.ADDRESS_TX = mContact.ADDRESS_TX;
    next.PHONE_TX = mContact.PHONE_TX;
    mContact = next;
    mTitle->setCurrentText(nextTitle);
    for (QLineEdit* box : {mFullName, mNick, mEmail, mPhone2})
        box->clear();
    mNotes->clear();
    // The list may hold the role of the bride or the groom, shown for them only.
    mRole->PopulateSQL(kRoleQuery);
    mRole->setEnabled(true);
    mRole->setListIndex(-1);
    ShowHeader();
    mFullName->setFocus();
}

// ---- Registration -----------------------------------------------------------------------------------

void frmContact::RegisterEditor() {
    modContactEditor::SetFactory(
        [](QWidget* parent, const QString& contactId, const QString& roleId) -> frmEditorBase* {
            auto* editor = new frmContact(contactId, parent);
            if (contactId.isEmpty() && !roleId.isEmpty())
                editor->SetRole(roleId);
            return editor;
        });
}
