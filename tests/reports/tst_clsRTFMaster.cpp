#include "TestHome.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "platform/clsShell.h"
#include "reports/RtfMarkup.h"
#include "reports/RtfTestTools.h"
#include "reports/TextFile.h"
#include "core/clsColor.h"
#include "reports/clsRTFMaster.h"
#include "reports/clsRTFMasterTemp.h"

#include <QDir>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QtTest>
#include <algorithm>
#include <memory>

Q_DECLARE_METATYPE(RtfMarkup)

using namespace RtfTestTools;

namespace {

// "\b \i x" written as the file has it: RTF control words are easier to read in tests with single
// backslashes, so the expectations use raw strings.
QString R(const char* raw) {
    return QString::fromUtf8(raw);
}

bool IsSevenBit(const QByteArray& bytes) {
    for (const char b : bytes) {
        if (static_cast<unsigned char>(b) > 0x7F)
            return false;
    }
    return true;
}

// The lines that one PrintCells wrote: from "\trowd" up to the "\pard" after "\intbl\row".
QStringList RowLines(const QStringList& lines, int rowNumber) {
    int found = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!lines.at(i).startsWith(QLatin1String("\\trowd")))
            continue;
        if (++found < rowNumber)
            continue;
        QStringList row;
        for (qsizetype j = i; j < lines.size(); ++j) {
            row << lines.at(j);
            if (lines.at(j) == QLatin1String("\\intbl\\row")) {
                for (qsizetype k = j + 1; k < lines.size(); ++k) {
                    if (!lines.at(k).isEmpty()) {
                        row << lines.at(k);
                        break;
                    }
                }
                break;
            }
        }
        row.removeAll(QString()); // blank lines between the pieces are white space only
        return row;
    }
    return {};
}

} // namespace

class tst_clsRTFMaster : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;

    // A writer on the test's own settings, with the report's usual start.
    std::unique_ptr<clsRTFMaster> NewWriter(const clsRTFMasterTemp& settings, const QString& name = "Test") {
        auto rtf = std::make_unique<clsRTFMaster>(settings);
        rtf->SetGlobalSettings();
        rtf->FILE_NAME = name;
        return rtf;
    }
    clsRTFMasterTemp plainRtf;

private slots:
    void init() {
        home = std::make_unique<TestHome>();
        plainRtf = clsRTFMasterTemp();
        SetNowForTesting(QDateTime(QDate(2027, 6, 5), QTime(15, 5)));
    }
    void cleanup() {
        SetNowForTesting({});
        gShell().SetOpener({});
        home.reset();
    }

    // ---- Text and markup --------------------------------------------------------------------------

    void userTextIsEscaped_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("rtf");
        QTest::newRow("plain ASCII") << "Smith & Sons, 10% off!"
                                     << "Smith & Sons, 10% off!";
        QTest::newRow("backslash path") << R(R"(C:\temp\new)") << R(R"(C:\\temp\\new)");
        QTest::newRow("braces") << "{Jr.}" << R(R"(\{Jr.\})");
        QTest::newRow("looks like markup") << R(R"(\b bold\b0)") << R(R"(\\b bold\\b0)");
        QTest::newRow("quotes stay") << "O'Brien \"Bud\""
                                     << "O'Brien \"Bud\"";
        QTest::newRow("accent in Windows-1252") << "Zoë" << R(R"(Zo\u235\'eb)");
        QTest::newRow("euro from the 0x80 block") << "5 €" << R(R"(5 \u8364\'80)");
        QTest::newRow("curly quotes") << "“hi”" << R(R"(\u8220\'93hi\u8221\'94)");
        QTest::newRow("Polish L has no byte") << "Łukasik" << R(R"(\u321\'3fukasik)");
        QTest::newRow("CJK") << "婚礼" << R(R"(\u23130\'3f\u31036\'3f)");
        QTest::newRow("above 32767 is negative") << "한" << R(R"(\u-10916\'3f)");
        QTest::newRow("emoji is a surrogate pair") << "😂" << R(R"(\u-10179\'3f\u-8702\'3f)");
        QTest::newRow("half a pair is replaced") << QString(QChar(0xD83D)) + "x" << R(R"(\u-3\'3fx)");
        QTest::newRow("CR LF is a line break") << "a\r\nb" << R(R"(a \par b)");
        QTest::newRow("lone LF and CR too") << "a\nb\rc" << R(R"(a \par b \par c)");
        QTest::newRow("tab") << "a\tb" << R(R"(a\tab b)");
        QTest::newRow("control characters vanish")
            << QString("a") + QChar(7) + QChar(0x7F) + QChar(0x85) + "b"
            << "ab";
        QTest::newRow("non-breaking space") << QString(QChar(0xA0)) << R(R"(\u160\'a0)");
    }
    void userTextIsEscaped() {
        QFETCH(QString, text);
        QFETCH(QString, rtf);
        const RtfMarkup markup(text);
        QCOMPARE(markup.Rtf(), rtf);
        QCOMPARE(markup.Plain(), text);
        QVERIFY(IsSevenBit(markup.Rtf().toUtf8()));
    }

    void anyTextReadsBackAsTyped() {
        // Random text from every kind of character a user might type reads back unchanged, and never
        // opens or closes a group.
        const QStringList pool = {"a",  "Z",  "0",        " ",     "\\",    "{",       "}", ";",
                                  "'",  "\"", "\t",       "ë",     "Ł",     "€",       "Ω", "婚",
                                  "한", "😂",  "👰🏽", "\\par", "\\'e9", "\\u233?", "-", "1"};
        QRandomGenerator random(20270605);
        for (int round = 0; round < 500; ++round) {
            QString text;
            const int length = static_cast<int>(random.bounded(12));
            for (int i = 0; i < length; ++i)
                text += pool.at(static_cast<int>(random.bounded(static_cast<int>(pool.size()))));
            const RtfMarkup markup(text);
            QVERIFY2(IsSevenBit(markup.Rtf().toUtf8()), qPrintable(markup.Rtf()));
            const DecodedRtf decoded = DecodeRtf(markup.Rtf());
            QCOMPARE(decoded.Text, text);
            QCOMPARE(decoded.GroupDepth, 0);
            QVERIFY(!decoded.DepthNegative);
        }
    }

    void fallbackBytesAreWindows1252() {
        QStringDecoder decoder("windows-1252");
        if (!decoder.isValid())
            QSKIP("This Qt has no Windows-1252 codec to compare with.");
        for (int code = 0xA0; code <= 0xFFFF; ++code) {
            if (QChar::isSurrogate(static_cast<char32_t>(code)))
                continue;
            const unsigned char byte = RtfMarkup::Windows1252Byte(static_cast<char16_t>(code));
            if (byte == 0x3F)
                continue;
            const QByteArray one(1, static_cast<char>(byte));
            QCOMPARE(decoder.decode(one), QString(QChar(code)));
        }
        for (int byte = 0x80; byte <= 0xFF; ++byte) {
            const QString decoded = decoder.decode(QByteArray(1, static_cast<char>(byte)));
            if (decoded.size() != 1 || decoded.at(0).unicode() < 0xA0)
                continue; // unassigned in the code page
            QCOMPARE(int(RtfMarkup::Windows1252Byte(decoded.at(0).unicode())), byte);
        }
    }

    void markupKeepsWorking_data() {
        QTest::addColumn<RtfMarkup>("markup");
        QTest::addColumn<QString>("rtf");
        QTest::addColumn<QString>("plain");
        QTest::newRow("bold") << clsRTFMaster::BOLD("Zoë") << R(R"(\b Zo\u235\'eb\b0)") << "Zoë";
        QTest::newRow("italic") << clsRTFMaster::ITALIC("(vegan)") << R(R"(\i (vegan)\i0)") << "(vegan)";
        QTest::newRow("strike") << clsRTFMaster::STRIKE("x") << R(R"(\strike x\strike0)") << "x";
        QTest::newRow("nested") << clsRTFMaster::ITALIC(clsRTFMaster::BOLD("x")) << R(R"(\i \b x\b0\i0)")
                                << "x";
        QTest::newRow("name, line break, notes in braces")
            << RtfMarkup("Ann") + "\r\n" + clsRTFMaster::ITALIC("{late}") << R(R"(Ann \par \i \{late\}\i0)")
            << "Ann\r\n{late}";
        QTest::newRow("digit after bold gets a delimiter")
            << clsRTFMaster::BOLD("Table") + "12" << R(R"(\b Table\b0 12)") << "Table12";
        QTest::newRow("blank after bold is kept")
            << clsRTFMaster::BOLD("a") + " b" << R(R"(\b a\b0  b)") << "a b";
        QTest::newRow("minus after bold") << clsRTFMaster::BOLD("a") + "-5" << R(R"(\b a\b0 -5)") << "a-5";
        QTest::newRow("escaped backslash is no word")
            << RtfMarkup(R(R"(C:\temp)")) + "1" << R(R"(C:\\temp1)") << R(R"(C:\temp1)");
        QTest::newRow("line break") << "a" + RtfMarkup::LineBreak() + "b" << R(R"(a \par b)") << "a\r\nb";
        QTest::newRow("control words of the writer")
            << RtfMarkup::Control("\\page") + "x" << R(R"(\page x)") << "x";
        QTest::newRow("string builder text") << RtfMarkup(QString("a") + QString("}")) << R(R"(a\})") << "a}";
    }
    void markupKeepsWorking() {
        QFETCH(RtfMarkup, markup);
        QFETCH(QString, rtf);
        QFETCH(QString, plain);
        QCOMPARE(markup.Rtf(), rtf);
        QCOMPARE(markup.Plain(), plain);
        // A reader shows the plain text (a line break reads as a blank and CR LF).
        QString shown = plain;
        shown.replace("\r\n", " \r\n");
        QCOMPARE(DecodeRtf(rtf).Text, shown);
    }

    // ---- Cells -------------------------------------------------------------------------------------

    void cellBorders_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("sides");
        const QString t = R(R"(\clbrdrt\brdrs\brdrw15\brdrcf3)");
        const QString b = R(R"(\clbrdrb\brdrs\brdrw15\brdrcf3)");
        const QString l = R(R"(\clbrdrl\brdrs\brdrw15\brdrcf3)");
        const QString r = R(R"(\clbrdrr\brdrs\brdrw15\brdrcf3)");
        QTest::newRow("0 none") << 0 << "";
        QTest::newRow("1 top") << 1 << t;
        QTest::newRow("5 open at the bottom") << 5 << l + t + r;
        QTest::newRow("8 open at the left") << 8 << t + b + r;
        QTest::newRow("9 box") << 9 << l + t + b + r;
        QTest::newRow("10 small dashes") << 10 << R(R"(\clbrdrt\brdrdashsm\brdrw15\brdrcf3)");
        QTest::newRow("13 none") << 13 << "";
    }
    void cellBorders() {
        QFETCH(int, code);
        QFETCH(QString, sides);
        clsRTFCell cell;
        cell.CELL_BORDER = code;
        QCOMPARE(cell.RTF_CELL_BORDER(), sides);
    }

    // ---- Paper and twips ---------------------------------------------------------------------------

    void paperSizes_data() {
        QTest::addColumn<bool>("a4");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<QString>("section");
        QTest::addColumn<int>("tableWidth");
        const char* margins = R"(\margtsxn1440\margbsxn1080\marglsxn1080\margrsxn1080)";
        const char* distances = R"(\headery720\footery504)";
        QTest::newRow("Letter portrait")
            << false << false << R(R"(\pghsxn15840\pgwsxn12240)") + margins + distances << 10080;
        QTest::newRow("Letter landscape")
            << false << true << R(R"(\pghsxn12240\pgwsxn15840)") + margins + R(R"(\lndscpsxn)") + distances
            << 13680;
        QTest::newRow("A4 portrait") << true << false
                                     << R(R"(\pghsxn16834\pgwsxn11909)") + margins + distances << 9749;
        QTest::newRow("A4 landscape")
            << true << true << R(R"(\pghsxn11909\pgwsxn16834)") + margins + R(R"(\lndscpsxn)") + distances
            << 14674;
    }
    void paperSizes() {
        QFETCH(bool, a4);
        QFETCH(bool, landscape);
        QFETCH(QString, section);
        QFETCH(int, tableWidth);
        plainRtf.A4 = a4;
        plainRtf.LANDSCAPE = landscape;
        auto rtf = NewWriter(plainRtf);
        QCOMPARE(rtf->TABLE_WIDTH(), tableWidth);
        QVERIFY(rtf->RTFOpen());
        QVERIFY(rtf->RTFClose());
        const QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        QVERIFY2(lines.contains(section), qPrintable(lines.join('\n')));
    }

    void twips_data() {
        QTest::addColumn<double>("inches");
        QTest::addColumn<int>("twips");
        QTest::newRow("label sheet top, A4") << double(0.63F) << 907;
        QTest::newRow("footer") << double(0.35F) << 504;
        QTest::newRow("half a twip rounds to even, down") << 0.5 / 1440 << 0;
        QTest::newRow("one and a half rounds to even, up") << 1.5 / 1440 << 2;
    }
    void twips() {
        QFETCH(double, inches);
        QTEST(clsRTFMaster::Twips(inches), "twips");
    }

    void marginsChangeTheTableWidth() {
        auto rtf = NewWriter(plainRtf);
        rtf->LANDSCAPE = false;
        rtf->MARGIN_LEFT = 0.19F;
        rtf->MARGIN_RIGHT = 0.19F;
        // 12240 - 2 * 273.6
        QCOMPARE(rtf->TABLE_WIDTH(), 11693);
    }

    // ---- Document head -----------------------------------------------------------------------------

    void headWithLogoTitleDateFooterAndStatistics() {
        plainRtf.FONT_NAME = "DejaVu Sans";
        plainRtf.FONT_SIZE = "10";
        auto rtf = NewWriter(plainRtf);
        rtf->TITLE = "All Contacts";
        rtf->STATISTICS = "Total Records: 12";
        QVERIFY(rtf->RTFOpen());
        QVERIFY(rtf->RTFClose());
        QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        lines.removeAll(QString());
        QVERIFY(lines.size() > 12);
        QCOMPARE(lines.at(0), R(R"({\rtf1\ansi\ansicpg1252\deff0\deflang1033\viewkind1\uc1)"));
        QCOMPARE(lines.at(1), R(R"({\fonttbl{\f0\ DejaVu Sans;}})"));
        QCOMPARE(lines.at(2), R(R"({\colortbl;\red170\green194\blue234;\red221\green231\blue247;)"
                                R"(\red200\green200\blue200;\red255\green0\blue0;\red242\green242\blue242;)"
                                R"(\red128\green128\blue128;})"));
        QVERIFY(lines.at(3).startsWith(R(R"(\pghsxn12240\pgwsxn15840)")));
        QVERIFY(lines.at(4).startsWith(R(R"({\header \pard\plain \s15\ql)")));
        const qsizetype titleAt = lines.indexOf(R(R"(\pard\plain\qc\fs24 {All Contacts \par } )"));
        QVERIFY(titleAt > 4);
        QCOMPARE(lines.at(titleAt - 1), R(R"({ \par }}}})"));
        QCOMPARE(lines.at(titleAt + 1),
                 R(R"(\pard\qc\fs18 {As of Jun 5, 2027  )") + FormatTime(QTime(15, 5)) + R(R"( \par })"));
        QCOMPARE(lines.at(titleAt + 2), "}"); // the header group ends after title and date
        QCOMPARE(
            lines.at(titleAt + 3),
            R(R"({\footer \pard\plain\qc\fs20 {Page }{\field{\*\fldinst { PAGE }}{\fldrslt {\lang1024 1}}})"
              R"({ of }{\field{\*\fldinst {NUMPAGES }}{\fldrslt { 1}}}{ \par }})"));
        QCOMPARE(lines.at(titleAt + 4), R(R"(\fs20)"));
        QCOMPARE(lines.at(titleAt + 5), R(R"(\qc {Total Records: 12 } \par \par )"));
        QCOMPARE(lines.at(titleAt + 6), "}");
        QCOMPARE(lines.size(), titleAt + 7);
        const DecodedRtf whole = DecodeRtf(lines.join('\n'));
        QCOMPARE(whole.GroupDepth, 0);
        QVERIFY(!whole.DepthNegative);
    }

    void headFurnitureFollowsTheSwitches_data() {
        QTest::addColumn<bool>("icon");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("date");
        QTest::addColumn<bool>("footer");
        QTest::newRow("everything") << true << "Gifts" << true << true;
        QTest::newRow("logo without title holds logo and date") << true << "" << true << true;
        QTest::newRow("logo alone") << true << "" << false << false;
        QTest::newRow("no logo: title in the body") << false << "Gifts" << true << false;
        QTest::newRow("nothing at all") << false << "" << false << false;
    }
    void headFurnitureFollowsTheSwitches() {
        QFETCH(bool, icon);
        QFETCH(QString, title);
        QFETCH(bool, date);
        QFETCH(bool, footer);
        auto rtf = NewWriter(plainRtf);
        rtf->PRINT_HEADER_ICON = icon;
        rtf->PRINT_HEADER_DATE = date;
        rtf->PRINT_FOOTER = footer;
        rtf->TITLE = title;
        QVERIFY(rtf->RTFOpen());
        QVERIFY(rtf->RTFClose());
        QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        lines.removeAll(QString());
        const qsizetype header = lines.indexOf(QRegularExpression(R"(^\{\\header .*)"));
        const qsizetype headerEnd = lines.indexOf(R(R"({ \par }}}})"));
        const qsizetype titleLine = lines.indexOf(QRegularExpression(R"(^\\pard\\plain\\qc\\fs24 \{.*)"));
        const qsizetype dateLine = lines.indexOf(QRegularExpression(R"(^\\pard\\qc\\fs18 \{As of .*)"));
        const qsizetype footerLine = lines.indexOf(QRegularExpression(R"(^\{\\footer .*)"));
        QCOMPARE(header >= 0, icon);
        QCOMPARE(titleLine >= 0, !title.isEmpty());
        QCOMPARE(dateLine >= 0, date);
        QCOMPARE(footerLine >= 0, footer);
        if (icon) {
            // Title and date stand inside the header group, which closes right behind them.
            const qsizetype lastInHeader = std::max({headerEnd, titleLine, dateLine});
            QCOMPARE(lines.at(lastInHeader + 1), "}");
        } else {
            QCOMPARE(lines.count("}"), 1); // only the document's end
        }
        QCOMPARE(DecodeRtf(lines.join('\n')).GroupDepth, 0);
    }

    void userTextCannotBreakTheDocument() {
        const QString nasty = R(R"(Zoë O'Brien-Łukasik {Jr.} C:\temp \par }}} 😂 Ωμέγα 婚礼)");
        plainRtf.FONT_NAME = R(R"(Evil;}\b Font)");
        auto rtf = NewWriter(plainRtf);
        rtf->TITLE = nasty;
        rtf->STATISTICS = nasty;
        QVERIFY(rtf->RTFOpen());
        rtf->AddCell(3000, nasty);
        rtf->AddCell(6000, clsRTFMaster::BOLD(nasty) + "\r\n" + clsRTFMaster::ITALIC(nasty));
        rtf->PrintCells(true, 0);
        QVERIFY(rtf->RTFClose());
        const QByteArray bytes = FileBytes(rtf->FULL_FILE_NAME());
        QVERIFY(IsSevenBit(bytes));
        const DecodedRtf whole = DecodeRtf(QString::fromLatin1(bytes));
        QCOMPARE(whole.GroupDepth, 0);
        QVERIFY(!whole.DepthNegative);
        QCOMPARE(whole.ControlWords.count("b"), 2); // the bold of the second cell, on and off
        QCOMPARE(whole.ControlWords.count("i"), 2);
        QVERIFY(whole.Text.contains(nasty + " \r\n"));         // the title
        QVERIFY(whole.Text.contains(nasty + " \r\n" + nasty)); // the second cell
        QVERIFY(whole.Text.contains("Evil}\\b Font;"));
        const QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        QVERIFY(lines.contains(R(R"({\fonttbl{\f0\ Evil\}\\b Font;}})")));
    }

    void coloursComeFromTheSettings() {
        QCOMPARE(plainRtf.RTF_COLOR_TABLE(),
                 R(R"(\red170\green194\blue234;\red221\green231\blue247;\red200\green200\blue200;)"
                   R"(\red255\green0\blue0;\red242\green242\blue242;\red128\green128\blue128;)"));
        auto rtf = NewWriter(plainRtf);
        // The colours are read when the head is written, not copied by SetGlobalSettings.
        plainRtf.SetColors(clsColor(1, 2, 3), clsColor::FromRGBText("15385258", {}), clsColor(300, -5, 0));
        QVERIFY(rtf->RTFOpen());
        QVERIFY(rtf->RTFClose());
        QVERIFY(
            FileLines(rtf->FULL_FILE_NAME())
                .contains(R(R"({\colortbl;\red1\green2\blue3;\red170\green194\blue234;\red255\green0\blue0;)"
                            R"(\red255\green0\blue0;\red242\green242\blue242;\red128\green128\blue128;})")));
    }

    void coloursKeptAsNumbers_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("red");
        QTest::addColumn<int>("green");
        QTest::addColumn<int>("blue");
        QTest::newRow("header") << "15385258" << 170 << 194 << 234;
        QTest::newRow("border") << " 13158600 " << 200 << 200 << 200;
        QTest::newRow("not a number falls back") << "blue" << 9 << 9 << 9;
        QTest::newRow("too big falls back") << "16777216" << 9 << 9 << 9;
        QTest::newRow("negative falls back") << "-1" << 9 << 9 << 9;
    }
    void coloursKeptAsNumbers() {
        QFETCH(QString, text);
        QFETCH(int, red);
        QFETCH(int, green);
        QFETCH(int, blue);
        const clsColor colour = clsColor::FromRGBText(text, clsColor(9, 9, 9));
        QCOMPARE(colour, clsColor(red, green, blue));
        if (red != 9)
            QCOMPARE(QString::number(colour.RGBValue()), text.trimmed());
    }

    // ---- Rows --------------------------------------------------------------------------------------

    void rowDefinitionAndText() {
        auto rtf = NewWriter(plainRtf);
        rtf->CELL_MARGIN_LEFT = 10;
        QVERIFY(rtf->RTFOpen());
        rtf->AddCell(1440, "RSVP ID", clsRTFCell::AlignCenter, clsRTFCell::AlignMiddle, clsRTFCell::BorderBox,
                     clsRTFMasterTemp::HeaderFill, 0, true);
        rtf->AddCell(rtf->TABLE_WIDTH(), "Name", clsRTFCell::AlignRight, clsRTFCell::AlignBottom,
                     clsRTFCell::NoBorder, 0, clsRTFMasterTemp::Red);
        rtf->PrintCells(true, 300);
        rtf->PrintCells(false, 0);
        QVERIFY(rtf->RTFClose());
        const QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        const QString padding = R(R"(\cltxlrtb\clpadl10\clpadt45\clpadb45\clpadr45\clpadfl3\clpadfb3)");
        const QStringList header = {
            R(R"(\trowd\trkeep\trrh-300\trhdr\trgaph90\trleft0\trql)"),
            R(R"(\clcbpat1)"),
            R(R"(\clbrdrl\brdrs\brdrw15\brdrcf3\clbrdrt\brdrs\brdrw15\brdrcf3\clbrdrb\brdrs\brdrw15\brdrcf3)"
              R"(\clbrdrr\brdrs\brdrw15\brdrcf3)"),
            padding,
            R(R"(\clvertalc)"),
            R(R"(\cellx1440)"),
            padding,
            R(R"(\clvertalb)"),
            R(R"(\cellx13680)"),
            R(R"(\pard)"),
            R(R"(\intbl\qc\cf0\sb30\sa30 \b RSVP ID\b0\cell\pard)"),
            R(R"(\intbl\qr\cf4\sb30\sa30 Name\cell\pard)"),
            R(R"(\intbl\row)"),
            R(R"(\pard)"),
        };
        QCOMPARE(RowLines(lines, 1), header);
        // The second row: no height, no header flag, and the bold was spent by the first.
        const QStringList second = RowLines(lines, 2);
        QCOMPARE(second.first(), R(R"(\trowd\trkeep\trgaph90\trleft0\trql)"));
        QVERIFY(second.contains(R(R"(\intbl\qc\cf0\sb30\sa30 RSVP ID\cell\pard)")));
        QVERIFY(second.contains(R(R"(\clcbpat1)"))); // fill and border stay
        // The empty fill and border of the second cell are lines of their own, empty.
        const qsizetype firstCellx = lines.indexOf(R(R"(\cellx1440)"));
        QCOMPARE(lines.at(firstCellx + 1), QString());
        QCOMPARE(lines.at(firstCellx + 2), QString());
        QCOMPARE(lines.at(firstCellx + 3), padding);
    }

    // Rows that share their cells share their definition; any change to a cell or a margin shows in the
    // very next row.
    void rowLayoutFollowsEveryChange_data() {
        QTest::addColumn<int>("change");
        QTest::addColumn<QString>("expected");
        QTest::newRow("border") << 0 << R(R"(\clbrdrt\brdrs\brdrw15\brdrcf3)");
        QTest::newRow("fill") << 1 << R(R"(\clcbpat2)");
        QTest::newRow("margin") << 2 << R(R"(\cltxlrtb\clpadl99\clpadt45\clpadb45\clpadr45\clpadfl3\clpadfb3)");
        QTest::newRow("right edge") << 3 << R(R"(\cellx3000)");
        QTest::newRow("alignment") << 4 << R(R"(\intbl\qr\cf0\sb30\sa30 x\cell\pard)");
        QTest::newRow("text colour") << 5 << R(R"(\intbl\ql\cf4\sb30\sa30 x\cell\pard)");
        QTest::newRow("height") << 6 << R(R"(\trowd\trkeep\trrh-400\trgaph90\trleft0\trql)");
        QTest::newRow("vertical alignment") << 7 << R(R"(\clvertalb)");
    }
    void rowLayoutFollowsEveryChange() {
        QFETCH(int, change);
        QFETCH(QString, expected);
        auto rtf = NewWriter(plainRtf);
        QVERIFY(rtf->RTFOpen());
        rtf->AddCell(2000, "x", clsRTFCell::AlignLeft, clsRTFCell::AlignTop, clsRTFCell::NoBorder, 0, 0);
        rtf->PrintCells(false, 0);
        clsRTFCell& cell = rtf->RTFCells[0];
        switch (change) {
        case 0: rtf->SetCellsCELL_BORDER(clsRTFCell::BorderTop); break;
        case 1: rtf->SetCellsCELL_BACKCOLOR(2); break;
        case 2: rtf->CELL_MARGIN_LEFT = 99; break;
        case 3: cell.CELLX = 3000; break;
        case 4: cell.CELL_HORIZONTAL_ALIGNMENT = clsRTFCell::AlignRight; break;
        case 5: rtf->SetCellsCELL_FORECOLOR(4); break;
        case 7: cell.CELL_VERTICAL_ALIGNMENT = clsRTFCell::AlignBottom; break;
        default: break;
        }
        rtf->PrintCells(false, change == 6 ? 400 : 0);
        rtf->PrintCells(false, 0);
        QVERIFY(rtf->RTFClose());
        const QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        QVERIFY(!RowLines(lines, 1).contains(expected));
        QVERIFY(RowLines(lines, 2).contains(expected));
        QCOMPARE(RowLines(lines, 3).contains(expected), change != 6);
    }

    void styleFlagsAreSpentByPrinting_data() {
        QTest::addColumn<bool>("bold");
        QTest::addColumn<bool>("italic");
        QTest::addColumn<bool>("strike");
        QTest::addColumn<QString>("firstText");
        QTest::newRow("bold") << true << false << false << R(R"(\b x\b0)");
        QTest::newRow("italic") << false << true << false << R(R"(\i x\i0)");
        QTest::newRow("strike") << false << false << true << R(R"(\strike x\strike0)");
        QTest::newRow("all three, bold innermost")
            << true << true << true << R(R"(\strike \i \b x\b0\i0\strike0)");
    }
    void styleFlagsAreSpentByPrinting() {
        QFETCH(bool, bold);
        QFETCH(bool, italic);
        QFETCH(bool, strike);
        QFETCH(QString, firstText);
        auto rtf = NewWriter(plainRtf);
        QVERIFY(rtf->RTFOpen());
        rtf->AddCell(2000, "x", 0, 0, clsRTFCell::BorderTop, 2, 6);
        rtf->SetCellsBOLD(bold);
        rtf->SetCellsITALIC(italic);
        rtf->SetCellsSTRIKE(strike);
        rtf->PrintCells();
        QCOMPARE(rtf->RTFCell().BOLD, false);
        QCOMPARE(rtf->RTFCell().ITALIC, false);
        QCOMPARE(rtf->RTFCell().STRIKE, false);
        rtf->PrintCells();
        QVERIFY(rtf->RTFClose());
        const QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        QVERIFY(
            RowLines(lines, 1).contains(R(R"(\intbl\ql\cf6\sb30\sa30 )") + firstText + R(R"(\cell\pard)")));
        QVERIFY(RowLines(lines, 2).contains(R(R"(\intbl\ql\cf6\sb30\sa30 x\cell\pard)")));
        QVERIFY(RowLines(lines, 2).contains(R(R"(\clcbpat2)")));
    }

    void blankRowClearsTheCells() {
        auto rtf = NewWriter(plainRtf);
        QVERIFY(rtf->RTFOpen());
        rtf->AddCell(2000, "a", 2, 0, 9, 1, 4, true, true, true);
        rtf->AddCell(4000, "b", 0, 0, 5, 2, 0);
        rtf->PrintBlankCells();
        QVERIFY(rtf->RTFClose());
        const QStringList row = RowLines(FileLines(rtf->FULL_FILE_NAME()), 1);
        QCOMPARE(row.first(), R(R"(\trowd\trkeep\trgaph90\trleft0\trql)"));
        QVERIFY(!row.join(' ').contains("clbrdr"));
        QVERIFY(!row.join(' ').contains("clcbpat"));
        // Strike-through is not among what a blank row clears, and alignment and colour stay.
        QVERIFY(row.contains(R(R"(\intbl\qr\cf4\sb30\sa30 \strike \strike0\cell\pard)")));
        QCOMPARE(rtf->RTFCells.at(0).CELL_BORDER, 0);
        QCOMPARE(rtf->RTFCells.at(1).CELL_BACKCOLOR, 0);
        QVERIFY(rtf->RTFCells.at(1).CELL_TX.IsEmpty());
    }

    void fontSizes_data() {
        QTest::addColumn<QString>("points");
        QTest::addColumn<int>("halfPoints");
        QTest::newRow("12 with blanks") << " 12 " << 24;
        QTest::newRow("10.5 rounds to even") << "10.5" << 20;
        QTest::newRow("not a number") << "big" << 0;
        QTest::newRow("zero") << "0" << 0;
        QTest::newRow("too large") << "40000" << 0;
    }
    void fontSizes() {
        QFETCH(QString, points);
        QFETCH(int, halfPoints);
        QCOMPARE(clsRTFMaster::HalfPoints(points), halfPoints);
    }

    void fontSizeLineAndBadFontSize() {
        auto rtf = NewWriter(plainRtf);
        QVERIFY(rtf->RTFOpen());
        rtf->FontSize("12");
        rtf->PrintRaw(RtfMarkup::Control("\\page"));
        QVERIFY(rtf->RTFClose());
        const QStringList lines = FileLines(rtf->FULL_FILE_NAME());
        QCOMPARE(lines.at(lines.size() - 3), R(R"(\fs24)"));
        QCOMPARE(lines.at(lines.size() - 2), R(R"(\page)"));

        plainRtf.FONT_SIZE = "huge";
        auto bad = NewWriter(plainRtf, "Bad");
        QVERIFY(!bad->RTFOpen());
        QVERIFY(!QFile::exists(bad->FULL_FILE_NAME()));
        QCOMPARE(home->Messages().Prompts.size(), 1);
        QVERIFY(home->Messages().Prompts.first().contains("\"huge\""));
        QVERIFY(home->Messages().Prompts.first().contains(bad->FULL_FILE_NAME()));
        QVERIFY(!bad->RTFClose());
        QVERIFY(!bad->Show());
    }

    // ---- CSV ---------------------------------------------------------------------------------------

    void csvReadsBackExactly_data() {
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("plain") << QStringList{"Smith", "Ann", "12"};
        QTest::newRow("inner quotes doubled") << QStringList{"The \"Big\" Day", "\"", "\"\""};
        QTest::newRow("delimiter inside") << QStringList{"Smith, Jr.", ",", "a,b,c"};
        QTest::newRow("line breaks inside") << QStringList{"12 Main St\r\nApt 4", "x\r\n", "x\r\n\r\ny"};
        QTest::newRow("empty in the middle") << QStringList{"a", "", "c"};
        QTest::newRow("all empty") << QStringList{"", "", ""};
        QTest::newRow("scripts") << QStringList{"Zoë O'Brien-Łukasik {Jr.} C:\\temp", "Ωμέγα", "婚礼 😂"};
        QTest::newRow("blanks at the ends") << QStringList{" padded ", "tab\t"};
        QTest::newRow("RTF-looking text") << QStringList{"\\b not bold\\b0", "{\\i x}"};
    }
    void csvReadsBackExactly() {
        QFETCH(QStringList, fields);
        plainRtf.USE_RTF = false;
        auto rtf = NewWriter(plainRtf);
        QVERIFY(rtf->RTFOpen());
        for (int row = 0; row < 2; ++row) {
            rtf->ResetCells();
            for (const QString& field : fields)
                rtf->AddCell(1000, field);
            rtf->PrintCells(true, 300);
        }
        QVERIFY(rtf->RTFClose());
        const QByteArray bytes = FileBytes(rtf->FULL_FILE_NAME());
        QVERIFY(bytes.startsWith("\xEF\xBB\xBF"));
        QVERIFY(bytes.endsWith("\r\n"));
        QString error;
        const QList<QStringList> records = ParseCsvStrict(QString::fromUtf8(bytes.mid(3)), &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(records.size(), 2);
        QCOMPARE(records.at(0), fields);
        QCOMPARE(records.at(1), fields);
    }

    // What a spreadsheet would run as a formula shows as text; the report's own figures stay numbers.
    void csvKeepsFormulasText_data() {
        QTest::addColumn<RtfMarkup>("cell");
        QTest::addColumn<QString>("field");
        QTest::newRow("formula") << RtfMarkup("=HYPERLINK(\"http://x\")") << "'=HYPERLINK(\"http://x\")";
        QTest::newRow("plus") << RtfMarkup("+1-2") << "'+1-2";
        QTest::newRow("minus") << RtfMarkup("-12.50") << "'-12.50";
        QTest::newRow("at") << RtfMarkup("@SUM(A1)") << "'@SUM(A1)";
        QTest::newRow("tab") << RtfMarkup("\t=1") << "'\t=1";
        QTest::newRow("carriage return") << RtfMarkup("\r\n=1") << "'\r\n=1";
        QTest::newRow("inside is harmless") << RtfMarkup("a=b-c") << "a=b-c";
        QTest::newRow("a figure of the report") << RtfMarkup::Figure("-12.50") << "-12.50";
        QTest::newRow("a bold figure") << clsRTFMaster::BOLD(RtfMarkup::Figure("-3")) << "-3";
        QTest::newRow("a figure joined to text")
            << RtfMarkup::Figure("-3") + RtfMarkup(" seats") << "'-3 seats";
    }
    void csvKeepsFormulasText() {
        QFETCH(RtfMarkup, cell);
        QFETCH(QString, field);
        plainRtf.USE_RTF = false;
        auto rtf = NewWriter(plainRtf);
        QVERIFY(rtf->RTFOpen());
        rtf->AddCell(1000, "x");
        rtf->AddCell(2000, cell);
        rtf->PrintCells();
        rtf->PrintRaw(cell);
        QVERIFY(rtf->RTFClose());
        QString error;
        const QList<QStringList> records =
            ParseCsvStrict(QString::fromUtf8(FileBytes(rtf->FULL_FILE_NAME()).mid(3)), &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(records, (QList<QStringList>{{"x", field}, {field}}));
    }

    void csvDialectDetails() {
        plainRtf.USE_RTF = false;
        auto rtf = NewWriter(plainRtf);
        QCOMPARE(rtf->FILE_NAME_WITH_EXTENSION(), QString("Test.csv"));
        rtf->TITLE = "Never written";
        rtf->STATISTICS = "Never written";
        QVERIFY(rtf->RTFOpen());
        rtf->FontSize("12");                         // no fonts in CSV
        rtf->PrintRaw(RtfMarkup::Control("\\page")); // stands for no text: nothing
        rtf->PrintRaw("Note, \"quoted\"");           // one field of its own
        rtf->AddCell(1000, "a");
        rtf->AddCell(2000, "");
        rtf->AddCell(3000, "c");
        rtf->PrintCells();
        rtf->ResetCells();
        rtf->AddCell(1000, "");
        rtf->AddCell(2000, clsRTFMaster::BOLD("Ann") + "\r\n" + clsRTFMaster::ITALIC("late"), 0, 0, 9, 0, 0,
                     true);
        rtf->AddCell(3000, "x" + RtfMarkup::LineBreak() + "y\nz");
        rtf->PrintCells();
        rtf->PrintBlankCells();
        QVERIFY(rtf->RTFClose());
        const QByteArray bytes = FileBytes(rtf->FULL_FILE_NAME());
        QCOMPARE(QString::fromUtf8(bytes), QString::fromUtf8("\xEF\xBB\xBF"
                                                             "\"Note, \"\"quoted\"\"\"\r\n"
                                                             "\"a\",,\"c\"\r\n"
                                                             ",\"Ann\r\nlate\",\"x\r\ny\r\nz\"\r\n"
                                                             ",,\r\n"));
    }

    // ---- Files -------------------------------------------------------------------------------------

    void fileNames_data() {
        QTest::addColumn<bool>("useRtf");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("withExtension");
        QTest::newRow("rtf") << true << "01_Contacts_2027-06-05_150500"
                             << "01_Contacts_2027-06-05_150500.rtf";
        QTest::newRow("csv") << false << "01_Contacts_x"
                             << "01_Contacts_x.csv";
        QTest::newRow("a slash stays in the folder") << true << "11_Invites_for_A/B Party"
                                                     << "11_Invites_for_A_B Party.rtf";
        QTest::newRow("backslash too") << false << "..\\x"
                                       << ".._x.csv";
    }
    void fileNames() {
        QFETCH(bool, useRtf);
        QFETCH(QString, name);
        QFETCH(QString, withExtension);
        clsRTFMaster rtf(plainRtf);
        rtf.USE_RTF = useRtf;
        rtf.FILE_NAME = name;
        QCOMPARE(rtf.FILE_NAME_WITH_EXTENSION(), withExtension);
        QCOMPARE(rtf.FULL_FILE_NAME(), gApp().ReportPath() + "/" + withExtension);
    }

    // Three runs of one report in the same second, the last started before the first is done.
    void reportsOfOneSecondKeepTheirOwnNames_data() {
        QTest::addColumn<bool>("useRtf");
        QTest::newRow("rtf") << true;
        QTest::newRow("csv") << false;
    }
    void reportsOfOneSecondKeepTheirOwnNames() {
        QFETCH(bool, useRtf);
        plainRtf.USE_RTF = useRtf;
        const NoUmask noUmask;
        std::vector<std::unique_ptr<clsRTFMaster>> runs;
        for (const char* text : {"first", "second", "third"}) {
            runs.push_back(NewWriter(plainRtf, "01_Contacts_2027-06-05_150500"));
            QVERIFY(runs.back()->RTFOpen());
            runs.back()->AddCell(1000, text);
            runs.back()->PrintCells();
        }
        QStringList names;
        for (auto& run : runs) {
            QVERIFY(run->RTFClose());
            names << QFileInfo(run->FULL_FILE_NAME()).fileName();
            QVERIFY(
                FileBytes(run->FULL_FILE_NAME()).contains(run->RTFCells.first().CELL_TX.Plain().toUtf8()));
            QCOMPARE(QFile::permissions(run->FULL_FILE_NAME()),
                     QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
        }
        const QString ext = useRtf ? ".rtf" : ".csv";
        QCOMPARE(names,
                 QStringList({"01_Contacts_2027-06-05_150500" + ext, "01_Contacts_2027-06-05_150500_2" + ext,
                              "01_Contacts_2027-06-05_150500_3" + ext}));
        QCOMPARE(QDir(gApp().ReportPath()).entryList(QDir::Files | QDir::Hidden), names);
    }

    void aReportThatFailsLeavesNothingHalfWritten() {
        auto first = NewWriter(plainRtf, "Same");
        QVERIFY(first->RTFOpen());
        first->AddCell(1000, "first");
        first->PrintCells();
        QVERIFY(first->RTFClose());
        const QByteArray finished = FileBytes(first->FULL_FILE_NAME());
        {
            auto second = NewWriter(plainRtf, "Same");
            QVERIFY(second->RTFOpen());
            second->AddCell(1000, "second");
            second->PrintCells();
            // The report stops here, without RTFClose.
        }
        QCOMPARE(FileBytes(first->FULL_FILE_NAME()), finished);
        QCOMPARE(QDir(gApp().ReportPath()).entryList(QDir::Files | QDir::Hidden), QStringList{"Same.rtf"});
        QVERIFY(home->Messages().Prompts.isEmpty());
    }

    void unwritablePlacesAreReported_data() {
        QTest::addColumn<bool>("folderIsAFile");
        QTest::newRow("report folder is a file") << true;
        QTest::newRow("a folder has the report's name") << false;
    }
    void unwritablePlacesAreReported() {
        QFETCH(bool, folderIsAFile);
        auto rtf = NewWriter(plainRtf, "Blocked");
        if (folderIsAFile) {
            QFile blocker(gApp().ReportPath());
            QVERIFY(blocker.open(QIODevice::WriteOnly));
        } else {
            QVERIFY(QDir().mkpath(rtf->FULL_FILE_NAME()));
        }
        bool opener = false;
        gShell().SetOpener([&](const QString&) { return opener = true; });
        QVERIFY(!rtf->RTFOpen());
        rtf->AddCell(1000, "x");
        rtf->PrintCells();
        QVERIFY(!rtf->RTFClose());
        QVERIFY(!rtf->Show());
        QVERIFY(!opener);
        QCOMPARE(home->Messages().Prompts.size(), 1);
        QVERIFY2(home->Messages().Prompts.first().contains("\"" + rtf->FULL_FILE_NAME() + "\""),
                 qPrintable(home->Messages().Prompts.first()));
        QCOMPARE(home->Messages().Titles.first(), QString("Vowren"));
    }

    void showOpensTheFinishedReport() {
        qunsetenv("VOWREN_NO_OPEN");
        QStringList opened;
        gShell().SetOpener([&](const QString& target) {
            opened << target;
            return true;
        });
        auto rtf = NewWriter(plainRtf);
        QVERIFY(rtf->RTFOpen());
        QVERIFY(!rtf->Show()); // not finished yet
        QVERIFY(rtf->RTFClose());
        QVERIFY(rtf->Show());
        qputenv("VOWREN_NO_OPEN", "1");
        QCOMPARE(opened, QStringList{rtf->FULL_FILE_NAME()});
    }

    void textFileWritesAndReadsLines() {
        const QString path = home->File("lines.csv");
        TextFile out;
        QVERIFY(out.OpenFile(path, TextFile::ForWriting, TextFile::Encoding::Utf8WithBom));
        QVERIFY(out.WriteLine("first"));
        QVERIFY(out.WriteLine("Zoë", 1, 2));
        QVERIFY(!QFile::exists(path)); // in place only when closed
        QVERIFY(out.CloseFile());
        QCOMPARE(FileBytes(path), QByteArray("\xEF\xBB\xBF"
                                             "first\r\n\r\nZo\xC3\xAB\r\n\r\n\r\n"));
        TextFile in;
        QVERIFY(in.OpenFile(path, TextFile::ForReading));
        QCOMPARE(in.ReadAllLines(), (QStringList{"first", "", "Zoë", "", ""}));
        QVERIFY(in.CloseFile());

        TextFile missing;
        QVERIFY(!missing.OpenFile(home->File("none.txt"), TextFile::ForReading));
        QCOMPARE(home->Messages().Prompts.size(), 1);
        QVERIFY(home->Messages().Prompts.first().contains(home->File("none.txt")));
    }
};

QTEST_GUILESS_MAIN(tst_clsRTFMaster)
#include "tst_clsRTFMaster.moc"
