// The counts gApp hands out, answered by the record classes of every subsystem. Each makes a new record
// object, asks it and hands the answer back as it is.
#include "startup/clsApp_Counters.h"

#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"
#include "planning/clsGIFT.h"
#include "planning/clsNOTEBOOK.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "planning/clsVENDOR.h"
#include "seating/clsDINING_TABLE.h"
#include "seating/clsFLIGHT.h"
#include "seating/clsHOTEL.h"
#include "seating/clsTENTCARD.h"
#include "widgets/clsSONG.h"

long clsApp_Counters::TotalBudget(int filter, const QString& categoryId) const {
    return clsBUDGET().Total(filter, categoryId);
}

long clsApp_Counters::TotalBudgetCategories() const {
    return clsBUDGET_CATEGORY_DICT().Total();
}

long clsApp_Counters::TotalContacts(int filter, const QString& customWhere, bool excludeBrideGroom) const {
    return clsCONTACT::GetTotal(filter, customWhere, excludeBrideGroom);
}

long clsApp_Counters::TotalEvents() const {
    return clsEVENT().GetTotal();
}

long clsApp_Counters::TotalGifts(int filter, const QString& customWhere) const {
    return clsGIFT().GetTotal(filter, customWhere);
}

long clsApp_Counters::TotalInvitations(int filter, const QString& customWhere) const {
    return clsINVITE::GetTotal(filter, customWhere);
}

long clsApp_Counters::TotalNotes() const {
    return clsNOTEBOOK().GetTotal();
}

long clsApp_Counters::TotalTables(int kind) const {
    return clsDINING_TABLE().GetTotal(kind);
}

long clsApp_Counters::TotalTasks(int filter) const {
    return clsTASK().GetTotal(filter);
}

long clsApp_Counters::TotalTentcards() const {
    return clsTENTCARD::Total();
}

long clsApp_Counters::TotalTimelineEntries(const QString& eventId) const {
    return clsTIMELINE().GetTotal(eventId);
}

long clsApp_Counters::TotalTimelineEvents() const {
    return clsTIMELINE().GetTotalEvents();
}

long clsApp_Counters::TotalVendors() const {
    return clsVENDOR().GetTotal();
}

clsMoney clsApp_Counters::TotalBudgetSumEstimates() const {
    return clsBUDGET_CATEGORY_DICT::TotalSumEstimates();
}

long clsApp_Counters::TotalFlights() const {
    return clsFLIGHT::Total();
}

long clsApp_Counters::TotalHotels() const {
    return clsHOTEL::Total();
}

long clsApp_Counters::TotalSongs() const {
    return clsSONG::Total(QString());
}
