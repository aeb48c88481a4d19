#pragma once

#include <QListWidget>

// One of the two lists of an event's side. Its items carry their key ("CONTACT7", "INVITE3") as
// Qt::UserRole; dragging the selected items onto the other list hands their keys over, and the list
// that receives them says so by Dropped. A drop from anywhere else is refused.
class usrEventList : public QListWidget {
    Q_OBJECT

public:
    explicit usrEventList(QWidget* parent = nullptr);

    // The format of the dragged keys: one per line.
    static QString MimeType() { return QStringLiteral("application/x-vowren-invite-keys"); }

    void AddItem(const QString& key, const QString& caption);
    // Takes the keys that a drag from the other list carries; false (nothing happens) for anything else.
    bool Receive(const QMimeData* mime);

signals:
    // Keys dragged here from the list of that name.
    void Dropped(const QStringList& keys, const QString& fromList);

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool FromTheOtherList(const QMimeData* mime) const;
};
