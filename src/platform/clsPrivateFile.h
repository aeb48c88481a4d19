#pragma once

#include <QFile>
#include <QString>

// A file that only its owner may read or write (mode 0600) from its first byte on, whatever the umask:
// reports, backups and settings hold a couple's guests and their addresses. It is written whole or not
// at all: the bytes go into a temporary file of mode 0600 beside the target, flushed to the disk, which
// takes the target's name at Commit. A file dropped before Commit leaves nothing behind.
class clsPrivateFile {
public:
    // Replace: the file takes the place of one of the same name. KeepOthers: a file of that name stays,
    // and this one is named with "_2", "_3", ... before the extension (two reports of one second).
    enum class Existing { Replace, KeepOthers };

    explicit clsPrivateFile(QString path, Existing existing = Existing::Replace);
    ~clsPrivateFile();
    clsPrivateFile(const clsPrivateFile&) = delete;
    clsPrivateFile& operator=(const clsPrivateFile&) = delete;

    // Makes the temporary file. False, with ErrorString, when it can't be made.
    bool Open();
    bool Write(const char* data, qint64 size);
    // Puts the file in place under its name. False, with ErrorString, when anything failed; then
    // nothing is left behind and a file of that name is as it was.
    bool Commit();
    // Drops what was written.
    void Cancel();

    // The name the file has: the one given, and after Commit the one it took.
    QString FileName() const { return mPath; }
    QString ErrorString() const { return mError; }
    bool IsOpen() const { return mFile.isOpen(); }

    // A new, empty file of mode 0600 for a program that then writes it itself (a database backup). False,
    // with the reason, when a file of that name exists or the file can't be made.
    static bool CreateNew(const QString& path, QString* error = nullptr);
    // "dir/name_2.ext" for "dir/name.ext" and 2.
    static QString NumberedName(const QString& path, int number);

private:
    bool Fail(const QString& reason);
    bool MoveIntoPlace();

    QString mPath;
    Existing mExisting;
    QString mTemporary;
    QFile mFile;
    QString mError;
};
