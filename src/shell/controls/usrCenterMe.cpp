#include "shell/controls/usrCenterMe.h"

#include <QPainter>

usrCenterMe::usrCenterMe(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void usrCenterMe::setPicture(const QIcon& picture) {
    mPicture = picture;
    updateGeometry();
    update();
}

QSize usrCenterMe::NaturalSize() const {
    QSize largest;
    for (const QSize& size : mPicture.availableSizes())
        if (size.width() * size.height() > largest.width() * largest.height())
            largest = size;
    return largest;
}

QRect usrCenterMe::PictureRect() const {
    if (mPicture.isNull())
        return {};
    QSize size = NaturalSize();
    if (size.isEmpty()) {
        const int side = qMin(width(), height());
        size = QSize(side, side);
    } else if (size.width() > width() || size.height() > height()) {
        size.scale(this->size(), Qt::KeepAspectRatio);
    }
    return {(width() - size.width()) / 2, (height() - size.height()) / 2, size.width(), size.height()};
}

QSize usrCenterMe::sizeHint() const {
    const QSize natural = NaturalSize();
    return natural.isEmpty() ? QSize(64, 64) : natural;
}

void usrCenterMe::paintEvent(QPaintEvent*) {
    if (mPicture.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    mPicture.paint(&painter, PictureRect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}
