#include "planning/ui/modChecklistPages.h"

#include "planning/ui/frmNotebookAddFile.h"
#include "shell/modScreenshots.h"

void RegisterChecklistPages() {
    modScreenshots::Register(QStringLiteral("frmNotebookAddFile"),
                             [] { return new frmNotebookAddFile(QString(), nullptr); });
}
