#pragma once

#include "seating/modSeating.h"
#include "seating/ui/clsBoardSteps.h"
#include "seating/ui/clsGuestRoster.h"
#include "shell/usrPage.h"

#include <QHash>
#include <QIcon>
#include <QPoint>
#include <memory>

class QCheckBox;
class QGraphicsScene;
class QGraphicsView;
class QLabel;
class QMenu;
class QTreeWidget;
class QTreeWidgetItem;
class QUndoStack;
class usrDiningTable;
class usrHyperlink;

// The sub-page of the attendees page on which the couple seat their guests: the attendees still to be
// seated, the tree of all tables with their guests, and the floor with every table where it stands.
// Guests go to tables by drag and drop, tables move by drag and drop or the arrow keys. Every change is
// saved at once and is a step that Ctrl+Z takes back.
class frmMain_04_Attendees_Tables : public usrPage {
    Q_OBJECT

public:
    explicit frmMain_04_Attendees_Tables(QWidget* parent = nullptr);

    // The links, by index.
    enum ActionIndex : int {
        AddNewTable = 0,
        EditTable,
        DeleteTable,
        EmptyTable,
        SwapTables,
        LockTableLayout,
        PrintReports,
        OpenPicture,
        ActionCount
    };

    void Leaving() override;

    // ---- What the drops do (the handlers of the drags) ----
    // People from the list, or guests from the tree, onto a table: all of them or none.
    bool SeatGuests(const QString& tableId, const QStringList& contactIds);
    // Guests from the tree back to the list.
    bool UnseatGuests(const QStringList& contactIds);
    // A table let go on the floor at a point, held at grab from its top left (pixels).
    bool DropTable(const QString& tableId, const QPointF& scenePos, const QPointF& grab);
    // The selected table one pixel in a direction, as the arrow keys do.
    bool StepSelectedTable(int dx, int dy);

    // ---- Commands of the links and menus ----
    void DeleteSelectedTable();
    void EmptySelectedTable();
    void EmptyAllTables();
    void DeleteAllTables();
    void ToggleLock();
    void PrintLayout();
    // The floor as TableLayout.bmp in the reports folder, and TableLayout.png at twice the size;
    // false (and nothing said) when either can't be written.
    bool WriteLayoutPicture();

    // ---- What the page shows ----
    void SelectTable(const QString& tableId);
    QString SelectedTableId() const { return mSelected; }
    usrDiningTable* TableItem(const QString& tableId) const { return mTables.value(tableId); }
    QStringList UnseatedIds() const { return mRoster->ListIds(); }
    QStringList GuestsAt(const QString& tableId) const { return mRoster->GuestsIn(tableId); }
    QString StatusLine() const;
    QUndoStack* UndoStack() const { return mUndo; }
    QList<QAction*> EditActions() const override { return {mUndoAction, mRedoAction}; }
    QGraphicsScene* Floor() const { return mFloor; }
    QGraphicsView* FloorView() const { return picFloor; }
    usrHyperlink* Action(int index) const { return linkAction.value(index); }
    // The floor's size in pixels: the room the tables stand in.
    QSizeF FloorSize() const;

    // ---- For the undo steps ----
    // Writes the seats and shows them; false after the message when the database refused.
    bool ApplySeats(const modSeating::Seats& seats);
    // Keeps a change of seats already written as one step to undo.
    void PushSeatsStep(const modSeating::Seats& before, const modSeating::Seats& after, const QString& text);
    // Writes the table's top left (twips) and puts it there.
    bool ApplyTablePosition(const QString& tableId, const QPoint& twips);

public slots:
    void mfrmTable_Added(const QString& key);
    void mfrmTable_Updated(const QString& key);
    void mfrmTableSwap_Swap();

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildLinks(class QVBoxLayout* column);
    void BuildMenus();
    QWidget* BuildLeft();
    void Reload();
    void LoadTables();
    void LoadGuests();
    usrDiningTable* AddTableItem(const clsDINING_TABLE& table);
    void AddTableNode(const clsDINING_TABLE& table);
    void RemoveTable(const QString& tableId);
    clsGuestsStep::Apply ApplySeatsStep();
    void RefreshTable(const QString& tableId);
    void RefreshCounts();
    void UpdateLinks();
    void UpdateTableNodeIcon(const QString& tableId);
    void ShowTableMenu(const QPoint& screenPos);
    void ShowFloorMenu(const QPoint& screenPos);
    void OnTreeClicked(QTreeWidgetItem* item);
    void OpenTableEditor(const QString& key);
    void OpenTableSwap();
    void ZoomToFit();
    QPoint TwipsOf(const QPointF& pixels) const;
    modSeating::TablePlacement PlacementOf(const usrDiningTable* item) const;
    bool PlaceTable(usrDiningTable* item, const modSeating::TablePlacement& place);
    QPointF PixelsOf(const clsDINING_TABLE& table) const;
    bool Ask(const QString& question) const;

    QList<usrHyperlink*> linkAction;
    QLabel* imgLock = nullptr;
    QCheckBox* chkGrid = nullptr;
    QCheckBox* chkReveal = nullptr;
    QLabel* lblCount = nullptr;
    QLabel* lblDiningTables = nullptr;
    QLabel* lblAttendees = nullptr;
    QLabel* lblTable = nullptr;
    QTreeWidget* lvw = nullptr;
    QTreeWidget* tvw = nullptr;
    QGraphicsView* picFloor = nullptr;
    QGraphicsScene* mFloor = nullptr;
    QMenu* mnuHiddenTableRoot = nullptr;
    QMenu* mnuHiddenTableLayoutRoot = nullptr;
    QMenu* mnuHiddenSeatedAttendeeRoot = nullptr;
    QUndoStack* mUndo = nullptr;
    QAction* mUndoAction = nullptr;
    QAction* mRedoAction = nullptr;

    QHash<QString, usrDiningTable*> mTables; // table id -> its item on the floor
    std::unique_ptr<clsGuestRoster> mRoster;
    QHash<QString, long> mTaken; // table id -> seats taken
    QString mSelected;
    QSizeF mFloorSize;
    bool mShown = false;
};
