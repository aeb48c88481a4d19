// The seater measured: on small random weddings its score against the best chart, proven by a branch and
// bound of its own; on large ones the best score against time, and whether every hard rule held.
//   vowren-bench-autoseat [--instances N]
#include "seating/SeaterTestData.h"
#include "seating/clsSeater.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QMap>
#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

// The best (seated, score) of a small wedding by exhaustive search with bounds. Households are the
// invitations; seating more people comes first, then the strength of the 'T' pairs at one table.
class clsExactSeater {
public:
    explicit clsExactSeater(const SeatingInstance& in) {
        QHash<QString, int> unitOfInvite, unitOfPerson;
        for (const SeatingPerson& p : in.People) {
            if (!unitOfInvite.contains(p.InviteId)) {
                unitOfInvite.insert(p.InviteId, int(mSize.size()));
                mSize.push_back(0);
            }
            unitOfPerson.insert(p.ContactId, unitOfInvite.value(p.InviteId));
            ++mSize[unitOfInvite.value(p.InviteId)];
        }
        for (const SeatingTable& t : in.Tables)
            mSeats.push_back(t.Seats);
        const int n = int(mSize.size());
        mWeight.assign(n, std::vector<long>(n, 0));
        mApart.assign(n, std::vector<bool>(n, false));
        QMap<QPair<QString, QString>, QPair<long, bool>> pairs;
        for (const SeatingRulePair& r : in.Rules) {
            auto& pair = pairs[qMakePair(std::min(r.ContactId, r.OtherContactId),
                                         std::max(r.ContactId, r.OtherContactId))];
            if (r.Apart)
                pair.second = true;
            else
                pair.first += r.Weight;
        }
        for (auto it = pairs.cbegin(); it != pairs.cend(); ++it) {
            const int a = unitOfPerson.value(it.key().first), b = unitOfPerson.value(it.key().second);
            if (a == b) {
                mConstant += it->second ? 0 : it->first;
            } else if (it->second) {
                mApart[a][b] = mApart[b][a] = true;
            } else {
                mWeight[a][b] += it->first;
                mWeight[b][a] += it->first;
            }
        }
        for (int u = 0; u < n; ++u)
            mOrder.push_back(u);
        std::stable_sort(mOrder.begin(), mOrder.end(), [&](int a, int b) { return mSize[a] > mSize[b]; });
    }

    // False when the search ran out of time before proving its answer.
    bool Solve(int knownSeated, long knownScore, double seconds) {
        mBestSeated = knownSeated;
        mBestScore = knownScore;
        mAt.assign(mSize.size(), -1);
        mFree = mSeats;
        mClock.start();
        mLimitMs = qint64(seconds * 1000);
        Search(0, 0, mConstant);
        return !mOutOfTime;
    }
    int BestSeated() const { return mBestSeated; }
    long BestScore() const { return mBestScore; }

private:
    long UpperBound(int depth, long score) const {
        long bound = score;
        for (int i = depth; i < int(mOrder.size()); ++i) {
            const int u = mOrder[i];
            long bestTable = 0;
            std::vector<long> atTable(mSeats.size(), 0);
            for (int j = 0; j < depth; ++j) {
                const int v = mOrder[j];
                if (mAt[v] >= 0)
                    atTable[mAt[v]] += mWeight[u][v];
            }
            for (long w : atTable)
                bestTable = std::max(bestTable, w);
            bound += bestTable;
            for (int j = i + 1; j < int(mOrder.size()); ++j)
                bound += mWeight[u][mOrder[j]];
        }
        return bound;
    }

    void Search(int depth, int seated, long score) {
        if (mOutOfTime || ((++mNodes & 4095) == 0 && mClock.elapsed() > mLimitMs)) {
            mOutOfTime = true;
            return;
        }
        int remaining = 0;
        for (int i = depth; i < int(mOrder.size()); ++i)
            remaining += mSize[mOrder[i]];
        if (seated + remaining < mBestSeated)
            return;
        if (seated + remaining == mBestSeated && UpperBound(depth, score) <= mBestScore)
            return;
        if (depth == int(mOrder.size())) {
            mBestSeated = seated;
            mBestScore = score;
            return;
        }
        const int u = mOrder[depth];
        std::vector<int> emptyTried;
        for (int t = 0; t < int(mSeats.size()); ++t) {
            if (mFree[t] < mSize[u])
                continue;
            // Two empty tables of the same size are the same choice.
            if (mFree[t] == mSeats[t]) {
                if (std::find(emptyTried.begin(), emptyTried.end(), mSeats[t]) != emptyTried.end())
                    continue;
                emptyTried.push_back(mSeats[t]);
            }
            long gain = 0;
            bool allowed = true;
            for (int j = 0; j < depth && allowed; ++j) {
                const int v = mOrder[j];
                if (mAt[v] != t)
                    continue;
                allowed = !mApart[u][v];
                gain += mWeight[u][v];
            }
            if (!allowed)
                continue;
            mAt[u] = t;
            mFree[t] -= mSize[u];
            Search(depth + 1, seated + mSize[u], score + gain);
            mFree[t] += mSize[u];
            mAt[u] = -1;
        }
        Search(depth + 1, seated, score);
    }

    std::vector<int> mSize, mSeats, mFree, mAt, mOrder;
    std::vector<std::vector<long>> mWeight;
    std::vector<std::vector<bool>> mApart;
    long mConstant = 0;
    int mBestSeated = 0;
    long mBestScore = 0;
    QElapsedTimer mClock;
    qint64 mLimitMs = 0;
    qint64 mNodes = 0;
    bool mOutOfTime = false;
};

void Quality(int instances) {
    std::printf("Quality: %d random weddings of 12 to 30 attendees at 3 to 6 tables, 5 to 40 rules\n",
                instances);
    int optimal = 0, proven = 0;
    double worst = 1, slowest = 0;
    for (int i = 0; i < instances; ++i) {
        const quint64 seed = 1000 + i;
        const int people = 12 + int(seed * 7 % 19), tables = 3 + int(seed % 4),
                  rules = 5 + int(seed * 13 % 36);
        const SeatingInstance in = SeaterTestData::RandomWedding(seed, people, tables, rules);
        SeaterOptions options;
        options.Seed = seed;
        const SeatingChart chart = clsSeater(in).Run(options);
        slowest = std::max(slowest, chart.Seconds);
        clsExactSeater exact(in);
        if (!exact.Solve(chart.Seated, chart.Score, 60)) {
            std::printf("  wedding %llu: no proof within 60 s\n", static_cast<unsigned long long>(seed));
            continue;
        }
        ++proven;
        const bool reached = exact.BestSeated() == chart.Seated && exact.BestScore() == chart.Score;
        optimal += reached ? 1 : 0;
        const double ratio = exact.BestScore() > 0 ? double(chart.Score) / double(exact.BestScore()) : 1.0;
        worst = std::min(worst, exact.BestSeated() == chart.Seated ? ratio : 0.0);
        if (!reached)
            std::printf("  wedding %llu (%d people, %d tables, %d rules): %ld of the best %ld\n",
                        static_cast<unsigned long long>(seed), people, tables, rules, chart.Score,
                        exact.BestScore());
    }
    std::printf(
        "  the best chart in %d of %d proven weddings (%.1f %%); the worst reached %.1f %% of the best; "
        "the slowest run took %.2f s\n\n",
        optimal, proven, 100.0 * optimal / std::max(1, proven), 100.0 * worst, slowest);
}

void Speed(int people, int tables, int rules, double seconds, bool longerRun) {
    std::printf("Speed: %d attendees, %d tables, %d rules, time limit %.0f s\n", people, tables, rules,
                seconds);
    const SeatingInstance in = SeaterTestData::RandomWedding(42, people, tables, rules);
    QElapsedTimer clock;
    clock.start();
    long lastScore = -1;
    double lastPrinted = -1;
    SeaterOptions options;
    options.Seconds = seconds;
    options.Progress = [&](double done, long best) {
        const double now = double(clock.nsecsElapsed()) / 1e9;
        if (best != lastScore && (now - lastPrinted >= 0.25 || done >= 1)) {
            std::printf("  %7.2f s  %3.0f %% of the moves  score %ld\n", now, 100 * done, best);
            lastScore = best;
            lastPrinted = now;
        }
        return true;
    };
    const SeatingChart chart = clsSeater(in).Run(options);
    std::printf(
        "  done in %.2f s (%lld moves): score %ld, %d seated, %d unseated, %d hard violations, %ld pairs "
        "of one side\n\n",
        chart.Seconds, static_cast<long long>(chart.Moves), chart.Score, chart.Seated, chart.Unseated,
        chart.HardViolations, chart.FriendPairs);
    if (!longerRun)
        return;
    // What more work would have found: the same wedding with ten times the moves.
    options.Progress = {};
    options.Moves = chart.Moves * 10;
    options.Seconds = 600;
    const SeatingChart longer = clsSeater(in).Run(options);
    std::printf("  with ten times the moves: score %ld in %.2f s\n\n", longer.Score, longer.Seconds);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int at = int(args.indexOf(QStringLiteral("--instances")));
    Quality(at > 0 ? args.value(at + 1).toInt() : 100);
    Speed(1000, 100, 300, 5, true);
    Speed(10000, 1000, 3000, 60, false);
    return 0;
}
