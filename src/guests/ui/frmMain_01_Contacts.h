#pragma once

#include "core/FilterCode.h"
#include "shell/usrListPage.h"

#include <functional>

class clsCONTACT;
class QMenu;

// The guest list of the whole wedding: every contact in one grid, the filter panel with counts, the
// actions, a search, and a context menu that changes many contacts at once.
class frmMain_01_Contacts : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_01_Contacts(QWidget* parent = nullptr);

    // The actions of the row above the grid, by index.
    enum ActionIndex : int {
        AddContact = 0,
        EditContact,
        DeleteContact,
        EmailContact,
        ImportContacts,
        ExportContacts,
        PrintReports,
        OpenReportsFolder,
        CustomizeColumns,
    };

    // The grid's columns, in their first order.
    enum Column : int {
        ICO = 0,
        INVITE_ICO,
        TITLE_TX,
        FULL_NM,
        ADDRESS_TX,
        NICK_NM,
        EMAIL_TX,
        PHONE_TX,
        AB,
        FRIEND_OF_TX,
        ROLE_TX,
        GENDER_FG,
        OUT_OF_TOWNER_FG,
        GUEST_OF,
        NOTES_TX,
        ColumnCount
    };

    // Deletes the selected contacts, with the guests they bring, after asking; all or nothing. The bride
    // and the groom are left alone. The number of selected contacts deleted.
    int DeleteSelected();
    // Sets a field of every selected contact, saved with their invitations' labels, all or nothing.
    bool ChangeSelected(const std::function<void(clsCONTACT&)>& change);
    // Opens the import of contacts from a file; the list shows the new rows after it.
    void ImportContactsFromFile();
    // Writes the contacts of the filter in force as CSV and opens the file; its full name.
    QString ExportContactsCsv();
    // The context menu as it stands for the selection (not shown).
    QMenu* ContextMenu() const { return mMenu; }

public slots:
    // What the contact editor raises: the row is refreshed or added, and the counts follow.
    void mfrmContact_Added(const QString& contactId);
    void mfrmContact_Updated(const QString& contactId);
    void mfrmContact_OptionsChanged();

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;

private:
    void BuildActions();
    void BuildMenu();
    void AddFieldMenu(const QString& name, const QString& title, const QStringList& captions,
                      const std::function<void(clsCONTACT&, int)>& apply);
    void AddTitleMenu();
    void OpenEditor(const QString& contactId, bool copy);
    void EmailSelected();
    void SetRowCells(const QModelIndex& row, const clsCONTACT& contact);
    void ToggleNotes();
    bool ExcludeBrideGroom(int filterId) const { return filterId != ContactFilter::AllContacts; }

    QMenu* mMenu = nullptr;
};
