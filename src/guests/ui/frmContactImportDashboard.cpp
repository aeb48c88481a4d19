#include "guests/ui/frmContactImportDashboard.h"

#include "core/RecordIO.h"
#include "guests/clsContactImport.h"
#include "guests/ui/frmContactImport.h"
#include "guests/ui/frmContactImportCSV.h"
#include "platform/clsShell.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrHyperlink.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

frmContactImportDashboard::FileChooser& Chooser() {
    static frmContactImportDashboard::FileChooser chooser;
    return chooser;
}

QRadioButton* Route(int index, const QString& caption, const QString& text, QWidget* parent,
                    QVBoxLayout* layout) {
    auto* option = new QRadioButton(caption, parent);
    option->setObjectName(QStringLiteral("opt_%1").arg(index));
    QFont bold = option->font();
    bold.setBold(true);
    option->setFont(bold);
    auto* label = new QLabel(text, parent);
    label->setObjectName(QStringLiteral("lbl_%1").arg(index));
    label->setWordWrap(true);
    label->setIndent(24);
    layout->addWidget(option);
    layout->addWidget(label);
    layout->addSpacing(8);
    return option;
}

} // namespace

frmContactImportDashboard::frmContactImportDashboard(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmContactImportDashboard"));
    setWindowTitle(QStringLiteral("Import Contacts"));
    auto* layout = new QVBoxLayout(this);
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(QStringLiteral("Import Contacts"));
    layout->addWidget(header);
    mCsv = Route(0, QStringLiteral("Import from CSV file"),
                 QStringLiteral("Load contacts from a comma separated values file"), this, layout);
    Route(1, QStringLiteral("Import vCard Contacts"),
          QStringLiteral(
              "Build your Vowren Contact list quickly by importing the vCard file that Google, Apple, "
              "Outlook or Thunderbird exports"),
          this, layout);
    mCsv->setChecked(true);

    auto* templateLink = new usrHyperlink(QStringLiteral("Open Template"), this);
    templateLink->setObjectName(QStringLiteral("linkTemplate"));
    connect(templateLink, &usrHyperlink::Click, this, &frmContactImportDashboard::OpenTemplate);
    layout->addWidget(templateLink);
    layout->addStretch();

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* next = buttons->addButton(QStringLiteral("Continue"), QDialogButtonBox::AcceptRole);
    next->setObjectName(QStringLiteral("cmdContinue"));
    next->setDefault(true);
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(next, &QPushButton::clicked, this, &frmContactImportDashboard::Continue);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(460, 300);
}

QString frmContactImportDashboard::ChooseFile(QWidget* parent, const QString& caption,
                                              const QString& filter) {
    if (Chooser())
        return Chooser()(parent, caption, filter);
    return QFileDialog::getOpenFileName(parent, caption, QString(), filter);
}

void frmContactImportDashboard::SetFileChooser(FileChooser chooser) {
    Chooser() = std::move(chooser);
}

void frmContactImportDashboard::OpenTemplate() {
    const QString path = RecordIO::Read([] { return clsContactImport::TemplateFile(); });
    if (!path.isEmpty())
        gShell().OpenDocument(path);
}

bool frmContactImportDashboard::Continue() {
    if (!(mCsv->isChecked() ? ContinueWithCSV() : ContinueWithVCard()))
        return false;
    emit Imported();
    accept();
    return true;
}

bool frmContactImportDashboard::ContinueWithCSV() {
    frmContactImportCSV mapping(this);
    if (mapping.exec() != QDialog::Accepted)
        return false;
    return Preview(mapping.Table(), true);
}

bool frmContactImportDashboard::ContinueWithVCard() {
    const QString file = ChooseFile(this, QStringLiteral("Open vCard File"),
                                    QStringLiteral("vCard files (*.vcf *.vcard);;All files (*)"));
    if (file.isEmpty())
        return false;
    clsImportTable table;
    if (!RecordIO::Attempt([&] { table = clsContactImport::ReadFile(file, QChar()); }))
        return false;
    return Preview(table, false);
}

bool frmContactImportDashboard::Preview(const clsImportTable& table, bool csvRoute) {
    frmContactImport preview(this);
    if (!preview.Load(table, csvRoute))
        return false;
    return preview.exec() == QDialog::Accepted;
}
