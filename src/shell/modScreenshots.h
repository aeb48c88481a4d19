#pragma once

#include <QString>
#include <QWidget>
#include <functional>

// Pictures of every screen on a demo wedding, made offscreen: `vowren --screenshots DIR`. Each page of
// the main window is photographed inside the frame; any other screen (a dialog, an editor) registers a
// maker that returns it ready to be photographed, and is named by its form.
namespace modScreenshots {

// Makes the screen over the demo wedding, filled and sized; the caller photographs and deletes it.
using Maker = std::function<QWidget*()>;

void Register(const QString& formName, Maker maker);
QStringList RegisteredNames();

// The size of the main window in every picture.
inline QSize MainWindowSize() { return {1280, 800}; }

// Writes one PNG per page and registered screen into the folder, over a demo wedding made in a temporary
// data root. Returns the number of pictures; the message tells what was written or what went wrong.
int Run(const QString& folder, QString* message);

// Shows the widget, lets it settle, and saves its picture as folder/name.png.
bool Save(QWidget* widget, const QString& folder, const QString& name);

} // namespace modScreenshots
