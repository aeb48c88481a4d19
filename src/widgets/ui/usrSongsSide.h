#pragma once

#include "widgets/clsSONG.h"
#include "widgets/ui/usrWidgetSide.h"

#include <QList>

class QMenu;
class QTreeWidget;
class QTreeWidgetItem;
class usrHyperlink;

// The songs grouped by songlist, with the actions "linkAction_0" to "linkAction_6" (add, edit, remove,
// create playlist, open playlists folder, print reports, open reports folder), the grid "grid" (a group
// row per list, a row per song, "File does not exist: " + the name where the file is gone) and the
// popup "mPopSonglist" that moves the selected songs to another list and shows or hides the notes.
// Ctrl+Up and Ctrl+Down move a song inside its list.
class usrSongsSide : public usrWidgetSide {
    Q_OBJECT

public:
    explicit usrSongsSide(QWidget* parent = nullptr);

    int ReportFilter() const override { return 5; }
    void LoadSongs();
    QStringList SelectedSongIds() const;
    // Removes the selected songs' rows after asking; the files stay.
    void RemoveSelected();
    void MoveSelectedTo(const QString& songlistId);

signals:
    void PlaylistCreated(const QString& path, bool playNow);
    void PrintReports();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void linkAction_Click(int index);
    void EditSelected();
    void ShowPopup(const QPoint& position);
    void MoveWithinList(int step);
    void UpdateActions();
    void SelectSongs(const QStringList& ids);

    QList<clsSONG> mSongs;
    QTreeWidget* mGrid = nullptr;
    QList<usrHyperlink*> mActions;
    QMenu* mPopup = nullptr;
};
