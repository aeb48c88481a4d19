#pragma once

// Plugs every screen of the program into the frame: the pages by index, the Welcome steps, the dialogs
// by form name, the report screen the list pages print through, and the makers of the screenshots.
// Called once by the desktop program and by the tests of the frame.
void RegisterKnownScreens();
