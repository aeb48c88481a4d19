#include "reports/clsRTFSongs.h"

#include "widgets/clsSONG.h"

RtfMarkup clsRTFSongs::Statistics() const {
    return QStringLiteral("Total Songs: ") + Count(clsSONG::Total());
}

QList<clsRTFReport::Column> clsRTFSongs::Columns() const {
    return {{"#", 600, 600, clsRTFCell::AlignRight}, {"Song", 0, 0}};
}

void clsRTFSongs::PrintRows() {
    QString listID;
    for (const clsSONG& song : clsSONG::OpenRecords()) {
        if (song.SONGLIST_ID != listID) {
            listID = song.SONGLIST_ID;
            GroupRow(song.SONGLIST_TX);
        }
        PrintRow({song.SORT_ORDER_NB, song.SONG_NM()});
    }
}
