#include "shell/grid/modGradient.h"

#include <QLinearGradient>
#include <QPainter>
#include <array>

void SetGradient(int scheme, QColor& from, QColor& to) {
    static const std::array<std::pair<QColor, QColor>, 8> schemes = {{
        {QColor(41, 89, 169), QColor(89, 135, 214)},  // blue
        {QColor(34, 120, 70), QColor(80, 165, 110)},  // green
        {QColor(128, 28, 52), QColor(176, 70, 96)},   // burgundy
        {QColor(92, 52, 140), QColor(140, 100, 190)}, // violet
        {QColor(16, 112, 120), QColor(60, 160, 168)}, // teal
        {QColor(150, 100, 30), QColor(200, 150, 70)}, // gold
        {QColor(70, 80, 95), QColor(120, 130, 145)},  // slate
        {QColor(190, 80, 120), QColor(225, 130, 165)}, // rose
    }};
    const auto& chosen = schemes[scheme >= 0 && scheme < int(schemes.size()) ? size_t(scheme) : 0];
    from = chosen.first;
    to = chosen.second;
}

void PaintGradient(QPainter& painter, const QRect& rect, const QColor& from, const QColor& to) {
    QLinearGradient gradient(rect.topLeft(), rect.topRight());
    gradient.setColorAt(0, from);
    gradient.setColorAt(1, to);
    painter.fillRect(rect, gradient);
}
