#include "widgets/ui/usrEventList.h"

#include "shell/mdiMain.h"

#include <QDropEvent>
#include <QMimeData>

namespace {
// The list the keys came from, on the first line; the keys follow.
QStringList Lines(const QMimeData* mime) {
    return QString::fromUtf8(mime->data(usrEventList::MimeType()))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
} // namespace

usrEventList::usrEventList(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setDragEnabled(true);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setDropIndicatorShown(false);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
}

void usrEventList::AddItem(const QString& key, const QString& caption) {
    auto* item = new QListWidgetItem(caption, this);
    item->setData(Qt::UserRole, key);
    item->setIcon(style()->standardIcon(
        key.startsWith(QLatin1String("INVITE")) ? QStyle::SP_FileDialogListView : QStyle::SP_FileIcon));
}

QStringList usrEventList::mimeTypes() const {
    return {MimeType()};
}

QMimeData* usrEventList::mimeData(const QList<QListWidgetItem*>& items) const {
    QStringList lines{objectName()};
    for (const QListWidgetItem* item : items)
        lines << item->data(Qt::UserRole).toString();
    auto* mime = new QMimeData;
    mime->setData(MimeType(), lines.join(QLatin1Char('\n')).toUtf8());
    return mime;
}

bool usrEventList::FromTheOtherList(const QMimeData* mime) const {
    const QStringList lines = Lines(mime);
    return lines.size() > 1 && lines.first() != objectName();
}

// Entering is the first move.
void usrEventList::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

void usrEventList::dragMoveEvent(QDragMoveEvent* event) {
    if (FromTheOtherList(event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

bool usrEventList::Receive(const QMimeData* mime) {
    if (!FromTheOtherList(mime))
        return false;
    const QStringList lines = Lines(mime);
    emit Dropped(lines.mid(1), lines.first());
    return true;
}

// The lists are filled anew from the rows after a move, so the items themselves are never moved here.
void usrEventList::dropEvent(QDropEvent* event) {
    if (!Receive(event->mimeData())) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
}
