#include "PlanningTestTools.h"
#include "planning/clsGIFT.h"

#include <QtTest>
#include <memory>

class tst_clsGIFT : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static clsGIFT Gift(const QString& event, const QString& contact, const QString& invite,
                        const QString& text, const QString& sent = QStringLiteral("N")) {
        clsGIFT gift;
        gift.EVENT_ID = event;
        gift.CONTACT_ID = contact;
        gift.INVITE_ID = invite;
        gift.GIFT_TX = text;
        gift.THANK_YOU_SENT_FG = sent;
        return gift;
    }
    static QStringList Givers(const QList<clsGIFT>& gifts) {
        return Pluck(gifts, &clsGIFT::GIVER_NM);
    }

    // Contacts 3 (John Smith Jr.) and 4 (Ann Baker), the invitation 1 of the Carters (contact 5 the
    // primary, contact 6 the second), a shower (event 2), and four gifts: Smith at the wedding (note
    // sent), the Carters at the wedding, Baker at the shower, and Baker again at the wedding (note sent).
    void AddGifts() {
        TestDatabase::Exec(
            "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, MIDDLE_NM, LAST_NM, SUFFIX_TX, ADDRESS_TX) "
            "VALUES "
            "(3, 'Mr.', 'John', 'Q', 'Smith', 'Jr.', '  1 Elm St\r\nSpringfield, IL  62701\r\n'), "
            "(4, 'Ms.', 'Ann', NULL, 'baker', NULL, NULL)");
        TestDatabase::Exec("INSERT INTO INVITE (INVITE_ID, DISPLAY_AS_TX, OUTER_ENVELOPE_TX) VALUES "
                           "(1, 'Carter, Tom and Lucy', 'Mr. and Mrs. Tom Carter')");
        TestDatabase::Exec("INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM, ADDRESS_TX, INVITE_ID, "
                           "PRIMARY_CONTACT_FG, SORT_ORDER_NB) VALUES "
                           "(6, 'Lucy', 'Carter', 'somewhere else', 1, 'N', 2), "
                           "(5, 'Tom', 'Carter', '9 Pine Rd\r\nAustin, TX  78701', 1, 'Y', 1)");
        TestDatabase::Exec("INSERT INTO EVENT (EVENT_ID, EVENT_TX) VALUES (2, 'Shower')");
        for (clsGIFT gift : {Gift("1", "3", "", "Toaster", "Y"), Gift("1", "", "1", "Blender"),
                             Gift("2", "4", "", "Towels"), Gift("1", "4", "", "Vase", "Y")})
            gift.Save(true);
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void thankYouCounts_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("customWhere");
        QTest::addColumn<QStringList>("gifts");
        QTest::newRow("all gifts") << int(clsGIFT::AllGifts) << ""
                                   << QStringList({"Towels", "Vase", "Blender", "Toaster"});
        QTest::newRow("notes sent") << int(clsGIFT::NotesSent) << "" << QStringList({"Vase", "Toaster"});
        QTest::newRow("notes unsent")
            << int(clsGIFT::NotesUnsent) << "" << QStringList({"Towels", "Blender"});
        QTest::newRow("an event's gifts: the condition wins over the filter")
            << int(clsGIFT::NotesSent) << "WHERE EVENT.EVENT_ID = 2" << QStringList({"Towels"});
        QTest::newRow("a custom condition") << int(clsGIFT::NotesUnsent) << "WHERE GIFT.GIFT_TX LIKE '%er'"
                                            << QStringList({"Blender", "Toaster"});
        QTest::newRow("a custom condition on the giver")
            << int(clsGIFT::AllGifts) << "WHERE GIFT.INVITE_ID IS NOT NULL" << QStringList({"Blender"});
    }
    void thankYouCounts() {
        QFETCH(int, filter);
        QFETCH(QString, customWhere);
        QFETCH(QStringList, gifts);
        AddGifts();
        const QList<clsGIFT> list = clsGIFT().OpenRecords(filter, customWhere);
        QStringList texts;
        for (const clsGIFT& gift : list)
            texts << gift.GIFT_TX;
        // Two gifts of Ann Baker: their order among themselves is the database's.
        if (texts.size() >= 2 && texts.first() == QLatin1String("Vase") &&
            texts[1] == QLatin1String("Towels"))
            texts.swapItemsAt(0, 1);
        QCOMPARE(texts, gifts);
        QCOMPARE(clsGIFT().GetTotal(filter, customWhere), long(gifts.size()));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void markingANoteSentMovesTheCounts() {
        AddGifts();
        clsGIFT gift;
        QVERIFY(gift.OpenRecord("2"));
        QCOMPARE(gift.THANK_YOU_SENT_FG_Text(), QString());
        gift.THANK_YOU_SENT_FG = QStringLiteral("Y");
        gift.Save(false);
        QCOMPARE(clsGIFT().GetTotal(clsGIFT::NotesSent), 3L);
        QCOMPARE(clsGIFT().GetTotal(clsGIFT::NotesUnsent), 1L);
        QVERIFY(gift.OpenRecord("2"));
        QCOMPARE(gift.THANK_YOU_SENT_FG_Text(), QStringLiteral("Yes"));
        QCOMPARE(gift.INVITE_ID, QStringLiteral("1"));
        QVERIFY(gift.CONTACT_ID.isEmpty());
    }

    void giversOfBothKindsSortTogether() {
        AddGifts();
        QCOMPARE(Givers(clsGIFT().OpenRecords(clsGIFT::AllGifts)),
                 QStringList({"baker, Ann", "baker, Ann", "Carter, Tom and Lucy", "Smith, John Q, Jr."}));
    }

    void aContactGiver() {
        AddGifts();
        clsGIFT gift;
        QVERIFY(gift.OpenRecord("1"));
        QCOMPARE(gift.EVENT_ID, QStringLiteral("1"));
        QCOMPARE(gift.CONTACT_ID, QStringLiteral("3"));
        QVERIFY(gift.INVITE_ID.isEmpty());
        QCOMPARE(gift.EVENT_TX, QStringLiteral("Wedding Day"));
        QCOMPARE(gift.GIVER_NM, QStringLiteral("Smith, John Q, Jr."));
        QCOMPARE(gift.OUTER_ENVELOPE_TX, QStringLiteral("Mr. John Q Smith, Jr."));
        QCOMPARE(gift.OUTER_ENVELOPE_ADDRESS_TX_Text(true),
                 QStringLiteral("1 Elm St\r\nSpringfield, IL  62701"));
        QCOMPARE(gift.OUTER_ENVELOPE_ADDRESS_TX_Text(false),
                 QStringLiteral("1 Elm St, Springfield, IL  62701"));
    }

    void anInvitationGiverUsesThePrimaryContactsAddress() {
        AddGifts();
        clsGIFT gift;
        QVERIFY(gift.OpenRecord("2"));
        QVERIFY(gift.CONTACT_ID.isEmpty());
        QCOMPARE(gift.DISPLAY_NM, QStringLiteral("Carter, Tom and Lucy"));
        QCOMPARE(gift.GIVER_NM, QStringLiteral("Carter, Tom and Lucy"));
        QCOMPARE(gift.OUTER_ENVELOPE_TX, QStringLiteral("Mr. and Mrs. Tom Carter"));
        QCOMPARE(gift.OUTER_ENVELOPE_ADDRESS_TX_Text(false), QStringLiteral("9 Pine Rd, Austin, TX  78701"));
    }

    void nameFormsOfTheGiver_data() {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("middle");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("listName");
        QTest::addColumn<QString>("envelope");
        QTest::newRow("plain") << ""
                               << ""
                               << ""
                               << "Lee, Kim"
                               << "Kim Lee";
        QTest::newRow("title and middle") << "Dr."
                                          << "J"
                                          << ""
                                          << "Lee, Kim J"
                                          << "Dr. Kim J Lee";
        QTest::newRow("junior takes a comma") << ""
                                              << ""
                                              << "jr"
                                              << "Lee, Kim, jr"
                                              << "Kim Lee, jr";
        QTest::newRow("numbers take a blank") << ""
                                              << ""
                                              << "III"
                                              << "Lee, Kim III"
                                              << "Kim Lee III";
    }
    void nameFormsOfTheGiver() {
        QFETCH(QString, title);
        QFETCH(QString, middle);
        QFETCH(QString, suffix);
        QFETCH(QString, listName);
        QFETCH(QString, envelope);
        TestDatabase::Exec(
            "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, MIDDLE_NM, LAST_NM, SUFFIX_TX) "
            "VALUES (7, ?, 'Kim', ?, 'Lee', ?)",
            {title, middle, suffix});
        clsGIFT gift = Gift("1", "7", "", "Pen");
        gift.Save(true);
        QVERIFY(gift.OpenRecord(gift.GIFT_ID));
        QCOMPARE(gift.GIVER_NM, listName);
        QCOMPARE(gift.OUTER_ENVELOPE_TX, envelope);
    }

    void onlyOneKindOfGiverIsWritten() {
        AddGifts();
        clsGIFT gift = Gift("1", "3", "1", "Clock");
        gift.Save(true);
        QVERIFY(gift.INVITE_ID.isEmpty());
        QCOMPARE(TestDatabase::Scalar("SELECT ifnull(INVITE_ID, 'NULL') || '/' || CONTACT_ID FROM GIFT WHERE "
                                      "GIFT_ID = ?",
                                      {gift.GIFT_ID}),
                 QStringLiteral("NULL/3"));
    }

    void aContactWithGiftsCannotBeDeleted() {
        AddGifts();
        QVERIFY(!RecordIO::Attempt([&] { RecordIO::Delete("CONTACT", "CONTACT_ID", "3"); }));
        QCOMPARE(db->Messages().Prompts,
                 QStringList({"Unable to delete.  Gift records exist for this contact."}));
        clsGIFT().Delete("1");
        RecordIO::Delete("CONTACT", "CONTACT_ID", "3");
    }

    void receivedDate() {
        clsGIFT gift = Gift("1", "", "", "Card");
        gift.RECEIVED_DT = QStringLiteral("29-Feb-2028");
        gift.Save(true);
        QVERIFY(gift.OpenRecord(gift.GIFT_ID));
        QCOMPARE(gift.RECEIVED_DT_DDMMMYYYY(), QStringLiteral("29-Feb-2028"));
        QCOMPARE(TestDatabase::Scalar("SELECT RECEIVED_DT AS STORED FROM GIFT"),
                 QStringLiteral("2028-02-29"));
        gift.RECEIVED_DT.clear();
        gift.Save(false);
        QCOMPARE(TestDatabase::Scalar("SELECT RECEIVED_DT IS NULL FROM GIFT"), QStringLiteral("1"));
    }
};

QTEST_GUILESS_MAIN(tst_clsGIFT)
#include "tst_clsGIFT.moc"
