#include "core/clsApp.h"

#include "core/clsDICT.h"
#include "core/modGeneral.h"
#include "platform/VowrenPaths.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"

#include <QDir>
#include <cmath>
#include <cstdlib>

namespace {

QString DataFolder(const char* name) { return VowrenPaths::Join(VowrenPaths::DataRoot(), QString::fromLatin1(name)); }

std::unique_ptr<clsCounters>& InstalledCounters() {
    static std::unique_ptr<clsCounters> counters;
    return counters;
}

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

namespace {

// The whole part of a number as the countdown always took it: the text before the point of the number
// written with four decimals (so 0.99999 days already count as one).
long long WholePart(double value) {
    const QString text = QString::number(value, 'f', 4);
    return text.left(text.indexOf(QLatin1Char('.'))).toLongLong();
}

QString UnitText(long long number, const char* unit) {
    if (number < 1)
        return {};
    return QString::number(number) + QLatin1Char(' ') + QLatin1String(unit) +
           (number >= 2 ? QStringLiteral("s ") : QStringLiteral(" "));
}

} // namespace

QString clsApp::TimeToWeddingText(const QString& weddingDateTime, const QDateTime& now, long long* days) {
    const QDateTime wedding = ParseDateTimeText(weddingDateTime);
    if (weddingDateTime.isEmpty() || !wedding.isValid())
        return {};
    const long long s = std::llabs(now.secsTo(wedding));
    const long long wholeDays = WholePart(double(s) / 86400.0);
    long long rest = s - wholeDays * 86400;
    const long long hours = WholePart(double(rest) / 3600.0);
    rest -= hours * 3600;
    const long long minutes = WholePart(double(rest) / 60.0);
    const long long seconds = s % 60;
    if (days)
        *days = wholeDays;
    const QString secondText =
        QString::number(seconds) + (seconds == 1 ? QStringLiteral(" second ") : QStringLiteral(" seconds "));
    if (wholeDays < 1)
        return UnitText(hours, "hour") + UnitText(minutes, "minute") + secondText;
    if (wholeDays <= 14)
        return UnitText(wholeDays, "day") + UnitText(hours, "hour") + UnitText(minutes, "minute");
    if (wholeDays <= 31)
        return UnitText(wholeDays, "day") + UnitText(hours, "hour");
    return UnitText(wholeDays, "day");
}

clsApp& gApp() {
    static clsApp app;
    return app;
}

// ---- Counts ----

void clsApp::SetCounters(std::unique_ptr<clsCounters> counters) { InstalledCounters() = std::move(counters); }

const clsCounters& clsApp::Counters() {
    // A program that counts before it installed the counters is wired wrongly; no count would be true.
    if (!InstalledCounters())
        qFatal("clsApp: a count was asked for before the start-up layer installed the counters");
    return *InstalledCounters();
}

long clsApp::TotalSettings(int dictionaryKind) const { return clsDICT::GetTotal(dictionaryKind); }

long clsApp::TotalBudget(int filter, const QString& categoryId) const {
    return Counters().TotalBudget(filter, categoryId);
}
long clsApp::TotalBudgetCategories() const { return Counters().TotalBudgetCategories(); }
long clsApp::TotalContacts(int filter, const QString& customWhere, bool excludeBrideGroom) const {
    return Counters().TotalContacts(filter, customWhere, excludeBrideGroom);
}
long clsApp::TotalEvents() const { return Counters().TotalEvents(); }
long clsApp::TotalGifts(int filter, const QString& customWhere) const {
    return Counters().TotalGifts(filter, customWhere);
}
long clsApp::TotalInvitations(int filter, const QString& customWhere) const {
    return Counters().TotalInvitations(filter, customWhere);
}
long clsApp::TotalNotes() const { return Counters().TotalNotes(); }
long clsApp::TotalTables(int kind) const { return Counters().TotalTables(kind); }
long clsApp::TotalTasks(int filter) const { return Counters().TotalTasks(filter); }
long clsApp::TotalTentcards() const { return Counters().TotalTentcards(); }
long clsApp::TotalTimelineEntries(const QString& eventId) const { return Counters().TotalTimelineEntries(eventId); }
long clsApp::TotalTimelineEvents() const { return Counters().TotalTimelineEvents(); }
long clsApp::TotalVendors() const { return Counters().TotalVendors(); }
clsMoney clsApp::TotalBudgetSumEstimates() const { return Counters().TotalBudgetSumEstimates(); }
long clsApp::TotalFlights() const { return Counters().TotalFlights(); }
long clsApp::TotalHotels() const { return Counters().TotalHotels(); }
long clsApp::TotalSongs() const { return Counters().TotalSongs(); }
