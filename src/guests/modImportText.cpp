#include "guests/modImportText.h"

#include <QStringDecoder>
#include <array>

namespace modImportText {

namespace {

// The characters of 0x80 to 0x9F, where Windows-1252 differs from ISO-8859-1; 0 where it has none.
constexpr std::array<char16_t, 32> kWindows1252High = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void SetOk(bool* ok, bool value) {
    if (ok)
        *ok = value;
}

bool StartsWith(const QByteArray& bytes, std::initializer_list<unsigned char> mark) {
    if (bytes.size() < static_cast<qsizetype>(mark.size()))
        return false;
    qsizetype i = 0;
    for (unsigned char byte : mark) {
        if (static_cast<unsigned char>(bytes.at(i++)) != byte)
            return false;
    }
    return true;
}

// Where the zero bytes of the first characters stand: +1 at odd offsets (little-endian), -1 at even
// offsets (big-endian), 0 for no telling.
int ZeroByteSide(const QByteArray& bytes) {
    const qsizetype n = std::min<qsizetype>(bytes.size() & ~qsizetype(1), 200);
    if (n < 4)
        return 0;
    int even = 0;
    int odd = 0;
    for (qsizetype i = 0; i < n; ++i) {
        if (bytes.at(i) == '\0')
            ++((i % 2 == 0) ? even : odd);
    }
    if (odd >= n / 4 && even == 0)
        return 1;
    if (even >= n / 4 && odd == 0)
        return -1;
    return 0;
}

} // namespace

bool IsUtf16(const QByteArray& bytes) {
    return StartsWith(bytes, {0xFF, 0xFE}) || StartsWith(bytes, {0xFE, 0xFF}) || ZeroByteSide(bytes) != 0;
}

QString DecodeUtf16(const QByteArray& bytes) {
    const bool bigEndian =
        StartsWith(bytes, {0xFE, 0xFF}) || (!StartsWith(bytes, {0xFF, 0xFE}) && ZeroByteSide(bytes) < 0);
    QStringDecoder decoder(bigEndian ? QStringConverter::Utf16BE : QStringConverter::Utf16LE);
    QString text = decoder(bytes);
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    return text;
}

QByteArray WithoutUtf8Bom(const QByteArray& bytes) {
    return StartsWith(bytes, {0xEF, 0xBB, 0xBF}) ? bytes.mid(3) : bytes;
}

bool IsValidUtf8(const QByteArray& bytes) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    [[maybe_unused]] const QString text = decoder(bytes);
    return !decoder.hasError();
}

QString DecodeWindows1252(const QByteArray& bytes, bool* ok) {
    QString text(bytes.size(), Qt::Uninitialized);
    QChar* out = text.data();
    bool known = true;
    for (char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        char16_t ch = byte;
        if (byte >= 0x80 && byte <= 0x9F) {
            ch = kWindows1252High[byte - 0x80];
            if (ch == 0) {
                known = false;
                ch = 0xFFFD;
            }
        }
        *out++ = QChar(ch);
    }
    SetOk(ok, known);
    return text;
}

QString DecodeUtf8OrWindows1252(const QByteArray& bytes, bool* ok) {
    if (IsValidUtf8(bytes)) {
        SetOk(ok, true);
        return QString::fromUtf8(bytes);
    }
    return DecodeWindows1252(bytes, ok);
}

QString DecodeCharset(const QByteArray& bytes, const QString& charset, bool* ok) {
    const QString name = charset.trimmed().toUpper();
    if (name == QLatin1String("UTF-8") || name == QLatin1String("UTF8")) {
        SetOk(ok, IsValidUtf8(bytes));
        return QString::fromUtf8(bytes);
    }
    if (name == QLatin1String("WINDOWS-1252") || name == QLatin1String("CP1252"))
        return DecodeWindows1252(bytes, ok);
    if (name == QLatin1String("ISO-8859-1") || name == QLatin1String("LATIN1")) {
        SetOk(ok, true);
        return QString::fromLatin1(bytes);
    }
    QStringDecoder decoder(name.toLatin1().constData(), QStringConverter::Flag::Stateless);
    if (!decoder.isValid()) {
        SetOk(ok, false);
        return {};
    }
    QString text = decoder(bytes);
    SetOk(ok, !decoder.hasError());
    return text;
}

int LineOfOffset(const QByteArray& bytes, qsizetype offset) {
    return 1 + static_cast<int>(QByteArrayView(bytes).first(std::min(offset, bytes.size())).count('\n'));
}

} // namespace modImportText
