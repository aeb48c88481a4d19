#include "shell/modScreenshots.h"

#include "core/ShowMessage.h"
#include "core/clsDB.h"
#include "core/modBackup.h"
#include "core/modDemoWedding.h"
#include "core/modGeneral.h"
#include "core/modSubMain.h"
#include "platform/clsRegistry.h"
#include "shell/frmMain_00_Welcome.h"
#include "shell/frmVowren.h"
#include "shell/controls/usrNumberBox.h"
#include "shell/mdiMain.h"
#include "shell/modPages.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDir>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimeEdit>

namespace {

QMap<QString, modScreenshots::Maker>& Makers() {
    static QMap<QString, modScreenshots::Maker> makers;
    return makers;
}

void Settle() {
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

// A fixed moment, so that the pictures of two runs are the same: ninety days before the demo wedding.
QDateTime PictureMoment() {
    return ParseDateTimeText(modDemoWedding::WeddingDateTime()).addDays(-90).addSecs(-5 * 3600 - 17 * 60);
}

mdiMain* MakeMainWindow() {
    auto* window = new mdiMain;
    window->setWindowState(Qt::WindowNoState);
    window->resize(modScreenshots::MainWindowSize());
    return window;
}

int WelcomeSteps(const QString& folder) {
    std::unique_ptr<mdiMain> window(MakeMainWindow());
    auto* welcome = qobject_cast<frmMain_00_Welcome*>(window->CurrentPage());
    if (!welcome)
        return 0;
    int saved = modScreenshots::Save(window.get(), folder, QStringLiteral("frmMain_00_Welcome")) ? 1 : 0;
    auto type = [welcome](const char* name, const QString& text) {
        auto* edit = welcome->findChild<QLineEdit*>(QLatin1String(name));
        edit->setText(text);
        emit edit->textEdited(text);
        emit edit->editingFinished();
    };
    type("txt_0", QStringLiteral("Emily Rose Carter"));
    type("txt_1", QStringLiteral("Daniel James Whitaker"));
    auto* next = welcome->findChild<QPushButton*>(QStringLiteral("imgContinue"));
    saved += modScreenshots::Save(window.get(), folder, QStringLiteral("frmMain_00_Welcome_1")) ? 1 : 0;
    next->click();
    welcome->findChild<QCalendarWidget*>(QStringLiteral("monthYear"))->setSelectedDate(QDate(2027, 6, 12));
    welcome->findChild<QTimeEdit*>(QStringLiteral("timePicker"))->setTime(QTime(15, 30));
    saved += modScreenshots::Save(window.get(), folder, QStringLiteral("frmMain_00_Welcome_2")) ? 1 : 0;
    next->click();
    auto* budget = welcome->findChild<usrNumberBox*>(QStringLiteral("usrNumber"));
    budget->setValue(32000);
    budget->deselect();
    saved += modScreenshots::Save(window.get(), folder, QStringLiteral("frmMain_00_Welcome_3")) ? 1 : 0;
    next->click();
    saved += modScreenshots::Save(window.get(), folder, QStringLiteral("frmMain_00_Welcome_4")) ? 1 : 0;
    window->close();
    return saved;
}

int Pages(const QString& folder) {
    std::unique_ptr<mdiMain> window(MakeMainWindow());
    int saved = 0;
    for (int index : modPages::PageIndexes()) {
        if (!modPages::IsAvailable(index) || !window->ShowPage(index))
            continue;
        saved += modScreenshots::Save(window.get(), folder, modPages::FormName(index)) ? 1 : 0;
    }
    window->close();
    return saved;
}

int Registered(const QString& folder) {
    int saved = 0;
    for (auto it = Makers().constBegin(); it != Makers().constEnd(); ++it) {
        std::unique_ptr<QWidget> screen(it.value()());
        if (screen)
            saved += modScreenshots::Save(screen.get(), folder, it.key()) ? 1 : 0;
    }
    return saved;
}

} // namespace

namespace modScreenshots {

void Register(const QString& formName, Maker maker) { Makers().insert(formName, std::move(maker)); }

QStringList RegisteredNames() { return Makers().keys(); }

bool Save(QWidget* widget, const QString& folder, const QString& name) {
    widget->show();
    Settle();
    return widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

int Run(const QString& folder, QString* message) {
    auto say = [message](const QString& text) {
        if (message)
            *message = text;
    };
    if (!QDir().mkpath(folder)) {
        say(QStringLiteral("The folder for the pictures can't be made: ") + folder);
        return 0;
    }
    QTemporaryDir home;
    if (!home.isValid()) {
        say(QStringLiteral("No temporary folder for the demo wedding: ") + home.errorString());
        return 0;
    }
    qputenv("VOWREN_HOME", home.path().toUtf8());
    qputenv("VOWREN_NO_OPEN", "1");
    SetRegistryStore(nullptr);
    auto sink = std::make_unique<clsCapturingMessageSink>();
    clsCapturingMessageSink* messages = sink.get();
    auto previous = SetMessageSink(std::move(sink));
    SetNowForTesting(PictureMoment());

    int saved = 0;
    QString failure;
    if (!modSubMain::Start(&failure)) {
        say(failure);
        SetMessageSink(std::move(previous));
        return 0;
    }
    {
        frmVowren splash(false);
        saved += Save(&splash, folder, QStringLiteral("frmVowren")) ? 1 : 0;
    }
    saved += WelcomeSteps(folder);
    QString demo;
    if (!FillDemoWedding(150, 1, &demo)) {
        say(demo);
        SetMessageSink(std::move(previous));
        return saved;
    }
    saved += Pages(folder);
    modBackup::WriteRolling(gDB().Connection()); // so that the backup dialog lists a copy
    saved += Registered(folder);
    SetNowForTesting(QDateTime());
    const QStringList shown = messages->Prompts;
    SetMessageSink(std::move(previous));
    say(QStringLiteral("%1 pictures written to %2.").arg(saved).arg(QDir(folder).absolutePath()) +
        (shown.isEmpty() ? QString() : QStringLiteral("\nMessages on the way:\n") + shown.join(QLatin1Char('\n'))));
    return saved;
}

} // namespace modScreenshots
