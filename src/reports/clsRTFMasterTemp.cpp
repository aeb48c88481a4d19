#include "reports/clsRTFMasterTemp.h"

void clsRTFMasterTemp::SetColors(const clsColor& header, const clsColor& subHeader, const clsColor& border) {
    mHeader = header;
    mSubHeader = subHeader;
    mBorder = border;
}

QString clsRTFMasterTemp::RTF_COLOR_TABLE() const {
    return mHeader.RTFColor() + mSubHeader.RTFColor() + mBorder.RTFColor() + clsColor(255, 0, 0).RTFColor() +
           clsColor(242, 242, 242).RTFColor() + clsColor(128, 128, 128).RTFColor();
}

clsRTFMasterTemp& gRTFMasterTemp() {
    static clsRTFMasterTemp settings;
    return settings;
}
