#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>
#include <QVariantList>
#include <functional>

// What a delete of several records did. Deleted: every key removed, in the order they went (the
// guests that went with a person come after them). Kept: keys named that a rule keeps. Missing: keys
// named that have no record.
struct clsDeleteResult {
    QStringList Deleted;
    QStringList Kept;
    QStringList Missing;
};

// How far a long run has come: done of total steps.
using clsProgress = std::function<void(int done, int total)>;
// One more step of a run over total items; nothing when nobody listens.
inline void StepProgress(const clsProgress& progress, int& done, qsizetype total) {
    if (progress)
        progress(++done, static_cast<int>(total));
}

// One person of the wedding: the bride (ROLE_ID 1), the groom (ROLE_ID 2), a friend or relative, or
// the guest an invited person brings. Attendance, meal, table, flight and hotel are columns of the
// person; the invitation a person is on is INVITE_ID. The class also holds the ways of writing a
// name, the filter codes every guest list and counter shares, and the cascades that keep the
// invitations right when a person is saved or removed.
class clsCONTACT {
public:
    // ---- Columns of CONTACT, in the order of the INSERT ----
    QString CONTACT_ID;
    QString TITLE_TX;
    QString FIRST_NM;
    QString MIDDLE_NM;
    QString LAST_NM;
    QString SUFFIX_TX;
    QString NICK_NM;
    QString ADDRESS_TX; // the whole postal address, lines separated by CR LF
    QString CITY_TX;
    QString STATE_TX;
    QString ZIP_TX;
    QString COUNTRY_TX;
    QString PHONE_TX;
    QString EMAIL_TX;
    QString FRIEND_OF_CD; // 1 bride's side, 2 groom's side, 3 both
    QString AB_LIST_CD;
    QString ROLE_ID;
    QString INVITE_ID;
    QString PRIMARY_CONTACT_FG;
    QString ATTENDING_FG;
    QString MEAL_ID;
    QString DINING_TABLE_ID;
    QString GUEST_OF_ID; // the person who brings this guest
    QString SORT_ORDER_NB;
    QString OUT_OF_TOWNER_FG;
    QString FLIGHT_ID;
    QString HOTEL_ID;
    QString PHONE2_TX;
    QString GENDER_FG;
    QString CHILD_FG;
    QString NOTES_TX;

    // ---- Read only, joined in from other tables ----
    QString ROLE_TX;
    QString INVITE_RSVP_ID;
    QString DISPLAY_AS_TX;
    QString OUTER_ENVELOPE_TX;
    QString INNER_ENVELOPE_TX;
    QString INVITE_SENT_FG;
    QString RSVP_RECEIVED_FG;
    QString DINING_TABLE_NB;
    QString DINING_TABLE_NM;
    QString MEAL_TX;
    QString GUEST_OF_FIRST_NM;
    QString GUEST_OF_LAST_NM;
    QString FLIGHT_NB;
    QString FLIGHT_NM;
    QString DEPARTS_AIRPORT_NM;
    QString DEPARTS_DT;
    QString ARRIVES_AIRPORT_NM;
    QString ARRIVES_DT;
    QString HOTEL_NB;
    QString HOTEL_NM;

    // ---- In memory only ----
    QString FULL_NAME;                // text a caller hands along; never saved
    QString CascadeDeletedCONTACT_ID; // after Delete: the guest that went with the person, or ""

    static const RecordTable<clsCONTACT>& Table();

    // ---- Values ----
    int CHILD_FG_VALUE() const { return CHILD_FG == QLatin1String("Y") ? 1 : 0; }
    void SetCHILD_FG_VALUE(int value) { CHILD_FG = value != 0 ? QStringLiteral("Y") : QStringLiteral("N"); }
    int OUT_OF_TOWNER_FG_VALUE() const { return OUT_OF_TOWNER_FG == QLatin1String("Y") ? 1 : 0; }
    void SetOUT_OF_TOWNER_FG_VALUE(int value) {
        OUT_OF_TOWNER_FG = value != 0 ? QStringLiteral("Y") : QStringLiteral("N");
    }
    QString DisplayAddress(bool MultiLine) const;
    QString FRIEND_OF_TX() const;
    QString GENDER_FG_Text() const;
    QString GENDER_FG_WITH_CHILD_Text() const;
    QString GUEST_OF_FULL_NM() const { return GUEST_OF_FIRST_NM + QLatin1Char(' ') + GUEST_OF_LAST_NM; }
    QString OUT_OF_TOWNER_FG_Text() const;
    // The first telephone; the second only beside a first one.
    QString PHONE_NUMBERS(bool MultiLine) const;
    // ", Jr." for a junior or senior, the suffix as stored otherwise.
    QString SUFFIX_Text() const;
    // The anonymous "and Guest": a brought guest whose middle name is exactly "Guest".
    bool IsAnonymousGuest() const;

    // ---- Names ----
    QString FirstLast() const;
    QString FirstMiddle() const;
    QString FirstMiddleLast() const;
    QString FirstMiddleLastSuffix() const;
    QString LastFirst() const;
    QString LastFirstMiddle() const;
    QString LastFirstSuffix() const;
    QString LastFirstMiddleSuffix() const;
    // A person in a list, last name first; the guest someone brings without a name is "Guest".
    QString ListName() const { return IsAnonymousGuest() ? QStringLiteral("Guest") : LastFirstMiddleSuffix(); }
    QString LastTitleFirst() const;
    QString NickOrFirstMiddle() const;
    QString TitleFirstMiddleLastSuffix() const;
    QString TitleFirstMiddleLastSuffix_OuterEnvelope() const;
    QString TitleLastOrFirst() const;

    // Cuts a one-line name into the five name fields (title parsing on); all five are overwritten.
    void ParseFullName(const QString& name);

    // ---- Records ----
    // Every operation below throws clsDbError when the database refuses; whoever asked shows it
    // (RecordIO::Attempt). Work on several rows is all or nothing.

    // The first given of id, role, e-mail, guest-of decides (a later one wins); with none given nothing
    // is read. True when a row was read; no row leaves the object as it was.
    bool OpenRecord(const QString& contactId, const QString& roleId = {}, const QString& email = {},
                    const QString& guestOfId = {});
    static QList<clsCONTACT> OpenRecords(int filter, const QString& customWhere = {},
                                         const QString& sort = {}, bool excludeBrideGroom = false);
    static long GetTotal(int filter, const QString& customWhere = {}, bool excludeBrideGroom = false);

    // Writes every column. An update of a person who does not attend drops their meal and seat. With
    // RefreshInvite, an update re-labels the person's invitation in the same transaction. A failed save
    // leaves the object as it was.
    void Save(bool Add, bool RefreshInvite);
    // Removes the person and the guest they bring, makes the next person of their invitation the
    // primary one, re-labels the invitation and removes it if nobody is left: all or nothing. The one
    // person of DeleteMany; the bride and the groom stay.
    void Delete(const QString& contactId);
    // Removes the people and the guests they bring, makes the first person left on each invitation
    // they were on its primary one, re-labels those invitations (even frozen ones) and removes those
    // nobody is left on. One transaction, one step of progress per person and per invitation. The
    // bride and the groom are kept. Throws on a failure, with nothing changed.
    static clsDeleteResult DeleteMany(const QStringList& contactIds, const clsProgress& progress = {});
    // Opens, changes and saves each person in the order given, all or nothing; a key that is gone is
    // passed over. The keys saved, in order. Throws on a failure, with nothing changed.
    static QStringList ChangeMany(const QStringList& contactIds,
                                  const std::function<void(clsCONTACT&)>& change, bool RefreshInvite,
                                  const clsProgress& progress = {});
    // The bride and the groom: contact rows 1 and 2, and whoever holds their roles 1 and 2.
    static bool IsCouple(const QString& contactId, const QString& roleId);
    // A role is held by one person: it is taken from whoever has it, then given to the contact (or to
    // nobody when the contact id is empty).
    static void SaveRole(const QString& contactId, const QString& roleId);
    // The couple, rows 1 and 2, as the first start learns them: their names, the titles "Miss" and "Mr.",
    // the A list, both attending, and the groom heading their own envelope should they ever be given one.
    static void SaveCouple(const clsCONTACT& bride, const clsCONTACT& groom);

    // ---- Narrow updates; each one statement, nothing done for an empty id ----
    static void DeleteGuestOfGuestsWithNoInvitation();
    static void UpdateAttendeeFieldsToNull(const QString& inviteId);
    static void UpdateInvitesToNull(const QString& inviteId);
    static void Update_DINING_TABLE_ID_TO_NULL(const QString& diningTableId);
    static void Update_FLIGHT_ID_TO_NULL(const QString& flightId);
    static void Update_HOTEL_ID_TO_NULL(const QString& hotelId);
    static void UpdateFlight(const QString& contactId, const QString& flightId);
    static void UpdateHotel(const QString& contactId, const QString& hotelId);

    // ---- Map ----
    // The address on the map site of the country chosen in the settings kept with the data.
    QString MapURL() const;
    bool MapIt() const;

    // ---- Filters ----
    // The condition of a filter code, without the word WHERE; "" for 0, 1000 and unknown codes.
    static QString WHERE_CLAUSE(int filter, bool excludeBrideGroom);
    static QString ExcludeBrideGroomClause(bool excludeBrideGroom);
    static QString BuildContactWhere(int filter, const QString& customWhere, bool excludeBrideGroom);
    static QString BuildContactOrder(int filter, const QString& sort);
    // "INNER JOIN" for the codes that speak of sent invitations, "LEFT JOIN" for all others.
    static QString ContactJoinType(int filter);

    // ---- Schema ----
    static bool Patch_1_Apply(); // address parts into one block; the caller keeps the flag
    static bool Patch_2_Apply();
    static bool Patch_6_Apply();
    static bool Patch_7_Apply();

private:
    static const RecordTable<clsCONTACT>& ReadTable();
    static QString SelectSQL();
    static QList<clsCONTACT> Query(const QString& sql, const QVariantList& values = {});
    static void RunWithId(const QString& sql, const QString& id);
    static void FillNewColumn(const QString& column);
};
// Only texts (and lists of them) inside: a record may move in memory as a block, so long lists of records
// grow without copying them one by one.
Q_DECLARE_TYPEINFO(clsCONTACT, Q_RELOCATABLE_TYPE);

// The bride and the groom, contact rows 1 and 2, opened at start-up.
clsCONTACT& gBride();
clsCONTACT& gGroom();
