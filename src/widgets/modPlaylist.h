#pragma once

#include "widgets/clsSONG.h"

#include <QList>
#include <QString>
#include <QStringList>

// Songlists as playlist files that media players open, and the test of which files are songs.
namespace modPlaylist {

// A file whose upper-cased name holds ".M4P", ".ACC", ".WMA", ".WAV" or ".MP3" anywhere: a search in
// the name, not a test of its ending ("track.mp3.txt" passes).
bool IsSongFile(const QString& fileName);
// The names of the song files in the folder itself (its subfolders are not visited), by name.
QStringList SongFiles(const QString& folder);

// The songlists of the dialog: "(All)" with the value "0", then every list by its order as its name +
// " (" + its number of songs + ")".
struct Entry {
    QString Caption;
    QString SonglistID; // "0" for every list
    QString Name;       // the list's own name; "All_Songs" for every list
};
QList<Entry> Entries();

// The playlists folder + "/" + the list's name + ".wpl".
QString DefaultPath(const Entry& entry);

// The lines of the file: the head with the generator, the count and the title, then one media line per
// song. Every "&", "<", ">" and '"' of the title and the paths is escaped, so that the file is XML.
QStringList Lines(const QString& title, const QList<clsSONG>& songs);

// Writes the songs of the list ("0" or empty: every list) to the path, titled as given. False with the
// reason (naming the path) when the file cannot be written; the old file then stays as it was. A
// database that refuses the reading throws clsDbError.
bool Write(const QString& path, const QString& songlistID, const QString& title, QString* error);

} // namespace modPlaylist
