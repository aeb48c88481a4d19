#include "startup/ui/frmMain_00_Welcome.h"

#include "core/RecordIO.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"
#include "shell/controls/usrNumberBox.h"
#include "shell/mdiMain.h"
#include "shell/modPages.h"
#include "startup/modWedding.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTableWidget>
#include <QTextCharFormat>
#include <QTimeEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const char* const kStyle = R"(
#frmMain_00_Welcome { background: #faf7f8; }
#fraCard { background: white; border: 1px solid #eadfe5; border-radius: 12px; }
#lblTitle { font-family: "DejaVu Serif", serif; font-size: 20pt; color: #3b2f36; }
#lblLead { color: #6d5f67; font-size: 10.5pt; }
QLabel[role="step"] { color: #a898a1; font-size: 9.5pt; padding: 4px 10px; border-radius: 11px; }
QLabel[role="step"][current="true"] { color: white; background: #8a3c63; }
QLabel[role="field"] { color: #3b2f36; font-weight: 600; }
QLabel[role="parts"] { color: #8a7d85; font-size: 9pt; }
QLabel[role="required"] { color: #b5476b; font-size: 9pt; }
QLineEdit { padding: 5px 8px; border: 1px solid #d8c9d1; border-radius: 6px; background: white;
                            font-size: 11pt; }
QLineEdit:focus { border: 1px solid #8a3c63; }
QTimeEdit { font-size: 11pt; min-height: 30px; }
#qt_calendar_navigationbar { background: #8a3c63; }
#qt_calendar_prevmonth { qproperty-icon: url(:/shell/arrow_left.svg); }
#qt_calendar_nextmonth { qproperty-icon: url(:/shell/arrow_right.svg); }
#qt_calendar_monthbutton, #qt_calendar_yearbutton { color: white; font-weight: 600; }
QToolButton[role="icon"] { border: 2px solid transparent; border-radius: 22px; padding: 1px; }
QToolButton[role="icon"]:checked { border: 2px solid #8a3c63; }
QToolButton[role="icon"]:focus { border: 2px dotted #8a3c63; }
#imgContinue { background: #8a3c63; color: white; border: none; border-radius: 6px; padding: 8px 22px;
               font-size: 10.5pt; font-weight: 600; }
#imgContinue:hover { background: #9d4a73; }
#imgContinue:focus { background: #9d4a73; outline: none; }
#imgContinue:disabled { background: #d9ccd3; color: #f7f2f5; }
#imgBack { background: transparent; color: #8a3c63; border: 1px solid #d8c9d1; border-radius: 6px; padding: 8px 18px;
           font-size: 10.5pt; }
#grid { border: 1px solid #eadfe5; border-radius: 6px; gridline-color: #f1e9ed; font-size: 10pt; }
#grid QHeaderView::section { background: #f6f0f3; border: none; border-bottom: 1px solid #eadfe5; padding: 5px 8px;
                             color: #5b4a54; font-weight: 600; }
)";

QLabel* Label(const QString& text, const char* role, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setProperty("role", role);
    return label;
}

QDate SuggestedDay() {
    QDate day = Now().date().addYears(1);
    while (day.dayOfWeek() != Qt::Saturday)
        day = day.addDays(1);
    return day;
}

// "First: Emily  ·  Middle: Rose  ·  Last: Carter": what the parser made of a name.
QString PartsText(const clsCONTACT& c) {
    QStringList parts;
    auto add = [&parts](const char* what, const QString& value) {
        if (!value.isEmpty())
            parts << QLatin1String(what) + QStringLiteral(": ") + value;
    };
    add("Title", c.TITLE_TX);
    add("First", c.FIRST_NM);
    add("Middle", c.MIDDLE_NM);
    add("Last", c.LAST_NM);
    add("Suffix", c.SUFFIX_TX);
    return parts.join(QStringLiteral("   \u00b7   "));
}

QString ShareText(double share) { return QString::number(share * 100.0, 'f', share * 100.0 == std::floor(share * 100.0) ? 0 : 1) + QLatin1Char('%'); }

} // namespace

const QList<frmMain_00_Welcome::CategoryShare>& frmMain_00_Welcome::DefaultShares() {
    static const QList<CategoryShare> shares = {
        {QStringLiteral("Ceremony"), 3, 0.02},      {QStringLiteral("Fashion"), 2, 0.10},
        {QStringLiteral("Flowers"), 5, 0.10},       {QStringLiteral("Hotels/Transportation"), 8, 0.05},
        {QStringLiteral("Miscellaneous"), 10, 0.04}, {QStringLiteral("Music"), 6, 0.10},
        {QStringLiteral("Photography"), 7, 0.10},   {QStringLiteral("Reception"), 4, 0.45},
        {QStringLiteral("Stationery"), 1, 0.04},
    };
    return shares;
}

frmMain_00_Welcome::frmMain_00_Welcome(QWidget* parent) : usrPage(parent) {
    setObjectName(QStringLiteral("frmMain_00_Welcome"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(kStyle));
    for (const CategoryShare& share : DefaultShares())
        mShares << share.Share;

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(24, 24, 24, 24);
    auto* card = new QWidget(this);
    card->setObjectName(QStringLiteral("fraCard"));
    card->setAttribute(Qt::WA_StyledBackground);
    card->setMaximumWidth(760);
    card->setMinimumWidth(560);
    outer->addStretch(1);
    auto* centre = new QHBoxLayout;
    centre->addStretch(1);
    centre->addWidget(card, 3);
    centre->addStretch(1);
    outer->addLayout(centre);
    outer->addStretch(1);

    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(36, 26, 36, 26);
    layout->setSpacing(14);
    auto* stepsRow = new QHBoxLayout;
    stepsRow->setSpacing(4);
    const QStringList names = {QStringLiteral("1  Names"), QStringLiteral("2  Wedding Day"), QStringLiteral("3  Budget"),
                               QStringLiteral("4  Category Estimates")};
    for (const QString& name : names) {
        QLabel* step = Label(name, "step", card);
        mStepLabels << step;
        stepsRow->addWidget(step);
    }
    stepsRow->addStretch(1);
    layout->addLayout(stepsRow);

    mSteps = new QStackedWidget(card);
    mSteps->addWidget(BuildNames());
    mSteps->addWidget(BuildDay());
    mSteps->addWidget(BuildBudget());
    mSteps->addWidget(BuildEstimates());
    layout->addWidget(mSteps, 1);

    auto* buttons = new QHBoxLayout;
    imgBack = new QPushButton(QStringLiteral("\u2039  &Back"), card);
    imgBack->setObjectName(QStringLiteral("imgBack"));
    imgBack->setCursor(Qt::PointingHandCursor);
    connect(imgBack, &QPushButton::clicked, this, &frmMain_00_Welcome::OnBack);
    imgContinue = new QPushButton(QStringLiteral("Continue  \u203a"), card);
    imgContinue->setObjectName(QStringLiteral("imgContinue"));
    imgContinue->setCursor(Qt::PointingHandCursor);
    imgContinue->setDefault(true);
    imgContinue->setAutoDefault(true);
    connect(imgContinue, &QPushButton::clicked, this, &frmMain_00_Welcome::OnContinue);
    buttons->addWidget(imgBack);
    buttons->addStretch(1);
    buttons->addWidget(imgContinue);
    layout->addLayout(buttons);

    GoTo(1);
}

// ---- Step 1: names ---------------------------------------------------------------------------------

QWidget* frmMain_00_Welcome::BuildNames() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("fraMain_1"));
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->setSpacing(10);
    auto* title = new QLabel(QStringLiteral("Welcome to Vowren"), page);
    title->setObjectName(QStringLiteral("lblTitle"));
    layout->addWidget(title);
    auto* lead = new QLabel(QStringLiteral("Four short steps and your wedding planner is ready. First, who is getting married?"), page);
    lead->setObjectName(QStringLiteral("lblLead"));
    lead->setWordWrap(true);
    layout->addWidget(lead);
    layout->addSpacing(6);
    layout->addWidget(PersonRow(true));
    layout->addWidget(PersonRow(false));
    layout->addWidget(Label(QStringLiteral("* First and last names required"), "required", page));
    layout->addStretch(1);

    if (!gBride().FIRST_NM.isEmpty() || !gBride().LAST_NM.isEmpty())
        txtBride->setText(gBride().FirstMiddleLastSuffix());
    if (!gGroom().FIRST_NM.isEmpty() || !gGroom().LAST_NM.isEmpty())
        txtGroom->setText(gGroom().FirstMiddleLastSuffix());
    ParseName(true);
    ParseName(false);
    return page;
}

QWidget* frmMain_00_Welcome::PersonRow(bool bride) {
    auto* row = new QWidget;
    auto* grid = new QGridLayout(row);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(4);
    const QString who = bride ? QStringLiteral("Bride") : QStringLiteral("Groom");

    auto* picture = new QLabel(row);
    picture->setObjectName(bride ? QStringLiteral("imgBride") : QStringLiteral("imgGroom"));
    picture->setToolTip(who + QStringLiteral(" icon"));
    picture->setFixedSize(56, 56);
    (bride ? imgBride : imgGroom) = picture;
    grid->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);

    auto* caption = Label(QStringLiteral("*  ") + (bride ? QStringLiteral("&Bride's full name") : QStringLiteral("G&room's full name")),
                          "field", row);
    grid->addWidget(caption, 0, 1);
    auto* edit = new QLineEdit(row);
    edit->setObjectName(bride ? QStringLiteral("txt_0") : QStringLiteral("txt_1"));
    edit->setPlaceholderText(bride ? QStringLiteral("e.g. Emily Rose Carter") : QStringLiteral("e.g. Daniel James Whitaker"));
    caption->setBuddy(edit);
    (bride ? txtBride : txtGroom) = edit;
    connect(edit, &QLineEdit::editingFinished, this, [this, bride] { ParseName(bride); });
    connect(edit, &QLineEdit::returnPressed, this, [this, bride] {
        if (bride)
            txtGroom->setFocus();
        else
            OnContinue();
    });
    // Continue follows the typing, so that it is ready by the time the field is left.
    connect(edit, &QLineEdit::textEdited, this, [this, bride] { ParseName(bride); });
    grid->addWidget(edit, 1, 1);

    auto* icons = new QHBoxLayout;
    icons->setSpacing(2);
    auto* group = new QButtonGroup(row);
    const QString current = bride ? mdiMain::BrideIconKey() : mdiMain::GroomIconKey();
    for (int i = 1; i <= 3; ++i) {
        auto* option = new QToolButton(row);
        const QString key = (bride ? QStringLiteral("BRIDE") : QStringLiteral("GROOM")) + QString::number(i);
        option->setObjectName((bride ? QStringLiteral("optBride_") : QStringLiteral("optGroom_")) + QString::number(i));
        option->setProperty("role", "icon");
        option->setIcon(mdiMain::BrideGroomIcon(key));
        option->setIconSize(QSize(36, 36));
        option->setCheckable(true);
        option->setChecked(key == current);
        option->setToolTip(who + QStringLiteral(" icon ") + QString::number(i));
        option->setCursor(Qt::PointingHandCursor);
        group->addButton(option, i);
        icons->addWidget(option);
    }
    connect(group, &QButtonGroup::idClicked, this, [this, bride](int id) { ChooseIcon(bride, id); });
    auto* parts = Label(QString(), "parts", row);
    parts->setObjectName(bride ? QStringLiteral("lblParts_0") : QStringLiteral("lblParts_1"));
    (bride ? lblBrideParts : lblGroomParts) = parts;
    grid->addWidget(parts, 2, 1);
    grid->addLayout(icons, 1, 2, Qt::AlignVCenter);
    grid->setColumnStretch(1, 1);
    picture->setPixmap(mdiMain::BrideGroomIcon(current).pixmap(QSize(56, 56), devicePixelRatioF()));
    return row;
}

void frmMain_00_Welcome::ParseName(bool bride) {
    QLineEdit* edit = bride ? txtBride : txtGroom;
    clsCONTACT& person = bride ? mBride : mGroom;
    person.ParseFullName(edit->text().trimmed());
    (bride ? lblBrideParts : lblGroomParts)->setText(PartsText(person));
    UpdateContinue();
}

void frmMain_00_Welcome::ChooseIcon(bool bride, int index) {
    RecordIO::Attempt([bride, index] { gVowren().QuickUpdate(bride ? 1 : 2, QString::number(index)); });
    const QString key = (bride ? QStringLiteral("BRIDE") : QStringLiteral("GROOM")) + QString::number(index);
    (bride ? imgBride : imgGroom)->setPixmap(mdiMain::BrideGroomIcon(key).pixmap(QSize(56, 56), devicePixelRatioF()));
}

// ---- Step 2: the day -------------------------------------------------------------------------------

QWidget* frmMain_00_Welcome::BuildDay() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("fraMain_2"));
    auto* layout = new QGridLayout(page);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->setHorizontalSpacing(24);
    layout->setVerticalSpacing(8);
    auto* title = new QLabel(QStringLiteral("When is the big day?"), page);
    title->setObjectName(QStringLiteral("lblTitle"));
    layout->addWidget(title, 0, 0, 1, 2);
    auto* day = Label(QStringLiteral("Wedding &Day"), "field", page);
    layout->addWidget(day, 1, 0);
    auto* time = Label(QStringLiteral("Wedding &Time"), "field", page);
    layout->addWidget(time, 1, 1);

    monthYear = new QCalendarWidget(page);
    monthYear->setObjectName(QStringLiteral("monthYear"));
    monthYear->setGridVisible(false);
    monthYear->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    monthYear->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    monthYear->setMinimumSize(330, 230);
    QTextCharFormat weekend;
    weekend.setForeground(QColor(0x8a, 0x3c, 0x63));
    monthYear->setWeekdayTextFormat(Qt::Saturday, weekend);
    monthYear->setWeekdayTextFormat(Qt::Sunday, weekend);
    day->setBuddy(monthYear);
    layout->addWidget(monthYear, 2, 0, Qt::AlignTop);

    timePicker = new QTimeEdit(page);
    timePicker->setObjectName(QStringLiteral("timePicker"));
    timePicker->setDisplayFormat(TimePickerFormat() == QLatin1String("H:mm") ? QStringLiteral("H:mm") : QStringLiteral("h:mm AP"));
    timePicker->setFixedWidth(150);
    time->setBuddy(timePicker);
    auto* right = new QVBoxLayout;
    right->setSpacing(12);
    right->addWidget(timePicker);
    lblWhen = Label(QString(), "parts", page);
    lblWhen->setObjectName(QStringLiteral("lblWhen"));
    lblWhen->setWordWrap(true);
    right->addWidget(lblWhen);
    right->addStretch(1);
    layout->addLayout(right, 2, 1);
    auto when = [this] {
        lblWhen->setText(QLocale(QLocale::English, QLocale::UnitedStates)
                             .toString(monthYear->selectedDate(), QStringLiteral("dddd, MMMM d, yyyy")) +
                         QStringLiteral("\nat ") + FormatTime(timePicker->time()));
    };
    connect(monthYear, &QCalendarWidget::selectionChanged, this, when);
    connect(timePicker, &QTimeEdit::timeChanged, this, when);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(3, 1);

    const QDateTime stored = ParseDateTimeText(gWeddingEvent().EVENT_DT);
    monthYear->setSelectedDate(stored.isValid() ? stored.date() : SuggestedDay());
    timePicker->setTime(stored.isValid() ? stored.time() : QTime(15, 0));
    when();
    return page;
}

QString frmMain_00_Welcome::WeddingDateTimeText() const {
    return FormatDate(monthYear->selectedDate()) + QLatin1Char(' ') + FormatTime(timePicker->time());
}

// ---- Step 3: the budget ----------------------------------------------------------------------------

QWidget* frmMain_00_Welcome::BuildBudget() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("fraMain_3"));
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->setSpacing(10);
    auto* title = new QLabel(QStringLiteral("What will it cost?"), page);
    title->setObjectName(QStringLiteral("lblTitle"));
    layout->addWidget(title);
    auto* lead = new QLabel(QStringLiteral("Your whole wedding budget. The next step spreads it over the budget "
                                           "categories; you can change every figure later on the Budget page."),
                            page);
    lead->setObjectName(QStringLiteral("lblLead"));
    lead->setWordWrap(true);
    layout->addWidget(lead);
    auto* caption = Label(QStringLiteral("Wedding B&udget"), "field", page);
    layout->addWidget(caption);
    usrNumber = new usrNumberBox(page);
    usrNumber->setObjectName(QStringLiteral("usrNumber"));
    usrNumber->setAllowNegation(false);
    usrNumber->setMinimumValue(0);
    usrNumber->setMaximumWidth(220);
    usrNumber->setValue(RecordIO::Read([] { return clsBUDGET_CATEGORY_DICT::TotalSumEstimates().ToDouble(); }));
    caption->setBuddy(usrNumber);
    connect(usrNumber, &usrNumberBox::Change, this, &frmMain_00_Welcome::FillEstimates);
    connect(usrNumber, &QLineEdit::returnPressed, this, &frmMain_00_Welcome::OnContinue);
    layout->addWidget(usrNumber);
    layout->addStretch(1);
    return page;
}

double frmMain_00_Welcome::Budget() const { return usrNumber->Value(); }

// ---- Step 4: the estimates -------------------------------------------------------------------------

QWidget* frmMain_00_Welcome::BuildEstimates() {
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("fraMain_4"));
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->setSpacing(10);
    auto* title = new QLabel(QStringLiteral("Category Estimates"), page);
    title->setObjectName(QStringLiteral("lblTitle"));
    layout->addWidget(title);
    auto* lead = new QLabel(QStringLiteral("A usual share of the budget for each category. Change a share to suit "
                                           "you; Finish saves the estimates and opens your planner."),
                            page);
    lead->setObjectName(QStringLiteral("lblLead"));
    lead->setWordWrap(true);
    layout->addWidget(lead);

    grid = new QTableWidget(int(DefaultShares().size()), 3, page);
    grid->setObjectName(QStringLiteral("grid"));
    grid->setHorizontalHeaderLabels({QStringLiteral("Budget Category"), QStringLiteral("%"), QStringLiteral("Estimate ")});
    grid->verticalHeader()->hide();
    grid->setShowGrid(false);
    grid->setAlternatingRowColors(true);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed);
    grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Fixed);
    grid->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Fixed);
    grid->setColumnWidth(1, 90);
    grid->setColumnWidth(2, 140);
    grid->horizontalHeaderItem(1)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->horizontalHeaderItem(2)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->verticalHeader()->setDefaultSectionSize(28);
    mFilling = true;
    for (int row = 0; row < DefaultShares().size(); ++row) {
        auto* label = new QTableWidgetItem(DefaultShares()[row].Label);
        label->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        label->setData(Qt::UserRole, DefaultShares()[row].CategoryId);
        grid->setItem(row, 0, label);
        auto* share = new QTableWidgetItem;
        share->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        share->setToolTip(QStringLiteral("Type a new share to change it"));
        grid->setItem(row, 1, share);
        auto* estimate = new QTableWidgetItem;
        estimate->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        estimate->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->setItem(row, 2, estimate);
    }
    mFilling = false;
    connect(grid, &QTableWidget::itemChanged, this, &frmMain_00_Welcome::OnShareEdited);
    grid->horizontalHeaderItem(0)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Every row shows without scrolling: fixed row and header heights add up to the grid's height.
    grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid->horizontalHeader()->setFixedHeight(32);
    grid->setMinimumHeight(32 + grid->rowCount() * grid->verticalHeader()->defaultSectionSize() +
                           2 * grid->frameWidth() + 4);
    grid->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    layout->addWidget(grid, 1);
    lblTotal = Label(QString(), "parts", page);
    lblTotal->setObjectName(QStringLiteral("lblTotal"));
    lblTotal->setAlignment(Qt::AlignRight);
    layout->addWidget(lblTotal);
    FillEstimates();
    return page;
}

double frmMain_00_Welcome::Estimate(int row) const { return Budget() * mShares.value(row); }

void frmMain_00_Welcome::FillEstimates() {
    if (!grid)
        return;
    mFilling = true;
    for (int row = 0; row < grid->rowCount(); ++row) {
        grid->item(row, 1)->setText(ShareText(mShares[row]));
        grid->item(row, 2)->setText(mdiMain::CurrencyText(Estimate(row)));
    }
    double total = 0;
    double shares = 0;
    for (int row = 0; row < grid->rowCount(); ++row) {
        total += Estimate(row);
        shares += mShares[row];
    }
    lblTotal->setText(QStringLiteral("In all: ") + ShareText(shares) + QStringLiteral(" of the budget, ") +
                      mdiMain::CurrencyText(total));
    mFilling = false;
}

void frmMain_00_Welcome::OnShareEdited(QTableWidgetItem* item) {
    if (mFilling || item->column() != 1)
        return;
    QString text = item->text();
    text.remove(QLatin1Char('%'));
    bool ok = false;
    double value = QLocale().toDouble(text.trimmed(), &ok);
    if (!ok)
        value = text.trimmed().toDouble(&ok);
    if (ok && value >= 0 && value <= 100)
        mShares[item->row()] = value / 100.0;
    FillEstimates();
}

// ---- Moving through the steps ----------------------------------------------------------------------

int frmMain_00_Welcome::Step() const { return mSteps->currentIndex() + 1; }

void frmMain_00_Welcome::GoTo(int step) {
    mSteps->setCurrentIndex(step - 1);
    for (int i = 0; i < mStepLabels.size(); ++i) {
        mStepLabels[i]->setProperty("current", i == step - 1);
        mStepLabels[i]->style()->unpolish(mStepLabels[i]);
        mStepLabels[i]->style()->polish(mStepLabels[i]);
    }
    imgBack->setVisible(step > 1);
    imgContinue->setText(step == 4 ? QStringLiteral("Fi&nish  \u203a") : QStringLiteral("&Continue  \u203a"));
    UpdateContinue();
    QWidget* first = step == 1 ? static_cast<QWidget*>(txtBride)
                   : step == 2 ? static_cast<QWidget*>(monthYear)
                   : step == 3 ? static_cast<QWidget*>(usrNumber)
                               : static_cast<QWidget*>(grid);
    first->setFocus();
    if (step == 4)
        grid->setCurrentCell(0, 1);
    if (step == 3)
        usrNumber->selectAll();
}

void frmMain_00_Welcome::UpdateContinue() {
    if (!imgContinue || !mSteps)
        return;
    const bool namesDone = !mBride.FIRST_NM.isEmpty() && !mBride.LAST_NM.isEmpty() && !mGroom.FIRST_NM.isEmpty() &&
                           !mGroom.LAST_NM.isEmpty();
    imgContinue->setEnabled(Step() != 1 || namesDone);
}

void frmMain_00_Welcome::OnBack() {
    if (Step() > 1)
        GoTo(Step() - 1);
}

void frmMain_00_Welcome::OnContinue() {
    if (Step() == 1) {
        // A name typed and not yet left still counts.
        ParseName(true);
        ParseName(false);
        if (!imgContinue->isEnabled())
            return;
    }
    if (Step() < 4) {
        GoTo(Step() + 1);
        return;
    }
    if (Finish())
        emit ShowForm(modPages::kHome);
}

// ---- Finish --------------------------------------------------------------------------------------

// The couple, the wedding day and the budget are one piece of work: all of it is kept, or none.
bool frmMain_00_Welcome::Finish() {
    const bool done = RecordIO::Attempt(
        [this] { modWedding::SaveFirstStart(mBride, mGroom, WeddingDateTimeText(), Estimates()); });
    if (done)
        emit UpdateWeddingCouple();
    return done;
}

QMap<QString, double> frmMain_00_Welcome::Estimates() const {
    QMap<QString, double> estimates;
    for (int row = 0; row < grid->rowCount(); ++row)
        estimates.insert(QString::number(DefaultShares()[row].CategoryId), Estimate(row));
    return estimates;
}
