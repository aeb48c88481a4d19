#include "guests/ui/frmMain_03_RSVPs.h"

#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/clsINVITE.h"
#include "guests/ui/GuestIcons.h"
#include "guests/ui/frmRSVP.h"
#include "reports/clsColor.h"
#include "reports/clsReportCatalogue.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/options/frmOptions.h"

#include <QMenu>

namespace {

// The panel's filters of invitations; every other entry counts guests.
bool IsInviteFilter(int filterId) {
    return filterId == 1 || filterId == 3 || filterId == 4;
}

// The whole of a guest figure: the invited for the replies, the attending for their make-up.
bool IsReplyFigure(int filterId) {
    return filterId == 6 || filterId == 14 || filterId == 20 || filterId == 36;
}

QList<clsGridColumn> RSVPColumns() {
    using K = GridColumnKind;
    return {
        clsGridColumn(QStringLiteral("ICO"), QString(), 28).OfKind(K::Icon),
        clsGridColumn(QStringLiteral("RSVP_ID"), QStringLiteral("RSVP ID"), 70)
            .OfKind(K::Number)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("INVITATION"), QStringLiteral("Invitation"), 420).StoreWidth(),
        clsGridColumn(QStringLiteral("AB"), QStringLiteral("A-B"), 44).StoreWidth(),
        clsGridColumn(QStringLiteral("RECEIVED_FG"), QStringLiteral("Received"), 76).StoreWidth(),
        clsGridColumn(QStringLiteral("NUMBER_ATTENDING"), QStringLiteral("# Attending"), 96)
            .AlignRight()
            .StoreWidth(),
    };
}

bool Received(const clsINVITE& invite) {
    return invite.RSVP_RECEIVED_FG == QLatin1String("Y");
}

int StateIcon(const clsINVITE& invite) {
    return Received(invite) ? GuestIcons::InviteReplied : GuestIcons::InviteSent;
}

// A reply in which nobody comes is struck through, in grey.
bool NobodyComes(const clsINVITE& invite) {
    return Received(invite) && invite.NUMBER_ATTENDING_NB() == 0;
}

QColor StruckColor() {
    constexpr clsColor gray = clsColor::GrayStrikeThroughText();
    return {gray.RedPart(), gray.GreenPart(), gray.BluePart()};
}

GridCells RSVPCells(const clsINVITE& invite) {
    return {{QStringLiteral("RSVP_ID"), invite.INVITE_RSVP_ID},
            {QStringLiteral("INVITATION"), invite.DISPLAY_AS_TX},
            {QStringLiteral("AB"), invite.AB_LIST_CD},
            {QStringLiteral("RECEIVED_FG"), invite.RSVP_RECEIVED_FG_Text()},
            {QStringLiteral("NUMBER_ATTENDING"), frmMain_03_RSVPs::AttendingText(invite)}};
}

} // namespace

frmMain_03_RSVPs::frmMain_03_RSVPs(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_03_RSVPs"), parent) {
    SetRecordNoun(QStringLiteral("RSVPs"));
    SetEmptyText(
        QStringLiteral("No invitations have been sent yet. Mark invitations as sent on the Invitations "
                       "page, and their replies are recorded here."),
        QStringLiteral("No RSVPs match."));
    const auto figure = [](int id, const char* caption, const char* heading = nullptr) {
        return FilterEntry{id, QString::fromUtf8(caption), QString::fromUtf8(heading), false};
    };
    SetFilterEntries({{1, QStringLiteral("All RSVPs")},
                      {3, QStringLiteral("Received")},
                      {4, QStringLiteral("No Reply")},
                      figure(6, "Invited", "Guests"),
                      figure(14, "Attending"),
                      figure(20, "Declined"),
                      figure(36, "Awaiting reply"),
                      figure(15, "Bride's side", "Attending"),
                      figure(16, "Groom's side"),
                      figure(17, "Both sides"),
                      figure(18, "A list"),
                      figure(19, "B list"),
                      figure(28, "Local"),
                      figure(29, "Out of Towner")});
    Grid()->Model()->SetImages(GuestIcons::All());
    SetColumns(RSVPColumns());
    BuildActions();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuAction"));
    AddActionItems(menu, {OpenRSVP});
    Grid()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Grid(), &QWidget::customContextMenuRequested, this,
            [this, menu](const QPoint& position) { PopupMenu(menu, position); });
}

void frmMain_03_RSVPs::BuildActions() {
    AddAction(OpenRSVP, QStringLiteral("Open RSVP"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()));
    });
    AddAction(CustomizeMeals, QStringLiteral("Customize meals"),
              [this] { ShowOptions(this, clsDICT::Meal); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { ShowReports(this, clsReportCatalogue::RSVPs, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
    AddCustomizeColumnsAction(CustomizeColumns);
}

QString frmMain_03_RSVPs::AttendingText(const clsINVITE& invite) {
    if (!Received(invite))
        return QStringLiteral("No reply");
    return QString::number(invite.NUMBER_ATTENDING_NB()) + QStringLiteral(" / ") +
           QString::number(invite.NUMBER_INVITED_NB());
}

// ---- The panel and the grid ----------------------------------------------------------------------------

long frmMain_03_RSVPs::CountOf(int filterId) const {
    return IsInviteFilter(filterId) ? gApp().TotalInvitations(filterId)
                                    : gApp().TotalContacts(filterId, {}, true);
}

int frmMain_03_RSVPs::ShareBaseOf(int filterId) const {
    if (IsInviteFilter(filterId))
        return 1;
    return IsReplyFigure(filterId) ? 6 : 14;
}

int frmMain_03_RSVPs::FillRows(clsGridFill& fill, int filterId) {
    const QList<clsINVITE> invites =
        RecordIO::Read([filterId] { return clsINVITE::OpenRecords(filterId, false); });
    for (const clsINVITE& invite : invites) {
        fill.Row(invite.INVITE_ID.toLongLong()).Icon(QStringLiteral("ICO"), StateIcon(invite))
            .Set(RSVPCells(invite));
        if (NobodyComes(invite))
            fill.Look(StruckColor(), true);
    }
    return static_cast<int>(invites.size());
}

void frmMain_03_RSVPs::SetRowCells(const QModelIndex& row, const clsINVITE& invite) {
    clsGridModel* model = Grid()->Model();
    model->SetCell(row, QStringLiteral("ICO"), QString::number(StateIcon(invite)));
    model->SetCells(row, RSVPCells(invite));
    const bool struck = NobodyComes(invite);
    model->SetRowLook(row, struck ? StruckColor() : QColor(), struck);
}

void frmMain_03_RSVPs::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_03_RSVPs::UpdateActions() {
    ActionLink(OpenRSVP)->setEnabled(SelectedKeys().size() == 1);
}

// ---- The reply editor ----------------------------------------------------------------------------------

void frmMain_03_RSVPs::OpenEditor(const QString& inviteId) {
    frmRSVP editor(inviteId, this);
    connect(&editor, &frmRSVP::RSVPUpdated, this, &frmMain_03_RSVPs::mfrmRSVP_RSVPUpdated);
    editor.exec();
}

void frmMain_03_RSVPs::mfrmRSVP_RSVPUpdated(const QString& inviteId) {
    const QModelIndex row = RowOfKey(inviteId.toLongLong());
    clsINVITE invite;
    if (row.isValid() && RecordIO::Read([&] { return invite.OpenRecord(inviteId, false); }))
        SetRowCells(row, invite);
    RefreshPanel();
}
