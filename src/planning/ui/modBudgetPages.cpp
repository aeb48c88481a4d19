#include "planning/ui/modBudgetPages.h"

#include "core/RecordIO.h"
#include "planning/ui/frmBudget.h"
#include "planning/ui/frmBudgetCategory.h"
#include "planning/ui/frmGift.h"
#include "planning/ui/frmMain_05_Gifts.h"
#include "planning/ui/frmMain_07_Budget.h"
#include "planning/ui/frmMain_08_Vendors.h"
#include "planning/ui/frmVendor.h"
#include "planning/ui/modBudgetCharts.h"
#include "reports/clsRTFBudgetCategory.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

namespace {

// The first key a query gives, for the pictures of the editors over the demo wedding.
QString FirstKey(const QString& sql) {
    return RecordIO::Read([&] { return gDB().Execute(sql).Scalar(); });
}

// The vendor editor on a new vendor; the key of the vendor it added, or empty.
QString AddVendor(QWidget* parent) {
    frmVendor editor(QString(), parent);
    QString added;
    QObject::connect(&editor, &frmEditorBase::Added, &editor, [&added](const QString& key) { added = key; });
    editor.exec();
    return added;
}

void RegisterScreenshots() {
    modScreenshots::Register(QStringLiteral("frmBudget"), [] {
        return new frmBudget(
            FirstKey(QStringLiteral("SELECT BUDGET_ID FROM BUDGET WHERE VENDOR_ID IS NOT NULL "
                                    "ORDER BY BUDGET_ID LIMIT 1")),
            QString());
    });
    modScreenshots::Register(QStringLiteral("frmBudgetCategory"), [] {
        return new frmBudgetCategory(FirstKey(QStringLiteral(
            "SELECT BUDGET_CATEGORY_ID FROM BUDGET_CATEGORY_DICT ORDER BY ESTIMATE_AMOUNT_NB DESC LIMIT 1")));
    });
    modScreenshots::Register(QStringLiteral("frmGift"), [] {
        return new frmGift(FirstKey(QStringLiteral("SELECT GIFT_ID FROM GIFT WHERE INVITE_ID IS NOT NULL "
                                                   "ORDER BY GIFT_ID LIMIT 1")));
    });
    modScreenshots::Register(QStringLiteral("frmVendor"), [] {
        return new frmVendor(FirstKey(QStringLiteral("SELECT VENDOR_ID FROM VENDOR ORDER BY "
                                                     "length(coalesce(NOTES_TX, '')) DESC LIMIT 1")));
    });
    modScreenshots::Register(QStringLiteral("frmMain_07_Budget_Category"), [] {
        auto* page = new frmMain_07_Budget;
        page->resize(modScreenshots::MainWindowSize());
        page->LoadNow();
        page->SelectCategory(FirstKey(QStringLiteral("SELECT BUDGET_CATEGORY_ID FROM BUDGET GROUP BY "
                                                     "BUDGET_CATEGORY_ID ORDER BY SUM(ACTUAL_AMOUNT_NB) "
                                                     "DESC LIMIT 1")));
        return page;
    });
}

} // namespace

void RegisterBudgetPages() {
    modPages::RegisterPage(5, [](QWidget* parent) { return new frmMain_05_Gifts(parent); });
    modPages::RegisterPage(7, [](QWidget* parent) { return new frmMain_07_Budget(parent); });
    modPages::RegisterPage(8, [](QWidget* parent) { return new frmMain_08_Vendors(parent); });
    frmBudget::SetVendorAdder(&AddVendor);
    clsRTFBudgetCategory::SetChartPainter(&modBudgetCharts::BarsPng);
    RegisterScreenshots();
}
