// Deleting contacts or invitations by key, all or nothing.
#include "cli/CliCommand.h"

#include "core/ShowMessage.h"
#include "core/clsDB.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"

namespace {

const QString kUsage = QStringLiteral("delete contacts|invitations KEY...");

// Why a delete of these keys may not happen, or "" when it may.
QString Refusal(bool contacts, const clsDeleteResult& result) {
    const QString noun = contacts ? QStringLiteral("contact") : QStringLiteral("invitation");
    if (!result.Missing.isEmpty())
        return QStringLiteral("there is no %1 with the key %2")
            .arg(noun, result.Missing.join(QStringLiteral(", ")));
    if (result.Kept.isEmpty())
        return {};
    return contacts ? QStringLiteral("the bride and the groom (%1) cannot be deleted")
                          .arg(result.Kept.join(QStringLiteral(", ")))
                    : QStringLiteral("invitation %1 has been sent; a sent invitation stays")
                          .arg(result.Kept.join(QStringLiteral(", ")));
}

int RunDelete(const QStringList& args, QTextStream& out, QTextStream& err) {
    const QString kind = args.value(0);
    const bool contacts = kind == QLatin1String("contacts");
    if ((!contacts && kind != QLatin1String("invitations")) || !AreKeys(args.mid(1))) {
        err << "vowren-cli: delete: usage: " << kUsage << " (keys are whole numbers above 0)\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    try {
        // Checked inside the one transaction: a refusal rolls everything back.
        clsTransaction tx(gDB());
        const clsDeleteResult result = contacts ? clsCONTACT::DeleteMany(args.mid(1))
                                                : clsINVITE::DeleteMany(args.mid(1), true);
        if (const QString why = Refusal(contacts, result); !why.isEmpty()) {
            err << "vowren-cli: delete: " << why << ". Nothing was deleted.\n";
            return kExitFailed;
        }
        tx.Commit();
        out << "Deleted " << result.Deleted.size() << ' ' << kind << ": "
            << result.Deleted.join(QLatin1Char(' ')) << '\n';
        return kExitOk;
    } catch (const clsDbError& e) {
        err << "vowren-cli: delete: " << TranslateEngineMessage(e.Message()) << " Nothing was deleted.\n";
        return kExitFailed;
    }
}

} // namespace

bool AreKeys(const QStringList& keys) {
    for (const QString& key : keys) {
        bool ok = false;
        if (key.toLongLong(&ok) <= 0 || !ok)
            return false;
    }
    return !keys.isEmpty();
}

CliCommand DeleteCommand() {
    return {
        QStringLiteral("delete"), kUsage,
        QStringLiteral("Delete contacts (with the guests they bring) or unsent invitations by key; all or "
                       "nothing."),
        RunDelete};
}
