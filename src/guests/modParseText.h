#pragma once

#include <QString>

// Small text helpers shared by the name and address parsers. They work on the text as typed: nothing
// is normalised except what each helper names.

// Upper case for the letters a to z only. Word tests compare against fixed ASCII lists, and a full
// Unicode upper case could both change the length (German sharp s) and make a foreign letter match
// (dotless i as "I"), so other characters stay as they are.
QString AsciiUpper(const QString& text);

// The first maxChars characters, where a character outside the Basic Multilingual Plane (an emoji, a
// rare CJK ideograph) counts as one and is never cut in half.
QString LeftChars(const QString& text, qsizetype maxChars);

// Removes every blank, carriage return and line feed from both ends.
QString CleanEnds(const QString& text);

// Every line break, whether CR LF, a lone LF or a lone CR, as CR LF: the form stored in the database.
QString NormalizeLineBreaks(const QString& text);
