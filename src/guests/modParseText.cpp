#include "guests/modParseText.h"

QString AsciiUpper(const QString& text) {
    QString out = text;
    for (QChar& c : out) {
        if (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
            c = QChar(c.unicode() - ('a' - 'A'));
    }
    return out;
}

QString LeftChars(const QString& text, qsizetype maxChars) {
    qsizetype pos = 0;
    qsizetype taken = 0;
    while (pos < text.size() && taken < maxChars) {
        const bool pair =
            text.at(pos).isHighSurrogate() && pos + 1 < text.size() && text.at(pos + 1).isLowSurrogate();
        pos += pair ? 2 : 1;
        ++taken;
    }
    return text.left(pos);
}

QString CleanEnds(const QString& text) {
    const auto isEnd = [](QChar c) {
        return c == QLatin1Char(' ') || c == QLatin1Char('\r') || c == QLatin1Char('\n');
    };
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && isEnd(text.at(start)))
        ++start;
    while (end > start && isEnd(text.at(end - 1)))
        --end;
    return text.mid(start, end - start);
}

QString NormalizeLineBreaks(const QString& text) {
    if (!text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r')))
        return text;
    QString out;
    out.reserve(text.size() + text.size() / 8);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\r')) {
            out += QLatin1String("\r\n");
            if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
        } else if (c == QLatin1Char('\n')) {
            out += QLatin1String("\r\n");
        } else {
            out += c;
        }
    }
    return out;
}
