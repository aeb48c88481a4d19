#include "seating/ui/map/modWebMap.h"

#include "seating/ui/frmCaptureMap.h"
#include "seating/ui/map/usrWebMapView.h"
#include "shell/modPages.h"

#include <QCoreApplication>
#include <unistd.h>

namespace modWebMap {

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
}

} // namespace modWebMap
