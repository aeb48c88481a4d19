#include "widgets/ui/modWidgetPages.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "platform/VowrenPaths.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"
#include "widgets/clsINVITE_WIDGET.h"
#include "widgets/ui/frmAboutSongs.h"
#include "widgets/ui/frmCreateWPL.h"
#include "widgets/ui/frmMain_12_Widgets.h"
#include "widgets/ui/frmSongAdd.h"
#include "widgets/ui/frmSongEdit.h"

#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QTreeWidget>

namespace {

constexpr int kWidgetsPage = 12;

// The page over the demo wedding on the side of that index.
QWidget* PageOnSide(int index) {
    auto* page = new frmMain_12_Widgets;
    page->opt_Click(index);
    page->resize(1100, 680);
    return page;
}

// The vows as a couple might have begun them (shown, not saved).
QWidget* VowsPicture() {
    QWidget* page = PageOnSide(1);
    page->findChild<QPlainTextEdit*>(QStringLiteral("txtVows_2"))
        ->setPlainText(
            QStringLiteral("I choose you, today and every day,\nin laughter and in quiet,\nfor all the "
                           "years we are given."));
    page->findChild<QPlainTextEdit*>(QStringLiteral("txtVows_3"))
        ->setPlainText(QStringLiteral("I promise to listen, to be patient,\nand to keep choosing us."));
    return page;
}

// The first event's side with a few invitations on its list.
QWidget* EventPicture() {
    RecordIO::Attempt([] {
        const QString first =
            gDB().Execute(QStringLiteral("SELECT MIN(EVENT_ID) FROM EVENT WHERE EVENT_ID > 1")).Scalar();
        const QList<clsINVITE_WIDGET::Candidate> all = clsINVITE_WIDGET::Candidates(first, false);
        QStringList keys;
        for (qsizetype i = 0; i < all.size() && keys.size() < 6; i += 3)
            keys << all.at(i).Key;
        clsINVITE_WIDGET::Invite(first, keys);
    });
    return PageOnSide(3);
}

// A folder of songs below the data root, to pick from.
QWidget* SongAddPicture() {
    const QDir music(VowrenPaths::DataRoot() + QStringLiteral("/Music"));
    music.mkpath(QStringLiteral("."));
    for (const char* name : {"Air on the G String.mp3", "Canon in D.mp3", "Clair de Lune.wav", "Cover.jpg",
                             "First Dance.m4p", "Ode to Joy.wma", "Notes.txt", "Wedding March.mp3"}) {
        QFile file(music.filePath(QString::fromUtf8(name)));
        if (file.open(QIODevice::WriteOnly))
            file.close();
    }
    gApp().SetSongPath(music.path());
    auto* dialog = new frmSongAdd;
    if (auto* grid = dialog->findChild<QTreeWidget*>(QStringLiteral("grid"));
        grid && grid->topLevelItemCount() > 1)
        grid->topLevelItem(1)->setCheckState(0, Qt::Checked);
    return dialog;
}

} // namespace

void RegisterWidgetPages() {
    Q_INIT_RESOURCE(widgets);
    modPages::RegisterPage(kWidgetsPage, [](QWidget* parent) { return new frmMain_12_Widgets(parent); });
    modPages::RegisterDialog(QStringLiteral("frmAboutSongs"),
                             [](QWidget* parent) { frmAboutSongs(parent).exec(); });

    modScreenshots::Register(QStringLiteral("frmMain_12_Widgets_Vows"), VowsPicture);
    modScreenshots::Register(QStringLiteral("frmMain_12_Widgets_Songs"), [] { return PageOnSide(2); });
    modScreenshots::Register(QStringLiteral("frmMain_12_Widgets_Event"), EventPicture);
    modScreenshots::Register(QStringLiteral("frmAboutSongs"), []() -> QWidget* { return new frmAboutSongs; });
    modScreenshots::Register(QStringLiteral("frmCreateWPL"), []() -> QWidget* { return new frmCreateWPL; });
    modScreenshots::Register(QStringLiteral("frmSongAdd"), SongAddPicture);
    modScreenshots::Register(QStringLiteral("frmSongEdit"),
                             []() -> QWidget* { return new frmSongEdit(QStringLiteral("1")); });
}
