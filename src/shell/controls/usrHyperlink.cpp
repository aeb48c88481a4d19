#include "shell/controls/usrHyperlink.h"

#include "core/clsColor.h"
#include "shell/controls/ControlIcons.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <cmath>

namespace {

constexpr int kFocusMargin = 2;

QColor ToQColor(const clsColor& c) {
    return QColor(c.RedPart(), c.GreenPart(), c.BluePart());
}

bool IsDark(const QColor& color) {
    return color.lightness() < 128;
}

} // namespace

usrHyperlink::usrHyperlink(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    Relayout();
}

usrHyperlink::usrHyperlink(const QString& caption, QWidget* parent) : usrHyperlink(parent) {
    setCaption(caption);
}

// ---- Properties ----

void usrHyperlink::setAlwaysUnderline(bool always) {
    mAlwaysUnderline = always;
    update();
}

void usrHyperlink::setAutosize(bool autosize) {
    mAutosize = autosize;
    Relayout();
}

void usrHyperlink::setBackColor(const QColor& color) {
    mBackColor = color;
    update();
}

void usrHyperlink::setCaption(const QString& caption) {
    mCaption = caption;
    setAccessibleName(caption);
    Relayout();
}

void usrHyperlink::setFontBold(bool bold) {
    QFont f = font();
    f.setBold(bold);
    setLinkFont(f);
}

void usrHyperlink::setFontSize(double points) {
    if (points <= 0)
        return;
    QFont f = font();
    f.setPointSizeF(points);
    setLinkFont(f);
}

void usrHyperlink::setLinkFont(const QFont& f) {
    setFont(f);
    Relayout();
}

QColor usrHyperlink::ForeColor() const {
    if (mForeColor.isValid())
        return mForeColor;
    if (IsDark(palette().color(QPalette::Window)))
        return palette().color(QPalette::Link);
    return ToQColor(clsColor::Hyperlink());
}

void usrHyperlink::setForeColor(const QColor& color) {
    mForeColor = color;
    update();
}

void usrHyperlink::setIndentCaptionLeft(int pixels) {
    mIndentCaptionLeft = pixels;
    Relayout();
}

void usrHyperlink::setIndentCaptionTop(int pixels) {
    mIndentCaptionTop = pixels;
    Relayout();
}

void usrHyperlink::setIndentIconLeft(int pixels) {
    mIndentIconLeft = pixels;
    Relayout();
}

void usrHyperlink::setIndentIconTop(int pixels) {
    mIndentIconTop = pixels;
    Relayout();
}

void usrHyperlink::setPicture(const QIcon& picture) {
    mPicture = picture;
    Relayout();
}

int usrHyperlink::Index() const {
    if (mIndex >= 0)
        return mIndex;
    const QString name = objectName();
    const qsizetype underscore = name.lastIndexOf(QLatin1Char('_'));
    bool ok = false;
    const int index = underscore < 0 ? 0 : name.mid(underscore + 1).toInt(&ok);
    return ok ? index : 0;
}

// ---- Geometry ----

int usrHyperlink::IconSide() const {
    return mPicture.isNull() ? 0 : qMax(16, fontMetrics().height());
}

QRect usrHyperlink::IconRect() const {
    const int side = IconSide();
    return {kFocusMargin + mIndentIconLeft, (height() - side) / 2 + mIndentIconTop, side, side};
}

int usrHyperlink::CaptionWidth() const {
    return static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(mCaption)));
}

QRect usrHyperlink::CaptionRect() const {
    const QFontMetrics metrics = fontMetrics();
    const int gap = mPicture.isNull() ? 0 : IconSide() / 3;
    const int left = (mPicture.isNull() ? kFocusMargin : IconRect().right() + 1 + gap) + mIndentCaptionLeft;
    const int textWidth = qMin(CaptionWidth(), width() - left - kFocusMargin);
    return {left, (height() - metrics.height()) / 2 + mIndentCaptionTop, qMax(0, textWidth),
            metrics.height()};
}

QSize usrHyperlink::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int side = IconSide();
    const int iconPart = side > 0 ? mIndentIconLeft + side + side / 3 : 0;
    const int width = 2 * kFocusMargin + iconPart + mIndentCaptionLeft + CaptionWidth();
    const int height = qMax(side + qMax(0, mIndentIconTop), metrics.height() + qMax(0, mIndentCaptionTop));
    return {width, height + 2 * kFocusMargin};
}

QSize usrHyperlink::minimumSizeHint() const {
    return mAutosize ? sizeHint() : QSize(IconSide() + 2 * kFocusMargin, sizeHint().height());
}

void usrHyperlink::Relayout() {
    setSizePolicy(mAutosize ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Fixed);
    updateGeometry();
    if (mAutosize && !(parentWidget() && parentWidget()->layout()))
        resize(usrHyperlink::sizeHint());
    update();
}

// ---- Painting ----

void usrHyperlink::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (mBackColor.isValid())
        painter.fillRect(rect(), mBackColor);
    if (!mPicture.isNull()) {
        const QIcon::Mode mode = !isEnabled() ? QIcon::Disabled : (mHovered ? QIcon::Active : QIcon::Normal);
        mPicture.paint(&painter, IconRect(), Qt::AlignCenter, mode);
    }
    QFont f = font();
    f.setUnderline(isEnabled() && (mAlwaysUnderline || mHovered || hasFocus()));
    painter.setFont(f);
    painter.setPen(isEnabled() ? ForeColor() : ToQColor(clsColor::HyperlinkDisabled()));
    const QRect captionRect = CaptionRect();
    painter.drawText(captionRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     captionRect.width() >= CaptionWidth()
                         ? mCaption
                         : QFontMetrics(f).elidedText(mCaption, Qt::ElideRight, captionRect.width()));
    if (hasFocus()) {
        QRect content = captionRect.adjusted(-kFocusMargin, -kFocusMargin, kFocusMargin, kFocusMargin);
        if (!mPicture.isNull())
            content |= IconRect().adjusted(-kFocusMargin, -kFocusMargin, kFocusMargin, kFocusMargin);
        ControlIcons::PaintFocusFrame(painter, content & rect(), palette());
    }
}

// ---- Input ----

void usrHyperlink::Activate() {
    if (isEnabled())
        emit Click(Index());
}

void usrHyperlink::mousePressEvent(QMouseEvent* event) {
    mPressed = event->button() == Qt::LeftButton;
    QWidget::mousePressEvent(event);
}

void usrHyperlink::mouseReleaseEvent(QMouseEvent* event) {
    const bool click =
        mPressed && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint());
    mPressed = false;
    if (click)
        Activate();
    else
        QWidget::mouseReleaseEvent(event);
}

void usrHyperlink::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        Activate();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void usrHyperlink::enterEvent(QEnterEvent* event) {
    mHovered = true;
    update();
    QWidget::enterEvent(event);
}

void usrHyperlink::leaveEvent(QEvent* event) {
    mHovered = false;
    update();
    QWidget::leaveEvent(event);
}

void usrHyperlink::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Relayout();
    if (event->type() == QEvent::EnabledChange)
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QWidget::changeEvent(event);
}
