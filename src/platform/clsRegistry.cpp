#include "platform/clsRegistry.h"

#include "platform/VowrenPaths.h"
#include "platform/clsPrivateFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

QString JoinKey(const QString& key, const QString& name) {
    QString path = key;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return path + QLatin1Char('/') + name;
}

std::unique_ptr<clsRegistryStore>& CurrentStore() {
    static std::unique_ptr<clsRegistryStore> store;
    return store;
}

} // namespace

struct clsIniRegistry::Impl {
    explicit Impl(const QString& path) : settings(path, QSettings::IniFormat) {}
    QSettings settings;
};

clsIniRegistry::clsIniRegistry(QString filePath) : mFilePath(std::move(filePath)) {
    QDir().mkpath(QFileInfo(mFilePath).absolutePath());
    // A file of an older version may be readable by others; from now on it isn't.
    if (QFileInfo::exists(mFilePath))
        QFile::setPermissions(mFilePath, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    d = std::make_unique<Impl>(mFilePath);
}

// The settings are written through a temporary file that takes the file's mode, so the file is made
// 0600 before the first value goes into it.
void clsIniRegistry::MakeFilePrivate() {
    if (!QFileInfo::exists(mFilePath))
        clsPrivateFile::CreateNew(mFilePath);
}

clsIniRegistry::~clsIniRegistry() = default;

QString clsIniRegistry::GetSetting(const QString& key, const QString& name, const QString& defaultValue) {
    const QVariant value = d->settings.value(JoinKey(key, name));
    return value.isValid() ? value.toString() : defaultValue;
}

void clsIniRegistry::SaveSetting(const QString& key, const QString& name, const QString& value) {
    MakeFilePrivate();
    d->settings.setValue(JoinKey(key, name), value);
    d->settings.sync();
}

bool clsIniRegistry::HasSetting(const QString& key, const QString& name) {
    return d->settings.contains(JoinKey(key, name));
}

QStringList clsIniRegistry::AllSettings() { return d->settings.allKeys(); }

QString clsMemoryRegistry::GetSetting(const QString& key, const QString& name, const QString& defaultValue) {
    const auto it = mValues.find(JoinKey(key, name));
    return it == mValues.end() ? defaultValue : it->second;
}

void clsMemoryRegistry::SaveSetting(const QString& key, const QString& name, const QString& value) {
    mValues[JoinKey(key, name)] = value;
}

bool clsMemoryRegistry::HasSetting(const QString& key, const QString& name) {
    return mValues.count(JoinKey(key, name)) > 0;
}

QStringList clsMemoryRegistry::AllSettings() {
    QStringList keys;
    for (const auto& [k, v] : mValues)
        keys << k;
    return keys;
}

clsRegistryStore& gRegistry() {
    auto& store = CurrentStore();
    if (!store)
        store = std::make_unique<clsIniRegistry>(VowrenPaths::SettingsFilePath());
    return *store;
}

void SetRegistryStore(std::unique_ptr<clsRegistryStore> store) { CurrentStore() = std::move(store); }
