#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>
#include <QStringList>

// A supplier of the wedding, with its category, address, notes and attached files. The files are only
// named (FILE_PATH_TX, paths joined by ";"), never copied.
class clsVENDOR {
public:
    QString VENDOR_ID;
    QString VENDOR_NM;
    QString ADDRESS_TX;
    QString CITY_TX;
    QString STATE_TX;
    QString ZIP_TX;
    QString COUNTRY_TX;
    QString CONTACT_NM;
    QString EMAIL_TX;
    QString PHONE_TX;
    QString FAX_TX;
    QString WEB_SITE_TX;
    QString NOTES_TX;
    QString VENDOR_CATEGORY_ID;
    QString FILE_PATH_TX;
    QString VENDOR_CATEGORY_TX; // from the join

    static const RecordTable<clsVENDOR>& Table();

    QString ADDRESS_TX_NO_CRLF() const;
    // The attached files; a path that holds ";" comes back as two entries.
    QStringList FilePaths() const;
    // Joins the paths with ";"; no paths leave FILE_PATH_TX empty (NULL in the database).
    void SetFilePaths(const QStringList& paths);

    // Every operation below that reads or writes throws clsDbError when the database refuses.

    // A vendor that budget expenses point to is refused with the budget message.
    void Delete(const QString& vendorId);
    long GetTotal() const;
    bool MapIt() const;
    QString MapURL() const;
    bool OpenRecord(const QString& vendorId);
    // Grouped by category, then by name.
    QList<clsVENDOR> OpenRecords() const;
    void Save(bool isNew);

    // Joins the old address parts into the one address block of every row (done once, see the driver).
    static void Patch_1_Apply();
    // Adds the category to an older table; every vendor then stands in category 1.
    static void Patch_Add_VENDOR_CATEGORY_ID();
    static void Patch_Add_FILE_PATH_TX();

private:
    static const RecordTable<clsVENDOR>& ReadTable();
    static QString SelectSql();
};
