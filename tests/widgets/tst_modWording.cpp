#include "TestDatabase.h"
#include "widgets/modWording.h"

#include <QtTest>

// The invitation wording: the date in words and the templates' lines, with and without the parents.
class tst_modWording : public QObject {
    Q_OBJECT

    static clsCONTACT Person(const char* title, const char* first, const char* middle, const char* last,
                             const char* id = "") {
        clsCONTACT c;
        c.CONTACT_ID = QString::fromLatin1(id);
        c.TITLE_TX = QString::fromLatin1(title);
        c.FIRST_NM = QString::fromLatin1(first);
        c.MIDDLE_NM = QString::fromLatin1(middle);
        c.LAST_NM = QString::fromLatin1(last);
        return c;
    }
    // The couple alone, or with the bride's parents, the groom's father and the mother's new husband.
    static modWording::People Family(bool parents) {
        modWording::People p;
        p.Bride = Person("Miss", "Emily", "Rose", "Carter", "1");
        p.Groom = Person("Mr.", "Daniel", "James", "Whitaker", "2");
        if (parents) {
            p.BrideFather = Person("Mr.", "Robert", "", "Carter", "3");
            p.BrideMother = Person("Mrs.", "Linda", "", "Hall", "4");
            p.GroomFather = Person("Dr.", "Paul", "", "Whitaker", "5");
            p.NewHusband = Person("Mr.", "Tom", "", "Hall", "9");
        }
        return p;
    }
    // Saturday, 14 June 2008, 2:30 PM.
    static QDateTime Wedding() { return {QDate(2008, 6, 14), QTime(14, 30)}; }

private slots:
    void dayWords_data() {
        QTest::addColumn<int>("day");
        QTest::addColumn<QString>("word");
        const QStringList words = {"first",        "second",        "third",          "fourth",
                                   "fifth",        "sixth",         "seventh",        "eighth",
                                   "ninth",        "tenth",         "eleventh",       "twelfth",
                                   "thirteenth",   "fourteenth",    "fifteenth",      "sixteenth",
                                   "seventeenth",  "eighteenth",    "nineteenth",     "twentieth",
                                   "twenty-first", "twenty-second", "twenty-third",   "twenty-fourth",
                                   "twenty-fifth", "twenty-sixth",  "twenty-seventh", "twenty-eighth",
                                   "twenty-ninth", "thirtieth",     "thirty-first"};
        for (int day = 1; day <= 31; ++day)
            QTest::addRow("%d", day) << day << words.at(day - 1);
        QTest::newRow("0") << 0 << QString();
        QTest::newRow("32") << 32 << QString();
    }
    void dayWords() {
        QFETCH(int, day);
        QFETCH(QString, word);
        QCOMPARE(modWording::DayWord(day), word);
    }

    void years_data() {
        QTest::addColumn<int>("year");
        QTest::addColumn<QString>("line");
        QTest::newRow("2000") << 2000 << "Two thousand";
        QTest::newRow("2001") << 2001 << "Two thousand and one";
        QTest::newRow("2008") << 2008 << "Two thousand and eight";
        QTest::newRow("2020") << 2020 << "Two thousand and twenty";
        QTest::newRow("2027") << 2027 << "Two thousand and twenty-seven";
        QTest::newRow("2040") << 2040 << "Two thousand and forty";
        QTest::newRow("2099") << 2099 << "Two thousand and ninety-nine";
        QTest::newRow("1999") << 1999 << "Two thousand and [enter appropriate date]";
        QTest::newRow("2100") << 2100 << "Two thousand and [enter appropriate date]";
    }
    void years() {
        QFETCH(int, year);
        QFETCH(QString, line);
        QCOMPARE(modWording::YearLine(year), line);
    }

    void times_data() {
        QTest::addColumn<QTime>("time");
        QTest::addColumn<QString>("line");
        QTest::newRow("12:00 PM") << QTime(12, 0) << "at twelve o'clock in the afternoon";
        QTest::newRow("12:30 AM") << QTime(0, 30) << "at half past twelve in the morning";
        QTest::newRow("10:30 AM") << QTime(10, 30) << "at half past ten in the morning";
        QTest::newRow("2:30 PM") << QTime(14, 30) << "at half past two in the afternoon";
        QTest::newRow("6:00 PM") << QTime(18, 0) << "at six o'clock in the evening";
        QTest::newRow("6:15 PM") << QTime(18, 15) << "at a quarter past six in the evening";
        QTest::newRow("6:45 PM") << QTime(18, 45) << "at a quarter to seven in the evening";
        QTest::newRow("4:45 PM") << QTime(16, 45) << "at a quarter to five in the afternoon";
        QTest::newRow("11:45 PM") << QTime(23, 45) << "at a quarter to twelve in the evening";
        QTest::newRow("11:45 AM") << QTime(11, 45) << "at a quarter to twelve in the morning";
        QTest::newRow("12:45 PM") << QTime(12, 45) << "at a quarter to one in the afternoon";
        QTest::newRow("7:10 PM") << QTime(19, 10) << "at ten minutes past seven in the evening";
        QTest::newRow("5:01 PM") << QTime(17, 1) << "at one minute past five in the evening";
        QTest::newRow("4:59 PM") << QTime(16, 59) << "at fifty-nine minutes past four in the afternoon";
    }
    void times() {
        QFETCH(QTime, time);
        QFETCH(QString, line);
        QCOMPARE(modWording::TimeLine(time), line);
    }

    void dateLinesNameWeekdayAndMonth_data() {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("first");
        QTest::newRow("Saturday") << QDate(2008, 6, 14) << "Saturday the fourteenth of June";
        QTest::newRow("Sunday") << QDate(2027, 10, 31) << "Sunday the thirty-first of October";
        QTest::newRow("leap day") << QDate(2028, 2, 29) << "Tuesday the twenty-ninth of February";
    }
    void dateLinesNameWeekdayAndMonth() {
        QFETCH(QDate, date);
        QFETCH(QString, first);
        const QStringList lines = modWording::DateLines(QDateTime(date, QTime(18, 0)));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(0), first);
        QCOMPARE(lines.at(1), modWording::YearLine(date.year()));
    }

    // Each template's body between the empty first line and the date, with the phrase 0.
    void templates_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("parents");
        QTest::addColumn<QString>("body");
        const char* honour = "request the honour of your presence";
        const auto row = [&](int index, bool parents, QStringList body) {
            body.replaceInStrings(QStringLiteral("{P}"), QString::fromLatin1(honour));
            QTest::addRow("%d %s", index, parents ? "parents" : "no parents")
                << index << parents << body.join('|');
        };
        row(0, true,
            {"Miss Emily Rose Carter", "and", "Mr. Daniel James Whitaker", "{P}", "at their marriage"});
        row(1, true, {"Emily Rose Carter", "and", "Daniel James Whitaker", "{P}", "at their marriage"});
        row(2, true,
            {"[Children's Names]", "{P}", "at the marriage of their parents", "Emily Rose Carter", "and",
             "Mr. Daniel James Whitaker"});
        row(3, true,
            {"The children of", "Emily Rose Carter", "and", "Mr. Daniel James Whitaker", "{P}",
             "at the marriage of their parents"});
        row(4, true,
            {"[Bride's children's names]", "{P}", "at the marriage of their mother", "Emily Rose Carter",
             "to", "Mr. Daniel James Whitaker"});
        row(5, true,
            {"[Groom's children's names]", "{P}", "at the marriage of", "Emily Rose Carter",
             "to their father", "Daniel James Whitaker"});
        row(6, true,
            {"Mr. and Mrs. Tom Hall", "and", "Mr. and Mrs. Robert Carter", "{P}",
             "at the marriage of their daughter", "Emily Rose Carter", "to", "Mr. Daniel James Whitaker"});
        row(7, true,
            {"Mrs. Tom Hall", "and", "Mr. Robert Carter", "{P}", "at the marriage of their daughter",
             "Emily Rose Carter", "to", "Mr. Daniel James Whitaker"});
        row(8, true,
            {"Mrs. Linda Hall", "and", "Mr. Robert Carter", "{P}", "at the marriage of their daughter",
             "Emily Rose Carter", "to", "Mr. Daniel James Whitaker"});
        row(9, true,
            {"Mr. and Mrs. Robert Carter", "{P}", "at the marriage of their daughter", "Emily Rose", "to",
             "[Rank] Daniel James Whitaker"});
        row(10, true,
            {"Mr. and Mrs. Robert Carter", "{P}", "at the marriage of their daughter", "Emily Rose", "to",
             "Mr. Daniel James Whitaker"});
        row(11, true,
            {"Mr. and Mrs. Robert Carter", "{P}", "at the marriage of their daughter", "Emily Rose", "to",
             "Mr. Daniel James Whitaker", "the son of", "Mr. and Mrs. Paul Whitaker"});
        row(12, true,
            {"Mr. and Mrs. Robert Carter", "{P}", "at the Nuptial Mass uniting their daughter", "Emily Rose",
             "to", "Mr. Daniel James Whitaker"});
        row(13, true,
            {"Mr. and Mrs. Robert Carter", "and", "Mr. and Mrs. Paul Whitaker", "{P}",
             "at the marriage of their children", "Emily Rose", "to", "Daniel James"});
        row(14, true,
            {"Mr. and Mrs. Paul Whitaker", "{P}", "at the marriage of", "Emily Rose Carter", "to their son",
             "Daniel James"});
        row(15, true,
            {"Together with their parents", "Miss Emily Rose Carter", "and", "Mr. Daniel James Whitaker",
             "{P}", "at their marriage"});
        row(16, true,
            {"Mrs. Tom Hall", "{P}", "at the marriage of her daughter", "Emily Rose Carter", "to",
             "Mr. Daniel James Whitaker"});
        row(17, true,
            {"Mrs. Bride's Father's First Name, Middle Name, Last Name", "{P}",
             "at the marriage of her daughter", "Emily Rose", "to", "Mr. Daniel James Whitaker"});
        row(18, true,
            {"Mr. Robert Carter", "{P}", "at the marriage of his daughter", "Emily Rose", "to",
             "Mr. Daniel James Whitaker"});
        // Without the parents their names are empty and the new husband's lines read the placeholder.
        const char* noHusband = "Mrs. Bride's Mother's Husband's First, Middle, Last Name";
        row(6, false,
            {noHusband, "and", "Mr. and Mrs.  ", "{P}", "at the marriage of their daughter",
             "Emily Rose Carter", "to", "Mr. Daniel James Whitaker"});
        row(7, false,
            {noHusband, "and", "", "{P}", "at the marriage of their daughter", "Emily Rose Carter", "to",
             "Mr. Daniel James Whitaker"});
        row(11, false,
            {"Mr. and Mrs.  ", "{P}", "at the marriage of their daughter", "Emily Rose", "to",
             "Mr. Daniel James Whitaker", "the son of", "Mr. and Mrs.  "});
        row(16, false,
            {noHusband, "{P}", "at the marriage of her daughter", "Emily Rose Carter", "to",
             "Mr. Daniel James Whitaker"});
        row(17, false,
            {"Mrs. Bride's Father's First Name, Middle Name, Last Name", "{P}",
             "at the marriage of her daughter", "Emily Rose", "to", "Mr. Daniel James Whitaker"});
    }
    void templates() {
        QFETCH(int, index);
        QFETCH(bool, parents);
        QFETCH(QString, body);
        modWording::Choices choices;
        choices.Template = index;
        const QStringList lines = modWording::Lines(choices, Family(parents), Wedding());
        QCOMPARE(lines.first(), QString());
        const qsizetype date = lines.indexOf(QStringLiteral("Saturday the fourteenth of June"));
        QVERIFY(date > 0);
        QCOMPARE(lines.mid(1, date - 1).join('|'), body);
        QCOMPARE(modWording::TemplateNames().size(), modWording::kTemplateCount);
    }

    // The tail of every template: the date, then the place, then the reception when it is asked for.
    void placeAndReception_data() {
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("reception");
        QTest::addColumn<QString>("tail");
        const QString date =
            "Saturday the fourteenth of June|Two thousand and eight|at half past two in the afternoon|";
        QTest::newRow("defaults")
            << modWording::Choices::DefaultPlace() << true
            << date + "[House of Worship]/[Facility name]|[City, State]||Reception to follow|"
                      "[Reception site]|[City, State]";
        QTest::newRow("no reception") << "St. Mary's\nSalem" << false << date + "St. Mary's|Salem";
        QTest::newRow("empty place") << "" << false
                                     << date + "[House of Worship]/[Facility Name]|[City], [State]";
        QTest::newRow("quotes and script")
            << "\"Ōtani\" & <Hall>\r\n東京" << false << date + "\"Ōtani\" & <Hall>|東京";
    }
    void placeAndReception() {
        QFETCH(QString, place);
        QFETCH(bool, reception);
        QFETCH(QString, tail);
        modWording::Choices choices;
        choices.Template = 0;
        choices.Place = place;
        choices.Reception = reception;
        const QStringList lines = modWording::Lines(choices, Family(true), Wedding());
        QCOMPARE(lines.mid(6).join('|'), tail);
    }

    void templateOutsideTheListGivesNothing() {
        modWording::Choices choices;
        for (int index : {-1, modWording::kTemplateCount}) {
            choices.Template = index;
            QVERIFY(modWording::Lines(choices, Family(true), Wedding()).isEmpty());
        }
    }

    // The choices come back as kept, and a reception place kept empty reads as its default.
    void choicesAreKeptBelowThePage() {
        TestHome home;
        modWording::Choices defaults = modWording::Choices::Load();
        QCOMPARE(defaults.Template, 11);
        QVERIFY(defaults.Reception);
        modWording::Choices changed;
        changed.Template = 3;
        changed.Phrase = 1;
        changed.Place = "Chapel\r\nSalem";
        changed.Reception = false;
        changed.ReceptionPlace = "";
        changed.RemarriedTo(4) = "12";
        changed.Save();
        const modWording::Choices read = modWording::Choices::Load();
        QCOMPARE(read.Template, 3);
        QCOMPARE(read.Phrase, 1);
        QCOMPARE(read.Place, changed.Place);
        QVERIFY(!read.Reception);
        QCOMPARE(read.ReceptionPlace, modWording::Choices::DefaultReceptionPlace());
        QCOMPARE(read.RemarriedTo(4), QStringLiteral("12"));
        QCOMPARE(gRegistry().GetSetting(modWording::SettingsKey(), "linkre_4", ""), QStringLiteral("12"));
    }

    // The parents are found by their roles, the new husband by the contact chosen for the mother.
    void peopleAreReadByRole() {
        TestDatabase db;
        TestDatabase::Exec(
            "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, LAST_NM, ROLE_ID, SORT_ORDER_NB) "
            "VALUES (7, 'Mr.', 'Robert', 'Carter', 3, 1), (8, 'Mr.', 'Tom', 'Hall', 18, 1)");
        modWording::Choices choices;
        choices.RemarriedTo(4) = "8";
        const modWording::People people = modWording::People::Open(choices);
        QCOMPARE(people.BrideFather.CONTACT_ID, QStringLiteral("7"));
        QVERIFY(people.BrideMother.CONTACT_ID.isEmpty());
        QCOMPARE(people.NewHusband.FirstMiddleLast(), QStringLiteral("Tom Hall"));
        choices.Template = 16;
        QCOMPARE(modWording::Lines(choices, people, Wedding()).at(1), QStringLiteral("Mrs. Tom Hall"));
    }
};

QTEST_GUILESS_MAIN(tst_modWording)
#include "tst_modWording.moc"
