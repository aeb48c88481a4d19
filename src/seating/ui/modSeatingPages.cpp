#include "seating/ui/modSeatingPages.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "seating/ui/frmCaptureMap.h"
#include "seating/ui/frmFlight.h"
#include "seating/ui/frmHotel.h"
#include "seating/ui/frmMain_04_Attendees_Flights.h"
#include "seating/ui/frmMain_04_Attendees_Hotels.h"
#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "seating/ui/frmMain_04_Attendees_Tentcards.h"
#include "seating/ui/frmTable.h"
#include "seating/ui/frmTableSwap.h"
#include "seating/ui/usrMapView.h"
#include "seating/ui/usrSeatingRules.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

#include <QFileInfo>
#include <QPainter>

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

// A small town as the captured map of the demo wedding, unless a map was captured.
void DrawDemoMap() {
    const QString path = frmCaptureMap::MapPath();
    if (QFileInfo::exists(path))
        return;
    QImage map(frmCaptureMap::FrameSize(), QImage::Format_RGB32);
    map.fill(QColor(0xf2, 0xef, 0xe6));
    QPainter painter(&map);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(150, 330, 120, 90), QColor(0xcf, 0xe6, 0xbf));
    painter.setBrush(QColor(0xa9, 0xcf, 0xee));
    painter.setPen(Qt::NoPen);
    painter.drawRect(QRect(0, 440, 484, 56));
    painter.setPen(QPen(Qt::white, 9, Qt::SolidLine, Qt::RoundCap));
    for (int y : {110, 200, 290})
        painter.drawLine(10, y, 474, y);
    for (int x : {120, 300, 420})
        painter.drawLine(x, 10, x, 430);
    painter.setPen(QPen(QColor(0xfb, 0xe3, 0xa4), 12, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(10, 420, 474, 240);
    painter.end();
    gApp().MakeReportPath();
    map.save(path, "BMP");
}

// The travel boards of the demo wedding, the first hotel or flight selected.
template <class Board> QWidget* TravelBoard() {
    auto* page = new Board;
    page->resize(modScreenshots::MainWindowSize());
    page->SelectGroup(QStringLiteral("1"));
    return page;
}

void RegisterTravelScreenshots() {
    modScreenshots::Register(modPages::HotelsSubPage(), [] {
        DrawDemoMap();
        return TravelBoard<frmMain_04_Attendees_Hotels>();
    });
    modScreenshots::Register(modPages::FlightsSubPage(),
                             [] { return TravelBoard<frmMain_04_Attendees_Flights>(); });
    modScreenshots::Register(QStringLiteral("frmHotel"), [] { return new frmHotel(QStringLiteral("1")); });
    modScreenshots::Register(QStringLiteral("frmFlight"), [] { return new frmFlight(QStringLiteral("1")); });
}

void RegisterScreenshots() {
    RegisterTravelScreenshots();
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
    modPages::RegisterSubPage(modPages::HotelsSubPage(),
                              [](QWidget* parent) { return new frmMain_04_Attendees_Hotels(parent); });
    modPages::RegisterSubPage(modPages::FlightsSubPage(),
                              [](QWidget* parent) { return new frmMain_04_Attendees_Flights(parent); });
    // Without a web browser the map comes from a file or the clipboard; the desktop program puts its
    // browser in.
    modPages::RegisterDialog(QStringLiteral("frmCaptureMap"), [](QWidget* parent) {
        frmCaptureMap dialog(new usrPlainMapView, parent);
        dialog.exec();
    });
    RegisterScreenshots();
    RegisterAutoSeatScreenshots();
}
