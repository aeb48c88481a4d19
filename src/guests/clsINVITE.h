#pragma once

#include "core/RecordIO.h"
#include "guests/clsCONTACT.h"

#include <QList>
#include <QString>
#include <functional>

// One envelope: a row of INVITE, to which its people point by CONTACT.INVITE_ID in SORT_ORDER_NB
// order. The first of them is the primary contact, whose address is the envelope's. The class
// writes the envelope by itself, the way etiquette addresses a person, a couple or a family: the
// name in lists (DISPLAY_AS_TX), the outer envelope and the inner envelope. With AUTO_UPDATE_FG 'N'
// the two envelope texts are the user's own and stay as typed.
class clsINVITE {
public:
    // ---- Columns of INVITE ----
    QString INVITE_ID;
    QString INVITE_RSVP_ID; // the number written on the response card
    QString DISPLAY_AS_TX;
    QString OUTER_ENVELOPE_TX;
    QString INNER_ENVELOPE_TX;
    QString INVITE_SENT_FG;
    QString RSVP_RECEIVED_FG;
    QString AUTO_UPDATE_FG;

    // ---- Of the primary contact ----
    QString OUTER_ENVELOPE_ADDRESS_TX; // the envelope's address, held only in memory
    QString PHONE_TX;
    QString EMAIL_TX;
    QString AB_LIST_CD;

    // ---- The people, after SetGuests ----
    QList<clsCONTACT> GUESTS;    // in SORT_ORDER_NB order, bride and groom left out
    QString GUEST_CONTACT_ID;    // the first person brought as a guest
    QString GUEST_OF_CONTACT_ID; // and who brings them

    static const RecordTable<clsINVITE>& Table();

    // ---- Values ----
    // An unset flag means on.
    int AUTO_UPDATE_FG_VALUE() const;
    void SetAUTO_UPDATE_FG_VALUE(int value);
    QString INVITE_SENT_FG_Text() const;
    QString RSVP_RECEIVED_FG_Text() const;
    long NUMBER_ATTENDING_NB() const;
    long NUMBER_INVITED_NB() const;
    QString OUTER_ENVELOPE_ADDRESS_Text(bool Hint, bool MultiLine) const;
    QString OUTER_ENVELOPE_TX_AND_OUTER_ENVELOPE_ADDRESS_TX(bool MultiLine) const;

    // ---- Records ----
    // Every operation below throws clsDbError when the database refuses; whoever asked shows it
    // (RecordIO::Attempt). Work on several rows is all or nothing.

    // True when the invitation (with a primary contact) was found. An empty id reads nothing.
    bool OpenRecord(const QString& inviteId, bool LoadGuests = false);
    bool OpenRecordByRSVP_ID(const QString& rsvpId, bool LoadGuests = false);
    static QList<clsINVITE> OpenRecords(int filter, bool SortByName, const QString& customWhere = {});
    static long GetTotal(int filter, const QString& customWhere = {});

    // Inserts (with a new key, and a new RSVP ID when none is given) or updates. Saving an unsent
    // invitation first clears the attendance, meals and seats of its people. A failed save leaves the
    // object as it was.
    void Save(bool Add);
    // Saves the invitation with its people in the given order: everyone it had is released first, with
    // all attendance; a brought guest not yet saved is added; the people are put on it in order, the
    // first of them primary; and a brought guest who is no longer on it is gone. GUESTS then holds the
    // people as saved.
    void SaveWithPeople(bool Add, const QList<clsCONTACT>& people);
    // Writes the reply: RSVP_RECEIVED_FG, and ATTENDING_FG and MEAL_ID of each person in GUESTS. A reply
    // changes no envelope; a person who does not come keeps no meal and no seat.
    void SaveReply();
    // Sets its people free, removes the invitation and the guests they brought; the invited people
    // stay as uninvited contacts. The one invitation of DeleteMany, sent or not.
    static void Delete(const QString& inviteId);
    // The same for each invitation, in one transaction, one step of progress each. With KeepSent an
    // invitation whose card is out stays (it is Kept). Throws on a failure, with nothing changed.
    static clsDeleteResult DeleteMany(const QStringList& inviteIds, bool KeepSent, const clsProgress& progress = {});
    // Marks each invitation sent or not (not sent also takes back its reply), in one transaction, one step
    // of progress each. An envelope without an address can't go out: such an invitation is passed over,
    // and SkippedUnaddressed says so when marking sent. Throws on a failure, with nothing changed.
    struct SentResult {
        QStringList Saved;
        bool SkippedUnaddressed = false;
    };
    static SentResult MarkSent(const QStringList& inviteIds, bool sent, const clsProgress& progress = {});
    // Removes every invitation no contact points to.
    static void DeleteInvitesWithNoGuests();

    // ---- Relabelling every invitation ----
    // Told after each invitation how many are done of how many; answers false to stop.
    using Progress = std::function<bool(qsizetype done, qsizetype total)>;
    // Writes the inner envelope of every invitation anew for the etiquette in force. Stopped by the
    // progress, it puts everything back and answers false.
    static bool RelabelAll(const Progress& progress = {});
    // Stores the etiquette and relabels every invitation by it, as one piece of work: stopped or
    // failed, the stored etiquette and the texts stay as they were.
    static bool ChangeEtiquette(bool formal, const Progress& progress = {});

    // ---- People and labels ----
    void SetGuests();
    void mxSetOUTER_ENVELOPE_ADDRESS_TX();
    // Rewrites DISPLAY_AS_TX always, the envelope texts when automatic update is on or Force is set.
    // Nothing is saved here.
    void RefreshLabeling(bool ReloadGuests, bool Force);
    // Rewrites the inner envelope alone, when automatic update is 'Y' (after the etiquette changed).
    void RefreshInnerEnvelope();
    // The first person of the invitation becomes its primary contact.
    static void RefreshPrimaryContact(const QString& inviteId);

    // The builders, on GUESTS as they stand.
    QString BuildDisplayAs() const;
    QString BuildOuterEnvelope() const;
    QString BuildInnerEnvelope(bool formal) const;
    // " and Guest", or " and " + the guest's first name, when the invitation is one person and the
    // guest they bring; "" otherwise.
    QString GuestTail() const;
    // " und " after "Herr", " et " after "M.", " y " after "Sr.", " and " otherwise.
    static QString Joiner(const QString& firstTitle);
    // The etiquette of invitations kept with the data (formal or personal).
    static bool EtiquetteIsFormal();

    // ---- RSVP IDs ----
    static QString NEXT_INVITE_RSVP_ID();
    static void ClearIDs();
    // True when exactly one sent invitation holds the number.
    static bool INVITE_RSVP_ID_Sent(const QString& rsvpId);
    // Numbers every unsent invitation from 1 by name, skipping the numbers sent invitations hold;
    // all or nothing.
    static void SortRSVPIDs();

    // ---- Filters ----
    static QString WHERE_CLAUSE(int filter);
    static QString BuildInviteWhere(int filter, const QString& customWhere);

    // ---- Schema ----
    static bool Patch_2_Apply();

private:
    static const RecordTable<clsINVITE>& ReadTable();
    static QString SelectSQL();
    bool OpenBy(const QString& condition, const QString& value, bool LoadGuests);
};
// Only texts (and lists of them) inside: a record may move in memory as a block, so long lists of records
// grow without copying them one by one.
Q_DECLARE_TYPEINFO(clsINVITE, Q_RELOCATABLE_TYPE);
