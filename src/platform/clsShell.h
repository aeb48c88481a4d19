#pragma once

#include <QString>
#include <QStringList>
#include <functional>

// What the desktop gives the program: opening a document, folder or web address with its default
// program, a mail link, the calculator, and reading a small text file into lines.
class clsShell {
public:
    using Opener = std::function<bool(const QString& target)>;

    // Opens a file, a folder or a URL. With $VOWREN_NO_OPEN=1 it only writes a line on standard error.
    bool OpenDocument(const QString& target);
    // Opens "mailto:" + address.
    bool SendEmail(const QString& address);
    // Starts the first desktop calculator found; false, with Message() set, when none is installed.
    bool StartCalculator();
    // Reads a text file into lines (LF or CR LF); an unreadable file gives no lines.
    QStringList ReadLines(const QString& path) const;

    // The message of the last failure, in words for the user.
    QString Message() const { return mMessage; }

    // The desktop program puts its own opener in place; the default hands the target to xdg-open.
    void SetOpener(Opener opener) { mOpener = std::move(opener); }

    // The calculators looked for, in order.
    static QStringList CalculatorPrograms();

private:
    Opener mOpener;
    QString mMessage;
};

clsShell& gShell();
