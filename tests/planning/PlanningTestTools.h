#pragma once

#include "TestDatabase.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"

#include <QtTest>

// A fresh database for one test, with the wedding day reopened from it and the real clock back.
class PlanningDatabase : public TestDatabase {
public:
    PlanningDatabase() {
        SetNowForTesting(QDateTime());
        gWeddingEvent() = clsEVENT();
        gWeddingEvent().OpenRecord(QStringLiteral("1"));
    }
    ~PlanningDatabase() {
        SetNowForTesting(QDateTime());
        gWeddingEvent() = clsEVENT();
    }

    // Saves the wedding day with that date, as the event editor does.
    static void SetWeddingDate(const QString& date) {
        clsEVENT wedding;
        QVERIFY(wedding.OpenRecord(QStringLiteral("1")));
        wedding.EVENT_DT = date;
        wedding.Save(false);
    }

    static QString Count(const QString& table, const QString& where = QString()) {
        return Scalar(QStringLiteral("SELECT COUNT(*) FROM %1 %2").arg(table, where));
    }
};

// One member of every record, in the list's order.
template <class T>
QStringList Pluck(const QList<T>& records, QString T::*member) {
    QStringList values;
    for (const T& record : records)
        values << record.*member;
    return values;
}
