#pragma once

#include <QIcon>
#include <QList>

// The small pictures of the checklist and the notebook, drawn as vectors. Their order is the index a
// grid's icon column holds.
namespace PlanningIcons {

enum Index : int { None = 0, Task, Unticked, Ticked, Note, Paperclip, Count };

// Every picture, by index; the first is empty.
const QList<QIcon>& All();

} // namespace PlanningIcons
