#include "shell/options/frmBackup.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "platform/clsShell.h"
#include "shell/controls/usrHint.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/options/modDatabaseBackup.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

QLabel* TextLabel(const QString& text, QWidget* parent, bool bold = false, qreal scale = 1.0) {
    // No word wrap: every line is short and set by hand, so the dialog's size follows its text exactly.
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(bold);
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    return label;
}

QLabel* Steps(const QStringList& lines, QWidget* parent) {
    auto* label = TextLabel(lines.join(QLatin1Char('\n')), parent);
    label->setContentsMargins(14, 0, 0, 0);
    return label;
}

QString DatabaseFolder() {
    return QFileInfo(gApp().DatabasePath()).absolutePath();
}

} // namespace

frmBackup::frmBackup(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmBackup"));
    setWindowTitle(QStringLiteral("Backup and Restore"));
    mLastFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);

    auto* path = TextLabel(QDir::toNativeSeparators(gApp().DatabasePath()), this, true);
    path->setObjectName(QStringLiteral("lblDatabasePath"));
    path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* openFolder = new usrHyperlink(QStringLiteral("Open the folder of the database"), this);
    openFolder->setObjectName(QStringLiteral("linkOpenFolder"));
    connect(openFolder, &usrHyperlink::Click, this, [] { gShell().OpenDocument(DatabaseFolder()); });

    auto* backupNow = new QPushButton(QStringLiteral("Back Up Now..."), this);
    backupNow->setObjectName(QStringLiteral("cmdBackupNow"));
    backupNow->setToolTip(QStringLiteral("Write a dated copy of the database into a folder you choose"));
    connect(backupNow, &QPushButton::clicked, this, &frmBackup::cmdBackupNow_Click);
    mResult = TextLabel(QString(), this);
    mResult->setObjectName(QStringLiteral("lblBackupResult"));
    mResult->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mResult->hide();
    mOpenBackup = new usrHyperlink(QStringLiteral("Open the backup folder"), this);
    mOpenBackup->setObjectName(QStringLiteral("linkOpenBackupFolder"));
    mOpenBackup->hide();
    connect(mOpenBackup, &usrHyperlink::Click, this, [this] { gShell().OpenDocument(mLastFolder); });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        TextLabel(QStringLiteral("Protect your wedding files by backing them up"), this, true, 1.3));
    layout->addWidget(
        TextLabel(QStringLiteral("Note: Your Vowren database file (Vowren.quilldata) resides at:"), this));
    layout->addWidget(path);
    layout->addWidget(openFolder, 0, Qt::AlignLeft);
    layout->addSpacing(8);
    layout->addWidget(TextLabel(QStringLiteral("To back up"), this, true));
    layout->addWidget(
        Steps({QStringLiteral("1) Open the folder of the database (link above)."),
               QStringLiteral("2) Copy the (Vowren.quilldata) file to a backup device."),
               QStringLiteral("    Examples: Thumb Drive, External Hard Drive, CD, Network Drive"),
               QStringLiteral("3) Make a new copy after each planning session.")},
              this));
    layout->addWidget(
        TextLabel(QStringLiteral("Or let Vowren write a dated copy (Vowren_date_time.quilldata)\n"
                                 "into a folder of your choice, even while you work:"),
                  this));
    layout->addWidget(backupNow, 0, Qt::AlignLeft);
    layout->addWidget(mResult);
    layout->addWidget(mOpenBackup, 0, Qt::AlignLeft);
    layout->addSpacing(8);
    layout->addWidget(TextLabel(QStringLiteral("To restore"), this, true));
    layout->addWidget(
        new usrHint(QStringLiteral("Note: Vowren must be closed before you perform this step."), this));
    layout->addWidget(
        Steps({QStringLiteral("1) Close Vowren and open the folder of your backup."),
               QStringLiteral("2) Copy the archived (Vowren.quilldata)."),
               QStringLiteral("3) Open the folder of the database shown above."),
               QStringLiteral("4) Paste and replace the existing (Vowren.quilldata) file with your "
                              "archived file."),
               QStringLiteral("    A dated copy must be renamed to Vowren.quilldata first."),
               QStringLiteral("5) Start Vowren again.")},
              this));
    layout->addStretch(1);
    layout->addWidget(buttons);
    // The dialog grows with what it shows (the result line), never cutting the steps off.
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    close->setDefault(true);
    close->setFocus();
}

QString frmBackup::BackupTo(const QString& folder) {
    const modDatabaseBackup::Result result = modDatabaseBackup::WriteBackup(gDB().Connection(), folder);
    if (!result.Ok) {
        ShowMessage(result.Error + QStringLiteral("\n\nChoose another folder and try again."),
                    Msg::OKOnly | Msg::Exclamation);
        return {};
    }
    mLastFolder = folder;
    mResult->setText(QStringLiteral("Backup written: ") + QDir::toNativeSeparators(result.Path));
    mResult->show();
    mOpenBackup->show();
    return result.Path;
}

void frmBackup::cmdBackupNow_Click() {
    const QString folder = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Choose a folder for the backup"), mLastFolder);
    if (!folder.isEmpty())
        BackupTo(folder);
}
