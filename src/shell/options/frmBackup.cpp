#include "shell/options/frmBackup.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modBackup.h"
#include "core/modSubMain.h"
#include "platform/clsShell.h"
#include "shell/controls/usrHint.h"
#include "shell/controls/usrHyperlink.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QTreeWidget>
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

    mBackups = new QTreeWidget(this);
    mBackups->setObjectName(QStringLiteral("lvwBackups"));
    mBackups->setHeaderLabels({QStringLiteral("Written"), QStringLiteral("Size"), QStringLiteral("Contacts"),
                               QStringLiteral("Invitations")});
    mBackups->setRootIsDecorated(false);
    mBackups->setUniformRowHeights(true);
    mBackups->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    mBackups->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    mBackups->header()->setStretchLastSection(false);
    mBackups->setMinimumHeight(mBackups->fontMetrics().height() * 8);
    mRestore = new QPushButton(QStringLiteral("Restore..."), this);
    mRestore->setObjectName(QStringLiteral("cmdRestore"));
    mRestore->setToolTip(QStringLiteral("Put the chosen copy in place of the database (the present state is "
                                        "saved first)"));
    connect(mRestore, &QPushButton::clicked, this, &frmBackup::cmdRestore_Click);
    connect(mBackups, &QTreeWidget::itemSelectionChanged, this,
            [this] { mRestore->setEnabled(mBackups->currentItem() != nullptr); });
    connect(mBackups, &QTreeWidget::itemDoubleClicked, this, &frmBackup::cmdRestore_Click);
    FillBackups();

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
    layout->addWidget(TextLabel(QStringLiteral("Copies Vowren keeps by itself (one a day, the newest first)"), this,
                                true));
    layout->addWidget(mBackups);
    layout->addWidget(mRestore, 0, Qt::AlignLeft);
    layout->addSpacing(8);
    layout->addWidget(TextLabel(QStringLiteral("To restore by hand"), this, true));
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
    const modBackup::Result result = modBackup::WriteBackup(gDB().Connection(), folder);
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

void frmBackup::FillBackups() {
    mBackups->clear();
    const QLocale locale;
    for (const modBackup::Entry& entry : modBackup::List()) {
        auto* item = new QTreeWidgetItem(mBackups);
        item->setText(0, locale.toString(entry.Written, QLocale::ShortFormat));
        item->setText(1, locale.formattedDataSize(entry.Size));
        item->setText(2, entry.Contacts < 0 ? QStringLiteral("unreadable") : locale.toString(entry.Contacts));
        item->setText(3, entry.Invitations < 0 ? QString() : locale.toString(entry.Invitations));
        item->setData(0, Qt::UserRole, entry.Path);
        item->setToolTip(0, QDir::toNativeSeparators(entry.Path));
        for (int column = 1; column < 4; ++column)
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    if (mBackups->topLevelItemCount() == 0) {
        auto* none = new QTreeWidgetItem(mBackups, {QStringLiteral("No copies yet: Vowren writes one a day.")});
        none->setFlags(Qt::NoItemFlags);
    }
    mRestore->setEnabled(false);
}

bool frmBackup::RestoreFrom(const QString& file) {
    const QString question = QStringLiteral("Put the copy \"%1\" in place of the database?\n\nThe database as it "
                                            "is now is saved as one more copy first, so this can be undone.")
                                 .arg(QFileInfo(file).fileName());
    if (ShowMessage(question, Msg::YesNo | Msg::Question) != Msg::Yes)
        return false;
    const modBackup::Result result = modBackup::Restore(gDB(), file);
    if (!result.Ok) {
        ShowMessage(result.Error, Msg::OKOnly | Msg::Exclamation);
        return false;
    }
    RecordIO::Attempt([] { modSubMain::RunPatchesAndOpenGlobals(); });
    mRestored = true;
    FillBackups();
    ShowMessage(QStringLiteral("The copy was restored. The database as it was before is saved as \"%1\".")
                    .arg(QDir::toNativeSeparators(result.Path)),
                Msg::OKOnly | Msg::Information);
    return true;
}

void frmBackup::cmdRestore_Click() {
    const QTreeWidgetItem* item = mBackups->currentItem();
    if (item && !item->data(0, Qt::UserRole).toString().isEmpty())
        RestoreFrom(item->data(0, Qt::UserRole).toString());
}
