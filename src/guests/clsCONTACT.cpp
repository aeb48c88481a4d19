#include "guests/clsCONTACT.h"

#include "core/clsVOWREN.h"

#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "core/modSchema.h"
#include "guests/clsFilterTable.h"
#include "guests/clsINVITE.h"
#include "guests/clsParseAddress.h"
#include "guests/clsParseName.h"
#include "platform/clsShell.h"

#include <QSet>

namespace {

const QString kCrLf = QStringLiteral("\r\n");

// The joins that bring in what a person's row shows: the person who brought a guest, role, meal,
// table, invitation, flight and hotel. Every contact is kept, whatever it lacks.
const char* const kJoins =
    " LEFT JOIN CONTACT AS CONTACT_1 ON CONTACT_1.CONTACT_ID = CONTACT.GUEST_OF_ID"
    " LEFT JOIN ROLE_DICT ON ROLE_DICT.ROLE_ID = CONTACT.ROLE_ID"
    " LEFT JOIN MEAL_DICT ON MEAL_DICT.MEAL_ID = CONTACT.MEAL_ID"
    " LEFT JOIN DINING_TABLE ON DINING_TABLE.DINING_TABLE_ID = CONTACT.DINING_TABLE_ID";
const char* const kTravelJoins = " LEFT JOIN FLIGHT ON FLIGHT.FLIGHT_ID = CONTACT.FLIGHT_ID"
                                 " LEFT JOIN HOTEL ON HOTEL.HOTEL_ID = CONTACT.HOTEL_ID";

bool IsJuniorOrSenior(const QString& suffix) {
    const QString upper = suffix.toUpper();
    return upper == QLatin1String("JR") || upper == QLatin1String("JR.") || upper == QLatin1String("SR") ||
           upper == QLatin1String("SR.");
}

QString MiddleThenSpace(const QString& middle) {
    return middle.isEmpty() ? QString() : middle + QLatin1Char(' ');
}

} // namespace

const RecordTable<clsCONTACT>& clsCONTACT::Table() {
    static const RecordTable<clsCONTACT> table{"CONTACT",
                                               "CONTACT_ID",
                                               {{"CONTACT_ID", &clsCONTACT::CONTACT_ID},
                                                {"TITLE_TX", &clsCONTACT::TITLE_TX},
                                                {"FIRST_NM", &clsCONTACT::FIRST_NM},
                                                {"MIDDLE_NM", &clsCONTACT::MIDDLE_NM},
                                                {"LAST_NM", &clsCONTACT::LAST_NM},
                                                {"SUFFIX_TX", &clsCONTACT::SUFFIX_TX},
                                                {"NICK_NM", &clsCONTACT::NICK_NM},
                                                {"ADDRESS_TX", &clsCONTACT::ADDRESS_TX},
                                                {"CITY_TX", &clsCONTACT::CITY_TX},
                                                {"STATE_TX", &clsCONTACT::STATE_TX},
                                                {"ZIP_TX", &clsCONTACT::ZIP_TX},
                                                {"COUNTRY_TX", &clsCONTACT::COUNTRY_TX},
                                                {"PHONE_TX", &clsCONTACT::PHONE_TX},
                                                {"EMAIL_TX", &clsCONTACT::EMAIL_TX},
                                                {"FRIEND_OF_CD", &clsCONTACT::FRIEND_OF_CD},
                                                {"AB_LIST_CD", &clsCONTACT::AB_LIST_CD},
                                                {"ROLE_ID", &clsCONTACT::ROLE_ID},
                                                {"INVITE_ID", &clsCONTACT::INVITE_ID},
                                                {"PRIMARY_CONTACT_FG", &clsCONTACT::PRIMARY_CONTACT_FG},
                                                {"ATTENDING_FG", &clsCONTACT::ATTENDING_FG},
                                                {"MEAL_ID", &clsCONTACT::MEAL_ID},
                                                {"DINING_TABLE_ID", &clsCONTACT::DINING_TABLE_ID},
                                                {"GUEST_OF_ID", &clsCONTACT::GUEST_OF_ID},
                                                {"SORT_ORDER_NB", &clsCONTACT::SORT_ORDER_NB},
                                                {"OUT_OF_TOWNER_FG", &clsCONTACT::OUT_OF_TOWNER_FG},
                                                {"FLIGHT_ID", &clsCONTACT::FLIGHT_ID},
                                                {"HOTEL_ID", &clsCONTACT::HOTEL_ID},
                                                {"PHONE2_TX", &clsCONTACT::PHONE2_TX},
                                                {"GENDER_FG", &clsCONTACT::GENDER_FG},
                                                {"CHILD_FG", &clsCONTACT::CHILD_FG},
                                                {"NOTES_TX", &clsCONTACT::NOTES_TX}}};
    return table;
}

const RecordTable<clsCONTACT>& clsCONTACT::ReadTable() {
    static const RecordTable<clsCONTACT> table = [] {
        RecordTable<clsCONTACT> t = Table();
        t.Fields.insert(t.Fields.end(), {{"ROLE_TX", &clsCONTACT::ROLE_TX},
                                         {"DINING_TABLE_NB", &clsCONTACT::DINING_TABLE_NB},
                                         {"DINING_TABLE_NM", &clsCONTACT::DINING_TABLE_NM},
                                         {"MEAL_TX", &clsCONTACT::MEAL_TX},
                                         {"GUEST_OF_FIRST_NM", &clsCONTACT::GUEST_OF_FIRST_NM},
                                         {"GUEST_OF_LAST_NM", &clsCONTACT::GUEST_OF_LAST_NM},
                                         {"INVITE_RSVP_ID", &clsCONTACT::INVITE_RSVP_ID},
                                         {"DISPLAY_AS_TX", &clsCONTACT::DISPLAY_AS_TX},
                                         {"OUTER_ENVELOPE_TX", &clsCONTACT::OUTER_ENVELOPE_TX},
                                         {"INNER_ENVELOPE_TX", &clsCONTACT::INNER_ENVELOPE_TX},
                                         {"INVITE_SENT_FG", &clsCONTACT::INVITE_SENT_FG},
                                         {"RSVP_RECEIVED_FG", &clsCONTACT::RSVP_RECEIVED_FG},
                                         {"FLIGHT_NB", &clsCONTACT::FLIGHT_NB},
                                         {"FLIGHT_NM", &clsCONTACT::FLIGHT_NM},
                                         {"DEPARTS_AIRPORT_NM", &clsCONTACT::DEPARTS_AIRPORT_NM},
                                         {"DEPARTS_DT", &clsCONTACT::DEPARTS_DT},
                                         {"ARRIVES_AIRPORT_NM", &clsCONTACT::ARRIVES_AIRPORT_NM},
                                         {"ARRIVES_DT", &clsCONTACT::ARRIVES_DT},
                                         {"HOTEL_NB", &clsCONTACT::HOTEL_NB},
                                         {"HOTEL_NM", &clsCONTACT::HOTEL_NM}});
        return t;
    }();
    return table;
}

// ---- Values ---------------------------------------------------------------------------------------

QString clsCONTACT::DisplayAddress(bool MultiLine) const {
    QString text = ADDRESS_TX;
    if (!MultiLine)
        text.replace(kCrLf, QStringLiteral(", "));
    return TrimCrLf(text);
}

QString clsCONTACT::FRIEND_OF_TX() const {
    const QString code = FRIEND_OF_CD.trimmed();
    if (code == QLatin1String("1"))
        return QStringLiteral("Bride");
    if (code == QLatin1String("2"))
        return QStringLiteral("Groom");
    if (code == QLatin1String("3"))
        return QStringLiteral("Both");
    return {};
}

QString clsCONTACT::GENDER_FG_Text() const {
    return GENDER_FG == QLatin1String("M") ? QStringLiteral("Male") : QStringLiteral("Female");
}

QString clsCONTACT::GENDER_FG_WITH_CHILD_Text() const {
    return GENDER_FG_Text() + (CHILD_FG == QLatin1String("Y") ? QStringLiteral(" (Child)") : QString());
}

QString clsCONTACT::OUT_OF_TOWNER_FG_Text() const {
    return OUT_OF_TOWNER_FG == QLatin1String("Y") ? QStringLiteral("Yes") : QStringLiteral("No");
}

QString clsCONTACT::PHONE_NUMBERS(bool MultiLine) const {
    QString text = PHONE_TX;
    if (!PHONE_TX.isEmpty() && !PHONE2_TX.isEmpty())
        text += (MultiLine ? kCrLf : QStringLiteral(", ")) + PHONE2_TX;
    return text;
}

QString clsCONTACT::SUFFIX_Text() const {
    return IsJuniorOrSenior(SUFFIX_TX) ? QStringLiteral(", ") + SUFFIX_TX : SUFFIX_TX;
}

bool clsCONTACT::IsAnonymousGuest() const {
    return !GUEST_OF_ID.isEmpty() && MIDDLE_NM == QLatin1String("Guest");
}

// ---- Names ----------------------------------------------------------------------------------------
// "Joint" is the space before the suffix text: none when that text starts with its own comma.

namespace {
QString Joint(const QString& suffixText) {
    return suffixText.contains(QLatin1Char(',')) ? QString() : QStringLiteral(" ");
}
} // namespace

QString clsCONTACT::FirstLast() const {
    if (IsAnonymousGuest())
        return FIRST_NM + QLatin1Char(' ') + MIDDLE_NM;
    return FIRST_NM + QLatin1Char(' ') + LAST_NM;
}

QString clsCONTACT::FirstMiddle() const {
    return TrimBlanks(FIRST_NM + QLatin1Char(' ') + MIDDLE_NM);
}

QString clsCONTACT::FirstMiddleLast() const {
    return FirstMiddle() + QLatin1Char(' ') + LAST_NM;
}

QString clsCONTACT::FirstMiddleLastSuffix() const {
    const QString s = SUFFIX_Text();
    return TrimBlanks(FIRST_NM + QLatin1Char(' ') + MiddleThenSpace(MIDDLE_NM) + LAST_NM + Joint(s) + s);
}

QString clsCONTACT::LastFirst() const {
    return LAST_NM + QStringLiteral(", ") + FIRST_NM;
}

QString clsCONTACT::LastFirstMiddle() const {
    return TrimBlanks(LAST_NM + QStringLiteral(", ") + FIRST_NM + QLatin1Char(' ') +
                      MiddleThenSpace(MIDDLE_NM));
}

QString clsCONTACT::LastFirstSuffix() const {
    return TrimBlanks(LAST_NM + QStringLiteral(", ") + FIRST_NM + QLatin1Char(' ') + SUFFIX_Text());
}

QString clsCONTACT::LastFirstMiddleSuffix() const {
    const QString s = SUFFIX_Text();
    const QString middle = MIDDLE_NM.isEmpty() ? QString() : QLatin1Char(' ') + MIDDLE_NM;
    return TrimBlanks(LAST_NM + QStringLiteral(", ") + FIRST_NM + middle + Joint(s) + s);
}

QString clsCONTACT::LastTitleFirst() const {
    return TrimBlanks(LAST_NM + QStringLiteral(", ") + TITLE_TX +
                      (TITLE_TX.isEmpty() ? QString() : QStringLiteral(" ")) + FIRST_NM);
}

QString clsCONTACT::NickOrFirstMiddle() const {
    if (!NICK_NM.isEmpty())
        return TrimBlanks(NICK_NM);
    return FirstMiddle();
}

namespace {
QString TitledName(const QString& title, const clsCONTACT& c) {
    const QString s = c.SUFFIX_Text();
    return TrimBlanks(title + QLatin1Char(' ') + c.FIRST_NM + QLatin1Char(' ') +
                      MiddleThenSpace(c.MIDDLE_NM) + c.LAST_NM + Joint(s) + s);
}
} // namespace

QString clsCONTACT::TitleFirstMiddleLastSuffix() const {
    return TitledName(TITLE_TX, *this);
}

QString clsCONTACT::TitleFirstMiddleLastSuffix_OuterEnvelope() const {
    const bool judge = TITLE_TX.toUpper() == QLatin1String("JUDGE");
    return TitledName(judge ? QStringLiteral("The Honorable") : TITLE_TX, *this);
}

QString clsCONTACT::TitleLastOrFirst() const {
    if (TITLE_TX.isEmpty())
        return TrimBlanks(FIRST_NM);
    return TrimBlanks(TITLE_TX + QLatin1Char(' ') + LAST_NM);
}

void clsCONTACT::ParseFullName(const QString& name) {
    clsParseName parser;
    parser.ParseFullName(name, true);
    TITLE_TX = parser.TITLE_TX;
    FIRST_NM = parser.FIRST_NM;
    MIDDLE_NM = parser.MIDDLE_NM;
    LAST_NM = parser.LAST_NM;
    SUFFIX_TX = parser.SUFFIX_TX;
}

// ---- Filters --------------------------------------------------------------------------------------

QString clsCONTACT::ExcludeBrideGroomClause(bool excludeBrideGroom) {
    return excludeBrideGroom
               ? QStringLiteral("AND (CONTACT.ROLE_ID Not In (1,2) OR CONTACT.ROLE_ID Is Null) ")
               : QString();
}

QString clsCONTACT::WHERE_CLAUSE(int filter, bool excludeBrideGroom) {
    const clsFilterRow* row = clsFilterTable::Contact(filter);
    if (row == nullptr)
        return {};
    using Couple = clsFilterRow::Couple;
    const QString condition = QLatin1String(row->Condition);
    switch (row->BrideGroom) {
    case Couple::Counted: return condition;
    case Couple::AsAsked: return condition + ExcludeBrideGroomClause(excludeBrideGroom);
    case Couple::LeftOut: return condition + ExcludeBrideGroomClause(true);
    }
    return condition;
}

QString clsCONTACT::BuildContactWhere(int filter, const QString& customWhere, bool excludeBrideGroom) {
    if (!customWhere.trimmed().isEmpty())
        return QStringLiteral("WHERE ") + customWhere + QLatin1Char(' ') +
               ExcludeBrideGroomClause(excludeBrideGroom);
    const QString condition = WHERE_CLAUSE(filter, excludeBrideGroom);
    return condition.isEmpty() ? QString() : QStringLiteral("WHERE ") + condition;
}

// Names sort without regard to case, as people expect of a list of names.
QString clsCONTACT::BuildContactOrder(int filter, const QString& sort) {
    if (!sort.trimmed().isEmpty())
        return QStringLiteral(" ORDER BY ") + sort;
    const QString byName = QStringLiteral("CONTACT.LAST_NM COLLATE NOCASE, CONTACT.FIRST_NM COLLATE NOCASE");
    if (filter == ContactFilter::Seated)
        return QStringLiteral(" ORDER BY DINING_TABLE.DINING_TABLE_NB, INVITE.INVITE_RSVP_ID, ") + byName;
    if (filter == ContactFilter::AttendingWithFlight)
        return QStringLiteral(" ORDER BY FLIGHT.ARRIVES_DT, INVITE.INVITE_RSVP_ID, ") + byName;
    return QStringLiteral(" ORDER BY ") + byName + QStringLiteral(", CONTACT.MIDDLE_NM COLLATE NOCASE");
}

QString clsCONTACT::ContactJoinType(int filter) {
    const clsFilterRow* row = clsFilterTable::Contact(filter);
    return row != nullptr && row->NeedsSentInvitation ? QStringLiteral("INNER JOIN") : QStringLiteral("LEFT JOIN");
}

// ---- Records --------------------------------------------------------------------------------------

QString clsCONTACT::SelectSQL() {
    return QStringLiteral(
               "SELECT CONTACT.*, ROLE_DICT.ROLE_TX AS ROLE_TX, DINING_TABLE.DINING_TABLE_NB AS "
               "DINING_TABLE_NB, "
               "DINING_TABLE.DINING_TABLE_NM AS DINING_TABLE_NM, MEAL_DICT.MEAL_TX AS MEAL_TX, "
               "CONTACT_1.FIRST_NM AS GUEST_OF_FIRST_NM, CONTACT_1.LAST_NM AS GUEST_OF_LAST_NM, "
               "INVITE.INVITE_RSVP_ID AS INVITE_RSVP_ID, INVITE.DISPLAY_AS_TX AS DISPLAY_AS_TX, "
               "INVITE.OUTER_ENVELOPE_TX AS OUTER_ENVELOPE_TX, INVITE.INNER_ENVELOPE_TX AS "
               "INNER_ENVELOPE_TX, "
               "INVITE.INVITE_SENT_FG AS INVITE_SENT_FG, INVITE.RSVP_RECEIVED_FG AS RSVP_RECEIVED_FG, "
               "FLIGHT.FLIGHT_NB AS FLIGHT_NB, FLIGHT.FLIGHT_NM AS FLIGHT_NM, "
               "FLIGHT.DEPARTS_AIRPORT_NM AS DEPARTS_AIRPORT_NM, FLIGHT.DEPARTS_DT AS DEPARTS_DT, "
               "FLIGHT.ARRIVES_AIRPORT_NM AS ARRIVES_AIRPORT_NM, FLIGHT.ARRIVES_DT AS ARRIVES_DT, "
               "HOTEL.HOTEL_NB AS HOTEL_NB, HOTEL.HOTEL_NM AS HOTEL_NM FROM CONTACT") +
           QLatin1String(kJoins) +
           QStringLiteral(" LEFT JOIN INVITE ON INVITE.INVITE_ID = CONTACT.INVITE_ID") +
           QLatin1String(kTravelJoins) + QLatin1Char(' ');
}

QList<clsCONTACT> clsCONTACT::Query(const QString& sql, const QVariantList& values) {
    return RecordIO::ReadAll(ReadTable(), sql, values);
}

bool clsCONTACT::OpenRecord(const QString& contactId, const QString& roleId, const QString& email,
                            const QString& guestOfId) {
    QString condition;
    QString value;
    const auto take = [&](const QString& given, const char* text) {
        if (!given.isEmpty()) {
            condition = QLatin1String(text);
            value = given;
        }
    };
    take(contactId, "WHERE CONTACT.CONTACT_ID = ?");
    take(roleId, "WHERE CONTACT.ROLE_ID = ?");
    take(email, "WHERE CONTACT.EMAIL_TX = ? COLLATE NOCASE");
    take(guestOfId, "WHERE CONTACT.GUEST_OF_ID = ?");
    if (condition.isEmpty())
        return false;
    const QList<clsCONTACT> found =
        Query(SelectSQL() + condition + QStringLiteral(" ORDER BY CONTACT.CONTACT_ID LIMIT 1"), {value});
    if (found.isEmpty())
        return false;
    *this = found.first();
    return true;
}

QList<clsCONTACT> clsCONTACT::OpenRecords(int filter, const QString& customWhere, const QString& sort,
                                          bool excludeBrideGroom) {
    return Query(SelectSQL() + BuildContactWhere(filter, customWhere, excludeBrideGroom) +
                 BuildContactOrder(filter, sort));
}

// The join word of INVITE follows the filter code alone. The other tables are joined too, so that a
// custom condition may speak of a meal, a table, a flight or a hotel; they add no rows.
long clsCONTACT::GetTotal(int filter, const QString& customWhere, bool excludeBrideGroom) {
    const QString sql = QStringLiteral("SELECT COUNT(*) FROM CONTACT ") + ContactJoinType(filter) +
                        QStringLiteral(" INVITE ON CONTACT.INVITE_ID = INVITE.INVITE_ID") +
                        QLatin1String(kJoins) + QLatin1String(kTravelJoins) + QLatin1Char(' ') +
                        BuildContactWhere(filter, customWhere, excludeBrideGroom);
    return RecordIO::Count(sql);
}

void clsCONTACT::Save(bool Add, bool RefreshInvite) {
    const clsCONTACT before = *this;
    if (OUT_OF_TOWNER_FG.isEmpty())
        OUT_OF_TOWNER_FG = QStringLiteral("N");
    if (GENDER_FG.isEmpty())
        GENDER_FG = QStringLiteral("M");
    if (CHILD_FG.isEmpty())
        CHILD_FG = QStringLiteral("N");
    if (!Add && ATTENDING_FG == QLatin1String("N")) {
        // A person who does not come keeps no meal and no seat.
        MEAL_ID.clear();
        DINING_TABLE_ID.clear();
    }
    try {
        clsTransaction tx(gDB());
        RecordIO::Save(*this, Table(), Add);
        if (!INVITE_ID.isEmpty() && !Add && RefreshInvite) {
            clsINVITE invite;
            if (invite.OpenRecord(INVITE_ID, false)) {
                invite.RefreshLabeling(true, false);
                invite.Save(false);
            }
        }
        tx.Commit();
    } catch (...) {
        *this = before;
        throw;
    }
}

void clsCONTACT::Delete(const QString& contactId) {
    const clsDeleteResult result = DeleteMany({contactId});
    CascadeDeletedCONTACT_ID = result.Deleted.value(1); // the person goes first, then their guest
}

bool clsCONTACT::IsCouple(const QString& contactId, const QString& roleId) {
    const auto isOneOrTwo = [](const QString& id) {
        return id == QLatin1String("1") || id == QLatin1String("2");
    };
    return isOneOrTwo(contactId) || isOneOrTwo(roleId);
}

namespace {

// The people a delete takes, each with the invitation they leave, and the invitations touched.
struct Leaving {
    QStringList People;
    QStringList Invites;
    QSet<QString> Taken;

    void Take(const QString& contactId, const QString& inviteId) {
        Taken.insert(contactId);
        People.append(contactId);
        if (!inviteId.isEmpty() && !Invites.contains(inviteId))
            Invites.append(inviteId);
    }
};

// Each person named, then the guests of everyone taken (a guest exists only through the person who
// brings them). A guest named as well is taken once.
Leaving WhoLeaves(const QStringList& contactIds, clsDeleteResult& result) {
    Leaving leaving;
    for (const QString& id : contactIds) {
        const clsRecordset row = gDB().Execute(
            QStringLiteral("SELECT CONTACT_ID, ROLE_ID, INVITE_ID FROM CONTACT WHERE CONTACT_ID = ?"), {id});
        if (row.IsEmpty())
            result.Missing.append(id);
        else if (clsCONTACT::IsCouple(row.Row(0).at(0), row.Row(0).at(1)))
            result.Kept.append(id);
        else if (!leaving.Taken.contains(row.Row(0).at(0)))
            leaving.Take(row.Row(0).at(0), row.Row(0).at(2));
    }
    for (qsizetype i = 0; i < leaving.People.size(); ++i) { // grows while guests are found
        const clsRecordset guests = gDB().Execute(
            QStringLiteral("SELECT CONTACT_ID, ROLE_ID, INVITE_ID FROM CONTACT WHERE GUEST_OF_ID = ? "
                           "ORDER BY CONTACT_ID"),
            {leaving.People.at(i)});
        for (int g = 0; g < guests.RowCount(); ++g) {
            const QStringList& guest = guests.Row(g);
            if (!leaving.Taken.contains(guest.at(0)) && !clsCONTACT::IsCouple(guest.at(0), guest.at(1)))
                leaving.Take(guest.at(0), guest.at(2));
        }
    }
    return leaving;
}

// The first person left becomes primary (read once, for the labels too), and every text is written
// anew, even when the user froze them. An invitation nobody is left on is not touched here.
void RelabelAfterLeaving(const QString& inviteId) {
    clsINVITE invite;
    invite.INVITE_ID = inviteId;
    invite.SetGuests();
    if (invite.GUESTS.isEmpty())
        return;
    const clsCONTACT& first = invite.GUESTS.first();
    if (first.PRIMARY_CONTACT_FG != QLatin1String("Y"))
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET PRIMARY_CONTACT_FG = 'Y' WHERE CONTACT_ID = ?"),
                      {first.CONTACT_ID});
    if (invite.OpenRecord(inviteId, false)) {
        invite.RefreshLabeling(false, true);
        invite.Save(false);
    }
}

} // namespace

QStringList clsCONTACT::ChangeMany(const QStringList& contactIds,
                                   const std::function<void(clsCONTACT&)>& change, bool RefreshInvite,
                                   const clsProgress& progress) {
    QStringList saved;
    clsTransaction tx(gDB());
    int done = 0;
    for (const QString& id : contactIds) {
        clsCONTACT contact;
        if (contact.OpenRecord(id)) {
            change(contact);
            contact.Save(false, RefreshInvite);
            saved.append(contact.CONTACT_ID);
        }
        StepProgress(progress, done, contactIds.size());
    }
    tx.Commit();
    return saved;
}

clsDeleteResult clsCONTACT::DeleteMany(const QStringList& contactIds, const clsProgress& progress) {
    clsDeleteResult result;
    clsTransaction tx(gDB());
    const Leaving leaving = WhoLeaves(contactIds, result);
    const int total = static_cast<int>(leaving.People.size() + leaving.Invites.size());
    int done = 0;
    const auto step = [&] { StepProgress(progress, done, total); };
    for (const QString& id : leaving.People) {
        gDB().Execute(QStringLiteral("DELETE FROM CONTACT WHERE CONTACT_ID = ?"), {id});
        result.Deleted.append(id);
        step();
    }
    for (const QString& inviteId : leaving.Invites) {
        RelabelAfterLeaving(inviteId);
        step();
    }
    clsINVITE::DeleteInvitesWithNoGuests();
    tx.Commit();
    return result;
}

void clsCONTACT::SaveRole(const QString& contactId, const QString& roleId) {
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("UPDATE CONTACT SET ROLE_ID = NULL WHERE ROLE_ID = ?"), {roleId});
    if (!contactId.isEmpty())
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET ROLE_ID = ? WHERE CONTACT_ID = ?"),
                      {roleId, contactId});
    tx.Commit();
}

void clsCONTACT::SaveCouple(const clsCONTACT& bride, const clsCONTACT& groom) {
    struct Part {
        const clsCONTACT& Named;
        const char* Id;
        const char* Title;
        const char* Primary;
    };
    clsTransaction tx(gDB());
    for (const Part& part : {Part{bride, "1", "Miss", "N"}, Part{groom, "2", "Mr.", "Y"}}) {
        clsCONTACT person;
        const bool isNew = !person.OpenRecord(QLatin1String(part.Id));
        if (isNew) {
            person.ROLE_ID = QLatin1String(part.Id);
            person.FRIEND_OF_CD = QLatin1String(part.Id);
        }
        person.TITLE_TX = QLatin1String(part.Title);
        person.FIRST_NM = part.Named.FIRST_NM;
        person.MIDDLE_NM = part.Named.MIDDLE_NM;
        person.LAST_NM = part.Named.LAST_NM;
        person.SUFFIX_TX = part.Named.SUFFIX_TX;
        person.AB_LIST_CD = QStringLiteral("A");
        person.PRIMARY_CONTACT_FG = QLatin1String(part.Primary);
        person.ATTENDING_FG = QStringLiteral("Y");
        person.Save(isNew, false);
    }
    tx.Commit();
}

// ---- Narrow updates -------------------------------------------------------------------------------

void clsCONTACT::RunWithId(const QString& sql, const QString& id) {
    if (!id.isEmpty())
        gDB().Execute(sql, {id});
}

void clsCONTACT::DeleteGuestOfGuestsWithNoInvitation() {
    // Few contacts are brought guests and many may be uninvited (an import adds thousands): the engine is
    // held to the index of GUEST_OF_ID, which every file has since its patches, rather than walking every
    // uninvited row on each save of an invitation.
    gDB().Execute(QStringLiteral("DELETE FROM CONTACT INDEXED BY CONTACT_GUEST_OF_ID_INDEX "
                                 "WHERE GUEST_OF_ID Is Not Null AND INVITE_ID Is Null"));
}

void clsCONTACT::UpdateAttendeeFieldsToNull(const QString& inviteId) {
    RunWithId(QStringLiteral("UPDATE CONTACT SET ATTENDING_FG = 'N', MEAL_ID = NULL, DINING_TABLE_ID = NULL "
                             "WHERE INVITE_ID = ?"),
              inviteId);
}

void clsCONTACT::UpdateInvitesToNull(const QString& inviteId) {
    RunWithId(
        QStringLiteral("UPDATE CONTACT SET INVITE_ID = NULL, PRIMARY_CONTACT_FG = 'N', "
                       "ATTENDING_FG = 'N', MEAL_ID = NULL, DINING_TABLE_ID = NULL WHERE INVITE_ID = ?"),
        inviteId);
}

void clsCONTACT::Update_DINING_TABLE_ID_TO_NULL(const QString& diningTableId) {
    RunWithId(QStringLiteral("UPDATE CONTACT SET DINING_TABLE_ID = NULL WHERE DINING_TABLE_ID = ?"),
              diningTableId);
}

void clsCONTACT::Update_FLIGHT_ID_TO_NULL(const QString& flightId) {
    RunWithId(QStringLiteral("UPDATE CONTACT SET FLIGHT_ID = NULL WHERE FLIGHT_ID = ?"), flightId);
}

void clsCONTACT::Update_HOTEL_ID_TO_NULL(const QString& hotelId) {
    RunWithId(QStringLiteral("UPDATE CONTACT SET HOTEL_ID = NULL WHERE HOTEL_ID = ?"), hotelId);
}

void clsCONTACT::UpdateFlight(const QString& contactId, const QString& flightId) {
    if (!contactId.isEmpty())
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET FLIGHT_ID = ? WHERE CONTACT_ID = ?"),
                      {RecordIO::ToDbValue(QStringLiteral("FLIGHT_ID"), flightId), contactId});
}

void clsCONTACT::UpdateHotel(const QString& contactId, const QString& hotelId) {
    if (!contactId.isEmpty())
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET HOTEL_ID = ? WHERE CONTACT_ID = ?"),
                      {RecordIO::ToDbValue(QStringLiteral("HOTEL_ID"), hotelId), contactId});
}

// ---- Map ------------------------------------------------------------------------------------------

QString clsCONTACT::MapURL() const {
    return MapAddressURL(ADDRESS_TX, clsVOWREN::MapCountryIndex());
}

bool clsCONTACT::MapIt() const {
    return gShell().OpenDocument(MapURL());
}

// ---- Schema ---------------------------------------------------------------------------------------

// What a column added to existing rows starts with.
void clsCONTACT::FillNewColumn(const QString& column) {
    if (column == QLatin1String("OUT_OF_TOWNER_FG")) {
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET OUT_OF_TOWNER_FG = 'N'"));
    } else if (column == QLatin1String("GENDER_FG")) {
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET GENDER_FG = 'M'"));
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET GENDER_FG = 'F' WHERE TITLE_TX COLLATE NOCASE "
                                     "In ('Mrs.', 'Ms.', 'Miss', 'Sra.')"));
    } else if (column == QLatin1String("CHILD_FG")) {
        gDB().Execute(QStringLiteral("UPDATE CONTACT SET CHILD_FG = 'N'"));
    }
}

bool clsCONTACT::Patch_1_Apply() {
    clsTransaction tx(gDB());
    QList<clsCONTACT> all = Query(SelectSQL() + QStringLiteral("ORDER BY CONTACT.CONTACT_ID"));
    for (clsCONTACT& c : all) {
        JoinAddressParts(c);
        c.Save(false, false);
    }
    tx.Commit();
    return true;
}

bool clsCONTACT::Patch_2_Apply() {
    if (gDB().FieldExists(QStringLiteral("CONTACT"), QStringLiteral("OUT_OF_TOWNER_FG")))
        return true;
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("ALTER TABLE CONTACT ADD COLUMN OUT_OF_TOWNER_FG TEXT"));
    FillNewColumn(QStringLiteral("OUT_OF_TOWNER_FG"));
    tx.Commit();
    return true;
}

bool clsCONTACT::Patch_6_Apply() {
    const QString table = QStringLiteral("CONTACT");
    const std::pair<const char*, const char*> links[] = {{"FLIGHT_ID", "CONTACT_TO_FLIGHT_FK"},
                                                         {"HOTEL_ID", "CONTACT_TO_HOTEL_FK"}};
    for (const auto& [column, key] : links) {
        if (gDB().FieldExists(table, QLatin1String(column)))
            continue;
        const QString parent = QString::fromLatin1(column).section(QLatin1Char('_'), 0, 0);
        gDB().Execute(
            QStringLiteral("ALTER TABLE CONTACT ADD COLUMN %1 INTEGER CONSTRAINT %2 REFERENCES %3 (%1)")
                .arg(QLatin1String(column), QLatin1String(key), parent));
    }
    bool keysMissing = false;
    for (const auto& link : links)
        keysMissing = keysMissing || !gDB().ForeignKeyExists(table, QLatin1String(link.second));
    if (!keysMissing)
        return true;
    // The rebuild gives the table its whole current shape; columns that later patches would have added
    // get the values those patches give, so existing rows read the same either way.
    QStringList arriving;
    for (const char* column : {"OUT_OF_TOWNER_FG", "PHONE2_TX", "GENDER_FG", "CHILD_FG", "NOTES_TX"}) {
        if (!gDB().FieldExists(table, QLatin1String(column)))
            arriving << QLatin1String(column);
    }
    gDB().RebuildTable(table, modSchema::TableDDL(table));
    clsTransaction tx(gDB());
    for (const QString& column : arriving)
        FillNewColumn(column);
    tx.Commit();
    return true;
}

bool clsCONTACT::Patch_7_Apply() {
    const std::pair<const char*, const char*> columns[] = {
        {"PHONE2_TX", "TEXT"}, {"GENDER_FG", "TEXT"}, {"CHILD_FG", "TEXT"}, {"NOTES_TX", "TEXT"}};
    clsTransaction tx(gDB());
    for (const auto& [column, type] : columns) {
        if (gDB().FieldExists(QStringLiteral("CONTACT"), QLatin1String(column)))
            continue;
        gDB().Execute(QStringLiteral("ALTER TABLE CONTACT ADD COLUMN %1 %2")
                          .arg(QLatin1String(column), QLatin1String(type)));
        FillNewColumn(QLatin1String(column));
    }
    tx.Commit();
    return true;
}

clsCONTACT& gBride() {
    static clsCONTACT bride;
    return bride;
}

clsCONTACT& gGroom() {
    static clsCONTACT groom;
    return groom;
}
