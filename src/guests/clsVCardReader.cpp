#include "guests/clsVCardReader.h"

#include "core/clsDB.h"
#include "guests/clsParseName.h"
#include "guests/modImportText.h"
#include "guests/modParseText.h"

#include <QHash>
#include <optional>

namespace {

enum Column {
    Title,
    First,
    Middle,
    Last,
    Suffix,
    Address,
    City,
    State,
    Zip,
    Country,
    Nickname,
    Email,
    Phone,
    Phone2,
    Notes,
    ColumnCount
};

[[noreturn]] void Refuse(int line, const QString& why) {
    throw clsDbError(QStringLiteral("line %1: %2").arg(line).arg(why), 0);
}

struct SourceLine {
    QByteArray Text;
    int Line = 0;
};

QList<SourceLine> SplitLines(const QByteArray& bytes) {
    QList<SourceLine> lines;
    int number = 1;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= bytes.size(); ++i) {
        const char c = i < bytes.size() ? bytes.at(i) : '\n';
        if (c != '\r' && c != '\n')
            continue;
        lines.append({bytes.mid(start, i - start), number++});
        if (c == '\r' && i + 1 < bytes.size() && bytes.at(i + 1) == '\n')
            ++i;
        start = i + 1;
    }
    return lines;
}

bool IsQuotedPrintable(const QByteArray& line) {
    const qsizetype colon = line.indexOf(':');
    return colon > 0 && line.left(colon).toUpper().contains("QUOTED-PRINTABLE");
}

// One logical line per property: a line that starts with a blank or a tab continues the one before it,
// and so does the line after a quoted-printable soft break ("=" at the end).
QList<SourceLine> Unfold(const QList<SourceLine>& lines) {
    QList<SourceLine> logical;
    for (const SourceLine& line : lines) {
        if (!logical.isEmpty()) {
            SourceLine& last = logical.last();
            if (line.Text.startsWith(' ') || line.Text.startsWith('\t')) {
                last.Text += line.Text.mid(1);
                continue;
            }
            if (last.Text.endsWith('=') && IsQuotedPrintable(last.Text)) {
                last.Text.chop(1);
                last.Text += line.Text;
                continue;
            }
        }
        if (!line.Text.trimmed().isEmpty())
            logical.append(line);
    }
    return logical;
}

QByteArray DecodeQuotedPrintable(const QByteArray& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        bool ok = false;
        const int value = text.at(i) == '=' ? text.mid(i + 1, 2).toInt(&ok, 16) : 0;
        if (ok) {
            bytes += static_cast<char>(value);
            i += 2;
        } else {
            bytes += text.at(i);
        }
    }
    return bytes;
}

// One property: "item1.TEL;TYPE=home,voice;PREF=1:+1 555 0100" read as its name, types and parameters.
struct Property {
    QString Name;                   // upper case, without its group
    QStringList Types;              // upper case: TYPE values and the bare parameters of 2.1
    QHash<QString, QString> Params; // by upper-case name
    QByteArray Raw;
    int Line = 0;

    bool Is(const char* type) const { return Types.contains(QLatin1String(type)); }
    bool Preferred() const { return Is("PREF") || Params.contains(QStringLiteral("PREF")); }

    static bool Parse(const SourceLine& line, Property& property) {
        const qsizetype colon = line.Text.indexOf(':');
        if (colon <= 0)
            return false;
        const QList<QByteArray> head = line.Text.left(colon).split(';');
        QString name = QString::fromLatin1(head.first()).trimmed().toUpper();
        property.Name = name.mid(name.lastIndexOf(QLatin1Char('.')) + 1);
        for (qsizetype i = 1; i < head.size(); ++i)
            property.AddParameter(QString::fromLatin1(head.at(i)).trimmed());
        property.Raw = line.Text.mid(colon + 1);
        property.Line = line.Line;
        return true;
    }

    void AddParameter(const QString& parameter) {
        const qsizetype equals = parameter.indexOf(QLatin1Char('='));
        if (equals < 0) {
            Types << parameter.toUpper();
            return;
        }
        const QString key = parameter.left(equals).toUpper();
        QString value = parameter.mid(equals + 1);
        value.remove(QLatin1Char('"'));
        if (key == QLatin1String("TYPE")) {
            for (const QString& type : value.split(QLatin1Char(','), Qt::SkipEmptyParts))
                Types << type.trimmed().toUpper();
        } else {
            Params.insert(key, value);
        }
    }

    // The value as text: quoted-printable undone, in its character set.
    QString Value() const {
        const QString encoding = Params.value(QStringLiteral("ENCODING")).toUpper();
        const bool qp = encoding == QLatin1String("QUOTED-PRINTABLE") || Is("QUOTED-PRINTABLE");
        const QByteArray bytes = qp ? DecodeQuotedPrintable(Raw) : Raw;
        const QString charset = Params.value(QStringLiteral("CHARSET"));
        bool ok = true;
        const QString text = charset.isEmpty() ? modImportText::DecodeUtf8OrWindows1252(bytes, &ok)
                                               : modImportText::DecodeCharset(bytes, charset, &ok);
        if (!ok)
            Refuse(Line, charset.isEmpty()
                             ? QStringLiteral("the text is neither UTF-8 nor Windows-1252")
                             : QStringLiteral("the character set \"%1\" is unknown, or the text is not "
                                              "written in it")
                                   .arg(charset));
        return text;
    }
};

// The parts of a structured value, split where the separator is not escaped; escapes stay.
QStringList SplitUnescaped(const QString& text, QChar separator) {
    QStringList parts(1);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('\\') && i + 1 < text.size()) {
            parts.last() += c;
            parts.last() += text.at(++i);
        } else if (c == separator) {
            parts.append(QString());
        } else {
            parts.last() += c;
        }
    }
    return parts;
}

QString Unescape(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        if (c != QLatin1Char('\\') || !QStringLiteral("nN,;\\").contains(next)) {
            plain += c;
            continue;
        }
        plain += next.toUpper() == QLatin1Char('N') ? QStringLiteral("\r\n") : QString(next);
        ++i;
    }
    return NormalizeLineBreaks(plain).trimmed();
}

// The components of N or ADR, each list within a component joined by blanks.
QStringList Components(const QString& value, qsizetype count) {
    QStringList components;
    for (const QString& part : SplitUnescaped(value, QLatin1Char(';'))) {
        QStringList words;
        for (const QString& word : SplitUnescaped(part, QLatin1Char(',')))
            words << Unescape(word);
        words.removeAll(QString());
        components << words.join(QLatin1Char(' '));
    }
    components.resize(count);
    return components;
}

// What one card says, gathered property by property.
class Card {
public:
    explicit Card(int line) : mLine(line) {}
    int Line() const { return mLine; }

    void Take(const Property& property) {
        const QString& name = property.Name;
        if (name == QLatin1String("N"))
            mName = Components(property.Value(), 5);
        else if (name == QLatin1String("FN"))
            mFullName = Unescape(property.Value());
        else if (name == QLatin1String("NICKNAME") && mRow[Nickname].isEmpty())
            mRow[Nickname] = Unescape(SplitUnescaped(property.Value(), QLatin1Char(',')).first());
        else if (name == QLatin1String("EMAIL"))
            TakeEmail(property);
        else if (name == QLatin1String("TEL"))
            TakePhone(property);
        else if (name == QLatin1String("ADR"))
            TakeAddress(property);
        else if (name == QLatin1String("NOTE") && mRow[Notes].isEmpty())
            mRow[Notes] = Unescape(property.Value());
    }

    // The row of the card; empty for a card with neither a name nor an e-mail address.
    QStringList Row() {
        FillName();
        const QStringList phones = mHomePhones + mCellPhones + mOtherPhones;
        mRow[Phone] = phones.value(0);
        mRow[Phone2] = phones.value(1);
        const bool named = !mRow[First].isEmpty() || !mRow[Middle].isEmpty() || !mRow[Last].isEmpty();
        return named || !mRow[Email].isEmpty() ? mRow : QStringList();
    }

private:
    int mLine;
    QStringList mRow = QStringList(ColumnCount);
    QStringList mName;
    QString mFullName;
    bool mPreferredEmail = false;
    QStringList mHomePhones, mCellPhones, mOtherPhones;
    int mAddressRank = 0; // 3 home, 2 work, 1 any other, 0 none yet

    void TakeEmail(const Property& property) {
        if (mPreferredEmail || (!mRow[Email].isEmpty() && !property.Preferred()))
            return;
        mRow[Email] = Unescape(property.Value());
        mPreferredEmail = property.Preferred();
    }

    void TakePhone(const Property& property) {
        QString number = Unescape(property.Value());
        if (number.startsWith(QLatin1String("tel:"), Qt::CaseInsensitive))
            number.remove(0, 4);
        if (number.isEmpty())
            return;
        QStringList& list = property.Is("CELL")   ? mCellPhones
                            : property.Is("HOME") ? mHomePhones
                                                  : mOtherPhones;
        list << number;
    }

    void TakeAddress(const Property& property) {
        const int rank = property.Is("HOME") ? 3 : property.Is("WORK") ? 2 : 1;
        if (rank <= mAddressRank)
            return;
        mAddressRank = rank;
        const QStringList parts = Components(property.Value(), 7);
        QStringList street = {parts[2], parts[1], parts[0]};
        street.removeAll(QString());
        mRow[Address] = street.join(QStringLiteral("\r\n"));
        mRow[City] = parts[3];
        mRow[State] = parts[4];
        mRow[Zip] = parts[5];
        mRow[Country] = parts[6];
    }

    void FillName() {
        if (!mName.join(QString()).isEmpty()) {
            mRow[Last] = mName[0];
            mRow[First] = mName[1];
            mRow[Middle] = mName[2];
            mRow[Title] = mName[3];
            mRow[Suffix] = mName[4];
            return;
        }
        clsParseName parsed;
        parsed.ParseFullName(mFullName, true);
        mRow[Title] = parsed.TITLE_TX;
        mRow[First] = parsed.FIRST_NM;
        mRow[Middle] = parsed.MIDDLE_NM;
        mRow[Last] = parsed.LAST_NM;
        mRow[Suffix] = parsed.SUFFIX_TX;
    }
};

QByteArray AsUtf8(const QByteArray& bytes) {
    return modImportText::IsUtf16(bytes) ? modImportText::DecodeUtf16(bytes).toUtf8()
                                         : modImportText::WithoutUtf8Bom(bytes);
}

bool IsMarker(const Property& property, const char* name, const char* value) {
    return property.Name == QLatin1String(name) && property.Raw.trimmed().toUpper() == value;
}

[[noreturn]] void Unended(int line) {
    Refuse(line, QStringLiteral("the card that begins here has no END:VCARD; the file is cut short"));
}

} // namespace

const QStringList& clsVCardReader::Headers() {
    static const QStringList headers = {"Title",    "First",  "Middle", "Last",    "Suffix",
                                        "Address",  "City",   "State",  "Zip",     "Country",
                                        "Nickname", "E-mail", "Phone",  "Phone 2", "Notes"};
    return headers;
}

bool clsVCardReader::LooksLikeVCard(const QByteArray& bytes) {
    return AsUtf8(bytes.left(400)).trimmed().toUpper().startsWith("BEGIN:VCARD");
}

clsImportTable clsVCardReader::Read(const QByteArray& bytes) {
    clsImportTable table;
    table.Headers = Headers();
    std::optional<Card> card;
    int cards = 0;
    for (const SourceLine& line : Unfold(SplitLines(AsUtf8(bytes)))) {
        Property property;
        if (!Property::Parse(line, property))
            continue;
        if (IsMarker(property, "BEGIN", "VCARD")) {
            if (card)
                Unended(card->Line());
            card.emplace(line.Line);
            ++cards;
        } else if (card && IsMarker(property, "END", "VCARD")) {
            if (QStringList row = card->Row(); !row.isEmpty()) {
                table.Rows << row;
                table.Lines << card->Line();
            }
            card.reset();
        } else if (card) {
            card->Take(property);
        }
    }
    if (card)
        Unended(card->Line());
    if (cards == 0)
        Refuse(1, QStringLiteral("there is no contact card (BEGIN:VCARD) in the file"));
    if (table.Rows.isEmpty())
        Refuse(1, QStringLiteral("none of the %1 cards holds a name or an e-mail address").arg(cards));
    return table;
}
