#pragma once

#include "core/clsDICT.h"

#include <QDialog>
#include <QList>
#include <array>

class QButtonGroup;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;
class usrHint;
class usrHyperlink;
class usrLabelProgramPanel;

// What the options screen changed, for every page and drop-down that is alive. The dialog raises its
// own signals and repeats them here, so a page need not know whether the dialog is open.
class OptionsEvents : public QObject {
    Q_OBJECT
signals:
    // A dictionary of that kind changed (a row added, renamed, deleted or moved).
    void OptionsUpdated(int kind);
    // The inner envelopes were written again in the chosen etiquette.
    void EtiquetteUpdated();
    // The tent cards were written again in the chosen etiquette.
    void EtiquetteTentCardUpdated();
    // The picture of the bride or the groom changed.
    void IconsUpdated();
    // The country of the map links changed.
    void CountryUpdated();
    // A backup was put in place of the database: every page reads its data again.
    void DatabaseRestored();
};
OptionsEvents& gOptionsEvents();

// Opens the options screen as a modal dialog on the row of that kind: a dictionary kind (1 meals,
// 2 payers, 3 roles, 4 titles, 8 songlists, 10 vendor categories), 5 etiquette, 6 the couple's icons or
// 9 the country, 11 the label program. Any other number opens the first row. Returns when the dialog is closed.
void ShowOptions(QWidget* parent, int kind = clsDICT::Meal);
// Opens "Backup and Restore" as a modal dialog.
void ShowBackup(QWidget* parent);

// The dropdown lists and the few settings that travel with the data. A list on the left ("gridLeft")
// chooses a panel; every change is written at once. Children carry their names: "grid", "lblCount",
// "linkAction_0" to "linkAction_2", "usrHint"; "optEtiquette_0"/"_1", "cmdUpdateInner",
// "progressInner", "lblDoneInner", "cmdCancelInner" and the same with "TentCard"; "optBride_0" to
// "_2", "optGroom_0" to "_2", "imgBride", "imgGroom", "linkBrideMore", "linkGroomMore";
// "optCountry_0" to "_7", "usrHintCountry"; "linkBackup", "cmdClose".
class frmOptions : public QDialog {
    Q_OBJECT

public:
    // The rows of the left list that are no dictionaries.
    enum SettingsKind : int { Etiquette = 5, Icons = 6, Country = 9, LabelProgram = 11 };
    // How long "Done" stays after an update, in milliseconds.
    static constexpr int kDoneDelay = 1500;

    explicit frmOptions(QWidget* parent = nullptr, int kind = clsDICT::Meal);

    int CurrentKind() const { return mKind; }
    // Shows the panel of that row; an unknown kind shows the first row.
    void SelectKind(int kind);
    // The countries of the map links, in the order of their stored index.
    static QStringList CountryNames();

signals:
    void OptionsUpdated(int kind);
    void EtiquetteUpdated();
    void EtiquetteTentCardUpdated();
    void IconsUpdated();
    void CountryUpdated();

protected:
    // The keys of the dictionary grid: Enter edits, Delete deletes, Insert adds, Ctrl+Up and Ctrl+Down
    // move a songlist.
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    // While an update runs, closing asks it to stop; the dialog closes when it has been undone.
    void reject() override;

private:
    struct EtiquetteBox {
        int Key = 0; // the row of VOWREN
        QGroupBox* Box = nullptr;
        QRadioButton* Formal = nullptr;
        QRadioButton* Personal = nullptr;
        QPushButton* Update = nullptr;
        QProgressBar* Progress = nullptr;
        QLabel* Done = nullptr;
        QPushButton* Cancel = nullptr;
        QTimer* Timer = nullptr;
    };
    struct IconSide {
        bool Bride = true;
        QLabel* Role = nullptr;
        QLabel* Current = nullptr;
        QList<QRadioButton*> Options;
    };

    // ---- Building ----
    QWidget* BuildLeft();
    QWidget* BuildDictionaryPanel();
    QWidget* BuildEtiquettePanel();
    QGroupBox* BuildEtiquetteBox(EtiquetteBox& box, const QString& caption, const QString& suffix,
                                 const QString& formalExample, const QString& personalExample);
    QWidget* BuildIconsPanel();
    QWidget* BuildIconSide(IconSide& side);
    QWidget* BuildCountryPanel();
    void AddShortcuts();
    bool GridKey(int key, Qt::KeyboardModifiers modifiers);

    // ---- Panels ----
    void gridLeft_Click(QTreeWidgetItem* item);
    void ShowPanel(int kind, const QString& caption);

    // ---- Dictionaries ----
    void FillGrid(const QString& selectId = QString(), int fallbackRow = 0);
    void EnableActions();
    const clsDICT* SelectedRecord() const;
    void linkAction_Click(int index);
    void AddEntry();
    void EditEntry();
    void DeleteEntry();
    void OpenEntry(const clsDICT& record, bool isNew);
    void mfrmOptionsEntry_Refresh(const clsDICT& record);
    void MoveSonglist(int delta);
    void AnnounceDictionary(int kind);

    // ---- Etiquette ----
    void LoadEtiquette();
    void CheckUpdate(EtiquetteBox& box);
    void cmdUpdate_Click(EtiquetteBox& box);
    bool WriteEtiquette(EtiquetteBox& box, bool formal);
    bool RelabelInvitations(EtiquetteBox& box, bool formal);
    void SetRunning(EtiquetteBox& box, bool running);
    void timer_Timer(EtiquetteBox& box);

    // ---- Icons and country ----
    void LoadIcons();
    void ShowIconSide(IconSide& side);
    void StoreIcon(bool bride, int number);
    void OpenMoreIcons(bool bride);
    void LoadCountry();
    void optCountry_Click(int index);

    int mKind = clsDICT::Meal;
    QList<clsDICT> mRecords;
    bool mRunning = false;
    bool mCancelRequested = false;
    bool mCloseAfterRun = false;

    QTreeWidget* mLeft = nullptr;
    QLabel* mHeader = nullptr;
    QStackedWidget* mStack = nullptr;
    QWidget* mDictionaryPanel = nullptr;
    QWidget* mEtiquettePanel = nullptr;
    QWidget* mIconsPanel = nullptr;
    QWidget* mCountryPanel = nullptr;
    usrLabelProgramPanel* mLabelProgramPanel = nullptr;
    QTreeWidget* mGrid = nullptr;
    QLabel* mCount = nullptr;
    std::array<usrHyperlink*, 3> mActions{};
    usrHint* mHint = nullptr;
    std::array<EtiquetteBox, 2> mEtiquette{};
    std::array<IconSide, 2> mIcons{};
    QButtonGroup* mCountry = nullptr;
    usrHyperlink* mBackupLink = nullptr;
    QPushButton* mClose = nullptr;
};
