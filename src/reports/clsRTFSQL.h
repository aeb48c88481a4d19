#pragma once

#include "reports/clsRTFReport.h"

#include <QList>
#include <QString>
#include <QStringList>

// A custom report: the result of the user's own query as one table. The column aliases carry the layout:
// for every column but the last, the number an alias begins with is the column's right edge in twips
// and what follows its first blank is the caption ("1440 RSVP ID"); the last column ends at the table's
// width and is headed by its whole alias. The query runs on a connection that can only read, within the
// limits of every user query; it must begin with "SELECT ".
class clsRTFSQL : public clsRTFReport {
public:
    clsRTFSQL() : clsRTFReport("clsRTFSQL") {}

    QString SQL;
    // The report's title and the line under it: the query's name and description.
    QString SQL_NAME;
    QString SQL_DESC;

    // Writes the report once the query has run to its end; a query that fails or is refused throws
    // clsDbError with the engine's words (or the refusal) and leaves no file. The file written, or empty
    // when it could not be written (the user has been told why).
    QString Build();

    // True when the first seven characters, upper-cased, are "SELECT ".
    static bool IsSelectStatement(const QString& sql);
    static QString NotSelectMessage() { return QStringLiteral("SQL must be a 'SELECT' statement."); }

    // A column's right edge in twips and its caption, as its alias gives them.
    struct HeaderCell {
        int CELLX = 0;
        QString Caption;
        bool operator==(const HeaderCell&) const = default;
    };
    // The header of the result's column names: single quotes removed; every column but the last by the
    // rule of the aliases (no leading number: an edge of 0; no blank: no caption), the last ending at
    // tableWidth under its whole name.
    static QList<HeaderCell> HeaderFromAliases(const QStringList& names, int tableWidth);
    // The number an alias begins with, after any blanks ("1440 RSVP ID" gives 1440); 0 when none. Never
    // negative.
    static int LeadingNumber(const QString& alias);

protected:
    RtfMarkup Title() const override { return SQL_NAME; }
    RtfMarkup Statistics() const override { return SQL_DESC; }
    // The columns are known once the query runs: PrintRows prints the header itself.
    QList<Column> Columns() const override { return {}; }
    void PrintRows() override;
};
