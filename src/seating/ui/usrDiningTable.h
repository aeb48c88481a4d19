#pragma once

#include "seating/clsDINING_TABLE.h"

#include <QColor>
#include <QGraphicsObject>
#include <QStringList>

class QMimeData;

// The guests a drag carries: their contact keys, and whether they come from a table (the tree) or from
// the list of those still to be seated.
namespace GuestDrag {
QMimeData* Make(const QStringList& contactIds, bool fromTable);
// False when the data carries no guests.
bool Read(const QMimeData* data, QStringList* contactIds, bool* fromTable);
} // namespace GuestDrag

// A table on the floor: its shape in the normal or the highlighted look, its number under it, and
// behind it the colour that tells whether seats are free. It is dragged by the mouse while it may be
// moved, and takes guests dropped on it; what that means is the page's business, told by the signals.
class usrDiningTable : public QGraphicsObject {
    Q_OBJECT

public:
    explicit usrDiningTable(QGraphicsItem* parent = nullptr);

    // The record of the table the item shows.
    clsDINING_TABLE DINING_TABLE;

    QColor BackColor() const { return mBackColor; }
    // An invalid colour lets the floor show through.
    void setBackColor(const QColor& color);
    QString Caption() const { return QStringLiteral("#") + DINING_TABLE.DINING_TABLE_NB; }
    bool IsHighlighted() const { return mHighlighted; }

    void Highlight();
    void LoseFocus();
    // Takes the record (shape, number, position stay the page's to place) and shows the normal look.
    void SetDINING_TABLE(const clsDINING_TABLE& table);
    void SetMovable(bool movable) { mMovable = movable; }

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

signals:
    void Clicked(usrDiningTable* table);
    // The mouse let go of the table after moving it: where, on the floor, and where it was held.
    void Dropped(usrDiningTable* table, const QPointF& scenePos, const QPointF& grab);
    void GuestsDropped(usrDiningTable* table, const QStringList& contactIds, bool fromTable);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void dragEnterEvent(QGraphicsSceneDragDropEvent* event) override;
    void dropEvent(QGraphicsSceneDragDropEvent* event) override;

private:
    QSizeF ShapeSize() const;
    void SetLook(bool highlighted);

    QColor mBackColor;
    bool mHighlighted = false;
    bool mMovable = true;
    bool mDragging = false;
    QPointF mGrab;
};
