#pragma once

#include <QColor>
#include <QRect>

class QPainter;

// The coloured headers of the pages: a colour scheme gives two end colours, and the header is filled
// from the first at its left edge to the second at its right.

// Sets the end colours of scheme 0 to 7; any other number gives scheme 0.
void SetGradient(int scheme, QColor& from, QColor& to);
void PaintGradient(QPainter& painter, const QRect& rect, const QColor& from, const QColor& to);
