#include "guests/ui/frmInviteTip.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QColor kPaper(0xfd, 0xfb, 0xf6);
const QColor kInk(0x4a, 0x3c, 0x5c);
const QColor kPencil(0x6d, 0x6d, 0x6d);
const QColor kAccent(0xc0, 0x39, 0x5a);

void DrawCard(QPainter& p, const QRectF& r) {
    p.setPen(QPen(QColor(0xc8, 0xbf, 0xae), 1.2));
    p.setBrush(kPaper);
    p.drawRoundedRect(r.translated(3, 4), 4, 4);
    p.setBrush(kPaper);
    p.drawRoundedRect(r, 4, 4);
}

void DrawFront(QPainter& p, const QRectF& r) {
    DrawCard(p, r);
    QFont font(QStringLiteral("serif"));
    font.setPixelSize(int(r.height() * 0.068));
    p.setFont(font);
    p.setPen(kInk);
    const double x = r.left() + r.width() * 0.06, w = r.width() * 0.88;
    const double line = r.height() * 0.13;
    double y = r.top() + r.height() * 0.12;
    p.drawText(QRectF(x, y, w, line), Qt::AlignCenter, QStringLiteral("The favour of a reply is requested"));
    y += line;
    p.drawText(QRectF(x, y, w, line), Qt::AlignCenter, QStringLiteral("by the first of May"));
    y += line * 1.5;
    p.drawText(QRectF(x, y, w * 0.1, line), Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("M"));
    p.drawLine(QPointF(x + w * 0.08, y + line * 0.9), QPointF(x + w, y + line * 0.9));
    y += line * 1.4;
    for (const QString& text :
         {QStringLiteral("accepts with pleasure"), QStringLiteral("declines with regret")}) {
        p.drawRect(QRectF(x + w * 0.12, y + line * 0.3, line * 0.5, line * 0.5));
        p.drawText(QRectF(x + w * 0.12 + line * 0.8, y, w, line), Qt::AlignLeft | Qt::AlignVCenter, text);
        y += line;
    }
}

void DrawBack(QPainter& p, const QRectF& r) {
    DrawCard(p, r);
    // The number, pencilled lightly in a corner.
    QFont hand(QStringLiteral("serif"));
    hand.setItalic(true);
    hand.setPixelSize(int(r.height() * 0.16));
    p.setFont(hand);
    p.setPen(kPencil);
    const QRectF number(r.right() - r.width() * 0.26, r.bottom() - r.height() * 0.3, r.width() * 0.2,
                        r.height() * 0.22);
    p.drawText(number, Qt::AlignCenter, QStringLiteral("17"));
    p.setPen(QPen(kAccent, 2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(number.adjusted(-4, -2, 4, 2));
    // The note that points at it.
    QFont note;
    note.setPixelSize(int(r.height() * 0.07));
    note.setBold(true);
    p.setFont(note);
    p.setPen(kAccent);
    const QRectF label(r.left() + r.width() * 0.08, r.top() + r.height() * 0.18, r.width() * 0.6,
                       r.height() * 0.3);
    p.drawText(label, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
               QStringLiteral("RSVP ID, written gently on the back"));
    QPainterPath arrow;
    const QPointF from(label.left() + label.width() * 0.55, label.top() + label.height() * 0.75);
    const QPointF to(number.left() - 6, number.center().y() - 2);
    arrow.moveTo(from);
    arrow.cubicTo(QPointF(from.x(), to.y()), QPointF(from.x(), to.y()), to);
    p.setPen(QPen(kAccent, 2, Qt::SolidLine, Qt::RoundCap));
    p.drawPath(arrow);
    p.drawLine(to, to + QPointF(-8, -5));
    p.drawLine(to, to + QPointF(-8, 5));
}

} // namespace

usrRSVPSample::usrRSVPSample(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picSample"));
    setMinimumSize(420, 190);
}

void usrRSVPSample::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const double gap = width() * 0.05;
    const double cardWidth = (width() - gap * 3) / 2;
    const double cardHeight = qMin(cardWidth * 0.7, height() - 34.0);
    const double top = 24;
    const QRectF front(gap, top, cardWidth, cardHeight);
    const QRectF back(gap * 2 + cardWidth, top, cardWidth, cardHeight);
    QFont caption = font();
    caption.setBold(true);
    p.setFont(caption);
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(QRectF(front.left(), 0, cardWidth, top - 4), Qt::AlignCenter, QStringLiteral("Front"));
    p.drawText(QRectF(back.left(), 0, cardWidth, top - 4), Qt::AlignCenter, QStringLiteral("Back"));
    DrawFront(p, front);
    DrawBack(p, back);
}

frmInviteTip::frmInviteTip(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmInviteTip"));
    setWindowTitle(QStringLiteral("Sample RSVP"));
    auto* text = new QLabel(QStringLiteral("If a reply comes back without a name, its RSVP ID tells you who "
                                           "responded."),
                            this);
    text->setObjectName(QStringLiteral("lblTip"));
    text->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new usrRSVPSample(this), 1);
    layout->addWidget(text);
    layout->addWidget(buttons);
    resize(620, 300);
}
