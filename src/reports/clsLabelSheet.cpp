#include "reports/clsLabelSheet.h"

// The two sheets: the margins, row heights and edges at which their tables line up with the labels.
const clsLabelSheet& clsLabelSheet::Of(int sheet) {
    static const clsLabelSheet sheets[] = {
        {.Sheet = Avery8160,
         .Caption = QStringLiteral("Avery® 8160"),
         .PaperText = QStringLiteral("Paper size: Letter (8.5 x 11 in)"),
         .LabelText = QStringLiteral("Label size: 1\" x 2 5/8\""),
         .A4 = false,
         .LabelsPerPage = 30,
         .MarginTop = 0.5F,
         .MarginSide = 0.19F,
         .RowHeight = 1440,
         .FirstLabelRight = 3787,
         .FirstGapRight = 3974,
         .SecondLabelRight = 7761,
         .SecondGapRight = 7948,
         .ScreenCellHeight = 495},
        {.Sheet = AveryL7160,
         .Caption = QStringLiteral("Avery® L7160"),
         .PaperText = QStringLiteral("Paper size: A4 (210 x 297 mm)"),
         .LabelText = QStringLiteral("Label size: 38mm x 63.5mm"),
         .A4 = true,
         .LabelsPerPage = 21,
         .MarginTop = 0.63F,
         .MarginSide = 0.28F,
         .RowHeight = 2160,
         .FirstLabelRight = 3585,
         .FirstGapRight = 3729,
         .SecondLabelRight = 7329,
         .SecondGapRight = 7473,
         .ScreenCellHeight = 750},
    };
    return sheets[sheet == AveryL7160 ? 1 : 0];
}

int clsLabelSheet::KindOf(const QString& name) {
    const QString wanted = name.trimmed();
    if (wanted.compare(QLatin1String("8160"), Qt::CaseInsensitive) == 0)
        return Avery8160;
    if (wanted.compare(QLatin1String("L7160"), Qt::CaseInsensitive) == 0)
        return AveryL7160;
    return -1;
}
