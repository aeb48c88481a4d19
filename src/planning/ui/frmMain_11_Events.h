#pragma once

#include "shell/usrListPage.h"

class clsEVENT;
class QMenu;

// The events of the wedding by date: the wedding day, the rehearsal, the showers. The wedding day can't
// be deleted, and saving it moves the wedding date (the frame's countdown follows at once).
class frmMain_11_Events : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_11_Events(QWidget* parent = nullptr);

    enum ActionIndex : int {
        AddEvent = 0,
        EditEvent,
        DeleteEvent,
        EmailEvent,
        VisitWebSite,
        MapLocation,
        PrintReports,
        OpenReportsFolder,
        ExportCalendar,
    };
    enum Column : int {
        EVENT_ICON = 0,
        EVENT,
        DATE,
        ADDRESS,
        CONTACT,
        PHONE,
        FAX,
        EMAIL,
        WEBSITE,
        ColumnCount
    };
    static constexpr int AllEvents = 0;

    // Asks, then deletes the selected event; false when nothing was deleted.
    bool DeleteSelected();
    // Writes the calendar file of every date to that file; false after a message.
    bool ExportToCalendar(const QString& path);

public slots:
    void mfrmEvent_Refresh(const QString& eventId);

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildActions();
    void OpenEditor(const QString& eventId);
    void ChooseCalendarFile();
    const clsEVENT* SelectedEvent() const;
};
