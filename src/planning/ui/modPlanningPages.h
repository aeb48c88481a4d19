#pragma once

// Plugs the planning screens into the frame: the pages of events, timelines, the checklist, the budget,
// vendors, gifts and the notebook, their editors, and the makers of their screenshots.
void RegisterPlanningPages();
