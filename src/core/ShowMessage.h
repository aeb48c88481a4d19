#pragma once

#include <QString>
#include <QStringList>
#include <memory>

// Buttons, icons and answers of a message box, with the values the program has always used.
namespace Msg {
enum Buttons : int {
    OKOnly = 0,
    OKCancel = 1,
    YesNoCancel = 3,
    YesNo = 4,
    Critical = 16,
    Question = 32,
    Exclamation = 48,
    Information = 64,
};
enum Answer : int { OK = 1, Cancel = 2, Yes = 6, No = 7 };
inline int ButtonSet(int buttons) { return buttons & 0x0F; }
} // namespace Msg

// Where messages go: the desktop shows a box, the command line prints, tests capture.
class clsMessageSink {
public:
    virtual ~clsMessageSink() = default;
    virtual int Show(const QString& prompt, int buttons, const QString& title) = 0;
};

// Prints the message on standard error and answers with the first button of the set.
class clsConsoleMessageSink : public clsMessageSink {
public:
    int Show(const QString& prompt, int buttons, const QString& title) override;
};

// Keeps every message and answers with a preset answer (the first button when none is set).
class clsCapturingMessageSink : public clsMessageSink {
public:
    int Show(const QString& prompt, int buttons, const QString& title) override;
    QStringList Prompts;
    QStringList Titles;
    int NextAnswer = 0;
};

// The answer a box gives when nobody can be asked: its first button.
int FirstButtonAnswer(int buttons);

// The program's title on every box.
inline QString ProgramTitle() { return QStringLiteral("Vowren"); }

// The program's one way of showing a message. An engine message that means a broken relationship or
// a duplicate value is replaced by the program's own words first.
int ShowMessage(const QString& prompt, int buttons = Msg::OKOnly, const QString& title = QString());

// What the user chose on closing an editor.
enum class CloseChoice { Save, Discard, Stay };
// An editor with unsaved changes asks "Save Changes?" (or its own question) with Yes, No and Cancel; a
// clean editor simply closes.
CloseChoice AskBeforeClose(bool dirty, const QString& question = QStringLiteral("Save Changes?"));

// The replacement that ShowMessage makes: the first of the five engine texts found wins.
QString TranslateEngineMessage(const QString& prompt);

// Puts a sink in place and gives back the one it replaced. An empty pointer means the console.
std::unique_ptr<clsMessageSink> SetMessageSink(std::unique_ptr<clsMessageSink> sink);
clsMessageSink& MessageSink();
