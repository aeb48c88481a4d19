#pragma once

#include <QString>

class QWidget;

// Where a window stood: saved in twips below the form's own key when it goes, and taken again when it
// comes back, so that a window opens where the user left it.
namespace modFormPlace {

// Twips per pixel of the screen the widget is on: 1440 twips make an inch.
double TwipsPerPixel(const QWidget* widget);

// The main window: the saved place, or the screen less a margin when nothing sensible was saved.
void Restore(QWidget* window, const QString& formName);
void Save(const QWidget* window, const QString& formName);

// A dialog opens where it was last closed and keeps its default size and place the first time. The
// dialog's objectName is its form name; the place is saved whenever the dialog is hidden.
void Remember(QWidget* dialog);

} // namespace modFormPlace
