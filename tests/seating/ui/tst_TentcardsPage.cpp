#include "TestDatabase.h"
#include "UiTestTools.h"
#include "guests/GuestTestData.h"
#include "reports/clsReportCatalogue.h"
#include "seating/clsTENTCARD.h"
#include "seating/ui/frmMain_04_Attendees_Tentcards.h"
#include "seating/ui/frmTentcard.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/usrGrid.h"
#include "shell/modPages.h"
#include "shell/options/frmOptions.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

using namespace GuestTestData;

namespace {

using Page = frmMain_04_Attendees_Tentcards;

usrHyperlink* Link(const QWidget* page, int index) {
    return UiTestTools::Child<usrHyperlink>(page, QStringLiteral("linkAction_%1").arg(index));
}

QString Cell(usrGrid* grid, const QString& id, const QString& column) {
    const QModelIndex row = grid->Model()->FindRecord(id.toLongLong());
    return row.isValid() ? grid->Model()->RowAt(row)->Cell(grid->ColumnIndex(column))
                         : QStringLiteral("<none>");
}

// The Smiths at table 3 "Family", and a card for them that was worded by hand over two lines.
void SeatTheSmiths() {
    AddDiningTable(1, 3, "Family");
    AddInvitation({"Mr.|John||Smith|||", "Mrs.|Mary||Smith|||"}, {{"INVITE_RSVP_ID", 1}});
    TestDatabase::Exec("UPDATE CONTACT SET DINING_TABLE_ID = 1, ATTENDING_FG = 'Y' WHERE INVITE_ID = 1");
    TestDatabase::Exec("INSERT INTO TENTCARD VALUES (7, 'The Smiths\nand their dog', 'Smith', 1)");
}

} // namespace

class tst_TentcardsPage : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void listsTheCardsAndRefreshesThem() {
        SeatTheSmiths();
        SetEtiquette(false, true);
        Page page;
        QSignalSpy crumbs(&page, &usrPage::Breadcrumb);
        page.show();
        page.LoadNow();
        QCOMPARE(crumbs.value(0).value(0).toString(), QStringLiteral("Attendees>Tentcards"));
        QCOMPARE(Cell(page.Grid(), "7", "TENTCARD_TX"), QStringLiteral("The Smiths, and their dog"));
        QCOMPARE(Cell(page.Grid(), "7", "DINING_TABLE_NB"), QStringLiteral("3"));
        QCOMPARE(Cell(page.Grid(), "7", "DINING_TABLE_NM"), QStringLiteral("Family"));

        QTest::mouseClick(Link(&page, Page::RefreshTentcards), Qt::LeftButton);
        QVERIFY(db->Messages().Prompts.isEmpty());
        QCOMPARE(page.Grid()->Model()->FlatRowCount(), 1);
        const QString id = TestDatabase::Scalar("SELECT TENTCARD_ID FROM TENTCARD");
        QCOMPARE(Cell(page.Grid(), id, "TENTCARD_TX"), QStringLiteral("Mr. and Mrs. John Smith"));
    }

    void printOpensTheTentcardReport() {
        QList<int> asked;
        modPages::RegisterReports(
            [&asked](QWidget*, int section, int filter) { asked << section << filter; });
        Page page;
        page.LoadNow();
        QTest::mouseClick(Link(&page, Page::PrintReports), Qt::LeftButton);
        modPages::Clear();
        QCOMPARE(asked, QList<int>({clsReportCatalogue::Tentcards, 1}));
    }

    void etiquetteFollowsTheOptions_data() {
        QTest::addColumn<bool>("formal");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("card");
        QTest::newRow("personal") << false << "Set etiquette (Personal)"
                                  << "John and Mary Smith";
        QTest::newRow("formal") << true << "Set etiquette (Formal)"
                                << "Mr. and Mrs. John Smith";
    }
    void etiquetteFollowsTheOptions() {
        QFETCH(bool, formal);
        QFETCH(QString, caption);
        QFETCH(QString, card);
        SeatTheSmiths();
        SetEtiquette(false, !formal);
        Page page;
        page.LoadNow();
        QVERIFY(Link(&page, Page::SetEtiquette)->Caption() != caption);
        // What the options screen does on "Update": store, rebuild, tell.
        SetEtiquette(false, formal);
        clsTENTCARD::RefreshTentcards();
        emit gOptionsEvents().EtiquetteTentCardUpdated();
        QCOMPARE(Link(&page, Page::SetEtiquette)->Caption(), caption);
        const QString id = TestDatabase::Scalar("SELECT TENTCARD_ID FROM TENTCARD");
        QCOMPARE(Cell(page.Grid(), id, "TENTCARD_TX"), card);
    }

    void editorSavesAndTheRowFollows() {
        SeatTheSmiths();
        Page page;
        page.LoadNow();
        frmTentcard editor(QStringLiteral("7"));
        QCOMPARE(editor.windowTitle(), QStringLiteral("Edit Tentcard"));
        connect(&editor, &frmEditorBase::Updated, &page, &Page::mfrmTentcard_Updated);
        auto* text = editor.findChild<QPlainTextEdit*>(QStringLiteral("txtTENTCARD_TX"));
        QCOMPARE(text->toPlainText(), QStringLiteral("The Smiths\nand their dog"));
        text->setPlainText(QStringLiteral("John & Mary\nSmith"));
        QVERIFY(editor.IsDirty());
        QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("cmdSave")), Qt::LeftButton);
        QCOMPARE(TestDatabase::Scalar("SELECT TENTCARD_TX FROM TENTCARD WHERE TENTCARD_ID = 7"),
                 QStringLiteral("John & Mary\nSmith"));
        QCOMPARE(Cell(page.Grid(), "7", "TENTCARD_TX"), QStringLiteral("John & Mary, Smith"));
    }
};

QTEST_MAIN(tst_TentcardsPage)
#include "tst_TentcardsPage.moc"
