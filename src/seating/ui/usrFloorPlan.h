#pragma once

#include <QColor>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QTreeWidget>
#include <functional>
#include <optional>

// The pieces a board (the table layout, the hotel map, the flights) has besides its items: the floor,
// its view, and the list and tree that hand guests out and take them back.
namespace FloorPlan {
// What a row of the list or the tree carries: the contact's or the group's key, and whether it is a group
// (a table, a hotel, a flight).
inline constexpr int IdRole = Qt::UserRole;
inline constexpr int IsGroupRole = Qt::UserRole + 1;
inline const QColor FloorColor(252, 249, 244);
} // namespace FloorPlan

class QAction;
class QLabel;
class QUndoStack;
class QVBoxLayout;
class usrGuestTree;

// What every board builds alike.
namespace FloorPlan {
// Undo (Ctrl+Z, "mnuUndo") and Redo (Ctrl+Shift+Z, "mnuRedo") of the stack, working while the page has
// the focus; the page's Edit menu shows them.
QList<QAction*> UndoActions(QWidget* page, QUndoStack* stack);
// The board's column of links and views on the left, its picture on the right.
void SplitPage(QWidget* page, QWidget* left, QWidget* board);
// The list of guests still to be placed ("lvw") and the tree of groups ("tvw"); the roster fills them.
usrGuestTree* GuestList(QWidget* parent);
usrGuestTree* GroupTree(QWidget* parent);
// The row "n Hotels" under the list: the count ("lblCount") and its caption, named as told.
void CountRow(QVBoxLayout* column, QLabel** count, QLabel** caption, const QString& captionName);
} // namespace FloorPlan

// The floor: its colour and, while Grid is on, the lines of the 32-pixel cells; or, when it has one, a
// picture from its top left (a map).
class clsFloorScene : public QGraphicsScene {
public:
    using QGraphicsScene::QGraphicsScene;
    bool Grid = true;
    QImage Picture;

protected:
    void drawBackground(QPainter* painter, const QRectF& exposed) override;
};

// The floor's view: Ctrl with the wheel zooms; the wheel alone scrolls.
class usrFloorView : public QGraphicsView {
public:
    using QGraphicsView::QGraphicsView;

protected:
    void wheelEvent(QWheelEvent* event) override;
};

// The list of those still to be placed (fromGroup false) or the tree of the groups (true): both hand out
// the guests they carry and take guests dropped on them. Only guest rows can be dragged; the page moves
// the rows itself once the database has them, so a drag only carries the keys.
class usrGuestTree : public QTreeWidget {
public:
    usrGuestTree(bool fromGroup, QWidget* parent);
    // The guests, whether they came from a group, and the group of the row they were dropped on ("" for
    // the list).
    std::function<void(const QStringList&, bool, const QString&)> OnDrop;
    // The group a row stands for or under ("" for none).
    std::function<QString(QTreeWidgetItem*)> GroupOfRow;

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }
    void startDrag(Qt::DropActions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    std::optional<QString> Target(QDropEvent* event) const;

    bool mFromGroup;
};
