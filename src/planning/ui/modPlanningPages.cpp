#include "planning/ui/modPlanningPages.h"

#include "planning/ui/modChecklistPages.h"
#include "planning/ui/modEventPages.h"

#include "shell/modPages.h"
#include "shell/modScreenshots.h"

void RegisterPlanningPages() {
    RegisterChecklistPages();
    RegisterEventPages();
}
