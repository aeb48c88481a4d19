#pragma once

#include "shell/usrListPage.h"

class QMenu;

// The notebook: dated notes, newest first, a paperclip on a note with files; the popup menu lists the
// selected note's files ("Assigned Files") and opens the one chosen with the desktop's program.
class frmMain_10_Notebook : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_10_Notebook(QWidget* parent = nullptr);

    enum ActionIndex : int { AddNote = 0, EditNote, DeleteNote, PrintReports, OpenReportsFolder };
    enum Column : int {
        ICO = 0,
        ICO_PAPERCLIP,
        NOTEBOOK_DT,
        NOTEBOOK_TM,
        SUBJECT_TX,
        FILE_PATH_TX,
        ColumnCount
    };
    static constexpr int AllNotes = 0;

    // Asks "Delete note '<subject>'?", then deletes the selected note.
    void DeleteSelected();
    // The files of the selected note, as the "Assigned Files" menu lists them.
    QStringList SelectedFiles() const;

public slots:
    void mfrmNote_Refresh(const QString& notebookId);

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;

private:
    void BuildActions();
    void BuildMenu();
    void FillFilesMenu();
    void OpenEditor(const QString& notebookId);

    QMenu* mPopNotes = nullptr;
    QMenu* mnuFiles = nullptr;
};
