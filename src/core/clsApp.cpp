#include "core/clsApp.h"

#include "core/modGeneral.h"
#include "platform/VowrenPaths.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"

#include <QDir>
#include <cmath>

namespace {

QString DataFolder(const char* name) { return VowrenPaths::Join(VowrenPaths::DataRoot(), QString::fromLatin1(name)); }

} // namespace

QString clsApp::GetText(const QString& name, const char* defaultValue) const {
    return gRegistry().GetSetting(RootKey(), name, QString::fromUtf8(defaultValue));
}

void clsApp::SetText(const QString& name, const QString& value) const { gRegistry().SaveSetting(RootKey(), name, value); }

bool clsApp::GetBool(const QString& name, bool defaultValue) const {
    return ToBool(gRegistry().GetSetting(RootKey(), name, FromBool(defaultValue)), defaultValue);
}

void clsApp::SetBool(const QString& name, bool value) const { SetText(name, FromBool(value)); }

int clsApp::GetInt(const QString& name, int defaultValue) const {
    return ToInt16(gRegistry().GetSetting(RootKey(), name, QString::number(defaultValue)), defaultValue);
}

void clsApp::SetInt(const QString& name, int value) const { SetText(name, QString::number(value)); }

bool clsApp::ToBool(const QString& text, bool defaultValue) {
    const QString trimmed = text.trimmed();
    if (trimmed.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    const double number = trimmed.toDouble(&ok);
    return ok ? number != 0.0 : defaultValue;
}

int clsApp::ToInt16(const QString& text, int defaultValue) {
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return defaultValue;
    // Halves go to the even neighbour, as the conversion always did.
    const double rounded = std::nearbyint(number);
    if (rounded < -32768.0 || rounded > 32767.0)
        return defaultValue;
    return static_cast<int>(rounded);
}

void clsApp::WriteStartValues() const {
    SetText(QStringLiteral("Release"), MajorMinor());
    SetText(QStringLiteral("AppPath"), VowrenPaths::ProgramFolder());
}

QString clsApp::MajorMinor() { return QStringLiteral("%1.%2").arg(VOWREN_VERSION_MAJOR).arg(VOWREN_VERSION_MINOR); }

QString clsApp::MajorMinorRevision() { return MajorMinor() + QStringLiteral(".%1").arg(VOWREN_VERSION_PATCH); }

QString clsApp::DatabasePath() const {
    const QString dataFile = DataFolder("Database/Vowren.quilldata");
    if (FileExists(dataFile))
        return dataFile;
    const QString connectFile = DataFolder("Database/Vowren.connect");
    if (FileExists(connectFile)) {
        const QStringList lines = gShell().ReadLines(connectFile);
        return lines.isEmpty() ? QString() : lines.first();
    }
    return dataFile;
}

QString clsApp::ReportPath() const { return DataFolder("Reports"); }
QString clsApp::PlaylistPath() const { return DataFolder("Playlists"); }
QString clsApp::TemplatePath() const { return DataFolder("Templates"); }
QString clsApp::SupportPath() const { return DataFolder("Support"); }

void clsApp::MakeReportPath() const { QDir().mkpath(ReportPath()); }
void clsApp::MakePlaylistPath() const { QDir().mkpath(PlaylistPath()); }

bool clsApp::CoreInformationGathered(const QString& brideFirst, const QString& brideLast, const QString& groomFirst,
                                     const QString& groomLast, const QString& weddingDate) {
    return !brideFirst.isEmpty() && !brideLast.isEmpty() && !groomFirst.isEmpty() && !groomLast.isEmpty() &&
           !weddingDate.isEmpty();
}

bool clsApp::Married(const QString& weddingDateTime, const QDateTime& now) {
    const QDateTime wedding = ParseDateTimeText(weddingDateTime);
    if (!wedding.isValid())
        return false;
    return now.secsTo(wedding) < 0;
}

clsApp& gApp() {
    static clsApp app;
    return app;
}
