#include "guests/clsIMPORT_FIELD.h"

namespace {

void SetArrayIndex(clsIMPORT_FIELD& row) {
    bool ok = false;
    const int id = row.IMPORT_FIELD_ID.toInt(&ok);
    row.ArrayIndex = ok ? id - 1 : -1;
}

} // namespace

const QList<clsIMPORT_FIELD::SystemField>& clsIMPORT_FIELD::SystemFields() {
    static const QList<SystemField> fields = {
        {"Title", "TITLE_TX", {"TITLE"}},
        {"First Name *", "FIRST_NM", {"FIRST", "FIRST NAME"}},
        {"Middle Name", "MIDDLE_NM", {"MIDDLE", "MIDDLE NAME"}},
        {"Last Name *", "LAST_NM", {"LAST", "LAST NAME"}},
        {"Suffix", "SUFFIX_TX", {"SUFFIX"}},
        {"Address", "ADDRESS_TX", {"ADDRESS", "HOME STREET", "HOME ADDRESS", "ADDRESS 1"}},
        {"City", "CITY_TX", {"CITY", "HOME CITY"}},
        {"State", "STATE_TX", {"STATE", "HOME STATE"}},
        {"Zip", "ZIP_TX", {"ZIP", "ZIP CODE", "HOME POSTAL CODE", "HOME ZIP"}},
        {"Country", "COUNTRY_TX", {"COUNTRY", "HOME COUNTRY"}},
        {"Nickname", "NICK_NM", {"NICKNAME"}},
        {"E-mail", "EMAIL_TX", {"E-MAIL", "EMAIL", "E-MAIL ADDRESS", "EMAIL 1"}},
        {"Phone", "PHONE_TX", {"PHONE", "HOME PHONE", "HOME", "DAY PHONE"}},
        {"Phone 2", "PHONE2_TX", {"PHONE 2", "PHONE2", "CELL PHONE", "MOBILE PHONE"}},
        {"A-B", "AB_LIST_CD", {"A-B", "AB"}},
        {"Friend Of", "FRIEND_OF_CD", {"FRIEND OF"}},
        {"Gender", "GENDER_FG", {"GENDER", "SEX"}},
        {"Child", "CHILD_FG", {"CHILD"}},
        {"Out of Towner", "OUT_OF_TOWNER_FG", {"OUT OF TOWNER"}},
        {"Notes", "NOTES_TX", {"NOTE", "NOTES", "MEMO"}},
        {"RSVP ID", "RSVP_ID", {"RSVP ID", "RSVP"}},
    };
    return fields;
}

const RecordTable<clsIMPORT_FIELD>& clsIMPORT_FIELD::Table() {
    static const RecordTable<clsIMPORT_FIELD> table{
        "IMPORT_FIELD",
        "IMPORT_FIELD_ID",
        {{"IMPORT_FIELD_ID", &clsIMPORT_FIELD::IMPORT_FIELD_ID},
         {"IMPORT_FIELD_NM", &clsIMPORT_FIELD::IMPORT_FIELD_NM},
         {"MAP_IMPORT_FIELD_NM", &clsIMPORT_FIELD::MAP_IMPORT_FIELD_NM}}};
    return table;
}

void clsIMPORT_FIELD::Delete() {
    RecordIO::Run(QStringLiteral("DELETE FROM IMPORT_FIELD"));
}

QString clsIMPORT_FIELD::GetIMPORT_FIELD_NM(const QString& mapName) {
    return gDB()
        .Execute(QStringLiteral("SELECT IMPORT_FIELD_NM FROM IMPORT_FIELD WHERE MAP_IMPORT_FIELD_NM = ? "
                                "ORDER BY IMPORT_FIELD_ID"),
                 {mapName})
        .Scalar();
}

bool clsIMPORT_FIELD::OpenRecord(const QString& key) {
    if (!RecordIO::OpenRecord(*this, Table(), key))
        return false;
    SetArrayIndex(*this);
    return true;
}

QList<clsIMPORT_FIELD> clsIMPORT_FIELD::OpenRecords(bool mappedOnly) {
    QList<clsIMPORT_FIELD> rows = RecordIO::ReadAll(
        Table(), mappedOnly
                     ? QStringLiteral("SELECT * FROM IMPORT_FIELD WHERE MAP_IMPORT_FIELD_NM IS NOT NULL "
                                      "ORDER BY IMPORT_FIELD_ID")
                     : QStringLiteral("SELECT * FROM IMPORT_FIELD ORDER BY IMPORT_FIELD_ID"));
    for (clsIMPORT_FIELD& row : rows)
        SetArrayIndex(row);
    return rows;
}

void clsIMPORT_FIELD::Save(bool insert) {
    RecordIO::Save(*this, Table(), insert);
    SetArrayIndex(*this);
}

QString clsIMPORT_FIELD::SuggestMAP_IMPORT_FIELD_NM(const QString& columnName) {
    const QString name = columnName.toUpper();
    for (const SystemField& field : SystemFields()) {
        if (field.Aliases.contains(name))
            return field.Field;
    }
    return {};
}

void clsIMPORT_FIELD::UpdateMAP_IMPORT_FIELD_NM_ToNull(const QString& mapName) {
    RecordIO::Run(
        QStringLiteral("UPDATE IMPORT_FIELD SET MAP_IMPORT_FIELD_NM = NULL WHERE MAP_IMPORT_FIELD_NM = ?"),
        {mapName});
}
