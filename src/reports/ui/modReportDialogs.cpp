#include "reports/ui/modReportDialogs.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/modGeneral.h"
#include "pdf/clsPdfDialect.h"
#include "platform/clsLabelDesk.h"
#include "platform/clsShell.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsReportClasses.h"
#include "reports/modReportRegistry.h"
#include "reports/modReportRunner.h"
#include "reports/ui/frmReports.h"
#include "reports/ui/frmReportEventDates.h"
#include "reports/ui/frmReportsCustomFilter.h"
#include "reports/ui/frmReportsLabels.h"
#include "reports/ui/frmReportsSQL.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

// The pictures sit in a resource file of a static library: it is linked in by name.
static void InitReportResources() {
    Q_INIT_RESOURCE(reports);
}

namespace {

QHash<QString, ReportDialogs::Opener>& Openers() {
    static QHash<QString, ReportDialogs::Opener> openers;
    return openers;
}

std::function<bool()>& LabelDeskProbe() {
    static std::function<bool()> probe;
    return probe;
}

// Shows the wait cursor for as long as it lives.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

void ShowReports(QWidget* parent, int sectionKey, int filterIndex) {
    RegisterReportClasses();
    ReportDialogs::RegisterOwnDialogs();
    frmReports form(parent);
    form.RPT_ROW = sectionKey;
    form.FilterIndex = filterIndex;
    form.exec();
}

namespace ReportDialogs {

void Register(const QString& dialogName, Opener opener) {
    if (dialogName.isEmpty() || !opener)
        return;
    Openers().insert(dialogName, std::move(opener));
}

void Unregister(const QString& dialogName) {
    Openers().remove(dialogName);
}

bool Exists(const QString& dialogName) {
    return Openers().contains(dialogName);
}

bool Open(QWidget* parent, const clsReportRoute& route) {
    const auto it = Openers().constFind(route.Dialog);
    if (it == Openers().constEnd())
        return false;
    it.value()(parent, route);
    return true;
}

void RegisterOwnDialogs() {
    Register(QStringLiteral("frmReportsCustomFilter"), [](QWidget* parent, const clsReportRoute& route) {
        frmReportsCustomFilter form(route.FormNumber, parent);
        form.exec();
    });
    Register(QStringLiteral("frmReportsSQL"), [](QWidget* parent, const clsReportRoute&) {
        frmReportsSQL form(parent);
        form.exec();
    });
    // The calendar asks for its months, then runs with them.
    Register(QStringLiteral("frmReportEventDates"), [](QWidget* parent, const clsReportRoute& route) {
        frmReportEventDates form(parent);
        if (form.exec() != QDialog::Accepted || !form.Continue())
            return;
        clsReportRoute months = route;
        months.Argument = form.Range().RangeText();
        BuildAndShow(months);
    });
    // The label program, once the user has named it, takes labels and tent cards over.
    if (!LabelDeskProbe())
        SetLabelDeskActive([] { return clsLabelDesk().IsActive(); });
    Register(QStringLiteral("clsLabelDesk"), [](QWidget*, const clsReportRoute& route) {
        clsLabelDesk labelDesk;
        if (!labelDesk.Show(route.FormNumber, route.FilterEnum, route.Argument.toInt()))
            ShowMessage(labelDesk.Message(), Msg::OKOnly | Msg::Exclamation, ProgramTitle());
    });
    Register(QStringLiteral("frmReportsLabels"), [](QWidget* parent, const clsReportRoute& route) {
        frmReportsLabels form(route, parent);
        form.exec();
    });
}

void SetLabelDeskActive(std::function<bool()> isActive) {
    LabelDeskProbe() = std::move(isActive);
}

bool LabelDeskActive() {
    return LabelDeskProbe() && LabelDeskProbe()();
}

bool RouteAvailable(const clsReportRoute& route) {
    if (!route.Dialog.isEmpty() && !Exists(route.Dialog))
        return false;
    if (route.ClassName.isEmpty())
        return !route.PictureFile.isEmpty();
    return clsReportClasses::Exists(route.ClassName);
}

QString BuildAndShow(const clsReportRoute& route) {
    QString file;
    {
        WaitCursor wait;
        file = RecordIO::Read([&route] { return clsReportClasses::Build(route); });
    }
    ShowWritten(file);
    return file;
}

void ShowWritten(const QString& file) {
    if (!file.isEmpty() && !gShell().OpenDocument(file))
        ShowMessage(gShell().Message(), Msg::Exclamation, ProgramTitle());
}

QString WrittenStatus(const QString& file) {
    return file.isEmpty() ? QStringLiteral("No report was written.")
                          : QStringLiteral("Opened %1 from the reports folder.").arg(QFileInfo(file).fileName());
}

std::unique_ptr<clsPdfDialect> LayOut(const clsReportRoute& route) {
    WaitCursor wait;
    const clsRTFMasterTemp& settings = gRTFMasterTemp();
    const modReportRunner::Output pages{true, true, settings.LANDSCAPE,
                                        settings.A4}; // whatever the file type
    std::unique_ptr<clsPdfDialect> laid;
    RecordIO::Attempt(
        [&] { laid = clsPdfDialect::LayOutOnly([&] { modReportRunner::Write(route, pages); }); });
    return laid;
}

bool PrintPages(const clsPdfDialect& pages, QPrinter& printer) {
    printer.setFullPage(true); // the pages carry their own margins
    return pages.Paint(printer);
}

namespace {

// The route's pages and a printer of their paper; the printer is null when nothing was laid out.
std::pair<std::unique_ptr<clsPdfDialect>, std::unique_ptr<QPrinter>>
PagesAndPrinter(const clsReportRoute& route) {
    auto pages = LayOut(route);
    if (!pages)
        return {};
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout(pages->PageLayout());
    printer->setDocName(route.FilterText.isEmpty() ? ProgramTitle() : route.FilterText);
    return {std::move(pages), std::move(printer)};
}

void CouldNotPrint() {
    ShowMessage(QStringLiteral("The report could not be printed. Check the printer and try again."),
                Msg::OKOnly | Msg::Exclamation, ProgramTitle());
}

} // namespace

void Preview(QWidget* parent, const clsReportRoute& route) {
    const auto laid = PagesAndPrinter(route);
    if (!laid.second)
        return;
    const clsPdfDialect& pages = *laid.first;
    QPrintPreviewDialog dialog(laid.second.get(), parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&pages](QPrinter* device) { PrintPages(pages, *device); });
    dialog.exec();
}

void Print(QWidget* parent, const clsReportRoute& route) {
    const auto laid = PagesAndPrinter(route);
    if (!laid.second)
        return;
    QPrintDialog dialog(laid.second.get(), parent);
    if (dialog.exec() == QDialog::Accepted && !PrintPages(*laid.first, *laid.second))
        CouldNotPrint();
}

void ShowPicture(const clsReportRoute& route) {
    if (FileExists(route.PictureFile))
        gShell().OpenDocument(route.PictureFile);
    else
        ShowMessage(route.MissingPictureMessage, Msg::OKOnly, ProgramTitle());
}

} // namespace ReportDialogs

namespace ReportIcons {

QIcon Icon(const QString& name) {
    static const bool loaded = (InitReportResources(), true);
    Q_UNUSED(loaded);
    return QIcon(QStringLiteral(":/ui/reports/") + name + QStringLiteral(".svg"));
}

QIcon SectionIcon(int sectionKey) {
    return Icon(QStringLiteral("section") + QString::number(sectionKey));
}

} // namespace ReportIcons
