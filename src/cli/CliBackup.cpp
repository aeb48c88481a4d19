// Commands that write, list and restore copies of the database.
#include "cli/CliCommand.h"

#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modBackup.h"
#include "core/modGeneral.h"
#include "core/modSubMain.h"

namespace {

int ListBackups(QTextStream& out) {
    out << "Path,Written,Bytes,Contacts,Invitations\r\n";
    for (const modBackup::Entry& entry : modBackup::List()) {
        const QStringList fields = {entry.Path, entry.Written.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                                    QString::number(entry.Size),
                                    entry.Contacts < 0 ? QString() : QString::number(entry.Contacts),
                                    entry.Invitations < 0 ? QString() : QString::number(entry.Invitations)};
        QStringList quoted;
        for (const QString& field : fields)
            quoted << QuoteCSV(field);
        out << quoted.join(QLatin1Char(',')) << "\r\n";
    }
    return kExitOk;
}

int RunBackup(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args == QStringList{QStringLiteral("--list")})
        return ListBackups(out);
    if (!args.isEmpty()) {
        err << "vowren-cli: backup takes no arguments but --list (got \"" << args.first() << "\")\n";
        return kExitUsage;
    }
    if (!StartForReading(err))
        return kExitFailed;
    const modBackup::Result result = modBackup::WriteRolling(gDB().Connection());
    if (!result.Ok) {
        err << "vowren-cli: backup: " << result.Error << '\n';
        return kExitFailed;
    }
    out << result.Path << '\n';
    return kExitOk;
}

int RunRestore(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.size() != 1 || args.first().isEmpty()) {
        err << "vowren-cli: restore takes the path of one backup, e.g. vowren-cli restore "
               "\"Database/Backups/Vowren_2027-01-01_120000.quilldata\"\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    const modBackup::Result result = modBackup::Restore(gDB(), args.first());
    if (!result.Ok) {
        err << "vowren-cli: restore: " << result.Error << '\n';
        return kExitFailed;
    }
    // A copy from an older Vowren is brought up to date as any older file is.
    modSubMain::RunPatchesAndOpenGlobals();
    out << "Restored " << args.first() << "; the database as it was before is at " << result.Path << '\n';
    return kExitOk;
}

} // namespace

CliCommand BackupCommand() {
    return {QStringLiteral("backup"), QStringLiteral("backup [--list]"),
            QStringLiteral("Write a copy of the database into Database/Backups and print its path; --list prints "
                           "the copies (CSV, newest first)."),
            RunBackup};
}

CliCommand RestoreCommand() {
    return {QStringLiteral("restore"), QStringLiteral("restore FILE"),
            QStringLiteral("Put a backup in place of the database, after a copy of the present state."),
            RunRestore};
}
