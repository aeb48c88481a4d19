#include "guests/ui/frmMain_01_Contacts.h"

#include "core/FilterCode.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/clsCONTACT.h"
#include "guests/ui/GuestIcons.h"
#include "guests/ui/frmContact.h"
#include "guests/ui/frmContactEmail.h"
#include "guests/ui/frmContactImportDashboard.h"
#include "guests/ui/modBulkRun.h"
#include "platform/clsShell.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modReportRunner.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QApplication>
#include <QMenu>

namespace {

const QString kDelete = QStringLiteral("Delete contact");
const QString kEmail = QStringLiteral("E-mail contact");

using Column = frmMain_01_Contacts::Column;

QList<clsGridColumn> ContactColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn("ICO", "", 28).OfKind(GridColumnKind::Icon),
        clsGridColumn("INVITE_ICO", "", 28).OfKind(GridColumnKind::Icon),
        clsGridColumn("TITLE_TX", "Title", 52),
        clsGridColumn("FULL_NM", "Name", 210),
        clsGridColumn("ADDRESS_TX", "Address", 260),
        clsGridColumn("NICK_NM", "Nickname", 90),
        clsGridColumn("EMAIL_TX", "E-mail", 190),
        clsGridColumn("PHONE_TX", "Phone(s)", 140),
        clsGridColumn("AB", "A-B", 40),
        clsGridColumn("FRIEND_OF_TX", "Friend of", 80),
        clsGridColumn("ROLE_TX", "Role", 140),
        clsGridColumn("GENDER_FG", "Gender", 90),
        clsGridColumn("OUT_OF_TOWNER_FG", "Out of Towner", 100),
        clsGridColumn("GUEST_OF", "Guest of", 160),
        clsGridColumn("NOTES_TX", "Notes", 240).HiddenAtFirst(), // until the user chooses "Show Notes"
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

// A contact's row, on fill and on refresh alike; the row keeps the contact.
clsGridCells& WriteRow(clsGridCells& cells, const clsCONTACT& c) {
    return cells.Icon(Column::ICO, GuestIcons::PersonIndex(c))
        .Icon(Column::INVITE_ICO, GuestIcons::InviteIndex(c))
        .Set(Column::TITLE_TX, c.TITLE_TX)
        .Set(Column::FULL_NM, c.ListName())
        .Set(Column::ADDRESS_TX, c.DisplayAddress(false))
        .Set(Column::NICK_NM, c.NICK_NM)
        .Set(Column::EMAIL_TX, c.EMAIL_TX)
        .Set(Column::PHONE_TX, c.PHONE_NUMBERS(false))
        .Set(Column::AB, c.AB_LIST_CD)
        .Set(Column::FRIEND_OF_TX, c.FRIEND_OF_TX())
        .Set(Column::ROLE_TX, c.ROLE_TX)
        .Set(Column::GENDER_FG, c.GENDER_FG_WITH_CHILD_Text())
        .Set(Column::OUT_OF_TOWNER_FG, c.OUT_OF_TOWNER_FG_Text())
        .Set(Column::GUEST_OF, c.GUEST_OF_ID.isEmpty() ? QString() : c.GUEST_OF_FULL_NM())
        .Set(Column::NOTES_TX, c.NOTES_TX);
}

} // namespace

frmMain_01_Contacts::frmMain_01_Contacts(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_01_Contacts"), parent) {
    SetRecordNoun(QStringLiteral("contact"));
    SetEmptyText(QStringLiteral("No contacts yet — add one or import a list."),
                 QStringLiteral("No contacts match."));
    using F = ContactFilter::Code;
    SetFilterEntries({{F::AllContacts, QStringLiteral("All Contacts")},
                      {F::FriendOfBride, QStringLiteral("Bride")},
                      {F::FriendOfGroom, QStringLiteral("Groom")},
                      {F::FriendOfBoth, QStringLiteral("Both of us")},
                      {F::AList, QStringLiteral("A list")},
                      {F::BList, QStringLiteral("B list")},
                      {F::Invited, QStringLiteral("Invited")},
                      {F::NotYetInvited, QStringLiteral("Not Yet Invited")},
                      {F::NoAddress, QStringLiteral("No Address")},
                      {F::Local, QStringLiteral("Local")},
                      {F::OutOfTowner, QStringLiteral("Out of Towner")},
                      {F::Male, QStringLiteral("Male")},
                      {F::Female, QStringLiteral("Female")},
                      {F::Adult, QStringLiteral("Adult")},
                      {F::Child, QStringLiteral("Child")}});
    Grid()->Model()->SetImages(GuestIcons::All());
    SetColumns(ContactColumns());
    BuildActions();
    BuildMenu();
    SetRowMenu(mMenu);
    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString(), false); });
    AddShortcut(QKeySequence::Copy, [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()), true);
    });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
}

void frmMain_01_Contacts::BuildActions() {
    AddAction(AddContact, QStringLiteral("Add new contact"), [this] { OpenEditor(QString(), false); });
    AddAction(EditContact, QStringLiteral("Edit contact"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()), false);
    });
    AddAction(DeleteContact, kDelete, [this] { DeleteSelected(); });
    AddAction(EmailContact, kEmail, [this] { EmailSelected(); });
    AddAction(ImportContacts, QStringLiteral("Import contacts"), [this] { ImportContactsFromFile(); });
    AddAction(ExportContacts, QStringLiteral("Export contacts"), [this] { ExportContactsCsv(); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Contacts, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
    AddCustomizeColumnsAction(CustomizeColumns);
    CountSelectionIn(DeleteContact);
    CountSelectionIn(EmailContact);
}

// ---- The grid ----------------------------------------------------------------------------------------

long frmMain_01_Contacts::CountOf(int filterId) const {
    return gApp().TotalContacts(filterId, QString(), true);
}

int frmMain_01_Contacts::FillRows(clsGridFill& fill, int filterId) {
    QList<clsCONTACT> contacts = RecordIO::Read(
        [&] { return clsCONTACT::OpenRecords(filterId, {}, {}, ExcludeBrideGroom(filterId)); });
    for (clsCONTACT& contact : contacts) {
        WriteRow(fill.Row(contact.CONTACT_ID.toLongLong()), contact).Keep(std::move(contact));
    }
    return static_cast<int>(contacts.size());
}

void frmMain_01_Contacts::SetRowCells(const QModelIndex& row, const clsCONTACT& contact) {
    Grid()->Model()->Rewrite(row, [&contact](clsGridCells& cells) { WriteRow(cells, contact).Keep(contact); });
}

void frmMain_01_Contacts::Activate(qint64 key) { OpenEditor(QString::number(key), false); }

void frmMain_01_Contacts::UpdateActions() {
    const int count = static_cast<int>(SelectedKeys().size());
    ActionLink(EditContact)->setEnabled(count == 1);
    ActionLink(EmailContact)->setEnabled(GridCountAddresses(Grid(), EMAIL_TX) > 0);
    if (QAction* copy = mMenu ? mMenu->findChild<QAction*>(QStringLiteral("mnuCopy")) : nullptr)
        copy->setEnabled(count == 1);
}

// ---- The editor's events -------------------------------------------------------------------------------

void frmMain_01_Contacts::mfrmContact_Added(const QString& contactId) {
    Reload();
    GridSelectByKey(Grid(), contactId.toLongLong());
}

void frmMain_01_Contacts::mfrmContact_Updated(const QString& contactId) {
    const QModelIndex row = RowOfKey(contactId.toLongLong());
    clsCONTACT contact;
    if (row.isValid() && RecordIO::Read([&] { return contact.OpenRecord(contactId); }))
        SetRowCells(row, contact);
    RefreshPanel();
}

void frmMain_01_Contacts::mfrmContact_OptionsChanged() { Reload(); }

// ---- Changes to many contacts --------------------------------------------------------------------------

int frmMain_01_Contacts::DeleteSelected() {
    const QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return 0;
    clsCONTACT first;
    RecordIO::Read([&] { return first.OpenRecord(QString::number(keys.first())); });
    if (!modBulkRun::Confirm(keys.size(), first.ListName(), QStringLiteral(" Contacts")))
        return 0;
    // The bride and the groom stay; nobody is told.
    clsDeleteResult result;
    const bool ok = modBulkRun::RunWithProgress(
        this, QStringLiteral("Deleting contacts…"), [&](const clsProgress& progress) {
            result = clsCONTACT::DeleteMany(modBulkRun::LastToFirst(keys), progress);
        });
    Reload();
    return ok ? static_cast<int>(keys.size() - result.Kept.size() - result.Missing.size()) : 0;
}

bool frmMain_01_Contacts::ChangeSelected(const std::function<void(clsCONTACT&)>& change) {
    const QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return false;
    QStringList saved;
    const bool ok = modBulkRun::RunWithProgress(
        this, QStringLiteral("Saving contacts…"), [&](const clsProgress& progress) {
            saved = clsCONTACT::ChangeMany(modBulkRun::LastToFirst(keys), change, true, progress);
        });
    if (ok) {
        for (const QString& id : saved)
            mfrmContact_Updated(id);
    }
    RefreshPanel();
    return ok;
}

void frmMain_01_Contacts::ImportContactsFromFile() {
    frmContactImportDashboard dashboard(this);
    connect(&dashboard, &frmContactImportDashboard::Imported, this, [this] {
        Reload();
        RefreshPanel();
    });
    dashboard.exec();
}

QString frmMain_01_Contacts::ExportContactsCsv() {
    modReportRunner::Output csv;
    csv.UseRtf = false;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString file = RecordIO::Read([this, &csv] {
        const QList<clsReportCatalogue::FilterRow> rows =
            clsReportCatalogue::FilterRows(clsReportCatalogue::Contacts);
        const int index = std::max(0, clsReportCatalogue::FilterRowIndex(rows, CurrentFilter()));
        return modReportRunner::Write(clsReportCatalogue::Route(clsReportCatalogue::Contacts, rows, index),
                                      csv);
    });
    QApplication::restoreOverrideCursor();
    if (!file.isEmpty())
        gShell().OpenDocument(file);
    return file;
}

// ---- The context menu ----------------------------------------------------------------------------------

void frmMain_01_Contacts::BuildMenu() {
    mMenu = new QMenu(this);
    mMenu->setObjectName(QStringLiteral("mnuAction"));
    AddActionItems(mMenu, {AddContact, EditContact, DeleteContact, EmailContact});
    mMenu->addSeparator();
    QAction* copy = mMenu->addAction(QStringLiteral("Copy contact"), this, [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()), true);
    });
    copy->setObjectName(QStringLiteral("mnuCopy"));
    mMenu->addSeparator();
    AddTitleMenu();
    AddFieldMenu(QStringLiteral("mnuFRIEND_OF_CD"), QStringLiteral("Friend of"),
                 {QStringLiteral("Friend of Bride"), QStringLiteral("Friend of Groom"), QStringLiteral("Friend of Both")},
                 [](clsCONTACT& c, int i) { c.FRIEND_OF_CD = QString::number(i + 1); });
    AddFieldMenu(QStringLiteral("mnuAB"), QStringLiteral("A-B List"), {QStringLiteral("A list"), QStringLiteral("B list")},
                 [](clsCONTACT& c, int i) { c.AB_LIST_CD = i == 0 ? QStringLiteral("A") : QStringLiteral("B"); });
    AddFieldMenu(QStringLiteral("mnuGENDER_FG"), QStringLiteral("Gender"), {QStringLiteral("Male"), QStringLiteral("Female")},
                 [](clsCONTACT& c, int i) { c.GENDER_FG = i == 0 ? QStringLiteral("M") : QStringLiteral("F"); });
    AddFieldMenu(QStringLiteral("mnuAgeGroup"), QStringLiteral("Age Group"), {QStringLiteral("Adult"), QStringLiteral("Child")},
                 [](clsCONTACT& c, int i) { c.SetCHILD_FG_VALUE(i); });
    AddFieldMenu(QStringLiteral("mnuOUT_OF_TOWNER_FG"), QStringLiteral("Local or Out of Towner"),
                 {QStringLiteral("Local"), QStringLiteral("Out of Towner")},
                 [](clsCONTACT& c, int i) { c.SetOUT_OF_TOWNER_FG_VALUE(i); });
    mMenu->addSeparator();
    QAction* notes = mMenu->addAction(QStringLiteral("Show Notes"), this, &frmMain_01_Contacts::ToggleNotes);
    notes->setObjectName(QStringLiteral("mnuNotes"));
}

void frmMain_01_Contacts::AddFieldMenu(const QString& name, const QString& title, const QStringList& captions,
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

void frmMain_01_Contacts::AddTitleMenu() {
    QStringList titles;
    for (const clsDICT& title : RecordIO::Read([] { return clsDICT().OpenRecords(clsDICT::Title); }))
        titles.append(title.TX);
    titles.append(QStringLiteral("(No Title)"));
    const int none = static_cast<int>(titles.size()) - 1;
    AddFieldMenu(QStringLiteral("mnuTITLE_TX"), QStringLiteral("Title"), titles, [titles, none](clsCONTACT& c, int i) {
        c.TITLE_TX = i == none ? QString() : titles[i];
    });
}

void frmMain_01_Contacts::ToggleNotes() {
    const bool show = !Grid()->ColumnShown(NOTES_TX);
    Grid()->ShowColumn(NOTES_TX, show);
    if (QAction* item = mMenu->findChild<QAction*>(QStringLiteral("mnuNotes")))
        item->setText(show ? QStringLiteral("Hide notes") : QStringLiteral("Show Notes"));
}

// ---- Editor and e-mail ---------------------------------------------------------------------------------

void frmMain_01_Contacts::OpenEditor(const QString& contactId, bool copy) {
    const frmContact::Mode mode = copy                  ? frmContact::Mode::Copy
                                  : contactId.isEmpty() ? frmContact::Mode::Add
                                                        : frmContact::Mode::Edit;
    frmContact editor(contactId, this, mode);
    connect(&editor, &frmContact::Added, this, &frmMain_01_Contacts::mfrmContact_Added);
    connect(&editor, &frmContact::Updated, this, &frmMain_01_Contacts::mfrmContact_Updated);
    connect(&editor, &frmContact::OptionsChanged, this, &frmMain_01_Contacts::mfrmContact_OptionsChanged);
    editor.exec();
}

void frmMain_01_Contacts::EmailSelected() {
    const QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return;
    QStringList addresses;
    for (qint64 key : keys)
        if (const clsCONTACT* contact = Grid()->Model()->RecordAt<clsCONTACT>(RowOfKey(key)))
            addresses.append(contact->EMAIL_TX);
    frmContactEmail dialog(static_cast<int>(keys.size()), frmContactEmail::AddressList(addresses), this);
    dialog.exec();
}
