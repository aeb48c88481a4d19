#pragma once

#include "guests/clsCONTACT.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

class usrListPage;

// What the guest pages share when they delete or change a selection: the question, the order of the
// keys, and the progress of a long run.
namespace modBulkRun {

// "Delete 'Lee, Ann'?" for one record, "Delete 3 Contacts?" for more (plural: " Contacts"); true on Yes.
bool Confirm(qsizetype count, const QString& name, const QString& plural);
// The keys as text, from the last selected to the first.
QStringList LastToFirst(const QList<qint64>& keys);
// Runs a delete or change of the page's records with a wait cursor, the page's progress bar, and a progress
// window when it lasts long enough to be seen. False after a failure of the run was shown.
bool RunWithProgress(usrListPage* page, const QString& label,
                     const std::function<void(const clsProgress&)>& run);

} // namespace modBulkRun
