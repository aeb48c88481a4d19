#pragma once

#include <QString>
#include <QStringList>

// The separate label program that prints labels and tent cards on any sheet: when it is set up, the
// report screen hands it the chosen section instead of printing labels itself. The two programs share
// only the database and the command line. Its folder and executable name are settings of its own key;
// none is set by default, so the hand-off is off until the user names the program.
class clsLabelDesk {
public:
    static QString RegistryKey() { return QStringLiteral("Software/QuillSoftware/LabelDesk"); }

    // The folder of the program, as stored; empty when it isn't set up.
    QString AppPath() const;
    // The name of its executable inside that folder.
    QString ExeName() const;
    void SetAppPath(const QString& folder);
    void SetExeName(const QString& name);

    // The folder, trimmed, is set, the name is set, and that file exists and may be run. A stored path
    // whose file has gone counts as not set up.
    bool IsActive() const;
    // The executable: the folder, "/", the name.
    QString Program() const;
    // The one argument the program reads: "1," + section + "," + filter + "," + id, no blanks.
    static QString Argument(int section, int filter, int id);
    // The command line as the user would type it; a blank in the folder stands unquoted, as the program
    // has always been called.
    QString CommandLine(int section, int filter, int id) const;
    // Starts the program on the section, filter and event id (0 for none) and doesn't wait for it.
    // False, with Message() set, when it isn't set up or could not be started.
    bool Show(int section, int filter, int id);
    QString Message() const { return mMessage; }

private:
    QString mMessage;
};
