#pragma once

#include "planning/clsTASK.h"
#include "shell/frmEditorBase.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class usrDate;
class usrDropdown;

// One task of the checklist, new or edited. A new task starts in the latest time frame that is current
// today, without a due date. The save buttons wait for a name, a time frame and a change.
// Children: "txtTASK_NM", "usrTASK_GROUP_DICT", "usrDate", "chkCOMPLETED_FG", "txtNOTES_TX", "cmdSave",
// "cmdSaveAndNew", "cmdCancel".
class frmTask : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds a task.
    explicit frmTask(const QString& taskId, QWidget* parent = nullptr);

    // The task as saved last (or as opened).
    const clsTASK& Task() const { return mTask; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mTask.TASK_ID; }
    void StartNew() override;

private:
    void BuildControls();
    void ShowTask(const clsTASK& task);
    void UpdateButtons();

    clsTASK mTask;
    QLineEdit* txtTASK_NM = nullptr;
    usrDropdown* usrTASK_GROUP_DICT = nullptr;
    usrDate* usrDueDate = nullptr;
    QCheckBox* chkCOMPLETED_FG = nullptr;
    QPlainTextEdit* txtNOTES_TX = nullptr;
};
