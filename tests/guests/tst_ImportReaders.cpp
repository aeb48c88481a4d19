// The files people have, byte for byte, and what the import reads from them.
#include "core/clsDB.h"
#include "guests/clsContactImport.h"
#include "guests/clsVCardReader.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray Utf16(const QString& text, bool bigEndian, bool bom) {
    QByteArray bytes;
    if (bom)
        bytes += bigEndian ? QByteArray("\xFE\xFF", 2) : QByteArray("\xFF\xFE", 2);
    for (QChar c : text) {
        const char hi = static_cast<char>(c.unicode() >> 8);
        const char lo = static_cast<char>(c.unicode() & 0xFF);
        bytes.append(bigEndian ? hi : lo).append(bigEndian ? lo : hi);
    }
    return bytes;
}

// The vCard columns of one row: title, first, middle, last, suffix, address, city, state, zip, country,
// nickname, e-mail, phone, phone 2, notes.
QStringList Card(std::initializer_list<const char*> values) {
    QStringList row;
    for (const char* value : values)
        row << QString::fromUtf8(value);
    return row;
}

} // namespace

class tst_ImportReaders : public QObject {
    Q_OBJECT

    QTemporaryDir mDir;

    // A file in a folder and under a name that both hold blanks.
    QString Write(const QByteArray& bytes) {
        QDir().mkpath(mDir.filePath(QStringLiteral("my folder")));
        const QString path = mDir.filePath(QStringLiteral("my folder/my contacts.csv"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    // The table of a file that must be read; a refusal fails the test with its message.
    clsImportTable Read(const QByteArray& bytes, QChar delimiter = QLatin1Char(',')) {
        try {
            return clsContactImport::ReadFile(Write(bytes), delimiter);
        } catch (const clsDbError& e) {
            qWarning("%s", qPrintable(e.Message()));
            return {};
        }
    }

private slots:
    void csvFiles_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QChar>("delimiter");
        QTest::addColumn<QStringList>("headers");
        QTest::addColumn<QStringList>("lastRow");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("lastLine");

        const QStringList fl = {"First", "Last"};
        QTest::newRow("comma, CR LF") << QByteArray("First,Last\r\nAnn,Lee\r\nBo,Li\r\n") << QChar(',') << fl
                                      << QStringList{"Bo", "Li"} << 2 << 3;
        QTest::newRow("semicolon, LF") << QByteArray("First;Last\nAnn;Lee, Jr.\n") << QChar(';') << fl
                                       << QStringList{"Ann", "Lee, Jr."} << 1 << 2;
        QTest::newRow("tab, CR alone") << QByteArray("First\tLast\rAnn\tLee\rBo\tLi") << QChar('\t') << fl
                                       << QStringList{"Bo", "Li"} << 2 << 3;
        QTest::newRow("quotes: delimiter, doubled quote, line breaks")
            << QByteArray("First,Last\r\n\"Ann, \"\"Nan\"\"\",\"Lee\nSmith\r\nJones\"\r\nBo,Li\r\n")
            << QChar(',') << fl << QStringList{"Bo", "Li"} << 2 << 5;
        QTest::newRow("quoted line breaks kept as CR LF")
            << QByteArray("First,Last\n\"Ann\nMarie\",Lee\n") << QChar(',') << fl
            << QStringList{"Ann\r\nMarie", "Lee"} << 1 << 2;
        QTest::newRow("UTF-8 with BOM, any script and emoji")
            << QByteArray("\xEF\xBB\xBF") + QString::fromUtf8("First,Last\nZoë 💍,Ōtsuka 大塚\n").toUtf8()
            << QChar(',') << fl << Card({"Zoë 💍", "Ōtsuka 大塚"}) << 1 << 2;
        QTest::newRow("UTF-8 without BOM") << QString::fromUtf8("First,Last\nJosé,Núñez\n").toUtf8()
                                           << QChar(',') << fl << Card({"José", "Núñez"}) << 1 << 2;
        QTest::newRow("UTF-16 LE with BOM")
            << Utf16(QString::fromUtf8("First,Last\r\nRenée,Ça 😀\r\n"), false, true) << QChar(',') << fl
            << Card({"Renée", "Ça 😀"}) << 1 << 2;
        QTest::newRow("UTF-16 BE with BOM") << Utf16(QString::fromUtf8("First,Last\nÅsa,Öberg\n"), true, true)
                                            << QChar(',') << fl << Card({"Åsa", "Öberg"}) << 1 << 2;
        QTest::newRow("UTF-16 LE without BOM") << Utf16(QStringLiteral("First,Last\nAnn,Lee\n"), false, false)
                                               << QChar(',') << fl << QStringList{"Ann", "Lee"} << 1 << 2;
        QTest::newRow("Windows-1252") << QByteArray("First,Last\nRen\xE9\x92s \x80,M\xFCller\n") << QChar(',')
                                      << fl << Card({"René’s €", "Müller"}) << 1 << 2;
        QTest::newRow("blank and repeated column names")
            << QByteArray("Phone,,phone, Phone \nA,B,C,D\n") << QChar(',')
            << QStringList{"Phone", "Column 2", "phone (2)", "Phone (3)"} << QStringList{"A", "B", "C", "D"}
            << 1 << 2;
        QTest::newRow("short row filled, long row cut")
            << QByteArray("First,Last\nAnn\nBo,Li,extra\n") << QChar(',') << fl << QStringList{"Bo", "Li"}
            << 2 << 3;
        QTest::newRow("empty lines and empty records passed over")
            << QByteArray("\nFirst,Last\n\n,\nAnn,Lee\n,,\n") << QChar(',') << fl << QStringList{"Ann", "Lee"}
            << 1 << 5;
    }
    void csvFiles() {
        QFETCH(QByteArray, bytes);
        QFETCH(QChar, delimiter);
        const clsImportTable table = Read(bytes, delimiter);
        QVERIFY(!table.Rows.isEmpty());
        QTEST(table.Headers, "headers");
        QTEST(table.Rows.last(), "lastRow");
        QTEST(static_cast<int>(table.Rows.size()), "rows");
        QTEST(table.Lines.last(), "lastLine");
    }

    void refused_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty") << QByteArray() << "line 1: the file is empty";
        QTest::newRow("blanks only") << QByteArray(" \r\n\t\n") << "line 1: the file is empty";
        QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16)
                                << "line 3: the file holds binary";
        QTest::newRow("header only") << QByteArray("First,Last\r\n") << "header line but no contacts";
        QTest::newRow("quote never closed") << QByteArray("First,Last\nAnn,Lee\n\"Bo,Li\nCy,Wu\n")
                                            << "line 3: a field opened with a double quote";
        QTest::newRow("row of 100,000 characters")
            << QByteArray("First,Last\nAnn,Lee\nBo,") + QByteArray(100000, 'x') + "\n"
            << "line 3: a row of more";
        QTest::newRow("no known encoding")
            << QByteArray("First,Last\nAnn,Lee\nB\x81o,Li\n") << "line 3: the text is neither UTF-8";
        QTest::newRow("card without END:VCARD")
            << QByteArray("BEGIN:VCARD\nFN:Ann Lee\nEND:VCARD\nBEGIN:VCARD\nFN:Bo Li\n")
            << "line 4: the card that begins here has no END:VCARD";
        QTest::newRow("card cut by the next one")
            << QByteArray("BEGIN:VCARD\nFN:Ann Lee\nBEGIN:VCARD\nFN:Bo Li\nEND:VCARD\n")
            << "line 1: the card that begins here";
        QTest::newRow("unknown character set")
            << QByteArray("BEGIN:VCARD\nVERSION:2.1\nN;CHARSET=X-NOBODY:Lee;Ann\nEND:VCARD\n")
            << "line 3: the character set \"X-NOBODY\" is unknown";
        QTest::newRow("cards without names")
            << QByteArray("BEGIN:VCARD\nTEL:1\nEND:VCARD\n") << "none of the 1 cards holds a name";
    }
    void refused() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const QString path = Write(bytes);
        QString message;
        try {
            clsContactImport::ReadFile(path, QLatin1Char(','));
        } catch (const clsDbError& e) {
            message = e.Message();
        }
        QVERIFY2(message.startsWith(QDir::toNativeSeparators(path) + QStringLiteral(", ")),
                 qPrintable(message));
        QVERIFY2(message.contains(reason), qPrintable(message));
    }

    void aFileOf50MBIsRefusedUnread() {
        const QString path = Write("First,Last\n");
        QFile file(path);
        QVERIFY(file.resize(50LL * 1024 * 1024));
        const QString message = [&] {
            try {
                clsContactImport::ReadFile(path, QLatin1Char(','));
            } catch (const clsDbError& e) {
                return e.Message();
            }
            return QString();
        }();
        QVERIFY2(message.contains(QStringLiteral("line 1: the file is 50 MB")), qPrintable(message));
    }

    void vcards_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("row");

        QTest::newRow("3.0: preferred e-mail, home before cell, home address, escapes")
            << QByteArray("BEGIN:VCARD\r\nVERSION:3.0\r\nN:Lee;Ann;Marie;Dr.;PhD\r\nFN:Dr. Ann Lee\r\n"
                          "NICKNAME:Annie,A\r\nEMAIL;TYPE=work:ann@work.example\r\n"
                          "EMAIL;TYPE=home,pref:ann@home.example\r\nTEL;TYPE=cell:555-0102\r\n"
                          "TEL;TYPE=home,voice:555-0101\r\n"
                          "ADR;TYPE=work:;;1 Office Park;Boston;MA;02101;USA\r\n"
                          "ADR;TYPE=home:;Apt 4;12 Oak St\\, Rear;Salem;MA;01970;USA\r\n"
                          "NOTE:Allergic to nuts\\; loves jazz\\nSecond line\\, too\r\nEND:VCARD\r\n")
            << Card({"Dr.", "Ann", "Marie", "Lee", "PhD", "12 Oak St, Rear\r\nApt 4", "Salem", "MA", "01970",
                     "USA", "Annie", "ann@home.example", "555-0101", "555-0102",
                     "Allergic to nuts; loves jazz\r\nSecond line, too"});
        QTest::newRow("2.1: quoted-printable, soft breaks, Latin-1, bare types")
            << QByteArray(
                   "BEGIN:VCARD\nVERSION:2.1\nN;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE:M=FCller;Ren=\n"
                   "=E9e\nTEL;CELL:+49 170 1\nTEL;WORK;VOICE:+49 30 2\nEMAIL;INTERNET:r@x.example\n"
                   "EMAIL;PREF;INTERNET:rene@x.example\n"
                   "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:Gr=C3=BC=C3=9Fe=0D=0Aaus Berlin\n"
                   "END:VCARD\n")
            << Card({"", "Renée", "", "Müller", "", "", "", "", "", "", "", "rene@x.example", "+49 170 1",
                     "+49 30 2", "Grüße\r\naus Berlin"});
        QTest::newRow("4.0: folded lines, grouped address, uri telephone, PREF=1")
            << QByteArray(
                   "BEGIN:VCARD\r\nVERSION:4.0\r\nN:Nakamura;Yui;;;\r\nEMAIL:a@x.example\r\n"
                   "EMAIL;PREF=1:yui@x.exa\r\n mple\r\nTEL;VALUE=uri;TYPE=home:tel:+81-3-1234\r\n"
                   "item1.ADR:;;1-2-3 Gin\r\n\tza;Chuo;Tokyo;104-0061;Japan\r\nitem1.X-ABLabel:other\r\n"
                   "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRgABAQ\r\n AAAQABAAD\r\nX-UNKNOWN;A=B:C\r\n"
                   "END:VCARD\r\n")
            << Card({"", "Yui", "", "Nakamura", "", "1-2-3 Ginza", "Chuo", "Tokyo", "104-0061", "Japan", "",
                     "yui@x.example", "+81-3-1234", "", ""});
        QTest::newRow("Shift_JIS in quoted-printable")
            << QByteArray(
                   "BEGIN:VCARD\nVERSION:2.1\nN;CHARSET=SHIFT_JIS;ENCODING=QUOTED-PRINTABLE:=8E=52=93=63;"
                   "=91=BE=98=59\nEND:VCARD\n")
            << Card({"", "太郎", "", "山田", "", "", "", "", "", "", "", "", "", "", ""});
        QTest::newRow("no N: the full name is cut into its parts")
            << QByteArray("BEGIN:VCARD\nVERSION:3.0\nFN:Dr. Jane Quinn Public Jr.\nEND:VCARD\n")
            << Card({"Dr.", "Jane", "Quinn", "Public", "Jr.", "", "", "", "", "", "", "", "", "", ""});
        QTest::newRow("Windows-1252 without a character set, work address when no home")
            << QByteArray("BEGIN:VCARD\nN:Dupr\xE9;Zo\xEB\nADR;WORK:;;5 Rue d\x92Or;Paris;;75001;France\n"
                          "ADR:;;elsewhere;;;;\nEND:VCARD\n")
            << Card({"", "Zoë", "", "Dupré", "", "5 Rue d’Or", "Paris", "", "75001", "France", "", "", "", "",
                     ""});
        QTest::newRow("UTF-16 file, a card without a name passed over")
            << Utf16(QString::fromUtf8("BEGIN:VCARD\r\nTEL:1\r\nEND:VCARD\r\nBEGIN:VCARD\r\nVERSION:3.0\r\n"
                                       "N:O'Brien;Seán \"Jack\";;;\r\nEND:VCARD\r\n"),
                     false, true)
            << Card({"", "Seán \"Jack\"", "", "O'Brien", "", "", "", "", "", "", "", "", "", "", ""});
    }
    void vcards() {
        QFETCH(QByteArray, bytes);
        const clsImportTable table = Read(bytes);
        QCOMPARE(table.Headers, clsVCardReader::Headers());
        QCOMPARE(table.Rows.size(), 1);
        QTEST(table.Rows.first(), "row");
    }

    void severalCardsKeepTheirLines() {
        const clsImportTable table = Read("\xEF\xBB\xBF"
                                          "BEGIN:VCARD\nN:A;B\nEND:VCARD\n\nbegin:vcard\nn:C;D\nend:"
                                          "vcard\nBEGIN:VCARD\nFN:E F\nEND:VCARD\n");
        QCOMPARE(table.Rows.size(), 3);
        QCOMPARE(table.Lines, (QList<int>{1, 5, 8}));
        QCOMPARE(table.Rows.at(1).at(1), QStringLiteral("D"));
    }
};

QTEST_GUILESS_MAIN(tst_ImportReaders)
#include "tst_ImportReaders.moc"
