#include "seating/ui/frmMain_04_Attendees_Tentcards.h"

#include "core/clsApp.h"
#include "reports/clsReportCatalogue.h"
#include "seating/clsTENTCARD.h"
#include "seating/ui/frmTentcard.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"
#include "shell/options/frmOptions.h"

#include <QLabel>
#include <QMenu>
#include <QPainterPath>
#include <QRegularExpression>

namespace {

using Column = frmMain_04_Attendees_Tentcards::Column;

// A folded card standing on its edge.
QIcon TentcardIcon() {
    return ControlIcons::Drawn(
        [](QPainter& painter, const QRectF& r, const QColor& color) {
            const qreal s = r.width();
            QPainterPath card;
            card.moveTo(r.left() + s * 0.08, r.bottom() - s * 0.12);
            card.lineTo(r.left() + s * 0.3, r.top() + s * 0.22);
            card.lineTo(r.right() - s * 0.08, r.top() + s * 0.22);
            card.lineTo(r.right() - s * 0.3, r.bottom() - s * 0.12);
            card.closeSubpath();
            painter.setPen(QPen(color, s * 0.07));
            painter.setBrush(QColor(255, 250, 240));
            painter.drawPath(card);
            painter.drawLine(QPointF(r.left() + s * 0.34, r.center().y() + s * 0.04),
                             QPointF(r.right() - s * 0.3, r.center().y() + s * 0.04));
        },
        QColor(150, 90, 120));
}

QList<clsGridColumn> TentcardColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("ICO"), QString(), 28).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("TENTCARD_TX"), QStringLiteral("Tentcard"), 420).StoreWidth(),
        clsGridColumn(QStringLiteral("DINING_TABLE_NB"), QStringLiteral("Table #"), 70)
            .OfKind(GridColumnKind::Number)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("DINING_TABLE_NM"), QStringLiteral("Table Name"), 200).StoreWidth(),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

clsGridCells& WriteRow(clsGridCells& cells, const clsTENTCARD& card) {
    return cells.Icon(Column::ICO, 1)
        .Set(Column::TENTCARD_TX, frmMain_04_Attendees_Tentcards::OneLine(card.TENTCARD_TX))
        .Number(Column::DINING_TABLE_NB, card.DINING_TABLE_NB)
        .Set(Column::DINING_TABLE_NM, card.DINING_TABLE_NM);
}

} // namespace

frmMain_04_Attendees_Tentcards::frmMain_04_Attendees_Tentcards(QWidget* parent)
    : usrListPage(modPages::TentcardsSubPage(), parent) {
    SetRecordNoun(QStringLiteral("tentcard"));
    SetEmptyText(QStringLiteral("There are no tentcards yet. Seat your guests on the Table layout page, then "
                                "click \"Refresh tentcards\"."),
                 QStringLiteral("No tentcards match."));
    SetFilterEntries({{AllTentcards, QStringLiteral("All Tentcards")}});
    Grid()->Model()->SetImages({QIcon(), TentcardIcon()});
    SetColumns(TentcardColumns());
    BuildActions();
    auto* note = new QLabel(
        QStringLiteral(
            "Be sure to 'Refresh tentcards' before you print to ensure tentcard wording accuracy."),
        this);
    note->setObjectName(QStringLiteral("lblNote"));
    note->setWordWrap(true);
    AddPanelWidget(note);
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuAction"));
    AddActionItems(menu, {EditTentcard, RefreshTentcards});
    SetRowMenu(menu);
    connect(&gOptionsEvents(), &OptionsEvents::EtiquetteTentCardUpdated, this,
            &frmMain_04_Attendees_Tentcards::mfrmOptions_EtiquetteTentCardUpdated);
}

void frmMain_04_Attendees_Tentcards::BuildActions() {
    AddAction(EditTentcard, QStringLiteral("Edit tentcard"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()));
    });
    AddAction(RefreshTentcards, QStringLiteral("Refresh tentcards"), [this] { cmdRefresh_Click(); });
    AddAction(SetEtiquette, EtiquetteCaption(), [this] {
        ShowOptions(this, frmOptions::Etiquette);
        ActionLink(SetEtiquette)->setCaption(EtiquetteCaption());
    });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Tentcards, 1); });
    AddReportsFolderAction(OpenReportFolder)->setCaption(QStringLiteral("Open report folder"));
}

QString frmMain_04_Attendees_Tentcards::EtiquetteCaption() {
    const bool formal = RecordIO::Read([] { return clsTENTCARD::EtiquetteIsFormal(); });
    return QStringLiteral("Set etiquette (") +
           (formal ? QStringLiteral("Formal") : QStringLiteral("Personal")) + QLatin1Char(')');
}

QString frmMain_04_Attendees_Tentcards::OneLine(const QString& wording) {
    QStringList lines = wording.split(QRegularExpression(QStringLiteral("\r\n|\r|\n")), Qt::SkipEmptyParts);
    for (QString& line : lines)
        line = line.trimmed();
    return lines.join(QStringLiteral(", "));
}

void frmMain_04_Attendees_Tentcards::showEvent(QShowEvent* event) {
    usrListPage::showEvent(event);
    emit Breadcrumb(QStringLiteral("Attendees>Tentcards"));
}

long frmMain_04_Attendees_Tentcards::CountOf(int) const {
    return gApp().TotalTentcards();
}

int frmMain_04_Attendees_Tentcards::FillRows(clsGridFill& fill, int) {
    QList<clsTENTCARD> cards = RecordIO::Read([] { return clsTENTCARD::OpenRecords(); });
    for (clsTENTCARD& card : cards)
        WriteRow(fill.Row(card.TENTCARD_ID.toLongLong()), card).Keep(std::move(card));
    return int(cards.size());
}

void frmMain_04_Attendees_Tentcards::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_04_Attendees_Tentcards::UpdateActions() {
    ActionLink(EditTentcard)->setEnabled(SelectedKeys().size() == 1);
}

void frmMain_04_Attendees_Tentcards::OpenEditor(const QString& tentcardId) {
    frmTentcard editor(tentcardId, this);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_04_Attendees_Tentcards::mfrmTentcard_Updated);
    editor.exec();
}

void frmMain_04_Attendees_Tentcards::cmdRefresh_Click() {
    if (RecordIO::Attempt([] { clsTENTCARD::RefreshTentcards(); }))
        Reload();
    RefreshPanel();
}

void frmMain_04_Attendees_Tentcards::mfrmOptions_EtiquetteTentCardUpdated() {
    ActionLink(SetEtiquette)->setCaption(EtiquetteCaption());
    Reload();
    RefreshPanel();
}

void frmMain_04_Attendees_Tentcards::mfrmTentcard_Updated(const QString& tentcardId) {
    const QModelIndex row = RowOfKey(tentcardId.toLongLong());
    clsTENTCARD card;
    if (!row.isValid() || !RecordIO::Read([&] { return card.OpenRecord(tentcardId); }))
        return;
    Grid()->Model()->Rewrite(row, [&card](clsGridCells& cells) { WriteRow(cells, card).Keep(card); });
}
