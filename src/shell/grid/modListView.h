#pragma once

#include <QString>

class QTreeWidget;
class QTreeWidgetItem;

// What the editors do with their check-box and drag lists. A list view is a QTreeWidget whose items
// carry the record's key, made by ListViewKey, in Qt::UserRole of the first column.

// The item key of a record: its id followed by " ID".
QString ListViewKey(const QString& id);
// Adds an item for a record: its texts by column and its key.
QTreeWidgetItem* ListViewAdd(QTreeWidget* list, const QString& id, const QStringList& texts);
// The text of the first column of the current selected item; empty without one.
QString ListViewSelectedText(const QTreeWidget* list);
int ListViewCheckedCount(const QTreeWidget* list);
void ListViewCheckAll(QTreeWidget* list, bool checked);
// Moves the selected items, with their texts, icons, keys and sub-items, to the end of the other list,
// where they are selected and brought into view. Returns how many moved.
int ListViewMoveSelected(QTreeWidget* from, QTreeWidget* to);
// Selects the item of this record and brings it into view; false when there is none.
bool ListViewSelectByKey(QTreeWidget* list, const QString& id);
// Writes 001, 002, ... into the column in the present order of the items, so that sorting by the text
// of that column keeps this order.
void ListViewNumber(QTreeWidget* list, int column);
// Holds a column at this width: the user can't drag it wider or narrower.
void ListViewHoldColumnWidth(QTreeWidget* list, int column, int width);
