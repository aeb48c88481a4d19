#include "platform/clsPrivateFile.h"

#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;

QString LastError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace

clsPrivateFile::clsPrivateFile(QString path, Existing existing)
    : mPath(std::move(path)), mExisting(existing) {}

clsPrivateFile::~clsPrivateFile() {
    Cancel();
}

bool clsPrivateFile::CreateNew(const QString& path, QString* error) {
    // The mode is given at the creation; the umask can only take bits away, and fchmod puts back the
    // owner's own.
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kOwnerOnly);
    if (fd < 0 || ::fchmod(fd, kOwnerOnly) != 0) {
        if (error)
            *error = LastError();
        if (fd >= 0) {
            ::close(fd);
            ::unlink(QFile::encodeName(path).constData());
        }
        return false;
    }
    ::close(fd);
    return true;
}

QString clsPrivateFile::NumberedName(const QString& path, int number) {
    const QFileInfo info(path);
    const QString base =
        info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1Char('_') + QString::number(number);
    return info.suffix().isEmpty() ? base : base + QLatin1Char('.') + info.suffix();
}

bool clsPrivateFile::Fail(const QString& reason) {
    mError = reason;
    Cancel();
    return false;
}

bool clsPrivateFile::Open() {
    Cancel();
    mError.clear();
    QByteArray name = QFile::encodeName(mPath) + ".XXXXXX";
    const int fd = ::mkostemp(name.data(), O_CLOEXEC); // mode 0600
    if (fd < 0)
        return Fail(LastError());
    mTemporary = QFile::decodeName(name);
    if (::fchmod(fd, kOwnerOnly) != 0 ||
        !mFile.open(fd, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        const QString reason = LastError();
        ::close(fd);
        return Fail(reason);
    }
    return true;
}

bool clsPrivateFile::Write(const char* data, qint64 size) {
    if (!mFile.isOpen())
        return false;
    if (mFile.write(data, size) == size)
        return true;
    return Fail(mFile.errorString());
}

bool clsPrivateFile::Commit() {
    if (!mFile.isOpen())
        return false;
    if (!mFile.flush() || ::fsync(mFile.handle()) != 0)
        return Fail(mFile.error() != QFileDevice::NoError ? mFile.errorString() : LastError());
    mFile.close();
    if (!MoveIntoPlace())
        return Fail(LastError());
    mTemporary.clear();
    return true;
}

// Replace renames over the target at once. KeepOthers first claims a free name with an empty file of
// its own, so that another writer of the same moment can't take it, and then renames over that.
bool clsPrivateFile::MoveIntoPlace() {
    const QByteArray from = QFile::encodeName(mTemporary);
    if (mExisting == Existing::Replace)
        return ::rename(from.constData(), QFile::encodeName(mPath).constData()) == 0;
    for (int number = 1; number < 10000; ++number) {
        const QString candidate = number == 1 ? mPath : NumberedName(mPath, number);
        if (!CreateNew(candidate)) {
            if (errno == EEXIST)
                continue;
            return false;
        }
        if (::rename(from.constData(), QFile::encodeName(candidate).constData()) != 0) {
            const int saved = errno;
            ::unlink(QFile::encodeName(candidate).constData());
            errno = saved;
            return false;
        }
        mPath = candidate;
        return true;
    }
    errno = EEXIST;
    return false;
}

void clsPrivateFile::Cancel() {
    if (mFile.isOpen())
        mFile.close();
    if (!mTemporary.isEmpty())
        ::unlink(QFile::encodeName(mTemporary).constData());
    mTemporary.clear();
}
