#include "seating/clsTENTCARD.h"

#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "core/modSchema.h"
#include "guests/clsINVITE.h"

#include <initializer_list>

namespace {

// The bride and the groom have no invitation; this stands in for their RSVP ID, so that they share a
// card when they share a table.
const QString kCoupleRsvp = QStringLiteral("100000");

bool OneOf(const QString& upper, std::initializer_list<const char*> words) {
    for (const char* word : words) {
        if (upper == QLatin1String(word))
            return true;
    }
    return false;
}

bool IsCouple(const clsCONTACT& c) {
    return c.ROLE_ID == QLatin1String("1") || c.ROLE_ID == QLatin1String("2");
}

// A brought guest: "Guest" when nameless, else the name in the style of the card.
QString BroughtName(const clsCONTACT& c, bool formal) {
    if (c.IsAnonymousGuest())
        return QStringLiteral("Guest");
    return formal ? c.TitleFirstMiddleLastSuffix() : c.FirstMiddleLastSuffix();
}

QString FormalCard(const QList<clsCONTACT>& group, const QString& joiner) {
    QString text;
    const clsCONTACT* first = nullptr;
    bool done = false;
    for (const clsCONTACT& p : group) {
        const QString before = text.isEmpty() ? QString() : joiner;
        if (!p.GUEST_OF_ID.isEmpty()) {
            // A guest who opens the card (their host sits elsewhere) is named in full.
            text += text.isEmpty() ? p.TitleFirstMiddleLastSuffix() : joiner + BroughtName(p, true);
            continue;
        }
        if (!first) {
            first = &p;
            text += before + p.TitleFirstMiddleLastSuffix_OuterEnvelope();
            continue;
        }
        const QString t1 = first->TITLE_TX.toUpper();
        const QString t2 = p.TITLE_TX.toUpper();
        if (p.LAST_NM != first->LAST_NM) {
            text += joiner + p.TitleFirstMiddleLastSuffix();
        } else if (done) {
            text += joiner + p.FIRST_NM; // children of a joined couple by first name
        } else if (!OneOf(t1, {"DR.", "JUDGE", "MR.", "RABBI", "REV.", "HERR", "M.", "SR."})) {
            text += joiner + p.TitleFirstMiddleLastSuffix();
        } else {
            done = true;
            clsCONTACT q;
            q.TITLE_TX = p.TITLE_TX;
            q.FIRST_NM = first->FIRST_NM;
            q.MIDDLE_NM = first->MIDDLE_NM;
            q.LAST_NM = first->LAST_NM;
            q.SUFFIX_TX = first->SUFFIX_TX;
            if (t2 == QLatin1String("JUDGE")) {
                if (t1 == QLatin1String("JUDGE"))
                    text = QStringLiteral("The Honorable ") + first->FIRST_NM + QLatin1Char(' ') +
                           first->LAST_NM + QStringLiteral(" and The Honorable ") + p.FirstLast();
                else
                    text = QStringLiteral("The Honorable ") + p.FIRST_NM + QLatin1Char(' ') + p.LAST_NM +
                           joiner + first->TITLE_TX + QLatin1Char(' ') + first->FIRST_NM + QLatin1Char(' ') +
                           first->LAST_NM;
            } else if (OneOf(t2, {"MRS.", "MME.", "MME", "FRAU", "SRA.", "SRA"})) {
                if (t1 == QLatin1String("JUDGE"))
                    text = QStringLiteral("The Honorable and ") + q.TitleFirstMiddleLastSuffix();
                else
                    text = first->TITLE_TX + joiner + q.TitleFirstMiddleLastSuffix();
            } else if (OneOf(t2, {"DR.", "DR"})) {
                if (OneOf(t1, {"DR.", "DR"}))
                    text = QStringLiteral("Drs. ") + q.FirstMiddle() + joiner + p.FirstMiddle() +
                           QLatin1Char(' ') + first->LAST_NM;
                else
                    text = p.TitleFirstMiddleLastSuffix() + joiner + text;
            } else {
                text += joiner + p.TitleFirstMiddleLastSuffix();
            }
        }
    }
    return text;
}

// First names joined by ", " and the joiner before the last person, who ends the card with the surname.
QString PersonalCard(const QList<clsCONTACT>& group, const QString& joiner) {
    qsizetype lastMain = -1;
    for (qsizetype i = 0; i < group.size(); ++i) {
        if (group.at(i).GUEST_OF_ID.isEmpty())
            lastMain = i;
    }
    QString text;
    for (qsizetype i = 0; i < group.size(); ++i) {
        const clsCONTACT& p = group.at(i);
        if (!p.GUEST_OF_ID.isEmpty()) {
            text += text.isEmpty() ? p.FirstMiddleLastSuffix() : joiner + BroughtName(p, false);
            continue;
        }
        const bool last = i == lastMain;
        if (!text.isEmpty())
            text += last ? joiner : QStringLiteral(", ");
        text += last ? p.FirstMiddleLast() : p.NickOrFirstMiddle();
    }
    return text;
}

} // namespace

const RecordTable<clsTENTCARD>& clsTENTCARD::Table() {
    static const RecordTable<clsTENTCARD> table{"TENTCARD",
                                                "TENTCARD_ID",
                                                {{"TENTCARD_ID", &clsTENTCARD::TENTCARD_ID},
                                                 {"TENTCARD_TX", &clsTENTCARD::TENTCARD_TX},
                                                 {"TENTCARD_SORT_TX", &clsTENTCARD::TENTCARD_SORT_TX},
                                                 {"DINING_TABLE_ID", &clsTENTCARD::DINING_TABLE_ID}}};
    return table;
}

const RecordTable<clsTENTCARD>& clsTENTCARD::ReadTable() {
    static const RecordTable<clsTENTCARD> table = [] {
        RecordTable<clsTENTCARD> t = Table();
        t.Fields.insert(t.Fields.end(), {{"DINING_TABLE_NB", &clsTENTCARD::DINING_TABLE_NB},
                                         {"DINING_TABLE_NM", &clsTENTCARD::DINING_TABLE_NM}});
        return t;
    }();
    return table;
}

QString clsTENTCARD::SelectSQL() {
    return QStringLiteral(
        "SELECT TENTCARD.*, DINING_TABLE.DINING_TABLE_NB AS DINING_TABLE_NB, "
        "DINING_TABLE.DINING_TABLE_NM AS DINING_TABLE_NM FROM DINING_TABLE INNER JOIN TENTCARD ON "
        "DINING_TABLE.DINING_TABLE_ID = TENTCARD.DINING_TABLE_ID ");
}

bool clsTENTCARD::CreateTable() {
    if (!modSchema::CreateTableIfMissing(gDB(), QStringLiteral("TENTCARD")))
        return true;
    RefreshTentcards();
    return true;
}

void clsTENTCARD::Delete(const QString& tentcardId) {
    RecordIO::Delete(QStringLiteral("TENTCARD"), QStringLiteral("TENTCARD_ID"), tentcardId);
}

void clsTENTCARD::DeleteAll() {
    gDB().Execute(QStringLiteral("DELETE FROM TENTCARD"));
}

bool clsTENTCARD::EtiquetteIsFormal() {
    return clsApp::ToBool(clsVOWREN::ReadStored(8), false);
}

QString clsTENTCARD::GetTENTCARD_TX(const QList<clsCONTACT>& group) {
    return GetTENTCARD_TX(group, EtiquetteIsFormal());
}

QString clsTENTCARD::GetTENTCARD_TX(const QList<clsCONTACT>& group, bool formal) {
    if (group.isEmpty())
        return {};
    if (group.size() == 1) {
        const clsCONTACT& only = group.first();
        return TrimBlanks(formal ? only.TitleFirstMiddleLastSuffix_OuterEnvelope() : only.FirstMiddleLast());
    }
    const QString joiner = clsINVITE::Joiner(group.first().TITLE_TX);
    return TrimBlanks(formal ? FormalCard(group, joiner) : PersonalCard(group, joiner));
}

bool clsTENTCARD::OpenRecord(const QString& tentcardId) {
    if (tentcardId.isEmpty())
        return false;
    return RecordIO::OpenFirst(*this, ReadTable(),
                               SelectSQL() + QStringLiteral("WHERE TENTCARD.TENTCARD_ID = ?"), {tentcardId});
}

QList<clsTENTCARD> clsTENTCARD::OpenRecords() {
    return RecordIO::ReadAll(ReadTable(),
                             SelectSQL() + QStringLiteral("ORDER BY DINING_TABLE.DINING_TABLE_NB, "
                                                          "TENTCARD.TENTCARD_SORT_TX COLLATE NOCASE, "
                                                          "TENTCARD.TENTCARD_ID"));
}

void clsTENTCARD::RefreshTentcards() {
    clsTransaction tx(gDB());
    DeleteAll();
    const bool formal = EtiquetteIsFormal();
    // Seated people by invitation and table; the bride and the groom sort as one invitation of their own.
    const QList<clsCONTACT> seated = clsCONTACT::OpenRecords(
        21, {},
        QStringLiteral(
            "CASE WHEN CONTACT.ROLE_ID IN (1,2) THEN 100000 ELSE INVITE.INVITE_RSVP_ID END, "
            "CONTACT.INVITE_ID, CONTACT.DINING_TABLE_ID, CONTACT.SORT_ORDER_NB, CONTACT.CONTACT_ID"),
        false);
    QString groomName;
    const QList<clsCONTACT> groom = clsCONTACT::OpenRecords(0, QStringLiteral("CONTACT.ROLE_ID = 2"));
    if (!groom.isEmpty())
        groomName = groom.first().FirstLast();

    const auto write = [&](const QList<clsCONTACT>& group) {
        if (group.isEmpty())
            return;
        clsTENTCARD card;
        card.TENTCARD_TX = IsCouple(group.first()) ? QStringLiteral("Mr. and Mrs. ") + groomName
                                                   : GetTENTCARD_TX(group, formal);
        if (TrimBlanks(card.TENTCARD_TX).isEmpty())
            return; // nobody to name
        card.TENTCARD_SORT_TX = group.first().LAST_NM.isEmpty() ? card.TENTCARD_TX : group.first().LAST_NM;
        card.DINING_TABLE_ID = group.first().DINING_TABLE_ID;
        RecordIO::Save(card, Table(), true);
    };

    QList<clsCONTACT> group;
    QString groupKey;
    for (const clsCONTACT& c : seated) {
        // The invitation itself is part of the key, so that people of two invitations that have no RSVP
        // ID yet never share a card.
        const QString invitation =
            IsCouple(c) ? kCoupleRsvp : c.INVITE_RSVP_ID + QLatin1Char('/') + c.INVITE_ID;
        const QString key = invitation + QLatin1Char('|') + c.DINING_TABLE_ID;
        if (key != groupKey) {
            write(group);
            group.clear();
            groupKey = key;
        }
        group.append(c);
    }
    write(group);
    tx.Commit();
}

void clsTENTCARD::Save(bool Add) {
    RecordIO::Save(*this, Table(), Add);
}

long clsTENTCARD::Total() {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM TENTCARD"));
}
