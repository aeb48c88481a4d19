#include "planning/ui/frmTimeline.h"

#include "core/ShowMessage.h"
#include "core/modGeneral.h"
#include "planning/modTimelineTimes.h"
#include "planning/ui/frmEvent.h"
#include "planning/ui/modPlanningEditors.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDropdown.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace modPlanningEditors;
namespace T = modTimelineTimes;

namespace {

const QString kEventsQuery = QStringLiteral("SELECT EVENT_ID, EVENT_TX FROM EVENT ORDER BY EVENT_TX");

QComboBox* TimeList(const QString& name, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMaxVisibleItems(16);
    list->setMinimumContentsLength(18);
    return list;
}

QDate EventDate(const QString& eventId) {
    clsEVENT event;
    if (eventId.isEmpty() || !RecordIO::Read([&] { return event.OpenRecord(eventId); }))
        return Now().date();
    const QDateTime when = ParseDateTimeText(event.EVENT_DT);
    return when.isValid() ? when.date() : Now().date();
}

QString Stored(const QDate& date, const QTime& time) {
    return FormatDate(date) + QLatin1Char(' ') + FormatTime(time);
}

} // namespace

frmTimeline::frmTimeline(const QString& timelineId, const QString& eventId, QWidget* parent)
    : frmEditorBase(parent), mDuration(T::kDefaultDurationMinutes) {
    setObjectName(QStringLiteral("frmTimeline"));
    SetRecordNoun(QStringLiteral("Entry"));
    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveAndNew");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Header());
    layout->addWidget(BuildFields(), 1);
    layout->addWidget(ButtonRow(names));

    clsTIMELINE entry;
    const bool found = !timelineId.isEmpty() && RecordIO::Read([&] { return entry.OpenRecord(timelineId); });
    SetAdding(!found);
    if (found) {
        ShowEntry(entry);
    } else {
        usrEVENT->setCode(eventId);
        usrEVENT_Click();
    }
    mEntry = entry;
    MarkClean();
    UpdateState();
    resize(sizeHint().expandedTo(QSize(560, 0)));
    txtDesc->setFocus();
}

// A time box that loses the focus while the dialog goes would still report the end of its editing.
frmTimeline::~frmTimeline() {
    for (QObject* sender :
         {static_cast<QObject*>(cboStart->lineEdit()), static_cast<QObject*>(cboEnd->lineEdit())})
        sender->disconnect(this);
}

QWidget* frmTimeline::BuildFields() {
    auto* fields = new QWidget(this);
    QFormLayout* form = modLayout::Form(fields);
    form->setContentsMargins(0, 0, 0, 0);
    usrEVENT = new usrDropdown(fields);
    usrEVENT->setObjectName(QStringLiteral("usrEVENT"));
    usrEVENT->PopulateSQL(kEventsQuery);
    usrEVENT->setAddIsVisible(true);
    usrEVENT->setAddToolTip(QStringLiteral("Add a new event (Insert)"));
    modLayout::CaptionedRow(form, QStringLiteral("E&vent"), usrEVENT, usrEVENT->ComboBox());
    const auto row = [fields](QDateEdit*& date, QComboBox*& time, const char* dateName,
                              const char* timeName) {
        auto* line = new QWidget(fields);
        auto* box = new QHBoxLayout(line);
        box->setContentsMargins(0, 0, 0, 0);
        date = DatePicker(QLatin1String(dateName), line);
        time = TimeList(QLatin1String(timeName), line);
        box->addWidget(date);
        box->addWidget(time, 1);
        return line;
    };
    modLayout::CaptionedRow(form, QStringLiteral("&Start"), row(dtStart, cboStart, "dtStart", "cboTime_0"),
                            dtStart);
    modLayout::CaptionedRow(form, QStringLiteral("E&nd"), row(dtEnd, cboEnd, "dtEnd", "cboTime_1"), dtEnd);
    cboStart->addItems(T::StartTimes());
    txtDesc = LineBox(QStringLiteral("txtTIMELINE_DESC"), fields);
    modLayout::CaptionedRow(form, QStringLiteral("&Description"), txtDesc);
    txtContact = LineBox(QStringLiteral("txtCONTACT_NM"), fields);
    modLayout::CaptionedRow(form, QStringLiteral("&Contact(s)"), txtContact);
    txtNotes = TextBox(QStringLiteral("txtNOTES_TX"), 4, fields);
    modLayout::CaptionedRow(form, QStringLiteral("N&otes"), txtNotes)
        ->setAlignment(Qt::AlignRight | Qt::AlignTop);

    connect(usrEVENT, &usrDropdown::Click, this, &frmTimeline::usrEVENT_Click);
    connect(usrEVENT, &usrDropdown::AddClick, this, &frmTimeline::usrEVENT_AddClick);
    connect(cboStart, &QComboBox::activated, this, &frmTimeline::cboTime_0_Changed);
    connect(cboStart->lineEdit(), &QLineEdit::editingFinished, this, &frmTimeline::cboTime_0_Changed);
    connect(cboEnd, &QComboBox::activated, this, &frmTimeline::cboTime_1_Changed);
    connect(cboEnd->lineEdit(), &QLineEdit::editingFinished, this, &frmTimeline::cboTime_1_Changed);
    connect(dtStart, &QDateEdit::dateChanged, this, &frmTimeline::dtStart_Changed);
    connect(dtEnd, &QDateEdit::dateChanged, this, &frmTimeline::dtEnd_Changed);
    for (QLineEdit* box : {txtDesc, txtContact, cboStart->lineEdit(), cboEnd->lineEdit()})
        connect(box, &QLineEdit::textChanged, this, &frmTimeline::UpdateState);
    connect(txtNotes, &QPlainTextEdit::textChanged, this, &frmTimeline::UpdateState);
    return fields;
}

void frmTimeline::ShowEntry(const clsTIMELINE& entry) {
    const QSignalBlocker blockEvent(usrEVENT);
    usrEVENT->setCode(entry.EVENT_ID);
    const QDateTime start = ParseDateTimeText(entry.TIMELINE_START_DT);
    const QDateTime end = ParseDateTimeText(entry.TIMELINE_END_DT);
    mFilling = true;
    dtStart->setDate(start.date());
    dtEnd->setDate(end.isValid() ? end.date() : start.date());
    mFilling = false;
    StartAt(start.time());
    mDuration = T::MinutesBetween(start.time(), end.isValid() ? end.time() : start.time());
    SetEndTime(end.isValid() ? end.time() : start.time());
    txtDesc->setText(entry.TIMELINE_DESC);
    txtContact->setText(entry.CONTACT_NM);
    txtNotes->setPlainText(ToScreen(entry.NOTES_TX));
}

// The start shows this time, and the end list runs from it.
void frmTimeline::StartAt(const QTime& start) {
    cboStart->setEditText(FormatTime(start));
    cboEnd->clear();
    cboEnd->addItems(T::EndTimes(start));
}

void frmTimeline::SetEndTime(const QTime& end) {
    const QTime start = T::ReadTime(cboStart->currentText());
    const int entry = start.isValid() ? T::MinutesBetween(start, end) : -1;
    // A whole half hour from the start shows with its offset label, as the list has it.
    if (entry >= 0 && entry % T::kStepMinutes == 0 && entry / T::kStepMinutes < T::kListLength)
        cboEnd->setCurrentIndex(entry / T::kStepMinutes);
    else
        cboEnd->setEditText(FormatTime(end));
    KeepDatesInStep();
}

void frmTimeline::cboTime_0_Changed() {
    const QTime start = T::ReadTime(cboStart->currentText());
    if (!start.isValid())
        return;
    StartAt(start);
    SetEndTime(start.addSecs(mDuration * 60));
}

void frmTimeline::cboTime_1_Changed() {
    const QTime start = T::ReadTime(cboStart->currentText());
    const QTime end = T::ReadTime(cboEnd->currentText());
    if (!start.isValid() || !end.isValid())
        return;
    mDuration = T::MinutesBetween(start, end);
    KeepDatesInStep();
}

void frmTimeline::KeepDatesInStep() {
    const QTime start = T::ReadTime(cboStart->currentText());
    const QTime end = T::ReadTime(cboEnd->currentText());
    if (!start.isValid() || !end.isValid())
        return;
    mFilling = true;
    dtEnd->setDate(T::EndDateAfterTimeChange(dtStart->date(), dtEnd->date(), start, end));
    mFilling = false;
    UpdateState();
}

void frmTimeline::dtStart_Changed() {
    if (mFilling)
        return;
    mFilling = true;
    dtEnd->setDate(T::AfterStartDateChange({dtStart->date(), dtEnd->date()}).End);
    mFilling = false;
    UpdateState();
}

void frmTimeline::dtEnd_Changed() {
    if (mFilling)
        return;
    mFilling = true;
    dtStart->setDate(T::AfterEndDateChange({dtStart->date(), dtEnd->date()}).Start);
    mFilling = false;
    UpdateState();
}

// Another event: its date for both dates, and the start where its latest entry ends.
void frmTimeline::usrEVENT_Click() {
    const QString eventId = usrEVENT->Code();
    const QDate date = EventDate(eventId);
    mFilling = true;
    dtStart->setDate(date);
    dtEnd->setDate(date);
    mFilling = false;
    if (IsAdding()) {
        const QTime start = T::ReadTime(RecordIO::Read([&] { return clsTIMELINE().GetLastTime(eventId); }));
        StartAt(start.isValid() ? start : QTime(8, 0));
        SetEndTime(T::ReadTime(cboStart->currentText()).addSecs(mDuration * 60));
    }
    UpdateState();
}

void frmTimeline::usrEVENT_AddClick() {
    frmEvent editor(QString(), this);
    QString added;
    connect(&editor, &frmEditorBase::Added, this, [&added](const QString& key) { added = key; });
    editor.exec();
    usrEVENT->mfrmOptions_OptionsUpdated();
    if (!added.isEmpty()) {
        usrEVENT->setCode(added);
        usrEVENT_Click();
    }
}

QStringList frmTimeline::Snapshot() const {
    return {usrEVENT->Code(),        dtStart->date().toString(Qt::ISODate),
            cboStart->currentText(), dtEnd->date().toString(Qt::ISODate),
            cboEnd->currentText(),   txtDesc->text(),
            txtContact->text(),      txtNotes->toPlainText()};
}

void frmTimeline::UpdateState() {
    const bool ready = IsDirty() && !usrEVENT->Code().isEmpty() && !TrimBlanks(txtDesc->text()).isEmpty();
    SaveButton()->setEnabled(ready);
    SaveAndNewButton()->setEnabled(ready);
}

// Both times must read as times; a text that doesn't is refused, and never stored.
bool frmTimeline::CheckTimes(QTime& start, QTime& end) {
    start = T::ReadTime(cboStart->currentText());
    end = T::ReadTime(cboEnd->currentText());
    QComboBox* wrong = !start.isValid() ? cboStart : !end.isValid() ? cboEnd : nullptr;
    if (!wrong)
        return true;
    ShowMessage(QStringLiteral("\"") + wrong->currentText() +
                    QStringLiteral("\" is not a time. Type a time such as ") + FormatTime(QTime(9, 30)) +
                    QStringLiteral(", or choose one from the list."),
                Msg::Exclamation, ProgramTitle());
    wrong->setFocus();
    return false;
}

bool frmTimeline::SaveRecord() {
    QTime start;
    QTime end;
    if (!CheckTimes(start, end))
        return false;
    if (T::EndDateBeforeStart(dtStart->date(), dtEnd->date())) {
        ShowMessage(T::EndBeforeStartMessage(), Msg::Exclamation, ProgramTitle());
        dtEnd->setFocus();
        return false;
    }
    clsTIMELINE entry = mEntry;
    entry.EVENT_ID = usrEVENT->Code();
    entry.TIMELINE_START_DT = Stored(dtStart->date(), start);
    entry.TIMELINE_END_DT = Stored(dtEnd->date(), end);
    entry.TIMELINE_DESC = TrimBlanks(txtDesc->text());
    entry.CONTACT_NM = TrimBlanks(txtContact->text());
    entry.NOTES_TX = StoredText(txtNotes);
    if (!RecordIO::Attempt([&] {
            entry.Save(IsAdding());
            entry.OpenRecord(entry.TIMELINE_ID);
        }))
        return false;
    mEntry = entry;
    return true;
}

// The next entry starts where this one ended, on the day it ended, and lasts as long.
void frmTimeline::StartNew() {
    const QTime end = T::ReadTime(cboEnd->currentText());
    mEntry = clsTIMELINE();
    mFilling = true;
    dtStart->setDate(dtEnd->date());
    mFilling = false;
    StartAt(end);
    SetEndTime(end.addSecs(mDuration * 60));
    txtDesc->clear();
    txtContact->clear();
    txtNotes->clear();
    txtDesc->setFocus();
}
