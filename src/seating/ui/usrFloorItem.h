#pragma once

#include <QGraphicsObject>
#include <QStringList>

class QMimeData;

// The guests a drag carries: their contact keys, and whether they come from a group (the tree of
// tables, hotels or flights) or from the list of those still to be placed.
namespace GuestDrag {
QMimeData* Make(const QStringList& contactIds, bool fromGroup);
// False when the data carries no guests.
bool Read(const QMimeData* data, QStringList* contactIds, bool* fromGroup);
} // namespace GuestDrag

// A thing on a board (a table on the floor, a hotel on the map, a flight): it is selected by a click,
// dragged by the mouse while it may be moved, never off the board, and takes guests dropped on it. What
// that means is the page's business, told by the signals. The look is the kind's own.
class usrFloorItem : public QGraphicsObject {
    Q_OBJECT

public:
    explicit usrFloorItem(QGraphicsItem* parent = nullptr);

    // The key of the record the item shows.
    virtual QString Key() const = 0;

    bool IsHighlighted() const { return mHighlighted; }
    void Highlight();
    void LoseFocus();
    void SetMovable(bool movable) { mMovable = movable; }

signals:
    void Clicked(usrFloorItem* item);
    // The mouse let go of the item after moving it: where, on the board, and where it was held.
    void Dropped(usrFloorItem* item, const QPointF& scenePos, const QPointF& grab);
    void GuestsDropped(usrFloorItem* item, const QStringList& contactIds, bool fromGroup);

protected:
    // Back to the normal look (a new record).
    void ResetLook() {
        mHighlighted = true;
        SetLook(false);
    }

    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void dragEnterEvent(QGraphicsSceneDragDropEvent* event) override;
    void dropEvent(QGraphicsSceneDragDropEvent* event) override;

private:
    void SetLook(bool highlighted);

    bool mHighlighted = false;
    bool mMovable = true;
    bool mDragging = false;
    QPointF mGrab;
};
