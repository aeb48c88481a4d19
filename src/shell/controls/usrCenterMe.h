#pragma once

#include <QIcon>
#include <QWidget>

// Holds a picture and keeps it centred whatever the control's size. A picture larger than the
// control shrinks to fit, keeping its shape; a drawn (vector) picture fills the shorter side.
class usrCenterMe : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QIcon Picture READ Picture WRITE setPicture)

public:
    explicit usrCenterMe(QWidget* parent = nullptr);

    QIcon Picture() const { return mPicture; }
    void setPicture(const QIcon& picture);
    void setPicture(const QPixmap& picture) { setPicture(QIcon(picture)); }

    // Where the picture is drawn at the present size.
    QRect PictureRect() const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize NaturalSize() const;

    QIcon mPicture;
};
