#include "core/modGeneral.h"

#include "core/clsApp.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace {

std::optional<QDateTime>& FixedNow() {
    static std::optional<QDateTime> moment;
    return moment;
}

const std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

bool LocaleUsesAmPm(const QLocale& locale) {
    return locale.timeFormat(QLocale::ShortFormat).contains(QLatin1Char('a'), Qt::CaseInsensitive);
}

QString Pad2(int n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); }

QString FormatDatePart(const QDate& date, const QString& format) {
    if (format == QLatin1String("dd-mmm-yyyy"))
        return FormatDate(date);
    if (format == QLatin1String("yyyy-mm-dd"))
        return date.toString(QStringLiteral("yyyy-MM-dd"));
    return {};
}

QString FormatTimePart(const QTime& time, const QString& format) {
    const int hour12 = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    const QString ampm = time.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
    if (format == QLatin1String("h:mm ampm") || format == QLatin1String("h:mm tt"))
        return QString::number(hour12) + QLatin1Char(':') + Pad2(time.minute()) + QLatin1Char(' ') + ampm;
    if (format == QLatin1String("h:mm") || format == QLatin1String("H:mm"))
        return QString::number(time.hour()) + QLatin1Char(':') + Pad2(time.minute());
    if (format == QLatin1String("hh:mm:ss"))
        return time.toString(QStringLiteral("HH:mm:ss"));
    return {};
}

// VB's Trim: blanks only.
QString TrimSpaces(const QString& text) {
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text.at(start) == QLatin1Char(' '))
        ++start;
    while (end > start && text.at(end - 1) == QLatin1Char(' '))
        --end;
    return text.mid(start, end - start);
}

QString Reversed(const QString& text) {
    QString out = text;
    std::reverse(out.begin(), out.end());
    return out;
}

} // namespace

// ---- Quoting ------------------------------------------------------------------------------------

QString QuoteSQL(const QString& text, const QString& ifEmpty) {
    if (text.isEmpty())
        return ifEmpty;
    QString doubled = text;
    doubled.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + doubled + QLatin1Char('\'');
}

QString QuoteDate(const QString& text, const QString& ifEmpty) {
    if (text.isEmpty())
        return ifEmpty;
    const QDateTime moment = ParseDateTimeText(text);
    if (!moment.isValid())
        return QuoteSQL(text);
    return QuoteSQL(moment.date().toString(QStringLiteral("yyyy-MM-dd")));
}

QString CurrencyText(double amount) {
    QLocale locale;
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English, QLocale::UnitedStates);
    return locale.toCurrencyString(amount);
}

QString QuoteCSV(const QString& text) {
    if (text.isEmpty())
        return {};
    if (!text.contains(QLatin1Char('"')))
        return QLatin1Char('"') + text + QLatin1Char('"');
    QString doubled = text;
    doubled.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + doubled + QLatin1Char('"');
}

// ---- The clock ----------------------------------------------------------------------------------

QDateTime Now() {
    const auto& fixed = FixedNow();
    return fixed ? *fixed : QDateTime::currentDateTime();
}

void SetNowForTesting(const QDateTime& moment) {
    if (moment.isValid())
        FixedNow() = moment;
    else
        FixedNow().reset();
}

// ---- Formats ------------------------------------------------------------------------------------

QString TimeFormat(const QLocale& locale) {
    return LocaleUsesAmPm(locale) ? QStringLiteral("h:mm ampm") : QStringLiteral("h:mm");
}

QString DateTimeFormat(const QLocale& locale) { return QStringLiteral("dd-mmm-yyyy ") + TimeFormat(locale); }

QString TimePickerFormat(const QLocale& locale) {
    return LocaleUsesAmPm(locale) ? QStringLiteral("h:mm tt") : QStringLiteral("H:mm");
}

QString FormatDateTime(const QDateTime& moment, const QString& format) {
    if (!moment.isValid())
        return {};
    if (format == QLatin1String(kTimeStampFormat))
        return moment.toString(QStringLiteral("yyyy-MM-dd_HHmmss"));
    const QString datePart = FormatDatePart(moment.date(), format);
    if (!datePart.isEmpty())
        return datePart;
    const QString timePart = FormatTimePart(moment.time(), format);
    if (!timePart.isEmpty())
        return timePart;
    const qsizetype blank = format.indexOf(QLatin1Char(' '));
    if (blank > 0) {
        const QString date = FormatDatePart(moment.date(), format.left(blank));
        const QString time = FormatTimePart(moment.time(), format.mid(blank + 1));
        if (!date.isEmpty() && !time.isEmpty())
            return date + QLatin1Char(' ') + time;
    }
    return moment.toString(Qt::ISODate);
}

QString MonthAbbreviation(int month) {
    if (month < 1 || month > 12)
        return {};
    return QString::fromLatin1(kMonths[static_cast<size_t>(month - 1)]);
}

QString FormatDate(const QDate& date) {
    if (!date.isValid())
        return {};
    return Pad2(date.day()) + QLatin1Char('-') + MonthAbbreviation(date.month()) + QLatin1Char('-') +
           QStringLiteral("%1").arg(date.year(), 4, 10, QLatin1Char('0'));
}

QString FormatTime(const QTime& time, const QLocale& locale) {
    return time.isValid() ? FormatTimePart(time, TimeFormat(locale)) : QString();
}

QString FormatTimeText(const QString& timeText, const QLocale& locale) {
    const QTime time = ParseTimeText(timeText);
    return time.isValid() ? FormatTime(time, locale) : timeText;
}

QString TimeStamp() { return FormatDateTime(Now(), QLatin1String(kTimeStampFormat)); }

QString ReportTimeStamp() { return TimeStamp(); }

QTime ParseTimeText(const QString& text) {
    static const QRegularExpression pattern(
        QStringLiteral(R"(^\s*(\d{1,2}):(\d{2})(?::(\d{2})(?:\.\d+)?)?\s*([AaPp])?\.?\s*[Mm]?\.?\s*$)"));
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    int hour = match.captured(1).toInt();
    const int minute = match.captured(2).toInt();
    const int second = match.captured(3).isEmpty() ? 0 : match.captured(3).toInt();
    const QString half = match.captured(4).toUpper();
    if (!half.isEmpty()) {
        if (hour < 1 || hour > 12)
            return {};
        hour = (hour % 12) + (half == QLatin1String("P") ? 12 : 0);
    }
    const QTime time(hour, minute, second);
    return time.isValid() ? time : QTime();
}

QDateTime ParseDateTimeText(const QString& text) {
    static const QRegularExpression programDate(
        QStringLiteral(R"(^\s*(\d{1,2})[- ]([A-Za-z]{3})[A-Za-z]*[- ,]+(\d{4})(.*)$)"));
    static const QRegularExpression isoDate(QStringLiteral(R"(^\s*(\d{4})-(\d{1,2})-(\d{1,2})(?:[T ](.*))?$)"));
    QDate date;
    QString rest;
    if (const auto m = programDate.match(text); m.hasMatch()) {
        int month = 0;
        for (int i = 1; i <= 12; ++i) {
            if (m.captured(2).compare(MonthAbbreviation(i), Qt::CaseInsensitive) == 0)
                month = i;
        }
        date = QDate(m.captured(3).toInt(), month, m.captured(1).toInt());
        rest = m.captured(4);
    } else if (const auto iso = isoDate.match(text); iso.hasMatch()) {
        date = QDate(iso.captured(1).toInt(), iso.captured(2).toInt(), iso.captured(3).toInt());
        rest = iso.captured(4);
    }
    if (!date.isValid())
        return {};
    if (rest.trimmed().isEmpty())
        return QDateTime(date, QTime(0, 0));
    const QTime time = ParseTimeText(rest);
    return time.isValid() ? QDateTime(date, time) : QDateTime();
}

// ---- Numbers and text ---------------------------------------------------------------------------

QString PercentText(double value, double total, int decimals, const QLocale& locale) {
    if (!(total > 0))
        return {};
    QLocale plain = locale;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    const double percent = 100.0 * value / total;
    return plain.toString(percent, 'f', std::max(0, decimals)) + QLatin1Char('%');
}

QString TextBefore(const QString& text, const QString& delimiter) {
    const qsizetype pos = delimiter.isEmpty() ? -1 : text.indexOf(delimiter);
    return TrimSpaces(pos < 0 ? text : text.left(pos));
}

QString TextAfter(const QString& text, const QString& delimiter) {
    const qsizetype pos = delimiter.isEmpty() ? -1 : text.indexOf(delimiter);
    return pos < 0 ? QString() : TrimSpaces(text.mid(pos + 1));
}

QString StripAmPm(const QString& timeText) {
    QString upper = timeText.toUpper();
    upper.remove(QLatin1String("AM"));
    upper.remove(QLatin1String("PM"));
    return TrimSpaces(upper);
}

QString TrimLeadingCrLf(const QString& text) {
    QString out = TrimSpaces(text);
    qsizetype start = 0;
    while (start < out.size() && (out.at(start) == QLatin1Char('\r') || out.at(start) == QLatin1Char('\n')))
        ++start;
    return out.mid(start);
}

QString TrimCrLf(const QString& text) { return Reversed(TrimLeadingCrLf(Reversed(TrimLeadingCrLf(text)))); }

QString TrimBlanks(const QString& text) { return TrimSpaces(text); }

int FilterNumericKey(const QString& text, int keyAscii, bool allowPercent, bool allowPoint, bool allowMinus,
                     bool allowComma) {
    constexpr int kBackspace = 8;
    if ((keyAscii >= '0' && keyAscii <= '9') || keyAscii == kBackspace)
        return keyAscii;
    switch (keyAscii) {
    case '%':
        return allowPercent && !text.contains(QLatin1Char('%')) ? keyAscii : 0;
    case '-':
        return allowMinus && !text.contains(QLatin1Char('-')) ? keyAscii : 0;
    case '.':
        return allowPoint ? keyAscii : 0;
    case ',':
        return allowComma ? keyAscii : 0;
    default:
        return 0;
    }
}

int UpperCaseKey(int keyAscii) { return keyAscii >= 'a' && keyAscii <= 'z' ? keyAscii - ('a' - 'A') : keyAscii; }

// ---- Files, links, forms ------------------------------------------------------------------------

bool FileExists(const QString& path) { return !path.isEmpty() && QFileInfo(path).isFile(); }

QString DefaultMapEndpoint(int countryIndex) {
    static const std::array<const char*, 8> hosts = {
        "https://www.google.com",    "https://www.google.ca", "https://www.google.co.uk", "https://www.google.fr",
        "https://www.google.es",     "https://www.google.de", "https://www.google.it",
        "https://www.google.com.au"};
    const int index = countryIndex >= 0 && countryIndex < 8 ? countryIndex : 0;
    return QString::fromLatin1(hosts[static_cast<size_t>(index)]) + QStringLiteral("/maps?q=");
}

QString MapEndpoint(int countryIndex) {
    const int index = countryIndex >= 0 && countryIndex < 8 ? countryIndex : 0;
    return gRegistry().GetSetting(clsApp::RootKey(), QStringLiteral("MapEndpoint%1").arg(index),
                                  DefaultMapEndpoint(index));
}

QString MapAddressURL(const QString& address, int countryIndex) {
    QString query = address;
    query.replace(QLatin1Char(' '), QLatin1Char('+'));
    query.replace(QLatin1String("\r\n"), QLatin1String("+"));
    query.replace(QLatin1Char('\r'), QLatin1Char('+'));
    query.replace(QLatin1Char('\n'), QLatin1Char('+'));
    return MapEndpoint(countryIndex) + query;
}

bool SendEmail(const QString& address) { return gShell().SendEmail(address); }

QString FormRegistryKey(const QString& formName) { return gApp().ReleaseKey() + QLatin1Char('/') + formName; }

FormPlacement FormPositionLoad(const QString& formName, int screenWidthTwips, int screenHeightTwips) {
    const QString key = FormRegistryKey(formName);
    auto read = [&key](const char* name, bool* ok) {
        const QString text = gRegistry().GetSetting(key, QString::fromLatin1(name), QString());
        return text.trimmed().toInt(ok);
    };
    bool okLeft = false, okTop = false, okWidth = false, okHeight = false, okState = false;
    FormPlacement saved{read("Left", &okLeft), read("Top", &okTop), read("Width", &okWidth),
                        read("Height", &okHeight), read("WindowState", &okState)};
    const bool sensible = okLeft && okTop && okWidth && okHeight && saved.Left >= -100 && saved.Top >= -100 &&
                          saved.Width >= 3000 && saved.Height >= 3000;
    if (sensible) {
        if (!okState || saved.WindowState < 0 || saved.WindowState > 2)
            saved.WindowState = 0;
        return saved;
    }
    return FormPlacement{500, 500, screenWidthTwips - 1000, screenHeightTwips - 1000, 0};
}

void FormPositionSave(const QString& formName, const FormPlacement& placement) {
    const QString key = FormRegistryKey(formName);
    auto& store = gRegistry();
    store.SaveSetting(key, QStringLiteral("Left"), QString::number(placement.Left));
    store.SaveSetting(key, QStringLiteral("Top"), QString::number(placement.Top));
    store.SaveSetting(key, QStringLiteral("Width"), QString::number(placement.Width));
    store.SaveSetting(key, QStringLiteral("Height"), QString::number(placement.Height));
    store.SaveSetting(key, QStringLiteral("WindowState"),
                      QString::number(placement.WindowState == 1 ? 0 : placement.WindowState));
}
