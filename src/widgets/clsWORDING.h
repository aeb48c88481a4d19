#pragma once

#include "core/RecordIO.h"

#include <QString>

// The texts the couple write on the widgets page: row 1 the invitation wording, rows 2 and 3 the
// bride's and the groom's vows. The three rows exist from the table's creation on and are only updated.
class clsWORDING {
public:
    enum Row : int { InvitationWording = 1, BrideVows = 2, GroomVows = 3 };

    QString WORDING_ID;
    QString WORDING_TX;

    static const RecordTable<clsWORDING>& Table();

    static bool CreateTable();
    // Every operation below that reads or writes throws clsDbError when the database refuses.

    void Delete(const QString& key);
    bool OpenRecord(const QString& key);
    void Save(bool isNew);
};
