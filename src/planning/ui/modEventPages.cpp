#include "planning/ui/modEventPages.h"

#include "core/RecordIO.h"
#include "planning/clsTIMELINE.h"
#include "planning/ui/frmEvent.h"
#include "planning/ui/frmMain_09_Timelines.h"
#include "planning/ui/frmMain_11_Events.h"
#include "planning/ui/frmTimeline.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

namespace {

constexpr int kTimelines = 9;
constexpr int kEvents = 11;

template <class Page> QWidget* LoadedPage() {
    auto* page = new Page;
    page->resize(modScreenshots::MainWindowSize());
    page->LoadNow();
    return page;
}

// The busiest event's latest entry, for the picture of the entry editor.
QString SomeTimelineEntry() {
    const QList<clsTIMELINE> entries =
        RecordIO::Read([] { return clsTIMELINE().OpenRecords(QStringLiteral("1")); });
    return entries.isEmpty() ? QString() : entries.last().TIMELINE_ID;
}

void RegisterScreenshots() {
    modScreenshots::Register(modPages::FormName(kEvents), [] { return LoadedPage<frmMain_11_Events>(); });
    modScreenshots::Register(modPages::FormName(kTimelines),
                             [] { return LoadedPage<frmMain_09_Timelines>(); });
    modScreenshots::Register(QStringLiteral("frmEvent"),
                             []() -> QWidget* { return new frmEvent(QStringLiteral("1")); });
    modScreenshots::Register(QStringLiteral("frmTimeline"),
                             []() -> QWidget* { return new frmTimeline(SomeTimelineEntry(), QString()); });
    modScreenshots::Register(QStringLiteral("frmTimeline_New"),
                             []() -> QWidget* { return new frmTimeline(QString(), QStringLiteral("1")); });
}

} // namespace

void RegisterEventPages() {
    modPages::RegisterPage(kEvents, [](QWidget* parent) { return new frmMain_11_Events(parent); });
    modPages::RegisterPage(kTimelines, [](QWidget* parent) { return new frmMain_09_Timelines(parent); });
    RegisterScreenshots();
}
