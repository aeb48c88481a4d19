#pragma once

#include "guests/modParseText.h"

#include <QWidget>

// One side of the widgets page: the wording, the vows, the songs or an event's guest list.
class usrWidgetSide : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    // The side is about to be left (another side, another page): it asks whether to save what would be
    // lost, and writes what it keeps in the settings.
    virtual void Leaving() {}
    // The filter row of the report catalogue that "Print reports" selects for this side.
    virtual int ReportFilter() const { return 1; }

protected:
    // A text box shows lines divided by LF; a stored text divides them by CR LF.
    static QString Shown(const QString& stored) {
        return NormalizeLineBreaks(stored).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    }
};
