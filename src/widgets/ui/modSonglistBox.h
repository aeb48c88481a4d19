#pragma once

#include "core/clsDICT.h"

#include <QList>
#include <QString>

class QComboBox;

// The songlists in a list box ("usrSONGLIST_DICT"), by their order, each with its key as item data.
namespace modSonglistBox {

// The songlists by their order; none after the message when the database refuses.
QList<clsDICT> Songlists();

// Fills the box and chooses the list of that key (the first list when it is not there).
void Fill(QComboBox* box, const QString& songlistId = QString());
QString Chosen(const QComboBox* box);

} // namespace modSonglistBox
