#include "shell/options/usrLabelProgramPanel.h"

#include "platform/clsLabelDesk.h"
#include "shell/controls/usrHint.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

usrLabelProgramPanel::usrLabelProgramPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picLabelProgram"));
    auto* intro = new QLabel(
        QStringLiteral("A label program of your own can print labels and tent cards on any sheet size. "
                       "When one is named here, \"Print Reports\" hands it the chosen list instead of "
                       "opening its own label sheet."),
        this);
    intro->setWordWrap(true);

    mFolder = new QLineEdit(this);
    mFolder->setObjectName(QStringLiteral("txtAppPath"));
    mFolder->setPlaceholderText(QStringLiteral("/opt/labels"));
    auto* browse = new QPushButton(QStringLiteral("Browse..."), this);
    browse->setObjectName(QStringLiteral("cmdBrowse"));
    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(mFolder, 1);
    folderRow->addWidget(browse);
    mExe = new QLineEdit(this);
    mExe->setObjectName(QStringLiteral("txtExeName"));
    mExe->setPlaceholderText(QStringLiteral("labeldesk"));
    auto* folderLabel = new QLabel(QStringLiteral("&Folder:"), this);
    folderLabel->setBuddy(mFolder);
    auto* exeLabel = new QLabel(QStringLiteral("&Program:"), this);
    exeLabel->setBuddy(mExe);
    auto* form = new QFormLayout;
    form->addRow(folderLabel, folderRow);
    form->addRow(exeLabel, mExe);

    mStatus = new QLabel(this);
    mStatus->setObjectName(QStringLiteral("lblStatus"));
    mStatus->setWordWrap(true);
    mStatus->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* clear = new QPushButton(QStringLiteral("Clear"), this);
    clear->setObjectName(QStringLiteral("cmdClear"));
    auto* hint = new usrHint(
        QStringLiteral("It is started with one argument: 1,section,filter,event (for example 1,6,3,2)."), this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(intro);
    layout->addSpacing(8);
    layout->addLayout(form);
    layout->addWidget(mStatus);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(clear);
    buttons->addStretch(1);
    layout->addLayout(buttons);
    layout->addSpacing(8);
    layout->addWidget(hint);
    layout->addStretch(1);

    connect(mFolder, &QLineEdit::editingFinished, this, &usrLabelProgramPanel::Store);
    connect(mExe, &QLineEdit::editingFinished, this, &usrLabelProgramPanel::Store);
    connect(browse, &QPushButton::clicked, this, &usrLabelProgramPanel::cmdBrowse_Click);
    connect(clear, &QPushButton::clicked, this, &usrLabelProgramPanel::cmdClear_Click);
    Load();
}

void usrLabelProgramPanel::Load() {
    const clsLabelDesk labelDesk;
    mFolder->setText(labelDesk.AppPath());
    mExe->setText(labelDesk.ExeName());
    ShowStatus();
}

void usrLabelProgramPanel::Store() {
    clsLabelDesk labelDesk;
    labelDesk.SetAppPath(mFolder->text());
    labelDesk.SetExeName(mExe->text());
    ShowStatus();
}

// Choosing the program itself fills both boxes.
void usrLabelProgramPanel::cmdBrowse_Click() {
    const QString start = mFolder->text().trimmed().isEmpty() ? QStringLiteral("/usr/bin") : mFolder->text();
    const QString program = QFileDialog::getOpenFileName(this, QStringLiteral("Choose the label program"), start);
    if (program.isEmpty())
        return;
    const QFileInfo info(program);
    mFolder->setText(info.absolutePath());
    mExe->setText(info.fileName());
    Store();
}

void usrLabelProgramPanel::cmdClear_Click() {
    mFolder->clear();
    mExe->clear();
    Store();
}

void usrLabelProgramPanel::ShowStatus() {
    const clsLabelDesk labelDesk;
    if (labelDesk.IsActive())
        mStatus->setText(QStringLiteral("Labels and tent cards go to %1.").arg(labelDesk.Program()));
    else if (labelDesk.AppPath().trimmed().isEmpty() && labelDesk.ExeName().trimmed().isEmpty())
        mStatus->setText(QStringLiteral("No label program is named: Vowren prints labels on its own sheets."));
    else
        mStatus->setText(QStringLiteral("%1 is not a program that can be run: Vowren prints labels on its "
                                        "own sheets until the folder and name are right.")
                             .arg(labelDesk.Program()));
}
