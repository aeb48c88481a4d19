#pragma once

#include <QString>

// One label placed on a sheet: its position (from 1, row by row) and its text, lines joined by CR LF.
class clsLabel {
public:
    QString LABEL_NUMBER_TX;
    QString FULL_ADDRESS_TX;

    int Number() const { return LABEL_NUMBER_TX.toInt(); }
};
