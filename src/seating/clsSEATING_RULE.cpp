#include "seating/clsSEATING_RULE.h"

#include "core/modSchema.h"

namespace {

const QString kSelect = QStringLiteral(
    "SELECT SEATING_RULE.*, TRIM(COALESCE(A.FIRST_NM, '') || ' ' || COALESCE(A.LAST_NM, '')) AS CONTACT_NM, "
    "TRIM(COALESCE(B.FIRST_NM, '') || ' ' || COALESCE(B.LAST_NM, '')) AS OTHER_CONTACT_NM "
    "FROM SEATING_RULE INNER JOIN CONTACT AS A ON A.CONTACT_ID = SEATING_RULE.CONTACT_ID "
    "INNER JOIN CONTACT AS B ON B.CONTACT_ID = SEATING_RULE.OTHER_CONTACT_ID ");

bool IsContact(const QString& key) {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID = ?"), {key}) > 0;
}

} // namespace

const RecordTable<clsSEATING_RULE>& clsSEATING_RULE::Table() {
    static const RecordTable<clsSEATING_RULE> table{"SEATING_RULE",
                                                    "SEATING_RULE_ID",
                                                    {{"SEATING_RULE_ID", &clsSEATING_RULE::SEATING_RULE_ID},
                                                     {"CONTACT_ID", &clsSEATING_RULE::CONTACT_ID},
                                                     {"OTHER_CONTACT_ID", &clsSEATING_RULE::OTHER_CONTACT_ID},
                                                     {"RULE_CD", &clsSEATING_RULE::RULE_CD},
                                                     {"WEIGHT_NB", &clsSEATING_RULE::WEIGHT_NB},
                                                     {"NOTES_TX", &clsSEATING_RULE::NOTES_TX}}};
    return table;
}

const RecordTable<clsSEATING_RULE>& clsSEATING_RULE::ReadTable() {
    static const RecordTable<clsSEATING_RULE> table = [] {
        RecordTable<clsSEATING_RULE> t = Table();
        t.Fields.insert(t.Fields.end(), {{"CONTACT_NM", &clsSEATING_RULE::CONTACT_NM},
                                         {"OTHER_CONTACT_NM", &clsSEATING_RULE::OTHER_CONTACT_NM}});
        return t;
    }();
    return table;
}

bool clsSEATING_RULE::CreateTable() {
    return modSchema::CreateTableIfMissing(gDB(), QStringLiteral("SEATING_RULE"));
}

void clsSEATING_RULE::Delete(const QString& key) {
    RecordIO::Delete(QStringLiteral("SEATING_RULE"), QStringLiteral("SEATING_RULE_ID"), key);
}

bool clsSEATING_RULE::OpenRecord(const QString& key) {
    return RecordIO::OpenFirst(*this, ReadTable(), kSelect + QStringLiteral("WHERE SEATING_RULE_ID = ?"),
                               {key});
}

QList<clsSEATING_RULE> clsSEATING_RULE::OpenRecords() {
    return RecordIO::ReadAll(ReadTable(), kSelect + QStringLiteral("ORDER BY CONTACT_NM, OTHER_CONTACT_NM, "
                                                                   "SEATING_RULE_ID"));
}

void clsSEATING_RULE::Check() {
    if (CONTACT_ID.isEmpty() || OTHER_CONTACT_ID.isEmpty())
        throw clsDbError(QStringLiteral("Choose the two people the rule is about."), 0);
    if (CONTACT_ID == OTHER_CONTACT_ID)
        throw clsDbError(QStringLiteral("A seating rule is about two different people."), 0);
    for (const QString& key : {CONTACT_ID, OTHER_CONTACT_ID}) {
        if (!IsContact(key))
            throw clsDbError(QStringLiteral("There is no contact with the key %1.").arg(key), 0);
    }
    if (RULE_CD == KeepApart) {
        WEIGHT_NB.clear();
        return;
    }
    if (RULE_CD != KeepTogether)
        throw clsDbError(QStringLiteral("A seating rule keeps two people together (T) or apart (A)."), 0);
    bool whole = false;
    const int weight = WEIGHT_NB.toInt(&whole);
    if (!whole || weight < MinWeight || weight > MaxWeight)
        throw clsDbError(QStringLiteral("The strength of \"Keep together\" is a whole number from %1 to %2.")
                             .arg(MinWeight)
                             .arg(MaxWeight),
                         0);
}

void clsSEATING_RULE::Save(bool insert) {
    Check();
    RecordIO::Save(*this, Table(), insert);
}

QString clsSEATING_RULE::KindText() const {
    return RULE_CD == KeepApart ? QStringLiteral("Keep apart")
                                : QStringLiteral("Keep together (%1)").arg(WEIGHT_NB);
}

QString clsSEATING_RULE::Caption() const {
    return CONTACT_NM + QStringLiteral(" and ") + OTHER_CONTACT_NM + QStringLiteral(": ") + KindText();
}
