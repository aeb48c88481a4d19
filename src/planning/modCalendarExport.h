#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

// The wedding's dates as one iCalendar file (RFC 5545) that calendar programs import: every event, every
// timeline entry with its start and end, and every open task with a due date as an all-day event
// ("Due: " + task). Timed values are written in UTC. Each entry keeps its UID from export to export
// (made from its table and key), and its SEQUENCE goes up when it changed since the last export: what
// each entry looked like is kept beside the database.
namespace modCalendarExport {

// One VEVENT: its UID and its property lines, unfolded and already escaped, without UID, DTSTAMP and
// SEQUENCE (those the document adds).
struct Entry {
    QString Uid;
    QStringList Properties;
};

// What the last export wrote of each entry: a fingerprint of its properties and its sequence number.
struct Written {
    QByteArray Fingerprint;
    int Sequence = 0;
    bool operator==(const Written&) const = default;
};
using Memory = QHash<QString, Written>;

// A TEXT value: backslash, semicolon and comma escaped, every line end as "\n", other control
// characters dropped.
QString EscapeText(const QString& text);
// One content line in UTF-8, folded so that no line passes 75 octets (a character's bytes are never
// split), each line ending in CR LF.
QByteArray FoldLine(const QString& line);
// "20270605T193000Z" for a local moment; "20270605" for a date.
QString UtcText(const QDateTime& localMoment);
QString DateText(const QDate& date);

// The entries of the database: events, then timeline entries, then open tasks with a due date. Throws
// clsDbError.
QList<Entry> ReadEntries();
// The whole document. The memory is brought up to date: a new entry starts at sequence 0, a changed one
// goes up by one.
QByteArray Document(const QList<Entry>& entries, Memory& memory, const QDateTime& stampUtc);

// Where the memory of the last export is kept: beside the database.
QString MemoryPath();
Memory ReadMemory(const QString& path);
bool WriteMemory(const QString& path, const Memory& memory, QString* error);

// The file of an export when none is named: "Vowren.ics" in the report folder.
QString DefaultPath();
// Writes the file whole (or not at all) and then the memory. The number of entries written, or -1 with
// the reason in *error. Throws clsDbError when the database refuses the reading.
int Export(const QString& path, QString* error);

} // namespace modCalendarExport
