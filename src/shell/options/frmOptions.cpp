#include "shell/options/frmOptions.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsVOWREN.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHint.h"
#include "shell/options/usrLabelProgramPanel.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/options/frmBackup.h"
#include "shell/options/frmBrideGroomIcons.h"
#include "shell/options/frmOptionsEntry.h"
#include "shell/options/frmOptionsEntryMeal.h"
#include "shell/options/modBrideGroomIcons.h"
#include "shell/modFormPlace.h"
#include "startup/modEtiquette.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

struct LeftRow {
    const char* Caption;
    int Kind;
};

constexpr LeftRow kDropdownRows[] = {
    {"Meals", clsDICT::Meal},   {"Paid by", clsDICT::PaidBy},
    {"Roles", clsDICT::Role},   {"Songlists", clsDICT::Songlist},
    {"Titles", clsDICT::Title}, {"Vendor Categories", clsDICT::VendorCategory},
};
constexpr LeftRow kSettingsRows[] = {
    {"Etiquette", frmOptions::Etiquette},
    {"Bride & Groom Icons", frmOptions::Icons},
    {"Country", frmOptions::Country},
    {"Label Program", frmOptions::LabelProgram},
};

constexpr int kKindRole = Qt::UserRole;
constexpr int kIdRole = Qt::UserRole + 1;
constexpr int kInvitationsKey = 7;
constexpr int kTentCardsKey = 8;
constexpr int kCountryKey = 9;

// The word the action links put behind "Add new ", "Edit " and "Delete ".
QString ActionWord(int kind) {
    switch (kind) {
    case clsDICT::Meal:
        return QStringLiteral("meal");
    case clsDICT::PaidBy:
        return QStringLiteral("payer");
    case clsDICT::Role:
        return QStringLiteral("role");
    case clsDICT::Songlist:
        return QStringLiteral("songlist");
    case clsDICT::Title:
        return QStringLiteral("title");
    case clsDICT::VendorCategory:
        return QStringLiteral("category");
    default:
        return frmOptionsEntry::KindName(kind).toLower();
    }
}

QString Plural(const QString& word, qsizetype count) {
    if (count == 1)
        return word;
    return word.endsWith(QLatin1Char('y')) ? word.chopped(1) + QStringLiteral("ies")
                                           : word + QStringLiteral("s");
}

QString Capitalised(const QString& word) {
    return word.left(1).toUpper() + word.mid(1);
}

QFont Scaled(QFont font, qreal factor, bool bold) {
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

QLabel* ExampleLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

// The etiquette kept with the data for a row of VOWREN; personal when it can't be read.
bool StoredFormal(int key) {
    try {
        return clsApp::ToBool(clsVOWREN::ReadStored(key), false);
    } catch (const clsDbError&) {
        return false;
    }
}

QPixmap IconPixmap(const QIcon& icon, int side, const QWidget* widget) {
    return icon.pixmap(QSize(side, side), widget->devicePixelRatioF());
}

} // namespace

OptionsEvents& gOptionsEvents() {
    static OptionsEvents events;
    return events;
}

void ShowOptions(QWidget* parent, int kind) {
    frmOptions dialog(parent, kind);
    dialog.exec();
}

void ShowBackup(QWidget* parent) {
    frmBackup dialog(parent);
    dialog.exec();
    if (dialog.Restored())
        emit gOptionsEvents().DatabaseRestored();
}

QStringList frmOptions::CountryNames() {
    return {QStringLiteral("United States"), QStringLiteral("Canada"),   QStringLiteral("United Kingdom"),
            QStringLiteral("France"),        QStringLiteral("Spain"),    QStringLiteral("Germany"),
            QStringLiteral("Italy"),         QStringLiteral("Australia")};
}

frmOptions::frmOptions(QWidget* parent, int kind) : QDialog(parent) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("Options"));
    modFormPlace::Remember(this);

    mHeader = new QLabel(this);
    mHeader->setObjectName(QStringLiteral("lblHeader"));
    mHeader->setFont(Scaled(font(), 1.35, true));
    mStack = new QStackedWidget(this);
    mDictionaryPanel = BuildDictionaryPanel();
    mEtiquettePanel = BuildEtiquettePanel();
    mIconsPanel = BuildIconsPanel();
    mCountryPanel = BuildCountryPanel();
    mLabelProgramPanel = new usrLabelProgramPanel(this);
    for (QWidget* panel : {mDictionaryPanel, mEtiquettePanel, mIconsPanel, mCountryPanel,
                           static_cast<QWidget*>(mLabelProgramPanel)})
        mStack->addWidget(panel);

    auto* right = new QWidget(this);
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(12, 0, 0, 0);
    rightLayout->addWidget(mHeader);
    rightLayout->addWidget(mStack, 1);

    auto* splitter = new QSplitter(this);
    splitter->addWidget(BuildLeft());
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);

    mBackupLink = new usrHyperlink(QStringLiteral("Backup and Restore..."), this);
    mBackupLink->setObjectName(QStringLiteral("linkBackup"));
    connect(mBackupLink, &usrHyperlink::Click, this, [this] { ShowBackup(this); });
    auto* buttons = new QDialogButtonBox(this);
    mClose = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    mClose->setObjectName(QStringLiteral("cmdClose"));
    connect(mClose, &QPushButton::clicked, this, &frmOptions::reject);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(mBackupLink);
    bottom->addStretch(1);
    bottom->addWidget(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(bottom);
    resize(780, 500);

    // Each change is repeated for the pages and drop-downs that listen to all option screens.
    connect(this, &frmOptions::OptionsUpdated, &gOptionsEvents(), &OptionsEvents::OptionsUpdated);
    connect(this, &frmOptions::OptionsUpdated, this,
            [](int changed) { usrDropdown::NotifyOptionsUpdated(changed); });
    connect(this, &frmOptions::EtiquetteUpdated, &gOptionsEvents(), &OptionsEvents::EtiquetteUpdated);
    connect(this, &frmOptions::EtiquetteTentCardUpdated, &gOptionsEvents(),
            &OptionsEvents::EtiquetteTentCardUpdated);
    connect(this, &frmOptions::IconsUpdated, &gOptionsEvents(), &OptionsEvents::IconsUpdated);
    connect(this, &frmOptions::CountryUpdated, &gOptionsEvents(), &OptionsEvents::CountryUpdated);

    AddShortcuts();
    LoadEtiquette();
    LoadIcons();
    LoadCountry();
    SelectKind(kind);
    mLeft->setFocus();
}

// ---- Building ------------------------------------------------------------------------------------

QWidget* frmOptions::BuildLeft() {
    mLeft = new QTreeWidget(this);
    mLeft->setObjectName(QStringLiteral("gridLeft"));
    mLeft->setHeaderHidden(true);
    mLeft->setRootIsDecorated(false);
    mLeft->setItemsExpandable(false);
    mLeft->setMinimumWidth(180);
    const auto addGroup = [this](const QString& caption, auto& rows) {
        auto* group = new QTreeWidgetItem(mLeft, {caption});
        group->setFlags(Qt::ItemIsEnabled);
        group->setFont(0, Scaled(font(), 1.0, true));
        for (const LeftRow& row : rows) {
            auto* item = new QTreeWidgetItem(group, {QString::fromLatin1(row.Caption)});
            item->setData(0, kKindRole, row.Kind);
        }
    };
    addGroup(QStringLiteral("Dropdowns"), kDropdownRows);
    addGroup(QStringLiteral("Settings"), kSettingsRows);
    mLeft->expandAll();
    connect(mLeft, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { gridLeft_Click(item); });
    return mLeft;
}

QWidget* frmOptions::BuildDictionaryPanel() {
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("picDictionary"));
    auto* links = new QHBoxLayout;
    for (int i = 0; i < static_cast<int>(mActions.size()); ++i) {
        auto* link = new usrHyperlink(panel);
        link->setObjectName(QStringLiteral("linkAction_%1").arg(i));
        connect(link, &usrHyperlink::Click, this, &frmOptions::linkAction_Click);
        mActions[static_cast<size_t>(i)] = link;
        links->addWidget(link);
    }
    links->addStretch(1);

    mGrid = new QTreeWidget(panel);
    mGrid->setObjectName(QStringLiteral("grid"));
    mGrid->setRootIsDecorated(false);
    mGrid->setUniformRowHeights(true);
    mGrid->setAlternatingRowColors(true);
    mGrid->setSelectionMode(QAbstractItemView::SingleSelection);
    mGrid->header()->setStretchLastSection(false);
    connect(mGrid, &QTreeWidget::itemSelectionChanged, this, &frmOptions::EnableActions);
    connect(mGrid, &QTreeWidget::itemDoubleClicked, this, [this] { EditEntry(); });

    mCount = new QLabel(panel);
    mCount->setObjectName(QStringLiteral("lblCount"));
    mHint = new usrHint(QStringLiteral("Press Ctrl+Up or Ctrl+Down to change sort order"), panel);
    mHint->setObjectName(QStringLiteral("usrHint"));

    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(links);
    layout->addWidget(mGrid, 1);
    layout->addWidget(mCount);
    layout->addWidget(mHint);
    return panel;
}

QGroupBox* frmOptions::BuildEtiquetteBox(EtiquetteBox& box, const QString& caption, const QString& suffix,
                                         const QString& formalExample, const QString& personalExample) {
    box.Box = new QGroupBox(caption, this);
    box.Box->setObjectName(QStringLiteral("pic") + suffix);
    const QString option = suffix == QLatin1String("Inner") ? QStringLiteral("optEtiquette")
                                                            : QStringLiteral("optEtiquetteTentCard");
    box.Formal = new QRadioButton(QStringLiteral("Formal"), box.Box);
    box.Formal->setObjectName(option + QStringLiteral("_0"));
    box.Personal = new QRadioButton(QStringLiteral("Personal"), box.Box);
    box.Personal->setObjectName(option + QStringLiteral("_1"));
    auto* group = new QButtonGroup(box.Box);
    group->addButton(box.Formal, 0);
    group->addButton(box.Personal, 1);
    connect(group, &QButtonGroup::idClicked, this, [this, &box] { CheckUpdate(box); });

    box.Update = new QPushButton(QStringLiteral("Update"), box.Box);
    box.Update->setObjectName(QStringLiteral("cmdUpdate") + suffix);
    box.Update->setToolTip(QStringLiteral("Write the texts again in the chosen etiquette"));
    connect(box.Update, &QPushButton::clicked, this, [this, &box] { cmdUpdate_Click(box); });
    box.Progress = new QProgressBar(box.Box);
    box.Progress->setObjectName(QStringLiteral("progress") + suffix);
    box.Progress->setTextVisible(false);
    box.Progress->setMaximumWidth(220);
    box.Done = new QLabel(QStringLiteral("Done"), box.Box);
    box.Done->setObjectName(QStringLiteral("lblDone") + suffix);
    box.Cancel = new QPushButton(QStringLiteral("Cancel"), box.Box);
    box.Cancel->setObjectName(QStringLiteral("cmdCancel") + suffix);
    connect(box.Cancel, &QPushButton::clicked, this, [this] { mCancelRequested = true; });
    box.Timer = new QTimer(box.Box);
    box.Timer->setObjectName(QStringLiteral("timer") + suffix);
    box.Timer->setSingleShot(true);
    box.Timer->setInterval(kDoneDelay);
    connect(box.Timer, &QTimer::timeout, this, [this, &box] { timer_Timer(box); });
    for (QWidget* hidden : {static_cast<QWidget*>(box.Progress), static_cast<QWidget*>(box.Done),
                            static_cast<QWidget*>(box.Cancel)})
        hidden->hide();

    auto* run = new QHBoxLayout;
    run->setSpacing(10);
    run->addWidget(box.Update);
    run->addWidget(box.Progress, 1);
    run->addWidget(box.Done);
    run->addWidget(box.Cancel);
    run->addStretch(1);
    auto* grid = new QGridLayout(box.Box);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(18);
    grid->addWidget(box.Formal, 0, 0);
    grid->addWidget(ExampleLabel(QStringLiteral("Example:  ") + formalExample, box.Box), 0, 1);
    grid->addWidget(box.Personal, 1, 0);
    grid->addWidget(ExampleLabel(QStringLiteral("Example:  ") + personalExample, box.Box), 1, 1);
    grid->addLayout(run, 2, 0, 1, 2);
    return box.Box;
}

QWidget* frmOptions::BuildEtiquettePanel() {
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("picEtiquette"));
    auto* title = new QLabel(QStringLiteral("Etiquette Preference"), panel);
    title->setObjectName(QStringLiteral("lblEtiquette"));
    title->setFont(Scaled(font(), 1.0, true));
    mEtiquette[0].Key = kInvitationsKey;
    mEtiquette[1].Key = kTentCardsKey;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(BuildEtiquetteBox(mEtiquette[0], QStringLiteral("Inner Envelope"),
                                        QStringLiteral("Inner"), QStringLiteral("Mr. and Mrs. Smith"),
                                        QStringLiteral("Dan and Nell")));
    layout->addWidget(BuildEtiquetteBox(mEtiquette[1], QStringLiteral("Tent Card"),
                                        QStringLiteral("TentCard"), QStringLiteral("Mr. and Mrs. Peter Hale"),
                                        QStringLiteral("Pete and Ann Hale")));
    layout->addStretch(1);
    return panel;
}

QWidget* frmOptions::BuildIconSide(IconSide& side) {
    const QString name = side.Bride ? QStringLiteral("Bride") : QStringLiteral("Groom");
    auto* box = new QWidget(this);
    side.Role = new QLabel(box);
    side.Role->setObjectName(QStringLiteral("lbl") + name);
    side.Role->setFont(Scaled(font(), 1.0, true));
    side.Role->setAlignment(Qt::AlignHCenter);
    side.Current = new QLabel(box);
    side.Current->setObjectName(QStringLiteral("img") + name);
    side.Current->setAlignment(Qt::AlignHCenter);
    side.Current->setToolTip(name + QStringLiteral(" icon"));

    auto* group = new QButtonGroup(box);
    auto* options = new QHBoxLayout;
    for (int number = 1; number <= modBrideGroomIcons::kOffered; ++number) {
        auto* option = new QRadioButton(box);
        option->setObjectName(QStringLiteral("opt%1_%2").arg(name).arg(number - 1));
        option->setIcon(modBrideGroomIcons::Icon(side.Bride, number));
        option->setIconSize(QSize(44, 44));
        option->setToolTip(modBrideGroomIcons::Key(side.Bride, number));
        group->addButton(option, number);
        side.Options.append(option);
        options->addWidget(option);
    }
    connect(group, &QButtonGroup::idClicked, this,
            [this, bride = side.Bride](int number) { StoreIcon(bride, number); });
    auto* more = new usrHyperlink(QStringLiteral("more..."), box);
    more->setObjectName(QStringLiteral("link") + name + QStringLiteral("More"));
    connect(more, &usrHyperlink::Click, this, [this, bride = side.Bride] { OpenMoreIcons(bride); });

    auto* layout = new QVBoxLayout(box);
    layout->addWidget(side.Role);
    layout->addWidget(side.Current);
    layout->addLayout(options);
    layout->addWidget(more, 0, Qt::AlignRight);
    return box;
}

QWidget* frmOptions::BuildIconsPanel() {
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("picIcons"));
    mIcons[0].Bride = true;
    mIcons[1].Bride = false;
    auto* sides = new QHBoxLayout;
    sides->addWidget(BuildIconSide(mIcons[0]));
    sides->addSpacing(24);
    sides->addWidget(BuildIconSide(mIcons[1]));
    sides->addStretch(1);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Choose the pictures that stand for the couple in lists, "
                                                "on the table layout and on the vows."),
                                 panel));
    layout->addLayout(sides);
    layout->addStretch(1);
    return panel;
}

QWidget* frmOptions::BuildCountryPanel() {
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("picGoogle"));
    mCountry = new QButtonGroup(panel);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    const QStringList names = CountryNames();
    for (int i = 0; i < names.size(); ++i) {
        auto* option = new QRadioButton(names[i], panel);
        option->setObjectName(QStringLiteral("optCountry_%1").arg(i));
        mCountry->addButton(option, i);
        layout->addWidget(option);
    }
    connect(mCountry, &QButtonGroup::idClicked, this, &frmOptions::optCountry_Click);
    auto* hint = new usrHint(
        QStringLiteral("This setting is used for Google Maps in Contacts, Attendees, Vendors and Events."),
        panel);
    hint->setObjectName(QStringLiteral("usrHintCountry"));
    layout->addSpacing(8);
    layout->addWidget(hint);
    layout->addStretch(1);
    return panel;
}

void frmOptions::AddShortcuts() {
    mGrid->installEventFilter(this);
    auto* add = new QShortcut(QKeySequence::New, mDictionaryPanel);
    add->setContext(Qt::WidgetWithChildrenShortcut);
    connect(add, &QShortcut::activated, this, [this] { AddEntry(); });
}

bool frmOptions::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mGrid && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (GridKey(key->key(), key->modifiers()))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool frmOptions::GridKey(int key, Qt::KeyboardModifiers modifiers) {
    const bool control = modifiers.testFlag(Qt::ControlModifier);
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        EditEntry();
        return true;
    case Qt::Key_Delete:
        DeleteEntry();
        return true;
    case Qt::Key_Insert:
        AddEntry();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (!control)
            return false;
        MoveSonglist(key == Qt::Key_Up ? -1 : +1);
        return true;
    default:
        return false;
    }
}

// ---- Panels --------------------------------------------------------------------------------------

void frmOptions::SelectKind(int kind) {
    QTreeWidgetItem* first = nullptr;
    for (QTreeWidgetItemIterator it(mLeft); *it; ++it) {
        const QVariant rowKind = (*it)->data(0, kKindRole);
        if (!rowKind.isValid())
            continue;
        if (!first)
            first = *it;
        if (rowKind.toInt() == kind) {
            first = *it;
            break;
        }
    }
    if (mLeft->currentItem() == first)
        gridLeft_Click(first); // the same row again shows it afresh
    else
        mLeft->setCurrentItem(first);
}

void frmOptions::gridLeft_Click(QTreeWidgetItem* item) {
    if (!item || !item->data(0, kKindRole).isValid())
        return;
    ShowPanel(item->data(0, kKindRole).toInt(), item->text(0));
}

void frmOptions::ShowPanel(int kind, const QString& caption) {
    mKind = kind;
    mHeader->setText(caption);
    switch (kind) {
    case Etiquette:
        LoadEtiquette();
        mStack->setCurrentWidget(mEtiquettePanel);
        return;
    case Icons:
        LoadIcons();
        mStack->setCurrentWidget(mIconsPanel);
        return;
    case Country:
        LoadCountry();
        mStack->setCurrentWidget(mCountryPanel);
        return;
    case LabelProgram:
        mLabelProgramPanel->Load();
        mStack->setCurrentWidget(mLabelProgramPanel);
        return;
    default:
        break;
    }
    const QString word = ActionWord(kind);
    mActions[0]->setCaption(QStringLiteral("Add new ") + word);
    mActions[1]->setCaption(QStringLiteral("Edit ") + word);
    mActions[2]->setCaption(QStringLiteral("Delete ") + word);
    mHint->setVisible(kind == clsDICT::Songlist);
    QStringList headers{Capitalised(word)};
    if (kind == clsDICT::Meal)
        headers << QStringLiteral("Price per person  ");
    mGrid->clear();
    mGrid->setColumnCount(static_cast<int>(headers.size()));
    mGrid->setHeaderLabels(headers);
    mGrid->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    if (headers.size() > 1)
        mGrid->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    mStack->setCurrentWidget(mDictionaryPanel);
    FillGrid();
}

// ---- Dictionaries --------------------------------------------------------------------------------

void frmOptions::FillGrid(const QString& selectId, int fallbackRow) {
    mRecords = RecordIO::Read([this] { return clsDICT().OpenRecords(mKind); });
    mGrid->clear();
    QTreeWidgetItem* selected = nullptr;
    for (const clsDICT& record : mRecords) {
        auto* item = new QTreeWidgetItem(mGrid, {record.TX});
        item->setData(0, kIdRole, record.ID);
        if (mKind == clsDICT::Meal) {
            item->setText(1, QLocale().toCurrencyString(record.PRICE_NB.toDouble()));
            item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        }
        if (!selectId.isEmpty() && record.ID == selectId)
            selected = item;
    }
    if (!selected && mGrid->topLevelItemCount() > 0)
        selected = mGrid->topLevelItem(qBound(0, fallbackRow, mGrid->topLevelItemCount() - 1));
    mGrid->setCurrentItem(selected);
    if (selected)
        mGrid->scrollToItem(selected);
    mCount->setText(QString::number(mRecords.size()) + QStringLiteral(" ") +
                    Plural(ActionWord(mKind), mRecords.size()));
    EnableActions();
}

const clsDICT* frmOptions::SelectedRecord() const {
    const QList<QTreeWidgetItem*> items = mGrid->selectedItems();
    if (items.isEmpty())
        return nullptr;
    const QString id = items.first()->data(0, kIdRole).toString();
    for (const clsDICT& record : mRecords) {
        if (record.ID == id)
            return &record;
    }
    return nullptr;
}

void frmOptions::EnableActions() {
    const bool dictionary = clsDICT::IsDictionary(mKind);
    const clsDICT* record = SelectedRecord();
    mActions[0]->setEnabled(dictionary);
    mActions[1]->setEnabled(dictionary && record);
    mActions[2]->setEnabled(dictionary && record && clsDICT::CanDelete(mKind, record->ID));
}

void frmOptions::linkAction_Click(int index) {
    switch (index) {
    case 0:
        AddEntry();
        break;
    case 1:
        EditEntry();
        break;
    case 2:
        DeleteEntry();
        break;
    default:
        break;
    }
}

void frmOptions::AddEntry() {
    if (mActions[0]->isEnabled())
        OpenEntry(clsDICT(mKind), true);
}

void frmOptions::EditEntry() {
    const clsDICT* record = SelectedRecord();
    if (record && mActions[1]->isEnabled())
        OpenEntry(*record, false);
}

void frmOptions::DeleteEntry() {
    const clsDICT* selected = SelectedRecord();
    if (!selected || !mActions[2]->isEnabled())
        return;
    const clsDICT record = *selected;
    if (ShowMessage(QStringLiteral("Delete '") + record.TX + QStringLiteral("'?"),
                    Msg::YesNo | Msg::Question) != Msg::Yes)
        return;
    const int row = mGrid->indexOfTopLevelItem(mGrid->currentItem());
    if (!RecordIO::Attempt([this, &record] { clsDICT(mKind).Delete(record.ID); }))
        return; // the refusal has been shown
    FillGrid(QString(), row);
    AnnounceDictionary(mKind);
}

void frmOptions::OpenEntry(const clsDICT& record, bool isNew) {
    frmOptionsEntry* editor = mKind == clsDICT::Meal ? new frmOptionsEntryMeal(record, isNew, this)
                                                     : new frmOptionsEntry(record, isNew, mKind, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    const auto refresh = [this, editor] { mfrmOptionsEntry_Refresh(editor->Record()); };
    connect(editor, &frmEditorBase::Added, this, refresh);
    connect(editor, &frmEditorBase::Updated, this, refresh);
    editor->open();
}

void frmOptions::mfrmOptionsEntry_Refresh(const clsDICT& record) {
    if (record.DICT_TYPE == mKind && mStack->currentWidget() == mDictionaryPanel)
        FillGrid(record.ID);
    AnnounceDictionary(record.DICT_TYPE);
}

void frmOptions::MoveSonglist(int delta) {
    if (mKind != clsDICT::Songlist || !SelectedRecord())
        return;
    const int from = mGrid->indexOfTopLevelItem(mGrid->currentItem());
    const int to = from + delta;
    if (from < 0 || to < 0 || to >= mRecords.size())
        return;
    const QString movedId = mRecords[from].ID;
    QList<clsDICT> order = mRecords;
    order.move(from, to);
    if (!RecordIO::Attempt([&order] { clsDICT::SaveSortOrder(order); }))
        return; // shown; the old order stays
    FillGrid(movedId);
    AnnounceDictionary(clsDICT::Songlist);
}

void frmOptions::AnnounceDictionary(int kind) {
    emit OptionsUpdated(kind);
}

// ---- Etiquette -----------------------------------------------------------------------------------

void frmOptions::LoadEtiquette() {
    if (mRunning)
        return;
    for (EtiquetteBox& box : mEtiquette) {
        (StoredFormal(box.Key) ? box.Formal : box.Personal)->setChecked(true);
        CheckUpdate(box);
    }
}

void frmOptions::CheckUpdate(EtiquetteBox& box) {
    box.Update->setEnabled(!mRunning && box.Formal->isChecked() != StoredFormal(box.Key));
}

void frmOptions::cmdUpdate_Click(EtiquetteBox& box) {
    if (mRunning || !box.Update->isEnabled())
        return;
    const bool formal = box.Formal->isChecked();
    SetRunning(box, true);
    const bool written = WriteEtiquette(box, formal);
    SetRunning(box, false);
    if (written) {
        box.Progress->setMaximum(qMax(1, box.Progress->maximum()));
        box.Progress->setValue(box.Progress->maximum());
        box.Done->show();
        box.Timer->start();
        if (box.Key == kInvitationsKey)
            emit EtiquetteUpdated();
        else
            emit EtiquetteTentCardUpdated();
    } else {
        box.Progress->hide();
    }
    CheckUpdate(box);
    if (mCloseAfterRun)
        QDialog::reject();
}

// The choice and the texts written from it are one piece of work: a cancel or a failure leaves both as
// they were.
bool frmOptions::WriteEtiquette(EtiquetteBox& box, bool formal) {
    if (box.Key == kInvitationsKey)
        return RelabelInvitations(box, formal);
    return RecordIO::Attempt([formal] { modEtiquette::ChangeTentCardEtiquette(formal); });
}

// The bar moves with each invitation; the events the bar lets through may bring Cancel.
bool frmOptions::RelabelInvitations(EtiquetteBox& box, bool formal) {
    const auto progress = [this, &box](qsizetype done, qsizetype total) {
        box.Progress->setMaximum(static_cast<int>(total));
        box.Progress->setValue(static_cast<int>(done));
        QCoreApplication::processEvents();
        return !mCancelRequested;
    };
    return RecordIO::Read([&] { return modEtiquette::ChangeInvitationEtiquette(formal, progress); });
}

void frmOptions::SetRunning(EtiquetteBox& box, bool running) {
    mRunning = running;
    mCancelRequested = false;
    mLeft->setEnabled(!running);
    mClose->setEnabled(!running);
    mBackupLink->setEnabled(!running);
    for (EtiquetteBox& each : mEtiquette) {
        each.Formal->setEnabled(!running);
        each.Personal->setEnabled(!running);
        each.Update->setEnabled(false);
    }
    box.Cancel->setVisible(running);
    box.Cancel->setEnabled(running);
    if (running) {
        box.Timer->stop();
        box.Done->hide();
        const long invitations =
            box.Key == kInvitationsKey ? RecordIO::Read([] { return gApp().TotalInvitations(0); }) : 0;
        box.Progress->setRange(0, static_cast<int>(invitations));
        box.Progress->setValue(0);
        box.Progress->show();
        box.Cancel->setFocus();
    }
}

void frmOptions::timer_Timer(EtiquetteBox& box) {
    box.Timer->stop();
    box.Progress->hide();
    box.Done->hide();
    CheckUpdate(box);
}

void frmOptions::reject() {
    if (mRunning) {
        mCancelRequested = true;
        mCloseAfterRun = true;
        return;
    }
    QDialog::reject();
}

// ---- Icons and country ---------------------------------------------------------------------------

void frmOptions::LoadIcons() {
    for (IconSide& side : mIcons)
        ShowIconSide(side);
}

void frmOptions::ShowIconSide(IconSide& side) {
    clsDICT role(clsDICT::Role);
    RecordIO::Read(
        [&role, &side] { return role.OpenRecord(side.Bride ? QStringLiteral("1") : QStringLiteral("2")); });
    side.Role->setText(role.TX.isEmpty() ? (side.Bride ? QStringLiteral("Bride") : QStringLiteral("Groom"))
                                         : role.TX);
    const int number = modBrideGroomIcons::StoredNumber(side.Bride);
    side.Current->setPixmap(IconPixmap(modBrideGroomIcons::Icon(side.Bride, number), 72, this));
    // A picture chosen among the larger set leaves the three options unchecked.
    for (int i = 0; i < side.Options.size(); ++i) {
        QRadioButton* option = side.Options[i];
        option->group()->setExclusive(false);
        option->setChecked(i + 1 == number);
        option->group()->setExclusive(true);
    }
}

void frmOptions::StoreIcon(bool bride, int number) {
    if (!RecordIO::Attempt(
            [bride, number] { gVowren().QuickUpdate(bride ? 1 : 2, QString::number(number)); }))
        return;
    ShowIconSide(mIcons[bride ? 0 : 1]);
    emit IconsUpdated();
}

void frmOptions::OpenMoreIcons(bool bride) {
    auto* chooser = new frmBrideGroomIcons(bride, modBrideGroomIcons::StoredNumber(bride), this);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &frmBrideGroomIcons::IconChosen, this, &frmOptions::StoreIcon);
    chooser->open();
}

void frmOptions::LoadCountry() {
    QAbstractButton* option = mCountry->button(clsVOWREN::MapCountryIndex());
    if (option)
        option->setChecked(true);
}

void frmOptions::optCountry_Click(int index) {
    if (RecordIO::Attempt([index] { gVowren().QuickUpdate(kCountryKey, QString::number(index)); }))
        emit CountryUpdated();
    else
        LoadCountry();
}
