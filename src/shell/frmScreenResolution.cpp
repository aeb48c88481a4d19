#include "shell/frmScreenResolution.h"

#include "shell/modNotice.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

frmScreenResolution::frmScreenResolution(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmScreenResolution"));
    setWindowTitle(QStringLiteral("Vowren"));
    QDialogButtonBox* buttons = modNotice::Build(
        this, modNotice::Picture(QStringLiteral("monitor"), this), QStringLiteral("Change screen resolution"),
        QStringLiteral("With a higher resolution, more information can be displayed on your monitor"));
    QPushButton* ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}
