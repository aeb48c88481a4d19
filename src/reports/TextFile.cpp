#include "reports/TextFile.h"

#include "core/ShowMessage.h"
#include "platform/clsShell.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TextFile::TextFile() = default;
TextFile::~TextFile() = default; // a file still open for writing is dropped, never half written

bool TextFile::IsOpen() const {
    return mOut != nullptr || (mMode == ForReading && !mFailed);
}

void TextFile::Fail(const QString& reason) {
    mOut.reset(); // what was written goes
    if (mFailed)
        return;
    mFailed = true;
    ShowMessage(
        QStringLiteral("Unable to write the file \"%1\".  %2").arg(QDir::toNativeSeparators(mPath), reason),
        Msg::OKOnly | Msg::Exclamation, ProgramTitle());
}

bool TextFile::OpenFile(const QString& path, int mode, Encoding encoding, clsPrivateFile::Existing existing) {
    mOut.reset();
    mPath = path;
    mMode = mode;
    mFailed = false;
    if (mode == ForReading) {
        QFile in(path);
        if (!in.open(QIODevice::ReadOnly)) {
            mFailed = true;
            ShowMessage(QStringLiteral("Unable to read the file \"%1\".  %2")
                            .arg(QDir::toNativeSeparators(path), in.errorString()),
                        Msg::OKOnly | Msg::Exclamation, ProgramTitle());
            return false;
        }
        return true;
    }
    if (mode != ForWriting) {
        mFailed = true;
        return false;
    }
    if (QFileInfo(path).isDir()) {
        Fail(QStringLiteral("A folder of that name is in the way."));
        return false;
    }
    mOut = std::make_unique<clsPrivateFile>(path, existing);
    if (!mOut->Open()) {
        Fail(mOut->ErrorString());
        return false;
    }
    if (encoding == Encoding::Utf8WithBom && !mOut->Write("\xEF\xBB\xBF", 3)) {
        Fail(mOut->ErrorString());
        return false;
    }
    return true;
}

bool TextFile::WriteLine(const QString& text, int blankLinesBefore, int blankLinesAfter) {
    if (!mOut)
        return false;
    const auto write = [this](const char* data, qint64 size) { return WriteBytes(data, size); };
    for (int i = 0; i < blankLinesBefore; ++i)
        if (!write("\r\n", 2))
            return false;
    const QByteArray bytes = text.toUtf8();
    if (!write(bytes.constData(), bytes.size()) || !write("\r\n", 2))
        return false;
    for (int i = 0; i < blankLinesAfter; ++i)
        if (!write("\r\n", 2))
            return false;
    return true;
}

bool TextFile::WriteBytes(const char* data, qint64 size) {
    if (mOut->Write(data, size))
        return true;
    Fail(mOut->ErrorString());
    return false;
}

bool TextFile::Write(const QByteArray& bytes) {
    return mOut && WriteBytes(bytes.constData(), bytes.size());
}

bool TextFile::CloseFile() {
    if (mMode == ForReading) {
        mMode = 0;
        return !mFailed;
    }
    if (!mOut)
        return false;
    if (!mOut->Commit()) {
        Fail(mOut->ErrorString());
        return false;
    }
    mPath = mOut->FileName();
    mOut.reset();
    return !mFailed;
}

QStringList TextFile::ReadAllLines() const {
    QStringList lines = gShell().ReadLines(mPath);
    if (!lines.isEmpty() && lines.first().startsWith(QChar(0xFEFF)))
        lines.first().remove(0, 1);
    return lines;
}

bool TextFile::ShellOpen(const QString& path, int flag) {
    Q_UNUSED(flag) // the window style of the opened program: the desktop decides
    const QString target = path.isEmpty() ? mPath : path;
    if (gShell().OpenDocument(target))
        return true;
    if (!gShell().Message().isEmpty())
        ShowMessage(gShell().Message(), Msg::OKOnly | Msg::Exclamation, ProgramTitle());
    return false;
}
