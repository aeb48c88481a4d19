#pragma once

#include <QDialog>
#include <QStringList>

class QDialogButtonBox;
class QLabel;
class QPushButton;

// The names of an editor's buttons, by which tests find them, and their captions.
struct EditorButtonNames {
    QString Save = QStringLiteral("cmdSave");
    QString Cancel = QStringLiteral("cmdCancel");
    QString SaveCaption = QStringLiteral("Save");
    // Empty: the editor offers no Save and New.
    QString SaveAndNew;
    QString SaveAndNewCaption = QStringLiteral("Save and New");
};

// What every editor of one record shares: the heading and window title "Add New ..." or "Edit ..."
// (for an editor that names its record), the row of Save, Save and New (where offered) and Cancel, the
// snapshot that tells whether the user changed anything, the question "Save Changes?" on closing with
// changes, and the signals Added and Updated with the record's key. An editor builds its controls and
// answers what the user can change (Snapshot), how its record is written (SaveRecord, RecordKey) and,
// with Save and New, how the next record starts (StartNew).
class frmEditorBase : public QDialog {
    Q_OBJECT

public:
    bool IsAdding() const { return mAdding; }
    bool IsDirty() const { return Snapshot() != mClean; }

    // Writes the record and tells the opener; the editor stays open. False when the record was refused
    // or the save failed: the message has been shown and the editor is as it was.
    bool Save();
    // Save, then close.
    bool cmdSave_Click();
    // Save, then the editor holds the next new record.
    bool cmdSaveAndNew_Click();

signals:
    void Added(const QString& key);
    void Updated(const QString& key);

public slots:
    // Esc, Cancel and the window's close button: with unsaved changes, asks first.
    void reject() override;

protected:
    explicit frmEditorBase(QWidget* parent = nullptr);

    // ---- What each editor tells ----
    // What the user can change, as texts.
    virtual QStringList Snapshot() const = 0;
    // Writes the record; false after a message.
    virtual bool SaveRecord() = 0;
    // The key of the record, as the signals carry it.
    virtual QString RecordKey() const = 0;
    // Puts the next new record into the controls, after Save and New.
    virtual void StartNew() {}
    // The question on closing with changes.
    virtual QString CloseQuestion() const { return QStringLiteral("Save Changes?"); }

    // ---- What the base gives ----
    // The heading "lblHeader", made on the first call inside the given parent (the editor itself when
    // none is given), for the editor to place.
    QLabel* Header(QWidget* parent = nullptr);
    // The row of buttons, made once, for the editor to place. Save is the default button; Ctrl+S saves
    // and closes, Ctrl+Shift+S saves and starts anew where that is offered.
    QDialogButtonBox* ButtonRow(const EditorButtonNames& names = EditorButtonNames());
    QPushButton* SaveButton() const { return mSave; }
    QPushButton* SaveAndNewButton() const { return mSaveAndNew; }
    QPushButton* CancelButton() const { return mCancel; }
    // The record's noun: the heading and the window title then read "Add New " or "Edit " and it.
    void SetRecordNoun(const QString& noun);
    // Whether the record is new; the caption follows.
    void SetAdding(bool adding);
    // What the controls show now counts as unchanged.
    void MarkClean() { mClean = Snapshot(); }

private:
    void ShowCaption();

    bool mAdding = true;
    QString mNoun;
    QStringList mClean;
    QLabel* mHeader = nullptr;
    QDialogButtonBox* mButtons = nullptr;
    QPushButton* mSave = nullptr;
    QPushButton* mSaveAndNew = nullptr;
    QPushButton* mCancel = nullptr;
};
