#include "core/clsVOWREN.h"

#include "core/clsApp.h"
#include "core/modSchema.h"

namespace {

// Inserts rows that come with their key, all or none.
void InsertRows(const QList<std::pair<int, QString>>& rows) {
    clsTransaction tx(gDB());
    for (const auto& [id, text] : rows) {
        clsVOWREN row;
        row.VOWREN_ID = QString::number(id);
        row.VOWREN_TX = text;
        RecordIO::Save(row, clsVOWREN::Table(), true, false);
    }
    tx.Commit();
}

QString NextFreeID() {
    return RecordIO::NextID(QStringLiteral("VOWREN"), QStringLiteral("VOWREN_ID"));
}

} // namespace

const RecordTable<clsVOWREN>& clsVOWREN::Table() {
    static const RecordTable<clsVOWREN> table{
        "VOWREN", "VOWREN_ID", {{"VOWREN_ID", &clsVOWREN::VOWREN_ID}, {"VOWREN_TX", &clsVOWREN::VOWREN_TX}}};
    return table;
}

QString clsVOWREN::Get_VOWREN_TX(int id) const {
    return Get_VOWREN_TX(QString::number(id));
}

QString clsVOWREN::Get_VOWREN_TX(const QString& id) const {
    const auto it = mItems.constFind(ItemKey(id));
    if (it == mItems.constEnd())
        throw clsDbError(QStringLiteral("Invalid procedure call or argument"), 0);
    return it.value();
}

// ---- Schema ----

bool clsVOWREN::CreateTable() {
    clsTransaction tx(gDB());
    if (!modSchema::CreateTableIfMissing(gDB(), QStringLiteral("VOWREN")))
        return false;
    modSchema::SeedTable(gDB(), QStringLiteral("VOWREN"));
    tx.Commit();
    return true;
}

bool clsVOWREN::Patch_6_Apply() {
    if (NextFreeID() != QLatin1String("4"))
        return false;
    InsertRows({{4, QString::number(modSchema::ReportColour(0))},
                {5, QString::number(modSchema::ReportColour(1))},
                {6, QString::number(modSchema::ReportColour(2))}});
    return true;
}

bool clsVOWREN::Patch_7_Apply() {
    if (NextFreeID() != QLatin1String("7"))
        return false;
    const QString formal = BooleanText(gApp().EtiquetteIsFormal());
    InsertRows({{7, formal}, {8, formal}, {9, QString::number(gApp().GoogleMapIndex())}});
    return true;
}

// ---- Records ----

void clsVOWREN::Delete(const QString& id) {
    RecordIO::Delete(QStringLiteral("VOWREN"), QStringLiteral("VOWREN_ID"), id);
    mItems.remove(ItemKey(id));
}

bool clsVOWREN::OpenRecord(const QString& id) {
    return RecordIO::OpenRecord(*this, Table(), id);
}

QList<clsVOWREN> clsVOWREN::OpenRecords() {
    const QList<clsVOWREN> rows = RecordIO::ReadAll(Table(), QStringLiteral("SELECT * FROM VOWREN"));
    mItems.clear();
    for (const clsVOWREN& row : rows)
        mItems.insert(ItemKey(row.VOWREN_ID), row.VOWREN_TX);
    return rows;
}

void clsVOWREN::QuickUpdate(int id, const QString& value) {
    QuickUpdate(QString::number(id), value);
}

void clsVOWREN::QuickUpdate(const QString& id, const QString& value) {
    RecordIO::Run(QStringLiteral("UPDATE VOWREN SET VOWREN_TX = ? WHERE VOWREN_ID = ?"), {value, id});
    mItems.insert(ItemKey(id), value);
}

void clsVOWREN::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
    mItems.insert(ItemKey(VOWREN_ID), VOWREN_TX);
}

clsVOWREN& gVowren() {
    static clsVOWREN vowren;
    return vowren;
}

QString clsVOWREN::ReadStored(int id) {
    return gDB().Execute(QStringLiteral("SELECT VOWREN_TX FROM VOWREN WHERE VOWREN_ID = ?"), {id}).Scalar();
}

int clsVOWREN::MapCountryIndex() {
    try {
        return clsApp::ToInt16(ReadStored(9), 0);
    } catch (const clsDbError&) {
        return 0;
    }
}
