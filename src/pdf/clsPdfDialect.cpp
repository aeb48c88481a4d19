#include "pdf/clsPdfDialect.h"

#include "core/ShowMessage.h"
#include "core/modGeneral.h"
#include "pdf/PdfMarkup.h"
#include "reports/clsRTFMaster.h"
#include "reports/clsRTFMasterTemp.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QTextLayout>
#include <algorithm>

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr double kParagraphSpace = 30; // before and after the text of a cell
constexpr double kBorderWidth = 15;
constexpr double kLogoWidth = 465;
constexpr double kLogoHeight = 330;
constexpr double kTitlePoints = 12;
constexpr double kDatePoints = 9;
constexpr double kFooterPoints = 10;

double Twips(float inches) {
    return static_cast<double>(inches) * kTwipsPerInch;
}

QColor ColorOf(const clsColor& color) {
    return {color.RedPart(), color.GreenPart(), color.BluePart()};
}

Qt::Alignment AlignmentOf(int horizontal) {
    switch (horizontal) {
    case clsRTFCell::AlignCenter:
        return Qt::AlignHCenter;
    case clsRTFCell::AlignRight:
        return Qt::AlignRight;
    default:
        return Qt::AlignLeft;
    }
}

double VerticalShare(int vertical) {
    switch (vertical) {
    case clsRTFCell::AlignMiddle:
        return 0.5;
    case clsRTFCell::AlignBottom:
        return 1.0;
    default:
        return 0.0;
    }
}

double LineBottom(const QTextLayout& layout, int line) {
    const QTextLine text = layout.lineAt(line);
    return text.y() + text.height();
}

// The text's height from line `from` up to (not with) line `to`.
double LinesHeight(const QTextLayout& layout, int from, int to) {
    if (to <= from)
        return 0;
    return LineBottom(layout, to - 1) - layout.lineAt(from).y();
}

} // namespace

clsPdfDialect::clsPdfDialect() : mBuffer(std::make_unique<QBuffer>()) {}
clsPdfDialect::clsPdfDialect(clsPdfDialect&&) noexcept = default;
clsPdfDialect::~clsPdfDialect() = default;

void clsPdfDialect::Register() {
    clsPageDialect::Register([] { return std::make_unique<clsPdfDialect>(); });
}

std::unique_ptr<clsPdfDialect> clsPdfDialect::LayOutOnly(const std::function<void()>& run) {
    std::unique_ptr<clsPdfDialect> kept;
    clsPageDialect::Register([&kept] {
        auto dialect = std::make_unique<clsPdfDialect>();
        dialect->mKeep = &kept;
        return dialect;
    });
    struct Again {
        ~Again() { Register(); } // also when the run throws
    } again;
    run();
    return kept;
}

QFont clsPdfDialect::DeviceFont(double points, bool bold) const {
    QFont font(mFontName);
    font.setPointSizeF(points);
    font.setBold(bold);
    return QFont(font, mPdf.get());
}

double clsPdfDialect::CellPadding(bool vertical) const {
    return vertical ? mFrame.CellPaddingY : mFrame.CellPaddingX;
}

bool clsPdfDialect::Begin(const clsRTFMaster& writer, const clsRTFMasterTemp& settings) {
    mSettings = &settings;
    mFrame = {Twips(writer.MARGIN_HEADER),
              Twips(writer.MARGIN_TOP),
              Twips(writer.MARGIN_FOOTER),
              writer.PRINT_FOOTER,
              static_cast<double>(writer.TABLE_WIDTH()),
              static_cast<double>(writer.CELL_MARGIN_LEFT),
              static_cast<double>(writer.CELL_MARGIN_TOP),
              static_cast<double>(writer.CELL_MARGIN_LEFT + writer.CELL_MARGIN_RIGHT),
              writer.CELL_MARGIN_TOP + writer.CELL_MARGIN_BOTTOM + 2 * kParagraphSpace};
    mFontName = writer.FONT_NAME;
    mHalfPoints = clsRTFMaster::HalfPoints(writer.FONT_SIZE);
    if (mHalfPoints == 0 || !mBuffer->open(QIODevice::WriteOnly))
        return false;
    mPdf = std::make_unique<QPdfWriter>(mBuffer.get());
    mPdf->setPageSize(QPageSize(writer.A4 ? QPageSize::A4 : QPageSize::Letter));
    mPdf->setPageOrientation(writer.LANDSCAPE ? QPageLayout::Landscape : QPageLayout::Portrait);
    mPdf->setPageMargins(QMarginsF(0, 0, 0, 0));
    mPdf->setResolution(kTwipsPerInch);
    mPdf->setTitle(writer.TITLE.Plain());
    mPdf->setCreator(ProgramTitle());
    mPaperWidth = Twips(writer.PAPER_WIDTH);
    mPaperHeight = Twips(writer.PAPER_HEIGHT);
    mLeft = Twips(writer.MARGIN_LEFT);
    mBodyBottom = mPaperHeight - Twips(writer.MARGIN_BOTTOM);
    mHeaderOnEveryPage = writer.PRINT_HEADER_ICON;
    if (mHeaderOnEveryPage)
        mLogo = QImage::fromData(clsRTFMaster::LogoJpeg(), "JPEG");
    mTitle = writer.TITLE.Rtf();
    mDate = writer.PRINT_HEADER_DATE ? clsRTFMaster::HeaderDateText(Now()) : QString();
    mStatistics = writer.STATISTICS.Rtf();

    // A document without title and date (a sheet of labels) starts its table right at the top margin.
    const double header = Twips(writer.MARGIN_HEADER) +
                          (writer.TITLE.IsEmpty() ? 0 : QFontMetricsF(DeviceFont(kTitlePoints)).height()) +
                          (mDate.isEmpty() ? 0 : QFontMetricsF(DeviceFont(kDatePoints)).height());
    mBodyTop = mHeaderOnEveryPage ? std::max(Twips(writer.MARGIN_TOP), header + 2 * kParagraphSpace)
                                  : Twips(writer.MARGIN_TOP);
    NewPage();
    if (!mHeaderOnEveryPage)
        mCursor += header - Twips(writer.MARGIN_HEADER); // title and date stand once, at the top
    if (!writer.STATISTICS.IsEmpty()) {
        clsRTFCell line;
        line.CELLX = writer.TABLE_WIDTH();
        line.CELL_TX = writer.STATISTICS;
        line.CELL_HORIZONTAL_ALIGNMENT = clsRTFCell::AlignCenter;
        line.CELL_BORDER = clsRTFCell::NoBorder;
        Row({line}, false, 0);
        mCursor += QFontMetricsF(DeviceFont(mHalfPoints / 2.0)).height(); // and an empty line
    }
    return true;
}

void clsPdfDialect::SetFontHalfPoints(int halfPoints) {
    mHalfPoints = halfPoints;
}

std::shared_ptr<QTextLayout> clsPdfDialect::LayOutText(const QString& rtf, const QFont& font, double width,
                                                       int align, const QColor& color, double* height) const {
    PdfStyledText styled = StyledTextOf(rtf);
    auto layout = std::make_shared<QTextLayout>(styled.Text, font, mPdf.get());
    QTextOption option(AlignmentOf(align));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    layout->setTextOption(option);
    if (color != QColor(Qt::black)) { // black text takes the painter's pen, with no formats to keep
        QTextLayout::FormatRange whole;
        whole.start = 0;
        whole.length = static_cast<int>(styled.Text.size());
        whole.format.setForeground(color);
        styled.Formats.prepend(whole);
    }
    if (!styled.Formats.isEmpty())
        layout->setFormats(styled.Formats);
    layout->setCacheEnabled(true);
    double y = 0;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLineWidth(std::max(width, 1.0));
        line.setPosition(QPointF(0, y));
        y += line.height();
    }
    layout->endLayout();
    *height = y;
    return layout;
}

clsPdfDialect::LaidRow clsPdfDialect::LayOut(const QList<clsRTFCell>& cells, int exactHeightTwips) const {
    auto laid = std::make_shared<std::vector<Cell>>();
    laid->reserve(static_cast<size_t>(cells.size()));
    const QFont font = DeviceFont(mHalfPoints / 2.0);
    double height = 0;
    double left = mLeft;
    for (const clsRTFCell& source : cells) {
        Cell cell;
        cell.Look = source;
        cell.Look.CELL_TX = RtfMarkup();
        cell.Left = left;
        cell.Right = mLeft + source.CELLX;
        left = cell.Right;
        const QColor color = source.CELL_FORECOLOR == 0
                                 ? QColor(Qt::black)
                                 : ColorOf(mSettings->TableColor(source.CELL_FORECOLOR));
        cell.Text = LayOutText(source.CELL_TX.Rtf(), font, cell.Right - cell.Left - CellPadding(false),
                               source.CELL_HORIZONTAL_ALIGNMENT, color, &cell.TextHeight);
        height = std::max(height, cell.TextHeight + CellPadding(true));
        laid->push_back(std::move(cell));
    }
    if (exactHeightTwips >= 1)
        return {laid, static_cast<double>(exactHeightTwips), true};
    return {laid, height, false};
}

void clsPdfDialect::Row(const QList<clsRTFCell>& cells, bool rowHeader, int exactHeightTwips) {
    LaidRow row = LayOut(cells, exactHeightTwips);
    if (rowHeader && !mLastWasHeader)
        mHeaderRows.clear(); // a new table's header
    const double pageRoom = mBodyBottom - mBodyTop - HeaderRowsHeight();
    if (row.Height > Room() && PageHasRows() && (row.Exact || row.Height <= pageRoom || rowHeader))
        NewPage();
    if (row.Height <= Room() || row.Exact || rowHeader)
        Place(row);
    else
        PlaceSplit(row);
    if (rowHeader)
        mHeaderRows.push_back(row);
    mLastWasHeader = rowHeader;
}

void clsPdfDialect::Paragraph(const RtfMarkup& text) {
    clsRTFCell line;
    line.CELLX = static_cast<int>(mFrame.TableWidth);
    line.CELL_TX = text;
    line.CELL_BORDER = clsRTFCell::NoBorder;
    mLastWasHeader = false;
    Row({line}, false, 0);
}

double clsPdfDialect::HeaderRowsHeight() const {
    double height = 0;
    for (const LaidRow& row : mHeaderRows)
        height += row.Height;
    return height;
}

void clsPdfDialect::NewPage() {
    mPages.emplace_back();
    mCursor = mBodyTop;
    if (mPages.size() == 1)
        return;
    for (const LaidRow& header : mHeaderRows)
        Place(header);
}

void clsPdfDialect::Place(const LaidRow& row) {
    Piece piece;
    piece.Cells = row.Cells;
    for (const Cell& cell : *row.Cells)
        piece.Lines.emplace_back(0, cell.Text->lineCount());
    piece.Top = mCursor;
    piece.Height = row.Height;
    mPages.back().push_back(std::move(piece));
    mCursor += row.Height;
}

void clsPdfDialect::PlaceSplit(const LaidRow& row) {
    std::vector<int> next(row.Cells->size(), 0);
    const auto done = [&] {
        for (size_t i = 0; i < next.size(); ++i)
            if (next[i] < (*row.Cells)[i].Text->lineCount())
                return false;
        return true;
    };
    while (!done()) {
        Piece piece;
        piece.Cells = row.Cells;
        piece.Top = mCursor;
        piece.Whole = false;
        const double room = Room() - CellPadding(true);
        double tallest = 0;
        bool any = false;
        for (size_t i = 0; i < next.size(); ++i) {
            const QTextLayout& text = *(*row.Cells)[i].Text;
            int to = next[i];
            while (to < text.lineCount() && LinesHeight(text, next[i], to + 1) <= room)
                ++to;
            any = any || to > next[i];
            tallest = std::max(tallest, LinesHeight(text, next[i], to));
            piece.Lines.emplace_back(next[i], to);
            next[i] = to;
        }
        if (!any && PageHasRows()) {
            NewPage(); // not one line fits below what stands on this page
            continue;
        }
        if (!any) { // a line taller than a page: it stands alone and is cut
            for (size_t i = 0; i < next.size(); ++i)
                if (next[i] < (*row.Cells)[i].Text->lineCount())
                    piece.Lines[i].second = ++next[i];
            tallest = room;
        }
        piece.Height = tallest + CellPadding(true);
        mPages.back().push_back(std::move(piece));
        mCursor += tallest + CellPadding(true);
        if (!done())
            NewPage();
    }
}

QByteArray clsPdfDialect::Finish() {
    if (mKeep) {
        *mKeep = std::make_unique<clsPdfDialect>(std::move(*this));
        (*mKeep)->mKeep = nullptr;
        return {};
    }
    if (!Paint(*mPdf))
        return {};
    mPdf.reset(); // the document is complete in the buffer once the writer is gone
    return mBuffer->data();
}

QPageLayout clsPdfDialect::PageLayout() const {
    return mPdf ? mPdf->pageLayout() : QPageLayout();
}

bool clsPdfDialect::Paint(QPagedPaintDevice& device) const {
    QPainter painter;
    if (!mPdf || !painter.begin(&device))
        return false;
    // The pages are laid out in twips; a device of another resolution sees them scaled.
    painter.scale(device.logicalDpiX() / double(kTwipsPerInch), device.logicalDpiY() / double(kTwipsPerInch));
    const int pages = static_cast<int>(mPages.size());
    for (int page = 0; page < pages; ++page) {
        if (page > 0 && !device.newPage())
            return false;
        PaintPage(painter, page, pages);
    }
    return painter.end();
}

void clsPdfDialect::PaintPage(QPainter& painter, int page, int pages) const {
    PaintHeader(painter, page);
    for (const Piece& piece : mPages[static_cast<size_t>(page)])
        PaintPiece(painter, piece);
    PaintFooter(painter, page, pages);
}

double clsPdfDialect::PaintCentred(QPainter& painter, const QString& rtf, double points, double top) const {
    double height = 0;
    const auto layout =
        LayOutText(rtf, DeviceFont(points), mFrame.TableWidth, clsRTFCell::AlignCenter, Qt::black, &height);
    painter.setPen(Qt::black);
    layout->draw(&painter, QPointF(mLeft, top));
    return top + height;
}

void clsPdfDialect::PaintHeader(QPainter& painter, int page) const {
    const auto centred = [&](const QString& rtf, double points, double top) {
        return PaintCentred(painter, rtf, points, top);
    };
    if (mHeaderOnEveryPage || page == 0) {
        double top = mHeaderOnEveryPage ? mFrame.HeaderTop : mFrame.Top;
        if (mHeaderOnEveryPage)
            painter.drawImage(QRectF(mLeft, top, kLogoWidth, kLogoHeight), mLogo);
        top = centred(mTitle, kTitlePoints, top);
        if (!mDate.isEmpty())
            centred(RtfMarkup::EscapeText(mDate), kDatePoints, top);
    }
}

void clsPdfDialect::PaintFooter(QPainter& painter, int page, int pages) const {
    if (!mFrame.PrintFooter)
        return;
    const QString footer = QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages);
    const double height = QFontMetricsF(DeviceFont(kFooterPoints)).height();
    PaintCentred(painter, footer, kFooterPoints, mPaperHeight - mFrame.Footer - height);
}

void clsPdfDialect::PaintPiece(QPainter& painter, const Piece& piece) const {
    const double bottom = piece.Top + piece.Height;
    for (size_t i = 0; i < piece.Cells->size(); ++i) {
        const Cell& cell = (*piece.Cells)[i];
        const QRectF box(cell.Left, piece.Top, cell.Right - cell.Left, piece.Height);
        if (cell.Look.CELL_BACKCOLOR != 0)
            painter.fillRect(box, ColorOf(mSettings->TableColor(cell.Look.CELL_BACKCOLOR)));
        const auto [from, to] = piece.Lines[i];
        if (from < to) {
            const double text = LinesHeight(*cell.Text, from, to);
            double top = piece.Top + mFrame.CellTop + kParagraphSpace;
            if (piece.Whole)
                top += std::max(0.0, piece.Height - CellPadding(true) - text) *
                       VerticalShare(cell.Look.CELL_VERTICAL_ALIGNMENT);
            painter.save();
            painter.setClipRect(box); // an exact height cuts what does not fit
            painter.setPen(Qt::black);
            const double x = cell.Left + mFrame.CellLeft;
            const double shift = top - cell.Text->lineAt(from).y();
            for (int line = from; line < to; ++line) {
                const QTextLine textLine = cell.Text->lineAt(line);
                if (textLine.y() + shift < bottom)
                    textLine.draw(&painter, QPointF(x, shift));
            }
            painter.restore();
        }
        PaintBorder(painter, cell, piece.Top, bottom);
    }
}

void clsPdfDialect::PaintBorder(QPainter& painter, const Cell& cell, double top, double bottom) const {
    const int border = cell.Look.CELL_BORDER;
    QPen pen(ColorOf(mSettings->TableColor(clsRTFMasterTemp::BorderLine)), kBorderWidth);
    pen.setCapStyle(Qt::SquareCap);
    const QLineF topLine(cell.Left, top, cell.Right, top);
    if (border >= clsRTFCell::BorderTopSmallDashes) {
        pen.setStyle(border == clsRTFCell::BorderTopSmallDashes ? Qt::DotLine : Qt::DashLine);
        painter.setPen(pen);
        painter.drawLine(topLine);
        if (border == clsRTFCell::BorderTopWavyDouble)
            painter.drawLine(topLine.translated(0, 3 * kBorderWidth));
        return;
    }
    painter.setPen(pen);
    const bool box = border == clsRTFCell::BorderBox;
    const auto has = [&](int side, int openWithout) {
        return border == side || box ||
               (border >= clsRTFCell::BorderOpenBottom && border <= clsRTFCell::BorderOpenLeft &&
                border != openWithout);
    };
    if (has(clsRTFCell::BorderTop, clsRTFCell::BorderOpenTop))
        painter.drawLine(topLine);
    if (has(clsRTFCell::BorderBottom, clsRTFCell::BorderOpenBottom))
        painter.drawLine(QLineF(cell.Left, bottom, cell.Right, bottom));
    if (has(clsRTFCell::BorderLeft, clsRTFCell::BorderOpenLeft))
        painter.drawLine(QLineF(cell.Left, top, cell.Left, bottom));
    if (has(clsRTFCell::BorderRight, clsRTFCell::BorderOpenRight))
        painter.drawLine(QLineF(cell.Right, top, cell.Right, bottom));
}
