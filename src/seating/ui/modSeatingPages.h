#pragma once

// Plugs the seating screens into the frame: the table layout and tent card sub-pages of the attendees
// page, the table dialogs, and the makers of their screenshots.
void RegisterSeatingPages();
