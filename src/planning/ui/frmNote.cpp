#include "planning/ui/frmNote.h"

#include "core/modGeneral.h"
#include "planning/ui/usrAssignedFiles.h"
#include "shell/controls/modLayout.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace {
constexpr int kFilesTab = 1;
} // namespace

frmNote::frmNote(const QString& notebookId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmNote"));
    SetRecordNoun(QStringLiteral("Note"));
    BuildControls();
    clsNOTEBOOK note;
    if (!notebookId.isEmpty() && RecordIO::Read([&] { return note.OpenRecord(notebookId); })) {
        SetAdding(false);
        mNote = note;
    } else {
        note.NOTEBOOK_DT = FormatDateTime(Now(), DateTimeFormat());
    }
    ShowNote(note);
    MarkClean();
    UpdateButtons();
    txtSUBJECT_TX->setFocus();
}

void frmNote::BuildControls() {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    dtPick = new QDateEdit(this);
    dtPick->setObjectName(QStringLiteral("dtPick"));
    dtPick->setLocale(english);
    dtPick->setDisplayFormat(QStringLiteral("dd-MMM-yyyy"));
    dtPick->setCalendarPopup(true);
    tmPick = new QTimeEdit(this);
    tmPick->setObjectName(QStringLiteral("tmPick"));
    tmPick->setLocale(english);
    tmPick->setDisplayFormat(TimePickerFormat() == QLatin1String("H:mm") ? QStringLiteral("H:mm")
                                                                         : QStringLiteral("h:mm AP"));
    txtSUBJECT_TX = new QLineEdit(this);
    txtSUBJECT_TX->setObjectName(QStringLiteral("txtSUBJECT_TX"));
    txtNOTES_TX = new QPlainTextEdit(this);
    txtNOTES_TX->setObjectName(QStringLiteral("txtNOTES_TX"));
    txtNOTES_TX->setTabChangesFocus(true);
    mFiles = new usrAssignedFiles(this);
    mFiles->setObjectName(QStringLiteral("usrAssignedFiles"));
    tabNote = new QTabWidget(this);
    tabNote->setObjectName(QStringLiteral("tabNote"));
    tabNote->addTab(txtNOTES_TX, QStringLiteral("Notes"));
    tabNote->addTab(mFiles, QString());

    auto* whenBox = new QWidget(this);
    auto* when = new QHBoxLayout(whenBox);
    when->setContentsMargins(0, 0, 0, 0);
    when->addWidget(dtPick);
    when->addWidget(tmPick);
    when->addStretch(1);
    QFormLayout* form = modLayout::Form(nullptr);
    modLayout::CaptionedRow(form, QStringLiteral("&Date"), whenBox, dtPick);
    modLayout::CaptionedRow(form, QStringLiteral("&Subject"), txtSUBJECT_TX);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Header());
    layout->addLayout(form);
    layout->addWidget(tabNote, 1);
    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveAndNew");
    layout->addWidget(ButtonRow(names));
    resize(620, 460);

    connect(dtPick, &QDateEdit::dateChanged, this, &frmNote::UpdateButtons);
    connect(tmPick, &QTimeEdit::timeChanged, this, &frmNote::UpdateButtons);
    connect(txtSUBJECT_TX, &QLineEdit::textChanged, this, &frmNote::UpdateButtons);
    connect(txtNOTES_TX, &QPlainTextEdit::textChanged, this, &frmNote::UpdateButtons);
    connect(mFiles, &usrAssignedFiles::Changed, this, &frmNote::mfrmNotebookAddFile_Refresh);
}

void frmNote::ShowNote(const clsNOTEBOOK& note) {
    const QDateTime when = ParseDateTimeText(note.NOTEBOOK_DT);
    dtPick->setDate(when.date());
    tmPick->setTime(QTime(when.time().hour(), when.time().minute()));
    txtSUBJECT_TX->setText(note.SUBJECT_TX);
    txtNOTES_TX->setPlainText(note.NOTES_TX);
    mFiles->SetPaths(note.FILE_PATH_TX);
    mfrmNotebookAddFile_Refresh();
}

void frmNote::mfrmNotebookAddFile_Refresh() {
    tabNote->setTabText(kFilesTab,
                        QStringLiteral("Files (") + QString::number(mFiles->Count()) + QLatin1Char(')'));
    UpdateButtons();
}

// The date in "dd-mmm-yyyy", a blank and the time.
QString frmNote::PickedDateTime() const {
    return FormatDate(dtPick->date()) + QLatin1Char(' ') + FormatTime(tmPick->time());
}

QStringList frmNote::Snapshot() const {
    return {PickedDateTime(), txtSUBJECT_TX->text().trimmed(), txtNOTES_TX->toPlainText(), mFiles->Paths()};
}

void frmNote::UpdateButtons() {
    const bool enable = !txtSUBJECT_TX->text().trimmed().isEmpty() && IsDirty();
    SaveButton()->setEnabled(enable);
    SaveAndNewButton()->setEnabled(enable);
}

bool frmNote::SaveRecord() {
    if (!SaveButton()->isEnabled())
        return false;
    clsNOTEBOOK note = mNote;
    note.NOTEBOOK_DT = PickedDateTime();
    note.SUBJECT_TX = txtSUBJECT_TX->text().trimmed();
    note.NOTES_TX = txtNOTES_TX->toPlainText();
    note.FILE_PATH_TX = mFiles->Paths();
    const bool adding = IsAdding();
    if (!RecordIO::Attempt([&] { note.Save(adding); }))
        return false;
    mNote = note;
    return true;
}

void frmNote::StartNew() {
    mNote = clsNOTEBOOK();
    clsNOTEBOOK next;
    next.NOTEBOOK_DT = FormatDateTime(Now(), DateTimeFormat());
    ShowNote(next);
    tabNote->setCurrentIndex(0);
    txtSUBJECT_TX->setFocus();
}
