#include "TestDatabase.h"
#include "core/modBackup.h"

#include <QDir>
#include <QFile>
#include <QtTest>
#include <memory>

class tst_modBackup : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    // How many contacts, and the bride's first name.
    static QString Contacts() { return TestDatabase::Scalar(kContacts); }
    static constexpr const char* kContacts = "SELECT COUNT(*) || ' ' || (SELECT FIRST_NM FROM CONTACT WHERE CONTACT_ID = 1) FROM CONTACT";

    static QString BackUp(const QString& tag = {}) {
        const modBackup::Result result = modBackup::WriteRolling(gDB().Connection(), tag);
        if (!result.Ok)
            qFatal("backup: %s", qPrintable(result.Error));
        return result.Path;
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void aBackupIsWholeAndOnlyTheOwnersAndTheOldestGo() {
        QStringList written;
        for (int i = 0; i < 5; ++i)
            written << BackUp();
        QCOMPARE(QSet<QString>(written.begin(), written.end()).size(), 5); // same second, distinct names
        gApp().SetBackupsKept(3);
        written << BackUp();
        const QList<modBackup::Entry> kept = modBackup::List();
        QCOMPARE(kept.size(), 3);
        QCOMPARE(kept.first().Path, written.last());
        QCOMPARE(modBackup::NewestBackup(), written.last());
        QCOMPARE(kept.first().Contacts, 2L);
        QCOMPARE(kept.first().Invitations, 0L);
        // readable and writable by this user, by nobody in the group and nobody else
        QCOMPARE(QFile::permissions(kept.first().Path) & 0x0FFF, QFileDevice::ReadUser | QFileDevice::WriteUser);
        QVERIFY(!modBackup::RollingBackupDue());
    }

    void restorePutsTheCopyBackAfterSavingThePresent() {
        db->Exec("UPDATE CONTACT SET FIRST_NM = 'Ann' WHERE CONTACT_ID = 1");
        const QString copy = BackUp();
        db->Exec("UPDATE CONTACT SET FIRST_NM = 'Changed' WHERE CONTACT_ID = 1");
        db->Exec("DELETE FROM CONTACT WHERE CONTACT_ID = 2");
        const modBackup::Result result = modBackup::Restore(gDB(), copy);
        QVERIFY2(result.Ok, qPrintable(result.Error));
        QCOMPARE(Contacts(), QStringLiteral("2 Ann"));
        QCOMPARE(db->Scalar("PRAGMA integrity_check"), QStringLiteral("ok"));
        QVERIFY(result.Path.contains("before-restore"));
        clsDB before;
        before.DatabasePath = result.Path;
        QVERIFY(before.OpenReadOnly());
        QCOMPARE(before.Execute(kContacts).Scalar(), QStringLiteral("1 Changed"));
    }

    void restoreRefusesWhatIsNotAVowrenCopy_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("says");
        QTest::newRow("a letter") << QByteArray("Dear guests, this is no database.\n").repeated(200) << "damaged";
        QTest::newRow("missing") << QByteArray() << "does not exist";
    }
    void restoreRefusesWhatIsNotAVowrenCopy() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, says);
        const QString path = db->File("not-a-copy.quilldata");
        if (!bytes.isEmpty()) {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(bytes);
        }
        db->Exec("UPDATE CONTACT SET FIRST_NM = 'Kept' WHERE CONTACT_ID = 1");
        const modBackup::Result result = modBackup::Restore(gDB(), path);
        QVERIFY(!result.Ok);
        QVERIFY2(result.Error.contains(says), qPrintable(result.Error));
        QCOMPARE(Contacts(), QStringLiteral("2 Kept"));
        QVERIFY(modBackup::List().isEmpty()); // nothing was written before the refusal
    }

    // A damaged file is never called new: the message names the newest copy to restore.
    void aDamagedFileNamesTheNewestBackup_data() {
        QTest::addColumn<bool>("cutOff");
        QTest::newRow("cut off") << true;
        QTest::newRow("a page overwritten") << false; // found only by the check of the whole file
    }
    void aDamagedFileNamesTheNewestBackup() {
        QFETCH(bool, cutOff);
        db->Exec("WITH RECURSIVE n(i) AS (SELECT 3 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
                 "INSERT INTO CONTACT (CONTACT_ID, NOTES_TX) SELECT i, printf('%0200d', i) FROM n");
        const QString copy = BackUp();
        gDB().CloseConnection();
        QFile file(gDB().DatabasePath);
        QVERIFY(file.open(QIODevice::ReadWrite));
        if (cutOff) {
            QVERIFY(file.resize(file.size() / 2));
        } else {
            file.seek(file.size() / 2 - (file.size() / 2) % 4096);
            file.write(QByteArray(4096, '\x5a'));
        }
        file.close();
        const QByteArray damaged = [&] {
            QFile f(gDB().DatabasePath);
            return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        }();
        QVERIFY(!gDB().OpenConnection());
        const QString told = gDB().OpenError();
        QVERIFY2(told.contains("is damaged") && told.contains(copy), qPrintable(told));
        QVERIFY(!told.contains("new database"));
        QFile after(gDB().DatabasePath);
        QVERIFY(after.open(QIODevice::ReadOnly));
        QCOMPARE(after.readAll(), damaged);
    }

    void aFolderThatCannotBeWrittenGivesAMessage() {
        const modBackup::Result result = modBackup::WriteBackup(gDB().Connection(), db->File("no/such/folder"));
        QVERIFY(!result.Ok);
        QVERIFY(result.Error.contains("does not exist"));
    }
};

QTEST_GUILESS_MAIN(tst_modBackup)
#include "tst_modBackup.moc"
