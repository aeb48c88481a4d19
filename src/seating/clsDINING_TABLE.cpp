#include "seating/clsDINING_TABLE.h"

#include "guests/clsCONTACT.h"

#include <QPoint>
#include <sqlite3.h>

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

void clsDINING_TABLE::Delete(const QString& key) {
    clsTransaction tx(gDB());
    clsCONTACT::Update_DINING_TABLE_ID_TO_NULL(key);
    if (gDB().TableExists(QStringLiteral("TENTCARD")))
        gDB().Execute(QStringLiteral("DELETE FROM TENTCARD WHERE DINING_TABLE_ID = ?"), {key});
    gDB().Execute(QStringLiteral("DELETE FROM DINING_TABLE WHERE DINING_TABLE_ID = ?"), {key});
    tx.Commit();
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
    return RecordIO::NextID(QStringLiteral("DINING_TABLE"), QStringLiteral("DINING_TABLE_NB"));
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
    return RecordIO::ReadAll(Table(), QStringLiteral("SELECT * FROM DINING_TABLE ORDER BY DINING_TABLE_NB"));
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

void clsDINING_TABLE::Save(bool insert) {
    RecordIO::Save(*this, Table(), insert);
}

namespace {

// The table's place when it is the index-th (from 0) of a batch laid out in rows.
QPoint FloorCell(int index) {
    return {index % clsDINING_TABLE::TablesPerRow, index / clsDINING_TABLE::TablesPerRow};
}

QString Twips(int cell) {
    return QString::number(clsDINING_TABLE::TwipsPerPixel * clsDINING_TABLE::TablePitchPixels * cell);
}

} // namespace

void clsDINING_TABLE::CheckNumber(const QString& number, const QString& ownKey) {
    bool whole = false;
    const long long value = number.trimmed().toLongLong(&whole);
    if (!whole || value < 1)
        throw clsDbError(QStringLiteral("The table number must be a whole number from 1 up, such as 12."),
                         SQLITE_MISMATCH);
    const QString holder =
        gDB()
            .Execute(QStringLiteral("SELECT DINING_TABLE_ID FROM DINING_TABLE WHERE DINING_TABLE_NB = ? "
                                    "AND DINING_TABLE_ID IS NOT ? LIMIT 1"),
                     {value, RecordIO::ToDbValue({}, ownKey)})
            .Scalar();
    if (!holder.isEmpty())
        throw clsDbError(QStringLiteral("Table number is already in use."), SQLITE_CONSTRAINT);
}

QStringList clsDINING_TABLE::AddTables(int count, const clsDINING_TABLE& model) {
    QStringList keys;
    clsTransaction tx(gDB());
    for (int i = 0; i < count; ++i) {
        clsDINING_TABLE table = model;
        table.DINING_TABLE_ID.clear();
        if (count == 1) {
            table.DINING_TABLE_NB = model.DINING_TABLE_NB.trimmed();
            table.DINING_TABLE_NM = model.DINING_TABLE_NM.trimmed();
            CheckNumber(table.DINING_TABLE_NB);
        } else {
            table.DINING_TABLE_NB = NEXT_NB();
            table.DINING_TABLE_NM.clear();
        }
        const QPoint cell = FloorCell(i);
        table.POS_X = Twips(cell.x());
        // The horizontal factor for both, as the floor has always placed them.
        table.POS_Y = Twips(cell.y());
        table.Save(true);
        keys.append(table.DINING_TABLE_ID);
    }
    tx.Commit();
    return keys;
}

void clsDINING_TABLE::SaveEdited() {
    DINING_TABLE_NB = DINING_TABLE_NB.trimmed();
    DINING_TABLE_NM = DINING_TABLE_NM.trimmed();
    CheckNumber(DINING_TABLE_NB, DINING_TABLE_ID);
    Save(false);
}

void clsDINING_TABLE::SwapTables(const QString& firstKey, const QString& secondKey) {
    if (firstKey == secondKey)
        return;
    clsTransaction tx(gDB());
    const QList<clsDINING_TABLE> both = RecordIO::ReadAll(
        Table(), QStringLiteral("SELECT * FROM DINING_TABLE WHERE DINING_TABLE_ID IN (?, ?)"),
        {firstKey, secondKey});
    if (both.size() != 2)
        throw clsDbError(QStringLiteral("One of the two tables is no longer on the floor."), SQLITE_NOTFOUND);
    for (clsDINING_TABLE table : both) {
        table.DINING_TABLE_NM =
            both.at(table.DINING_TABLE_ID == both.first().DINING_TABLE_ID ? 1 : 0).DINING_TABLE_NM;
        table.Save(false);
    }
    const QString exchange =
        QStringLiteral("UPDATE %1 SET DINING_TABLE_ID = CASE WHEN DINING_TABLE_ID = ?1 THEN ?2 ELSE ?1 END "
                       "WHERE DINING_TABLE_ID IN (?1, ?2)");
    gDB().Execute(exchange.arg(QStringLiteral("CONTACT")), {firstKey, secondKey});
    if (gDB().TableExists(QStringLiteral("TENTCARD")))
        gDB().Execute(exchange.arg(QStringLiteral("TENTCARD")), {firstKey, secondKey});
    tx.Commit();
}
