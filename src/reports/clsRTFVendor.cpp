#include "reports/clsRTFVendor.h"

#include "core/clsApp.h"
#include "planning/clsVENDOR.h"

#include <QStringList>

namespace {

// "(p) 555-0100", "(f) 555-0101" and the e-mail, each on its own line and only when filled.
QString Numbers(const clsVENDOR& vendor) {
    QStringList lines;
    if (!vendor.PHONE_TX.isEmpty())
        lines << QStringLiteral("(p) ") + vendor.PHONE_TX;
    if (!vendor.FAX_TX.isEmpty())
        lines << QStringLiteral("(f) ") + vendor.FAX_TX;
    if (!vendor.EMAIL_TX.isEmpty())
        lines << vendor.EMAIL_TX;
    return lines.join(QStringLiteral("\r\n"));
}

} // namespace

RtfMarkup clsRTFVendor::Title() const {
    return "Vendors";
}

RtfMarkup clsRTFVendor::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalVendors());
}

QList<clsRTFReport::Column> clsRTFVendor::Columns() const {
    return {{"Vendor", 3000, 2800},
            {"Address", 6000, 5300},
            {"Contact", 8500, 7500},
            {"Phone/Fax/E-mail", 11000, RTF.TABLE_WIDTH() - 2000},
            {"Website", 0, 0}};
}

void clsRTFVendor::PrintRows() {
    const QList<clsVENDOR> vendors = clsVENDOR().OpenRecords();
    for (qsizetype i = 0; i < vendors.size(); ++i) {
        const clsVENDOR& vendor = vendors[i];
        if (i == 0 || vendors[i - 1].VENDOR_CATEGORY_TX != vendor.VENDOR_CATEGORY_TX)
            GroupRow(vendor.VENDOR_CATEGORY_TX);
        RTF.RTFCells[0].BOLD = true;
        PrintRow(
            {vendor.VENDOR_NM, vendor.ADDRESS_TX, vendor.CONTACT_NM, Numbers(vendor), vendor.WEB_SITE_TX});
        if (!vendor.NOTES_TX.isEmpty())
            NoteRow(RtfMarkup::Italic(vendor.NOTES_TX));
    }
}
