// Draws the small logo of the report header (31 x 22 pixels, a heart with a "V" in it) and writes it as a
// baseline JPEG at 96 dots per inch, then prints its bytes as lower-case hexadecimal text.
//   g++ -std=c++20 -fPIC make_rtf_logo.cpp $(pkg-config --cflags --libs Qt6Gui) -o make_rtf_logo
//   ./make_rtf_logo logo.jpg 80 | fold -w 128   (the chunks of kLogoHex in src/reports/clsRTFMaster.cpp)
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>
#include <cstdio>

int main(int argc, char** argv) {
    QImage image(31, 22, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDotsPerMeterX(3780); // 96 dots per inch
    image.setDotsPerMeterY(3780);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath heart;
        heart.moveTo(15.5, 20.5);
        heart.cubicTo(4.0, 13.0, 3.0, 8.0, 5.5, 4.0);
        heart.cubicTo(8.5, 0.0, 13.5, 1.0, 15.5, 5.5);
        heart.cubicTo(17.5, 1.0, 22.5, 0.0, 25.5, 4.0);
        heart.cubicTo(28.0, 8.0, 27.0, 13.0, 15.5, 20.5);
        painter.fillPath(heart, QColor(196, 40, 80));
        QPen pen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        painter.setPen(pen);
        painter.drawPolyline(QPolygonF({QPointF(11.5, 6.5), QPointF(15.5, 14.5), QPointF(19.5, 6.5)}));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(argc > 2 ? atoi(argv[2]) : 80);
    writer.setOptimizedWrite(false);
    writer.setProgressiveScanWrite(false);
    if (!writer.write(image))
        return 1;
    if (argc > 1) {
        QFile file(QString::fromLocal8Bit(argv[1]));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return 1;
    }
    std::printf("%s\n", bytes.toHex().constData());
    std::fprintf(stderr, "%lld bytes\n", static_cast<long long>(bytes.size()));
    return 0;
}
