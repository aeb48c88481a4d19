#pragma once

#include "core/FilterCode.h"
#include "shell/usrListPage.h"

#include <QMap>
#include <functional>

class clsCONTACT;
class QMenu;

// The people who are coming, the bride and groom among them, with their meal, table, hotel and
// flight. The panel counts them by side, list, gender, age, town, seat and, in entries made from the
// meal list, by meal. The context menu sets the meal or the side of many attendees at once.
class frmMain_04_Attendees : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_04_Attendees(QWidget* parent = nullptr);

    // The actions of the row above the grid, by index.
    enum ActionIndex : int {
        EditAttendee = 0,
        TableLayout,
        Hotels,
        Flights,
        Tentcards,
        PrintReports,
        OpenReportsFolder,
        CustomizeColumns,
    };
    // The grid's columns, in their first order.
    enum Column : int {
        ICO = 0,
        RSVP_ID,
        ATTENDEE_NM,
        FRIEND_OF,
        GENDER_FG,
        OUT_OF_TOWNER_FG,
        MEAL,
        TABLE_NB,
        TABLE_NM,
        HOTEL_NM,
        FLIGHT_NM,
        ColumnCount
    };
    // The panel's entry of the attendees without a meal; the meals' own entries start at FirstMeal.
    static constexpr int NoMeal = ContactFilter::AttendingWithoutMeal;
    static constexpr int FirstMeal = ContactFilter::AttendingChild + 1; // after the last code of its own

    // The condition of a meal entry; empty for any other entry.
    QString MealCondition(int filterId) const;
    // Changes every selected attendee, all or nothing; the rows and counts follow.
    bool ChangeSelected(const std::function<void(clsCONTACT&)>& change);
    // The context menu as it stands for the selection (not shown).
    QMenu* ContextMenu() const { return mMenu; }

public slots:
    // The attendee editor saved: the row follows, or leaves when the person no longer comes.
    void mfrmAttendee_AttendeeUpdated(const QString& contactId);
    // The sub-pages were closed: seats, hotels and flights may have changed.
    void mfrmMain_04_Attendees_Tables_Closing();
    void mfrmMain_04_Attendees_Hotels_Closing();
    void mfrmMain_04_Attendees_Flights_Closing();

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void SubPageClosed(const QString& formName) override;

private:
    QList<FilterEntry> MealEntries();
    void BuildActions();
    void BuildMenu();
    void AddChoiceMenu(const QString& name, const QString& title, const QStringList& captions,
                       const std::function<void(clsCONTACT&, int)>& apply);
    QWidget* BuildInfo();
    void OpenEditor(const QString& contactId);
    void SetRowCells(const QModelIndex& row, const clsCONTACT& contact);

    // Meal entries by their index: the meal's text, and its key in the meal list.
    QMap<int, QString> mMealText;
    QMap<int, QString> mMealId;
    QMenu* mMenu = nullptr;
};
