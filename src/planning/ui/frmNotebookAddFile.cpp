#include "planning/ui/frmNotebookAddFile.h"

#include "core/clsApp.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

frmNotebookAddFile::frmNotebookAddFile(const QString& paths, QWidget* parent)
    : QDialog(parent), mPaths(paths) {
    setObjectName(QStringLiteral("frmNotebookAddFile"));
    setWindowTitle(QStringLiteral("Assign Files"));
    BuildLayout();
    gApp().MakeReportPath();
    SetFolder(gApp().ReportPath());
    resize(760, 460);
}

void frmNotebookAddFile::BuildLayout() {
    mFolders = new QFileSystemModel(this);
    mFolders->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    mFolders->setRootPath(QDir::rootPath());
    folderTree = new QTreeView(this);
    folderTree->setObjectName(QStringLiteral("folderTree"));
    folderTree->setModel(mFolders);
    folderTree->setHeaderHidden(true);
    for (int column = 1; column < mFolders->columnCount(); ++column)
        folderTree->hideColumn(column);
    connect(folderTree, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { SetFolder(mFolders->filePath(index)); });

    fileList = new QListWidget(this);
    fileList->setObjectName(QStringLiteral("fileList"));
    connect(fileList, &QListWidget::itemChanged, this, &frmNotebookAddFile::OnItemChanged);
    // A double click ticks or unticks, as a click on the box does.
    connect(fileList, &QListWidget::itemDoubleClicked, this, [](QListWidgetItem* item) {
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    });

    lblFolder = new QLabel(this);
    lblFolder->setObjectName(QStringLiteral("lblFolder"));
    lblFolder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblCount = new QLabel(this);
    lblCount->setObjectName(QStringLiteral("lblCount"));

    auto* files = new QWidget(this);
    auto* filesLayout = new QVBoxLayout(files);
    filesLayout->setContentsMargins(0, 0, 0, 0);
    filesLayout->addWidget(lblFolder);
    filesLayout->addWidget(fileList, 1);
    auto* splitter = new QSplitter(this);
    splitter->addWidget(folderTree);
    splitter->addWidget(files);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({280, 460});

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmNotebookAddFile::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmNotebookAddFile::reject);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(lblCount, 1);
    bottom->addWidget(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(bottom);
    UpdateCount();
}

void frmNotebookAddFile::SetFolder(const QString& folder) {
    mFolder = QDir::cleanPath(folder);
    lblFolder->setText(QDir::toNativeSeparators(mFolder));
    const QModelIndex index = mFolders->index(mFolder);
    if (index.isValid()) {
        folderTree->setCurrentIndex(index);
        folderTree->scrollTo(index);
    }
    mFilling = true;
    fileList->clear();
    const QFileInfoList entries =
        QDir(mFolder).entryInfoList(QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& file : entries) {
        auto* item = new QListWidgetItem(file.fileName(), fileList);
        const QString path = file.absoluteFilePath();
        item->setData(Qt::UserRole, path);
        item->setCheckState(mTicked.contains(path) ? Qt::Checked : Qt::Unchecked);
        // The list of paths is joined by ";": a name that holds one could not be read back.
        if (path.contains(QLatin1Char(';'))) {
            item->setFlags(Qt::ItemIsSelectable);
            item->setToolTip(
                QStringLiteral("A file whose name holds \";\" cannot be assigned; rename it first."));
        } else {
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        }
    }
    mFilling = false;
}

void frmNotebookAddFile::SetTreeRoot(const QString& folder) {
    folderTree->setRootIndex(mFolders->index(QDir::cleanPath(folder)));
    SetFolder(mFolder);
}

void frmNotebookAddFile::OnItemChanged(QListWidgetItem* item) {
    if (mFilling)
        return;
    const QString path = item->data(Qt::UserRole).toString();
    mTicked.removeAll(path);
    if (item->checkState() == Qt::Checked)
        mTicked.append(path);
    UpdateCount();
}

void frmNotebookAddFile::UpdateCount() {
    const auto count = mTicked.size();
    lblCount->setText(QString::number(count) +
                      (count == 1 ? QStringLiteral(" file") : QStringLiteral(" files")) +
                      QStringLiteral(" selected"));
}

QString frmNotebookAddFile::AppendPaths(const QString& paths, const QStringList& files) {
    QStringList list = paths.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& file : files) {
        if (!file.isEmpty() && !list.contains(file))
            list.append(file);
    }
    return list.join(QLatin1Char(';'));
}

void frmNotebookAddFile::accept() {
    mPaths = AppendPaths(mPaths, mTicked);
    emit Refresh(mPaths);
    QDialog::accept();
}
