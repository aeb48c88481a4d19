#include "planning/clsGIFT.h"

#include "core/modGeneral.h"
#include "core/modSchema.h"
#include "planning/modPlanningSql.h"

namespace {

const QString kCrLf = QStringLiteral("\r\n");

// ", Jr." and ", Sr." are set off by a comma; "III" is not.
QString SuffixText(const QString& suffix) {
    const QString upper = suffix.toUpper();
    if (upper == QLatin1String("JR") || upper == QLatin1String("JR.") || upper == QLatin1String("SR") ||
        upper == QLatin1String("SR."))
        return QStringLiteral(", ") + suffix;
    return suffix;
}

// The blank before a suffix, left out when the suffix brings its own comma.
QString Joint(const QString& suffixText) {
    return suffixText.contains(QLatin1Char(',')) ? QString() : QStringLiteral(" ");
}

// "Last, First Middle Suffix", as the contact lists write a person.
QString LastFirstMiddleSuffix(const QString& first, const QString& middle, const QString& last,
                              const QString& suffix) {
    const QString s = SuffixText(suffix);
    return TrimBlanks(last + QStringLiteral(", ") + first +
                      (middle.isEmpty() ? QString() : QLatin1Char(' ') + middle) + Joint(s) + s);
}

// "Title First Middle Last Suffix", as an envelope names a person.
QString TitleFirstMiddleLastSuffix(const QString& title, const QString& first, const QString& middle,
                                   const QString& last, const QString& suffix) {
    const QString s = SuffixText(suffix);
    return TrimBlanks(title + QLatin1Char(' ') + first + QLatin1Char(' ') +
                      (middle.isEmpty() ? QString() : middle + QLatin1Char(' ')) + last + Joint(s) + s);
}

} // namespace

const RecordTable<clsGIFT>& clsGIFT::Table() {
    static const RecordTable<clsGIFT> table{"GIFT",
                                            "GIFT_ID",
                                            {{"GIFT_ID", &clsGIFT::GIFT_ID},
                                             {"EVENT_ID", &clsGIFT::EVENT_ID},
                                             {"CONTACT_ID", &clsGIFT::CONTACT_ID},
                                             {"INVITE_ID", &clsGIFT::INVITE_ID},
                                             {"GIFT_TX", &clsGIFT::GIFT_TX},
                                             {"THANK_YOU_SENT_FG", &clsGIFT::THANK_YOU_SENT_FG},
                                             {"RECEIVED_DT", &clsGIFT::RECEIVED_DT},
                                             {"NOTES_TX", &clsGIFT::NOTES_TX}}};
    return table;
}

const RecordTable<clsGIFT>& clsGIFT::ReadTable() {
    static const RecordTable<clsGIFT> table = [] {
        RecordTable<clsGIFT> read = Table();
        read.Fields.push_back({"EVENT_TX", &clsGIFT::EVENT_TX});
        read.Fields.push_back({"DISPLAY_NM", &clsGIFT::DISPLAY_NM});
        return read;
    }();
    return table;
}

// Every gift with its event (a gift whose event is gone is not listed), its giving contact or
// invitation, and the address of the invitation's primary contact, which is the envelope's. The gifts
// lead the joins, so that each giver is found by its key.
QString clsGIFT::SelectSql() {
    return QStringLiteral("SELECT ") + QualifiedColumns(Table()) +
           QStringLiteral(
               ", EVENT.EVENT_TX, "
               "iif(GIFT.CONTACT_ID IS NULL, INVITE.DISPLAY_AS_TX, CONTACT.LAST_NM) AS DISPLAY_NM, "
               "CONTACT.TITLE_TX AS GIVER_TITLE_TX, CONTACT.FIRST_NM AS GIVER_FIRST_NM, "
               "CONTACT.MIDDLE_NM AS GIVER_MIDDLE_NM, CONTACT.LAST_NM AS GIVER_LAST_NM, "
               "CONTACT.SUFFIX_TX AS GIVER_SUFFIX_TX, CONTACT.ADDRESS_TX AS GIVER_ADDRESS_TX, "
               "INVITE.DISPLAY_AS_TX AS INVITE_DISPLAY_AS_TX, "
               "INVITE.OUTER_ENVELOPE_TX AS INVITE_OUTER_ENVELOPE_TX, "
               "(SELECT PRIMARY_CONTACT.ADDRESS_TX FROM CONTACT AS PRIMARY_CONTACT "
               "WHERE PRIMARY_CONTACT.INVITE_ID = GIFT.INVITE_ID AND "
               "PRIMARY_CONTACT.PRIMARY_CONTACT_FG = 'Y' "
               "ORDER BY PRIMARY_CONTACT.SORT_ORDER_NB LIMIT 1) AS INVITE_ADDRESS_TX "
               "FROM GIFT INNER JOIN EVENT ON EVENT.EVENT_ID = GIFT.EVENT_ID "
               "LEFT JOIN CONTACT ON CONTACT.CONTACT_ID = GIFT.CONTACT_ID "
               "LEFT JOIN INVITE ON INVITE.INVITE_ID = GIFT.INVITE_ID ");
}

QString clsGIFT::WhereSql(int filter, const QString& customWhere) {
    if (!customWhere.trimmed().isEmpty())
        return customWhere + QLatin1Char(' ');
    switch (filter) {
    case NotesSent:
        return QStringLiteral("WHERE GIFT.THANK_YOU_SENT_FG = 'Y' ");
    case NotesUnsent:
        return QStringLiteral("WHERE GIFT.THANK_YOU_SENT_FG = 'N' ");
    default:
        return {};
    }
}

QList<clsGIFT> clsGIFT::Open(const QString& sql, const QVariantList& values) {
    QList<clsGIFT> gifts;
    const clsRecordset rs = gDB().Execute(sql, values);
    const std::vector<int> columns = RecordIO::FieldColumns(rs, ReadTable());
    for (int row = 0; row < rs.RowCount(); ++row) {
        clsGIFT gift;
        RecordIO::Fill(gift, rs, row, ReadTable(), columns);
        auto value = [&](const char* column) { return rs.Value(row, QString::fromLatin1(column)); };
        if (!gift.CONTACT_ID.isEmpty()) {
            gift.GIVER_NM = LastFirstMiddleSuffix(value("GIVER_FIRST_NM"), value("GIVER_MIDDLE_NM"),
                                                  value("GIVER_LAST_NM"), value("GIVER_SUFFIX_TX"));
            gift.OUTER_ENVELOPE_TX = TitleFirstMiddleLastSuffix(
                value("GIVER_TITLE_TX"), value("GIVER_FIRST_NM"), value("GIVER_MIDDLE_NM"),
                value("GIVER_LAST_NM"), value("GIVER_SUFFIX_TX"));
            gift.OUTER_ENVELOPE_ADDRESS_TX = TrimCrLf(value("GIVER_ADDRESS_TX"));
        } else if (!gift.INVITE_ID.isEmpty()) {
            gift.GIVER_NM = value("INVITE_DISPLAY_AS_TX");
            gift.OUTER_ENVELOPE_TX = value("INVITE_OUTER_ENVELOPE_TX");
            gift.OUTER_ENVELOPE_ADDRESS_TX = value("INVITE_ADDRESS_TX");
        }
        gifts.append(std::move(gift));
    }
    return gifts;
}

void clsGIFT::Patch_5_Apply() {
    const QString type =
        gDB()
            .Execute(QStringLiteral("SELECT type FROM pragma_table_info('GIFT') WHERE name = 'GIFT_TX'"))
            .Scalar();
    if (type.isEmpty() || type.compare(QLatin1String("TEXT"), Qt::CaseInsensitive) == 0)
        return;
    gDB().RebuildTable(QStringLiteral("GIFT"), modSchema::TableDDL(QStringLiteral("GIFT")));
}

void clsGIFT::Patch_7_Apply() {
    if (gDB().FieldExists(QStringLiteral("GIFT"), QStringLiteral("RECEIVED_DT")))
        return;
    gDB().Execute(QStringLiteral("ALTER TABLE GIFT ADD COLUMN RECEIVED_DT TEXT"));
}

QString clsGIFT::RECEIVED_DT_DDMMMYYYY() const {
    return FormatDateTime(ParseDateTimeText(RECEIVED_DT), QLatin1String(kDateFormat));
}

QString clsGIFT::OUTER_ENVELOPE_ADDRESS_TX_Text(bool multiLine) const {
    if (multiLine)
        return OUTER_ENVELOPE_ADDRESS_TX;
    return QString(OUTER_ENVELOPE_ADDRESS_TX).replace(kCrLf, QStringLiteral(", "));
}

QString clsGIFT::THANK_YOU_SENT_FG_Text() const {
    return THANK_YOU_SENT_FG == QLatin1String("Y") ? QStringLiteral("Yes") : QString();
}

void clsGIFT::Delete(const QString& giftId) {
    RecordIO::Delete(QStringLiteral("GIFT"), QStringLiteral("GIFT_ID"), giftId);
}

void clsGIFT::Delete(const QStringList& giftIds) {
    clsTransaction tx(gDB());
    for (const QString& id : giftIds)
        gDB().Execute(QStringLiteral("DELETE FROM GIFT WHERE GIFT_ID = ?"), {id});
    tx.Commit();
}

void clsGIFT::SetThankYouSent(const QStringList& giftIds, bool sent) {
    clsTransaction tx(gDB());
    for (const QString& id : giftIds)
        gDB().Execute(QStringLiteral("UPDATE GIFT SET THANK_YOU_SENT_FG = ? WHERE GIFT_ID = ?"),
                      {sent ? QStringLiteral("Y") : QStringLiteral("N"), id});
    tx.Commit();
}

long clsGIFT::GetTotal(int filter, const QString& customWhere) const {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(GIFT.GIFT_ID) AS CNT FROM GIFT INNER JOIN EVENT ON "
                                          "GIFT.EVENT_ID = EVENT.EVENT_ID ") +
                           WhereSql(filter, customWhere));
}

bool clsGIFT::OpenRecord(const QString& giftId) {
    if (giftId.isEmpty())
        return false;
    const QList<clsGIFT> found = Open(SelectSql() + QStringLiteral("WHERE GIFT.GIFT_ID = ?"), {giftId});
    if (found.isEmpty())
        return false;
    *this = found.first();
    return true;
}

QList<clsGIFT> clsGIFT::OpenRecords(int filter, const QString& customWhere) const {
    return Open(SelectSql() + WhereSql(filter, customWhere) +
                    QStringLiteral("ORDER BY iif(GIFT.CONTACT_ID IS NULL, INVITE.DISPLAY_AS_TX, "
                                   "CONTACT.LAST_NM) COLLATE NOCASE"),
                {});
}

void clsGIFT::Save(bool isNew) {
    clsGIFT row = *this;
    if (!row.CONTACT_ID.isEmpty())
        row.INVITE_ID.clear();
    RecordIO::Save(row, Table(), isNew);
    *this = row;
}
