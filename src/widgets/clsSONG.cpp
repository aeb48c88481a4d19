#include "widgets/clsSONG.h"

#include "core/modSchema.h"

namespace {

const QString kSelect = QStringLiteral(
    "SELECT SONG.*, SONGLIST_DICT.SONGLIST_TX, SONGLIST_DICT.SORT_ORDER_NB AS SONGLIST_SORT_ORDER_NB "
    "FROM SONGLIST_DICT INNER JOIN SONG ON SONGLIST_DICT.SONGLIST_ID = SONG.SONGLIST_ID ");

} // namespace

const RecordTable<clsSONG>& clsSONG::Table() {
    static const RecordTable<clsSONG> table{"SONG",
                                            "SONG_ID",
                                            {{"SONG_ID", &clsSONG::SONG_ID},
                                             {"SONG_FILE_PATH_TX", &clsSONG::SONG_FILE_PATH_TX},
                                             {"SORT_ORDER_NB", &clsSONG::SORT_ORDER_NB},
                                             {"SONGLIST_ID", &clsSONG::SONGLIST_ID},
                                             {"NOTES_TX", &clsSONG::NOTES_TX},
                                             {"SONGLIST_TX", &clsSONG::SONGLIST_TX},
                                             {"SONGLIST_SORT_ORDER_NB", &clsSONG::SONGLIST_SORT_ORDER_NB}}};
    return table;
}

QString clsSONG::SONG_NM() const {
    const qsizetype slash = SONG_FILE_PATH_TX.lastIndexOf(QLatin1Char('/'));
    const qsizetype backslash = SONG_FILE_PATH_TX.lastIndexOf(QLatin1Char('\\'));
    return SONG_FILE_PATH_TX.mid(qMax(slash, backslash) + 1).trimmed();
}

bool clsSONG::CreateTable() {
    return modSchema::CreateTableIfMissing(gDB(), QStringLiteral("SONG"));
}

void clsSONG::Delete(const QString& key) {
    RecordIO::Delete(QStringLiteral("SONG"), QStringLiteral("SONG_ID"), key);
}

bool clsSONG::OpenRecord(const QString& key) {
    if (key.isEmpty())
        return false;
    return RecordIO::OpenFirst(*this, Table(), kSelect + QStringLiteral("WHERE SONG.SONG_ID = ?"), {key});
}

QList<clsSONG> clsSONG::OpenRecords(const QString& songlistID) {
    QString sql = kSelect;
    QVariantList values;
    if (!songlistID.isEmpty()) {
        sql += QStringLiteral("WHERE SONG.SONGLIST_ID = ? ");
        values << songlistID;
    }
    sql += QStringLiteral("ORDER BY SONGLIST_DICT.SORT_ORDER_NB, SONG.SORT_ORDER_NB");
    return RecordIO::ReadAll(Table(), sql, values);
}

void clsSONG::Save(bool isNew) {
    if (!isNew) {
        // The key is written too, with the value it has.
        gDB().Execute(QStringLiteral("UPDATE SONG SET SONG_ID = ?, SONG_FILE_PATH_TX = ?, SORT_ORDER_NB = ?, "
                                     "SONGLIST_ID = ?, NOTES_TX = ? WHERE SONG_ID = ?"),
                      {SONG_ID, SONG_FILE_PATH_TX, SORT_ORDER_NB, SONGLIST_ID, NOTES_TX, SONG_ID});
        return;
    }
    const QString newID = RecordIO::NextID(QStringLiteral("SONG"), QStringLiteral("SONG_ID"));
    const QString newSort = RecordIO::NextID(QStringLiteral("SONG"), QStringLiteral("SORT_ORDER_NB"));
    gDB().Execute(QStringLiteral("INSERT INTO SONG (SONG_ID, SONG_FILE_PATH_TX, SORT_ORDER_NB, SONGLIST_ID, "
                                 "NOTES_TX) VALUES (?, ?, ?, ?, ?)"),
                  {newID, SONG_FILE_PATH_TX, newSort, SONGLIST_ID, NOTES_TX});
    SONG_ID = newID;
    SORT_ORDER_NB = newSort;
}

long clsSONG::Total(const QString& songlistID) {
    if (songlistID.isEmpty())
        return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM SONG"));
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM SONG WHERE SONGLIST_ID = ?"), {songlistID});
}

void clsSONG::UpdateSort(const QString& songID, const QString& sortOrder) {
    RecordIO::Run(QStringLiteral("UPDATE SONG SET SORT_ORDER_NB = ? WHERE SONG_ID = ?"), {sortOrder, songID});
}

// ---- Work on several songs ----

void clsSONG::AddSongs(const QStringList& paths, const QString& songlistID) {
    clsTransaction tx(gDB());
    for (const QString& path : paths) {
        clsSONG song;
        song.SONG_FILE_PATH_TX = path;
        song.SONGLIST_ID = songlistID;
        song.Save(true);
    }
    tx.Commit();
}

void clsSONG::DeleteSongs(const QStringList& songIDs) {
    clsTransaction tx(gDB());
    for (const QString& id : songIDs)
        clsSONG().Delete(id);
    tx.Commit();
}

void clsSONG::MoveToSonglist(const QStringList& songIDs, const QString& songlistID) {
    clsTransaction tx(gDB());
    for (const QString& id : songIDs) {
        clsSONG song;
        if (!song.OpenRecord(id))
            continue;
        song.SONGLIST_ID = songlistID;
        song.Save(false);
    }
    tx.Commit();
}

void clsSONG::SwapSort(const clsSONG& first, const clsSONG& second) {
    clsTransaction tx(gDB());
    UpdateSort(first.SONG_ID, second.SORT_ORDER_NB);
    UpdateSort(second.SONG_ID, first.SORT_ORDER_NB);
    tx.Commit();
}

// ---- Cursor ----

void clsSONG::LoadSongs(const QList<clsSONG>& songs) {
    mSongs = songs;
    mIndex = mSongs.isEmpty() ? 0 : 1;
}

void clsSONG::SetSongIndex(int index) {
    if (mSongs.isEmpty()) {
        mIndex = 0;
        return;
    }
    mIndex = qBound(1, index, static_cast<int>(mSongs.size()));
}

void clsSONG::SetSongIndexAfterSort(const QString& path) {
    for (qsizetype i = 0; i < mSongs.size(); ++i) {
        if (mSongs[i].SONG_FILE_PATH_TX == path) {
            mIndex = static_cast<int>(i) + 1;
            return;
        }
    }
}

QString clsSONG::CurrentSong() const {
    if (mIndex < 1 || mIndex > mSongs.size())
        return {};
    return mSongs[mIndex - 1].SONG_FILE_PATH_TX;
}

QString clsSONG::CurrentSongInfo() const {
    if (mIndex < 1 || mIndex > mSongs.size())
        return {};
    return QStringLiteral("#") + QString::number(mIndex) + QStringLiteral(" - ") +
           mSongs[mIndex - 1].SONG_NM();
}

void clsSONG::MoveNext() {
    if (mSongs.isEmpty())
        return;
    mIndex = mIndex >= mSongs.size() ? 1 : mIndex + 1;
}

void clsSONG::MovePrevious() {
    if (mSongs.isEmpty())
        return;
    mIndex = mIndex <= 1 ? static_cast<int>(mSongs.size()) : mIndex - 1;
}
