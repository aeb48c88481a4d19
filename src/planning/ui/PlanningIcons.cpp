#include "planning/ui/PlanningIcons.h"

#include "shell/controls/ControlIcons.h"

#include <QPainterPath>

namespace {

// A sheet with lines of writing; a folded corner for a note.
QIcon Sheet(bool folded, const QColor& color) {
    return ControlIcons::Drawn(
        [folded](QPainter& painter, const QRectF& r, const QColor& pen) {
            const qreal s = r.width();
            const QRectF page(r.left() + s * 0.2, r.top() + s * 0.1, s * 0.6, s * 0.8);
            painter.setPen(QPen(pen, s * 0.07));
            painter.setBrush(QColor(255, 253, 246));
            if (folded) {
                QPainterPath path;
                path.moveTo(page.topLeft());
                path.lineTo(page.right() - s * 0.18, page.top());
                path.lineTo(page.right(), page.top() + s * 0.18);
                path.lineTo(page.bottomRight());
                path.lineTo(page.bottomLeft());
                path.closeSubpath();
                painter.drawPath(path);
            } else {
                painter.drawRoundedRect(page, s * 0.05, s * 0.05);
            }
            for (int line = 1; line <= 3; ++line) {
                const qreal y = page.top() + page.height() * line / 4.5 + s * 0.05;
                painter.drawLine(QPointF(page.left() + s * 0.12, y), QPointF(page.right() - s * 0.12, y));
            }
        },
        color);
}

QIcon Box(bool ticked) {
    return ControlIcons::Drawn(
        [ticked](QPainter& painter, const QRectF& r, const QColor& pen) {
            const qreal s = r.width();
            const QRectF box = r.adjusted(s * 0.15, s * 0.15, -s * 0.15, -s * 0.15);
            painter.setPen(QPen(pen, s * 0.07));
            painter.setBrush(Qt::white);
            painter.drawRoundedRect(box, s * 0.08, s * 0.08);
            if (!ticked)
                return;
            painter.setPen(QPen(QColor(30, 132, 30), s * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            QPainterPath tick;
            tick.moveTo(box.left() + box.width() * 0.2, box.top() + box.height() * 0.55);
            tick.lineTo(box.left() + box.width() * 0.42, box.top() + box.height() * 0.78);
            tick.lineTo(box.left() + box.width() * 0.82, box.top() + box.height() * 0.25);
            painter.setBrush(Qt::NoBrush);
            painter.drawPath(tick);
        },
        QColor(110, 110, 110));
}

QIcon PaperclipIcon() {
    return ControlIcons::Drawn(
        [](QPainter& painter, const QRectF& r, const QColor& pen) {
            const qreal s = r.width();
            painter.setPen(QPen(pen, s * 0.08, Qt::SolidLine, Qt::RoundCap));
            painter.setBrush(Qt::NoBrush);
            QPainterPath clip;
            clip.moveTo(r.left() + s * 0.62, r.top() + s * 0.3);
            clip.lineTo(r.left() + s * 0.62, r.top() + s * 0.72);
            clip.arcTo(QRectF(r.left() + s * 0.34, r.top() + s * 0.58, s * 0.28, s * 0.28), 0, -180);
            clip.lineTo(r.left() + s * 0.34, r.top() + s * 0.22);
            clip.arcTo(QRectF(r.left() + s * 0.34, r.top() + s * 0.08, s * 0.38, s * 0.28), 180, -180);
            clip.lineTo(r.left() + s * 0.72, r.top() + s * 0.7);
            painter.drawPath(clip);
        },
        QColor(90, 90, 110));
}

} // namespace

const QList<QIcon>& PlanningIcons::All() {
    static const QList<QIcon> icons = {QIcon(),   Sheet(false, QColor(150, 90, 120)), Box(false),
                                       Box(true), Sheet(true, QColor(90, 110, 150)),  PaperclipIcon()};
    return icons;
}
