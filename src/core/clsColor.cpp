#include "core/clsColor.h"

clsColor clsColor::FromRGBText(const QString& text, const clsColor& fallback) {
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    if (!ok || value < 0 || value > 0xFFFFFF)
        return fallback;
    return FromRGBValue(value);
}

QString clsColor::RTFColor() const {
    return QLatin1String("\\red") + QString::number(mRed) + QLatin1String("\\green") +
           QString::number(mGreen) + QLatin1String("\\blue") + QString::number(mBlue) + QLatin1Char(';');
}
