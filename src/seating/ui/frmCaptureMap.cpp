#include "seating/ui/frmCaptureMap.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "seating/ui/usrMapView.h"
#include "shell/options/frmOptions.h"
#include "startup/modMapAddresses.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kLine = 2; // the frame's lines, drawn just outside the area that is captured
constexpr int kMapCountryKey = 9;
const QColor kLineColor(0xd9, 0x1e, 0x63);

QString CountryLabel(int index) {
    return frmOptions::CountryNames().value(index) + QStringLiteral(" (") + QUrl(MapEndpoint(index)).host() +
           QLatin1Char(')');
}

} // namespace

void usrPlainMapView::Open(const QUrl& url) {
    usrMapView::Open(url);
    update();
}

void usrPlainMapView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0xee, 0xec, 0xe8));
    painter.setPen(QColor(0x55, 0x4b, 0x52));
    painter.drawText(rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap,
                     QStringLiteral("This Vowren shows no web pages.\nTake a map from a file with \"Load "
                                    "picture…\" or from the clipboard with \"Paste picture\".\n\n") +
                         Url().toString());
}

frmCaptureMap::frmCaptureMap(usrMapView* view, QWidget* parent) : QDialog(parent), mView(view) {
    setObjectName(QStringLiteral("frmCaptureMap"));
    setWindowTitle(QStringLiteral("Capture Map"));
    mView->setParent(this);
    mView->setObjectName(QStringLiteral("WebBrowser"));
    mView->setMinimumSize(FrameSize() + QSize(4 * kLine, 4 * kLine));
    mView->installEventFilter(this);
    for (const char* name : {"picTopLine", "picBottomLine", "picLeftLine", "picRightLine"}) {
        auto* line = new QWidget(mView);
        line->setObjectName(QLatin1String(name));
        line->setAutoFillBackground(true);
        QPalette palette = line->palette();
        palette.setColor(QPalette::Window, kLineColor);
        line->setPalette(palette);
        line->setAttribute(Qt::WA_TransparentForMouseEvents);
        mLines << line;
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(BuildTop());
    layout->addWidget(mView, 1);
    layout->addWidget(BuildButtons());
    resize(900, 720);
    const int country = RecordIO::Read([] { return clsVOWREN::MapCountryIndex(); });
    cboWebsite->setCurrentIndex(country >= 0 && country < cboWebsite->count() ? country : 0);
    OpenCountry(cboWebsite->currentIndex());
    connect(cboWebsite, &QComboBox::currentIndexChanged, this, &frmCaptureMap::OpenCountry);
    PlaceFrame();
}

QWidget* frmCaptureMap::BuildTop() {
    auto* top = new QWidget(this);
    auto* row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, 0, 0);
    cboWebsite = new QComboBox(top);
    cboWebsite->setObjectName(QStringLiteral("cboWebsite"));
    for (int i = 0; i < frmOptions::CountryNames().size(); ++i)
        cboWebsite->addItem(CountryLabel(i));
    usrAddress = new QComboBox(top);
    usrAddress->setObjectName(QStringLiteral("usrAddress"));
    usrAddress->setMinimumContentsLength(40);
    for (const modMapAddresses::Row& address : RecordIO::Read([] { return modMapAddresses::Rows(); }))
        usrAddress->addItem(address.Text, address.Key);
    usrAddress->setCurrentIndex(-1);
    connect(usrAddress, &QComboBox::activated, this, &frmCaptureMap::OpenAddress);
    for (const auto& [caption, box] : {std::pair{QStringLiteral("&Web Site:"), cboWebsite},
                                       std::pair{QStringLiteral("&Addresses:"), usrAddress}}) {
        auto* label = new QLabel(caption, top);
        label->setBuddy(box);
        row->addWidget(label);
        row->addWidget(box, box == usrAddress ? 1 : 0);
    }
    return top;
}

QWidget* frmCaptureMap::BuildButtons() {
    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString& caption, const char* name, auto slot) {
        auto* button = new QPushButton(caption, buttons);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
        return button;
    };
    cmdShowSelection =
        add(QStringLiteral("Hide Selection"), "cmdShowSelection", [this] { ShowSelection(!mShown); });
    add(QStringLiteral("Load picture…"), "cmdLoadPicture", [this] { LoadPicture(); });
    add(QStringLiteral("Paste picture"), "cmdPastePicture", [this] {
        const QImage picture = QApplication::clipboard()->image();
        if (picture.isNull())
            ShowMessage(QStringLiteral("The clipboard holds no picture."), Msg::OKOnly | Msg::Exclamation);
        else
            TakePicture(picture);
    });
    row->addStretch(1);
    add(QStringLiteral("Capture"), "cmdCapture", [this] { Capture(); })->setDefault(true);
    add(QStringLiteral("Close"), "cmdClose", [this] { reject(); });
    return buttons;
}

QRect frmCaptureMap::FrameRect(const QSize& viewSize) {
    const QSize frame = FrameSize();
    return {QPoint((viewSize.width() - frame.width()) / 2, (viewSize.height() - frame.height()) / 2), frame};
}

QRect frmCaptureMap::Frame() const {
    return FrameRect(mView->size());
}

// The four lines around the frame, outside it.
void frmCaptureMap::PlaceFrame() {
    const QRect frame = Frame();
    mLines[0]->setGeometry(frame.left() - kLine, frame.top() - kLine, frame.width() + 2 * kLine, kLine);
    mLines[1]->setGeometry(frame.left() - kLine, frame.bottom() + 1, frame.width() + 2 * kLine, kLine);
    mLines[2]->setGeometry(frame.left() - kLine, frame.top(), kLine, frame.height());
    mLines[3]->setGeometry(frame.right() + 1, frame.top(), kLine, frame.height());
    for (QWidget* line : std::as_const(mLines)) {
        line->setVisible(mShown);
        line->raise();
    }
}

void frmCaptureMap::ShowSelection(bool show) {
    mShown = show;
    cmdShowSelection->setText(show ? QStringLiteral("Hide Selection") : QStringLiteral("Show Selection"));
    for (QWidget* line : std::as_const(mLines))
        line->setVisible(show);
}

void frmCaptureMap::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    PlaceFrame();
}

bool frmCaptureMap::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mView && event->type() == QEvent::Resize)
        PlaceFrame();
    return QDialog::eventFilter(watched, event);
}

// The country is kept at once, so that the links of the addresses follow it.
void frmCaptureMap::OpenCountry(int index) {
    RecordIO::Attempt([index] { gVowren().QuickUpdate(kMapCountryKey, QString::number(index)); });
    QString site = MapEndpoint(index);
    if (site.endsWith(QLatin1String("?q=")))
        site.chop(3);
    mView->Open(QUrl(site));
}

void frmCaptureMap::OpenAddress(int row) {
    const QString key = usrAddress->itemData(row).toString();
    const QString link = RecordIO::Read([&key] { return modMapAddresses::URL(key); });
    if (!link.isEmpty())
        mView->Open(MapLink(link));
}

QUrl frmCaptureMap::MapLink(const QString& link) {
    const qsizetype at = link.indexOf(QLatin1String("?q="));
    if (at < 0)
        return QUrl(link);
    QUrl url(link.left(at));
    url.setQuery(QStringLiteral("q=") + QString::fromLatin1(QUrl::toPercentEncoding(link.mid(at + 3), "+")));
    return url;
}

QString frmCaptureMap::MapPath() {
    return gApp().ReportPath() + QStringLiteral("/Map.bmp");
}

QImage frmCaptureMap::FitToFrame(const QImage& picture) {
    const QSize frame = FrameSize();
    QSize crop = frame.scaled(picture.size(), Qt::KeepAspectRatio);
    const QRect middle(QPoint((picture.width() - crop.width()) / 2, (picture.height() - crop.height()) / 2),
                       crop);
    return picture.copy(middle).scaled(frame, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool frmCaptureMap::Capture() {
    const bool shown = mShown;
    ShowSelection(false);
    const QImage picture = mView->Grab(Frame());
    ShowSelection(shown);
    return Save(picture.size() == FrameSize() ? picture : FitToFrame(picture));
}

bool frmCaptureMap::TakePicture(const QImage& picture) {
    return !picture.isNull() && Save(FitToFrame(picture));
}

void frmCaptureMap::LoadPicture() {
    const QString path =
        QFileDialog::getOpenFileName(this, QStringLiteral("Load picture"), gApp().ReportPath(),
                                     QStringLiteral("Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.webp)"));
    if (path.isEmpty())
        return;
    const QImage picture(path);
    if (picture.isNull()) {
        ShowMessage(QStringLiteral("\"") + path + QStringLiteral("\" is no picture that Vowren can read."),
                    Msg::OKOnly | Msg::Exclamation);
        return;
    }
    TakePicture(picture);
}

// Map.bmp in the reports folder; a folder that can't be written is said, and the dialog stays.
bool frmCaptureMap::Save(const QImage& picture) {
    gApp().MakeReportPath();
    if (!picture.convertToFormat(QImage::Format_RGB32).save(MapPath(), "BMP")) {
        ShowMessage(QStringLiteral("The map could not be saved as \"") + MapPath() +
                        QStringLiteral("\".\n\nMake sure that the reports folder may be written to, then try "
                                       "again."),
                    Msg::OKOnly | Msg::Exclamation);
        return false;
    }
    emit MapCaptured();
    accept();
    return true;
}

void frmCaptureMap::done(int result) {
    RecordIO::Attempt(
        [this] { gVowren().QuickUpdate(kMapCountryKey, QString::number(cboWebsite->currentIndex())); });
    QDialog::done(result);
}
