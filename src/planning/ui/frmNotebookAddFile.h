#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

class QFileSystemModel;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QTreeView;

// Chooses files to attach to a record that keeps its files as one text of paths joined by ";" (a note,
// a vendor). The files are never copied: only their paths are kept.
//
//     frmNotebookAddFile chooser(record.FILE_PATH_TX, this);
//     if (chooser.exec() == QDialog::Accepted)
//         record.FILE_PATH_TX = chooser.Paths();
//
// The dialog opens at the reports folder. A folder chosen in the tree ("folderTree") lists its files in
// "fileList", each with a box to tick; ticks are kept while the user goes through other folders, and
// "lblCount" counts them. OK ("cmdOK") appends the ticked files to the list it was given, in the order
// they were ticked, and raises Refresh with the new list; a file already in the list is not added twice.
// Cancel ("cmdCancel") leaves the list as it was.
class frmNotebookAddFile : public QDialog {
    Q_OBJECT

public:
    explicit frmNotebookAddFile(const QString& paths, QWidget* parent = nullptr);

    // The list given, with the ticked files behind it once OK was clicked.
    QString Paths() const { return mPaths; }
    // Shows the files of this folder.
    void SetFolder(const QString& folder);
    // The tree starts at this folder; the whole file system by default.
    void SetTreeRoot(const QString& folder);
    QString Folder() const { return mFolder; }
    // The ticked files, full paths, in the order they were ticked.
    QStringList Ticked() const { return mTicked; }

    // A ";"-joined list with the files appended: no separator before the first, no path twice.
    static QString AppendPaths(const QString& paths, const QStringList& files);

signals:
    void Refresh(const QString& paths);

public slots:
    void accept() override;

private:
    void BuildLayout();
    void OnItemChanged(QListWidgetItem* item);
    void UpdateCount();

    QString mPaths;
    QString mFolder;
    QStringList mTicked;
    QFileSystemModel* mFolders = nullptr;
    QTreeView* folderTree = nullptr;
    QListWidget* fileList = nullptr;
    QLabel* lblFolder = nullptr;
    QLabel* lblCount = nullptr;
    bool mFilling = false;
};
