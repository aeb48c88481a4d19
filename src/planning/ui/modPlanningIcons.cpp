#include "planning/ui/modPlanningIcons.h"

#include "shell/controls/ControlIcons.h"

#include <QPainterPath>

namespace modPlanningIcons {

QIcon CalendarPage() {
    return ControlIcons::Drawn(
        [](QPainter& p, const QRectF& r, const QColor& color) {
            const qreal s = r.width();
            const QRectF page = r.adjusted(s * 0.12, s * 0.16, -s * 0.12, -s * 0.1);
            p.setPen(QPen(color, s * 0.07));
            p.setBrush(Qt::white);
            p.drawRoundedRect(page, s * 0.06, s * 0.06);
            p.setBrush(color);
            p.drawRect(QRectF(page.left(), page.top(), page.width(), page.height() * 0.25));
            p.setPen(QPen(color, s * 0.05));
            for (int row = 0; row < 2; ++row)
                for (int col = 0; col < 3; ++col)
                    p.drawPoint(QPointF(page.left() + page.width() * (0.25 + 0.25 * col),
                                        page.top() + page.height() * (0.5 + 0.25 * row)));
        },
        QColor(70, 110, 160));
}

QIcon Heart() {
    return ControlIcons::Drawn(
        [](QPainter& p, const QRectF& r, const QColor& color) {
            const qreal s = r.width();
            QPainterPath heart;
            heart.moveTo(r.center().x(), r.bottom() - s * 0.14);
            heart.cubicTo(r.left() - s * 0.1, r.center().y(), r.left() + s * 0.2, r.top(), r.center().x(),
                          r.top() + s * 0.3);
            heart.cubicTo(r.right() - s * 0.2, r.top(), r.right() + s * 0.1, r.center().y(), r.center().x(),
                          r.bottom() - s * 0.14);
            p.setPen(Qt::NoPen);
            p.setBrush(color);
            p.drawPath(heart);
        },
        QColor(200, 60, 90));
}

QIcon Clock() {
    return ControlIcons::Drawn(
        [](QPainter& p, const QRectF& r, const QColor& color) {
            const qreal s = r.width();
            p.setPen(QPen(color, s * 0.08));
            p.setBrush(Qt::white);
            p.drawEllipse(r.adjusted(s * 0.1, s * 0.1, -s * 0.1, -s * 0.1));
            p.drawLine(r.center(), QPointF(r.center().x(), r.top() + s * 0.26));
            p.drawLine(r.center(), QPointF(r.right() - s * 0.3, r.center().y()));
        },
        QColor(90, 120, 90));
}

QList<QIcon> EventImages() {
    return {QIcon(), CalendarPage(), Heart()};
}

} // namespace modPlanningIcons
