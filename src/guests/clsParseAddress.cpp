#include "guests/clsParseAddress.h"

#include "core/modGeneral.h"
#include "guests/modParseText.h"

namespace {

const QString kCrLf = QStringLiteral("\r\n");

bool IsDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}
bool IsCapital(QChar c) {
    return c >= QLatin1Char('A') && c <= QLatin1Char('Z');
}
bool IsAsciiLetter(QChar c) {
    return IsCapital(c) || (c >= QLatin1Char('a') && c <= QLatin1Char('z'));
}

// Whether the character at index is a letter, or the second half of a pair that makes one.
bool IsLetterAt(const QString& text, qsizetype index) {
    const QChar c = text.at(index);
    if (c.isLowSurrogate() && index > 0 && text.at(index - 1).isHighSurrogate())
        return QChar::isLetter(QChar::surrogateToUcs4(text.at(index - 1), c));
    return c.isLetter();
}

} // namespace

void clsParseAddress::ParseFullAddress(QString& address) {
    address = NormalizeLineBreaks(address);
    ScanZipAndCountry(address);
    ScanState(address);
    ScanCity(address);
    ADDRESS_TX = address;
    if (COUNTRY_TX.isEmpty())
        COUNTRY_TX = QStringLiteral("United States of America");
}

void clsParseAddress::ScanZipAndCountry(QString& text) {
    if (AsciiUpper(text).contains(QLatin1String("CANADA")))
        ScanCanada(text);
    else
        ScanUnitedStates(text);
}

// Walks back from the end over whatever trails the number (a country, say), then takes a run of five
// digits, or of nine with a blank or hyphen after the fifth: 02101 or 02101-1234. A run of four digits
// is no ZIP, not even when a blank stands before it.
void clsParseAddress::ScanUnitedStates(QString& text) {
    qsizetype count = 0;
    qsizetype start = -1;
    bool separator = false;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const QChar c = text.at(i);
        if (IsDigit(c)) {
            start = i;
            ++count;
        } else if ((c == QLatin1Char(' ') || c == QLatin1Char('-')) && count == 4) {
            count = 5;
            separator = true;
        } else if (count > 0) {
            break;
        }
    }
    if (!((count == 5 && !separator) || count == 10))
        return;
    ZIP_TX = CleanEnds(text.mid(start, count));
    // Whatever trails the ZIP is the country, even when it is none: "attn Ann" stays visible there.
    const QString rest = CleanEnds(text.mid(start + count));
    if (!rest.isEmpty())
        COUNTRY_TX = rest;
    text = CleanEnds(text.left(start));
}

// A postal code such as K1A 0B1 before the word Canada: capitals and digits, one blank in the middle.
void clsParseAddress::ScanCanada(QString& text) {
    COUNTRY_TX = QStringLiteral("Canada");
    if (AsciiUpper(CleanEnds(text)) == QLatin1String("CANADA")) {
        text.clear();
        return;
    }
    // The last mention is the country line; anything typed after the word stays with the country.
    const qsizetype word = AsciiUpper(text).lastIndexOf(QLatin1String("CANADA"));
    COUNTRY_TX = CleanEnds(COUNTRY_TX + text.mid(word + 6));
    text = text.left(word);

    qsizetype count = 0;
    qsizetype start = -1;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const QChar c = text.at(i);
        if (IsDigit(c) || IsCapital(c)) {
            start = i;
            ++count;
        } else if (c == QLatin1Char(' ') && count == 3) {
            count = 4;
        } else if (c == QLatin1Char(' ') && count == 7) {
            break;
        } else if (count > 0) {
            break;
        }
    }
    if (count != 7)
        return;
    ZIP_TX = CleanEnds(text.mid(start, 7));
    // Words between the postal code and the country are kept before the country, not dropped.
    const QString between = CleanEnds(text.mid(start + 7));
    QString punctuation = between;
    punctuation.remove(QLatin1Char(',')).remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
    if (!TrimBlanks(punctuation).isEmpty())
        COUNTRY_TX = between + QLatin1Char(' ') + COUNTRY_TX;
    text = CleanEnds(text.left(start));
    if (text.endsWith(QLatin1Char(',')))
        text.chop(1);
}

// The state is what follows the last comma when that comma stands before the last word ("Boston, MA"),
// otherwise the whole last line. "Boston MA" on one line has no state.
void clsParseAddress::ScanState(QString& text) {
    text = CleanEnds(text);
    const qsizetype comma = text.lastIndexOf(QLatin1Char(','));
    const qsizetype blank = text.lastIndexOf(QLatin1Char(' '));
    const qsizetype lineBreak = text.lastIndexOf(kCrLf);
    if (comma >= 0 && (blank < 0 || comma < blank)) {
        // A line break right after the comma belongs to neither part.
        STATE_TX = CleanEnds(text.mid(comma + 1));
        text = text.left(comma);
    } else if (lineBreak >= 0) {
        STATE_TX = TrimBlanks(text.mid(lineBreak + kCrLf.size()));
        text = CleanEnds(text.left(lineBreak));
    }
    STATE_TX = LeftChars(STATE_TX, kMaxStateLength);
    if (STATE_TX.size() == 2 && IsAsciiLetter(STATE_TX.at(0)) && IsAsciiLetter(STATE_TX.at(1)))
        STATE_TX = AsciiUpper(STATE_TX);
}

// The city is the last line from its first letter on, and only where ZIP and state were both found.
// Digits that lead that line stay with the street.
void clsParseAddress::ScanCity(QString& text) {
    text = CleanEnds(text);
    qsizetype firstLetter = -1;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        if (text.at(i) == QLatin1Char('\n') || text.at(i) == QLatin1Char('\r'))
            break;
        if (IsLetterAt(text, i))
            firstLetter = text.at(i).isLowSurrogate() ? i - 1 : i;
    }
    if (ZIP_TX.isEmpty() || STATE_TX.isEmpty() || firstLetter < 0)
        return;
    CITY_TX = text.mid(firstLetter);
    text = CleanEnds(text.left(firstLetter));
}

QString clsParseAddress::COUNTRY_TX_FILTER_OUT_USA() const {
    QString squeezed = AsciiUpper(COUNTRY_TX);
    squeezed.remove(QLatin1Char(' '));
    squeezed.remove(QLatin1Char('.'));
    if (squeezed == QLatin1String("UNITEDSTATESOFAMERICA") || squeezed == QLatin1String("UNITEDSTATES") ||
        squeezed == QLatin1String("USA") || squeezed == QLatin1String("US"))
        return QString();
    return COUNTRY_TX;
}

QString clsParseAddress::DisplayAddress(bool MultiLine) const {
    const QString lineBreak = MultiLine ? kCrLf : QStringLiteral(", ");
    const QString parts[5] = {ADDRESS_TX, CITY_TX, STATE_TX, ZIP_TX, COUNTRY_TX_FILTER_OUT_USA()};
    const QString separators[5] = {lineBreak, STATE_TX.isEmpty() ? QStringLiteral(" ") : QStringLiteral(", "),
                                   ZIP_TX.isEmpty() ? QString() : QStringLiteral("  "),
                                   MultiLine ? kCrLf : QStringLiteral(" "), QString()};
    QString out;
    for (int i = 0; i < 5; ++i) {
        if (parts[i].isEmpty())
            continue;
        out += parts[i];
        bool moreFollows = false;
        for (int j = i + 1; j < 5 && !moreFollows; ++j)
            moreFollows = !parts[j].isEmpty();
        if (moreFollows)
            out += separators[i];
    }
    // Line breaks typed inside a part follow the same choice.
    out = NormalizeLineBreaks(out);
    if (!MultiLine)
        out.replace(kCrLf, QStringLiteral(", "));
    return TrimBlanks(out);
}

bool clsParseAddress::AddressUnclear() const {
    return !ZIP_TX.isEmpty() && ADDRESS_TX.isEmpty() && CITY_TX.isEmpty() && STATE_TX.isEmpty();
}

QJsonObject clsParseAddress::ToJson() const {
    return QJsonObject{
        {QStringLiteral("street"), ADDRESS_TX},  {QStringLiteral("city"), CITY_TX},
        {QStringLiteral("state"), STATE_TX},     {QStringLiteral("zip"), ZIP_TX},
        {QStringLiteral("country"), COUNTRY_TX}, {QStringLiteral("unclear"), AddressUnclear()}};
}

QJsonObject clsParseAddress::ParseToJson(const QString& address) {
    clsParseAddress parser;
    QString text = address;
    parser.ParseFullAddress(text);
    return parser.ToJson();
}
