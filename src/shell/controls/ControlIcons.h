#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>
#include <functional>

// Small pictures of the controls, drawn as vectors whenever they are painted, so they are sharp at
// any screen scale and follow the palette's text colour (greyed when disabled).
namespace ControlIcons {

// Draws the picture into a square; the colour is the pen to use.
using Drawing = std::function<void(QPainter& painter, const QRectF& square, const QColor& color)>;

// An icon painted by a drawing in the palette's text colour (or the given colour when valid).
QIcon Drawn(Drawing drawing, const QColor& color = QColor());

QIcon Plus(const QColor& color = QColor());
QIcon Pencil(const QColor& color = QColor());
QIcon Cross(const QColor& color = QColor());
QIcon Magnifier(const QColor& color = QColor());
// A round "i" sign, in the colour of a hint.
QIcon Information(const QColor& color = QColor());

// A red pin on a map, for the links that show an address on the map.
QIcon MapPin();

// The keyboard focus around a custom-painted control: a rounded frame in the palette's highlight
// colour, plain on every style (some styles draw no focus rectangle at all).
void PaintFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette);

} // namespace ControlIcons
