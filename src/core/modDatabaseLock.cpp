#include "core/modDatabaseLock.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <memory>

namespace modDatabaseLock {
namespace {

struct HeldLock {
    QString Path;
    std::unique_ptr<QLockFile> File;
};

HeldLock& Current() {
    static HeldLock lock;
    return lock;
}

QString LockPath(const QString& databasePath) {
    return QFileInfo(databasePath).absoluteFilePath() + QStringLiteral(".lock");
}

QString Holder(const QLockFile& file) {
    qint64 pid = 0;
    QString host;
    QString program;
    if (!file.getLockInfo(&pid, &host, &program))
        return QStringLiteral("another program");
    return QStringLiteral("%1, process %2 on %3")
        .arg(program.isEmpty() ? QStringLiteral("another program") : program)
        .arg(pid)
        .arg(host.isEmpty() ? QStringLiteral("this computer") : host);
}

} // namespace

bool Acquire(const QString& databasePath, int waitMs, QString* holder) {
    const QString path = LockPath(databasePath);
    HeldLock& current = Current();
    if (current.File && current.Path == path)
        return true;
    // A first start has no Database folder yet; the lock comes before the file it guards.
    QDir().mkpath(QFileInfo(path).absolutePath());
    auto file = std::make_unique<QLockFile>(path);
    // Only a holder that is gone gives the lock up; a long session never goes stale.
    file->setStaleLockTime(0);
    if (!file->tryLock(waitMs)) {
        // A folder that can't be written holds no lock of anybody's: opening the file tells what is wrong.
        if (file->error() != QLockFile::LockFailedError)
            return true;
        if (holder)
            *holder = Holder(*file);
        return false;
    }
    Release();
    current.Path = path;
    current.File = std::move(file);
    return true;
}

void Release() {
    HeldLock& current = Current();
    current.File.reset();
    current.Path.clear();
}

bool Held() { return Current().File != nullptr; }

QString InUseMessage(const QString& databasePath, const QString& holder) {
    return QStringLiteral("The database \"%1\" is in use by %2.\n\nNothing was changed. Close that program, or "
                          "wait until it is done, and try again.")
        .arg(databasePath, holder);
}

} // namespace modDatabaseLock
