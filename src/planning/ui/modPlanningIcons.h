#pragma once

#include <QIcon>
#include <QList>

// The pictures of the planning pages' rows, drawn as vectors.
namespace modPlanningIcons {

// A page of a calendar.
QIcon CalendarPage();
// A heart: the wedding day.
QIcon Heart();
// A clock face: a timeline entry.
QIcon Clock();
// The images of the events grid by index: 0 none, 1 an event, 2 the wedding day.
QList<QIcon> EventImages();

} // namespace modPlanningIcons
