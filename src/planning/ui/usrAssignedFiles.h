#pragma once

#include <QString>
#include <QWidget>

class QListWidget;
class QPushButton;

// The files assigned to a record that keeps them as one text of paths joined by ";" (a note, a vendor):
// the list, "Assign files…" through frmNotebookAddFile, "Unassign" with its question, and a double
// click that opens a file with the desktop's program. A file that is gone stays listed until it is
// unassigned. Children: "lvwFiles", "cmdAssign", "cmdUnassign".
class usrAssignedFiles : public QWidget {
    Q_OBJECT

public:
    explicit usrAssignedFiles(QWidget* parent = nullptr);

    QString Paths() const { return mPaths; }
    void SetPaths(const QString& paths);
    int Count() const;

    // Opens a file with the desktop's program; a file that is not there any more is named in a message.
    static bool OpenAttachedFile(const QString& path);

public slots:
    void cmdAssign_Click();
    // Asks "Unassign file?" ("files" for several), then takes the selected files off the list.
    void cmdUnassign_Click();
    // The chooser's new list.
    void mfrmNotebookAddFile_Refresh(const QString& paths);

signals:
    void Changed();

private:
    void Fill();

    QString mPaths;
    QListWidget* lvwFiles = nullptr;
    QPushButton* cmdUnassign = nullptr;
};
