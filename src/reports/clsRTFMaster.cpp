#include "reports/clsRTFMaster.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"

#include <QDir>
#include <QFileInfo>
#include <array>
#include <cmath>

namespace {

// The logo: a rose heart with a white "V", 31 by 22 pixels, 96 dots per inch, as a baseline JFIF JPEG
// of 980 bytes in hexadecimal text, 64 bytes a chunk.
constexpr std::array<const char*, 16> kLogoHex = {
    "ffd8ffe000104a46494600010101006000600000ffdb00430006040506050406060506070706080a100a0a09090a140e0f0c1017"
    "141818171416161a1d251f1a",
    "1b231c1616202c20232627292a29191f2d302d283025282928ffdb0043010707070a080a130a0a13281a161a2828282828282828"
    "282828282828282828282828",
    "282828282828282828282828282828282828282828282828282828282828ffc00011080016001f03012200021101031101ffc400"
    "1f0000010501010101010100",
    "000000000000000102030405060708090a0bffc400b5100002010303020403050504040000017d01020300041105122131410613"
    "516107227114328191a10823",
    "42b1c11552d1f02433627282090a161718191a25262728292a3435363738393a434445464748494a535455565758595a63646566"
    "6768696a737475767778797a",
    "838485868788898a92939495969798999aa2a3a4a5a6a7a8a9aab2b3b4b5b6b7b8b9bac2c3c4c5c6c7c8c9cad2d3d4d5d6d7d8d9"
    "dae1e2e3e4e5e6e7e8e9eaf1",
    "f2f3f4f5f6f7f8f9faffc4001f0100030101010101010101010000000000000102030405060708090a0bffc400b5110002010204"
    "040304070504040001027700",
    "0102031104052131061241510761711322328108144291a1b1c109233352f0156272d10a162434e125f11718191a262728292a35"
    "363738393a43444546474849",
    "4a535455565758595a636465666768696a737475767778797a82838485868788898a92939495969798999aa2a3a4a5a6a7a8a9aa"
    "b2b3b4b5b6b7b8b9bac2c3c4",
    "c5c6c7c8c9cad2d3d4d5d6d7d8d9dae2e3e4e5e6e7e8e9eaf2f3f4f5f6f7f8f9faffda000c03010002110311003f00f73f8b3e2d"
    "9fc27e1e496c554df5d49e54",
    "4ce32138c96c77c71c7bd798785fe2178a74c8edf5ad6a66d43419ae4db4b909b918007e5c608383900f0707eb5ea5f15bc2b278"
    "afc30d0da63edf6cfe74009c",
    "6f3820a67dc1fcc0af0ef00cb09b9d4bc2bafc86cecf521e5979463ecd709ca310718e72a4719c8a895ee7d46594b0f53072bc54"
    "a49fbddede5f2dbcd1abaf78",
    "ff00c68c2d75d4b9163a6dd4aeb6902042084201c8232dd7193df3d2bdb7e1ff00888f8a3c2d69a93c6b1ced98e645e81d4e0e3d"
    "8f07f1af9e3c5933f89bc590",
    "693e1e89a6b3b455b1b08d39dc8bc17cfb9cb13e9d7a57d17e06f0faf863c3167a6060f2460b4ae3a33b1cb63dbb0f60288dee46"
    "714e853c353b45466f64b7b7",
    "9fe1f337ab88f1ff00c3ad33c5aa6e01fb1ea80605ca2e43fb38eff5ebfca8a2adab9e050af5284d4e9bb32ff81fc13a5f846d0a"
    "d9219af1c625ba907cefec3f",
    "babec3f1cd75145141356aceb4dcea3bb67fffd9",
};

// Paper sides in inches.
constexpr double kLetterLong = 11.0;
constexpr double kLetterShort = 8.5;
constexpr double kA4Long = 11.69;
constexpr double kA4Short = 8.27;

double PaperWidthInches(bool a4, bool landscape) {
    if (landscape)
        return a4 ? kA4Long : kLetterLong;
    return a4 ? kA4Short : kLetterShort;
}

QString Number(int value) {
    return QString::number(value);
}

// A font name as the font table can hold it: escaped, and without the ";" that would end the entry.
QString FontNameRTF(const QString& name) {
    QString cleaned = name;
    cleaned.remove(QLatin1Char(';'));
    return RtfMarkup::EscapeText(cleaned);
}

// Whether a spreadsheet would take the text for a formula (or a command) when it opens the file.
bool LooksLikeFormula(const QString& text) {
    static const QString starts = QStringLiteral("=+-@\t\r");
    return !text.isEmpty() && starts.contains(text.at(0));
}

// A field of a CSV record: line breaks as CR LF, quoted when not empty, inner quotes doubled. Text that
// a spreadsheet would run as a formula gets a leading apostrophe, which makes it show as text; a
// figure of the report's own stays a number.
QString CsvField(const RtfMarkup& cell) {
    const QString& plain = cell.Plain();
    const QString text = !cell.IsFigure() && LooksLikeFormula(plain) ? QLatin1Char('\'') + plain : plain;
    if (!text.contains(QLatin1Char('\r')) && !text.contains(QLatin1Char('\n')))
        return QuoteCSV(text);
    QString normalised = text;
    normalised.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    normalised.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    normalised.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return QuoteCSV(normalised);
}

} // namespace

clsRTFMaster::clsRTFMaster(const clsRTFMasterTemp& settings) : mSettings(&settings) {}

QString clsRTFMaster::FILE_NAME_WITH_EXTENSION() const {
    QString name = FILE_NAME;
    name.replace(QLatin1Char('/'), QLatin1Char('_'));
    name.replace(QLatin1Char('\\'), QLatin1Char('_'));
    if (!USE_RTF)
        return name + QLatin1String(".csv");
    return name + (USE_PDF ? QLatin1String(".pdf") : QLatin1String(".rtf"));
}

QString clsRTFMaster::FULL_FILE_NAME() const {
    return gApp().ReportPath() + QLatin1Char('/') + FILE_NAME_WITH_EXTENSION();
}

int clsRTFMaster::Twips(double inches) {
    return static_cast<int>(std::nearbyint(inches * 1440.0));
}

int clsRTFMaster::TABLE_WIDTH() const {
    const double width =
        PaperWidthInches(A4, LANDSCAPE) * 1440.0 -
        (static_cast<double>(MARGIN_RIGHT) * 1440.0 + static_cast<double>(MARGIN_LEFT) * 1440.0);
    return static_cast<int>(std::nearbyint(width));
}

void clsRTFMaster::SetGlobalSettings() {
    USE_RTF = mSettings->USE_RTF;
    USE_PDF = mSettings->USE_PDF;
    FONT_NAME = mSettings->FONT_NAME;
    FONT_SIZE = mSettings->FONT_SIZE;
    A4 = mSettings->A4;
    LANDSCAPE = mSettings->LANDSCAPE;
}

void clsRTFMaster::mxPAPER_WIDTH_PAPER_HEIGHT() {
    const double longSide = A4 ? kA4Long : kLetterLong;
    const double shortSide = A4 ? kA4Short : kLetterShort;
    PAPER_WIDTH = static_cast<float>(LANDSCAPE ? longSide : shortSide);
    PAPER_HEIGHT = static_cast<float>(LANDSCAPE ? shortSide : longSide);
}

int clsRTFMaster::HalfPoints(const QString& points) {
    bool ok = false;
    const double value = QLocale::c().toDouble(points.trimmed(), &ok);
    if (!ok || !std::isfinite(value))
        return 0;
    const double rounded = std::nearbyint(value); // whole points, ties to even
    if (rounded < 1 || rounded > 1638)
        return 0;
    return static_cast<int>(rounded) * 2;
}

QString clsRTFMaster::HeaderDateText(const QDateTime& moment) {
    const QDate date = moment.date();
    return QLatin1String("As of ") + MonthAbbreviation(date.month()) + QLatin1Char(' ') + Number(date.day()) +
           QLatin1String(", ") + Number(date.year()) + QLatin1String("  ") +
           FormatDateTime(moment, TimeFormat());
}

QByteArray clsRTFMaster::LogoJpeg() {
    QByteArray hex;
    for (const char* chunk : kLogoHex)
        hex += chunk;
    return QByteArray::fromHex(hex);
}

void clsRTFMaster::WriteLine(const QString& text, int blankLinesBefore) {
    mFile.WriteLine(text, blankLinesBefore, 0);
}

bool clsRTFMaster::RTFOpen() {
    mWritten = false;
    int halfPoints = 0;
    if (USE_RTF) {
        halfPoints = HalfPoints(FONT_SIZE);
        if (halfPoints == 0) {
            NotWritten(QStringLiteral("The font size \"%1\" is not a number of points.").arg(FONT_SIZE));
            return false;
        }
    }
    if (WritesPdf() && !OpenPages())
        return false;
    if (mPages && !mPages->WritesFile())
        return true; // laid out for the screen or a printer: no file at all
    QDir().mkpath(gApp().ReportPath());
    // Each run makes a new file: a report of the same name (one started in the same second) stays.
    if (!mFile.OpenFile(FULL_FILE_NAME(), TextFile::ForWriting,
                        USE_RTF ? TextFile::Encoding::Utf8 : TextFile::Encoding::Utf8WithBom,
                        clsPrivateFile::Existing::KeepOthers))
        return false;
    if (USE_RTF && !mPages)
        WriteHead(halfPoints);
    return !mFile.HasFailed();
}

bool clsRTFMaster::OpenPages() {
    mxPAPER_WIDTH_PAPER_HEIGHT();
    mPages = clsPageDialect::Make();
    if (mPages && mPages->Begin(*this, *mSettings))
        return true;
    mPages.reset();
    NotWritten(QStringLiteral("This program cannot write PDF documents here."));
    return false;
}

void clsRTFMaster::NotWritten(const QString& reason) const {
    ShowMessage(QStringLiteral("The report \"%1\" was not written.  %2")
                    .arg(QDir::toNativeSeparators(FULL_FILE_NAME()), reason),
                Msg::OKOnly | Msg::Exclamation, ProgramTitle());
}

void clsRTFMaster::WriteHead(int fontHalfPoints) {
    mxPAPER_WIDTH_PAPER_HEIGHT();
    // \ansicpg1252 names the code page of the one-byte fallbacks, \uc1 says that one byte follows each \uN.
    WriteLine(QStringLiteral("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033\\viewkind1\\uc1"));
    WriteLine(QLatin1String("{\\fonttbl{\\f0\\ ") + FontNameRTF(FONT_NAME) + QLatin1String(";}}"));
    WriteLine(QLatin1String("{\\colortbl;") + mSettings->RTF_COLOR_TABLE() + QLatin1Char('}'), 1);
    QString section = QLatin1String("\\pghsxn") + Number(Twips(PAPER_HEIGHT)) + QLatin1String("\\pgwsxn") +
                      Number(Twips(PAPER_WIDTH)) + QLatin1String("\\margtsxn") + Number(Twips(MARGIN_TOP)) +
                      QLatin1String("\\margbsxn") + Number(Twips(MARGIN_BOTTOM)) +
                      QLatin1String("\\marglsxn") + Number(Twips(MARGIN_LEFT)) + QLatin1String("\\margrsxn") +
                      Number(Twips(MARGIN_RIGHT));
    if (LANDSCAPE)
        section += QLatin1String("\\lndscpsxn");
    section += QLatin1String("\\headery") + Number(Twips(MARGIN_HEADER)) + QLatin1String("\\footery") +
               Number(Twips(MARGIN_FOOTER));
    WriteLine(section, 1);

    // With the logo, title and date stand in the page header and repeat on every page; without it they
    // stand once at the top of the first page.
    if (PRINT_HEADER_ICON)
        WriteLogoShape();
    if (!TITLE.IsEmpty())
        WriteLine(QLatin1String("\\pard\\plain\\qc\\fs24 {") + TITLE.Rtf() + QLatin1String(" \\par } "));
    if (PRINT_HEADER_DATE)
        WriteLine(QLatin1String("\\pard\\qc\\fs18 {") + RtfMarkup::EscapeText(HeaderDateText(Now())) +
                  QLatin1String(" \\par }"));
    if (PRINT_HEADER_ICON)
        WriteLine(QStringLiteral("}"));
    if (PRINT_FOOTER)
        WriteLine(QStringLiteral("{\\footer \\pard\\plain\\qc\\fs20 {Page }{\\field{\\*\\fldinst { PAGE }}"
                                 "{\\fldrslt {\\lang1024 1}}}{ of }{\\field{\\*\\fldinst {NUMPAGES }}"
                                 "{\\fldrslt { 1}}}{ \\par }}"));
    WriteLine(QLatin1String("\\fs") + Number(fontHalfPoints));
    if (!STATISTICS.IsEmpty())
        WriteLine(QLatin1String("\\qc {") + STATISTICS.Rtf() + QLatin1String(" } \\par \\par "));
}

void clsRTFMaster::WriteLogoShape() {
    WriteLine(
        QStringLiteral("{\\header \\pard\\plain \\s15\\ql \\li0\\ri0\\widctlpar\\tqc\\tx4320\\tqr\\tx8640"
                       "\\aspalpha\\aspnum\\faauto\\adjustright\\rin0\\lin0\\itap0"));
    WriteLine(QStringLiteral("{\\lang1024\\langfe1024\\noproof\\insrsid6698249"));
    WriteLine(
        QStringLiteral("{\\shp{\\*\\shpinst\\shpleft0\\shptop0\\shpright460\\shpbottom340\\shpfhdr0"
                       "\\shpbxcolumn\\shpbxignore\\shpbypara\\shpbyignore\\shpwr3\\shpwrk0\\shpfblwtxt0"
                       "\\shpz0\\shplid2049"));
    WriteLine(
        QStringLiteral("{\\sp{\\sn shapeType}{\\sv 75}}{\\sp{\\sn fFlipH}{\\sv 0}}{\\sp{\\sn fFlipV}{\\sv 0}}"
                       "{\\sp{\\sn pib}{\\sv"));
    WriteLine(QStringLiteral("{\\pict\\picscalex100\\picscaley100\\piccropl0\\piccropr0\\piccropt0\\piccropb0"
                             "\\picw820\\pich582\\picwgoal465\\pichgoal330\\jpegblip\\bliptag-1747645299"));
    for (size_t i = 0; i + 1 < kLogoHex.size(); ++i)
        WriteLine(QLatin1String(kLogoHex[i]));
    WriteLine(QLatin1String(kLogoHex.back()) +
              QLatin1String("}}}{\\sp{\\sn pibFlags}{\\sv 2}}{\\sp{\\sn fRecolorFillAsPicture}{\\sv 0}}"));
    WriteLine(
        QStringLiteral("{\\sp{\\sn fUseShapeAnchor}{\\sv 0}}{\\sp{\\sn fLine}{\\sv 0}}"
                       "{\\sp{\\sn fBehindDocument}{\\sv 0}}{\\sp{\\sn fLayoutInCell}{\\sv 1}}}"
                       "{\\shprslt\\par\\pard\\ql \\li0\\ri0\\widctlpar\\pvpara\\dxfrtext180\\dfrmtxtx180"
                       "\\dfrmtxty0\\aspalpha\\aspnum\\faauto\\adjustright\\rin0\\lin0\\itap0"));
    WriteLine(QStringLiteral("{ \\par }}}}"));
}

bool clsRTFMaster::RTFClose() {
    if (mPages && !mPages->WritesFile()) {
        mPages->Finish();
        mPages.reset();
        return false; // nothing written
    }
    if (!mFile.IsOpen())
        return false;
    if (mPages) {
        const QByteArray document = mPages->Finish();
        mPages.reset();
        if (document.isEmpty()) {
            NotWritten(QStringLiteral("Its pages could not be painted."));
            return false; // the file still open is dropped
        }
        mFile.Write(document);
    } else if (USE_RTF) {
        WriteLine(QStringLiteral("}"));
    }
    mWritten = mFile.CloseFile();
    if (mWritten)
        FILE_NAME = QFileInfo(mFile.FileName()).completeBaseName(); // with "_2" when the name was taken
    return mWritten;
}

bool clsRTFMaster::Show() {
    if (!mWritten)
        return false;
    return mFile.ShellOpen(QString(), 0);
}

clsRTFCell& clsRTFMaster::AddCell(int CELLX, const RtfMarkup& CELL_TX, int CELL_HORIZONTAL_ALIGNMENT,
                                  int CELL_VERTICAL_ALIGNMENT, int CELL_BORDER, int CELL_BACKCOLOR,
                                  int CELL_FORECOLOR, bool BOLD, bool ITALIC, bool STRIKE) {
    clsRTFCell cell;
    cell.CELLX = CELLX;
    cell.CELL_TX = CELL_TX;
    cell.CELL_HORIZONTAL_ALIGNMENT = CELL_HORIZONTAL_ALIGNMENT;
    cell.CELL_VERTICAL_ALIGNMENT = CELL_VERTICAL_ALIGNMENT;
    cell.CELL_BORDER = CELL_BORDER;
    cell.CELL_BACKCOLOR = CELL_BACKCOLOR;
    cell.CELL_FORECOLOR = CELL_FORECOLOR;
    cell.BOLD = BOLD;
    cell.ITALIC = ITALIC;
    cell.STRIKE = STRIKE;
    RTFCells.append(cell);
    return RTFCells.last();
}

void clsRTFMaster::SetCellsBOLD(bool value) {
    for (clsRTFCell& cell : RTFCells)
        cell.BOLD = value;
}
void clsRTFMaster::SetCellsITALIC(bool value) {
    for (clsRTFCell& cell : RTFCells)
        cell.ITALIC = value;
}
void clsRTFMaster::SetCellsSTRIKE(bool value) {
    for (clsRTFCell& cell : RTFCells)
        cell.STRIKE = value;
}
void clsRTFMaster::SetCellsCELL_BORDER(int value) {
    for (clsRTFCell& cell : RTFCells)
        cell.CELL_BORDER = value;
}
void clsRTFMaster::SetCellsCELL_BACKCOLOR(int value) {
    for (clsRTFCell& cell : RTFCells)
        cell.CELL_BACKCOLOR = value;
}
void clsRTFMaster::SetCellsCELL_FORECOLOR(int value) {
    for (clsRTFCell& cell : RTFCells)
        cell.CELL_FORECOLOR = value;
}

RtfMarkup clsRTFMaster::CellText(clsRTFCell& cell) {
    // The style flags are spent here: the next row of the same cells is plain unless they are set again.
    RtfMarkup text = cell.CELL_TX;
    if (cell.BOLD) {
        text = BOLD(text);
        cell.BOLD = false;
    }
    if (cell.ITALIC) {
        text = ITALIC(text);
        cell.ITALIC = false;
    }
    if (cell.STRIKE) {
        text = STRIKE(text);
        cell.STRIKE = false;
    }
    return text;
}

QString clsRTFMaster::CsvRecord() const {
    QString record;
    for (qsizetype i = 0; i < RTFCells.size(); ++i) {
        if (i > 0)
            record += QLatin1Char(',');
        record += CsvField(RTFCells.at(i).CELL_TX);
    }
    return record;
}

const clsRTFMaster::RowLayout& clsRTFMaster::Layout(bool RowHeader, int RTF_HEIGHT) {
    std::vector<int> key = {RowHeader ? 1 : 0, RTF_HEIGHT, CELL_MARGIN_LEFT, CELL_MARGIN_TOP, CELL_MARGIN_BOTTOM,
                            CELL_MARGIN_RIGHT};
    key.reserve(key.size() + 6 * static_cast<size_t>(RTFCells.size()));
    for (const clsRTFCell& cell : RTFCells)
        key.insert(key.end(), {cell.CELL_BACKCOLOR, cell.CELL_BORDER, cell.CELL_VERTICAL_ALIGNMENT, cell.CELLX,
                               cell.CELL_HORIZONTAL_ALIGNMENT, cell.CELL_FORECOLOR});
    if (key == mLayout.Key)
        return mLayout;

    QString out;
    const auto line = [&out](const QString& text, bool blankBefore = false) {
        if (blankBefore)
            out += QLatin1String("\r\n");
        out += text;
        out += QLatin1String("\r\n");
    };
    QString row = QStringLiteral("\\trowd\\trkeep");
    if (RTF_HEIGHT >= 1)
        row += QLatin1String("\\trrh-") + Number(RTF_HEIGHT); // negative: exactly this high
    if (RowHeader)
        row += QLatin1String("\\trhdr");
    row += QLatin1String("\\trgaph90\\trleft0\\trql");
    line(row);
    const QString padding = QLatin1String("\\cltxlrtb\\clpadl") + Number(CELL_MARGIN_LEFT) +
                            QLatin1String("\\clpadt") + Number(CELL_MARGIN_TOP) + QLatin1String("\\clpadb") +
                            Number(CELL_MARGIN_BOTTOM) + QLatin1String("\\clpadr") +
                            Number(CELL_MARGIN_RIGHT) + QLatin1String("\\clpadfl3\\clpadfb3");
    QStringList starts;
    for (const clsRTFCell& cell : RTFCells) {
        line(cell.RTF_CELL_BACKCOLOR());
        line(cell.RTF_CELL_BORDER());
        line(padding);
        line(cell.RTF_CELL_VERTICAL_ALIGNMENT());
        line(QLatin1String("\\cellx") + Number(cell.CELLX));
        starts << QLatin1String("\\intbl") + cell.RTF_CELL_HORIZONTAL_ALIGNMENT() + cell.RTF_CELL_FORECOLOR() +
                      QLatin1String("\\sb30\\sa30 ");
    }
    line(QStringLiteral("\\pard"), true);
    mLayout = RowLayout{std::move(key), std::move(out), std::move(starts)};
    return mLayout;
}

void clsRTFMaster::PrintCells(bool RowHeader, int RTF_HEIGHT) {
    if (!USE_RTF) {
        mFile.WriteLine(CsvRecord());
        return;
    }
    if (mPages) {
        QList<clsRTFCell> styled = RTFCells;
        for (qsizetype i = 0; i < styled.size(); ++i)
            styled[i].CELL_TX = CellText(RTFCells[i]);
        mPages->Row(styled, RowHeader, RTF_HEIGHT);
        return;
    }
    // The row goes to the file in one piece, its lines joined by CR LF.
    const RowLayout& layout = Layout(RowHeader, RTF_HEIGHT);
    QString out;
    out.reserve(layout.Definition.size() + 160 * RTFCells.size());
    out += layout.Definition;
    for (qsizetype i = 0; i < RTFCells.size(); ++i) {
        out += layout.CellStarts.at(i);
        out += CellText(RTFCells[i]).Rtf();
        out += QLatin1String("\\cell\\pard\r\n");
    }
    out += QLatin1String("\r\n\\intbl\\row\r\n\r\n\\pard");
    WriteLine(out); // the file adds the last line end
}

void clsRTFMaster::PrintBlankCells() {
    for (clsRTFCell& cell : RTFCells) {
        cell.CELL_TX = RtfMarkup();
        cell.CELL_BORDER = clsRTFCell::NoBorder;
        cell.CELL_BACKCOLOR = 0;
        cell.BOLD = false;
        cell.ITALIC = false;
    }
    PrintCells(false, 0);
}

void clsRTFMaster::PrintRaw(const RtfMarkup& rtf) {
    if (mPages) {
        mPages->Paragraph(rtf);
        return;
    }
    if (USE_RTF) {
        WriteLine(rtf.Rtf());
        return;
    }
    if (!rtf.Plain().isEmpty())
        mFile.WriteLine(CsvField(rtf));
}

void clsRTFMaster::FontSize(const QString& points) {
    if (!USE_RTF)
        return;
    const int halfPoints = HalfPoints(points);
    if (halfPoints > 0 && mPages)
        mPages->SetFontHalfPoints(halfPoints);
    else if (halfPoints > 0)
        WriteLine(QLatin1String("\\fs") + Number(halfPoints));
}
