#pragma once

#include <QHash>
#include <QIcon>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

class QTreeWidget;
class QTreeWidgetItem;
class clsCONTACT;

// The guests of a board as its two views show them: the list of those still to be placed, in name order,
// and the tree of groups (tables, hotels, flights) with their guests under them. It knows which row
// shows which guest and moves the rows; the database is the page's business.
class clsGuestRoster {
public:
    clsGuestRoster(QTreeWidget* list, QTreeWidget* tree);

    // Told when a guest joins (+1) or leaves (-1) a group.
    std::function<void(const QString& groupId, int change)> GroupChanged;

    // Both views emptied, every group and guest forgotten.
    void Clear();
    // A node for the group at the end of the tree.
    QTreeWidgetItem* AddGroup(const QString& groupId, const QString& text, const QIcon& icon);
    // The group's node goes; its guests go back to the list.
    void RemoveGroup(const QString& groupId);
    QTreeWidgetItem* GroupNode(const QString& groupId) const { return mGroups.value(groupId); }
    // The placed guests under their groups (groupOf tells which), the others in the list.
    void Load(const QList<clsCONTACT>& placed, const std::function<QString(const clsCONTACT&)>& groupOf,
              const QList<clsCONTACT>& unplaced);
    // Moves the guest's row under the group ("" or an unknown group: to the list). A guest the roster has
    // not loaded (made attending since) is read first; false when that fails.
    bool Show(const QString& contactId, const QString& groupId);

    QStringList ListIds() const;
    int ListCount() const { return int(mListed.size()); }
    QStringList GuestsIn(const QString& groupId) const;
    // The group a tree row stands for or under ("" for none).
    QString GroupOfRow(QTreeWidgetItem* item) const;
    // The guests selected in the tree (group rows left out).
    QStringList SelectedTreeGuests() const;

private:
    struct Guest {
        QString ListName;
        QString TreeName;
        QIcon Icon;
    };

    void Remember(const clsCONTACT& contact);
    bool Know(const QString& contactId);
    void Forget(const QString& contactId);
    QTreeWidgetItem* Row(const QString& contactId, bool placed);
    void AddToList(const QString& contactId);

    QTreeWidget* mList;
    QTreeWidget* mTree;
    QHash<QString, QTreeWidgetItem*> mGroups; // group id -> its node
    QHash<QString, QTreeWidgetItem*> mPlaced; // contact id -> its row under a group
    QHash<QString, QTreeWidgetItem*> mListed; // contact id -> its row in the list
    QHash<QString, Guest> mGuests;
};
