#include "planning/ui/modChecklistPages.h"

#include "planning/ui/frmMain_06_Checklist.h"
#include "planning/ui/frmMain_10_Notebook.h"
#include "planning/ui/frmNote.h"
#include "planning/ui/frmNotebookAddFile.h"
#include "planning/ui/frmTask.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

void RegisterChecklistPages() {
    modPages::RegisterPage(6, [](QWidget* parent) { return new frmMain_06_Checklist(parent); });
    modPages::RegisterPage(10, [](QWidget* parent) { return new frmMain_10_Notebook(parent); });
    modScreenshots::Register(QStringLiteral("frmNote"),
                             [] { return new frmNote(QStringLiteral("1"), nullptr); });
    modScreenshots::Register(QStringLiteral("frmTask"),
                             [] { return new frmTask(QStringLiteral("3"), nullptr); });
    modScreenshots::Register(QStringLiteral("frmNotebookAddFile"),
                             [] { return new frmNotebookAddFile(QString(), nullptr); });
}
