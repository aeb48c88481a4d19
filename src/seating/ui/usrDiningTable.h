#pragma once

#include "seating/clsDINING_TABLE.h"
#include "seating/ui/usrFloorItem.h"

#include <QColor>

// A table on the floor: its shape in the normal or the highlighted look, its number under it, and
// behind it the colour that tells whether seats are free.
class usrDiningTable : public usrFloorItem {
    Q_OBJECT

public:
    explicit usrDiningTable(QGraphicsItem* parent = nullptr);

    // The record of the table the item shows.
    clsDINING_TABLE DINING_TABLE;

    QString Key() const override { return DINING_TABLE.DINING_TABLE_ID; }
    QColor BackColor() const { return mBackColor; }
    // An invalid colour lets the floor show through.
    void setBackColor(const QColor& color);
    QString Caption() const { return QStringLiteral("#") + DINING_TABLE.DINING_TABLE_NB; }

    // Takes the record (shape, number, position stay the page's to place) and shows the normal look.
    void SetDINING_TABLE(const clsDINING_TABLE& table);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QSizeF ShapeSize() const;

    QColor mBackColor;
};
