#include "core/ShowMessage.h"

#include <array>
#include <cstdio>
#include <utility>

namespace {

std::unique_ptr<clsMessageSink>& CurrentSink() {
    static std::unique_ptr<clsMessageSink> sink;
    return sink;
}

} // namespace

int FirstButtonAnswer(int buttons) {
    switch (Msg::ButtonSet(buttons)) {
    case Msg::YesNo:
    case Msg::YesNoCancel:
        return Msg::Yes;
    default:
        return Msg::OK;
    }
}

int clsConsoleMessageSink::Show(const QString& prompt, int buttons, const QString& title) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(prompt));
    return FirstButtonAnswer(buttons);
}

int clsCapturingMessageSink::Show(const QString& prompt, int buttons, const QString& title) {
    Prompts << prompt;
    Titles << title;
    return NextAnswer != 0 ? NextAnswer : FirstButtonAnswer(buttons);
}

QString TranslateEngineMessage(const QString& prompt) {
    static const std::array<std::pair<const char*, const char*>, 5> translations{{
        {"'BUDGET' includes related records", "Unable to delete.  Budget entries are associated with this entry."},
        {"'CONTACT' includes related records", "Unable to delete.  Contacts are associated with this entry."},
        {"'GIFT' includes related records", "Unable to delete.  Gift records exist for this contact."},
        {"'SONG' includes related records", "Unable to delete.  Songs are associated with this songlist."},
        {"duplicate values in the index", "Duplicate value.  Ensure that entry is unique."},
    }};
    for (const auto& [engineText, programText] : translations) {
        if (prompt.contains(QLatin1String(engineText), Qt::CaseSensitive))
            return QString::fromLatin1(programText);
    }
    return prompt;
}

int ShowMessage(const QString& prompt, int buttons, const QString& title) {
    return MessageSink().Show(TranslateEngineMessage(prompt), buttons, title.isEmpty() ? ProgramTitle() : title);
}

CloseChoice AskBeforeClose(bool dirty, const QString& question) {
    if (!dirty)
        return CloseChoice::Discard;
    switch (ShowMessage(question, Msg::YesNoCancel | Msg::Question)) {
    case Msg::Yes:
        return CloseChoice::Save;
    case Msg::No:
        return CloseChoice::Discard;
    default:
        return CloseChoice::Stay;
    }
}

std::unique_ptr<clsMessageSink> SetMessageSink(std::unique_ptr<clsMessageSink> sink) {
    return std::exchange(CurrentSink(), std::move(sink));
}

clsMessageSink& MessageSink() {
    auto& sink = CurrentSink();
    if (!sink)
        sink = std::make_unique<clsConsoleMessageSink>();
    return *sink;
}
