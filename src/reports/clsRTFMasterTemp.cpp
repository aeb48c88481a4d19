#include "reports/clsRTFMasterTemp.h"

void clsRTFMasterTemp::SetColors(const clsColor& header, const clsColor& subHeader, const clsColor& border) {
    mHeader = header;
    mSubHeader = subHeader;
    mBorder = border;
}

QString clsRTFMasterTemp::RTF_COLOR_TABLE() const {
    QString table;
    for (int index = HeaderFill; index <= Gray; ++index)
        table += TableColor(index).RTFColor();
    return table;
}

clsColor clsRTFMasterTemp::TableColor(int index) const {
    switch (index) {
    case HeaderFill:
        return mHeader;
    case SubHeaderFill:
        return mSubHeader;
    case BorderLine:
        return mBorder;
    case Red:
        return {255, 0, 0};
    case LightGray:
        return {242, 242, 242};
    case Gray:
        return {128, 128, 128};
    default:
        return {0, 0, 0};
    }
}

clsRTFMasterTemp& gRTFMasterTemp() {
    static clsRTFMasterTemp settings;
    return settings;
}
