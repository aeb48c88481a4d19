#pragma once

#include "core/RecordIO.h"

#include <QDate>
#include <QList>
#include <QTime>
#include <QString>

// One dated occasion around the wedding: the ceremony, the rehearsal, a shower. Row 1 is the wedding
// day itself; its date drives the countdown, the checklist's due dates and the invitation wording, so
// it is never deleted.
class clsEVENT {
public:
    QString EVENT_ID;
    QString EVENT_TX;
    QString EVENT_DT; // date and time in one value
    QString ADDRESS_TX;
    QString CITY_TX;
    QString STATE_TX;
    QString ZIP_TX;
    QString COUNTRY_TX;
    QString CONTACT_NM;
    QString PHONE_TX;
    QString FAX_TX;
    QString EMAIL_TX;
    QString WEB_SITE_TX;
    QString NOTES_TX;

    static const RecordTable<clsEVENT>& Table();

    // The address block joined with city, state, zip and country; on one line joined by ", ".
    QString DisplayAddress(bool multiLine) const;
    QString EVENT_DT_DateTimeFormat() const;
    QString EVENT_DT_DateFormat() const;
    QString EVENT_DT_TimeFormat() const;

    // Every operation below that reads or writes throws clsDbError when the database refuses.

    // The wedding day (key 1) is refused, and the table is untouched.
    void Delete(const QString& eventId);
    long GetTotal() const;
    // The address of the map link of this event's address, in the country of the settings.
    QString MapURL() const;
    bool MapIt() const;
    bool OpenRecord(const QString& eventId);
    // Every event by date; with a date, only the events of that calendar day, at any hour.
    QList<clsEVENT> OpenRecords(const QString& onDate = QString()) const;
    // Saving the wedding day hands its date to the settings and reopens gWeddingEvent().
    void Save(bool isNew);
    // The wedding day, event 1, at the given time ("dd-mmm-yyyy h:mm AM"), with the "Wedding Ceremony"
    // on its timeline for everyone (once); all or nothing.
    static void SaveWeddingDay(const QString& when);
    // EVENT_DT as the editor writes it: "dd-mmm-yyyy" + " " + the time in the program's time format.
    static QString ComposeEVENT_DT(const QDate& date, const QTime& time);
    // Moves the wedding day to that date and time, as a save of event 1 in the editor does (the settings'
    // wedding date follows); makes the wedding day when there is none yet.
    static void MoveWeddingDay(const QDate& date, const QTime& time);

    // Joins the old address parts into the one address block of every row (done once, see the driver).
    static void Patch_1_Apply();
};

// The wedding day, event row 1, opened at start-up and after every save of that row.
clsEVENT& gWeddingEvent();
