#pragma once

#include "seating/modTravel.h"
#include "seating/ui/clsBoardSteps.h"
#include "seating/ui/clsGuestRoster.h"
#include "shell/usrPage.h"

#include <QHash>
#include <QImage>
#include <QPoint>
#include <functional>
#include <memory>

class QGraphicsView;
class QLabel;
class QMenu;
class QTreeWidget;
class QUndoStack;
class clsCONTACT;
class clsFloorScene;
class frmEditorBase;
class usrHyperlink;
class usrTravelBox;

// A board on which the attending guests from out of town are given a hotel or a flight: the list of those
// still without one, the tree of hotels or flights with their guests, and a picture with one box per
// hotel or flight. Guests go by drag and drop (from the list or a node onto a box or a node, back onto
// the list), boxes are dragged anywhere on the picture and stay inside it. Every change is saved at once
// and is a step that Ctrl+Z takes back. The hotel and the flight pages say what differs.
class usrTravelBoard : public usrPage {
    Q_OBJECT

public:
    // The links every board has at these places; the kinds add theirs after them.
    enum ActionIndex : int { AddNew = 0, Edit, Delete };

    // ---- What the drops do ----
    // Guests into the group ("" back to the list): all of them, saved at once.
    bool AssignGuests(const QString& groupId, const QStringList& contactIds);
    // A box let go on the picture at a point, held at grab from its top left (pixels).
    bool DropBox(const QString& groupId, const QPointF& scenePos, const QPointF& grab);

    // ---- Commands ----
    // Asks the kind's question and deletes the selected hotel or flight.
    void DeleteSelected();
    void OpenEditor(const QString& key);
    void PrintReports();

    // ---- What the page shows ----
    void SelectGroup(const QString& groupId);
    QString SelectedGroupId() const { return mSelected; }
    QStringList ListedIds() const { return mRoster->ListIds(); }
    QStringList GuestsIn(const QString& groupId) const { return mRoster->GuestsIn(groupId); }
    usrTravelBox* Box(const QString& groupId) const { return mBoxes.value(groupId); }
    QString ListHeading() const;
    QUndoStack* UndoStack() const { return mUndo; }
    QList<QAction*> EditActions() const override;
    clsFloorScene* Board() const { return mBoard; }
    usrHyperlink* Action(int index) const { return linkAction.value(index); }

    // ---- For the undo steps ----
    bool ApplyPlaces(const GuestPlaces& places);
    bool ApplyBoxPosition(const QString& groupId, const QPoint& twips);

public slots:
    void mfrmGroup_Added(const QString& key);
    void mfrmGroup_Updated(const QString& key);

protected:
    // What a board shows of one hotel or flight.
    struct Group {
        QString Id;
        QString Number;
        QString Name;
        QString Line; // under the name on the box
        QString Tip;
        int Capacity = -1; // rooms; -1 for no limit
        QPoint Twips;      // the box's top left
    };
    using Link = QPair<QString, std::function<void()>>;

    usrTravelBoard(modTravel::Kind kind, QWidget* parent);
    // Builds the screen and loads it; the kinds call it at the end of their constructors.
    void Build();
    void Reload();
    // The picture behind the boxes anew (a captured map).
    void LoadBackdrop();
    // The board's picture with its boxes; false when it can't be written.
    bool WriteBoardPicture(const QString& path) const;

    // ---- What each kind tells ----
    virtual QList<Group> ReadGroups() const = 0;
    virtual QString GroupOf(const clsCONTACT& contact) const = 0;
    virtual int ListFilter() const = 0;
    virtual int PlacedFilter() const = 0;
    // "Attendees to be housed ("
    virtual QString ListCaption() const = 0;
    // "Hotel" / "Hotels"
    virtual QString CountCaption(int count) const = 0;
    virtual QString Hint() const = 0;
    virtual QString BreadcrumbText() const = 0;
    virtual QString DeleteQuestion(const Group& group) const = 0;
    virtual void DeleteRecord(const QString& key) const = 0;
    virtual frmEditorBase* NewEditor(const QString& key) = 0;
    // The links after Add, Edit and Delete.
    virtual QList<Link> MoreLinks() = 0;
    // The picture behind the boxes; its size is the board's.
    virtual QImage Backdrop() const = 0;
    virtual int ReportSection() const = 0;
    // The shell's picture of the kind ("hotels"), for the tree's nodes.
    virtual QString IconName() const = 0;

private:
    QWidget* BuildLeft();
    void BuildLinks(class QVBoxLayout* column);
    QTreeWidget* BuildTree(QWidget* parent);
    void AddGroup(const Group& group);
    void ShowGroup(const Group& group);
    QString NodeText(const Group& group) const;
    void RefreshBox(const QString& groupId);
    void RefreshCounts();
    void UpdateLinks();
    QPoint TwipsOf(const QPointF& pixels) const;
    QSize TwipsOf(const QSizeF& pixels) const;
    // The board's size in twips.
    QSize BoardTwips() const;
    QPointF PixelsOf(const QPoint& twips) const;
    QPoint FreeSpot() const;
    std::function<bool(const GuestPlaces&)> ApplyPlacesStep();

    modTravel::Kind mKind;
    QList<usrHyperlink*> linkAction;
    QLabel* lblAttendees = nullptr;
    QLabel* lblCount = nullptr;
    QLabel* lblGroups = nullptr;
    QTreeWidget* lvw = nullptr;
    QTreeWidget* tvw = nullptr;
    QGraphicsView* picMap = nullptr;
    clsFloorScene* mBoard = nullptr;
    QMenu* mnuGuest = nullptr;
    QUndoStack* mUndo = nullptr;
    QAction* mUndoAction = nullptr;
    QAction* mRedoAction = nullptr;
    std::unique_ptr<clsGuestRoster> mRoster;
    QHash<QString, usrTravelBox*> mBoxes; // group id -> its box
    QHash<QString, Group> mGroups;
    QString mSelected;
    bool mShown = false;

protected:
    void showEvent(class QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
