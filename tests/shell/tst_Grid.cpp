#include "platform/clsRegistry.h"
#include "shell/grid/clsGridProxy.h"
#include "shell/grid/frmCustomizeColumns.h"
#include "shell/grid/modGrid.h"
#include "shell/grid/modListView.h"
#include "shell/grid/usrGrid.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString kPageKey = QStringLiteral("Software/QuillSoftware/Vowren/Release 1.0/frmTest");

enum TestColumn : int { ICO, FULL_NM, EMAIL_TX, CITY, GROUP };

QList<clsGridColumn> TestColumns() {
    return {clsGridColumn("ICO", "", 20).OfKind(GridColumnKind::Icon), clsGridColumn("FULL_NM", "Name", 150),
            clsGridColumn("EMAIL_TX", "E-mail", 150), clsGridColumn("CITY", "City", 100).StoreWidth(),
            clsGridColumn("GROUP", "Group", 50).NeverShown()};
}

struct Person {
    const char* group;
    qint64 id;
    const char* name;
    const char* email;
    const char* city;
    const char* notes;
};

const Person kPeople[] = {
    {"Family", 1, "Ann Baker", "ann@x.org", "Boston", "Allergic to nuts"},
    {"Family", 2, "Bob Baker", "", "Denver", ""},
    {"Friends", 3, "Carl Diaz", "carl@y.com", "Austin", "Plays the violin"},
    {"Friends", 4, "Dora Evans", "dora@z.net", "Boston", ""},
    {"Friends", 5, "Eve Fox", "", "Chicago", ""},
    {"Work", 6, "Gus Hale", "", "Denver", ""},
};

std::unique_ptr<usrGrid> MakeGrid() {
    auto grid = std::make_unique<usrGrid>();
    grid->SetRegistryKey(kPageKey);
    grid->SetColumns(TestColumns());
    clsGridFill fill(*grid->Model());
    for (const Person& p : kPeople)
        fill.Group(p.group).Row(p.id).Icon(ICO, 1).Set(FULL_NM, p.name).Set(EMAIL_TX, p.email).Set(CITY, p.city)
            .Set(GROUP, p.group).Notes(p.notes).Keep(p);
    return grid;
}

// What the view shows: group texts, and keys of records as numbers.
QStringList Shown(const usrGrid& grid) {
    QStringList shown;
    const QAbstractItemModel* view = grid.model();
    const auto add = [&](const QModelIndex& index) {
        shown << (index.data(GridRole::IsGroup).toBool() ? index.data().toString()
                                                           : index.data(GridRole::ItemData).toString());
    };
    for (int row = 0; row < view->rowCount(); ++row) {
        const QModelIndex top = view->index(row, 0);
        add(top);
        for (int child = 0; child < view->rowCount(top); ++child) add(view->index(child, 0, top));
    }
    return shown;
}

QStringList GroupTexts(const usrGrid& grid, bool expanded) {
    QStringList texts;
    for (int row = 0; row < grid.model()->rowCount(); ++row) {
        const QModelIndex index = grid.model()->index(row, 0);
        if (index.data(GridRole::IsGroup).toBool() && grid.isExpanded(index) == expanded) texts << index.data().toString();
    }
    return texts;
}

QStringList ShownCaptions(const usrGrid& grid) {
    QStringList captions;
    for (const int column : grid.ColumnOrder())
        if (grid.ColumnShown(column)) captions << grid.Model()->Column(column).Key;
    return captions;
}

void SelectKeys(usrGrid& grid, const QList<qint64>& keys) {
    grid.selectionModel()->clearSelection();
    for (const qint64 key : keys) {
        const QModelIndex index = grid.FromSource(grid.Model()->FindRecord(key));
        grid.selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
        grid.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    }
}

QList<qint64> KeysOfGroup(const usrGrid& grid, const QString& group) {
    QList<qint64> keys;
    for (const auto& top : grid.Model()->TopRows())
        if (top->IsGroup && top->Cell(0) == group)
            for (const auto& child : top->Children) keys << child->ItemData;
    return keys;
}

} // namespace

class tst_Grid : public QObject {
    Q_OBJECT

private slots:
    void init() { SetRegistryStore(std::make_unique<clsMemoryRegistry>()); }
    void cleanup() { SetRegistryStore(nullptr); }

    void modelHoldsUpUnderChanges() {
        auto grid = MakeGrid();
        QAbstractItemModelTester source(grid->Model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModelTester view(grid->Proxy(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QModelIndex added = grid->Model()->AddRecord(7, "Neighbours");
        grid->Model()->Rewrite(added, [](clsGridCells& cells) { cells.Set(FULL_NM, "Ida Jones").Notes("Brings a dog"); });
        QVERIFY(grid->Model()->MoveRow(grid->Model()->FindRecord(4), -1));
        grid->SetSortable(true);
        grid->sortByColumn(FULL_NM, Qt::DescendingOrder);
        GridSearch(grid.get(), "boston");
        GridSearch(grid.get(), "");
        grid->Model()->RemoveRow(grid->Model()->FindRecord(2));
        grid->Model()->Clear();
        QCOMPARE(grid->Model()->FlatRowCount(), 0);
    }

    void rowKeepsItsRecord() {
        auto grid = MakeGrid();
        clsGridModel* model = grid->Model();
        const QModelIndex carl = model->FindRecord(3);
        QCOMPARE(model->KeyAt(carl), 3);
        QCOMPARE(QString(model->RecordAt<Person>(carl)->name), QString("Carl Diaz"));
        const Person renamed{"Friends", 3, "Carl Diaz-Ruiz", "", "Austin", ""};
        model->Rewrite(carl, [&](clsGridCells& cells) { cells.Set(FULL_NM, renamed.name).Keep(renamed); });
        QCOMPARE(QString(model->RecordAt<Person>(carl)->name), QString("Carl Diaz-Ruiz"));
        QCOMPARE(model->RecordAt<QString>(carl), nullptr); // kept as a Person, not as anything else
        const QModelIndex group = model->FlatRow(1);
        QCOMPARE(model->KeyAt(group), 0);
        QCOMPARE(model->RecordAt<Person>(group), nullptr);
    }

    void search_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("columnCount");
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("shown");
        const QStringList all{"Family", "1", "2", "Friends", "3", "4", "5", "Work", "6"};
        QTest::newRow("empty shows all") << "" << 5 << 6 << all;
        QTest::newRow("any case") << "boSTon" << 5 << 2 << QStringList{"Family", "1", "Friends", "4"};
        QTest::newRow("one group only") << "BAKER" << 5 << 2 << QStringList{"Family", "1", "2"};
        QTest::newRow("e-mail column") << "@" << 5 << 3 << QStringList{"Family", "1", "Friends", "3", "4"};
        QTest::newRow("no match hides groups") << "zzz" << 5 << 0 << QStringList{};
        QTest::newRow("icon cells skipped") << "1" << 5 << 0 << QStringList{};
        QTest::newRow("columns beyond count skipped") << "denver" << 3 << 0 << QStringList{};
        QTest::newRow("hidden column searched") << "work" << 5 << 1 << QStringList{"Work", "6"};
    }
    void search() {
        QFETCH(QString, text);
        QFETCH(int, columnCount);
        auto grid = MakeGrid();
        GridSearch(grid.get(), "Chicago"); // a previous search is cleared by the next
        int count = -1;
        GridSearch(grid.get(), text, columnCount, count);
        QTEST(count, "count");
        QTEST(Shown(*grid), "shown");
    }

    void searchKeepsGroupState() {
        auto grid = MakeGrid();
        GridRestoreGroups(grid.get(), kPageKey);
        grid->collapse(grid->FromSource(grid->Model()->FlatRow(4))); // Friends
        GridSearch(grid.get(), "diaz");
        GridSearch(grid.get(), "");
        QCOMPARE(GroupTexts(*grid, false), QStringList{"Friends"});
    }

    void groupsStoredByText_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("collapsed");
        QTest::newRow("stored below the key") << kPageKey << QStringList{"Friends"};
        QTest::newRow("empty key opens all") << QString() << QStringList{};
    }
    void groupsStoredByText() {
        QFETCH(QString, key);
        {
            auto grid = MakeGrid();
            GridRestoreGroups(grid.get(), kPageKey);
            grid->show();
            const QRect friends = grid->visualRect(grid->FromSource(grid->Model()->FlatRow(4)));
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, friends.topLeft() + QPoint(4, 4)); // its arrow
            GridToggleGroup(grid.get(), grid->FromSource(grid->Model()->FlatRow(8)), kPageKey); // Work
            GridToggleGroup(grid.get(), grid->FromSource(grid->Model()->FlatRow(8)), kPageKey); // and back
        }
        QCOMPARE(gRegistry().GetSetting(kPageKey, "Friends", "?"), QString("0"));
        QCOMPARE(gRegistry().GetSetting(kPageKey, "Work", "?"), QString("1"));
        auto grid = MakeGrid();
        GridRefreshAndKeep(grid.get(), key, 6);
        QTEST(GroupTexts(*grid, false), "collapsed");
        QCOMPARE(grid->Model()->RowAt(grid->SelectedRow())->ItemData, 6);
        GridSelectByKey(grid.get(), 5); // a row in a closed group opens it
        QVERIFY(grid->isExpanded(grid->FromSource(grid->Model()->FlatRow(4))));
    }

    void setAllGroupsStoresEach() {
        auto grid = MakeGrid();
        GridSetAllGroups(grid.get(), false, kPageKey);
        QCOMPARE(GroupTexts(*grid, false), (QStringList{"Family", "Friends", "Work"}));
        for (const char* group : {"Family", "Friends", "Work"})
            QCOMPARE(gRegistry().GetSetting(kPageKey, group, "?"), QString("0"));
    }

    void layoutRoundTrip_data() {
        QTest::addColumn<bool>("force");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("stored visibility") << false << QStringList{"ICO", "CITY", "FULL_NM"};
        QTest::newRow("forced visible") << true << QStringList{"ICO", "CITY", "FULL_NM", "EMAIL_TX"};
    }
    void layoutRoundTrip() {
        QFETCH(bool, force);
        {
            auto grid = MakeGrid();
            grid->SetColumnOrder({0, 3, 1, 2}); // City before Name
            grid->ShowColumn(2, false);         // E-mail hidden
            grid->setColumnWidth(3, 77);
            GridLayout(grid.get(), false);
        }
        QCOMPARE(gRegistry().GetSetting(kPageKey, "COEMAIL_TX", "?"), QString("3"));
        QCOMPARE(gRegistry().GetSetting(kPageKey, "COVISEMAIL_TX", "?"), QString("0"));
        QCOMPARE(gRegistry().GetSetting(kPageKey, "COVISCITY", "?"), QString("-1"));
        auto grid = MakeGrid();
        QCOMPARE(ShownCaptions(*grid), (QStringList{"ICO", "FULL_NM", "EMAIL_TX", "CITY"}));
        GridLayout(grid.get(), true, force);
        QTEST(ShownCaptions(*grid), "shown");
        QCOMPARE(grid->columnWidth(3), 77);
        QVERIFY(!grid->ColumnShown(grid->ColumnIndex("GROUP"))); // never shown, even when forced
    }

    void narrowColumnHiddenAtNextLoad() {
        {
            auto grid = MakeGrid();
            grid->setColumnWidth(grid->ColumnIndex("EMAIL_TX"), 3);
            GridLayout(grid.get(), false);
        }
        auto grid = MakeGrid();
        GridLayout(grid.get(), true);
        QVERIFY(!grid->ColumnShown(grid->ColumnIndex("EMAIL_TX")));
        grid->ShowColumn(grid->ColumnIndex("EMAIL_TX"), true);
        QCOMPARE(grid->columnWidth(grid->ColumnIndex("EMAIL_TX")), 150); // back to its first width
    }

    void moveRow_data() {
        QTest::addColumn<qint64>("key");
        QTest::addColumn<bool>("up");
        QTest::addColumn<bool>("moved");
        QTest::addColumn<QList<qint64>>("friends");
        QTest::newRow("first up") << qint64(3) << true << false << QList<qint64>{3, 4, 5};
        QTest::newRow("last down") << qint64(5) << false << false << QList<qint64>{3, 4, 5};
        QTest::newRow("middle up") << qint64(4) << true << true << QList<qint64>{4, 3, 5};
        QTest::newRow("middle down") << qint64(4) << false << true << QList<qint64>{3, 5, 4};
        QTest::newRow("not across groups") << qint64(6) << true << false << QList<qint64>{3, 4, 5};
    }
    void moveRow() {
        QFETCH(qint64, key);
        QFETCH(bool, up);
        auto grid = MakeGrid();
        GridSelectByKey(grid.get(), key);
        QTEST(up ? GridMoveRowUp(grid.get()) : GridMoveRowDown(grid.get()), "moved");
        QTEST(KeysOfGroup(*grid, "Friends"), "friends");
        QCOMPARE(grid->Model()->RowAt(grid->SelectedRow())->ItemData, key);
        QCOMPARE(grid->SelectedRows().size(), 1);
    }

    void moveWithoutSelection() {
        auto grid = MakeGrid();
        QVERIFY(!GridMoveRowUp(grid.get()));
        QVERIFY(!GridMoveRowDown(grid.get()));
    }

    void countAddresses_data() {
        QTest::addColumn<QList<qint64>>("selected");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("count");
        QTest::newRow("none selected") << QList<qint64>{} << int(EMAIL_TX) << 0;
        QTest::newRow("with and without") << QList<qint64>{1, 2, 3} << int(EMAIL_TX) << 2;
        QTest::newRow("unknown column") << QList<qint64>{1, 3} << 99 << 0;
        QTest::newRow("other column") << QList<qint64>{1, 3} << int(CITY) << 0;
    }
    void countAddresses() {
        QFETCH(QList<qint64>, selected);
        QFETCH(int, column);
        auto grid = MakeGrid();
        SelectKeys(*grid, selected);
        grid->selectionModel()->select(grid->model()->index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTEST(GridCountAddresses(grid.get(), column), "count");
    }

    void hasSelection_data() {
        QTest::addColumn<int>("flatRow");
        QTest::addColumn<bool>("has");
        QTest::newRow("nothing") << 0 << false;
        QTest::newRow("group row") << 1 << false;
        QTest::newRow("record") << 2 << true;
        QTest::newRow("beyond the end") << 10 << false;
    }
    void hasSelection() {
        QFETCH(int, flatRow);
        auto grid = MakeGrid();
        GridSelectRow(grid.get(), flatRow);
        QTEST(GridHasSelection(grid.get()), "has");
    }

    void recordWithKeyZeroIsNoSelection() {
        usrGrid grid;
        grid.SetColumns(TestColumns());
        clsGridFill(*grid.Model()).Row(0).Set(FULL_NM, "Totals");
        GridSelectRow(&grid, 1);
        QVERIFY(grid.SelectedRow().isValid());
        QVERIFY(!GridHasSelection(&grid));
    }

    void selectAllSkipsGroups() {
        auto grid = MakeGrid();
        GridSelectAll(grid.get());
        QList<qint64> keys;
        for (const QModelIndex& index : grid->SelectedRows()) keys << index.data(GridRole::ItemData).toLongLong();
        QCOMPARE(keys, (QList<qint64>{1, 2, 3, 4, 5, 6}));
        usrGrid empty;
        GridSelectAll(&empty);
        QVERIFY(!GridHasSelection(&empty));
    }

    void fileIconIndex_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("icon");
        QTest::newRow("rtf upper") << "LIST.RTF" << int(FileIconDocument);
        QTest::newRow("pdf") << "contract.final.pdf" << int(FileIconPdf);
        QTest::newRow("aac is no kind") << "song.aac" << int(FileIconBlank);
        QTest::newRow("no dot") << "README" << int(FileIconBlank);
        QTest::newRow("beyond the third dot") << "a.b.c.d.pdf" << int(FileIconBlank);
        QTest::newRow("third dot") << "a.b.c.pdf" << int(FileIconPdf);
    }
    void fileIconIndex() {
        QFETCH(QString, file);
        QTEST(FileIconIndex(file), "icon");
        QCOMPARE(FileIcons().size(), int(FileIconCount));
    }

    void customizeColumns_data() {
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("OK applies") << true << QStringList{"ICO", "CITY", "FULL_NM"};
        QTest::newRow("Cancel leaves") << false << QStringList{"ICO", "FULL_NM", "EMAIL_TX", "CITY"};
    }
    void customizeColumns() {
        QFETCH(bool, ok);
        auto grid = MakeGrid();
        frmCustomizeColumns dialog(grid.get());
        dialog.show();
        QCOMPARE(dialog.windowTitle(), QString("Customize Columns"));
        auto* list = dialog.findChild<QListWidget*>("lst");
        const auto cmd = [&](int i) { return dialog.findChild<QPushButton*>(QString("cmd_%1").arg(i)); };
        QVERIFY(list && cmd(5));
        QStringList listed;
        for (int i = 0; i < list->count(); ++i) listed << list->item(i)->text();
        QCOMPARE(listed, (QStringList{"(Icon)", "Name", "E-mail", "City"}));

        list->setCurrentRow(1); // "Name" can't be hidden
        QVERIFY(!cmd(frmCustomizeColumns::CmdHide)->isEnabled());
        list->setCurrentRow(2); // "E-mail": hide it, then move it to the end
        QTest::mouseClick(cmd(frmCustomizeColumns::CmdHide), Qt::LeftButton);
        QCOMPARE(list->item(2)->checkState(), Qt::Unchecked);
        QVERIFY(cmd(frmCustomizeColumns::CmdShow)->isEnabled());
        QTest::mouseClick(cmd(frmCustomizeColumns::CmdMoveDown), Qt::LeftButton);
        QCOMPARE(list->currentItem()->text(), QString("E-mail"));
        QVERIFY(!cmd(frmCustomizeColumns::CmdMoveDown)->isEnabled());
        list->setCurrentRow(2); // "City" one up, above "Name"
        QTest::mouseClick(cmd(frmCustomizeColumns::CmdMoveUp), Qt::LeftButton);
        QTest::mouseClick(cmd(ok ? frmCustomizeColumns::CmdOK : frmCustomizeColumns::CmdCancel), Qt::LeftButton);

        QCOMPARE(dialog.result(), ok ? QDialog::Accepted : QDialog::Rejected);
        QTEST(ShownCaptions(*grid), "shown");
        QCOMPARE(grid->header()->visualIndex(grid->ColumnIndex("GROUP")), 4); // internal column stays put
    }

    // The texts are German ("1.234,50 €", "05-Jan-2027" stays the program's own date text); each column
    // sorts by the value behind its text, where sorting the texts would give another order.
    void sortByKind_data() {
        QTest::addColumn<int>("column");
        QTest::addColumn<QList<qint64>>("ascending");
        QTest::newRow("numbers by value") << 0 << QList<qint64>{2, 1, 3};
        QTest::newRow("money by amount") << 1 << QList<qint64>{3, 2, 1};
        QTest::newRow("dates across years") << 2 << QList<qint64>{3, 2, 1};
        QTest::newRow("times by clock") << 3 << QList<qint64>{1, 3, 2};
        QTest::newRow("text without case") << 4 << QList<qint64>{2, 3, 1};
    }
    void sortByKind() {
        QFETCH(int, column);
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        usrGrid grid;
        grid.SetColumns({clsGridColumn("NB", "#", 40).OfKind(GridColumnKind::Number),
                         clsGridColumn("AMOUNT", "Amount", 90).OfKind(GridColumnKind::Money),
                         clsGridColumn("DT", "Date", 90).OfKind(GridColumnKind::Date),
                         clsGridColumn("TM", "Time", 60).OfKind(GridColumnKind::Time), clsGridColumn("TX", "Text", 90)});
        {
            clsGridFill fill(*grid.Model());
            fill.Group("Only").Row(1).Number(0, 10).Money(1, 1234.5).Date(2, QDate(2027, 1, 5)).Time(3, QTime(9, 30))
                .Set(4, "zeta");
            fill.Row(2).Number(0, "9").Money(1, 999).Date(2, QDate(2026, 12, 20)).Time(3, QTime(13, 5)).Set(4, "Alpha");
            fill.Row(3).Number(0, 1200).Money(1, 12.5).Date(2, QDate()).Time(3, QTime(12, 0)).Set(4, "beta");
        }
        QLocale::setDefault(before);
        QCOMPARE(grid.Model()->RowAt(grid.Model()->FindRecord(1))->Cell(1), QString("1.234,50\u00a0€"));
        QCOMPARE(grid.Model()->RowAt(grid.Model()->FindRecord(1))->Cell(2), QString("05-Jan-2027"));
        grid.SetSortable(true);
        grid.sortByColumn(column, Qt::AscendingOrder);
        QList<qint64> keys;
        for (const QString& key : Shown(grid).mid(1)) keys << key.toLongLong();
        QTEST(keys, "ascending");
    }
    void listViewHelpers() {
        QTreeWidget from, to;
        from.setSelectionMode(QAbstractItemView::ExtendedSelection);
        for (const char* id : {"4", "9", "12"}) ListViewAdd(&from, id, {QString("Guest ") + id, "x"})->setCheckState(0, Qt::Unchecked);
        ListViewCheckAll(&from, true);
        QCOMPARE(ListViewCheckedCount(&from), 3);
        from.topLevelItem(1)->setCheckState(0, Qt::Unchecked);
        QCOMPARE(ListViewCheckedCount(&from), 2);

        QVERIFY(ListViewSelectByKey(&from, "12"));
        QCOMPARE(ListViewSelectedText(&from), QString("Guest 12"));
        QVERIFY(!ListViewSelectByKey(&from, "1"));
        from.topLevelItem(0)->setSelected(true);
        QCOMPARE(ListViewMoveSelected(&from, &to), 2);
        QCOMPARE(from.topLevelItemCount(), 1);
        QCOMPARE(to.topLevelItem(1)->data(0, Qt::UserRole).toString(), QString("12 ID"));
        QCOMPARE(to.selectedItems().size(), 2);

        ListViewNumber(&to, 1);
        QCOMPARE(to.topLevelItem(0)->text(1), QString("001"));
        QCOMPARE(to.topLevelItem(1)->text(1), QString("002"));
    }
};

QTEST_MAIN(tst_Grid)
#include "tst_Grid.moc"
