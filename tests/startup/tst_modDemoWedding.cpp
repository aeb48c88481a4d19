#include "TestDatabase.h"
#include "startup/modDemoWedding.h"
#include "core/modSchema.h"
#include "guests/clsINVITE.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QtTest>
#include <memory>

class tst_modDemoWedding : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestDatabase> mDb;

    // Every row of every table, as stored, in key order.
    static QString Dump() {
        QString text;
        for (const QString& table : modSchema::TableNames()) {
            const clsRecordset rs =
                gDB().ExecuteRaw(QStringLiteral("SELECT * FROM %1 ORDER BY 1").arg(table));
            text += QStringLiteral("## ") + table + QLatin1Char('\n');
            for (int row = 0; row < rs.RowCount(); ++row)
                text += rs.Row(row).join(QLatin1Char('|')) + QLatin1Char('\n');
        }
        return text;
    }

    static long Count(const QString& sql) { return TestDatabase::Scalar(sql).toLong(); }

    // A fresh database filled with the demo; the dump of its content.
    QString FillFresh(int guests, quint32 seed) {
        mDb.reset();
        mDb = std::make_unique<TestDatabase>();
        QString message;
        if (!FillDemoWedding(guests, seed, &message))
            qWarning("%s", qPrintable(message));
        return Dump();
    }

    // The rules any wedding in the database keeps, checked on the stored rows.
    static void CheckConsistent() {
        // Every invitation has exactly one primary contact, and it is the first person on it.
        QCOMPARE(
            Count("SELECT COUNT(*) FROM INVITE WHERE (SELECT COUNT(*) FROM CONTACT WHERE CONTACT.INVITE_ID = "
                  "INVITE.INVITE_ID AND PRIMARY_CONTACT_FG = 'Y') <> 1"),
            0L);
        QCOMPARE(
            Count("SELECT COUNT(*) FROM CONTACT c WHERE PRIMARY_CONTACT_FG = 'Y' AND EXISTS (SELECT 1 FROM "
                  "CONTACT o WHERE o.INVITE_ID = c.INVITE_ID AND o.SORT_ORDER_NB < c.SORT_ORDER_NB)"),
            0L);
        // Attendees only on sent invitations whose reply came back.
        QCOMPARE(
            Count("SELECT COUNT(*) FROM CONTACT LEFT JOIN INVITE ON INVITE.INVITE_ID = CONTACT.INVITE_ID "
                  "WHERE CONTACT_ID > 2 AND ATTENDING_FG = 'Y' AND (INVITE.INVITE_ID IS NULL OR "
                  "INVITE_SENT_FG <> 'Y' OR RSVP_RECEIVED_FG <> 'Y')"),
            0L);
        // Meals, seats, hotels and flights only for people who come.
        QCOMPARE(Count("SELECT COUNT(*) FROM CONTACT WHERE ATTENDING_FG <> 'Y' AND (MEAL_ID IS NOT NULL OR "
                       "DINING_TABLE_ID IS NOT NULL OR HOTEL_ID IS NOT NULL OR FLIGHT_ID IS NOT NULL)"),
                 0L);
        // No table holds more people than it has seats.
        QCOMPARE(
            Count("SELECT COUNT(*) FROM DINING_TABLE WHERE SEATS_NB < (SELECT COUNT(*) FROM CONTACT WHERE "
                  "CONTACT.DINING_TABLE_ID = DINING_TABLE.DINING_TABLE_ID)"),
            0L);
        // No hotel gives out more rooms than it has (one room per household).
        QCOMPARE(
            Count(
                "SELECT COUNT(*) FROM HOTEL WHERE ROOMS_NB < (SELECT COUNT(DISTINCT INVITE_ID) FROM CONTACT "
                "WHERE CONTACT.HOTEL_ID = HOTEL.HOTEL_ID)"),
            0L);
        // A brought guest is on the invitation of whoever brings them.
        QCOMPARE(Count("SELECT COUNT(*) FROM CONTACT g JOIN CONTACT h ON h.CONTACT_ID = g.GUEST_OF_ID WHERE "
                       "g.INVITE_ID IS NOT h.INVITE_ID"),
                 0L);
        // Every invitation carries its envelope texts.
        QCOMPARE(
            Count("SELECT COUNT(*) FROM INVITE WHERE DISPLAY_AS_TX IS NULL OR OUTER_ENVELOPE_TX IS NULL OR "
                  "INNER_ENVELOPE_TX IS NULL"),
            0L);
        // RSVP numbers are unique.
        QCOMPARE(Count("SELECT COUNT(*) - COUNT(DISTINCT INVITE_RSVP_ID) FROM INVITE"), 0L);
        QCOMPARE(Count("PRAGMA foreign_key_check"), 0L);
    }

private slots:
    void cleanup() { mDb.reset(); }

    void sameSeedSameWedding() {
        const QString first = FillFresh(150, 7);
        const QString second = FillFresh(150, 7);
        QVERIFY(first.size() > 10000);
        QCOMPARE(QCryptographicHash::hash(first.toUtf8(), QCryptographicHash::Sha256).toHex(),
                 QCryptographicHash::hash(second.toUtf8(), QCryptographicHash::Sha256).toHex());
        const QString other = FillFresh(150, 8);
        QVERIFY(other != first);
    }

    void plausible_data() {
        QTest::addColumn<int>("guests");
        QTest::addColumn<uint>("seed");
        QTest::newRow("default") << 150 << 1u;
        QTest::newRow("tiny") << 3 << 5u;
        QTest::newRow("couple only") << 0 << 1u;
    }
    void plausible() {
        QFETCH(int, guests);
        QFETCH(uint, seed);
        mDb = std::make_unique<TestDatabase>();
        QString message;
        QVERIFY2(FillDemoWedding(guests, seed, &message), qPrintable(message));
        QVERIFY(message.startsWith(QStringLiteral("Demo wedding: %1 guests, ").arg(guests)));
        QCOMPARE(Count("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID > 2"), long(guests));
        CheckConsistent();
        // The couple and the wedding day.
        QVERIFY(!TestDatabase::Scalar("SELECT FIRST_NM FROM CONTACT WHERE CONTACT_ID = 1").isEmpty());
        QCOMPARE(gDB().ExecuteRaw("SELECT EVENT_DT FROM EVENT WHERE EVENT_ID = 1").Scalar(),
                 QStringLiteral("2027-06-12 15:30:00"));
        QVERIFY(Count("SELECT COUNT(*) FROM TASK WHERE DUE_DT IS NULL") == 0);
        QVERIFY(Count("SELECT COUNT(*) FROM TASK WHERE COMPLETED_FG = 'Y'") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM TASK WHERE COMPLETED_FG = 'N'") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM BUDGET WHERE VENDOR_ID IS NOT NULL AND PAID_BY_ID IS NOT NULL") >
                5);
        QVERIFY(Count("SELECT COUNT(*) FROM TIMELINE") > 5);
        QVERIFY(Count("SELECT COUNT(*) FROM SONG") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM NOTEBOOK") > 0);
        if (guests < 100)
            return;
        // A believable mix: a few of every kind.
        const long invites = Count("SELECT COUNT(*) FROM INVITE");
        QVERIFY(invites > guests / 4 && invites < guests);
        QVERIFY(Count("SELECT COUNT(*) FROM INVITE WHERE INVITE_SENT_FG = 'N'") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM INVITE WHERE INVITE_SENT_FG = 'Y' AND RSVP_RECEIVED_FG = 'N'") >
                0);
        const long attending = Count("SELECT COUNT(*) FROM CONTACT WHERE ATTENDING_FG = 'Y'");
        QVERIFY(attending > guests / 3 && attending < guests);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID IS NOT NULL") > attending / 2);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE CHILD_FG = 'Y'") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE GUEST_OF_ID IS NOT NULL AND MIDDLE_NM = 'Guest'") >
                0);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE GUEST_OF_ID IS NOT NULL AND FIRST_NM IS NOT NULL") >
                0);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE HOTEL_ID IS NOT NULL") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE FLIGHT_ID IS NOT NULL") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE ADDRESS_TX LIKE '%Canada'") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM CONTACT WHERE ADDRESS_TX LIKE '%United Kingdom'") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM GIFT WHERE THANK_YOU_SENT_FG = 'Y'") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM TENTCARD") > 0);
        QCOMPARE(Count("SELECT COUNT(DISTINCT ROLE_ID) FROM CONTACT WHERE ROLE_ID IS NOT NULL"),
                 Count("SELECT COUNT(*) FROM CONTACT WHERE ROLE_ID IS NOT NULL"));
    }

    // The envelopes are the invitation's own wording: relabelling changes nothing.
    void envelopesAreTheInvitationsOwn() {
        mDb = std::make_unique<TestDatabase>();
        QString message;
        QVERIFY2(FillDemoWedding(600, 11, &message), qPrintable(message));
        int checked = 0;
        for (clsINVITE invite : clsINVITE::OpenRecords(0, false)) {
            const QString display = invite.DISPLAY_AS_TX;
            const QString outer = invite.OUTER_ENVELOPE_TX;
            const QString inner = invite.INNER_ENVELOPE_TX;
            invite.RefreshLabeling(true, false);
            QCOMPARE(invite.DISPLAY_AS_TX, display);
            QCOMPARE(invite.OUTER_ENVELOPE_TX, outer);
            QCOMPARE(invite.INNER_ENVELOPE_TX, inner);
            ++checked;
        }
        QVERIFY(checked > 100);
        // Titles of every kind reach the envelopes, with the joiner of their language.
        const auto outerLike = [](const char* pattern) {
            return Count(QStringLiteral("SELECT COUNT(*) FROM INVITE WHERE OUTER_ENVELOPE_TX LIKE '%1'")
                             .arg(QLatin1String(pattern)));
        };
        QVERIFY(outerLike("Herr und Frau %") > 0);
        QVERIFY(outerLike("M. et Mme %") > 0);
        QVERIFY(outerLike("Sr. y Sra. %") > 0);
        QVERIFY(outerLike("Mr. and Mrs. %") > 0);
        QVERIFY(outerLike("%Dr.%") > 0);
        QVERIFY(outerLike("The Honorable %") > 0);
        QVERIFY(outerLike("%Ms.%") > 0);
        QVERIFY(outerLike("%Rev.%") > 0);
        QVERIFY(Count("SELECT COUNT(*) FROM INVITE WHERE DISPLAY_AS_TX LIKE '%, % and Guest'") > 0);
    }

    void refusedWhenGuestsExist() {
        mDb = std::make_unique<TestDatabase>();
        TestDatabase::Exec("INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM) VALUES (3, 'Ann', 'Early')");
        const QString before = Dump();
        QString message;
        QVERIFY(!FillDemoWedding(150, 1, &message));
        QVERIFY(message.contains(QStringLiteral("1 guests")));
        QCOMPARE(Dump(), before);
        QVERIFY(!FillDemoWedding(-1, 1, &message));
    }

    // A failure half-way leaves nothing behind.
    void failureLeavesNothing() {
        mDb = std::make_unique<TestDatabase>();
        // Songs cannot be written: the list they belong to is gone.
        TestDatabase::Exec("DELETE FROM SONGLIST_DICT");
        const QString before = Dump();
        QString message;
        QVERIFY(!FillDemoWedding(150, 1, &message));
        QVERIFY(message.startsWith(QStringLiteral("The demo wedding could not be made")));
        QCOMPARE(Dump(), before);
    }

    void tenThousandGuests() {
        mDb = std::make_unique<TestDatabase>();
        QElapsedTimer timer;
        timer.start();
        QString message;
        QVERIFY2(FillDemoWedding(10000, 1, &message), qPrintable(message));
        qInfo("10 000 guests in %lld ms: %s", static_cast<long long>(timer.elapsed()), qPrintable(message));
        QCOMPARE(Count("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID > 2"), 10000L);
        CheckConsistent();
    }
};

QTEST_GUILESS_MAIN(tst_modDemoWedding)
#include "tst_modDemoWedding.moc"
