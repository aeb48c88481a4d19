#pragma once

#include <QDialog>

class QComboBox;
class QFileSystemModel;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;
class QTreeWidget;

// Adds song files of one folder to a songlist. Children: "folderTree" (the folders), "grid" (the song
// files of the folder, each with a tick box; its header reads "Songs in " + the folder), "usrSearch"
// (filters the names as you type), "usrSONGLIST_DICT" ("Import into Songlist"), "lblCount",
// "lblSelected", "cmdImport". It opens in the last folder used and keeps the one it closes on.
class frmSongAdd : public QDialog {
    Q_OBJECT

public:
    explicit frmSongAdd(QWidget* parent = nullptr);
    ~frmSongAdd() override;

    // Lists the song files of the folder (not of its subfolders).
    void SetFolder(const QString& folder);
    QString Folder() const { return mFolder; }
    bool cmdImport_Click();

signals:
    void Refresh();

private:
    void Filter(const QString& text);
    void UpdateCounts();

    QString mFolder;
    QFileSystemModel* mFolders = nullptr;
    QTreeView* mTree = nullptr;
    QTreeWidget* mGrid = nullptr;
    QLineEdit* mSearch = nullptr;
    QComboBox* mList = nullptr;
    QLabel* mCount = nullptr;
    QLabel* mSelected = nullptr;
    QPushButton* mImport = nullptr;
};
