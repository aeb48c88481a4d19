#pragma once

#include "seating/ui/usrFloorItem.h"

// The box of a hotel on the map or of a flight: its number and name, an optional line (a flight's
// route), and how many guests it holds, in red when it holds more than it has room for.
class usrTravelBox : public usrFloorItem {
    Q_OBJECT

public:
    explicit usrTravelBox(const QString& key, QGraphicsItem* parent = nullptr);

    QString Key() const override { return mKey; }
    QString Caption() const { return mCaption; }
    QString CountText() const { return mCount; }
    bool IsOverfull() const { return mOverfull; }

    void SetText(const QString& caption, const QString& line);
    void SetCount(const QString& count, bool overfull);

    // Every box has the same size, in pixels.
    static QSizeF Size() { return {210, 50}; }

    QRectF boundingRect() const override { return {QPointF(0, 0), Size()}; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QString mKey;
    QString mCaption;
    QString mLine;
    QString mCount;
    bool mOverfull = false;
};
