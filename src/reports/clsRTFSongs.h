#pragma once

#include "reports/clsRTFReport.h"

// The songs for the DJ: a group row per songlist, in the lists' order, with each song's number and name.
class clsRTFSongs : public clsRTFReport {
public:
    clsRTFSongs() : clsRTFReport("clsRTFSongs") {}

protected:
    RtfMarkup Title() const override { return "Songs"; }
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
