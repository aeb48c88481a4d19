#include "seating/ui/modSeatingPages.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "seating/ui/frmMain_04_Attendees_Tentcards.h"
#include "seating/ui/frmTable.h"
#include "seating/ui/frmTableSwap.h"
#include "seating/ui/usrSeatingRules.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

namespace {

// The two tables of the demo wedding with the most guests, for the pictures of the editors.
QStringList BusiestTables() {
    return RecordIO::Read([] {
        const clsRecordset rs = gDB().Execute(
            QStringLiteral("SELECT DINING_TABLE_ID FROM CONTACT WHERE DINING_TABLE_ID IS NOT NULL "
                           "GROUP BY DINING_TABLE_ID ORDER BY COUNT(*) DESC, DINING_TABLE_ID LIMIT 2"));
        QStringList keys;
        for (int row = 0; row < rs.RowCount(); ++row)
            keys << rs.Row(row).value(0);
        return keys;
    });
}

void RegisterScreenshots() {
    modScreenshots::Register(QStringLiteral("frmTable"), [] { return new frmTable(QString()); });
    modScreenshots::Register(QStringLiteral("frmTable_Edit"), [] {
        const QStringList tables = BusiestTables();
        return new frmTable(tables.value(0));
    });
    modScreenshots::Register(QStringLiteral("frmTableSwap"), [] {
        auto* swap = new frmTableSwap;
        const QStringList tables = BusiestTables();
        swap->SelectTables(tables.value(0), tables.value(1));
        return swap;
    });
    modScreenshots::Register(modPages::TentcardsSubPage(), [] {
        auto* page = new frmMain_04_Attendees_Tentcards;
        page->resize(modScreenshots::MainWindowSize());
        page->LoadNow();
        return page;
    });
    // The floor of the demo wedding with the status of every table shown and the first one selected.
    modScreenshots::Register(modPages::TablesSubPage(), []() -> QWidget* {
        gApp().SetRevealTableStatus(1);
        auto* page = new frmMain_04_Attendees_Tables;
        page->resize(modScreenshots::MainWindowSize());
        const QList<clsDINING_TABLE> tables = RecordIO::Read([] { return clsDINING_TABLE::OpenRecords(); });
        if (!tables.isEmpty())
            page->SelectTable(tables.first().DINING_TABLE_ID);
        return page;
    });
}

} // namespace

void RegisterSeatingPages() {
    modPages::RegisterSubPage(modPages::TablesSubPage(),
                              [](QWidget* parent) { return new frmMain_04_Attendees_Tables(parent); });
    modPages::RegisterSubPage(modPages::TentcardsSubPage(),
                              [](QWidget* parent) { return new frmMain_04_Attendees_Tentcards(parent); });
    RegisterScreenshots();
    RegisterAutoSeatScreenshots();
}
