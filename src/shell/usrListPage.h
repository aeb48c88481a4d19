#pragma once

#include "shell/usrPage.h"

#include "shell/grid/usrGrid.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QWidget>
#include <functional>

class QKeySequence;
class QLabel;
class QMenu;
class QScrollArea;
class QShortcut;
class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLayout;
class QVBoxLayout;
class usrHyperlink;
class usrLinks;
class usrSearch;

// The frame of a list page: a panel of filters on the left, each with its count and its share of the
// whole, and on the right the filter's caption, "n of m" records, the search box, a row of actions, a
// progress bar for long runs and the grid. The page says what its filters, columns and rows are; the
// frame keeps the chosen filter ("FilterIndex") and the last selected record ("LastKey") in the page's
// settings, loads lazily after the first paint, and answers Ctrl+F (search) and F5 (reload).
class usrListPage : public usrPage {
    Q_OBJECT

public:
    struct FilterEntry {
        FilterEntry() = default;
        FilterEntry(int id, QString caption, QString heading = QString(), bool clickable = true)
            : Id(id), Caption(std::move(caption)), Heading(std::move(heading)), Clickable(clickable) {}
        int Id = 0;
        QString Caption;
        // A heading over this entry, opening a group of entries.
        QString Heading;
        // False: a figure with its count and share only; the grid can't be filtered by it.
        bool Clickable = true;
    };

    usrListPage(const QString& formName, QWidget* parent = nullptr);

    usrGrid* Grid() const { return mGrid; }
    usrSearch* SearchBox() const { return mSearch; }
    usrLinks* Progress() const { return mProgress; }
    QString FormName() const { return objectName(); }
    int CurrentFilter() const { return mFilter; }
    // Chooses a filter, stores it and loads the grid with it.
    void SetFilter(int filterId);
    // Loads the grid again with the filter in force, keeping the selected record.
    void Reload();
    // The caption of a filter entry; empty for an id the panel doesn't have as a filter.
    QString FilterCaption(int filterId) const;
    // True once the first load ran.
    bool Loaded() const { return mLoaded; }
    // Loads at once instead of after the first paint (tests, screenshots).
    void LoadNow();

public slots:
    // Back to the first filter of the panel, the whole list.
    void FilterOff();

protected:
    // ---- What the page sets up in its constructor ----
    void SetFilterEntries(const QList<FilterEntry>& entries);
    // The panel's entries made anew (a page whose filters follow its records); a filter in force that is
    // gone falls back to the first entry, and that is stored.
    void ReplaceFilterEntries(const QList<FilterEntry>& entries);
    // The word behind the count: "1 of 1 gift", "2 of 5 gifts"; the plural is the noun and an "s" unless
    // told ("entry", "entries").
    void SetRecordNoun(const QString& noun, const QString& plural = QString());
    // What an empty list says, and what it says when a filter or search finds nothing.
    void SetEmptyText(const QString& emptyList, const QString& emptyFilter);
    void SetColumns(const QList<clsGridColumn>& columns);
    // An action of the row above the grid, "linkAction_<index>".
    usrHyperlink* AddAction(int index, const QString& caption, const std::function<void()>& run);
    usrHyperlink* ActionLink(int index) const;
    // The two actions every list page has: "Open reports folder" and "Customize columns".
    usrHyperlink* AddReportsFolderAction(int index);
    usrHyperlink* AddCustomizeColumnsAction(int index);
    // "Delete contact", or "Delete contacts (3)" for several.
    static QString CountedCaption(const QString& caption, int count);
    // An action that works on the selection: enabled with one row or more, its caption counting them
    // ("Delete gift", "Delete gifts (3)"). The page's UpdateActions runs after and may say more.
    void CountSelectionIn(int actionIndex);
    // The menu of a right click on a record row; a right click on a group row opens the group menu
    // ("mnuHiddenGroup": "&Collapse all groups", "&Expand all groups").
    void SetRowMenu(QMenu* menu);
    // Shows each record's notes as a line under its row while the page's ShowNotes setting is on, and
    // adds "mnuNotes" to the menu, which turns them on and off.
    void ShowNotesAsRowText(QMenu* menu);
    // The page's stored state (filter, last record, columns) is set back once, the first time the page
    // is shown; the value RESET_COMPLETE marks that it was.
    void ResetStoredStateOnce();
    // Repeats these actions in a context menu ("mnuAction_<index>"); PopupMenu gives them the captions
    // and enabling of their links.
    void AddActionItems(QMenu* menu, const QList<int>& actions);
    // Shows the menu at a point of the grid: its actions as their links stand, and its submenus (the
    // changes to the selected records) enabled only with a selection.
    void PopupMenu(QMenu* menu, const QPoint& gridPosition);
    // A control under the entries of the filter panel (a note, a picture).
    void AddPanelWidget(QWidget* widget);

    // ---- What the page answers ----
    // The count of a filter entry.
    virtual long CountOf(int filterId) const = 0;
    // Runs before every load, before the rows of the filter in force are asked for.
    virtual void BeforeLoad() {}
    // The rows of a filter; the number of records written.
    virtual int FillRows(clsGridFill& fill, int filterId) = 0;
    // A record was opened (double click, Enter).
    virtual void Activate(qint64 key) { Q_UNUSED(key); }
    // The selection changed: actions whose captions follow it are updated here.
    virtual void UpdateActions() {}
    // The entry whose count is the whole (100%) for this entry's share; the first entry unless told.
    virtual int ShareBaseOf(int filterId) const;

    // ---- Helpers for the page ----
    // Counts in the panel and captions again, after a change to records.
    void RefreshPanel();
    // The keys of the selected record rows, in the grid's order.
    QList<qint64> SelectedKeys() const;
    // The record row with this key (a source index), or invalid.
    QModelIndex RowOfKey(qint64 key) const;
    // Progress of a run over many rows, shown beside the actions.
    void BeginProgress(int count);
    void StepProgress();
    void EndProgress();
    // A key of the page, heard wherever the focus is inside it.
    QShortcut* AddShortcut(const QKeySequence& keys, const std::function<void()>& run);
    // Writes the grid's layout and the last key to the settings; pages call it when they are left.
    void SaveState();

    // Opening and closing groups is stored below the page's key by the group's text.
    QString GroupKey() const { return SettingsKey(); }

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void BuildLayout();
    QWidget* BuildPanel();
    void FitPanelWidth();
    void Load();
    void ApplySearch(const QString& text);
    void UpdateCountLabels();
    void UpdateCountedActions();
    QHash<int, long> PanelCounts() const;
    void ShowMenuAt(const QPoint& gridPosition);
    void BuildGroupMenu();
    void ToggleNotes();
    void UpdateEmptyState();
    QString SettingsKey() const;

    usrGrid* mGrid = nullptr;
    usrSearch* mSearch = nullptr;
    usrLinks* mProgress = nullptr;
    QLabel* lblFilter = nullptr;
    QLabel* lblCount = nullptr;
    QLabel* lblEmpty = nullptr;
    QLabel* picLoading = nullptr;
    QGridLayout* mPanelLayout = nullptr;
    QVBoxLayout* mPanelColumn = nullptr;
    QScrollArea* mPanelScroll = nullptr;
    QLayout* mActionLayout = nullptr;
    QList<FilterEntry> mEntries;
    QList<usrHyperlink*> mActions;
    QHash<int, QString> mCountedCaptions;
    QMenu* mRowMenu = nullptr;
    QMenu* mGroupMenu = nullptr;
    QString mNoun;
    QString mPlural;
    QString mEmptyList;
    QString mEmptyFilter;
    int mFilter = 0;
    int mShown = 0;
    int mTotal = 0;
    bool mLoaded = false;
    bool mLoadQueued = false;
};
