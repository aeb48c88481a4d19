#include "seating/ui/usrFloorItem.h"

#include <QCursor>
#include <QGraphicsScene>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneMouseEvent>
#include <QMimeData>
#include <algorithm>

namespace {
const QString kGuestsMime = QStringLiteral("application/x-vowren-guests");
} // namespace

namespace GuestDrag {

QMimeData* Make(const QStringList& contactIds, bool fromGroup) {
    auto* data = new QMimeData;
    const QString text =
        (fromGroup ? QStringLiteral("T:") : QStringLiteral("L:")) + contactIds.join(QLatin1Char(','));
    data->setData(kGuestsMime, text.toUtf8());
    return data;
}

bool Read(const QMimeData* data, QStringList* contactIds, bool* fromGroup) {
    if (!data || !data->hasFormat(kGuestsMime))
        return false;
    const QString text = QString::fromUtf8(data->data(kGuestsMime));
    *fromGroup = text.startsWith(QLatin1String("T:"));
    *contactIds = text.mid(2).split(QLatin1Char(','), Qt::SkipEmptyParts);
    return !contactIds->isEmpty();
}

} // namespace GuestDrag

usrFloorItem::usrFloorItem(QGraphicsItem* parent) : QGraphicsObject(parent) {
    setAcceptDrops(true);
    setFlag(ItemIsFocusable);
    setCursor(QCursor(Qt::OpenHandCursor));
}

void usrFloorItem::Highlight() {
    SetLook(true);
}

void usrFloorItem::LoseFocus() {
    SetLook(false);
}

void usrFloorItem::SetLook(bool highlighted) {
    if (highlighted == mHighlighted)
        return;
    mHighlighted = highlighted;
    setZValue(highlighted ? 1 : 0);
    update();
}

void usrFloorItem::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    mGrab = event->pos();
    mDragging = false;
    setFocus();
    emit Clicked(this);
}

void usrFloorItem::mouseMoveEvent(QGraphicsSceneMouseEvent* event) {
    if (!mMovable || !(event->buttons() & Qt::LeftButton))
        return;
    mDragging = true;
    // Follows the mouse, never off the board; the page decides where it lands.
    const QRectF board = scene() ? scene()->sceneRect() : QRectF();
    const QRectF box = boundingRect();
    QPointF at = event->scenePos() - mGrab;
    at.setX(std::clamp(at.x(), board.left(), std::max(board.left(), board.right() - box.width())));
    at.setY(std::clamp(at.y(), board.top(), std::max(board.top(), board.bottom() - box.height())));
    setPos(at);
}

void usrFloorItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    if (mDragging && mMovable)
        emit Dropped(this, event->scenePos(), mGrab);
    mDragging = false;
}

void usrFloorItem::dragEnterEvent(QGraphicsSceneDragDropEvent* event) {
    QStringList ids;
    bool fromGroup = false;
    event->setAccepted(GuestDrag::Read(event->mimeData(), &ids, &fromGroup));
}

void usrFloorItem::dropEvent(QGraphicsSceneDragDropEvent* event) {
    QStringList ids;
    bool fromGroup = false;
    if (!GuestDrag::Read(event->mimeData(), &ids, &fromGroup))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit GuestsDropped(this, ids, fromGroup);
}
