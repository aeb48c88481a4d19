#include "widgets/ui/frmSongAdd.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "shell/controls/modLayout.h"
#include "widgets/clsSONG.h"
#include "widgets/modPlaylist.h"
#include "widgets/ui/modSonglistBox.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileSystemModel>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>

frmSongAdd::frmSongAdd(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmSongAdd"));
    setWindowTitle(QStringLiteral("Add Songs"));
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(QStringLiteral("Add Songs"));

    mFolders = new QFileSystemModel(this);
    mFolders->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    mFolders->setRootPath(QDir::rootPath());
    mTree = new QTreeView(this);
    mTree->setObjectName(QStringLiteral("folderTree"));
    mTree->setModel(mFolders);
    for (int column = 1; column < mFolders->columnCount(); ++column)
        mTree->hideColumn(column);
    mTree->setHeaderHidden(true);
    connect(mTree, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { SetFolder(mFolders->filePath(index)); });

    mGrid = new QTreeWidget(this);
    mGrid->setObjectName(QStringLiteral("grid"));
    mGrid->setColumnCount(1);
    mGrid->setRootIsDecorated(false);
    mGrid->setUniformRowHeights(true);
    connect(mGrid, &QTreeWidget::itemChanged, this, &frmSongAdd::UpdateCounts);
    mSearch = new QLineEdit(this);
    mSearch->setObjectName(QStringLiteral("usrSearch"));
    mSearch->setPlaceholderText(QStringLiteral("Search"));
    mSearch->setClearButtonEnabled(true);
    connect(mSearch, &QLineEdit::textChanged, this, &frmSongAdd::Filter);
    mList = new QComboBox(this);
    mList->setObjectName(QStringLiteral("usrSONGLIST_DICT"));
    modSonglistBox::Fill(mList);
    mCount = new QLabel(this);
    mCount->setObjectName(QStringLiteral("lblCount"));
    mSelected = new QLabel(this);
    mSelected->setObjectName(QStringLiteral("lblSelected"));

    auto* right = new QWidget(this);
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->addWidget(mSearch);
    rightLayout->addWidget(mGrid, 1);
    auto* counts = new QHBoxLayout;
    counts->addWidget(mCount);
    counts->addStretch();
    counts->addWidget(mSelected);
    rightLayout->addLayout(counts);
    auto* split = new QSplitter(this);
    split->addWidget(mTree);
    split->addWidget(right);
    split->setStretchFactor(1, 2);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Import into Songlist"), mList);
    auto* buttons = new QDialogButtonBox(this);
    mImport = buttons->addButton(QStringLiteral("Import"), QDialogButtonBox::AcceptRole);
    mImport->setObjectName(QStringLiteral("cmdImport"));
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(mImport, &QPushButton::clicked, this, [this] { cmdImport_Click(); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(split, 1);
    layout->addLayout(form);
    layout->addWidget(buttons);
    resize(820, 520);

    const QString last = gApp().SongPath();
    SetFolder(QDir(last).exists() && !last.isEmpty() ? last : QDir::homePath());
}

frmSongAdd::~frmSongAdd() {
    gApp().SetSongPath(mFolder);
}

void frmSongAdd::SetFolder(const QString& folder) {
    mFolder = QDir::cleanPath(folder);
    mTree->setCurrentIndex(mFolders->index(mFolder));
    mGrid->setHeaderLabels({QStringLiteral("Songs in ") + mFolder});
    QList<QTreeWidgetItem*> items;
    for (const QString& name : modPlaylist::SongFiles(mFolder)) {
        auto* item = new QTreeWidgetItem({name});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren);
        item->setCheckState(0, Qt::Unchecked);
        items.append(item);
    }
    const QSignalBlocker quiet(mGrid);
    mGrid->clear();
    mGrid->addTopLevelItems(items);
    Filter(mSearch->text());
}

void frmSongAdd::Filter(const QString& text) {
    for (int row = 0; row < mGrid->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = mGrid->topLevelItem(row);
        item->setHidden(!text.isEmpty() && !item->text(0).contains(text, Qt::CaseInsensitive));
    }
    UpdateCounts();
}

void frmSongAdd::UpdateCounts() {
    int shown = 0;
    int ticked = 0;
    for (int row = 0; row < mGrid->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = mGrid->topLevelItem(row);
        shown += item->isHidden() ? 0 : 1;
        ticked += item->checkState(0) == Qt::Checked ? 1 : 0;
    }
    mCount->setText(QStringLiteral("%1 files").arg(shown));
    mSelected->setText(QStringLiteral("%1 selected").arg(ticked));
    mImport->setEnabled(ticked > 0);
}

bool frmSongAdd::cmdImport_Click() {
    QStringList paths;
    for (int row = 0; row < mGrid->topLevelItemCount(); ++row)
        if (mGrid->topLevelItem(row)->checkState(0) == Qt::Checked)
            paths << mFolder + QLatin1Char('/') + mGrid->topLevelItem(row)->text(0);
    const QString list = modSonglistBox::Chosen(mList);
    if (paths.isEmpty() || !RecordIO::Attempt([&] { clsSONG::AddSongs(paths, list); }))
        return false;
    emit Refresh();
    accept();
    return true;
}
