#include "widgets/ui/frmAboutSongs.h"

#include "shell/controls/modLayout.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmAboutSongs::frmAboutSongs(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAboutSongs"));
    setWindowTitle(QStringLiteral("About Songs"));
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(QStringLiteral("Songs and playlists"));
    auto* text = new QLabel(
        QStringLiteral(
            "Keep your wedding songs in songlists, such as the ceremony's and the reception's: on the "
            "Wedding Widgets page, under Songs, add the music files from your disk (Vowren keeps only a "
            "reference to each file, never a copy).\n\n"
            "\"Create playlist\" writes a songlist as a playlist file into the playlists folder. The "
            "newest playlist shows at the bottom of the main window: click the play button to hear it "
            "with your media player, or click the playlist's name to choose another one."),
        this);
    text->setWordWrap(true);
    text->setMinimumWidth(420);
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(text);
    layout->addWidget(close, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}
