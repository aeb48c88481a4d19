#include "guests/ui/modBulkRun.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "shell/controls/usrLinks.h"
#include "shell/usrListPage.h"

#include <QApplication>
#include <QProgressDialog>
#include <optional>

namespace modBulkRun {

bool Confirm(qsizetype count, const QString& name, const QString& plural) {
    const QString subject = count == 1 ? QString(QLatin1Char('\'') + name + QLatin1Char('\''))
                                       : QString(QString::number(count) + plural);
    return ShowMessage(QStringLiteral("Delete ") + subject + QLatin1Char('?'), Msg::YesNo | Msg::Question) ==
           Msg::Yes;
}

QStringList LastToFirst(const QList<qint64>& keys) {
    QStringList ids;
    ids.reserve(keys.size());
    for (auto key = keys.crbegin(); key != keys.crend(); ++key)
        ids.append(QString::number(*key));
    return ids;
}

bool RunWithProgress(usrListPage* page, const QString& label,
                     const std::function<void(const clsProgress&)>& run) {
    // The run is one transaction: it can't be stopped half-way, so the window has no Cancel.
    QProgressDialog window(label, QString(), 0, 0, page);
    window.setObjectName(QStringLiteral("dlgDeleteProgress"));
    window.setWindowTitle(ProgramTitle());
    window.setWindowModality(Qt::WindowModal);
    window.setMinimumDuration(500);
    usrLinks* bar = page->Progress();
    bar->setProgressValue(0);
    bar->setProgressVisible(true);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::optional<clsDbError> failure;
    try {
        run([&](int done, int total) {
            bar->setProgressMax(total);
            bar->setProgressValue(done);
            window.setMaximum(total);
            window.setValue(done);
        });
    } catch (const clsDbError& e) {
        failure = e;
    }
    QApplication::restoreOverrideCursor();
    window.reset();
    bar->setProgressVisible(false);
    if (!failure)
        return true;
    RecordIO::Report(*failure);
    return false;
}

} // namespace modBulkRun
