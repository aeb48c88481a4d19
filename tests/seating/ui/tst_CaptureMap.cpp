#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "seating/clsHOTEL.h"
#include "seating/ui/frmCaptureMap.h"
#include "seating/ui/usrMapView.h"

#include <QComboBox>
#include <QDir>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QUrlQuery>
#include <QtTest>
#include <memory>

using UiTestTools::Child;

namespace {

// A view that paints a known pattern: every pixel says where it is.
class PatternView : public usrMapView {
public:
    static QColor At(int x, int y) {
        return QColor(x % 256, y % 256, ((x / 256) * 64 + (y / 256) * 16) % 256);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QImage pattern(size(), QImage::Format_RGB32);
        for (int y = 0; y < height(); ++y)
            for (int x = 0; x < width(); ++x)
                pattern.setPixelColor(x, y, At(x, y));
        QPainter(this).drawImage(0, 0, pattern);
    }
};

} // namespace

class tst_CaptureMap : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    // The frame stays in the middle of the view as the window changes size, with its lines around it.
    void frameStaysCentred_data() {
        QTest::addColumn<QSize>("window");
        QTest::newRow("roomy") << QSize(1100, 800);
        QTest::newRow("odd sizes") << QSize(901, 777);
        QTest::newRow("tight") << QSize(520, 620);
    }
    void frameStaysCentred() {
        QFETCH(QSize, window);
        frmCaptureMap dialog(new PatternView);
        dialog.resize(window);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        const QSize view = dialog.View()->size();
        const QRect frame = dialog.Frame();
        QCOMPARE(frame.size(), frmCaptureMap::FrameSize());
        QCOMPARE(frame.left(), (view.width() - 484) / 2);
        QCOMPARE(frame.top(), (view.height() - 496) / 2);
        QCOMPARE(Child<QWidget>(dialog, "picTopLine")->geometry().bottom(), frame.top() - 1);
        QCOMPARE(Child<QWidget>(dialog, "picBottomLine")->geometry().top(), frame.bottom() + 1);
        QCOMPARE(Child<QWidget>(dialog, "picLeftLine")->geometry().right(), frame.left() - 1);
        QCOMPARE(Child<QWidget>(dialog, "picRightLine")->geometry().left(), frame.right() + 1);
    }

    // "Capture" saves exactly the framed area as Map.bmp, without the frame's lines, and closes.
    void captureSavesTheFramedArea_data() {
        QTest::addColumn<bool>("selectionShown");
        QTest::newRow("frame shown") << true;
        QTest::newRow("frame hidden") << false;
    }
    void captureSavesTheFramedArea() {
        QFETCH(bool, selectionShown);
        frmCaptureMap dialog(new PatternView);
        dialog.resize(1000, 760);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        if (!selectionShown)
            QTest::mouseClick(Child<QPushButton>(dialog, "cmdShowSelection"), Qt::LeftButton);
        QCOMPARE(Child<QPushButton>(dialog, "cmdShowSelection")->text(),
                 selectionShown ? QStringLiteral("Hide Selection") : QStringLiteral("Show Selection"));
        QSignalSpy captured(&dialog, &frmCaptureMap::MapCaptured);
        const QRect frame = dialog.Frame();

        QTest::mouseClick(Child<QPushButton>(dialog, "cmdCapture"), Qt::LeftButton);

        QCOMPARE(captured.size(), 1);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.SelectionShown(), selectionShown);
        const QImage map(gApp().ReportPath() + "/Map.bmp");
        QCOMPARE(map.size(), QSize(484, 496));
        for (const QPoint& p :
             {QPoint(0, 0), QPoint(483, 0), QPoint(0, 495), QPoint(483, 495), QPoint(200, 300)})
            QCOMPARE(map.pixelColor(p), PatternView::At(frame.left() + p.x(), frame.top() + p.y()));
    }

    // A reports folder that can't be written is said, and the dialog stays open.
    void captureIntoAFolderThatCannotBeWritten() {
        QDir(gApp().ReportPath()).removeRecursively();
        QFile blocker(gApp().ReportPath());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        frmCaptureMap dialog(new PatternView);
        dialog.show();
        QSignalSpy captured(&dialog, &frmCaptureMap::MapCaptured);
        QVERIFY(!dialog.Capture());
        QFile::remove(gApp().ReportPath());
        QCOMPARE(captured.size(), 0);
        QVERIFY(dialog.isVisible());
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QVERIFY(db->Messages().Prompts.first().startsWith("The map could not be saved as"));
    }

    // A picture from a file or the clipboard is cut to the frame's shape in its middle, then scaled.
    void picturesFitTheFrame_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("wide") << QSize(3000, 496);
        QTest::newRow("tall") << QSize(484, 3000);
        QTest::newRow("small") << QSize(121, 124);
        QTest::newRow("twice") << QSize(968, 992);
    }
    void picturesFitTheFrame() {
        QFETCH(QSize, size);
        // Red edges around a green middle as large as the frame's shape allows.
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QSize middle = frmCaptureMap::FrameSize().scaled(size, Qt::KeepAspectRatio);
        QPainter(&picture).fillRect(
            QRect(QPoint((size.width() - middle.width()) / 2, (size.height() - middle.height()) / 2), middle),
            Qt::green);
        frmCaptureMap dialog(new PatternView);
        QVERIFY(dialog.TakePicture(picture));
        const QImage map(frmCaptureMap::MapPath());
        QCOMPARE(map.size(), QSize(484, 496));
        for (const QPoint& p : {QPoint(2, 2), QPoint(481, 493), QPoint(242, 248)})
            QCOMPARE(map.pixelColor(p), QColor(Qt::green));
    }

    // An address with line breaks, quotes, a "#" or any script still makes a working map link.
    void mapLinks_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("query");
        QTest::newRow("lines") << "10 Queen St\r\nCharleston, SC"
                               << "10+Queen+St+Charleston,+SC";
        QTest::newRow("quotes and number sign") << "The \"Old\" Mill #4"
                                                << "The+\"Old\"+Mill+#4";
        QTest::newRow("other scripts") << "東京都 渋谷区\nМосква"
                                       << "東京都+渋谷区+Москва";
    }
    void mapLinks() {
        QFETCH(QString, address);
        QFETCH(QString, query);
        clsHOTEL hotel;
        hotel.ADDRESS_TX = address;
        const QUrl link = frmCaptureMap::MapLink(hotel.MapURL(2));
        QVERIFY(link.isValid());
        QCOMPARE(link.host(), QStringLiteral("www.google.co.uk"));
        QCOMPARE(link.fragment(), QString());
        QCOMPARE(QUrlQuery(link).queryItemValue("q", QUrl::FullyDecoded), query);
    }

    // The addresses of hotels and vendors are offered, and choosing one shows its map; the country is
    // kept with the data.
    void addressesAndCountry() {
        TestDatabase::Exec(
            "INSERT INTO HOTEL (HOTEL_ID, HOTEL_NB, HOTEL_NM, ADDRESS_TX, ROOMS_NB, POS_X, POS_Y) "
            "VALUES (1, 1, 'Harbourview', '10 Queen St\r\nCharleston', 5, 0, 0), "
            "(2, 2, 'No address', NULL, 5, 0, 0)");
        TestDatabase::Exec("INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM, ADDRESS_TX, VENDOR_CATEGORY_ID) VALUES "
                           "(7, 'Florist', '3 Elm Rd', 1)");
        {
            frmCaptureMap dialog(new PatternView);
            auto* addresses = Child<QComboBox>(dialog, "usrAddress");
            QCOMPARE(addresses->count(), 2);
            QCOMPARE(addresses->itemText(0), QStringLiteral("Harbourview: 10 Queen St, Charleston"));
            QCOMPARE(addresses->itemData(1).toString(), QStringLiteral("7 V"));
            Child<QComboBox>(dialog, "cboWebsite")->setCurrentIndex(3);
            QCOMPARE(dialog.View()->Url().host(), QStringLiteral("www.google.fr"));
            addresses->activated(0);
            QCOMPARE(QUrlQuery(dialog.View()->Url()).queryItemValue("q"),
                     QStringLiteral("10+Queen+St+Charleston"));
            QCOMPARE(dialog.View()->Url().host(), QStringLiteral("www.google.fr"));
            dialog.reject();
        }
        QCOMPARE(clsVOWREN::MapCountryIndex(), 3);
        frmCaptureMap again(new PatternView);
        QCOMPARE(Child<QComboBox>(again, "cboWebsite")->currentIndex(), 3);
    }
};

QTEST_MAIN(tst_CaptureMap)
#include "tst_CaptureMap.moc"
