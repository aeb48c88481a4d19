#include "reports/clsRTFCell.h"

QString clsRTFCell::BorderSide(int side) {
    // Every border is a line of 15 twips in colour 3 of the colour table.
    switch (side) {
    case BorderTop:
        return QStringLiteral("\\clbrdrt\\brdrs\\brdrw15\\brdrcf3");
    case BorderBottom:
        return QStringLiteral("\\clbrdrb\\brdrs\\brdrw15\\brdrcf3");
    case BorderLeft:
        return QStringLiteral("\\clbrdrl\\brdrs\\brdrw15\\brdrcf3");
    case BorderRight:
        return QStringLiteral("\\clbrdrr\\brdrs\\brdrw15\\brdrcf3");
    case BorderTopSmallDashes:
        return QStringLiteral("\\clbrdrt\\brdrdashsm\\brdrw15\\brdrcf3");
    case BorderTopDashes:
        return QStringLiteral("\\clbrdrt\\brdrdash\\brdrw15\\brdrcf3");
    case BorderTopWavyDouble:
        return QStringLiteral("\\clbrdrt\\brdrwavydb\\brdrw15\\brdrcf3");
    default:
        return {};
    }
}

QString clsRTFCell::RTF_CELL_BORDER() const {
    switch (CELL_BORDER) {
    case BorderTop:
    case BorderBottom:
    case BorderLeft:
    case BorderRight:
    case BorderTopSmallDashes:
    case BorderTopDashes:
    case BorderTopWavyDouble:
        return BorderSide(CELL_BORDER);
    case BorderOpenBottom:
        return BorderSide(BorderLeft) + BorderSide(BorderTop) + BorderSide(BorderRight);
    case BorderOpenTop:
        return BorderSide(BorderLeft) + BorderSide(BorderBottom) + BorderSide(BorderRight);
    case BorderOpenRight:
        return BorderSide(BorderLeft) + BorderSide(BorderTop) + BorderSide(BorderBottom);
    case BorderOpenLeft:
        return BorderSide(BorderTop) + BorderSide(BorderBottom) + BorderSide(BorderRight);
    case BorderBox:
        return BorderSide(BorderLeft) + BorderSide(BorderTop) + BorderSide(BorderBottom) +
               BorderSide(BorderRight);
    default:
        return {};
    }
}

QString clsRTFCell::RTF_CELL_BACKCOLOR() const {
    return CELL_BACKCOLOR == 0 ? QString() : QLatin1String("\\clcbpat") + QString::number(CELL_BACKCOLOR);
}

QString clsRTFCell::RTF_CELL_FORECOLOR() const {
    return QLatin1String("\\cf") + QString::number(CELL_FORECOLOR);
}

QString clsRTFCell::RTF_CELL_HORIZONTAL_ALIGNMENT() const {
    switch (CELL_HORIZONTAL_ALIGNMENT) {
    case AlignLeft:
        return QStringLiteral("\\ql");
    case AlignCenter:
        return QStringLiteral("\\qc");
    case AlignRight:
        return QStringLiteral("\\qr");
    default:
        return QStringLiteral("\\q");
    }
}

QString clsRTFCell::RTF_CELL_VERTICAL_ALIGNMENT() const {
    switch (CELL_VERTICAL_ALIGNMENT) {
    case AlignTop:
        return QStringLiteral("\\clvertalt");
    case AlignMiddle:
        return QStringLiteral("\\clvertalc");
    case AlignBottom:
        return QStringLiteral("\\clvertalb");
    default:
        return QStringLiteral("\\clvertal");
    }
}
