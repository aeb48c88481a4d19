#include "widgets/ui/frmCreateWPL.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "shell/controls/modLayout.h"
#include "widgets/modPlaylist.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
// The item data of a list beside its key: its own name, which names the file.
enum Role { NameRole = Qt::UserRole + 1 };
} // namespace

frmCreateWPL::frmCreateWPL(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmCreateWPL"));
    setWindowTitle(QStringLiteral("Create Playlist"));
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(QStringLiteral("Create Playlist"));
    mList = new QComboBox(this);
    mList->setObjectName(QStringLiteral("usrSONGLIST"));
    for (const modPlaylist::Entry& entry : RecordIO::Read([] { return modPlaylist::Entries(); })) {
        mList->addItem(entry.Caption, entry.SonglistID);
        mList->setItemData(mList->count() - 1, entry.Name, NameRole);
    }
    mPath = new QLineEdit(this);
    mPath->setObjectName(QStringLiteral("txtPath"));
    mPath->setMinimumWidth(380);
    mPlay = new QCheckBox(QStringLiteral("Play the playlist when it is written"), this);
    mPlay->setObjectName(QStringLiteral("chkPlay"));
    mPlay->setChecked(gApp().PlayWPLAfterCompletion() != 0);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Songlist"), mList);
    form->addRow(QStringLiteral("Playlist"), mPath);
    form->addRow(QString(), mPlay);
    auto* buttons = new QDialogButtonBox(this);
    mGenerate = buttons->addButton(QStringLiteral("Generate"), QDialogButtonBox::AcceptRole);
    mGenerate->setObjectName(QStringLiteral("cmdGenerate"));
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(mGenerate, &QPushButton::clicked, this, [this] { cmdGenerate_Click(); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addLayout(form);
    layout->addWidget(buttons);

    connect(mList, &QComboBox::currentIndexChanged, this, &frmCreateWPL::usrSONGLIST_Change);
    connect(mPath, &QLineEdit::textChanged, this, &frmCreateWPL::UpdateGenerate);
    usrSONGLIST_Change();
}

void frmCreateWPL::usrSONGLIST_Change() {
    modPlaylist::Entry entry;
    entry.Name = mList->currentData(NameRole).toString();
    mPath->setText(mList->currentIndex() < 0 ? QString() : modPlaylist::DefaultPath(entry));
    UpdateGenerate();
}

void frmCreateWPL::UpdateGenerate() {
    mGenerate->setEnabled(mList->currentIndex() >= 0 && !mPath->text().trimmed().isEmpty());
}

bool frmCreateWPL::cmdGenerate_Click() {
    const QString path = mPath->text().trimmed();
    QString error;
    bool written = false;
    if (!RecordIO::Attempt([&] {
            written = modPlaylist::Write(path, mList->currentData().toString(), mList->currentText(), &error);
        }))
        return false;
    if (!written) {
        ShowMessage(error, Msg::OKOnly | Msg::Exclamation, ProgramTitle());
        return false;
    }
    gApp().SetPlayWPLAfterCompletion(mPlay->isChecked() ? 1 : 0);
    emit PlaylistCreated(path, mPlay->isChecked());
    accept();
    return true;
}
