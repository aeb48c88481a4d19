#pragma once

#include <QMap>
#include <QPoint>
#include <QString>
#include <QUndoCommand>
#include <functional>
#include <optional>

// A step that Ctrl+Z takes back on a board (tables, hotels, flights): the state before and after, and
// how the page puts a state into the database and onto the screen. The change is made before the step
// is kept, so its first redo does nothing.
template <class State> class clsBoardStep : public QUndoCommand {
public:
    using Apply = std::function<bool(const State&)>;
    clsBoardStep(Apply apply, State before, State after, const QString& text)
        : QUndoCommand(text), mApply(std::move(apply)), mBefore(std::move(before)), mAfter(std::move(after)) {
    }
    void undo() override { mApply(mBefore); }
    void redo() override {
        if (!mFirst)
            mApply(mAfter);
        mFirst = false;
    }

private:
    Apply mApply;
    State mBefore, mAfter;
    bool mFirst = true;
};

// Guests put into groups: contact id -> group id ("" for the list), before and after.
using GuestPlaces = QMap<QString, QString>;
using clsGuestsStep = clsBoardStep<GuestPlaces>;
// One move of a thing on the board, in the unit the board keeps.
using clsMoveStep = clsBoardStep<QPoint>;

// The arrow keys move the selected thing on a board one pixel that way.
inline std::optional<QPoint> ArrowStep(int key) {
    switch (key) {
    case Qt::Key_Left:
        return QPoint(-1, 0);
    case Qt::Key_Right:
        return QPoint(1, 0);
    case Qt::Key_Up:
        return QPoint(0, -1);
    case Qt::Key_Down:
        return QPoint(0, 1);
    default:
        return std::nullopt;
    }
}
