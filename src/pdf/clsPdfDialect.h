#pragma once

#include "reports/clsPageDialect.h"

#include <QBuffer>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPdfWriter>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

class QPagedPaintDevice;
class QPainter;
class QTextLayout;

// The writer's PDF dialect: the rows of a report laid out in pages of the chosen paper, with the page
// header (logo, title, date), the statistics line, "Page n of m" at the foot, and the header rows
// repeated at the top of every page. A row moves whole to the next page; only a row taller than a
// page is cut, line by line, and goes on over the next pages. Units are twips throughout.
class clsPdfDialect final : public clsPageDialect {
public:
    clsPdfDialect();
    clsPdfDialect(clsPdfDialect&&) noexcept;
    ~clsPdfDialect() override;

    bool Begin(const clsRTFMaster& writer, const clsRTFMasterTemp& settings) override;
    void Row(const QList<clsRTFCell>& cells, bool rowHeader, int exactHeightTwips) override;
    void Paragraph(const RtfMarkup& text) override;
    void SetFontHalfPoints(int halfPoints) override;
    QByteArray Finish() override;
    bool WritesFile() const override { return mKeep == nullptr; }

    // Paints the pages onto any paged device: the PDF writer, a printer, a print preview. The device
    // takes the document's paper from PageLayout(); the painting is scaled to its resolution.
    bool Paint(QPagedPaintDevice& device) const;
    QPageLayout PageLayout() const;

    // Makes this the writer's PDF dialect for the rest of the run; needs a QGuiApplication.
    static void Register();
    // Runs `run` (which builds a report) with the pages laid out but no file written, and gives back
    // the last document laid out, or null. The ordinary PDF dialect is registered again afterwards.
    static std::unique_ptr<clsPdfDialect> LayOutOnly(const std::function<void()>& run);

    // A cell laid out: its box across the table and its lines.
    struct Cell {
        clsRTFCell Look; // the cell without its text
        double Left = 0;
        double Right = 0;
        std::shared_ptr<QTextLayout> Text;
        double TextHeight = 0; // of all lines
    };
    // What of a row stands on one page: the lines [From, To) of each cell.
    struct Piece {
        std::shared_ptr<const std::vector<Cell>> Cells;
        std::vector<std::pair<int, int>> Lines;
        double Top = 0;
        double Height = 0;
        bool Whole = true; // the row entire: aligned inside its height
    };

private:
    struct LaidRow {
        std::shared_ptr<const std::vector<Cell>> Cells;
        double Height = 0;
        bool Exact = false;
    };

    LaidRow LayOut(const QList<clsRTFCell>& cells, int exactHeightTwips) const;
    std::shared_ptr<QTextLayout> LayOutText(const QString& rtf, const QFont& font, double width, int align,
                                            const QColor& color, double* height) const;
    void Place(const LaidRow& row);
    void PlaceSplit(const LaidRow& row);
    void NewPage();
    double Room() const { return mBodyBottom - mCursor; }
    double HeaderRowsHeight() const;
    bool PageHasRows() const { return mCursor > mBodyTop + HeaderRowsHeight(); }
    void PaintPage(QPainter& painter, int page, int pages) const;
    void PaintHeader(QPainter& painter, int page) const;
    void PaintFooter(QPainter& painter, int page, int pages) const;
    double PaintCentred(QPainter& painter, const QString& rtf, double points, double top) const;
    void PaintPiece(QPainter& painter, const Piece& piece) const;
    void PaintBorder(QPainter& painter, const Cell& cell, double top, double bottom) const;
    QFont DeviceFont(double points, bool bold = false) const;
    double CellPadding(bool vertical) const;

    // What the painting needs of the writer, which is gone by the time a kept document is painted.
    struct Frame {
        double HeaderTop = 0;
        double Top = 0;
        double Footer = 0; // from the bottom edge
        bool PrintFooter = true;
        double TableWidth = 0;
        double CellLeft = 0;
        double CellTop = 0;
        double CellPaddingX = 0;
        double CellPaddingY = 0;
    };

    std::unique_ptr<QBuffer> mBuffer;
    std::unique_ptr<QPdfWriter> mPdf;                // also the device the text is laid out for
    std::unique_ptr<clsPdfDialect>* mKeep = nullptr; // where a finished document goes instead of a file
    Frame mFrame;
    const clsRTFMasterTemp* mSettings = nullptr;
    QString mFontName;
    int mHalfPoints = 18;
    double mPaperWidth = 0;
    double mPaperHeight = 0;
    double mLeft = 0;
    double mBodyTop = 0;
    double mBodyBottom = 0;
    double mCursor = 0;
    bool mHeaderOnEveryPage = true;
    QImage mLogo; // one picture for every page, so that the document holds it once
    QString mTitle;
    QString mDate;
    QString mStatistics;
    std::vector<std::vector<Piece>> mPages;
    std::vector<LaidRow> mHeaderRows;
    bool mLastWasHeader = false;
};
