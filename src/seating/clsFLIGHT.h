#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>

// A flight that guests from out of town take; CONTACT.FLIGHT_ID says who is on board.
class clsFLIGHT {
public:
    QString FLIGHT_ID;
    QString FLIGHT_NB; // the number the user sees
    QString FLIGHT_NM; // "Southwest Flight #555"
    QString DEPARTS_AIRPORT_NM;
    QString DEPARTS_DT;
    QString ARRIVES_AIRPORT_NM;
    QString ARRIVES_DT;
    QString POS_X; // position of the flight's box
    QString POS_Y;
    QString NOTES_TX;

    static const RecordTable<clsFLIGHT>& Table();

    // A departure or arrival as read, in the program's date-and-time format.
    static QString DateTimeText(const QString& value);
    // Departure and arrival in the program's date-and-time format.
    QString DEPARTS_DT_DateTimeFormat() const;
    QString ARRIVES_DT_DateTimeFormat() const;
    static bool CreateTable();
    // The passengers go back to the list of guests without a flight, then the flight goes; all or nothing.
    void Delete(const QString& key);
    // The highest flight number + 1, or "1".
    static QString NEXT_NB();
    bool OpenRecord(const QString& key);
    // Every flight in number order.
    static QList<clsFLIGHT> OpenRecords();
    void Save(bool insert);
    static long Total();
    static long TotalPassengers(const QString& flightID);
};
