#pragma once

#include "seating/ui/usrFloorItem.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <memory>

// Guests dragged onto a widget of a board at a point, the way the mouse does it: enter, move, drop.
inline void DropGuests(QWidget* target, const QPoint& at, const QStringList& ids, bool fromGroup) {
    std::unique_ptr<QMimeData> data(GuestDrag::Make(ids, fromGroup));
    QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QDragMoveEvent move(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    QDropEvent drop(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
}
