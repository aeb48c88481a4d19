#include "shell/modNotice.h"

#include "shell/mdiMain.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace modNotice {

QLabel* Picture(const QString& icon, QWidget* parent) {
    auto* picture = new QLabel(parent);
    picture->setPixmap(mdiMain::ShellIcon(icon).pixmap(QSize(kPictureSize, kPictureSize),
                                                       parent ? parent->devicePixelRatioF() : 1.0));
    picture->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    return picture;
}

QDialogButtonBox* Build(QDialog* dialog, QWidget* picture, const QString& heading, const QString& text) {
    auto* title = new QLabel(heading, dialog);
    title->setObjectName(QStringLiteral("lblHeading"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    title->setFont(font);
    auto* body = new QLabel(text, dialog);
    body->setObjectName(QStringLiteral("lblText"));
    body->setWordWrap(true);
    body->setMinimumWidth(320);
    body->setTextFormat(Qt::PlainText);

    auto* words = new QVBoxLayout;
    words->setSpacing(8);
    words->addWidget(title);
    words->addWidget(body);
    words->addStretch(1);
    auto* top = new QHBoxLayout;
    top->setSpacing(18);
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addLayout(words, 1);

    auto* buttons = new QDialogButtonBox(dialog);
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(20, 20, 20, 14);
    layout->setSpacing(16);
    layout->addLayout(top);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    return buttons;
}

} // namespace modNotice
