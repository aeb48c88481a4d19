#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <memory>

// The settings store: named string values below keys, nothing else. The program reads a setting
// every time it needs it, with the default as a literal, so an unset value costs nothing.
class clsRegistryStore {
public:
    virtual ~clsRegistryStore() = default;
    virtual QString GetSetting(const QString& key, const QString& name, const QString& defaultValue) = 0;
    virtual void SaveSetting(const QString& key, const QString& name, const QString& value) = 0;
    // Whether a value exists at all; used where "unset" and "empty" must be told apart.
    virtual bool HasSetting(const QString& key, const QString& name) = 0;
    // Every "key/name" that holds a value, for tests and diagnostics.
    virtual QStringList AllSettings() = 0;
};

// The desktop's store: an INI file, readable by its owner alone (0600) from its first byte.
class clsIniRegistry : public clsRegistryStore {
public:
    explicit clsIniRegistry(QString filePath);
    ~clsIniRegistry() override;
    QString GetSetting(const QString& key, const QString& name, const QString& defaultValue) override;
    void SaveSetting(const QString& key, const QString& name, const QString& value) override;
    bool HasSetting(const QString& key, const QString& name) override;
    QStringList AllSettings() override;
    QString FilePath() const { return mFilePath; }

private:
    void MakeFilePrivate();

    struct Impl;
    QString mFilePath;
    std::unique_ptr<Impl> d;
};

// A store that lives in memory only; tests put it in place of the file.
class clsMemoryRegistry : public clsRegistryStore {
public:
    QString GetSetting(const QString& key, const QString& name, const QString& defaultValue) override;
    void SaveSetting(const QString& key, const QString& name, const QString& value) override;
    bool HasSetting(const QString& key, const QString& name) override;
    QStringList AllSettings() override;

private:
    std::map<QString, QString> mValues;
};

// The one store the program uses. Created on first use over the settings file of the data root.
clsRegistryStore& gRegistry();
// Puts another store in place (tests); an empty pointer goes back to the settings file.
void SetRegistryStore(std::unique_ptr<clsRegistryStore> store);
