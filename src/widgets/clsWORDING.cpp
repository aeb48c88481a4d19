#include "widgets/clsWORDING.h"

#include "core/modSchema.h"

const RecordTable<clsWORDING>& clsWORDING::Table() {
    static const RecordTable<clsWORDING> table{
        "WORDING",
        "WORDING_ID",
        {{"WORDING_ID", &clsWORDING::WORDING_ID}, {"WORDING_TX", &clsWORDING::WORDING_TX}}};
    return table;
}

bool clsWORDING::CreateTable() {
    clsTransaction tx(gDB());
    if (!modSchema::CreateTableIfMissing(gDB(), QStringLiteral("WORDING")))
        return false;
    modSchema::SeedTable(gDB(), QStringLiteral("WORDING"));
    tx.Commit();
    return true;
}

void clsWORDING::Delete(const QString& key) {
    RecordIO::Delete(QStringLiteral("WORDING"), QStringLiteral("WORDING_ID"), key);
}

bool clsWORDING::OpenRecord(const QString& key) {
    return RecordIO::OpenRecord(*this, Table(), key);
}

void clsWORDING::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
}
