#include "planning/ui/frmEvent.h"

#include "core/modGeneral.h"
#include "planning/ui/modPlanningEditors.h"
#include "platform/clsShell.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrHyperlink.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimeEdit>
#include <QUrl>
#include <QVBoxLayout>

using namespace modPlanningEditors;

namespace {

// The one-line fields after the address, with their captions, in the order of the record.
struct LineField {
    const char* Name;
    const char* Caption;
    QString clsEVENT::*Member;
};
const LineField kLines[] = {
    {"txtCITY_TX", "City", &clsEVENT::CITY_TX},
    {"txtSTATE_TX", "State", &clsEVENT::STATE_TX},
    {"txtZIP_TX", "Zip", &clsEVENT::ZIP_TX},
    {"txtCOUNTRY_TX", "Country", &clsEVENT::COUNTRY_TX},
    {"txtCONTACT_NM", "&Contact", &clsEVENT::CONTACT_NM},
    {"txtPHONE_TX", "&Phone", &clsEVENT::PHONE_TX},
    {"txtFAX_TX", "&Fax", &clsEVENT::FAX_TX},
    {"txtEMAIL_TX", "E-&mail", &clsEVENT::EMAIL_TX},
    {"txtWEB_SITE_TX", "&Web Site", &clsEVENT::WEB_SITE_TX},
};

// A web site typed without its scheme opens as http.
QString WebAddress(const QString& site) {
    const QString trimmed = site.trimmed();
    return trimmed.contains(QStringLiteral("://")) ? trimmed : QStringLiteral("http://") + trimmed;
}

} // namespace

frmEvent::frmEvent(const QString& eventId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmEvent"));
    SetRecordNoun(QStringLiteral("Event"));
    lblTop = modLayout::HeaderLabel(this);
    lblTop->setObjectName(QStringLiteral("lblTop"));
    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveAndNew");

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblTop);
    layout->addWidget(BuildFields(), 1);
    layout->addWidget(BuildLinks());
    layout->addWidget(ButtonRow(names));

    clsEVENT event;
    const bool found = !eventId.isEmpty() && RecordIO::Read([&] { return event.OpenRecord(eventId); });
    SetAdding(!found);
    if (!found)
        event.EVENT_DT = clsEVENT::ComposeEVENT_DT(Now().date(), Now().time());
    mEvent = event;
    ShowEvent(event);
    MarkClean();
    UpdateState();
    resize(sizeHint().expandedTo(QSize(560, 0)));
    txtName->setFocus();
}

QWidget* frmEvent::BuildFields() {
    auto* fields = new QWidget(this);
    QFormLayout* form = modLayout::Form(fields);
    form->setContentsMargins(0, 0, 0, 0);
    txtName = LineBox(QStringLiteral("txtEVENT_TX"), fields);
    modLayout::CaptionedRow(form, QStringLiteral("&Event"), txtName);
    auto* when = new QWidget(fields);
    auto* row = new QHBoxLayout(when);
    row->setContentsMargins(0, 0, 0, 0);
    dt = DatePicker(QStringLiteral("dt"), when);
    tm = TimePicker(QStringLiteral("tm"), when);
    auto* timeCaption = new QLabel(QStringLiteral("&Time"), when);
    timeCaption->setBuddy(tm);
    row->addWidget(dt);
    row->addSpacing(12);
    row->addWidget(timeCaption);
    row->addWidget(tm);
    row->addStretch(1);
    modLayout::CaptionedRow(form, QStringLiteral("&Date"), when, dt);
    txtAddress = TextBox(QStringLiteral("txtADDRESS_TX"), 3, fields);
    modLayout::CaptionedRow(form, QStringLiteral("&Address"), txtAddress)
        ->setAlignment(Qt::AlignRight | Qt::AlignTop);
    for (const LineField& field : kLines) {
        mLines << LineBox(QLatin1String(field.Name), fields);
        modLayout::CaptionedRow(form, QLatin1String(field.Caption), mLines.last());
        connect(mLines.last(), &QLineEdit::textChanged, this, &frmEvent::UpdateState);
    }
    txtNotes = TextBox(QStringLiteral("txtNOTES_TX"), 4, fields);
    modLayout::CaptionedRow(form, QStringLiteral("N&otes"), txtNotes)
        ->setAlignment(Qt::AlignRight | Qt::AlignTop);
    connect(txtName, &QLineEdit::textChanged, this, &frmEvent::UpdateState);
    connect(dt, &QDateEdit::dateChanged, this, &frmEvent::UpdateState);
    connect(tm, &QTimeEdit::timeChanged, this, &frmEvent::UpdateState);
    connect(txtAddress, &QPlainTextEdit::textChanged, this, &frmEvent::UpdateState);
    connect(txtNotes, &QPlainTextEdit::textChanged, this, &frmEvent::UpdateState);
    return fields;
}

QWidget* frmEvent::BuildLinks() {
    auto* links = new QWidget(this);
    auto* row = new QHBoxLayout(links);
    row->setContentsMargins(0, 4, 0, 4);
    const auto link = [links, row](const char* name, const QString& caption, const QIcon& icon) {
        auto* item = new usrHyperlink(caption, links);
        item->setObjectName(QLatin1String(name));
        item->setPicture(icon);
        row->addWidget(item);
        return item;
    };
    picEmail = link("picEmail", QStringLiteral("Send e-mail"), QIcon());
    picWeb = link("picWeb", QStringLiteral("Visit web site"), QIcon());
    picMapIt = link("picMapIt", QStringLiteral("Map Location with Google Maps"), ControlIcons::MapPin());
    row->addStretch(1);
    connect(picEmail, &usrHyperlink::Click, this, [this] { SendEmail(EventOnScreen().EMAIL_TX); });
    connect(picWeb, &usrHyperlink::Click, this,
            [this] { gShell().OpenDocument(WebAddress(EventOnScreen().WEB_SITE_TX)); });
    connect(picMapIt, &usrHyperlink::Click, this, [this] { EventOnScreen().MapIt(); });
    return links;
}

void frmEvent::ShowEvent(const clsEVENT& event) {
    txtName->setText(event.EVENT_TX);
    const QDateTime when = ParseDateTimeText(event.EVENT_DT);
    dt->setDate(when.isValid() ? when.date() : Now().date());
    tm->setTime(when.isValid() ? when.time() : QTime(12, 0));
    txtAddress->setPlainText(ToScreen(event.ADDRESS_TX));
    for (qsizetype i = 0; i < mLines.size(); ++i)
        mLines[i]->setText(event.*(kLines[i].Member));
    txtNotes->setPlainText(ToScreen(event.NOTES_TX));
}

clsEVENT frmEvent::EventOnScreen() const {
    clsEVENT event = mEvent;
    event.EVENT_TX = TrimBlanks(txtName->text());
    event.EVENT_DT = clsEVENT::ComposeEVENT_DT(dt->date(), tm->time());
    event.ADDRESS_TX = StoredText(txtAddress);
    for (qsizetype i = 0; i < mLines.size(); ++i)
        event.*(kLines[i].Member) = TrimBlanks(mLines[i]->text());
    event.NOTES_TX = StoredText(txtNotes);
    return event;
}

QStringList frmEvent::Snapshot() const {
    QStringList texts = {txtName->text(), dt->date().toString(Qt::ISODate), tm->time().toString(),
                         txtAddress->toPlainText(), txtNotes->toPlainText()};
    for (const QLineEdit* line : mLines)
        texts << line->text();
    return texts;
}

void frmEvent::UpdateState() {
    const QString name = TrimBlanks(txtName->text());
    lblTop->setText(name.isEmpty() ? QStringLiteral("Event") : name);
    const bool ready = IsDirty() && !name.isEmpty();
    SaveButton()->setEnabled(ready);
    SaveAndNewButton()->setEnabled(ready);
    const clsEVENT event = EventOnScreen();
    picEmail->setEnabled(event.EMAIL_TX.contains(QLatin1Char('@')));
    picWeb->setEnabled(!event.WEB_SITE_TX.isEmpty());
    picMapIt->setEnabled(!event.DisplayAddress(false).isEmpty());
}

bool frmEvent::SaveRecord() {
    clsEVENT event = EventOnScreen();
    if (event.EVENT_TX.isEmpty())
        return false;
    if (!RecordIO::Attempt([&event, this] { event.Save(IsAdding()); }))
        return false;
    mEvent = event;
    return true;
}

void frmEvent::StartNew() {
    mEvent = clsEVENT();
    txtName->clear();
    txtAddress->clear();
    for (QLineEdit* line : mLines)
        line->clear();
    txtNotes->clear();
    txtName->setFocus();
}
