// The counts of clsApp: the Home page, the filter panels and the statistics report read them. Each
// makes a new record object, asks it and hands the answer back as it is.
#include "core/clsApp.h"

#include "core/clsDICT.h"
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

long clsApp::TotalBudget(int filter, const QString& categoryId) const {
    return clsBUDGET().Total(filter, categoryId);
}

long clsApp::TotalBudgetCategories() const {
    return clsBUDGET_CATEGORY_DICT().Total();
}

long clsApp::TotalContacts(int filter, const QString& customWhere, bool excludeBrideGroom) const {
    return clsCONTACT::GetTotal(filter, customWhere, excludeBrideGroom);
}

long clsApp::TotalEvents() const {
    return clsEVENT().GetTotal();
}

long clsApp::TotalGifts(int filter, const QString& customWhere) const {
    return clsGIFT().GetTotal(filter, customWhere);
}

long clsApp::TotalInvitations(int filter, const QString& customWhere) const {
    return clsINVITE::GetTotal(filter, customWhere);
}

long clsApp::TotalNotes() const {
    return clsNOTEBOOK().GetTotal();
}

long clsApp::TotalSettings(int dictionaryKind) const {
    return clsDICT::GetTotal(dictionaryKind);
}

long clsApp::TotalTables(int kind) const {
    return clsDINING_TABLE().GetTotal(kind);
}

long clsApp::TotalTasks(int filter) const {
    return clsTASK().GetTotal(filter);
}

long clsApp::TotalTentcards() const {
    return clsTENTCARD::Total();
}

long clsApp::TotalTimelineEntries(const QString& eventId) const {
    return clsTIMELINE().GetTotal(eventId);
}

long clsApp::TotalTimelineEvents() const {
    return clsTIMELINE().GetTotalEvents();
}

long clsApp::TotalVendors() const {
    return clsVENDOR().GetTotal();
}

double clsApp::TotalBudgetSumEstimates() const {
    return clsBUDGET_CATEGORY_DICT::TotalSumEstimates();
}

long clsApp::TotalFlights() const {
    return clsFLIGHT::Total();
}

long clsApp::TotalHotels() const {
    return clsHOTEL::Total();
}

long clsApp::TotalSongs() const {
    return clsSONG::Total(QString());
}
