#include "seating/ui/clsGuestRoster.h"

#include "core/RecordIO.h"
#include "guests/clsCONTACT.h"
#include "seating/ui/usrFloorPlan.h"
#include "shell/mdiMain.h"
#include "shell/options/modBrideGroomIcons.h"

#include <QTreeWidget>

using FloorPlan::IdRole;
using FloorPlan::IsGroupRole;

namespace {

QIcon GuestIcon(const QString& contactId) {
    if (contactId == QLatin1String("1") || contactId == QLatin1String("2"))
        return modBrideGroomIcons::StoredIcon(contactId == QLatin1String("1"));
    static const QIcon guest = mdiMain::ShellIcon(QStringLiteral("contacts"));
    return guest;
}

} // namespace

clsGuestRoster::clsGuestRoster(QTreeWidget* list, QTreeWidget* tree) : mList(list), mTree(tree) {}

void clsGuestRoster::Clear() {
    mTree->clear();
    mList->clear();
    mGroups.clear();
    mPlaced.clear();
    mListed.clear();
    mGuests.clear();
}

QTreeWidgetItem* clsGuestRoster::AddGroup(const QString& groupId, const QString& text, const QIcon& icon) {
    auto* node = new QTreeWidgetItem;
    node->setText(0, text);
    node->setIcon(0, icon);
    node->setData(0, IdRole, groupId);
    node->setData(0, IsGroupRole, true);
    node->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled);
    mGroups.insert(groupId, node);
    mTree->addTopLevelItem(node);
    return node;
}

void clsGuestRoster::RemoveGroup(const QString& groupId) {
    for (const QString& guest : GuestsIn(groupId))
        Show(guest, QString());
    delete mGroups.take(groupId);
}

void clsGuestRoster::Load(const QList<clsCONTACT>& placed,
                          const std::function<QString(const clsCONTACT&)>& groupOf,
                          const QList<clsCONTACT>& unplaced) {
    QHash<QString, QList<QTreeWidgetItem*>> children;
    for (const clsCONTACT& c : placed) {
        Remember(c);
        const QString group = groupOf(c);
        if (mGroups.contains(group))
            children[group] << Row(c.CONTACT_ID, true);
    }
    for (auto it = children.cbegin(); it != children.cend(); ++it)
        mGroups[it.key()]->addChildren(it.value());
    QList<QTreeWidgetItem*> rows;
    for (const clsCONTACT& c : unplaced) {
        Remember(c);
        rows << Row(c.CONTACT_ID, false);
    }
    mList->addTopLevelItems(rows);
}

void clsGuestRoster::Remember(const clsCONTACT& c) {
    // A guest brought without a name is "Guest" in both views.
    mGuests.insert(c.CONTACT_ID, {c.ListName(), c.IsAnonymousGuest() ? c.ListName() : c.LastFirstMiddle(),
                                  GuestIcon(c.CONTACT_ID)});
}

bool clsGuestRoster::Know(const QString& contactId) {
    if (mGuests.contains(contactId))
        return true;
    clsCONTACT c;
    if (!RecordIO::Read([&] { return c.OpenRecord(contactId); }))
        return false;
    Remember(c);
    return true;
}

// The guest's row under a group (placed) or in the list, counted among those shown.
QTreeWidgetItem* clsGuestRoster::Row(const QString& contactId, bool placed) {
    const Guest& guest = mGuests[contactId];
    auto* row = new QTreeWidgetItem;
    row->setText(0, placed ? guest.TreeName : guest.ListName);
    row->setIcon(0, guest.Icon);
    row->setData(0, IdRole, contactId);
    (placed ? mPlaced : mListed).insert(contactId, row);
    return row;
}

void clsGuestRoster::Forget(const QString& contactId) {
    delete mListed.take(contactId);
    if (QTreeWidgetItem* row = mPlaced.take(contactId)) {
        const QString group = GroupOfRow(row);
        delete row;
        if (GroupChanged)
            GroupChanged(group, -1);
    }
}

void clsGuestRoster::AddToList(const QString& contactId) {
    QTreeWidgetItem* row = Row(contactId, false);
    const QString name = row->text(0);
    // Kept in name order, as it was loaded.
    int at = 0;
    while (at < mList->topLevelItemCount() &&
           QString::localeAwareCompare(mList->topLevelItem(at)->text(0), name) <= 0)
        ++at;
    mList->insertTopLevelItem(at, row);
}

bool clsGuestRoster::Show(const QString& contactId, const QString& groupId) {
    if (!Know(contactId))
        return false;
    Forget(contactId);
    QTreeWidgetItem* parent = mGroups.value(groupId);
    if (!parent) {
        AddToList(contactId);
        return true;
    }
    parent->addChild(Row(contactId, true));
    parent->sortChildren(0, Qt::AscendingOrder);
    if (GroupChanged)
        GroupChanged(groupId, +1);
    return true;
}

QStringList clsGuestRoster::ListIds() const {
    QStringList ids;
    for (int i = 0; i < mList->topLevelItemCount(); ++i)
        ids << mList->topLevelItem(i)->data(0, IdRole).toString();
    return ids;
}

QStringList clsGuestRoster::GuestsIn(const QString& groupId) const {
    QStringList ids;
    if (const QTreeWidgetItem* node = mGroups.value(groupId)) {
        for (int i = 0; i < node->childCount(); ++i)
            ids << node->child(i)->data(0, IdRole).toString();
    }
    return ids;
}

QString clsGuestRoster::GroupOfRow(QTreeWidgetItem* item) const {
    if (item && !item->data(0, IsGroupRole).toBool())
        item = item->parent();
    return item ? item->data(0, IdRole).toString() : QString();
}

QStringList clsGuestRoster::SelectedTreeGuests() const {
    QStringList ids;
    for (QTreeWidgetItem* item : mTree->selectedItems())
        if (!item->data(0, IsGroupRole).toBool())
            ids << item->data(0, IdRole).toString();
    return ids;
}
