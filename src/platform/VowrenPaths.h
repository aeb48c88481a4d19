#pragma once

#include <QString>

// Where the program keeps its files. The data root plays the part of the program's folder:
// Database/, Reports/, Playlists/, Templates/ lie below it.
namespace VowrenPaths {

// $VOWREN_HOME when set, else the per-user application data folder.
QString DataRoot();
// With $VOWREN_HOME set the settings file lives inside it, so that tests never touch a user's settings.
QString SettingsFilePath();
// The folder of the running program (written to "AppPath" for outside readers).
QString ProgramFolder();
// Joins a folder and a relative path with exactly one '/'.
QString Join(const QString& folder, const QString& relative);

} // namespace VowrenPaths
