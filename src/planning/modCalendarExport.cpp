#include "planning/modCalendarExport.h"

#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "platform/clsPrivateFile.h"

#include <QCryptographicHash>
#include <QFile>

namespace modCalendarExport {

namespace {

constexpr int kMaxOctets = 75;

QString Property(const char* name, const QString& text) {
    return QLatin1String(name) + QLatin1Char(':') + EscapeText(text);
}

// A value read from the database holds a time when something follows its date (midnight reads as the
// date alone).
bool HasTime(const QString& value) {
    return value.trimmed().size() > 11;
}

// DTSTART or DTEND: a moment in UTC, or a date alone.
QString DateProperty(const char* name, const QString& value, bool timed) {
    const QDateTime moment = ParseDateTimeText(value);
    if (timed)
        return QLatin1String(name) + QLatin1Char(':') + UtcText(moment);
    return QLatin1String(name) + QStringLiteral(";VALUE=DATE:") + DateText(moment.date());
}

// The non-empty parts, one a line.
QString Lines(const QStringList& parts) {
    QStringList kept;
    for (const QString& part : parts)
        if (!part.trimmed().isEmpty())
            kept << part.trimmed();
    return kept.join(QLatin1Char('\n'));
}

QString Labelled(const QString& label, const QString& value) {
    return value.trimmed().isEmpty() ? QString() : label + value;
}

void AddText(Entry& entry, const char* name, const QString& text) {
    if (!text.trimmed().isEmpty())
        entry.Properties << Property(name, text);
}

Entry EventEntry(const clsEVENT& event) {
    Entry entry{QStringLiteral("EVENT-%1@vowren").arg(event.EVENT_ID), {}};
    entry.Properties << DateProperty("DTSTART", event.EVENT_DT, HasTime(event.EVENT_DT));
    AddText(entry, "SUMMARY", event.EVENT_TX);
    AddText(entry, "LOCATION", event.DisplayAddress(false));
    AddText(entry, "DESCRIPTION",
            Lines({Labelled(QStringLiteral("Contact: "), event.CONTACT_NM),
                   Labelled(QStringLiteral("Phone: "), event.PHONE_TX),
                   Labelled(QStringLiteral("E-mail: "), event.EMAIL_TX),
                   Labelled(QStringLiteral("Web site: "), event.WEB_SITE_TX), event.NOTES_TX}));
    return entry;
}

Entry TimelineEntry(const clsTIMELINE& item, const QHash<QString, clsEVENT>& events) {
    Entry entry{QStringLiteral("TIMELINE-%1@vowren").arg(item.TIMELINE_ID), {}};
    entry.Properties << DateProperty("DTSTART", item.TIMELINE_START_DT, true);
    // An entry that ends where it starts is a moment: no end.
    if (ParseDateTimeText(item.TIMELINE_END_DT) > ParseDateTimeText(item.TIMELINE_START_DT))
        entry.Properties << DateProperty("DTEND", item.TIMELINE_END_DT, true);
    AddText(entry, "SUMMARY", item.TIMELINE_DESC);
    AddText(entry, "LOCATION", events.value(item.EVENT_ID).DisplayAddress(false));
    AddText(entry, "DESCRIPTION",
            Lines({item.EVENT_TX, Labelled(QStringLiteral("Contact(s): "), item.CONTACT_NM), item.NOTES_TX}));
    return entry;
}

Entry TaskEntry(const clsTASK& task) {
    Entry entry{QStringLiteral("TASK-%1@vowren").arg(task.TASK_ID), {}};
    const QDate due = ParseDateTimeText(task.DUE_DT).date();
    entry.Properties << QStringLiteral("DTSTART;VALUE=DATE:") + DateText(due)
                     << QStringLiteral("DTEND;VALUE=DATE:") + DateText(due.addDays(1));
    entry.Properties << Property("SUMMARY", QStringLiteral("Due: ") + task.TASK_NM);
    AddText(entry, "DESCRIPTION", task.NOTES_TX);
    entry.Properties << QStringLiteral("TRANSP:TRANSPARENT");
    return entry;
}

QByteArray Fingerprint(const Entry& entry) {
    return QCryptographicHash::hash(entry.Properties.join(QLatin1Char('\n')).toUtf8(),
                                    QCryptographicHash::Sha1)
        .toHex();
}

} // namespace

QString EscapeText(const QString& text) {
    QString escaped;
    escaped.reserve(text.size() + 8);
    const QString lines = QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QChar c : lines) {
        if (c == QLatin1Char('\\') || c == QLatin1Char(';') || c == QLatin1Char(',')) {
            escaped += QLatin1Char('\\');
            escaped += c;
        } else if (c == QLatin1Char('\n') || c == QLatin1Char('\r')) {
            escaped += QLatin1String("\\n");
        } else if (c.unicode() >= 0x20 && c.unicode() != 0x7F) {
            escaped += c;
        } else if (c == QLatin1Char('\t')) {
            escaped += c;
        }
    }
    return escaped;
}

QByteArray FoldLine(const QString& line) {
    const QByteArray bytes = line.toUtf8();
    QByteArray folded;
    folded.reserve(bytes.size() + bytes.size() / 60 * 3 + 2);
    qsizetype start = 0;
    int room = kMaxOctets;
    while (bytes.size() - start > room) {
        qsizetype end = start + room;
        // Never between the bytes of one character: continuation bytes are 10xxxxxx.
        while (end > start && (static_cast<unsigned char>(bytes.at(end)) & 0xC0) == 0x80)
            --end;
        folded += bytes.mid(start, end - start);
        folded += "\r\n ";
        start = end;
        room = kMaxOctets - 1;
    }
    folded += bytes.mid(start);
    folded += "\r\n";
    return folded;
}

QString UtcText(const QDateTime& localMoment) {
    return localMoment.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
}

QString DateText(const QDate& date) {
    return date.toString(QStringLiteral("yyyyMMdd"));
}

QList<Entry> ReadEntries() {
    QList<Entry> entries;
    QHash<QString, clsEVENT> events;
    for (const clsEVENT& event : clsEVENT().OpenRecords()) {
        events.insert(event.EVENT_ID, event);
        if (ParseDateTimeText(event.EVENT_DT).isValid())
            entries << EventEntry(event);
    }
    for (const clsTIMELINE& item : clsTIMELINE().OpenRecords())
        if (ParseDateTimeText(item.TIMELINE_START_DT).isValid())
            entries << TimelineEntry(item, events);
    for (const clsTASK& task : clsTASK().OpenRecords(clsTASK::Open))
        if (ParseDateTimeText(task.DUE_DT).isValid())
            entries << TaskEntry(task);
    return entries;
}

QByteArray Document(const QList<Entry>& entries, Memory& memory, const QDateTime& stampUtc) {
    const QString stamp =
        QStringLiteral("DTSTAMP:") + stampUtc.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    QByteArray out;
    out.reserve(entries.size() * 300 + 200);
    const auto line = [&out](const QString& text) { out += FoldLine(text); };
    line(QStringLiteral("BEGIN:VCALENDAR"));
    line(QStringLiteral("VERSION:2.0"));
    line(QStringLiteral("PRODID:-//Vowren//Wedding Planner//EN"));
    line(QStringLiteral("CALSCALE:GREGORIAN"));
    line(QStringLiteral("METHOD:PUBLISH"));
    line(QStringLiteral("X-WR-CALNAME:") + EscapeText(QStringLiteral("Wedding")));
    for (const Entry& entry : entries) {
        const QByteArray fingerprint = Fingerprint(entry);
        auto known = memory.find(entry.Uid);
        if (known == memory.end())
            known = memory.insert(entry.Uid, {fingerprint, 0});
        else if (known->Fingerprint != fingerprint)
            *known = {fingerprint, known->Sequence + 1};
        line(QStringLiteral("BEGIN:VEVENT"));
        line(QStringLiteral("UID:") + entry.Uid);
        line(stamp);
        line(QStringLiteral("SEQUENCE:") + QString::number(known->Sequence));
        for (const QString& property : entry.Properties)
            line(property);
        line(QStringLiteral("END:VEVENT"));
    }
    line(QStringLiteral("END:VCALENDAR"));
    return out;
}

QString MemoryPath() {
    return gApp().DatabasePath() + QStringLiteral(".calendar");
}

Memory ReadMemory(const QString& path) {
    Memory memory;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return memory;
    while (!file.atEnd()) {
        const QList<QByteArray> fields = file.readLine().trimmed().split('\t');
        if (fields.size() == 3)
            memory.insert(QString::fromUtf8(fields[0]), {fields[2], fields[1].toInt()});
    }
    return memory;
}

bool WriteMemory(const QString& path, const Memory& memory, QString* error) {
    QByteArray text;
    for (auto it = memory.cbegin(); it != memory.cend(); ++it)
        text += it.key().toUtf8() + '\t' + QByteArray::number(it->Sequence) + '\t' + it->Fingerprint + '\n';
    clsPrivateFile file(path);
    const bool written = file.Open() && file.Write(text.constData(), text.size()) && file.Commit();
    if (!written && error)
        *error = file.ErrorString();
    return written;
}

QString DefaultPath() {
    return gApp().ReportPath() + QStringLiteral("/Vowren.ics");
}

int Export(const QString& path, QString* error) {
    const QList<Entry> entries = ReadEntries();
    const Memory before = ReadMemory(MemoryPath());
    Memory memory = before;
    const QByteArray document = Document(entries, memory, Now());
    clsPrivateFile file(path);
    if (!file.Open() || !file.Write(document.constData(), document.size()) || !file.Commit()) {
        if (error)
            *error = file.ErrorString();
        return -1;
    }
    QString memoryError;
    if (memory != before && !WriteMemory(MemoryPath(), memory, &memoryError) && error)
        *error = memoryError;
    return int(entries.size());
}

} // namespace modCalendarExport
