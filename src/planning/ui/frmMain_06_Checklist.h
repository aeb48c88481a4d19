#pragma once

#include "shell/usrListPage.h"

class QMenu;
class QTimer;
class clsTASK;

// The checklist: the tasks grouped by time frame, in the couple's own order ("#"), with a box to tick a
// task done. Ctrl+Up and Ctrl+Down move a task inside its time frame; the order is written half a second
// after the last move, so that holding the key does not write the table at every step.
class frmMain_06_Checklist : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_06_Checklist(QWidget* parent = nullptr);

    enum ActionIndex : int {
        AddTask = 0,
        EditTask,
        DeleteTask,
        PrintReports,
        OpenReportsFolder,
        RefreshDueDates
    };
    enum Column : int { TASK_ICON = 0, CHECK, SORT_ORDER_NB, TASK_NM, TASK_GROUP_TX, DUE_DT, ColumnCount };
    // The wait between the last move and the writing of the order.
    static constexpr int kSortDelayMs = 500;

    // Ticks or unticks the task of this key; false when it could not be written.
    bool ToggleCompleted(qint64 key);
    // Moves the selected task one place up (-1) or down (+1) in its time frame and starts the timer.
    bool MoveSelected(int step);
    // Writes the order shown now, at once (the timer's work; also when the page is left).
    void WriteOrder();
    // Asks, then sets every task's due date from the wedding date.
    void cmdRefreshDueDates_Click();
    // Asks, then deletes the selected task.
    void DeleteSelected();

    void Leaving() override;

public slots:
    void mfrmTask_Added(const QString& taskId);
    void mfrmTask_Updated(const QString& taskId);

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void hideEvent(QHideEvent* event) override;

private:
    void BuildActions();
    void BuildMenu();
    void OpenEditor(const QString& taskId);
    void OnGridClicked(const QModelIndex& index);
    void SwapNumbers(const QModelIndex& first, const QModelIndex& second);
    QStringList ShownKeys() const;
    QStringList WriteOrderOnly();
    void ShowNumbers(const QStringList& order);

    QTimer* tmrSort = nullptr;
    QMenu* mnuHiddenRoot = nullptr;
};
