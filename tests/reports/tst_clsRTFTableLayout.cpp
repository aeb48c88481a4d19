#include "TestDatabase.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsRTFTableLayout.h"

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>
#include <QtTest>
#include <memory>

namespace {

// The first bytes of a PNG of the given size: the signature and the header chunk (enough for the report,
// which copies the bytes without drawing them).
QByteArray PngHeader(quint32 width, quint32 height) {
    QByteArray bytes("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16);
    char size[8];
    qToBigEndian(width, size);
    qToBigEndian(height, size + 4);
    return bytes + QByteArray(size, 8) + QByteArray("\x08\x02\0\0\0", 5);
}

// A bitmap's file header and the start of its info header, with the height drawn from the top down.
QByteArray BitmapHeader(qint32 width, qint32 height) {
    QByteArray bytes(26, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    qToLittleEndian(width, bytes.data() + 18);
    qToLittleEndian(-height, bytes.data() + 22);
    return bytes;
}

void WriteFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("could not write %s", qPrintable(path));
}

} // namespace

class tst_clsRTFTableLayout : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        gApp().MakeReportPath();
        gRTFMasterTemp() = clsRTFMasterTemp();
    }
    void cleanup() { db.reset(); }

    void placesThePicture_data() {
        QTest::addColumn<QByteArray>("png");
        QTest::addColumn<QByteArray>("bitmap");
        QTest::addColumn<bool>("portrait");
        QTest::addColumn<QString>("picture"); // the \pict's words, empty for none
        // Letter landscape is 9.5 inches wide inside its margins, portrait 7: 13680 and 10080 twips.
        QTest::newRow("no picture yet") << QByteArray() << QByteArray() << false << "";
        QTest::newRow("the PNG at twice the screen's resolution")
            << PngHeader(400, 200) << QByteArray() << false
            << "\\pngblip\\picw400\\pich200\\picwgoal3000\\pichgoal1500";
        QTest::newRow("the bitmap when there is no PNG")
            << QByteArray() << BitmapHeader(300, 100) << false
            << "\\dibitmap0\\picw300\\pich100\\picwgoal4500\\pichgoal1500";
        QTest::newRow("the PNG wins over the bitmap")
            << PngHeader(400, 200) << BitmapHeader(300, 100) << false << "\\pngblip\\picw400";
        QTest::newRow("a wide floor fits the page")
            << PngHeader(4000, 1000) << QByteArray() << true
            << "\\pngblip\\picw4000\\pich1000\\picwgoal10080\\pichgoal2520";
        QTest::newRow("a damaged PNG is no picture")
            << QByteArray("not a picture") << QByteArray() << false << "";
    }
    void placesThePicture() {
        QFETCH(QByteArray, png);
        QFETCH(QByteArray, bitmap);
        QFETCH(bool, portrait);
        QFETCH(QString, picture);
        if (!png.isEmpty())
            WriteFile(clsRTFTableLayout::PngPath(), png);
        if (!bitmap.isEmpty())
            WriteFile(clsRTFTableLayout::BitmapPath(), bitmap);
        gRTFMasterTemp().LANDSCAPE = !portrait;
        clsRTFTableLayout report;
        QFile file(report.Build());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString rtf = QString::fromLatin1(file.readAll());
        QVERIFY(rtf.contains("Table Layout"));
        if (picture.isEmpty()) {
            QVERIFY(!rtf.contains("\\pngblip") && !rtf.contains("\\dibitmap"));
            QVERIFY(rtf.contains(clsRTFTableLayout::NoPictureText()));
            return;
        }
        QVERIFY2(rtf.contains("{\\pict" + picture), qPrintable(rtf.mid(rtf.indexOf("Table Layout"), 200)));
        QVERIFY(!rtf.contains(clsRTFTableLayout::NoPictureText()));
        // The bytes follow as hex digits: a bitmap without its file header.
        const QByteArray data = png.isEmpty() ? bitmap.mid(14) : png;
        const QString hex = QString::fromLatin1(data.toHex().left(40));
        QVERIFY(QString(rtf).remove(QRegularExpression("\\s")).contains(hex));
    }

    void csvHasNoPicture() {
        WriteFile(clsRTFTableLayout::PngPath(), PngHeader(40, 20));
        gRTFMasterTemp().USE_RTF = false;
        clsRTFTableLayout report;
        QFile file(report.Build());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray csv = file.readAll();
        QVERIFY(csv.contains("Table #"));
        QVERIFY(!csv.contains("Table Layout"));
        QVERIFY(!csv.contains("89504e47"));
    }
};

QTEST_GUILESS_MAIN(tst_clsRTFTableLayout)
#include "tst_clsRTFTableLayout.moc"
