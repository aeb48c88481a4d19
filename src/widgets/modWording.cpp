#include "widgets/modWording.h"

#include "core/modGeneral.h"
#include "guests/modParseText.h"
#include "platform/clsRegistry.h"

#include <QHash>
#include <QLocale>

namespace modWording {
namespace {

const QString kCrLf = QStringLiteral("\r\n");
const QString kNewHusbandMissing = QStringLiteral("Mrs. Bride's Mother's Husband's First, Middle, Last Name");

// Each template's body: a line is literal, or holds one {token} that stands for a name or the phrase.
// The date and the place follow every body.
const std::array<QStringList, kTemplateCount>& Bodies() {
    static const std::array<QStringList, kTemplateCount> bodies = {{
        {"{B.TFMLS}", "and", "{G.TFMLS}", "{Phrase}", "at their marriage"},
        {"{B.FML}", "and", "{G.FML}", "{Phrase}", "at their marriage"},
        {"[Children's Names]", "{Phrase}", "at the marriage of their parents", "{B.FML}", "and", "{G.TFMLS}"},
        {"The children of", "{B.FML}", "and", "{G.TFMLS}", "{Phrase}", "at the marriage of their parents"},
        {"[Bride's children's names]", "{Phrase}", "at the marriage of their mother", "{B.FML}", "to",
         "{G.TFMLS}"},
        {"[Groom's children's names]", "{Phrase}", "at the marriage of", "{B.FML}", "to their father",
         "{G.FML}"},
        {"{NH.A}", "and", "Mr. and Mrs. {F.FML}", "{Phrase}", "at the marriage of their daughter", "{B.FML}",
         "to", "{G.TFMLS}"},
        {"{NH.B}", "and", "{F.TFMLS}", "{Phrase}", "at the marriage of their daughter", "{B.FML}", "to",
         "{G.TFMLS}"},
        {"{M.TFMLS}", "and", "{F.TFMLS}", "{Phrase}", "at the marriage of their daughter", "{B.FML}", "to",
         "{G.TFMLS}"},
        {"Mr. and Mrs. {F.FML}", "{Phrase}", "at the marriage of their daughter", "{B.FM}", "to",
         "[Rank] {G.FML}"},
        {"Mr. and Mrs. {F.FML}", "{Phrase}", "at the marriage of their daughter", "{B.FM}", "to",
         "{G.TFMLS}"},
        {"Mr. and Mrs. {F.FML}", "{Phrase}", "at the marriage of their daughter", "{B.FM}", "to", "{G.TFMLS}",
         "the son of", "Mr. and Mrs. {GF.FML}"},
        {"Mr. and Mrs. {F.FML}", "{Phrase}", "at the Nuptial Mass uniting their daughter", "{B.FM}", "to",
         "{G.TFMLS}"},
        {"Mr. and Mrs. {F.FML}", "and", "Mr. and Mrs. {GF.FML}", "{Phrase}",
         "at the marriage of their children", "{B.FM}", "to", "{G.FM}"},
        {"Mr. and Mrs. {GF.FML}", "{Phrase}", "at the marriage of", "{B.FML}", "to their son", "{G.FM}"},
        {"Together with their parents", "{B.TFMLS}", "and", "{G.TFMLS}", "{Phrase}", "at their marriage"},
        {"{NH.B}", "{Phrase}", "at the marriage of her daughter", "{B.FML}", "to", "{G.TFMLS}"},
        // The bracketed line stands whatever the contacts hold: the user overwrites it.
        {"Mrs. Bride's Father's First Name, Middle Name, Last Name", "{Phrase}",
         "at the marriage of her daughter", "{B.FM}", "to", "{G.TFMLS}"},
        {"{F.TFMLS}", "{Phrase}", "at the marriage of his daughter", "{B.FM}", "to", "{G.TFMLS}"},
    }};
    return bodies;
}

// What the tokens of the bodies stand for.
QHash<QString, QString> TokenValues(const Choices& choices, const People& p) {
    const bool husbandFound = !p.NewHusband.CONTACT_ID.isEmpty();
    return {
        {QStringLiteral("Phrase"), Phrases().value(choices.Phrase)},
        {QStringLiteral("B.TFMLS"), p.Bride.TitleFirstMiddleLastSuffix()},
        {QStringLiteral("B.FML"), p.Bride.FirstMiddleLast()},
        {QStringLiteral("B.FM"), p.Bride.FirstMiddle()},
        {QStringLiteral("G.TFMLS"), p.Groom.TitleFirstMiddleLastSuffix()},
        {QStringLiteral("G.FML"), p.Groom.FirstMiddleLast()},
        {QStringLiteral("G.FM"), p.Groom.FirstMiddle()},
        {QStringLiteral("F.TFMLS"), p.BrideFather.TitleFirstMiddleLastSuffix()},
        {QStringLiteral("F.FML"), p.BrideFather.FirstMiddleLast()},
        {QStringLiteral("M.TFMLS"), p.BrideMother.TitleFirstMiddleLastSuffix()},
        {QStringLiteral("GF.FML"), p.GroomFather.FirstMiddleLast()},
        {QStringLiteral("NH.A"),
         husbandFound ? QString("Mr. and Mrs. " + p.NewHusband.FirstMiddleLast()) : kNewHusbandMissing},
        {QStringLiteral("NH.B"),
         husbandFound ? QString("Mrs. " + p.NewHusband.FirstMiddleLast()) : kNewHusbandMissing},
    };
}

// The line with its one token replaced; the value is not scanned again, so a name may hold braces.
QString Expand(const QString& line, const QHash<QString, QString>& values) {
    const qsizetype open = line.indexOf(QLatin1Char('{'));
    const qsizetype close = line.indexOf(QLatin1Char('}'), open);
    if (open < 0 || close < 0)
        return line;
    return line.left(open) + values.value(line.mid(open + 1, close - open - 1)) + line.mid(close + 1);
}

// A text box's lines, however its line breaks are written.
QStringList TextLines(const QString& text) {
    return NormalizeLineBreaks(text).split(kCrLf);
}

QStringList PlaceLines(const Choices& choices) {
    QStringList lines = choices.Place.isEmpty()
                            ? QStringList{QStringLiteral("[House of Worship]/[Facility Name]"),
                                          QStringLiteral("[City], [State]")}
                            : TextLines(choices.Place);
    if (choices.Reception)
        lines << QString() << QStringLiteral("Reception to follow") << TextLines(choices.ReceptionPlace);
    return lines;
}

QString Setting(const char* name, const QString& defaultValue) {
    return gRegistry().GetSetting(SettingsKey(), QString::fromLatin1(name), defaultValue);
}

void SaveSetting(const QString& name, const QString& value) {
    gRegistry().SaveSetting(SettingsKey(), name, value);
}

int SettingInt(const char* name, int defaultValue) {
    bool ok = false;
    const int value = Setting(name, QString::number(defaultValue)).toInt(&ok);
    return ok ? value : defaultValue;
}

} // namespace

const QStringList& TemplateNames() {
    static const QStringList names = {
        QStringLiteral("Bride and Groom"),
        QStringLiteral("Bride and Groom, Bride's second marriage"),
        QStringLiteral("Children of Bride and Groom"),
        QStringLiteral("Children of Bride, Children of Groom"),
        QStringLiteral("Children of Bride"),
        QStringLiteral("Children of Groom"),
        QStringLiteral("Divorced Parents, both remarried"),
        QStringLiteral("Divorced Parents, Mother has remarried"),
        QStringLiteral("Divorced Parents, Mother has not remarried"),
        QStringLiteral("Groom in Military Service - Bride's parents"),
        QStringLiteral("Parents of Bride"),
        QStringLiteral("Parents of Bride - Groom's parents listed"),
        QStringLiteral("Parents of Bride - Nuptial Mass"),
        QStringLiteral("Parents of Bride and Groom"),
        QStringLiteral("Parents of the Groom"),
        QStringLiteral("Together with their parents - Bride and Groom"),
        QStringLiteral("Widowed Mother who has remarried"),
        QStringLiteral("Widowed Mother who has not remarried"),
        QStringLiteral("Widowed Father"),
    };
    return names;
}

const QStringList& Phrases() {
    static const QStringList phrases = {QStringLiteral("request the honour of your presence"),
                                        QStringLiteral("request the pleasure of your company")};
    return phrases;
}

// ---- Choices ----

QString SettingsKey() {
    return FormRegistryKey(QStringLiteral("frmMain_12_Widgets"));
}

QString Choices::DefaultPlace() {
    return QStringLiteral("[House of Worship]/[Facility name]\r\n[City, State]");
}

QString Choices::DefaultReceptionPlace() {
    return QStringLiteral("[Reception site]\r\n[City, State]");
}

Choices Choices::Load() {
    Choices c;
    c.Template = SettingInt("cbo_0", kDefaultTemplate);
    c.Phrase = SettingInt("cbo_1", 0);
    c.Place = Setting("txt_2", DefaultPlace());
    c.ReceptionPlace = Setting("txt_3", DefaultReceptionPlace());
    if (c.ReceptionPlace.isEmpty())
        c.ReceptionPlace = DefaultReceptionPlace();
    c.Reception = SettingInt("chkReceptionWording", 1) != 0;
    for (int role = 3; role <= 6; ++role)
        c.RemarriedTo(role) =
            Setting(QStringLiteral("linkre_%1").arg(role).toLatin1().constData(), QString());
    return c;
}

void Choices::Save() const {
    SaveSetting(QStringLiteral("cbo_0"), QString::number(Template));
    SaveSetting(QStringLiteral("cbo_1"), QString::number(Phrase));
    SaveSetting(QStringLiteral("txt_2"), Place);
    SaveSetting(QStringLiteral("txt_3"), ReceptionPlace);
    SaveSetting(QStringLiteral("chkReceptionWording"), Reception ? QStringLiteral("1") : QStringLiteral("0"));
    for (int role = 3; role <= 6; ++role)
        SaveSetting(QStringLiteral("linkre_%1").arg(role), RemarriedTo(role));
}

People People::Open(const Choices& choices) {
    People p;
    p.Bride.OpenRecord(QStringLiteral("1"));
    p.Groom.OpenRecord(QStringLiteral("2"));
    p.BrideFather.OpenRecord(QString(), QStringLiteral("3"));
    p.BrideMother.OpenRecord(QString(), QStringLiteral("4"));
    p.GroomFather.OpenRecord(QString(), QStringLiteral("5"));
    p.GroomMother.OpenRecord(QString(), QStringLiteral("6"));
    p.NewHusband.OpenRecord(choices.RemarriedTo(4));
    return p;
}

const clsCONTACT& People::Parent(int roleId) const {
    switch (roleId) {
    case 3:
        return BrideFather;
    case 4:
        return BrideMother;
    case 5:
        return GroomFather;
    default:
        return GroomMother;
    }
}

// ---- The date in words ----

QString DayWord(int day) {
    static const QStringList words = {
        "first",        "second",       "third",          "fourth",        "fifth",        "sixth",
        "seventh",      "eighth",       "ninth",          "tenth",         "eleventh",     "twelfth",
        "thirteenth",   "fourteenth",   "fifteenth",      "sixteenth",     "seventeenth",  "eighteenth",
        "nineteenth",   "twentieth",    "twenty-first",   "twenty-second", "twenty-third", "twenty-fourth",
        "twenty-fifth", "twenty-sixth", "twenty-seventh", "twenty-eighth", "twenty-ninth", "thirtieth",
        "thirty-first"};
    return day >= 1 && day <= 31 ? words.at(day - 1) : QString();
}

QString NumberWord(int number) {
    static const QStringList ones = {"",        "one",     "two",       "three",    "four",
                                     "five",    "six",     "seven",     "eight",    "nine",
                                     "ten",     "eleven",  "twelve",    "thirteen", "fourteen",
                                     "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
    static const QStringList tens = {"",      "",      "twenty",  "thirty", "forty",
                                     "fifty", "sixty", "seventy", "eighty", "ninety"};
    if (number < 1 || number > 99)
        return {};
    if (number < 20)
        return ones.at(number);
    const QString ten = tens.at(number / 10);
    return number % 10 == 0 ? ten : QString(ten + QLatin1Char('-') + ones.at(number % 10));
}

QString YearLine(int year) {
    if (year == 2000)
        return QStringLiteral("Two thousand");
    const QString word =
        year > 2000 && year <= 2099 ? NumberWord(year - 2000) : QStringLiteral("[enter appropriate date]");
    return QStringLiteral("Two thousand and ") + word;
}

QString TimeLine(const QTime& time) {
    const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    const bool pm = time.hour() >= 12;
    // The part of the day follows the hour as written, also where a quarter to names the next one.
    const QString part = !pm                         ? QStringLiteral(" in the morning")
                         : (hour <= 4 || hour == 12) ? QStringLiteral(" in the afternoon")
                                                     : QStringLiteral(" in the evening");
    const int minute = time.minute();
    QString words;
    if (minute == 0)
        words = NumberWord(hour) + QStringLiteral(" o'clock");
    else if (minute == 30)
        words = QStringLiteral("half past ") + NumberWord(hour);
    else if (minute == 15)
        words = QStringLiteral("a quarter past ") + NumberWord(hour);
    else if (minute == 45)
        words = QStringLiteral("a quarter to ") + NumberWord(hour % 12 + 1);
    else
        words = NumberWord(minute) +
                (minute == 1 ? QStringLiteral(" minute past ") : QStringLiteral(" minutes past ")) +
                NumberWord(hour);
    return QStringLiteral("at ") + words + part;
}

QStringList DateLines(const QDateTime& when) {
    const QDate date = when.date();
    if (!date.isValid())
        return {QStringLiteral("[enter appropriate date]"), YearLine(0), TimeLine(when.time())};
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    return {english.dayName(date.dayOfWeek(), QLocale::LongFormat) + QStringLiteral(" the ") +
                DayWord(date.day()) + QStringLiteral(" of ") +
                english.monthName(date.month(), QLocale::LongFormat),
            YearLine(date.year()), TimeLine(when.time())};
}

// ---- The wording ----

QStringList Lines(const Choices& choices, const People& people, const QDateTime& when) {
    if (choices.Template < 0 || choices.Template >= kTemplateCount)
        return {};
    const QHash<QString, QString> values = TokenValues(choices, people);
    QStringList lines{QString()};
    for (const QString& line : Bodies().at(static_cast<size_t>(choices.Template)))
        lines << Expand(line, values);
    return lines + DateLines(when) + PlaceLines(choices);
}

QString Text(const Choices& choices, const People& people, const QDateTime& when) {
    return Lines(choices, people, when).join(kCrLf);
}

} // namespace modWording
