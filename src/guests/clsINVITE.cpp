#include "guests/clsINVITE.h"

#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "guests/clsFilterTable.h"

#include <QSet>
#include <initializer_list>

namespace {

const QString kCrLf = QStringLiteral("\r\n");
const QString kPrimary = QStringLiteral("CONTACT.PRIMARY_CONTACT_FG = 'Y'");

bool OneOf(const QString& upper, std::initializer_list<const char*> words) {
    for (const char* word : words) {
        if (upper == QLatin1String(word))
            return true;
    }
    return false;
}

bool IsBrought(const clsCONTACT& c) {
    return !c.GUEST_OF_ID.isEmpty();
}

// The first person's title that lets the second join them as a couple.
bool OuterCoupleHead(const QString& upper) {
    return OneOf(upper, {"DR.", "JUDGE", "MR.", "RABBI", "REV.", "HERR", "M.", "SR.", "DR", "MR", "REV"});
}
bool InnerCoupleHead(const QString& upper) {
    return OneOf(upper, {"DR.", "JUDGE", "MR.", "RABBI", "REV.", "HERR", "M.", "SR."});
}
bool OuterLady(const QString& upper) {
    return OneOf(upper, {"MRS.", "MME.", "MME", "FRAU", "SRA.", "SRA", "MRS"});
}
bool InnerLady(const QString& upper) {
    return OneOf(upper, {"MRS.", "MME.", "MME", "FRAU", "SRA.", "SRA"});
}

QString LineBreaks(const QString& text, bool MultiLine) {
    QString out = text;
    if (!MultiLine)
        out.replace(kCrLf, QStringLiteral(", "));
    return TrimBlanks(out);
}

} // namespace

const RecordTable<clsINVITE>& clsINVITE::Table() {
    static const RecordTable<clsINVITE> table{"INVITE",
                                              "INVITE_ID",
                                              {{"INVITE_ID", &clsINVITE::INVITE_ID},
                                               {"INVITE_RSVP_ID", &clsINVITE::INVITE_RSVP_ID},
                                               {"DISPLAY_AS_TX", &clsINVITE::DISPLAY_AS_TX},
                                               {"OUTER_ENVELOPE_TX", &clsINVITE::OUTER_ENVELOPE_TX},
                                               {"INNER_ENVELOPE_TX", &clsINVITE::INNER_ENVELOPE_TX},
                                               {"INVITE_SENT_FG", &clsINVITE::INVITE_SENT_FG},
                                               {"RSVP_RECEIVED_FG", &clsINVITE::RSVP_RECEIVED_FG},
                                               {"AUTO_UPDATE_FG", &clsINVITE::AUTO_UPDATE_FG}}};
    return table;
}

const RecordTable<clsINVITE>& clsINVITE::ReadTable() {
    static const RecordTable<clsINVITE> table = [] {
        RecordTable<clsINVITE> t = Table();
        t.Fields.insert(t.Fields.end(), {{"OUTER_ENVELOPE_ADDRESS_TX", &clsINVITE::OUTER_ENVELOPE_ADDRESS_TX},
                                         {"PHONE_TX", &clsINVITE::PHONE_TX},
                                         {"EMAIL_TX", &clsINVITE::EMAIL_TX},
                                         {"AB_LIST_CD", &clsINVITE::AB_LIST_CD}});
        return t;
    }();
    return table;
}

// ---- Values ---------------------------------------------------------------------------------------

int clsINVITE::AUTO_UPDATE_FG_VALUE() const {
    return AUTO_UPDATE_FG == QLatin1String("Y") || AUTO_UPDATE_FG.isEmpty() ? 1 : 0;
}

void clsINVITE::SetAUTO_UPDATE_FG_VALUE(int value) {
    AUTO_UPDATE_FG = value == 1 ? QStringLiteral("Y") : QStringLiteral("N");
}

QString clsINVITE::INVITE_SENT_FG_Text() const {
    return INVITE_SENT_FG == QLatin1String("Y") ? QStringLiteral("Yes") : QString();
}

QString clsINVITE::RSVP_RECEIVED_FG_Text() const {
    return RSVP_RECEIVED_FG == QLatin1String("Y") ? QStringLiteral("Yes") : QString();
}

long clsINVITE::NUMBER_INVITED_NB() const {
    if (INVITE_ID.isEmpty())
        return 0;
    return RecordIO::Count(
        QStringLiteral("SELECT Count(CONTACT.CONTACT_ID) AS NUMBER_INVITED_NB FROM CONTACT "
                       "WHERE CONTACT.INVITE_ID = ?"),
        {INVITE_ID});
}

long clsINVITE::NUMBER_ATTENDING_NB() const {
    if (INVITE_ID.isEmpty())
        return 0;
    return RecordIO::Count(
        QStringLiteral("SELECT Count(CONTACT.CONTACT_ID) AS NUMBER_ATTENDING_NB FROM CONTACT "
                       "WHERE CONTACT.ATTENDING_FG = 'Y' AND CONTACT.INVITE_ID = ? "
                       "GROUP BY CONTACT.INVITE_ID"),
        {INVITE_ID});
}

QString clsINVITE::OUTER_ENVELOPE_ADDRESS_Text(bool Hint, bool MultiLine) const {
    QString text = OUTER_ENVELOPE_ADDRESS_TX;
    if (text.isEmpty())
        text = Hint ? QStringLiteral("(Double-click to enter Primary Address)")
                    : QStringLiteral("(Primary Address Needed)");
    return LineBreaks(text, MultiLine);
}

QString clsINVITE::OUTER_ENVELOPE_TX_AND_OUTER_ENVELOPE_ADDRESS_TX(bool MultiLine) const {
    return LineBreaks(OUTER_ENVELOPE_TX + kCrLf + OUTER_ENVELOPE_ADDRESS_Text(false, true), MultiLine);
}

// ---- Filters --------------------------------------------------------------------------------------

QString clsINVITE::WHERE_CLAUSE(int filter) {
    const clsFilterRow* row = clsFilterTable::Invitation(filter);
    if (row == nullptr)
        return {};
    const QString condition = QLatin1String(row->Condition);
    return condition.isEmpty() ? kPrimary : kPrimary + QStringLiteral(" AND ") + condition;
}

QString clsINVITE::BuildInviteWhere(int filter, const QString& customWhere) {
    if (!customWhere.trimmed().isEmpty())
        return QStringLiteral("WHERE ") + customWhere + QStringLiteral(" AND ") + kPrimary;
    const QString condition = WHERE_CLAUSE(filter);
    return QStringLiteral("WHERE ") + (condition.isEmpty() ? kPrimary : condition);
}

// ---- Records --------------------------------------------------------------------------------------

QString clsINVITE::SelectSQL() {
    return QStringLiteral("SELECT INVITE.*, CONTACT.PHONE_TX AS PHONE_TX, CONTACT.EMAIL_TX AS EMAIL_TX, "
                          "CONTACT.ADDRESS_TX AS OUTER_ENVELOPE_ADDRESS_TX, CONTACT.AB_LIST_CD AS AB_LIST_CD "
                          "FROM INVITE INNER JOIN CONTACT ON INVITE.INVITE_ID = CONTACT.INVITE_ID ");
}

bool clsINVITE::OpenBy(const QString& condition, const QString& value, bool LoadGuests) {
    if (value.isEmpty())
        return false;
    const clsRecordset rs =
        gDB().Execute(SelectSQL() + QStringLiteral("WHERE ") + kPrimary + QStringLiteral(" AND ") +
                          condition + QStringLiteral(" ORDER BY INVITE.INVITE_ID LIMIT 1"),
                      {value});
    if (rs.IsEmpty())
        return false;
    RecordIO::Fill(*this, rs, 0, ReadTable());
    if (LoadGuests)
        SetGuests();
    return true;
}

bool clsINVITE::OpenRecord(const QString& inviteId, bool LoadGuests) {
    return OpenBy(QStringLiteral("INVITE.INVITE_ID = ?"), inviteId, LoadGuests);
}

bool clsINVITE::OpenRecordByRSVP_ID(const QString& rsvpId, bool LoadGuests) {
    return OpenBy(QStringLiteral("INVITE.INVITE_RSVP_ID = ?"), rsvpId, LoadGuests);
}

QList<clsINVITE> clsINVITE::OpenRecords(int filter, bool SortByName, const QString& customWhere) {
    const QString order =
        SortByName ? QStringLiteral(" ORDER BY INVITE.DISPLAY_AS_TX COLLATE NOCASE, INVITE.INVITE_ID")
                   : QStringLiteral(" ORDER BY INVITE.INVITE_RSVP_ID, INVITE.INVITE_ID");
    return RecordIO::ReadAll(ReadTable(), SelectSQL() + BuildInviteWhere(filter, customWhere) + order);
}

long clsINVITE::GetTotal(int filter, const QString& customWhere) {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(INVITE.INVITE_ID) FROM INVITE INNER JOIN CONTACT ON "
                                          "INVITE.INVITE_ID = CONTACT.INVITE_ID ") +
                           BuildInviteWhere(filter, customWhere));
}

void clsINVITE::Save(bool Add) {
    const clsINVITE before = *this;
    try {
        clsTransaction tx(gDB());
        if (Add) {
            INVITE_ID = RecordIO::NextID(QStringLiteral("INVITE"), QStringLiteral("INVITE_ID"));
            if (INVITE_RSVP_ID.isEmpty())
                INVITE_RSVP_ID = NEXT_INVITE_RSVP_ID();
            if (INVITE_SENT_FG.isEmpty())
                INVITE_SENT_FG = QStringLiteral("N");
            if (RSVP_RECEIVED_FG.isEmpty())
                RSVP_RECEIVED_FG = QStringLiteral("N");
            if (AUTO_UPDATE_FG.isEmpty())
                AUTO_UPDATE_FG = QStringLiteral("Y");
            RecordIO::Save(*this, Table(), true, false);
        } else {
            // An invitation that is not sent has no attendees, no meals and no seats.
            if (INVITE_SENT_FG == QLatin1String("N") && !INVITE_ID.isEmpty())
                clsCONTACT::UpdateAttendeeFieldsToNull(INVITE_ID);
            RecordIO::Save(*this, Table(), false);
        }
        tx.Commit();
    } catch (...) {
        *this = before;
        throw;
    }
}

void clsINVITE::SaveWithPeople(bool Add, const QList<clsCONTACT>& people) {
    clsINVITE saved = *this;
    clsTransaction tx(gDB());
    saved.Save(Add);
    clsCONTACT::UpdateInvitesToNull(saved.INVITE_ID);
    saved.GUESTS.clear();
    for (qsizetype i = 0; i < people.size(); ++i) {
        clsCONTACT person = people.at(i);
        if (person.CONTACT_ID.isEmpty())
            person.Save(true, false); // a brought guest met for the first time
        // Read again: the release above took the person's attendance.
        if (!person.OpenRecord(person.CONTACT_ID))
            throw clsDbError(QStringLiteral("%1 is no longer among the contacts.").arg(person.FirstLast()),
                             0);
        person.INVITE_ID = saved.INVITE_ID;
        person.SORT_ORDER_NB = QString::number(i + 1);
        person.PRIMARY_CONTACT_FG = i == 0 ? QStringLiteral("Y") : QStringLiteral("N");
        person.Save(false, false);
        saved.GUESTS.append(person);
    }
    clsCONTACT::DeleteGuestOfGuestsWithNoInvitation();
    tx.Commit();
    *this = saved;
}

void clsINVITE::SaveReply() {
    clsINVITE saved = *this;
    clsTransaction tx(gDB());
    saved.Save(false);
    for (clsCONTACT& person : saved.GUESTS)
        person.Save(false, false); // a reply changes no envelope
    tx.Commit();
    *this = saved;
}

bool clsINVITE::RelabelAll(const Progress& progress) {
    clsTransaction tx(gDB());
    QList<clsINVITE> invitations = OpenRecords(0, true);
    const qsizetype total = invitations.size();
    if (progress && !progress(0, total))
        return false;
    for (qsizetype i = 0; i < total; ++i) {
        invitations[i].RefreshInnerEnvelope();
        invitations[i].Save(false);
        if (progress && !progress(i + 1, total))
            return false;
    }
    tx.Commit();
    return true;
}

bool clsINVITE::ChangeEtiquette(bool formal, const Progress& progress) {
    bool done = false;
    try {
        clsTransaction tx(gDB());
        clsVOWREN etiquette;
        etiquette.VOWREN_ID = QStringLiteral("7");
        etiquette.VOWREN_TX = clsVOWREN::BooleanText(formal);
        RecordIO::Save(etiquette, clsVOWREN::Table(), false);
        done = RelabelAll(progress);
        if (done)
            tx.Commit();
    } catch (...) {
        gVowren().OpenRecords();
        throw;
    }
    gVowren().OpenRecords(); // the settings in memory follow the rows, kept or put back
    return done;
}

void clsINVITE::Delete(const QString& inviteId) {
    DeleteMany({inviteId}, false);
}

clsINVITE::SentResult clsINVITE::MarkSent(const QStringList& inviteIds, bool sent,
                                          const clsProgress& progress) {
    SentResult result;
    clsTransaction tx(gDB());
    int done = 0;
    for (const QString& id : inviteIds) {
        clsINVITE invite;
        if (invite.OpenRecord(id, false)) {
            if (invite.OUTER_ENVELOPE_ADDRESS_TX.isEmpty()) {
                result.SkippedUnaddressed = result.SkippedUnaddressed || sent;
            } else {
                invite.INVITE_SENT_FG = sent ? QStringLiteral("Y") : QStringLiteral("N");
                if (!sent)
                    invite.RSVP_RECEIVED_FG = QStringLiteral("N");
                invite.Save(false);
                result.Saved.append(invite.INVITE_ID);
            }
        }
        StepProgress(progress, done, inviteIds.size());
    }
    tx.Commit();
    return result;
}

clsDeleteResult clsINVITE::DeleteMany(const QStringList& inviteIds, bool KeepSent, const clsProgress& progress) {
    clsDeleteResult result;
    clsTransaction tx(gDB());
    const int total = static_cast<int>(inviteIds.size());
    int done = 0;
    QSet<QString> seen;
    for (const QString& id : inviteIds) {
        if (seen.contains(id))
            continue;
        seen.insert(id);
        const clsRecordset row = gDB().Execute(
            QStringLiteral("SELECT INVITE_ID, INVITE_SENT_FG FROM INVITE WHERE INVITE_ID = ?"), {id});
        if (row.IsEmpty()) {
            result.Missing.append(id);
        } else if (KeepSent && row.Row(0).at(1) == QLatin1String("Y")) {
            result.Kept.append(id); // its card is out; the envelope must stay
        } else {
            gDB().Execute(QStringLiteral("UPDATE CONTACT SET INVITE_ID = NULL, PRIMARY_CONTACT_FG = 'N', "
                                         "ATTENDING_FG = 'N', MEAL_ID = NULL, DINING_TABLE_ID = NULL "
                                         "WHERE INVITE_ID = ?"),
                          {id});
            gDB().Execute(QStringLiteral("DELETE FROM INVITE WHERE INVITE_ID = ?"), {id});
            result.Deleted.append(row.Row(0).at(0));
        }
        StepProgress(progress, done, total);
    }
    // Brought guests exist only through an invitation.
    gDB().Execute(QStringLiteral("DELETE FROM CONTACT WHERE GUEST_OF_ID Is Not Null AND INVITE_ID Is Null"));
    tx.Commit();
    return result;
}

void clsINVITE::DeleteInvitesWithNoGuests() {
    // The iif keeps NULL out of the list: NOT IN over a list holding NULL is never true.
    gDB().Execute(
        QStringLiteral("DELETE FROM INVITE WHERE INVITE_ID NOT IN (SELECT iif(CONTACT.INVITE_ID IS NULL, "
                       "0, CONTACT.INVITE_ID) AS INVITE_ID FROM CONTACT GROUP BY CONTACT.INVITE_ID)"));
}

// ---- People -----------------------------------------------------------------------------------------

void clsINVITE::SetGuests() {
    GUESTS.clear();
    GUEST_CONTACT_ID.clear();
    GUEST_OF_CONTACT_ID.clear();
    GUESTS = clsCONTACT::OpenRecords(0, QStringLiteral("CONTACT.INVITE_ID = ") + QuoteSQL(INVITE_ID),
                                     QStringLiteral("CONTACT.SORT_ORDER_NB, CONTACT.CONTACT_ID"), true);
    for (const clsCONTACT& c : GUESTS) {
        if (IsBrought(c)) {
            GUEST_CONTACT_ID = c.CONTACT_ID;
            GUEST_OF_CONTACT_ID = c.GUEST_OF_ID;
            break;
        }
    }
}

void clsINVITE::mxSetOUTER_ENVELOPE_ADDRESS_TX() {
    if (!GUESTS.isEmpty())
        OUTER_ENVELOPE_ADDRESS_TX = GUESTS.first().ADDRESS_TX;
}

void clsINVITE::RefreshPrimaryContact(const QString& inviteId) {
    if (inviteId.isEmpty())
        return;
    clsINVITE invite;
    invite.INVITE_ID = inviteId;
    invite.SetGuests();
    if (invite.GUESTS.isEmpty())
        return;
    clsCONTACT& first = invite.GUESTS.first();
    first.PRIMARY_CONTACT_FG = QStringLiteral("Y");
    first.Save(false, false);
}

// ---- Labels -----------------------------------------------------------------------------------------

bool clsINVITE::EtiquetteIsFormal() {
    return clsApp::ToBool(clsVOWREN::ReadStored(7), false);
}

QString clsINVITE::Joiner(const QString& firstTitle) {
    const QString upper = firstTitle.toUpper();
    if (upper == QLatin1String("HERR"))
        return QStringLiteral(" und ");
    if (upper == QLatin1String("M."))
        return QStringLiteral(" et ");
    if (upper == QLatin1String("SR."))
        return QStringLiteral(" y ");
    return QStringLiteral(" and ");
}

QString clsINVITE::GuestTail() const {
    if (GUESTS.size() != 2 || !IsBrought(GUESTS.at(1)))
        return {};
    const clsCONTACT& guest = GUESTS.at(1);
    return QStringLiteral(" and ") +
           (guest.MIDDLE_NM == QLatin1String("Guest") ? QStringLiteral("Guest") : guest.FIRST_NM);
}

// In all three texts a brought guest never counts as a main person, and a first person without a
// last name gives way to the next main person.
QString clsINVITE::BuildDisplayAs() const {
    const qsizetype count = GUESTS.size();
    QString text;
    QString firstLast;
    qsizetype seen = 0;
    for (const clsCONTACT& c : GUESTS) {
        if (IsBrought(c))
            continue;
        ++seen;
        if (firstLast.isEmpty()) {
            text = c.LAST_NM + QStringLiteral(", ") + c.FirstMiddle();
            firstLast = c.LAST_NM;
        } else if (c.LAST_NM == firstLast) {
            const bool last = count == 2 || (count > 2 && seen == count);
            text += (last ? QStringLiteral(" and ") : QStringLiteral(", ")) + c.FirstMiddle();
        } else {
            text += QStringLiteral(" & ") + c.FirstMiddle() + QLatin1Char(' ') + c.LAST_NM;
        }
    }
    return text + GuestTail();
}

QString clsINVITE::BuildOuterEnvelope() const {
    QString text;
    QString joiner;
    clsCONTACT first;
    bool done = false;
    for (const clsCONTACT& p : GUESTS) {
        if (IsBrought(p))
            continue;
        if (first.LAST_NM.isEmpty()) {
            text = p.TitleFirstMiddleLastSuffix_OuterEnvelope();
            first = p;
            joiner = Joiner(p.TITLE_TX);
            done = false;
            continue;
        }
        const QString t1 = first.TITLE_TX.toUpper();
        const QString t2 = p.TITLE_TX.toUpper();
        if (p.LAST_NM != first.LAST_NM) {
            text += joiner + p.TitleFirstMiddleLastSuffix();
            continue;
        }
        if (done)
            continue; // a joined couple is complete; their children stay off the outer envelope
        if (!OuterCoupleHead(t1)) {
            text += joiner + p.TitleFirstMiddleLastSuffix();
            continue;
        }
        done = true;
        // The second person of a couple, named as formal usage has it: with the first one's name.
        clsCONTACT q;
        q.TITLE_TX = p.TITLE_TX;
        q.FIRST_NM = first.FIRST_NM;
        q.MIDDLE_NM = first.MIDDLE_NM;
        q.LAST_NM = first.LAST_NM;
        q.SUFFIX_TX = first.SUFFIX_TX;
        if (t2 == QLatin1String("JUDGE")) {
            if (t1 == QLatin1String("JUDGE"))
                text = QStringLiteral("The Honorable ") + first.FIRST_NM + QLatin1Char(' ') + first.LAST_NM +
                       QStringLiteral(" and The Honorable ") + p.FirstLast();
            else
                text = QStringLiteral("The Honorable ") + p.FIRST_NM + QLatin1Char(' ') + p.LAST_NM + joiner +
                       first.TITLE_TX + QLatin1Char(' ') + first.FIRST_NM + QLatin1Char(' ') + first.LAST_NM;
        } else if (OuterLady(t2)) {
            if (t1 == QLatin1String("JUDGE"))
                text = QStringLiteral("The Honorable and ") + q.TitleFirstMiddleLastSuffix();
            else
                text = first.TITLE_TX + joiner + q.TitleFirstMiddleLastSuffix();
        } else if (OneOf(t2, {"DR.", "DR"})) {
            if (OneOf(t1, {"DR.", "DR"}))
                text = QStringLiteral("Drs. ") + q.FirstMiddle() + joiner + p.FirstMiddle() +
                       QLatin1Char(' ') + first.LAST_NM;
            else
                text = p.TitleFirstMiddleLastSuffix() + joiner + text; // the doctor goes first
        } else {
            text += joiner + p.TitleFirstMiddleLastSuffix();
        }
    }
    return text;
}

QString clsINVITE::BuildInnerEnvelope(bool formal) const {
    const qsizetype count = GUESTS.size();
    QString text;
    QString joiner;
    clsCONTACT first;
    bool done = false;
    qsizetype seen = 0;
    for (const clsCONTACT& p : GUESTS) {
        if (IsBrought(p))
            continue;
        ++seen;
        if (first.LAST_NM.isEmpty()) {
            text = formal ? p.TitleLastOrFirst() : p.NickOrFirstMiddle();
            first = p;
            joiner = Joiner(p.TITLE_TX);
            done = false;
            continue;
        }
        if (!formal) {
            const bool last = count == 2 || (count > 2 && seen == count);
            text += (last ? joiner : QStringLiteral(", ")) + p.NickOrFirstMiddle();
            continue;
        }
        const QString t1 = first.TITLE_TX.toUpper();
        const QString t2 = p.TITLE_TX.toUpper();
        const QString& l1 = first.LAST_NM;
        if (p.LAST_NM != l1) {
            text += joiner + p.TitleLastOrFirst();
        } else if (done) {
            text += joiner + p.FIRST_NM; // children by first name, after their parents
        } else if (!InnerCoupleHead(t1)) {
            text += joiner + p.TitleLastOrFirst();
        } else {
            done = true;
            if (t2 == QLatin1String("JUDGE"))
                text = QStringLiteral("Judge ") + l1 + joiner + first.TITLE_TX + QLatin1Char(' ') + l1;
            else if (InnerLady(t2))
                text = first.TITLE_TX + joiner + p.TitleLastOrFirst();
            else if (t2 == QLatin1String("DR.") && t1 == QLatin1String("DR."))
                text = QStringLiteral("The Doctors ") + l1;
            else if (t2 == QLatin1String("DR."))
                text = QStringLiteral("Doctor ") + l1 + joiner + first.TITLE_TX + QLatin1Char(' ') + l1;
            else
                text += joiner + p.TitleLastOrFirst();
        }
    }
    return text + GuestTail();
}

void clsINVITE::RefreshLabeling(bool ReloadGuests, bool Force) {
    if (ReloadGuests)
        SetGuests();
    DISPLAY_AS_TX = BuildDisplayAs();
    mxSetOUTER_ENVELOPE_ADDRESS_TX();
    if (AUTO_UPDATE_FG_VALUE() == 1 || Force) {
        OUTER_ENVELOPE_TX = BuildOuterEnvelope();
        INNER_ENVELOPE_TX = BuildInnerEnvelope(EtiquetteIsFormal());
    }
}

void clsINVITE::RefreshInnerEnvelope() {
    SetGuests();
    if (AUTO_UPDATE_FG == QLatin1String("Y"))
        INNER_ENVELOPE_TX = BuildInnerEnvelope(EtiquetteIsFormal());
}

// ---- RSVP IDs ---------------------------------------------------------------------------------------

QString clsINVITE::NEXT_INVITE_RSVP_ID() {
    const QString next =
        gDB().Execute(QStringLiteral("SELECT Max(INVITE_RSVP_ID) + 1 AS MAXID FROM INVITE")).Scalar();
    return next.isEmpty() ? QStringLiteral("1") : next;
}

void clsINVITE::ClearIDs() {
    // The numbers of sent invitations are printed on cards and must stay.
    gDB().Execute(QStringLiteral("UPDATE INVITE SET INVITE_RSVP_ID = NULL WHERE INVITE_SENT_FG = 'N'"));
}

bool clsINVITE::INVITE_RSVP_ID_Sent(const QString& rsvpId) {
    return gDB()
               .Execute(
                   QStringLiteral("SELECT Count(INVITE_ID) AS CNT FROM INVITE WHERE INVITE_RSVP_ID = ? AND "
                                  "INVITE_SENT_FG = 'Y'"),
                   {rsvpId})
               .Scalar()
               .toLong() == 1;
}

void clsINVITE::SortRSVPIDs() {
    clsTransaction tx(gDB());
    ClearIDs();
    QList<clsINVITE> invites = OpenRecords(0, true);
    int counter = 0;
    for (clsINVITE& invite : invites) {
        if (invite.INVITE_SENT_FG != QLatin1String("N"))
            continue;
        do {
            ++counter;
        } while (counter <= 10000 && INVITE_RSVP_ID_Sent(QString::number(counter)));
        if (counter > 10000)
            continue;
        invite.INVITE_RSVP_ID = QString::number(counter);
        invite.Save(false);
    }
    tx.Commit();
}

// ---- Schema -----------------------------------------------------------------------------------------

bool clsINVITE::Patch_2_Apply() {
    if (gDB().FieldExists(QStringLiteral("INVITE"), QStringLiteral("AUTO_UPDATE_FG")))
        return true;
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("ALTER TABLE INVITE ADD COLUMN AUTO_UPDATE_FG TEXT"));
    gDB().Execute(QStringLiteral("UPDATE INVITE SET AUTO_UPDATE_FG = 'Y'"));
    tx.Commit();
    return true;
}
