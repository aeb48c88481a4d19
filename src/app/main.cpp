// vowren: the desktop program.
#include "app/clsVowrenApplication.h"
#include "app/modKnownScreens.h"
#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modBackup.h"
#include "core/modSubMain.h"
#include "platform/clsShell.h"
#include "seating/ui/map/modWebMap.h"
#include "shell/frmVowren.h"
#include "shell/mdiMain.h"
#include "shell/modScreenshots.h"
#include "shell/modSingleInstance.h"
#include "startup/modStartup.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>
#include <cstring>

namespace {

// Messages become boxes titled "Vowren" with the icon and buttons asked for.
class BoxMessageSink : public clsMessageSink {
public:
    int Show(const QString& prompt, int buttons, const QString& title) override {
        QMessageBox box(QApplication::activeWindow());
        box.setWindowTitle(title);
        box.setText(prompt);
        const int icon = buttons & 0x70;
        box.setIcon(icon == Msg::Critical      ? QMessageBox::Critical
                    : icon == Msg::Question    ? QMessageBox::Question
                    : icon == Msg::Exclamation ? QMessageBox::Warning
                    : icon == Msg::Information ? QMessageBox::Information
                                               : QMessageBox::NoIcon);
        switch (Msg::ButtonSet(buttons)) {
        case Msg::YesNo:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            break;
        case Msg::YesNoCancel:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            break;
        case Msg::OKCancel:
            box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
            break;
        default:
            box.setStandardButtons(QMessageBox::Ok);
        }
        switch (box.exec()) {
        case QMessageBox::Yes:
            return Msg::Yes;
        case QMessageBox::No:
            return Msg::No;
        case QMessageBox::Cancel:
            return Msg::Cancel;
        default:
            return Msg::OK;
        }
    }
};

// Pictures are made without a display, whatever the desktop offers.
void OffscreenForScreenshots(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--screenshots") == 0 || std::strncmp(argv[i], "--screenshots=", 14) == 0)
            qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char** argv) {
    OffscreenForScreenshots(argc, argv);
    modWebMap::Prepare();
    clsVowrenApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vowren"));
    QApplication::setApplicationVersion(clsApp::MajorMinorRevision());

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Vowren, the wedding planner."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption noSplash(QStringLiteral("no-splash"), QStringLiteral("Open the main window at once."));
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
                                         QStringLiteral("Write a picture of every screen over a demo wedding into <folder>."),
                                         QStringLiteral("folder"));
    parser.addOption(noSplash);
    parser.addOption(screenshots);
    parser.process(app);

    mdiMain::ApplyLook();
    modStartup::RegisterSubsystems();
    RegisterKnownScreens();
    modWebMap::Register();

    if (parser.isSet(screenshots)) {
        QString message;
        const int written = modScreenshots::Run(parser.value(screenshots), &message);
        std::fprintf(written > 0 ? stdout : stderr, "%s\n", qPrintable(message));
        return written > 0 ? 0 : 1;
    }

    SetMessageSink(std::make_unique<BoxMessageSink>());
    gShell().SetOpener([](const QString& target) {
        const QUrl url(target);
        return QDesktopServices::openUrl(url.isValid() && url.scheme().size() > 1 ? url
                                                                                   : QUrl::fromLocalFile(target));
    });

    if (!modSingleInstance::Claim(gApp().DatabasePath()))
        return 0;
    QString failure;
    if (!modSubMain::OpenDatabase(&failure)) {
        ShowMessage(failure, Msg::OKOnly | Msg::Exclamation);
        return 1;
    }
    if (!gDB().OpenNotice().isEmpty())
        ShowMessage(gDB().OpenNotice(), Msg::OKOnly | Msg::Information);
    // A copy of the file as this start found it, once a day.
    const modBackup::Result copy = modBackup::WriteRollingIfDue(gDB());
    if (!copy.Ok)
        ShowMessage(QStringLiteral("Vowren could not write today's backup of the database.\n\n") + copy.Error,
                    Msg::OKOnly | Msg::Exclamation);
    if (parser.isSet(noSplash)) {
        RecordIO::Attempt([] { modSubMain::RunPatchesAndOpenGlobals(); });
        auto* window = new mdiMain;
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
    } else {
        auto* splash = new frmVowren;
        splash->show();
    }
    return app.exec();
}
