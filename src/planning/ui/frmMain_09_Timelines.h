#pragma once

#include "shell/usrListPage.h"

class QMenu;

// The timelines of the events: a filter for each event that has entries (its count beside it), the
// entries grouped by event and day, with their times and durations.
class frmMain_09_Timelines : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_09_Timelines(QWidget* parent = nullptr);

    enum ActionIndex : int { AddEntry = 0, EditEntry, DeleteEntry, PrintReports, OpenReportsFolder };
    enum Column : int { TIMELINE_ICON = 0, TIME, DURATION, DESC, CONTACT, EVENT_ID, START_DT, ColumnCount };
    // The first filter: every entry. The others are the events' keys.
    static constexpr int AllEntries = 0;

    // Asks, then deletes the selected entry; false when nothing was deleted.
    bool DeleteSelected();
    // The event of the filter in force; empty for all entries.
    QString FilterEvent() const;

public slots:
    void mfrmTimeline_Refresh(const QString& timelineId);

protected:
    void BeforeLoad() override;
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildActions();
    void OpenEditor(const QString& timelineId);
    void ShowBreadcrumb();
};
