#pragma once

#include "shell/usrPage.h"

#include <QDateTime>
#include <QIcon>
#include <QList>
#include <QMainWindow>
#include <QPointer>

class QDialog;
class QLabel;
class QMenu;
class QPushButton;
class QTimer;
class QToolButton;
class QVBoxLayout;
class usrHyperlink;
class QHBoxLayout;
class QFrame;

// The frame of the program: a header with the wedding's caption and the countdown, a breadcrumb, one
// page at a time, and a footer with the playlist button and the two small menus. ShowPage is the only way
// to change the page; every visit makes the page anew. Closing the window saves its place and ends the
// program.
class mdiMain : public QMainWindow {
    Q_OBJECT

public:
    explicit mdiMain(QWidget* parent = nullptr);
    ~mdiMain() override;

    // Home (index 0) to Widgets (12), 13 the options dialog, 99 the forums. A page that does not exist
    // yet is refused (false). Asking for the page that is up does nothing once it has been shown.
    bool ShowPage(int index);
    // Page index (shown first when it is not up) with its sub-page of that form name over it; false
    // when either does not exist. The breadcrumb's page level, or any other page, closes it again.
    bool ShowSubPage(int index, const QString& formName);
    void CloseSubPage();
    // The first level is the root; the text's levels are split at ">".
    void SetBreadcrumb(const QString& text, const QString& root);
    void UpdateWeddingCaption();
    void UpdateCountdown();

    usrPage* CurrentPage() const { return mPage; }
    usrPage* CurrentSubPage() const { return mSubPage; }
    QStringList BreadcrumbTexts() const;
    QString WeddingCaption() const;
    QString CountdownCaption() const;
    QString CurrentPlaylist() const { return mPlaylistFile; }

    // The countdown's texts at a moment: the caption, and the duration that clsApp.TimeToWedding keeps.
    struct CountdownTexts {
        QString Caption;
        QString TimeToWedding;
    };
    // An empty or unreadable wedding date gives an empty caption and no duration.
    static CountdownTexts Countdown(const QString& weddingDateTime, const QDateTime& now, bool showCountdown);

    // Money in the locale's currency format (a locale without one, such as "C", borrows en_US's).
    static QString CurrencyText(double amount);
    // The couple's pictures, the same set as the options screen's: "BRIDE1", "GROOM2" ...
    static QIcon BrideGroomIcon(const QString& key);
    // A page's or a link's picture by name: "contacts", "budget", "options", "reports" ...
    static QIcon ShellIcon(const QString& name);
    // The pictures of the bride and the groom chosen in the settings kept with the data.
    static QString BrideIconKey();
    static QString GroomIconKey();

    // Makes the shell's pictures reachable (the resources sit in a static library).
    static void InitResources();
    // The program's look: the Fusion style with the wedding palette.
    static void ApplyLook();
    // The about box, not yet shown.
    static QDialog* MakeAbout(QWidget* parent);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildHeader(QVBoxLayout* outer);
    void BuildFooter(QVBoxLayout* outer);
    void BuildMenus();
    void Load();
    void ShowWelcome();
    void AttachPage(usrPage* page);
    void UnloadPage();
    void DetachPage(usrPage* page);
    void UpdateEditMenu();
    void ConnectPage(usrPage* page);
    void ShowFirstPage(int index);
    void EnableToolbar(bool enable);
    void OnBreadcrumbClicked(int level);
    void OnTimer();
    void OnCountdownClicked();
    void RefreshPlaylist();
    void mfrmMain_12_Widgets_PlaylistCreated(const QString& path, bool playNow);
    void OnPlayClicked();
    void OnPlaylistClicked();
    void OpenAddress(const QString& address);
    void ShowAbout();
    void ShowHelp();
    void RestorePosition();
    void SavePosition();
    void UpdatePageActions();

    QWidget* picLonghorn = nullptr;
    QLabel* lblWedding = nullptr;
    QLabel* imgCountdown = nullptr;
    QPushButton* lblCountdown = nullptr;
    QFrame* picBreadcrumb = nullptr;
    QHBoxLayout* mBreadcrumbLayout = nullptr;
    QList<usrHyperlink*> linkBreadcrumb;
    QList<QLabel*> imgBreadcrumb;
    QWidget* mPageHost = nullptr;
    QVBoxLayout* mPageLayout = nullptr;
    QWidget* picBottom = nullptr;
    QToolButton* imgMusicPlay = nullptr;
    QToolButton* lblPlaylist = nullptr;
    QToolButton* imgVowren = nullptr;
    QToolButton* imgQuill = nullptr;
    usrHyperlink* linkHelp = nullptr;
    QMenu* mPopVowren = nullptr;
    QMenu* mPopQuill = nullptr;
    QMenu* mPopPlaylist = nullptr;
    QMenu* mGoMenu = nullptr;
    QMenu* mEditMenu = nullptr;
    QTimer* timer = nullptr;

    QPointer<usrPage> mPage;
    QPointer<usrPage> mSubPage;
    QString mSubPageName;
    QString mPlaylistFile;
    bool mShownStoredPage = false;
    bool mShowCountdown = true;
};
