#include "shell/controls/ControlIcons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace ControlIcons {
namespace {

// Paints the drawing at whatever size and device pixel ratio the caller asks for.
class DrawnIconEngine : public QIconEngine {
public:
    DrawnIconEngine(Drawing drawing, QColor color) : mDrawing(std::move(drawing)), mColor(color) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const qreal side = qMin(rect.width(), rect.height());
        const QRectF square(rect.x() + (rect.width() - side) / 2.0, rect.y() + (rect.height() - side) / 2.0,
                            side, side);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        mDrawing(*painter, square, ColorFor(mode));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        QPixmap pixmap(size * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new DrawnIconEngine(mDrawing, mColor); }

private:
    QColor ColorFor(QIcon::Mode mode) const {
        const QPalette palette = QApplication::palette();
        if (mode == QIcon::Disabled)
            return palette.color(QPalette::Disabled, QPalette::WindowText);
        return mColor.isValid() ? mColor : palette.color(QPalette::Active, QPalette::WindowText);
    }

    Drawing mDrawing;
    QColor mColor;
};

QPen StrokePen(const QRectF& square, const QColor& color, qreal share = 0.11) {
    QPen pen(color, qMax(1.0, square.width() * share));
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

// A point given in a 0..1 grid of the square.
QPointF At(const QRectF& square, qreal x, qreal y) {
    return {square.left() + x * square.width(), square.top() + y * square.height()};
}

} // namespace

QIcon Drawn(Drawing drawing, const QColor& color) {
    return QIcon(new DrawnIconEngine(std::move(drawing), color));
}

QIcon Plus(const QColor& color) {
    return Drawn(
        [](QPainter& p, const QRectF& s, const QColor& c) {
            p.setPen(StrokePen(s, c, 0.13));
            p.drawLine(At(s, 0.5, 0.2), At(s, 0.5, 0.8));
            p.drawLine(At(s, 0.2, 0.5), At(s, 0.8, 0.5));
        },
        color);
}

QIcon Pencil(const QColor& color) {
    return Drawn(
        [](QPainter& p, const QRectF& s, const QColor& c) {
            p.setPen(StrokePen(s, c, 0.09));
            QPainterPath body;
            body.moveTo(At(s, 0.18, 0.82));
            body.lineTo(At(s, 0.24, 0.62));
            body.lineTo(At(s, 0.66, 0.2));
            body.lineTo(At(s, 0.8, 0.34));
            body.lineTo(At(s, 0.38, 0.76));
            body.closeSubpath();
            p.drawPath(body);
            p.drawLine(At(s, 0.57, 0.29), At(s, 0.71, 0.43));
        },
        color);
}

QIcon Cross(const QColor& color) {
    return Drawn(
        [](QPainter& p, const QRectF& s, const QColor& c) {
            p.setPen(StrokePen(s, c, 0.11));
            p.drawLine(At(s, 0.28, 0.28), At(s, 0.72, 0.72));
            p.drawLine(At(s, 0.72, 0.28), At(s, 0.28, 0.72));
        },
        color);
}

QIcon Magnifier(const QColor& color) {
    return Drawn(
        [](QPainter& p, const QRectF& s, const QColor& c) {
            p.setPen(StrokePen(s, c, 0.1));
            p.setBrush(Qt::NoBrush);
            p.drawEllipse(QRectF(At(s, 0.16, 0.16), At(s, 0.62, 0.62)));
            p.drawLine(At(s, 0.6, 0.6), At(s, 0.84, 0.84));
        },
        color);
}

QIcon Information(const QColor& color) {
    const QColor sign = color.isValid() ? color : QColor(46, 117, 196);
    return Drawn(
        [](QPainter& p, const QRectF& s, const QColor& c) {
            p.setPen(Qt::NoPen);
            p.setBrush(c);
            p.drawEllipse(
                s.adjusted(s.width() * 0.06, s.height() * 0.06, -s.width() * 0.06, -s.height() * 0.06));
            p.setBrush(Qt::white);
            const qreal dot = s.width() * 0.13;
            p.drawEllipse(QRectF(At(s, 0.5, 0.29) - QPointF(dot / 2, dot / 2), QSizeF(dot, dot)));
            p.setPen(StrokePen(s, Qt::white, 0.13));
            p.drawLine(At(s, 0.5, 0.46), At(s, 0.5, 0.74));
        },
        sign);
}

QIcon MapPin() {
    return Drawn(
        [](QPainter& p, const QRectF& r, const QColor&) {
            const double w = r.width();
            QPainterPath pin;
            const QPointF tip(r.center().x(), r.bottom() - w * 0.06);
            const QRectF head(r.center().x() - w * 0.3, r.top() + w * 0.06, w * 0.6, w * 0.6);
            pin.moveTo(tip);
            pin.arcTo(head, -150, 300);
            pin.closeSubpath();
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(0xd9, 0x4a, 0x3d));
            p.drawPath(pin);
            p.setBrush(Qt::white);
            p.drawEllipse(head.center(), w * 0.11, w * 0.11);
        },
        QColor());
}

void PaintFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Highlight), 1.5));
    painter.drawRoundedRect(QRectF(rect).adjusted(0.75, 0.75, -0.75, -0.75), 3, 3);
    painter.restore();
}

} // namespace ControlIcons
