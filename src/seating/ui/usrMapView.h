#pragma once

#include <QImage>
#include <QUrl>
#include <QWidget>

// Where the map capture shows the map site: the desktop program puts a web browser here, tests and a
// build without one a stand-in. The dialog tells it where to go and takes a picture of an area of it.
class usrMapView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual void Open(const QUrl& url) { mUrl = url; }
    QUrl Url() const { return mUrl; }
    // A picture of the area (widget coordinates), as the screen shows it.
    virtual QImage Grab(const QRect& area) { return grab(area).toImage(); }

private:
    QUrl mUrl;
};

// The stand-in for a program without a web browser: it says so, and where the browser would be.
class usrPlainMapView : public usrMapView {
    Q_OBJECT

public:
    using usrMapView::usrMapView;
    void Open(const QUrl& url) override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
