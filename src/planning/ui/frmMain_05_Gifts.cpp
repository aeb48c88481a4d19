#include "planning/ui/frmMain_05_Gifts.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "planning/ui/frmGift.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QMenu>
#include <QPainter>

namespace {

using Column = frmMain_05_Gifts::Column;

// A wrapped box with its ribbon.
QIcon GiftIcon() {
    return ControlIcons::Drawn(
        [](QPainter& painter, const QRectF& r, const QColor& color) {
            const qreal s = r.width();
            const QRectF box(r.left() + s * 0.15, r.top() + s * 0.3, s * 0.7, s * 0.55);
            painter.setPen(QPen(color.darker(130), s * 0.06));
            painter.setBrush(color);
            painter.drawRect(box);
            painter.setPen(QPen(QColor(250, 230, 120), s * 0.1));
            painter.drawLine(QPointF(box.center().x(), box.top()), QPointF(box.center().x(), box.bottom()));
            painter.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
        },
        QColor(190, 80, 120));
}

QList<clsGridColumn> GiftColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("GIFT_ICON"), QString(), 28).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("FROM"), QStringLiteral("From"), 200).StoreWidth(),
        clsGridColumn(QStringLiteral("ADDRESS"), QStringLiteral("Address"), 200).StoreWidth(),
        clsGridColumn(QStringLiteral("GIFT"), QStringLiteral("Gift"), 200).StoreWidth(),
        clsGridColumn(QStringLiteral("EVENT"), QString(), 0).NeverShown(),
        clsGridColumn(QStringLiteral("RECEIVED_DT"), QStringLiteral("Received"), 95)
            .OfKind(GridColumnKind::Date)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("THANK_YOU_SENT_FG"), QStringLiteral("Thank You Sent"), 110)
            .StoreWidth(),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

clsGridCells& WriteRow(clsGridCells& cells, const clsGIFT& gift) {
    return cells.Icon(Column::GIFT_ICON, 1)
        .Set(Column::FROM, gift.GIVER_NM)
        .Set(Column::ADDRESS, gift.OUTER_ENVELOPE_ADDRESS_TX_Text(false))
        .Set(Column::GIFT, gift.GIFT_TX)
        .Set(Column::EVENT, gift.EVENT_TX)
        .Date(Column::RECEIVED_DT, ParseDateTimeText(gift.RECEIVED_DT).date())
        .Set(Column::THANK_YOU_SENT_FG, gift.THANK_YOU_SENT_FG_Text())
        .Notes(gift.NOTES_TX)
        .Keep(gift);
}

} // namespace

frmMain_05_Gifts::frmMain_05_Gifts(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_05_Gifts"), parent) {
    SetRecordNoun(QStringLiteral("gift"));
    SetEmptyText(QStringLiteral("No gifts yet. Click \"Add new gift\" when the first one arrives."),
                 QStringLiteral("No gifts match."));
    SetFilterEntries({{clsGIFT::AllGifts, QStringLiteral("All Gifts")},
                      {clsGIFT::NotesSent, QStringLiteral("Notes sent")},
                      {clsGIFT::NotesUnsent, QStringLiteral("Notes unsent")}});
    Grid()->Model()->SetImages({QIcon(), GiftIcon()});
    SetColumns(GiftColumns());
    BuildActions();
    BuildMenu();
    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString()); });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
}

void frmMain_05_Gifts::BuildActions() {
    AddAction(AddGift, QStringLiteral("Add new gift"), [this] { OpenEditor(QString()); });
    AddAction(EditGift, QStringLiteral("Edit gift"), [this] {
        const QStringList ids = SelectedIds();
        if (ids.size() == 1)
            OpenEditor(ids.first());
    });
    AddAction(DeleteGift, QStringLiteral("Delete gift"), [this] { DeleteSelected(); });
    CountSelectionIn(DeleteGift);
    AddAction(MarkThankYouSent, QStringLiteral("Mark as Thank You sent"), [this] { MarkSelected(true); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Gifts, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
}

// The submenu offers the state the row under the mouse does not have.
void frmMain_05_Gifts::BuildMenu() {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuAction"));
    AddActionItems(menu, {AddGift, EditGift, DeleteGift});
    mnuTHANK_YOU_SENT_FG = menu->addMenu(QStringLiteral("Thank You"));
    mnuTHANK_YOU_SENT_FG->setObjectName(QStringLiteral("mnuTHANK_YOU_SENT_FG"));
    QAction* sent = mnuTHANK_YOU_SENT_FG->addAction(QStringLiteral("Mark as Thank You sent"), this,
                                                    [this] { MarkSelected(true); });
    sent->setObjectName(QStringLiteral("mnuThankYouSent"));
    QAction* unsent = mnuTHANK_YOU_SENT_FG->addAction(QStringLiteral("Mark as Thank You unsent"), this,
                                                      [this] { MarkSelected(false); });
    unsent->setObjectName(QStringLiteral("mnuThankYouUnsent"));
    connect(mnuTHANK_YOU_SENT_FG, &QMenu::aboutToShow, this, [this, sent, unsent] {
        const clsGIFT* gift = Grid()->Model()->RecordAt<clsGIFT>(Grid()->SelectedRow());
        const bool isSent = gift != nullptr && gift->THANK_YOU_SENT_FG == QLatin1String("Y");
        sent->setEnabled(gift != nullptr && !isSent);
        unsent->setEnabled(gift != nullptr && isSent);
    });
    ShowNotesAsRowText(menu);
    SetRowMenu(menu);
}

void frmMain_05_Gifts::showEvent(QShowEvent* event) {
    usrListPage::showEvent(event);
    const QString filter =
        CurrentFilter() > 0 ? QStringLiteral(">") + FilterCaption(CurrentFilter()) : QString();
    emit Breadcrumb(QStringLiteral("Gifts") + filter);
}

long frmMain_05_Gifts::CountOf(int filterId) const {
    return gApp().TotalGifts(filterId);
}

int frmMain_05_Gifts::FillRows(clsGridFill& fill, int filterId) {
    QList<clsGIFT> gifts = clsGIFT().OpenRecords(filterId);
    for (clsGIFT& gift : gifts)
        WriteRow(fill.Group(gift.EVENT_TX).Row(gift.GIFT_ID.toLongLong()), gift);
    return int(gifts.size());
}

void frmMain_05_Gifts::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_05_Gifts::UpdateActions() {
    const int count = int(SelectedKeys().size());
    ActionLink(EditGift)->setEnabled(count == 1);
    ActionLink(MarkThankYouSent)->setEnabled(count > 0);
}

QList<clsGIFT> frmMain_05_Gifts::SelectedGifts() const {
    QList<clsGIFT> gifts;
    for (qint64 key : SelectedKeys())
        if (const clsGIFT* gift = Grid()->Model()->RecordAt<clsGIFT>(RowOfKey(key)))
            gifts << *gift;
    return gifts;
}

QStringList frmMain_05_Gifts::SelectedIds() const {
    QStringList ids;
    for (qint64 key : SelectedKeys())
        ids << QString::number(key);
    return ids;
}

QString frmMain_05_Gifts::DeleteQuestion(const QList<clsGIFT>& gifts) {
    if (gifts.size() == 1)
        return QStringLiteral("Delete '") + gifts.first().GIVER_NM + QStringLiteral("'?");
    return QStringLiteral("Delete ") + QString::number(gifts.size()) + QStringLiteral(" gifts?");
}

void frmMain_05_Gifts::DeleteSelected() {
    const QList<clsGIFT> gifts = SelectedGifts();
    if (gifts.isEmpty() ||
        ShowMessage(DeleteQuestion(gifts), Msg::YesNo | Msg::Question, QStringLiteral("Delete")) != Msg::Yes)
        return;
    const QStringList ids = SelectedIds();
    if (RecordIO::Attempt([&ids] { clsGIFT::Delete(ids); }))
        Reload();
}

// Every selected gift is written, the rows repainted and the selection left as it was.
void frmMain_05_Gifts::MarkSelected(bool sent) {
    const QStringList ids = SelectedIds();
    if (ids.isEmpty() || !RecordIO::Attempt([&] { clsGIFT::SetThankYouSent(ids, sent); }))
        return;
    RewriteRows(ids);
    RefreshPanel();
}

void frmMain_05_Gifts::RewriteRows(const QStringList& ids) {
    for (const QString& id : ids) {
        clsGIFT gift;
        const QModelIndex row = RowOfKey(id.toLongLong());
        if (row.isValid() && RecordIO::Read([&] { return gift.OpenRecord(id); }))
            Grid()->Model()->Rewrite(row, [&gift](clsGridCells& cells) { WriteRow(cells, gift); });
    }
}

void frmMain_05_Gifts::OpenEditor(const QString& giftId) {
    frmGift editor(giftId, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_05_Gifts::mfrmGift_Refresh);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_05_Gifts::mfrmGift_Refresh);
    editor.exec();
}

void frmMain_05_Gifts::mfrmGift_Refresh(const QString& giftId) {
    Reload();
    GridSelectByKey(Grid(), giftId.toLongLong());
}
