#include "widgets/ui/usrWordingSide.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/modGeneral.h"
#include "guests/modParseText.h"
#include "platform/clsRegistry.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrHyperlink.h"
#include "startup/modWedding.h"
#include "shell/modContactEditor.h"
#include "widgets/ui/modWidgetLinks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

const QString kPreviewSetting = QStringLiteral("optPreview_0");

QString RoleLabel(int roleId) {
    static const QStringList labels = {
        QStringLiteral("Father of the Bride"), QStringLiteral("Mother of the Bride"),
        QStringLiteral("Father of the Groom"), QStringLiteral("Mother of the Groom")};
    return labels.value(roleId - 3);
}

QPlainTextEdit* TextBox(const QString& name, int lines, QWidget* parent) {
    auto* box = new QPlainTextEdit(parent);
    box->setObjectName(name);
    box->setTabChangesFocus(true);
    box->setFixedHeight(box->fontMetrics().lineSpacing() * lines + 12);
    return box;
}

} // namespace

usrWordingSide::usrWordingSide(QWidget* parent) : usrWidgetSide(parent) {
    setObjectName(QStringLiteral("usrWordingSide"));
    auto* left = new QVBoxLayout;
    left->addWidget(BuildFamilies());
    left->addWidget(BuildQuestions());
    left->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(left, 0);
    layout->addWidget(BuildResult(), 1);

    mLoading = true;
    mChoices = modWording::Choices::Load();
    mTemplate->setCurrentIndex(qBound(0, mChoices.Template, modWording::kTemplateCount - 1));
    mPhrase->setCurrentIndex(qBound(0, mChoices.Phrase, 1));
    mPlace->setPlainText(Shown(mChoices.Place));
    mReception->setChecked(mChoices.Reception);
    mReceptionPlace->setPlainText(Shown(mChoices.ReceptionPlace));
    const bool preview =
        gRegistry().GetSetting(modWording::SettingsKey(), kPreviewSetting, QStringLiteral("1")) != "0";
    (preview ? mPreview : mSavedOption)->setChecked(true);
    RecordIO::Attempt([this] { mSaved.OpenRecord(QString::number(clsWORDING::InvitationWording)); });
    LoadPeople();
    mLoading = false;
    optPreview_Click(preview);
}

// ---- Building ----

QWidget* usrWordingSide::BuildFamilies() {
    auto* box = new QGroupBox(this);
    auto* grid = new QGridLayout(box);
    mBrideHeader = modLayout::BoldLabel(QStringLiteral("lblBrideHeader"), box);
    mBrideHeader->setText(QStringLiteral("Bride's Family"));
    mGroomHeader = modLayout::BoldLabel(QStringLiteral("lblGroomHeader"), box);
    mGroomHeader->setText(QStringLiteral("Groom's Family"));
    grid->addWidget(mBrideHeader, 0, 0, 1, 2);
    grid->addWidget(mGroomHeader, 3, 0, 1, 2);
    for (int role = 3; role <= 6; ++role) {
        auto* link = new usrHyperlink(RoleLabel(role), box);
        link->setObjectName(QStringLiteral("link_%1").arg(role));
        connect(link, &usrHyperlink::Click, this, [this, role] { link_Click(role); });
        auto* remarried = new usrHyperlink(QStringLiteral("remarried"), box);
        remarried->setObjectName(QStringLiteral("linkRE_%1").arg(role));
        connect(remarried, &usrHyperlink::Click, this, [this, role] { linkRE_Click(role); });
        const int row = role <= 4 ? role - 2 : role - 1;
        grid->addWidget(link, row, 0);
        grid->addWidget(remarried, row, 1);
        mLink.at(static_cast<size_t>(role - 3)) = link;
        mRemarried.at(static_cast<size_t>(role - 3)) = remarried;
    }
    grid->setColumnStretch(1, 1);
    return box;
}

QWidget* usrWordingSide::BuildQuestions() {
    auto* box = new QGroupBox(QStringLiteral("Questions"), this);
    auto* layout = new QVBoxLayout(box);
    mTemplate = new QComboBox(box);
    mTemplate->setObjectName(QStringLiteral("cbo_0"));
    mTemplate->addItems(modWording::TemplateNames());
    mPhrase = new QComboBox(box);
    mPhrase->setObjectName(QStringLiteral("cbo_1"));
    mPhrase->addItems(modWording::Phrases());
    mPlace = TextBox(QStringLiteral("txt_2"), 3, box);
    mReception = new QCheckBox(QStringLiteral("Include Reception wording"), box);
    mReception->setObjectName(QStringLiteral("chkReceptionWording"));
    mReceptionPlace = TextBox(QStringLiteral("txt_3"), 3, box);
    layout->addWidget(new QLabel(QStringLiteral("Who will be hosting your wedding?"), box));
    layout->addWidget(mTemplate);
    layout->addWidget(new QLabel(QStringLiteral("Request the...of your..."), box));
    layout->addWidget(mPhrase);
    layout->addWidget(new QLabel(QStringLiteral("Where will the wedding take place?"), box));
    layout->addWidget(mPlace);
    layout->addWidget(mReception);
    layout->addWidget(mReceptionPlace);
    connect(mTemplate, &QComboBox::currentIndexChanged, this, &usrWordingSide::InputChanged);
    connect(mPhrase, &QComboBox::currentIndexChanged, this, &usrWordingSide::InputChanged);
    connect(mPlace, &QPlainTextEdit::textChanged, this, &usrWordingSide::InputChanged);
    connect(mReception, &QCheckBox::toggled, this, &usrWordingSide::InputChanged);
    connect(mReceptionPlace, &QPlainTextEdit::textChanged, this, &usrWordingSide::InputChanged);
    return box;
}

QWidget* usrWordingSide::BuildResult() {
    auto* box = new QWidget(this);
    auto* layout = new QVBoxLayout(box);
    auto* options = new QHBoxLayout;
    mPreview = new QRadioButton(QStringLiteral("Preview"), box);
    mPreview->setObjectName(QStringLiteral("optPreview_0"));
    mSavedOption = new QRadioButton(QStringLiteral("Saved"), box);
    mSavedOption->setObjectName(QStringLiteral("optPreview_1"));
    options->addWidget(mPreview);
    options->addWidget(mSavedOption);
    options->addStretch();
    mInvitationLabel = modLayout::BoldLabel(QStringLiteral("lblInvitation"), box);
    mInvitationLabel->setText(QStringLiteral("Preview Invitation Wording"));
    mInvitation = new QPlainTextEdit(box);
    mInvitation->setObjectName(QStringLiteral("txtInvitation"));
    mSave = new QPushButton(QStringLiteral("Save Invitation Wording"), box);
    mSave->setObjectName(QStringLiteral("cmdSaveInvitation"));
    mSave->setEnabled(false);
    layout->addLayout(options);
    layout->addWidget(mInvitationLabel);
    layout->addWidget(mInvitation, 1);
    layout->addWidget(mSave, 0, Qt::AlignRight);
    connect(mPreview, &QRadioButton::clicked, this, [this] { optPreview_Click(true); });
    connect(mSavedOption, &QRadioButton::clicked, this, [this] { optPreview_Click(false); });
    connect(mInvitation, &QPlainTextEdit::textChanged, this, &usrWordingSide::UpdateSaveButton);
    connect(mSave, &QPushButton::clicked, this, [this] { cmdSaveInvitation_Click(); });
    return box;
}

// ---- The people ----

void usrWordingSide::LoadPeople() {
    RecordIO::Attempt([this] { mPeople = modWording::People::Open(mChoices); });
    mBrideHeader->setText(mPeople.Bride.FIRST_NM + QStringLiteral("'s Parents"));
    mGroomHeader->setText(mPeople.Groom.FIRST_NM + QStringLiteral("'s Parents"));
    for (int role = 3; role <= 6; ++role) {
        ShowParent(role);
        ShowRemarried(role, mChoices.RemarriedTo(role));
    }
}

// The parent's name in the link colour, or the role's label in the disabled colour with no contact.
void usrWordingSide::ShowParent(int roleId) {
    usrHyperlink* link = mLink.at(static_cast<size_t>(roleId - 3));
    const clsCONTACT& parent = mPeople.Parent(roleId);
    const bool found = !parent.CONTACT_ID.isEmpty();
    link->setCaption(found ? parent.TitleFirstMiddleLastSuffix() : RoleLabel(roleId));
    link->setForeColor(palette().color(found ? QPalette::Active : QPalette::Disabled,
                                       found ? QPalette::Link : QPalette::WindowText));
    link->setProperty("Tag", parent.CONTACT_ID);
    link->setEnabled(modWidgetLinks::CanOpenContacts());
    mRemarried.at(static_cast<size_t>(roleId - 3))->setVisible(found);
}

// "and " + the new spouse's name when one is chosen and still there, "remarried" otherwise.
void usrWordingSide::ShowRemarried(int roleId, const QString& contactId) {
    usrHyperlink* link = mRemarried.at(static_cast<size_t>(roleId - 3));
    clsCONTACT spouse;
    if (!contactId.isEmpty())
        RecordIO::Attempt([&] { spouse.OpenRecord(contactId); });
    link->setCaption(spouse.CONTACT_ID.isEmpty()
                         ? QStringLiteral("remarried")
                         : QStringLiteral("and ") + spouse.TitleFirstMiddleLastSuffix());
    link->setProperty("Tag", spouse.CONTACT_ID);
    link->setEnabled(modWidgetLinks::CanOpenContacts());
    mChoices.RemarriedTo(roleId) = spouse.CONTACT_ID;
}

void usrWordingSide::link_Click(int roleId) {
    const QString contactId = mLink.at(static_cast<size_t>(roleId - 3))->property("Tag").toString();
    if (modContactEditor::OpenForKey(this, contactId, QString::number(roleId)).isEmpty())
        return;
    LoadPeople();
    Generate();
}

void usrWordingSide::linkRE_Click(int roleId) {
    QString contactId;
    if (!modWidgetLinks::OpenRemarried(this, roleId, &contactId))
        return;
    mChoices.RemarriedTo(roleId) = contactId;
    if (contactId.isEmpty())
        LoadPeople();
    else
        ShowRemarried(roleId, contactId);
    RecordIO::Attempt([this] { mPeople = modWording::People::Open(mChoices); });
    Generate();
}

// ---- The text ----

modWording::Choices usrWordingSide::ChoicesOnScreen() const {
    modWording::Choices c = mChoices;
    c.Template = mTemplate->currentIndex();
    c.Phrase = mPhrase->currentIndex();
    c.Place = NormalizeLineBreaks(mPlace->toPlainText());
    c.Reception = mReception->isChecked();
    c.ReceptionPlace = NormalizeLineBreaks(mReceptionPlace->toPlainText());
    return c;
}

bool usrWordingSide::IsPreview() const {
    return mPreview->isChecked();
}

void usrWordingSide::Generate() {
    if (mLoading || !IsPreview())
        return;
    const QDateTime when = ParseDateTimeText(modWedding::WeddingDateTime());
    const QString text = modWording::Text(ChoicesOnScreen(), mPeople, when);
    if (!text.isEmpty())
        mInvitation->setPlainText(Shown(text));
}

void usrWordingSide::InputChanged() {
    Generate();
}

void usrWordingSide::optPreview_Click(bool preview) {
    mInvitationLabel->setText((preview ? mPreview : mSavedOption)->text() +
                              QStringLiteral(" Invitation Wording"));
    if (!preview) {
        mInvitation->setPlainText(Shown(mSaved.WORDING_TX));
        return;
    }
    AskToSave();
    Generate();
}

void usrWordingSide::UpdateSaveButton() {
    mSave->setEnabled(NormalizeLineBreaks(mInvitation->toPlainText()) !=
                      NormalizeLineBreaks(mSaved.WORDING_TX));
}

bool usrWordingSide::cmdSaveInvitation_Click() {
    clsWORDING wording = mSaved;
    wording.WORDING_ID = QString::number(clsWORDING::InvitationWording);
    wording.WORDING_TX = NormalizeLineBreaks(mInvitation->toPlainText());
    if (!RecordIO::Attempt([&wording] { wording.Save(false); }))
        return false;
    mSaved = wording;
    UpdateSaveButton();
    return true;
}

// A text that differs from the saved one is offered for saving before it is replaced or left.
void usrWordingSide::AskToSave() {
    if (mSave->isEnabled() && ShowMessage(QStringLiteral("Save Invitation Wording?"),
                                          Msg::YesNo | Msg::Question, ProgramTitle()) == Msg::Yes)
        cmdSaveInvitation_Click();
}

void usrWordingSide::Leaving() {
    AskToSave();
    ChoicesOnScreen().Save();
    gRegistry().SaveSetting(modWording::SettingsKey(), kPreviewSetting,
                            IsPreview() ? QStringLiteral("1") : QStringLiteral("0"));
}
