#pragma once

#include "core/clsCounters.h"

// The counts of gApp, answered by the record classes of every subsystem.
class clsApp_Counters final : public clsCounters {
public:
    long TotalBudget(int filter, const QString& categoryId) const override;
    long TotalBudgetCategories() const override;
    long TotalContacts(int filter, const QString& customWhere, bool excludeBrideGroom) const override;
    long TotalEvents() const override;
    long TotalGifts(int filter, const QString& customWhere) const override;
    long TotalInvitations(int filter, const QString& customWhere) const override;
    long TotalNotes() const override;
    long TotalTables(int kind) const override;
    long TotalTasks(int filter) const override;
    long TotalTentcards() const override;
    long TotalTimelineEntries(const QString& eventId) const override;
    long TotalTimelineEvents() const override;
    long TotalVendors() const override;
    clsMoney TotalBudgetSumEstimates() const override;
    long TotalFlights() const override;
    long TotalHotels() const override;
    long TotalSongs() const override;
};
