#pragma once

#include "shell/grid/usrGrid.h"

#include <QApplication>
#include <QCheckBox>
#include <QItemSelectionModel>
#include <QtTest>

// What the tests of screens share: finding a control by its name, showing a window as a user finds it,
// ticking a box from the keyboard and selecting rows of a grid.
namespace UiTestTools {

// The named child; a missing one ends the test program, naming it.
template <class T> T* Child(const QObject* parent, const QString& name) {
    T* child = parent->findChild<T*>(name);
    if (!child)
        qFatal("no child %s", qPrintable(name));
    return child;
}
template <class T> T* Child(const QObject& parent, const QString& name) {
    return Child<T>(&parent, name);
}

// Shows the window and waits until it is the active one.
inline void ShowActive(QWidget* window) {
    window->show();
    QApplication::setActiveWindow(window);
    if (!QTest::qWaitForWindowActive(window))
        qWarning("%s did not become active", qPrintable(window->objectName()));
}

inline void ShowActive(QWidget& window) {
    ShowActive(&window);
}

// A check box toggled from the keyboard, as a user does with Space.
inline void Toggle(QCheckBox* box) {
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
}

// Selects the rows of these records, and only those.
inline void SelectRecords(usrGrid* grid, const QStringList& keys) {
    grid->clearSelection();
    for (const QString& key : keys) {
        const QModelIndex row = grid->FromSource(grid->Model()->FindRecord(key.toLongLong()));
        QVERIFY2(row.isValid(), qPrintable(key));
        grid->selectionModel()->select(row, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

} // namespace UiTestTools
