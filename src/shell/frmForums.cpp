#include "shell/frmForums.h"

#include "core/clsApp.h"
#include "platform/clsShell.h"
#include "shell/mdiMain.h"
#include "shell/modNotice.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QToolButton>

frmForums::frmForums(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmForums"));
    setWindowTitle(QStringLiteral("Quill Software Forums"));
    auto* picture = new QToolButton(this);
    picture->setObjectName(QStringLiteral("imgForums"));
    picture->setIcon(mdiMain::ShellIcon(QStringLiteral("forums")));
    picture->setIconSize(QSize(modNotice::kPictureSize, modNotice::kPictureSize));
    picture->setAutoRaise(true);
    picture->setCursor(Qt::PointingHandCursor);
    picture->setToolTip(QStringLiteral("Visit the forums"));
    QDialogButtonBox* buttons = modNotice::Build(
        this, picture, QStringLiteral("Join the Quill Software Forums"),
        QStringLiteral(
            "Couples planning their weddings with Vowren meet in the forums: ask a question, share an "
            "idea for the seating or the budget, and hear what worked for others. Click the picture to "
            "visit them."));
    QPushButton* close = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(picture, &QToolButton::clicked, this, [this] {
        gShell().OpenDocument(gApp().ForumsURL());
        accept();
    });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}
