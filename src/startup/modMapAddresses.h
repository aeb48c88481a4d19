#pragma once

#include <QList>
#include <QString>

// The places the map capture can show: every hotel and every vendor with an address.
namespace modMapAddresses {

struct Row {
    QString Key;  // the record's id and " H" for a hotel, " V" for a vendor
    QString Text; // the name, ": " and the address on one line
};

// The hotels in number order, then the vendors.
QList<Row> Rows();
// The map link of the record a key names, for the map country kept with the data; empty for a key of
// neither kind or a record that is gone.
QString URL(const QString& key);

} // namespace modMapAddresses
