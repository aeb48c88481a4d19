#include "TestHome.h"
#include "core/clsApp.h"
#include "pdf/PdfMarkup.h"
#include "pdf/clsPdfDialect.h"
#include "reports/clsRTFMaster.h"
#include "reports/clsRTFMasterTemp.h"

#include <QDir>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

Q_DECLARE_METATYPE(RtfMarkup)

namespace {

// The output of one of the PDF readers, or empty with a failed check when it did not run.
QString Run(const QString& program, const QStringList& args) {
    QProcess process;
    process.start(program, args);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString PdfText(const QString& file, int page = 0) {
    QStringList args{QStringLiteral("-raw")};
    if (page > 0)
        args << QStringLiteral("-f") << QString::number(page) << QStringLiteral("-l")
             << QString::number(page);
    return Run(QStringLiteral("pdftotext"), args << file << QStringLiteral("-"));
}

QString PageSize(const QString& file) {
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral(R"(Page size:\s+([\d.]+) x ([\d.]+) pts)"))
            .match(Run(QStringLiteral("pdfinfo"), {file}));
    return QStringLiteral("%1 x %2")
        .arg(qRound(match.captured(1).toDouble()))
        .arg(qRound(match.captured(2).toDouble()));
}

QString Squeezed(const QString& text) {
    return QString(text).remove(QRegularExpression(QStringLiteral("\\s")));
}

} // namespace

class tst_PdfReports : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestHome> mHome;
    clsRTFMasterTemp mSettings;

    std::unique_ptr<clsRTFMaster> Writer(bool a4 = false, bool landscape = true) {
        mSettings.USE_RTF = true;
        mSettings.USE_PDF = true;
        mSettings.FONT_NAME = QStringLiteral("DejaVu Sans");
        mSettings.A4 = a4;
        mSettings.LANDSCAPE = landscape;
        auto writer = std::make_unique<clsRTFMaster>(mSettings);
        writer->SetGlobalSettings();
        writer->FILE_NAME = QStringLiteral("pdf test");
        writer->TITLE = QStringLiteral("Guest List");
        return writer;
    }

    // Rows of cells, the first one the header row.
    QString WriteTable(clsRTFMaster& writer, const QList<QStringList>& rows) {
        if (!writer.RTFOpen())
            return {};
        for (qsizetype r = 0; r < rows.size(); ++r) {
            writer.ResetCells();
            int edge = 0;
            for (const QString& text : rows.at(r))
                writer.AddCell(edge += 2000, text);
            writer.PrintCells(r == 0);
        }
        return writer.RTFClose() ? writer.FULL_FILE_NAME() : QString();
    }

private slots:
    void initTestCase() {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not installed");
        clsPdfDialect::Register();
    }
    void init() { mHome = std::make_unique<TestHome>(); }
    void cleanup() { mHome.reset(); }

    void markupReadsBack_data() {
        QTest::addColumn<RtfMarkup>("markup");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("boldStart");
        QTest::addColumn<int>("boldLength");
        QTest::addRow("escaped characters")
            << RtfMarkup(QStringLiteral(R"({\b} \par C:\x)")) << R"({\b} \par C:\x)" << -1 << 0;
        QTest::addRow("scripts and emoji") << RtfMarkup(QStringLiteral("Zoë Ωμέγα Жанна שלום سلام 🎉"))
                                           << QStringLiteral("Zoë Ωμέγα Жанна שלום سلام 🎉") << -1 << 0;
        QTest::addRow("bold in the middle")
            << RtfMarkup("a ") + RtfMarkup::Bold(RtfMarkup("12")) + RtfMarkup(" c") << "a 12 c" << 2 << 2;
        QTest::addRow("line break") << RtfMarkup("one\r\ntwo") << QStringLiteral("one\u2028two") << -1 << 0;
    }
    void markupReadsBack() {
        QFETCH(RtfMarkup, markup);
        QFETCH(QString, text);
        QFETCH(int, boldStart);
        QFETCH(int, boldLength);
        const PdfStyledText styled = StyledTextOf(markup.Rtf());
        QCOMPARE(styled.Text, text);
        int start = -1;
        int length = 0;
        for (const QTextLayout::FormatRange& range : styled.Formats) {
            if (range.format.fontWeight() == QFont::Bold) {
                start = range.start;
                length = range.length;
            }
        }
        QCOMPARE(start, boldStart);
        QCOMPARE(length, boldLength);
    }

    void cellsInReadingOrder() {
        auto writer = Writer();
        const QString file = WriteTable(
            *writer,
            {{"Name", "Table", "Meal"}, {"Anna Smith", "Head Table", "Beef"}, {"Ben Jones", "2", "Fish"}});
        QVERIFY(!file.isEmpty());
        QVERIFY(file.endsWith(QLatin1String(".pdf")));
        const QString text = PdfText(file);
        qsizetype at = 0;
        for (const char* cell : {"Guest List", "Name", "Table", "Meal", "Anna Smith", "Head Table", "Beef",
                                 "Ben Jones", "2", "Fish", "Page 1 of 1"}) {
            const qsizetype found = text.indexOf(QLatin1String(cell), at);
            QVERIFY2(found >= 0,
                     qPrintable(QStringLiteral("\"%1\" after %2 in: %3").arg(cell).arg(at).arg(text)));
            at = found + 1;
        }
    }

    void paperAndOrientation_data() {
        QTest::addColumn<bool>("a4");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<QString>("size"); // in points, rounded
        QTest::addRow("Letter landscape") << false << true << "792 x 612";
        QTest::addRow("Letter portrait") << false << false << "612 x 792";
        QTest::addRow("A4 landscape") << true << true << "842 x 595";
        QTest::addRow("A4 portrait") << true << false << "595 x 842";
    }
    void paperAndOrientation() {
        QFETCH(bool, a4);
        QFETCH(bool, landscape);
        QFETCH(QString, size);
        auto writer = Writer(a4, landscape);
        const QString file = WriteTable(*writer, {{"Name"}, {"Anna"}});
        QCOMPARE(PageSize(file), size);
    }

    // Laid out only, nothing is written; the kept pages then print on a device of any resolution
    // just as the file has them, on the paper of the report.
    void keptPagesPrintAsWritten_data() {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("a4");
        QTest::addColumn<QString>("size");
        QTest::addRow("screen resolution, Letter") << int(QPrinter::ScreenResolution) << false << "792 x 612";
        QTest::addRow("printer resolution, A4") << int(QPrinter::HighResolution) << true << "842 x 595";
    }
    void keptPagesPrintAsWritten() {
        QFETCH(int, mode);
        QFETCH(bool, a4);
        QFETCH(QString, size);
        QList<QStringList> rows{{"Guest Name", "Meal"}};
        for (int i = 1; i <= 80; ++i)
            rows.append({QStringLiteral("Guest %1").arg(i), QStringLiteral("Fish")});
        auto writer = Writer(a4);
        const auto pages = clsPdfDialect::LayOutOnly([&] { QVERIFY(WriteTable(*writer, rows).isEmpty()); });
        QVERIFY(pages);
        QVERIFY(QDir(gApp().ReportPath()).isEmpty());
        QVERIFY(mHome->Messages().Prompts.isEmpty());

        QPrinter printer(static_cast<QPrinter::PrinterMode>(mode));
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(mHome->File(QStringLiteral("printed.pdf")));
        printer.setPageLayout(pages->PageLayout());
        printer.setFullPage(true);
        QVERIFY(pages->Paint(printer));
        QCOMPARE(PageSize(printer.outputFileName()), size);

        auto again = Writer(a4); // the file-writing dialect is back
        const QString written = WriteTable(*again, rows);
        QVERIFY(!written.isEmpty());
        const QRegularExpression date(QStringLiteral("As of [^\n]*")); // the minute may turn between the two
        QCOMPARE(Squeezed(PdfText(printer.outputFileName()).remove(date)),
                 Squeezed(PdfText(written).remove(date)));
        QVERIFY(PdfText(printer.outputFileName(), 2).contains(QLatin1String("Guest Name")));
    }

    void everyFontEmbedded() {
        auto writer = Writer();
        writer->FONT_NAME = QStringLiteral("No Such Font Anywhere");
        const QString file = WriteTable(*writer, {{"Language", "Name"},
                                                  {"Greek", "Ωμέγα"},
                                                  {"Cyrillic", "Жанна"},
                                                  {"Hebrew", "שלום"},
                                                  {"Arabic", "سلام"}});
        QVERIFY(!file.isEmpty());
        QVERIFY(mHome->Messages().Prompts.isEmpty());
        const QStringList lines =
            Run(QStringLiteral("pdffonts"), {file}).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QVERIFY(lines.size() > 2); // two lines of headings, then one per font
        for (const QString& line : lines.mid(2)) {
            const QStringList columns = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            QVERIFY2(columns.size() > 5 && columns.at(columns.size() - 5) == QLatin1String("yes"),
                     qPrintable(line));
        }
        const QString text = PdfText(file);
        for (const char* word : {"Ωμέγα", "Жанна"})
            QVERIFY2(text.contains(QString::fromUtf8(word)), qPrintable(text));
    }

    void headerRowRepeatsOnEveryPage() {
        QList<QStringList> rows{{"Guest Name", "Meal"}};
        for (int i = 1; i <= 120; ++i)
            rows.append({QStringLiteral("Guest %1").arg(i), QStringLiteral("Fish")});
        auto writer = Writer();
        const QString file = WriteTable(*writer, rows);
        const QString second = PdfText(file, 2);
        QVERIFY2(second.contains(QLatin1String("Guest Name")), qPrintable(second));
        QVERIFY(second.contains(QRegularExpression(QStringLiteral("Page 2 of [2-9]"))));
        // Every row stands once, whole, across the pages.
        const QString all = PdfText(file);
        for (int i : {1, 60, 120})
            QCOMPARE(all.count(QRegularExpression(QStringLiteral("Guest %1\\b").arg(i))), 1);
    }

    void hostileTextPrintsLiterally_data() {
        QTest::addColumn<QString>("text");
        QTest::addRow("braces and backslashes")
            << QStringLiteral(R"({\rtf1 \b bold?} C:\temp\new \\par \u1234?)");
    }
    // A cell longer than a page goes on over the next pages: every word once, in order.
    void longCellContinues() {
        QStringList words;
        for (int i = 1; i <= 1500; ++i)
            words << QStringLiteral("w%1").arg(i);
        auto writer = Writer();
        const QString file =
            WriteTable(*writer, {{"Notes", "After"}, {words.join(QLatin1Char(' ')), "the end"}});
        const QString printed = PdfText(file);
        QStringList found;
        for (const QRegularExpressionMatch& match :
             QRegularExpression(QStringLiteral("\\bw\\d+\\b")).globalMatch(printed))
            found << match.captured();
        QCOMPARE(found, words);
        QVERIFY(PdfText(file, 2).contains(QLatin1String("Notes")));
        QVERIFY(printed.contains(QLatin1String("the end")));
    }

    void hostileTextPrintsLiterally() {
        QFETCH(QString, text);
        auto writer = Writer();
        const QString file = WriteTable(*writer, {{"Notes", "After"}, {text, "the end"}});
        QVERIFY(!file.isEmpty());
        const QString printed = PdfText(file);
        QVERIFY2(Squeezed(printed).contains(Squeezed(text)), qPrintable(printed.left(2000)));
        QVERIFY(printed.contains(QLatin1String("the end")));
    }
};

QTEST_MAIN(tst_PdfReports)
#include "tst_PdfReports.moc"
