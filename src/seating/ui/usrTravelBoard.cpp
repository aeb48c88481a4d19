#include "seating/ui/usrTravelBoard.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "guests/clsCONTACT.h"
#include "platform/clsShell.h"
#include "seating/modSeating.h"
#include "seating/ui/usrFloorPlan.h"
#include "seating/ui/usrTravelBox.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/frmEditorBase.h"
#include "shell/mdiMain.h"
#include "shell/modPages.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QSplitter>
#include <QUndoStack>
#include <QVBoxLayout>

namespace {

constexpr int kTwips = modSeating::kTwipsPerPixel;
// The room left between boxes placed for new hotels or flights.
constexpr int kGap = 8;

QString GuestCount(int guests) {
    return QString::number(guests) + (guests == 1 ? QStringLiteral(" guest") : QStringLiteral(" guests"));
}

} // namespace

usrTravelBoard::usrTravelBoard(modTravel::Kind kind, QWidget* parent) : usrPage(parent), mKind(kind) {}

void usrTravelBoard::Build() {
    mUndo = new QUndoStack(this);
    const QList<QAction*> undoRedo = FloorPlan::UndoActions(this, mUndo);
    mUndoAction = undoRedo.value(0);
    mRedoAction = undoRedo.value(1);

    mBoard = new clsFloorScene(this);
    mBoard->Grid = false;
    picMap = new usrFloorView(mBoard, this);
    picMap->setObjectName(QStringLiteral("picMap"));
    picMap->setRenderHint(QPainter::Antialiasing);
    picMap->setAlignment(Qt::AlignCenter);
    picMap->installEventFilter(this);

    FloorPlan::SplitPage(this, BuildLeft(), picMap);

    mnuGuest = new QMenu(this);
    mnuGuest->setObjectName(QStringLiteral("mnuGuest"));
    mnuGuest->addAction(QStringLiteral("Remove Attendee"), this,
                        [this] { AssignGuests(QString(), mRoster->SelectedTreeGuests()); });
    LoadBackdrop();
    Reload();
}

QWidget* usrTravelBoard::BuildLeft() {
    auto* left = new QWidget(this);
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    BuildLinks(column);

    auto* hint = new QLabel(Hint(), left);
    hint->setObjectName(QStringLiteral("lblHint"));
    lblAttendees = new QLabel(left);
    lblAttendees->setObjectName(QStringLiteral("lblAttendees"));
    usrGuestTree* list = FloorPlan::GuestList(left);
    list->OnDrop = [this](const QStringList& ids, bool, const QString&) { AssignGuests(QString(), ids); };
    lvw = list;

    tvw = BuildTree(left);
    mRoster = std::make_unique<clsGuestRoster>(lvw, tvw);
    mRoster->GroupChanged = [this](const QString& group, int) { RefreshBox(group); };

    for (QWidget* w : std::initializer_list<QWidget*>{hint, lblAttendees, lvw})
        column->addWidget(w);
    FloorPlan::CountRow(column, &lblCount, &lblGroups, QStringLiteral("lblGroups"));
    column->addWidget(tvw);
    column->setStretchFactor(lvw, 1);
    column->setStretchFactor(tvw, 2);
    return left;
}

QTreeWidget* usrTravelBoard::BuildTree(QWidget* parent) {
    usrGuestTree* tree = FloorPlan::GroupTree(parent);
    tree->OnDrop = [this](const QStringList& ids, bool, const QString& group) { AssignGuests(group, ids); };
    tree->GroupOfRow = [this](QTreeWidgetItem* item) { return mRoster->GroupOfRow(item); };
    connect(tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (item && item->data(0, FloorPlan::IsGroupRole).toBool())
            SelectGroup(mRoster->GroupOfRow(item));
    });
    connect(tree, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        QTreeWidgetItem* item = tvw->itemAt(at);
        if (item && !item->data(0, FloorPlan::IsGroupRole).toBool())
            mnuGuest->popup(tvw->viewport()->mapToGlobal(at));
    });
    return tree;
}

void usrTravelBoard::BuildLinks(QVBoxLayout* column) {
    const QString noun = CountCaption(1).toLower();
    QList<Link> links = {
        {QStringLiteral("Add new ") + noun, [this] { OpenEditor(QString()); }},
        {QStringLiteral("Edit ") + noun, [this] { OpenEditor(mSelected); }},
        {QStringLiteral("Delete ") + noun, [this] { DeleteSelected(); }},
    };
    links << MoreLinks();
    links << Link{QStringLiteral("Print reports"), [this] { PrintReports(); }}
          << Link{QStringLiteral("Open report folder"), [] {
                      gApp().MakeReportPath();
                      gShell().OpenDocument(gApp().ReportPath());
                  }};
    for (int i = 0; i < links.size(); ++i) {
        auto* link = new usrHyperlink(links[i].first, this);
        link->setObjectName(QStringLiteral("linkAction_") + QString::number(i));
        connect(link, &usrHyperlink::Click, this, links[i].second);
        linkAction << link;
        column->addWidget(link);
    }
}

QList<QAction*> usrTravelBoard::EditActions() const {
    return {mUndoAction, mRedoAction};
}

void usrTravelBoard::showEvent(QShowEvent* event) {
    usrPage::showEvent(event);
    if (mShown)
        return;
    mShown = true;
    emit Breadcrumb(BreadcrumbText());
}

// ---- Loading ------------------------------------------------------------------------------------------

void usrTravelBoard::LoadBackdrop() {
    mBoard->Picture = Backdrop();
    mBoard->setSceneRect(QRectF(QPointF(0, 0), QSizeF(mBoard->Picture.size())));
    // Boxes of a larger picture before stay inside the new one.
    const QHash<QString, Group> groups = mGroups;
    for (const Group& group : groups)
        ShowGroup(group);
    mBoard->update();
}

void usrTravelBoard::Reload() {
    mUndo->clear();
    const QString selected = mSelected;
    mSelected.clear();
    qDeleteAll(mBoxes);
    mBoxes.clear();
    mGroups.clear();
    mRoster->Clear();
    for (const Group& group : RecordIO::Read([this] { return ReadGroups(); }))
        AddGroup(group);
    const QList<clsCONTACT> placed =
        RecordIO::Read([this] { return clsCONTACT::OpenRecords(PlacedFilter()); });
    const QList<clsCONTACT> listed = RecordIO::Read([this] { return clsCONTACT::OpenRecords(ListFilter()); });
    mRoster->Load(
        placed, [this](const clsCONTACT& c) { return GroupOf(c); }, listed);
    for (const QString& id : mBoxes.keys())
        RefreshBox(id);
    RefreshCounts();
    SelectGroup(selected);
    UpdateLinks();
}

QString usrTravelBoard::NodeText(const Group& group) const {
    return group.Name.isEmpty() ? group.Number : group.Number + QStringLiteral(" - ") + group.Name;
}

void usrTravelBoard::AddGroup(const Group& group) {
    auto* box = new usrTravelBox(group.Id);
    mBoard->addItem(box);
    mBoxes.insert(group.Id, box);
    mRoster->AddGroup(group.Id, NodeText(group), mdiMain::ShellIcon(IconName()));
    connect(box, &usrFloorItem::Clicked, this, [this](usrFloorItem* b) { SelectGroup(b->Key()); });
    connect(box, &usrFloorItem::Dropped, this,
            [this](usrFloorItem* b, const QPointF& at, const QPointF& grab) { DropBox(b->Key(), at, grab); });
    connect(box, &usrFloorItem::GuestsDropped, this,
            [this](usrFloorItem* b, const QStringList& ids, bool) { AssignGuests(b->Key(), ids); });
    ShowGroup(group);
}

// The group's texts and the place of its box, which a smaller picture may have moved inside.
void usrTravelBoard::ShowGroup(const Group& group) {
    mGroups.insert(group.Id, group);
    usrTravelBox* box = mBoxes.value(group.Id);
    box->SetText(NodeText(group), group.Line);
    box->setToolTip(group.Tip);
    const QPoint inside = modTravel::KeepInside(group.Twips, TwipsOf(usrTravelBox::Size()), BoardTwips());
    box->setPos(PixelsOf(inside));
    if (QTreeWidgetItem* node = mRoster->GroupNode(group.Id))
        node->setText(0, NodeText(group));
}

// The count of guests on the box, in red with the rooms when there are more guests than rooms.
void usrTravelBoard::RefreshBox(const QString& groupId) {
    usrTravelBox* box = mBoxes.value(groupId);
    if (!box)
        return;
    const int guests = int(mRoster->GuestsIn(groupId).size());
    const int capacity = mGroups.value(groupId).Capacity;
    const bool overfull = capacity >= 0 && guests > capacity;
    box->SetCount(overfull ? GuestCount(guests) + QStringLiteral(" in ") + QString::number(capacity) +
                                 (capacity == 1 ? QStringLiteral(" room") : QStringLiteral(" rooms"))
                           : GuestCount(guests),
                  overfull);
}

void usrTravelBoard::RefreshCounts() {
    lblCount->setText(QString::number(mBoxes.size()));
    lblGroups->setText(CountCaption(int(mBoxes.size())));
    lblAttendees->setText(ListHeading());
}

QString usrTravelBoard::ListHeading() const {
    return ListCaption() + QString::number(mRoster->ListCount()) + QLatin1Char(')');
}

void usrTravelBoard::SelectGroup(const QString& groupId) {
    if (usrTravelBox* before = mBoxes.value(mSelected))
        before->LoseFocus();
    mSelected = mBoxes.contains(groupId) ? groupId : QString();
    if (usrTravelBox* box = mBoxes.value(mSelected)) {
        box->Highlight();
        tvw->setCurrentItem(mRoster->GroupNode(mSelected));
    }
    UpdateLinks();
}

void usrTravelBoard::UpdateLinks() {
    const bool selected = mBoxes.contains(mSelected);
    linkAction[Edit]->setEnabled(selected);
    linkAction[Delete]->setEnabled(selected);
}

QPoint usrTravelBoard::TwipsOf(const QPointF& pixels) const {
    return {qRound(pixels.x() * kTwips), qRound(pixels.y() * kTwips)};
}

QSize usrTravelBoard::TwipsOf(const QSizeF& pixels) const {
    const QPoint corner = TwipsOf(QPointF(pixels.width(), pixels.height()));
    return {corner.x(), corner.y()};
}

QSize usrTravelBoard::BoardTwips() const {
    return TwipsOf(mBoard->sceneRect().size());
}

QPointF usrTravelBoard::PixelsOf(const QPoint& twips) const {
    return {double(twips.x()) / kTwips, double(twips.y()) / kTwips};
}

// ---- Drops ----------------------------------------------------------------------------------------------

bool usrTravelBoard::AssignGuests(const QString& groupId, const QStringList& contactIds) {
    if (contactIds.isEmpty() || (!groupId.isEmpty() && !mBoxes.contains(groupId)))
        return false;
    GuestPlaces before;
    if (!RecordIO::Attempt([&] { before = modTravel::Assign(mKind, contactIds, groupId); }))
        return false;
    GuestPlaces after;
    for (const QString& id : contactIds) {
        after.insert(id, groupId);
        mRoster->Show(id, groupId);
    }
    mUndo->push(new clsGuestsStep(ApplyPlacesStep(), before, after,
                                  groupId.isEmpty() ? QStringLiteral("Remove attendee")
                                                    : QStringLiteral("Assign attendees")));
    if (!groupId.isEmpty())
        SelectGroup(groupId);
    RefreshCounts();
    return true;
}

std::function<bool(const GuestPlaces&)> usrTravelBoard::ApplyPlacesStep() {
    return [this](const GuestPlaces& places) { return ApplyPlaces(places); };
}

bool usrTravelBoard::ApplyPlaces(const GuestPlaces& places) {
    if (!RecordIO::Attempt([&] { modTravel::Restore(mKind, places); }))
        return false;
    for (auto it = places.cbegin(); it != places.cend(); ++it)
        mRoster->Show(it.key(), it.value());
    RefreshCounts();
    return true;
}

bool usrTravelBoard::DropBox(const QString& groupId, const QPointF& scenePos, const QPointF& grab) {
    usrTravelBox* box = mBoxes.value(groupId);
    if (!box)
        return false;
    const QPoint before = mGroups.value(groupId).Twips;
    const QPoint after =
        modTravel::KeepInside(TwipsOf(scenePos - grab), TwipsOf(usrTravelBox::Size()), BoardTwips());
    if (!ApplyBoxPosition(groupId, after)) {
        box->setPos(PixelsOf(before));
        return false;
    }
    if (after != before)
        mUndo->push(
            new clsMoveStep([this, groupId](const QPoint& twips) { return ApplyBoxPosition(groupId, twips); },
                            before, after, QStringLiteral("Move box")));
    return true;
}

bool usrTravelBoard::ApplyBoxPosition(const QString& groupId, const QPoint& twips) {
    usrTravelBox* box = mBoxes.value(groupId);
    if (!box || !RecordIO::Attempt([&] { modTravel::MoveBox(mKind, groupId, twips); }))
        return false;
    mGroups[groupId].Twips = twips;
    box->setPos(PixelsOf(twips));
    return true;
}

bool usrTravelBoard::eventFilter(QObject* watched, QEvent* event) {
    if (watched != picMap || event->type() != QEvent::KeyPress || !mBoxes.contains(mSelected))
        return usrPage::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Delete) {
        DeleteSelected();
        return true;
    }
    // A key step is a drop of the box one pixel on, kept inside the board, one step to undo.
    if (const auto step = ArrowStep(key)) {
        DropBox(mSelected, mBoxes.value(mSelected)->pos() + QPointF(*step), QPointF());
        return true;
    }
    return usrPage::eventFilter(watched, event);
}

// ---- Commands ---------------------------------------------------------------------------------------------

void usrTravelBoard::DeleteSelected() {
    if (!mBoxes.contains(mSelected))
        return;
    const QString id = mSelected;
    if (ShowMessage(DeleteQuestion(mGroups.value(id)), Msg::YesNo | Msg::Question) != Msg::Yes)
        return;
    if (RecordIO::Attempt([&] { DeleteRecord(id); }))
        Reload();
}

void usrTravelBoard::OpenEditor(const QString& key) {
    if (!key.isEmpty() && !mBoxes.contains(key))
        return;
    std::unique_ptr<frmEditorBase> editor(NewEditor(key));
    connect(editor.get(), &frmEditorBase::Added, this, &usrTravelBoard::mfrmGroup_Added);
    connect(editor.get(), &frmEditorBase::Updated, this, &usrTravelBoard::mfrmGroup_Updated);
    editor->exec();
}

// The reports take the pictures the page writes on leaving.
void usrTravelBoard::PrintReports() {
    Leaving();
    modPages::OpenReports(this, ReportSection(), 1);
}

// A new hotel or flight gets a box where none stands yet.
QPoint usrTravelBoard::FreeSpot() const {
    const QSizeF box = usrTravelBox::Size();
    const QRectF board = mBoard->sceneRect();
    for (qreal y = kGap; y + box.height() <= board.height(); y += box.height() + kGap) {
        for (qreal x = kGap; x + box.width() <= board.width(); x += box.width() + kGap) {
            const QRectF spot(QPointF(x, y), box);
            if (mBoard->items(spot.adjusted(-1, -1, 1, 1)).isEmpty())
                return TwipsOf(spot.topLeft());
        }
    }
    return TwipsOf(QPointF(kGap, kGap));
}

void usrTravelBoard::mfrmGroup_Added(const QString& key) {
    Reload();
    if (!mBoxes.contains(key))
        return;
    // The box of a new record was saved at the top left; it moves to where it is seen.
    mBoxes[key]->setVisible(false);
    const QPoint spot = FreeSpot();
    mBoxes[key]->setVisible(true);
    ApplyBoxPosition(key, spot);
    SelectGroup(key);
}

void usrTravelBoard::mfrmGroup_Updated(const QString& key) {
    for (const Group& group : RecordIO::Read([this] { return ReadGroups(); })) {
        if (group.Id == key && mBoxes.contains(key)) {
            ShowGroup(group);
            RefreshBox(key);
        }
    }
}

bool usrTravelBoard::WriteBoardPicture(const QString& path) const {
    const QRectF board = mBoard->sceneRect();
    if (board.isEmpty())
        return false;
    QImage picture(board.size().toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    mBoard->render(&painter, QRectF(picture.rect()), board);
    painter.end();
    return picture.save(path, "BMP");
}
