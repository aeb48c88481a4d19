#include "guests/ui/frmContactEmail.h"

#include "platform/clsShell.h"
#include "shell/controls/modLayout.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmContactEmail::frmContactEmail(int selectedCount, const QString& addresses, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmContactEmail"));
    const QString heading =
        QStringLiteral("E-mail contacts (") + QString::number(selectedCount) + QLatin1Char(')');
    setWindowTitle(heading);
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(heading);

    mList = new QPlainTextEdit(addresses, this);
    mList->setObjectName(QStringLiteral("txt"));
    mList->setTabChangesFocus(true);
    mList->setPlaceholderText(QStringLiteral("None of the selected contacts has an e-mail address."));
    mList->setMinimumSize(mList->fontMetrics().averageCharWidth() * 56,
                          mList->fontMetrics().lineSpacing() * 6);
    auto* listLabel = new QLabel(QStringLiteral("&Addresses, separated by semicolons:"), this);
    listLabel->setBuddy(mList);

    mCopied = new QLabel(this);
    mCopied->setObjectName(QStringLiteral("lblCopied"));

    auto* copy = new QPushButton(QStringLiteral("&Copy Addresses"), this);
    copy->setObjectName(QStringLiteral("cmdCopy"));
    auto* email = new QPushButton(QStringLiteral("New &E-mail Message"), this);
    email->setObjectName(QStringLiteral("cmdEmail"));
    email->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(copy, &QPushButton::clicked, this, &frmContactEmail::cmdCopy_Click);
    connect(email, &QPushButton::clicked, this, &frmContactEmail::cmdEmail_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(mCopied, 1);
    buttons->addWidget(copy);
    buttons->addWidget(email);
    buttons->addWidget(cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(listLabel);
    layout->addWidget(mList, 1);
    layout->addSpacing(4);
    layout->addLayout(buttons);
    email->setFocus();
}

QString frmContactEmail::AddressList(const QStringList& emails) {
    QString list;
    for (const QString& email : emails) {
        if (email.contains(QLatin1Char('@')))
            list += email + QLatin1Char(';');
    }
    return list;
}

QString frmContactEmail::Addresses() const {
    return mList->toPlainText();
}

void frmContactEmail::cmdCopy_Click() {
    QGuiApplication::clipboard()->setText(Addresses());
    mCopied->setText(QStringLiteral("Copied to the clipboard."));
}

void frmContactEmail::cmdEmail_Click() {
    gShell().OpenDocument(QStringLiteral("mailto:") + Addresses().simplified().remove(QLatin1Char(' ')));
    accept();
}
