#include "planning/clsTIMELINE.h"

#include "core/modGeneral.h"
#include "core/modSchema.h"
#include "planning/modPlanningSql.h"

namespace {

QString FormatStored(const QString& stored, const QString& format) {
    return FormatDateTime(ParseDateTimeText(stored), format);
}

} // namespace

const RecordTable<clsTIMELINE>& clsTIMELINE::Table() {
    static const RecordTable<clsTIMELINE> table{"TIMELINE",
                                                "TIMELINE_ID",
                                                {{"TIMELINE_ID", &clsTIMELINE::TIMELINE_ID},
                                                 {"TIMELINE_START_DT", &clsTIMELINE::TIMELINE_START_DT},
                                                 {"TIMELINE_END_DT", &clsTIMELINE::TIMELINE_END_DT},
                                                 {"TIMELINE_DESC", &clsTIMELINE::TIMELINE_DESC},
                                                 {"CONTACT_NM", &clsTIMELINE::CONTACT_NM},
                                                 {"EVENT_ID", &clsTIMELINE::EVENT_ID},
                                                 {"NOTES_TX", &clsTIMELINE::NOTES_TX}}};
    return table;
}

const RecordTable<clsTIMELINE>& clsTIMELINE::ReadTable() {
    static const RecordTable<clsTIMELINE> table = [] {
        RecordTable<clsTIMELINE> read = Table();
        read.Fields.push_back({"EVENT_TX", &clsTIMELINE::EVENT_TX});
        return read;
    }();
    return table;
}

QString clsTIMELINE::SelectSql() {
    return QStringLiteral("SELECT ") + QualifiedColumns(Table()) +
           QStringLiteral(", EVENT.EVENT_TX FROM EVENT INNER JOIN TIMELINE ON EVENT.EVENT_ID = "
                          "TIMELINE.EVENT_ID ");
}

QString clsTIMELINE::Duration(const QTime& start, const QTime& end) {
    // Minutes forward on the clock from start to end: a negative difference has gone over midnight.
    const int minutes = ((start.secsTo(end) / 60) % 1440 + 1440) % 1440;
    const int hours = minutes / 60;
    const int rest = minutes % 60;
    QString hoursPart;
    if (hours > 0)
        hoursPart = QString::number(hours) + QStringLiteral(" hr") +
                    (hours >= 2 ? QStringLiteral("s") : QString()) + QLatin1Char('.');
    QString minutesPart;
    if (rest > 0)
        minutesPart = QString::number(rest) + QStringLiteral(" min.");
    const QString text = QString(hoursPart + QLatin1Char(' ') + minutesPart).trimmed();
    return text.isEmpty() ? QStringLiteral("--") : text;
}

QString clsTIMELINE::Duration() const {
    return Duration(ParseDateTimeText(TIMELINE_START_DT).time(), ParseDateTimeText(TIMELINE_END_DT).time());
}

QString clsTIMELINE::TIMELINE_END_DT_DateTimeFormat() const {
    return FormatStored(TIMELINE_END_DT, DateTimeFormat());
}

QString clsTIMELINE::TIMELINE_START_DT_DateTimeFormat() const {
    return FormatStored(TIMELINE_START_DT, DateTimeFormat());
}

QString clsTIMELINE::TIMELINE_START_DT_DateFormat() const {
    return FormatStored(TIMELINE_START_DT, QLatin1String(kDateFormat));
}

QString clsTIMELINE::TIMELINE_START_TM_TO_END_TM() const {
    return TIMELINE_START_TM_TO_END_TM(ParseDateTimeText(TIMELINE_START_DT).time(),
                                       ParseDateTimeText(TIMELINE_END_DT).time());
}

QString clsTIMELINE::TIMELINE_START_TM_TO_END_TM(const QTime& start, const QTime& end) {
    const QString from = FormatTime(start);
    const QString to = FormatTime(end);
    return from == to ? from : from + QLatin1Char('-') + to;
}

void clsTIMELINE::CreateTable() {
    modSchema::CreateTableIfMissing(gDB(), QStringLiteral("TIMELINE"));
}

void clsTIMELINE::Delete(const QString& timelineId) {
    RecordIO::Delete(QStringLiteral("TIMELINE"), QStringLiteral("TIMELINE_ID"), timelineId);
}

QString clsTIMELINE::GetLastTime(const QString& eventId) const {
    if (eventId.isEmpty())
        return FormatTime(QTime(0, 0));
    const QString latest =
        gDB()
            .Execute(
                QStringLiteral("SELECT MAX(TIMELINE_END_DT) AS MAX_TIME FROM TIMELINE WHERE EVENT_ID = ?"),
                {eventId})
            .Scalar();
    const QDateTime moment = ParseDateTimeText(latest);
    return moment.isValid() ? FormatTime(moment.time()) : QStringLiteral("8:00 AM");
}

long clsTIMELINE::GetTotal(const QString& eventId) const {
    if (eventId.isEmpty())
        return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM TIMELINE"));
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) FROM TIMELINE WHERE EVENT_ID = ?"), {eventId});
}

long clsTIMELINE::GetTotalEvents() const {
    return RecordIO::Count(
        QStringLiteral("SELECT COUNT(EVENT_ID) FROM (SELECT DISTINCT EVENT_ID FROM TIMELINE)"));
}

QList<clsEVENT> clsTIMELINE::OpenEvents() const {
    return RecordIO::ReadAll(
        clsEVENT::Table(),
        QStringLiteral(
            "SELECT DISTINCT EVENT.EVENT_DT, EVENT.EVENT_ID, EVENT.EVENT_TX FROM EVENT INNER JOIN TIMELINE "
            "ON EVENT.EVENT_ID = TIMELINE.EVENT_ID ORDER BY EVENT.EVENT_DT, EVENT.EVENT_ID, EVENT.EVENT_TX"));
}

bool clsTIMELINE::OpenRecord(const QString& timelineId) {
    if (timelineId.isEmpty())
        return false;
    return RecordIO::OpenFirst(*this, ReadTable(),
                               SelectSql() + QStringLiteral("WHERE TIMELINE.TIMELINE_ID = ?"), {timelineId});
}

QList<clsTIMELINE> clsTIMELINE::OpenRecords(const QString& eventId) const {
    const QString order = QStringLiteral(" ORDER BY TIMELINE_START_DT, TIMELINE_END_DT");
    if (eventId.isEmpty())
        return RecordIO::ReadAll(ReadTable(), SelectSql() + order);
    return RecordIO::ReadAll(ReadTable(), SelectSql() + QStringLiteral("WHERE TIMELINE.EVENT_ID = ?") + order,
                             {eventId});
}

void clsTIMELINE::Save(bool isNew) {
    RecordIO::Save(*this, Table(), isNew);
}
