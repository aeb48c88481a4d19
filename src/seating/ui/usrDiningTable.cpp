#include "seating/ui/usrDiningTable.h"

#include "seating/ui/modTableShapes.h"

#include <QCursor>
#include <QGraphicsScene>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QMimeData>
#include <QPainter>
#include <algorithm>

namespace {

const QString kGuestsMime = QStringLiteral("application/x-vowren-guests");
// The number stands in a strip under the shape.
constexpr qreal kCaptionHeight = 12;
constexpr qreal kMinimumWidth = 32;

} // namespace

namespace GuestDrag {

QMimeData* Make(const QStringList& contactIds, bool fromTable) {
    auto* data = new QMimeData;
    const QString text =
        (fromTable ? QStringLiteral("T:") : QStringLiteral("L:")) + contactIds.join(QLatin1Char(','));
    data->setData(kGuestsMime, text.toUtf8());
    return data;
}

bool Read(const QMimeData* data, QStringList* contactIds, bool* fromTable) {
    if (!data || !data->hasFormat(kGuestsMime))
        return false;
    const QString text = QString::fromUtf8(data->data(kGuestsMime));
    *fromTable = text.startsWith(QLatin1String("T:"));
    *contactIds = text.mid(2).split(QLatin1Char(','), Qt::SkipEmptyParts);
    return !contactIds->isEmpty();
}

} // namespace GuestDrag

usrDiningTable::usrDiningTable(QGraphicsItem* parent) : QGraphicsObject(parent) {
    setAcceptDrops(true);
    setFlag(ItemIsFocusable);
    setCursor(QCursor(Qt::OpenHandCursor));
}

void usrDiningTable::setBackColor(const QColor& color) {
    if (color == mBackColor)
        return;
    mBackColor = color;
    update();
}

void usrDiningTable::Highlight() {
    SetLook(true);
}

void usrDiningTable::LoseFocus() {
    SetLook(false);
}

void usrDiningTable::SetLook(bool highlighted) {
    if (highlighted == mHighlighted)
        return;
    mHighlighted = highlighted;
    setZValue(highlighted ? 1 : 0);
    update();
}

void usrDiningTable::SetDINING_TABLE(const clsDINING_TABLE& table) {
    prepareGeometryChange();
    DINING_TABLE = table;
    setToolTip(DINING_TABLE.DINING_TABLE_NM);
    mHighlighted = true;
    LoseFocus();
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
                    DINING_TABLE.DINING_TABLE_TYPE_ID.toInt(), mHighlighted);
    QFont font = painter->font();
    font.setPixelSize(10);
    font.setBold(mHighlighted);
    painter->setFont(font);
    painter->setPen(mBackColor.isValid() ? Qt::white : QColor(0x3b, 0x2f, 0x36));
    painter->drawText(QRectF(0, shape.height(), box.width(), kCaptionHeight), Qt::AlignCenter, Caption());
}

void usrDiningTable::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    mGrab = event->pos();
    mDragging = false;
    setFocus();
    emit Clicked(this);
}

void usrDiningTable::mouseMoveEvent(QGraphicsSceneMouseEvent* event) {
    if (!mMovable || !(event->buttons() & Qt::LeftButton))
        return;
    mDragging = true;
    // Follows the mouse, never off the floor; the page decides where it lands.
    const QRectF floor = scene() ? scene()->sceneRect() : QRectF();
    const QRectF box = boundingRect();
    QPointF at = event->scenePos() - mGrab;
    at.setX(std::clamp(at.x(), floor.left(), std::max(floor.left(), floor.right() - box.width())));
    at.setY(std::clamp(at.y(), floor.top(), std::max(floor.top(), floor.bottom() - box.height())));
    setPos(at);
}

void usrDiningTable::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    if (mDragging && mMovable)
        emit Dropped(this, event->scenePos(), mGrab);
    mDragging = false;
}

void usrDiningTable::dragEnterEvent(QGraphicsSceneDragDropEvent* event) {
    QStringList ids;
    bool fromTable = false;
    event->setAccepted(GuestDrag::Read(event->mimeData(), &ids, &fromTable));
}

void usrDiningTable::dropEvent(QGraphicsSceneDragDropEvent* event) {
    QStringList ids;
    bool fromTable = false;
    if (!GuestDrag::Read(event->mimeData(), &ids, &fromTable))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit GuestsDropped(this, ids, fromTable);
}
