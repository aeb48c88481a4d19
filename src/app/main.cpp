// vowren: the desktop program.
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modSubMain.h"
#include "platform/VowrenPaths.h"
#include "platform/clsShell.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

namespace {

// Messages become boxes titled "Vowren" with the icon and buttons asked for.
class BoxMessageSink : public clsMessageSink {
public:
    int Show(const QString& prompt, int buttons, const QString& title) override {
        QMessageBox box;
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

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vowren"));
    QApplication::setApplicationVersion(clsApp::MajorMinorRevision());
    SetMessageSink(std::make_unique<BoxMessageSink>());
    gShell().SetOpener([](const QString& target) {
        const QUrl url(target);
        return QDesktopServices::openUrl(url.isValid() && url.scheme().size() > 1 ? url
                                                                                   : QUrl::fromLocalFile(target));
    });

    QString failure;
    if (!modSubMain::Start(&failure)) {
        ShowMessage(failure, Msg::OKOnly | Msg::Exclamation);
        return 1;
    }
    ShowMessage(QStringLiteral("Vowren %1\n\nYour wedding database is ready: %2\n\n"
                               "The planner's pages are not part of this build yet; "
                               "use vowren-cli for the jobs that are.")
                    .arg(clsApp::MajorMinorRevision(), gApp().DatabasePath()),
                Msg::Information);
    return 0;
}
