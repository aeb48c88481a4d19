#include "reports/ui/frmReportsFont.h"

#include "shell/controls/usrHyperlink.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Sizes a report can reasonably use; any other whole number may be typed.
const int kSizes[] = {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36};

// Puts the text in the list if it isn't there and selects it, so that a font this machine lacks
// (the reader of the report may have it) is kept rather than silently replaced.
void SelectText(QComboBox* combo, const QString& text) {
    int index = combo->findText(text, Qt::MatchFixedString);
    if (index < 0) {
        combo->insertItem(0, text);
        index = 0;
    }
    combo->setCurrentIndex(index);
}

} // namespace

frmReportsFont::frmReportsFont(const QString& fontName, const QString& fontSize, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmReportsFont"));
    setWindowTitle(QStringLiteral("Select Font"));

    cboFont = new QComboBox(this);
    cboFont->setObjectName(QStringLiteral("cboFont"));
    cboFont->addItems(QFontDatabase::families());
    cboFont->setMaxVisibleItems(20);
    SelectText(cboFont, fontName.isEmpty() ? QStringLiteral("Verdana") : fontName);

    cboFontSize = new QComboBox(this);
    cboFontSize->setObjectName(QStringLiteral("cboFontSize"));
    cboFontSize->setEditable(true);
    cboFontSize->setValidator(new QIntValidator(4, 96, cboFontSize));
    cboFontSize->setInsertPolicy(QComboBox::NoInsert);
    for (int size : kSizes)
        cboFontSize->addItem(QString::number(size));
    SelectText(cboFontSize, fontSize.isEmpty() ? QStringLiteral("9") : fontSize);

    lblExample = new QLabel(QStringLiteral("Sample"), this);
    lblExample->setObjectName(QStringLiteral("lblExample"));
    lblExample->setAlignment(Qt::AlignCenter);
    lblExample->setFrameShape(QFrame::StyledPanel);
    lblExample->setMinimumSize(260, 90);

    auto* buttons = new QDialogButtonBox(this);
    cmdOK = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdCancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Font:"), cboFont);
    form->addRow(QStringLiteral("&Size:"), cboFontSize);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(lblExample, 1);
    layout->addWidget(buttons);

    connect(cboFont, &QComboBox::currentTextChanged, this, &frmReportsFont::UpdateExample);
    connect(cboFontSize, &QComboBox::currentTextChanged, this, &frmReportsFont::UpdateExample);
    connect(cmdOK, &QPushButton::clicked, this, &frmReportsFont::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    UpdateExample();
}

QString frmReportsFont::FontName() const {
    return cboFont->currentText();
}

QString frmReportsFont::FontSize() const {
    return cboFontSize->currentText().trimmed();
}

void frmReportsFont::UpdateExample() {
    QFont font(FontName());
    const int size = FontSize().toInt();
    if (size > 0)
        font.setPointSize(size);
    lblExample->setFont(font);
    cmdOK->setEnabled(size > 0);
}

void frmReportsFont::cmdOK_Click() {
    if (FontSize().toInt() <= 0)
        return;
    emit FontChanged(FontName(), FontSize());
    accept();
}

void ShowFontLinks(usrHyperlink* fontLink, usrHyperlink* sizeLink, const QString& fontName,
                   const QString& fontSize) {
    QFont font(fontName);
    font.setPointSize(qBound(7, fontSize.toInt(), 16));
    fontLink->setLinkFont(font);
    fontLink->setCaption(fontName);
    sizeLink->setLinkFont(font);
    sizeLink->setCaption(fontSize);
}
