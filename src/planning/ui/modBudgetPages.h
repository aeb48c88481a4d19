#pragma once

// The budget, vendor and gift pages, their editors, the pictures of the budget report and the makers of
// their screenshots.
void RegisterBudgetPages();
