#pragma once

#include "core/ShowMessage.h"
#include "platform/clsRegistry.h"
#include "startup/modStartup.h"

#include <QTemporaryDir>
#include <QtTest>
#include <sys/stat.h>

// Gives a test its own data root: $VOWREN_HOME points into a fresh temporary folder, the settings store
// is the INI file inside it, and messages are captured instead of shown.
class TestHome {
public:
    TestHome() {
        qputenv("VOWREN_HOME", mDir.path().toUtf8());
        qputenv("VOWREN_NO_OPEN", "1");
        SetRegistryStore(nullptr);
        auto sink = std::make_unique<clsCapturingMessageSink>();
        mMessages = sink.get();
        SetMessageSink(std::move(sink));
        modStartup::RegisterSubsystems();
    }
    ~TestHome() {
        SetRegistryStore(nullptr);
        SetMessageSink(nullptr);
        qunsetenv("VOWREN_HOME");
    }
    TestHome(const TestHome&) = delete;
    TestHome& operator=(const TestHome&) = delete;

    QString Path() const { return mDir.path(); }
    QString File(const QString& relative) const { return mDir.filePath(relative); }
    clsCapturingMessageSink& Messages() { return *mMessages; }

private:
    QTemporaryDir mDir;
    clsCapturingMessageSink* mMessages = nullptr;
};

// Lets files be made readable and writable by all for as long as it lives, so that only the program's
// own modes keep others out.
struct NoUmask {
    NoUmask() : Before(::umask(0)) {}
    ~NoUmask() { ::umask(Before); }
    NoUmask(const NoUmask&) = delete;
    NoUmask& operator=(const NoUmask&) = delete;
    mode_t Before;
};
