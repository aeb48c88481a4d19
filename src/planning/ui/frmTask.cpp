#include "planning/ui/frmTask.h"

#include "shell/controls/modLayout.h"
#include "shell/controls/usrDate.h"
#include "shell/controls/usrDropdown.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmTask::frmTask(const QString& taskId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmTask"));
    SetRecordNoun(QStringLiteral("Task"));
    BuildControls();
    clsTASK task;
    const bool found = !taskId.isEmpty() && RecordIO::Read([&] { return task.OpenRecord(taskId); });
    if (found) {
        SetAdding(false);
        mTask = task;
    } else {
        task.TASK_GROUP_ID = RecordIO::Read([] { return clsTASK::MIN_TASK_GROUP_ID(); });
        task.COMPLETED_FG = QStringLiteral("N");
    }
    ShowTask(task);
    MarkClean();
    UpdateButtons();
    txtTASK_NM->setFocus();
}

void frmTask::BuildControls() {
    txtTASK_NM = new QLineEdit(this);
    txtTASK_NM->setObjectName(QStringLiteral("txtTASK_NM"));
    usrTASK_GROUP_DICT = new usrDropdown(this);
    usrTASK_GROUP_DICT->setObjectName(QStringLiteral("usrTASK_GROUP_DICT"));
    // The time frames stand in the order of their distance from the wedding, not of their names.
    usrTASK_GROUP_DICT->PopulateSQL(
        QStringLiteral("SELECT TASK_GROUP_ID, TASK_GROUP_TX FROM TASK_GROUP_DICT ORDER BY TASK_GROUP_ID"));
    usrDueDate = new usrDate(this);
    usrDueDate->setObjectName(QStringLiteral("usrDate"));
    chkCOMPLETED_FG = new QCheckBox(QStringLiteral("Completed"), this);
    chkCOMPLETED_FG->setObjectName(QStringLiteral("chkCOMPLETED_FG"));
    txtNOTES_TX = new QPlainTextEdit(this);
    txtNOTES_TX->setObjectName(QStringLiteral("txtNOTES_TX"));
    txtNOTES_TX->setTabChangesFocus(true);

    QFormLayout* form = modLayout::Form(nullptr);
    modLayout::CaptionedRow(form, QStringLiteral("&Task"), txtTASK_NM);
    modLayout::CaptionedRow(form, QStringLiteral("Time &Frame"), usrTASK_GROUP_DICT,
                            usrTASK_GROUP_DICT->ComboBox());
    modLayout::CaptionedRow(form, QStringLiteral("&Due Date"), usrDueDate);
    form->addRow(QString(), chkCOMPLETED_FG);
    modLayout::CaptionedRow(form, QStringLiteral("&Notes"), txtNOTES_TX);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Header());
    layout->addLayout(form, 1);
    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveAndNew");
    layout->addWidget(ButtonRow(names));
    resize(520, 360);

    connect(txtTASK_NM, &QLineEdit::textChanged, this, &frmTask::UpdateButtons);
    connect(usrTASK_GROUP_DICT->ComboBox(), &QComboBox::currentIndexChanged, this, &frmTask::UpdateButtons);
    connect(usrDueDate, &usrDate::Changed, this, &frmTask::UpdateButtons);
    connect(chkCOMPLETED_FG, &QCheckBox::toggled, this, &frmTask::UpdateButtons);
    connect(txtNOTES_TX, &QPlainTextEdit::textChanged, this, &frmTask::UpdateButtons);
}

void frmTask::ShowTask(const clsTASK& task) {
    txtTASK_NM->setText(task.TASK_NM);
    usrTASK_GROUP_DICT->setCode(task.TASK_GROUP_ID);
    usrDueDate->SetText(task.DUE_DT);
    chkCOMPLETED_FG->setChecked(task.COMPLETED_FG == QLatin1String("Y"));
    txtNOTES_TX->setPlainText(task.NOTES_TX);
}

QStringList frmTask::Snapshot() const {
    return {txtTASK_NM->text().trimmed(), usrTASK_GROUP_DICT->Code(), usrDueDate->Text(),
            chkCOMPLETED_FG->isChecked() ? QStringLiteral("Y") : QStringLiteral("N"),
            txtNOTES_TX->toPlainText()};
}

void frmTask::UpdateButtons() {
    const bool complete = !txtTASK_NM->text().trimmed().isEmpty() && !usrTASK_GROUP_DICT->Code().isEmpty();
    const bool enable = complete && IsDirty();
    SaveButton()->setEnabled(enable);
    SaveAndNewButton()->setEnabled(enable);
}

bool frmTask::SaveRecord() {
    if (!SaveButton()->isEnabled())
        return false;
    clsTASK task = mTask;
    const QStringList fields = Snapshot();
    task.TASK_NM = fields[0];
    task.TASK_GROUP_ID = fields[1];
    task.DUE_DT = fields[2];
    task.COMPLETED_FG = fields[3];
    task.NOTES_TX = fields[4];
    const bool adding = IsAdding();
    if (!RecordIO::Attempt([&] {
            task.Save(adding);
            task.OpenRecord(task.TASK_ID);
        }))
        return false;
    mTask = task;
    return true;
}

void frmTask::StartNew() {
    clsTASK next;
    next.TASK_GROUP_ID = mTask.TASK_GROUP_ID;
    next.COMPLETED_FG = QStringLiteral("N");
    mTask = clsTASK();
    ShowTask(next);
    txtTASK_NM->setFocus();
}
