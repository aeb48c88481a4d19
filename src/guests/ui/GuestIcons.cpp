#include "guests/ui/GuestIcons.h"

#include "guests/clsCONTACT.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <functional>

namespace GuestIcons {
namespace {

using Draw = std::function<void(QPainter&, double side)>;

QIcon Painted(const Draw& draw) {
    QIcon icon;
    for (int side : {16, 20, 24, 32, 48, 64}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter, side);
        icon.addPixmap(pixmap);
    }
    return icon;
}

// A head and shoulders; a child is smaller and stands lower.
Draw Person(QColor color, bool child, bool heart) {
    return [=](QPainter& p, double s) {
        const double k = child ? 0.78 : 1.0;
        const double cx = s / 2;
        const double top = s * (1 - k) + s * 0.08;
        p.setPen(Qt::NoPen);
        p.setBrush(color);
        const double head = s * 0.34 * k;
        p.drawEllipse(QRectF(cx - head / 2, top, head, head));
        QPainterPath body;
        const double w = s * 0.72 * k;
        const double y = top + head + s * 0.04;
        body.moveTo(cx - w / 2, s * 0.94);
        body.cubicTo(cx - w / 2, y, cx + w / 2, y, cx + w / 2, s * 0.94);
        body.closeSubpath();
        p.drawPath(body);
        if (heart) {
            QPainterPath h;
            const double hs = s * 0.3;
            const double hx = s * 0.70, hy = s * 0.58;
            h.moveTo(hx, hy + hs * 0.9);
            h.cubicTo(hx - hs, hy + hs * 0.3, hx - hs * 0.5, hy - hs * 0.4, hx, hy + hs * 0.15);
            h.cubicTo(hx + hs * 0.5, hy - hs * 0.4, hx + hs, hy + hs * 0.3, hx, hy + hs * 0.9);
            p.setBrush(QColor(0xd6, 0x33, 0x5c));
            p.setPen(QPen(Qt::white, s / 32.0));
            p.drawPath(h);
        }
    };
}

// An envelope, outlined or filled, with a tick for an answered invitation.
Draw Envelope(QColor color, bool filled, bool tick) {
    return [=](QPainter& p, double s) {
        const QRectF r(s * 0.08, s * 0.22, s * 0.84, s * 0.58);
        p.setPen(QPen(color.darker(filled ? 130 : 100), s / 16.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(filled ? QBrush(color) : QBrush(Qt::white));
        p.drawRoundedRect(r, s / 16.0, s / 16.0);
        QPainterPath flap;
        flap.moveTo(r.topLeft());
        flap.lineTo(r.center().x(), r.top() + r.height() * 0.55);
        flap.lineTo(r.topRight());
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(filled ? QColor(Qt::white) : color, s / 16.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(flap);
        if (tick) {
            p.setPen(QPen(QColor(0x1e, 0x8e, 0x3e), s / 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            p.drawPolyline(QPolygonF({QPointF(s * 0.50, s * 0.78), QPointF(s * 0.64, s * 0.92), QPointF(s * 0.96, s * 0.56)}));
        }
    };
}

} // namespace

const QList<QIcon>& All() {
    static const QList<QIcon> icons = [] {
        const QColor gold(0xc2, 0x93, 0x2f), blue(0x3f, 0x6f, 0xb5), rose(0xc2, 0x4f, 0x7d);
        QList<QIcon> list(Count);
        list[Bride] = Painted(Person(rose, false, true));
        list[Groom] = Painted(Person(blue, false, true));
        list[Man] = Painted(Person(blue, false, false));
        list[Woman] = Painted(Person(rose, false, false));
        list[Boy] = Painted(Person(blue, true, false));
        list[Girl] = Painted(Person(rose, true, false));
        list[InviteUnsent] = Painted(Envelope(QColor(0x8a, 0x8a, 0x8a), false, false));
        list[InviteSent] = Painted(Envelope(gold, true, false));
        list[InviteReplied] = Painted(Envelope(gold, true, true));
        return list;
    }();
    return icons;
}

int PersonIndex(const clsCONTACT& contact) {
    if (contact.ROLE_ID == QLatin1String("1"))
        return Bride;
    if (contact.ROLE_ID == QLatin1String("2"))
        return Groom;
    const bool female = contact.GENDER_FG == QLatin1String("F");
    if (contact.CHILD_FG == QLatin1String("Y"))
        return female ? Girl : Boy;
    return female ? Woman : Man;
}

int InviteIndex(const clsCONTACT& contact) {
    if (contact.INVITE_ID.isEmpty())
        return None;
    if (contact.INVITE_SENT_FG != QLatin1String("Y"))
        return InviteUnsent;
    return contact.RSVP_RECEIVED_FG == QLatin1String("Y") ? InviteReplied : InviteSent;
}

} // namespace GuestIcons
