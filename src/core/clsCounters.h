#pragma once

#include "core/clsMoney.h"

#include <QString>

// The counts of the records of every part of the wedding, as gApp hands them to the Home page, the
// filter panels and the reports. The records live in the subsystems above this layer, so the start-up
// layer, which knows them all, answers these and installs itself with clsApp::SetCounters.
class clsCounters {
public:
    virtual ~clsCounters() = default;

    virtual long TotalBudget(int filter, const QString& categoryId) const = 0;
    virtual long TotalBudgetCategories() const = 0;
    virtual long TotalContacts(int filter, const QString& customWhere, bool excludeBrideGroom) const = 0;
    virtual long TotalEvents() const = 0;
    virtual long TotalGifts(int filter, const QString& customWhere) const = 0;
    virtual long TotalInvitations(int filter, const QString& customWhere) const = 0;
    virtual long TotalNotes() const = 0;
    virtual long TotalTables(int kind) const = 0;
    virtual long TotalTasks(int filter) const = 0;
    virtual long TotalTentcards() const = 0;
    virtual long TotalTimelineEntries(const QString& eventId) const = 0;
    virtual long TotalTimelineEvents() const = 0;
    virtual long TotalVendors() const = 0;
    virtual clsMoney TotalBudgetSumEstimates() const = 0;
    virtual long TotalFlights() const = 0;
    virtual long TotalHotels() const = 0;
    virtual long TotalSongs() const = 0;
};
