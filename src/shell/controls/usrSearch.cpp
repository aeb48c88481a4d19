#include "shell/controls/usrSearch.h"

#include "shell/controls/ControlIcons.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

namespace {
const char* const kPrompt = "Search";
}

usrSearch::usrSearch(QWidget* parent) : QWidget(parent) {
    mText = new QLineEdit(this);
    mText->setObjectName(QStringLiteral("txtSearch"));
    mText->setAccessibleName(tr(kPrompt));
    mText->addAction(ControlIcons::Magnifier(palette().color(QPalette::PlaceholderText)),
                     QLineEdit::LeadingPosition);
    mText->installEventFilter(this);

    mClose = new QToolButton(mText);
    mClose->setObjectName(QStringLiteral("picClose"));
    mClose->setIcon(ControlIcons::Cross());
    mClose->setToolTip(tr("Clear the search (Esc)"));
    mClose->setCursor(Qt::ArrowCursor);
    mClose->setAutoRaise(true);
    mClose->setFocusPolicy(Qt::NoFocus); // Escape does the same from the keyboard
    mClose->hide();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mText);
    setFocusProxy(mText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    ShowPrompt(true);

    connect(mText, &QLineEdit::textChanged, this, [this](const QString& text) {
        mClose->setVisible(!text.isEmpty());
        emit Search(text);
    });
    connect(mClose, &QToolButton::clicked, this, [this] {
        mText->clear();
        mText->setFocus();
    });
}

QString usrSearch::Text() const {
    return mText->text();
}

void usrSearch::setText(const QString& text) {
    mText->setText(text);
}

void usrSearch::Reset() {
    const QSignalBlocker blocker(mText);
    mText->clear();
    mClose->hide();
}

void usrSearch::SetFocusEx() {
    mText->setFocus(Qt::ShortcutFocusReason);
    mText->selectAll();
}

void usrSearch::ShowPrompt(bool show) {
    mText->setPlaceholderText(show ? tr(kPrompt) : QString());
}

void usrSearch::PlaceClearButton() {
    const int side = mText->height() - 2 * mText->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    mClose->setIconSize(QSize(side * 2 / 3, side * 2 / 3));
    mClose->setGeometry(mText->width() - side - mText->style()->pixelMetric(QStyle::PM_DefaultFrameWidth),
                        (mText->height() - side) / 2, side, side);
    mText->setTextMargins(0, 0, side, 0);
}

bool usrSearch::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mText) {
        switch (event->type()) {
        case QEvent::Resize:
            PlaceClearButton();
            break;
        case QEvent::FocusIn:
            ShowPrompt(false);
            break;
        case QEvent::FocusOut:
            ShowPrompt(true);
            break;
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && !mText->text().isEmpty()) {
                mText->clear();
                return true;
            }
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}
