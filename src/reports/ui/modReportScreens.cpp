#include "pdf/clsPdfDialect.h"
#include "reports/modReportRegistry.h"
#include "reports/ui/frmReportEventDates.h"
#include "reports/ui/frmReports.h"
#include "reports/ui/frmReportsCustomFilter.h"
#include "reports/ui/frmReportsFont.h"
#include "reports/ui/frmReportsSQL.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/modScreenshots.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

void RegisterReportScreens() {
    RegisterReportClasses();
    ReportDialogs::RegisterOwnDialogs();
    clsPdfDialect::Register();

    modScreenshots::Register(QStringLiteral("frmReports"), []() -> QWidget* {
        auto* form = new frmReports(nullptr);
        form->RPT_ROW = clsReportCatalogue::Attendees;
        form->FilterIndex = 98;
        form->findChild<QRadioButton*>(QStringLiteral("opt_3"))->setChecked(true); // the PDF choice
        return form;
    });
    modScreenshots::Register(QStringLiteral("frmReportsCustomFilter"), []() -> QWidget* {
        auto* form = new frmReportsCustomFilter(clsCustomFilter::Contacts, nullptr);
        for (const char* name : {"chk_1", "chk_4"})
            form->findChild<QCheckBox*>(QString::fromLatin1(name))->setChecked(true);
        return form;
    });
    modScreenshots::Register(QStringLiteral("frmReportEventDates"),
                             []() -> QWidget* { return new frmReportEventDates(nullptr); });
    modScreenshots::Register(QStringLiteral("frmReportsFont"), []() -> QWidget* {
        return new frmReportsFont(QStringLiteral("Verdana"), QStringLiteral("9"), nullptr);
    });
    // The custom reports with a query chosen, on either tab; nothing is downloaded for the picture.
    const auto customReports = [](int tab) {
        auto* form = new frmReportsSQL(nullptr, false);
        auto* grid = form->findChild<QTreeWidget*>(QStringLiteral("grid"));
        grid->setCurrentItem(grid->topLevelItem(0)->child(0));
        form->findChild<QTabWidget*>(QStringLiteral("tabs"))->setCurrentIndex(tab);
        return form;
    };
    modScreenshots::Register(QStringLiteral("frmReportsSQL"),
                             [customReports]() -> QWidget* { return customReports(0); });
    modScreenshots::Register(QStringLiteral("frmReportsSQL_SQL"),
                             [customReports]() -> QWidget* { return customReports(1); });
}
