#include "TestDatabase.h"
#include "UiTestTools.h"
#include "planning/PlanningTestTools.h"
#include "planning/ui/PlanningIcons.h"
#include "planning/ui/frmMain_10_Notebook.h"
#include "planning/ui/frmNote.h"
#include "planning/ui/usrAssignedFiles.h"

#include <QDateEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimeEdit>
#include <QtTest>
#include <memory>

namespace {

using Page = frmMain_10_Notebook;

void AddNote(int id, const QString& stored, const QString& subject, const QString& files = QString()) {
    TestDatabase::Exec(
        "INSERT INTO NOTEBOOK (NOTEBOOK_ID, NOTEBOOK_DT, SUBJECT_TX, FILE_PATH_TX) VALUES (?, ?, ?, ?)",
        {id, stored, subject, files.isEmpty() ? QVariant() : QVariant(files)});
}

QString Raw(const QString& sql) {
    return TestDatabase::Scalar(sql);
}

QString Subjects(usrGrid* grid) {
    QStringList subjects;
    grid->Model()->ForEachRow([&](const clsGridRow& row) { subjects << row.Cell(Page::SUBJECT_TX); });
    return subjects.join(QLatin1Char(','));
}

} // namespace

class tst_NotebookPage : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void newestFirstWithAPaperclipForFiles_data() {
        QTest::addColumn<QString>("files");
        QTest::addColumn<int>("clip");
        QTest::newRow("no files") << "" << int(PlanningIcons::None);
        QTest::newRow("one file") << "/home/a/contract.pdf" << int(PlanningIcons::Paperclip);
        QTest::newRow("only a separator") << ";" << int(PlanningIcons::None);
    }
    void newestFirstWithAPaperclipForFiles() {
        QFETCH(QString, files);
        QFETCH(int, clip);
        AddNote(1, "2027-01-05 09:00:00", "older");
        AddNote(2, "2027-02-01 18:30:00", "newest", files);
        AddNote(3, "2027-01-20 12:00:00", "middle");
        Page page;
        page.LoadNow();
        QCOMPARE(Subjects(page.Grid()), QStringLiteral("newest,middle,older"));
        const clsGridRow* row = page.Grid()->Model()->RowAt(page.Grid()->Model()->FindRecord(2));
        QCOMPARE(row->Cell(Page::ICO_PAPERCLIP).toInt(), clip);
        QCOMPARE(row->Cell(Page::NOTEBOOK_DT), QStringLiteral("01-Feb-2027"));
        QCOMPARE(row->SortValue(Page::NOTEBOOK_TM).toTime(), QTime(18, 30));
    }

    void deleteAsksWithTheSubject_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("left");
        QTest::newRow("yes") << int(Msg::Yes) << "1";
        QTest::newRow("no") << int(Msg::No) << "2";
    }
    void deleteAsksWithTheSubject() {
        QFETCH(int, answer);
        QFETCH(QString, left);
        AddNote(1, "2027-01-05 09:00:00", "Cake \"tasting\"");
        AddNote(2, "2027-01-06 09:00:00", "Venue");
        Page page;
        UiTestTools::ShowActive(page);
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {"1"});
        db->Messages().NextAnswer = answer;
        page.DeleteSelected();
        QCOMPARE(db->Messages().Prompts, QStringList{"Delete note 'Cake \"tasting\"'?"});
        QCOMPARE(db->Messages().Titles, QStringList{"Delete"});
        QCOMPARE(PlanningDatabase::Count("NOTEBOOK"), left);
        QCOMPARE(page.Grid()->Model()->FlatRowCount(), left.toInt());
    }

    void theMenuListsTheSelectedNotesFiles() {
        AddNote(1, "2027-01-05 09:00:00", "Venue", "/gone/contract.pdf;/gone/map.png");
        Page page;
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {"1"});
        QCOMPARE(page.SelectedFiles(), (QStringList{"/gone/contract.pdf", "/gone/map.png"}));
    }

    void aGoneFileIsNamedAndNotOpened() {
        QTemporaryDir folder;
        const QString here = folder.filePath("here.txt");
        QFile file(here);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(usrAssignedFiles::OpenAttachedFile(here));
        QVERIFY(db->Messages().Prompts.isEmpty());
        QVERIFY(!usrAssignedFiles::OpenAttachedFile(folder.filePath("gone.txt")));
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QVERIFY(db->Messages().Prompts.first().contains(folder.filePath("gone.txt")));
    }

    void aNewNoteStartsNowAndNeedsASubject() {
        SetNowForTesting(QDateTime(QDate(2027, 3, 4), QTime(14, 5, 33)));
        frmNote editor{QString()};
        QSignalSpy added(&editor, &frmEditorBase::Added);
        QCOMPARE(UiTestTools::Child<QDateEdit>(editor, "dtPick")->date(), QDate(2027, 3, 4));
        QCOMPARE(UiTestTools::Child<QTimeEdit>(editor, "tmPick")->time(), QTime(14, 5));
        auto* save = UiTestTools::Child<QPushButton>(editor, "cmdSave");
        QVERIFY(!save->isEnabled());
        QTest::keyClicks(UiTestTools::Child<QLineEdit>(editor, "txtSUBJECT_TX"), "  ");
        QVERIFY(!save->isEnabled());
        QTest::keyClicks(UiTestTools::Child<QLineEdit>(editor, "txtSUBJECT_TX"), "Florist \\ call ");
        QTest::mouseClick(save, Qt::LeftButton);
        QCOMPARE(added.size(), 1);
        QCOMPARE(Raw("SELECT SUBJECT_TX || '|' || substr(NOTEBOOK_DT, 1, 16) AS V FROM NOTEBOOK"),
                 QStringLiteral("Florist \\ call|2027-03-04 14:05"));
    }

    void filesAreCountedOnTheTabAndUnassignedAfterTheQuestion() {
        AddNote(4, "2027-01-05 09:00:00", "Venue", "/a/contract.pdf;/a/map.png;/a/menu.doc");
        frmNote editor(QStringLiteral("4"));
        auto* tabs = UiTestTools::Child<QTabWidget>(editor, "tabNote");
        QCOMPARE(tabs->tabText(1), QStringLiteral("Files (3)"));
        auto* list = UiTestTools::Child<QListWidget>(editor, "lvwFiles");
        list->item(0)->setSelected(true);
        list->item(2)->setSelected(true);
        db->Messages().NextAnswer = Msg::Yes;
        QTest::mouseClick(UiTestTools::Child<QPushButton>(editor, "cmdUnassign"), Qt::LeftButton);
        QCOMPARE(db->Messages().Prompts, QStringList{"Unassign files?"});
        QCOMPARE(db->Messages().Titles, QStringList{"Vowren"});
        QCOMPARE(tabs->tabText(1), QStringLiteral("Files (1)"));
        QTest::mouseClick(UiTestTools::Child<QPushButton>(editor, "cmdSave"), Qt::LeftButton);
        QCOMPARE(Raw("SELECT FILE_PATH_TX FROM NOTEBOOK WHERE NOTEBOOK_ID = 4"),
                 QStringLiteral("/a/map.png"));
    }
};

QTEST_MAIN(tst_NotebookPage)
#include "tst_NotebookPage.moc"
