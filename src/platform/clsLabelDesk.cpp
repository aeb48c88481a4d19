#include "platform/clsLabelDesk.h"

#include "platform/clsRegistry.h"

#include <QFileInfo>
#include <QProcess>

namespace {

QString Stored(const char* name) {
    return gRegistry().GetSetting(clsLabelDesk::RegistryKey(), QString::fromLatin1(name), QString());
}

} // namespace

QString clsLabelDesk::AppPath() const {
    return Stored("AppPath");
}

QString clsLabelDesk::ExeName() const {
    return Stored("ExeName");
}

void clsLabelDesk::SetAppPath(const QString& folder) {
    gRegistry().SaveSetting(RegistryKey(), QStringLiteral("AppPath"), folder.trimmed());
}

void clsLabelDesk::SetExeName(const QString& name) {
    gRegistry().SaveSetting(RegistryKey(), QStringLiteral("ExeName"), name.trimmed());
}

QString clsLabelDesk::Program() const {
    QString folder = AppPath().trimmed();
    while (folder.size() > 1 && folder.endsWith(QLatin1Char('/')))
        folder.chop(1);
    return folder + QLatin1Char('/') + ExeName().trimmed();
}

bool clsLabelDesk::IsActive() const {
    if (AppPath().trimmed().isEmpty() || ExeName().trimmed().isEmpty())
        return false;
    const QFileInfo program(Program());
    return program.isFile() && program.isExecutable();
}

QString clsLabelDesk::Argument(int section, int filter, int id) {
    return QStringLiteral("1,%1,%2,%3").arg(section).arg(filter).arg(id);
}

QString clsLabelDesk::CommandLine(int section, int filter, int id) const {
    return Program() + QLatin1Char(' ') + Argument(section, filter, id);
}

bool clsLabelDesk::Show(int section, int filter, int id) {
    mMessage.clear();
    if (!IsActive()) {
        mMessage = QStringLiteral("The label program is not set up.  Choose its folder and name in "
                                  "Options, Label Program.");
        return false;
    }
    // The program is its own argument zero, so a blank in its folder can't split the call.
    if (QProcess::startDetached(Program(), {Argument(section, filter, id)}, AppPath().trimmed()))
        return true;
    mMessage = QStringLiteral("The label program \"%1\" could not be started.  Check that it still runs, "
                              "or choose it again in Options, Label Program.")
                   .arg(Program());
    return false;
}
