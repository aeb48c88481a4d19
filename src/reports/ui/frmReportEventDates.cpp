#include "reports/ui/frmReportEventDates.h"

#include "core/ShowMessage.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "reports/clsRTFCalendar.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The years offered: from three before the wedding (or this year, when earlier) to three after it.
QList<int> OfferedYears(int kept) {
    const QDate wedding = ParseDateTimeText(gWeddingEvent().EVENT_DT).date();
    const int middle = wedding.isValid() ? wedding.year() : Now().date().year();
    const int first = std::min({middle - 3, Now().date().year(), kept});
    const int last = std::max(middle + 3, kept);
    QList<int> years;
    for (int year = first; year <= last; ++year)
        years << year;
    return years;
}

QComboBox* MonthList(const QString& name, int month, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    for (int m = 1; m <= 12; ++m)
        list->addItem(QLocale(QLocale::English).standaloneMonthName(m), m);
    list->setCurrentIndex(list->findData(month));
    return list;
}

QComboBox* YearList(const QString& name, int year, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    for (int y : OfferedYears(year))
        list->addItem(QString::number(y), y);
    list->setCurrentIndex(list->findData(year));
    return list;
}

} // namespace

frmReportEventDates::frmReportEventDates(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmReportEventDates"));
    setWindowTitle(QStringLiteral("Select months to print"));
    clsCalendarMonths kept;
    kept.TakeStoredRange();
    cboFromMonth = MonthList(QStringLiteral("cboFromMonth"), kept.FromMonthNumber, this);
    cboFromYear = YearList(QStringLiteral("cboFromYear"), kept.FromYearNumber, this);
    cboToMonth = MonthList(QStringLiteral("cboToMonth"), kept.ToMonthNumber, this);
    cboToYear = YearList(QStringLiteral("cboToYear"), kept.ToYearNumber, this);

    auto* grid = new QGridLayout;
    auto* from = new QLabel(QStringLiteral("&From"), this);
    from->setBuddy(cboFromMonth);
    auto* to = new QLabel(QStringLiteral("&To"), this);
    to->setBuddy(cboToMonth);
    grid->addWidget(from, 0, 0);
    grid->addWidget(cboFromMonth, 0, 1);
    grid->addWidget(cboFromYear, 0, 2);
    grid->addWidget(to, 1, 0);
    grid->addWidget(cboToMonth, 1, 1);
    grid->addWidget(cboToYear, 1, 2);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(ok, &QPushButton::clicked, this, &frmReportEventDates::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(buttons);
}

int frmReportEventDates::FromMonthNumber() const {
    return cboFromMonth->currentData().toInt();
}
int frmReportEventDates::FromYearNumber() const {
    return cboFromYear->currentData().toInt();
}
int frmReportEventDates::ToMonthNumber() const {
    return cboToMonth->currentData().toInt();
}
int frmReportEventDates::ToYearNumber() const {
    return cboToYear->currentData().toInt();
}

clsCalendarMonths frmReportEventDates::Range() const {
    clsCalendarMonths range;
    range.FromMonthNumber = FromMonthNumber();
    range.FromYearNumber = FromYearNumber();
    range.ToMonthNumber = ToMonthNumber();
    range.ToYearNumber = ToYearNumber();
    return range;
}

void frmReportEventDates::cmdOK_Click() {
    const clsCalendarMonths range = Range();
    if (range.FromDate() > range.ToDate()) {
        ShowMessage(QStringLiteral("From Date must be equal to or before To Date."), Msg::Exclamation,
                    ProgramTitle());
        return;
    }
    range.StoreRange();
    mContinue = true;
    accept();
}
