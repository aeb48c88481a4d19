#pragma once

#include <QList>
#include <QPair>
#include <QString>

// The typical wedding tasks a new database starts with: (time frame 0 to 10, task name), in the order
// they are done within each time frame.
QList<QPair<int, QString>> DefaultChecklistTasks();

// Gives the table TASK the tasks above as its seed rows, open, numbered in this order.
void RegisterChecklistSeed();
