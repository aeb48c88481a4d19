#pragma once

#include <QByteArray>
#include <QString>
#include <QStringBuilder>
#include <utility>

// The control words of the writer's own markup, fixed when the program is compiled. The constructor
// runs at compile time only, so no text read or typed at run time can ever become a control word: a
// string that is not a literal does not compile, and neither does a literal with a character beyond
// printable ASCII.
class RtfControl {
public:
    consteval RtfControl(const char* words) : mWords(words) {
        for (const char* c = words; *c != '\0'; ++c) {
            if (*c < 0x20 || *c > 0x7E)
                throw "control words are printable ASCII";
        }
    }
    const char* Words() const { return mWords; }

private:
    const char* mWords;
};

// A piece of a report's text: the RTF that prints it, and the plain text that it stands for (what a
// CSV file gets). Text from the user or the database becomes markup through the constructors or
// Text(), which escape it, so that a backslash, a brace or any script prints as itself. Bold, italic,
// strike-through and line breaks are added by the named functions, and fixed control words by
// Control(). Pieces join with + and keep both forms in step.
//
// The RTF is 7-bit clean: every character beyond ASCII is written as \uN (N the signed 16-bit UTF-16
// unit, so characters beyond the Basic Multilingual Plane become a surrogate pair of two such words)
// followed by one fallback byte for readers without Unicode: its Windows-1252 code as \'hh, or \'3f
// (a question mark) when that code page has no such character. The document declares \uc1 for this.
class RtfMarkup {
public:
    RtfMarkup() = default;
    // Plain text, escaped. CR LF (and a lone CR or LF) becomes a line break.
    RtfMarkup(const QString& text);
    RtfMarkup(const char* utf8Text) : RtfMarkup(QString::fromUtf8(utf8Text)) {}
    template <typename A, typename B>
    RtfMarkup(const QStringBuilder<A, B>& text) : RtfMarkup(QString(text)) {}

    static RtfMarkup Text(const QString& text) { return RtfMarkup(text); }
    // A figure the report formatted itself: a count, an amount such as "-12.50". A CSV file writes it as
    // it stands, so that a spreadsheet reads a number; text from anywhere else that a spreadsheet would
    // take for a formula is written as text there.
    static RtfMarkup Figure(const QString& text);
    // Control words of the writer, e.g. Control("\\page"); they stand for no plain text.
    static RtfMarkup Control(RtfControl words);
    // " \par ", a new line inside a paragraph or cell; CR LF in the plain text.
    static RtfMarkup LineBreak();
    // A picture of the given kind, its natural size in pixels, shown at the given size in twips. Its bytes
    // go in as hex digits: a PNG file as it stands, a Windows bitmap without its 14-byte file header. No
    // plain text: a CSV file has no pictures.
    enum class PictureKind { Png, Bitmap };
    static RtfMarkup Picture(PictureKind kind, const QByteArray& bytes, int widthPixels, int heightPixels,
                             int widthTwips, int heightTwips);
    // "\b " + inner + "\b0", and likewise "\i " ... "\i0" and "\strike " ... "\strike0".
    static RtfMarkup Bold(const RtfMarkup& inner);
    static RtfMarkup Italic(const RtfMarkup& inner);
    static RtfMarkup Strike(const RtfMarkup& inner);

    // The RTF of a piece made from plain text is made when first asked for: a CSV file never asks.
    const QString& Rtf() const {
        if (mEscapePending) {
            mRtf = EscapeText(mPlain);
            mEscapePending = false;
        }
        return mRtf;
    }
    const QString& Plain() const { return mPlain; }
    bool IsEmpty() const { return Rtf().isEmpty() && mPlain.isEmpty(); }
    bool IsFigure() const { return mFigure; }

    // Joins two pieces. When this one ends in a control word and the next begins with a letter, digit,
    // blank or minus, a blank goes between them as the word's delimiter, so that "\b0" + "12" can never
    // read as the control word "\b012".
    RtfMarkup& operator+=(const RtfMarkup& next);
    friend RtfMarkup operator+(RtfMarkup first, const RtfMarkup& next) {
        first += next;
        return first;
    }
    bool operator==(const RtfMarkup& other) const { return Rtf() == other.Rtf() && mPlain == other.mPlain; }

    // The RTF of a plain text, as the constructors make it.
    static QString EscapeText(const QString& text);
    // The Windows-1252 byte of a UTF-16 unit, or 0x3F when the code page has none.
    static unsigned char Windows1252Byte(char16_t unit);

private:
    RtfMarkup(QString rtf, QString plain) : mRtf(std::move(rtf)), mPlain(std::move(plain)) {}
    static RtfMarkup Wrapped(const char* on, const RtfMarkup& inner, const char* off);

    mutable QString mRtf;
    QString mPlain;
    mutable bool mEscapePending = false;
    bool mFigure = false; // joined to anything, it is text again
};
