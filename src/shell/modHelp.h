#pragma once

#include <QString>

// The help of the program: a PDF written from the help text that the program carries, into the Support
// folder of the data root as Vowren-Help.pdf, and opened with the desktop's PDF reader.
namespace modHelp {

// The help file's path below the Support folder.
QString HelpPath();

// Writes the help file anew (through a temporary file, so a reader that has the old one open keeps it
// whole). False, with *message set, when the folder or the file can't be written.
bool WriteHelp(QString* message);

// Writes the help file and opens it; a failure is told to the user.
void ShowHelp();

} // namespace modHelp
