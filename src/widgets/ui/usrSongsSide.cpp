#include "widgets/ui/usrSongsSide.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "platform/clsShell.h"
#include "shell/controls/usrHyperlink.h"
#include "widgets/ui/frmCreateWPL.h"
#include "widgets/ui/frmSongAdd.h"
#include "widgets/ui/frmSongEdit.h"
#include "widgets/ui/modSonglistBox.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { IconColumn, SortColumn, SongColumn, PathColumn, NotesColumn };
constexpr int kSongIdRole = Qt::UserRole;

const QStringList& ActionCaptions() {
    static const QStringList captions = {
        QStringLiteral("Add new song"),          QStringLiteral("Edit song"),
        QStringLiteral("Remove song"),           QStringLiteral("Create playlist"),
        QStringLiteral("Open playlists folder"), QStringLiteral("Print reports"),
        QStringLiteral("Open reports folder")};
    return captions;
}

QTreeWidgetItem* SongRow(const clsSONG& song) {
    const bool exists = FileExists(song.SONG_FILE_PATH_TX);
    auto* row = new QTreeWidgetItem;
    row->setData(IconColumn, kSongIdRole, song.SONG_ID);
    row->setText(SortColumn, song.SORT_ORDER_NB);
    row->setTextAlignment(SortColumn, Qt::AlignRight | Qt::AlignVCenter);
    row->setText(SongColumn,
                 exists ? song.SONG_NM() : QStringLiteral("File does not exist: ") + song.SONG_NM());
    row->setText(PathColumn, song.SONG_FILE_PATH_TX);
    row->setText(NotesColumn, song.NOTES_TX);
    if (!exists)
        row->setForeground(SongColumn, QColor(Qt::red));
    return row;
}

} // namespace

usrSongsSide::usrSongsSide(QWidget* parent) : usrWidgetSide(parent) {
    setObjectName(QStringLiteral("usrSongsSide"));
    auto* links = new QHBoxLayout;
    for (int i = 0; i < ActionCaptions().size(); ++i) {
        auto* link = new usrHyperlink(ActionCaptions().at(i), this);
        link->setObjectName(QStringLiteral("linkAction_%1").arg(i));
        connect(link, &usrHyperlink::Click, this, [this, i] { linkAction_Click(i); });
        links->addWidget(link);
        mActions.append(link);
    }
    links->addStretch();
    mGrid = new QTreeWidget(this);
    mGrid->setObjectName(QStringLiteral("grid"));
    mGrid->setHeaderLabels({QString(), QStringLiteral("#"), QStringLiteral("Song"),
                            QStringLiteral("File Path"), QStringLiteral("Notes")});
    mGrid->setColumnWidth(IconColumn, 40);
    mGrid->setColumnWidth(SortColumn, 35);
    mGrid->setColumnWidth(SongColumn, 330);
    mGrid->setColumnWidth(PathColumn, 250);
    mGrid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mGrid->setContextMenuPolicy(Qt::CustomContextMenu);
    mGrid->installEventFilter(this);
    mGrid->setToolTip(QStringLiteral("Press Ctrl+Up or Ctrl+Down to change sort order"));
    connect(mGrid, &QTreeWidget::itemSelectionChanged, this, &usrSongsSide::UpdateActions);
    connect(mGrid, &QTreeWidget::itemDoubleClicked, this, &usrSongsSide::EditSelected);
    connect(mGrid, &QTreeWidget::customContextMenuRequested, this, &usrSongsSide::ShowPopup);
    mPopup = new QMenu(this);
    mPopup->setObjectName(QStringLiteral("mPopSonglist"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(links);
    layout->addWidget(mGrid, 1);
    LoadSongs();
}

void usrSongsSide::LoadSongs() {
    const QStringList selected = SelectedSongIds();
    mSongs = RecordIO::Read([] { return clsSONG::OpenRecords(); });
    mGrid->clear();
    mGrid->setColumnHidden(NotesColumn, !gApp().ShowNotes());
    QTreeWidgetItem* group = nullptr;
    for (const clsSONG& song : mSongs) {
        if (!group || group->text(IconColumn) != song.SONGLIST_TX) {
            group = new QTreeWidgetItem(mGrid, {song.SONGLIST_TX});
            group->setFirstColumnSpanned(true);
            QFont bold = group->font(IconColumn);
            bold.setBold(true);
            group->setFont(IconColumn, bold);
            group->setFlags(Qt::ItemIsEnabled);
            group->setExpanded(true);
        }
        group->addChild(SongRow(song));
    }
    SelectSongs(selected);
    UpdateActions();
}

void usrSongsSide::SelectSongs(const QStringList& ids) {
    for (QTreeWidgetItemIterator it(mGrid); *it; ++it)
        (*it)->setSelected(ids.contains((*it)->data(IconColumn, kSongIdRole).toString()));
}

QStringList usrSongsSide::SelectedSongIds() const {
    QStringList ids;
    for (const QTreeWidgetItem* item : mGrid->selectedItems())
        if (!item->data(IconColumn, kSongIdRole).toString().isEmpty())
            ids << item->data(IconColumn, kSongIdRole).toString();
    return ids;
}

void usrSongsSide::UpdateActions() {
    const qsizetype count = SelectedSongIds().size();
    mActions.at(1)->setEnabled(count == 1);
    mActions.at(2)->setEnabled(count > 0);
    mActions.at(2)->setCaption(count > 1 ? QStringLiteral("Remove songs (%1)").arg(count)
                                         : ActionCaptions().at(2));
}

void usrSongsSide::linkAction_Click(int index) {
    switch (index) {
    case 0: {
        frmSongAdd dialog(this);
        connect(&dialog, &frmSongAdd::Refresh, this, &usrSongsSide::LoadSongs);
        dialog.exec();
        break;
    }
    case 1:
        EditSelected();
        break;
    case 2:
        RemoveSelected();
        break;
    case 3: {
        frmCreateWPL dialog(this);
        connect(&dialog, &frmCreateWPL::PlaylistCreated, this, &usrSongsSide::PlaylistCreated);
        dialog.exec();
        break;
    }
    case 4:
        gApp().MakePlaylistPath();
        gShell().OpenDocument(gApp().PlaylistPath());
        break;
    case 5:
        emit PrintReports();
        break;
    default:
        gApp().MakeReportPath();
        gShell().OpenDocument(gApp().ReportPath());
        break;
    }
}

void usrSongsSide::EditSelected() {
    const QStringList ids = SelectedSongIds();
    if (ids.size() != 1)
        return;
    frmSongEdit editor(ids.first(), this);
    connect(&editor, &frmSongEdit::Updated, this, &usrSongsSide::LoadSongs);
    editor.exec();
}

void usrSongsSide::RemoveSelected() {
    const QStringList ids = SelectedSongIds();
    if (ids.isEmpty())
        return;
    QString question = QStringLiteral("Remove %1 songs?").arg(ids.size());
    if (ids.size() == 1)
        question = QStringLiteral("Remove '") +
                   mGrid->selectedItems().first()->text(PathColumn).section('/', -1) + QStringLiteral("'?");
    if (ShowMessage(question, Msg::YesNo | Msg::Question, QStringLiteral("Remove")) != Msg::Yes)
        return;
    RecordIO::Attempt([&ids] { clsSONG::DeleteSongs(ids); });
    LoadSongs();
}

void usrSongsSide::MoveSelectedTo(const QString& songlistId) {
    const QStringList ids = SelectedSongIds();
    RecordIO::Attempt([&] { clsSONG::MoveToSonglist(ids, songlistId); });
    LoadSongs();
}

void usrSongsSide::ShowPopup(const QPoint& position) {
    mPopup->clear();
    const bool any = !SelectedSongIds().isEmpty();
    for (const clsDICT& list : modSonglistBox::Songlists()) {
        QAction* move = mPopup->addAction(list.TX, this, [this, id = list.ID] { MoveSelectedTo(id); });
        move->setEnabled(any);
    }
    mPopup->addSeparator();
    const bool notes = gApp().ShowNotes();
    mPopup->addAction(notes ? QStringLiteral("Hide notes") : QStringLiteral("Show notes"), this,
                      [this, notes] {
                          gApp().SetShowNotes(!notes);
                          mGrid->setColumnHidden(NotesColumn, notes);
                      });
    mPopup->popup(mGrid->viewport()->mapToGlobal(position));
}

// The song trades places with its neighbour in the same list.
void usrSongsSide::MoveWithinList(int step) {
    QTreeWidgetItem* row = mGrid->currentItem();
    QTreeWidgetItem* group = row ? row->parent() : nullptr;
    if (!group)
        return;
    QTreeWidgetItem* other = group->child(group->indexOfChild(row) + step);
    if (!other)
        return;
    const auto song = [this](const QTreeWidgetItem* item) {
        clsSONG s;
        s.SONG_ID = item->data(IconColumn, kSongIdRole).toString();
        s.SORT_ORDER_NB = item->text(SortColumn);
        return s;
    };
    const QString moved = song(row).SONG_ID;
    RecordIO::Attempt([&] { clsSONG::SwapSort(song(row), song(other)); });
    LoadSongs();
    SelectSongs({moved});
    for (QTreeWidgetItemIterator it(mGrid); *it; ++it)
        if ((*it)->isSelected())
            mGrid->setCurrentItem(*it, 0, QItemSelectionModel::NoUpdate);
}

bool usrSongsSide::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mGrid && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() == Qt::ControlModifier &&
            (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            MoveWithinList(key->key() == Qt::Key_Up ? -1 : 1);
            return true;
        }
        if (key->key() == Qt::Key_Delete) {
            RemoveSelected();
            return true;
        }
    }
    return usrWidgetSide::eventFilter(watched, event);
}
