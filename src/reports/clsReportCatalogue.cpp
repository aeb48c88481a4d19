#include "reports/clsReportCatalogue.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "guests/clsFilterTable.h"
#include "planning/clsEVENT.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsReportClasses.h"
#include "seating/clsDINING_TABLE.h"
#include "widgets/clsINVITE_WIDGET.h"

#include <QHash>

namespace {

constexpr int HeadIndent = 0;
constexpr int SubIndent = 10;

QString Count(long total) {
    return QString::number(total);
}

// Builds the rows of one section in order.
class RowList {
public:
    QList<clsReportCatalogue::FilterRow> Rows;

    void Head(const QString& caption, int key, const QString& count, const QString& notes = QString()) {
        Add(caption, key, HeadIndent, true, count, notes);
    }
    void Sub(const QString& caption, int key, const QString& count, const QString& notes = QString()) {
        Add(caption, key, SubIndent, false, count, notes);
    }
    // A row of a section without head rows.
    void Plain(const QString& caption, int key, const QString& count, const QString& notes = QString()) {
        Add(caption, key, HeadIndent, false, count, notes);
    }
    void CustomFilter() {
        Add(QStringLiteral("Custom Filter"), clsReportCatalogue::CustomFilterKey, SubIndent, false,
            QStringLiteral("--"), QString());
        Rows.last().Icon = clsReportCatalogue::CustomFilterIcon;
    }

private:
    void Add(const QString& caption, int key, int indent, bool head, const QString& count,
             const QString& notes) {
        clsReportCatalogue::FilterRow row;
        row.FILTER = caption;
        row.Key = key;
        row.Indent = indent;
        row.Head = head;
        row.COUNT = count;
        row.NOTES_TX = notes;
        Rows.append(row);
    }
};

// The guest sections list filter codes: each row's caption comes from the code's table, its count from
// the totals with that code.
void ContactCodeRows(RowList& list, std::initializer_list<int> codes, bool excludeBrideGroom) {
    for (const int code : codes)
        list.Sub(clsFilterTable::ContactCaption(code), code,
                 Count(gApp().TotalContacts(code, QString(), excludeBrideGroom)));
}

void InvitationCodeRows(RowList& list, std::initializer_list<int> codes) {
    for (const int code : codes)
        list.Sub(clsFilterTable::InvitationCaption(code), code, Count(gApp().TotalInvitations(code)));
}

void ContactRows(RowList& list) {
    using F = ContactFilter::Code;
    const bool exclude = true;
    list.Head(clsFilterTable::ContactCaption(F::AllContacts), F::AllContacts,
              Count(gApp().TotalContacts(F::AllContacts, QString(), exclude)));
    ContactCodeRows(list,
                    {F::FriendOfBride, F::FriendOfGroom, F::FriendOfBoth, F::AList, F::BList, F::Invited,
                     F::NotYetInvited, F::Male, F::Female, F::Adult, F::Child, F::Local, F::OutOfTowner,
                     F::NoAddress, F::NoEmail, F::NoPhone},
                    exclude);
    list.CustomFilter();
}

void InvitationRows(RowList& list) {
    using F = InviteFilter::Code;
    list.Head(clsFilterTable::InvitationCaption(F::AllInvitations), F::AllInvitations,
              Count(gApp().TotalInvitations(F::AllInvitations)));
    InvitationCodeRows(list, {F::Sent, F::Unsent, F::FriendOfBride, F::FriendOfGroom, F::FriendOfBoth, F::AList,
                              F::BList, F::Local, F::OutOfTowner, F::NoAddress});
    list.CustomFilter();
}

void RsvpRows(RowList& list) {
    using F = InviteFilter::Code;
    list.Head(QStringLiteral("All RSVPs"), F::Sent, Count(gApp().TotalInvitations(F::Sent)));
    InvitationCodeRows(list, {F::Received, F::NoReply, F::SentFriendOfBride, F::SentFriendOfGroom,
                              F::SentFriendOfBoth, F::SentAList, F::SentBList, F::SentLocal, F::SentOutOfTowner});
    list.CustomFilter();
}

void AttendeeRows(RowList& list) {
    using F = ContactFilter::Code;
    const QString all = Count(gApp().TotalContacts(F::Attending, QString(), false));
    list.Head(clsFilterTable::ContactCaption(F::Attending), F::Attending, all);
    ContactCodeRows(list,
                    {F::AttendingFriendOfBride, F::AttendingFriendOfGroom, F::AttendingFriendOfBoth,
                     F::AttendingAList, F::AttendingBList, F::AttendingMale, F::AttendingFemale, F::AttendingAdult,
                     F::AttendingChild, F::AttendingLocal, F::AttendingOutOfTowner, F::Seated, F::ToBeSeated},
                    false);
    list.Head(QStringLiteral("Meals"), 98, Count(gApp().TotalSettings(1)), QStringLiteral("For Caterer"));
    list.Head(QStringLiteral("Roles"), 99, Count(gApp().TotalContacts(F::WithRole, QString(), true)),
              QStringLiteral("For DJ"));
    list.Head(QStringLiteral("Tabula Rasa"), 100, all, QStringLiteral("CSV Export file for Tabula Rasa"));
    list.CustomFilter();
}

QString EventCondition(const QString& eventId) {
    return QStringLiteral("WHERE EVENT.EVENT_ID = ") + eventId;
}

void GiftRows(RowList& list) {
    list.Head(QStringLiteral("All Gifts"), 0, Count(gApp().TotalGifts(0)));
    list.Sub(QStringLiteral("Thank You Notes Sent"), 1, Count(gApp().TotalGifts(1)));
    list.Sub(QStringLiteral("Thank You Notes Unsent"), 2, Count(gApp().TotalGifts(2)));
    for (const clsEVENT& event : clsEVENT().OpenRecords())
        list.Sub(event.EVENT_TX, event.EVENT_ID.toInt(),
                 Count(gApp().TotalGifts(3, EventCondition(event.EVENT_ID))));
}

void TaskRows(RowList& list) {
    list.Head(QStringLiteral("All Tasks"), 0, Count(gApp().TotalTasks(0)),
              QStringLiteral("Grouped by Suggested Time Frame"));
    list.Sub(QStringLiteral("Open"), 1, Count(gApp().TotalTasks(1)));
    list.Sub(QStringLiteral("Completed"), 2, Count(gApp().TotalTasks(2)));
    list.Sub(QStringLiteral("Current"), 3, Count(gApp().TotalTasks(3)));
    list.Head(QStringLiteral("All Tasks"), 4, Count(gApp().TotalTasks(4)),
              QStringLiteral("Sorted by Due Date"));
}

void BudgetRows(RowList& list) {
    list.Head(QStringLiteral("All Expenses"), 0, Count(gApp().TotalBudget(0)),
              QStringLiteral("Grouped by Budget Category"));
    list.Sub(QStringLiteral("Due"), 1, Count(gApp().TotalBudget(1)));
    list.Sub(QStringLiteral("Pastdue"), 2, Count(gApp().TotalBudget(2)));
    list.Sub(QStringLiteral("Paid"), 3, Count(gApp().TotalBudget(3)));
    list.Head(QStringLiteral("All Expenses"), 98, Count(gApp().TotalBudget(98)),
              QStringLiteral("Grouped by Payer"));
    list.Head(QStringLiteral("Estimates vs. Actuals"), 99, Count(gApp().TotalBudgetCategories()),
              QStringLiteral("Summarized by Budget Category"));
}

void TimelineRows(RowList& list) {
    list.Head(QStringLiteral("All Entries"), 0, Count(gApp().TotalTimelineEntries()));
    for (const clsEVENT& event : clsEVENT().OpenRecords()) {
        const long total = gApp().TotalTimelineEntries(event.EVENT_ID);
        if (total > 0)
            list.Sub(event.EVENT_TX, event.EVENT_ID.toInt(), Count(total));
    }
}

// The first name of contact row 1 or 2, read afresh so that a changed name shows at once.
QString PartnerName(const char* contactId) {
    clsCONTACT partner;
    partner.OpenRecord(QString::fromLatin1(contactId));
    return partner.FIRST_NM;
}

void WidgetRows(RowList& list) {
    list.Plain(QStringLiteral("Invitation Wording"), 1, QStringLiteral("1"));
    list.Plain(QStringLiteral("All Wedding Vows"), 2, QStringLiteral("2"), QStringLiteral("Side by Side"));
    list.Sub(PartnerName("1") + QStringLiteral("'s Wedding Vows"), 3, QStringLiteral("1"));
    list.Sub(PartnerName("2") + QStringLiteral("'s Wedding Vows"), 4, QStringLiteral("1"));
    list.Plain(QStringLiteral("Songs"), 5, Count(gApp().TotalSongs()), QStringLiteral("For DJ"));
    for (const clsINVITE_WIDGET& event : clsINVITE_WIDGET::OpenEvents())
        list.Plain(event.EVENT_TX, event.EVENT_ID.toInt() + 99,
                   Count(clsINVITE_WIDGET::GetTotal(event.EVENT_ID)), QStringLiteral("For your Party Hosts"));
}

void BuildRows(int sectionKey, RowList& list) {
    using C = clsReportCatalogue;
    switch (sectionKey) {
    case C::Contacts:
        ContactRows(list);
        break;
    case C::Invitations:
        InvitationRows(list);
        break;
    case C::RSVPs:
        RsvpRows(list);
        break;
    case C::Attendees:
        AttendeeRows(list);
        break;
    case C::Tables:
        list.Plain(QStringLiteral("Seating Chart"), 1, Count(gApp().TotalContacts(ContactFilter::Seated)),
                   QStringLiteral("All Seated Attendees per Table"));
        list.Plain(QStringLiteral("Table Overview"), 2,
                   Count(gApp().TotalTables(clsDINING_TABLE::TotalTables)));
        list.Plain(QStringLiteral("Table Layout Image"), 3, QStringLiteral("1"));
        break;
    case C::Gifts:
        GiftRows(list);
        break;
    case C::Checklist:
        TaskRows(list);
        break;
    case C::Budget:
        BudgetRows(list);
        break;
    case C::Vendors:
        list.Head(QStringLiteral("All Vendors"), 0, Count(gApp().TotalVendors()));
        break;
    case C::Timelines:
        TimelineRows(list);
        break;
    case C::Notebook:
        list.Head(QStringLiteral("All Notes"), 0, Count(gApp().TotalNotes()));
        break;
    case C::Events:
        list.Plain(QStringLiteral("All Events"), 1, Count(gApp().TotalEvents()));
        list.Plain(QStringLiteral("Calendar"), 2, QString(), QStringLiteral("User Specified Months"));
        break;
    case C::Widgets:
        WidgetRows(list);
        break;
    case C::Statistics:
        list.Plain(QStringLiteral("All"), 0, QStringLiteral("All"));
        break;
    case C::Flights: {
        const QString flights = Count(gApp().TotalFlights());
        list.Plain(QStringLiteral("Flights"), 1, flights, QStringLiteral("All Attendees per Flight"));
        list.Plain(QStringLiteral("Flight Overview"), 2, flights);
        break;
    }
    case C::Hotels: {
        const QString hotels = Count(gApp().TotalHotels());
        list.Plain(QStringLiteral("Hotels"), 1, hotels, QStringLiteral("All Occupants per Hotel"));
        list.Plain(QStringLiteral("Hotel Overview"), 2, hotels);
        list.Plain(QStringLiteral("Hotel Map"), 3, QStringLiteral("1"));
        break;
    }
    case C::Tentcards:
        list.Plain(QStringLiteral("Tentcards"), 1, Count(gApp().TotalTentcards()),
                   QStringLiteral("Use LabelDesk to print on any sized tentcard."));
        break;
    case C::Custom:
        list.Plain(QStringLiteral("Custom SQL"), 0, QStringLiteral("--"));
        break;
    default:
        break;
    }
}

void WithoutFilter(clsReportRoute& route, const char* className) {
    route.ClassName = QString::fromLatin1(className);
    route.UsesFilter = false;
    route.FilterEnum = 0;
    route.FilterText.clear();
}

void Picture(clsReportRoute& route, const char* fileName, const char* message) {
    route.PictureFile = gApp().ReportPath() + QLatin1Char('/') + QString::fromLatin1(fileName);
    route.MissingPictureMessage = QString::fromLatin1(message);
}

} // namespace

QList<clsReportCatalogue::Section> clsReportCatalogue::Sections() {
    static const struct {
        const char* Caption;
        int Key;
        int Indent;
    } sections[] = {{"Contacts", Contacts, 0},
                    {"Invitations", Invitations, 0},
                    {"RSVPs", RSVPs, 0},
                    {"Attendees", Attendees, 0},
                    {"Flights", Flights, 16},
                    {"Hotels", Hotels, 16},
                    {"Tables", Tables, 16},
                    {"Tentcards", Tentcards, 16},
                    {"Gifts", Gifts, 0},
                    {"Checklist", Checklist, 0},
                    {"Budget", Budget, 0},
                    {"Vendors", Vendors, 0},
                    {"Timelines", Timelines, 0},
                    {"Notebook", Notebook, 0},
                    {"Events", Events, 0},
                    {"Widgets", Widgets, 0},
                    {"Wedding Statistics", Statistics, 0},
                    {"Custom", Custom, 0}};
    QList<Section> list;
    for (const auto& s : sections)
        list.append(Section{QString::fromLatin1(s.Caption), s.Key, s.Indent});
    return list;
}

int clsReportCatalogue::SectionIndex(int sectionKey) {
    const QList<Section> sections = Sections();
    for (qsizetype i = 0; i < sections.size(); ++i)
        if (sections[i].Key == sectionKey)
            return int(i);
    return -1;
}

QList<clsReportCatalogue::FilterRow> clsReportCatalogue::FilterRows(int sectionKey) {
    RowList list;
    BuildRows(sectionKey, list);
    for (qsizetype i = 0; i < list.Rows.size(); ++i) {
        const clsReportRoute route = Route(sectionKey, list.Rows, int(i));
        FilterRow& row = list.Rows[i];
        row.ClassName = route.ClassName;
        // A row that only opens a picture needs no class.
        row.Available = route.ClassName.isEmpty() ? !route.PictureFile.isEmpty()
                                                  : clsReportClasses::Exists(route.ClassName);
    }
    return list.Rows;
}

int clsReportCatalogue::FilterRowIndex(const QList<FilterRow>& rows, int filterKey) {
    for (qsizetype i = 0; i < rows.size(); ++i)
        if (rows[i].Key == filterKey)
            return int(i);
    return -1;
}

bool clsReportCatalogue::LabelsAllowed(int sectionKey, const QList<FilterRow>& rows, int rowIndex,
                                       bool labelDeskActive) {
    if (rowIndex < 0 || rowIndex >= rows.size())
        return false;
    switch (sectionKey) {
    case Contacts:
    case Invitations:
    case Attendees:
        return rows[rowIndex].Key != CustomFilterKey;
    case Tentcards:
        return labelDeskActive;
    case Gifts:
    case Vendors:
        return true;
    case Widgets:
        return rowIndex >= 5; // the guest lists of the events
    default:
        return false;
    }
}

QString clsReportCatalogue::RunCaption(int filterKey, bool labelsSelected) {
    return filterKey == CustomFilterKey || labelsSelected ? QStringLiteral("Continue")
                                                          : QStringLiteral("Run");
}

QString clsReportCatalogue::FilterText(const QString& caption) {
    return caption.startsWith(QLatin1String("All")) ? QStringLiteral("All") : caption;
}

clsReportCatalogue::Commands clsReportCatalogue::CommandState(int sectionKey, const QList<FilterRow>& rows,
                                                              int rowIndex, int reportType,
                                                              bool labelDeskActive) {
    Commands commands;
    commands.LabelsEnabled = LabelsAllowed(sectionKey, rows, rowIndex, labelDeskActive);
    commands.LabelsCaption = labelDeskActive ? QStringLiteral("LabelDesk") : QStringLiteral("Labels (.RTF)");
    commands.ReportType = reportType == Labels && !commands.LabelsEnabled ? WordRtf : reportType;
    const bool selected = SectionIndex(sectionKey) >= 0 && rowIndex >= 0 && rowIndex < rows.size();
    commands.RunEnabled = selected;
    commands.RunCaption = RunCaption(selected ? rows[rowIndex].Key : 0, commands.ReportType == Labels);
    return commands;
}

clsReportCatalogue::Selection clsReportCatalogue::OpeningSelection(int RPT_ROW, int FilterIndex) {
    Selection selection;
    const int section = SectionIndex(RPT_ROW);
    if (section < 0)
        return selection;
    selection.SectionIndex = section;
    const int row = FilterRowIndex(FilterRows(RPT_ROW), FilterIndex);
    if (row >= 0)
        selection.RowIndex = row;
    return selection;
}

void clsReportCatalogue::TakeSettings(const Choices& choices, clsRTFMasterTemp& settings) {
    // The CSV choice turns RTF off; PDF is the laid-out document in its own dialect.
    settings.USE_PDF = choices.ReportType == PortableDocument;
    settings.USE_RTF = choices.ReportType == WordRtf || settings.USE_PDF;
    settings.FONT_NAME = choices.FontName;
    settings.FONT_SIZE = choices.FontSize;
    settings.A4 = choices.PaperSizeIndex == 1;
    settings.LANDSCAPE = choices.PaperOrientationIndex == 0;
    settings.SetColors(choices.Header, choices.SubHeader, choices.Border);
}

clsReportRoute clsReportCatalogue::Route(int sectionKey, const QList<FilterRow>& rows, int rowIndex) {
    clsReportRoute route;
    if (rowIndex < 0 || rowIndex >= rows.size())
        return route;
    const FilterRow& row = rows[rowIndex];
    const int position = rowIndex + 1;
    const bool custom = row.Key == CustomFilterKey;
    route.FilterEnum = row.Key;
    route.FilterText = FilterText(row.FILTER);
    route.FormNumber = sectionKey;

    // The custom filter dialog asks for the condition and then builds the section's report itself.
    auto customFilter = [&](int filterEnum) {
        route.Dialog = QStringLiteral("frmReportsCustomFilter");
        route.FilterEnum = filterEnum;
        route.FilterText.clear();
    };

    switch (sectionKey) {
    case Contacts:
        route.ClassName = QStringLiteral("clsRTFContacts");
        if (custom)
            customFilter(CustomWhereContacts);
        break;
    case Invitations:
        route.ClassName = QStringLiteral("clsRTFInvitation");
        if (custom)
            customFilter(CustomWhereInvitations);
        break;
    case RSVPs:
        route.ClassName = QStringLiteral("clsRTFRSVP");
        if (custom)
            customFilter(CustomWhereInvitations);
        break;
    case Attendees:
        if (custom) {
            route.ClassName = QStringLiteral("clsRTFAttendees");
            customFilter(CustomWhereContacts);
        } else if (row.Key == 98) {
            WithoutFilter(route, "clsRTFMeal");
        } else if (row.Key == 99) {
            WithoutFilter(route, "clsRTFRole");
        } else if (row.Key == 100) {
            WithoutFilter(route, "clsRTFAttendeesTabulaRasa");
        } else {
            route.ClassName = QStringLiteral("clsRTFAttendees");
        }
        break;
    case Tables:
        if (position == 1)
            route.ClassName = QStringLiteral("clsRTFTable");
        else if (position == 2)
            route.ClassName = QStringLiteral("clsRTFTableLayout");
        else
            Picture(route, "TableLayout.bmp",
                    "To get a picture of your Table Layout, go to Attendees--Table layout.");
        break;
    case Gifts:
        route.ClassName = QStringLiteral("clsRTFGift");
        if (position >= 4) {
            route.FilterEnum = 3;
            route.CustomWhere = EventCondition(QString::number(row.Key));
        }
        break;
    case Checklist:
        route.ClassName = QStringLiteral("clsRTFTask");
        break;
    case Budget:
        if (position <= 4)
            route.ClassName = QStringLiteral("clsRTFBudget");
        else if (position == 5)
            WithoutFilter(route, "clsRTFBudgetPaidBy");
        else
            WithoutFilter(route, "clsRTFBudgetCategory");
        break;
    case Vendors:
        WithoutFilter(route, "clsRTFVendor");
        break;
    case Timelines:
        route.ClassName = QStringLiteral("clsRTFTimeline");
        break;
    case Notebook:
        WithoutFilter(route, "clsRTFNotebook");
        break;
    case Events:
        if (position == 1) {
            WithoutFilter(route, "clsRTFEvent");
        } else {
            WithoutFilter(route, "clsRTFCalendar");
            route.Dialog = QStringLiteral("frmReportEventDates");
        }
        break;
    case Widgets:
        if (position == 1) {
            route.ClassName = QStringLiteral("clsRTFWidgetsInvitation");
        } else if (position <= 4) {
            route.ClassName = QStringLiteral("clsRTFWidgetsWeddingVows");
            route.Argument = QString::number(row.Key);
        } else if (position == 5) {
            route.ClassName = QStringLiteral("clsRTFSongs");
        } else {
            route.ClassName = QStringLiteral("clsRTFWidgetInvite");
            route.Argument = QString::number(row.Key - 99);
        }
        break;
    case Statistics:
        route.ClassName = QStringLiteral("clsRTFStatistics");
        break;
    case Flights:
        route.ClassName =
            position == 1 ? QStringLiteral("clsRTFFlights") : QStringLiteral("clsRTFFlightOverview");
        break;
    case Hotels:
        if (position == 1)
            route.ClassName = QStringLiteral("clsRTFHotels");
        else if (position == 2)
            route.ClassName = QStringLiteral("clsRTFHotelOverview");
        else
            Picture(route, "HotelMap.bmp", "To get a picture of your Hotel Map, go to Attendees--Hotels.");
        break;
    case Tentcards:
        route.ClassName = QStringLiteral("clsRTFTentcard");
        break;
    case Custom:
        WithoutFilter(route, "clsRTFSQL");
        route.Dialog = QStringLiteral("frmReportsSQL");
        break;
    default:
        break;
    }
    if (!route.ClassName.isEmpty())
        route.FilePrefix = FilePrefix(route.ClassName, sectionKey == Widgets ? row.FILTER : QString());
    return route;
}

clsReportRoute clsReportCatalogue::LabelRoute(int sectionKey, const QList<FilterRow>& rows, int rowIndex,
                                              bool labelDeskActive) {
    clsReportRoute route;
    if (rowIndex < 0 || rowIndex >= rows.size())
        return route;
    const FilterRow& row = rows[rowIndex];
    route.Dialog = labelDeskActive ? QStringLiteral("clsLabelDesk") : QStringLiteral("frmReportsLabels");
    route.FormNumber = sectionKey;
    route.FilterEnum = row.Key;
    route.FilterText = FilterText(row.FILTER);
    if (sectionKey == Gifts && rowIndex >= 3) {
        route.FilterEnum = 3;
        route.CustomWhere = EventCondition(QString::number(row.Key));
        route.Argument = QString::number(row.Key); // the event, for the label program
    } else if (sectionKey == Widgets) {
        route.FilterEnum = row.Key - 99;
    }
    return route;
}

QString clsReportCatalogue::FilePrefix(const QString& className, const QString& eventName) {
    static const QHash<QString, QString> prefixes = {
        {QStringLiteral("clsRTFContacts"), QStringLiteral("01_Contacts_")},
        {QStringLiteral("clsRTFInvitation"), QStringLiteral("02_Invitations_")},
        {QStringLiteral("clsRTFRSVP"), QStringLiteral("03_RSVPs_")},
        {QStringLiteral("clsRTFAttendees"), QStringLiteral("04_Attendees_")},
        {QStringLiteral("clsRTFAttendeesTabulaRasa"), QStringLiteral("04_Attendees_TabulaRasa")},
        {QStringLiteral("clsRTFMeal"), QStringLiteral("04_Meals_")},
        {QStringLiteral("clsRTFRole"), QStringLiteral("04_Roles_")},
        {QStringLiteral("clsRTFTable"), QStringLiteral("04_SeatingChart_")},
        {QStringLiteral("clsRTFTableLayout"), QStringLiteral("04_TableOverview_")},
        {QStringLiteral("clsRTFTentcard"), QStringLiteral("04_Tentcard_")},
        {QStringLiteral("clsRTFFlights"), QStringLiteral("04_Flights_")},
        {QStringLiteral("clsRTFFlightOverview"), QStringLiteral("04_FlightOverview_")},
        {QStringLiteral("clsRTFHotels"), QStringLiteral("04_Hotels_")},
        {QStringLiteral("clsRTFHotelOverview"), QStringLiteral("04_HotelOverview_")},
        {QStringLiteral("clsRTFGift"), QStringLiteral("05_Gifts_")},
        {QStringLiteral("clsRTFTask"), QStringLiteral("06_Tasks_")},
        {QStringLiteral("clsRTFBudget"), QStringLiteral("07_Budget_")},
        {QStringLiteral("clsRTFBudgetPaidBy"), QStringLiteral("07_BudgetPaidBy_")},
        {QStringLiteral("clsRTFBudgetCategory"), QStringLiteral("07_BudgetEstimatesActuals_")},
        {QStringLiteral("clsRTFVendor"), QStringLiteral("08_Vendor_")},
        {QStringLiteral("clsRTFEvent"), QStringLiteral("09_Event_")},
        {QStringLiteral("clsRTFCalendar"), QStringLiteral("09_Calendar_")},
        {QStringLiteral("clsRTFTimeline"), QStringLiteral("10_Timeline_")},
        {QStringLiteral("clsRTFNotebook"), QStringLiteral("10_Notebook_")},
        {QStringLiteral("clsRTFWidgetsInvitation"), QStringLiteral("11_InvitationWording_")},
        {QStringLiteral("clsRTFWidgetsWeddingVows"), QStringLiteral("11_WeddingVows_")},
        {QStringLiteral("clsRTFSongs"), QStringLiteral("11_Songs_")},
        {QStringLiteral("clsRTFStatistics"), QStringLiteral("12_Wedding_Statistics_")},
        {QStringLiteral("clsRTFSQL"), QStringLiteral("99_Custom_")},
    };
    if (className == QLatin1String("clsRTFWidgetInvite")) {
        QString name = eventName;
        name.replace(QLatin1Char(' '), QLatin1Char('_'));
        return QStringLiteral("11_Invites_for_") + name + QLatin1Char('_');
    }
    return prefixes.value(className);
}

QString clsReportCatalogue::ReportFileName(const QString& prefix) {
    return prefix + ReportTimeStamp();
}

QString clsReportCatalogue::ReportFullFileName(const QString& prefix, bool useRtf) {
    return gApp().ReportPath() + QLatin1Char('/') + ReportFileName(prefix) +
           (useRtf ? QStringLiteral(".rtf") : QStringLiteral(".csv"));
}

QStringList clsReportCatalogue::CatalogueLines() {
    QStringList lines;
    for (const Section& section : Sections()) {
        lines << QStringLiteral("%1 [%2]").arg(section.Caption).arg(section.Key);
        for (const FilterRow& row : FilterRows(section.Key)) {
            QString line = QString(row.Indent > 0 ? 4 : 2, QLatin1Char(' ')) +
                           QStringLiteral("%1 [%2]").arg(row.FILTER).arg(row.Key);
            if (!row.COUNT.isEmpty())
                line += QStringLiteral(": ") + row.COUNT;
            if (!row.NOTES_TX.isEmpty())
                line += QStringLiteral(" - ") + row.NOTES_TX;
            if (!row.Available)
                line += QStringLiteral(" (not yet available)");
            lines << line;
        }
    }
    return lines;
}
