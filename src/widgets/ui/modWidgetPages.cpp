#include "widgets/ui/modWidgetPages.h"

#include "shell/modPages.h"
#include "shell/modScreenshots.h"

void RegisterWidgetPages() {
}
