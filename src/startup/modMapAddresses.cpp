#include "startup/modMapAddresses.h"

#include "core/clsVOWREN.h"
#include "planning/clsVENDOR.h"
#include "seating/clsHOTEL.h"

namespace modMapAddresses {

QList<Row> Rows() {
    QList<Row> rows;
    for (const clsHOTEL& hotel : clsHOTEL::OpenRecords()) {
        if (!hotel.ADDRESS_TX_NO_CRLF().isEmpty())
            rows << Row{hotel.HOTEL_ID + QStringLiteral(" H"),
                        hotel.HOTEL_NM + QStringLiteral(": ") + hotel.ADDRESS_TX_NO_CRLF()};
    }
    for (const clsVENDOR& vendor : clsVENDOR().OpenRecords()) {
        if (!vendor.ADDRESS_TX_NO_CRLF().isEmpty())
            rows << Row{vendor.VENDOR_ID + QStringLiteral(" V"),
                        vendor.VENDOR_NM + QStringLiteral(": ") + vendor.ADDRESS_TX_NO_CRLF()};
    }
    return rows;
}

// The last character of the key tells the kind.
QString URL(const QString& key) {
    if (key.size() < 3)
        return {};
    const QString id = key.chopped(2);
    if (key.endsWith(QLatin1String(" H"))) {
        clsHOTEL hotel;
        return hotel.OpenRecord(id) ? hotel.MapURL(clsVOWREN::MapCountryIndex()) : QString();
    }
    if (key.endsWith(QLatin1String(" V"))) {
        clsVENDOR vendor;
        return vendor.OpenRecord(id) ? vendor.MapURL() : QString();
    }
    return {};
}

} // namespace modMapAddresses
