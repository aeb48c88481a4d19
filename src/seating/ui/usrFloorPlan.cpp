#include "seating/ui/usrFloorPlan.h"

#include "seating/modSeating.h"
#include "seating/ui/usrFloorItem.h"

#include <QAction>
#include <QDrag>
#include <QDragMoveEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QSplitter>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>

namespace {
const QColor kGridColor(226, 218, 208);
} // namespace

namespace FloorPlan {

QList<QAction*> UndoActions(QWidget* page, QUndoStack* stack) {
    QAction* undo = stack->createUndoAction(page, QStringLiteral("&Undo"));
    undo->setObjectName(QStringLiteral("mnuUndo"));
    undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    QAction* redo = stack->createRedoAction(page, QStringLiteral("&Redo"));
    redo->setObjectName(QStringLiteral("mnuRedo"));
    redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    for (QAction* action : {undo, redo}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        page->addAction(action);
    }
    return {undo, redo};
}

void SplitPage(QWidget* page, QWidget* left, QWidget* board) {
    auto* split = new QSplitter(page);
    split->addWidget(left);
    split->addWidget(board);
    split->setStretchFactor(1, 1);
    split->setSizes({300, 980});
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(split);
}

usrGuestTree* GuestList(QWidget* parent) {
    auto* list = new usrGuestTree(false, parent);
    list->setObjectName(QStringLiteral("lvw"));
    list->setHeaderLabels({QStringLiteral("Name")});
    list->setRootIsDecorated(false);
    return list;
}

usrGuestTree* GroupTree(QWidget* parent) {
    auto* tree = new usrGuestTree(true, parent);
    tree->setObjectName(QStringLiteral("tvw"));
    tree->setHeaderHidden(true);
    tree->setContextMenuPolicy(Qt::CustomContextMenu);
    return tree;
}

void CountRow(QVBoxLayout* column, QLabel** count, QLabel** caption, const QString& captionName) {
    auto* row = new QHBoxLayout;
    *count = new QLabel(column->parentWidget());
    (*count)->setObjectName(QStringLiteral("lblCount"));
    *caption = new QLabel(column->parentWidget());
    (*caption)->setObjectName(captionName);
    row->addWidget(*count);
    row->addWidget(*caption, 1);
    column->addLayout(row);
}

} // namespace FloorPlan

void clsFloorScene::drawBackground(QPainter* painter, const QRectF& exposed) {
    const QRectF area = exposed.intersected(sceneRect());
    painter->fillRect(area, FloorPlan::FloorColor);
    if (!Picture.isNull())
        painter->drawImage(QPointF(0, 0), Picture);
    if (!Grid)
        return;
    const int cell = modSeating::kCellPixels;
    painter->setPen(QPen(kGridColor, 0));
    QVector<QLineF> lines;
    for (qreal x = std::ceil(area.left() / cell) * cell; x <= area.right(); x += cell)
        lines.append(QLineF(x, area.top(), x, area.bottom()));
    for (qreal y = std::ceil(area.top() / cell) * cell; y <= area.bottom(); y += cell)
        lines.append(QLineF(area.left(), y, area.right(), y));
    painter->drawLines(lines);
}

void usrFloorView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    const qreal factor = event->angleDelta().y() > 0 ? 1.15 : 1 / 1.15;
    const qreal zoom = transform().m11() * factor;
    if (zoom > 0.05 && zoom < 8)
        scale(factor, factor);
    event->accept();
}

usrGuestTree::usrGuestTree(bool fromGroup, QWidget* parent) : QTreeWidget(parent), mFromGroup(fromGroup) {
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformRowHeights(true);
}

QStringList usrGuestTree::mimeTypes() const {
    return {QStringLiteral("application/x-vowren-guests")};
}

QMimeData* usrGuestTree::mimeData(const QList<QTreeWidgetItem*>& items) const {
    QStringList ids;
    for (QTreeWidgetItem* item : items) {
        if (!item->data(0, FloorPlan::IsGroupRole).toBool())
            ids << item->data(0, FloorPlan::IdRole).toString();
    }
    return GuestDrag::Make(ids, mFromGroup);
}

void usrGuestTree::startDrag(Qt::DropActions) {
    auto* drag = new QDrag(this);
    drag->setMimeData(mimeData(selectedItems()));
    drag->exec(Qt::CopyAction);
}

void usrGuestTree::dragEnterEvent(QDragEnterEvent* event) {
    QStringList ids;
    bool fromGroup = false;
    event->setAccepted(GuestDrag::Read(event->mimeData(), &ids, &fromGroup));
}

void usrGuestTree::dragMoveEvent(QDragMoveEvent* event) {
    event->setAccepted(Target(event).has_value());
}

void usrGuestTree::dropEvent(QDropEvent* event) {
    const std::optional<QString> group = Target(event);
    QStringList ids;
    bool fromGroup = false;
    if (!group || !GuestDrag::Read(event->mimeData(), &ids, &fromGroup))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (OnDrop)
        OnDrop(ids, fromGroup, *group);
}

// Where a drop would go: the tree takes guests on a group's row or a guest's, the list takes guests
// coming back from the groups anywhere.
std::optional<QString> usrGuestTree::Target(QDropEvent* event) const {
    QStringList ids;
    bool fromGroup = false;
    if (!GuestDrag::Read(event->mimeData(), &ids, &fromGroup))
        return std::nullopt;
    if (!mFromGroup)
        return fromGroup ? std::optional<QString>(QString()) : std::nullopt;
    const QString group = GroupOfRow ? GroupOfRow(itemAt(event->position().toPoint())) : QString();
    return group.isEmpty() ? std::nullopt : std::optional<QString>(group);
}
