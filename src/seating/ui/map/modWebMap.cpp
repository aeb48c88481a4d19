#include "seating/ui/map/modWebMap.h"

#include "seating/ui/frmCaptureMap.h"
#include "seating/ui/map/usrWebMapView.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <QWebEngineView>
#include <unistd.h>

// The web engine's own code frees some of its objects through a base of another size; a sanitizer
// build would stop at the first page. None of it is ours.
extern "C" const char* __asan_default_options() {
    return "new_delete_type_mismatch=0";
}

namespace modWebMap {

namespace {

// A town drawn in the page itself, so that the picture of the dialog needs no network.
const char* const kTownPage = R"(<html><body style="margin:0;overflow:hidden">
<svg xmlns="http://www.w3.org/2000/svg" width="1600" height="1000" style="background:#f2efe6;font:13px sans-serif">
<path d="M0 760 C300 700 500 860 800 800 S1300 690 1600 760 L1600 1000 L0 1000 Z" fill="#a9cfee"/>
<rect x="470" y="150" width="210" height="150" fill="#cfe6bf"/>
<g stroke="#ffffff" stroke-width="14" fill="none" stroke-linecap="round">
<path d="M60 120 L1540 120"/><path d="M60 360 L1540 360"/><path d="M60 560 L1540 560"/>
<path d="M260 40 L260 730"/><path d="M720 40 L720 790"/><path d="M1180 40 L1180 740"/>
<path d="M60 660 L1540 240" stroke-width="18" stroke="#fbe3a4"/></g>
<g fill="#6b5d66"><text x="300" y="112">Queen Street</text><text x="300" y="352">King Street</text>
<text x="300" y="552">Meeting Street</text><text x="520" y="230">Marion Square</text>
<text x="900" y="880">Harbour</text></g></svg></body></html>)";

// The dialog over the drawn town, once the browser has shown it.
QWidget* ScreenshotOfCapture() {
    auto* view = new usrWebMapView;
    auto* dialog = new frmCaptureMap(view);
    dialog->resize(1000, 760);
    dialog->show();
    QEventLoop wait;
    QObject::connect(view, &usrWebMapView::Loaded, &wait, &QEventLoop::quit);
    QTimer::singleShot(15000, &wait, &QEventLoop::quit);
    view->Browser()->setHtml(QString::fromUtf8(kTownPage));
    wait.exec();
    QTimer::singleShot(800, &wait, &QEventLoop::quit);
    wait.exec();
    return dialog;
}

} // namespace

void Prepare() {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // The browser's sandbox refuses to start for the superuser; the program is then run without it.
    if (geteuid() == 0) {
        QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
        if (!flags.contains("--no-sandbox"))
            qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags + " --no-sandbox");
    }
}

void Register() {
    modPages::RegisterDialog(QStringLiteral("frmCaptureMap"), [](QWidget* parent) {
        frmCaptureMap dialog(new usrWebMapView, parent);
        dialog.exec();
    });
    modScreenshots::Register(QStringLiteral("frmCaptureMap"), &ScreenshotOfCapture);
}

} // namespace modWebMap
