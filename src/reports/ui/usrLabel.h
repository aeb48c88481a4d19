#pragma once

#include <QFrame>
#include <QPoint>
#include <QString>

class QMimeData;

// One label of the sheet on the screen: its number in the corner, its text in the middle. It is dragged
// to another label or back to the list, and takes a drop of addresses from the list or of another label.
// A click selects it; Delete clears the selected label.
class usrLabel : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(QString FULL_ADDRESS_TX READ FULL_ADDRESS_TX WRITE setFULL_ADDRESS_TX)
    Q_PROPERTY(bool Selected READ Selected WRITE setSelected)

public:
    // The kinds of what is dragged: addresses of the list (their rows), or a label (its number).
    static const QString AddressesMime;
    static const QString LabelMime;

    usrLabel(int number, QWidget* parent = nullptr);

    int Number() const { return mNumber; }
    QString Caption() const { return mCaption; }
    void setCaption(const QString& caption);
    QString FULL_ADDRESS_TX() const { return mText; }
    void setFULL_ADDRESS_TX(const QString& text);
    bool Selected() const { return mSelected; }
    void setSelected(bool selected);
    bool IsFilled() const { return !mText.isEmpty(); }

    // The number of the label a drag carries; 0 for none.
    static int DraggedLabel(const QMimeData* mime);

signals:
    void Click(int number);
    void ClearRequested(int number);
    // Addresses of the list dropped here; another label's number dropped here.
    void AddressesDropped(int number);
    void LabelDropped(int from, int to);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    int mNumber;
    QString mCaption;
    QString mText;
    bool mSelected = false;
    bool mDropTarget = false;
    QPoint mPressedAt;
};
