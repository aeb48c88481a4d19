#pragma once

#include "reports/clsRTFMaster.h"

#include <QList>
#include <QString>

// What every list report shares: one writer, the run from file name to closing, and the rows the
// family prints alike (the repeating header row, group rows, full-width notes, data rows filled cell by
// cell). A report class says only what differs: its class name (which gives the file prefix), title,
// statistics line, columns and rows.
class clsRTFReport {
public:
    explicit clsRTFReport(const char* className) : mClassName(QString::fromLatin1(className)) {}
    virtual ~clsRTFReport() = default;
    clsRTFReport(const clsRTFReport&) = delete;
    clsRTFReport& operator=(const clsRTFReport&) = delete;

    // The writer; its settings are taken from the application's report choices when Build starts.
    clsRTFMaster RTF;

    // Writes the file: settings, file name (prefix and time stamp), title, statistics, header row, data
    // rows. The full name of the file written, or empty when the file could not be written (the user has
    // been told why). A database that refuses the reading throws clsDbError, and nothing is written.
    QString Build();
    // Opens the written file with the desktop's program for it.
    bool Show() { return RTF.Show(); }

    const QString& ClassName() const { return mClassName; }

    // The regional currency format with all defaults (US dollars where the locale names no country).
    static QString Money(double amount);

protected:
    // A column: caption, right edge in landscape and in portrait (twips, from the table's left edge;
    // the last column always ends at TABLE_WIDTH) and the alignment of its cells.
    struct Column {
        RtfMarkup Caption;
        int Landscape = 0;
        int Portrait = 0;
        int Align = clsRTFCell::AlignLeft;
    };

    // The start of the file's name: the catalogue's prefix of the class.
    virtual QString FilePrefix() const;
    virtual RtfMarkup Title() const { return {}; }
    virtual RtfMarkup Statistics() const { return {}; }
    // The columns for the dialect and orientation the writer has now; none: no header row.
    virtual QList<Column> Columns() const = 0;
    // The data rows, after the header row of Columns().
    virtual void PrintRows() = 0;

    bool Rtf() const { return RTF.USE_RTF; }
    bool Landscape() const { return RTF.LANDSCAPE; }

    // Makes the row definition anew: one plain cell per column, boxed, left at the top. CSV cells have
    // no edges.
    void DefineColumns(const QList<Column>& columns);
    // Prints the columns' captions as the repeating header row (box, header fill, bold), then leaves the
    // cells ready for data rows: no fill, not bold.
    void HeaderRow(const QList<Column>& columns);
    // Puts the texts into the cells by position and prints the row. Missing texts leave cells empty.
    void PrintRow(const QList<RtfMarkup>& texts);
    // One bold, boxed cell over the whole width with the sub-header fill (a line of one field in CSV);
    // afterwards the data columns are defined again.
    void GroupRow(const RtfMarkup& text);
    // One cell over the whole width without border or fill; afterwards the data columns come back.
    void NoteRow(const RtfMarkup& text);

    static QString Count(long number) { return QString::number(number); }
    // Two texts on lines of their own; either alone when the other is empty.
    static QString Stacked(const QString& first, const QString& second);
    // "Yes" for the flag "Y", else "No".
    static QString YesNo(const QString& flag);

private:
    void FullWidthRow(const RtfMarkup& text, int border, int fill, bool bold);

    QString mClassName;
};

// A report of a filtered list of contacts or invitations: the filter key of the catalogue, the caption
// that goes into the title, and a condition of the custom filter.
class clsRTFFilteredReport : public clsRTFReport {
public:
    using clsRTFReport::clsRTFReport;

    int FilterEnum = 0;
    QString FilterText = QStringLiteral("All");
    QString CustomWhere;
};
