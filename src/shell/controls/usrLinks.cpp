#include "shell/controls/usrLinks.h"

#include "shell/controls/usrHyperlink.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QProgressBar>

usrLinks::usrLinks(QWidget* parent) : QWidget(parent) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 3);
    mTabs = new QHBoxLayout;
    mTabs->setSpacing(fontMetrics().averageCharWidth() * 3);
    layout->addLayout(mTabs);
    layout->addStretch(1);
    mProgress = new QProgressBar(this);
    mProgress->setObjectName(QStringLiteral("prgProgress"));
    mProgress->setRange(0, 100);
    mProgress->setValue(0);
    mProgress->setMaximumWidth(fontMetrics().averageCharWidth() * 28);
    mProgress->setVisible(false);
    layout->addWidget(mProgress);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

// ---- Tabs ----

void usrLinks::SetLinks(const QStringList& captions) {
    qDeleteAll(mLinks);
    mLinks.clear();
    mSelected = -1;
    for (const QString& caption : captions)
        AddLink(caption);
}

int usrLinks::AddLink(const QString& caption) {
    const int index = LinkCount();
    auto* link = new usrHyperlink(caption, this);
    link->setObjectName(QStringLiteral("link_%1").arg(index));
    link->setIndex(index);
    link->installEventFilter(this);
    connect(link, &usrHyperlink::Click, this, &usrLinks::OnLinkClicked);
    mTabs->addWidget(link);
    mLinks.append(link);
    StyleLinks();
    return index;
}

usrHyperlink* usrLinks::Link(int index) const {
    return index >= 0 && index < LinkCount() ? mLinks.at(index) : nullptr;
}

void usrLinks::OnLinkClicked(int index) {
    setSelectedIndex(index);
    emit Click(index);
}

void usrLinks::setSelectedIndex(int index) {
    mSelected = index >= 0 && index < LinkCount() ? index : -1;
    StyleLinks();
}

void usrLinks::setForeColor(const QColor& color) {
    mForeColor = color;
    StyleLinks();
}

// The chosen tab reads like a heading in the text colour, the others like links.
void usrLinks::StyleLinks() {
    for (int i = 0; i < LinkCount(); ++i) {
        usrHyperlink* link = mLinks.at(i);
        const bool chosen = i == mSelected;
        link->setFontBold(chosen);
        link->setForeColor(chosen ? palette().color(QPalette::WindowText) : mForeColor);
        link->setAccessibleDescription(chosen ? tr("selected") : QString());
    }
    update();
}

// ---- Progress ----

int usrLinks::ProgressMax() const {
    return mProgress->maximum();
}

void usrLinks::setProgressMax(int maximum) {
    mProgress->setRange(0, qMax(0, maximum));
}

int usrLinks::ProgressValue() const {
    return qMax(0, mProgress->value());
}

void usrLinks::setProgressValue(int value) {
    mProgress->setValue(qBound(0, value, ProgressMax()));
}

void usrLinks::setProgressVisible(bool visible) {
    mProgressVisible = visible;
    mProgress->setVisible(visible);
}

// ---- Looks and keys ----

void usrLinks::paintEvent(QPaintEvent*) {
    const usrHyperlink* chosen = Link(mSelected);
    if (!chosen)
        return;
    QPainter painter(this);
    const QRect under = chosen->geometry();
    painter.fillRect(QRect(under.left(), under.bottom() + 1, under.width(), 2),
                     palette().color(QPalette::Highlight));
}

bool usrLinks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int index = static_cast<int>(mLinks.indexOf(qobject_cast<usrHyperlink*>(watched)));
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int step = key == Qt::Key_Left ? -1 : (key == Qt::Key_Right ? 1 : 0);
        if (index >= 0 && step != 0) {
            if (usrHyperlink* next = Link(index + step))
                next->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
