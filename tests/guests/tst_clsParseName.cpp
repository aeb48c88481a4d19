#include "guests/clsParseName.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

// Every part in order, with blanks and commas dropped: what the parser may move around or remove.
QString Letters(const QString& text) {
    QString out = text;
    out.remove(QLatin1Char(' '));
    out.remove(QLatin1Char(','));
    return out;
}

QString Parts(const clsParseName& name) {
    return name.TITLE_TX + name.FIRST_NM + name.MIDDLE_NM + name.LAST_NM + name.SUFFIX_TX;
}

qsizetype CodePoints(const QString& text) {
    return text.toUcs4().size();
}

} // namespace

class tst_clsParseName : public QObject {
    Q_OBJECT

private slots:
    void parse_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("titles");
        QTest::addColumn<QString>("parts"); // title|first|middle|last|suffix
        QTest::addColumn<bool>("unclear");

        // Plain names and middle names.
        QTest::newRow("first last") << "John Smith" << true << "|John||Smith|" << false;
        QTest::newRow("initial") << "John Q. Public" << true << "|John|Q.|Public|" << false;
        QTest::newRow("initial, no last") << "John Q." << true << "|John|Q.||" << false;
        QTest::newRow("one word is a first name") << "Dana" << true << "|Dana|||" << true;
        QTest::newRow("more words go to the last name")
            << "Mary Ann St. James" << true << "|Mary|Ann|St. James|" << false;
        QTest::newRow("hyphen and apostrophe")
            << "Zoë O'Brien-Łukasik" << true << "|Zoë||O'Brien-Łukasik|" << false;
        QTest::newRow("nickname in quotes")
            << "John \"Jack\" Kennedy" << true << "|John|\"Jack\"|Kennedy|" << false;

        // Titles: only the first word, from a fixed list, as typed.
        QTest::newRow("Dr.") << "Dr. Ann Lee" << true << "Dr.|Ann||Lee|" << false;
        QTest::newRow("dr. lower case") << "dr. ann lee" << true << "dr.|ann||lee|" << false;
        QTest::newRow("Rev.") << "Rev. Martin Luther King Jr." << true << "Rev.|Martin|Luther|King|Jr."
                              << false;
        QTest::newRow("Mrs without period") << "Mrs Jane Eyre" << true << "Mrs|Jane||Eyre|" << false;
        QTest::newRow("Sr. first is a title, last a suffix")
            << "Sr. Jose Garcia Sr." << true << "Sr.|Jose||Garcia|Sr." << false;
        QTest::newRow("Sr. alone is a suffix") << "Sr." << true << "||||Sr." << true;
        QTest::newRow("Herr is no title") << "Herr Karl Müller" << true << "|Herr|Karl|Müller|" << false;
        QTest::newRow("title only at the front") << "Ann Dr. Lee" << true << "|Ann|Dr.|Lee|" << false;
        QTest::newRow("title and one word: a last name") << "Mr. Smith" << true << "Mr.|||Smith|" << false;
        QTest::newRow("titles off, Dr. Ann Lee") << "Dr. Ann Lee" << false << "|Dr.|Ann|Lee|" << false;
        QTest::newRow("no couples") << "Mr. and Mrs. John Smith" << true << "Mr.|and|Mrs.|John Smith|"
                                    << false;

        // Suffixes: only the last word.
        QTest::newRow("Jr.") << "John Smith Jr." << true << "|John||Smith|Jr." << false;
        QTest::newRow("comma before Jr.") << "John Smith, Jr." << true << "|John||Smith|Jr." << false;
        QTest::newRow("blank before the comma") << "John Smith , Jr." << true << "|John||Smith|Jr." << false;
        QTest::newRow("III") << "John Smith III" << true << "|John||Smith|III" << false;
        QTest::newRow("junior lower case") << "John Smith junior" << true << "|John||Smith|junior" << false;
        QTest::newRow("VIII") << "Henry Tudor VIII" << true << "|Henry||Tudor|VIII" << false;
        QTest::newRow("IX is no suffix") << "Louis Capet IX" << true << "|Louis|Capet|IX|" << false;
        QTest::newRow("suffix not last") << "John Jr. Smith" << true << "|John|Jr.|Smith|" << false;
        QTest::newRow("first and suffix") << "John Jr." << true << "|||John|Jr." << false;

        // Particles directly after the first name open the last name.
        QTest::newRow("van") << "Peter van Dyke" << true << "|Peter||van Dyke|" << false;
        QTest::newRow("Van") << "Vincent Van Gogh" << true << "|Vincent||Van Gogh|" << false;
        QTest::newRow("van der") << "Johannes van der Berg" << true << "|Johannes||van der Berg|" << false;
        QTest::newRow("De with title and suffix")
            << "Sr. Juan De La Cruz Jr." << true << "Sr.|Juan||De La Cruz|Jr." << false;
        QTest::newRow("da is no particle") << "Leonardo da Vinci" << true << "|Leonardo|da|Vinci|" << false;
        QTest::newRow("particle after a middle name")
            << "Peter Paul van Dyke" << true << "|Peter|Paul|van Dyke|" << false;
        QTest::newRow("repeated particle kept whole")
            << "Anna de de Cruz" << true << "|Anna||de de Cruz|" << false;

        // Blanks and commas.
        QTest::newRow("runs of blanks") << "Jan  Van   Hoof" << true << "|Jan||Van Hoof|" << false;
        QTest::newRow("three blanks leave an empty word")
            << "John   Smith" << true << "|John|Smith||" << false;
        QTest::newRow("five blanks collapse") << "John     Smith" << true << "|John||Smith|" << false;
        QTest::newRow("outer blanks") << "  John Smith  " << true << "|John||Smith|" << false;
        QTest::newRow("no reversal") << "Smith, John" << true << "|Smith,||John|" << false;
        QTest::newRow("commas leave the last name") << "Ann Lee,,Kim" << true << "|Ann||LeeKim|" << false;

        // Other scripts, symbols and punctuation, kept as typed.
        QTest::newRow("CJK") << "王 小明" << true << "|王||小明|" << false;
        QTest::newRow("emoji") << "Ana 🎉 Lopez" << true << "|Ana|🎉|Lopez|" << false;
        QTest::newRow("only punctuation") << "..." << true << "|...|||" << true;
        QTest::newRow("commas only") << ", , ," << true << "|,,,|||" << true;
        QTest::newRow("tab is no blank") << "Ann\tLee" << true << "|Ann\tLee|||" << true;

        // Nothing to parse.
        QTest::newRow("empty") << "" << true << "||||" << true;
        QTest::newRow("title alone") << "Mr." << true << "Mr.||||" << true;
    }
    void parse() {
        QFETCH(QString, name);
        QFETCH(bool, titles);
        clsParseName parsed;
        parsed.ParseFullName(name, titles);
        const QStringList parts{parsed.TITLE_TX, parsed.FIRST_NM, parsed.MIDDLE_NM, parsed.LAST_NM,
                                parsed.SUFFIX_TX};
        QTEST(parts.join(QLatin1Char('|')), "parts");
        QTEST(parsed.NameUnclear(), "unclear");
    }

    void wordsAreCutToFiftyCharacters_data() {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("kept");
        const QString letters = QString(60, QLatin1Char('x'));
        QTest::newRow("60 letters") << letters << letters.left(50);
        QTest::newRow("50 letters stay") << letters.left(50) << letters.left(50);
        QString emoji;
        for (int i = 0; i < 60; ++i)
            emoji += QStringLiteral("😀");
        QTest::newRow("60 emoji, none cut in half") << emoji << emoji.left(100);
        QTest::newRow("10 000 characters") << QString(10000, QChar(0x00E9)) << QString(50, QChar(0x00E9));
    }
    void wordsAreCutToFiftyCharacters() {
        QFETCH(QString, word);
        QFETCH(QString, kept);
        clsParseName parsed;
        parsed.ParseFullName(QStringLiteral("Ann ") + word + QStringLiteral(" Lee"), true);
        QCOMPARE(parsed.MIDDLE_NM, kept);
        QVERIFY(QStringView(parsed.MIDDLE_NM).isValidUtf16());
        parsed = clsParseName();
        parsed.ParseFullName(word, true);
        QCOMPARE(parsed.FIRST_NM, kept);
    }

    void longNameOfManyWords() {
        QString name;
        for (int i = 0; i < 5000; ++i)
            name += QStringLiteral("a ");
        clsParseName parsed;
        parsed.ParseFullName(name, true);
        QCOMPARE(parsed.FIRST_NM, QStringLiteral("a"));
        QCOMPARE(parsed.MIDDLE_NM, QStringLiteral("a"));
        QCOMPARE(parsed.LAST_NM.count(QLatin1Char('a')), 4998);
        QCOMPARE(parsed.LAST_NM.size(), 4998 * 2 - 1);
    }

    void blankNameChangesNothing_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("empty") << "";
        QTest::newRow("one blank") << " ";
        QTest::newRow("many blanks") << QString(10000, QLatin1Char(' '));
    }
    void blankNameChangesNothing() {
        QFETCH(QString, name);
        clsParseName parsed;
        parsed.TITLE_TX = "Dr.";
        parsed.FIRST_NM = "Ann";
        parsed.LAST_NM = "Lee";
        parsed.ParseFullName(name, false);
        QCOMPARE(parsed.ParseTitle, true);
        QCOMPARE(parsed.TITLE_TX, QStringLiteral("Dr."));
        QCOMPARE(parsed.FIRST_NM, QStringLiteral("Ann"));
        QCOMPARE(parsed.MIDDLE_NM, QString());
        QCOMPARE(parsed.LAST_NM, QStringLiteral("Lee"));
        QCOMPARE(parsed.SUFFIX_TX, QString());
    }

    void parseSetsTheTitleFlag() {
        clsParseName parsed;
        QVERIFY(parsed.ParseTitle);
        parsed.ParseFullName(QStringLiteral("Dr. Ann Lee"), false);
        QVERIFY(!parsed.ParseTitle);
    }

    void nameUnclearOnPartsSetByHand_data() {
        QTest::addColumn<QString>("parts"); // title|first|middle|last|suffix
        QTest::addColumn<bool>("unclear");
        QTest::newRow("nothing") << "||||" << true;
        QTest::newRow("title does not count") << "Dr.||||" << true;
        QTest::newRow("blanks only") << "|  | ||   " << true;
        QTest::newRow("first only") << "Dr.|Ann|||" << true;
        QTest::newRow("first and blank last") << "|Ann||  |" << true;
        QTest::newRow("suffix only") << "||||Jr." << true;
        QTest::newRow("first and suffix") << "|Ann|||Jr." << false;
        QTest::newRow("first and middle") << "|Ann|B.||" << false;
        QTest::newRow("last only") << "|||Lee|" << false;
        QTest::newRow("middle only") << "||B.||" << false;
        QTest::newRow("last and suffix") << "|||Lee|III" << false;
    }
    void nameUnclearOnPartsSetByHand() {
        QFETCH(QString, parts);
        const QStringList part = parts.split(QLatin1Char('|'));
        clsParseName parsed;
        parsed.TITLE_TX = part[0];
        parsed.FIRST_NM = part[1];
        parsed.MIDDLE_NM = part[2];
        parsed.LAST_NM = part[3];
        parsed.SUFFIX_TX = part[4];
        QTEST(parsed.NameUnclear(), "unclear");
    }

    // Whatever is typed, every character ends up in one of the parts, in the order typed, and no
    // part holds half a character.
    void noCharacterIsLost() {
        const QStringList pool = {
            "Dr.",  "Mr",       "sr.",    "Jr.", "III",     "de",  "Van",    "von", "la",
            "John", "Q.",       "Smith,", ",",   ".",       "",    "",       "Zoë", "王",
            "🎉",    "\"Jack\"", "\\",     "a'b", "Ann-Lee", "x,y", "JUNIOR", "Ms.", "de,",
        };
        QRandomGenerator random(20270605);
        for (int round = 0; round < 3000; ++round) {
            const int words = random.bounded(1, 9);
            QString name;
            for (int i = 0; i < words; ++i) {
                if (i > 0)
                    name += QString(random.bounded(1, 4), QLatin1Char(' '));
                name += pool.at(random.bounded(int(pool.size())));
            }
            clsParseName parsed;
            parsed.ParseFullName(name, random.bounded(2) == 1);
            const QString parts = Parts(parsed);
            QVERIFY2(Letters(parts) == Letters(name), qPrintable(name));
            QVERIFY2(QStringView(parts).isValidUtf16(), qPrintable(name));
            for (const QString& part : {parsed.TITLE_TX, parsed.FIRST_NM, parsed.MIDDLE_NM, parsed.SUFFIX_TX})
                QVERIFY(CodePoints(part) <= clsParseName::kMaxWordLength);
        }
    }
};

QTEST_GUILESS_MAIN(tst_clsParseName)
#include "tst_clsParseName.moc"
