#include "seating/ui/modSeatingPages.h"

#include "core/clsApp.h"
#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

void RegisterSeatingPages() {
    // Each seating screen adds its line here as it joins the program; until then the attendees page
    // and Home show its links disabled ("Not available yet").
    modPages::RegisterSubPage(modPages::TablesSubPage(), [](QWidget* parent) -> usrPage* {
        return new frmMain_04_Attendees_Tables(parent);
    });
    // The floor of the demo wedding with the status of every table shown and the first one selected.
    modScreenshots::Register(modPages::TablesSubPage(), []() -> QWidget* {
        gApp().SetRevealTableStatus(1);
        auto* page = new frmMain_04_Attendees_Tables;
        page->resize(modScreenshots::MainWindowSize());
        const QList<clsDINING_TABLE> tables = RecordIO::Read([] { return clsDINING_TABLE::OpenRecords(); });
        if (!tables.isEmpty())
            page->SelectTable(tables.first().DINING_TABLE_ID);
        return page;
    });
}
