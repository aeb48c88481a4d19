#include "seating/ui/frmMain_04_Attendees_Hotels.h"

#include "core/FilterCode.h"
#include "core/clsApp.h"
#include "guests/clsCONTACT.h"
#include "reports/clsReportCatalogue.h"
#include "seating/clsHOTEL.h"
#include "seating/ui/frmHotel.h"
#include "seating/ui/usrFloorPlan.h"
#include "shell/modPages.h"

#include <QFileInfo>

namespace {

QString FirstLine(const QString& text) {
    return text.section(QLatin1Char('\n'), 0, 0).remove(QLatin1Char('\r')).trimmed();
}

} // namespace

frmMain_04_Attendees_Hotels::frmMain_04_Attendees_Hotels(QWidget* parent)
    : usrTravelBoard(modTravel::Kind::Hotel, parent) {
    setObjectName(modPages::HotelsSubPage());
    Build();
}

QList<usrTravelBoard::Group> frmMain_04_Attendees_Hotels::ReadGroups() const {
    QList<Group> groups;
    for (const clsHOTEL& hotel : clsHOTEL::OpenRecords()) {
        Group group;
        group.Id = hotel.HOTEL_ID;
        group.Number = hotel.HOTEL_NB;
        group.Name = hotel.HOTEL_NM;
        group.Line = FirstLine(hotel.ADDRESS_TX);
        group.Tip = QStringLiteral("# of Rooms: ") + hotel.ROOMS_NB;
        group.Capacity = hotel.ROOMS_NB.toInt();
        group.Twips = QPoint(hotel.POS_X.toInt(), hotel.POS_Y.toInt());
        groups << group;
    }
    return groups;
}

QString frmMain_04_Attendees_Hotels::GroupOf(const clsCONTACT& contact) const {
    return contact.HOTEL_ID;
}

int frmMain_04_Attendees_Hotels::ListFilter() const {
    return ContactFilter::AttendingWithoutHotel;
}

int frmMain_04_Attendees_Hotels::PlacedFilter() const {
    return ContactFilter::AttendingWithHotel;
}

QString frmMain_04_Attendees_Hotels::CountCaption(int count) const {
    return count == 1 ? QStringLiteral("Hotel") : QStringLiteral("Hotels");
}

QString frmMain_04_Attendees_Hotels::DeleteQuestion(const Group& group) const {
    return QStringLiteral("Delete Hotel: ") + group.Name + QLatin1Char('?');
}

void frmMain_04_Attendees_Hotels::DeleteRecord(const QString& key) const {
    clsHOTEL().Delete(key);
}

frmEditorBase* frmMain_04_Attendees_Hotels::NewEditor(const QString& key) {
    return new frmHotel(key, this);
}

QList<usrTravelBoard::Link> frmMain_04_Attendees_Hotels::MoreLinks() {
    return {{QStringLiteral("Capture Map"), [this] {
                 if (modPages::OpenDialog(QStringLiteral("frmCaptureMap"), this))
                     mfrmCaptureMap_MapCaptured();
             }}};
}

// The captured map, or an empty area of its size.
QImage frmMain_04_Attendees_Hotels::Backdrop() const {
    QImage map(gApp().ReportPath() + QStringLiteral("/Map.bmp"));
    if (!map.isNull())
        return map;
    QImage empty(MapSize(), QImage::Format_RGB32);
    empty.fill(FloorPlan::FloorColor);
    return empty;
}

int frmMain_04_Attendees_Hotels::ReportSection() const {
    return clsReportCatalogue::Hotels;
}

void frmMain_04_Attendees_Hotels::mfrmCaptureMap_MapCaptured() {
    LoadBackdrop();
}

void frmMain_04_Attendees_Hotels::Leaving() {
    gApp().MakeReportPath();
    WriteBoardPicture(gApp().ReportPath() + QStringLiteral("/HotelMap.bmp"));
}
