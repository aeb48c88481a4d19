#include "core/clsMoney.h"

#include <QStringList>

#include <cmath>

namespace {

QLocale CurrencyLocale(const QLocale& locale) {
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

bool AllDigits(QStringView text) {
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

// Whole cents of "digits.decimals"; the decimals beyond the second round half away from zero.
qint64 CentsOf(QStringView whole, QStringView decimals) {
    qint64 cents = 0;
    for (const QChar c : whole)
        cents = cents * 10 + (c.unicode() - '0');
    const QString padded = decimals.toString().leftJustified(3, QLatin1Char('0'));
    cents = cents * 100 + (padded[0].unicode() - '0') * 10 + (padded[1].unicode() - '0');
    return padded[2] >= QLatin1Char('5') ? cents + 1 : cents;
}

// The typed text without blanks and currency signs.
QString Bare(const QString& typed, const QLocale& locale) {
    QString text = typed;
    for (const QString& sign : {locale.currencySymbol(QLocale::CurrencySymbol),
                                locale.currencySymbol(QLocale::CurrencyIsoCode), QStringLiteral("$")}) {
        if (!sign.isEmpty())
            text.remove(sign);
    }
    text.removeIf([](QChar c) { return c.isSpace(); });
    return text;
}

// Thousands are grouped by threes after a first group of one to three digits.
bool GroupsAreWellFormed(const QString& whole, const QString& separator) {
    if (separator.isEmpty() || !whole.contains(separator))
        return true;
    const QStringList groups = whole.split(separator);
    if (groups.first().isEmpty() || groups.first().size() > 3)
        return false;
    for (qsizetype i = 1; i < groups.size(); ++i) {
        if (groups[i].size() != 3)
            return false;
    }
    return true;
}

} // namespace

clsMoney clsMoney::FromStored(const QString& text) {
    const QString number = text.trimmed();
    if (number.isEmpty())
        return {};
    const bool negative = number.startsWith(QLatin1Char('-'));
    const QString unsignedText = negative ? number.mid(1) : number;
    const qsizetype point = unsignedText.indexOf(QLatin1Char('.'));
    const QStringView whole = QStringView(unsignedText).left(point < 0 ? unsignedText.size() : point);
    const QStringView decimals = point < 0 ? QStringView() : QStringView(unsignedText).mid(point + 1);
    if (!whole.isEmpty() && whole.size() <= 15 && AllDigits(whole) && AllDigits(decimals)) {
        const qint64 cents = CentsOf(whole, decimals);
        return FromCents(negative ? -cents : cents);
    }
    // An exponent or another form the engine may write: read as a number, rounded to the cent.
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok && std::isfinite(value) ? FromCents(std::llround(value * 100.0)) : clsMoney();
}

QString clsMoney::Stored() const {
    const qint64 magnitude = mCents < 0 ? -mCents : mCents;
    return (mCents < 0 ? QStringLiteral("-") : QString()) + QString::number(magnitude / 100) +
           QLatin1Char('.') + QStringLiteral("%1").arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

clsMoney::ParseResult clsMoney::Parse(const QString& typed, const QLocale& locale) {
    const QLocale rules = CurrencyLocale(locale);
    const QString example = FromCents(123450).Editable(rules);
    const auto refuse = [](const QString& error) { return ParseResult{0, error}; };
    const QString notAnAmount = QStringLiteral("\"%1\" is not an amount. Type it as a number, such as %2.")
                                    .arg(typed.trimmed(), example);
    QString text = Bare(typed, rules);
    if (text.isEmpty())
        return {};
    bool negative = false;
    for (const QString& minus : {rules.negativeSign(), QStringLiteral("-")}) {
        if (text.startsWith(minus) || text.endsWith(minus)) {
            negative = true;
            text = text.startsWith(minus) ? text.mid(minus.size()) : text.chopped(minus.size());
            break;
        }
    }
    const QStringList parts = text.split(rules.decimalPoint());
    QString whole = parts.first();
    QString decimals = parts.size() == 2 ? parts[1] : QString();
    if (parts.size() > 2 || !GroupsAreWellFormed(whole, rules.groupSeparator()))
        return refuse(notAnAmount);
    whole.remove(rules.groupSeparator());
    if (whole.isEmpty())
        whole = QStringLiteral("0");
    if (!AllDigits(whole) || !AllDigits(decimals))
        return refuse(notAnAmount);
    if (negative)
        return refuse(QStringLiteral("An amount can't be negative."));
    while (decimals.size() > 2 && decimals.endsWith(QLatin1Char('0')))
        decimals.chop(1);
    if (decimals.size() > 2)
        return refuse(
            QStringLiteral("An amount has at most two decimals (cents): %1 has more.").arg(typed.trimmed()));
    const QString maximum = FromCents(kMaximumCents).Editable(rules);
    if (whole.size() > 12 || CentsOf(whole, decimals) > kMaximumCents)
        return refuse(QStringLiteral("An amount can't be more than %1.").arg(maximum));
    return {CentsOf(whole, decimals), QString()};
}

QString clsMoney::Text(const QLocale& locale) const {
    return CurrencyLocale(locale).toCurrencyString(ToDouble(), QString(), 2);
}

QString clsMoney::Editable(const QLocale& locale) const {
    return CurrencyLocale(locale).toString(ToDouble(), 'f', 2);
}

double clsMoney::Share(clsMoney part, clsMoney whole) {
    return whole.mCents > 0 ? double(part.mCents) / double(whole.mCents) : 0.0;
}
