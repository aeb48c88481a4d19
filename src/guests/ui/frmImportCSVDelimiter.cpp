#include "guests/ui/frmImportCSVDelimiter.h"

#include "core/clsApp.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmImportCSVDelimiter::frmImportCSVDelimiter(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmImportCSVDelimiter"));
    setWindowTitle(QStringLiteral("CSV Delimiter"));
    auto* layout = new QVBoxLayout(this);
    auto* text = new QLabel(QStringLiteral("The character between the fields of your file:"), this);
    mDelimiter = new QComboBox(this);
    mDelimiter->setObjectName(QStringLiteral("cboDelimiter"));
    mDelimiter->addItem(QStringLiteral("Comma ( , )"), QStringLiteral(","));
    mDelimiter->addItem(QStringLiteral("Semicolon ( ; )"), QStringLiteral(";"));
    mDelimiter->addItem(QStringLiteral("Tab"), QStringLiteral("\t"));
    mDelimiter->setCurrentIndex(std::max(0, mDelimiter->findData(gApp().Delimiter())));

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* save = buttons->addButton(QStringLiteral("Save"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("cmdSave"));
    save->setDefault(true);
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(save, &QPushButton::clicked, this, &frmImportCSVDelimiter::Save);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(text);
    layout->addWidget(mDelimiter);
    layout->addWidget(buttons);
}

void frmImportCSVDelimiter::Save() {
    gApp().SetDelimiter(mDelimiter->currentData().toString());
    emit Refresh();
    accept();
}
