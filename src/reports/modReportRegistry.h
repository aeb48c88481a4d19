#pragma once

// Registers every report class that exists with clsReportClasses, so that the catalogue offers them
// and a runner (the report screen, the command line) can build them. Safe to call more than once.
void RegisterReportClasses();
