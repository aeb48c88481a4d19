#include "reports/clsRTFTableLayout.h"

#include "core/clsApp.h"
#include "seating/clsDINING_TABLE.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace {

constexpr int kTwipsPerPixel = 15; // a screen of 96 dots an inch
constexpr int kTwipsPerInch = 1440;

struct LayoutPicture {
    RtfMarkup::PictureKind Kind = RtfMarkup::PictureKind::Png;
    QByteArray Bytes;
    int Width = 0; // pixels
    int Height = 0;
    int PixelsPerScreenPixel = 1;
};

// The size stands in the PNG's header chunk, big-endian, after the 8-byte signature.
std::optional<LayoutPicture> ReadPng(const QByteArray& bytes) {
    if (bytes.size() < 24 || !bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return std::nullopt;
    const auto* data = reinterpret_cast<const uchar*>(bytes.constData());
    return LayoutPicture{RtfMarkup::PictureKind::Png, bytes, int(qFromBigEndian<quint32>(data + 16)),
                         int(qFromBigEndian<quint32>(data + 20)), 2};
}

// A Windows bitmap: "BM", then the size little-endian in its info header (a negative height is drawn
// from the top down).
std::optional<LayoutPicture> ReadBitmap(const QByteArray& bytes) {
    if (bytes.size() < 26 || !bytes.startsWith("BM"))
        return std::nullopt;
    const auto* data = reinterpret_cast<const uchar*>(bytes.constData());
    return LayoutPicture{RtfMarkup::PictureKind::Bitmap, bytes, qFromLittleEndian<qint32>(data + 18),
                         std::abs(qFromLittleEndian<qint32>(data + 22)), 1};
}

std::optional<LayoutPicture> ReadPicture(const QString& path, bool png) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    std::optional<LayoutPicture> picture = png ? ReadPng(bytes) : ReadBitmap(bytes);
    if (picture && (picture->Width <= 0 || picture->Height <= 0))
        return std::nullopt;
    return picture;
}

} // namespace

QString clsRTFTableLayout::PngPath() {
    return gApp().ReportPath() + QStringLiteral("/TableLayout.png");
}

QString clsRTFTableLayout::BitmapPath() {
    return gApp().ReportPath() + QStringLiteral("/TableLayout.bmp");
}

QString clsRTFTableLayout::NoPictureText() {
    return QStringLiteral("No picture of the table layout has been made yet. Open Attendees > Table layout "
                          "to make the picture; it is made anew each time you leave that page or print "
                          "from it.");
}

RtfMarkup clsRTFTableLayout::Title() const {
    return "Table Overview";
}

QList<clsRTFReport::Column> clsRTFTableLayout::Columns() const {
    return {{"Table #", 1440, 1000, clsRTFCell::AlignCenter},
            {"Table Label", 8000, 6200},
            {"# of seats", 10500, 8100, clsRTFCell::AlignCenter},
            {"# of seats available", 0, 0, clsRTFCell::AlignCenter}};
}

void clsRTFTableLayout::PrintRows() {
    for (const clsDINING_TABLE& table : clsDINING_TABLE::OpenRecords())
        PrintRow(
            {table.DINING_TABLE_NB, table.DINING_TABLE_NM, table.SEATS_NB,
             RtfMarkup::Figure(Count(table.GetTotal(clsDINING_TABLE::SeatsFree)))}); // below 0 when overfull
    PrintPicture();
}

// Under the rows, at its size on the screen but never wider than the page nor taller than most of it.
void clsRTFTableLayout::PrintPicture() {
    if (!Rtf())
        return;
    std::optional<LayoutPicture> picture = ReadPicture(PngPath(), true);
    if (!picture)
        picture = ReadPicture(BitmapPath(), false);
    RtfMarkup text = RtfMarkup::Control("\\pard\\plain\\ql\\sb240\\sa120") + RtfMarkup::Bold("Table Layout") +
                     RtfMarkup::Control("\\par\\pard\\plain\\qc");
    if (picture) {
        const double pageWidth = (RTF.PAPER_WIDTH - RTF.MARGIN_LEFT - RTF.MARGIN_RIGHT) * kTwipsPerInch;
        const double pageHeight =
            (RTF.PAPER_HEIGHT - RTF.MARGIN_TOP - RTF.MARGIN_BOTTOM - 1.0) * kTwipsPerInch;
        const double natural = double(kTwipsPerPixel) / picture->PixelsPerScreenPixel;
        const double scale = std::min({natural, pageWidth / picture->Width, pageHeight / picture->Height});
        text += RtfMarkup::Picture(picture->Kind, picture->Bytes, picture->Width, picture->Height,
                                   int(picture->Width * scale), int(picture->Height * scale));
    } else {
        text += RtfMarkup::Italic(NoPictureText());
    }
    RTF.PrintRaw(text + RtfMarkup::Control("\\par"));
}
