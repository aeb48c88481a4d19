#include "shell/controls/usrHint.h"

#include "shell/controls/ControlIcons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace {

// The picture, drawn at whatever scale the screen has.
class HintPicture : public QWidget {
public:
    explicit HintPicture(QWidget* parent) : QWidget(parent), mIcon(ControlIcons::Information()) {
        const int side = fontMetrics().height();
        setFixedSize(side, side);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        mIcon.paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }

private:
    QIcon mIcon;
};

} // namespace

usrHint::usrHint(QWidget* parent) : QWidget(parent) {
    auto* picture = new HintPicture(this);
    picture->setObjectName(QStringLiteral("imgHint"));
    mCaption = new QLabel(this);
    mCaption->setObjectName(QStringLiteral("lblHint"));
    mCaption->setWordWrap(true);
    mCaption->setTextFormat(Qt::PlainText);
    mCaption->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* layout = new QHBoxLayout(this);
    const int margin = fontMetrics().averageCharWidth();
    layout->setContentsMargins(margin, margin / 2 + 1, margin, margin / 2 + 1);
    layout->setSpacing(margin);
    layout->addWidget(picture, 0, Qt::AlignTop);
    layout->addWidget(mCaption, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

usrHint::usrHint(const QString& caption, QWidget* parent) : usrHint(parent) {
    setCaption(caption);
}

QString usrHint::Caption() const {
    return mCaption->text();
}

void usrHint::setCaption(const QString& caption) {
    mCaption->setText(caption);
    setAccessibleName(caption);
}

void usrHint::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor tint = palette().color(QPalette::Highlight);
    tint.setAlphaF(0.10f);
    QColor edge = palette().color(QPalette::Highlight);
    edge.setAlphaF(0.35f);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}
