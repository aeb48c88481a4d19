#include "shell/mdiMain.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "platform/clsShell.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/options/frmOptions.h"
#include "shell/modFormPlace.h"
#include "shell/modHelp.h"
#include "shell/modPages.h"
#include "shell/options/modBrideGroomIcons.h"
#include "shell/usrPage.h"
#include "startup/modWedding.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

static void InitShellResourceFile() { Q_INIT_RESOURCE(shell); }

namespace {

constexpr int kMinimumTwips = 6000;

const char* const kStyle = R"(
#picLonghorn { border-image: url(:/shell/header.svg) 0 0 0 0 stretch stretch; }
#picLonghorn:disabled { border-image: url(:/shell/header.svg) 0 0 0 0 stretch stretch; }
#lblWedding { color: white; font-family: "DejaVu Serif", serif; font-size: 19pt; }
#lblCountdown { color: white; background: rgba(255,255,255,0.12); border: 1px solid rgba(255,255,255,0.28);
                border-radius: 14px; padding: 5px 14px; font-size: 10.5pt; text-align: left; }
#lblCountdown:hover { background: rgba(255,255,255,0.22); }
#lblCountdown:focus { border: 1px solid white; }
#picBreadcrumb { background: #ffffff; border-bottom: 1px solid #eadfe5; }
#picBottom { background: #3f2536; }
#picBottom QToolButton { color: #f3e6ed; border: none; padding: 4px 8px;
                                                  border-radius: 4px; font-size: 9.5pt; }
#picBottom QToolButton:hover, #picBottom QToolButton:focus { background: rgba(255,255,255,0.14); }
#picBottom QToolButton::menu-indicator { image: none; }
#mPageHost { background: #faf7f8; }
)";

QString EnglishDate(const QDateTime& moment, const char* format) {
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(moment.date(), QLatin1String(format));
}

} // namespace

// ---- Shared pictures and formats -------------------------------------------------------------------

void mdiMain::InitResources() {
    static bool done = false;
    if (!done) {
        InitShellResourceFile();
        done = true;
    }
}

QIcon mdiMain::ShellIcon(const QString& name) {
    InitResources();
    return QIcon(QStringLiteral(":/shell/") + name + QStringLiteral(".svg"));
}

QIcon mdiMain::BrideGroomIcon(const QString& key) { return modBrideGroomIcons::Icon(key); }

QString mdiMain::BrideIconKey() { return modBrideGroomIcons::Key(true, modBrideGroomIcons::StoredNumber(true)); }
QString mdiMain::GroomIconKey() { return modBrideGroomIcons::Key(false, modBrideGroomIcons::StoredNumber(false)); }

QString mdiMain::CurrencyText(double amount) {
    return ::CurrencyText(amount);
}

// ---- The countdown -------------------------------------------------------------------------------

mdiMain::CountdownTexts mdiMain::Countdown(const QString& weddingDateTime, const QDateTime& now, bool showCountdown) {
    const QDateTime wedding = ParseDateTimeText(weddingDateTime);
    if (weddingDateTime.isEmpty() || !wedding.isValid())
        return {};
    long long days = 0;
    const QString duration = clsApp::TimeToWeddingText(weddingDateTime, now, &days);

    const QString until =
        QStringLiteral("until ") + (days < 15 ? EnglishDate(wedding, "MMM d, yyyy ") + FormatDateTime(wedding, TimeFormat())
                                              : EnglishDate(wedding, "MMMM d, yyyy"));
    CountdownTexts texts;
    texts.TimeToWedding = duration;
    if (clsApp::Married(weddingDateTime, now))
        texts.Caption = showCountdown ? duration + QStringLiteral("Married!") : QStringLiteral("You're Married!");
    else
        texts.Caption = showCountdown ? duration + until : EnglishDate(wedding, "MMM d, yyyy");
    return texts;
}

void mdiMain::UpdateCountdown() {
    const QString when = modWedding::WeddingDateTime();
    if (when.isEmpty()) {
        lblCountdown->setText(QString());
        lblCountdown->setVisible(false);
        imgCountdown->setVisible(false);
        return;
    }
    const CountdownTexts texts = Countdown(when, Now(), mShowCountdown);
    gApp().TimeToWedding = texts.TimeToWedding;
    lblCountdown->setText(texts.Caption.trimmed());
    lblCountdown->setVisible(!texts.Caption.isEmpty());
    imgCountdown->setVisible(!texts.Caption.isEmpty());
}

void mdiMain::OnCountdownClicked() {
    mShowCountdown = !mShowCountdown;
    UpdateCountdown();
    gApp().SetShowCountdown(mShowCountdown);
}

void mdiMain::OnTimer() { UpdateCountdown(); }

// ---- Building the frame --------------------------------------------------------------------------

mdiMain::mdiMain(QWidget* parent) : QMainWindow(parent) {
    InitResources();
    setObjectName(QStringLiteral("mdiMain"));
    setWindowTitle(QStringLiteral("Vowren"));
    setWindowIcon(ShellIcon(QStringLiteral("splash")));
    setStyleSheet(QLatin1String(kStyle));

    auto* central = new QWidget(this);
    auto* outer = new QVBoxLayout(central);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    BuildHeader(outer);

    mPageHost = new QWidget(central);
    mPageHost->setObjectName(QStringLiteral("mPageHost"));
    mPageHost->setAttribute(Qt::WA_StyledBackground);
    mPageLayout = new QVBoxLayout(mPageHost);
    mPageLayout->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(mPageHost, 1);

    BuildFooter(outer);
    setCentralWidget(central);
    BuildMenus();

    const int minimum = int(kMinimumTwips / modFormPlace::TwipsPerPixel(this));
    setMinimumSize(minimum, minimum);

    timer = new QTimer(this);
    timer->setObjectName(QStringLiteral("timer"));
    timer->setInterval(1000);
    connect(timer, &QTimer::timeout, this, &mdiMain::OnTimer);
    // A restored database is shown afresh, once the dialog that restored it has closed.
    connect(&gOptionsEvents(), &OptionsEvents::DatabaseRestored, this, [this] {
        QTimer::singleShot(0, this, [this] {
            UpdateWeddingCaption();
            UpdateCountdown();
            mShownStoredPage = false;
            ShowPage(gApp().ShowForm());
        });
    });
    Load();
    timer->start();
}

mdiMain::~mdiMain() = default;

void mdiMain::BuildHeader(QVBoxLayout* outer) {
    picLonghorn = new QWidget(this);
    picLonghorn->setObjectName(QStringLiteral("picLonghorn"));
    picLonghorn->setAttribute(Qt::WA_StyledBackground);
    picLonghorn->setFixedHeight(72);
    auto* row = new QHBoxLayout(picLonghorn);
    row->setContentsMargins(22, 8, 10, 8);
    row->setSpacing(10);

    auto* rings = new QLabel(picLonghorn);
    rings->setPixmap(ShellIcon(QStringLiteral("rings")).pixmap(QSize(34, 34), devicePixelRatioF()));
    row->addWidget(rings);
    lblWedding = new QLabel(picLonghorn);
    lblWedding->setObjectName(QStringLiteral("lblWedding"));
    // On a narrow window the caption gives way to the countdown.
    lblWedding->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(lblWedding, 1);

    imgCountdown = new QLabel(picLonghorn);
    imgCountdown->setObjectName(QStringLiteral("imgCountdown"));
    imgCountdown->setPixmap(ShellIcon(QStringLiteral("countdown")).pixmap(QSize(20, 20), devicePixelRatioF()));
    row->addWidget(imgCountdown);
    lblCountdown = new QPushButton(picLonghorn);
    lblCountdown->setObjectName(QStringLiteral("lblCountdown"));
    lblCountdown->setCursor(Qt::PointingHandCursor);
    lblCountdown->setToolTip(QStringLiteral("Click to switch between the countdown and the date"));
    connect(lblCountdown, &QPushButton::clicked, this, &mdiMain::OnCountdownClicked);
    row->addWidget(lblCountdown);
    row->addSpacing(10);
    outer->addWidget(picLonghorn);

    picBreadcrumb = new QFrame(this);
    picBreadcrumb->setObjectName(QStringLiteral("picBreadcrumb"));
    picBreadcrumb->setFixedHeight(34);
    mBreadcrumbLayout = new QHBoxLayout(picBreadcrumb);
    mBreadcrumbLayout->setContentsMargins(18, 0, 18, 0);
    mBreadcrumbLayout->setSpacing(2);
    mBreadcrumbLayout->addStretch(1);
    outer->addWidget(picBreadcrumb);
}

void mdiMain::BuildFooter(QVBoxLayout* outer) {
    picBottom = new QWidget(this);
    picBottom->setObjectName(QStringLiteral("picBottom"));
    picBottom->setAttribute(Qt::WA_StyledBackground);
    picBottom->setFixedHeight(40);
    auto* row = new QHBoxLayout(picBottom);
    row->setContentsMargins(12, 4, 12, 4);
    row->setSpacing(4);

    auto toolButton = [this](const QString& name, const QString& icon, const QString& tip) {
        auto* button = new QToolButton(picBottom);
        button->setObjectName(name);
        button->setIcon(ShellIcon(icon));
        button->setIconSize(QSize(20, 20));
        button->setToolTip(tip);
        button->setCursor(Qt::PointingHandCursor);
        button->setFocusPolicy(Qt::StrongFocus);
        return button;
    };
    imgMusicPlay = toolButton(QStringLiteral("imgMusicPlay"), QStringLiteral("play"), QStringLiteral("Play music"));
    connect(imgMusicPlay, &QToolButton::clicked, this, &mdiMain::OnPlayClicked);
    row->addWidget(imgMusicPlay);
    lblPlaylist = new QToolButton(picBottom);
    lblPlaylist->setObjectName(QStringLiteral("lblPlaylist"));
    lblPlaylist->setCursor(Qt::PointingHandCursor);
    lblPlaylist->setToolTip(QStringLiteral("Choose the playlist"));
    lblPlaylist->setFocusPolicy(Qt::StrongFocus);
    connect(lblPlaylist, &QToolButton::clicked, this, &mdiMain::OnPlaylistClicked);
    row->addWidget(lblPlaylist);
    row->addStretch(1);

    imgVowren = toolButton(QStringLiteral("imgVowren"), QStringLiteral("rings"), QStringLiteral("Vowren"));
    imgVowren->setText(QStringLiteral("Vowren"));
    imgVowren->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    imgQuill = toolButton(QStringLiteral("imgQuill"), QStringLiteral("quill"), QStringLiteral("Quill Software"));
    imgQuill->setText(QStringLiteral("Quill Software"));
    imgQuill->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    linkHelp = new usrHyperlink(QStringLiteral("Help"), picBottom);
    linkHelp->setObjectName(QStringLiteral("linkHelp"));
    linkHelp->setPicture(ShellIcon(QStringLiteral("help")));
    linkHelp->setForeColor(QColor(0xf3, 0xe6, 0xed));
    linkHelp->setToolTip(QStringLiteral("Open the Vowren help (F1)"));
    connect(linkHelp, &usrHyperlink::Click, this, &mdiMain::ShowHelp);
    row->addWidget(imgVowren);
    row->addWidget(imgQuill);
    row->addWidget(linkHelp);
    outer->addWidget(picBottom);
}

void mdiMain::BuildMenus() {
    auto action = [this](const QString& text, auto slot, const QKeySequence& keys = {}) {
        auto* a = new QAction(text, this);
        a->setShortcut(keys);
        connect(a, &QAction::triggered, this, slot);
        return a;
    };
    QAction* update = action(QStringLiteral("Check for Update..."), [this] { OpenAddress(gApp().UpdatesURL()); });
    QAction* tour = action(QStringLiteral("Feature Tour..."), [this] { OpenAddress(gApp().FeatureTourURL()); });
    QAction* options = action(QStringLiteral("Options..."), [this] { ShowPage(modPages::kOptions); },
                              QKeySequence(Qt::CTRL | Qt::Key_Comma));
    options->setObjectName(QStringLiteral("mnuOptions"));
    options->setIcon(ShellIcon(QStringLiteral("options")));
    QAction* about = action(QStringLiteral("About Vowren ") + clsApp::MajorMinor(), [this] { ShowAbout(); });
    QAction* homePage = action(QStringLiteral("Quill Software Home Page"), [this] { OpenAddress(gApp().HomePageURL()); });
    QAction* blog = action(QStringLiteral("Quill Software Blog"), [this] { OpenAddress(gApp().BlogURL()); });
    QAction* forums = action(QStringLiteral("Quill Software Forums"), [this] { ShowPage(modPages::kForums); });
    forums->setObjectName(QStringLiteral("mnuForums"));
    QAction* help = action(QStringLiteral("Vowren Help"), [this] { ShowHelp(); }, QKeySequence::HelpContents);
    help->setIcon(ShellIcon(QStringLiteral("help")));
    QAction* exit = action(QStringLiteral("E&xit"), [this] { close(); }, QKeySequence(Qt::CTRL | Qt::Key_Q));
    QAction* countdown = action(QStringLiteral("Show &Countdown"), [this] { OnCountdownClicked(); });

    mPopVowren = new QMenu(this);
    mPopVowren->setObjectName(QStringLiteral("mPopVowren"));
    mPopVowren->addActions({update, tour, options, about});
    mPopVowren->setToolTipsVisible(true);
    mPopQuill = new QMenu(this);
    mPopQuill->setObjectName(QStringLiteral("mPopQuill"));
    mPopQuill->addActions({homePage, blog, forums});
    mPopQuill->setToolTipsVisible(true);
    mPopPlaylist = new QMenu(this);
    mPopPlaylist->setObjectName(QStringLiteral("mPopPlaylist"));
    connect(imgVowren, &QToolButton::clicked, this,
            [this] { mPopVowren->popup(imgVowren->mapToGlobal(QPoint(0, -mPopVowren->sizeHint().height()))); });
    connect(imgQuill, &QToolButton::clicked, this,
            [this] { mPopQuill->popup(imgQuill->mapToGlobal(QPoint(0, -mPopQuill->sizeHint().height()))); });

    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(options);
    file->addSeparator();
    file->addAction(exit);
    mEditMenu = menuBar()->addMenu(QStringLiteral("&Edit"));
    mEditMenu->setObjectName(QStringLiteral("mnuEdit"));
    mEditMenu->menuAction()->setVisible(false);
    mGoMenu = menuBar()->addMenu(QStringLiteral("&Go"));
    mGoMenu->setObjectName(QStringLiteral("mnuGo"));
    mGoMenu->setToolTipsVisible(true);
    connect(mGoMenu, &QMenu::aboutToShow, this, &mdiMain::UpdatePageActions);
    for (int index : modPages::PageIndexes()) {
        if (index == modPages::kForums)
            continue;
        QAction* go = mGoMenu->addAction(ShellIcon(modPages::IconName(index)), modPages::Caption(index), this,
                                         [this, index] { ShowPage(index); });
        go->setObjectName(QStringLiteral("mnuGo_") + QString::number(index));
        go->setData(index);
        if (index == 0)
            go->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Home));
        else if (index <= 9)
            go->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_0 + index)));
    }
    QMenu* view = menuBar()->addMenu(QStringLiteral("&View"));
    countdown->setCheckable(true);
    countdown->setObjectName(QStringLiteral("mnuShowCountdown"));
    connect(view, &QMenu::aboutToShow, this, [this, countdown] { countdown->setChecked(mShowCountdown); });
    view->addAction(countdown);
    QMenu* helpMenu = menuBar()->addMenu(QStringLiteral("&Help"));
    helpMenu->setToolTipsVisible(true);
    helpMenu->addActions({help, tour, update});
    helpMenu->addSeparator();
    helpMenu->addActions({homePage, blog, forums});
    helpMenu->addSeparator();
    helpMenu->addAction(about);
    UpdatePageActions();
}

// Pages that are not there yet stay visible but disabled, and say so.
void mdiMain::UpdatePageActions() {
    const QList<QAction*> actions = findChildren<QAction*>();
    for (QAction* a : actions) {
        int index = -1;
        if (a->objectName().startsWith(QLatin1String("mnuGo_")))
            index = a->data().toInt();
        else if (a->objectName() == QLatin1String("mnuOptions"))
            index = modPages::kOptions;
        else if (a->objectName() == QLatin1String("mnuForums"))
            index = modPages::kForums;
        if (index < 0)
            continue;
        const bool available = modPages::IsAvailable(index);
        a->setEnabled(available);
        a->setToolTip(available ? a->text().remove(QLatin1Char('&')) : modPages::NotAvailableText());
    }
}

// ---- Load and the first page ---------------------------------------------------------------------

void mdiMain::Load() {
    SetBreadcrumb(QString(), QString());
    lblPlaylist->setText(QString());
    if (modWedding::CoreInformationGathered()) {
        UpdateWeddingCaption();
        imgMusicPlay->setVisible(true);
        RefreshPlaylist();
        RestorePosition();
        ShowPage(modPages::kHome);
        mShowCountdown = gApp().ShowCountdown();
    } else {
        setWindowState(Qt::WindowMaximized);
        imgMusicPlay->setVisible(false);
        lblPlaylist->setVisible(false);
        ShowWelcome();
    }
    OnTimer();
}

void mdiMain::ShowWelcome() {
    UnloadPage();
    usrPage* welcome = modPages::CreateWelcome(mPageHost);
    if (!welcome)
        return;
    AttachPage(welcome);
    // Leaving the Welcome steps brings the footer's playlist with it.
    disconnect(welcome, &usrPage::ShowForm, this, &mdiMain::ShowPage);
    connect(welcome, &usrPage::ShowForm, this, &mdiMain::ShowFirstPage);
    SetBreadcrumb(QString(), QStringLiteral("Welcome"));
    lblWedding->setText(QStringLiteral("Let's plan your wedding"));
    welcome->setFocus();
}

void mdiMain::RestorePosition() { modFormPlace::Restore(this, objectName()); }

void mdiMain::SavePosition() { modFormPlace::Save(this, objectName()); }

void mdiMain::closeEvent(QCloseEvent* event) {
    timer->stop();
    if (mSubPage)
        mSubPage->Leaving();
    if (mPage)
        mPage->Leaving();
    SavePosition();
    event->accept();
    QMainWindow::closeEvent(event);
}

// ---- Pages ---------------------------------------------------------------------------------------

bool mdiMain::ShowPage(int index) {
    // Nothing leads to a page that is not there: its links and menu entries are disabled.
    if (!modPages::IsAvailable(index))
        return false;
    picLonghorn->setEnabled(true);
    if (index != modPages::kOptions)
        CloseSubPage();
    if (index == gApp().ShowForm()) {
        if (mShownStoredPage)
            return true;
        mShownStoredPage = true;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (index == modPages::kOptions) {
        modPages::OpenDialog(modPages::FormName(index), this);
        UpdateCountdown();
    } else {
        gApp().SetShowForm(index);
        UnloadPage();
        // The page's name until the page tells its own levels when it shows.
        SetBreadcrumb(index == modPages::kHome ? QString() : modPages::Caption(index), QStringLiteral("Home"));
        if (index == modPages::kHome)
            lblPlaylist->setVisible(true);
        usrPage* page = modPages::CreatePage(index, mPageHost);
        if (page) {
            if (page->objectName().isEmpty())
                page->setObjectName(modPages::FormName(index));
            AttachPage(page);
        }
    }
    QGuiApplication::restoreOverrideCursor();
    return true;
}

void mdiMain::AttachPage(usrPage* page) {
    mPage = page;
    ConnectPage(page);
    mPageLayout->addWidget(page);
    page->show();
    UpdateEditMenu();
}

// The Edit menu holds what the page in front offers, and is hidden when it offers nothing.
void mdiMain::UpdateEditMenu() {
    mEditMenu->clear();
    const usrPage* page = mSubPage ? mSubPage.data() : mPage.data();
    const QList<QAction*> actions = page ? page->EditActions() : QList<QAction*>();
    mEditMenu->addActions(actions);
    mEditMenu->menuAction()->setVisible(!actions.isEmpty());
}

void mdiMain::UnloadPage() {
    if (!mPage)
        return;
    usrPage* old = mPage;
    mPage = nullptr;
    old->Leaving();
    DetachPage(old);
    UpdateEditMenu();
}

void mdiMain::DetachPage(usrPage* page) {
    mPageLayout->removeWidget(page);
    page->hide();
    page->disconnect(this);
    // The page may be the one whose signal brought us here: it goes when the event is over.
    page->deleteLater();
}

bool mdiMain::ShowSubPage(int index, const QString& formName) {
    if (!modPages::HasSubPage(formName) || !ShowPage(index) || !mPage)
        return false;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    usrPage* page = modPages::CreateSubPage(formName, mPageHost);
    if (page) {
        if (page->objectName().isEmpty())
            page->setObjectName(formName);
        mSubPage = page;
        mSubPageName = formName;
        ConnectPage(page);
        mPage->hide();
        mPageLayout->addWidget(page);
        page->show();
        UpdateEditMenu();
    }
    QGuiApplication::restoreOverrideCursor();
    return page != nullptr;
}

void mdiMain::CloseSubPage() {
    if (!mSubPage)
        return;
    usrPage* old = mSubPage;
    mSubPage = nullptr;
    old->Leaving();
    DetachPage(old);
    UpdateEditMenu();
    if (!mPage)
        return;
    SetBreadcrumb(modPages::Caption(gApp().ShowForm()), QStringLiteral("Home"));
    mPage->show();
    mPage->SubPageClosed(mSubPageName);
}

// What a page asks of the frame.
void mdiMain::ConnectPage(usrPage* page) {
    connect(page, &usrPage::ShowForm, this, &mdiMain::ShowPage);
    connect(page, &usrPage::ShowSubPage, this, &mdiMain::ShowSubPage);
    connect(page, &usrPage::Breadcrumb, this, [this](const QString& text) { SetBreadcrumb(text, QStringLiteral("Home")); });
    connect(page, &usrPage::EnableToolbar, this, &mdiMain::EnableToolbar);
    connect(page, &usrPage::UpdateWeddingCouple, this, [this] {
        UpdateWeddingCaption();
        UpdateCountdown();
    });
    connect(page, &usrPage::PlaylistCreated, this, &mdiMain::mfrmMain_12_Widgets_PlaylistCreated);
}

void mdiMain::ShowFirstPage(int index) {
    imgMusicPlay->setVisible(true);
    lblPlaylist->setVisible(true);
    RefreshPlaylist();
    ShowPage(index);
}

void mdiMain::EnableToolbar(bool enable) {
    if (enable)
        UpdateWeddingCaption();
    else
        picLonghorn->setEnabled(false);
}

// ---- Header texts and breadcrumb -----------------------------------------------------------------

void mdiMain::UpdateWeddingCaption() {
    lblWedding->setText(modWedding::WeddingCaption());
    setWindowTitle(QStringLiteral("Vowren - ") + modWedding::CoupleNames());
}

QString mdiMain::WeddingCaption() const { return lblWedding->text(); }
QString mdiMain::CountdownCaption() const { return lblCountdown->text(); }

void mdiMain::SetBreadcrumb(const QString& text, const QString& root) {
    QStringList levels = {root};
    if (!text.isEmpty())
        for (const QString& level : text.split(QLatin1Char('>')))
            levels << level.trimmed();
    while (linkBreadcrumb.size() < levels.size()) {
        const int level = int(linkBreadcrumb.size());
        if (level > 0) {
            auto* arrow = new QLabel(picBreadcrumb);
            arrow->setObjectName(QStringLiteral("imgBreadcrumb_") + QString::number(level));
            arrow->setPixmap(ShellIcon(QStringLiteral("chevron")).pixmap(QSize(14, 14), devicePixelRatioF()));
            arrow->setContentsMargins(2, 0, 2, 0);
            mBreadcrumbLayout->insertWidget(mBreadcrumbLayout->count() - 1, arrow);
            imgBreadcrumb << arrow;
        }
        auto* link = new usrHyperlink(picBreadcrumb);
        link->setObjectName(QStringLiteral("linkBreadcrumb_") + QString::number(level));
        link->setFontSize(10);
        connect(link, &usrHyperlink::Click, this, [this, level] { OnBreadcrumbClicked(level); });
        mBreadcrumbLayout->insertWidget(mBreadcrumbLayout->count() - 1, link);
        linkBreadcrumb << link;
    }
    for (int i = 0; i < linkBreadcrumb.size(); ++i) {
        const bool used = i < levels.size();
        const bool last = i == levels.size() - 1;
        linkBreadcrumb[i]->setCaption(used ? levels[i] : QString());
        linkBreadcrumb[i]->setVisible(used && !levels[i].isEmpty());
        // The level the user stands on reads as text, the ones above as links.
        linkBreadcrumb[i]->setFontBold(last);
        linkBreadcrumb[i]->setForeColor(last ? QColor(0x3b, 0x2f, 0x36) : QColor(0x8a, 0x3c, 0x63));
        if (i > 0)
            imgBreadcrumb[i - 1]->setVisible(used);
    }
}

QStringList mdiMain::BreadcrumbTexts() const {
    QStringList texts;
    for (const usrHyperlink* link : linkBreadcrumb)
        if (link->isVisibleTo(picBreadcrumb))
            texts << link->Caption();
    return texts;
}

void mdiMain::OnBreadcrumbClicked(int level) {
    if (level == 0) {
        if (linkBreadcrumb[0]->Caption().toUpper() == QLatin1String("HOME"))
            ShowPage(modPages::kHome);
        return;
    }
    if (level == 1 && mSubPage) {
        CloseSubPage();
        return;
    }
    const int page = gApp().ShowForm();
    if (level == 1 && mPage && ((page >= 1 && page <= 7) || page == 9))
        mPage->GoToTopLevel();
}

// ---- Footer --------------------------------------------------------------------------------------

void mdiMain::RefreshPlaylist() {
    const QDir folder(gApp().PlaylistPath());
    const QStringList files = folder.entryList({QStringLiteral("*.wpl")}, QDir::Files, QDir::Name);
    if (files.isEmpty()) {
        lblPlaylist->setText(QString());
        mPlaylistFile.clear();
        imgMusicPlay->setToolTip(QStringLiteral("Play music"));
        return;
    }
    if (!files.contains(QFileInfo(mPlaylistFile).fileName()))
        mPlaylistFile = folder.filePath(files.first());
    lblPlaylist->setText(QFileInfo(mPlaylistFile).fileName());
    imgMusicPlay->setToolTip(QStringLiteral("Listen to playlist"));
}

void mdiMain::mfrmMain_12_Widgets_PlaylistCreated(const QString& path, bool playNow) {
    mPlaylistFile = path;
    RefreshPlaylist();
    if (playNow)
        OnPlayClicked();
}

void mdiMain::OnPlayClicked() {
    if (!mPlaylistFile.isEmpty() && FileExists(mPlaylistFile)) {
        gShell().OpenDocument(mPlaylistFile);
        return;
    }
    if (!modPages::OpenDialog(QStringLiteral("frmAboutSongs"), this))
        ShowMessage(QStringLiteral("There is no playlist yet.\n\nMake one on the Wedding Widgets page under Songs; "
                                   "it then plays from here."),
                    Msg::OKOnly | Msg::Information, ProgramTitle());
}

void mdiMain::OnPlaylistClicked() {
    mPopPlaylist->clear();
    const QDir folder(gApp().PlaylistPath());
    const QStringList files = folder.entryList({QStringLiteral("*.wpl")}, QDir::Files, QDir::Name);
    for (const QString& name : files) {
        QAction* a = mPopPlaylist->addAction(name);
        a->setCheckable(true);
        a->setChecked(folder.filePath(name) == mPlaylistFile);
        connect(a, &QAction::triggered, this, [this, path = folder.filePath(name)] {
            mPlaylistFile = path;
            RefreshPlaylist();
        });
    }
    if (files.isEmpty())
        mPopPlaylist->addAction(QStringLiteral("(no playlists yet)"))->setEnabled(false);
    mPopPlaylist->popup(lblPlaylist->mapToGlobal(QPoint(0, -mPopPlaylist->sizeHint().height())));
}

void mdiMain::OpenAddress(const QString& address) { gShell().OpenDocument(address); }

void mdiMain::ShowHelp() { modHelp::ShowHelp(); }

void mdiMain::ShowAbout() {
    if (modPages::OpenDialog(QStringLiteral("frmAbout"), this))
        return;
    QDialog* about = MakeAbout(this);
    about->exec();
    delete about;
}

QDialog* mdiMain::MakeAbout(QWidget* parent) {
    auto* about = new QDialog(parent);
    about->setObjectName(QStringLiteral("frmAbout"));
    about->setWindowTitle(QStringLiteral("About Vowren"));
    auto* layout = new QVBoxLayout(about);
    layout->setContentsMargins(18, 18, 18, 12);
    auto* picture = new QLabel(about);
    picture->setPixmap(ShellIcon(QStringLiteral("splash")).pixmap(QSize(336, 210), about->devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture);
    auto* text = new QLabel(QStringLiteral("<p style='font-size:15pt'>Vowren</p><p>") + clsApp::Release() +
                                QStringLiteral(" &nbsp;(") + clsApp::MajorMinorRevision() +
                                QStringLiteral(")</p><p>A wedding planner for one couple on one machine.</p>"),
                            about);
    text->setAlignment(Qt::AlignCenter);
    layout->addWidget(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, about);
    connect(buttons, &QDialogButtonBox::rejected, about, &QDialog::reject);
    layout->addWidget(buttons);
    return about;
}

void mdiMain::ApplyLook() {
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette palette = QApplication::style()->standardPalette();
    palette.setColor(QPalette::Window, QColor(0xfa, 0xf7, 0xf8));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xfb, 0xf7, 0xf9));
    palette.setColor(QPalette::Highlight, QColor(0x8a, 0x3c, 0x63));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x8a, 0x3c, 0x63));
    // Text keeps the style's grey where a control is disabled.
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            palette.setColor(group, role, QColor(0x2e, 0x2a, 0x33));
    }
    QApplication::setPalette(palette);
}
