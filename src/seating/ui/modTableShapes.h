#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

// The four shapes of a dining table, drawn as vector art so that they stay sharp at any size: the
// table dialog shows them as choices and the floor plan draws every table with them.
//   1 round, 2 square, 3 banquet (long side across), 4 banquet (long side up and down).
// A shape number outside 1 to 4 is drawn as shape 1.
enum TableShape : int { RoundTable = 1, SquareTable = 2, WideTable = 3, TallTable = 4 };

// Paints the table with its chairs, centred and scaled to fit inside the rectangle without distortion.
// The highlighted look marks the table that is selected.
void PaintTableShape(QPainter& painter, const QRectF& rect, int shapeType, bool highlighted);
// The natural size of the shape on the floor, in pixels.
QSizeF TableShapeSize(int shapeType);
// What the shape is called where the user chooses it ("Round", ...).
QString TableShapeName(int shapeType);
