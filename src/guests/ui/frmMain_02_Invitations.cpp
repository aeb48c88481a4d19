#include "guests/ui/frmMain_02_Invitations.h"

#include "core/FilterCode.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "guests/clsINVITE.h"
#include "guests/ui/GuestIcons.h"
#include "guests/ui/frmInvite.h"
#include "guests/ui/frmInviteRSVPIDs.h"
#include "guests/ui/modBulkRun.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QMenu>

namespace {

const QString kDelete = QStringLiteral("Delete invitation");
const QString kSort = QStringLiteral("Sort RSVP IDs");

using Column = frmMain_02_Invitations::Column;

QList<clsGridColumn> InvitationColumns() {
    using K = GridColumnKind;
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("ICO"), QString(), 28).OfKind(K::Icon),
        clsGridColumn(QStringLiteral("RSVP_ID"), QStringLiteral("RSVP ID"), 70)
            .OfKind(K::Number)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("INVITATION"), QStringLiteral("Invitation"), 220).StoreWidth(),
        clsGridColumn(QStringLiteral("OUTER_ENVELOPE"), QStringLiteral("Outer Envelope"), 320).StoreWidth(),
        clsGridColumn(QStringLiteral("INNER_ENVELOPE"), QStringLiteral("Inner Envelope"), 180).StoreWidth(),
        clsGridColumn(QStringLiteral("CONTACTS_NB"), QStringLiteral("# Contacts"), 80)
            .OfKind(K::Number)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("A_B"), QStringLiteral("A-B"), 44).StoreWidth(),
        clsGridColumn(QStringLiteral("INVITE_SENT"), QStringLiteral("Sent  "), 56).StoreWidth(),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

// Where the envelope stands: not yet sent, sent and waiting, or answered.
int StateIcon(const clsINVITE& invite) {
    if (invite.INVITE_SENT_FG != QLatin1String("Y"))
        return GuestIcons::InviteUnsent;
    return invite.RSVP_RECEIVED_FG == QLatin1String("Y") ? GuestIcons::InviteReplied : GuestIcons::InviteSent;
}

// An invitation's row, on fill and on refresh alike.
clsGridCells& WriteRow(clsGridCells& cells, const clsINVITE& invite) {
    return cells.Icon(Column::ICO, StateIcon(invite))
        .Number(Column::RSVP_ID, invite.INVITE_RSVP_ID)
        .Set(Column::INVITATION, invite.DISPLAY_AS_TX)
        .Set(Column::OUTER_ENVELOPE, invite.OUTER_ENVELOPE_TX_AND_OUTER_ENVELOPE_ADDRESS_TX(false))
        .Set(Column::INNER_ENVELOPE, invite.INNER_ENVELOPE_TX)
        .Number(Column::CONTACTS_NB, invite.NUMBER_INVITED_NB())
        .Set(Column::A_B, invite.AB_LIST_CD)
        .Set(Column::INVITE_SENT, invite.INVITE_SENT_FG_Text());
}

} // namespace

frmMain_02_Invitations::frmMain_02_Invitations(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_02_Invitations"), parent) {
    SetRecordNoun(QStringLiteral("invitation"));
    SetEmptyText(QStringLiteral("No invitations yet — add one and put your contacts on its envelope."),
                 QStringLiteral("No invitations match."));
    using F = InviteFilter::Code;
    SetFilterEntries({{F::AllInvitations, QStringLiteral("All Invitations")},
                      {F::Sent, QStringLiteral("Sent")},
                      {F::Unsent, QStringLiteral("Unsent")},
                      {F::FriendOfBride, QStringLiteral("Bride")},
                      {F::FriendOfGroom, QStringLiteral("Groom")},
                      {F::FriendOfBoth, QStringLiteral("Both")},
                      {F::NoAddress, QStringLiteral("No Address")}});
    Grid()->Model()->SetImages(GuestIcons::All());
    SetColumns(InvitationColumns());
    BuildActions();
    BuildMenu();
    SetRowMenu(mMenu);
    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString()); });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
}

void frmMain_02_Invitations::BuildActions() {
    AddAction(AddInvitation, QStringLiteral("Add new invitation"), [this] { OpenEditor(QString()); });
    AddAction(EditInvitation, QStringLiteral("Edit invitation"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()));
    });
    AddAction(DeleteInvitation, kDelete, [this] { DeleteSelected(); });
    AddAction(MarkAsSent, QStringLiteral("Mark as sent"), [this] { MarkSelectedSent(true); });
    AddAction(SortRSVPIDs, kSort, [this] { OpenSort(); });
    AddAction(LockRSVPIDs, QStringLiteral("Lock RSVP IDs"), [this] { ToggleLock(); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Invitations, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
    AddCustomizeColumnsAction(CustomizeColumns);
    CountSelectionIn(DeleteInvitation);
}

void frmMain_02_Invitations::BuildMenu() {
    mMenu = new QMenu(this);
    mMenu->setObjectName(QStringLiteral("mnuAction"));
    AddActionItems(mMenu, {AddInvitation, EditInvitation, DeleteInvitation, MarkAsSent});
    mMenu->addSeparator();
    QMenu* sent = mMenu->addMenu(QStringLiteral("Invitation Sent"));
    sent->setObjectName(QStringLiteral("mnuINVITE_SENT_FG"));
    sent->addAction(QStringLiteral("Sent"), this, [this] { MarkSelectedSent(true); })
        ->setObjectName(QStringLiteral("mnuINVITE_SENT_FG_1"));
    sent->addAction(QStringLiteral("Not sent"), this, [this] { MarkSelectedSent(false); })
        ->setObjectName(QStringLiteral("mnuINVITE_SENT_FG_0"));
}

// ---- The grid ----------------------------------------------------------------------------------------

long frmMain_02_Invitations::CountOf(int filterId) const {
    return gApp().TotalInvitations(filterId);
}

int frmMain_02_Invitations::FillRows(clsGridFill& fill, int filterId) {
    QList<clsINVITE> invites = RecordIO::Read([filterId] { return clsINVITE::OpenRecords(filterId, true); });
    for (clsINVITE& invite : invites)
        WriteRow(fill.Row(invite.INVITE_ID.toLongLong()), invite).Keep(std::move(invite));
    return static_cast<int>(invites.size());
}

void frmMain_02_Invitations::SetRowCells(const QModelIndex& row, const clsINVITE& invite) {
    Grid()->Model()->Rewrite(row, [&invite](clsGridCells& cells) { WriteRow(cells, invite).Keep(invite); });
}

void frmMain_02_Invitations::RefreshRow(const QString& inviteId) {
    const QModelIndex row = RowOfKey(inviteId.toLongLong());
    clsINVITE invite;
    if (row.isValid())
        RecordIO::Attempt([&] {
            if (invite.OpenRecord(inviteId, false))
                SetRowCells(row, invite);
        });
}

void frmMain_02_Invitations::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_02_Invitations::UpdateActions() {
    const int count = static_cast<int>(SelectedKeys().size());
    ActionLink(EditInvitation)->setEnabled(count == 1);
    ActionLink(MarkAsSent)->setEnabled(count > 0);
    const bool locked = gApp().LockRSVPIDs();
    ActionLink(SortRSVPIDs)->setCaption(locked ? kSort + QStringLiteral(" (Locked)") : kSort);
    ActionLink(SortRSVPIDs)->setEnabled(!locked);
    ActionLink(LockRSVPIDs)
        ->setCaption(locked ? QStringLiteral("Unlock RSVP IDs") : QStringLiteral("Lock RSVP IDs"));
}

// ---- The editors' events -------------------------------------------------------------------------------

void frmMain_02_Invitations::mfrmInvite_Added(const QString& inviteId) {
    Reload();
    GridSelectByKey(Grid(), inviteId.toLongLong());
}

void frmMain_02_Invitations::mfrmInvite_Updated(const QString& inviteId) {
    RefreshRow(inviteId);
    RefreshPanel();
}

// Every inner envelope may read differently now.
void frmMain_02_Invitations::mfrmInvite_EtiquetteUpdated() {
    Reload();
}

void frmMain_02_Invitations::mfrmInviteRSVPIDs_RSVPIDsChanged() {
    Reload();
}

void frmMain_02_Invitations::OpenEditor(const QString& inviteId) {
    frmInvite editor(inviteId, this);
    connect(&editor, &frmInvite::Added, this, &frmMain_02_Invitations::mfrmInvite_Added);
    connect(&editor, &frmInvite::Updated, this, &frmMain_02_Invitations::mfrmInvite_Updated);
    connect(&editor, &frmInvite::EtiquetteUpdated, this,
            &frmMain_02_Invitations::mfrmInvite_EtiquetteUpdated);
    editor.exec();
}

void frmMain_02_Invitations::OpenSort() {
    if (gApp().LockRSVPIDs())
        return;
    frmInviteRSVPIDs dialog(this);
    connect(&dialog, &frmInviteRSVPIDs::RSVPIDsChanged, this,
            &frmMain_02_Invitations::mfrmInviteRSVPIDs_RSVPIDsChanged);
    dialog.exec();
}

// ---- Commands on the selected invitations ------------------------------------------------------------

int frmMain_02_Invitations::MarkSelectedSent(bool sent) {
    const QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return 0;
    clsINVITE::SentResult result;
    const bool ok = modBulkRun::RunWithProgress(
        this, QStringLiteral("Saving invitations…"), [&](const clsProgress& progress) {
            result = clsINVITE::MarkSent(modBulkRun::LastToFirst(keys), sent, progress);
        });
    if (!ok)
        return 0;
    for (const QString& inviteId : std::as_const(result.Saved))
        RefreshRow(inviteId);
    RefreshPanel();
    if (result.SkippedUnaddressed)
        ShowMessage(QStringLiteral("Invitations with no address cannot be marked as sent."),
                    Msg::Exclamation);
    return static_cast<int>(result.Saved.size());
}

int frmMain_02_Invitations::DeleteSelected() {
    const QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return 0;
    clsINVITE first;
    RecordIO::Read([&] { return first.OpenRecord(QString::number(keys.first())); });
    if (!modBulkRun::Confirm(keys.size(), first.DISPLAY_AS_TX, QStringLiteral(" Invitations")))
        return 0;
    clsDeleteResult result;
    const bool ok = modBulkRun::RunWithProgress(
        this, QStringLiteral("Deleting invitations…"), [&](const clsProgress& progress) {
            result = clsINVITE::DeleteMany(modBulkRun::LastToFirst(keys), true, progress);
        });
    if (!result.Kept.isEmpty())
        ShowMessage(QStringLiteral("Unable to delete ") + QString::number(result.Kept.size()) +
                        QStringLiteral(" 'Sent' Invitations."),
                    Msg::Exclamation);
    Reload();
    return ok ? static_cast<int>(result.Deleted.size()) : 0;
}

void frmMain_02_Invitations::ToggleLock() {
    if (gApp().LockRSVPIDs()) {
        if (ShowMessage(QStringLiteral("Are you sure you want to unlock your RSVP IDs?"),
                        Msg::YesNo | Msg::Question) != Msg::Yes)
            return;
        gApp().SetLockRSVPIDs(false);
    } else {
        gApp().SetLockRSVPIDs(true);
    }
    UpdateActions();
}
