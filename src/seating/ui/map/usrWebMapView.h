#pragma once

#include "seating/ui/usrMapView.h"

class QWebEngineView;

// The map capture's view with a web browser in it.
class usrWebMapView : public usrMapView {
    Q_OBJECT

public:
    explicit usrWebMapView(QWidget* parent = nullptr);

    void Open(const QUrl& url) override;
    QImage Grab(const QRect& area) override;
    QWebEngineView* Browser() const { return mBrowser; }

signals:
    // A page finished loading (ok false: it could not be reached, and the browser shows its error page).
    void Loaded(bool ok);

private:
    QWebEngineView* mBrowser;
};
