#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>

// A song the couple want played: a reference to a file on the disk (never a copy), kept in a songlist
// in its own order. The object also serves the music bar as a cursor over a loaded list of songs.
class clsSONG {
public:
    QString SONG_ID;
    QString SONG_FILE_PATH_TX; // the full path; a song has no other name
    QString SORT_ORDER_NB;
    QString SONGLIST_ID;
    QString NOTES_TX;
    // From the songlist.
    QString SONGLIST_TX;
    QString SONGLIST_SORT_ORDER_NB;

    static const RecordTable<clsSONG>& Table();

    // The file name alone: what stands after the last folder separator, trimmed.
    QString SONG_NM() const;
    static bool CreateTable();
    // Every operation below that reads or writes throws clsDbError when the database refuses.

    // Removes the row only; the file stays where it is.
    void Delete(const QString& key);
    bool OpenRecord(const QString& key);
    // The songs of one list, or of all lists for an empty id: by the lists' order, then each list's own.
    static QList<clsSONG> OpenRecords(const QString& songlistID = QString());
    // A new song gets the next key and the next number over all songs; an update writes every column.
    void Save(bool isNew);
    // Songs of a list, or all songs for an empty id.
    static long Total(const QString& songlistID = QString());
    static void UpdateSort(const QString& songID, const QString& sortOrder);

    // ---- Work on several songs, each all or nothing ----
    // New songs of these files in the list, numbered on after the last song.
    static void AddSongs(const QStringList& paths, const QString& songlistID);
    // Removes the rows (never the files).
    static void DeleteSongs(const QStringList& songIDs);
    // Moves the songs to another list; each keeps its number.
    static void MoveToSonglist(const QStringList& songIDs, const QString& songlistID);
    // The two songs trade their numbers (a song moved one place up or down its list).
    static void SwapSort(const clsSONG& first, const clsSONG& second);

    // ---- The music bar's cursor (positions count from 1; 0 while nothing is loaded) ----
    void LoadSongs(const QList<clsSONG>& songs);
    const QList<clsSONG>& Songs() const { return mSongs; }
    int CurrentSongIndex() const { return mIndex; }
    void SetSongIndex(int index);
    // Moves the cursor to the song with that path, so the playing song keeps its place after a re-sort.
    void SetSongIndexAfterSort(const QString& path);
    // The path at the cursor, and "#" + position + " - " + the song's name.
    QString CurrentSong() const;
    QString CurrentSongInfo() const;
    // One step on, or back, wrapping at the ends.
    void MoveNext();
    void MovePrevious();

private:
    QList<clsSONG> mSongs;
    int mIndex = 0;
};
