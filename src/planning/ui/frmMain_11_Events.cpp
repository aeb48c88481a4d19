#include "planning/ui/frmMain_11_Events.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/modCalendarExport.h"
#include "planning/ui/frmEvent.h"
#include "planning/ui/modPlanningIcons.h"
#include "platform/clsShell.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QFileDialog>
#include <QMenu>

namespace {

using Column = frmMain_11_Events::Column;

QList<clsGridColumn> EventColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("EVENT_ICON"), QString(), 28).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("EVENT"), QStringLiteral("Event"), 150).StoreWidth(),
        clsGridColumn(QStringLiteral("DATE"), QStringLiteral("Date"), 150)
            .OfKind(GridColumnKind::Date)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("ADDRESS"), QStringLiteral("Address"), 185).StoreWidth(),
        clsGridColumn(QStringLiteral("CONTACT"), QStringLiteral("Contact"), 140).StoreWidth(),
        clsGridColumn(QStringLiteral("PHONE"), QStringLiteral("Phone"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("FAX"), QStringLiteral("Fax"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("EMAIL"), QStringLiteral("E-mail"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("WEBSITE"), QStringLiteral("Web Site"), 100)
            .StoreWidth(QStringLiteral("EMAIL")),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

clsGridCells& WriteRow(clsGridCells& cells, const clsEVENT& e) {
    return cells.Icon(Column::EVENT_ICON, e.EVENT_ID == QLatin1String("1") ? 2 : 1)
        .Set(Column::EVENT, e.EVENT_TX)
        .Set(Column::DATE, e.EVENT_DT_DateTimeFormat(), ParseDateTimeText(e.EVENT_DT))
        .Set(Column::ADDRESS, e.DisplayAddress(false))
        .Set(Column::CONTACT, e.CONTACT_NM)
        .Set(Column::PHONE, e.PHONE_TX)
        .Set(Column::FAX, e.FAX_TX)
        .Set(Column::EMAIL, e.EMAIL_TX)
        .Set(Column::WEBSITE, e.WEB_SITE_TX)
        .Notes(e.NOTES_TX)
        .Keep(e);
}

} // namespace

frmMain_11_Events::frmMain_11_Events(QWidget* parent) : usrListPage(modPages::FormName(11), parent) {
    SetRecordNoun(QStringLiteral("event"));
    SetEmptyText(QStringLiteral("No events yet — add the rehearsal, the showers and the parties."),
                 QStringLiteral("No events match."));
    SetFilterEntries({{AllEvents, QStringLiteral("All Events")}});
    Grid()->Model()->SetImages(modPlanningIcons::EventImages());
    SetColumns(EventColumns());
    BuildActions();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuHiddenRoot"));
    AddActionItems(menu, {EditEvent, DeleteEvent});
    ShowNotesAsRowText(menu);
    SetRowMenu(menu);
    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString()); });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
}

void frmMain_11_Events::BuildActions() {
    AddAction(AddEvent, QStringLiteral("Add new event"), [this] { OpenEditor(QString()); });
    AddAction(EditEvent, QStringLiteral("Edit event"), [this] {
        if (const clsEVENT* event = SelectedEvent())
            OpenEditor(event->EVENT_ID);
    });
    AddAction(DeleteEvent, QStringLiteral("Delete event"), [this] { DeleteSelected(); });
    AddAction(EmailEvent, QStringLiteral("E-mail event contact"), [this] {
        if (const clsEVENT* event = SelectedEvent())
            SendEmail(event->EMAIL_TX);
    });
    AddAction(VisitWebSite, QStringLiteral("Visit web site"), [this] {
        if (const clsEVENT* event = SelectedEvent())
            gShell().OpenDocument(event->WEB_SITE_TX.contains(QStringLiteral("://"))
                                      ? event->WEB_SITE_TX
                                      : QStringLiteral("http://") + event->WEB_SITE_TX);
    });
    AddAction(MapLocation, QStringLiteral("Map location"), [this] {
        if (const clsEVENT* event = SelectedEvent())
            event->MapIt();
    });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Events, 1); });
    AddReportsFolderAction(OpenReportsFolder);
    AddAction(ExportCalendar, QStringLiteral("Export to calendar…"), [this] { ChooseCalendarFile(); });
}

void frmMain_11_Events::showEvent(QShowEvent* event) {
    usrListPage::showEvent(event);
    emit Breadcrumb(QStringLiteral("Events"));
}

long frmMain_11_Events::CountOf(int) const {
    return gApp().TotalEvents();
}

int frmMain_11_Events::FillRows(clsGridFill& fill, int) {
    const QList<clsEVENT> events = RecordIO::Read([] { return clsEVENT().OpenRecords(); });
    for (const clsEVENT& event : events)
        WriteRow(fill.Row(event.EVENT_ID.toLongLong()), event);
    return int(events.size());
}

const clsEVENT* frmMain_11_Events::SelectedEvent() const {
    const QList<qint64> keys = SelectedKeys();
    return keys.size() == 1 ? Grid()->Model()->RecordAt<clsEVENT>(RowOfKey(keys.first())) : nullptr;
}

void frmMain_11_Events::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_11_Events::UpdateActions() {
    const clsEVENT* event = SelectedEvent();
    ActionLink(EditEvent)->setEnabled(event != nullptr);
    ActionLink(DeleteEvent)->setEnabled(event != nullptr);
    ActionLink(EmailEvent)->setEnabled(event && event->EMAIL_TX.contains(QLatin1Char('@')));
    ActionLink(VisitWebSite)->setEnabled(event && !event->WEB_SITE_TX.isEmpty());
    ActionLink(MapLocation)->setEnabled(event && !event->DisplayAddress(false).isEmpty());
}

void frmMain_11_Events::OpenEditor(const QString& eventId) {
    frmEvent editor(eventId, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_11_Events::mfrmEvent_Refresh);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_11_Events::mfrmEvent_Refresh);
    editor.exec();
}

void frmMain_11_Events::mfrmEvent_Refresh(const QString& eventId) {
    Reload();
    GridSelectByKey(Grid(), eventId.toLongLong());
    // The wedding day moved: the frame's countdown and Home follow.
    if (eventId == QLatin1String("1"))
        emit UpdateWeddingCouple();
}

bool frmMain_11_Events::DeleteSelected() {
    const clsEVENT* selected = SelectedEvent();
    if (!selected)
        return false;
    const clsEVENT event = *selected;
    if (ShowMessage(QStringLiteral("Delete '") + event.EVENT_TX + QStringLiteral("'?"),
                    Msg::YesNo | Msg::Question, QStringLiteral("Delete")) != Msg::Yes)
        return false;
    if (!RecordIO::Attempt([&event] { clsEVENT().Delete(event.EVENT_ID); }))
        return false;
    Reload();
    return true;
}

void frmMain_11_Events::ChooseCalendarFile() {
    gApp().MakeReportPath();
    const QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Export to calendar"),
                                                      modCalendarExport::DefaultPath(),
                                                      QStringLiteral("iCalendar files (*.ics)"));
    if (!path.isEmpty() && ExportToCalendar(path))
        ShowMessage(
            QStringLiteral("The calendar was written to ") + path +
                QStringLiteral(".\n\nImport it into Google Calendar, Apple Calendar or Thunderbird; a "
                               "second import after changes updates the same entries."),
            Msg::Information, ProgramTitle());
}

bool frmMain_11_Events::ExportToCalendar(const QString& path) {
    QString error;
    int written = -1;
    if (!RecordIO::Attempt([&] { written = modCalendarExport::Export(path, &error); }))
        return false;
    if (written < 0) {
        ShowMessage(path + QStringLiteral(" could not be written: ") + error +
                        QStringLiteral("\n\nChoose another folder and try again."),
                    Msg::Exclamation, ProgramTitle());
        return false;
    }
    return true;
}
