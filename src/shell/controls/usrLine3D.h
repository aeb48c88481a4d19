#pragma once

#include <QWidget>

// A dividing line. Style 0 is sunken (a shadow line over a light one), 1 raised, 2 a single flat
// line; the colours come from the palette, so the line suits light and dark themes alike.
class usrLine3D : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int Style READ Style WRITE setStyle)
    Q_PROPERTY(Qt::Orientation Orientation READ Orientation WRITE setOrientation)

public:
    enum LineStyle : int { Sunken = 0, Raised = 1, Flat = 2 };

    explicit usrLine3D(QWidget* parent = nullptr);
    explicit usrLine3D(Qt::Orientation orientation, QWidget* parent = nullptr);

    int Style() const { return mStyle; }
    void setStyle(int style);
    Qt::Orientation Orientation() const { return mOrientation; }
    void setOrientation(Qt::Orientation orientation);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int mStyle = Sunken;
    Qt::Orientation mOrientation = Qt::Horizontal;
};
