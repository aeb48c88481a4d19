#pragma once

#include <QByteArray>
#include <QString>

// How the bytes of an imported file become text. Address books write UTF-8 (with or without a byte
// order mark), UTF-16 or the Windows code page of their country; vCards may also name a character set
// per value.
namespace modImportText {

// True when the bytes start with a UTF-16 byte order mark, or look like UTF-16 without one (every
// other byte zero in the first line).
bool IsUtf16(const QByteArray& bytes);
// The text of UTF-16 bytes, byte order from the mark or from where the zero bytes stand.
QString DecodeUtf16(const QByteArray& bytes);
// The bytes without a leading UTF-8 byte order mark.
QByteArray WithoutUtf8Bom(const QByteArray& bytes);
bool IsValidUtf8(const QByteArray& bytes);
// Windows-1252; false in ok when a byte has no character there (0x81, 0x8D, 0x8F, 0x90, 0x9D).
QString DecodeWindows1252(const QByteArray& bytes, bool* ok = nullptr);
// UTF-8 when the bytes are valid UTF-8, Windows-1252 otherwise; false in ok when they are neither.
QString DecodeUtf8OrWindows1252(const QByteArray& bytes, bool* ok = nullptr);
// The bytes in a named character set (UTF-8, ISO-8859-1, Windows-1252, Shift_JIS, ... as the platform
// knows them); false in ok for a name nobody knows or bytes that are not valid in it.
QString DecodeCharset(const QByteArray& bytes, const QString& charset, bool* ok);
// The line (from 1) on which a byte offset stands.
int LineOfOffset(const QByteArray& bytes, qsizetype offset);

} // namespace modImportText
