// Commands of the events: the wedding day, and the calendar file of every date.
#include "cli/CliCommand.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/modCalendarExport.h"

#include <QDir>
#include <QFileInfo>

namespace {

const char kWeddingUsage[] = "wedding [--date YYYY-MM-DD [--time \"h:mm AM\"]]";

int WeddingUsage(QTextStream& err, const QString& why) {
    err << "vowren-cli: wedding: " << why << " (usage: " << kWeddingUsage << ")\n";
    return kExitUsage;
}

int PrintWedding(QTextStream& out, QTextStream& err) {
    if (!StartForReading(err))
        return kExitFailed;
    try {
        clsEVENT wedding;
        if (!wedding.OpenRecord(QStringLiteral("1")) || wedding.EVENT_DT.isEmpty()) {
            err << "vowren-cli: wedding: no wedding day is set yet; set one with " << kWeddingUsage << '\n';
            return kExitFailed;
        }
        out << wedding.EVENT_DT_DateTimeFormat() << '\n';
        return kExitOk;
    } catch (const clsDbError& e) {
        err << "vowren-cli: wedding: " << TranslateEngineMessage(e.Message()) << '\n';
        return kExitFailed;
    }
}

int RunWedding(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.isEmpty())
        return PrintWedding(out, err);
    QString dateText;
    QString timeText;
    for (qsizetype i = 0; i < args.size(); i += 2) {
        if (i + 1 >= args.size())
            return WeddingUsage(err, args.at(i) + QStringLiteral(" takes a value"));
        if (args.at(i) == QLatin1String("--date"))
            dateText = args.at(i + 1);
        else if (args.at(i) == QLatin1String("--time"))
            timeText = args.at(i + 1);
        else
            return WeddingUsage(err, QStringLiteral("unknown argument \"%1\"").arg(args.at(i)));
    }
    const QDate date = QDate::fromString(dateText, QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        return WeddingUsage(err, QStringLiteral("--date takes a date such as 2027-06-05"));
    const QTime time = timeText.isEmpty() ? QTime() : ParseTimeText(timeText);
    if (!timeText.isEmpty() && !time.isValid())
        return WeddingUsage(err, QStringLiteral("--time takes a time such as \"3:30 PM\" or 15:30"));
    if (!StartForChange(err))
        return kExitFailed;
    try {
        clsEVENT wedding;
        const bool known = wedding.OpenRecord(QStringLiteral("1"));
        // Without --time the hour stays as it was (noon for a new wedding day).
        const QDateTime before = ParseDateTimeText(wedding.EVENT_DT);
        clsEVENT::MoveWeddingDay(date, time.isValid()              ? time
                                       : known && before.isValid() ? before.time()
                                                                   : QTime(12, 0));
        out << gWeddingEvent().EVENT_DT_DateTimeFormat() << '\n';
        return kExitOk;
    } catch (const clsDbError& e) {
        err << "vowren-cli: wedding: nothing was changed: " << TranslateEngineMessage(e.Message()) << '\n';
        return kExitFailed;
    }
}

int RunIcs(const QStringList& args, QTextStream& out, QTextStream& err) {
    QString path;
    if (args.size() == 2 && args.at(0) == QLatin1String("--out") && !args.at(1).isEmpty()) {
        path = QFileInfo(args.at(1)).absoluteFilePath();
    } else if (!args.isEmpty()) {
        err << "vowren-cli: ics: usage: ics [--out FILE]\n";
        return kExitUsage;
    }
    if (!StartForReading(err))
        return kExitFailed;
    if (path.isEmpty()) {
        gApp().MakeReportPath();
        path = modCalendarExport::DefaultPath();
    }
    try {
        QString error;
        const int written = modCalendarExport::Export(path, &error);
        if (written < 0) {
            err << "vowren-cli: ics: " << path << " was not written: " << error << '\n';
            return kExitFailed;
        }
        if (!error.isEmpty())
            err << "vowren-cli: ics: " << error << '\n';
        out << path << '\n';
        return kExitOk;
    } catch (const clsDbError& e) {
        err << "vowren-cli: ics: nothing was written: " << TranslateEngineMessage(e.Message()) << '\n';
        return kExitFailed;
    }
}

} // namespace

CliCommand WeddingCommand() {
    return {
        QStringLiteral("wedding"), QString::fromLatin1(kWeddingUsage),
        QStringLiteral("Print the wedding day's date and time; with --date (and --time) move it, as saving "
                       "the Wedding Day in the event editor does."),
        RunWedding};
}

CliCommand IcsCommand() {
    return {QStringLiteral("ics"), QStringLiteral("ics [--out FILE]"),
            QStringLiteral("Write every event, timeline entry and open task with a due date as one iCalendar "
                           "file (Reports/Vowren.ics unless --out names one) and print its path."),
            RunIcs};
}
