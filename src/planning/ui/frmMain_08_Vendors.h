#pragma once

#include "planning/clsVENDOR.h"
#include "shell/usrListPage.h"

class QMenu;

// The couple's suppliers, grouped by category: name, address, contact, numbers, e-mail and web site, a
// paperclip on those with assigned files, the notes under each row. The actions write to a vendor, visit
// its site or map it; a right click also lists the vendor's files to open.
class frmMain_08_Vendors : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_08_Vendors(QWidget* parent = nullptr);

    enum ActionIndex : int {
        AddVendor = 0,
        EditVendor,
        DeleteVendor,
        EmailVendor,
        VisitWebSite,
        MapLocation,
        PrintReports,
        OpenReportsFolder
    };
    enum Column : int {
        VENDOR_ICON = 0,
        ICO_PAPERCLIP,
        VENDOR,
        VENDOR_CATEGORY,
        ADDRESS,
        CONTACT,
        PHONE,
        FAX,
        EMAIL,
        WEB_SITE,
        FILE_PATH_TX,
        ColumnCount
    };
    static constexpr int AllVendors = 0;

public slots:
    void mfrmVendor_Added(const QString& vendorId);
    void mfrmVendor_Updated(const QString& vendorId);

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildActions();
    void BuildMenu();
    const clsVENDOR* SelectedVendor() const;
    void OpenEditor(const QString& vendorId);
    void DeleteSelected();

    QMenu* mnuAssignedFiles = nullptr;
};
