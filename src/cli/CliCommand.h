#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>
#include <functional>
#include <optional>
#include <vector>

// One command of vowren-cli: its name, a line of help, and what it does with the arguments after it.
// A command returns the process's exit status: 0 done, 1 failed, 2 bad arguments.
struct CliCommand {
    QString Name;
    QString Usage;
    QString Help;
    std::function<int(const QStringList& args, QTextStream& out, QTextStream& err)> Run;
};

// The commands, each defined beside the code it drives.
CliCommand InitCommand();
CliCommand SqlCommand();
CliCommand ParseNameCommand();
CliCommand ParseAddressCommand();
CliCommand DemoCommand();
CliCommand ReportCommand();
CliCommand CustomReportsCommand();
CliCommand LabelsCommand();
CliCommand DeleteCommand();
CliCommand RelabelCommand();
CliCommand SeatCommand();
CliCommand UnseatCommand();
CliCommand TablesCommand();
CliCommand TentcardsCommand();
CliCommand ImportCommand();
CliCommand ChecklistCommand();
CliCommand HouseCommand();
CliCommand BoardCommand();
CliCommand TravelCommand();
CliCommand WeddingCommand();
CliCommand IcsCommand();
CliCommand BudgetCommand();
CliCommand ThankYouCommand();
CliCommand WordingCommand();
CliCommand PlaylistCommand();
CliCommand LabelProgramCommand();

CliCommand BackupCommand();
CliCommand RestoreCommand();

// The two ways a command opens the database, saying why on `err` when it can't: a command that changes
// the database takes its lock (and is refused while another program holds it); one that only reads may
// run beside another program.
bool StartForChange(QTextStream& err);
bool StartForReading(QTextStream& err);

// Prints every table with its seats taken, "Table #n: t of s seats taken"; the exit status.
int ListTables(QTextStream& out, QTextStream& err);

// Runs the work, printing a refusal of the database on err followed by "Nothing was changed."; the exit status.
int Guarded(const QString& command, QTextStream& err, const std::function<int()>& work);

// `seat` without --table: every attendee seated by the seating rules, or the score of the chart as it is.
int RunAutoSeat(const QStringList& args, QTextStream& out, QTextStream& err);
QString AutoSeatUsage();

// The value after the option at i, moving i past it; nothing when the option ends the line.
std::optional<QString> OptionValue(const QStringList& args, qsizetype& i);

// Keys and numbers on the command line: whole numbers above 0, at least one of them.
bool AreKeys(const QStringList& keys);

// Every command the program knows, in the order --help lists them.
const std::vector<CliCommand>& CliCommands();

// Exit statuses.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;
