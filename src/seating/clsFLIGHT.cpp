#include "seating/clsFLIGHT.h"

#include "core/modGeneral.h"
#include "core/modSchema.h"
#include "guests/clsCONTACT.h"

const RecordTable<clsFLIGHT>& clsFLIGHT::Table() {
    static const RecordTable<clsFLIGHT> table{"FLIGHT",
                                              "FLIGHT_ID",
                                              {{"FLIGHT_ID", &clsFLIGHT::FLIGHT_ID},
                                               {"FLIGHT_NB", &clsFLIGHT::FLIGHT_NB},
                                               {"FLIGHT_NM", &clsFLIGHT::FLIGHT_NM},
                                               {"DEPARTS_AIRPORT_NM", &clsFLIGHT::DEPARTS_AIRPORT_NM},
                                               {"DEPARTS_DT", &clsFLIGHT::DEPARTS_DT},
                                               {"ARRIVES_AIRPORT_NM", &clsFLIGHT::ARRIVES_AIRPORT_NM},
                                               {"ARRIVES_DT", &clsFLIGHT::ARRIVES_DT},
                                               {"POS_X", &clsFLIGHT::POS_X},
                                               {"POS_Y", &clsFLIGHT::POS_Y},
                                               {"NOTES_TX", &clsFLIGHT::NOTES_TX}}};
    return table;
}

QString clsFLIGHT::DateTimeText(const QString& value) {
    const QDateTime moment = ParseDateTimeText(value);
    return moment.isValid() ? FormatDateTime(moment, DateTimeFormat()) : value;
}

QString clsFLIGHT::DEPARTS_DT_DateTimeFormat() const {
    return DateTimeText(DEPARTS_DT);
}
QString clsFLIGHT::ARRIVES_DT_DateTimeFormat() const {
    return DateTimeText(ARRIVES_DT);
}

bool clsFLIGHT::CreateTable() {
    return modSchema::CreateTableIfMissing(gDB(), QStringLiteral("FLIGHT"));
}

void clsFLIGHT::Delete(const QString& key) {
    clsTransaction tx(gDB());
    clsCONTACT::Update_FLIGHT_ID_TO_NULL(key);
    gDB().Execute(QStringLiteral("DELETE FROM FLIGHT WHERE FLIGHT_ID = ?"), {key});
    tx.Commit();
}

QString clsFLIGHT::NEXT_NB() {
    return RecordIO::NextID(QStringLiteral("FLIGHT"), QStringLiteral("FLIGHT_NB"));
}

bool clsFLIGHT::OpenRecord(const QString& key) {
    return RecordIO::OpenRecord(*this, Table(), key);
}

QList<clsFLIGHT> clsFLIGHT::OpenRecords() {
    return RecordIO::ReadAll(Table(), QStringLiteral("SELECT * FROM FLIGHT ORDER BY FLIGHT_NB"));
}

void clsFLIGHT::Save(bool insert) {
    RecordIO::Save(*this, Table(), insert);
}

long clsFLIGHT::Total() {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM FLIGHT"));
}

long clsFLIGHT::TotalPassengers(const QString& flightID) {
    return RecordIO::Count(
        QStringLiteral("SELECT COUNT(*) FROM FLIGHT INNER JOIN CONTACT ON FLIGHT.FLIGHT_ID = "
                       "CONTACT.FLIGHT_ID WHERE FLIGHT.FLIGHT_ID = ?"),
        {flightID});
}
