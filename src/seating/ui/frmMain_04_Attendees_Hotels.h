#pragma once

#include "seating/ui/usrTravelBoard.h"

// The hotels of the guests from out of town on a map: the map captured by frmCaptureMap ("Map.bmp" in
// the reports folder) behind one box per hotel. Leaving the page writes "HotelMap.bmp", the map with its
// boxes, for the hotel reports.
class frmMain_04_Attendees_Hotels : public usrTravelBoard {
    Q_OBJECT

public:
    explicit frmMain_04_Attendees_Hotels(QWidget* parent = nullptr);

    enum ActionIndex : int { CaptureMap = 3, PrintReportsLink, OpenReportFolder };
    // The size of a captured map, and of the board without one.
    static QSize MapSize() { return {484, 496}; }

    void Leaving() override;

public slots:
    void mfrmCaptureMap_MapCaptured();

protected:
    QList<Group> ReadGroups() const override;
    QString GroupOf(const clsCONTACT& contact) const override;
    int ListFilter() const override;
    int PlacedFilter() const override;
    QString ListCaption() const override { return QStringLiteral("Attendees to be housed ("); }
    QString CountCaption(int count) const override;
    QString Hint() const override { return QStringLiteral("Drag attendee(s) to the desired hotel"); }
    QString BreadcrumbText() const override { return QStringLiteral("Attendees>Hotels"); }
    QString DeleteQuestion(const Group& group) const override;
    void DeleteRecord(const QString& key) const override;
    frmEditorBase* NewEditor(const QString& key) override;
    QList<Link> MoreLinks() override;
    QImage Backdrop() const override;
    int ReportSection() const override;
    QString IconName() const override { return QStringLiteral("hotels"); }
};
