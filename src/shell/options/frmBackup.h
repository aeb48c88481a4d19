#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;
class usrHyperlink;

// "Backup and Restore": where the database file lies, how to copy it away and back by hand, a command
// that writes a dated copy into a folder the user chooses while the program runs, and the rolling copies
// Vowren keeps by itself, any of which is put back with one click. Children: "lblDatabasePath",
// "linkOpenFolder", "cmdBackupNow", "lblBackupResult", "linkOpenBackupFolder", "lvwBackups",
// "cmdRestore", "cmdClose".
class frmBackup : public QDialog {
    Q_OBJECT

public:
    explicit frmBackup(QWidget* parent = nullptr);

    // Writes the copy into the folder and shows the outcome; the path written, or empty after a
    // message. The command asks for the folder and then calls this.
    QString BackupTo(const QString& folder);
    // Puts the copy at `file` in place of the database after asking; true when it was restored.
    bool RestoreFrom(const QString& file);
    // True once a copy has been restored while the dialog was open: the pages must read the data again.
    bool Restored() const { return mRestored; }

private:
    void cmdBackupNow_Click();
    void cmdRestore_Click();
    void FillBackups();

    QTreeWidget* mBackups = nullptr;
    QPushButton* mRestore = nullptr;
    bool mRestored = false;
    QLabel* mResult = nullptr;
    usrHyperlink* mOpenBackup = nullptr;
    QString mLastFolder;
};
