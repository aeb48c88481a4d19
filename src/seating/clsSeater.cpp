#include "seating/clsSeater.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numeric>
#include <random>
#include <tuple>
#include <vector>

namespace {

constexpr int kSides = 4; // FRIEND_OF_CD 1 to 3; 0 is no side and makes no pair
constexpr int kNotPinned = -2;

long Pairs(int n) {
    return long(n) * (n - 1) / 2;
}

QString TableCaption(const SeatingTable& table) {
    return QStringLiteral("#") + table.Number;
}

// Seated people, then score, then pairs of one side: what the seater maximises, in that order.
using Quality = std::tuple<int, long, long>;

} // namespace

struct clsSeater::Impl {
    struct Unit {
        std::vector<int> Members;
        int Size = 0;
        std::array<int, kSides> Sides{};
        int Pinned = kNotPinned; // a slot the unit may not leave (the unseated slot when it is stuck)
        QString StuckReason;
    };
    struct PersonPair {
        int A, B, Weight;
    };

    SeatingInstance In;
    int TableCount = 0;
    int Unseated = 0; // the slot of the unseated: one past the last table
    QHash<QString, int> PersonIndex;
    QHash<QString, int> TableIndex;
    std::vector<int> SeatedAt; // person -> slot, as the database has it
    std::vector<int> Capacity; // seats less the seats of people who are not attendees
    std::vector<Unit> Units;
    std::vector<int> UnitOf;
    std::vector<std::vector<std::pair<int, int>>> Together; // unit -> (unit, strength)
    std::vector<std::vector<int>> Apart;
    std::vector<PersonPair> KeepPairs; // person level, for measuring and explaining
    std::vector<PersonPair> ApartPairs;
    std::vector<int> Households; // person -> the first person of the household, before any pinning
    QStringList RuleNotes;       // rules that could not count, said once
    double FriendEpsilon = 1;
    int MaxCapacity = 0;

    // The search's state.
    std::vector<int> At; // unit -> slot
    std::vector<int> Free;
    std::vector<std::array<int, kSides>> SideCount;
    std::vector<std::vector<int>> UnitsAt; // slot -> its movable units
    std::vector<int> PlaceInSlot;
    std::vector<int> Movable;
    long Score = 0;
    long Friends = 0;
    int Seated = 0;
    std::mt19937_64 Rng;

    explicit Impl(const SeatingInstance& instance) : In(instance) {
        TableCount = int(In.Tables.size());
        Unseated = TableCount;
        for (int t = 0; t < TableCount; ++t) {
            TableIndex.insert(In.Tables[t].TableId, t);
            Capacity.push_back(In.Tables[t].Seats - In.Tables[t].Occupied);
            MaxCapacity = std::max(MaxCapacity, Capacity.back());
        }
        for (int p = 0; p < int(In.People.size()); ++p) {
            PersonIndex.insert(In.People[p].ContactId, p);
            SeatedAt.push_back(TableIndex.value(In.People[p].TableId, Unseated));
        }
        BuildUnits();
        Households.assign(In.People.size(), 0);
        for (const Unit& unit : Units)
            for (int p : unit.Members)
                Households[p] = unit.Members.front();
        ReadRules();
    }

    const QString& Name(int person) const { return In.People[person].Name; }
    int Side(int person) const {
        const int side = In.People[person].FriendOf;
        return side > 0 && side < kSides ? side : 0;
    }
    bool IsTable(int slot) const { return slot >= 0 && slot < TableCount; }
    QString SlotCaption(int slot) const { return IsTable(slot) ? TableCaption(In.Tables[slot]) : QString(); }

    // ---- Households ----------------------------------------------------------------------------------

    static int Root(std::vector<int>& parent, int x) {
        while (parent[x] != x)
            x = parent[x] = parent[parent[x]];
        return x;
    }

    void BuildUnits() {
        const int n = int(In.People.size());
        std::vector<int> parent(n);
        std::iota(parent.begin(), parent.end(), 0);
        QHash<QString, int> firstOfInvite;
        for (int p = 0; p < n; ++p) {
            const SeatingPerson& person = In.People[p];
            if (!person.InviteId.isEmpty()) {
                const int first = firstOfInvite.value(person.InviteId, p);
                firstOfInvite.insert(person.InviteId, first);
                parent[Root(parent, p)] = Root(parent, first);
            }
            if (const auto host = PersonIndex.constFind(person.GuestOfId); host != PersonIndex.constEnd())
                parent[Root(parent, p)] = Root(parent, *host);
        }
        QHash<int, int> unitOfRoot;
        UnitOf.assign(n, -1);
        for (int p = 0; p < n; ++p) {
            const int root = Root(parent, p);
            if (!unitOfRoot.contains(root)) {
                unitOfRoot.insert(root, int(Units.size()));
                Units.emplace_back();
            }
            UnitOf[p] = unitOfRoot.value(root);
            AddMember(Units[UnitOf[p]], p);
        }
    }

    void AddMember(Unit& unit, int person) {
        unit.Members.push_back(person);
        ++unit.Size;
        ++unit.Sides[Side(person)];
    }

    QString Names(const std::vector<int>& people) const {
        QStringList names;
        for (int p : people)
            names << Name(p);
        return names.join(QStringLiteral(", "));
    }

    // ---- Rules -----------------------------------------------------------------------------------------

    void ReadRules() {
        struct PairRule {
            int Weight = 0;
            bool Apart = false;
        };
        QMap<QPair<int, int>, PairRule> pairs;
        for (const SeatingRulePair& rule : In.Rules) {
            const int a = PersonIndex.value(rule.ContactId, -1);
            const int b = PersonIndex.value(rule.OtherContactId, -1);
            if (a < 0 || b < 0 || a == b)
                continue; // the reader lists rules about people who do not attend
            PairRule& pair = pairs[qMakePair(std::min(a, b), std::max(a, b))];
            pair.Apart = pair.Apart || rule.Apart;
            if (!rule.Apart)
                pair.Weight += rule.Weight;
        }
        QMap<QPair<int, int>, int> unitWeights; // in order: the same seed, the same search
        Together.assign(Units.size(), {});
        Apart.assign(Units.size(), {});
        long maxWeight = 0;
        for (auto it = pairs.cbegin(); it != pairs.cend(); ++it) {
            const auto [a, b] = it.key();
            const int ua = UnitOf[a], ub = UnitOf[b];
            if (it->Apart) {
                if (it->Weight > 0)
                    RuleNotes << QStringLiteral("%1 and %2 are both to be kept together and kept apart: keep "
                                                "apart wins.")
                                     .arg(Name(a), Name(b));
                ApartPairs.push_back({a, b, 0});
                if (ua != ub) {
                    Apart[ua].push_back(ub);
                    Apart[ub].push_back(ua);
                }
                continue;
            }
            KeepPairs.push_back({a, b, it->Weight});
            maxWeight = std::max<long>(maxWeight, it->Weight);
            if (ua != ub)
                unitWeights[qMakePair(std::min(ua, ub), std::max(ua, ub))] += it->Weight;
        }
        for (auto it = unitWeights.cbegin(); it != unitWeights.cend(); ++it) {
            Together[it.key().first].push_back({it.key().second, it.value()});
            Together[it.key().second].push_back({it.key().first, it.value()});
        }
        // The pairs of one side only break ties: all that one move can change weighs less than a point.
        FriendEpsilon =
            maxWeight > 0 ? 1.0 / (4.0 * std::max(1, MaxCapacity) * std::max(1, MaxCapacity) + 1) : 1;
    }

    // ---- Pins: people already seated stay there ---------------------------------------------------------

    // Households as the invitations make them, then, with keepSeated, split where people already sit.
    void PinSeated(bool keepSeated) {
        Units.clear();
        BuildUnits();
        if (keepSeated)
            SplitBySeats();
        KeepPairs.clear();
        ApartPairs.clear();
        RuleNotes.clear();
        ReadRules();
    }

    void SplitBySeats() {
        std::vector<int> used(TableCount, 0);
        std::vector<Unit> added;
        for (Unit& unit : Units) {
            QSet<int> tables;
            for (int p : unit.Members)
                if (IsTable(SeatedAt[p]))
                    tables.insert(SeatedAt[p]);
            if (tables.isEmpty())
                continue;
            // Each table's people of the unit stay as one unit; the ones not seated go with the first.
            std::vector<Unit> parts;
            Unit rest;
            for (int p : unit.Members) {
                if (!IsTable(SeatedAt[p])) {
                    AddMember(rest, p);
                    continue;
                }
                auto part = std::find_if(parts.begin(), parts.end(),
                                         [&](const Unit& u) { return u.Pinned == SeatedAt[p]; });
                if (part == parts.end()) {
                    parts.emplace_back();
                    part = parts.end() - 1;
                    part->Pinned = SeatedAt[p];
                }
                AddMember(*part, p);
            }
            for (const Unit& part : parts)
                used[part.Pinned] += part.Size;
            if (rest.Size > 0) {
                rest.Pinned = Unseated;
                rest.StuckReason =
                    QStringLiteral(
                        "the rest of their invitation sits at table %1, which has no seat left for them")
                        .arg(SlotCaption(parts.front().Pinned));
                parts.push_back(rest);
            }
            unit = parts.front();
            added.insert(added.end(), parts.begin() + 1, parts.end());
        }
        Units.insert(Units.end(), added.begin(), added.end());
        // The unseated rest joins its people when their table still has the seats.
        for (Unit& unit : Units) {
            if (unit.Pinned == kNotPinned || IsTable(unit.Pinned))
                continue;
            auto home = std::find_if(Units.begin(), Units.end(), [&](const Unit& u) {
                return IsTable(u.Pinned) && Households[u.Members.front()] == Households[unit.Members.front()];
            });
            if (home != Units.end() && used[home->Pinned] + unit.Size <= Capacity[home->Pinned]) {
                used[home->Pinned] += unit.Size;
                for (int p : unit.Members)
                    AddMember(*home, p);
                unit = Unit();
            }
        }
        Units.erase(std::remove_if(Units.begin(), Units.end(), [](const Unit& u) { return u.Size == 0; }),
                    Units.end());
        for (int u = 0; u < int(Units.size()); ++u)
            for (int p : Units[u].Members)
                UnitOf[p] = u;
    }

    // ---- The state ---------------------------------------------------------------------------------------

    long FriendsAt(int slot) const {
        if (!IsTable(slot))
            return 0;
        long pairs = 0;
        for (int s = 1; s < kSides; ++s)
            pairs += Pairs(SideCount[slot][s]);
        return pairs;
    }

    void Reset() {
        At.assign(Units.size(), Unseated);
        Free = Capacity;
        Free.push_back(std::numeric_limits<int>::max() / 2);
        SideCount.assign(TableCount + 1, {});
        UnitsAt.assign(TableCount + 1, {});
        PlaceInSlot.assign(Units.size(), -1);
        Movable.clear();
        Score = 0;
        Friends = 0;
        Seated = 0;
        for (const PersonPair& pair : KeepPairs)
            if (UnitOf[pair.A] == UnitOf[pair.B])
                Score += pair.Weight; // a household always sits together
        for (int u = 0; u < int(Units.size()); ++u) {
            if (Units[u].Pinned == kNotPinned)
                Movable.push_back(u);
            const int slot = Units[u].Pinned == kNotPinned ? Unseated : Units[u].Pinned;
            Score += GainAt(u, slot); // with the pinned units placed before it
            PutIn(u, slot);
        }
    }

    // Takes the unit out of its slot / puts it in one, keeping the counts.
    void TakeOut(int u) {
        const int slot = At[u];
        Free[slot] += Units[u].Size;
        if (IsTable(slot))
            Seated -= Units[u].Size;
        Friends -= FriendsAt(slot);
        for (int s = 0; s < kSides; ++s)
            SideCount[slot][s] -= Units[u].Sides[s];
        Friends += FriendsAt(slot);
        if (PlaceInSlot[u] >= 0) {
            std::vector<int>& list = UnitsAt[slot];
            const int last = list.back();
            list[PlaceInSlot[u]] = last;
            PlaceInSlot[last] = PlaceInSlot[u];
            list.pop_back();
            PlaceInSlot[u] = -1;
        }
        At[u] = -1;
    }

    void PutIn(int u, int slot) {
        At[u] = slot;
        Free[slot] -= Units[u].Size;
        if (IsTable(slot))
            Seated += Units[u].Size;
        Friends -= FriendsAt(slot);
        for (int s = 0; s < kSides; ++s)
            SideCount[slot][s] += Units[u].Sides[s];
        Friends += FriendsAt(slot);
        if (Units[u].Pinned == kNotPinned) {
            PlaceInSlot[u] = int(UnitsAt[slot].size());
            UnitsAt[slot].push_back(u);
        }
    }

    // The strength gained by the unit in the slot, leaving aside one other unit.
    long GainAt(int u, int slot, int except = -1) const {
        if (!IsTable(slot))
            return 0;
        long gain = 0;
        for (const auto& [v, w] : Together[u])
            if (v != except && At[v] == slot)
                gain += w;
        return gain;
    }

    bool ApartAllows(int u, int slot, int except = -1) const {
        if (!IsTable(slot))
            return true;
        for (int v : Apart[u])
            if (v != except && At[v] == slot)
                return false;
        return true;
    }

    Quality Now() const { return {Seated, Score, Friends}; }

    // ---- Moves -----------------------------------------------------------------------------------------

    using Moves = std::initializer_list<std::pair<int, int>>; // (unit, slot), made in turn

    // Makes the moves, then keeps them when every hard rule holds and the search accepts the change at this
    // temperature; otherwise undoes them and gives false.
    bool TryMoves(Moves moves, double temperature) {
        std::array<std::pair<int, int>, 3> made{}; // (unit, the slot it left)
        int count = 0;
        const int seatedBefore = Seated;
        const long friendsBefore = Friends;
        long scoreDelta = 0;
        for (const auto& [u, slot] : moves) {
            made[count++] = {u, At[u]};
            scoreDelta += GainAt(u, slot) - GainAt(u, At[u]);
            TakeOut(u);
            PutIn(u, slot);
        }
        bool accept = true;
        for (int i = 0; i < count && accept; ++i) {
            const int u = made[i].first;
            accept = Free[At[u]] >= 0 && ApartAllows(u, At[u]);
        }
        const int seatedDelta = Seated - seatedBefore;
        if (accept && seatedDelta <= 0) {
            const double delta = double(scoreDelta) + FriendEpsilon * double(Friends - friendsBefore);
            accept = seatedDelta == 0 &&
                     (delta >= 0 || (temperature > 0 && Uniform() < std::exp(delta / temperature)));
        }
        if (!accept) {
            for (int i = count - 1; i >= 0; --i) {
                TakeOut(made[i].first);
                PutIn(made[i].first, made[i].second);
            }
            return false;
        }
        Score += scoreDelta;
        return true;
    }

    double Uniform() { return double(Rng() >> 11) * (1.0 / 9007199254740992.0); }
    int Pick(int n) { return int(Rng() % quint64(n)); }

    int RandomUnitAt(int slot) {
        const std::vector<int>& list = UnitsAt[slot];
        return list.empty() ? -1 : list[Pick(int(list.size()))];
    }

    // One step of the annealing: a household towards a partner or to a random table; when that table has no
    // room, a swap with one of its households or that household moved on to a third table; or a swap of
    // two random households.
    void Step(double temperature) {
        const int u = Movable[Pick(int(Movable.size()))];
        const int from = At[u];
        const double r = Uniform();
        if (r >= 0.8) {
            const int v = Movable[Pick(int(Movable.size()))];
            if (At[v] != from)
                TryMoves({{u, At[v]}, {v, from}}, temperature);
            return;
        }
        int b = r < 0.5 && !Together[u].empty() ? At[Together[u][Pick(int(Together[u].size()))].first] : -1;
        if (!IsTable(b) || b == from)
            b = Pick(TableCount);
        if (b == from || TryMoves({{u, b}}, temperature))
            return;
        const int v = RandomUnitAt(b);
        if (v < 0)
            return;
        const int c = Uniform() < 0.5 ? from : Pick(TableCount);
        if (c != b)
            TryMoves({{u, b}, {v, c}}, temperature);
    }

    // ---- The search --------------------------------------------------------------------------------------

    void Greedy() {
        std::vector<int> order = Movable;
        std::stable_sort(order.begin(), order.end(), [&](int x, int y) {
            if (Units[x].Size != Units[y].Size)
                return Units[x].Size > Units[y].Size;
            return Together[x].size() > Together[y].size();
        });
        for (int u : order) {
            int best = -1;
            std::tuple<long, long, int> bestValue{};
            for (int t = 0; t < TableCount; ++t) {
                if (Free[t] < Units[u].Size || !ApartAllows(u, t))
                    continue;
                long friendGain = 0;
                for (int s = 1; s < kSides; ++s)
                    friendGain += long(Units[u].Sides[s]) * SideCount[t][s];
                const std::tuple<long, long, int> value{GainAt(u, t), friendGain, -(Free[t] - Units[u].Size)};
                if (best < 0 || value > bestValue) {
                    best = t;
                    bestValue = value;
                }
            }
            if (best >= 0) {
                TakeOut(u);
                Score += std::get<0>(bestValue);
                PutIn(u, best);
            }
        }
    }

    // Every single move that still helps, until none does or the time is up.
    void Polish(const std::function<bool()>& goOn) {
        for (int pass = 0; pass < 4 && goOn(); ++pass) {
            bool improved = false;
            for (int u : Movable) {
                if (!goOn())
                    return;
                for (int t = 0; t < TableCount; ++t)
                    improved = TryBetter({{u, t}}, {{u, At[u]}}) || improved;
            }
            // Swaps of every two households, where there are few enough.
            for (size_t i = 0; i < Movable.size() && Movable.size() <= 400; ++i)
                for (size_t j = i + 1; j < Movable.size(); ++j) {
                    const int u = Movable[i], v = Movable[j], a = At[u], b = At[v];
                    if (a != b)
                        improved = TryBetter({{u, b}, {v, a}}, {{v, b}, {u, a}}) || improved;
                }
            if (!improved)
                break;
        }
    }

    // Keeps the moves only when they make the chart strictly better; back is how to undo them.
    bool TryBetter(Moves moves, Moves back) {
        const Quality before = Now();
        if (!TryMoves(moves, 0))
            return false;
        if (Now() > before)
            return true;
        TryMoves(back, 0); // only as good: back, so that the passes end
        return false;
    }

    SeatingChart Search(const SeaterOptions& options) {
        QElapsedTimer clock;
        clock.start();
        Rng.seed(options.Seed);
        Reset();
        Greedy();
        std::vector<int> best = At;
        Quality bestQuality = Now();
        const qint64 budget = options.Moves > 0
                                  ? options.Moves
                                  : std::clamp<qint64>(qint64(Movable.size()) * 10000, 1000000, 20000000);
        bool cancelled = false, outOfTime = false;
        qint64 moves = 0;
        const double hottest = StartTemperature();
        const int rounds = 4;
        const bool anyChoice = !Movable.empty() && TableCount > 0;
        for (int round = 0; round < rounds && !cancelled && !outOfTime && anyChoice; ++round) {
            if (round > 0)
                Restore(best);
            const qint64 roundMoves = budget / rounds;
            const double start = round == 0 ? hottest : hottest / (2 * round), end = 0.02;
            const double cooling = std::pow(end / start, 1.0 / double(roundMoves));
            double temperature = start;
            for (qint64 i = 0; i < roundMoves; ++i, ++moves, temperature *= cooling) {
                Step(temperature);
                if (Now() > bestQuality) {
                    bestQuality = Now();
                    best = At;
                }
                // The annealing leaves a tenth of the time for the last pass and the explanation.
                if ((moves & 1023) == 0 && clock.elapsed() > options.Seconds * 900) {
                    outOfTime = true;
                    break;
                }
                if ((moves & 16383) == 0 && options.Progress &&
                    !options.Progress(double(moves) / double(budget), std::get<1>(bestQuality))) {
                    cancelled = true;
                    break;
                }
            }
        }
        Restore(best);
        if (!cancelled)
            Polish([&] { return clock.elapsed() < options.Seconds * 950; });
        SeatingChart chart = Chart(Assignment(), {});
        chart.Seconds = double(clock.nsecsElapsed()) / 1e9;
        chart.Moves = moves;
        chart.Cancelled = cancelled;
        if (options.Progress && !cancelled)
            options.Progress(1.0, chart.Score);
        return chart;
    }

    double StartTemperature() const {
        long sum = 0, count = 0;
        for (const auto& list : Together)
            for (const auto& pair : list) {
                sum += pair.second;
                ++count;
            }
        return count > 0 ? std::max(1.0, double(sum) / double(count)) : 1.0;
    }

    void Restore(const std::vector<int>& plan) {
        Reset();
        for (int u : Movable) {
            if (plan[u] == Unseated)
                continue;
            TakeOut(u);
            Score += GainAt(u, plan[u]);
            PutIn(u, plan[u]);
        }
    }

    // The slot of every person, by the units' plan.
    std::vector<int> Assignment() const {
        std::vector<int> plan(In.People.size(), Unseated);
        for (int u = 0; u < int(Units.size()); ++u)
            for (int p : Units[u].Members)
                plan[p] = At[u];
        return plan;
    }

    // ---- Measuring and explaining a chart
    // -------------------------------------------------------------------

    SeatingChart Chart(const std::vector<int>& slot, QStringList problems) const {
        SeatingChart chart;
        std::vector<int> taken(TableCount, 0);
        for (int t = 0; t < TableCount; ++t)
            taken[t] = In.Tables[t].Occupied;
        std::vector<std::array<int, kSides>> sides(TableCount, std::array<int, kSides>{});
        for (int p = 0; p < int(slot.size()); ++p) {
            chart.Seats.insert(In.People[p].ContactId,
                               IsTable(slot[p]) ? In.Tables[slot[p]].TableId : QString());
            if (!IsTable(slot[p]))
                continue;
            ++chart.Seated;
            ++taken[slot[p]];
            ++sides[slot[p]][Side(p)];
        }
        chart.Unseated = int(slot.size()) - chart.Seated;
        for (int t = 0; t < TableCount; ++t) {
            for (int s = 1; s < kSides; ++s)
                chart.FriendPairs += Pairs(sides[t][s]);
            if (taken[t] > In.Tables[t].Seats) {
                ++chart.HardViolations;
                problems << QStringLiteral("Table %1 holds %2 people but has %3 seats.")
                                .arg(SlotCaption(t))
                                .arg(taken[t])
                                .arg(In.Tables[t].Seats);
            }
        }
        QList<SeatedTable> tables = TableReports(slot);
        for (const PersonPair& pair : KeepPairs) {
            const bool met = IsTable(slot[pair.A]) && slot[pair.A] == slot[pair.B];
            if (met) {
                chart.Score += pair.Weight;
                tables[slot[pair.A]].Reasons << QStringLiteral("kept together: %1 and %2 (%3)")
                                                    .arg(Name(pair.A), Name(pair.B))
                                                    .arg(pair.Weight);
            } else {
                problems << QStringLiteral("%1 and %2 (keep together, %3) %4.")
                                .arg(Name(pair.A), Name(pair.B))
                                .arg(pair.Weight)
                                .arg(WhereApart(slot, pair));
            }
        }
        for (const PersonPair& pair : ApartPairs) {
            if (!IsTable(slot[pair.A]) || slot[pair.A] != slot[pair.B])
                continue;
            ++chart.HardViolations;
            problems << QStringLiteral("%1 and %2 are to be kept apart but sit at table %3%4.")
                            .arg(Name(pair.A), Name(pair.B), SlotCaption(slot[pair.A]),
                                 UnitOf[pair.A] == UnitOf[pair.B]
                                     ? QStringLiteral(": they are of one invitation, which is never split")
                                     : QString());
        }
        chart.HardViolations += SplitHouseholds(slot, problems);
        problems << UnseatedProblems(slot) << RuleNotes << In.IgnoredRules;
        chart.Problems = problems;
        chart.Tables = tables;
        return chart;
    }

    QString WhereApart(const std::vector<int>& slot, const PersonPair& pair) const {
        const bool seatedA = IsTable(slot[pair.A]), seatedB = IsTable(slot[pair.B]);
        if (seatedA && seatedB)
            return QStringLiteral("sit at tables %1 and %2")
                .arg(SlotCaption(slot[pair.A]), SlotCaption(slot[pair.B]));
        if (!seatedA && !seatedB)
            return QStringLiteral("are both unseated");
        return QStringLiteral("could not be met: %1 is unseated").arg(Name(seatedA ? pair.B : pair.A));
    }

    QList<SeatedTable> TableReports(const std::vector<int>& slot) const {
        QList<SeatedTable> tables;
        for (const SeatingTable& table : In.Tables)
            tables.append({table.TableId, table.Number, {}, {}});
        std::vector<bool> told(Units.size(), false);
        for (int p = 0; p < int(slot.size()); ++p) {
            if (!IsTable(slot[p]))
                continue;
            SeatedTable& table = tables[slot[p]];
            table.Names << Name(p);
            const int u = UnitOf[p];
            if (told[u])
                continue;
            told[u] = true;
            if (IsTable(Units[u].Pinned))
                table.Reasons << QStringLiteral("already seated here: %1").arg(Names(Units[u].Members));
            else if (Units[u].Size > 1)
                table.Reasons
                    << QStringLiteral("one invitation, kept together: %1").arg(Names(Units[u].Members));
        }
        return tables;
    }

    // Units whose people sit at more than one table.
    int SplitHouseholds(const std::vector<int>& slot, QStringList& problems) const {
        int split = 0;
        QMap<int, QSet<int>> tablesOfUnit;
        for (int p = 0; p < int(slot.size()); ++p)
            if (IsTable(slot[p]))
                tablesOfUnit[Households[p]].insert(slot[p]);
        for (auto it = tablesOfUnit.cbegin(); it != tablesOfUnit.cend(); ++it) {
            if (it.value().size() < 2)
                continue;
            ++split;
            problems << QStringLiteral("The invitation of %1 is split over %2 tables.")
                            .arg(Name(it.key()))
                            .arg(it.value().size());
        }
        return split;
    }

    QStringList UnseatedProblems(const std::vector<int>& slot) const {
        QStringList problems;
        int seats = 0;
        for (int t = 0; t < TableCount; ++t)
            seats += std::max(0, Capacity[t]);
        for (const Unit& unit : Units) {
            if (IsTable(slot[unit.Members.front()]))
                continue;
            QString why;
            if (!unit.StuckReason.isEmpty())
                why = unit.StuckReason;
            else if (TableCount == 0)
                why = QStringLiteral("there are no tables");
            else if (unit.Size > MaxCapacity)
                why = QStringLiteral("their invitation of %1 is larger than every table (at most %2 seats)")
                          .arg(unit.Size)
                          .arg(MaxCapacity);
            else
                why = QStringLiteral("no table had %1 free seat%2 left for them (%3 seats for %4 attendees)")
                          .arg(unit.Size)
                          .arg(unit.Size == 1 ? QString() : QStringLiteral("s"))
                          .arg(seats)
                          .arg(In.People.size());
            problems << QStringLiteral("%1 %2 unseated: %3.")
                            .arg(Names(unit.Members),
                                 unit.Size == 1 ? QStringLiteral("was left") : QStringLiteral("were left"),
                                 why);
        }
        return problems;
    }
};

clsSeater::clsSeater(const SeatingInstance& instance) : d(std::make_unique<Impl>(instance)) {}

clsSeater::~clsSeater() = default;

SeatingChart clsSeater::Run(const SeaterOptions& options) {
    d->PinSeated(options.KeepSeated);
    return d->Search(options);
}

SeatingChart clsSeater::Measure() const {
    return d->Chart(d->SeatedAt, {});
}

QString SeatingChart::Explanation() const {
    QStringList lines;
    for (const SeatedTable& table : Tables) {
        if (table.Names.isEmpty())
            continue;
        lines << QStringLiteral("Table #%1: %2").arg(table.Number, table.Names.join(QStringLiteral(", ")));
        for (const QString& reason : table.Reasons)
            lines << QStringLiteral("    ") + reason;
    }
    if (!Problems.isEmpty()) {
        lines << QString() << QStringLiteral("Not met:");
        for (const QString& problem : Problems)
            lines << QStringLiteral("    ") + problem;
    }
    return lines.join(QLatin1Char('\n'));
}
