#include "reports/modReportRegistry.h"

#include "reports/clsRTFAttendees.h"
#include "reports/clsRTFAttendeesTabulaRasa.h"
#include "reports/clsRTFCalendar.h"
#include "reports/clsRTFContacts.h"
#include "reports/clsRTFFlightOverview.h"
#include "reports/clsRTFFlights.h"
#include "reports/clsRTFHotelOverview.h"
#include "reports/clsRTFHotels.h"
#include "reports/clsRTFEvent.h"
#include "reports/clsRTFBudget.h"
#include "reports/clsRTFBudgetCategory.h"
#include "reports/clsRTFBudgetPaidBy.h"
#include "reports/clsRTFContacts.h"
#include "reports/clsRTFGift.h"
#include "reports/clsRTFInvitation.h"
#include "reports/clsRTFMeal.h"
#include "reports/clsRTFNotebook.h"
#include "reports/clsRTFRSVP.h"
#include "reports/clsRTFRole.h"
#include "reports/clsRTFSQL.h"
#include "reports/clsRTFSongs.h"
#include "reports/clsRTFStatistics.h"
#include "reports/clsRTFTable.h"
#include "reports/clsRTFTableLayout.h"
#include "reports/clsRTFTask.h"
#include "reports/clsRTFTentcard.h"
#include "reports/clsRTFTimeline.h"
#include "reports/clsRTFVendor.h"
#include "reports/clsRTFWidgetInvite.h"
#include "reports/clsRTFWidgetsInvitation.h"
#include "reports/clsRTFWidgetsWeddingVows.h"
#include "reports/clsReportClasses.h"

#include <functional>

namespace {

// The route's filter, for the classes that take one.
void TakeFilter(clsRTFFilteredReport& report, const clsReportRoute& route) {
    report.FilterEnum = route.FilterEnum;
    report.FilterText = route.FilterText;
    report.CustomWhere = route.CustomWhere;
}

// Registers a class whose builder makes the report, hands it what the route carries and writes it.
template <class Report> void Register(std::function<void(Report&, const clsReportRoute&)> setUp = {}) {
    const Report prototype;
    clsReportClasses::Register(prototype.ClassName(), [setUp](const clsReportRoute& route) {
        Report report;
        if (setUp)
            setUp(report, route);
        return report.Build();
    });
}

} // namespace

void RegisterReportClasses() {
    Register<clsRTFContacts>([](clsRTFContacts& report, const clsReportRoute& route) {
        TakeFilter(report, route);
        report.ExcludeBrideGroom = route.ExcludeBrideGroom;
    });
    Register<clsRTFInvitation>(TakeFilter);
    Register<clsRTFRSVP>(TakeFilter);
    Register<clsRTFAttendees>(TakeFilter);
    Register<clsRTFAttendeesTabulaRasa>();
    Register<clsRTFMeal>();
    Register<clsRTFRole>();
    Register<clsRTFTable>();
    Register<clsRTFTableLayout>();
    Register<clsRTFTentcard>();
    Register<clsRTFStatistics>();
    Register<clsRTFTask>(TakeFilter);
    Register<clsRTFNotebook>();
    Register<clsRTFFlights>();
    Register<clsRTFFlightOverview>();
    Register<clsRTFHotels>();
    Register<clsRTFHotelOverview>();
    Register<clsRTFEvent>();
    Register<clsRTFTimeline>(TakeFilter);
    // The months come with the route ("2027-01:2027-06"), or else from the month dialog's settings.
    clsReportClasses::Register(QStringLiteral("clsRTFCalendar"), [](const clsReportRoute& route) {
        clsRTFCalendar calendar;
        if (!calendar.SetRange(route.Argument))
            calendar.TakeStoredRange();
        return calendar.Build();
    });
    Register<clsRTFBudget>(TakeFilter);
    Register<clsRTFBudgetPaidBy>();
    Register<clsRTFBudgetCategory>();
    Register<clsRTFGift>(TakeFilter);
    Register<clsRTFVendor>();
    Register<clsRTFWidgetsInvitation>();
    Register<clsRTFWidgetsWeddingVows>(
        [](clsRTFWidgetsWeddingVows& report, const clsReportRoute& route) { report.ReportIndex = route.Argument; });
    Register<clsRTFSongs>();
    Register<clsRTFWidgetInvite>(
        [](clsRTFWidgetInvite& report, const clsReportRoute& route) { report.EVENT_ID = route.Argument; });
    Register<clsRTFSQL>([](clsRTFSQL& report, const clsReportRoute& route) {
        report.SQL = route.SQL;
        report.SQL_NAME = route.SQL_NAME;
        report.SQL_DESC = route.SQL_DESC;
    });
}
