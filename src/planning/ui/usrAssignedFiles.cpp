#include "planning/ui/usrAssignedFiles.h"

#include "core/ShowMessage.h"
#include "planning/ui/frmNotebookAddFile.h"
#include "platform/clsShell.h"
#include "shell/grid/modGrid.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

usrAssignedFiles::usrAssignedFiles(QWidget* parent) : QWidget(parent) {
    lvwFiles = new QListWidget(this);
    lvwFiles->setObjectName(QStringLiteral("lvwFiles"));
    lvwFiles->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* assign = new QPushButton(QStringLiteral("&Assign files…"), this);
    assign->setObjectName(QStringLiteral("cmdAssign"));
    cmdUnassign = new QPushButton(QStringLiteral("&Unassign"), this);
    cmdUnassign->setObjectName(QStringLiteral("cmdUnassign"));
    cmdUnassign->setEnabled(false);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(assign);
    buttons->addWidget(cmdUnassign);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lvwFiles, 1);
    layout->addLayout(buttons);

    connect(assign, &QPushButton::clicked, this, &usrAssignedFiles::cmdAssign_Click);
    connect(cmdUnassign, &QPushButton::clicked, this, &usrAssignedFiles::cmdUnassign_Click);
    connect(lvwFiles, &QListWidget::itemSelectionChanged, this,
            [this] { cmdUnassign->setEnabled(!lvwFiles->selectedItems().isEmpty()); });
    connect(lvwFiles, &QListWidget::itemActivated, this,
            [](QListWidgetItem* item) { OpenAttachedFile(item->data(Qt::UserRole).toString()); });
}

void usrAssignedFiles::SetPaths(const QString& paths) {
    mPaths = frmNotebookAddFile::AppendPaths(paths, {});
    Fill();
}

int usrAssignedFiles::Count() const {
    return lvwFiles->count();
}

void usrAssignedFiles::Fill() {
    static const QList<QIcon> icons = FileIcons();
    lvwFiles->clear();
    for (const QString& path : mPaths.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        auto* item = new QListWidgetItem(icons.value(FileIconIndex(path)), path, lvwFiles);
        item->setData(Qt::UserRole, path);
        if (!QFileInfo::exists(path))
            item->setToolTip(QStringLiteral("This file is not there any more."));
    }
}

bool usrAssignedFiles::OpenAttachedFile(const QString& path) {
    if (!QFileInfo::exists(path)) {
        ShowMessage(
            QStringLiteral("The file \"") + path +
                QStringLiteral("\" is not there any more. It was moved, renamed or deleted; assign it again "
                               "from where it is now, or unassign it."),
            Msg::Exclamation);
        return false;
    }
    return gShell().OpenDocument(path);
}

void usrAssignedFiles::cmdAssign_Click() {
    frmNotebookAddFile chooser(mPaths, this);
    connect(&chooser, &frmNotebookAddFile::Refresh, this, &usrAssignedFiles::mfrmNotebookAddFile_Refresh);
    chooser.exec();
}

void usrAssignedFiles::mfrmNotebookAddFile_Refresh(const QString& paths) {
    if (paths == mPaths)
        return;
    SetPaths(paths);
    emit Changed();
}

void usrAssignedFiles::cmdUnassign_Click() {
    const QList<QListWidgetItem*> selected = lvwFiles->selectedItems();
    if (selected.isEmpty())
        return;
    const QString question = QStringLiteral("Unassign file") +
                             (selected.size() > 1 ? QStringLiteral("s") : QString()) + QLatin1Char('?');
    if (ShowMessage(question, Msg::YesNo | Msg::Question, ProgramTitle()) != Msg::Yes)
        return;
    QStringList kept;
    for (int row = 0; row < lvwFiles->count(); ++row) {
        if (!lvwFiles->item(row)->isSelected())
            kept << lvwFiles->item(row)->data(Qt::UserRole).toString();
    }
    SetPaths(kept.join(QLatin1Char(';')));
    emit Changed();
}
