#include "seating/ui/modTableShapes.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace {

int Normalized(int shapeType) {
    return shapeType >= RoundTable && shapeType <= TallTable ? shapeType : RoundTable;
}

struct ShapeColors {
    QColor Top, Edge, Chair;
};

ShapeColors ColorsFor(bool highlighted) {
    if (highlighted)
        return {QColor(255, 214, 102), QColor(196, 98, 0), QColor(230, 126, 34)};
    return {QColor(222, 184, 135), QColor(110, 72, 38), QColor(150, 111, 70)};
}

// Chairs stand around the top: evenly on a circle for a round table, along the sides for the others.
QList<QPointF> ChairCentres(int shape, const QRectF& top, qreal gap) {
    QList<QPointF> centres;
    const QPointF c = top.center();
    if (shape == RoundTable) {
        const qreal r = top.width() / 2 + gap;
        for (int i = 0; i < 8; ++i) {
            const qreal a = i * std::numbers::pi / 4 + std::numbers::pi / 8;
            centres.append(c + QPointF(r * std::cos(a), r * std::sin(a)));
        }
        return centres;
    }
    const int across = shape == TallTable ? 1 : (shape == WideTable ? 3 : 2);
    const int down = shape == WideTable ? 1 : (shape == TallTable ? 3 : 2);
    for (int i = 0; i < across; ++i) {
        const qreal x = top.left() + top.width() * (i + 0.5) / across;
        centres.append({x, top.top() - gap});
        centres.append({x, top.bottom() + gap});
    }
    for (int i = 0; i < down; ++i) {
        const qreal y = top.top() + top.height() * (i + 0.5) / down;
        centres.append({top.left() - gap, y});
        centres.append({top.right() + gap, y});
    }
    return centres;
}

// The table top inside the shape's own box, leaving a rim for the chairs.
QRectF TopRect(const QSizeF& size, qreal chair) {
    return QRectF(QPointF(chair, chair), QSizeF(size.width() - 2 * chair, size.height() - 2 * chair));
}

} // namespace

QSizeF TableShapeSize(int shapeType) {
    switch (Normalized(shapeType)) {
    case WideTable:
        return {30, 20};
    case TallTable:
        return {20, 30};
    default:
        return {28, 28};
    }
}

QString TableShapeName(int shapeType) {
    switch (Normalized(shapeType)) {
    case SquareTable:
        return QStringLiteral("Square");
    case WideTable:
        return QStringLiteral("Banquet");
    case TallTable:
        return QStringLiteral("Banquet (upright)");
    default:
        return QStringLiteral("Round");
    }
}

void PaintTableShape(QPainter& painter, const QRectF& rect, int shapeType, bool highlighted) {
    const int shape = Normalized(shapeType);
    const QSizeF natural = TableShapeSize(shape);
    const qreal scale = std::min(rect.width() / natural.width(), rect.height() / natural.height());
    if (!(scale > 0))
        return;
    const ShapeColors colors = ColorsFor(highlighted);
    const qreal chair = 4.0; // diameter of a chair, in the shape's own pixels
    const QRectF top = TopRect(natural, chair + 1);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.translate(rect.center());
    painter.scale(scale, scale);
    painter.translate(-natural.width() / 2, -natural.height() / 2);

    const qreal line = highlighted ? 1.4 : 1.0;
    painter.setPen(QPen(colors.Edge, line * 0.8));
    painter.setBrush(colors.Chair);
    for (const QPointF& centre : ChairCentres(shape, top, chair / 2 + 0.5))
        painter.drawEllipse(centre, chair / 2, chair / 2);

    QPainterPath path;
    if (shape == RoundTable)
        path.addEllipse(top);
    else
        path.addRoundedRect(top, 1.5, 1.5);
    painter.setPen(QPen(colors.Edge, line));
    painter.setBrush(colors.Top);
    painter.drawPath(path);
    painter.restore();
}
