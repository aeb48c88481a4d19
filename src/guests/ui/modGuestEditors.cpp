#include "guests/ui/modGuestEditors.h"

#include "shell/controls/ControlIcons.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

namespace modGuestEditors {

namespace {

// The default button and Cancel, in the platform's order.
QDialogButtonBox* AcceptCancelButtons(QDialog* dialog, QPushButton* accept, const QString& name,
                                      const std::function<void()>& onAccept) {
    auto* buttons = qobject_cast<QDialogButtonBox*>(accept->parentWidget());
    accept->setObjectName(name);
    accept->setDefault(true);
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    QObject::connect(accept, &QPushButton::clicked, dialog, onAccept);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    return buttons;
}

} // namespace

QDialogButtonBox* OkCancelButtons(QDialog* dialog, const std::function<void()>& ok) {
    auto* buttons = new QDialogButtonBox(dialog);
    return AcceptCancelButtons(dialog, buttons->addButton(QDialogButtonBox::Ok), QStringLiteral("cmdOK"), ok);
}

namespace {

const QColor kPaper(0xfb, 0xf8, 0xf1);
const QColor kInk(0x5a, 0x4a, 0x6e);
const QColor kEnvelope(0xe9, 0xdf, 0xcb);

void DrawArrow(QPainter& p, const QRectF& r, const QColor& color, bool up) {
    QPen pen(color, r.width() / 9.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(pen);
    const double cx = r.center().x();
    const double top = r.top() + r.height() * 0.18, bottom = r.bottom() - r.height() * 0.18;
    const double wing = r.width() * 0.28;
    if (up) {
        p.drawLine(QPointF(cx, bottom), QPointF(cx, top));
        p.drawPolyline(
            QPolygonF({QPointF(cx - wing, top + wing), QPointF(cx, top), QPointF(cx + wing, top + wing)}));
    } else {
        p.drawLine(QPointF(cx, top), QPointF(cx, bottom));
        p.drawPolyline(QPolygonF(
            {QPointF(cx - wing, bottom - wing), QPointF(cx, bottom), QPointF(cx + wing, bottom - wing)}));
    }
}

} // namespace

QIcon ArrowIcon(bool up) {
    return ControlIcons::Drawn(
        [up](QPainter& p, const QRectF& r, const QColor& c) { DrawArrow(p, r, c, up); });
}

QLabel* ArrowLabel(QWidget* parent, bool down) {
    auto* label = new QLabel(parent);
    const int side = label->fontMetrics().height();
    label->setPixmap(ControlIcons::Drawn([down](QPainter& p, const QRectF& r, const QColor&) {
                         DrawArrow(p, r, QColor(0x9a, 0x8a, 0xae), !down);
                     }).pixmap(QSize(side, side), label->devicePixelRatioF()));
    return label;
}

QIcon CardIcon() {
    return ControlIcons::Drawn(
        [](QPainter& p, const QRectF& r, const QColor&) {
            const QRectF card =
                r.adjusted(r.width() * 0.06, r.height() * 0.18, -r.width() * 0.06, -r.height() * 0.18);
            p.setPen(QPen(kInk, r.width() / 20.0));
            p.setBrush(kPaper);
            p.drawRoundedRect(card, r.width() * 0.06, r.width() * 0.06);
            QFont font;
            font.setPixelSize(qMax(6, int(card.height() * 0.62)));
            font.setBold(true);
            p.setFont(font);
            p.drawText(card, Qt::AlignCenter, QStringLiteral("#"));
        },
        kInk);
}

QPixmap ReplyPicture(bool open, int height, qreal devicePixelRatio) {
    const QSizeF size(height * 1.45, height);
    QPixmap pixmap((size * devicePixelRatio).toSize());
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const double w = size.width(), h = size.height();
    const QRectF body(w * 0.04, h * 0.36, w * 0.92, h * 0.60);
    const QPen pen(kInk, qMax(1.0, h / 40.0));
    if (open) {
        // The flap stands open and the card comes out, ticked.
        QPainterPath flap;
        flap.moveTo(body.topLeft());
        flap.lineTo(QPointF(w / 2, h * 0.04));
        flap.lineTo(body.topRight());
        p.setPen(pen);
        p.setBrush(kEnvelope.darker(108));
        p.drawPath(flap);
        const QRectF card(w * 0.16, h * 0.14, w * 0.68, h * 0.56);
        p.setBrush(kPaper);
        p.drawRect(card);
        QPen tick(QColor(0x2e, 0x8b, 0x57), h / 14.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        p.setPen(tick);
        p.drawPolyline(
            QPolygonF({QPointF(card.left() + card.width() * 0.34, card.top() + card.height() * 0.45),
                       QPointF(card.left() + card.width() * 0.46, card.top() + card.height() * 0.62),
                       QPointF(card.left() + card.width() * 0.68, card.top() + card.height() * 0.26)}));
    }
    p.setPen(pen);
    p.setBrush(kEnvelope);
    p.drawRect(body);
    QPainterPath folds;
    folds.moveTo(body.bottomLeft());
    folds.lineTo(QPointF(w / 2, body.top() + body.height() * 0.52));
    folds.lineTo(body.bottomRight());
    p.setBrush(Qt::NoBrush);
    p.drawPath(folds);
    if (!open) {
        QPainterPath flap;
        flap.moveTo(body.topLeft());
        flap.lineTo(QPointF(w / 2, body.top() + body.height() * 0.58));
        flap.lineTo(body.topRight());
        p.setBrush(kEnvelope.darker(104));
        p.drawPath(flap);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0xb0, 0x3a, 0x4e)); // the seal
        const double seal = h * 0.16;
        p.drawEllipse(QPointF(w / 2, body.top() + body.height() * 0.56), seal / 2, seal / 2);
    }
    return pixmap;
}

} // namespace modGuestEditors
