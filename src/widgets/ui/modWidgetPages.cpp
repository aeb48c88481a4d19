#include "widgets/ui/modWidgetPages.h"

#include "shell/modPages.h"
#include "shell/modScreenshots.h"
#include "widgets/ui/frmAboutSongs.h"
#include "widgets/ui/frmCreateWPL.h"
#include "widgets/ui/frmMain_12_Widgets.h"
#include "widgets/ui/frmSongAdd.h"
#include "widgets/ui/frmSongEdit.h"

namespace {

constexpr int kWidgetsPage = 12;

// The page over the demo wedding on the side of that index.
QWidget* PageOnSide(int index) {
    auto* page = new frmMain_12_Widgets;
    page->opt_Click(index);
    page->resize(1100, 680);
    return page;
}

} // namespace

void RegisterWidgetPages() {
    Q_INIT_RESOURCE(widgets);
    modPages::RegisterPage(kWidgetsPage, [](QWidget* parent) { return new frmMain_12_Widgets(parent); });
    modPages::RegisterDialog(QStringLiteral("frmAboutSongs"),
                             [](QWidget* parent) { frmAboutSongs(parent).exec(); });

    modScreenshots::Register(QStringLiteral("frmMain_12_Widgets_Vows"), [] { return PageOnSide(1); });
    modScreenshots::Register(QStringLiteral("frmMain_12_Widgets_Songs"), [] { return PageOnSide(2); });
    modScreenshots::Register(QStringLiteral("frmMain_12_Widgets_Event"), [] { return PageOnSide(3); });
    modScreenshots::Register(QStringLiteral("frmAboutSongs"), []() -> QWidget* { return new frmAboutSongs; });
    modScreenshots::Register(QStringLiteral("frmCreateWPL"), []() -> QWidget* { return new frmCreateWPL; });
    modScreenshots::Register(QStringLiteral("frmSongAdd"), []() -> QWidget* { return new frmSongAdd; });
    modScreenshots::Register(QStringLiteral("frmSongEdit"),
                             []() -> QWidget* { return new frmSongEdit(QStringLiteral("1")); });
}
