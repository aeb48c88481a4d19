#include "planning/ui/modChecklistPages.h"

#include "core/clsApp.h"
#include "planning/ui/frmMain_06_Checklist.h"
#include "planning/ui/frmMain_10_Notebook.h"
#include "planning/ui/frmNote.h"
#include "planning/ui/frmNotebookAddFile.h"
#include "planning/ui/frmTask.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>

namespace {

// The chooser over a few files of the couple's, kept inside the data root of the pictures.
QWidget* NotebookAddFileScreen() {
    const QDir root(QFileInfo(gApp().ReportPath()).absolutePath());
    const QString documents = root.filePath(QStringLiteral("Documents"));
    QDir().mkpath(documents);
    for (const char* name :
         {"Venue contract.pdf", "Florist quote.pdf", "Seating ideas.ods", "Menu tasting.jpg"}) {
        QFile file(QDir(documents).filePath(QString::fromLatin1(name)));
        if (!file.open(QIODevice::WriteOnly))
            qWarning("screenshot: %s could not be written", name);
    }
    auto* chooser = new frmNotebookAddFile(QString(), nullptr);
    chooser->SetTreeRoot(root.path());
    chooser->SetFolder(documents);
    if (auto* files = chooser->findChild<QListWidget*>(QStringLiteral("fileList"));
        files && files->count() > 1)
        files->item(1)->setCheckState(Qt::Checked);
    return chooser;
}

} // namespace

void RegisterChecklistPages() {
    modPages::RegisterPage(6, [](QWidget* parent) { return new frmMain_06_Checklist(parent); });
    modPages::RegisterPage(10, [](QWidget* parent) { return new frmMain_10_Notebook(parent); });
    modScreenshots::Register(QStringLiteral("frmNote"),
                             [] { return new frmNote(QStringLiteral("1"), nullptr); });
    modScreenshots::Register(QStringLiteral("frmTask"),
                             [] { return new frmTask(QStringLiteral("3"), nullptr); });
    modScreenshots::Register(QStringLiteral("frmNotebookAddFile"), [] { return NotebookAddFileScreen(); });
}
