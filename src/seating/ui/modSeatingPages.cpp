#include "seating/ui/modSeatingPages.h"

#include "shell/modPages.h"

void RegisterSeatingPages() {
    // Each seating screen adds its line here as it joins the program; until then the attendees page
    // and Home show its links disabled ("Not available yet").
}
