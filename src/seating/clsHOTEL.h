#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>

// A hotel for the guests from out of town; CONTACT.HOTEL_ID says who sleeps where.
class clsHOTEL {
public:
    QString HOTEL_ID;
    QString HOTEL_NB; // the number the user sees
    QString HOTEL_NM;
    QString ADDRESS_TX;
    QString CONTACT_NM;
    QString PHONE_TX;
    QString FAX_TX;
    QString EMAIL_TX;
    QString WEB_SITE_TX;
    QString ROOMS_NB;
    QString POS_X; // position of the hotel's box on the map
    QString POS_Y;
    QString NOTES_TX;

    static const RecordTable<clsHOTEL>& Table();

    // The address on one line: line breaks become ", ", blanks and line ends go at both ends.
    QString ADDRESS_TX_NO_CRLF() const;
    static bool CreateTable();
    // Makes the address and the contact name of an old table optional.
    static bool Patch_7_Apply();
    // Deletes the hotel alone: a hotel that still houses guests is refused by the database.
    void Delete(const QString& key);
    // The map link of the address for a country index.
    QString MapURL(int countryIndex) const;
    // The highest hotel number + 1, or "1".
    static QString NEXT_NB();
    bool OpenRecord(const QString& key);
    // Every hotel in number order.
    static QList<clsHOTEL> OpenRecords();
    void Save(bool insert);
    static long Total();
    // Guests housed in that hotel.
    static long TotalOccupants(const QString& hotelID);
};
