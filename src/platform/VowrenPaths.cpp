#include "platform/VowrenPaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace VowrenPaths {

namespace {
QString HomeOverride() { return QDir::cleanPath(qEnvironmentVariable("VOWREN_HOME")); }
bool HasHomeOverride() { return !qEnvironmentVariable("VOWREN_HOME").isEmpty(); }
} // namespace

QString DataRoot() {
    if (HasHomeOverride())
        return QDir(HomeOverride()).absolutePath();
    return Join(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), QStringLiteral("Vowren"));
}

QString SettingsFilePath() {
    if (HasHomeOverride())
        return Join(DataRoot(), QStringLiteral("Vowren.ini"));
    return Join(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation),
                QStringLiteral("Vowren/Vowren.ini"));
}

QString ProgramFolder() {
    if (QCoreApplication::instance())
        return QCoreApplication::applicationDirPath();
    return QDir::currentPath();
}

QString Join(const QString& folder, const QString& relative) {
    QString left = folder;
    while (left.endsWith(QLatin1Char('/')) && left.size() > 1)
        left.chop(1);
    QString right = relative;
    while (right.startsWith(QLatin1Char('/')))
        right.remove(0, 1);
    if (left.isEmpty() || left.endsWith(QLatin1Char('/')))
        return left + right;
    return left + QLatin1Char('/') + right;
}

} // namespace VowrenPaths
