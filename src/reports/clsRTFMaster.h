#pragma once

#include "reports/RtfMarkup.h"
#include "reports/TextFile.h"
#include "reports/clsPageDialect.h"
#include "reports/clsRTFCell.h"
#include "reports/clsRTFMasterTemp.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

// The writer of every report: a Rich Text Format document made of table rows, or a CSV file, from the
// same calls. A report sets the public fields, calls RTFOpen, then for each row ResetCells, AddCell
// for each column and PrintCells, and at the end RTFClose and Show.
//
// Text and markup never mix by accident: every text field and cell takes RtfMarkup, and a QString
// given there is escaped as plain text. Bold, italic, strike-through and line breaks come from BOLD,
// ITALIC, STRIKE and RtfMarkup::LineBreak (or CR LF in the text).
//
// The CSV dialect follows RFC 4180: one record a row, fields joined by commas, every non-empty field in
// double quotes with inner quotes doubled, records ending in CR LF; the file is UTF-8 with a byte-order
// mark. A cell's markup gives its plain text there, so styles vanish and line breaks stay CR LF.
//
// The PDF dialect lays the same rows out in pages through the clsPageDialect a painting layer
// registered; it is a laid-out document like RTF, so USE_RTF stays true with USE_PDF.
//
// The file is made in a temporary file beside the report and takes its name at RTFClose: a report that
// fails on the way leaves nothing behind, and the user is told what failed, with the path.
class clsRTFMaster {
public:
    // Reads its choices and colours from the given settings; the application's own by default.
    explicit clsRTFMaster(const clsRTFMasterTemp& settings = gRTFMasterTemp());

    bool A4 = false;
    bool LANDSCAPE = true;
    bool USE_RTF = true;
    bool USE_PDF = false; // with USE_RTF: PDF instead of RTF
    // The logo in a page header, with title and date inside that header on every page.
    bool PRINT_HEADER_ICON = true;
    // The line "As of " and the present date and time under the title.
    bool PRINT_HEADER_DATE = true;
    // "Page n of m" at the bottom of each page.
    bool PRINT_FOOTER = true;
    // Inches; set by mxPAPER_WIDTH_PAPER_HEIGHT.
    float PAPER_WIDTH = 0;
    float PAPER_HEIGHT = 0;
    // Inches.
    float MARGIN_TOP = 1.0F;
    float MARGIN_LEFT = 0.75F;
    float MARGIN_RIGHT = 0.75F;
    float MARGIN_BOTTOM = 0.75F;
    float MARGIN_HEADER = 0.5F;  // of the header from the top edge
    float MARGIN_FOOTER = 0.35F; // of the footer from the bottom edge
    // Twips, alike for every cell.
    int CELL_MARGIN_LEFT = 45;
    int CELL_MARGIN_TOP = 45;
    int CELL_MARGIN_BOTTOM = 45;
    int CELL_MARGIN_RIGHT = 45;
    // The file's name without folder and extension.
    QString FILE_NAME;
    RtfMarkup TITLE;
    // One centred line under the title, as a rule "Total Records: " and the count.
    RtfMarkup STATISTICS;
    QString FONT_NAME;
    // Points, as text.
    QString FONT_SIZE = QStringLiteral("9");
    // The row being defined, in print order.
    QList<clsRTFCell> RTFCells;

    // The cell last added (there must be one).
    clsRTFCell& RTFCell() { return RTFCells.last(); }

    // FILE_NAME + ".rtf", or ".csv" or ".pdf" in those dialects. A slash or backslash in the name becomes "_",
    // so that the file stays in the report folder.
    QString FILE_NAME_WITH_EXTENSION() const;
    // The report folder + "/" + FILE_NAME_WITH_EXTENSION.
    QString FULL_FILE_NAME() const;
    // The width a table has between the left and right margins, in twips.
    int TABLE_WIDTH() const;

    // Copies dialect, font, paper size and orientation from the settings. The colours are read from
    // there when the document head is written.
    void SetGlobalSettings();
    // Sets PAPER_WIDTH and PAPER_HEIGHT from A4 and LANDSCAPE.
    void mxPAPER_WIDTH_PAPER_HEIGHT();

    // Creates the file and, in the RTF dialect, writes the document head and page furniture. False (the
    // user has been told) when the file can't be made or the font size is no number.
    bool RTFOpen();
    // Ends the document and puts the file in place. False when anything failed since RTFOpen.
    bool RTFClose();
    // Opens the finished file with the desktop's program for it.
    bool Show();

    // Adds a cell to the row and leaves it in RTFCell().
    clsRTFCell& AddCell(int CELLX, const RtfMarkup& CELL_TX,
                        int CELL_HORIZONTAL_ALIGNMENT = clsRTFCell::AlignLeft,
                        int CELL_VERTICAL_ALIGNMENT = clsRTFCell::AlignTop,
                        int CELL_BORDER = clsRTFCell::BorderBox, int CELL_BACKCOLOR = 0,
                        int CELL_FORECOLOR = 0, bool BOLD = false, bool ITALIC = false, bool STRIKE = false);
    void ResetCells() { RTFCells.clear(); }
    void SetCellsBOLD(bool value);
    void SetCellsITALIC(bool value);
    void SetCellsSTRIKE(bool value);
    void SetCellsCELL_BORDER(int value);
    void SetCellsCELL_BACKCOLOR(int value);
    void SetCellsCELL_FORECOLOR(int value);

    // Prints the row. RowHeader: the row repeats at the top of every page. RTF_HEIGHT: an exact row
    // height in twips, none below 1. Bold, italic and strike-through of the cells are spent by the
    // printing; border, fill and colour stay. The CSV dialect ignores both arguments.
    void PrintCells(bool RowHeader = false, int RTF_HEIGHT = 0);
    // Empties text, border, fill, bold and italic of every cell and prints the row: a blank separating
    // row (a line of commas in CSV). The changes stay on the cells.
    void PrintBlankCells();
    // Writes the markup as one line of the document. In the CSV dialect its plain text becomes one
    // record of one field, and markup that stands for no text writes nothing.
    void PrintRaw(const RtfMarkup& rtf);
    // Sets the font size from here on, in points ("12"); RTF only, as CSV has no fonts.
    void FontSize(const QString& points);

    // "\b " + text + "\b0", "\i " + text + "\i0", "\strike " + text + "\strike0"; they write nothing.
    static RtfMarkup BOLD(const RtfMarkup& text) { return RtfMarkup::Bold(text); }
    static RtfMarkup ITALIC(const RtfMarkup& text) { return RtfMarkup::Italic(text); }
    static RtfMarkup STRIKE(const RtfMarkup& text) { return RtfMarkup::Strike(text); }

    // Inches to twips: times 1440, rounded to the nearest integer, ties to even.
    static int Twips(double inches);
    // The text of the date line: "As of Jun 5, 2027  3:05 PM" (the time in the system's style).
    static QString HeaderDateText(const QDateTime& moment);
    // Half-points of a size in points given as text; 0 when it is no number of a usable size.
    static int HalfPoints(const QString& points);
    // The logo of the page header: a baseline JPEG of 31 by 22 pixels.
    static QByteArray LogoJpeg();

private:
    void WriteHead(int fontHalfPoints);
    void WriteLogoShape();
    void WriteLine(const QString& text, int blankLinesBefore = 0);
    bool WritesRtf() const { return USE_RTF && !USE_PDF; }
    bool WritesPdf() const { return USE_RTF && USE_PDF; }
    bool OpenPages();
    void NotWritten(const QString& reason) const;
    static RtfMarkup CellText(clsRTFCell& cell);
    QString CsvRecord() const;
    // What a table row writes before its texts, and before each cell's text, for the present cells.
    struct RowLayout {
        std::vector<int> Key; // everything the texts below are made of
        QString Definition;   // "\trowd ..." up to the "\pard" before the first text
        QStringList CellStarts; // "\intbl\ql\cf0\sb30\sa30 " per cell
    };
    const RowLayout& Layout(bool RowHeader, int RTF_HEIGHT);

    const clsRTFMasterTemp* mSettings;
    TextFile mFile;
    std::unique_ptr<clsPageDialect> mPages; // the PDF dialect's document while it is open
    bool mWritten = false;
    // Rows of one report mostly share their layout: it is made once and used until a cell changes.
    RowLayout mLayout;
};
