#pragma once

#include "reports/clsRTFReport.h"

// One line a table: number, label, seats and seats still free; under them the picture of the floor that
// the table layout page wrote into the reports folder, or a word on how to make it.
class clsRTFTableLayout : public clsRTFReport {
public:
    clsRTFTableLayout() : clsRTFReport("clsRTFTableLayout") {}

    // The pictures the table layout page writes, the first found being used: the PNG at twice the
    // screen's resolution, else the bitmap.
    static QString PngPath();
    static QString BitmapPath();
    // What the report says where the picture would stand when there is none yet.
    static QString NoPictureText();

protected:
    RtfMarkup Title() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    void PrintPicture();
};
