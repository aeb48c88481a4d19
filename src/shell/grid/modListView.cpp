#include "shell/grid/modListView.h"

#include <QHeaderView>
#include <QTreeWidget>

QString ListViewKey(const QString& id) { return id + QStringLiteral(" ID"); }

QTreeWidgetItem* ListViewAdd(QTreeWidget* list, const QString& id, const QStringList& texts) {
    auto* item = new QTreeWidgetItem(list, texts);
    item->setData(0, Qt::UserRole, ListViewKey(id));
    return item;
}

QString ListViewSelectedText(const QTreeWidget* list) {
    const QTreeWidgetItem* item = list->currentItem();
    if (item == nullptr || !item->isSelected()) {
        const QList<QTreeWidgetItem*> selected = list->selectedItems();
        item = selected.isEmpty() ? nullptr : selected.first();
    }
    return item == nullptr ? QString() : item->text(0);
}

int ListViewCheckedCount(const QTreeWidget* list) {
    int count = 0;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        count += int(list->topLevelItem(i)->checkState(0) == Qt::Checked);
    return count;
}

void ListViewCheckAll(QTreeWidget* list, bool checked) {
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        list->topLevelItem(i)->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
}

int ListViewMoveSelected(QTreeWidget* from, QTreeWidget* to) {
    QList<QTreeWidgetItem*> moving;
    for (int i = 0; i < from->topLevelItemCount(); ++i)
        if (from->topLevelItem(i)->isSelected()) moving.append(from->topLevelItem(i));
    if (moving.isEmpty()) return 0;
    to->clearSelection();
    for (QTreeWidgetItem* item : moving) {
        from->takeTopLevelItem(from->indexOfTopLevelItem(item));
        to->addTopLevelItem(item);
        item->setSelected(true);
    }
    to->setCurrentItem(moving.last(), 0, QItemSelectionModel::NoUpdate);
    to->scrollToItem(moving.last());
    return int(moving.size());
}

bool ListViewSelectByKey(QTreeWidget* list, const QString& id) {
    const QString key = ListViewKey(id);
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = list->topLevelItem(i);
        if (item->data(0, Qt::UserRole).toString() != key) continue;
        list->setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        list->scrollToItem(item);
        return true;
    }
    return false;
}

void ListViewNumber(QTreeWidget* list, int column) {
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        list->topLevelItem(i)->setText(column, QStringLiteral("%1").arg(i + 1, 3, 10, QLatin1Char('0')));
}

void ListViewHoldColumnWidth(QTreeWidget* list, int column, int width) {
    list->header()->setSectionResizeMode(column, QHeaderView::Fixed);
    list->header()->resizeSection(column, width);
}
