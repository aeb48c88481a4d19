#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "platform/clsRegistry.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/controls/usrSearch.h"
#include "shell/grid/modGrid.h"
#include "shell/usrListPage.h"

#include <QLabel>
#include <QMenu>
#include <QtTest>

namespace {

struct Gift {
    const char* event;
    qint64 id;
    const char* giver;
    const char* notes;
};

const Gift kGifts[] = {
    {"Shower", 1, "Ann Baker", "A blue vase"},
    {"Shower", 2, "Bob Baker", ""},
    {"Wedding", 3, "Carl Diaz", "Two glasses"},
};

// A page as the planning pages make theirs: gifts grouped by event, with notes, and a delete that
// counts the selection. Filter 0 lists all gifts, filter 1 the first one only.
class GiftPage : public usrListPage {
public:
    explicit GiftPage(const QString& plural = QString()) : usrListPage(QStringLiteral("frmTestGifts")) {
        SetRecordNoun(QStringLiteral("gift"), plural);
        SetFilterEntries({{0, QStringLiteral("All Gifts")}, {1, QStringLiteral("First gift")}});
        SetColumns({clsGridColumn("GIVER", "From", 200)});
        AddAction(0, QStringLiteral("Delete gift"), [] {});
        CountSelectionIn(0);
        mMenu = new QMenu(this);
        SetRowMenu(mMenu);
        ShowNotesAsRowText(mMenu);
    }
    using usrListPage::ActionLink;
    using usrListPage::ResetStoredStateOnce;

protected:
    long CountOf(int filterId) const override { return filterId == 0 ? 3 : 1; }
    int FillRows(clsGridFill& fill, int filterId) override {
        const int count = int(CountOf(filterId));
        for (int i = 0; i < count; ++i)
            fill.Group(kGifts[i].event).Row(kGifts[i].id).Set(0, kGifts[i].giver).Notes(kGifts[i].notes);
        return count;
    }

private:
    QMenu* mMenu = nullptr;
};

QString Key() { return FormRegistryKey(QStringLiteral("frmTestGifts")); }

QString CountLine(const usrListPage& page) { return page.findChild<QLabel*>("lblCount")->text(); }

void Select(usrListPage& page, const QList<qint64>& keys) {
    usrGrid* grid = page.Grid();
    grid->selectionModel()->clearSelection();
    for (const qint64 key : keys)
        grid->selectionModel()->select(grid->FromSource(grid->Model()->FindRecord(key)),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QAction* GroupMenuItem(usrListPage& page, const char* name) {
    const QModelIndex group = page.Grid()->FromSource(page.Grid()->Model()->FlatRow(1));
    emit page.Grid()->customContextMenuRequested(page.Grid()->visualRect(group).center());
    auto* menu = page.findChild<QMenu*>("mnuHiddenGroup");
    menu->close();
    return menu->findChild<QAction*>(name);
}

} // namespace

class tst_ListPage : public QObject {
    Q_OBJECT

private slots:
    void init() { SetRegistryStore(std::make_unique<clsMemoryRegistry>()); }
    void cleanup() { SetRegistryStore(nullptr); }

    void countLineNamesTheRecords_data() {
        QTest::addColumn<QString>("plural");
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("line");
        QTest::newRow("several") << QString() << 0 << QString() << "3 of 3 gifts";
        QTest::newRow("one") << QString() << 1 << QString() << "1 of 1 gift";
        QTest::newRow("a search narrows") << QString() << 0 << "baker" << "2 of 3 gifts";
        QTest::newRow("a plural of its own") << "giftes" << 0 << "diaz" << "1 of 3 giftes";
    }
    void countLineNamesTheRecords() {
        QFETCH(QString, plural);
        QFETCH(int, filter);
        QFETCH(QString, search);
        GiftPage page(plural);
        page.SetFilter(filter);
        page.SearchBox()->setText(search);
        QTEST(CountLine(page), "line");
    }

    void captionCountsTheSelection_data() {
        QTest::addColumn<QList<qint64>>("selected");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("none") << QList<qint64>{} << "Delete gift" << false;
        QTest::newRow("one") << QList<qint64>{2} << "Delete gift" << true;
        QTest::newRow("several") << QList<qint64>{1, 2, 3} << "Delete gifts (3)" << true;
    }
    void captionCountsTheSelection() {
        QFETCH(QList<qint64>, selected);
        GiftPage page;
        page.LoadNow();
        Select(page, selected);
        QTEST(page.ActionLink(0)->Caption(), "caption");
        QTEST(page.ActionLink(0)->isEnabled(), "enabled");
    }

    void groupMenuOpensAndClosesEveryGroup_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<bool>("expanded");
        QTest::newRow("collapse") << "mnuCollapseAll" << false;
        QTest::newRow("expand") << "mnuExpandAll" << true;
    }
    void groupMenuOpensAndClosesEveryGroup() {
        QFETCH(QString, item);
        QFETCH(bool, expanded);
        GiftPage page;
        page.LoadNow();
        GridSetAllGroups(page.Grid(), !expanded, Key());
        GroupMenuItem(page, item.toLatin1().constData())->trigger();
        for (const char* event : {"Shower", "Wedding"})
            QCOMPARE(gRegistry().GetSetting(Key(), event, "?"), clsApp::FromBool(expanded));
        GiftPage again; // a new visit opens the groups as they were left
        again.LoadNow();
        QCOMPARE(again.Grid()->isExpanded(again.Grid()->FromSource(again.Grid()->Model()->FlatRow(1))), expanded);
    }

    void notesFollowTheSetting() {
        gApp().SetShowNotes(false);
        GiftPage page;
        page.LoadNow();
        QVERIFY(!page.Grid()->RowTextVisible());
        auto* notes = page.findChild<QAction*>("mnuNotes");
        QCOMPARE(notes->text(), QString("Show notes"));
        notes->trigger();
        QVERIFY(gApp().ShowNotes());
        QVERIFY(page.Grid()->RowTextVisible());
        QCOMPARE(notes->text(), QString("Hide notes"));
    }

    void storedStateResetOnce_data() {
        QTest::addColumn<QString>("marker");
        QTest::addColumn<int>("filter");
        QTest::newRow("not yet reset: back to the whole list") << "0" << 0;
        QTest::newRow("reset before: the stored filter stands") << "1" << 1;
    }
    void storedStateResetOnce() {
        QFETCH(QString, marker);
        gRegistry().SaveSetting(Key(), "FilterIndex", "1");
        gRegistry().SaveSetting(Key(), "RESET_COMPLETE", marker);
        GiftPage page;
        page.ResetStoredStateOnce();
        QTEST(page.CurrentFilter(), "filter");
        QCOMPARE(gRegistry().GetSetting(Key(), "RESET_COMPLETE", "?"), QString("1"));
    }
};

QTEST_MAIN(tst_ListPage)
#include "tst_ListPage.moc"
