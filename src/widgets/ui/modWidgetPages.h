#pragma once

// Plugs the widgets page into the frame: invitation wording, vows, the per-event lists and the songs,
// their dialogs, and the makers of their screenshots.
void RegisterWidgetPages();
