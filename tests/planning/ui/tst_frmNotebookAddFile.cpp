#include "TestDatabase.h"
#include "UiTestTools.h"
#include "planning/ui/frmNotebookAddFile.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

namespace {

void Touch(const QString& path) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

QListWidgetItem* Item(const frmNotebookAddFile& chooser, const QString& name) {
    auto* list = UiTestTools::Child<QListWidget>(chooser, QStringLiteral("fileList"));
    const QList<QListWidgetItem*> found = list->findItems(name, Qt::MatchExactly);
    return found.isEmpty() ? nullptr : found.first();
}

void Tick(const frmNotebookAddFile& chooser, const QString& name, bool on = true) {
    QListWidgetItem* item = Item(chooser, name);
    QVERIFY2(item != nullptr, qPrintable(name));
    item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
}

} // namespace

class tst_frmNotebookAddFile : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;
    std::unique_ptr<QTemporaryDir> files;

    QString File(const QString& name) const { return files->filePath(name); }

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        files = std::make_unique<QTemporaryDir>();
        for (const char* name :
             {"venue/contract.pdf", "venue/Floor plan.png", "venue/a;b.txt", "dress/fitting.txt"})
            Touch(File(QString::fromLatin1(name)));
    }
    void cleanup() {
        files.reset();
        db.reset();
    }

    void appendsToTheList_data() {
        QTest::addColumn<QString>("paths");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QString>("expected");
        QTest::newRow("empty list: no separator") << "" << QStringList{"/a/x.pdf"} << "/a/x.pdf";
        QTest::newRow("after the last") << "/a/x.pdf" << QStringList{"/b/y", "/c/z"} << "/a/x.pdf;/b/y;/c/z";
        QTest::newRow("no path twice")
            << "/a/x.pdf;/b/y" << QStringList{"/b/y", "/c/z"} << "/a/x.pdf;/b/y;/c/z";
        QTest::newRow("nothing ticked keeps the list") << "/a/x.pdf" << QStringList{} << "/a/x.pdf";
        QTest::newRow("a stray separator goes") << "/a/x.pdf;" << QStringList{"/b/y"} << "/a/x.pdf;/b/y";
    }
    void appendsToTheList() {
        QFETCH(QString, paths);
        QFETCH(QStringList, added);
        QFETCH(QString, expected);
        QCOMPARE(frmNotebookAddFile::AppendPaths(paths, added), expected);
    }

    void opensAtTheReportsFolder() {
        frmNotebookAddFile chooser{QString()};
        QCOMPARE(chooser.Folder(), QDir::cleanPath(gApp().ReportPath()));
        QVERIFY(QFileInfo(gApp().ReportPath()).isDir());
    }

    void ticksInSeveralFoldersAreAppendedInOrder() {
        frmNotebookAddFile chooser(QStringLiteral("/old/guest list.ods"));
        QSignalSpy refreshed(&chooser, &frmNotebookAddFile::Refresh);
        chooser.SetFolder(files->filePath("venue"));
        Tick(chooser, "Floor plan.png");
        Tick(chooser, "contract.pdf");
        Tick(chooser, "Floor plan.png", false);
        chooser.SetFolder(files->filePath("dress"));
        Tick(chooser, "fitting.txt");
        chooser.SetFolder(files->filePath("venue"));
        QCOMPARE(Item(chooser, "contract.pdf")->checkState(), Qt::Checked);
        QCOMPARE(UiTestTools::Child<QLabel>(chooser, "lblCount")->text(), QStringLiteral("2 files selected"));

        QTest::mouseClick(UiTestTools::Child<QPushButton>(chooser, "cmdOK"), Qt::LeftButton);
        const QString expected = QStringLiteral("/old/guest list.ods;") + File("venue/contract.pdf") +
                                 QLatin1Char(';') + File("dress/fitting.txt");
        QCOMPARE(chooser.Paths(), expected);
        QCOMPARE(chooser.result(), int(QDialog::Accepted));
        QCOMPARE(refreshed.size(), 1);
        QCOMPARE(refreshed.first().first().toString(), expected);
    }

    void cancelKeepsTheList() {
        frmNotebookAddFile chooser(QStringLiteral("/old/list.ods"));
        QSignalSpy refreshed(&chooser, &frmNotebookAddFile::Refresh);
        chooser.SetFolder(files->filePath("venue"));
        Tick(chooser, "contract.pdf");
        QTest::mouseClick(UiTestTools::Child<QPushButton>(chooser, "cmdCancel"), Qt::LeftButton);
        QCOMPARE(chooser.Paths(), QStringLiteral("/old/list.ods"));
        QCOMPARE(refreshed.size(), 0);
    }

    // The separator of the list cannot stand in a name: such a file is shown but cannot be ticked.
    void aNameWithTheSeparatorCannotBeTicked() {
        frmNotebookAddFile chooser{QString()};
        chooser.SetFolder(files->filePath("venue"));
        QListWidgetItem* item = Item(chooser, "a;b.txt");
        QVERIFY(item != nullptr);
        QVERIFY(!(item->flags() & Qt::ItemIsEnabled));
        QVERIFY(!(item->flags() & Qt::ItemIsUserCheckable));
    }
};

QTEST_MAIN(tst_frmNotebookAddFile)
#include "tst_frmNotebookAddFile.moc"
