#pragma once

#include "core/clsColor.h"

#include <QString>

// The report choices of the whole application: what the report screen chose last (paper, font,
// dialect, colours), read by every report through its writer's SetGlobalSettings.
class clsRTFMasterTemp {
public:
    bool A4 = false;
    QString FONT_NAME = QStringLiteral("Verdana");
    QString FONT_SIZE = QStringLiteral("9");
    bool LANDSCAPE = true;
    bool USE_RTF = true;
    // With USE_RTF, the laid-out document goes out as PDF instead of RTF.
    bool USE_PDF = false;

    // The three colours the user chooses: header fill, sub-header fill, borders.
    static constexpr clsColor DefaultHeaderColor() { return {170, 194, 234}; }
    static constexpr clsColor DefaultSubHeaderColor() { return {221, 231, 247}; }
    static constexpr clsColor DefaultBorderColor() { return {200, 200, 200}; }
    void SetColors(const clsColor& header, const clsColor& subHeader, const clsColor& border);
    clsColor HeaderColor() const { return mHeader; }
    clsColor SubHeaderColor() const { return mSubHeader; }
    clsColor BorderColor() const { return mBorder; }

    // The entries of a document's colour table, in index order from 1: the three chosen colours, then
    // red, light grey and grey, which are fixed.
    QString RTF_COLOR_TABLE() const;
    // The colour of a table index from 1 (HeaderFill ... Gray); black for 0 and any other index.
    clsColor TableColor(int index) const;

    // Colour-table indexes as the report classes use them.
    enum ColorIndex : int {
        NoColor = 0,
        HeaderFill = 1,
        SubHeaderFill = 2,
        BorderLine = 3,
        Red = 4,
        LightGray = 5,
        Gray = 6,
    };

private:
    clsColor mHeader = DefaultHeaderColor();
    clsColor mSubHeader = DefaultSubHeaderColor();
    clsColor mBorder = DefaultBorderColor();
};

// The application's one instance, made on first use.
clsRTFMasterTemp& gRTFMasterTemp();
