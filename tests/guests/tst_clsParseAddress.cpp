#include "guests/clsParseAddress.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

const QString kUSA = QStringLiteral("United States of America");

// Upper-cased, with blanks, line ends and commas dropped: what the parser may move around or remove.
QString Letters(const QString& text) {
    QString out;
    for (const QChar c : text) {
        if (c == QLatin1Char(' ') || c == QLatin1Char('\r') || c == QLatin1Char('\n') ||
            c == QLatin1Char(','))
            continue;
        out += (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ? QChar(c.unicode() - 32) : c;
    }
    return out;
}

clsParseAddress Parsed(const QString& address) {
    clsParseAddress parsed;
    QString text = address;
    parsed.ParseFullAddress(text);
    return parsed;
}

} // namespace

class tst_clsParseAddress : public QObject {
    Q_OBJECT

private slots:
    void parse_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("parts"); // street|city|state|zip
        QTest::addColumn<QString>("country");
        QTest::addColumn<bool>("unclear");

        // United States.
        QTest::newRow("US, CR LF") << "12 Oak St\r\nBoston, MA 02101"
                                   << "12 Oak St|Boston|MA|02101" << kUSA << false;
        QTest::newRow("ZIP+4") << "12 Oak St\r\nBoston, MA 02101-1234"
                               << "12 Oak St|Boston|MA|02101-1234" << kUSA << false;
        QTest::newRow("state in lower case") << "12 Oak St\r\nBoston, ma 02101"
                                             << "12 Oak St|Boston|MA|02101" << kUSA << false;
        QTest::newRow("state spelled out") << "1 Main St\r\nAlbany, New York 12207"
                                           << "1 Main St|Albany|New York|12207" << kUSA << false;
        QTest::newRow("two street lines") << "Apt 4\r\n12 Oak St\r\nBoston, MA  02101"
                                          << "Apt 4\r\n12 Oak St|Boston|MA|02101" << kUSA << false;
        QTest::newRow("country line") << "12 Oak St\r\nBoston, MA 02101\r\nUSA"
                                      << "12 Oak St|Boston|MA|02101"
                                      << "USA" << false;
        QTest::newRow("trailing text is the country") << "Boston, MA 02101 attn Ann"
                                                      << "|Boston|MA|02101"
                                                      << "attn Ann" << false;
        QTest::newRow("digits lead the city line") << "PO Box 7\r\n3 Springfield, IL 62701"
                                                   << "PO Box 7\r\n3|Springfield|IL|62701" << kUSA << false;
        QTest::newRow("one line without comma") << "Boston MA 02101"
                                                << "Boston MA|||02101" << kUSA << false;
        QTest::newRow("line break, no comma, no ZIP") << "12 Oak St\r\nBoston\r\nMA"
                                                      << "12 Oak St\r\nBoston||MA|" << kUSA << false;
        QTest::newRow("four digits are no ZIP") << "12 Oak St\r\nBoston, MA 0210"
                                                << "12 Oak St\r\nBoston||MA 0210|" << kUSA << false;
        QTest::newRow("four-digit number at the end") << "Apt 1234"
                                                      << "Apt 1234|||" << kUSA << false;
        QTest::newRow("five-digit street number at the end") << "Main St 12345"
                                                             << "Main St|||12345" << kUSA << false;
        QTest::newRow("ZIP alone is unclear") << "02101"
                                              << "|||02101" << kUSA << true;
        QTest::newRow("ZIP first keeps what follows") << "12345 Main St\nBoston"
                                                      << "|||12345"
                                                      << "Main St\r\nBoston" << true;

        // Canada.
        QTest::newRow("Canada") << "24 Sussex Dr\r\nOttawa, ON K1M 1M4\r\nCanada"
                                << "24 Sussex Dr|Ottawa|ON|K1M 1M4"
                                << "Canada" << false;
        QTest::newRow("Canada with accents") << "5 Rue de l'Église\nQuébec, QC G1R 4S9\ncanada"
                                             << "5 Rue de l'Église|Québec|QC|G1R 4S9"
                                             << "Canada" << false;
        QTest::newRow("canada alone with blanks") << "  canada \r\n"
                                                  << "|||"
                                                  << "Canada" << false;
        QTest::newRow("lower-case postal code is none") << "Ottawa, ON k1m 1m4\r\nCanada"
                                                        << "Ottawa||ON k1m 1m4|"
                                                        << "Canada" << false;
        QTest::newRow("postal code without Canada is none") << "Ottawa, ON K1M 1M4"
                                                            << "Ottawa||ON K1M 1M4|" << kUSA << false;
        QTest::newRow("text after Canada stays with the country") << "Vancouver, BC V6B 1A1 Canada, attn Ann"
                                                                  << "|Vancouver|BC|V6B 1A1"
                                                                  << "Canada, attn Ann" << false;
        QTest::newRow("postal code without its blank") << "Ottawa, ON K1A0B1\nCanada"
                                                       << "Ottawa||ON K1A0B1|"
                                                       << "Canada" << false;

        // United Kingdom and elsewhere: what fits no pattern stays in the street.
        QTest::newRow("UK") << "10 Downing Street\r\nLondon SW1A 2AA\r\nUnited Kingdom"
                            << "10 Downing Street\r\nLondon SW1A 2AA||United Kingdom|" << kUSA << false;

        // Odd input.
        QTest::newRow("empty") << ""
                               << "|||" << kUSA << false;
        QTest::newRow("commas") << ",,,"
                                << ",,|||" << kUSA << false;
        QTest::newRow("emoji and quotes") << "🏠 12 \"Oak\" St\\4\nBoston, MA 02101"
                                          << "🏠 12 \"Oak\" St\\4|Boston|MA|02101" << kUSA << false;
        QTest::newRow("lone CR") << "12 Oak St\rBoston, MA 02101"
                                 << "12 Oak St|Boston|MA|02101" << kUSA << false;
    }
    void parse() {
        QFETCH(QString, address);
        clsParseAddress parsed;
        QString text = address;
        parsed.ParseFullAddress(text);
        QFETCH(QString, parts);
        QCOMPARE(text, parsed.ADDRESS_TX);
        QCOMPARE((QStringList{parsed.ADDRESS_TX, parsed.CITY_TX, parsed.STATE_TX, parsed.ZIP_TX}.join('|')),
                 parts);
        QTEST(parsed.COUNTRY_TX, "country");
        QTEST(parsed.AddressUnclear(), "unclear");
        QVERIFY(parsed.SPARE_TX.isEmpty());
    }

    void stateIsCutToFiftyCharacters_data() {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("kept");
        QTest::newRow("letters") << QString(60, QLatin1Char('Q')) << QString(50, QLatin1Char('Q'));
        QString emoji;
        for (int i = 0; i < 60; ++i)
            emoji += QStringLiteral("🌵");
        QTest::newRow("emoji, none cut in half") << emoji << emoji.left(100);
    }
    void stateIsCutToFiftyCharacters() {
        QFETCH(QString, state);
        const clsParseAddress parsed = Parsed(QStringLiteral("Tucson, ") + state + QStringLiteral(" 85701"));
        QTEST(parsed.STATE_TX, "kept");
        QVERIFY(QStringView(parsed.STATE_TX).isValidUtf16());
        QCOMPARE(parsed.CITY_TX, QStringLiteral("Tucson"));
    }

    void longAddresses() {
        const QString oneLine(10000, QLatin1Char('x'));
        QCOMPARE(Parsed(oneLine).ADDRESS_TX, oneLine);

        QString lines;
        for (int i = 0; i < 1000; ++i)
            lines += QStringLiteral("Line %1\n").arg(i, 3, 10, QLatin1Char('0'));
        lines += QStringLiteral("Boston, MA 02101");
        const clsParseAddress parsed = Parsed(lines);
        QCOMPARE(parsed.ZIP_TX, QStringLiteral("02101"));
        QCOMPARE(parsed.CITY_TX, QStringLiteral("Boston"));
        QCOMPARE(parsed.ADDRESS_TX.count(QStringLiteral("\r\n")), 999);
        QVERIFY(parsed.ADDRESS_TX.endsWith(QStringLiteral("Line 999")));
    }

    void countryFilter_data() {
        QTest::addColumn<QString>("country");
        QTest::addColumn<bool>("kept"); // or dropped as the USA
        QTest::newRow("U.S.A.") << "U.S.A." << false;
        QTest::newRow("lower case") << "united states" << false;
        QTest::newRow("u. s.") << "u. s." << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("Canada") << "Canada" << true;
        QTest::newRow("USSR") << "USSR" << true;
        QTest::newRow("US with line break") << "U.S.\r\n" << true;
    }
    void countryFilter() {
        QFETCH(QString, country);
        QFETCH(bool, kept);
        clsParseAddress parsed;
        parsed.COUNTRY_TX = country;
        QCOMPARE(parsed.COUNTRY_TX_FILTER_OUT_USA(), kept ? country : QString());
    }

    void display_data() {
        QTest::addColumn<QString>("parts"); // street|city|state|zip|country
        QTest::addColumn<QString>("multiLine");
        QTest::addColumn<QString>("oneLine");
        QTest::newRow("US") << "12 Oak St|Boston|MA|02101|United States of America"
                            << "12 Oak St\r\nBoston, MA  02101"
                            << "12 Oak St, Boston, MA  02101";
        QTest::newRow("Canada") << "24 Sussex Dr|Ottawa|ON|K1M 1M4|Canada"
                                << "24 Sussex Dr\r\nOttawa, ON  K1M 1M4\r\nCanada"
                                << "24 Sussex Dr, Ottawa, ON  K1M 1M4 Canada";
        QTest::newRow("two street lines") << "Apt 4\r\n12 Oak St|Boston|MA|02101|U.S.A."
                                          << "Apt 4\r\n12 Oak St\r\nBoston, MA  02101"
                                          << "Apt 4, 12 Oak St, Boston, MA  02101";
        QTest::newRow("LF typed in the street") << "Apt 4\n12 Oak St||||"
                                                << "Apt 4\r\n12 Oak St"
                                                << "Apt 4, 12 Oak St";
        QTest::newRow("city without state") << "|Boston||02101|"
                                            << "Boston 02101"
                                            << "Boston 02101";
        QTest::newRow("state without ZIP runs into the country") << "||ON||Canada"
                                                                 << "ONCanada"
                                                                 << "ONCanada";
        QTest::newRow("street and country") << "1 Rue X||||France"
                                            << "1 Rue X\r\nFrance"
                                            << "1 Rue X, France";
        QTest::newRow("only the USA") << "||||USA"
                                      << ""
                                      << "";
        QTest::newRow("nothing") << "||||"
                                 << ""
                                 << "";
        QTest::newRow("outer blanks trimmed") << "  12 Oak St||||Peru  "
                                              << "12 Oak St\r\nPeru"
                                              << "12 Oak St, Peru";
    }
    void display() {
        QFETCH(QString, parts);
        const QStringList part = parts.split(QLatin1Char('|'));
        clsParseAddress address;
        address.ADDRESS_TX = part[0];
        address.CITY_TX = part[1];
        address.STATE_TX = part[2];
        address.ZIP_TX = part[3];
        address.COUNTRY_TX = part[4];
        QTEST(address.DisplayAddress(true), "multiLine");
        QTEST(address.DisplayAddress(false), "oneLine");
    }

    // A block in the program's own form comes back from parsing and display unchanged.
    void displayGivesBackTheBlock_data() {
        QTest::addColumn<QString>("block");
        QTest::newRow("US") << "12 Oak St\r\nBoston, MA  02101";
        QTest::newRow("ZIP+4") << "Apt 4\r\n12 Oak St\r\nBoston, MA  02101-1234";
        QTest::newRow("Canada") << "24 Sussex Dr\r\nOttawa, ON  K1M 1M4\r\nCanada";
        QTest::newRow("street only") << "12 Oak St";
    }
    void displayGivesBackTheBlock() {
        QFETCH(QString, block);
        QCOMPARE(Parsed(block).DisplayAddress(true), block);
    }

    // Whatever is typed, every character ends up in one of the parts, in the order typed, and no
    // part holds half a character.
    void noCharacterIsLost() {
        const QStringList pool = {"12",  "Oak", "St",    "02101",  "1234", "02101-1234", "Boston",
                                  "MA",  "ma",  ",",     "\n",     "\r\n", " ",          "Canada",
                                  "K1M", "1M4", "USA",   "Québec", "東京", "🏠",          "\\",
                                  "\"",  "-",   "99999", "A1",     "."};
        QRandomGenerator random(20270605);
        for (int round = 0; round < 3000; ++round) {
            const int pieces = random.bounded(1, 12);
            QString address;
            for (int i = 0; i < pieces; ++i) {
                address += pool.at(random.bounded(int(pool.size())));
                if (random.bounded(3) > 0)
                    address += QLatin1Char(' ');
            }
            clsParseAddress parsed;
            QString text = address;
            parsed.ParseFullAddress(text);
            const QString parts = parsed.ADDRESS_TX + parsed.CITY_TX + parsed.STATE_TX + parsed.ZIP_TX;
            const bool same =
                Letters(parts) == Letters(address) || Letters(parts + parsed.COUNTRY_TX) == Letters(address);
            QVERIFY2(same, qPrintable(address));
            QVERIFY2(QStringView(QString(parts + parsed.COUNTRY_TX)).isValidUtf16(), qPrintable(address));
            QCOMPARE(text, parsed.ADDRESS_TX);
            QVERIFY(!parsed.DisplayAddress(false).contains(QLatin1Char('\n')));
        }
    }
};

QTEST_GUILESS_MAIN(tst_clsParseAddress)
#include "tst_clsParseAddress.moc"
