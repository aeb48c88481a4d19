#include "planning/ui/modPlanningPages.h"

#include "shell/modPages.h"
#include "shell/modScreenshots.h"

void RegisterPlanningPages() {
}
