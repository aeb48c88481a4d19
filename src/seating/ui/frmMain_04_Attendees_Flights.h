#pragma once

#include "seating/ui/usrTravelBoard.h"

// The flights of the guests from out of town: one box per flight on a sky of our own drawing.
class frmMain_04_Attendees_Flights : public usrTravelBoard {
    Q_OBJECT

public:
    explicit frmMain_04_Attendees_Flights(QWidget* parent = nullptr);

    enum ActionIndex : int { PrintReportsLink = 3, OpenReportFolder };

protected:
    QList<Group> ReadGroups() const override;
    QString GroupOf(const clsCONTACT& contact) const override;
    int ListFilter() const override;
    int PlacedFilter() const override;
    QString ListCaption() const override { return QStringLiteral("Attendees to be boarded ("); }
    QString CountCaption(int count) const override;
    QString Hint() const override { return QStringLiteral("Drag attendee(s) to the desired flight"); }
    QString BreadcrumbText() const override { return QStringLiteral("Attendees>Flights"); }
    QString DeleteQuestion(const Group& group) const override;
    void DeleteRecord(const QString& key) const override;
    frmEditorBase* NewEditor(const QString& key) override;
    QList<Link> MoreLinks() override { return {}; }
    QImage Backdrop() const override;
    int ReportSection() const override;
    QString IconName() const override { return QStringLiteral("flights"); }
};
