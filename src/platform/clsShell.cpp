#include "platform/clsShell.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTextStream>
#include <QUrl>

#include <cstdio>

namespace {

bool OpensAreSuppressed() { return qEnvironmentVariable("VOWREN_NO_OPEN") == QLatin1String("1"); }

QString AsUrlText(const QString& target) {
    const QUrl url(target);
    if (url.isValid() && url.scheme().size() > 1)
        return target;
    return QUrl::fromLocalFile(QFileInfo(target).absoluteFilePath()).toString();
}

bool OpenWithXdg(const QString& target) {
    return QProcess::startDetached(QStringLiteral("xdg-open"), {AsUrlText(target)});
}

} // namespace

bool clsShell::OpenDocument(const QString& target) {
    mMessage.clear();
    if (target.isEmpty())
        return false;
    if (OpensAreSuppressed()) {
        std::fprintf(stderr, "vowren: open %s\n", qPrintable(target));
        return true;
    }
    const bool opened = mOpener ? mOpener(target) : OpenWithXdg(target);
    if (!opened)
        mMessage = QStringLiteral("Unable to open \"%1\".  No program on this desktop opens it.").arg(target);
    return opened;
}

bool clsShell::SendEmail(const QString& address) { return OpenDocument(QStringLiteral("mailto:") + address); }

QStringList clsShell::CalculatorPrograms() {
    return {QStringLiteral("gnome-calculator"), QStringLiteral("kcalc"), QStringLiteral("galculator"),
            QStringLiteral("qalculate-gtk"), QStringLiteral("xcalc")};
}

bool clsShell::StartCalculator() {
    mMessage.clear();
    for (const QString& program : CalculatorPrograms()) {
        const QString path = QStandardPaths::findExecutable(program);
        if (path.isEmpty())
            continue;
        if (OpensAreSuppressed()) {
            std::fprintf(stderr, "vowren: start %s\n", qPrintable(path));
            return true;
        }
        if (QProcess::startDetached(path, {}))
            return true;
    }
    mMessage = QStringLiteral("No calculator was found on this computer.\n\n"
                              "Install one of these programs: ") +
               CalculatorPrograms().join(QStringLiteral(", ")) + QLatin1Char('.');
    return false;
}

QStringList clsShell::ReadLines(const QString& path) const {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QTextStream in(&file);
    QStringList lines;
    while (!in.atEnd())
        lines << in.readLine();
    return lines;
}

clsShell& gShell() {
    static clsShell shell;
    return shell;
}
