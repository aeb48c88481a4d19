#pragma once

#include <QJsonObject>
#include <QString>

// Converts between an address block (lines separated by CR LF, as ADDRESS_TX keeps it) and its parts.
// The block is read from its end, where the parts with a recognisable form stand: country and ZIP or
// postal code, then the state, then the city; what is left is the street. Text that fits no pattern
// stays in the street. The class touches no database.
class clsParseAddress {
public:
    QString ADDRESS_TX; // the street: what is left of the block
    QString CITY_TX;
    QString STATE_TX;
    QString SPARE_TX; // kept in its place between state and ZIP; nothing fills or reads it
    QString ZIP_TX;
    QString COUNTRY_TX;

    // Fills the parts from the block. The caller's text is worked on in place: afterwards it holds
    // the street, with its line breaks as CR LF (a block may come with LF or CR LF line breaks).
    void ParseFullAddress(QString& address);

    // The country, or "" for every way of writing the United States: domestic mail shows no country.
    QString COUNTRY_TX_FILTER_OUT_USA() const;

    // Street, city, state, ZIP and the filtered country as one text: "12 Oak St" CR LF
    // "Boston, MA  02101" on two lines, or joined by ", " on one.
    QString DisplayAddress(bool MultiLine) const;

    // True when only a number was recognised: a ZIP with no street, city or state.
    bool AddressUnclear() const;

    // The parts as {street, city, state, zip, country, unclear}.
    QJsonObject ToJson() const;
    // A new object's parse of the block, as ToJson gives it.
    static QJsonObject ParseToJson(const QString& address);

    static constexpr qsizetype kMaxStateLength = 50;

private:
    void ScanZipAndCountry(QString& text);
    void ScanUnitedStates(QString& text);
    void ScanCanada(QString& text);
    void ScanState(QString& text);
    void ScanCity(QString& text);
};

// The five address parts of a record, ready to be shown.
template <class T>
clsParseAddress AddressOf(const T& record) {
    clsParseAddress address;
    address.ADDRESS_TX = record.ADDRESS_TX;
    address.CITY_TX = record.CITY_TX;
    address.STATE_TX = record.STATE_TX;
    address.ZIP_TX = record.ZIP_TX;
    address.COUNTRY_TX = record.COUNTRY_TX;
    return address;
}

// Joins a record's five address parts into the one block of ADDRESS_TX, as shown on an envelope, and
// empties the other four: how addresses have been kept since they became one field.
template <class T>
void JoinAddressParts(T& record) {
    record.ADDRESS_TX = AddressOf(record).DisplayAddress(true);
    record.CITY_TX.clear();
    record.STATE_TX.clear();
    record.ZIP_TX.clear();
    record.COUNTRY_TX.clear();
}
