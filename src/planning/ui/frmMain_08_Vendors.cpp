#include "planning/ui/frmMain_08_Vendors.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "planning/ui/frmVendor.h"
#include "planning/ui/usrAssignedFiles.h"
#include "platform/clsShell.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QFileInfo>
#include <QMenu>
#include <QPainter>

namespace {

using Column = frmMain_08_Vendors::Column;
enum Image : int { NoImage = 0, VendorImage, PaperclipImage };

// A shop front with its awning.
QIcon VendorIcon() {
    return ControlIcons::Drawn(
        [](QPainter& painter, const QRectF& r, const QColor& color) {
            const qreal s = r.width();
            painter.setPen(QPen(color.darker(140), s * 0.06));
            painter.setBrush(QColor(245, 240, 230));
            painter.drawRect(QRectF(r.left() + s * 0.15, r.top() + s * 0.4, s * 0.7, s * 0.45));
            painter.setBrush(color);
            painter.drawRect(QRectF(r.left() + s * 0.1, r.top() + s * 0.2, s * 0.8, s * 0.2));
        },
        QColor(70, 140, 120));
}

QIcon PaperclipIcon() {
    return ControlIcons::Drawn(
        [](QPainter& painter, const QRectF& r, const QColor& color) {
            const qreal s = r.width();
            painter.setPen(QPen(color, s * 0.08, Qt::SolidLine, Qt::RoundCap));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(QRectF(r.left() + s * 0.35, r.top() + s * 0.1, s * 0.3, s * 0.8),
                                    s * 0.15, s * 0.15);
            painter.drawLine(QPointF(r.center().x(), r.top() + s * 0.3),
                             QPointF(r.center().x(), r.bottom() - s * 0.2));
        },
        QColor(90, 90, 90));
}

QList<clsGridColumn> VendorColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("VENDOR_ICON"), QString(), 24).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("ICO_PAPERCLIP"), QString(), 24).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("VENDOR"), QStringLiteral("Vendor"), 200).StoreWidth(),
        clsGridColumn(QStringLiteral("VENDOR_CATEGORY"), QString(), 0).NeverShown(),
        clsGridColumn(QStringLiteral("ADDRESS"), QStringLiteral("Address"), 200).StoreWidth(),
        clsGridColumn(QStringLiteral("CONTACT"), QStringLiteral("Contact"), 140).StoreWidth(),
        clsGridColumn(QStringLiteral("PHONE"), QStringLiteral("Phone"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("FAX"), QStringLiteral("Fax"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("EMAIL"), QStringLiteral("E-mail"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("WEB_SITE"), QStringLiteral("Web Site"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("FILE_PATH_TX"), QString(), 0).NeverShown(),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

clsGridCells& WriteRow(clsGridCells& cells, const clsVENDOR& vendor) {
    return cells.Icon(Column::VENDOR_ICON, VendorImage)
        .Icon(Column::ICO_PAPERCLIP, vendor.FilePaths().isEmpty() ? NoImage : PaperclipImage)
        .Set(Column::VENDOR, vendor.VENDOR_NM)
        .Set(Column::VENDOR_CATEGORY, vendor.VENDOR_CATEGORY_TX)
        .Set(Column::ADDRESS, vendor.ADDRESS_TX_NO_CRLF())
        .Set(Column::CONTACT, vendor.CONTACT_NM)
        .Set(Column::PHONE, vendor.PHONE_TX)
        .Set(Column::FAX, vendor.FAX_TX)
        .Set(Column::EMAIL, vendor.EMAIL_TX)
        .Set(Column::WEB_SITE, vendor.WEB_SITE_TX)
        .Set(Column::FILE_PATH_TX, vendor.FILE_PATH_TX)
        .Notes(vendor.NOTES_TX)
        .Keep(vendor);
}

} // namespace

frmMain_08_Vendors::frmMain_08_Vendors(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_08_Vendors"), parent) {
    SetRecordNoun(QStringLiteral("vendor"));
    SetEmptyText(QStringLiteral("No vendors yet. Click \"Add new vendor\" to enter the first one."),
                 QStringLiteral("No vendors match."));
    SetFilterEntries({{AllVendors, QStringLiteral("All Vendors")}});
    Grid()->Model()->SetImages({QIcon(), VendorIcon(), PaperclipIcon()});
    SetColumns(VendorColumns());
    BuildActions();
    BuildMenu();
    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString()); });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
}

void frmMain_08_Vendors::BuildActions() {
    AddAction(AddVendor, QStringLiteral("Add new vendor"), [this] { OpenEditor(QString()); });
    AddAction(EditVendor, QStringLiteral("Edit vendor"), [this] {
        if (const clsVENDOR* vendor = SelectedVendor())
            OpenEditor(vendor->VENDOR_ID);
    });
    AddAction(DeleteVendor, QStringLiteral("Delete vendor"), [this] { DeleteSelected(); });
    AddAction(EmailVendor, QStringLiteral("E-mail vendor"), [this] {
        if (const clsVENDOR* vendor = SelectedVendor())
            gShell().OpenDocument(QStringLiteral("mailto:") + vendor->EMAIL_TX);
    });
    AddAction(VisitWebSite, QStringLiteral("Visit web site"), [this] {
        if (const clsVENDOR* vendor = SelectedVendor())
            gShell().OpenDocument(vendor->WEB_SITE_TX);
    });
    AddAction(MapLocation, QStringLiteral("Map location"), [this] {
        if (const clsVENDOR* vendor = SelectedVendor())
            vendor->MapIt();
    });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Vendors, AllVendors); });
    AddReportsFolderAction(OpenReportsFolder);
}

// The popup: the actions, the vendor's files to open, and the notes on or off.
void frmMain_08_Vendors::BuildMenu() {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mPopVendors"));
    AddActionItems(menu, {AddVendor, EditVendor, DeleteVendor, EmailVendor, VisitWebSite, MapLocation});
    mnuAssignedFiles = menu->addMenu(QStringLiteral("Assigned Files"));
    mnuAssignedFiles->setObjectName(QStringLiteral("mnuAssignedFiles"));
    connect(mnuAssignedFiles, &QMenu::aboutToShow, this, [this] {
        mnuAssignedFiles->clear();
        const clsVENDOR* vendor = SelectedVendor();
        for (const QString& path : vendor ? vendor->FilePaths() : QStringList())
            mnuAssignedFiles
                ->addAction(QFileInfo(path).fileName(), this,
                            [path] { usrAssignedFiles::OpenAttachedFile(path); })
                ->setToolTip(path);
    });
    ShowNotesAsRowText(menu);
    SetRowMenu(menu);
}

void frmMain_08_Vendors::showEvent(QShowEvent* event) {
    usrListPage::showEvent(event);
    emit Breadcrumb(QStringLiteral("Vendors"));
}

long frmMain_08_Vendors::CountOf(int) const {
    return gApp().TotalVendors();
}

int frmMain_08_Vendors::FillRows(clsGridFill& fill, int) {
    QList<clsVENDOR> vendors = clsVENDOR().OpenRecords();
    for (clsVENDOR& vendor : vendors)
        WriteRow(fill.Group(vendor.VENDOR_CATEGORY_TX).Row(vendor.VENDOR_ID.toLongLong()), vendor);
    return int(vendors.size());
}

void frmMain_08_Vendors::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

const clsVENDOR* frmMain_08_Vendors::SelectedVendor() const {
    const QList<qint64> keys = SelectedKeys();
    return keys.size() == 1 ? Grid()->Model()->RecordAt<clsVENDOR>(RowOfKey(keys.first())) : nullptr;
}

void frmMain_08_Vendors::UpdateActions() {
    const clsVENDOR* vendor = SelectedVendor();
    ActionLink(EditVendor)->setEnabled(vendor != nullptr);
    ActionLink(DeleteVendor)->setEnabled(vendor != nullptr);
    ActionLink(EmailVendor)->setEnabled(vendor != nullptr && vendor->EMAIL_TX.contains(QLatin1Char('@')));
    ActionLink(VisitWebSite)->setEnabled(vendor != nullptr && !vendor->WEB_SITE_TX.isEmpty());
    ActionLink(MapLocation)->setEnabled(vendor != nullptr && !vendor->ADDRESS_TX.isEmpty());
}

void frmMain_08_Vendors::DeleteSelected() {
    const clsVENDOR* vendor = SelectedVendor();
    if (vendor == nullptr ||
        ShowMessage(QStringLiteral("Delete '") + vendor->VENDOR_NM + QStringLiteral("'?"),
                    Msg::YesNo | Msg::Question, QStringLiteral("Delete")) != Msg::Yes)
        return;
    const QString id = vendor->VENDOR_ID;
    if (RecordIO::Attempt([&id] { clsVENDOR().Delete(id); }))
        Reload();
}

void frmMain_08_Vendors::OpenEditor(const QString& vendorId) {
    frmVendor editor(vendorId, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_08_Vendors::mfrmVendor_Added);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_08_Vendors::mfrmVendor_Updated);
    editor.exec();
}

void frmMain_08_Vendors::mfrmVendor_Added(const QString& vendorId) {
    Reload();
    GridSelectByKey(Grid(), vendorId.toLongLong());
}

void frmMain_08_Vendors::mfrmVendor_Updated(const QString& vendorId) {
    mfrmVendor_Added(vendorId);
}
