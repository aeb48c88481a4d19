#pragma once

#include "reports/clsLabel.h"
#include "reports/clsLabelSheet.h"
#include "reports/clsRTFMaster.h"

#include <QList>
#include <QString>

// A sheet of address labels as a document: a table of three labels a row with the gaps between them as
// empty cells, rows of exactly the label's height, no cell margins and no page furniture, so that each
// label's text stands on its label of the real sheet. A text longer than a label is cut by the row's
// height; it never runs into the next label.
class clsRTFLabel {
public:
    explicit clsRTFLabel(const clsRTFMasterTemp& settings = gRTFMasterTemp()) : RTF(settings) {}

    clsRTFMaster RTF;
    // The labels to print, by their number on the sheet; numbers without a label print empty.
    QList<clsLabel> Labels;
    int Sheet = clsLabelSheet::Avery8160;
    // The document as PDF instead of RTF.
    bool Pdf = false;
    // The font of the labels; the settings' font when empty.
    QString FONT_NAME;
    QString FONT_SIZE;

    // Writes "Labels_" + the time stamp into the report folder. The full name of the file, or empty when
    // it could not be written (the user has been told why).
    QString Build();
    bool Show() { return RTF.Show(); }

private:
    void SetUp(const clsLabelSheet& sheet);
    void AddLabel(const clsLabelSheet& sheet, const QString& text);

    int mColumn = 0;
};
