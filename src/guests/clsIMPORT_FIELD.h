#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>
#include <QStringList>

// The mapping of a CSV file's columns to the system's fields while contacts are imported: one row per
// column of the file, in the file's order, with the field it fills (empty while unmapped). The table is
// scratch space, emptied at the start of every import.
class clsIMPORT_FIELD {
public:
    QString IMPORT_FIELD_ID;
    QString IMPORT_FIELD_NM;     // a column name of the file
    QString MAP_IMPORT_FIELD_NM; // the system field it fills
    int ArrayIndex = -1;         // the column's position in the file's field list, from 0

    // A field the import can fill, with the caption of the mapping grid and the upper-cased column
    // names of a file that are taken for it without asking.
    struct SystemField {
        QString Caption;
        QString Field;
        QStringList Aliases;
    };
    // In the order of the mapping grid.
    static const QList<SystemField>& SystemFields();

    static const RecordTable<clsIMPORT_FIELD>& Table();

    // Every operation below that reads or writes throws clsDbError when the database refuses.

    // Empties the table.
    static void Delete();
    // The file column mapped to a system field, or "" when none is.
    static QString GetIMPORT_FIELD_NM(const QString& mapName);
    bool OpenRecord(const QString& key);
    // The rows in the file's order; only the mapped ones when the flag is set.
    static QList<clsIMPORT_FIELD> OpenRecords(bool mappedOnly);
    void Save(bool insert);
    // The system field a file column is taken for: its name upper-cased must be one of the aliases, or
    // the caption upper-cased (the template's header), exactly; "" when none fits.
    static QString SuggestMAP_IMPORT_FIELD_NM(const QString& columnName);
    // Frees a system field from whichever column held it, so each field is mapped at most once.
    static void UpdateMAP_IMPORT_FIELD_NM_ToNull(const QString& mapName);
};
