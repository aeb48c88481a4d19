#include "core/clsMoney.h"

#include <QtTest>

static const QLocale kUs(QLocale::English, QLocale::UnitedStates);
static const QLocale kGerman(QLocale::German, QLocale::Germany);

class tst_clsMoney : public QObject {
    Q_OBJECT

private slots:
    void typedAmounts_data() {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<qint64>("cents");
        QTest::addColumn<QString>("error"); // a word the message holds; empty: taken
        QTest::newRow("us plain") << kUs << "1234.5" << qint64(123450) << "";
        QTest::newRow("us grouped with symbol") << kUs << " $1,234.50 " << qint64(123450) << "";
        QTest::newRow("us trailing zeros beyond cents") << kUs << "12.500" << qint64(1250) << "";
        QTest::newRow("german grouped") << kGerman << "1.234,50" << qint64(123450) << "";
        QTest::newRow("german with euro sign") << kGerman << "1.234,50 €" << qint64(123450) << "";
        QTest::newRow("german cents only") << kGerman << ",05" << qint64(5) << "";
        QTest::newRow("empty is nothing") << kUs << "" << qint64(0) << "";
        QTest::newRow("a billion") << kUs << "1,000,000,000.00" << qint64(100000000000) << "";
        QTest::newRow("text") << kUs << "twelve" << qint64(0) << "not an amount";
        QTest::newRow("two decimal points") << kUs << "1.2.3" << qint64(0) << "not an amount";
        QTest::newRow("german reads a point as grouping, badly placed")
            << kGerman << "1234.50" << qint64(0) << "not an amount";
        QTest::newRow("us group of two") << kUs << "1,23" << qint64(0) << "not an amount";
        QTest::newRow("negative") << kUs << "-5" << qint64(0) << "negative";
        QTest::newRow("german negative") << kGerman << "-5,00" << qint64(0) << "negative";
        QTest::newRow("too many decimals") << kUs << "1.234" << qint64(0) << "two decimals";
        QTest::newRow("beyond a billion by a cent") << kUs << "1000000000.01" << qint64(0) << "more than";
        QTest::newRow("far beyond") << kUs << "99999999999999999999" << qint64(0) << "more than";
    }
    void typedAmounts() {
        QFETCH(QLocale, locale);
        QFETCH(QString, typed);
        QFETCH(qint64, cents);
        QFETCH(QString, error);
        const clsMoney::ParseResult result = clsMoney::Parse(typed, locale);
        QCOMPARE(result.Cents, cents);
        if (error.isEmpty())
            QVERIFY2(result.Ok(), qPrintable(result.Error));
        else
            QVERIFY2(result.Error.contains(error), qPrintable(result.Error));
    }

    void storedNumbers_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<qint64>("cents");
        QTest::addColumn<QString>("written");
        QTest::newRow("as the engine writes a real") << "1234.5" << qint64(123450) << "1234.50";
        QTest::newRow("cents that no double holds") << "0.07" << qint64(7) << "0.07";
        QTest::newRow("whole") << "80" << qint64(8000) << "80.00";
        QTest::newRow("third decimal rounds up") << "2.675" << qint64(268) << "2.68";
        QTest::newRow("third decimal rounds down") << "2.674" << qint64(267) << "2.67";
        QTest::newRow("negative rounds away from zero") << "-0.005" << qint64(-1) << "-0.01";
        QTest::newRow("exponent") << "1.5e3" << qint64(150000) << "1500.00";
        QTest::newRow("null") << "" << qint64(0) << "0.00";
        QTest::newRow("garbage") << "abc" << qint64(0) << "0.00";
    }
    void storedNumbers() {
        QFETCH(QString, stored);
        QFETCH(qint64, cents);
        QFETCH(QString, written);
        const clsMoney amount = clsMoney::FromStored(stored);
        QCOMPARE(amount.Cents(), cents);
        QCOMPARE(amount.Stored(), written);
        QCOMPARE(clsMoney::FromStored(amount.Stored()), amount);
    }

    // Ten cents added a thousand times is exactly a hundred; a double would miss it.
    void sumsAreExact() {
        clsMoney sum;
        for (int i = 0; i < 1000; ++i)
            sum += clsMoney::FromStored(QStringLiteral("0.10"));
        QCOMPARE(sum.Stored(), QStringLiteral("100.00"));
        const clsMoney estimate = clsMoney::FromStored(QStringLiteral("0.3"));
        const clsMoney actual = clsMoney::FromStored(QStringLiteral("0.1")) + clsMoney::FromStored("0.2");
        QVERIFY((estimate - actual).IsZero());
        QVERIFY(!(estimate - actual).IsNegative());
    }

    void shownInTheLocalesCurrency_data() {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<qint64>("cents");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("editable");
        QTest::newRow("us") << kUs << qint64(123450) << "$1,234.50"
                            << "1,234.50";
        QTest::newRow("us negative") << kUs << qint64(-500) << "($5.00)"
                                     << "-5.00";
        QTest::newRow("german") << kGerman << qint64(123450) << QString::fromUtf8("1.234,50\u00a0€")
                                << "1.234,50";
        QTest::newRow("no country writes dollars") << QLocale::c() << qint64(7) << "$0.07"
                                                   << "0.07";
    }
    void shownInTheLocalesCurrency() {
        QFETCH(QLocale, locale);
        QFETCH(qint64, cents);
        QFETCH(QString, text);
        QFETCH(QString, editable);
        const clsMoney amount = clsMoney::FromCents(cents);
        QCOMPARE(amount.Text(locale), text);
        QCOMPARE(amount.Editable(locale), editable);
        if (cents >= 0)
            QCOMPARE(clsMoney::Parse(amount.Editable(locale), locale).Cents, cents);
    }

    void shares_data() {
        QTest::addColumn<qint64>("part");
        QTest::addColumn<qint64>("whole");
        QTest::addColumn<double>("share");
        QTest::newRow("a quarter") << qint64(2500) << qint64(10000) << 0.25;
        QTest::newRow("no whole") << qint64(2500) << qint64(0) << 0.0;
        QTest::newRow("a negative whole") << qint64(2500) << qint64(-100) << 0.0;
    }
    void shares() {
        QFETCH(qint64, part);
        QFETCH(qint64, whole);
        QFETCH(double, share);
        QCOMPARE(clsMoney::Share(clsMoney::FromCents(part), clsMoney::FromCents(whole)), share);
    }
};

QTEST_GUILESS_MAIN(tst_clsMoney)
#include "tst_clsMoney.moc"
