#pragma once

#include "reports/RtfMarkup.h"

#include <QString>

// One cell of the row a report is about to print: its right edge, its text and how it looks.
class clsRTFCell {
public:
    enum HorizontalAlignment : int { AlignLeft = 0, AlignCenter = 1, AlignRight = 2 };
    enum VerticalAlignment : int { AlignTop = 0, AlignMiddle = 1, AlignBottom = 2 };
    // Border codes: one side (1 top, 2 bottom, 3 left, 4 right, 10 to 12 a dashed or wavy top), an open
    // box (5 open at the bottom, 6 at the top, 7 at the right, 8 at the left) or a full box (9).
    enum Border : int {
        NoBorder = 0,
        BorderTop = 1,
        BorderBottom = 2,
        BorderLeft = 3,
        BorderRight = 4,
        BorderOpenBottom = 5,
        BorderOpenTop = 6,
        BorderOpenRight = 7,
        BorderOpenLeft = 8,
        BorderBox = 9,
        BorderTopSmallDashes = 10,
        BorderTopDashes = 11,
        BorderTopWavyDouble = 12,
    };

    // Right edge in twips, measured from the table's left edge (not the cell's width).
    int CELLX = 0;
    // The text: plain text from anywhere converts to markup by escaping; bold, italic and line breaks
    // come from RtfMarkup or the writer's BOLD, ITALIC and STRIKE.
    RtfMarkup CELL_TX;
    int CELL_HORIZONTAL_ALIGNMENT = AlignLeft;
    int CELL_VERTICAL_ALIGNMENT = AlignTop;
    int CELL_BORDER = BorderBox;
    // Indexes into the colour table; 0 is no fill and the automatic text colour.
    int CELL_BACKCOLOR = 0;
    int CELL_FORECOLOR = 0;
    // Spent by printing: the writer clears each after the row that used it.
    bool BOLD = false;
    bool ITALIC = false;
    bool STRIKE = false;

    // The cell's pieces of RTF.
    QString RTF_CELL_BORDER() const;
    QString RTF_CELL_BACKCOLOR() const;
    QString RTF_CELL_FORECOLOR() const;
    QString RTF_CELL_HORIZONTAL_ALIGNMENT() const;
    QString RTF_CELL_VERTICAL_ALIGNMENT() const;

private:
    static QString BorderSide(int side);
};
