#include "widgets/ui/modSonglistBox.h"

#include "core/RecordIO.h"

#include <QComboBox>

namespace modSonglistBox {

QList<clsDICT> Songlists() {
    return RecordIO::Read([] { return clsDICT(clsDICT::Songlist).OpenRecords(clsDICT::Songlist); });
}

void Fill(QComboBox* box, const QString& songlistId) {
    box->clear();
    for (const clsDICT& list : Songlists())
        box->addItem(list.TX, list.ID);
    const int index = box->findData(songlistId);
    box->setCurrentIndex(index >= 0 ? index : 0);
}

QString Chosen(const QComboBox* box) {
    return box->currentData().toString();
}

} // namespace modSonglistBox
