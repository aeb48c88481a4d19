#include "shell/options/modBrideGroomIcons.h"

#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsVOWREN.h"
#include "shell/controls/ControlIcons.h"

#include <QPainterPath>
#include <array>

namespace modBrideGroomIcons {
namespace {

struct Looks {
    QColor Skin;
    QColor Hair;
};

// One skin tone and hair colour per number, the same for both sides so that couples can match.
const std::array<Looks, kCount>& AllLooks() {
    static const std::array<Looks, kCount> looks{{
        {QColor(241, 201, 165), QColor(107, 68, 35)},
        {QColor(217, 164, 122), QColor(31, 26, 23)},
        {QColor(141, 90, 59), QColor(27, 20, 16)},
        {QColor(243, 210, 182), QColor(217, 180, 90)},
        {QColor(224, 172, 134), QColor(160, 70, 31)},
        {QColor(239, 199, 168), QColor(154, 154, 154)},
    }};
    return looks;
}

int Clamped(int number) {
    return number >= 1 && number <= kCount ? number : 1;
}

void DrawHead(QPainter& p, const Looks& looks) {
    p.setPen(Qt::NoPen);
    p.setBrush(looks.Skin);
    p.drawRect(QRectF(0.455, 0.50, 0.09, 0.12)); // neck
    p.drawEllipse(QRectF(0.36, 0.25, 0.28, 0.32));
}

void DrawBride(QPainter& p, const Looks& looks) {
    // The veil falls behind head and shoulders.
    QPainterPath veil;
    veil.moveTo(0.50, 0.16);
    veil.cubicTo(0.18, 0.20, 0.20, 0.70, 0.12, 1.0);
    veil.lineTo(0.88, 1.0);
    veil.cubicTo(0.80, 0.70, 0.82, 0.20, 0.50, 0.16);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 200));
    p.drawPath(veil);
    // Long hair behind the face.
    p.setBrush(looks.Hair);
    p.drawRoundedRect(QRectF(0.33, 0.22, 0.34, 0.42), 0.16, 0.16);
    // The dress: shoulders with a sweetheart neckline.
    QPainterPath dress;
    dress.moveTo(0.16, 1.0);
    dress.cubicTo(0.18, 0.72, 0.32, 0.66, 0.40, 0.64);
    dress.quadTo(0.50, 0.72, 0.60, 0.64);
    dress.cubicTo(0.68, 0.66, 0.82, 0.72, 0.84, 1.0);
    dress.closeSubpath();
    p.setBrush(QColor(252, 250, 244));
    p.setPen(QPen(QColor(214, 204, 190), 0.012));
    p.drawPath(dress);
    DrawHead(p, looks);
    // Fringe and a small flower in the hair.
    p.setPen(Qt::NoPen);
    p.setBrush(looks.Hair);
    p.drawChord(QRectF(0.35, 0.23, 0.30, 0.20), 0, 180 * 16);
    p.setBrush(QColor(236, 122, 150));
    p.drawEllipse(QPointF(0.63, 0.27), 0.045, 0.045);
    p.setBrush(QColor(255, 214, 102));
    p.drawEllipse(QPointF(0.63, 0.27), 0.016, 0.016);
}

void DrawGroom(QPainter& p, const Looks& looks) {
    // The jacket, the shirt in a V and the bow tie.
    QPainterPath jacket;
    jacket.moveTo(0.14, 1.0);
    jacket.cubicTo(0.16, 0.74, 0.30, 0.66, 0.42, 0.64);
    jacket.lineTo(0.58, 0.64);
    jacket.cubicTo(0.70, 0.66, 0.84, 0.74, 0.86, 1.0);
    jacket.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(45, 52, 64));
    p.drawPath(jacket);
    QPainterPath shirt;
    shirt.moveTo(0.42, 0.64);
    shirt.lineTo(0.58, 0.64);
    shirt.lineTo(0.50, 0.86);
    shirt.closeSubpath();
    p.setBrush(Qt::white);
    p.drawPath(shirt);
    DrawHead(p, looks);
    QPainterPath bow;
    bow.moveTo(0.50, 0.68);
    bow.lineTo(0.43, 0.645);
    bow.lineTo(0.43, 0.715);
    bow.closeSubpath();
    bow.moveTo(0.50, 0.68);
    bow.lineTo(0.57, 0.645);
    bow.lineTo(0.57, 0.715);
    bow.closeSubpath();
    p.setBrush(QColor(20, 20, 24));
    p.drawPath(bow);
    // Short hair on top of the head.
    p.setBrush(looks.Hair);
    p.drawChord(QRectF(0.35, 0.22, 0.30, 0.22), 0, 180 * 16);
    p.drawRect(QRectF(0.35, 0.32, 0.03, 0.06));
    p.drawRect(QRectF(0.62, 0.32, 0.03, 0.06));
}

void DrawPortrait(QPainter& p, const QRectF& square, bool bride, int number) {
    const Looks& looks = AllLooks()[static_cast<size_t>(Clamped(number) - 1)];
    p.save();
    p.translate(square.topLeft());
    p.scale(square.width(), square.height());
    const QRectF disc(0.02, 0.02, 0.96, 0.96);
    QPainterPath clip;
    clip.addEllipse(disc);
    p.setPen(Qt::NoPen);
    p.setBrush(bride ? QColor(248, 222, 230) : QColor(218, 228, 246));
    p.drawEllipse(disc);
    p.setClipPath(clip);
    if (bride)
        DrawBride(p, looks);
    else
        DrawGroom(p, looks);
    p.setClipping(false);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(bride ? QColor(206, 142, 162) : QColor(122, 146, 190), 0.03));
    p.drawEllipse(disc);
    p.restore();
}

} // namespace

QString Key(bool bride, int number) {
    return (bride ? QStringLiteral("BRIDE") : QStringLiteral("GROOM")) + QString::number(Clamped(number));
}

QIcon Icon(bool bride, int number) {
    const int n = Clamped(number);
    return ControlIcons::Drawn([bride, n](QPainter& painter, const QRectF& square, const QColor&) {
        DrawPortrait(painter, square, bride, n);
    });
}

QIcon Icon(const QString& key) {
    const QString upper = key.trimmed().toUpper();
    const bool bride = upper.startsWith(QLatin1String("BRIDE"));
    return Icon(bride, upper.mid(5).toInt());
}

int StoredNumber(bool bride) {
    try {
        return Clamped(clsApp::ToInt16(clsVOWREN::ReadStored(bride ? 1 : 2), 1));
    } catch (const clsDbError&) {
        return 1;
    }
}

QIcon StoredIcon(bool bride) {
    return Icon(bride, StoredNumber(bride));
}

} // namespace modBrideGroomIcons
