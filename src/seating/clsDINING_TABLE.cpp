#include "seating/clsDINING_TABLE.h"

#include "guests/clsCONTACT.h"

const RecordTable<clsDINING_TABLE>& clsDINING_TABLE::Table() {
    static const RecordTable<clsDINING_TABLE> table{
        "DINING_TABLE",
        "DINING_TABLE_ID",
        {{"DINING_TABLE_ID", &clsDINING_TABLE::DINING_TABLE_ID},
         {"DINING_TABLE_NB", &clsDINING_TABLE::DINING_TABLE_NB},
         {"DINING_TABLE_NM", &clsDINING_TABLE::DINING_TABLE_NM},
         {"SEATS_NB", &clsDINING_TABLE::SEATS_NB},
         {"POS_X", &clsDINING_TABLE::POS_X},
         {"POS_Y", &clsDINING_TABLE::POS_Y},
         {"DINING_TABLE_TYPE_ID", &clsDINING_TABLE::DINING_TABLE_TYPE_ID}}};
    return table;
}

bool clsDINING_TABLE::Delete(const QString& key) {
    try {
        clsTransaction tx(gDB());
        clsCONTACT::Update_DINING_TABLE_ID_TO_NULL(key);
        if (gDB().TableExists(QStringLiteral("TENTCARD")))
            gDB().Execute(QStringLiteral("DELETE FROM TENTCARD WHERE DINING_TABLE_ID = ?"), {key});
        gDB().Execute(QStringLiteral("DELETE FROM DINING_TABLE WHERE DINING_TABLE_ID = ?"), {key});
        tx.Commit();
        return true;
    } catch (const clsDbError& e) {
        RecordIO::Report(e);
        return false;
    }
}

long clsDINING_TABLE::GetTotal(int kind) const {
    if (kind == TotalTables)
        return RecordIO::Count(QStringLiteral("SELECT COUNT(*) AS CNT FROM DINING_TABLE"));
    if (kind != SeatsFree && kind != SeatsTaken)
        return 0;
    const long taken = RecordIO::Count(
        QStringLiteral("SELECT COUNT(*) AS CNT FROM CONTACT WHERE DINING_TABLE_ID = ?"), {DINING_TABLE_ID});
    return kind == SeatsTaken ? taken : SEATS_NB.toLong() - taken;
}

QString clsDINING_TABLE::NEXT_NB() {
    try {
        const QString next =
            gDB()
                .Execute(QStringLiteral("SELECT Max(DINING_TABLE_NB) + 1 AS MAXNB FROM DINING_TABLE"))
                .Scalar();
        return next.isEmpty() ? QStringLiteral("1") : next;
    } catch (const clsDbError& e) {
        RecordIO::Report(e);
        return {};
    }
}

bool clsDINING_TABLE::OpenRecord(const QString& key, const QString& number) {
    if (!key.isEmpty())
        return RecordIO::OpenRecord(*this, Table(), key);
    if (number.isEmpty())
        return false;
    return RecordIO::OpenFirst(
        *this, Table(), QStringLiteral("SELECT * FROM DINING_TABLE WHERE DINING_TABLE_NB = ?"), {number});
}

QList<clsDINING_TABLE> clsDINING_TABLE::OpenRecords() {
    return RecordIO::Read([] {
        return RecordIO::ReadAll(Table(),
                                 QStringLiteral("SELECT * FROM DINING_TABLE ORDER BY DINING_TABLE_NB"));
    });
}

bool clsDINING_TABLE::Patch_Field_Exists(const QString& column) {
    try {
        const clsRecordset columns = gDB().Execute(
            QStringLiteral(
                "SELECT name FROM pragma_table_info('DINING_TABLE') WHERE name = ? COLLATE NOCASE"),
            {column});
        return !columns.IsEmpty();
    } catch (const clsDbError&) {
        return false;
    }
}

bool clsDINING_TABLE::Patch_6_Apply() {
    if (Patch_Field_Exists(QStringLiteral("DINING_TABLE_TYPE_ID")))
        return false;
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("ALTER TABLE DINING_TABLE ADD COLUMN DINING_TABLE_TYPE_ID INTEGER"));
    gDB().Execute(QStringLiteral("UPDATE DINING_TABLE SET DINING_TABLE_TYPE_ID = '1'"));
    tx.Commit();
    return true;
}

bool clsDINING_TABLE::Save(bool insert) {
    return RecordIO::Attempt([&] { RecordIO::Save(*this, Table(), insert); });
}
