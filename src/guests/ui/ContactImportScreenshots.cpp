#include "guests/ui/ContactImportScreenshots.h"

#include "core/clsDB.h"
#include "guests/ui/frmContactImport.h"
#include "guests/ui/frmContactImportCSV.h"
#include "guests/ui/frmContactImportDashboard.h"
#include "guests/ui/frmContactImportDuplicate.h"
#include "guests/ui/frmImportCSVDelimiter.h"
#include "shell/modScreenshots.h"

#include <QDir>
#include <QFile>

namespace ContactImportScreenshots {
namespace {

// A Google export of four people, the last of them one of the wedding's contacts already.
QString SampleFile() {
    const QString path = QDir::temp().filePath(QStringLiteral("Google Contacts.csv"));
    QStringList known;
    try {
        const clsRecordset rs =
            gDB().Execute(QStringLiteral("SELECT FIRST_NM, LAST_NM, EMAIL_TX FROM CONTACT WHERE EMAIL_TX IS "
                                         "NOT NULL ORDER BY CONTACT_ID LIMIT 1"));
        if (!rs.IsEmpty())
            known = rs.Row(0);
    } catch (const clsDbError&) {
    }
    known.resize(3);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file.write(
            QStringLiteral(
                "First Name,Middle Name,Last Name,Name Prefix,E-mail 1 - Value,Phone 1 - Value,"
                "Address 1 - Street,Address 1 - City,Address 1 - Region,Address 1 - Postal Code,Birthday,"
                "Notes\r\n"
                "Margaret,Ann,O'Neill,Mrs.,maggie@example.com,555-0101,12 Oak Street,Salem,MA,1970,,\r\n"
                "Søren,,Kierkegård,,soren@example.dk,+45 3312 0000,Nørregade 10,København,,1165,,\r\n"
                "\"José \"\"Pepe\"\"\",,García,Mr.,pepe@example.es ::: jose@work.example,,\"Calle Mayor 5, "
                "2º\",Madrid,,28013,1980-05-04,\"Loves flamenco,\r\nbring the guitar\"\r\n"
                "%1,,%2,,%3,,,,,,,\r\n")
                .arg(known.at(0), known.at(1), known.at(2))
                .toUtf8());
    }
    return path;
}

frmContactImportCSV* MappedFile() {
    auto* dialog = new frmContactImportCSV;
    dialog->LoadFile(SampleFile());
    return dialog;
}

} // namespace

void Register() {
    modScreenshots::Register(QStringLiteral("frmContactImportDashboard"),
                             [] { return new frmContactImportDashboard; });
    modScreenshots::Register(QStringLiteral("frmContactImportCSV"), [] { return MappedFile(); });
    modScreenshots::Register(QStringLiteral("frmImportCSVDelimiter"),
                             [] { return new frmImportCSVDelimiter; });
    modScreenshots::Register(QStringLiteral("frmContactImport"), [] {
        std::unique_ptr<frmContactImportCSV> mapping(MappedFile());
        auto* preview = new frmContactImport;
        preview->Load(mapping->Table(), true);
        return preview;
    });
    modScreenshots::Register(QStringLiteral("frmContactImportDuplicate"),
                             [] { return new frmContactImportDuplicate(1); });
}

} // namespace ContactImportScreenshots
