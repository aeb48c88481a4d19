#include "guests/ui/frmMain_04_Attendees.h"

#include "core/FilterCode.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "guests/ui/GuestIcons.h"
#include "guests/ui/frmAttendee.h"
#include "guests/ui/modBulkRun.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace {

const QString kBrideGroomNote = QStringLiteral("Attendee counts include the bride and groom.");

using Column = frmMain_04_Attendees::Column;

QList<clsGridColumn> AttendeeColumns() {
    using K = GridColumnKind;
    clsGridColumn table =
        clsGridColumn(QStringLiteral("TABLE_NB"), QStringLiteral("Table #"), 58).OfKind(K::Number);
    table.Alignment = Qt::AlignCenter; // apart from the table's name beside it
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("ICO"), QString(), 28).OfKind(K::Icon),
        clsGridColumn(QStringLiteral("RSVP_ID"), QStringLiteral("RSVP ID"), 64)
            .OfKind(K::Number)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("ATTENDEE_NM"), QStringLiteral("Attendee Name"), 180).StoreWidth(),
        clsGridColumn(QStringLiteral("FRIEND_OF"), QStringLiteral("Friend of"), 66).StoreWidth(),
        clsGridColumn(QStringLiteral("GENDER_FG"), QStringLiteral("Gender"), 88).StoreWidth(),
        clsGridColumn(QStringLiteral("OUT_OF_TOWNER_FG"), QStringLiteral("Out of Towner"), 92).StoreWidth(),
        clsGridColumn(QStringLiteral("MEAL"), QStringLiteral("Meal"), 104).StoreWidth(),
        table.StoreWidth(),
        clsGridColumn(QStringLiteral("TABLE_NM"), QStringLiteral("Table Name"), 96).StoreWidth(),
        clsGridColumn(QStringLiteral("HOTEL_NM"), QStringLiteral("Hotel"), 96).StoreWidth(),
        clsGridColumn(QStringLiteral("FLIGHT_NM"), QStringLiteral("Flight"), 96).StoreWidth(),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

// Last name first; a guest known by no name shows without the comma of an empty last name ("John's
// Guest"), or by whom they come with when they have no first name either.
QString ListName(const clsCONTACT& c) {
    if (c.IsAnonymousGuest() && c.FIRST_NM.isEmpty())
        return QStringLiteral("Guest of ") + c.GUEST_OF_FULL_NM().trimmed();
    if (c.FIRST_NM.isEmpty() && c.LAST_NM.isEmpty())
        return c.ROLE_TX; // the bride or the groom before their names are known
    const QString name = c.LastFirstMiddleSuffix();
    return name.startsWith(QLatin1String(", ")) ? name.mid(2) : name;
}

// An attendee's row, on fill and on refresh alike.
clsGridCells& WriteRow(clsGridCells& cells, const clsCONTACT& c) {
    return cells.Icon(Column::ICO, GuestIcons::PersonIndex(c))
        .Number(Column::RSVP_ID, c.INVITE_RSVP_ID)
        .Set(Column::ATTENDEE_NM, ListName(c))
        .Set(Column::FRIEND_OF, c.FRIEND_OF_TX())
        .Set(Column::GENDER_FG, c.GENDER_FG_WITH_CHILD_Text())
        .Set(Column::OUT_OF_TOWNER_FG, c.OUT_OF_TOWNER_FG_Text())
        .Set(Column::MEAL, c.MEAL_TX)
        .Number(Column::TABLE_NB, c.DINING_TABLE_NB)
        .Set(Column::TABLE_NM, c.DINING_TABLE_NM)
        .Set(Column::HOTEL_NM, c.HOTEL_NM)
        .Set(Column::FLIGHT_NM, c.FLIGHT_NM);
}

// A meal entry lists by a condition of its own.
constexpr int kCustomFilter = ContactFilter::Custom;

} // namespace

frmMain_04_Attendees::frmMain_04_Attendees(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_04_Attendees"), parent) {
    SetRecordNoun(QStringLiteral("attendee"));
    SetEmptyText(
        QStringLiteral("Nobody is attending yet. Record the replies on the RSVPs page, and the guests "
                       "who are coming appear here."),
        QStringLiteral("No attendees match."));
    using F = ContactFilter::Code;
    QList<FilterEntry> entries{{F::Attending, QStringLiteral("All Attendees")},
                               {F::AttendingFriendOfBride, QStringLiteral("Bride")},
                               {F::AttendingFriendOfGroom, QStringLiteral("Groom")},
                               {F::AttendingFriendOfBoth, QStringLiteral("Both")},
                               {F::AttendingAList, QStringLiteral("A list")},
                               {F::AttendingBList, QStringLiteral("B list")},
                               {F::AttendingMale, QStringLiteral("Male")},
                               {F::AttendingFemale, QStringLiteral("Female")},
                               {F::AttendingAdult, QStringLiteral("Adult")},
                               {F::AttendingChild, QStringLiteral("Child")},
                               {F::AttendingLocal, QStringLiteral("Local")},
                               {F::AttendingOutOfTowner, QStringLiteral("Out of Towner")},
                               {F::Seated, QStringLiteral("Seated")},
                               {F::ToBeSeated, QStringLiteral("To be seated")}};
    SetFilterEntries(entries + MealEntries());
    AddPanelWidget(BuildInfo());
    Grid()->Model()->SetImages(GuestIcons::All());
    SetColumns(AttendeeColumns());
    BuildActions();
    BuildMenu();
    SetRowMenu(mMenu);
}

// One entry per meal of the meal list, made afresh at each visit, and one for those without a meal.
QList<usrListPage::FilterEntry> frmMain_04_Attendees::MealEntries() {
    QList<FilterEntry> entries;
    int index = FirstMeal;
    for (const clsDICT& meal : RecordIO::Read([] { return clsDICT().OpenRecords(clsDICT::Meal); })) {
        mMealText.insert(index, meal.TX);
        mMealId.insert(index, meal.ID);
        entries.append({index, meal.TX, entries.isEmpty() ? QStringLiteral("Meals") : QString()});
        ++index;
    }
    entries.append(
        {NoMeal, QStringLiteral("No meal chosen"), entries.isEmpty() ? QStringLiteral("Meals") : QString()});
    return entries;
}

QWidget* frmMain_04_Attendees::BuildInfo() {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* info = new QToolButton(box);
    info->setObjectName(QStringLiteral("imgInfo"));
    info->setIcon(ControlIcons::Information());
    info->setAutoRaise(true);
    info->setToolTip(kBrideGroomNote);
    info->setAccessibleName(kBrideGroomNote);
    connect(info, &QToolButton::clicked, this, [] { ShowMessage(kBrideGroomNote, Msg::Information); });
    auto* text = new QLabel(kBrideGroomNote, box);
    text->setObjectName(QStringLiteral("lblInfo"));
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::PlaceholderText);
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // the panel's width is the entries'
    text->setMinimumHeight(2 * text->fontMetrics().lineSpacing());
    row->addWidget(info, 0, Qt::AlignTop);
    row->addWidget(text, 1);
    return box;
}

void frmMain_04_Attendees::BuildActions() {
    AddAction(EditAttendee, QStringLiteral("Edit attendee"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()));
    });
    // The sub-pages of seating and travel, shown over this page; those not built yet stay disabled.
    const QList<std::tuple<int, QString, QString>> subPages = {
        {TableLayout, QStringLiteral("Table layout"), modPages::TablesSubPage()},
        {Hotels, QStringLiteral("Hotels"), modPages::HotelsSubPage()},
        {Flights, QStringLiteral("Flights"), modPages::FlightsSubPage()},
        {Tentcards, QStringLiteral("Tentcards"), modPages::TentcardsSubPage()}};
    for (const auto& [index, caption, form] : subPages) {
        usrHyperlink* link = AddAction(index, caption, [this, form] { emit ShowSubPage(modPages::kAttendees, form); });
        if (!modPages::HasSubPage(form)) {
            link->setEnabled(false);
            link->setToolTip(modPages::NotAvailableText());
        }
    }
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Attendees, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
    AddCustomizeColumnsAction(CustomizeColumns);
}

void frmMain_04_Attendees::BuildMenu() {
    mMenu = new QMenu(this);
    mMenu->setObjectName(QStringLiteral("mnuAction"));
    AddActionItems(mMenu, {EditAttendee});
    mMenu->addSeparator();
    QStringList meals;
    for (const QString& meal : std::as_const(mMealText))
        meals.append(meal);
    const QStringList mealIds = mMealId.values();
    AddChoiceMenu(QStringLiteral("mnuMeal"), QStringLiteral("Meal"), meals,
                  [mealIds](clsCONTACT& c, int i) { c.MEAL_ID = mealIds.at(i); });
    AddChoiceMenu(QStringLiteral("mnuFRIEND_OF_CD"), QStringLiteral("Friend of"),
                  {QStringLiteral("Friend of Bride"), QStringLiteral("Friend of Groom"),
                   QStringLiteral("Friend of Both")},
                  [](clsCONTACT& c, int i) { c.FRIEND_OF_CD = QString::number(i + 1); });
}

void frmMain_04_Attendees::AddChoiceMenu(const QString& name, const QString& title,
                                         const QStringList& captions,
                                         const std::function<void(clsCONTACT&, int)>& apply) {
    QMenu* menu = mMenu->addMenu(title);
    menu->setObjectName(name);
    for (int i = 0; i < captions.size(); ++i) {
        QAction* item = menu->addAction(captions[i], this, [this, apply, i] {
            ChangeSelected([&apply, i](clsCONTACT& c) { apply(c, i); });
        });
        item->setObjectName(name + QLatin1Char('_') + QString::number(i));
    }
}

// ---- The panel and the grid ----------------------------------------------------------------------------

QString frmMain_04_Attendees::MealCondition(int filterId) const {
    if (!mMealText.contains(filterId))
        return {};
    return QStringLiteral("CONTACT.ATTENDING_FG = 'Y' AND MEAL_DICT.MEAL_TX = ") +
           QuoteSQL(mMealText.value(filterId));
}

// The bride and groom count as attendees here, though no invitation goes to them.
long frmMain_04_Attendees::CountOf(int filterId) const {
    const QString meal = MealCondition(filterId);
    return meal.isEmpty() ? gApp().TotalContacts(filterId, {}, false)
                          : gApp().TotalContacts(kCustomFilter, meal, false);
}

int frmMain_04_Attendees::FillRows(clsGridFill& fill, int filterId) {
    const QString meal = MealCondition(filterId);
    QList<clsCONTACT> attendees = RecordIO::Read([&] {
        return meal.isEmpty() ? clsCONTACT::OpenRecords(filterId, {}, {}, false)
                              : clsCONTACT::OpenRecords(kCustomFilter, meal, {}, false);
    });
    for (clsCONTACT& contact : attendees)
        WriteRow(fill.Row(contact.CONTACT_ID.toLongLong()), contact).Keep(std::move(contact));
    return static_cast<int>(attendees.size());
}

void frmMain_04_Attendees::SetRowCells(const QModelIndex& row, const clsCONTACT& contact) {
    Grid()->Model()->Rewrite(row, [&contact](clsGridCells& cells) { WriteRow(cells, contact).Keep(contact); });
}

void frmMain_04_Attendees::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_04_Attendees::UpdateActions() {
    ActionLink(EditAttendee)->setEnabled(SelectedKeys().size() == 1);
}

// ---- Editor, sub-pages and changes to many ------------------------------------------------------------

void frmMain_04_Attendees::OpenEditor(const QString& contactId) {
    frmAttendee editor(contactId, this);
    connect(&editor, &frmAttendee::AttendeeUpdated, this,
            &frmMain_04_Attendees::mfrmAttendee_AttendeeUpdated);
    editor.exec();
}

void frmMain_04_Attendees::mfrmAttendee_AttendeeUpdated(const QString& contactId) {
    clsCONTACT contact;
    const QModelIndex row = RowOfKey(contactId.toLongLong());
    if (!RecordIO::Read([&] { return contact.OpenRecord(contactId); }) ||
        contact.ATTENDING_FG != QLatin1String("Y") || !row.isValid()) {
        Reload(); // the person leaves the list, and the count with them
        return;
    }
    SetRowCells(row, contact);
    RefreshPanel();
}

void frmMain_04_Attendees::SubPageClosed(const QString& formName) {
    if (formName == modPages::TablesSubPage())
        mfrmMain_04_Attendees_Tables_Closing();
    else if (formName == modPages::HotelsSubPage())
        mfrmMain_04_Attendees_Hotels_Closing();
    else if (formName == modPages::FlightsSubPage())
        mfrmMain_04_Attendees_Flights_Closing();
}

void frmMain_04_Attendees::mfrmMain_04_Attendees_Tables_Closing() {
    Reload();
}
void frmMain_04_Attendees::mfrmMain_04_Attendees_Hotels_Closing() {
    Reload();
}
void frmMain_04_Attendees::mfrmMain_04_Attendees_Flights_Closing() {
    Reload();
}

bool frmMain_04_Attendees::ChangeSelected(const std::function<void(clsCONTACT&)>& change) {
    const QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return false;
    QStringList saved;
    const bool ok = modBulkRun::RunWithProgress(
        this, QStringLiteral("Saving attendees…"), [&](const clsProgress& progress) {
            // Neither meal nor side changes an envelope.
            saved = clsCONTACT::ChangeMany(modBulkRun::LastToFirst(keys), change, false, progress);
        });
    if (ok) {
        for (const QString& id : std::as_const(saved)) {
            clsCONTACT shown; // read again, for the meal's text
            if (RecordIO::Read([&] { return shown.OpenRecord(id); }))
                SetRowCells(RowOfKey(id.toLongLong()), shown);
        }
    }
    RefreshPanel();
    return ok;
}
