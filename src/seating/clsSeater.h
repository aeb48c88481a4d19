#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

// What the seater is given: the attendees, the tables and the rules, read from the database by
// modAutoSeat (or made by hand in a test or a benchmark). Keys are the database's keys as text.
struct SeatingPerson {
    QString ContactId;
    QString Name;
    QString InviteId;  // the people of one invitation sit at one table
    QString GuestOfId; // a brought guest sits with the host
    int FriendOf = 0;  // 1 bride's side, 2 groom's side, 3 both, 0 unknown
    QString TableId;   // where the person sits now ("" for nowhere)
};

struct SeatingTable {
    QString TableId;
    QString Number;
    int Seats = 0;
    int Occupied = 0; // seats taken by people who are not attendees; the seater leaves them be
};

struct SeatingRulePair {
    QString ContactId;
    QString OtherContactId;
    bool Apart = false;
    int Weight = 0; // for keeping together
};

struct SeatingInstance {
    QList<SeatingPerson> People;
    QList<SeatingTable> Tables;
    QList<SeatingRulePair> Rules;
    // Rules that name someone who is not attending, in the words of the explanation.
    QStringList IgnoredRules;
};

struct SeaterOptions {
    bool KeepSeated = false; // everyone already seated stays where they sit
    quint64 Seed = 1;
    double Seconds = 5; // the search stops here at the latest, with the best chart found so far
    // The moves of the search; 0 chooses by the size of the wedding. The same seed and the same moves give
    // the same chart whenever the run ends before its time limit.
    qint64 Moves = 0;
    // Told now and then how far the search is (0 to 1) and the best score so far; false stops it.
    std::function<bool(double done, long bestScore)> Progress;
};

// Who sits at one table of a chart, and why.
struct SeatedTable {
    QString TableId;
    QString Number;
    QStringList Names;
    QStringList Reasons;
};

struct SeatingChart {
    QMap<QString, QString> Seats; // every attendee's contact key -> table key ("" for unseated)
    long Score = 0;               // the sum of the strengths of the 'T' pairs at one table
    long FriendPairs = 0;         // pairs at one table of the same side (the tie-break)
    int Seated = 0;
    int Unseated = 0;
    int HardViolations = 0;    // only what the input makes unavoidable, each told in Problems
    QStringList Problems;      // every rule not met and every person left unseated, with the reason
    QList<SeatedTable> Tables; // in the order of the instance's tables
    double Seconds = 0;
    qint64 Moves = 0;
    bool Cancelled = false;

    // Table by table who sits there and why, then every rule that could not be met.
    QString Explanation() const;
};

// Seats the attendees at the tables: households (the people of one invitation, a brought guest with the
// host) are the units it moves. The hard rules always hold: no table over its seats, no 'A' pair at one
// table, no household split, and with KeepSeated nobody already seated moves. Within them it seats as many
// people as it can, then maximises the score, then the pairs of one side.
//
// A greedy start places the largest households first where they gain most; simulated annealing over
// moves of a household to another table and swaps of two households then improves it, restarting twice
// from the best chart at a lower temperature; a last pass takes every single move that still helps.
class clsSeater {
public:
    explicit clsSeater(const SeatingInstance& instance);
    ~clsSeater();
    clsSeater(const clsSeater&) = delete;
    clsSeater& operator=(const clsSeater&) = delete;

    SeatingChart Run(const SeaterOptions& options);
    // The chart as the people sit now, measured by the same rules (a split household or an 'A' pair at
    // one table counts as a hard violation here).
    SeatingChart Measure() const;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};
