#include "guests/ui/frmMain_03_RSVPs.h"

#include "core/FilterCode.h"
#include "core/clsApp.h"
#include "core/clsColor.h"
#include "core/clsDICT.h"
#include "guests/clsINVITE.h"
#include "guests/ui/GuestIcons.h"
#include "guests/ui/frmRSVP.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"
#include "shell/options/frmOptions.h"

#include <QMenu>

namespace {

using Column = frmMain_03_RSVPs::Column;

// The panel's filters of invitations; every other entry counts guests.
bool IsInviteFilter(int filterId) {
    return filterId == InviteFilter::Sent || filterId == InviteFilter::Received || filterId == InviteFilter::NoReply;
}

// The whole of a guest figure: the invited for the replies, the attending for their make-up.
bool IsReplyFigure(int filterId) {
    using F = ContactFilter::Code;
    return filterId == F::Invited || filterId == F::Attending || filterId == F::Declined ||
           filterId == F::AwaitingReply;
}

QList<clsGridColumn> RSVPColumns() {
    using K = GridColumnKind;
    QList<clsGridColumn> columns = {
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
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
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

// A reply's row, on fill and on refresh alike.
clsGridCells& WriteRow(clsGridCells& cells, const clsINVITE& invite) {
    const bool struck = NobodyComes(invite);
    return cells.Icon(Column::ICO, StateIcon(invite))
        .Number(Column::RSVP_ID, invite.INVITE_RSVP_ID)
        .Set(Column::INVITATION, invite.DISPLAY_AS_TX)
        .Set(Column::AB, invite.AB_LIST_CD)
        .Set(Column::RECEIVED_FG, invite.RSVP_RECEIVED_FG_Text())
        .Set(Column::NUMBER_ATTENDING, frmMain_03_RSVPs::AttendingText(invite))
        .Look(struck ? StruckColor() : QColor(), struck);
}

} // namespace

frmMain_03_RSVPs::frmMain_03_RSVPs(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_03_RSVPs"), parent) {
    SetRecordNoun(QStringLiteral("RSVP"));
    SetEmptyText(
        QStringLiteral("No invitations have been sent yet. Mark invitations as sent on the Invitations "
                       "page, and their replies are recorded here."),
        QStringLiteral("No RSVPs match."));
    const auto figure = [](int id, const char* caption, const char* heading = nullptr) {
        return FilterEntry{id, QString::fromUtf8(caption), QString::fromUtf8(heading), false};
    };
    using F = ContactFilter::Code;
    SetFilterEntries({{InviteFilter::Sent, QStringLiteral("All RSVPs")},
                      {InviteFilter::Received, QStringLiteral("Received")},
                      {InviteFilter::NoReply, QStringLiteral("No Reply")},
                      figure(F::Invited, "Invited", "Guests"),
                      figure(F::Attending, "Attending"),
                      figure(F::Declined, "Declined"),
                      figure(F::AwaitingReply, "Awaiting reply"),
                      figure(F::AttendingFriendOfBride, "Bride's side", "Attending"),
                      figure(F::AttendingFriendOfGroom, "Groom's side"),
                      figure(F::AttendingFriendOfBoth, "Both sides"),
                      figure(F::AttendingAList, "A list"),
                      figure(F::AttendingBList, "B list"),
                      figure(F::AttendingLocal, "Local"),
                      figure(F::AttendingOutOfTowner, "Out of Towner")});
    Grid()->Model()->SetImages(GuestIcons::All());
    SetColumns(RSVPColumns());
    BuildActions();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuAction"));
    AddActionItems(menu, {OpenRSVP});
    SetRowMenu(menu);
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
              [this] { modPages::OpenReports(this, clsReportCatalogue::RSVPs, CurrentFilter()); });
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
        return InviteFilter::Sent;
    return IsReplyFigure(filterId) ? ContactFilter::Invited : ContactFilter::Attending;
}

int frmMain_03_RSVPs::FillRows(clsGridFill& fill, int filterId) {
    QList<clsINVITE> invites = RecordIO::Read([filterId] { return clsINVITE::OpenRecords(filterId, false); });
    for (clsINVITE& invite : invites)
        WriteRow(fill.Row(invite.INVITE_ID.toLongLong()), invite).Keep(std::move(invite));
    return static_cast<int>(invites.size());
}

void frmMain_03_RSVPs::SetRowCells(const QModelIndex& row, const clsINVITE& invite) {
    Grid()->Model()->Rewrite(row, [&invite](clsGridCells& cells) { WriteRow(cells, invite).Keep(invite); });
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
    if (row.isValid())
        RecordIO::Attempt([&] {
            if (invite.OpenRecord(inviteId, false))
                SetRowCells(row, invite);
        });
    RefreshPanel();
}
