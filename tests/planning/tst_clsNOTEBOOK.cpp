#include "PlanningTestTools.h"
#include "planning/clsNOTEBOOK.h"

#include <QtTest>
#include <memory>

class tst_clsNOTEBOOK : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static clsNOTEBOOK Note(const QString& date, const QString& subject) {
        clsNOTEBOOK note;
        note.NOTEBOOK_DT = date;
        note.SUBJECT_TX = subject;
        return note;
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void newestFirst() {
        for (clsNOTEBOOK note :
             {Note("01-Mar-2027 9:00 AM", "March"), Note("31-Dec-2026 11:59 PM", "New year's eve"),
              Note("01-Mar-2027 2:30 PM", "March, later"), Note("01-Jan-2027", "New year")})
            note.Save(true);
        QStringList subjects;
        for (const clsNOTEBOOK& note : clsNOTEBOOK().OpenRecords())
            subjects << note.SUBJECT_TX;
        QCOMPARE(subjects, QStringList({"March, later", "March", "New year", "New year's eve"}));
        QCOMPARE(clsNOTEBOOK().GetTotal(), 4L);
    }

    void dateAndTimeFormats() {
        clsNOTEBOOK note = Note("05-Jun-2027 3:07 PM", "Cake tasting");
        note.Save(true);
        QCOMPARE(TestDatabase::Scalar("SELECT NOTEBOOK_DT AS STORED FROM NOTEBOOK"),
                 QStringLiteral("2027-06-05 15:07:00"));
        clsNOTEBOOK again;
        QVERIFY(again.OpenRecord(note.NOTEBOOK_ID));
        QCOMPARE(again.NOTEBOOK_DT_DateFormat(), QStringLiteral("05-Jun-2027"));
        QCOMPARE(again.NOTEBOOK_DT_TimeFormat(), FormatTime(QTime(15, 7)));
        QCOMPARE(again.NOTEBOOK_DT_DateTimeFormat(),
                 QStringLiteral("05-Jun-2027 ") + FormatTime(QTime(15, 7)));
    }

    void aNoteNeedsADateAndASubject_data() {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("subject");
        QTest::newRow("no date") << ""
                                 << "Subject";
        QTest::newRow("no subject") << "05-Jun-2027"
                                    << "";
    }
    void aNoteNeedsADateAndASubject() {
        QFETCH(QString, date);
        QFETCH(QString, subject);
        clsNOTEBOOK note = Note(date, subject);
        QVERIFY(!RecordIO::Attempt([&] { note.Save(true); }));
        QVERIFY(note.NOTEBOOK_ID.isEmpty());
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QCOMPARE(clsNOTEBOOK().GetTotal(), 0L);
    }

    void attachedFiles() {
        clsNOTEBOOK note = Note("05-Jun-2027", "Contracts");
        note.SetFilePaths({"/docs/venue.pdf", "/docs/dj contract.pdf"});
        note.Save(true);
        clsNOTEBOOK again;
        QVERIFY(again.OpenRecord(note.NOTEBOOK_ID));
        QCOMPARE(again.FILE_PATH_TX, QStringLiteral("/docs/venue.pdf;/docs/dj contract.pdf"));
        QCOMPARE(again.FilePaths(), QStringList({"/docs/venue.pdf", "/docs/dj contract.pdf"}));
        again.SetFilePaths({});
        again.Save(false);
        QCOMPARE(TestDatabase::Scalar("SELECT FILE_PATH_TX IS NULL FROM NOTEBOOK"), QStringLiteral("1"));
    }

};

QTEST_GUILESS_MAIN(tst_clsNOTEBOOK)
#include "tst_clsNOTEBOOK.moc"
