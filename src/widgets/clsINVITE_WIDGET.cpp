#include "widgets/clsINVITE_WIDGET.h"

#include "core/modSchema.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"

#include <QRegularExpression>

namespace {

// The list of an event, contacts and invitations sorted together by last name or display name. The
// columns are named one by one: through the right joins the engine would rename the row's own
// CONTACT_ID and INVITE_ID ("CONTACT_ID:1"), as the joined tables hold columns of the same names.
const QString kListSelect = QStringLiteral(
    "SELECT INVITE_WIDGET.INVITE_WIDGET_ID AS INVITE_WIDGET_ID, INVITE_WIDGET.EVENT_ID AS EVENT_ID, "
    "INVITE_WIDGET.INVITE_ID AS INVITE_ID, INVITE_WIDGET.CONTACT_ID AS CONTACT_ID, EVENT.EVENT_TX, "
    "iif(INVITE_WIDGET.CONTACT_ID IS NULL, INVITE.DISPLAY_AS_TX, CONTACT.LAST_NM) AS DISPLAY_NM "
    "FROM INVITE RIGHT JOIN (CONTACT RIGHT JOIN (EVENT INNER JOIN INVITE_WIDGET ON EVENT.EVENT_ID = "
    "INVITE_WIDGET.EVENT_ID) ON CONTACT.CONTACT_ID = INVITE_WIDGET.CONTACT_ID) ON INVITE.INVITE_ID = "
    "INVITE_WIDGET.INVITE_ID "
    "WHERE INVITE_WIDGET.EVENT_ID = ? "
    "ORDER BY iif(INVITE_WIDGET.CONTACT_ID IS NULL, INVITE.DISPLAY_AS_TX, CONTACT.LAST_NM) COLLATE NOCASE, "
    "INVITE_WIDGET.INVITE_WIDGET_ID");

// Reads the display fields from the row's contact or invitation.
void FillDisplay(clsINVITE_WIDGET& row) {
    if (!row.CONTACT_ID.isEmpty()) {
        clsCONTACT contact;
        if (!contact.OpenRecord(row.CONTACT_ID))
            return;
        row.NAME_TX = contact.TitleFirstMiddleLastSuffix_OuterEnvelope();
        row.OUTER_ENVELOPE_ADDRESS_TX = contact.DisplayAddress(true);
        row.PHONE_TX = contact.PHONE_TX;
        row.EMAIL_TX = contact.EMAIL_TX;
        row.PEOPLE_NB = 1;
        return;
    }
    clsINVITE invite;
    if (!invite.OpenRecord(row.INVITE_ID, true))
        return;
    row.NAME_TX = invite.OUTER_ENVELOPE_TX;
    row.OUTER_ENVELOPE_ADDRESS_TX = invite.OUTER_ENVELOPE_ADDRESS_TX;
    row.PHONE_TX = invite.PHONE_TX;
    row.EMAIL_TX = invite.EMAIL_TX;
    row.PEOPLE_NB = static_cast<int>(invite.GUESTS.size());
}

// The ids the event's list holds in a column, NULL read as 0 so that "Not In" never meets a NULL (which
// would empty the candidates).
QString NotOnList(const QString& table, const QString& column, const QString& eventID) {
    return table + QLatin1Char('.') + column + QStringLiteral(" Not In (SELECT iif(INVITE_WIDGET.") + column +
           QStringLiteral(" IS NULL, 0, INVITE_WIDGET.") + column + QStringLiteral(") AS ") + column +
           QStringLiteral(" FROM INVITE_WIDGET WHERE INVITE_WIDGET.EVENT_ID = ") +
           QString::number(eventID.toLongLong()) + QStringLiteral(" GROUP BY INVITE_WIDGET.") + column +
           QLatin1Char(')');
}

// "CONTACT7" as the contact 7, "INVITE3" as the invitation 3; false for anything else.
bool SplitKey(const QString& key, QString* column, QString* id) {
    static const QRegularExpression pattern(QStringLiteral("^(CONTACT|INVITE)([0-9]+)$"));
    const QRegularExpressionMatch match = pattern.match(key);
    if (!match.hasMatch())
        return false;
    *column = match.captured(1) + QStringLiteral("_ID");
    *id = match.captured(2);
    return true;
}

} // namespace

const RecordTable<clsINVITE_WIDGET>& clsINVITE_WIDGET::Table() {
    static const RecordTable<clsINVITE_WIDGET> table{
        "INVITE_WIDGET",
        "INVITE_WIDGET_ID",
        {{"INVITE_WIDGET_ID", &clsINVITE_WIDGET::INVITE_WIDGET_ID},
         {"EVENT_ID", &clsINVITE_WIDGET::EVENT_ID},
         {"INVITE_ID", &clsINVITE_WIDGET::INVITE_ID},
         {"CONTACT_ID", &clsINVITE_WIDGET::CONTACT_ID}}};
    return table;
}

QString clsINVITE_WIDGET::OUTER_ENVELOPE_ADDRESS_TX_Text(bool multiLine) const {
    if (multiLine)
        return OUTER_ENVELOPE_ADDRESS_TX;
    QString text = OUTER_ENVELOPE_ADDRESS_TX;
    return text.replace(QLatin1String("\r\n"), QLatin1String(", "));
}

bool clsINVITE_WIDGET::CreateTable() {
    return modSchema::CreateTableIfMissing(gDB(), QStringLiteral("INVITE_WIDGET"));
}

void clsINVITE_WIDGET::Delete(const QString& eventID, const QString& contactID, const QString& inviteID) {
    if (!contactID.isEmpty())
        RecordIO::Run(QStringLiteral("DELETE FROM INVITE_WIDGET WHERE EVENT_ID = ? AND CONTACT_ID = ?"),
                      {eventID, contactID});
    else if (!inviteID.isEmpty())
        RecordIO::Run(QStringLiteral("DELETE FROM INVITE_WIDGET WHERE EVENT_ID = ? AND INVITE_ID = ?"),
                      {eventID, inviteID});
    else
        RecordIO::Run(QStringLiteral("DELETE FROM INVITE_WIDGET WHERE EVENT_ID = ?"), {eventID});
}

long clsINVITE_WIDGET::GetTotal(const QString& eventID) {
    return RecordIO::Count(
        QStringLiteral("SELECT Count(INVITE_WIDGET_ID) AS CNT FROM INVITE_WIDGET WHERE EVENT_ID = ?"),
        {eventID});
}

long clsINVITE_WIDGET::GetTotalContacts(const QString& eventID) {
    long total = 0;
    for (const clsINVITE_WIDGET& row : OpenRecords(eventID))
        total += row.PEOPLE_NB;
    return total;
}

QList<clsINVITE_WIDGET> clsINVITE_WIDGET::OpenEvents() {
    QList<clsINVITE_WIDGET> events;
    const clsRecordset rs = gDB().Execute(QStringLiteral(
        "SELECT EVENT.EVENT_ID, EVENT.EVENT_TX FROM EVENT INNER JOIN INVITE_WIDGET ON EVENT.EVENT_ID = "
        "INVITE_WIDGET.EVENT_ID GROUP BY EVENT.EVENT_ID, EVENT.EVENT_TX, EVENT.EVENT_DT ORDER BY "
        "EVENT.EVENT_DT"));
    for (int row = 0; row < rs.RowCount(); ++row) {
        clsINVITE_WIDGET event;
        event.EVENT_ID = rs.Value(row, QStringLiteral("EVENT_ID"));
        event.EVENT_TX = rs.Value(row, QStringLiteral("EVENT_TX"));
        events.append(event);
    }
    return events;
}

QList<clsINVITE_WIDGET> clsINVITE_WIDGET::OpenRecords(const QString& eventID) {
    QList<clsINVITE_WIDGET> rows;
    const clsRecordset rs = gDB().Execute(kListSelect, {eventID});
    const std::vector<int> columns = RecordIO::FieldColumns(rs, Table());
    for (int i = 0; i < rs.RowCount(); ++i) {
        clsINVITE_WIDGET row;
        RecordIO::Fill(row, rs, i, Table(), columns);
        row.EVENT_TX = rs.Value(i, QStringLiteral("EVENT_TX"));
        row.DISPLAY_NM = rs.Value(i, QStringLiteral("DISPLAY_NM"));
        FillDisplay(row);
        rows.append(row);
    }
    return rows;
}

void clsINVITE_WIDGET::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
}

QList<clsINVITE_WIDGET::Candidate> clsINVITE_WIDGET::Candidates(const QString& eventID, bool contacts) {
    QList<Candidate> candidates;
    if (contacts) {
        for (const clsCONTACT& c : clsCONTACT::OpenRecords(
                 0, NotOnList(QStringLiteral("CONTACT"), QStringLiteral("CONTACT_ID"), eventID)))
            candidates.append({QStringLiteral("CONTACT") + c.CONTACT_ID, c.LastFirstMiddleSuffix()});
        return candidates;
    }
    for (const clsINVITE& i : clsINVITE::OpenRecords(
             0, true, NotOnList(QStringLiteral("INVITE"), QStringLiteral("INVITE_ID"), eventID)))
        candidates.append({QStringLiteral("INVITE") + i.INVITE_ID, i.DISPLAY_AS_TX});
    return candidates;
}

void clsINVITE_WIDGET::Invite(const QString& eventID, const QStringList& keys) {
    clsTransaction tx(gDB());
    for (const QString& key : keys) {
        clsINVITE_WIDGET row;
        row.EVENT_ID = eventID;
        QString column;
        QString id;
        if (!SplitKey(key, &column, &id))
            continue;
        (column == QLatin1String("CONTACT_ID") ? row.CONTACT_ID : row.INVITE_ID) = id;
        if (RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM INVITE_WIDGET WHERE EVENT_ID = ? AND ") +
                                column + QStringLiteral(" = ?"),
                            {eventID, id}) == 0)
            row.Save(true);
    }
    tx.Commit();
}

void clsINVITE_WIDGET::Uninvite(const QString& eventID, const QStringList& keys) {
    clsTransaction tx(gDB());
    for (const QString& key : keys) {
        QString column;
        QString id;
        if (!SplitKey(key, &column, &id))
            continue;
        if (column == QLatin1String("CONTACT_ID"))
            Delete(eventID, id);
        else
            Delete(eventID, QString(), id);
    }
    tx.Commit();
}
