#include "reports/RtfMarkup.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

bool IsAsciiLetter(QChar c) {
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}
bool IsAsciiDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// True when the text ends in a control word that has no delimiter yet ("\b0", "\cell"): a letter,
// digit, blank or minus right behind it would be read as part of the word.
bool EndsInOpenControlWord(const QString& rtf) {
    qsizetype i = rtf.size();
    while (i > 0 && IsAsciiDigit(rtf.at(i - 1)))
        --i;
    if (i > 0 && i < rtf.size() && rtf.at(i - 1) == QLatin1Char('-'))
        --i;
    const qsizetype lettersEnd = i;
    while (i > 0 && IsAsciiLetter(rtf.at(i - 1)))
        --i;
    if (i == lettersEnd)
        return false;
    // An odd run of backslashes before the letters starts a control word; an even run is escaped text.
    qsizetype backslashes = 0;
    while (i > 0 && rtf.at(i - 1) == QLatin1Char('\\')) {
        --i;
        ++backslashes;
    }
    return backslashes % 2 == 1;
}

bool NeedsDelimiterBefore(QChar c) {
    return IsAsciiLetter(c) || IsAsciiDigit(c) || c == QLatin1Char(' ') || c == QLatin1Char('-');
}

// The characters of Windows-1252 at 0x80 to 0x9F; 0 marks the five codes it leaves unassigned.
constexpr std::array<char16_t, 32> kWindows1252High = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void AppendUnicodeUnit(QString& out, char16_t unit, unsigned char fallback) {
    // RTF numbers are signed 16-bit: units above 32767 are written as negative numbers.
    const int signedUnit = unit > 0x7FFF ? static_cast<int>(unit) - 0x10000 : static_cast<int>(unit);
    static const char* const kHex = "0123456789abcdef";
    out += QLatin1String("\\u") + QString::number(signedUnit) + QLatin1String("\\'") +
           QLatin1Char(kHex[fallback >> 4]) + QLatin1Char(kHex[fallback & 0x0F]);
}

} // namespace

unsigned char RtfMarkup::Windows1252Byte(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<unsigned char>(unit);
    for (size_t i = 0; i < kWindows1252High.size(); ++i) {
        if (kWindows1252High[i] != 0 && kWindows1252High[i] == unit)
            return static_cast<unsigned char>(0x80 + i);
    }
    return 0x3F;
}

namespace {

// Printable ASCII other than the three characters RTF reserves: such a text is its own RTF.
bool NeedsNoEscape(const QString& text) {
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        const char16_t unit = c.unicode();
        return unit >= 0x20 && unit < 0x7F && unit != u'\\' && unit != u'{' && unit != u'}';
    });
}

} // namespace

QString RtfMarkup::EscapeText(const QString& text) {
    if (NeedsNoEscape(text))
        return text; // shares the text, no copy
    QString out;
    out.reserve(text.size() + text.size() / 4);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text.at(i).unicode();
        switch (unit) {
        case u'\r':
            if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
            out += QLatin1String(" \\par ");
            continue;
        case u'\n':
            out += QLatin1String(" \\par ");
            continue;
        case u'\t':
            out += QLatin1String("\\tab ");
            continue;
        case u'\\':
        case u'{':
        case u'}':
            out += QLatin1Char('\\');
            out += QChar(unit);
            continue;
        default:
            break;
        }
        if (unit < 0x20 || unit == 0x7F || (unit >= 0x80 && unit < 0xA0))
            continue; // control characters print nothing
        if (unit < 0x80) {
            out += QChar(unit);
            continue;
        }
        if (QChar::isHighSurrogate(unit) && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            AppendUnicodeUnit(out, unit, 0x3F);
            AppendUnicodeUnit(out, text.at(i + 1).unicode(), 0x3F);
            ++i;
            continue;
        }
        if (QChar::isSurrogate(unit)) {
            AppendUnicodeUnit(out, 0xFFFD, 0x3F); // half a pair is no character: the replacement mark
            continue;
        }
        AppendUnicodeUnit(out, unit, Windows1252Byte(unit));
    }
    return out;
}

RtfMarkup::RtfMarkup(const QString& text) : mPlain(text), mEscapePending(true) {}

RtfMarkup RtfMarkup::Control(RtfControl words) {
    return RtfMarkup(QString::fromLatin1(words.Words()), QString());
}

RtfMarkup RtfMarkup::Picture(PictureKind kind, const QByteArray& bytes, int widthPixels, int heightPixels,
                             int widthTwips, int heightTwips) {
    const bool png = kind == PictureKind::Png;
    const QByteArray data = png ? bytes : bytes.mid(14);
    QString rtf = QStringLiteral("{\\pict%1\\picw%2\\pich%3\\picwgoal%4\\pichgoal%5")
                      .arg(png ? QStringLiteral("\\pngblip") : QStringLiteral("\\dibitmap0"))
                      .arg(widthPixels)
                      .arg(heightPixels)
                      .arg(widthTwips)
                      .arg(heightTwips);
    const QByteArray hex = data.toHex();
    constexpr qsizetype kLine = 128;
    for (qsizetype at = 0; at < hex.size(); at += kLine)
        rtf += QStringLiteral("\r\n") + QString::fromLatin1(hex.mid(at, kLine));
    rtf += QLatin1Char('}');
    return RtfMarkup(rtf, QString());
}

RtfMarkup RtfMarkup::LineBreak() {
    return RtfMarkup(QStringLiteral(" \\par "), QStringLiteral("\r\n"));
}

RtfMarkup RtfMarkup::Wrapped(const char* on, const RtfMarkup& inner, const char* off) {
    RtfMarkup result(QString::fromLatin1(on), QString());
    result += inner;
    result += RtfMarkup(QString::fromLatin1(off), QString());
    result.mFigure = inner.mFigure; // a bold figure is still the figure
    return result;
}

RtfMarkup RtfMarkup::Bold(const RtfMarkup& inner) {
    return Wrapped("\\b ", inner, "\\b0");
}
RtfMarkup RtfMarkup::Italic(const RtfMarkup& inner) {
    return Wrapped("\\i ", inner, "\\i0");
}
RtfMarkup RtfMarkup::Strike(const RtfMarkup& inner) {
    return Wrapped("\\strike ", inner, "\\strike0");
}

RtfMarkup RtfMarkup::Figure(const QString& text) {
    RtfMarkup figure(text);
    figure.mFigure = true;
    return figure;
}

RtfMarkup& RtfMarkup::operator+=(const RtfMarkup& next) {
    mFigure = false;
    const QString& rtf = Rtf();
    const QString& nextRtf = next.Rtf();
    if (!nextRtf.isEmpty() && NeedsDelimiterBefore(nextRtf.at(0)) && EndsInOpenControlWord(rtf))
        mRtf += QLatin1Char(' ');
    mRtf += nextRtf;
    mPlain += next.mPlain;
    return *this;
}
