#pragma once

#include "platform/clsPrivateFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <memory>

// The program's line-oriented text file. A file opened for writing is built in a temporary file in
// the same folder and takes its name only when it is closed, so a failure never leaves half a file
// behind and a file of the same name stays as it was until then. What it writes is readable by its
// owner alone (mode 0600) from the first byte. Every failure is told to the user once, through
// ShowMessage, with the path.
class TextFile {
public:
    enum Mode : int { ForReading = 1, ForWriting = 2 };
    enum class Encoding { Utf8, Utf8WithBom };

    TextFile();
    ~TextFile();
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    // Opens a file for reading (it must exist and be readable), or for writing: a new file that
    // replaces one of the same name at CloseFile, or with KeepOthers leaves it and takes the name with
    // "_2", "_3", ... added. Lines written end in CR LF.
    bool OpenFile(const QString& path, int mode, Encoding encoding = Encoding::Utf8,
                  clsPrivateFile::Existing existing = clsPrivateFile::Existing::Replace);
    // Writes the text as one line; the two counts add empty lines before and after it (white space
    // only: a reader of the file's format never depends on them).
    bool WriteLine(const QString& text, int blankLinesBefore = 0, int blankLinesAfter = 0);
    // Writes the bytes as they are (a document of another format).
    bool Write(const QByteArray& bytes);
    // Ends the file: a file written puts itself in place now. False when anything went wrong on the way.
    bool CloseFile();
    // Every line of the file opened for reading (LF or CR LF; a UTF-8 byte-order mark is dropped).
    QStringList ReadAllLines() const;
    // Hands a path to the desktop to open with its program; the empty path means the file last opened.
    bool ShellOpen(const QString& path = QString(), int flag = 0);

    // The file's name; after CloseFile of a file written, the name it took.
    QString FileName() const { return mPath; }
    bool IsOpen() const;
    // True once something went wrong since the file was opened; the user has been told.
    bool HasFailed() const { return mFailed; }

private:
    void Fail(const QString& reason);
    bool WriteBytes(const char* data, qint64 size);

    QString mPath;
    int mMode = 0;
    bool mFailed = false;
    std::unique_ptr<clsPrivateFile> mOut;
};
