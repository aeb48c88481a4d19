#include "reports/ui/usrLabel.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QPalette>

const QString usrLabel::AddressesMime = QStringLiteral("application/x-vowren-label-addresses");
const QString usrLabel::LabelMime = QStringLiteral("application/x-vowren-label");

usrLabel::usrLabel(int number, QWidget* parent) : QFrame(parent), mNumber(number) {
    setObjectName(QStringLiteral("usrLabel_%1").arg(number));
    setCaption(QString::number(number));
    setFrameShape(QFrame::StyledPanel);
    setAcceptDrops(true);
    setFocusPolicy(Qt::ClickFocus);
    setMinimumWidth(170);
}

void usrLabel::setCaption(const QString& caption) {
    mCaption = caption;
    update();
}

void usrLabel::setFULL_ADDRESS_TX(const QString& text) {
    mText = text;
    setToolTip(QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    update();
}

void usrLabel::setSelected(bool selected) {
    mSelected = selected;
    update();
}

int usrLabel::DraggedLabel(const QMimeData* mime) {
    return mime && mime->hasFormat(LabelMime) ? mime->data(LabelMime).toInt() : 0;
}

void usrLabel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QPalette& colors = palette();
    const QRect inside = contentsRect().adjusted(2, 1, -2, -1);
    if (mSelected || mDropTarget)
        painter.fillRect(inside, mDropTarget ? colors.color(QPalette::Highlight).lighter(170)
                                             : colors.color(QPalette::Highlight).lighter(140));
    QFont small = font();
    small.setPointSizeF(std::max(6.0, small.pointSizeF() - 2));
    painter.setFont(small);
    painter.setPen(colors.color(QPalette::PlaceholderText));
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop, mCaption);
    // The text keeps clear of the number, and a long address is cut at the label's edge, as on paper.
    const int clear = painter.fontMetrics().horizontalAdvance(QStringLiteral("30 "));
    const QRect text = inside.adjusted(clear, 0, -clear, 0);
    painter.setPen(colors.color(QPalette::WindowText));
    painter.setClipRect(text);
    painter.drawText(text, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     QString(mText).replace(QLatin1String("\r\n"), QLatin1String("\n")));
}

void usrLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        mPressedAt = event->position().toPoint();
        emit Click(mNumber);
    }
    QFrame::mousePressEvent(event);
}

void usrLabel::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton) || !IsFilled() ||
        (event->position().toPoint() - mPressedAt).manhattanLength() < QApplication::startDragDistance())
        return;
    auto* mime = new QMimeData;
    mime->setData(LabelMime, QByteArray::number(mNumber));
    mime->setText(mText);
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    drag->setPixmap(grab());
    drag->exec(Qt::MoveAction);
}

void usrLabel::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) && IsFilled()) {
        emit ClearRequested(mNumber);
        return;
    }
    QFrame::keyPressEvent(event);
}

void usrLabel::dragEnterEvent(QDragEnterEvent* event) {
    const int from = DraggedLabel(event->mimeData());
    if (!event->mimeData()->hasFormat(AddressesMime) && (from == 0 || from == mNumber))
        return;
    mDropTarget = true;
    update();
    event->acceptProposedAction();
}

void usrLabel::dragLeaveEvent(QDragLeaveEvent* event) {
    mDropTarget = false;
    update();
    QFrame::dragLeaveEvent(event);
}

void usrLabel::dropEvent(QDropEvent* event) {
    mDropTarget = false;
    update();
    const int from = DraggedLabel(event->mimeData());
    if (from > 0 && from != mNumber)
        emit LabelDropped(from, mNumber);
    else if (event->mimeData()->hasFormat(AddressesMime))
        emit AddressesDropped(mNumber);
    else
        return;
    event->acceptProposedAction();
}
