#include "reports/clsLabelSheet.h"

namespace {

clsLabelSheet Letter8160() {
    clsLabelSheet sheet;
    sheet.Sheet = clsLabelSheet::Avery8160;
    sheet.Caption = QStringLiteral("Avery® 8160");
    sheet.PaperText = QStringLiteral("Paper size: Letter (8.5 x 11 in)");
    sheet.LabelText = QStringLiteral("Label size: 1\" x 2 5/8\"");
    sheet.A4 = false;
    sheet.LabelsPerPage = 30;
    sheet.MarginTop = 0.5F;
    sheet.MarginSide = 0.19F;
    sheet.RowHeight = 1440;
    sheet.FirstLabelRight = 3787;
    sheet.FirstGapRight = 3974;
    sheet.SecondLabelRight = 7761;
    sheet.SecondGapRight = 7948;
    sheet.ScreenCellHeight = 495;
    return sheet;
}

clsLabelSheet A4L7160() {
    clsLabelSheet sheet;
    sheet.Sheet = clsLabelSheet::AveryL7160;
    sheet.Caption = QStringLiteral("Avery® L7160");
    sheet.PaperText = QStringLiteral("Paper size: A4 (210 x 297 mm)");
    sheet.LabelText = QStringLiteral("Label size: 38mm x 63.5mm");
    sheet.A4 = true;
    sheet.LabelsPerPage = 21;
    sheet.MarginTop = 0.63F;
    sheet.MarginSide = 0.28F;
    sheet.RowHeight = 2160;
    sheet.FirstLabelRight = 3585;
    sheet.FirstGapRight = 3729;
    sheet.SecondLabelRight = 7329;
    sheet.SecondGapRight = 7473;
    sheet.ScreenCellHeight = 750;
    return sheet;
}

} // namespace

const clsLabelSheet& clsLabelSheet::Of(int sheet) {
    static const clsLabelSheet letter = Letter8160();
    static const clsLabelSheet a4 = A4L7160();
    return sheet == AveryL7160 ? a4 : letter;
}

int clsLabelSheet::KindOf(const QString& name) {
    const QString wanted = name.trimmed();
    if (wanted.compare(QLatin1String("8160"), Qt::CaseInsensitive) == 0)
        return Avery8160;
    if (wanted.compare(QLatin1String("L7160"), Qt::CaseInsensitive) == 0)
        return AveryL7160;
    return -1;
}
