#include "planning/ui/frmMain_10_Notebook.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "planning/clsNOTEBOOK.h"
#include "planning/ui/PlanningIcons.h"
#include "planning/ui/frmNote.h"
#include "planning/ui/usrAssignedFiles.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QFileInfo>
#include <QMenu>

namespace {

using Column = frmMain_10_Notebook::Column;

QList<clsGridColumn> NoteColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("ICO"), QString(), 20).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("ICO_PAPERCLIP"), QString(), 20).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("NOTEBOOK_DT"), QStringLiteral("Date"), 100)
            .OfKind(GridColumnKind::Date)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("NOTEBOOK_TM"), QStringLiteral("Time"), 75)
            .OfKind(GridColumnKind::Time)
            .AlignRight()
            .StoreWidth(),
        clsGridColumn(QStringLiteral("SUBJECT_TX"), QStringLiteral("Subject"), 500).StoreWidth(),
        clsGridColumn(QStringLiteral("FILE_PATH_TX"), QStringLiteral("File"), 0).NeverShown(),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

clsGridCells& WriteRow(clsGridCells& cells, const clsNOTEBOOK& note) {
    const QDateTime when = ParseDateTimeText(note.NOTEBOOK_DT);
    return cells.Icon(Column::ICO, PlanningIcons::Note)
        .Icon(Column::ICO_PAPERCLIP,
              note.FilePaths().isEmpty() ? PlanningIcons::None : PlanningIcons::Paperclip)
        .Date(Column::NOTEBOOK_DT, when.date())
        .Time(Column::NOTEBOOK_TM, when.time())
        .Set(Column::SUBJECT_TX, note.SUBJECT_TX)
        .Set(Column::FILE_PATH_TX, note.FILE_PATH_TX)
        .Notes(note.NOTES_TX)
        .Keep(note);
}

} // namespace

frmMain_10_Notebook::frmMain_10_Notebook(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_10_Notebook"), parent) {
    SetRecordNoun(QStringLiteral("note"));
    SetEmptyText(QStringLiteral("No notes yet — add the first one with \"Add new note\"."),
                 QStringLiteral("No notes match."));
    SetFilterEntries({{AllNotes, QStringLiteral("All Notes")}});
    Grid()->Model()->SetImages(PlanningIcons::All());
    SetColumns(NoteColumns());
    Grid()->SetSortable(true);
    BuildActions();
    BuildMenu();
    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString()); });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
}

void frmMain_10_Notebook::BuildActions() {
    AddAction(AddNote, QStringLiteral("Add new note"), [this] { OpenEditor(QString()); });
    AddAction(EditNote, QStringLiteral("Edit note"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()));
    });
    AddAction(DeleteNote, QStringLiteral("Delete note"), [this] { DeleteSelected(); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Notebook, AllNotes); });
    AddReportsFolderAction(OpenReportsFolder);
}

void frmMain_10_Notebook::BuildMenu() {
    mPopNotes = new QMenu(this);
    mPopNotes->setObjectName(QStringLiteral("mPopNotes"));
    AddActionItems(mPopNotes, {AddNote, EditNote, DeleteNote});
    mPopNotes->addSeparator();
    mnuFiles = mPopNotes->addMenu(QStringLiteral("Assigned Files"));
    mnuFiles->setObjectName(QStringLiteral("mnuFiles"));
    connect(mnuFiles, &QMenu::aboutToShow, this, &frmMain_10_Notebook::FillFilesMenu);
    mPopNotes->addSeparator();
    ShowNotesAsRowText(mPopNotes);
    SetRowMenu(mPopNotes);
}

void frmMain_10_Notebook::FillFilesMenu() {
    mnuFiles->clear();
    const QStringList files = SelectedFiles();
    for (const QString& path : files) {
        QAction* item = mnuFiles->addAction(QFileInfo(path).fileName(), this,
                                            [path] { usrAssignedFiles::OpenAttachedFile(path); });
        item->setToolTip(path);
    }
    if (files.isEmpty())
        mnuFiles->addAction(QStringLiteral("(no files)"))->setEnabled(false);
}

QStringList frmMain_10_Notebook::SelectedFiles() const {
    const QList<qint64> keys = SelectedKeys();
    if (keys.size() != 1)
        return {};
    const clsNOTEBOOK* note = Grid()->Model()->RecordAt<clsNOTEBOOK>(RowOfKey(keys.first()));
    return note != nullptr ? note->FilePaths() : QStringList();
}

long frmMain_10_Notebook::CountOf(int) const {
    return gApp().TotalNotes();
}

int frmMain_10_Notebook::FillRows(clsGridFill& fill, int) {
    const QList<clsNOTEBOOK> notes = RecordIO::Read([] { return clsNOTEBOOK().OpenRecords(); });
    for (const clsNOTEBOOK& note : notes)
        WriteRow(fill.Row(note.NOTEBOOK_ID.toLongLong()), note);
    emit Breadcrumb(QStringLiteral("Notebook"));
    return static_cast<int>(notes.size());
}

void frmMain_10_Notebook::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_10_Notebook::UpdateActions() {
    const bool one = SelectedKeys().size() == 1;
    ActionLink(EditNote)->setEnabled(one);
    ActionLink(DeleteNote)->setEnabled(one);
}

void frmMain_10_Notebook::DeleteSelected() {
    const QList<qint64> keys = SelectedKeys();
    if (keys.size() != 1)
        return;
    const clsNOTEBOOK* note = Grid()->Model()->RecordAt<clsNOTEBOOK>(RowOfKey(keys.first()));
    if (note == nullptr)
        return;
    const QString id = note->NOTEBOOK_ID;
    if (ShowMessage(QStringLiteral("Delete note '") + note->SUBJECT_TX + QStringLiteral("'?"),
                    Msg::YesNo | Msg::Question, QStringLiteral("Delete")) != Msg::Yes)
        return;
    RecordIO::Attempt([&id] { clsNOTEBOOK().Delete(id); });
    Reload();
}

void frmMain_10_Notebook::OpenEditor(const QString& notebookId) {
    frmNote editor(notebookId, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_10_Notebook::mfrmNote_Refresh);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_10_Notebook::mfrmNote_Refresh);
    editor.exec();
}

void frmMain_10_Notebook::mfrmNote_Refresh(const QString& notebookId) {
    Reload();
    GridSelectByKey(Grid(), notebookId.toLongLong());
}
