#include "TestDatabase.h"
#include "core/clsApp.h"
#include "seating/ui/frmCaptureMap.h"
#include "seating/ui/map/modWebMap.h"
#include "seating/ui/map/usrWebMapView.h"

#include <QApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

// The map capture with the real web browser: a local page is loaded and captured. Where the web engine
// cannot load or draw (no GPU, no sandbox), the test says so and skips.
class tst_WebMapView : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void capturesALocalPage() {
        QTemporaryDir folder;
        QFile page(folder.filePath("green.html"));
        QVERIFY(page.open(QIODevice::WriteOnly));
        page.write("<html><body style=\"margin:0;background:#1e7a3c\"></body></html>");
        page.close();

        auto* view = new usrWebMapView;
        frmCaptureMap dialog(view);
        dialog.resize(1000, 760);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QSignalSpy loaded(view, &usrWebMapView::Loaded);
        view->Open(QUrl::fromLocalFile(page.fileName()));
        if (!loaded.wait(30000) || !loaded.last().value(0).toBool())
            QSKIP("The web engine could not load a local page here.");
        QTest::qWait(1000);

        QVERIFY(dialog.Capture());
        const QImage map(frmCaptureMap::MapPath());
        QCOMPARE(map.size(), QSize(484, 496));
        if (map.pixelColor(242, 248) != QColor(0x1e, 0x7a, 0x3c))
            QSKIP("The web engine cannot draw here: the captured page is not what it shows.");
        QCOMPARE(map.pixelColor(0, 0), QColor(0x1e, 0x7a, 0x3c));
        QCOMPARE(map.pixelColor(483, 495), QColor(0x1e, 0x7a, 0x3c));
    }
};

int main(int argc, char** argv) {
    modWebMap::Prepare();
    QApplication app(argc, argv);
    tst_WebMapView test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_WebMapView.moc"
