#pragma once

#include "seating/clsSeater.h"

#include <QHash>
#include <QStringList>

// Small weddings written as text, one statement per ';':
//   "tables 4 4"        two tables of 4 seats, keys and numbers 1, 2
//   "home ann bob"      one invitation with these people (the key is the name)
//   "guest gil of hal"  gil is brought by hal, with no invitation of their own
//   "T ann cid 10"      keep together with strength 10;  "A bob eve"  keep apart
//   "side 1 ann cid"    of the bride's side;  "sits ann 2"  already seated at table 2
namespace SeaterTestData {

inline SeatingInstance Wedding(const QString& text) {
    SeatingInstance in;
    QHash<QString, int> person;
    auto add = [&](const QString& name, const QString& invite) {
        person.insert(name, int(in.People.size()));
        in.People.append({name, name, invite, {}, 0, {}});
    };
    int invites = 0;
    for (const QString& statement : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList w = statement.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QString& verb = w.value(0);
        if (verb == QLatin1String("tables")) {
            for (int i = 1; i < w.size(); ++i)
                in.Tables.append({QString::number(i), QString::number(i), w[i].toInt(), 0});
        } else if (verb == QLatin1String("home")) {
            ++invites;
            for (int i = 1; i < w.size(); ++i)
                add(w[i], QString::number(invites));
        } else if (verb == QLatin1String("guest")) {
            add(w[1], {});
            in.People[person[w[1]]].GuestOfId = w[3];
        } else if (verb == QLatin1String("T") || verb == QLatin1String("A")) {
            in.Rules.append({w[1], w[2], verb == QLatin1String("A"), w.value(3).toInt()});
        } else if (verb == QLatin1String("side")) {
            for (int i = 2; i < w.size(); ++i)
                in.People[person[w[i]]].FriendOf = w[1].toInt();
        } else if (verb == QLatin1String("sits")) {
            in.People[person[w[1]]].TableId = w[2];
        }
    }
    return in;
}

// A random wedding: households of 1 to 4 (mostly couples), tables of 6 to 10 seats with room to spare, and
// rules between random people, a tenth of them "keep apart".
inline SeatingInstance RandomWedding(quint64 seed, int people, int tables, int rules) {
    quint64 state = seed * 6364136223846793005ULL + 1442695040888963407ULL;
    auto next = [&](int n) {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return int((state >> 33) % quint64(n));
    };
    SeatingInstance in;
    int invite = 0;
    while (in.People.size() < people) {
        ++invite;
        const int size = std::min<int>(people - int(in.People.size()), QList<int>{1, 2, 2, 2, 3, 4}[next(6)]);
        for (int i = 0; i < size; ++i) {
            const QString key = QString::number(in.People.size() + 1);
            in.People.append({key, QStringLiteral("P") + key, QString::number(invite), {}, 1 + next(3), {}});
        }
    }
    int seats = 0;
    for (int t = 1; t <= tables; ++t) {
        const int size = 6 + next(5);
        seats += size;
        in.Tables.append({QString::number(t), QString::number(t), size, 0});
    }
    for (int t = 0; seats < people + people / 10; t = (t + 1) % tables, ++seats)
        ++in.Tables[t].Seats;
    for (int r = 0; r < rules; ++r) {
        const int a = next(people), b = next(people);
        if (a != b)
            in.Rules.append({in.People[a].ContactId, in.People[b].ContactId, next(10) == 0, 1 + next(100)});
    }
    return in;
}

} // namespace SeaterTestData
