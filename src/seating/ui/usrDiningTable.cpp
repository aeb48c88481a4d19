#include "seating/ui/usrDiningTable.h"

#include "seating/ui/modTableShapes.h"

#include <QPainter>
#include <algorithm>

namespace {

// The number stands in a strip under the shape.
constexpr qreal kCaptionHeight = 12;
constexpr qreal kMinimumWidth = 32;

} // namespace

usrDiningTable::usrDiningTable(QGraphicsItem* parent) : usrFloorItem(parent) {}

void usrDiningTable::setBackColor(const QColor& color) {
    if (color == mBackColor)
        return;
    mBackColor = color;
    update();
}

void usrDiningTable::SetDINING_TABLE(const clsDINING_TABLE& table) {
    prepareGeometryChange();
    DINING_TABLE = table;
    setToolTip(DINING_TABLE.DINING_TABLE_NM);
    ResetLook();
}

QSizeF usrDiningTable::ShapeSize() const {
    return TableShapeSize(DINING_TABLE.DINING_TABLE_TYPE_ID.toInt());
}

QRectF usrDiningTable::boundingRect() const {
    const QSizeF shape = ShapeSize();
    return {0, 0, std::max(shape.width(), kMinimumWidth), shape.height() + kCaptionHeight};
}

void usrDiningTable::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const QRectF box = boundingRect();
    const QSizeF shape = ShapeSize();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mBackColor.isValid()) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(mBackColor);
        painter->drawRoundedRect(box, 4, 4);
    }
    PaintTableShape(*painter, QRectF(QPointF((box.width() - shape.width()) / 2, 0), shape),
                    DINING_TABLE.DINING_TABLE_TYPE_ID.toInt(), IsHighlighted());
    QFont font = painter->font();
    font.setPixelSize(10);
    font.setBold(IsHighlighted());
    painter->setFont(font);
    painter->setPen(mBackColor.isValid() ? Qt::white : QColor(0x3b, 0x2f, 0x36));
    painter->drawText(QRectF(0, shape.height(), box.width(), kCaptionHeight), Qt::AlignCenter, Caption());
}
