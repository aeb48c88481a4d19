#include "seating/clsHOTEL.h"

#include "core/modGeneral.h"
#include "core/modSchema.h"

namespace {

// True when the column of HOTEL is declared NOT NULL.
bool IsRequired(const QString& column) {
    const clsRecordset info = gDB().Execute(
        QStringLiteral("SELECT \"notnull\" FROM pragma_table_info('HOTEL') WHERE name = ? COLLATE NOCASE"),
        {column});
    return !info.IsEmpty() && info.Value(0, 0) != QLatin1String("0");
}

} // namespace

const RecordTable<clsHOTEL>& clsHOTEL::Table() {
    static const RecordTable<clsHOTEL> table{"HOTEL",
                                             "HOTEL_ID",
                                             {{"HOTEL_ID", &clsHOTEL::HOTEL_ID},
                                              {"HOTEL_NB", &clsHOTEL::HOTEL_NB},
                                              {"HOTEL_NM", &clsHOTEL::HOTEL_NM},
                                              {"ADDRESS_TX", &clsHOTEL::ADDRESS_TX},
                                              {"CONTACT_NM", &clsHOTEL::CONTACT_NM},
                                              {"PHONE_TX", &clsHOTEL::PHONE_TX},
                                              {"FAX_TX", &clsHOTEL::FAX_TX},
                                              {"EMAIL_TX", &clsHOTEL::EMAIL_TX},
                                              {"WEB_SITE_TX", &clsHOTEL::WEB_SITE_TX},
                                              {"ROOMS_NB", &clsHOTEL::ROOMS_NB},
                                              {"POS_X", &clsHOTEL::POS_X},
                                              {"POS_Y", &clsHOTEL::POS_Y},
                                              {"NOTES_TX", &clsHOTEL::NOTES_TX}}};
    return table;
}

QString clsHOTEL::ADDRESS_TX_NO_CRLF() const {
    // Line ends at either end are dropped first, so the line does not begin or end with a comma.
    QString text = TrimCrLf(ADDRESS_TX);
    text.replace(QLatin1String("\r\n"), QLatin1String(", "));
    text.replace(QLatin1Char('\n'), QLatin1String(", "));
    text.replace(QLatin1Char('\r'), QLatin1String(", "));
    return TrimCrLf(text);
}

bool clsHOTEL::CreateTable() {
    return modSchema::CreateTableIfMissing(gDB(), QStringLiteral("HOTEL"));
}

bool clsHOTEL::Patch_7_Apply() {
    if (!IsRequired(QStringLiteral("ADDRESS_TX")) && !IsRequired(QStringLiteral("CONTACT_NM")))
        return false;
    gDB().RebuildTable(QStringLiteral("HOTEL"), modSchema::TableDDL(QStringLiteral("HOTEL")));
    return true;
}

void clsHOTEL::Delete(const QString& key) {
    RecordIO::Delete(QStringLiteral("HOTEL"), QStringLiteral("HOTEL_ID"), key);
}

QString clsHOTEL::MapURL(int countryIndex) const {
    return MapAddressURL(ADDRESS_TX, countryIndex);
}

QString clsHOTEL::NEXT_NB() {
    return RecordIO::NextID(QStringLiteral("HOTEL"), QStringLiteral("HOTEL_NB"));
}

bool clsHOTEL::OpenRecord(const QString& key) {
    return RecordIO::OpenRecord(*this, Table(), key);
}

QList<clsHOTEL> clsHOTEL::OpenRecords() {
    return RecordIO::ReadAll(Table(), QStringLiteral("SELECT * FROM HOTEL ORDER BY HOTEL_NB"));
}

void clsHOTEL::Save(bool insert) {
    RecordIO::Save(*this, Table(), insert);
}

long clsHOTEL::Total() {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM HOTEL"));
}

long clsHOTEL::TotalOccupants(const QString& hotelID) {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM HOTEL INNER JOIN CONTACT ON HOTEL.HOTEL_ID = "
                                          "CONTACT.HOTEL_ID WHERE HOTEL.HOTEL_ID = ?"),
                           {hotelID});
}
