#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// A file of contacts as a table: the names of its columns and the rows below them.
struct clsImportTable {
    QStringList Headers;     // never blank, never twice the same
    QList<QStringList> Rows; // each exactly as long as Headers
    QList<int> Lines;        // the line of the file each row starts on, from 1
};

// Reads comma-separated text as RFC 4180 has it, with the delimiter the user chose: fields in double
// quotes may hold the delimiter, line breaks and doubled quotes; records end at CR LF, LF or CR. The
// first record is the header: a blank name becomes "Column n" and a repeated one "Name (2)". Rows
// shorter than the header are filled with empty fields; what stands beyond it is not read. Empty lines
// are passed over.
class clsCSVReader {
public:
    // Throws clsDbError naming the line: a quote never closed, a record too long, no header, no rows.
    static clsImportTable Read(const QString& text, QChar delimiter);
    // The delimiter of a first line that holds no comma but semicolons or tabs; a comma otherwise.
    static QChar GuessDelimiter(const QString& text);

    // A record of more characters than this is no contact: the file is refused.
    static constexpr qsizetype kMaxRecordLength = 65536;
};
