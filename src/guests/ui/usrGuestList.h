#pragma once

#include <QStringList>
#include <QTreeWidget>

class clsCONTACT;

// A list of people for the invitation editor: a row per person (title, name, address) whose key is
// the CONTACT_ID. People are dragged from one such list to its partner and dropped where they should
// stand; a double click or Enter hands the selected people over too, and Delete does from the list
// that gives people back.
class usrGuestList : public QTreeWidget {
    Q_OBJECT

public:
    explicit usrGuestList(const QString& nameCaption, QWidget* parent = nullptr);

    // The list people are dragged to and from.
    void setPartner(usrGuestList* partner) { mPartner = partner; }
    // Whether Delete hands the selection over as well (the list of people on the invitation).
    void setDeleteHandsOver(bool on) { mDeleteHandsOver = on; }

    // Shows the people in this order; the selection is kept by key. A name may carry a suffix
    // (" (Primary)").
    void ShowPeople(const QList<clsCONTACT>& people, const QString& firstSuffix = QString());
    QStringList SelectedKeys() const;
    void SelectKeys(const QStringList& keys);
    QStringList Keys() const;
    static QString KeyOf(const QTreeWidgetItem* item);
    // The key of a person's row: the CONTACT_ID, or for a guest not saved yet "+" and the CONTACT_ID of
    // the person who brings them.
    static QString RowKey(const clsCONTACT& contact);

    // The drag data of some rows, as the partner list reads it on a drop.
    QMimeData* MimeDataFor(const QStringList& keys) const;
    static QString MimeType() { return QStringLiteral("application/x-vowren-contact-ids"); }

signals:
    // The people of these keys were dropped on this list, before the row given (-1: at the end).
    void PeopleDropped(const QStringList& keys, int row);
    // The user asked to hand the selected people to the partner list.
    void HandOver(const QStringList& keys);

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override;
    Qt::DropActions supportedDropActions() const override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool AcceptsDrag(const QDropEvent* event) const;

    usrGuestList* mPartner = nullptr;
    bool mDeleteHandsOver = false;
};
