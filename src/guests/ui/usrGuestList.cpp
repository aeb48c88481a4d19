#include "guests/ui/usrGuestList.h"

#include "guests/clsCONTACT.h"
#include "guests/ui/GuestIcons.h"
#include "shell/controls/ControlIcons.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainterPath>

namespace {

enum Column : int { TitleColumn = 0, NameColumn, AddressColumn };

// A brought guest: the outline of a person beside a small plus.
QIcon BroughtGuestIcon() {
    static const QIcon icon = ControlIcons::Drawn(
        [](QPainter& p, const QRectF& r, const QColor& color) {
            const double s = r.width();
            QPen pen(color, s / 14.0);
            p.setPen(pen);
            p.setBrush(Qt::NoBrush);
            const double head = s * 0.30;
            p.drawEllipse(QRectF(r.left() + s * 0.14, r.top() + s * 0.10, head, head));
            QPainterPath body;
            body.moveTo(r.left() + s * 0.04, r.bottom() - s * 0.06);
            body.cubicTo(r.left() + s * 0.04, r.top() + s * 0.42, r.left() + s * 0.54, r.top() + s * 0.42,
                         r.left() + s * 0.54, r.bottom() - s * 0.06);
            p.drawPath(body);
            const QPointF c(r.left() + s * 0.78, r.top() + s * 0.34);
            p.drawLine(c - QPointF(s * 0.16, 0), c + QPointF(s * 0.16, 0));
            p.drawLine(c - QPointF(0, s * 0.16), c + QPointF(0, s * 0.16));
        },
        QColor(0x7a, 0x5c, 0x99));
    return icon;
}

QIcon PersonIcon(const clsCONTACT& c) {
    if (!c.GUEST_OF_ID.isEmpty())
        return BroughtGuestIcon();
    return GuestIcons::All().value(GuestIcons::PersonIndex(c));
}

} // namespace

usrGuestList::usrGuestList(const QString& nameCaption, QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(3);
    setHeaderLabels({QStringLiteral("Title"), nameCaption, QStringLiteral("Address")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setSortingEnabled(false);
    header()->setStretchLastSection(true);
    header()->resizeSection(TitleColumn, 56);
    header()->resizeSection(NameColumn, 220);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        if (item)
            emit HandOver({KeyOf(item)});
    });
}

QString usrGuestList::KeyOf(const QTreeWidgetItem* item) {
    return item ? item->data(0, Qt::UserRole).toString() : QString();
}

QString usrGuestList::RowKey(const clsCONTACT& contact) {
    return contact.CONTACT_ID.isEmpty() ? QStringLiteral("+") + contact.GUEST_OF_ID : contact.CONTACT_ID;
}

void usrGuestList::ShowPeople(const QList<clsCONTACT>& people, const QString& firstSuffix) {
    const QStringList selected = SelectedKeys();
    const QString current = KeyOf(currentItem());
    setUpdatesEnabled(false);
    clear();
    QList<QTreeWidgetItem*> items;
    items.reserve(people.size());
    for (const clsCONTACT& c : people) {
        auto* item = new QTreeWidgetItem;
        item->setData(0, Qt::UserRole, RowKey(c));
        item->setText(TitleColumn, c.TITLE_TX);
        item->setText(NameColumn, c.FirstLast() + (items.isEmpty() ? firstSuffix : QString()));
        item->setIcon(NameColumn, PersonIcon(c));
        item->setText(AddressColumn, c.DisplayAddress(false));
        item->setToolTip(NameColumn, c.GUEST_OF_ID.isEmpty()
                                         ? c.TitleFirstMiddleLastSuffix()
                                         : QStringLiteral("Guest of ") + c.GUEST_OF_FULL_NM());
        items << item;
    }
    addTopLevelItems(items);
    SelectKeys(selected);
    for (QTreeWidgetItem* item : items) {
        if (KeyOf(item) == current && !current.isEmpty())
            setCurrentItem(item, 0, QItemSelectionModel::NoUpdate);
    }
    setUpdatesEnabled(true);
}

QStringList usrGuestList::Keys() const {
    QStringList keys;
    for (int i = 0; i < topLevelItemCount(); ++i)
        keys << KeyOf(topLevelItem(i));
    return keys;
}

QStringList usrGuestList::SelectedKeys() const {
    QStringList keys;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->isSelected())
            keys << KeyOf(topLevelItem(i));
    }
    return keys;
}

void usrGuestList::SelectKeys(const QStringList& keys) {
    clearSelection();
    QTreeWidgetItem* first = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = topLevelItem(i);
        if (keys.contains(KeyOf(item))) {
            item->setSelected(true);
            if (!first)
                first = item;
        }
    }
    if (first) {
        setCurrentItem(first, 0, QItemSelectionModel::NoUpdate);
        scrollToItem(first);
    }
}

// ---- Dragging ---------------------------------------------------------------------------------------

QMimeData* usrGuestList::MimeDataFor(const QStringList& keys) const {
    auto* data = new QMimeData;
    data->setData(MimeType(), (objectName() + QLatin1Char('\n') + keys.join(QLatin1Char(','))).toUtf8());
    return data;
}

QStringList usrGuestList::mimeTypes() const {
    return {MimeType()};
}

QMimeData* usrGuestList::mimeData(const QList<QTreeWidgetItem*>& items) const {
    QStringList keys;
    for (const QTreeWidgetItem* item : items)
        keys << KeyOf(item);
    return MimeDataFor(keys);
}

// Copy, never move: the lists are rebuilt by their form, the view must not take rows away by itself.
Qt::DropActions usrGuestList::supportedDropActions() const {
    return Qt::CopyAction;
}

bool usrGuestList::AcceptsDrag(const QDropEvent* event) const {
    if (!mPartner || !event->mimeData()->hasFormat(MimeType()))
        return false;
    const QString text = QString::fromUtf8(event->mimeData()->data(MimeType()));
    return text.section(QLatin1Char('\n'), 0, 0) == mPartner->objectName();
}

void usrGuestList::dragEnterEvent(QDragEnterEvent* event) {
    if (!AcceptsDrag(event)) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void usrGuestList::dragMoveEvent(QDragMoveEvent* event) {
    if (!AcceptsDrag(event)) {
        event->ignore();
        return;
    }
    QTreeWidget::dragMoveEvent(event);
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void usrGuestList::dropEvent(QDropEvent* event) {
    if (!AcceptsDrag(event)) {
        event->ignore();
        return;
    }
    const QString text = QString::fromUtf8(event->mimeData()->data(MimeType()));
    const QStringList keys = text.section(QLatin1Char('\n'), 1).split(QLatin1Char(','), Qt::SkipEmptyParts);
    int row = -1;
    const QModelIndex at = indexAt(event->position().toPoint());
    if (at.isValid()) {
        const QRect rect = visualRect(at);
        row = at.row() + (event->position().y() > rect.center().y() ? 1 : 0);
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit PeopleDropped(keys, row);
}

void usrGuestList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool del = mDeleteHandsOver && event->key() == Qt::Key_Delete;
    if ((enter || del) && event->modifiers() == Qt::NoModifier) {
        const QStringList keys = SelectedKeys();
        if (!keys.isEmpty())
            emit HandOver(keys);
        event->accept();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}
