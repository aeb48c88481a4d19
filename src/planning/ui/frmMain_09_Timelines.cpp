#include "planning/ui/frmMain_09_Timelines.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/clsTIMELINE.h"
#include "planning/modTimelineTimes.h"
#include "planning/ui/frmTimeline.h"
#include "planning/ui/modPlanningIcons.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QMenu>
#include <QSet>

namespace {

using Column = frmMain_09_Timelines::Column;

QList<clsGridColumn> TimelineColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("TIMELINE_ICON"), QString(), 28).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("TIME"), QStringLiteral("Time"), 150)
            .OfKind(GridColumnKind::Time)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("DURATION"), QStringLiteral("Duration"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("DESC"), QStringLiteral("Description"), 400).StoreWidth(),
        clsGridColumn(QStringLiteral("CONTACT"), QStringLiteral("Contact(s)"), 150).StoreWidth(),
        clsGridColumn(QStringLiteral("EVENT_ID"), QString(), 0).NeverShown(),
        clsGridColumn(QStringLiteral("START_DT"), QString(), 0).NeverShown(),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

// The group of an entry: each day of each event has its own.
QString DayGroup(const clsTIMELINE& entry, const QDate& day) {
    return entry.EVENT_TX + QStringLiteral(": ") + FormatDate(day);
}

// An entry's row; its two moments are read once.
clsGridCells& WriteRow(clsGridCells& cells, const clsTIMELINE& t) {
    const QDateTime start = ParseDateTimeText(t.TIMELINE_START_DT);
    const QTime end = ParseDateTimeText(t.TIMELINE_END_DT).time();
    return cells.Icon(Column::TIMELINE_ICON, 1)
        .Set(Column::TIME, clsTIMELINE::TIMELINE_START_TM_TO_END_TM(start.time(), end), start)
        .Set(Column::DURATION, clsTIMELINE::Duration(start.time(), end),
             modTimelineTimes::MinutesBetween(start.time(), end))
        .Set(Column::DESC, t.TIMELINE_DESC)
        .Set(Column::CONTACT, t.CONTACT_NM)
        .Set(Column::EVENT_ID, t.EVENT_ID)
        .Set(Column::START_DT, DayGroup(t, start.date()))
        .Notes(t.NOTES_TX)
        .Keep(t);
}

} // namespace

frmMain_09_Timelines::frmMain_09_Timelines(QWidget* parent) : usrListPage(modPages::FormName(9), parent) {
    SetRecordNoun(QStringLiteral("entry"), QStringLiteral("entries"));
    SetEmptyText(
        QStringLiteral("No timeline entries yet — add the first one, and each next one starts where the "
                       "last one ends."),
        QStringLiteral("No entries match."));
    SetFilterEntries({{AllEntries, QStringLiteral("All Entries")}});
    Grid()->Model()->SetImages({QIcon(), modPlanningIcons::Clock()});
    SetColumns(TimelineColumns());
    Grid()->SetGroupKey(GroupKey());
    BuildActions();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuHiddenRoot"));
    AddActionItems(menu, {AddEntry, EditEntry, DeleteEntry});
    ShowNotesAsRowText(menu);
    SetRowMenu(menu);
    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString()); });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
}

void frmMain_09_Timelines::BuildActions() {
    AddAction(AddEntry, QStringLiteral("Add new entry"), [this] { OpenEditor(QString()); });
    AddAction(EditEntry, QStringLiteral("Edit entry"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()));
    });
    AddAction(DeleteEntry, QStringLiteral("Delete entry"), [this] { DeleteSelected(); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Timelines, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
}

// The links of the panel follow the events that have entries, in the order of their dates.
void frmMain_09_Timelines::BeforeLoad() {
    QList<FilterEntry> entries = {{AllEntries, QStringLiteral("All Entries")}};
    const QList<clsEVENT> events = RecordIO::Read([] { return clsEVENT().OpenRecords(); });
    const QList<clsEVENT> withEntries = RecordIO::Read([] { return clsTIMELINE().OpenEvents(); });
    QSet<QString> keys;
    for (const clsEVENT& event : withEntries)
        keys.insert(event.EVENT_ID);
    for (const clsEVENT& event : events)
        if (keys.contains(event.EVENT_ID))
            entries.append({event.EVENT_ID.toInt(), event.EVENT_TX});
    ReplaceFilterEntries(entries);
    ShowBreadcrumb();
}

QString frmMain_09_Timelines::FilterEvent() const {
    return CurrentFilter() == AllEntries ? QString() : QString::number(CurrentFilter());
}

void frmMain_09_Timelines::showEvent(QShowEvent* event) {
    usrListPage::showEvent(event);
    ShowBreadcrumb();
}

void frmMain_09_Timelines::ShowBreadcrumb() {
    const QString caption = FilterCaption(CurrentFilter());
    emit Breadcrumb(CurrentFilter() > AllEntries && !caption.isEmpty()
                        ? QStringLiteral("Timelines>") + caption
                        : QStringLiteral("Timelines"));
}

long frmMain_09_Timelines::CountOf(int filterId) const {
    return gApp().TotalTimelineEntries(filterId == AllEntries ? QString() : QString::number(filterId));
}

int frmMain_09_Timelines::FillRows(clsGridFill& fill, int filterId) {
    const QString eventId = filterId == AllEntries ? QString() : QString::number(filterId);
    const QList<clsTIMELINE> entries = RecordIO::Read([&] { return clsTIMELINE().OpenRecords(eventId); });
    for (const clsTIMELINE& entry : entries) {
        const QString group = DayGroup(entry, ParseDateTimeText(entry.TIMELINE_START_DT).date());
        WriteRow(fill.Group(group).Row(entry.TIMELINE_ID.toLongLong()), entry);
    }
    return int(entries.size());
}

void frmMain_09_Timelines::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_09_Timelines::UpdateActions() {
    const int selected = int(SelectedKeys().size());
    ActionLink(EditEntry)->setEnabled(selected == 1);
    ActionLink(DeleteEntry)->setEnabled(selected == 1);
}

void frmMain_09_Timelines::OpenEditor(const QString& timelineId) {
    frmTimeline editor(timelineId, FilterEvent(), this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_09_Timelines::mfrmTimeline_Refresh);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_09_Timelines::mfrmTimeline_Refresh);
    editor.exec();
}

void frmMain_09_Timelines::mfrmTimeline_Refresh(const QString& timelineId) {
    Reload();
    GridSelectByKey(Grid(), timelineId.toLongLong());
}

bool frmMain_09_Timelines::DeleteSelected() {
    const QList<qint64> keys = SelectedKeys();
    if (keys.size() != 1)
        return false;
    if (ShowMessage(QStringLiteral("Delete entry?"), Msg::YesNo | Msg::Question, QStringLiteral("Delete")) !=
        Msg::Yes)
        return false;
    if (!RecordIO::Attempt([&keys] { clsTIMELINE().Delete(QString::number(keys.first())); }))
        return false;
    Reload();
    return true;
}
