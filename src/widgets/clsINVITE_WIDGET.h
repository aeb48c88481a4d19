#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>

// Who is invited to an event other than the wedding day: a row holds either a contact or a whole
// invitation (one of CONTACT_ID and INVITE_ID is filled).
class clsINVITE_WIDGET {
public:
    QString INVITE_WIDGET_ID;
    QString EVENT_ID;
    QString INVITE_ID;
    QString CONTACT_ID;
    // From the event.
    QString EVENT_TX;
    // Display fields, read from the contact or the invitation when the rows are opened.
    QString DISPLAY_NM;                // the invitation's display name, or the contact's last name
    QString NAME_TX;                   // the envelope name of the contact or of the invitation
    QString OUTER_ENVELOPE_ADDRESS_TX; // the contact's address, or the invitation's primary contact's
    QString PHONE_TX;
    QString EMAIL_TX;
    int PEOPLE_NB = 0; // the people the row stands for: 1 for a contact, the guests of an invitation

    static const RecordTable<clsINVITE_WIDGET>& Table();

    // The address with its line breaks as ", " unless multiLine is set.
    QString OUTER_ENVELOPE_ADDRESS_TX_Text(bool multiLine) const;
    static bool CreateTable();
    // Every operation below that reads or writes throws clsDbError when the database refuses.

    // Takes a contact or an invitation off the event's list; with neither, the whole list goes.
    static void Delete(const QString& eventID, const QString& contactID = QString(),
                       const QString& inviteID = QString());
    // Rows on the event's list.
    static long GetTotal(const QString& eventID);
    // People on the event's list: each invitation counts with all of its guests.
    static long GetTotalContacts(const QString& eventID);
    // The events that have a list, by date: EVENT_ID and EVENT_TX are filled.
    static QList<clsINVITE_WIDGET> OpenEvents();
    // The event's list, contacts and invitations together, sorted by last name or display name.
    static QList<clsINVITE_WIDGET> OpenRecords(const QString& eventID);
    void Save(bool isNew);

    // ---- The two lists of an event's side ----
    // A candidate for the event's list: a contact or an invitation not on it yet.
    struct Candidate {
        QString Key;     // "CONTACT" or "INVITE" + the id
        QString Caption; // the contact's LastFirstMiddleSuffix, the invitation's display name
    };
    // The contacts (or the invitations) that the event's list does not hold yet, by name.
    static QList<Candidate> Candidates(const QString& eventID, bool contacts);
    // Puts the contacts and invitations of these keys ("CONTACT7", "INVITE3") on the event's list, or
    // takes them off it; one piece of work, all or nothing. A key already where it goes is left alone.
    static void Invite(const QString& eventID, const QStringList& keys);
    static void Uninvite(const QString& eventID, const QStringList& keys);
};
