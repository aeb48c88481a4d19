#pragma once

#include <QList>
#include <QString>
#include <QTextLayout>

// The text of a piece of report markup as a painter lays it out: the characters, with a line
// separator (U+2028) for each line break, and the ranges that are bold, italic or struck through.
struct PdfStyledText {
    QString Text;
    QList<QTextLayout::FormatRange> Formats;
};

// Reads the markup's RTF (as RtfMarkup makes it) back into styled text. Escaped characters come back
// as they were typed; control words that change no text or style are dropped.
PdfStyledText StyledTextOf(const QString& rtf);
