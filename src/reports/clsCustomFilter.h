#pragma once

#include "reports/clsReportRoute.h"

#include <QList>
#include <QSet>
#include <QString>

// The logic of the custom filter: check boxes for the fixed filters of one section (Contacts,
// Invitations, RSVPs, Attendees), combined into one condition out of the very conditions of those
// filters. Boxes of one group are alternatives of one property and are joined by " OR "; the groups
// that have a ticked box are joined by " AND ". Nothing typed by the user ever enters the condition.
class clsCustomFilter {
public:
    // The section, as the report screen numbers it.
    enum Form : int { Contacts = 1, Invitations = 2, RSVPs = 3, Attendees = 4 };

    class Box {
    public:
        QString Caption;
        int Key = 0; // the fixed filter the box stands for
    };
    class Group {
    public:
        QList<Box> Boxes;
    };

    explicit clsCustomFilter(int FormNumber);

    int FormNumber() const { return mFormNumber; }
    // False for a number that is no section of the custom filter (no boxes then).
    bool IsValid() const { return !mGroups.isEmpty(); }
    // "Contacts", "Invitations", "RSVPs" or "Attendees".
    QString HeaderCaption() const;
    // The groups and their boxes in display order.
    const QList<Group>& Groups() const { return mGroups; }

    void SetTicked(int key, bool ticked);
    bool IsTicked(int key) const { return mTicked.contains(key); }
    bool AnyTicked() const { return !mTicked.isEmpty(); }
    void ClearTicks() { mTicked.clear(); }

    // The condition of the ticked boxes. With nothing ticked it is empty, except for RSVPs and
    // Attendees, where it is the condition of their head rows ("All RSVPs", "All Attendees").
    QString BuildWhere() const;
    // The captions of the ticked boxes in display order, joined by "+"; empty with nothing ticked.
    QString FilterCaption() const;
    // How many records the condition finds now.
    long Count() const;
    // "custom filter = " + the count + " records"; empty while nothing is ticked.
    QString CountText() const;
    // The report to run: its class and the filter code that hands the record class this condition
    // (1000 for contacts and attendees, 20 for invitations and RSVPs).
    clsReportRoute Route() const;

private:
    bool CountsContacts() const { return mFormNumber == Contacts || mFormNumber == Attendees; }
    QString Condition(int key) const;

    int mFormNumber;
    QList<Group> mGroups;
    QSet<int> mTicked;
};
