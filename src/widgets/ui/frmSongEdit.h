#pragma once

#include "shell/frmEditorBase.h"
#include "widgets/clsSONG.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

// Edits one song: its file, its songlist and its notes. Children: "txtPath", "cmdOpen" (picks another
// file), "usrSONGLIST_DICT", "txtNotes", and the editor's buttons.
class frmSongEdit : public frmEditorBase {
    Q_OBJECT

public:
    explicit frmSongEdit(const QString& songId, QWidget* parent = nullptr);

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mSong.SONG_ID; }

private:
    void cmdOpen_Click();

    clsSONG mSong;
    QLineEdit* mPath = nullptr;
    QComboBox* mList = nullptr;
    QPlainTextEdit* mNotes = nullptr;
};
