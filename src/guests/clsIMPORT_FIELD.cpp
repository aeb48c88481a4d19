#include "guests/clsIMPORT_FIELD.h"

namespace {

void SetArrayIndex(clsIMPORT_FIELD& row) {
    bool ok = false;
    const int id = row.IMPORT_FIELD_ID.toInt(&ok);
    row.ArrayIndex = ok ? id - 1 : -1;
}

} // namespace

const QList<clsIMPORT_FIELD::SystemField>& clsIMPORT_FIELD::SystemFields() {
    // Beside the short names, the columns that the address books of Google (the present export and the
    // older one), Outlook, Apple and Thunderbird write.
    static const QList<SystemField> fields = {
        {"Title", "TITLE_TX", {"TITLE", "NAME PREFIX", "PREFIX"}},
        {"First Name *", "FIRST_NM", {"FIRST", "FIRST NAME", "GIVEN NAME"}},
        {"Middle Name", "MIDDLE_NM", {"MIDDLE", "MIDDLE NAME", "ADDITIONAL NAME"}},
        {"Last Name *", "LAST_NM", {"LAST", "LAST NAME", "FAMILY NAME", "SURNAME"}},
        {"Suffix", "SUFFIX_TX", {"SUFFIX", "NAME SUFFIX"}},
        {"Address",
         "ADDRESS_TX",
         {"ADDRESS", "HOME STREET", "HOME ADDRESS", "ADDRESS 1", "ADDRESS 1 - STREET", "STREET",
          "STREET ADDRESS", "HOME STREET ADDRESS"}},
        {"City", "CITY_TX", {"CITY", "HOME CITY", "ADDRESS 1 - CITY", "TOWN"}},
        {"State",
         "STATE_TX",
         {"STATE", "HOME STATE", "ADDRESS 1 - REGION", "REGION", "PROVINCE", "STATE/PROVINCE",
          "HOME REGION"}},
        {"Zip",
         "ZIP_TX",
         {"ZIP", "ZIP CODE", "HOME POSTAL CODE", "HOME ZIP", "ADDRESS 1 - POSTAL CODE", "POSTAL CODE",
          "POSTCODE", "HOME ZIPCODE", "HOME ZIP CODE"}},
        {"Country",
         "COUNTRY_TX",
         {"COUNTRY", "HOME COUNTRY", "HOME COUNTRY/REGION", "ADDRESS 1 - COUNTRY", "COUNTRY/REGION"}},
        {"Nickname", "NICK_NM", {"NICKNAME", "NICK NAME"}},
        {"E-mail",
         "EMAIL_TX",
         {"E-MAIL", "EMAIL", "E-MAIL ADDRESS", "EMAIL 1", "E-MAIL 1 - VALUE", "EMAIL ADDRESS",
          "PRIMARY EMAIL", "E-MAIL 1", "HOME EMAIL"}},
        {"Phone",
         "PHONE_TX",
         {"PHONE", "HOME PHONE", "HOME", "DAY PHONE", "PHONE 1 - VALUE", "TELEPHONE", "PHONE NUMBER"}},
        {"Phone 2",
         "PHONE2_TX",
         {"PHONE 2", "PHONE2", "CELL PHONE", "MOBILE PHONE", "PHONE 2 - VALUE", "MOBILE", "MOBILE NUMBER",
          "CELL", "IPHONE"}},
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
        // The template's own header is the captions.
        if (field.Aliases.contains(name) || field.Caption.toUpper() == name)
            return field.Field;
    }
    return {};
}

void clsIMPORT_FIELD::UpdateMAP_IMPORT_FIELD_NM_ToNull(const QString& mapName) {
    RecordIO::Run(
        QStringLiteral("UPDATE IMPORT_FIELD SET MAP_IMPORT_FIELD_NM = NULL WHERE MAP_IMPORT_FIELD_NM = ?"),
        {mapName});
}
