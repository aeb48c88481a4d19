#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class usrHyperlink;

// "Backup and Restore": where the database file lies, how to copy it away and back by hand, and a
// command that writes a dated copy into a folder the user chooses while the program runs. Children:
// "lblDatabasePath", "linkOpenFolder", "cmdBackupNow", "lblBackupResult", "linkOpenBackupFolder",
// "cmdClose".
class frmBackup : public QDialog {
    Q_OBJECT

public:
    explicit frmBackup(QWidget* parent = nullptr);

    // Writes the copy into the folder and shows the outcome; the path written, or empty after a
    // message. The command asks for the folder and then calls this.
    QString BackupTo(const QString& folder);

private:
    void cmdBackupNow_Click();

    QLabel* mResult = nullptr;
    usrHyperlink* mOpenBackup = nullptr;
    QString mLastFolder;
};
