#include "shell/frmFeatureTour.h"

#include "core/clsApp.h"
#include "platform/clsShell.h"
#include "shell/modNotice.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

frmFeatureTour::frmFeatureTour(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmFeatureTour"));
    setWindowTitle(QStringLiteral("Feature Tour"));
    QDialogButtonBox* buttons = modNotice::Build(
        this, modNotice::Picture(QStringLiteral("tour"), this), QStringLiteral("Welcome to Vowren"),
        QStringLiteral("New to Vowren? A short tour shows what each page does, from the guest list "
                       "to the seating chart, and how every list becomes a document to print."));
    QPushButton* take = buttons->addButton(QStringLiteral("&Take the Tour"), QDialogButtonBox::AcceptRole);
    take->setObjectName(QStringLiteral("cmdTakeTour"));
    take->setDefault(true);
    QPushButton* close = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(take, &QPushButton::clicked, this, [this] {
        gShell().OpenDocument(gApp().FeatureTourURL());
        accept();
    });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
}
