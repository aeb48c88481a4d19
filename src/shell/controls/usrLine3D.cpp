#include "shell/controls/usrLine3D.h"

#include <QPainter>

usrLine3D::usrLine3D(QWidget* parent) : usrLine3D(Qt::Horizontal, parent) {}

usrLine3D::usrLine3D(Qt::Orientation orientation, QWidget* parent) : QWidget(parent) {
    setOrientation(orientation);
}

void usrLine3D::setStyle(int style) {
    mStyle = style;
    update();
}

void usrLine3D::setOrientation(Qt::Orientation orientation) {
    mOrientation = orientation;
    if (orientation == Qt::Horizontal)
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    else
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    updateGeometry();
    update();
}

QSize usrLine3D::sizeHint() const {
    return mOrientation == Qt::Horizontal ? QSize(20, 2) : QSize(2, 20);
}

void usrLine3D::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor shadow = palette().color(QPalette::Mid);
    const QColor light = palette().color(QPalette::Light);
    const bool horizontal = mOrientation == Qt::Horizontal;
    const int length = horizontal ? width() : height();
    // Line n is one logical pixel thick, centred across the control.
    const int across = horizontal ? height() : width();
    const int lines = mStyle == Flat ? 1 : 2;
    const int start = (across - lines) / 2;
    auto line = [&](int n, const QColor& color) {
        painter.fillRect(horizontal ? QRect(0, start + n, length, 1) : QRect(start + n, 0, 1, length), color);
    };
    if (mStyle == Flat) {
        line(0, shadow);
    } else {
        line(0, mStyle == Raised ? light : shadow);
        line(1, mStyle == Raised ? shadow : light);
    }
}
