#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QMap>
#include <QString>

// The settings that travel with the database rather than with the machine: row 1 and 2 the icons of
// the bride and the groom, 3 kept without a reader, 4 to 6 the report colours, 7 and 8 the etiquette of
// invitations and of tent cards, 9 the map country. gVowren() keeps every row in memory once
// OpenRecords has run, so that reading a value costs no query.
class clsVOWREN {
public:
    QString VOWREN_ID;
    QString VOWREN_TX;

    static const RecordTable<clsVOWREN>& Table();

    // The value of a row from memory. A key that was never loaded throws clsDbError.
    QString Get_VOWREN_TX(int id) const;
    QString Get_VOWREN_TX(const QString& id) const;
    bool Contains(const QString& id) const { return mItems.contains(ItemKey(id)); }

    // A row read straight from the table, whether or not gVowren() has been filled. Throws clsDbError.
    static QString ReadStored(int id);
    // The map country kept with the data (row 9); 0, the United States, when it can't be read.
    static int MapCountryIndex();
    // A Boolean kept as text reads "True" or "False".
    static QString BooleanText(bool value) {
        return value ? QStringLiteral("True") : QStringLiteral("False");
    }

    // ---- Schema ----
    static bool CreateTable();
    // Rows 4 to 6 (the report colours) when the next free id is 4.
    static bool Patch_6_Apply();
    // Rows 7 and 8 (etiquette) and 9 (map country) from the machine's old settings when the next free
    // id is 7. From then on the rows are the settings.
    static bool Patch_7_Apply();

    // ---- Records ----
    // Every operation below throws clsDbError when the database refuses; memory then stays as it was.
    void Delete(const QString& id);
    bool OpenRecord(const QString& id);
    // Every row, also kept in this object's memory (replacing what it held).
    QList<clsVOWREN> OpenRecords();
    // Writes the value at once and keeps it in memory, so the next Get_VOWREN_TX answers it without a
    // reload.
    void QuickUpdate(int id, const QString& value);
    void QuickUpdate(const QString& id, const QString& value);
    // INSERT (with the next free id) or UPDATE; memory follows the write.
    void Save(bool isNew);

private:
    static QString ItemKey(const QString& id) { return id.trimmed() + QStringLiteral(" KEY"); }
    QMap<QString, QString> mItems;
};

clsVOWREN& gVowren();
