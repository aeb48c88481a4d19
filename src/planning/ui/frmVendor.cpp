#include "planning/ui/frmVendor.h"

#include "core/clsDICT.h"
#include "planning/ui/usrAssignedFiles.h"
#include "platform/clsShell.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QLineEdit* Line(const QString& name, QWidget* parent) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    return edit;
}

usrHyperlink* LinkBeside(const QString& caption, const QString& name, QWidget* parent) {
    auto* link = new usrHyperlink(caption, parent);
    link->setObjectName(name);
    return link;
}

// A field with its link at the right.
QWidget* FieldWithLink(QLineEdit* field, usrHyperlink* link) {
    auto* row = new QWidget(field->parentWidget());
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field, 1);
    layout->addWidget(link);
    return row;
}

} // namespace

QString frmVendor::Details(const clsVENDOR& vendor) {
    QStringList lines;
    const auto add = [&lines](const QString& prefix, const QString& value) {
        if (!value.trimmed().isEmpty())
            lines << prefix + value.trimmed();
    };
    add(QString(), QString(vendor.ADDRESS_TX).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    add(QString(), vendor.CONTACT_NM);
    add(QStringLiteral("p. "), vendor.PHONE_TX);
    add(QStringLiteral("f. "), vendor.FAX_TX);
    add(QStringLiteral("e. "), vendor.EMAIL_TX);
    return lines.join(QLatin1Char('\n'));
}

QString frmVendor::FilesCaption(int count) {
    return QStringLiteral("Files (") + QString::number(count) + QLatin1Char(')');
}

frmVendor::frmVendor(const QString& vendorId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmVendor"));
    SetRecordNoun(QStringLiteral("Vendor"));
    SetAdding(vendorId.isEmpty());
    if (!vendorId.isEmpty())
        RecordIO::Attempt([&] { mVendor.OpenRecord(vendorId); });
    BuildControls();
    LoadVendor();
    MarkClean();
    RefreshEnabling();
    resize(720, 560);
    txtVENDOR_NM->setFocus();
}

QWidget* frmVendor::BuildFields() {
    auto* fields = new QWidget(this);
    txtVENDOR_NM = Line(QStringLiteral("txtVENDOR_NM"), fields);
    usrVENDOR_CATEGORY_DICT = new usrDropdown(fields);
    usrVENDOR_CATEGORY_DICT->setObjectName(QStringLiteral("usrVENDOR_CATEGORY_DICT"));
    usrVENDOR_CATEGORY_DICT->PopulateX(clsDICT::VendorCategory);
    txtADDRESS_TX = new QPlainTextEdit(fields);
    txtADDRESS_TX->setObjectName(QStringLiteral("txtADDRESS_TX"));
    txtADDRESS_TX->setTabChangesFocus(true);
    txtADDRESS_TX->setFixedHeight(70);
    txtCONTACT_NM = Line(QStringLiteral("txtCONTACT_NM"), fields);
    txtPHONE_TX = Line(QStringLiteral("txtPHONE_TX"), fields);
    txtFAX_TX = Line(QStringLiteral("txtFAX_TX"), fields);
    txtEMAIL_TX = Line(QStringLiteral("txtEMAIL_TX"), fields);
    txtWEB_SITE_TX = Line(QStringLiteral("txtWEB_SITE_TX"), fields);
    picMapIt =
        LinkBeside(QStringLiteral("Map Location with Google Maps"), QStringLiteral("picMapIt"), fields);
    picEmail = LinkBeside(QStringLiteral("Write"), QStringLiteral("picEmail"), fields);
    picWeb = LinkBeside(QStringLiteral("Visit"), QStringLiteral("picWeb"), fields);

    QFormLayout* form = modLayout::Form(fields);
    form->setContentsMargins(0, 0, 0, 0);
    modLayout::CaptionedRow(form, QStringLiteral("&Vendor"), txtVENDOR_NM);
    modLayout::CaptionedRow(form, QStringLiteral("&Category"), usrVENDOR_CATEGORY_DICT);
    modLayout::CaptionedRow(form, QStringLiteral("&Address"), txtADDRESS_TX);
    form->addRow(QString(), picMapIt);
    modLayout::CaptionedRow(form, QStringLiteral("C&ontact"), txtCONTACT_NM);
    modLayout::CaptionedRow(form, QStringLiteral("&Phone"), txtPHONE_TX);
    modLayout::CaptionedRow(form, QStringLiteral("&Fax"), txtFAX_TX);
    modLayout::CaptionedRow(form, QStringLiteral("&E-mail"), FieldWithLink(txtEMAIL_TX, picEmail),
                            txtEMAIL_TX);
    modLayout::CaptionedRow(form, QStringLiteral("&Web Site"), FieldWithLink(txtWEB_SITE_TX, picWeb),
                            txtWEB_SITE_TX);
    return fields;
}

void frmVendor::BuildControls() {
    lblVENDOR_NM = modLayout::HeaderLabel(this);
    lblVENDOR_NM->setObjectName(QStringLiteral("lblVENDOR_NM"));
    lblVENDOR_DETAILS = new QLabel(this);
    lblVENDOR_DETAILS->setObjectName(QStringLiteral("lblVENDOR_DETAILS"));
    lblVENDOR_DETAILS->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lblVENDOR_DETAILS->setWordWrap(true);
    txtNOTES_TX = new QPlainTextEdit(this);
    txtNOTES_TX->setObjectName(QStringLiteral("txtNOTES_TX"));
    txtNOTES_TX->setTabChangesFocus(true);
    usrFiles = new usrAssignedFiles(this);
    usrFiles->setObjectName(QStringLiteral("usrFiles"));
    tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("tabs"));
    tabs->addTab(txtNOTES_TX, QStringLiteral("Notes"));
    auto* filesPage = new QWidget(this);
    auto* filesLayout = new QVBoxLayout(filesPage);
    filesLayout->addWidget(usrFiles, 1);
    auto* note = new QLabel(QStringLiteral("The paths are kept joined by \";\", so a path that holds \";\" "
                                           "is listed as two files."),
                            filesPage);
    note->setObjectName(QStringLiteral("lblFilesNote"));
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    filesLayout->addWidget(note);
    tabs->addTab(filesPage, FilesCaption(0));

    auto* summary = new QVBoxLayout;
    summary->addWidget(lblVENDOR_NM);
    summary->addWidget(lblVENDOR_DETAILS, 1);
    auto* top = new QHBoxLayout;
    top->addWidget(BuildFields(), 3);
    top->addLayout(summary, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(tabs, 1);
    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveAndNew");
    layout->addWidget(ButtonRow(names));

    for (QLineEdit* edit : {txtVENDOR_NM, txtCONTACT_NM, txtPHONE_TX, txtFAX_TX, txtEMAIL_TX, txtWEB_SITE_TX})
        connect(edit, &QLineEdit::textChanged, this, &frmVendor::ShowSummary);
    for (QPlainTextEdit* edit : {txtADDRESS_TX, txtNOTES_TX})
        connect(edit, &QPlainTextEdit::textChanged, this, &frmVendor::ShowSummary);
    connect(usrVENDOR_CATEGORY_DICT, &usrDropdown::Click, this, &frmVendor::RefreshEnabling);
    connect(usrFiles, &usrAssignedFiles::Changed, this, [this] {
        tabs->setTabText(1, FilesCaption(usrFiles->Count()));
        RefreshEnabling();
    });
    connect(picMapIt, &usrHyperlink::Click, this, [this] { Typed().MapIt(); });
    connect(picEmail, &usrHyperlink::Click, this,
            [this] { gShell().OpenDocument(QStringLiteral("mailto:") + txtEMAIL_TX->text().trimmed()); });
    connect(picWeb, &usrHyperlink::Click, this,
            [this] { gShell().OpenDocument(txtWEB_SITE_TX->text().trimmed()); });
}

void frmVendor::LoadVendor() {
    txtVENDOR_NM->setText(mVendor.VENDOR_NM);
    usrVENDOR_CATEGORY_DICT->setCode(mVendor.VENDOR_CATEGORY_ID);
    txtADDRESS_TX->setPlainText(
        QString(mVendor.ADDRESS_TX).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    txtCONTACT_NM->setText(mVendor.CONTACT_NM);
    txtPHONE_TX->setText(mVendor.PHONE_TX);
    txtFAX_TX->setText(mVendor.FAX_TX);
    txtEMAIL_TX->setText(mVendor.EMAIL_TX);
    txtWEB_SITE_TX->setText(mVendor.WEB_SITE_TX);
    txtNOTES_TX->setPlainText(mVendor.NOTES_TX);
    usrFiles->SetPaths(mVendor.FILE_PATH_TX);
    tabs->setTabText(1, FilesCaption(usrFiles->Count()));
    ShowSummary();
}

// What the fields hold now, as the record would be saved.
clsVENDOR frmVendor::Typed() const {
    clsVENDOR vendor = mVendor;
    vendor.VENDOR_NM = txtVENDOR_NM->text().trimmed();
    vendor.VENDOR_CATEGORY_ID = usrVENDOR_CATEGORY_DICT->Code();
    vendor.ADDRESS_TX =
        txtADDRESS_TX->toPlainText().trimmed().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    vendor.CONTACT_NM = txtCONTACT_NM->text().trimmed();
    vendor.PHONE_TX = txtPHONE_TX->text().trimmed();
    vendor.FAX_TX = txtFAX_TX->text().trimmed();
    vendor.EMAIL_TX = txtEMAIL_TX->text().trimmed();
    vendor.WEB_SITE_TX = txtWEB_SITE_TX->text().trimmed();
    vendor.NOTES_TX = txtNOTES_TX->toPlainText();
    vendor.FILE_PATH_TX = usrFiles->Paths();
    return vendor;
}

void frmVendor::ShowSummary() {
    const clsVENDOR vendor = Typed();
    lblVENDOR_NM->setText(vendor.VENDOR_NM.isEmpty() ? QStringLiteral("Vendor") : vendor.VENDOR_NM);
    lblVENDOR_DETAILS->setText(Details(vendor));
    picMapIt->setEnabled(!vendor.ADDRESS_TX.isEmpty());
    picEmail->setEnabled(vendor.EMAIL_TX.contains(QLatin1Char('@')));
    picWeb->setEnabled(!vendor.WEB_SITE_TX.isEmpty());
    RefreshEnabling();
}

QStringList frmVendor::Snapshot() const {
    const clsVENDOR v = Typed();
    return {v.VENDOR_NM, v.VENDOR_CATEGORY_ID, v.ADDRESS_TX,  v.CONTACT_NM, v.PHONE_TX,
            v.FAX_TX,    v.EMAIL_TX,           v.WEB_SITE_TX, v.NOTES_TX,   v.FILE_PATH_TX};
}

void frmVendor::RefreshEnabling() {
    const bool ready =
        IsDirty() && !txtVENDOR_NM->text().trimmed().isEmpty() && !usrVENDOR_CATEGORY_DICT->Code().isEmpty();
    SaveButton()->setEnabled(ready);
    SaveAndNewButton()->setEnabled(ready);
}

bool frmVendor::SaveRecord() {
    clsVENDOR vendor = Typed();
    if (!RecordIO::Attempt([&] { vendor.Save(IsAdding()); }))
        return false;
    mVendor = vendor;
    return true;
}

void frmVendor::StartNew() {
    const QString category = usrVENDOR_CATEGORY_DICT->Code();
    mVendor = clsVENDOR();
    mVendor.VENDOR_CATEGORY_ID = category;
    LoadVendor();
}
