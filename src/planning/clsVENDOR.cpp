#include "planning/clsVENDOR.h"

#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "guests/clsParseAddress.h"
#include "planning/modPlanningSql.h"
#include "platform/clsShell.h"

const RecordTable<clsVENDOR>& clsVENDOR::Table() {
    static const RecordTable<clsVENDOR> table{"VENDOR",
                                              "VENDOR_ID",
                                              {{"VENDOR_ID", &clsVENDOR::VENDOR_ID},
                                               {"VENDOR_NM", &clsVENDOR::VENDOR_NM},
                                               {"ADDRESS_TX", &clsVENDOR::ADDRESS_TX},
                                               {"CITY_TX", &clsVENDOR::CITY_TX},
                                               {"STATE_TX", &clsVENDOR::STATE_TX},
                                               {"ZIP_TX", &clsVENDOR::ZIP_TX},
                                               {"COUNTRY_TX", &clsVENDOR::COUNTRY_TX},
                                               {"CONTACT_NM", &clsVENDOR::CONTACT_NM},
                                               {"EMAIL_TX", &clsVENDOR::EMAIL_TX},
                                               {"PHONE_TX", &clsVENDOR::PHONE_TX},
                                               {"FAX_TX", &clsVENDOR::FAX_TX},
                                               {"WEB_SITE_TX", &clsVENDOR::WEB_SITE_TX},
                                               {"NOTES_TX", &clsVENDOR::NOTES_TX},
                                               {"VENDOR_CATEGORY_ID", &clsVENDOR::VENDOR_CATEGORY_ID},
                                               {"FILE_PATH_TX", &clsVENDOR::FILE_PATH_TX}}};
    return table;
}

const RecordTable<clsVENDOR>& clsVENDOR::ReadTable() {
    static const RecordTable<clsVENDOR> table = [] {
        RecordTable<clsVENDOR> read = Table();
        read.Fields.push_back({"VENDOR_CATEGORY_TX", &clsVENDOR::VENDOR_CATEGORY_TX});
        return read;
    }();
    return table;
}

// A vendor is listed only with a category that exists.
QString clsVENDOR::SelectSql() {
    return QStringLiteral("SELECT ") + QualifiedColumns(Table()) +
           QStringLiteral(", VENDOR_CATEGORY_DICT.VENDOR_CATEGORY_TX FROM VENDOR INNER JOIN "
                          "VENDOR_CATEGORY_DICT ON VENDOR.VENDOR_CATEGORY_ID = "
                          "VENDOR_CATEGORY_DICT.VENDOR_CATEGORY_ID ");
}

QString clsVENDOR::ADDRESS_TX_NO_CRLF() const {
    return QString(ADDRESS_TX).replace(QStringLiteral("\r\n"), QStringLiteral(", "));
}

QStringList clsVENDOR::FilePaths() const {
    return FILE_PATH_TX.split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

void clsVENDOR::SetFilePaths(const QStringList& paths) {
    FILE_PATH_TX = paths.join(QLatin1Char(';'));
}

void clsVENDOR::Delete(const QString& vendorId) {
    RecordIO::Delete(QStringLiteral("VENDOR"), QStringLiteral("VENDOR_ID"), vendorId);
}

long clsVENDOR::GetTotal() const {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) AS CNT FROM VENDOR"));
}

QString clsVENDOR::MapURL() const {
    return MapAddressURL(AddressOf(*this).DisplayAddress(true), clsVOWREN::MapCountryIndex());
}

bool clsVENDOR::MapIt() const {
    return gShell().OpenDocument(MapURL());
}

bool clsVENDOR::OpenRecord(const QString& vendorId) {
    if (vendorId.isEmpty())
        return false;
    return RecordIO::OpenFirst(*this, ReadTable(), SelectSql() + QStringLiteral("WHERE VENDOR.VENDOR_ID = ?"),
                               {vendorId});
}

QList<clsVENDOR> clsVENDOR::OpenRecords() const {
    return RecordIO::ReadAll(
        ReadTable(),
        SelectSql() + QStringLiteral("ORDER BY VENDOR_CATEGORY_DICT.VENDOR_CATEGORY_TX COLLATE NOCASE, "
                                     "VENDOR.VENDOR_NM COLLATE NOCASE"));
}

void clsVENDOR::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
}

void clsVENDOR::Patch_1_Apply() {
    const QList<clsVENDOR> vendors =
        RecordIO::ReadAll(Table(), QStringLiteral("SELECT * FROM VENDOR ORDER BY VENDOR_ID"));
    clsTransaction tx(gDB());
    for (clsVENDOR vendor : vendors) {
        JoinAddressParts(vendor);
        RecordIO::Save(vendor, Table(), false);
    }
    tx.Commit();
}

void clsVENDOR::Patch_Add_VENDOR_CATEGORY_ID() {
    if (gDB().FieldExists(QStringLiteral("VENDOR"), QStringLiteral("VENDOR_CATEGORY_ID")))
        return;
    clsTransaction tx(gDB());
    gDB().Execute(
        QStringLiteral("ALTER TABLE VENDOR ADD COLUMN VENDOR_CATEGORY_ID INTEGER CONSTRAINT "
                       "VENDOR_TO_VENDOR_CATEGORY_FK REFERENCES VENDOR_CATEGORY_DICT (VENDOR_CATEGORY_ID)"));
    gDB().Execute(QStringLiteral("UPDATE VENDOR SET VENDOR_CATEGORY_ID = 1"));
    tx.Commit();
}

void clsVENDOR::Patch_Add_FILE_PATH_TX() {
    if (gDB().FieldExists(QStringLiteral("VENDOR"), QStringLiteral("FILE_PATH_TX")))
        return;
    gDB().Execute(QStringLiteral("ALTER TABLE VENDOR ADD COLUMN FILE_PATH_TX TEXT"));
}
