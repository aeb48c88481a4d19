#pragma once

#include "TestDatabase.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/clsTIMELINE.h"

#include <QtTest>

// A fresh database for one test, with the wedding day reopened from it and the real clock back.
class PlanningDatabase : public TestDatabase {
public:
    PlanningDatabase() {
        SetNowForTesting(QDateTime());
        gWeddingEvent() = clsEVENT();
        gWeddingEvent().OpenRecord(QStringLiteral("1"));
    }
    ~PlanningDatabase() {
        SetNowForTesting(QDateTime());
        gWeddingEvent() = clsEVENT();
    }

    // Saves the wedding day with that date, as the event editor does.
    static void SetWeddingDate(const QString& date) {
        clsEVENT wedding;
        QVERIFY(wedding.OpenRecord(QStringLiteral("1")));
        wedding.EVENT_DT = date;
        wedding.Save(false);
    }

    static QString Count(const QString& table, const QString& where = QString()) {
        return Scalar(QStringLiteral("SELECT COUNT(*) FROM %1 %2").arg(table, where));
    }
};

// One member of every record, in the list's order.
template <class T>
QStringList Pluck(const QList<T>& records, QString T::*member) {
    QStringList values;
    for (const T& record : records)
        values << record.*member;
    return values;
}

// An event of that key, name and date ("2027-06-05 15:30:00" or "05-Jun-2027 3:30 PM"), at a known address.
inline void AddTestEvent(const QString& id, const QString& name, const QString& when,
                         const QString& notes = QString()) {
    clsEVENT event;
    event.EVENT_ID = id;
    event.EVENT_TX = name;
    event.EVENT_DT = when;
    event.ADDRESS_TX = QStringLiteral("12 Maple Ave");
    event.CITY_TX = QStringLiteral("Springfield");
    event.NOTES_TX = notes;
    RecordIO::Save(event, clsEVENT::Table(), true, false);
}

// A timeline entry of an event, for the DJ.
inline void AddTestEntry(const QString& eventId, const QString& desc, const QString& start, const QString& end,
                         const QString& notes = QString()) {
    clsTIMELINE entry;
    entry.EVENT_ID = eventId;
    entry.TIMELINE_DESC = desc;
    entry.TIMELINE_START_DT = start;
    entry.TIMELINE_END_DT = end;
    entry.CONTACT_NM = QStringLiteral("DJ");
    entry.NOTES_TX = notes;
    entry.Save(true);
}
