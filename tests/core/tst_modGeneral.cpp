#include "TestHome.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"

#include <QtTest>
#include <memory>

class tst_modGeneral : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;

private slots:
    void init() { home = std::make_unique<TestHome>(); }
    void cleanup() {
        SetNowForTesting({});
        home.reset();
    }

    void quoteSQL_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("quoted");
        QTest::newRow("empty is NULL") << "" << "NULL";
        QTest::newRow("one quote") << "'" << "''''";
        QTest::newRow("O'Brien") << "O'Brien" << "'O''Brien'";
        QTest::newRow("injection stays text") << "x'; DROP TABLE CONTACT; --" << "'x''; DROP TABLE CONTACT; --'";
    }
    void quoteSQL() {
        QFETCH(QString, text);
        QFETCH(QString, quoted);
        QCOMPARE(QuoteSQL(text), quoted);
    }

    void quoteSQLEmptyCase() { QCOMPARE(QuoteSQL("", "0"), QStringLiteral("0")); }

    void quoteCSVAndDate_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("csv");
        QTest::addColumn<QString>("date");
        QTest::newRow("empty") << "" << "" << "NULL";
        QTest::newRow("program date") << "05-Jun-2027" << "\"05-Jun-2027\"" << "'2027-06-05'";
        QTest::newRow("date with time") << "5-jun-2027 3:00 PM" << "\"5-jun-2027 3:00 PM\"" << "'2027-06-05'";
        QTest::newRow("inner quotes doubled") << "The \"Big\" Day" << "\"The \"\"Big\"\" Day\"" << "'The \"Big\" Day'";
        QTest::newRow("quote in non-date") << "it's" << "\"it's\"" << "'it''s'";
    }
    void quoteCSVAndDate() {
        QFETCH(QString, text);
        QFETCH(QString, csv);
        QFETCH(QString, date);
        QCOMPARE(QuoteCSV(text), csv);
        QCOMPARE(QuoteDate(text), date);
    }

    void timeFormatsFollowTheLocale_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("timeFormat");
        QTest::addColumn<QString>("picker");
        QTest::addColumn<QString>("afternoon");
        QTest::addColumn<QString>("morning");
        QTest::newRow("12-hour (en_US)") << "en_US" << "h:mm ampm" << "h:mm tt" << "3:05 PM" << "12:30 AM";
        QTest::newRow("24-hour (de_DE)") << "de_DE" << "h:mm" << "H:mm" << "15:05" << "0:30";
        QTest::newRow("12-hour, other language (es_US)") << "es_US" << "h:mm ampm" << "h:mm tt" << "3:05 PM" << "12:30 AM";
    }
    void timeFormatsFollowTheLocale() {
        QFETCH(QString, locale);
        QFETCH(QString, timeFormat);
        QFETCH(QString, picker);
        QFETCH(QString, afternoon);
        QFETCH(QString, morning);
        const QLocale loc(locale);
        QCOMPARE(TimeFormat(loc), timeFormat);
        QCOMPARE(TimePickerFormat(loc), picker);
        QCOMPARE(DateTimeFormat(loc), "dd-mmm-yyyy " + timeFormat);
        QCOMPARE(FormatTime(QTime(15, 5), loc), afternoon);
        QCOMPARE(FormatTime(QTime(0, 30), loc), morning);
        QCOMPARE(FormatDateTime(QDateTime(QDate(2027, 6, 5), QTime(15, 5)), DateTimeFormat(loc)),
                 "05-Jun-2027 " + afternoon);
        QCOMPARE(FormatTimeText("3:05 pm", loc), afternoon);
    }

    void datesUseEnglishMonthsInAnyLocale() {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
        QCOMPARE(FormatDate(QDate(2027, 2, 1)), QStringLiteral("01-Feb-2027"));
        QCOMPARE(FormatDate(QDate(2027, 12, 31)), QStringLiteral("31-Dec-2027"));
        QCOMPARE(FormatDate(QDate()), QString());
        QLocale::setDefault(before);
    }

    void parseDateTimeText_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDateTime>("expected");
        const QDate d(2027, 6, 5);
        QTest::newRow("program date") << "05-Jun-2027" << QDateTime(d, QTime(0, 0));
        QTest::newRow("short day, lower month") << "5-jun-2027" << QDateTime(d, QTime(0, 0));
        QTest::newRow("with PM time") << "05-Jun-2027 3:05 PM" << QDateTime(d, QTime(15, 5));
        QTest::newRow("with 24h time") << "05-Jun-2027 15:05" << QDateTime(d, QTime(15, 5));
        QTest::newRow("noon") << "05-Jun-2027 12:00 PM" << QDateTime(d, QTime(12, 0));
        QTest::newRow("midnight") << "05-Jun-2027 12:00 AM" << QDateTime(d, QTime(0, 0));
        QTest::newRow("ISO date") << "2027-06-05" << QDateTime(d, QTime(0, 0));
        QTest::newRow("ISO date time") << "2027-06-05 15:05:09" << QDateTime(d, QTime(15, 5, 9));
        QTest::newRow("ISO T") << "2027-06-05T15:05" << QDateTime(d, QTime(15, 5));
        QTest::newRow("no such day") << "31-Feb-2027" << QDateTime();
        QTest::newRow("13 PM") << "05-Jun-2027 13:00 PM" << QDateTime();
        QTest::newRow("empty") << "" << QDateTime();
    }
    void parseDateTimeText() {
        QFETCH(QString, text);
        QFETCH(QDateTime, expected);
        QCOMPARE(ParseDateTimeText(text), expected);
    }

    void timeStampUsesTheClock() {
        SetNowForTesting(QDateTime(QDate(2026, 11, 23), QTime(9, 5, 7)));
        QCOMPARE(TimeStamp(), QStringLiteral("2026-11-23_090507"));
        QCOMPARE(ReportTimeStamp(), QStringLiteral("2026-11-23_090507"));
    }

    void percentText_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("total");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("expected");
        QTest::newRow("one decimal") << 1.0 << 3.0 << 1 << "en_US" << "33.3%";
        QTest::newRow("no decimals") << 1.0 << 3.0 << 0 << "en_US" << "33%";
        QTest::newRow("total zero") << 1.0 << 0.0 << 1 << "en_US" << "";
        QTest::newRow("total negative") << 1.0 << -5.0 << 1 << "en_US" << "";
        QTest::newRow("over budget, no grouping") << 150.0 << 10.0 << 1 << "en_US" << "1500.0%";
        QTest::newRow("comma decimal") << 1.0 << 3.0 << 1 << "de_DE" << "33,3%";
    }
    void percentText() {
        QFETCH(double, value);
        QFETCH(double, total);
        QFETCH(int, decimals);
        QFETCH(QString, locale);
        QFETCH(QString, expected);
        QCOMPARE(PercentText(value, total, decimals, QLocale(locale)), expected);
    }

    void textHelpers_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("comma") << " Boston , MA " << "Boston" << "MA";
        QTest::newRow("no delimiter") << " Boston " << "Boston" << "";
        QTest::newRow("two delimiters") << "a,b,c" << "a" << "b,c";
        QTest::newRow("delimiter first") << ",x" << "" << "x";
    }
    void textHelpers() {
        QFETCH(QString, text);
        QFETCH(QString, before);
        QFETCH(QString, after);
        QCOMPARE(TextBefore(text, ","), before);
        QCOMPARE(TextAfter(text, ","), after);
    }

    void trimming_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("leading");
        QTest::addColumn<QString>("both");
        QTest::newRow("line ends around") << "\r\n\r\nline\r\n" << "line\r\n" << "line";
        QTest::newRow("blanks and line ends") << "  \r\n x \r\n  " << " x \r\n" << "x ";
        QTest::newRow("inner line ends stay") << "a\r\nb" << "a\r\nb" << "a\r\nb";
        QTest::newRow("only line ends") << "\r\n\n" << "" << "";
    }
    void trimming() {
        QFETCH(QString, text);
        QFETCH(QString, leading);
        QFETCH(QString, both);
        QCOMPARE(TrimLeadingCrLf(text), leading);
        QCOMPARE(TrimCrLf(text), both);
    }

    void stripAmPm() {
        QCOMPARE(StripAmPm(" 3:05 pm "), QStringLiteral("3:05"));
        QCOMPARE(StripAmPm("11:00 AM"), QStringLiteral("11:00"));
    }

    void filterNumericKey_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("percent");
        QTest::addColumn<bool>("point");
        QTest::addColumn<bool>("minus");
        QTest::addColumn<bool>("comma");
        QTest::addColumn<int>("result");
        QTest::newRow("digit") << "" << int('7') << false << false << false << false << int('7');
        QTest::newRow("backspace") << "12" << 8 << false << false << false << false << 8;
        QTest::newRow("letter") << "" << int('a') << true << true << true << true << 0;
        QTest::newRow("percent allowed") << "10" << int('%') << true << false << false << false << int('%');
        QTest::newRow("second percent") << "10%" << int('%') << true << false << false << false << 0;
        QTest::newRow("percent not allowed") << "10" << int('%') << false << true << true << true << 0;
        QTest::newRow("minus allowed") << "" << int('-') << false << false << true << false << int('-');
        QTest::newRow("second minus") << "-1" << int('-') << false << false << true << false << 0;
        QTest::newRow("point allowed twice") << "1.5" << int('.') << false << true << false << false << int('.');
        QTest::newRow("point not allowed") << "1" << int('.') << false << false << false << true << 0;
        QTest::newRow("comma allowed") << "1" << int(',') << false << false << false << true << int(',');
    }
    void filterNumericKey() {
        QFETCH(QString, text);
        QFETCH(int, key);
        QFETCH(bool, percent);
        QFETCH(bool, point);
        QFETCH(bool, minus);
        QFETCH(bool, comma);
        QFETCH(int, result);
        QCOMPARE(FilterNumericKey(text, key, percent, point, minus, comma), result);
    }

    void mapAddressURL_data() {
        QTest::addColumn<int>("country");
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("url");
        QTest::newRow("US") << 0 << "1 Main St\r\nBoston, MA" << "https://www.google.com/maps?q=1+Main+St+Boston,+MA";
        QTest::newRow("unknown is US") << 99 << "x" << "https://www.google.com/maps?q=x";
        QTest::newRow("LF only") << 5 << "a\nb" << "https://www.google.de/maps?q=a+b";
    }
    void mapAddressURL() {
        QFETCH(int, country);
        QFETCH(QString, address);
        QFETCH(QString, url);
        QCOMPARE(MapAddressURL(address, country), url);
    }

    void mapEndpointIsASetting() {
        gRegistry().SaveSetting(clsApp::RootKey(), "MapEndpoint3", "https://maps.example.fr/?q=");
        QCOMPARE(MapAddressURL("Paris", 3), QStringLiteral("https://maps.example.fr/?q=Paris"));
    }

    void formPositionLoad_data() {
        QTest::addColumn<QStringList>("saved"); // Left, Top, Width, Height, WindowState
        QTest::addColumn<bool>("usesSaved");
        QTest::newRow("sensible") << QStringList{"0", "0", "12000", "9000", "2"} << true;
        QTest::newRow("slightly off screen") << QStringList{"-100", "-100", "3000", "3000", "0"} << true;
        QTest::newRow("left too far") << QStringList{"-101", "0", "12000", "9000", "0"} << false;
        QTest::newRow("width 2999") << QStringList{"0", "0", "2999", "9000", "0"} << false;
        QTest::newRow("height missing") << QStringList{"0", "0", "12000", "", "0"} << false;
        QTest::newRow("garbage") << QStringList{"x", "0", "12000", "9000", "0"} << false;
        QTest::newRow("nothing saved") << QStringList{} << false;
    }
    void formPositionLoad() {
        QFETCH(QStringList, saved);
        QFETCH(bool, usesSaved);
        const QString key = FormRegistryKey("frmTest");
        const QStringList names{"Left", "Top", "Width", "Height", "WindowState"};
        for (int i = 0; i < saved.size(); ++i)
            gRegistry().SaveSetting(key, names[i], saved[i]);
        const FormPlacement placement = FormPositionLoad("frmTest", 19200, 14400);
        if (usesSaved) {
            QCOMPARE(placement, (FormPlacement{saved[0].toInt(), saved[1].toInt(), saved[2].toInt(),
                                               saved[3].toInt(), saved[4].toInt()}));
        } else {
            QCOMPARE(placement, (FormPlacement{500, 500, 18200, 13400, 0}));
        }
    }

    void formPositionNeverComesBackMinimised() {
        FormPositionSave("frmMain", FormPlacement{100, 200, 9000, 7000, 1});
        QCOMPARE(gRegistry().GetSetting(FormRegistryKey("frmMain"), "WindowState", "?"), QStringLiteral("0"));
        QCOMPARE(FormPositionLoad("frmMain", 19200, 14400), (FormPlacement{100, 200, 9000, 7000, 0}));
        FormPositionSave("frmMain", FormPlacement{100, 200, 9000, 7000, 2});
        QCOMPARE(FormPositionLoad("frmMain", 19200, 14400).WindowState, 2);
    }

    void fileExists() {
        QVERIFY(!FileExists(home->File("missing.txt")));
        QVERIFY(!FileExists(home->Path())); // a folder is no file
        QVERIFY(!FileExists(""));
        QFile f(home->File("here.txt"));
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        QVERIFY(FileExists(home->File("here.txt")));
    }
};

QTEST_GUILESS_MAIN(tst_modGeneral)
#include "tst_modGeneral.moc"
