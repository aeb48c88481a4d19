#include "seating/ui/map/usrWebMapView.h"

#include <QVBoxLayout>
#include <QWebEngineView>

usrWebMapView::usrWebMapView(QWidget* parent) : usrMapView(parent), mBrowser(new QWebEngineView(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mBrowser);
    connect(mBrowser, &QWebEngineView::loadFinished, this, &usrWebMapView::Loaded);
}

void usrWebMapView::Open(const QUrl& url) {
    usrMapView::Open(url);
    mBrowser->load(url);
}

// The browser fills the view, so the area is the same in both.
QImage usrWebMapView::Grab(const QRect& area) {
    return mBrowser->grab(area).toImage();
}
