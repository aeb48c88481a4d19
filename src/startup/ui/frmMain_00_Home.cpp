#include "startup/ui/frmMain_00_Home.h"

#include "core/FilterCode.h"
#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"
#include "platform/clsShell.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/frmFeatureTour.h"
#include "shell/frmForums.h"
#include "shell/frmScreenResolution.h"
#include "shell/mdiMain.h"
#include "shell/modPages.h"

#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const char* const kStyle = R"(
#frmMain_00_Home { background: #faf7f8; }
#frmMain_00_Home QScrollArea, #fraContent { background: transparent; border: none; }
#lblGreeting { font-family: "DejaVu Serif", serif; font-size: 18pt; color: #3b2f36; }
#lblDate { color: #6d5f67; font-size: 10.5pt; }
#lblTime { color: #3b2f36; font-size: 16pt; font-weight: 600; }
QWidget[role="card"] { background: white; border: 1px solid #eadfe5; border-radius: 10px; }
QWidget[role="card"]:hover { border: 1px solid #d3b4c4; }
QLabel[role="main"] { color: #2e2a33; font-size: 13pt; font-weight: 600; }
QLabel[role="sub"] { color: #7d6f77; font-size: 9.5pt; }
QLabel[role="negative"] { color: #c0392b; font-size: 9.5pt; font-weight: 600; }
QLabel[role="section"] { color: #5b4a54; font-size: 10pt; font-weight: 600; }
#fraMore { background: white; border: 1px solid #eadfe5; border-radius: 10px; }
)";

// The counted rows are the pages 1 (Contacts) to 10 (Notebook).
constexpr int kFirstCard = 1;
constexpr int kLastCard = 10;

QLabel* Label(const char* role, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setProperty("role", role);
    return label;
}

QString Greeting(const QTime& time) {
    if (time.hour() < 12)
        return QStringLiteral("Good morning");
    if (time.hour() < 18)
        return QStringLiteral("Good afternoon");
    return QStringLiteral("Good evening");
}

} // namespace

QString frmMain_00_Home::Counted(long number, const QString& noun) {
    return QString::number(number) + QLatin1Char(' ') + noun + (number == 1 ? QString() : QStringLiteral("s"));
}

frmMain_00_Home::frmMain_00_Home(QWidget* parent) : usrPage(parent) {
    setObjectName(QStringLiteral("frmMain_00_Home"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(kStyle));

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    outer->addWidget(scroll);
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("fraContent"));
    scroll->setWidget(content);

    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(16);
    layout->addWidget(BuildHeading());
    mCardGrid = new QGridLayout;
    mCardGrid->setHorizontalSpacing(14);
    mCardGrid->setVerticalSpacing(14);
    for (int index = kFirstCard; index <= kLastCard; ++index)
        mCards << BuildCard(index);
    layout->addLayout(mCardGrid);
    layout->addWidget(BuildLinks());
    layout->addStretch(1);
    ArrangeCards();
    RecordIO::Attempt([this] { FillCounts(); });

    timer = new QTimer(this);
    timer->setObjectName(QStringLiteral("timer"));
    timer->setInterval(1000);
    connect(timer, &QTimer::timeout, this, &frmMain_00_Home::UpdateClock);
    timer->start();
    UpdateClock();
}

QWidget* frmMain_00_Home::BuildHeading() {
    auto* heading = new QWidget;
    auto* row = new QHBoxLayout(heading);
    row->setContentsMargins(0, 0, 0, 0);
    auto* greeting = new QLabel(Greeting(Now().time()) + QStringLiteral(", ") +
                                    gBride().FIRST_NM + QStringLiteral(" & ") + gGroom().FIRST_NM,
                                heading);
    greeting->setObjectName(QStringLiteral("lblGreeting"));
    greeting->setWordWrap(true);
    row->addWidget(greeting, 1, Qt::AlignBottom);
    auto* clock = new QVBoxLayout;
    clock->setSpacing(0);
    lblTime = new QLabel(heading);
    lblTime->setObjectName(QStringLiteral("lblTime"));
    lblTime->setAlignment(Qt::AlignRight);
    lblDate = new QLabel(heading);
    lblDate->setObjectName(QStringLiteral("lblDate"));
    lblDate->setAlignment(Qt::AlignRight);
    clock->addWidget(lblTime);
    clock->addWidget(lblDate);
    row->addLayout(clock);
    return heading;
}

QWidget* frmMain_00_Home::BuildCard(int index) {
    auto* card = new QWidget;
    card->setObjectName(QStringLiteral("fraGM_") + QString::number(index));
    card->setProperty("role", "card");
    card->setAttribute(Qt::WA_StyledBackground);
    card->setMinimumWidth(170);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(4);

    auto* top = new QHBoxLayout;
    top->setSpacing(8);
    auto* icon = new QLabel(card);
    icon->setPixmap(mdiMain::ShellIcon(modPages::IconName(index)).pixmap(QSize(22, 22), devicePixelRatioF()));
    top->addWidget(icon);
    usrHyperlink* link = PageLink(QStringLiteral("linkGM_") + QString::number(index), modPages::Caption(index),
                                  QString(), index);
    link->setFontBold(true);
    link->setFontSize(11);
    top->addWidget(link);
    top->addStretch(1);
    layout->addLayout(top);
    layout->addSpacing(4);
    linkGM.insert(index, link);

    QLabel* main = Label("main", card);
    main->setWordWrap(true);
    main->setObjectName(index == 7 ? QStringLiteral("lblBudget") : QStringLiteral("lblGM_") + QString::number(index));
    layout->addWidget(main);
    lblGM.insert(index, main);
    if (index == 7) {
        lblBudget = main;
        auto* estimated = Label("sub", card);
        estimated->setText(QStringLiteral("estimated"));
        layout->addWidget(estimated);
    }
    QLabel* sub = Label("sub", card);
    sub->setObjectName(QStringLiteral("lblGMSub_") + QString::number(index));
    layout->addWidget(sub);
    lblGMSub.insert(index, sub);
    if (index == 7) {
        lblBudgetPlusMinus = Label("sub", card);
        lblBudgetPlusMinus->setObjectName(QStringLiteral("lblBudgetPlusMinus"));
        layout->addWidget(lblBudgetPlusMinus);
    }
    layout->addStretch(1);
    return card;
}

usrHyperlink* frmMain_00_Home::Link(const QString& name, const QString& caption, const QString& icon, bool available) {
    auto* link = new usrHyperlink(caption);
    link->setObjectName(name);
    if (!icon.isEmpty())
        link->setPicture(mdiMain::ShellIcon(icon));
    link->setEnabled(available);
    link->setToolTip(available ? caption : modPages::NotAvailableText());
    return link;
}

usrHyperlink* frmMain_00_Home::PageLink(const QString& name, const QString& caption, const QString& icon, int index) {
    usrHyperlink* link = Link(name, caption, icon, modPages::IsAvailable(index));
    connect(link, &usrHyperlink::Click, this, [this, index] { emit ShowForm(index); });
    return link;
}

usrHyperlink* frmMain_00_Home::SubPageLink(const QString& name, const QString& caption, const QString& icon,
                                           const QString& form) {
    usrHyperlink* link = Link(name, caption, icon, modPages::HasSubPage(form));
    connect(link, &usrHyperlink::Click, this, [this, form] { emit ShowSubPage(modPages::kAttendees, form); });
    return link;
}

usrHyperlink* frmMain_00_Home::DialogLink(const QString& name, const QString& caption, const QString& icon,
                                          const QString& form) {
    usrHyperlink* link = Link(name, caption, icon, modPages::HasDialog(form));
    connect(link, &usrHyperlink::Click, this, [this, form] { modPages::OpenDialog(form, window()); });
    return link;
}

QWidget* frmMain_00_Home::BuildLinks() {
    auto* box = new QWidget;
    box->setObjectName(QStringLiteral("fraMore"));
    box->setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(18, 12, 18, 14);
    layout->setSpacing(10);
    auto* caption = Label("section", box);
    caption->setText(QStringLiteral("More"));
    layout->addWidget(caption);
    usrHyperlink* tour = Link(QStringLiteral("linkTour"), QStringLiteral("Feature Tour"), QStringLiteral("tour"), true);
    connect(tour, &usrHyperlink::Click, this, [] { gShell().OpenDocument(gApp().FeatureTourURL()); });
    mMoreLinks = {
        PageLink(QStringLiteral("linkEvents"), QStringLiteral("Events"), QStringLiteral("events"), 11),
        SubPageLink(QStringLiteral("linkTables"), QStringLiteral("Tables"), QStringLiteral("tables"),
                    modPages::TablesSubPage()),
        SubPageLink(QStringLiteral("linkHotels"), QStringLiteral("Hotels"), QStringLiteral("hotels"),
                    modPages::HotelsSubPage()),
        SubPageLink(QStringLiteral("linkFlights"), QStringLiteral("Flights"), QStringLiteral("flights"),
                    modPages::FlightsSubPage()),
        SubPageLink(QStringLiteral("linkTentcards"), QStringLiteral("Tent Cards"), QStringLiteral("tentcards"),
                    modPages::TentcardsSubPage()),
        PageLink(QStringLiteral("linkWidgets"), QStringLiteral("Wedding Widgets"), QStringLiteral("widgets"), 12),
        DialogLink(QStringLiteral("linkReports"), QStringLiteral("Reports"), QStringLiteral("reports"),
                   QStringLiteral("frmReports")),
        PageLink(QStringLiteral("linkOptions"), QStringLiteral("Options"), QStringLiteral("options"), modPages::kOptions),
        DialogLink(QStringLiteral("linkBackup"), QStringLiteral("Backup"), QStringLiteral("backup"),
                   QStringLiteral("frmBackup")),
        tour,
    };
    mMoreGrid = new QGridLayout;
    mMoreGrid->setHorizontalSpacing(28);
    mMoreGrid->setVerticalSpacing(10);
    layout->addLayout(mMoreGrid);
    return box;
}

// ---- Counts ----------------------------------------------------------------------------------------

void frmMain_00_Home::SetCard(int index, const QString& main, const QString& sub) {
    lblGM[index]->setText(main);
    lblGMSub[index]->setText(sub);
    lblGMSub[index]->setVisible(!sub.isEmpty());
}

void frmMain_00_Home::FillCounts() {
    const clsApp& app = gApp();
    SetCard(1,
            QString::number(app.TotalContacts(ContactFilter::AllContacts, QString(), true)) +
                QStringLiteral(" contacts"),
            QString::number(app.TotalContacts(ContactFilter::Invited)) + QStringLiteral(" invited"));
    SetCard(2, QString::number(app.TotalInvitations(InviteFilter::Sent)) + QStringLiteral(" sent"),
            QString::number(app.TotalInvitations(InviteFilter::Unsent)) + QStringLiteral(" unsent"));
    SetCard(3, QString::number(app.TotalInvitations(InviteFilter::Received)) + QStringLiteral(" received"),
            QString::number(app.TotalInvitations(InviteFilter::NoReply)) + QStringLiteral(" no reply"));
    const long coming = app.TotalContacts(ContactFilter::Attending);
    SetCard(4, QString::number(coming) + QStringLiteral(" contacts ") + (coming == 1 ? QStringLiteral("is") : QStringLiteral("are")) +
                   QStringLiteral(" coming"),
            QString());
    SetCard(5, QString::number(app.TotalGifts(1)) + QStringLiteral(" Thank Yous sent"),
            QString::number(app.TotalGifts(2)) + QStringLiteral(" to write"));
    SetCard(6, QString::number(app.TotalTasks(1)) + QStringLiteral(" open tasks"),
            QString::number(app.TotalTasks(2)) + QStringLiteral(" completed tasks"));

    const clsMoney estimated = clsBUDGET_CATEGORY_DICT::TotalSumEstimates();
    const clsMoney actual = clsBUDGET_CATEGORY_DICT::TotalSumActual();
    SetCard(7, estimated.Text(), actual.Text() + QStringLiteral(" actual"));
    lblBudgetPlusMinus->setText(QStringLiteral("+/-  ") + (estimated - actual).Text());
    lblBudgetPlusMinus->setProperty("role", (estimated - actual).IsNegative() ? "negative" : "sub");
    lblBudgetPlusMinus->style()->unpolish(lblBudgetPlusMinus);
    lblBudgetPlusMinus->style()->polish(lblBudgetPlusMinus);

    SetCard(8, Counted(app.TotalVendors(), QStringLiteral("vendor")), QString());
    SetCard(9, Counted(app.TotalTimelineEvents(), QStringLiteral("timeline")) + QStringLiteral(" begun"),
            QString::number(app.TotalTimelineEntries()) + QStringLiteral(" total entries"));
    SetCard(10, Counted(app.TotalNotes(), QStringLiteral("note")), QString());
}

QString frmMain_00_Home::MainText(int index) const { return lblGM.contains(index) ? lblGM[index]->text() : QString(); }
QString frmMain_00_Home::SubText(int index) const { return lblGMSub.contains(index) ? lblGMSub[index]->text() : QString(); }
QString frmMain_00_Home::BudgetText() const { return lblBudget->text(); }
QString frmMain_00_Home::BudgetActualText() const { return lblGMSub[7]->text(); }
QString frmMain_00_Home::BudgetPlusMinusText() const { return lblBudgetPlusMinus->text(); }

void frmMain_00_Home::UpdateClock() {
    const QDateTime now = Now();
    lblDate->setText(QLocale(QLocale::English, QLocale::UnitedStates).toString(now.date(), QStringLiteral("MMM dd, yyyy")));
    lblTime->setText(FormatDateTime(now, TimeFormat()).trimmed());
}

// ---- Layout and events -------------------------------------------------------------------------------

// The cards and the links take as many columns as the width allows.
void frmMain_00_Home::ArrangeCards() {
    const int columns = width() >= 1180 ? 5 : width() >= 720 ? 3 : width() >= 470 ? 2 : 1;
    if (columns == mColumns)
        return;
    mColumns = columns;
    for (QWidget* card : mCards)
        mCardGrid->removeWidget(card);
    for (int i = 0; i < mCards.size(); ++i)
        mCardGrid->addWidget(mCards[i], i / columns, i % columns);
    for (int c = 0; c < 5; ++c)
        mCardGrid->setColumnStretch(c, c < columns ? 1 : 0);

    const int linkColumns = columns == 5 ? 6 : columns == 3 ? 4 : 2;
    for (QWidget* link : mMoreLinks)
        mMoreGrid->removeWidget(link);
    for (int i = 0; i < mMoreLinks.size(); ++i)
        mMoreGrid->addWidget(mMoreLinks[i], i / linkColumns, i % linkColumns, Qt::AlignLeft);
    for (int c = 0; c <= 6; ++c)
        mMoreGrid->setColumnStretch(c, c == linkColumns ? 1 : 0);
}

void frmMain_00_Home::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ArrangeCards();
}

void frmMain_00_Home::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (mShown)
        return;
    mShown = true;
    emit Breadcrumb(QString());
    emit EnableToolbar(clsApp::CoreInformationGathered(gBride().FIRST_NM, gBride().LAST_NM, gGroom().FIRST_NM,
                                                       gGroom().LAST_NM, gWeddingEvent().EVENT_DT));
    // The notices come up over the page once it stands.
    QTimer::singleShot(0, this, &frmMain_00_Home::ShowNotices);
}

// ---- Notices -----------------------------------------------------------------------------------------

QDialog* frmMain_00_Home::TakeNotice(QWidget* owner) {
    static bool screenHintShown = false;
    const QScreen* screen = owner->screen();
    if (screen && !screenHintShown &&
        clsApp::Screen_800_x_600(screen->geometry().width(), screen->geometry().height())) {
        screenHintShown = true;
        return new frmScreenResolution(owner);
    }
    clsApp& app = gApp();
    if (!app.ShownFeatureTour()) {
        app.SetShownFeatureTour(true);
        return new frmFeatureTour(owner);
    }
    if (!app.ShownForums()) {
        app.SetShownForums(true);
        return new frmForums(owner);
    }
    return nullptr;
}

// One notice at a time, none of them modal: the page stays usable behind it. The screen hint comes once a
// run, the tour's offer and then the forums' invitation once each on their first visits.
void frmMain_00_Home::ShowNotices() {
    QDialog* notice = TakeNotice(window());
    if (!notice)
        return;
    notice->setAttribute(Qt::WA_DeleteOnClose);
    notice->setModal(false);
    notice->show();
}
