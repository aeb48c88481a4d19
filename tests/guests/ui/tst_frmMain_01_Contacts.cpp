// The Contacts page driven like a person would: filters, search, selection, bulk changes and deletes,
// checked against the database.
#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/clsApp.h"
#include "guests/GuestTestData.h"
#include "guests/clsCONTACT.h"
#include "guests/ui/frmMain_01_Contacts.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/controls/usrSearch.h"
#include "shell/grid/clsGridProxy.h"
#include "shell/grid/modGrid.h"
#include "startup/modDemoWedding.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QtTest>

using UiTestTools::SelectRecords;

namespace {

QString Text(const QWidget* page, const QString& label) {
    return page->findChild<QLabel*>(label)->text();
}

QString Ids(int filter, int count, bool skipCouple = true) {
    QStringList ids;
    for (const clsCONTACT& c : clsCONTACT::OpenRecords(filter, {}, {}, skipCouple))
        if (ids.size() < count)
            ids.append(c.CONTACT_ID);
    return ids.join(QLatin1Char(','));
}

} // namespace

class tst_frmMain_01_Contacts : public QObject {
    Q_OBJECT

private slots:
    void init() {
        mDatabase = std::make_unique<TestDatabase>();
        QString message;
        QVERIFY2(FillDemoWedding(60, 3, &message), qPrintable(message));
        mPage = std::make_unique<frmMain_01_Contacts>();
        mPage->resize(1200, 700);
        mPage->LoadNow();
    }
    void cleanup() {
        mPage.reset();
        mDatabase.reset();
    }

    void panelCountsAndFilters_data() {
        QTest::addColumn<int>("filter");
        QTest::newRow("all contacts") << 0;
        QTest::newRow("bride's side") << 1;
        QTest::newRow("not yet invited") << 7;
    }
    void panelCountsAndFilters() {
        QFETCH(int, filter);
        const long whole = gApp().TotalContacts(0, {}, true);
        const long count = gApp().TotalContacts(filter, {}, true);
        QCOMPARE(Text(mPage.get(), QStringLiteral("lblStat_%1").arg(filter)), QString::number(count));
        QCOMPARE(Text(mPage.get(), QStringLiteral("lblStatPercent_%1").arg(filter)),
                 QString::number(qRound(100.0 * count / whole)) + QLatin1Char('%'));

        QTest::mouseClick(mPage->findChild<usrHyperlink*>(QStringLiteral("linkFilter_%1").arg(filter)), Qt::LeftButton);
        // The grid shows the bride and groom only in the whole list.
        const long rows = filter == 0 ? gApp().TotalContacts(0) : count;
        QCOMPARE(mPage->Grid()->Model()->FlatRowCount(), int(rows));
        QCOMPARE(Text(mPage.get(), QStringLiteral("lblCount")), QStringLiteral("%1 of %1 contacts").arg(rows));

        // A new visit of the page comes back to the same filter.
        frmMain_01_Contacts again;
        again.LoadNow();
        QCOMPARE(again.CurrentFilter(), filter);
        QCOMPARE(again.Grid()->Model()->FlatRowCount(), int(rows));
    }

    void searchNarrowsTheCount() {
        QString name;
        for (const clsCONTACT& c : clsCONTACT::OpenRecords(0, {}, {}, true))
            if (c.LAST_NM.size() > 3)
                name = c.LAST_NM;
        QTest::keyClicks(mPage->SearchBox()->LineEdit(), name.toUpper());
        const int shown = mPage->Grid()->Proxy()->rowCount();
        QVERIFY(shown >= 1);
        QVERIFY(shown < mPage->Grid()->Model()->FlatRowCount());
        QVERIFY(Text(mPage.get(), QStringLiteral("lblCount")).startsWith(QString::number(shown) + QStringLiteral(" of ")));
    }

    void deleteAnsweredNoKeepsEveryone() {
        const QString one = Ids(0, 1);
        SelectRecords(mPage->Grid(), {one});
        mDatabase->Messages().NextAnswer = Msg::No;
        QCOMPARE(mPage->DeleteSelected(), 0);
        QVERIFY(mDatabase->Messages().Prompts.last().startsWith(QStringLiteral("Delete '")));
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID = ?", {one}), QStringLiteral("1"));
    }

    // A host and the guest they bring, selected together with the couple, whose role captions were
    // renamed. The guest's name puts them above or below the host in the list.
    void deletingAHostWithTheirGuest_data() {
        QTest::addColumn<QString>("guestLastName");
        QTest::addColumn<bool>("guestHasGift");
        QTest::newRow("guest listed above the host") << "Aalto" << false;
        QTest::newRow("guest listed below the host") << "Zwick" << false;
        QTest::newRow("a gift keeps everyone") << "Aalto" << true;
    }
    void deletingAHostWithTheirGuest() {
        QFETCH(QString, guestLastName);
        QFETCH(bool, guestHasGift);
        QStringList ids;
        const QString invite =
            GuestTestData::AddInvitation({"Ms.|Ann||Mole||", "|Pat||" + guestLastName + "|||0"}, {}, &ids);
        if (guestHasGift)
            GuestTestData::Insert(
                "GIFT", "GIFT_ID",
                {{"EVENT_ID", 1}, {"CONTACT_ID", ids[1]}, {"GIFT_TX", "Vase"}, {"THANK_YOU_SENT_FG", "N"}});
        TestDatabase::Exec("UPDATE ROLE_DICT SET ROLE_TX = 'Partner' WHERE ROLE_ID IN (1, 2)");
        const QStringList contacts = GuestTestData::Dump("CONTACT");
        mPage->Reload();
        SelectRecords(mPage->Grid(), {"1", ids[0], ids[1], "2"});
        mDatabase->Messages().NextAnswer = Msg::Yes;

        QTest::mouseClick(mPage->findChild<usrHyperlink*>("linkAction_2"), Qt::LeftButton);

        const QStringList& prompts = mDatabase->Messages().Prompts;
        QCOMPARE(prompts.first(), QStringLiteral("Delete 4 Contacts?"));
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID IN (1, 2)"),
                 QStringLiteral("2"));
        if (guestHasGift) {
            QCOMPARE(prompts.last(),
                     QStringLiteral("Unable to delete.  Gift records exist for this contact."));
            QCOMPARE(GuestTestData::Dump("CONTACT"), contacts);
        } else {
            QCOMPARE(prompts.size(), 1);
            QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID IN (?, ?)",
                                          {ids[0], ids[1]}),
                     QStringLiteral("0"));
            QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM INVITE WHERE INVITE_ID = ?", {invite}),
                     QStringLiteral("0"));
        }
        // The grid shows what the database holds.
        for (const QString& id : ids)
            QCOMPARE(mPage->Grid()->Model()->FindRecord(id.toLongLong()).isValid(), guestHasGift);
        QCOMPARE(mPage->Grid()->Model()->FlatRowCount(), int(clsCONTACT::GetTotal(0)));
    }

    void bulkChangeFromTheMenu_data() {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("value");
        QTest::newRow("female") << "mnuGENDER_FG_1" << "GENDER_FG" << "F";
        QTest::newRow("groom's side") << "mnuFRIEND_OF_CD_1" << "FRIEND_OF_CD" << "2";
        QTest::newRow("out of town") << "mnuOUT_OF_TOWNER_FG_1" << "OUT_OF_TOWNER_FG" << "Y";
    }
    void bulkChangeFromTheMenu() {
        QFETCH(QString, item);
        QFETCH(QString, column);
        QFETCH(QString, value);
        const QString ids = Ids(0, 3);
        SelectRecords(mPage->Grid(), ids.split(QLatin1Char(',')));
        QAction* action = mPage->ContextMenu()->findChild<QAction*>(item);
        QVERIFY(action);
        action->trigger();
        QCOMPARE(TestDatabase::Scalar(QStringLiteral("SELECT COUNT(*) FROM CONTACT WHERE %1 = ? AND CONTACT_ID IN (%2)")
                                          .arg(column, ids),
                                      {value}),
                 QStringLiteral("3"));
        // The rows show the change at once, and the panel counts follow.
        QCOMPARE(Text(mPage.get(), QStringLiteral("lblStat_0")), QString::number(gApp().TotalContacts(0, {}, true)));
    }

private:
    std::unique_ptr<TestDatabase> mDatabase;
    std::unique_ptr<frmMain_01_Contacts> mPage;
};

QTEST_MAIN(tst_frmMain_01_Contacts)
#include "tst_frmMain_01_Contacts.moc"
