#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "guests/GuestTestData.h"
#include "pdf/clsPdfDialect.h"
#include "platform/clsShell.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsReportClasses.h"
#include "reports/modReportRegistry.h"
#include "reports/ui/frmReports.h"
#include "reports/ui/frmReportsCustomFilter.h"
#include "reports/ui/frmReportsFont.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/controls/usrColor.h"
#include "shell/controls/usrHyperlink.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

using C = clsReportCatalogue;
using namespace UiTestTools;

namespace {

// The report classes the tests offer: each writes a one-line file and keeps the route it was given.
const QStringList kFakeClasses = {QStringLiteral("clsRTFContacts"), QStringLiteral("clsRTFInvitation"),
                                  QStringLiteral("clsRTFRSVP"), QStringLiteral("clsRTFAttendees"),
                                  QStringLiteral("clsRTFMeal")};
QList<clsReportRoute> gBuilt;

QString FakeBuild(const clsReportRoute& route) {
    gBuilt.append(route);
    const QString path = C::ReportFullFileName(route.FilePrefix, gRTFMasterTemp().USE_RTF);
    gApp().MakeReportPath();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(route.FilterText.toUtf8());
    return path;
}

// Four guests besides the couple:
//   Carl  friend of the bride, A list     Dora  friend of the bride, B list
//   Emil  friend of the groom, A list     Fay   friend of both, A list
void AddGuests() {
    using GuestTestData::AddContact;
    AddContact({{"FIRST_NM", "Carl"}, {"FRIEND_OF_CD", 1}, {"AB_LIST_CD", "A"}});
    AddContact({{"FIRST_NM", "Dora"}, {"FRIEND_OF_CD", 1}, {"AB_LIST_CD", "B"}, {"GENDER_FG", "F"}});
    AddContact({{"FIRST_NM", "Emil"}, {"FRIEND_OF_CD", 2}, {"AB_LIST_CD", "A"}});
    AddContact({{"FIRST_NM", "Fay"}, {"FRIEND_OF_CD", 3}, {"AB_LIST_CD", "A"}, {"GENDER_FG", "F"}});
}

// Clicks a check box on its box: the caption of a box in a wide column is shorter than the column.
void Tick(QWidget& form, const QString& name) {
    auto* box = form.findChild<QCheckBox*>(name);
    QVERIFY2(box, qPrintable(name));
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
}

QTreeWidgetItem* RowCaptioned(QTreeWidget* grid, const QString& caption) {
    const QList<QTreeWidgetItem*> found = grid->findItems(caption, Qt::MatchExactly, 0);
    return found.isEmpty() ? nullptr : found.first();
}

void ClickRow(QTreeWidget* grid, QTreeWidgetItem* item) {
    QVERIFY(item);
    grid->scrollToItem(item);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualItemRect(item).center());
}

// Opens the form on a section and a filter key, shown, as a page's print command would.
std::unique_ptr<frmReports> OpenReports(int section, int filterKey) {
    auto form = std::make_unique<frmReports>();
    form->RPT_ROW = section;
    form->FilterIndex = filterKey;
    form->show();
    return form;
}

// Answers the next modal dialog by name: hands it to `inspect`, then closes it.
void OnNextDialog(std::function<void(QWidget*)> inspect) {
    QTimer::singleShot(0, [inspect] {
        QWidget* dialog = QApplication::activeModalWidget();
        inspect(dialog);
        if (auto* d = qobject_cast<QDialog*>(dialog))
            d->reject();
    });
}

} // namespace

class tst_ReportDialogs : public QObject {
    Q_OBJECT

private slots:
    void init() {
        mDb = std::make_unique<TestDatabase>();
        gVowren().OpenRecords();
        AddGuests();
        for (const QString& name : kFakeClasses)
            clsReportClasses::Register(name, FakeBuild);
        ReportDialogs::RegisterOwnDialogs();
        gBuilt.clear();
        gRTFMasterTemp() = clsRTFMasterTemp();
    }
    void cleanup() {
        for (const QString& name : kFakeClasses)
            clsReportClasses::Unregister(name);
        ReportDialogs::Unregister(QStringLiteral("frmReportsLabels"));
        mDb.reset();
    }
    void sectionWithoutClassesCannotRun() {
        auto form = OpenReports(C::Budget, 0);
        auto* gridFilter = Child<QTreeWidget>(*form, QStringLiteral("gridFilter"));
        QCOMPARE(gridFilter->topLevelItem(0)->text(2), QStringLiteral("Not available yet"));
        QCOMPARE(form->FilterRowIndex(), -1);
        QVERIFY(!Child<QPushButton>(*form, QStringLiteral("cmdRun"))->isEnabled());
    }
    void labelsFollowTheirRuleAndFallBack() {
        QList<clsReportRoute> labelRoutes;
        ReportDialogs::Register(QStringLiteral("frmReportsLabels"),
                                [&](QWidget*, const clsReportRoute& route) { labelRoutes.append(route); });
        auto form = OpenReports(C::Contacts, 4);
        auto* opt2 = Child<QRadioButton>(*form, QStringLiteral("opt_2"));
        auto* cmdRun = Child<QPushButton>(*form, QStringLiteral("cmdRun"));
        QVERIFY(opt2->isEnabled());
        QTest::mouseClick(opt2, Qt::LeftButton);
        QVERIFY(opt2->isChecked());
        QCOMPARE(cmdRun->text(), QStringLiteral("Continue"));
        QVERIFY(
            !Child<QPushButton>(*form, QStringLiteral("cmdPreview"))->isEnabled()); // labels are not pages
        QTest::mouseClick(cmdRun, Qt::LeftButton);
        QCOMPARE(labelRoutes.size(), 1);
        QCOMPARE(labelRoutes[0].FormNumber, int(C::Contacts));
        QCOMPARE(labelRoutes[0].FilterEnum, 4);
        QCOMPARE(labelRoutes[0].FilterText, QStringLiteral("A-list"));
        QVERIFY(gBuilt.isEmpty());

        auto* gridReport = Child<QTreeWidget>(*form, QStringLiteral("gridReport"));
        ClickRow(gridReport, RowCaptioned(gridReport, QStringLiteral("RSVPs")));
        QVERIFY(!opt2->isEnabled());
        QVERIFY(Child<QRadioButton>(*form, QStringLiteral("opt_0"))->isChecked());
        QCOMPARE(cmdRun->text(), QStringLiteral("Run"));
    }

    void runTakesTheChoicesBuildsAndOpens() {
        QStringList opened;
        gShell().SetOpener([&](const QString& target) {
            opened << target;
            return true;
        });
        qunsetenv("VOWREN_NO_OPEN");
        auto form = OpenReports(C::Contacts, 1);
        QTest::mouseClick(Child<QRadioButton>(*form, QStringLiteral("opt_1")), Qt::LeftButton);
        Child<QComboBox>(*form, QStringLiteral("cboPaperSize"))->setCurrentIndex(1);
        Child<QComboBox>(*form, QStringLiteral("cboPaperOrientation"))->setCurrentIndex(1);
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdRun")), Qt::LeftButton);
        qputenv("VOWREN_NO_OPEN", "1");
        gShell().SetOpener(nullptr);

        QCOMPARE(gBuilt.size(), 1);
        QCOMPARE(gBuilt[0].ClassName, QStringLiteral("clsRTFContacts"));
        QCOMPARE(gBuilt[0].FilterEnum, 1);
        QCOMPARE(gBuilt[0].FilterText, QStringLiteral("Friend of Bride"));
        QVERIFY(!gRTFMasterTemp().USE_RTF);
        QVERIFY(gRTFMasterTemp().A4);
        QVERIFY(!gRTFMasterTemp().LANDSCAPE);
        QVERIFY(form->WrittenFile().endsWith(QStringLiteral(".csv")));
        QVERIFY(QFile::exists(form->WrittenFile()));
        QCOMPARE(opened, QStringList{form->WrittenFile()});
        QVERIFY(form->isVisible()); // stays open for the next report
        QVERIFY(Child<QLabel>(*form, QStringLiteral("lblStatus"))
                    ->text()
                    .contains(QStringLiteral("01_Contacts_")));
    }

    void customFilterRowOpensTheDialog() {
        auto form = OpenReports(C::Attendees, C::CustomFilterKey);
        QVERIFY(!Child<QPushButton>(*form, QStringLiteral("cmdPrint"))->isEnabled()); // its dialog asks first
        QString header;
        OnNextDialog([&](QWidget* dialog) {
            QVERIFY(dialog);
            header = Child<QLabel>(*dialog, QStringLiteral("lblHeader"))->text();
        });
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdRun")), Qt::LeftButton);
        QCOMPARE(header, QStringLiteral("Attendees"));
        QVERIFY(gBuilt.isEmpty());
    }

    void choicesPersistAndComeBack() {
        gVowren().QuickUpdate(5, QString::number(clsColor(1, 2, 3).RGBValue()));
        {
            auto form = OpenReports(C::Contacts, 0);
            QCOMPARE(form->Choices().SubHeader, clsColor(1, 2, 3));
            QCOMPARE(form->Choices().FontName, QStringLiteral("Verdana"));
            form->mfrmReportsFont_FontChanged(QStringLiteral("DejaVu Serif"), QStringLiteral("12"));
            Child<QComboBox>(*form, QStringLiteral("cboPaperSize"))->setCurrentIndex(1);
            Child<QComboBox>(*form, QStringLiteral("cboPaperOrientation"))->setCurrentIndex(1);
            QTest::mouseClick(Child<QRadioButton>(*form, QStringLiteral("opt_3")), Qt::LeftButton);
            QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdCancel")), Qt::LeftButton);
        }
        const QString key = FormRegistryKey(QStringLiteral("frmReports"));
        QCOMPARE(gRegistry().GetSetting(key, QStringLiteral("Font"), {}), QStringLiteral("DejaVu Serif"));
        QCOMPARE(gRegistry().GetSetting(key, QStringLiteral("FontSize"), {}), QStringLiteral("12"));
        QCOMPARE(gRegistry().GetSetting(key, QStringLiteral("PaperSize"), {}), QStringLiteral("1"));
        QCOMPARE(gRegistry().GetSetting(key, QStringLiteral("PaperOrientation"), {}), QStringLiteral("1"));
        QCOMPARE(gRegistry().GetSetting(key, QStringLiteral("ReportType"), {}), QStringLiteral("3"));

        auto again = OpenReports(C::Contacts, 0);
        QCOMPARE(Child<usrHyperlink>(*again, QStringLiteral("linkFont"))->Caption(),
                 QStringLiteral("DejaVu Serif"));
        QCOMPARE(Child<usrHyperlink>(*again, QStringLiteral("linkFontSize"))->Caption(),
                 QStringLiteral("12"));
        QCOMPARE(again->Choices().PaperSizeIndex, 1);
        QCOMPARE(again->Choices().PaperOrientationIndex, 1);
        QCOMPARE(again->Choices().SubHeader, clsColor(1, 2, 3));
        QVERIFY(Child<QRadioButton>(*again, QStringLiteral("opt_3"))->isChecked());
    }

    void runWritesTheChosenDialect_data() {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("rtf");
        QTest::addColumn<bool>("pdf");
        QTest::addRow("RTF") << "opt_0" << true << false;
        QTest::addRow("CSV") << "opt_1" << false << false;
        QTest::addRow("PDF") << "opt_3" << true << true;
    }
    void runWritesTheChosenDialect() {
        QFETCH(QString, option);
        QFETCH(bool, rtf);
        QFETCH(bool, pdf);
        gRTFMasterTemp().USE_PDF = !pdf;
        auto form = OpenReports(C::Contacts, 0);
        QTest::mouseClick(Child<QRadioButton>(*form, option), Qt::LeftButton);
        QVERIFY(Child<QPushButton>(*form, QStringLiteral("cmdPreview"))->isEnabled());
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdRun")), Qt::LeftButton);
        QCOMPARE(gBuilt.size(), 1);
        QCOMPARE(gRTFMasterTemp().USE_RTF, rtf);
        QCOMPARE(gRTFMasterTemp().USE_PDF, pdf);
    }

    // What Preview and Print paint: the report's pages on the printer, and no file in the folder.
    void previewPagesPrintWithoutAFile() {
        const QStringList fakes = clsReportClasses::Names();
        RegisterReportClasses(); // the real contacts report, for this test only
        const auto unregister = qScopeGuard([&fakes] {
            for (const QString& name : clsReportClasses::Names())
                if (!fakes.contains(name))
                    clsReportClasses::Unregister(name);
        });
        gRTFMasterTemp().A4 = true;
        gRTFMasterTemp().USE_RTF = false; // CSV chosen: the preview still shows pages
        const QList<C::FilterRow> rows = C::FilterRows(C::Contacts);
        const auto pages = ReportDialogs::LayOut(C::Route(C::Contacts, rows, 0));
        QVERIFY(pages);
        QVERIFY(QDir(gApp().ReportPath()).isEmpty());
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(mDb->File(QStringLiteral("printed.pdf")));
        printer.setPageLayout(pages->PageLayout());
        QVERIFY(ReportDialogs::PrintPages(*pages, printer));
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {printer.outputFileName(), QStringLiteral("-")});
        if (!reader.waitForFinished(60000))
            QSKIP("pdftotext (poppler-utils) is not installed");
        const QString text = QString::fromUtf8(reader.readAllStandardOutput());
        for (const char* name : {"Carl", "Dora", "Emil", "Fay", "Page 1 of 1"})
            QVERIFY2(text.contains(QLatin1String(name)), qPrintable(text));
        QCOMPARE(printer.pageLayout().pageSize().id(), QPageSize::A4);
    }

    void chosenColorIsStoredAtOnceAndReachesTheReports() {
        usrColor::SetChooser([](const QColor&, QWidget*, const QString&) { return QColor(10, 20, 30); });
        auto form = OpenReports(C::Contacts, 0);
        QVERIFY(Child<usrColor>(*form, QStringLiteral("usrColor_6"))->ChooseColor());
        usrColor::SetChooser(nullptr);
        QCOMPARE(clsVOWREN::ReadStored(6), QString::number(clsColor(10, 20, 30).RGBValue()));
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdRun")), Qt::LeftButton);
        QCOMPARE(gRTFMasterTemp().BorderColor(), clsColor(10, 20, 30));
        QCOMPARE(gRTFMasterTemp().HeaderColor(), clsRTFMasterTemp::DefaultHeaderColor());
    }

    void keyboardRunsAndCloses() {
        auto form = OpenReports(C::Contacts, 2);
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
        QTest::keyClick(Child<QTreeWidget>(*form, QStringLiteral("gridFilter")), Qt::Key_Down);
        QCOMPARE(form->FilterRowIndex(), 3);
        QTest::keyClick(Child<QTreeWidget>(*form, QStringLiteral("gridFilter")), Qt::Key_Return);
        QCOMPARE(gBuilt.size(), 1);
        QCOMPARE(gBuilt[0].FilterText, QStringLiteral("Friend of Both"));
        QTest::keyClick(Child<QTreeWidget>(*form, QStringLiteral("gridFilter")), Qt::Key_Left);
        QVERIFY(Child<QTreeWidget>(*form, QStringLiteral("gridReport"))->hasFocus());
        QTest::keyClick(Child<QTreeWidget>(*form, QStringLiteral("gridReport")), Qt::Key_Down);
        QCOMPARE(form->SectionKey(), int(C::Invitations));
        QTest::keyClick(form.get(), Qt::Key_Escape);
        QVERIFY(!form->isVisible());
    }

    void fontDialogHandsBackBothValues() {
        frmReportsFont form(QStringLiteral("No Such Font"), QStringLiteral("9"));
        auto* cboFont = Child<QComboBox>(form, QStringLiteral("cboFont"));
        QCOMPARE(cboFont->currentText(), QStringLiteral("No Such Font")); // kept, not replaced
        auto* cboFontSize = Child<QComboBox>(form, QStringLiteral("cboFontSize"));
        cboFontSize->setCurrentText(QStringLiteral("14"));
        QCOMPARE(Child<QLabel>(form, QStringLiteral("lblExample"))->font().pointSize(), 14);
        QSignalSpy spy(&form, &frmReportsFont::FontChanged);
        QTest::mouseClick(Child<QPushButton>(form, QStringLiteral("cmdOK")), Qt::LeftButton);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy[0][0].toString(), QStringLiteral("No Such Font"));
        QCOMPARE(spy[0][1].toString(), QStringLiteral("14"));
        QCOMPARE(form.result(), int(QDialog::Accepted));
    }

    void customFilterCountsTheTickedBoxes_data() {
        QTest::addColumn<QStringList>("ticks");
        QTest::addColumn<QString>("condition");
        // The custom filter takes the couple too: the seed rows make the bride a friend of the bride on
        // the A list.
        QTest::newRow("friend of bride and A list")
            << QStringList{"chk_1", "chk_4"} << "FRIEND_OF_CD = 1 AND AB_LIST_CD = 'A'";
        QTest::newRow("one group, two boxes") << QStringList{"chk_1", "chk_2"} << "FRIEND_OF_CD IN (1, 2)";
        QTest::newRow("nothing") << QStringList{} << "";
    }
    void customFilterCountsTheTickedBoxes() {
        QFETCH(QStringList, ticks);
        frmReportsCustomFilter form(clsCustomFilter::Contacts);
        QCOMPARE(Child<QLabel>(form, QStringLiteral("lblHeader"))->text(), QStringLiteral("Contacts"));
        auto* cmdRun = Child<QPushButton>(form, QStringLiteral("cmdRun"));
        for (const QString& name : ticks)
            Tick(form, name);
        QFETCH(QString, condition);
        const QString expected =
            condition.isEmpty() ? QString()
                                : QStringLiteral("custom filter = %1 records")
                                      .arg(TestDatabase::Scalar(
                                          QStringLiteral("SELECT COUNT(*) FROM CONTACT WHERE ") + condition));
        QCOMPARE(Child<QLabel>(form, QStringLiteral("lblCount"))->text(), expected);
        QCOMPARE(cmdRun->isEnabled(), !ticks.isEmpty());
        for (const QString& name : ticks)
            Tick(form, name);
        QVERIFY(!cmdRun->isEnabled());
        QVERIFY(Child<QLabel>(form, QStringLiteral("lblCount"))->text().isEmpty());
    }

    void customFilterRunBuildsTheSectionReport() {
        frmReportsCustomFilter form(clsCustomFilter::Contacts);
        form.show();
        Tick(form, QStringLiteral("chk_1"));
        Tick(form, QStringLiteral("chk_4"));
        QTest::mouseClick(Child<QPushButton>(form, QStringLiteral("cmdRun")), Qt::LeftButton);
        QCOMPARE(gBuilt.size(), 1);
        QCOMPARE(gBuilt[0].ClassName, QStringLiteral("clsRTFContacts"));
        QCOMPARE(gBuilt[0].FilterEnum, C::CustomWhereContacts);
        QCOMPARE(gBuilt[0].FilterText, QStringLiteral("Friend of Bride+A list"));
        QCOMPARE(gBuilt[0].CustomWhere, form.Filter().BuildWhere());
        QVERIFY(QFile::exists(form.WrittenFile()));
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QVERIFY(!form.isVisible());
    }

    void customFilterArrowsMoveThroughTheBoxes() {
        frmReportsCustomFilter form(clsCustomFilter::Contacts);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        auto* first = Child<QCheckBox>(form, QStringLiteral("chk_1"));
        first->setFocus();
        QTest::keyClick(first, Qt::Key_Right);
        QVERIFY(Child<QCheckBox>(form, QStringLiteral("chk_2"))->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QVERIFY(Child<QCheckBox>(form, QStringLiteral("chk_5"))->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(form.Filter().IsTicked(5));
    }

private:
    std::unique_ptr<TestDatabase> mDb;
};

QTEST_MAIN(tst_ReportDialogs)
#include "tst_ReportDialogs.moc"
