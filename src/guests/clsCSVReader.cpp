#include "guests/clsCSVReader.h"

#include "core/clsDB.h"

#include <QSet>
#include <algorithm>

namespace {

[[noreturn]] void Refuse(int line, const QString& why) {
    throw clsDbError(QStringLiteral("line %1: %2").arg(line).arg(why), 0);
}

// Walks the text record by record, counting lines as it goes.
class RecordScanner {
public:
    RecordScanner(const QString& text, QChar delimiter) : mText(text), mDelimiter(delimiter) {}

    bool AtEnd() const { return mPos >= mText.size(); }
    int Line() const { return mLine; }

    // The next record's fields; the line it starts on in startLine.
    QStringList Next(int& startLine) {
        startLine = mLine;
        QStringList fields;
        QString field;
        qsizetype length = 0;
        bool quoted = false;
        bool fieldStarted = false;
        while (mPos < mText.size()) {
            const QChar c = mText.at(mPos++);
            if (++length > clsCSVReader::kMaxRecordLength)
                Refuse(startLine, QStringLiteral("a row of more than %1 characters; no address book writes "
                                                 "such rows, so this is no file of contacts")
                                      .arg(clsCSVReader::kMaxRecordLength));
            if (quoted) {
                if (c == QLatin1Char('"')) {
                    if (Peek() == QLatin1Char('"')) {
                        field += c;
                        ++mPos;
                    } else {
                        quoted = false;
                    }
                } else {
                    field += LineBreakOr(c);
                }
                continue;
            }
            if (c == mDelimiter) {
                fields << field;
                field.clear();
                fieldStarted = false;
            } else if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
                LineBreakOr(c);
                break;
            } else if (c == QLatin1Char('"') && !fieldStarted) {
                quoted = true;
                fieldStarted = true;
            } else {
                field += c;
                fieldStarted = true;
            }
        }
        if (quoted)
            Refuse(startLine,
                   QStringLiteral("a field opened with a double quote on this line is never closed"));
        fields << field;
        return fields;
    }

private:
    const QString& mText;
    QChar mDelimiter;
    qsizetype mPos = 0;
    int mLine = 1;

    QChar Peek() const { return mPos < mText.size() ? mText.at(mPos) : QChar(); }

    // Counts a line break (CR LF as one), kept as CR LF inside a field; any other character as it is.
    QString LineBreakOr(QChar c) {
        if (c == QLatin1Char('\r')) {
            if (Peek() == QLatin1Char('\n'))
                ++mPos;
        } else if (c != QLatin1Char('\n')) {
            return QString(c);
        }
        ++mLine;
        return QStringLiteral("\r\n");
    }
};

// An empty line, or one of delimiters alone as spreadsheets write below the data.
bool IsEmptyRecord(const QStringList& fields) {
    return std::all_of(fields.begin(), fields.end(), [](const QString& field) { return field.isEmpty(); });
}

QStringList UniqueHeaders(const QStringList& names) {
    QStringList headers;
    QSet<QString> taken;
    for (qsizetype i = 0; i < names.size(); ++i) {
        QString name = names.at(i).trimmed();
        if (name.isEmpty())
            name = QStringLiteral("Column %1").arg(i + 1);
        const QString base = name;
        for (int n = 2; taken.contains(name.toUpper()); ++n)
            name = QStringLiteral("%1 (%2)").arg(base).arg(n);
        taken.insert(name.toUpper());
        headers << name;
    }
    return headers;
}

} // namespace

clsImportTable clsCSVReader::Read(const QString& text, QChar delimiter) {
    RecordScanner scanner(text, delimiter);
    clsImportTable table;
    int line = 0;
    while (!scanner.AtEnd()) {
        QStringList fields = scanner.Next(line);
        if (IsEmptyRecord(fields))
            continue;
        if (table.Headers.isEmpty()) {
            table.Headers = UniqueHeaders(fields);
            continue;
        }
        fields.resize(table.Headers.size());
        table.Rows << fields;
        table.Lines << line;
    }
    if (table.Headers.isEmpty())
        Refuse(1, QStringLiteral("the file is empty: there is no header line naming the columns"));
    if (table.Rows.isEmpty())
        Refuse(scanner.Line(), QStringLiteral("the file holds a header line but no contacts below it"));
    return table;
}

QChar clsCSVReader::GuessDelimiter(const QString& text) {
    const QStringView firstLine = QStringView(text).left(text.indexOf(QLatin1Char('\n')));
    if (firstLine.contains(QLatin1Char(',')))
        return QLatin1Char(',');
    if (firstLine.contains(QLatin1Char(';')))
        return QLatin1Char(';');
    if (firstLine.contains(QLatin1Char('\t')))
        return QLatin1Char('\t');
    return QLatin1Char(',');
}
