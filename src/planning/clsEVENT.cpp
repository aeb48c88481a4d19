#include "planning/clsEVENT.h"

#include "planning/clsTIMELINE.h"

#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "guests/clsParseAddress.h"
#include "platform/clsShell.h"

namespace {

const QString kCrLf = QStringLiteral("\r\n");

QString FormatStored(const QString& stored, const QString& format) {
    return FormatDateTime(ParseDateTimeText(stored), format);
}

} // namespace

const RecordTable<clsEVENT>& clsEVENT::Table() {
    static const RecordTable<clsEVENT> table{"EVENT",
                                             "EVENT_ID",
                                             {{"EVENT_ID", &clsEVENT::EVENT_ID},
                                              {"EVENT_TX", &clsEVENT::EVENT_TX},
                                              {"EVENT_DT", &clsEVENT::EVENT_DT},
                                              {"ADDRESS_TX", &clsEVENT::ADDRESS_TX},
                                              {"CITY_TX", &clsEVENT::CITY_TX},
                                              {"STATE_TX", &clsEVENT::STATE_TX},
                                              {"ZIP_TX", &clsEVENT::ZIP_TX},
                                              {"COUNTRY_TX", &clsEVENT::COUNTRY_TX},
                                              {"CONTACT_NM", &clsEVENT::CONTACT_NM},
                                              {"PHONE_TX", &clsEVENT::PHONE_TX},
                                              {"FAX_TX", &clsEVENT::FAX_TX},
                                              {"EMAIL_TX", &clsEVENT::EMAIL_TX},
                                              {"WEB_SITE_TX", &clsEVENT::WEB_SITE_TX},
                                              {"NOTES_TX", &clsEVENT::NOTES_TX}}};
    return table;
}

QString clsEVENT::DisplayAddress(bool multiLine) const {
    clsParseAddress address;
    address.ADDRESS_TX = QString(ADDRESS_TX).replace(kCrLf, multiLine ? kCrLf : QStringLiteral(", "));
    address.CITY_TX = CITY_TX;
    address.STATE_TX = STATE_TX;
    address.ZIP_TX = ZIP_TX;
    address.COUNTRY_TX = COUNTRY_TX;
    return address.DisplayAddress(multiLine);
}

QString clsEVENT::EVENT_DT_DateTimeFormat() const {
    return FormatStored(EVENT_DT, DateTimeFormat());
}

QString clsEVENT::EVENT_DT_DateFormat() const {
    return FormatStored(EVENT_DT, QLatin1String(kDateFormat));
}

QString clsEVENT::EVENT_DT_TimeFormat() const {
    return FormatStored(EVENT_DT, TimeFormat());
}

void clsEVENT::Delete(const QString& eventId) {
    if (eventId.trimmed() == QLatin1String("1"))
        throw clsDbError(QStringLiteral("You cannot delete the Wedding Day event."), 0);
    RecordIO::Delete(QStringLiteral("EVENT"), QStringLiteral("EVENT_ID"), eventId);
}

long clsEVENT::GetTotal() const {
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) AS CNT FROM EVENT"));
}

QString clsEVENT::MapURL() const {
    return MapAddressURL(DisplayAddress(true), clsVOWREN::MapCountryIndex());
}

bool clsEVENT::MapIt() const {
    return gShell().OpenDocument(MapURL());
}

bool clsEVENT::OpenRecord(const QString& eventId) {
    return RecordIO::OpenRecord(*this, Table(), eventId);
}

QList<clsEVENT> clsEVENT::OpenRecords(const QString& onDate) const {
    if (onDate.isEmpty())
        return RecordIO::ReadAll(Table(), QStringLiteral("SELECT * FROM EVENT ORDER BY EVENT_DT"));
    // A text that is no date is compared as it stands, and so matches nothing.
    const QDateTime day = ParseDateTimeText(onDate);
    const QString isoDay = day.isValid() ? day.date().toString(QStringLiteral("yyyy-MM-dd")) : onDate;
    return RecordIO::ReadAll(
        Table(), QStringLiteral("SELECT * FROM EVENT WHERE date(EVENT_DT) = ? ORDER BY EVENT_DT"), {isoDay});
}

void clsEVENT::SaveWeddingDay(const QString& when) {
    clsTransaction tx(gDB());
    const QList<clsEVENT> found =
        RecordIO::ReadAll(Table(), QStringLiteral("SELECT * FROM EVENT WHERE EVENT_ID = 1"));
    clsEVENT wedding = found.value(0);
    wedding.EVENT_ID = QStringLiteral("1");
    wedding.EVENT_TX = QStringLiteral("Wedding");
    wedding.EVENT_DT = when;
    RecordIO::Save(wedding, Table(), found.isEmpty(), false);
    const long ceremonies =
        gDB()
            .Execute(QStringLiteral("SELECT COUNT(*) FROM TIMELINE WHERE EVENT_ID = 1 AND "
                                    "TIMELINE_DESC = 'Wedding Ceremony'"))
            .Scalar()
            .toLong();
    if (ceremonies == 0) {
        clsTIMELINE ceremony;
        ceremony.TIMELINE_START_DT = when;
        ceremony.TIMELINE_END_DT = when;
        ceremony.TIMELINE_DESC = QStringLiteral("Wedding Ceremony");
        ceremony.CONTACT_NM = QStringLiteral("Everyone");
        ceremony.EVENT_ID = QStringLiteral("1");
        RecordIO::Save(ceremony, clsTIMELINE::Table(), true);
    }
    tx.Commit();
    gApp().SetWeddingDate(wedding.EVENT_DT_DateTimeFormat());
    gWeddingEvent().OpenRecord(QStringLiteral("1"));
}

QString clsEVENT::ComposeEVENT_DT(const QDate& date, const QTime& time) {
    return FormatDate(date) + QLatin1Char(' ') + FormatTime(time);
}

void clsEVENT::MoveWeddingDay(const QDate& date, const QTime& time) {
    clsEVENT wedding;
    if (!wedding.OpenRecord(QStringLiteral("1"))) {
        SaveWeddingDay(ComposeEVENT_DT(date, time));
        return;
    }
    wedding.EVENT_DT = ComposeEVENT_DT(date, time);
    wedding.Save(false);
}

void clsEVENT::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
    if (EVENT_ID == QLatin1String("1")) {
        gApp().SetWeddingDate(EVENT_DT_DateTimeFormat());
        gWeddingEvent().OpenRecord(QStringLiteral("1"));
    }
}

void clsEVENT::Patch_1_Apply() {
    const QList<clsEVENT> events = clsEVENT().OpenRecords();
    clsTransaction tx(gDB());
    for (clsEVENT event : events) {
        JoinAddressParts(event);
        RecordIO::Save(event, Table(), false);
    }
    tx.Commit();
}

clsEVENT& gWeddingEvent() {
    static clsEVENT wedding;
    return wedding;
}
