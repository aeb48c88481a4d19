#pragma once

#include <QList>
#include <QString>

// A sheet of address labels as the writer lays it out: the page's margins, the exact height of a row of
// labels, and the right edges of the three labels and the two gaps between them. The edges count from
// the table's left edge in twips; the third label ends where the table does.
class clsLabelSheet {
public:
    enum Kind : int { Avery8160 = 0, AveryL7160 = 1 };

    int Sheet = Avery8160;
    QString Caption;   // "Avery® 8160"
    QString PaperText; // "Paper size: Letter (8.5 x 11 in)"
    QString LabelText; // "Label size: 1\" x 2 5/8\""
    bool A4 = false;
    int Across = 3;
    int LabelsPerPage = 30;
    // Inches.
    float MarginTop = 0;
    float MarginSide = 0; // left and right alike
    // Twips.
    int RowHeight = 0;
    int FirstLabelRight = 0;
    int FirstGapRight = 0;
    int SecondLabelRight = 0;
    int SecondGapRight = 0;
    // The height of a label cell on the screen, in twips.
    int ScreenCellHeight = 0;

    // The cells a screen shows, whatever the sheet: on a sheet of fewer labels the rest spill over.
    static constexpr int ScreenCells = 30;

    static const clsLabelSheet& Of(int sheet);
    static QList<int> Kinds() { return {Avery8160, AveryL7160}; }
    // The sheet named "8160" or "L7160" (any case); -1 for another name.
    static int KindOf(const QString& name);

    // The page (from 1) that label n (from 1) prints on.
    int PageOf(int labelNumber) const { return (labelNumber - 1) / LabelsPerPage + 1; }
};
