#include "seating/ui/frmMain_04_Attendees_Flights.h"

#include "core/FilterCode.h"
#include "guests/clsCONTACT.h"
#include "reports/clsReportCatalogue.h"
#include "seating/clsFLIGHT.h"
#include "seating/ui/frmFlight.h"
#include "shell/modPages.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

const QSize kSkySize(720, 496);

// A dotted route across the sky, from lower left to upper right.
void PaintRoute(QPainter& painter, const QPointF& from, const QPointF& to, qreal lift) {
    QPainterPath path(from);
    path.quadTo(QPointF((from.x() + to.x()) / 2, std::min(from.y(), to.y()) - lift), to);
    painter.drawPath(path);
}

void PaintCloud(QPainter& painter, const QPointF& at, qreal size) {
    for (const QPointF& puff : {QPointF(0, 0), QPointF(0.6, -0.35), QPointF(1.2, 0), QPointF(0.6, 0.1)})
        painter.drawEllipse(at + puff * size, size * 0.55, size * 0.4);
}

} // namespace

frmMain_04_Attendees_Flights::frmMain_04_Attendees_Flights(QWidget* parent)
    : usrTravelBoard(modTravel::Kind::Flight, parent) {
    setObjectName(modPages::FlightsSubPage());
    Build();
}

QList<usrTravelBoard::Group> frmMain_04_Attendees_Flights::ReadGroups() const {
    QList<Group> groups;
    for (const clsFLIGHT& flight : clsFLIGHT::OpenRecords()) {
        Group group;
        group.Id = flight.FLIGHT_ID;
        group.Number = flight.FLIGHT_NB;
        group.Name = flight.FLIGHT_NM;
        group.Line = flight.DEPARTS_AIRPORT_NM + QStringLiteral(" \u2192 ") + flight.ARRIVES_AIRPORT_NM +
                     QStringLiteral("  ") + flight.ARRIVES_DT_DateTimeFormat();
        group.Tip = QStringLiteral("Flight #") + flight.FLIGHT_NB;
        group.Twips = QPoint(flight.POS_X.toInt(), flight.POS_Y.toInt());
        groups << group;
    }
    return groups;
}

QString frmMain_04_Attendees_Flights::GroupOf(const clsCONTACT& contact) const {
    return contact.FLIGHT_ID;
}

int frmMain_04_Attendees_Flights::ListFilter() const {
    return ContactFilter::AttendingWithoutFlight;
}

int frmMain_04_Attendees_Flights::PlacedFilter() const {
    return ContactFilter::AttendingWithFlight;
}

QString frmMain_04_Attendees_Flights::CountCaption(int count) const {
    return count == 1 ? QStringLiteral("Flight") : QStringLiteral("Flights");
}

QString frmMain_04_Attendees_Flights::DeleteQuestion(const Group& group) const {
    return QStringLiteral("Delete flight: ") + group.Name + QLatin1Char('?');
}

void frmMain_04_Attendees_Flights::DeleteRecord(const QString& key) const {
    clsFLIGHT().Delete(key);
}

frmEditorBase* frmMain_04_Attendees_Flights::NewEditor(const QString& key) {
    return new frmFlight(key, this);
}

// A calm sky with clouds and the dotted routes of planes, behind the flights.
QImage frmMain_04_Attendees_Flights::Backdrop() const {
    QImage sky(kSkySize, QImage::Format_RGB32);
    QPainter painter(&sky);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient blue(0, 0, 0, kSkySize.height());
    blue.setColorAt(0, QColor(0xb9, 0xd9, 0xf2));
    blue.setColorAt(1, QColor(0xf4, 0xf8, 0xfc));
    painter.fillRect(sky.rect(), blue);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 200));
    PaintCloud(painter, QPointF(90, 80), 40);
    PaintCloud(painter, QPointF(520, 60), 52);
    PaintCloud(painter, QPointF(380, 380), 36);
    PaintCloud(painter, QPointF(620, 300), 30);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x8a, 0x3c, 0x63, 90), 2, Qt::DotLine));
    PaintRoute(painter, QPointF(20, 470), QPointF(700, 120), 180);
    PaintRoute(painter, QPointF(60, 420), QPointF(690, 300), 120);
    return sky;
}

int frmMain_04_Attendees_Flights::ReportSection() const {
    return clsReportCatalogue::Flights;
}
