#pragma once

#include "TestDatabase.h"

#include <QStringList>
#include <QVariantMap>

// Rows written straight into the tables, so that what a test sets up does not depend on the record
// classes under test.
namespace GuestTestData {

inline QString Insert(const QString& table, const QString& key, QVariantMap values) {
    if (!values.contains(key))
        values.insert(key, TestDatabase::Scalar(
                               QStringLiteral("SELECT coalesce(Max(%1), 0) + 1 FROM %2").arg(key, table)));
    QStringList marks;
    for (qsizetype i = 0; i < values.size(); ++i)
        marks << QStringLiteral("?");
    TestDatabase::Exec(
        QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
            .arg(table, values.keys().join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
        values.values());
    return values.value(key).toString();
}

inline QString AddContact(const QVariantMap& values) {
    QVariantMap row{{"ATTENDING_FG", "N"},
                    {"PRIMARY_CONTACT_FG", "N"},
                    {"GENDER_FG", "M"},
                    {"CHILD_FG", "N"},
                    {"OUT_OF_TOWNER_FG", "N"}};
    for (auto it = values.begin(); it != values.end(); ++it)
        row.insert(it.key(), it.value());
    return Insert(QStringLiteral("CONTACT"), QStringLiteral("CONTACT_ID"), row);
}

// People as a table: the columns named once, then one row of values per person; an empty value leaves
// the column to AddContact's default.
inline void AddContacts(const QStringList& columns, const QList<QVariantList>& rows) {
    for (const QVariantList& values : rows) {
        QVariantMap row;
        for (qsizetype i = 0; i < columns.size(); ++i)
            if (values.value(i).isValid())
                row.insert(columns[i], values[i]);
        AddContact(row);
    }
}

inline QString AddInvite(const QVariantMap& values) {
    QVariantMap row{{"INVITE_SENT_FG", "N"}, {"RSVP_RECEIVED_FG", "N"}, {"AUTO_UPDATE_FG", "Y"}};
    for (auto it = values.begin(); it != values.end(); ++it)
        row.insert(it.key(), it.value());
    return Insert(QStringLiteral("INVITE"), QStringLiteral("INVITE_ID"), row);
}

inline void AddDiningTable(int id, int number, const QString& name) {
    TestDatabase::Exec(
        QStringLiteral("INSERT INTO DINING_TABLE (DINING_TABLE_ID, DINING_TABLE_NB, DINING_TABLE_NM, "
                       "SEATS_NB, POS_X, POS_Y, DINING_TABLE_TYPE_ID) VALUES (?, ?, ?, 8, 0, 0, 1)"),
        {id, number, name});
}

inline void AddFlight(int id) {
    TestDatabase::Exec(
        QStringLiteral("INSERT INTO FLIGHT VALUES (?, ?, 'UA 1', 'SFO', '2027-06-04 09:00:00', 'BOS', "
                       "'2027-06-04 17:30:00', 0, 0, NULL)"),
        {id, id});
}

inline void AddHotel(int id) {
    TestDatabase::Exec(
        QStringLiteral("INSERT INTO HOTEL (HOTEL_ID, HOTEL_NB, HOTEL_NM, ROOMS_NB, POS_X, POS_Y) "
                       "VALUES (?, ?, 'Harbor Inn', 10, 0, 0)"),
        {id, id});
}

inline void SetEtiquette(bool invitationsFormal, bool tentcardsFormal) {
    const auto text = [](bool formal) { return formal ? QStringLiteral("True") : QStringLiteral("False"); };
    TestDatabase::Exec(QStringLiteral("UPDATE VOWREN SET VOWREN_TX = ? WHERE VOWREN_ID = 7"),
                       {text(invitationsFormal)});
    TestDatabase::Exec(QStringLiteral("UPDATE VOWREN SET VOWREN_TX = ? WHERE VOWREN_ID = 8"),
                       {text(tentcardsFormal)});
}

// Makes the next statement of a kind fail, the way a full disk or a broken file would.
inline void FailOn(const QString& event, const QString& table, const QString& when = {}) {
    TestDatabase::Exec(QStringLiteral("CREATE TRIGGER forced_failure BEFORE %1 ON %2 %3 BEGIN "
                                      "SELECT RAISE(ABORT, 'forced failure'); END")
                           .arg(event, table, when.isEmpty() ? QString() : QStringLiteral("WHEN ") + when));
}

// Every row of a table as text, to compare a whole table before and after.
inline QStringList Dump(const QString& table) {
    const clsRecordset rs = gDB().ExecuteRaw(QStringLiteral("SELECT * FROM %1 ORDER BY 1").arg(table));
    QStringList rows;
    for (int r = 0; r < rs.RowCount(); ++r)
        rows << rs.Row(r).join(QLatin1Char('|'));
    return rows;
}

// A person of an invitation as "Title|First|Middle|Last|Suffix|Nick|GuestOf", where GuestOf is the
// place (from 0) of the person who brings them, or empty.
struct Person {
    QString Title, First, Middle, Last, Suffix, Nick;
    int GuestOf = -1;
};

inline Person ParsePerson(const QString& text) {
    const QStringList p = text.split(QLatin1Char('|'));
    Person person;
    person.Title = p.value(0);
    person.First = p.value(1);
    person.Middle = p.value(2);
    person.Last = p.value(3);
    person.Suffix = p.value(4);
    person.Nick = p.value(5);
    person.GuestOf = p.value(6).isEmpty() ? -1 : p.value(6).toInt();
    return person;
}

// An invitation with its people in order, the first of them primary; gives the INVITE_ID.
inline QString AddInvitation(const QStringList& people, const QVariantMap& invite = {},
                             QStringList* contactIds = nullptr) {
    const QString inviteId = AddInvite(invite);
    QStringList ids;
    for (int i = 0; i < people.size(); ++i) {
        const Person p = ParsePerson(people[i]);
        QVariantMap row{
            {"TITLE_TX", p.Title},   {"FIRST_NM", p.First},    {"MIDDLE_NM", p.Middle},
            {"LAST_NM", p.Last},     {"SUFFIX_TX", p.Suffix},  {"NICK_NM", p.Nick},
            {"INVITE_ID", inviteId}, {"SORT_ORDER_NB", i + 1}, {"PRIMARY_CONTACT_FG", i == 0 ? "Y" : "N"}};
        if (p.GuestOf >= 0)
            row.insert(QStringLiteral("GUEST_OF_ID"), ids.value(p.GuestOf));
        ids << AddContact(row);
    }
    if (contactIds)
        *contactIds = ids;
    return inviteId;
}

} // namespace GuestTestData
