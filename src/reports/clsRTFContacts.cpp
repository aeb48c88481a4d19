#include "reports/clsRTFContacts.h"

#include "core/clsApp.h"

RtfMarkup clsRTFContacts::Title() const {
    return FilterText + QStringLiteral(" Contacts");
}

RtfMarkup clsRTFContacts::Statistics() const {
    return QStringLiteral("Total Records: ") +
           Count(gApp().TotalContacts(FilterEnum, CustomWhere, ExcludeBrideGroom));
}

QList<clsRTFReport::Column> clsRTFContacts::Columns() const {
    if (!Rtf()) {
        QList<Column> columns;
        for (const char* caption :
             {"Title", "First Name",    "Middle Name", "Last Name",  "Suffix",   "Address",
              "City",  "State",         "Zip",         "Country",    "Nickname", "E-mail",
              "Phone", "Phone 2",       "A-B",         "Friend Of",  "Role",     "Gender",
              "Child", "Out of Towner", "Notes",       "FullAddress"})
            columns.append({caption});
        return columns;
    }
    if (Landscape())
        return {{"Title", 650, 650},
                {"Name", 3400, 3400},
                {"Address", 6500, 6500},
                {"Phone/E-mail", 9800, 9800},
                {"Friend of", 11000, 11000},
                {"Guest of", 13100, 13100},
                {"A-B", 0, 0, clsRTFCell::AlignCenter}};
    return {{"Title", 650, 650},
            {"Name", 4500, 4500},
            {"Phone/E-mail", 8000, 8000},
            {"Friend of", 9200, 9200},
            {"A-B", 0, 0, clsRTFCell::AlignCenter}};
}

void clsRTFContacts::PrintRows() {
    for (const clsCONTACT& contact :
         clsCONTACT::OpenRecords(FilterEnum, CustomWhere, QString(), ExcludeBrideGroom))
        PrintRow(!Rtf() ? CsvTexts(contact) : Landscape() ? LandscapeTexts(contact) : PortraitTexts(contact));
}

QList<RtfMarkup> clsRTFContacts::LandscapeTexts(const clsCONTACT& c) const {
    return {c.TITLE_TX,
            c.ListName(),
            c.DisplayAddress(true),
            Stacked(c.PHONE_NUMBERS(true), c.EMAIL_TX),
            c.FRIEND_OF_TX(),
            c.GUEST_OF_FULL_NM().trimmed(),
            c.AB_LIST_CD};
}

QList<RtfMarkup> clsRTFContacts::PortraitTexts(const clsCONTACT& c) const {
    return {c.TITLE_TX, Stacked(c.ListName(), c.DisplayAddress(true)),
            Stacked(c.PHONE_NUMBERS(true), c.EMAIL_TX), c.FRIEND_OF_TX(), c.AB_LIST_CD};
}

QList<RtfMarkup> clsRTFContacts::CsvTexts(const clsCONTACT& c) {
    if (!mParsedAny || c.ADDRESS_TX != mParsedFrom) {
        mParsedAny = true;
        mParsedFrom = c.ADDRESS_TX;
        mStreet = c.ADDRESS_TX;
        mParsed = clsParseAddress();
        mParsed.ParseFullAddress(mStreet);
    }
    const QString& street = mStreet;
    const clsParseAddress& address = mParsed;
    return {c.TITLE_TX,        c.FIRST_NM,
            c.MIDDLE_NM,       c.LAST_NM,
            c.SUFFIX_TX,       street,
            address.CITY_TX,   address.STATE_TX,
            address.ZIP_TX,    address.COUNTRY_TX_FILTER_OUT_USA(),
            c.NICK_NM,         c.EMAIL_TX,
            c.PHONE_TX,        c.PHONE2_TX,
            c.AB_LIST_CD,      c.FRIEND_OF_TX(),
            c.ROLE_TX,         c.GENDER_FG_Text(),
            YesNo(c.CHILD_FG), c.OUT_OF_TOWNER_FG_Text(),
            c.NOTES_TX,        c.DisplayAddress(true)};
}
