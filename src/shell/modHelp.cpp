#include "shell/modHelp.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "platform/clsShell.h"
#include "shell/mdiMain.h"

#include <QDir>
#include <QFile>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextDocument>

namespace {

QString HelpText() {
    mdiMain::InitResources();
    QFile file(QStringLiteral(":/shell/help.html"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

} // namespace

namespace modHelp {

QString HelpPath() {
    return QDir(gApp().SupportPath()).filePath(QStringLiteral("Vowren-Help.pdf"));
}

bool WriteHelp(QString* message) {
    auto fail = [message](const QString& text) {
        if (message)
            *message = text;
        return false;
    };
    const QString text = HelpText();
    if (text.isEmpty())
        return fail(QStringLiteral("The help text is missing from this copy of Vowren."));
    if (!QDir().mkpath(gApp().SupportPath()))
        return fail(QStringLiteral("The folder for the help can't be made:\n") + gApp().SupportPath());

    QSaveFile file(HelpPath());
    if (!file.open(QIODevice::WriteOnly))
        return fail(QStringLiteral("The help file can't be written:\n") + HelpPath() +
                    QStringLiteral("\n\n") + file.errorString());
    {
        QPdfWriter pdf(&file);
        pdf.setTitle(QStringLiteral("Vowren Help"));
        pdf.setCreator(QStringLiteral("Vowren ") + clsApp::MajorMinor());
        pdf.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                      QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter));
        QTextDocument document;
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSizeF(10.5);
        document.setDefaultFont(font);
        document.setDefaultStyleSheet(QStringLiteral("h1 { color: #8a3c63; } h2 { color: #8a3c63; } "
                                                     "th { background-color: #f4e9ef; }"));
        document.setHtml(text);
        document.print(&pdf);
    }
    if (!file.commit())
        return fail(QStringLiteral("The help file can't be written:\n") + HelpPath() +
                    QStringLiteral("\n\n") + file.errorString());
    return true;
}

void ShowHelp() {
    QString message;
    if (!WriteHelp(&message)) {
        ShowMessage(message, Msg::OKOnly | Msg::Exclamation, ProgramTitle());
        return;
    }
    gShell().OpenDocument(HelpPath());
}

} // namespace modHelp
