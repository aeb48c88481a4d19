#include "TestDatabase.h"
#include "UiTestTools.h"
#include "pdf/clsPdfDialect.h"
#include "core/modGeneral.h"
#include "guests/GuestTestData.h"
#include "platform/clsRegistry.h"
#include "reports/RtfTestTools.h"
#include "reports/clsReportCatalogue.h"
#include "reports/ui/frmReportsLabels.h"
#include "reports/ui/modReportDialogs.h"
#include "reports/ui/usrLabel.h"

#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QCheckBox>
#include <QRadioButton>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

using namespace UiTestTools;

namespace {

// Four guests with addresses besides the couple, listed by last name: Ames, Bell, Cole, Dunn.
void AddGuests() {
    using GuestTestData::AddContact;
    int street = 1;
    for (const char* last : {"Dunn", "Bell", "Ames", "Cole"})
        AddContact({{"FIRST_NM", "Guest"},
                    {"LAST_NM", last},
                    {"ADDRESS_TX", QStringLiteral("%1 Oak St\r\nSalem, OR 97301").arg(street++)}});
}

clsReportRoute ContactsRoute() {
    clsReportRoute route;
    route.Dialog = QStringLiteral("frmReportsLabels");
    route.FormNumber = clsReportCatalogue::Contacts;
    route.FilterText = QStringLiteral("All");
    return route;
}

// A drag of this kind and data delivered to the widget, as the desktop hands it over.
void Drop(QWidget* target, const QString& kind, const QByteArray& data) {
    QMimeData mime;
    mime.setData(kind, data);
    const QPoint centre = target->rect().center();
    QDragEnterEvent enter(centre, Qt::MoveAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(target, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(centre, Qt::MoveAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(target, &drop);
}

} // namespace

class tst_frmReportsLabels : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static usrLabel* Label(frmReportsLabels& form, int number) {
        return Child<usrLabel>(form, QStringLiteral("usrLabel_%1").arg(number));
    }

    // The filled labels as "number=last name".
    static QStringList Placed(frmReportsLabels& form) {
        QStringList placed;
        for (const clsLabel& label : form.PlacedLabels())
            placed << label.LABEL_NUMBER_TX + '=' +
                          label.FULL_ADDRESS_TX.section(' ', 1, 1).section('\r', 0, 0);
        return placed;
    }

    static void Select(frmReportsLabels& form, const QStringList& lastNames) {
        auto* list = Child<QTreeWidget>(form, "lvw");
        list->clearSelection();
        for (const QString& name : lastNames) {
            const auto found = list->findItems("Guest " + name, Qt::MatchExactly, 0);
            QVERIFY2(found.size() == 1, qPrintable(name));
            found.first()->setSelected(true);
        }
    }

    // One step: "select Ames Cole" (by last name), "drop N" (the selection onto label N), "move A B", "return
    // N" (label N onto the list), "fill N", "enter" (in the list), "delete N" (label N clicked, then Delete),
    // "clearall".
    static void Run(frmReportsLabels& form, const QString& step) {
        const QStringList words = step.split(' ');
        const QString& op = words[0];
        const int first = words.value(1).toInt();
        if (op == "select") {
            Select(form, words.mid(1));
        } else if (op == "drop") {
            Drop(Label(form, first), usrLabel::AddressesMime, "1");
        } else if (op == "move") {
            Drop(Label(form, words[2].toInt()), usrLabel::LabelMime, QByteArray::number(first));
        } else if (op == "return") {
            Drop(Child<QTreeWidget>(form, "lvw")->viewport(), usrLabel::LabelMime, QByteArray::number(first));
        } else if (op == "fill") {
            form.FillFrom(first);
        } else if (op == "enter") {
            QTest::keyClick(Child<QTreeWidget>(form, "lvw"), Qt::Key_Return);
        } else if (op == "delete") {
            QTest::mouseClick(Label(form, first), Qt::LeftButton);
            QTest::keyClick(Label(form, first), Qt::Key_Delete);
        } else if (op == "clearall") {
            QTest::mouseClick(Child<QWidget>(form, "linkClearAll"), Qt::LeftButton, {}, QPoint(5, 5));
        } else {
            QFAIL(qPrintable(step));
        }
    }

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        AddGuests();
    }
    void cleanup() { db.reset(); }

    void theReportScreenOpensIt() {
        ReportDialogs::RegisterOwnDialogs();
        QVERIFY(ReportDialogs::Exists("frmReportsLabels"));
        frmReportsLabels form(ContactsRoute());
        QCOMPARE(form.windowTitle(), QStringLiteral("Print Contact Labels"));
        auto* list = Child<QTreeWidget>(form, "lvw");
        // The couple (without names or addresses here) and the four guests, by last name.
        QCOMPARE(list->topLevelItemCount(), 6);
        QCOMPARE(list->topLevelItem(2)->text(0), QStringLiteral("Guest Ames"));
        QCOMPARE(list->topLevelItem(2)->text(1), QStringLiteral("3 Oak St, Salem, OR 97301"));
        QCOMPARE(Child<QLabel>(form, "lblSelected")->text(), QStringLiteral("0 of 6 selected"));
        QCOMPARE(Child<QLabel>(form, "lblCount")->text(), QStringLiteral("0 labels to print"));
        QVERIFY(!Child<QPushButton>(form, "cmdRun")->isEnabled());
        QVERIFY(Child<QLabel>(form, "lblHint")->text().contains("drag a label back to the list"));
        QTest::mouseClick(Child<QWidget>(form, "linkSelectAll"), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(Child<QLabel>(form, "lblSelected")->text(), QStringLiteral("6 of 6 selected"));
    }

    void placingLabels_data() {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QStringList>("placed");
        QTest::newRow("each further selected address takes the next label")
            << QStringList{"select Ames Cole", "drop 5"} << QStringList{"5=Ames", "6=Cole"};
        QTest::newRow("no further than the last label")
            << QStringList{"select Ames Bell Cole", "drop 29"} << QStringList{"29=Ames", "30=Bell"};
        QTest::newRow("a label moves to an empty one")
            << QStringList{"select Ames", "drop 1", "move 1 7"} << QStringList{"7=Ames"};
        QTest::newRow("a label moved onto another swaps with it")
            << QStringList{"select Ames Bell", "drop 1", "move 1 2"} << QStringList{"1=Bell", "2=Ames"};
        QTest::newRow("a label dragged back to the list is cleared")
            << QStringList{"select Ames Bell", "drop 1", "return 1"} << QStringList{"2=Bell"};
        QTest::newRow("Delete clears the label clicked")
            << QStringList{"select Ames Bell", "drop 1", "delete 2"} << QStringList{"1=Ames"};
        QTest::newRow("fill from a label takes all when none is selected")
            << QStringList{"fill 26"} << QStringList{"28=Ames", "29=Bell", "30=Cole"};
        QTest::newRow("Enter fills the free labels")
            << QStringList{"select Dunn", "drop 2", "select Ames Bell", "enter"}
            << QStringList{"1=Ames", "2=Dunn", "3=Bell"};
        QTest::newRow("Clear All") << QStringList{"fill 1", "clearall"} << QStringList{};
    }
    void placingLabels() {
        QFETCH(QStringList, steps);
        QFETCH(QStringList, placed);
        frmReportsLabels form(ContactsRoute());
        ShowActive(form);
        for (const QString& step : steps)
            Run(form, step);
        QCOMPARE(Placed(form), placed);
        QCOMPARE(Child<QLabel>(form, "lblCount")->text(),
                 QString::number(placed.size()) + " labels to print");
        QCOMPARE(Child<QPushButton>(form, "cmdRun")->isEnabled(), !placed.isEmpty());
    }

    // The A4 sheet: taller cells, its sizes, and the warning beside label 22; the choice is kept.
    void theSheetIsChosenAndKept() {
        {
            frmReportsLabels form(ContactsRoute());
            ShowActive(form);
            QVERIFY(Child<QRadioButton>(form, "opt_0")->isChecked());
            QVERIFY(!Child<QLabel>(form, "imgSpillOver")->isVisible());
            const int letterHeight = Label(form, 1)->height();
            QTest::mouseClick(Child<QRadioButton>(form, "opt_1"), Qt::LeftButton, {}, QPoint(5, 5));
            QVERIFY(Child<QLabel>(form, "imgSpillOver")->isVisible());
            QCOMPARE(Child<QLabel>(form, "lblPaper")->text(),
                     QStringLiteral("Paper size: A4 (210 x 297 mm)"));
            QCOMPARE(Child<QLabel>(form, "lblLabelSize")->text(),
                     QStringLiteral("Label size: 38mm x 63.5mm"));
            QVERIFY(Label(form, 1)->maximumHeight() > letterHeight);
            form.reject();
        }
        QCOMPARE(gRegistry().GetSetting(FormRegistryKey("frmReportsLabels"), "opt0", "True"),
                 QStringLiteral("False"));
        frmReportsLabels again(ContactsRoute());
        QVERIFY(Child<QRadioButton>(again, "opt_1")->isChecked());
    }

    void printWritesTheSheet_data() {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("paper");
        QTest::newRow("8160") << "opt_0"
                              << "\\pgwsxn12240";
        QTest::newRow("L7160") << "opt_1"
                               << "\\pgwsxn11909";
    }
    void printWritesTheSheet() {
        QFETCH(QString, sheet);
        QFETCH(QString, paper);
        frmReportsLabels form(ContactsRoute());
        ShowActive(form);
        Child<QRadioButton>(form, sheet)->setChecked(true);
        Run(form, "select Ames");
        Run(form, "drop 5");
        QTest::mouseClick(Child<QPushButton>(form, "cmdRun"), Qt::LeftButton);
        QVERIFY(QFileInfo(form.LastFile()).fileName().startsWith("Labels_"));
        const QString rtf = QString::fromLatin1(RtfTestTools::FileBytes(form.LastFile()));
        QVERIFY(rtf.contains(paper));
        QVERIFY(rtf.contains("Guest Ames \\par 3 Oak St \\par Salem, OR 97301"));
        QVERIFY(rtf.contains("{\\f0\\ Verdana;}"));

        // The same sheet as PDF, and the choice is kept for the next time.
        clsPdfDialect::Register(); // as the program does at start
        Child<QCheckBox>(form, "chkPdf")->setChecked(true);
        QTest::mouseClick(Child<QPushButton>(form, "cmdRun"), Qt::LeftButton);
        QVERIFY(form.LastFile().endsWith(".pdf"));
        QVERIFY(RtfTestTools::FileBytes(form.LastFile()).startsWith("%PDF-"));
        form.reject();
        QVERIFY(Child<QCheckBox>(frmReportsLabels(ContactsRoute()), "chkPdf")->isChecked());
    }
};

QTEST_MAIN(tst_frmReportsLabels)
#include "tst_frmReportsLabels.moc"
