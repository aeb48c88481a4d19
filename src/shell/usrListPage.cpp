#include "shell/usrListPage.h"

#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modGeneral.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/controls/usrLinks.h"
#include "shell/controls/usrSearch.h"
#include "shell/grid/clsGridProxy.h"
#include "shell/grid/frmCustomizeColumns.h"
#include "shell/grid/modGrid.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHash>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QLabel* NamedLabel(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    return label;
}

// Lays its items out in lines from left to right and starts a new line where the width ends, so that
// a long row of actions wraps instead of widening the page.
class clsFlowLayout : public QLayout {
public:
    clsFlowLayout(QWidget* parent, int hSpacing, int vSpacing)
        : QLayout(parent), mHSpacing(hSpacing), mVSpacing(vSpacing) {
        setContentsMargins(0, 0, 0, 0);
    }
    ~clsFlowLayout() override {
        while (QLayoutItem* item = clsFlowLayout::takeAt(0))
            delete item;
    }
    void addItem(QLayoutItem* item) override { mItems.append(item); }
    int count() const override { return static_cast<int>(mItems.size()); }
    QLayoutItem* itemAt(int index) const override { return mItems.value(index); }
    QLayoutItem* takeAt(int index) override {
        return index >= 0 && index < mItems.size() ? mItems.takeAt(index) : nullptr;
    }
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), false); }
    void setGeometry(const QRect& rect) override {
        QLayout::setGeometry(rect);
        Arrange(rect, true);
    }
    // All on one line.
    QSize sizeHint() const override {
        QSize size;
        for (QLayoutItem* item : mItems) {
            if (item->isEmpty())
                continue;
            const QSize hint = item->sizeHint();
            size.rwidth() += hint.width() + (size.width() > 0 ? mHSpacing : 0);
            size.setHeight(std::max(size.height(), hint.height()));
        }
        return size;
    }
    // As narrow as the widest item.
    QSize minimumSize() const override {
        QSize size;
        for (QLayoutItem* item : mItems)
            if (!item->isEmpty())
                size = size.expandedTo(item->minimumSize());
        return size;
    }

private:
    // Places the items (or only measures them); the height the lines take.
    int Arrange(const QRect& rect, bool place) const {
        int x = rect.x();
        int y = rect.y();
        int lineHeight = 0;
        for (QLayoutItem* item : mItems) {
            if (item->isEmpty())
                continue;
            const QSize hint = item->sizeHint();
            if (x > rect.x() && x + hint.width() > rect.right() + 1) {
                x = rect.x();
                y += lineHeight + mVSpacing;
                lineHeight = 0;
            }
            if (place)
                item->setGeometry(QRect(QPoint(x, y), hint));
            x += hint.width() + mHSpacing;
            lineHeight = std::max(lineHeight, hint.height());
        }
        return y + lineHeight - rect.y();
    }

    QList<QLayoutItem*> mItems;
    int mHSpacing;
    int mVSpacing;
};

} // namespace

usrListPage::usrListPage(const QString& formName, QWidget* parent) : usrPage(parent) {
    setObjectName(formName);
    BuildLayout();
}

QString usrListPage::SettingsKey() const { return FormRegistryKey(FormName()); }

void usrListPage::BuildLayout() {
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(12, 12, 12, 12);
    outer->setSpacing(16);
    outer->addWidget(BuildPanel());

    auto* right = new QVBoxLayout;
    right->setSpacing(8);
    auto* top = new QHBoxLayout;
    lblFilter = NamedLabel(QStringLiteral("lblFilter"), this);
    QFont big = lblFilter->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    lblFilter->setFont(big);
    lblCount = NamedLabel(QStringLiteral("lblCount"), this);
    lblCount->setForegroundRole(QPalette::PlaceholderText);
    mSearch = new usrSearch(this);
    mSearch->setObjectName(QStringLiteral("usrSearch"));
    mSearch->setMinimumWidth(220);
    top->addWidget(lblFilter);
    top->addSpacing(12);
    top->addWidget(lblCount, 0, Qt::AlignBottom);
    top->addStretch(1);
    top->addWidget(mSearch);
    right->addLayout(top);

    auto* actionRow = new QHBoxLayout;
    auto* actions = new QWidget(this);
    actions->setObjectName(QStringLiteral("picActions"));
    mActionLayout = new clsFlowLayout(actions, 14, 4);
    QSizePolicy wraps(QSizePolicy::Preferred, QSizePolicy::Preferred);
    wraps.setHeightForWidth(true);
    actions->setSizePolicy(wraps);
    actionRow->addWidget(actions, 1);
    mProgress = new usrLinks(this);
    mProgress->setObjectName(QStringLiteral("usrLinks"));
    actionRow->addWidget(mProgress);
    right->addLayout(actionRow);

    mGrid = new usrGrid(this);
    mGrid->SetRegistryKey(SettingsKey());
    picLoading = NamedLabel(QStringLiteral("picLoading"), mGrid->viewport());
    picLoading->setText(tr("Loading…"));
    picLoading->setAlignment(Qt::AlignCenter);
    lblEmpty = NamedLabel(QStringLiteral("lblEmpty"), mGrid->viewport());
    lblEmpty->setAlignment(Qt::AlignCenter);
    lblEmpty->setWordWrap(true);
    lblEmpty->setForegroundRole(QPalette::PlaceholderText);
    lblEmpty->hide();
    right->addWidget(mGrid, 1);
    outer->addLayout(right, 1);

    connect(mSearch, &usrSearch::Search, this, &usrListPage::ApplySearch);
    // Enter and a double click on a record open it.
    connect(mGrid, &QAbstractItemView::activated, this, [this](const QModelIndex& index) {
        const clsGridRow* row = mGrid->Model()->RowAt(mGrid->ToSource(index));
        if (row && !row->IsGroup && row->ItemData != 0)
            Activate(row->ItemData);
    });
    connect(mGrid->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        UpdateCountedActions();
        UpdateActions();
    });
    AddShortcut(QKeySequence::Find, [this] { mSearch->SetFocusEx(); });
    AddShortcut(QKeySequence(Qt::Key_F5), [this] { Reload(); });
}

QShortcut* usrListPage::AddShortcut(const QKeySequence& keys, const std::function<void()>& run) {
    auto* shortcut = new QShortcut(keys, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [run] { run(); });
    return shortcut;
}

// The panel scrolls when its entries are more than the page is high.
QWidget* usrListPage::BuildPanel() {
    mPanelScroll = new QScrollArea(this);
    mPanelScroll->setObjectName(QStringLiteral("picFilter"));
    mPanelScroll->setFrameShape(QFrame::StyledPanel);
    mPanelScroll->setWidgetResizable(true);
    mPanelScroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* panel = new QWidget(mPanelScroll);
    panel->setObjectName(QStringLiteral("picFilterEntries"));
    mPanelColumn = new QVBoxLayout(panel);
    mPanelColumn->setContentsMargins(12, 12, 12, 12);
    mPanelColumn->setSpacing(12);
    mPanelLayout = new QGridLayout;
    mPanelLayout->setHorizontalSpacing(10);
    mPanelLayout->setVerticalSpacing(6);
    mPanelLayout->setColumnStretch(0, 1);
    mPanelColumn->addLayout(mPanelLayout);
    mPanelColumn->addStretch(1);
    mPanelScroll->setWidget(panel);
    FitPanelWidth();
    return mPanelScroll;
}

void usrListPage::FitPanelWidth() {
    const int entries = std::max(220, mPanelScroll->widget()->sizeHint().width());
    mPanelScroll->setFixedWidth(entries + mPanelScroll->verticalScrollBar()->sizeHint().width() +
                                2 * mPanelScroll->frameWidth());
}

void usrListPage::SetFilterEntries(const QList<FilterEntry>& entries) {
    mEntries = entries;
    int row = 0;
    for (const FilterEntry& entry : entries) {
        if (!entry.Heading.isEmpty()) {
            auto* heading = NamedLabel(QStringLiteral("lblHeading_%1").arg(entry.Id), this);
            heading->setText(entry.Heading);
            QFont bold = heading->font();
            bold.setBold(true);
            heading->setFont(bold);
            heading->setContentsMargins(0, row == 0 ? 0 : 10, 0, 0);
            mPanelLayout->addWidget(heading, row++, 0, 1, 3);
        }
        QWidget* caption = nullptr;
        if (entry.Clickable) {
            auto* link = new usrHyperlink(entry.Caption, this);
            link->setObjectName(QStringLiteral("linkFilter_%1").arg(entry.Id));
            link->setIndex(entry.Id);
            connect(link, &usrHyperlink::Click, this, &usrListPage::SetFilter);
            caption = link;
        } else {
            auto* figure = NamedLabel(QStringLiteral("lblFigure_%1").arg(entry.Id), this);
            figure->setText(entry.Caption);
            caption = figure;
        }
        auto* count = NamedLabel(QStringLiteral("lblStat_%1").arg(entry.Id), this);
        auto* percent = NamedLabel(QStringLiteral("lblStatPercent_%1").arg(entry.Id), this);
        count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        percent->setForegroundRole(QPalette::PlaceholderText);
        mPanelLayout->addWidget(caption, row, 0);
        mPanelLayout->addWidget(count, row, 1);
        mPanelLayout->addWidget(percent, row, 2);
        ++row;
    }
    mFilter = gRegistry().GetSetting(SettingsKey(), QStringLiteral("FilterIndex"), QStringLiteral("0")).toInt();
    if (FilterCaption(mFilter).isEmpty() && !entries.isEmpty())
        mFilter = entries.first().Id;
    FitPanelWidth();
}

void usrListPage::ReplaceFilterEntries(const QList<FilterEntry>& entries) {
    while (QLayoutItem* item = mPanelLayout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const int before = mFilter;
    SetFilterEntries(entries);
    if (FilterCaption(before).isEmpty())
        gRegistry().SaveSetting(SettingsKey(), QStringLiteral("FilterIndex"), QString::number(mFilter));
}

void usrListPage::AddPanelWidget(QWidget* widget) {
    mPanelColumn->insertWidget(mPanelColumn->count() - 1, widget);
    FitPanelWidth();
}

int usrListPage::ShareBaseOf(int filterId) const {
    Q_UNUSED(filterId);
    return mEntries.isEmpty() ? 0 : mEntries.first().Id;
}

void usrListPage::SetEmptyText(const QString& emptyList, const QString& emptyFilter) {
    mEmptyList = emptyList;
    mEmptyFilter = emptyFilter;
}

void usrListPage::SetColumns(const QList<clsGridColumn>& columns) {
    mGrid->SetColumns(columns);
    GridLayout(mGrid, true);
}

usrHyperlink* usrListPage::AddAction(int index, const QString& caption, const std::function<void()>& run) {
    auto* link = new usrHyperlink(caption, mActionLayout->parentWidget());
    link->setObjectName(QStringLiteral("linkAction_%1").arg(index));
    link->setIndex(index);
    connect(link, &usrHyperlink::Click, this, [run] { run(); });
    mActionLayout->addWidget(link);
    mActions.append(link);
    return link;
}

usrHyperlink* usrListPage::ActionLink(int index) const {
    return findChild<usrHyperlink*>(QStringLiteral("linkAction_%1").arg(index));
}

usrHyperlink* usrListPage::AddReportsFolderAction(int index) {
    return AddAction(index, QStringLiteral("Open reports folder"), [] {
        gApp().MakeReportPath();
        gShell().OpenDocument(gApp().ReportPath());
    });
}

usrHyperlink* usrListPage::AddCustomizeColumnsAction(int index) {
    return AddAction(index, QStringLiteral("Customize columns"), [this] {
        frmCustomizeColumns dialog(mGrid, this);
        dialog.exec();
    });
}

QString usrListPage::CountedCaption(const QString& caption, int count) {
    return count > 1 ? caption + QStringLiteral("s (") + QString::number(count) + QLatin1Char(')') : caption;
}

void usrListPage::CountSelectionIn(int actionIndex) {
    mCountedCaptions.insert(actionIndex, ActionLink(actionIndex)->Caption());
}

void usrListPage::UpdateCountedActions() {
    const int count = static_cast<int>(SelectedKeys().size());
    for (auto action = mCountedCaptions.cbegin(); action != mCountedCaptions.cend(); ++action) {
        usrHyperlink* link = ActionLink(action.key());
        link->setEnabled(count > 0);
        link->setCaption(CountedCaption(action.value(), count));
    }
}

void usrListPage::SetRowMenu(QMenu* menu) {
    mRowMenu = menu;
    if (mGrid->contextMenuPolicy() == Qt::CustomContextMenu)
        return;
    mGrid->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mGrid, &QWidget::customContextMenuRequested, this, &usrListPage::ShowMenuAt);
}

void usrListPage::ShowMenuAt(const QPoint& gridPosition) {
    const QModelIndex index = mGrid->indexAt(gridPosition);
    if (index.data(GridRole::IsGroup).toBool()) {
        BuildGroupMenu();
        mGroupMenu->popup(mGrid->viewport()->mapToGlobal(gridPosition));
    } else if (mRowMenu != nullptr) {
        PopupMenu(mRowMenu, gridPosition);
    }
}

void usrListPage::BuildGroupMenu() {
    if (mGroupMenu != nullptr)
        return;
    mGroupMenu = new QMenu(this);
    mGroupMenu->setObjectName(QStringLiteral("mnuHiddenGroup"));
    mGroupMenu->addAction(QStringLiteral("&Collapse all groups"), this, [this] { GridSetAllGroups(mGrid, false, GroupKey()); })
        ->setObjectName(QStringLiteral("mnuCollapseAll"));
    mGroupMenu->addAction(QStringLiteral("&Expand all groups"), this, [this] { GridSetAllGroups(mGrid, true, GroupKey()); })
        ->setObjectName(QStringLiteral("mnuExpandAll"));
}

void usrListPage::ShowNotesAsRowText(QMenu* menu) {
    const bool shown = gApp().ShowNotes();
    mGrid->SetRowTextVisible(shown);
    QAction* notes = menu->addAction(shown ? QStringLiteral("Hide notes") : QStringLiteral("Show notes"), this,
                                     &usrListPage::ToggleNotes);
    notes->setObjectName(QStringLiteral("mnuNotes"));
}

void usrListPage::ToggleNotes() {
    const bool shown = !gApp().ShowNotes();
    gApp().SetShowNotes(shown);
    mGrid->SetRowTextVisible(shown);
    if (auto* notes = findChild<QAction*>(QStringLiteral("mnuNotes")))
        notes->setText(shown ? QStringLiteral("Hide notes") : QStringLiteral("Show notes"));
    Reload();
}

void usrListPage::ResetStoredStateOnce() {
    clsRegistryStore& store = gRegistry();
    const QString marker = QStringLiteral("RESET_COMPLETE");
    if (store.GetSetting(SettingsKey(), marker, QStringLiteral("0")) != QLatin1String("0"))
        return;
    store.SaveSetting(SettingsKey(), QStringLiteral("FilterIndex"), QStringLiteral("0"));
    store.SaveSetting(SettingsKey(), QStringLiteral("LastKey"), QStringLiteral("0"));
    mFilter = mEntries.isEmpty() ? 0 : mEntries.first().Id;
    mGrid->SetColumns(mGrid->Model()->Columns());
    GridLayout(mGrid, false);
    store.SaveSetting(SettingsKey(), marker, QStringLiteral("1"));
}

void usrListPage::AddActionItems(QMenu* menu, const QList<int>& actions) {
    for (int action : actions) {
        QAction* item = menu->addAction(ActionLink(action)->Caption(), this, [this, action] {
            if (ActionLink(action)->isEnabled())
                emit ActionLink(action)->Click(action);
        });
        item->setObjectName(QStringLiteral("mnuAction_%1").arg(action));
        item->setProperty("actionIndex", action);
    }
}

void usrListPage::PopupMenu(QMenu* menu, const QPoint& gridPosition) {
    const bool selected = !SelectedKeys().isEmpty();
    for (QAction* item : menu->actions()) {
        if (item->menu() != nullptr) {
            item->setEnabled(selected);
        } else if (const QVariant action = item->property("actionIndex"); action.isValid()) {
            const usrHyperlink* link = ActionLink(action.toInt());
            item->setText(link->Caption());
            item->setEnabled(link->isEnabled());
        }
    }
    menu->popup(mGrid->viewport()->mapToGlobal(gridPosition));
}

QString usrListPage::FilterCaption(int filterId) const {
    for (const FilterEntry& entry : mEntries)
        if (entry.Id == filterId && entry.Clickable)
            return entry.Caption;
    return {};
}

void usrListPage::SetFilter(int filterId) {
    if (FilterCaption(filterId).isEmpty())
        return;
    mFilter = filterId;
    gRegistry().SaveSetting(SettingsKey(), QStringLiteral("FilterIndex"), QString::number(filterId));
    Reload();
}

void usrListPage::FilterOff() {
    if (!mEntries.isEmpty())
        SetFilter(mEntries.first().Id);
}

void usrListPage::Reload() {
    SaveState();
    Load();
}

void usrListPage::LoadNow() {
    if (!mLoaded)
        Load();
}

void usrListPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (mLoaded || mLoadQueued)
        return;
    // The first paint comes before the rows, so that the page appears at once.
    mLoadQueued = true;
    QTimer::singleShot(0, this, [this] {
        if (!mLoaded)
            Load();
    });
}

void usrListPage::hideEvent(QHideEvent* event) {
    if (mLoaded)
        SaveState();
    QWidget::hideEvent(event);
}

void usrListPage::Load() {
    BeforeLoad();
    const qint64 lastKey =
        gRegistry().GetSetting(SettingsKey(), QStringLiteral("LastKey"), QStringLiteral("0")).toLongLong();
    picLoading->setVisible(!mLoaded);
    {
        clsGridFill fill(*mGrid->Model());
        mTotal = RecordIO::Read([&] { return FillRows(fill, mFilter); });
    }
    mLoaded = true;
    picLoading->hide();
    if (mGrid->Model()->HasGroups())
        GridRestoreGroups(mGrid, GroupKey());
    ApplySearch(mSearch->Text());
    if (lastKey != 0 && RowOfKey(lastKey).isValid())
        GridSelectByKey(mGrid, lastKey);
    else
        GridSelectRow(mGrid, 1);
    lblFilter->setText(FilterCaption(mFilter));
    RefreshPanel();
}

void usrListPage::ApplySearch(const QString& text) {
    mShown = GridSearch(mGrid, text);
    if (text.isEmpty())
        mShown = mTotal;
    UpdateCountLabels();
    UpdateEmptyState();
}

void usrListPage::SetRecordNoun(const QString& noun, const QString& plural) {
    mNoun = noun;
    mPlural = plural.isEmpty() ? noun + QLatin1Char('s') : plural;
}

void usrListPage::UpdateCountLabels() {
    lblCount->setText(QStringLiteral("%1 of %2 %3").arg(mShown).arg(mTotal).arg(mTotal == 1 ? mNoun : mPlural));
}

void usrListPage::UpdateEmptyState() {
    const bool empty = mShown == 0;
    const bool wholeList = mEntries.isEmpty() || mFilter == mEntries.first().Id;
    lblEmpty->setText(mTotal == 0 && wholeList && mSearch->Text().isEmpty() ? mEmptyList : mEmptyFilter);
    lblEmpty->setVisible(empty);
    lblEmpty->setGeometry(mGrid->viewport()->rect().adjusted(24, 24, -24, -24));
    picLoading->setGeometry(mGrid->viewport()->rect());
}

// The counts of the filters and of the wholes their shares are of; none after the message of a failure.
QHash<int, long> usrListPage::PanelCounts() const {
    return RecordIO::Read([this] {
        QHash<int, long> counts;
        for (const FilterEntry& entry : mEntries)
            counts.insert(entry.Id, CountOf(entry.Id));
        for (const FilterEntry& entry : mEntries) {
            const int base = ShareBaseOf(entry.Id);
            if (!counts.contains(base))
                counts.insert(base, CountOf(base));
        }
        return counts;
    });
}

void usrListPage::RefreshPanel() {
    const QHash<int, long> counts = PanelCounts();
    for (const FilterEntry& entry : mEntries) {
        const long count = counts.value(entry.Id);
        const long whole = counts.value(ShareBaseOf(entry.Id));
        findChild<QLabel*>(QStringLiteral("lblStat_%1").arg(entry.Id))->setText(QString::number(count));
        findChild<QLabel*>(QStringLiteral("lblStatPercent_%1").arg(entry.Id))
            ->setText(PercentText(double(count), double(whole), 0));
        if (auto* link = findChild<usrHyperlink*>(QStringLiteral("linkFilter_%1").arg(entry.Id)))
            link->setFontBold(entry.Id == mFilter);
    }
    UpdateCountedActions();
    UpdateActions();
}

QList<qint64> usrListPage::SelectedKeys() const {
    QList<qint64> keys;
    for (const QModelIndex& index : mGrid->SelectedRows()) {
        const clsGridRow* row = mGrid->Model()->RowAt(index);
        if (row && !row->IsGroup && row->ItemData != 0)
            keys.append(row->ItemData);
    }
    return keys;
}

QModelIndex usrListPage::RowOfKey(qint64 key) const { return mGrid->Model()->FindRecord(key); }

void usrListPage::BeginProgress(int count) {
    mProgress->setProgressMax(count);
    mProgress->setProgressValue(0);
    mProgress->setProgressVisible(true);
}

void usrListPage::StepProgress() { mProgress->setProgressValue(mProgress->ProgressValue() + 1); }

void usrListPage::EndProgress() { mProgress->setProgressVisible(false); }

void usrListPage::SaveState() {
    if (!mLoaded)
        return;
    GridLayout(mGrid, false);
    const QList<qint64> keys = SelectedKeys();
    if (!keys.isEmpty())
        gRegistry().SaveSetting(SettingsKey(), QStringLiteral("LastKey"), QString::number(keys.first()));
}
