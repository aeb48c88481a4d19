#pragma once

#include "reports/clsSQL_XML.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// The catalogue of custom queries, "sql.xml". It is not parsed as XML but read line by line, and that
// fixes its format: the text is split at CR LF and each line trimmed of blanks; a line that is exactly
// "<SQL_ITEM>" opens an item and one that is exactly "</SQL_ITEM>" ends it; inside an item, the first of
// "<SQL_CATEGORY>", "<SQL_CATEGORY_ICON>", "<SQL_NAME>", "<DATE_ADDED>", "<SQL_DESC>", "<SQL>" that a
// line contains fills that field with the line less the start and end tags, CR, LF and tabs. Nothing
// else is read and XML escapes stay as they are.
//
// A file that is damaged loads what it can: an item is kept once its end tag is read and it has a
// statement; everything left out is said in Problems, one line each.
class clsSQLCatalogue {
public:
    // What is read of a file at most; the rest is left out, and said to be.
    static constexpr qint64 MaxBytes = 1024 * 1024;

    QList<clsSQL_XML> Items;
    QStringList Problems;

    // Reads the text as the catalogue's format describes.
    static clsSQLCatalogue FromText(const QString& text);
    // The bytes as text: UTF-8 (a byte-order mark is dropped), else Windows-1252, which is said; only the
    // first MaxBytes are read.
    static clsSQLCatalogue FromBytes(const QByteArray& bytes);
    // A file, read as FromBytes; a file that can't be read gives no items and says why.
    static clsSQLCatalogue FromFile(const QString& path);

    // The catalogue that comes with the program.
    static clsSQLCatalogue Shipped();
    // Where a downloaded catalogue is kept: "sql.xml" in the data root.
    static QString KeptPath();
    // The kept catalogue when there is one with at least one query, else the one that comes with the program.
    static clsSQLCatalogue Current();
    // Keeps downloaded bytes as the catalogue the program prefers from now on, when they hold at least one
    // query. False, with the reason in *problem, when they don't or the file can't be written; a catalogue
    // kept before stays as it was then.
    static bool Keep(const QByteArray& bytes, QString* problem = nullptr);

    // The first item of that name (any case); null when there is none.
    const clsSQL_XML* Find(const QString& name) const;
    // The categories in the order they first occur.
    QStringList Categories() const;
};
