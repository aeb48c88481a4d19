#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

// Tools the report tests share: reading a written file back, reading RTF text the way a reader with
// Unicode support does, and a strict RFC 4180 parser.
namespace RtfTestTools {

inline QByteArray FileBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

// The lines of a file written with CR LF line ends (the last, empty piece dropped).
inline QStringList FileLines(const QString& path) {
    QStringList lines = QString::fromUtf8(FileBytes(path)).split(QStringLiteral("\r\n"));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

struct DecodedRtf {
    QString Text;
    int GroupDepth = 0; // braces that open groups less those that close them
    bool DepthNegative = false;
    QStringList ControlWords; // every control word met, without its parameter
};

// Reads RTF text: \\ \{ \} as characters, \uN as the UTF-16 unit N (negative N from 65536 down) with
// the one fallback character after it skipped (\uc1), \'hh as a Latin-1 byte, \par as CR LF, \tab as
// a tab, a blank after a control word as its delimiter; line ends and other control words print nothing.
inline DecodedRtf DecodeRtf(const QString& rtf) {
    DecodedRtf result;
    int skip = 0;
    auto put = [&](const QString& text) {
        if (skip > 0) {
            --skip;
            return;
        }
        result.Text += text;
    };
    for (qsizetype i = 0; i < rtf.size();) {
        const QChar c = rtf.at(i);
        if (c == QLatin1Char('{') || c == QLatin1Char('}')) {
            result.GroupDepth += c == QLatin1Char('{') ? 1 : -1;
            if (result.GroupDepth < 0)
                result.DepthNegative = true;
            ++i;
            continue;
        }
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            ++i;
            continue;
        }
        if (c != QLatin1Char('\\')) {
            put(QString(c));
            ++i;
            continue;
        }
        if (i + 1 >= rtf.size())
            break;
        const QChar next = rtf.at(i + 1);
        if (next == QLatin1Char('\\') || next == QLatin1Char('{') || next == QLatin1Char('}')) {
            put(QString(next));
            i += 2;
            continue;
        }
        if (next == QLatin1Char('\'')) {
            const int byte = rtf.mid(i + 2, 2).toInt(nullptr, 16);
            put(QString(QChar(byte)));
            i += 4;
            continue;
        }
        if (!next.isLetter() || next.unicode() > 0x7F) {
            i += 2; // another control symbol
            continue;
        }
        qsizetype j = i + 1;
        while (j < rtf.size() && rtf.at(j).unicode() < 0x80 && rtf.at(j).isLetter())
            ++j;
        const QString word = rtf.mid(i + 1, j - i - 1);
        const qsizetype paramStart = j;
        if (j < rtf.size() && rtf.at(j) == QLatin1Char('-'))
            ++j;
        while (j < rtf.size() && rtf.at(j).isDigit())
            ++j;
        const QString param = rtf.mid(paramStart, j - paramStart);
        if (j < rtf.size() && rtf.at(j) == QLatin1Char(' '))
            ++j;
        result.ControlWords << word;
        if (word == QLatin1String("u")) {
            put(QString(QChar(static_cast<char16_t>(param.toInt() & 0xFFFF))));
            skip = 1;
        } else if (word == QLatin1String("par")) {
            put(QStringLiteral("\r\n"));
        } else if (word == QLatin1String("tab")) {
            put(QStringLiteral("\t"));
        }
        i = j;
    }
    return result;
}

// A strict RFC 4180 reader: records end in CR LF, a field is either bare (no quote, comma, CR or LF
// inside) or wholly quoted with inner quotes doubled. Anything else sets 'error'.
inline QList<QStringList> ParseCsvStrict(const QString& text, QString* error) {
    QList<QStringList> records;
    QStringList record;
    QString field;
    qsizetype i = 0;
    auto fail = [&](const QString& why) {
        if (error && error->isEmpty())
            *error = why + QStringLiteral(" at ") + QString::number(i);
    };
    bool fieldStart = true;
    while (i < text.size()) {
        const QChar c = text.at(i);
        if (fieldStart && c == QLatin1Char('"')) {
            ++i;
            for (;;) {
                if (i >= text.size()) {
                    fail(QStringLiteral("unclosed quote"));
                    return records;
                }
                if (text.at(i) == QLatin1Char('"')) {
                    if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('"')) {
                        field += QLatin1Char('"');
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                field += text.at(i++);
            }
            fieldStart = false;
            if (i < text.size() && text.at(i) != QLatin1Char(',') && text.at(i) != QLatin1Char('\r')) {
                fail(QStringLiteral("text after a closing quote"));
                return records;
            }
            continue;
        }
        if (c == QLatin1Char(',')) {
            record << field;
            field.clear();
            fieldStart = true;
            ++i;
            continue;
        }
        if (c == QLatin1Char('\r')) {
            if (i + 1 >= text.size() || text.at(i + 1) != QLatin1Char('\n')) {
                fail(QStringLiteral("CR without LF"));
                return records;
            }
            record << field;
            records << record;
            record.clear();
            field.clear();
            fieldStart = true;
            i += 2;
            continue;
        }
        if (c == QLatin1Char('"') || c == QLatin1Char('\n')) {
            fail(QStringLiteral("quote or LF in a bare field"));
            return records;
        }
        field += c;
        fieldStart = false;
        ++i;
    }
    if (!field.isEmpty() || !record.isEmpty())
        fail(QStringLiteral("last record without CR LF"));
    return records;
}

} // namespace RtfTestTools
