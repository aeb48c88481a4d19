// The custom filter: which condition, caption and count a set of ticked boxes gives, and the report
// run it leads to.
#include "TestDatabase.h"
#include "startup/modDemoWedding.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "reports/clsCustomFilter.h"

#include <QSet>
#include <QtTest>

namespace {

QSet<QString> ContactIds(int filter, bool excludeBrideGroom)
{
    QSet<QString> ids;
    for (const clsCONTACT& contact : clsCONTACT::OpenRecords(filter, {}, {}, excludeBrideGroom))
        ids.insert(contact.CONTACT_ID);
    return ids;
}

QSet<QString> InviteIds(int filter)
{
    QSet<QString> ids;
    for (const clsINVITE& invite : clsINVITE::OpenRecords(filter, false))
        ids.insert(invite.INVITE_ID);
    return ids;
}

// The records that every group of keys finds: within a group any key, across groups all of them.
QSet<QString> Expected(int form, const QList<QList<int>>& groups)
{
    const bool contacts = form == clsCustomFilter::Contacts || form == clsCustomFilter::Attendees;
    std::optional<QSet<QString>> result;
    for (const QList<int>& group : groups) {
        QSet<QString> any;
        for (int key : group)
            any.unite(contacts ? ContactIds(key, form == clsCustomFilter::Contacts) : InviteIds(key));
        result = result ? result->intersect(any) : any;
    }
    return result.value_or(QSet<QString>());
}

} // namespace

class tst_clsCustomFilter : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString message;
        QVERIFY2(FillDemoWedding(120, 7, &message), qPrintable(message));
    }

    void countsMatchTheFixedFilters_data()
    {
        QTest::addColumn<int>("form");
        QTest::addColumn<QList<QList<int>>>("groups");
        QTest::addColumn<QString>("caption");
        using G = QList<QList<int>>;
        QTest::newRow("contacts: bride's friends on the A list")
            << 1 << G{{1}, {4}} << "Friend of Bride+A list";
        QTest::newRow("contacts: men or women") << 1 << G{{37, 38}} << "Male+Female";
        QTest::newRow("contacts: three groups")
            << 1 << G{{2, 3}, {6}, {43}} << "Friend of Groom+Friend of Both+Invited+Adult";
        QTest::newRow("invitations: sent to the bride's side")
            << 2 << G{{1}, {5}} << "Sent+Friend of Bride";
        QTest::newRow("rsvps: no reply, local") << 3 << G{{4}, {14}} << "No Reply+Local";
        QTest::newRow("attendees: seated children")
            << 4 << G{{48}, {21}} << "Child+Seated";
        QTest::newRow("attendees: both seating boxes") << 4 << G{{21, 22}} << "Seated+To be seated";
    }

    void countsMatchTheFixedFilters()
    {
        QFETCH(int, form);
        QFETCH(QList<QList<int>>, groups);
        QFETCH(QString, caption);
        clsCustomFilter filter(form);
        // Ticked from the last to the first: the caption still follows the boxes' order.
        for (auto group = groups.crbegin(); group != groups.crend(); ++group)
            for (int key : *group)
                filter.SetTicked(key, true);

        const qsizetype expected = Expected(form, groups).size();
        QVERIFY(expected > 0);
        QCOMPARE(filter.Count(), long(expected));
        QCOMPARE(filter.CountText(), QStringLiteral("custom filter = %1 records").arg(expected));
        QCOMPARE(filter.FilterCaption(), caption);
        QCOMPARE(filter.BuildWhere().count(QStringLiteral(" AND (")), groups.size() - 1);
    }

    void nothingTicked_data()
    {
        QTest::addColumn<int>("form");
        QTest::addColumn<QString>("where");
        QTest::newRow("contacts") << 1 << QString();
        QTest::newRow("rsvps: all sent invitations") << 3 << clsINVITE::WHERE_CLAUSE(1);
        QTest::newRow("attendees: all attendees") << 4 << clsCONTACT::WHERE_CLAUSE(14, false);
    }

    void nothingTicked()
    {
        QFETCH(int, form);
        QFETCH(QString, where);
        clsCustomFilter filter(form);
        filter.SetTicked(filter.Groups().first().Boxes.first().Key, true);
        filter.SetTicked(filter.Groups().first().Boxes.first().Key, false);
        QVERIFY(!filter.AnyTicked());
        QCOMPARE(filter.BuildWhere(), where);
        QCOMPARE(filter.FilterCaption(), QString());
        QCOMPARE(filter.CountText(), QString());
    }

    void routeRunsTheSectionsReport_data()
    {
        QTest::addColumn<int>("form");
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("filterEnum");
        QTest::addColumn<QString>("header");
        QTest::newRow("contacts") << 1 << "clsRTFContacts" << 1000 << "Contacts";
        QTest::newRow("invitations") << 2 << "clsRTFInvitation" << 20 << "Invitations";
    }

    void routeRunsTheSectionsReport()
    {
        QFETCH(int, form);
        QFETCH(QString, className);
        QFETCH(int, filterEnum);
        QFETCH(QString, header);
        clsCustomFilter filter(form);
        QVERIFY(filter.IsValid());
        QCOMPARE(filter.HeaderCaption(), header);
        const clsCustomFilter::Box& box = filter.Groups().last().Boxes.last();
        filter.SetTicked(box.Key, true);
        const clsReportRoute route = filter.Route();
        QCOMPARE(route.ClassName, className);
        QCOMPARE(route.FilterEnum, filterEnum);
        QCOMPARE(route.FilterText, box.Caption);
        QCOMPARE(route.CustomWhere, filter.BuildWhere());
        QVERIFY(!route.ExcludeBrideGroom);
        QVERIFY(!route.FilePrefix.isEmpty());
    }

    void noOtherSection()
    {
        clsCustomFilter filter(5);
        QVERIFY(!filter.IsValid());
        QVERIFY(filter.Route().ClassName.isEmpty());
    }

private:
    TestDatabase mDatabase;
};

QTEST_GUILESS_MAIN(tst_clsCustomFilter)
#include "tst_clsCustomFilter.moc"
