#include "guests/ui/frmMain_01_Contacts.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/clsCONTACT.h"
#include "guests/ui/GuestIcons.h"
#include "guests/ui/frmContact.h"
#include "guests/ui/frmContactEmail.h"
#include "platform/clsShell.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modReportRunner.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"

#include <QApplication>
#include <QMenu>

namespace {

const QString kDelete = QStringLiteral("Delete contact");
const QString kEmail = QStringLiteral("E-mail contact");

QList<clsGridColumn> ContactColumns() {
    using K = GridColumnKind;
    const auto column = [](const char* key, const char* caption, int width, K kind = K::Text) {
        clsGridColumn c;
        c.Key = QString::fromLatin1(key);
        c.Caption = QString::fromLatin1(caption);
        c.Width = width;
        c.Kind = kind;
        return c;
    };
    QList<clsGridColumn> columns = {
        column("ICO", "", 28, K::Icon),
        column("INVITE_ICO", "", 28, K::Icon),
        column("TITLE_TX", "Title", 52),
        column("FULL_NM", "Name", 210),
        column("ADDRESS_TX", "Address", 260),
        column("NICK_NM", "Nickname", 90),
        column("EMAIL_TX", "E-mail", 190),
        column("PHONE_TX", "Phone(s)", 140),
        column("AB", "A-B", 40),
        column("FRIEND_OF_TX", "Friend of", 80),
        column("ROLE_TX", "Role", 140),
        column("GENDER_FG", "Gender", 90),
        column("OUT_OF_TOWNER_FG", "Out of Towner", 100),
        column("GUEST_OF", "Guest of", 160),
        column("NOTES_TX", "Notes", 240),
    };
    columns.last().Visible = false; // until the user chooses "Show Notes"
    return columns;
}

// The cells of a contact's row, by column key.
GridCells ContactCells(const clsCONTACT& c) {
    return {{QStringLiteral("TITLE_TX"), c.TITLE_TX},
            {QStringLiteral("FULL_NM"), c.ListName()},
            {QStringLiteral("ADDRESS_TX"), c.DisplayAddress(false)},
            {QStringLiteral("NICK_NM"), c.NICK_NM},
            {QStringLiteral("EMAIL_TX"), c.EMAIL_TX},
            {QStringLiteral("PHONE_TX"), c.PHONE_NUMBERS(false)},
            {QStringLiteral("AB"), c.AB_LIST_CD},
            {QStringLiteral("FRIEND_OF_TX"), c.FRIEND_OF_TX()},
            {QStringLiteral("ROLE_TX"), c.ROLE_TX},
            {QStringLiteral("GENDER_FG"), c.GENDER_FG_WITH_CHILD_Text()},
            {QStringLiteral("OUT_OF_TOWNER_FG"), c.OUT_OF_TOWNER_FG_Text()},
            {QStringLiteral("GUEST_OF"), c.GUEST_OF_ID.isEmpty() ? QString() : c.GUEST_OF_FULL_NM()},
            {QStringLiteral("NOTES_TX"), c.NOTES_TX}};
}

} // namespace

frmMain_01_Contacts::frmMain_01_Contacts(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_01_Contacts"), parent) {
    SetRecordNoun(QStringLiteral("contacts"));
    SetEmptyText(QStringLiteral("No contacts yet — add one or import a list."),
                 QStringLiteral("No contacts match."));
    SetFilterEntries({{0, QStringLiteral("All Contacts")},
                      {1, QStringLiteral("Bride")},
                      {2, QStringLiteral("Groom")},
                      {3, QStringLiteral("Both of us")},
                      {4, QStringLiteral("A list")},
                      {5, QStringLiteral("B list")},
                      {6, QStringLiteral("Invited")},
                      {7, QStringLiteral("Not Yet Invited")},
                      {8, QStringLiteral("No Address")},
                      {24, QStringLiteral("Local")},
                      {25, QStringLiteral("Out of Towner")},
                      {37, QStringLiteral("Male")},
                      {38, QStringLiteral("Female")},
                      {43, QStringLiteral("Adult")},
                      {44, QStringLiteral("Child")}});
    Grid()->Model()->SetImages(GuestIcons::All());
    SetColumns(ContactColumns());
    Grid()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(Grid(), &QWidget::customContextMenuRequested, this, &frmMain_01_Contacts::ShowContextMenu);
    BuildActions();
    BuildMenu();
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
    AddAction(ImportContacts, QStringLiteral("Import contacts"), [] {})->setEnabled(false);
    ActionLink(ImportContacts)->setToolTip(QStringLiteral("Not available yet"));
    AddAction(ExportContacts, QStringLiteral("Export contacts"), [this] { ExportContactsCsv(); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { ShowReports(this, clsReportCatalogue::Contacts, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
    AddCustomizeColumnsAction(CustomizeColumns);
}

// ---- The grid ----------------------------------------------------------------------------------------

long frmMain_01_Contacts::CountOf(int filterId) const {
    return gApp().TotalContacts(filterId, QString(), true);
}

int frmMain_01_Contacts::FillRows(clsGridFill& fill, int filterId) {
    const QList<clsCONTACT> contacts = RecordIO::Read(
        [&] { return clsCONTACT::OpenRecords(filterId, {}, {}, ExcludeBrideGroom(filterId)); });
    for (const clsCONTACT& contact : contacts) {
        fill.Row(contact.CONTACT_ID.toLongLong())
            .Icon(QStringLiteral("ICO"), GuestIcons::PersonIndex(contact))
            .Icon(QStringLiteral("INVITE_ICO"), GuestIcons::InviteIndex(contact))
            .Set(ContactCells(contact));
    }
    return static_cast<int>(contacts.size());
}

void frmMain_01_Contacts::SetRowCells(const QModelIndex& row, const clsCONTACT& contact) {
    clsGridModel* model = Grid()->Model();
    model->SetCell(row, QStringLiteral("ICO"), QString::number(GuestIcons::PersonIndex(contact)));
    model->SetCell(row, QStringLiteral("INVITE_ICO"), QString::number(GuestIcons::InviteIndex(contact)));
    model->SetCells(row, ContactCells(contact));
}

void frmMain_01_Contacts::Activate(qint64 key) { OpenEditor(QString::number(key), false); }

void frmMain_01_Contacts::UpdateActions() {
    const int count = static_cast<int>(SelectedKeys().size());
    ActionLink(EditContact)->setEnabled(count == 1);
    ActionLink(DeleteContact)->setEnabled(count > 0);
    ActionLink(DeleteContact)->setCaption(CountedCaption(kDelete, count));
    ActionLink(EmailContact)->setEnabled(GridCountAddresses(Grid(), QStringLiteral("EMAIL_TX")) > 0);
    ActionLink(EmailContact)->setCaption(CountedCaption(kEmail, count));
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
    const QList<QModelIndex> rows = Grid()->SelectedRows();
    QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return 0;
    const QString name = Grid()->Model()->RowAt(RowOfKey(keys.first()))->Cell(Grid()->ColumnIndex("FULL_NM"));
    const QString question = keys.size() == 1 ? QStringLiteral("Delete '") + name + QStringLiteral("'?")
                                              : QStringLiteral("Delete ") + QString::number(keys.size()) +
                                                    QStringLiteral(" Contacts?");
    if (ShowMessage(question, Msg::YesNo | Msg::Question) != Msg::Yes)
        return 0;
    const int role = Grid()->ColumnIndex(QStringLiteral("ROLE_TX"));
    int deleted = 0;
    BeginProgress(static_cast<int>(keys.size()));
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // From the last selected to the first, so that the rows still to come keep their places.
    for (auto key = keys.crbegin(); key != keys.crend(); ++key) {
        const QModelIndex row = RowOfKey(*key);
        const QString roleText = Grid()->Model()->RowAt(row)->Cell(role);
        if (roleText == QLatin1String("Bride") || roleText == QLatin1String("Groom"))
            continue; // the couple stays; nobody is told
        clsCONTACT contact;
        if (!contact.Delete(QString::number(*key)))
            break;
        Grid()->Model()->RemoveRow(RowOfKey(*key));
        if (const QModelIndex guest = RowOfKey(contact.CascadeDeletedCONTACT_ID.toLongLong()); guest.isValid())
            Grid()->Model()->RemoveRow(guest);
        ++deleted;
        StepProgress();
    }
    QApplication::restoreOverrideCursor();
    EndProgress();
    Reload();
    return deleted;
}

bool frmMain_01_Contacts::ChangeSelected(const std::function<void(clsCONTACT&)>& change) {
    const QList<qint64> keys = SelectedKeys();
    if (keys.isEmpty())
        return false;
    QList<QString> saved;
    const bool ok = RunOverKeys(keys, [&](qint64 key) {
        clsCONTACT contact;
        if (!contact.OpenRecord(QString::number(key)))
            return;
        change(contact);
        contact.Save(false, true);
        saved.append(contact.CONTACT_ID);
    });
    if (ok) {
        for (const QString& id : saved)
            mfrmContact_Updated(id);
    }
    RefreshPanel();
    return ok;
}

QString frmMain_01_Contacts::ExportContactsCsv() {
    const QList<clsReportCatalogue::FilterRow> rows = clsReportCatalogue::FilterRows(clsReportCatalogue::Contacts);
    const int index = std::max(0, clsReportCatalogue::FilterRowIndex(rows, CurrentFilter()));
    modReportRunner::Output csv;
    csv.UseRtf = false;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString file =
        modReportRunner::Write(clsReportCatalogue::Route(clsReportCatalogue::Contacts, rows, index), csv);
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
    for (const clsDICT& title : clsDICT().OpenRecords(clsDICT::Title))
        titles.append(title.TX);
    titles.append(QStringLiteral("(No Title)"));
    const int none = static_cast<int>(titles.size()) - 1;
    AddFieldMenu(QStringLiteral("mnuTITLE_TX"), QStringLiteral("Title"), titles, [titles, none](clsCONTACT& c, int i) {
        c.TITLE_TX = i == none ? QString() : titles[i];
    });
}

void frmMain_01_Contacts::ShowContextMenu(const QPoint& position) {
    if (QAction* copy = mMenu->findChild<QAction*>(QStringLiteral("mnuCopy")))
        copy->setEnabled(SelectedKeys().size() == 1);
    PopupMenu(mMenu, position);
}

void frmMain_01_Contacts::ToggleNotes() {
    const int notes = Grid()->ColumnIndex(QStringLiteral("NOTES_TX"));
    const bool show = !Grid()->ColumnShown(notes);
    Grid()->ShowColumn(notes, show);
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
    const int email = Grid()->ColumnIndex(QStringLiteral("EMAIL_TX"));
    QStringList addresses;
    for (qint64 key : keys)
        addresses.append(Grid()->Model()->RowAt(RowOfKey(key))->Cell(email));
    frmContactEmail dialog(static_cast<int>(keys.size()), frmContactEmail::AddressList(addresses), this);
    dialog.exec();
}
