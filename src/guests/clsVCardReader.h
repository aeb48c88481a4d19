#pragma once

#include "guests/clsCSVReader.h"

#include <QByteArray>

// Reads vCard files (versions 2.1, 3.0 and 4.0, one card or many) into the same table a CSV file
// gives, one row per card, under column names that the suggested mapping takes without asking. Folded
// lines are unfolded, quoted-printable values decoded (soft line breaks too), and a value is read in
// the character set it names, else as UTF-8 or, failing that, Windows-1252. Of a card it takes the
// name (N, or FN cut into its parts when N is missing), the nickname, the preferred e-mail address,
// the home and then the mobile telephone, the home address (else the work one, else the first) and the
// note. Photos and whatever else a card holds are passed over. A card with neither a name nor an
// e-mail address is no contact and is left out.
class clsVCardReader {
public:
    // Throws clsDbError naming the line: a card without its END:VCARD, an unknown character set, a file
    // without any card.
    static clsImportTable Read(const QByteArray& bytes);
    // True when the text starts (after blanks) with BEGIN:VCARD.
    static bool LooksLikeVCard(const QByteArray& bytes);
    // The columns of the table, in this order.
    static const QStringList& Headers();
};
