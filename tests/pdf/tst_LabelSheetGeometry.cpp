#include "TestHome.h"
#include "pdf/clsPdfDialect.h"
#include "reports/clsLabelSheet.h"
#include "reports/clsRTFLabel.h"
#include "reports/modLabels.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

// The labels must stand on the real stock. A sheet is written, made into PDF (by LibreOffice from the
// RTF, and by our own PDF dialect), and the position of each label's first word is read back from the
// PDF and held against the stock's published measures, which are taken here from the maker's sheet and
// not from the program's own numbers:
//   8160: Letter, labels 2 5/8" x 1", 3 across and 10 down, top margin 0.5", left margin 0.19",
//         2.75" from one label's left edge to the next.
//   L7160: A4, labels 63.5 x 38.1 mm, 3 across and 7 down, top margin 15.15 mm, left margin 7.2 mm,
//          66.0 mm across and 38.1 mm down from one label to the next.
// A label's text is centred, so its first line must lie wholly inside the label from left to right,
// and the line's top must lie between the label's top and 1.5 mm below it.
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kPointsPerMm = 72.0 / 25.4;
constexpr double kTolerance = 1.5 * kPointsPerMm;

struct Stock {
    int PerPage, Across;
    double Left, Top, Width, Height, PitchX, PitchY; // points
};

Stock StockOf(int sheet) {
    if (sheet == clsLabelSheet::AveryL7160)
        return {21,
                3,
                7.2 * kPointsPerMm,
                15.15 * kPointsPerMm,
                63.5 * kPointsPerMm,
                38.1 * kPointsPerMm,
                66.0 * kPointsPerMm,
                38.1 * kPointsPerMm};
    return {30,
            3,
            0.19 * kPointsPerInch,
            0.5 * kPointsPerInch,
            2.625 * kPointsPerInch,
            1.0 * kPointsPerInch,
            2.75 * kPointsPerInch,
            1.0 * kPointsPerInch};
}

struct Word {
    int Page = 0; // from 1
    QRectF Box;   // points, from the page's top left
    QString Text;
};

// The words of every page with their boxes, as pdftotext -bbox reports them.
QList<Word> WordsOf(const QString& pdf) {
    QProcess process;
    process.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    process.waitForFinished(60000);
    const QString html = QString::fromUtf8(process.readAllStandardOutput());
    static const QRegularExpression tag(QStringLiteral(
        R"re(<page |<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>)re"));
    QList<Word> words;
    int page = 0;
    for (auto it = tag.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        if (m.captured(0) == QLatin1String("<page ")) {
            ++page;
            continue;
        }
        const QPointF topLeft(m.captured(1).toDouble(), m.captured(2).toDouble());
        const QPointF bottomRight(m.captured(3).toDouble(), m.captured(4).toDouble());
        words.append({page, QRectF(topLeft, bottomRight), m.captured(5)});
    }
    return words;
}

QString FirstWord(int n) {
    return QStringLiteral("Label%1").arg(n, 2, 10, QLatin1Char('0'));
}

// A label of three lines whose first word names it.
QString LabelText(int n) {
    return FirstWord(n) + QStringLiteral(" Smith\r\n12 Main Street\r\nSalem, OR 97301");
}

} // namespace

class tst_LabelSheetGeometry : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;
    QTemporaryDir profile; // LibreOffice's own settings, apart from the user's
    QString soffice;

    QString WriteSheet(int sheet, const QList<clsLabel>& labels, bool pdf) {
        clsRTFMasterTemp settings;
        settings.FONT_NAME = QStringLiteral("DejaVu Sans");
        clsRTFLabel writer(settings);
        writer.Sheet = sheet;
        writer.Pdf = pdf;
        writer.Labels = labels;
        return writer.Build();
    }

    // The sheet as PDF: written so by our own dialect, or the RTF converted by LibreOffice.
    QString SheetPdf(int sheet, const QList<clsLabel>& labels, bool ownPdf) {
        const QString file = WriteSheet(sheet, labels, ownPdf);
        if (ownPdf || file.isEmpty())
            return file;
        const QString outDir = home->File(QStringLiteral("converted"));
        QProcess process;
        process.start(soffice, {"-env:UserInstallation=" + QUrl::fromLocalFile(profile.path()).toString(),
                                "--headless", "--convert-to", "pdf", "--outdir", outDir, file});
        if (!process.waitForFinished(300000))
            process.kill();
        const QString result = outDir + QLatin1Char('/') + QFileInfo(file).completeBaseName() + ".pdf";
        return QFileInfo::exists(result) ? result : QString();
    }

    static void AddDialects() { QTest::addColumn<bool>("ownPdf"); }

private slots:
    void initTestCase() {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is not on PATH.");
        soffice = QStandardPaths::findExecutable(QStringLiteral("soffice"));
        QVERIFY(profile.isValid());
        clsPdfDialect::Register();
    }
    void init() { home = std::make_unique<TestHome>(); }
    void cleanup() { home.reset(); }

    void everyLabelStandsOnItsLabelOfTheStock_data() {
        QTest::addColumn<int>("sheet");
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<bool>("ownPdf");
        QList<int> thirty;
        for (int n = 1; n <= 30; ++n)
            thirty << n;
        for (const bool own : {false, true}) {
            const char* dialect = own ? "PDF" : "LibreOffice";
            const int letter = clsLabelSheet::Avery8160;
            const int a4 = clsLabelSheet::AveryL7160;
            QTest::addRow("8160, a full page, %s", dialect) << letter << thirty << own;
            QTest::addRow("L7160, two pages, %s", dialect) << a4 << thirty << own;
            QTest::addRow("8160, label 5 alone, %s", dialect) << letter << QList<int>{5} << own;
            QTest::addRow("L7160, label 22 alone, %s", dialect) << a4 << QList<int>{22} << own;
        }
    }
    void everyLabelStandsOnItsLabelOfTheStock() {
        QFETCH(int, sheet);
        QFETCH(QList<int>, numbers);
        QFETCH(bool, ownPdf);
        if (!ownPdf && soffice.isEmpty())
            QSKIP("LibreOffice (soffice) is not on PATH; install libreoffice-writer-nogui to run this test.");
        QList<clsLabel> labels;
        for (const int n : numbers)
            labels.append({QString::number(n), LabelText(n)});
        const QString pdf = SheetPdf(sheet, labels, ownPdf);
        QVERIFY2(!pdf.isEmpty(), "no PDF was made");
        const QList<Word> words = WordsOf(pdf);
        const Stock stock = StockOf(sheet);
        for (const int n : numbers) {
            const auto found = std::find_if(words.begin(), words.end(),
                                            [&](const Word& word) { return word.Text == FirstWord(n); });
            QVERIFY2(found != words.end(), qPrintable(FirstWord(n)));
            const int onPage = (n - 1) % stock.PerPage;
            const QRectF label(stock.Left + (onPage % stock.Across) * stock.PitchX,
                               stock.Top + (onPage / stock.Across) * stock.PitchY, stock.Width, stock.Height);
            const QString where = QStringLiteral("%1 on page %2 at %3,%4 (label at %5,%6)")
                                      .arg(FirstWord(n))
                                      .arg(found->Page)
                                      .arg(found->Box.left())
                                      .arg(found->Box.top())
                                      .arg(label.left())
                                      .arg(label.top());
            QVERIFY2(found->Page == (n - 1) / stock.PerPage + 1, qPrintable(where));
            QVERIFY2(found->Box.left() >= label.left() && found->Box.right() <= label.right(),
                     qPrintable(where));
            QVERIFY2(found->Box.top() >= label.top() && found->Box.top() <= label.top() + kTolerance,
                     qPrintable(where));
        }
    }

    // A label of more lines than it holds is cut at its edge: nothing of it reaches the label below,
    // which stays in its place.
    void aLongAddressIsCutAtTheLabelsEdge_data() {
        AddDialects();
        QTest::newRow("LibreOffice") << false;
        QTest::newRow("PDF") << true;
    }
    void aLongAddressIsCutAtTheLabelsEdge() {
        QFETCH(bool, ownPdf);
        if (!ownPdf && soffice.isEmpty())
            QSKIP("LibreOffice (soffice) is not on PATH.");
        QStringList lines;
        for (int line = 1; line <= 12; ++line)
            lines << QStringLiteral("Line%1").arg(line);
        const QList<clsLabel> labels = {{QStringLiteral("2"), lines.join(QStringLiteral("\r\n"))},
                                        {QStringLiteral("5"), LabelText(5)}};
        const QString pdf = SheetPdf(clsLabelSheet::Avery8160, labels, ownPdf);
        QVERIFY(!pdf.isEmpty());
        const Stock stock = StockOf(clsLabelSheet::Avery8160);
        const double bottom = stock.Top + stock.Height;
        QStringList shown;
        for (const Word& word : WordsOf(pdf)) {
            if (word.Text.startsWith(QLatin1String("Line"))) {
                shown << word.Text;
                QVERIFY2(word.Box.top() < bottom,
                         qPrintable(word.Text)); // the line across the edge is clipped
            }
            if (word.Text == FirstWord(5))
                QVERIFY(word.Box.top() >= bottom && word.Box.top() <= bottom + kTolerance);
        }
        QVERIFY(shown.contains(QStringLiteral("Line1")));
        QVERIFY2(!shown.contains(QStringLiteral("Line12")), qPrintable(shown.join(' ')));
    }
};

QTEST_MAIN(tst_LabelSheetGeometry)
#include "tst_LabelSheetGeometry.moc"
