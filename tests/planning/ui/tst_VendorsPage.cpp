#include "UiTestTools.h"
#include "planning/PlanningTestTools.h"
#include "planning/ui/frmBudget.h"
#include "planning/ui/frmMain_08_Vendors.h"
#include "planning/ui/frmVendor.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/usrGrid.h"

#include <QMenu>
#include <QTabWidget>
#include <QtTest>
#include <memory>

namespace {

using Page = frmMain_08_Vendors;

// Bloom & Co (a florist with an e-mail, two files, one of whose paths holds a ";") and Harbor Light
// (a photographer with only a web site).
void AddVendors() {
    TestDatabase::Exec("INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM, VENDOR_CATEGORY_ID, ADDRESS_TX, EMAIL_TX, "
                       "WEB_SITE_TX, FILE_PATH_TX) VALUES "
                       "(1, 'Bloom & Co', 1, '4 Rose Ln\r\nAustin, TX', 'ann@bloom.example', NULL, "
                       "'/tmp/quote.pdf;/tmp/a;b.txt'), "
                       "(2, 'Harbor Light', 1, NULL, NULL, 'harborlight.example', NULL)");
}

usrHyperlink* Link(const QWidget* page, int index) {
    return UiTestTools::Child<usrHyperlink>(page, QStringLiteral("linkAction_%1").arg(index));
}

} // namespace

class tst_VendorsPage : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() {
        db = std::make_unique<PlanningDatabase>();
        AddVendors();
    }
    void cleanup() { db.reset(); }

    void actionsFollowTheVendor_data() {
        QTest::addColumn<QString>("vendor");
        QTest::addColumn<bool>("email");
        QTest::addColumn<bool>("web");
        QTest::addColumn<bool>("map");
        QTest::addColumn<int>("paperclip");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("with e-mail, address and files")
            << "1" << true << false << true << 2 << QStringList({"quote.pdf", "a", "b.txt"});
        QTest::newRow("with a web site only") << "2" << false << true << false << 0 << QStringList();
    }
    void actionsFollowTheVendor() {
        QFETCH(QString, vendor);
        QFETCH(bool, email);
        QFETCH(bool, web);
        QFETCH(bool, map);
        QFETCH(int, paperclip);
        QFETCH(QStringList, files);
        Page page;
        page.show();
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {vendor});
        QCOMPARE(Link(&page, Page::EmailVendor)->isEnabled(), email);
        QCOMPARE(Link(&page, Page::VisitWebSite)->isEnabled(), web);
        QCOMPARE(Link(&page, Page::MapLocation)->isEnabled(), map);
        const QModelIndex row = page.Grid()->Model()->FindRecord(vendor.toLongLong());
        QCOMPARE(page.Grid()->Model()->RowAt(row)->Cell(Page::ICO_PAPERCLIP).toInt(), paperclip);
        // A path holding ";" comes back as two files.
        auto* assigned = UiTestTools::Child<QMenu>(&page, "mnuAssignedFiles");
        emit assigned->aboutToShow();
        QStringList listed;
        for (QAction* item : assigned->actions())
            listed << item->text();
        QCOMPARE(listed, files);
    }

    void deletingAsksWithTheName() {
        Page page;
        page.show();
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {"2"});
        db->Messages().NextAnswer = Msg::Yes;
        QTest::mouseClick(Link(&page, Page::DeleteVendor), Qt::LeftButton);
        QCOMPARE(db->Messages().Prompts, QStringList({"Delete 'Harbor Light'?"}));
        QCOMPARE(PlanningDatabase::Count("VENDOR"), QStringLiteral("1"));
    }

    void theSummaryShowsWhatIsFilled_data() {
        QTest::addColumn<QString>("phone");
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("details");
        QTest::newRow("address only") << ""
                                      << ""
                                      << "4 Rose Ln\nAustin, TX";
        QTest::newRow("all") << "555-0100"
                             << "ann@bloom.example"
                             << "4 Rose Ln\nAustin, TX\nAnn\np. 555-0100\ne. ann@bloom.example";
    }
    void theSummaryShowsWhatIsFilled() {
        QFETCH(QString, phone);
        QFETCH(QString, email);
        QFETCH(QString, details);
        clsVENDOR vendor;
        vendor.ADDRESS_TX = QStringLiteral("4 Rose Ln\r\nAustin, TX");
        vendor.CONTACT_NM = email.isEmpty() ? QString() : QStringLiteral("Ann");
        vendor.PHONE_TX = phone;
        vendor.EMAIL_TX = email;
        QCOMPARE(frmVendor::Details(vendor), details);
    }

    void theEditorCountsItsFilesAndUnassigningTheLastWritesNull() {
        TestDatabase::Exec("UPDATE VENDOR SET FILE_PATH_TX = '/tmp/quote.pdf' WHERE VENDOR_ID = 1");
        frmVendor editor(QStringLiteral("1"));
        auto* tabs = UiTestTools::Child<QTabWidget>(&editor, "tabs");
        QCOMPARE(tabs->tabText(1), QStringLiteral("Files (1)"));
        auto* files = UiTestTools::Child<QWidget>(&editor, "usrFiles");
        QMetaObject::invokeMethod(files, "mfrmNotebookAddFile_Refresh", Q_ARG(QString, QString()));
        QCOMPARE(tabs->tabText(1), QStringLiteral("Files (0)"));
        QVERIFY(editor.cmdSave_Click());
        QCOMPARE(
            TestDatabase::Scalar("SELECT coalesce(FILE_PATH_TX, 'NULL') FROM VENDOR WHERE VENDOR_ID = 1"),
            QStringLiteral("NULL"));
    }

    // The expense editor's "new" link adds a vendor, which comes back selected.
    void aVendorAddedFromAnExpenseComesBackSelected() {
        frmBudget::SetVendorAdder([](QWidget*) {
            TestDatabase::Exec(
                "INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM, VENDOR_CATEGORY_ID) VALUES (7, 'Cakes', 1)");
            return QStringLiteral("7");
        });
        frmBudget editor(QString(), QStringLiteral("1"));
        auto* vendors = UiTestTools::Child<usrDropdown>(&editor, "usrVENDOR");
        QVERIFY(vendors->AddIsVisible());
        emit vendors->AddClick();
        frmBudget::SetVendorAdder({});
        QCOMPARE(vendors->Code(), QStringLiteral("7"));
        QCOMPARE(vendors->Text(), QStringLiteral("Cakes"));
    }
};

QTEST_MAIN(tst_VendorsPage)
#include "tst_VendorsPage.moc"
