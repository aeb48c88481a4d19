#pragma once

// Plugs the checklist and the notebook into the frame: their pages, editors and the file chooser, and
// the makers of their screenshots.
void RegisterChecklistPages();
