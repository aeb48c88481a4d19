#include "seating/ui/modSeatingPages.h"

#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "shell/modPages.h"

void RegisterSeatingPages() {
    // Each seating screen adds its line here as it joins the program; until then the attendees page
    // and Home show its links disabled ("Not available yet").
    modPages::RegisterSubPage(modPages::TablesSubPage(),
                              [](QWidget* parent) -> usrPage* { return new frmMain_04_Attendees_Tables(parent); });
}
