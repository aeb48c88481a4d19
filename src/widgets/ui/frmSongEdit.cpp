#include "widgets/ui/frmSongEdit.h"

#include "core/RecordIO.h"
#include "guests/modParseText.h"
#include "widgets/ui/modSonglistBox.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmSongEdit::frmSongEdit(const QString& songId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmSongEdit"));
    SetRecordNoun(QStringLiteral("Song"));
    RecordIO::Attempt([&] { mSong.OpenRecord(songId); });
    SetAdding(false);

    mPath = new QLineEdit(mSong.SONG_FILE_PATH_TX, this);
    mPath->setObjectName(QStringLiteral("txtPath"));
    mPath->setMinimumWidth(420);
    mPath->end(false); // the file's name, at the end of the path, is what shows
    auto* open = new QPushButton(QStringLiteral("..."), this);
    open->setObjectName(QStringLiteral("cmdOpen"));
    open->setToolTip(QStringLiteral("Choose another file"));
    connect(open, &QPushButton::clicked, this, &frmSongEdit::cmdOpen_Click);
    auto* pathRow = new QHBoxLayout;
    pathRow->addWidget(mPath, 1);
    pathRow->addWidget(open);
    mList = new QComboBox(this);
    mList->setObjectName(QStringLiteral("usrSONGLIST_DICT"));
    modSonglistBox::Fill(mList, mSong.SONGLIST_ID);
    mNotes = new QPlainTextEdit(this);
    mNotes->setObjectName(QStringLiteral("txtNotes"));
    mNotes->setPlainText(mSong.NOTES_TX);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("File"), pathRow);
    form->addRow(QStringLiteral("Songlist"), mList);
    form->addRow(QStringLiteral("Notes"), mNotes);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Header());
    layout->addLayout(form);
    layout->addWidget(ButtonRow());
    MarkClean();
}

QStringList frmSongEdit::Snapshot() const {
    return {mPath->text(), modSonglistBox::Chosen(mList), mNotes->toPlainText()};
}

bool frmSongEdit::SaveRecord() {
    clsSONG song = mSong;
    song.SONG_FILE_PATH_TX = mPath->text().trimmed();
    song.SONGLIST_ID = modSonglistBox::Chosen(mList);
    song.NOTES_TX = NormalizeLineBreaks(mNotes->toPlainText());
    if (!RecordIO::Attempt([&song] { song.Save(false); }))
        return false;
    mSong = song;
    return true;
}

void frmSongEdit::cmdOpen_Click() {
    const QString file = QFileDialog::getOpenFileName(
        this, QStringLiteral("Choose the song's file"), QFileInfo(mPath->text()).absolutePath(),
        QStringLiteral("Songs (*.mp3 *.wav *.wma *.m4p *.m4a *.aac *.ogg *.flac);;All files (*)"));
    if (!file.isEmpty()) {
        mPath->setText(file);
        mPath->end(false);
    }
}
