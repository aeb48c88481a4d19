#include "seating/ui/frmMain_04_Attendees_Tables.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsColor.h"
#include "guests/clsCONTACT.h"
#include "platform/clsShell.h"
#include "reports/clsReportCatalogue.h"
#include "seating/ui/clsBoardSteps.h"
#include "seating/ui/clsGuestRoster.h"
#include "seating/ui/frmTable.h"
#include "seating/ui/frmTableSwap.h"
#include "seating/ui/modTableShapes.h"
#include "seating/ui/usrDiningTable.h"
#include "seating/ui/usrFloorPlan.h"
#include "seating/ui/usrSeatingRules.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QSplitter>
#include <QTreeWidget>
#include <QUndoCommand>
#include <QUndoStack>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

namespace {

using FloorPlan::IdRole;
using FloorPlan::IsGroupRole;
// The smallest floor; a larger wedding's tables make it grow to hold them all with a cell to spare.
const QSizeF kMinimumFloor(1600, 1200);
// The picture of the layout, scaled to fit; the PNG has twice as many pixels each way.
const QSize kPictureSize(960, 720);
// The report of the tables section that carries the picture.
constexpr int kTableOverviewRow = 2;

QString Plural(long count, const QString& one, const QString& many) {
    return count == 1 ? one : many;
}

// The small picture of a table in the tree: round for shape 1, square for the others, highlighted for
// the selected table.
QIcon TableIcon(int shapeType, bool selected) {
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintTableShape(painter, QRectF(0, 0, 32, 32), shapeType == RoundTable ? RoundTable : SquareTable,
                    selected);
    return QIcon(pixmap);
}

QIcon NodeIcon(const QString& shapeType, bool selected) {
    static const QIcon icons[2][2] = {{TableIcon(RoundTable, false), TableIcon(RoundTable, true)},
                                      {TableIcon(SquareTable, false), TableIcon(SquareTable, true)}};
    return icons[shapeType == QLatin1String("1") ? 0 : 1][selected ? 1 : 0];
}

// A small padlock, shown while the tables can't be moved.
QPixmap LockPicture() {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor metal(0x8a, 0x3c, 0x63);
    painter.setPen(QPen(metal, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(4.5, 1.5, 7, 9), 3.5, 3.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(metal);
    painter.drawRoundedRect(QRectF(2, 7, 12, 8), 1.5, 1.5);
    return pixmap;
}

QString NodeText(const clsDINING_TABLE& table) {
    return table.DINING_TABLE_NM.isEmpty()
               ? table.DINING_TABLE_NB
               : table.DINING_TABLE_NB + QStringLiteral(" - ") + table.DINING_TABLE_NM;
}

} // namespace

frmMain_04_Attendees_Tables::frmMain_04_Attendees_Tables(QWidget* parent) : usrPage(parent) {
    setObjectName(modPages::TablesSubPage());
    mUndo = new QUndoStack(this);
    const QList<QAction*> undoRedo = FloorPlan::UndoActions(this, mUndo);
    mUndoAction = undoRedo.value(0);
    mRedoAction = undoRedo.value(1);
    auto* fit = new QAction(QStringLiteral("Fit the floor"), this);
    fit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    fit->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(fit, &QAction::triggered, this, &frmMain_04_Attendees_Tables::ZoomToFit);
    addAction(fit);

    auto* floor = new clsFloorScene(this);
    floor->Grid = gApp().ShowGrid() != 0;
    mFloor = floor;
    picFloor = new usrFloorView(mFloor, this);
    picFloor->setObjectName(QStringLiteral("picFloor"));
    picFloor->setRenderHint(QPainter::Antialiasing);
    picFloor->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    picFloor->setContextMenuPolicy(Qt::CustomContextMenu);
    picFloor->installEventFilter(this);
    picFloor->setViewportUpdateMode(QGraphicsView::SmartViewportUpdate);
    connect(picFloor, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        const QPoint global = picFloor->viewport()->mapToGlobal(at);
        QGraphicsItem* item = picFloor->itemAt(at);
        auto* table = item ? qobject_cast<usrDiningTable*>(item->toGraphicsObject()) : nullptr;
        if (!table) {
            ShowFloorMenu(global);
            return;
        }
        SelectTable(table->DINING_TABLE.DINING_TABLE_ID);
        ShowTableMenu(global);
    });

    // The floor shares its side of the page with the seating rules.
    auto* board = new QSplitter(this);
    board->addWidget(picFloor);
    board->addWidget(new usrSeatingRules(this));
    board->setStretchFactor(0, 1);
    board->setSizes({720, 260});
    FloorPlan::SplitPage(this, BuildLeft(), board);
    BuildMenus();
    Reload();
}

QWidget* frmMain_04_Attendees_Tables::BuildLeft() {
    auto* left = new QWidget(this);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    BuildLinks(column);

    lblTable = new QLabel(left);
    lblTable->setObjectName(QStringLiteral("lblTable"));
    chkGrid = new QCheckBox(QStringLiteral("Show Grid"), left);
    chkGrid->setObjectName(QStringLiteral("chkGrid"));
    chkGrid->setChecked(gApp().ShowGrid() != 0);
    connect(chkGrid, &QCheckBox::toggled, this, [this](bool on) {
        gApp().SetShowGrid(on ? 1 : 0);
        static_cast<clsFloorScene*>(mFloor)->Grid = on;
        mFloor->update();
    });
    chkReveal = new QCheckBox(QStringLiteral("Reveal Status"), left);
    chkReveal->setObjectName(QStringLiteral("chkReveal"));
    chkReveal->setChecked(gApp().RevealTableStatus() != 0);
    connect(chkReveal, &QCheckBox::toggled, this, [this](bool on) {
        gApp().SetRevealTableStatus(on ? 1 : 0);
        for (const QString& id : mTables.keys())
            RefreshTable(id);
    });
    auto* hint = new QLabel(QStringLiteral("Drag attendee(s) to the desired table"), left);
    hint->setObjectName(QStringLiteral("lblHint"));
    lblAttendees = new QLabel(left);
    lblAttendees->setObjectName(QStringLiteral("lblAttendees"));

    usrGuestTree* list = FloorPlan::GuestList(left);
    list->OnDrop = [this](const QStringList& ids, bool, const QString&) { UnseatGuests(ids); };
    lvw = list;

    usrGuestTree* tree = FloorPlan::GroupTree(left);
    tree->OnDrop = [this](const QStringList& ids, bool, const QString& table) { SeatGuests(table, ids); };
    tree->GroupOfRow = [this](QTreeWidgetItem* item) { return mRoster->GroupOfRow(item); };
    connect(tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { OnTreeClicked(item); });
    connect(tree, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        QTreeWidgetItem* item = tvw->itemAt(at);
        if (!item)
            return;
        OnTreeClicked(item);
        const QPoint global = tvw->viewport()->mapToGlobal(at);
        if (item->data(0, IsGroupRole).toBool())
            ShowTableMenu(global);
        else
            mnuHiddenSeatedAttendeeRoot->popup(global);
    });
    tvw = tree;
    mRoster = std::make_unique<clsGuestRoster>(lvw, tvw);
    mRoster->GroupChanged = [this](const QString& table, int change) {
        mTaken[table] = std::max(0L, mTaken.value(table) + change);
        RefreshTable(table);
    };

    for (QWidget* w : std::initializer_list<QWidget*>{lblTable, chkGrid, chkReveal, hint, lblAttendees, lvw})
        column->addWidget(w);
    FloorPlan::CountRow(column, &lblCount, &lblDiningTables, QStringLiteral("lblDiningTables"));
    column->addWidget(tvw);
    column->setStretchFactor(lvw, 1);
    column->setStretchFactor(tvw, 2);
    return left;
}

void frmMain_04_Attendees_Tables::BuildLinks(QVBoxLayout* column) {
    const QList<QPair<QString, std::function<void()>>> links = {
        {QStringLiteral("Add new table"), [this] { OpenTableEditor(QString()); }},
        {QStringLiteral("Edit table"), [this] { OpenTableEditor(mSelected); }},
        {QStringLiteral("Delete table"), [this] { DeleteSelectedTable(); }},
        {QStringLiteral("Empty table"), [this] { EmptySelectedTable(); }},
        {QStringLiteral("Swap tables"), [this] { OpenTableSwap(); }},
        {QStringLiteral("Lock table layout"), [this] { ToggleLock(); }},
        {QStringLiteral("Print reports"), [this] { PrintLayout(); }},
        {QStringLiteral("View table layout picture"),
         [] { gShell().OpenDocument(gApp().ReportPath() + QStringLiteral("/TableLayout.bmp")); }},
    };
    for (int i = 0; i < links.size(); ++i) {
        auto* link = new usrHyperlink(links[i].first, this);
        link->setObjectName(QStringLiteral("linkAction_") + QString::number(i));
        connect(link, &usrHyperlink::Click, this, links[i].second);
        linkAction << link;
        if (i == LockTableLayout) {
            auto* row = new QHBoxLayout;
            imgLock = new QLabel(this);
            imgLock->setObjectName(QStringLiteral("imgLock"));
            imgLock->setPixmap(LockPicture());
            row->addWidget(link);
            row->addWidget(imgLock);
            row->addStretch(1);
            column->addLayout(row);
        } else {
            column->addWidget(link);
        }
    }
}

void frmMain_04_Attendees_Tables::BuildMenus() {
    auto menuOf = [this](const char* name, const QList<QPair<QString, std::function<void()>>>& items) {
        auto* menu = new QMenu(this);
        menu->setObjectName(QLatin1String(name));
        for (const auto& [caption, run] : items)
            menu->addAction(caption, this, run);
        return menu;
    };
    mnuHiddenTableRoot =
        menuOf("mnuHiddenTableRoot", {{QStringLiteral("Edit table"), [this] { OpenTableEditor(mSelected); }},
                                      {QStringLiteral("Delete table"), [this] { DeleteSelectedTable(); }},
                                      {QStringLiteral("Empty table"), [this] { EmptySelectedTable(); }},
                                      {QStringLiteral("Swap tables"), [this] { OpenTableSwap(); }}});
    mnuHiddenTableLayoutRoot =
        menuOf("mnuHiddenTableLayoutRoot",
               {{QStringLiteral("Add new table"), [this] { OpenTableEditor(QString()); }}});
    mnuHiddenTableLayoutRoot->addSeparator();
    mnuHiddenTableLayoutRoot->addAction(QStringLiteral("Empty all tables"), this,
                                        [this] { EmptyAllTables(); });
    mnuHiddenTableLayoutRoot->addAction(QStringLiteral("Delete all tables"), this,
                                        [this] { DeleteAllTables(); });
    mnuHiddenSeatedAttendeeRoot = menuOf(
        "mnuHiddenSeatedAttendeeRoot",
        {{QStringLiteral("Remove Attendee"), [this] { UnseatGuests(mRoster->SelectedTreeGuests()); }}});
}

void frmMain_04_Attendees_Tables::showEvent(QShowEvent* event) {
    usrPage::showEvent(event);
    if (mShown)
        return;
    mShown = true;
    emit Breadcrumb(QStringLiteral("Attendees>Table layout"));
}

void frmMain_04_Attendees_Tables::Leaving() {
    WriteLayoutPicture();
}

// ---- Loading ------------------------------------------------------------------------------------------

void frmMain_04_Attendees_Tables::Reload() {
    mUndo->clear();
    const QString selected = mSelected;
    mSelected.clear();
    LoadTables();
    LoadGuests();
    RefreshCounts();
    if (mTables.contains(selected))
        SelectTable(selected);
    UpdateLinks();
}

void frmMain_04_Attendees_Tables::LoadTables() {
    mFloor->clear();
    mTables.clear();
    mRoster->Clear();
    const QList<clsDINING_TABLE> tables = RecordIO::Read([] { return clsDINING_TABLE::OpenRecords(); });
    mTaken = RecordIO::Read([] { return modSeating::SeatsTakenByTable(); });
    QSizeF needed = kMinimumFloor;
    for (const clsDINING_TABLE& table : tables) {
        usrDiningTable* item = AddTableItem(table);
        const QRectF box = item->sceneBoundingRect();
        needed = needed.expandedTo(
            QSizeF(box.right() + modSeating::kCellPixels, box.bottom() + modSeating::kCellPixels));
        AddTableNode(table);
    }
    mFloorSize = needed;
    mFloor->setSceneRect(QRectF(QPointF(0, 0), mFloorSize));
}

usrDiningTable* frmMain_04_Attendees_Tables::AddTableItem(const clsDINING_TABLE& table) {
    auto* item = new usrDiningTable;
    item->SetDINING_TABLE(table);
    item->setPos(PixelsOf(table));
    item->SetMovable(!gApp().LockTableLayout());
    mFloor->addItem(item);
    mTables.insert(table.DINING_TABLE_ID, item);
    connect(item, &usrFloorItem::Clicked, this, [this](usrFloorItem* t) { SelectTable(t->Key()); });
    connect(
        item, &usrFloorItem::Dropped, this,
        [this](usrFloorItem* t, const QPointF& at, const QPointF& grab) { DropTable(t->Key(), at, grab); });
    connect(item, &usrFloorItem::GuestsDropped, this,
            [this](usrFloorItem* t, const QStringList& ids, bool) { SeatGuests(t->Key(), ids); });
    RefreshTable(table.DINING_TABLE_ID);
    return item;
}

void frmMain_04_Attendees_Tables::AddTableNode(const clsDINING_TABLE& table) {
    mRoster->AddGroup(table.DINING_TABLE_ID, NodeText(table), NodeIcon(table.DINING_TABLE_TYPE_ID, false));
}

void frmMain_04_Attendees_Tables::LoadGuests() {
    const QList<clsCONTACT> seated =
        RecordIO::Read([] { return clsCONTACT::OpenRecords(ContactFilter::Seated); });
    const QList<clsCONTACT> unseated =
        RecordIO::Read([] { return clsCONTACT::OpenRecords(ContactFilter::ToBeSeated); });
    mRoster->Load(
        seated, [](const clsCONTACT& c) { return c.DINING_TABLE_ID; }, unseated);
}

// ---- The views, item by item ----------------------------------------------------------------------------

QPointF frmMain_04_Attendees_Tables::PixelsOf(const clsDINING_TABLE& table) const {
    return {table.POS_X.toDouble() / modSeating::kTwipsPerPixel,
            table.POS_Y.toDouble() / modSeating::kTwipsPerPixel};
}

QPoint frmMain_04_Attendees_Tables::TwipsOf(const QPointF& pixels) const {
    return {qRound(pixels.x() * modSeating::kTwipsPerPixel), qRound(pixels.y() * modSeating::kTwipsPerPixel)};
}

QSizeF frmMain_04_Attendees_Tables::FloorSize() const {
    return mFloorSize;
}

// The table's colour by its free seats, and the status line when it is the selected one.
void frmMain_04_Attendees_Tables::RefreshTable(const QString& tableId) {
    usrDiningTable* item = mTables.value(tableId);
    if (!item)
        return;
    const long free = item->DINING_TABLE.SEATS_NB.toLong() - mTaken.value(tableId);
    const clsColor green = clsColor::GreenHighlight();
    const bool reveal = chkReveal && chkReveal->isChecked();
    item->setBackColor(reveal && free > 0 ? QColor(green.RedPart(), green.GreenPart(), green.BluePart())
                                          : QColor());
    if (tableId == mSelected)
        lblTable->setText(StatusLine());
}

QString frmMain_04_Attendees_Tables::StatusLine() const {
    const usrDiningTable* item = mTables.value(mSelected);
    return item ? modSeating::StatusText(item->DINING_TABLE, mTaken.value(mSelected)) : QString();
}

void frmMain_04_Attendees_Tables::RefreshCounts() {
    const long tables = mTables.size();
    lblCount->setText(QString::number(tables));
    lblDiningTables->setText(Plural(tables, QStringLiteral("Dining Table"), QStringLiteral("Dining Tables")));
    lblAttendees->setText(QStringLiteral("Attendees to be seated (%1)").arg(mRoster->ListCount()));
}

void frmMain_04_Attendees_Tables::UpdateTableNodeIcon(const QString& tableId) {
    if (QTreeWidgetItem* node = mRoster->GroupNode(tableId))
        node->setIcon(
            0, NodeIcon(mTables.value(tableId)->DINING_TABLE.DINING_TABLE_TYPE_ID, tableId == mSelected));
}

void frmMain_04_Attendees_Tables::SelectTable(const QString& tableId) {
    if (!mTables.contains(tableId))
        return;
    const QString old = mSelected;
    if (usrDiningTable* before = mTables.value(old))
        before->LoseFocus();
    mSelected = tableId;
    mTables[tableId]->Highlight();
    UpdateTableNodeIcon(old);
    UpdateTableNodeIcon(tableId);
    tvw->setCurrentItem(mRoster->GroupNode(tableId));
    lblTable->setText(StatusLine());
    UpdateLinks();
}

void frmMain_04_Attendees_Tables::UpdateLinks() {
    const bool locked = gApp().LockTableLayout();
    const bool selected = mTables.contains(mSelected);
    linkAction[AddNewTable]->setEnabled(!locked);
    for (int i : {EditTable, DeleteTable, EmptyTable})
        linkAction[i]->setEnabled(!locked && selected);
    linkAction[SwapTables]->setEnabled(!locked && mTables.size() >= 2);
    linkAction[LockTableLayout]->setCaption((locked ? QStringLiteral("Unlock") : QStringLiteral("Lock")) +
                                            QStringLiteral(" table layout"));
    imgLock->setVisible(locked);
    for (usrDiningTable* item : std::as_const(mTables))
        item->SetMovable(!locked);
}

// ---- Drops ----------------------------------------------------------------------------------------------

bool frmMain_04_Attendees_Tables::SeatGuests(const QString& tableId, const QStringList& contactIds) {
    if (!mTables.contains(tableId) || contactIds.isEmpty())
        return false;
    modSeating::SeatResult result;
    if (!RecordIO::Attempt([&] { result = modSeating::SeatContacts(tableId, contactIds); }))
        return false;
    if (!result.Seated) {
        ShowMessage(result.Message, Msg::Exclamation);
        return false;
    }
    modSeating::Seats after;
    for (auto it = result.Previous.cbegin(); it != result.Previous.cend(); ++it) {
        after.insert(it.key(), tableId);
        mRoster->Show(it.key(), tableId);
    }
    if (!after.isEmpty())
        mUndo->push(
            new clsGuestsStep(ApplySeatsStep(), result.Previous, after, QStringLiteral("Seat attendees")));
    SelectTable(tableId);
    RefreshCounts();
    return true;
}

bool frmMain_04_Attendees_Tables::UnseatGuests(const QStringList& contactIds) {
    if (contactIds.isEmpty())
        return false;
    modSeating::Seats before;
    if (!RecordIO::Attempt([&] { before = modSeating::Unseat(contactIds); }))
        return false;
    modSeating::Seats after;
    for (const QString& id : contactIds) {
        after.insert(id, QString());
        mRoster->Show(id, QString());
    }
    mUndo->push(new clsGuestsStep(ApplySeatsStep(), before, after, QStringLiteral("Remove attendee")));
    RefreshCounts();
    return true;
}

bool frmMain_04_Attendees_Tables::ApplySeats(const modSeating::Seats& seats) {
    if (!RecordIO::Attempt([&] { modSeating::RestoreSeats(seats); }))
        return false;
    for (auto it = seats.cbegin(); it != seats.cend(); ++it)
        mRoster->Show(it.key(), it.value());
    RefreshCounts();
    return true;
}

void frmMain_04_Attendees_Tables::PushSeatsStep(const modSeating::Seats& before, const modSeating::Seats& after,
                                                const QString& text) {
    mUndo->push(new clsGuestsStep(ApplySeatsStep(), before, after, text));
}

clsGuestsStep::Apply frmMain_04_Attendees_Tables::ApplySeatsStep() {
    return [this](const GuestPlaces& seats) { return ApplySeats(seats); };
}

void frmMain_04_Attendees_Tables::OnTreeClicked(QTreeWidgetItem* item) {
    if (item && item->data(0, IsGroupRole).toBool())
        SelectTable(mRoster->GroupOfRow(item));
}

// The table, its size and the floor's, in twips, for working out where it lands.
modSeating::TablePlacement frmMain_04_Attendees_Tables::PlacementOf(const usrDiningTable* item) const {
    modSeating::TablePlacement place;
    const QPoint size = TwipsOf(item->boundingRect().bottomRight());
    const QPoint floor = TwipsOf(QPointF(mFloorSize.width(), mFloorSize.height()));
    place.Width = size.x();
    place.Height = size.y();
    place.FloorWidth = floor.x();
    place.FloorHeight = floor.y();
    place.ShapeType = item->DINING_TABLE.DINING_TABLE_TYPE_ID.toInt();
    return place;
}

// Saves the table where the placement puts it and keeps the move as a step.
bool frmMain_04_Attendees_Tables::PlaceTable(usrDiningTable* item, const modSeating::TablePlacement& place) {
    const QString id = item->DINING_TABLE.DINING_TABLE_ID;
    const QPoint before(item->DINING_TABLE.POS_X.toInt(), item->DINING_TABLE.POS_Y.toInt());
    const QPoint after = modSeating::PlaceTable(place);
    if (!ApplyTablePosition(id, after)) {
        item->setPos(PixelsOf(item->DINING_TABLE));
        return false;
    }
    if (after != before)
        mUndo->push(new clsMoveStep([this, id](const QPoint& twips) { return ApplyTablePosition(id, twips); },
                                    before, after, QStringLiteral("Move table")));
    return true;
}

bool frmMain_04_Attendees_Tables::DropTable(const QString& tableId, const QPointF& scenePos,
                                            const QPointF& grab) {
    usrDiningTable* item = mTables.value(tableId);
    if (!item || gApp().LockTableLayout())
        return false;
    modSeating::TablePlacement place = PlacementOf(item);
    const QPoint at = TwipsOf(scenePos), held = TwipsOf(grab);
    place.X = at.x();
    place.Y = at.y();
    place.GrabX = held.x();
    place.GrabY = held.y();
    return PlaceTable(item, place);
}

bool frmMain_04_Attendees_Tables::StepSelectedTable(int dx, int dy) {
    usrDiningTable* item = mTables.value(mSelected);
    if (!item || gApp().LockTableLayout())
        return false;
    // A key step is a drop held at the top left, one pixel on, with no shape correction.
    modSeating::TablePlacement place = PlacementOf(item);
    const QPoint at = TwipsOf(PixelsOf(item->DINING_TABLE) + QPointF(dx, dy));
    place.X = at.x();
    place.Y = at.y();
    place.Dropped = false;
    return PlaceTable(item, place);
}

bool frmMain_04_Attendees_Tables::ApplyTablePosition(const QString& tableId, const QPoint& twips) {
    usrDiningTable* item = mTables.value(tableId);
    if (!item || !RecordIO::Attempt([&] { modSeating::MoveTable(tableId, twips); }))
        return false;
    item->DINING_TABLE.POS_X = QString::number(twips.x());
    item->DINING_TABLE.POS_Y = QString::number(twips.y());
    item->setPos(PixelsOf(item->DINING_TABLE));
    return true;
}

bool frmMain_04_Attendees_Tables::eventFilter(QObject* watched, QEvent* event) {
    if (watched != picFloor || event->type() != QEvent::KeyPress)
        return usrPage::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (const auto step = ArrowStep(key->key()); step && mTables.contains(mSelected)) {
        StepSelectedTable(step->x(), step->y());
        return true;
    }
    if (key->key() == Qt::Key_Delete && mTables.contains(mSelected)) {
        DeleteSelectedTable();
        return true;
    }
    return usrPage::eventFilter(watched, event);
}

// ---- Commands ---------------------------------------------------------------------------------------------

bool frmMain_04_Attendees_Tables::Ask(const QString& question) const {
    return ShowMessage(question, Msg::YesNo | Msg::Question) == Msg::Yes;
}

void frmMain_04_Attendees_Tables::RemoveTable(const QString& tableId) {
    mRoster->RemoveGroup(tableId);
    delete mTables.take(tableId);
    mTaken.remove(tableId);
    if (mSelected == tableId)
        mSelected.clear();
}

void frmMain_04_Attendees_Tables::DeleteSelectedTable() {
    usrDiningTable* item = mTables.value(mSelected);
    if (!item || gApp().LockTableLayout() ||
        !Ask(QStringLiteral("Delete table #") + item->DINING_TABLE.DINING_TABLE_NB + QStringLiteral("?")))
        return;
    const QString id = mSelected;
    if (!RecordIO::Attempt([&] { clsDINING_TABLE().Delete(id); }))
        return;
    // The seats of the steps before may name the table that is gone.
    mUndo->clear();
    RemoveTable(id);
    lblTable->clear();
    RefreshCounts();
    UpdateLinks();
}

void frmMain_04_Attendees_Tables::EmptySelectedTable() {
    usrDiningTable* item = mTables.value(mSelected);
    if (!item || gApp().LockTableLayout() ||
        !Ask(QStringLiteral("Empty table# ") + item->DINING_TABLE.DINING_TABLE_NB +
             QStringLiteral(" of all its seated attendees?")))
        return;
    const QString id = mSelected;
    if (RecordIO::Attempt([&] { modSeating::EmptyTable(id); }))
        Reload();
}

void frmMain_04_Attendees_Tables::EmptyAllTables() {
    if (Ask(QStringLiteral("Empty all tables?")) && RecordIO::Attempt([] { modSeating::EmptyAllTables(); }))
        Reload();
}

void frmMain_04_Attendees_Tables::DeleteAllTables() {
    if (Ask(QStringLiteral("Delete All Tables?")) && RecordIO::Attempt([] { modSeating::DeleteAllTables(); }))
        Reload();
}

void frmMain_04_Attendees_Tables::ToggleLock() {
    gApp().SetLockTableLayout(!gApp().LockTableLayout());
    UpdateLinks();
}

void frmMain_04_Attendees_Tables::PrintLayout() {
    WriteLayoutPicture();
    // The table overview, which places the picture.
    modPages::OpenReports(this, clsReportCatalogue::Tables, kTableOverviewRow);
}

bool frmMain_04_Attendees_Tables::WriteLayoutPicture() {
    const QRectF floor = mFloor->sceneRect();
    if (floor.isEmpty())
        return false;
    gApp().MakeReportPath();
    const QString base = gApp().ReportPath() + QStringLiteral("/TableLayout");
    const QSize size = floor.size().scaled(QSizeF(kPictureSize), Qt::KeepAspectRatio).toSize();
    bool written = true;
    for (int scale : {1, 2}) {
        QImage picture(size * scale, QImage::Format_RGB32);
        picture.fill(FloorPlan::FloorColor);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::TextAntialiasing);
        mFloor->render(&painter, QRectF(picture.rect()), floor, Qt::KeepAspectRatio);
        painter.end();
        written =
            picture.save(base + (scale == 1 ? QStringLiteral(".bmp") : QStringLiteral(".png"))) && written;
    }
    return written;
}

void frmMain_04_Attendees_Tables::ZoomToFit() {
    picFloor->fitInView(mFloor->sceneRect(), Qt::KeepAspectRatio);
}

void frmMain_04_Attendees_Tables::ShowTableMenu(const QPoint& screenPos) {
    const bool locked = gApp().LockTableLayout();
    const QList<QAction*> actions = mnuHiddenTableRoot->actions();
    for (int i = 0; i < actions.size(); ++i)
        actions[i]->setEnabled(!locked && (i != 3 || mTables.size() >= 2));
    mnuHiddenTableRoot->popup(screenPos);
}

void frmMain_04_Attendees_Tables::ShowFloorMenu(const QPoint& screenPos) {
    mnuHiddenTableLayoutRoot->actions().first()->setEnabled(!gApp().LockTableLayout());
    mnuHiddenTableLayoutRoot->popup(screenPos);
}

// ---- The table dialogs
// --------------------------------------------------------------------------------------

void frmMain_04_Attendees_Tables::mfrmTable_Added(const QString& key) {
    clsDINING_TABLE table;
    if (!RecordIO::Read([&] { return table.OpenRecord(key); }))
        return;
    AddTableItem(table);
    AddTableNode(table);
    const QRectF box = mTables[key]->sceneBoundingRect();
    mFloorSize = mFloorSize.expandedTo(
        QSizeF(box.right() + modSeating::kCellPixels, box.bottom() + modSeating::kCellPixels));
    mFloor->setSceneRect(QRectF(QPointF(0, 0), mFloorSize));
    RefreshCounts();
    UpdateLinks();
}

void frmMain_04_Attendees_Tables::mfrmTable_Updated(const QString& key) {
    clsDINING_TABLE table;
    usrDiningTable* item = mTables.value(key);
    if (!item || !RecordIO::Read([&] { return table.OpenRecord(key); }))
        return;
    const bool selected = key == mSelected;
    item->SetDINING_TABLE(table);
    if (selected)
        item->Highlight();
    mRoster->GroupNode(key)->setText(0, NodeText(table));
    UpdateTableNodeIcon(key);
    RefreshTable(key);
}

void frmMain_04_Attendees_Tables::mfrmTableSwap_Swap() {
    Reload();
}

void frmMain_04_Attendees_Tables::OpenTableEditor(const QString& key) {
    if (gApp().LockTableLayout() || (!key.isEmpty() && !mTables.contains(key)))
        return;
    frmTable editor(key, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_04_Attendees_Tables::mfrmTable_Added);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_04_Attendees_Tables::mfrmTable_Updated);
    editor.exec();
}

void frmMain_04_Attendees_Tables::OpenTableSwap() {
    if (gApp().LockTableLayout() || mTables.size() < 2)
        return;
    frmTableSwap swap(this);
    connect(&swap, &frmTableSwap::Swap, this, &frmMain_04_Attendees_Tables::mfrmTableSwap_Swap);
    swap.exec();
}
