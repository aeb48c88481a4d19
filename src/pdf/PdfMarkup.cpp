#include "pdf/PdfMarkup.h"

#include <QTextCharFormat>
#include <algorithm>

namespace {

struct Style {
    bool Bold = false;
    bool Italic = false;
    bool Strike = false;
    bool operator==(const Style&) const = default;
};

class MarkupReader {
public:
    explicit MarkupReader(const QString& rtf) : mRtf(rtf) {}

    PdfStyledText Read() {
        while (mAt < mRtf.size()) {
            const QChar c = mRtf.at(mAt++);
            if (c == QLatin1Char('\\'))
                Escape();
            else if (c == QLatin1Char('{'))
                mGroups.append(mStyle);
            else if (c == QLatin1Char('}'))
                mStyle = mGroups.isEmpty() ? Style() : mGroups.takeLast();
            else if (c != QLatin1Char('\r') && c != QLatin1Char('\n'))
                Append(c);
        }
        CloseRange();
        return std::move(mOut);
    }

private:
    void Append(QChar c) {
        if (mStyle != mRangeStyle || mOut.Text.isEmpty()) {
            CloseRange();
            mRangeStart = mOut.Text.size();
            mRangeStyle = mStyle;
        }
        mOut.Text += c;
    }

    void CloseRange() {
        const qsizetype length = mOut.Text.size() - mRangeStart;
        if (length <= 0 || mRangeStyle == Style())
            return;
        QTextLayout::FormatRange range;
        range.start = static_cast<int>(mRangeStart);
        range.length = static_cast<int>(length);
        if (mRangeStyle.Bold)
            range.format.setFontWeight(QFont::Bold);
        range.format.setFontItalic(mRangeStyle.Italic);
        range.format.setFontStrikeOut(mRangeStyle.Strike);
        mOut.Formats.append(range);
        mRangeStart = mOut.Text.size();
    }

    void Escape() {
        if (mAt >= mRtf.size())
            return;
        const QChar c = mRtf.at(mAt);
        if (c == QLatin1Char('\'')) {
            Append(QChar(mRtf.mid(mAt + 1, 2).toUShort(nullptr, 16)));
            mAt += 3;
            return;
        }
        if (!IsLetter(c)) {
            ++mAt;
            if (c == QLatin1Char('\\') || c == QLatin1Char('{') || c == QLatin1Char('}'))
                Append(c);
            else if (c == QLatin1Char('~'))
                Append(QChar(0x00A0));
            return;
        }
        const qsizetype wordStart = mAt;
        while (mAt < mRtf.size() && IsLetter(mRtf.at(mAt)))
            ++mAt;
        const QString word = mRtf.mid(wordStart, mAt - wordStart);
        const qsizetype numberStart = mAt;
        if (mAt < mRtf.size() && mRtf.at(mAt) == QLatin1Char('-'))
            ++mAt;
        while (mAt < mRtf.size() && mRtf.at(mAt).isDigit())
            ++mAt;
        const QString number = mRtf.mid(numberStart, mAt - numberStart);
        if (mAt < mRtf.size() && mRtf.at(mAt) == QLatin1Char(' '))
            ++mAt; // the word's delimiter
        Word(word, number);
    }

    void Word(const QString& word, const QString& number) {
        const bool on = number != QLatin1String("0");
        if (word == QLatin1String("b"))
            mStyle.Bold = on;
        else if (word == QLatin1String("i"))
            mStyle.Italic = on;
        else if (word == QLatin1String("strike"))
            mStyle.Strike = on;
        else if (word == QLatin1String("par") || word == QLatin1String("line"))
            LineBreak();
        else if (word == QLatin1String("tab"))
            Append(QLatin1Char('\t'));
        else if (word == QLatin1String("u"))
            Unicode(number.toInt());
    }

    void LineBreak() {
        if (mOut.Text.endsWith(QLatin1Char(' ')) && mOut.Text.size() > mRangeStart)
            mOut.Text.chop(1); // the blank the writer puts before the break
        Append(QChar(QChar::LineSeparator));
    }

    void Unicode(int value) {
        Append(QChar(static_cast<char16_t>(value < 0 ? value + 0x10000 : value)));
        // One fallback character follows for readers without Unicode.
        if (mRtf.mid(mAt, 2) == QLatin1String("\\'"))
            mAt += 4;
        else if (mAt < mRtf.size())
            ++mAt;
    }

    static bool IsLetter(QChar c) {
        return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
               (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
    }

    const QString& mRtf;
    qsizetype mAt = 0;
    Style mStyle;
    Style mRangeStyle;
    qsizetype mRangeStart = 0;
    QList<Style> mGroups;
    PdfStyledText mOut;
};

} // namespace

PdfStyledText StyledTextOf(const QString& rtf) {
    static const QString special = QStringLiteral("\\{}\r\n");
    if (std::none_of(rtf.cbegin(), rtf.cend(), [](QChar c) { return special.contains(c); }))
        return {rtf, {}}; // plain text is its own markup
    return MarkupReader(rtf).Read();
}
