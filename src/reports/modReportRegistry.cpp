#include "reports/modReportRegistry.h"

#include "reports/clsReportClasses.h"

void RegisterReportClasses()
{
}
