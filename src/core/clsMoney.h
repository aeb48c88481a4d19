#pragma once

#include <QLocale>
#include <QString>
#include <QtGlobal>

#include <compare>

// An amount of money, held as whole cents so that sums and differences are exact. The database keeps
// amounts as numbers with two decimals; they come in through FromStored and go out through Stored. What
// the user reads and types follows the currency rules of the system's locale (a German system shows
// "1.234,50 €" and takes "1.234,50").
class clsMoney {
public:
    constexpr clsMoney() = default;
    static constexpr clsMoney FromCents(qint64 cents) { return clsMoney(cents); }

    // The largest amount the editors take: one billion.
    static constexpr qint64 kMaximumCents = qint64(1000000000) * 100;

    constexpr qint64 Cents() const { return mCents; }
    constexpr bool IsNegative() const { return mCents < 0; }
    constexpr bool IsZero() const { return mCents == 0; }

    // A number as the database gives it ("1234.5", "99.99", "1e3", ""); an empty or unreadable text is
    // 0. More than two decimals are rounded half away from zero.
    static clsMoney FromStored(const QString& text);
    // The number for the database: "1234.50", "-0.05".
    QString Stored() const;

    // What a user typed, read by the locale's decimal point and group separator; a currency symbol and
    // blanks around it are allowed. Error names the problem in words for the user, and the amount is
    // then 0: text that is no number, a negative amount, more than two decimals, or beyond one billion.
    struct ParseResult {
        qint64 Cents = 0;
        QString Error;
        bool Ok() const { return Error.isEmpty(); }
        clsMoney Amount() const { return FromCents(Cents); }
    };
    static ParseResult Parse(const QString& typed, const QLocale& locale = QLocale());

    // In the locale's currency format: "$1,234.50", "-$5.00", "1.234,50 €". A locale of no country (C)
    // writes US dollars.
    QString Text(const QLocale& locale = QLocale()) const;
    // For an editor to show and take back: the number without a symbol, with group separators and two
    // decimals ("1,234.50", "1.234,50").
    QString Editable(const QLocale& locale = QLocale()) const;
    // For charts and shares only, never for a decision about the amount.
    constexpr double ToDouble() const { return double(mCents) / 100.0; }

    constexpr clsMoney operator+(clsMoney other) const { return clsMoney(mCents + other.mCents); }
    constexpr clsMoney operator-(clsMoney other) const { return clsMoney(mCents - other.mCents); }
    constexpr clsMoney& operator+=(clsMoney other) {
        mCents += other.mCents;
        return *this;
    }
    constexpr clsMoney& operator-=(clsMoney other) {
        mCents -= other.mCents;
        return *this;
    }
    constexpr auto operator<=>(const clsMoney&) const = default;

    // The part as a fraction of the whole; 0 when the whole is 0 or less.
    static double Share(clsMoney part, clsMoney whole);

private:
    constexpr explicit clsMoney(qint64 cents) : mCents(cents) {}
    qint64 mCents = 0;
};
