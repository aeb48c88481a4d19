#include "TestHome.h"
#include "core/modGeneral.h"
#include "reports/GuestReportTestData.h"
#include "reports/RtfTestTools.h"
#include "reports/clsRTFMaster.h"
#include "reports/clsRTFMasterTemp.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

// A real reader opens what the writer writes: LibreOffice converts a report to plain text and to PDF,
// and the text must come back exactly as it went in. Skipped where LibreOffice is not installed.
class tst_RtfInLibreOffice : public QObject {
    Q_OBJECT

    std::unique_ptr<TestHome> home;
    QTemporaryDir profile; // LibreOffice's own settings for these runs, apart from the user's
    QString soffice;

    // Converts the file with LibreOffice into the given filter's format; the path of the result.
    QString Convert(const QString& file, const QString& filter, const QString& extension) {
        const QString outDir = home->File("converted");
        QDir().mkpath(outDir);
        QProcess process;
        process.start(soffice, {"-env:UserInstallation=" + QUrl::fromLocalFile(profile.path()).toString(),
                                "--headless", "--convert-to", filter, "--outdir", outDir, file});
        if (!process.waitForFinished(300000)) {
            process.kill();
            return {};
        }
        const QString result = outDir + "/" + QFileInfo(file).completeBaseName() + "." + extension;
        return QFileInfo::exists(result) ? result : QString();
    }

    // Converts the files with LibreOffice in one run into outDir; the result of each file, or "" for one
    // LibreOffice did not make.
    QStringList ConvertAll(const QStringList& files, const QString& filter, const QString& extension,
                           const QString& outDir) {
        QDir().mkpath(outDir);
        QProcess process;
        process.start(soffice,
                      QStringList{"-env:UserInstallation=" + QUrl::fromLocalFile(profile.path()).toString(),
                                  "--headless", "--convert-to", filter, "--outdir", outDir} +
                          files);
        if (!process.waitForFinished(600000))
            process.kill();
        QStringList results;
        for (const QString& file : files) {
            const QString result = outDir + "/" + QFileInfo(file).completeBaseName() + "." + extension;
            results << (QFileInfo::exists(result) ? result : QString());
        }
        return results;
    }

    QString PdfText(const QString& pdf) {
        QProcess process;
        process.start(QStandardPaths::findExecutable("pdftotext"), {"-layout", pdf, "-"});
        process.waitForFinished(60000);
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    static QString Nasty() { return QStringLiteral(R"(Zoë O'Brien-Łukasik {Jr.} C:\temp)"); }
    static QStringList Scripts() {
        return {QStringLiteral("Καλημέρα κόσμε, Ωμέγα"), QStringLiteral("結婚式の招待状 婚礼 한국어"),
                QStringLiteral("Ring 💍 and “quotes” – 5 €"), QStringLiteral(R"(\par {\b not bold} \u233?)")};
    }

    // A report of several pages: a repeated header row, the hard texts, then numbered rows.
    QString WriteReport(int rows) {
        clsRTFMasterTemp settings;
        settings.FONT_NAME = "DejaVu Sans";
        clsRTFMaster rtf(settings);
        rtf.SetGlobalSettings();
        rtf.FILE_NAME = "LibreOffice_" + QString::number(rows);
        rtf.TITLE = Nasty();
        rtf.STATISTICS = "Total Records: " + QString::number(rows);
        if (!rtf.RTFOpen())
            return {};
        rtf.AddCell(4000, "Name", clsRTFCell::AlignCenter, clsRTFCell::AlignTop, clsRTFCell::BorderBox,
                    clsRTFMasterTemp::HeaderFill, 0, true);
        rtf.AddCell(rtf.TABLE_WIDTH(), "Note", clsRTFCell::AlignCenter, clsRTFCell::AlignTop,
                    clsRTFCell::BorderBox, clsRTFMasterTemp::HeaderFill, 0, true);
        rtf.PrintCells(true, 0);
        rtf.SetCellsCELL_BACKCOLOR(0);
        rtf.RTFCells[0].CELL_TX = Nasty();
        rtf.RTFCells[1].CELL_TX = clsRTFMaster::BOLD("Bold") + " " + clsRTFMaster::ITALIC(Nasty());
        rtf.PrintCells();
        for (const QString& text : Scripts()) {
            rtf.RTFCells[0].CELL_TX = text;
            rtf.RTFCells[1].CELL_TX = "first line" + RtfMarkup::LineBreak() + "second line";
            rtf.PrintCells();
        }
        for (int i = 1; i <= rows; ++i) {
            rtf.RTFCells[0].CELL_TX = "Row " + QString::number(i);
            rtf.RTFCells[1].CELL_TX = "Guest number " + QString::number(i);
            rtf.PrintCells();
        }
        return rtf.RTFClose() ? rtf.FULL_FILE_NAME() : QString();
    }

private slots:
    void initTestCase() {
        soffice = QStandardPaths::findExecutable("soffice");
        if (soffice.isEmpty())
            QSKIP("LibreOffice (soffice) is not on PATH; install libreoffice-writer-nogui to run this test.");
        QVERIFY(profile.isValid());
    }
    void init() {
        home = std::make_unique<TestHome>();
        SetNowForTesting(QDateTime(QDate(2027, 6, 5), QTime(15, 5)));
    }
    void cleanup() {
        SetNowForTesting({});
        home.reset();
    }

    void textComesBackExactly() {
        const QString rtf = WriteReport(3);
        QVERIFY(!rtf.isEmpty());
        const QString txt = Convert(rtf, "txt:Text", "txt");
        QVERIFY2(!txt.isEmpty(), "LibreOffice made no text file");
        QString text = QString::fromUtf8(RtfTestTools::FileBytes(txt));
        text.remove(QChar(0xFEFF));
        QStringList lines = text.split(QRegularExpression("\r\n|\n"));
        for (QString& line : lines)
            line = line.trimmed(); // a line break of the writer leaves a blank before it
        QVERIFY2(lines.contains(Nasty()), qPrintable(lines.join('\n')));
        QVERIFY2(lines.contains("Bold " + Nasty()), qPrintable(lines.join('\n')));
        for (const QString& script : Scripts())
            QVERIFY2(lines.contains(script), qPrintable(script));
        QVERIFY(lines.contains("first line"));
        QVERIFY(lines.contains("second line"));
        QVERIFY(lines.contains("Total Records: 3"));
        QVERIFY(lines.contains("Guest number 3"));
        // None of the writer's own markup shows as text (the user's look-alike in Scripts() has no "\b0").
        for (const char* word : {"\\b0", "\\i0", "\\cell", "\\trowd", "\\pard"})
            QVERIFY2(!text.contains(word), word);
    }

    void pagesAreNumberedAndCarryTheHeader() {
        const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
        if (pdftotext.isEmpty())
            QSKIP("pdftotext (poppler-utils) is not on PATH.");
        const QString rtf = WriteReport(120);
        QVERIFY(!rtf.isEmpty());
        const QString pdf = Convert(rtf, "pdf", "pdf");
        QVERIFY2(!pdf.isEmpty(), "LibreOffice made no PDF");
        QProcess process;
        process.start(pdftotext, {"-layout", pdf, "-"});
        QVERIFY(process.waitForFinished(60000));
        const QString text = QString::fromUtf8(process.readAllStandardOutput());
        const QStringList pages = text.split(QChar('\f'), Qt::SkipEmptyParts);
        QVERIFY2(pages.size() >= 3, qPrintable(QString::number(pages.size())));
        const int count = static_cast<int>(pages.size());
        for (int page = 1; page <= count; ++page) {
            const QString pageText = pages.at(page - 1);
            const QString simplified = pageText.simplified();
            QVERIFY2(simplified.contains(QString("Page %1 of %2").arg(page).arg(count)),
                     qPrintable(simplified));
            // The title and the date sit in the page header and so stand on every page. (LibreOffice
            // 7.4 does not repeat a \trhdr row on its pages, so the table's header row is not checked.)
            QVERIFY2(simplified.contains(Nasty()), qPrintable(simplified));
            QVERIFY(simplified.contains("As of Jun 5, 2027"));
        }
        QVERIFY(text.contains("Guest number 120"));
    }

    // Every guest report of a small wedding, in landscape Letter and in portrait A4, opens in
    // LibreOffice with the hard name as typed and page numbers in the footer. The name stands in each
    // report: as a guest, an envelope, a meal, a table's label or a tent card.
    void guestReportsOpen() {
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            QSKIP("pdftotext (poppler-utils) is not on PATH.");
        RegisterReportClasses();
        TestDatabase db;
        GuestReportTestData::MakeSmallWedding();
        TestDatabase::Exec("UPDATE MEAL_DICT SET MEAL_TX = ? WHERE MEAL_TX = 'Fish'", {Nasty()});
        TestDatabase::Exec("UPDATE DINING_TABLE SET DINING_TABLE_NM = ? WHERE DINING_TABLE_ID = 2",
                           {Nasty()});
        const QList<QPair<QString, int>> reports{{"clsRTFContacts", 0},
                                                 {"clsRTFInvitation", 0},
                                                 {"clsRTFRSVP", 1},
                                                 {"clsRTFAttendees", 14},
                                                 {"clsRTFAttendeesTabulaRasa", 0},
                                                 {"clsRTFMeal", 0},
                                                 {"clsRTFRole", 0},
                                                 {"clsRTFTable", 0},
                                                 {"clsRTFTableLayout", 0},
                                                 {"clsRTFTentcard", 0},
                                                 {"clsRTFStatistics", 0}};
        for (const bool landscape : {true, false}) {
            QStringList files;
            for (const auto& [className, filter] : reports) {
                const GuestReportTestData::Shown shown = GuestReportTestData::Write(
                    GuestReportTestData::Route(className, filter), true, landscape, !landscape);
                QVERIFY2(shown.Error.isEmpty(), qPrintable(className + ": " + shown.Error));
                files << shown.File;
            }
            const QString outDir = db.File(landscape ? "landscape" : "portrait");
            const QStringList texts = ConvertAll(files, "txt:Text", "txt", outDir);
            const QStringList pdfs = ConvertAll(files, "pdf", "pdf", outDir);
            for (qsizetype i = 0; i < files.size(); ++i) {
                const QString what = reports[i].first + (landscape ? " landscape" : " portrait");
                QVERIFY2(!texts[i].isEmpty() && !pdfs[i].isEmpty(), qPrintable(what + ": not converted"));
                const QString text = QString::fromUtf8(RtfTestTools::FileBytes(texts[i]));
                // Only the portrait contacts list has the guest's name alone, last name first.
                const QString name = reports[i].first == "clsRTFContacts" && !landscape
                                         ? GuestReportTestData::NastyLast() + ", Zoë"
                                         : Nasty();
                QVERIFY2(text.contains(name), qPrintable(what + "\n" + text));
                QVERIFY2(PdfText(pdfs[i]).simplified().contains("Page 1 of "), qPrintable(what));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_RtfInLibreOffice)
#include "tst_RtfInLibreOffice.moc"
