#pragma once

#include "guests/clsCONTACT.h"
#include "guests/clsParseAddress.h"
#include "reports/clsRTFReport.h"

// The contacts of a filter as a list: name, address, telephones and e-mail, whose friend, whose guest,
// which list; in CSV each part of name and address in a field of its own.
class clsRTFContacts : public clsRTFFilteredReport {
public:
    clsRTFContacts() : clsRTFFilteredReport("clsRTFContacts") {}
    // Leave the bride and the groom out of the list.
    bool ExcludeBrideGroom = true;

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    QList<RtfMarkup> LandscapeTexts(const clsCONTACT& contact) const;
    QList<RtfMarkup> PortraitTexts(const clsCONTACT& contact) const;
    QList<RtfMarkup> CsvTexts(const clsCONTACT& contact);

    // The parts of the last address taken apart: the people of one household follow each other and
    // share it.
    bool mParsedAny = false;
    QString mParsedFrom;
    QString mStreet;
    clsParseAddress mParsed;
};
