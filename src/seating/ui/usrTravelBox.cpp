#include "seating/ui/usrTravelBox.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {
const QColor kFrame(0x8a, 0x3c, 0x63);
const QColor kInk(0x3b, 0x2f, 0x36);
const QColor kWarning(0xc0, 0x1c, 0x28);
constexpr qreal kPad = 6;
} // namespace

usrTravelBox::usrTravelBox(const QString& key, QGraphicsItem* parent) : usrFloorItem(parent), mKey(key) {}

void usrTravelBox::SetText(const QString& caption, const QString& line) {
    mCaption = caption;
    mLine = line;
    update();
}

void usrTravelBox::SetCount(const QString& count, bool overfull) {
    mCount = count;
    mOverfull = overfull;
    update();
}

void usrTravelBox::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const QRectF box = boundingRect().adjusted(1, 1, -1, -1);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(kFrame, IsHighlighted() ? 2.5 : 1));
    painter->setBrush(IsHighlighted() ? QColor(255, 244, 250, 245) : QColor(255, 255, 255, 230));
    painter->drawRoundedRect(box, 6, 6);

    QFont font = painter->font();
    font.setPixelSize(12);
    font.setBold(true);
    painter->setFont(font);
    const qreal width = box.width() - 2 * kPad;
    const qreal line = box.height() / 3;
    painter->setPen(kInk);
    const QFontMetricsF bold(font);
    painter->drawText(QRectF(box.left() + kPad, box.top() + 2, width, line), Qt::AlignLeft | Qt::AlignVCenter,
                      bold.elidedText(mCaption, Qt::ElideRight, width));
    font.setBold(false);
    font.setPixelSize(11);
    painter->setFont(font);
    const QFontMetricsF plain(font);
    painter->drawText(QRectF(box.left() + kPad, box.top() + line, width, line),
                      Qt::AlignLeft | Qt::AlignVCenter, plain.elidedText(mLine, Qt::ElideRight, width));
    font.setBold(mOverfull);
    painter->setFont(font);
    painter->setPen(mOverfull ? kWarning : kInk);
    painter->drawText(QRectF(box.left() + kPad, box.top() + 2 * line - 2, width, line),
                      Qt::AlignLeft | Qt::AlignVCenter, plain.elidedText(mCount, Qt::ElideRight, width));
}
