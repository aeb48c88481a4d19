#include "cli/CliCommand.h"

#include "core/modDemoWedding.h"

namespace {

// A whole number from 0 to 100000, or -1.
long long ParseCount(const QString& text, long long most) {
    bool ok = false;
    const long long value = text.toLongLong(&ok);
    return ok && value >= 0 && value <= most ? value : -1;
}

int RunDemo(const QStringList& args, QTextStream& out, QTextStream& err) {
    int guests = 150;
    quint32 seed = 1;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        const bool isGuests = arg == QLatin1String("--guests");
        const bool isSeed = arg == QLatin1String("--seed");
        if (!isGuests && !isSeed) {
            err << "vowren-cli: demo: unknown argument \"" << arg
                << "\"; usage: demo [--guests N] [--seed S]\n";
            return kExitUsage;
        }
        if (i + 1 >= args.size()) {
            err << "vowren-cli: demo: " << arg << " needs a value\n";
            return kExitUsage;
        }
        const QString value = args.at(++i);
        if (isGuests) {
            const long long n = ParseCount(value, 100000);
            if (n < 0) {
                err << "vowren-cli: demo: --guests must be a whole number from 0 to 100000 (got \"" << value
                    << "\")\n";
                return kExitUsage;
            }
            guests = static_cast<int>(n);
        } else {
            const long long s = ParseCount(value, 4294967295LL);
            if (s < 0) {
                err << "vowren-cli: demo: --seed must be a whole number from 0 to 4294967295 (got \"" << value
                    << "\")\n";
                return kExitUsage;
            }
            seed = static_cast<quint32>(s);
        }
    }
    if (!StartForChange(err))
        return kExitFailed;
    QString message;
    if (!FillDemoWedding(guests, seed, &message)) {
        err << "vowren-cli: demo: " << message << '\n';
        return kExitFailed;
    }
    out << message << '\n';
    return kExitOk;
}

} // namespace

CliCommand DemoCommand() {
    return {QStringLiteral("demo"), QStringLiteral("demo [--guests N] [--seed S]"),
            QStringLiteral(
                "Fill a new database with a demo wedding of N guests (150), the same for the same seed."),
            RunDemo};
}
