#include "guests/clsParseName.h"

#include "core/modGeneral.h"
#include "guests/modParseText.h"

#include <QSet>

namespace {

const QSet<QString>& Suffixes() {
    static const QSet<QString> list = {"I",    "II", "III", "IV",     "V",  "VI",  "VII",
                                       "VIII", "JR", "JR.", "JUNIOR", "SR", "SR.", "SENIOR"};
    return list;
}

// "SR." first is the Spanish title, last the suffix: the word's place decides.
const QSet<QString>& Titles() {
    static const QSet<QString> list = {"DR",    "DR.",       "DOCTOR", "JUDGE", "MISS",     "MISS.",  "MR",
                                       "MR.",   "MRS",       "MRS.",   "MS",    "MS.",      "PASTOR", "PROF",
                                       "PROF.", "PROFESSOR", "MASTER", "RABBI", "REVEREND", "REV",    "REV.",
                                       "SR",    "SR.",       "SRA",    "SRA."};
    return list;
}

bool IsParticle(const QString& upperWord) {
    return upperWord == QLatin1String("DE") || upperWord == QLatin1String("VON") ||
           upperWord == QLatin1String("VAN");
}

QString JoinWithBlank(const QString& left, const QString& right) {
    return left.isEmpty() ? right : left + QLatin1Char(' ') + right;
}

} // namespace

void clsParseName::ParseFullName(const QString& name, bool parseTitle) {
    if (TrimBlanks(name).isEmpty())
        return;
    ParseTitle = parseTitle;
    SplitWords(name);
    TakeSuffix();
    if (ParseTitle)
        TakeTitle();
    TakeFirstName();
    TakeMiddleName();
    if (LAST_NM.isEmpty())
        TakeLastName();
    AppendRest();
}

// Runs of blanks are collapsed in four passes, each replacing i blanks followed by a blank, or by a
// comma, in one left-to-right sweep. A run of three or four blanks comes out as two, which leaves an
// empty word: later steps skip it, but it still counts as a word.
void clsParseName::SplitWords(const QString& name) {
    QString text = TrimBlanks(name);
    for (int i = 1; i <= 4; ++i) {
        const QString blanks(i, QLatin1Char(' '));
        text.replace(blanks + QLatin1Char(' '), QStringLiteral(" "));
        text.replace(blanks + QLatin1Char(','), QStringLiteral(","));
    }
    mWords = text.split(QLatin1Char(' '), Qt::KeepEmptyParts);
    for (QString& word : mWords)
        word = LeftChars(TrimBlanks(word), kMaxWordLength);
    mWordCount = mWords.size();
    mConsumed = 0;
    mParticle.clear();
}

void clsParseName::Consume(qsizetype index) {
    mWords[index].clear();
    ++mConsumed;
}

void clsParseName::TakeSuffix() {
    const qsizetype last = mWordCount - 1;
    if (Suffixes().contains(AsciiUpper(mWords.at(last)))) {
        SUFFIX_TX = mWords.at(last);
        Consume(last);
    }
}

void clsParseName::TakeTitle() {
    if (Titles().contains(AsciiUpper(mWords.at(0)))) {
        TITLE_TX = mWords.at(0);
        Consume(0);
    }
}

// A single word left after a title or a suffix is a last name ("Mr. Smith"); a name of one single
// word is a first name.
void clsParseName::TakeFirstName() {
    qsizetype index = 0;
    while (index < mWordCount && mWords.at(index).isEmpty())
        ++index;
    if (index == mWordCount)
        return;
    const qsizetype left = mWordCount - mConsumed;
    if (left == 1 && mWordCount != 1 && LAST_NM.isEmpty())
        return;
    FIRST_NM = mWords.at(index);
    Consume(index);
}

// The middle name is the first word with a period ("John Q. Public"), or, while at least two words
// are left, simply the next word ("John Quincy Public"). A particle found there is kept for the last
// name instead ("Peter van Dyke").
void clsParseName::TakeMiddleName() {
    const bool twoLeft = mWordCount - mConsumed >= 2;
    for (qsizetype i = 0; i < mWordCount; ++i) {
        const QString& word = mWords.at(i);
        if (word.isEmpty())
            continue;
        if (!word.contains(QLatin1Char('.')) && !twoLeft)
            continue;
        if (IsParticle(AsciiUpper(word))) {
            mParticle = word;
        } else {
            MIDDLE_NM = word;
            Consume(i);
        }
        return;
    }
}

// The first remaining word, without its commas, joined to the particle words that stand before it.
void clsParseName::TakeLastName() {
    QString particle;
    for (qsizetype i = 0; i < mWordCount; ++i) {
        const QString word = mWords.at(i);
        if (word.isEmpty())
            continue;
        if (!mParticle.isEmpty() && word == mParticle) {
            particle = JoinWithBlank(particle, word);
            Consume(i);
            continue;
        }
        QString last = word;
        last.remove(QLatin1Char(','));
        LAST_NM = TrimBlanks(particle + QLatin1Char(' ') + last);
        Consume(i);
        return;
    }
    // Only particle words were left: they are the last name.
    if (!particle.isEmpty())
        LAST_NM = particle;
}

void clsParseName::AppendRest() {
    if (mWordCount == mConsumed)
        return;
    for (const QString& word : std::as_const(mWords)) {
        if (!word.isEmpty())
            LAST_NM = JoinWithBlank(LAST_NM, word);
    }
}

bool clsParseName::NameUnclear() const {
    if (TrimBlanks(FIRST_NM + MIDDLE_NM + LAST_NM + SUFFIX_TX).isEmpty())
        return true;
    if (!TrimBlanks(FIRST_NM).isEmpty() && TrimBlanks(MIDDLE_NM + LAST_NM + SUFFIX_TX).isEmpty())
        return true;
    if (!TrimBlanks(SUFFIX_TX).isEmpty() && TrimBlanks(FIRST_NM + MIDDLE_NM + LAST_NM).isEmpty())
        return true;
    return false;
}

QJsonObject clsParseName::ToJson() const {
    return QJsonObject{{QStringLiteral("title"), TITLE_TX},   {QStringLiteral("first"), FIRST_NM},
                       {QStringLiteral("middle"), MIDDLE_NM}, {QStringLiteral("last"), LAST_NM},
                       {QStringLiteral("suffix"), SUFFIX_TX}, {QStringLiteral("unclear"), NameUnclear()}};
}

QJsonObject clsParseName::ParseToJson(const QString& name, bool parseTitle) {
    clsParseName parser;
    parser.ParseFullName(name, parseTitle);
    return parser.ToJson();
}
