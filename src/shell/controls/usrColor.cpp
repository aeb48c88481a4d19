#include "shell/controls/usrColor.h"

#include "core/clsColor.h"
#include "shell/controls/ControlIcons.h"

#include <QColorDialog>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace {

usrColor::Chooser& CurrentChooser() {
    static usrColor::Chooser chooser;
    return chooser;
}

QColor PlatformChooser(const QColor& initial, QWidget* parent, const QString& title) {
    return QColorDialog::getColor(initial, parent, title);
}

constexpr int kMargin = 3;

} // namespace

usrColor::usrColor(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    UpdateToolTip();
}

void usrColor::setBackColor(const QColor& color) {
    mBackColor = color;
    update();
}

void usrColor::setCaption(const QString& caption) {
    mCaption = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

void usrColor::setFillColor(const QColor& color) {
    if (!color.isValid())
        return;
    mFillColor = color;
    UpdateToolTip();
    update();
}

QString usrColor::RTFColor() const {
    return clsColor(mFillColor.red(), mFillColor.green(), mFillColor.blue()).RTFColor();
}

void usrColor::UpdateToolTip() {
    const QString parts = QStringLiteral("R: %1 G: %2 B: %3")
                              .arg(mFillColor.red())
                              .arg(mFillColor.green())
                              .arg(mFillColor.blue());
    setToolTip(parts + QLatin1Char('\n') + tr("Click to change color."));
    setAccessibleDescription(parts);
}

bool usrColor::ChooseColor() {
    const Chooser& chooser = CurrentChooser() ? CurrentChooser() : Chooser(PlatformChooser);
    const QColor chosen = chooser(mFillColor, this, mCaption);
    if (!chosen.isValid())
        return false;
    setFillColor(chosen);
    emit ColorChanged(chosen);
    return true;
}

void usrColor::SetChooser(Chooser chooser) {
    CurrentChooser() = std::move(chooser);
}

// ---- Looks ----

QRect usrColor::SwatchRect() const {
    const int side = fontMetrics().height() + 2;
    return {kMargin, (height() - side) / 2, side * 3 / 2, side};
}

QSize usrColor::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int side = metrics.height() + 2;
    const int captionWidth =
        mCaption.isEmpty() ? 0 : metrics.averageCharWidth() + metrics.horizontalAdvance(mCaption);
    return {2 * kMargin + side * 3 / 2 + captionWidth + 2 * kMargin, side + 2 * kMargin};
}

void usrColor::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (mBackColor.isValid())
        painter.fillRect(rect(), mBackColor);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF swatch = QRectF(SwatchRect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(
        QPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Dark), 1));
    painter.setBrush(isEnabled() ? mFillColor : palette().color(QPalette::Disabled, QPalette::Button));
    painter.drawRoundedRect(swatch, 3, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);

    const QRect text(SwatchRect().right() + 1 + fontMetrics().averageCharWidth(), 0, width(), height());
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, mCaption);
    if (hasFocus())
        ControlIcons::PaintFocusFrame(painter, QRect(QPoint(0, 0), sizeHint()) & rect(), palette());
}

// ---- Input ----

void usrColor::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        ChooseColor();
    else
        QWidget::mouseReleaseEvent(event);
}

void usrColor::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        ChooseColor();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool usrColor::event(QEvent* event) {
    // The tool tip belongs to the swatch; the caption beside it has none.
    if (event->type() == QEvent::ToolTip && !SwatchRect().contains(static_cast<QHelpEvent*>(event)->pos())) {
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    return QWidget::event(event);
}
