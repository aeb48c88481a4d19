#pragma once

#include "core/RecordIO.h"
#include "planning/clsEVENT.h"

#include <QList>
#include <QString>

// One entry of an event's schedule: a start, an end, a description and the people involved. Entries
// chain: the next one starts where the latest one of its event ends.
class clsTIMELINE {
public:
    QString TIMELINE_ID;
    QString TIMELINE_START_DT;
    QString TIMELINE_END_DT;
    QString TIMELINE_DESC;
    QString CONTACT_NM;
    QString EVENT_ID;
    QString NOTES_TX;
    QString EVENT_TX; // from the join

    static const RecordTable<clsTIMELINE>& Table();

    // "1 hr. 30 min.", "2 hrs.", "45 min."; "--" when start and end read the same clock time. Only the
    // times count, so an entry over midnight still counts forward.
    QString Duration() const;
    static QString Duration(const QTime& start, const QTime& end);
    QString TIMELINE_END_DT_DateTimeFormat() const;
    QString TIMELINE_START_DT_DateTimeFormat() const;
    QString TIMELINE_START_DT_DateFormat() const;
    // The start time alone when start and end read the same, else start + "-" + end.
    QString TIMELINE_START_TM_TO_END_TM() const;
    static QString TIMELINE_START_TM_TO_END_TM(const QTime& start, const QTime& end);

    static void CreateTable();
    // Every operation below that reads or writes throws clsDbError when the database refuses.

    void Delete(const QString& timelineId);
    // Where the next entry of the event starts: the end of its latest entry, or "8:00 AM" for an event
    // without entries. Without an event: midnight.
    QString GetLastTime(const QString& eventId) const;
    long GetTotal(const QString& eventId = QString()) const;
    // The number of events that have entries.
    long GetTotalEvents() const;
    // The events that have entries (date, id and name filled), by date.
    QList<clsEVENT> OpenEvents() const;
    bool OpenRecord(const QString& timelineId);
    QList<clsTIMELINE> OpenRecords(const QString& eventId = QString()) const;
    void Save(bool isNew);

private:
    static const RecordTable<clsTIMELINE>& ReadTable();
    static QString SelectSql();
};
