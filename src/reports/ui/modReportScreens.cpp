#include "pdf/clsPdfDialect.h"
#include "reports/clsLabelSheet.h"
#include "reports/modReportRegistry.h"
#include "reports/ui/frmReportEventDates.h"
#include "reports/ui/frmReports.h"
#include "reports/ui/frmReportsCustomFilter.h"
#include "reports/ui/frmReportsFont.h"
#include "reports/ui/frmReportsLabels.h"
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
    // The label sheet half filled with the contacts' addresses, on either sheet.
    for (const int sheet : clsLabelSheet::Kinds()) {
        const QString name = sheet == clsLabelSheet::Avery8160 ? QStringLiteral("frmReportsLabels")
                                                               : QStringLiteral("frmReportsLabels-A4");
        modScreenshots::Register(name, [sheet]() -> QWidget* {
            clsReportRoute route;
            route.FormNumber = clsReportCatalogue::Contacts;
            auto* form = new frmReportsLabels(route, nullptr);
            form->findChild<QRadioButton*>(QStringLiteral("opt_%1").arg(sheet))->setChecked(true);
            auto* list = form->findChild<QTreeWidget*>(QStringLiteral("lvw"));
            int selected = 0;
            for (int row = 0; row < list->topLevelItemCount() && selected < 15; ++row) {
                QTreeWidgetItem* item = list->topLevelItem(row);
                if (!item->text(1).isEmpty()) {
                    item->setSelected(true);
                    ++selected;
                }
            }
            form->DropAddresses(1);
            return form;
        });
    }
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
