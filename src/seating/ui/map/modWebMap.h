#pragma once

// The map capture with a web browser: only the desktop program links it.
namespace modWebMap {

// What the web engine needs of the process, before the application object is made.
void Prepare();
// Puts frmCaptureMap with the web browser in place of the one without.
void Register();

} // namespace modWebMap
