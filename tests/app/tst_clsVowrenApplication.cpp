// A failure of the database that no screen caught must not end the program: the application object
// shows it and the event loop goes on.
#include "TestHome.h"
#include "app/clsVowrenApplication.h"
#include "core/clsDB.h"

#include <QtTest>

class tst_clsVowrenApplication : public QObject {
    Q_OBJECT

private slots:
    void aFailureThatLeavesAnEventHandlerIsShownAndTheLoopGoesOn() {
        TestHome home;
        QObject receiver;
        bool after = false;
        QMetaObject::invokeMethod(
            &receiver, [] { throw clsDbError(QStringLiteral("disk I/O error"), 10); }, Qt::QueuedConnection);
        QMetaObject::invokeMethod(
            &receiver, [&after] { after = true; }, Qt::QueuedConnection);
        QCoreApplication::processEvents();
        QCOMPARE(home.Messages().Prompts, QStringList{QStringLiteral("disk I/O error")});
        QVERIFY(after);
    }
};

int main(int argc, char** argv) {
    clsVowrenApplication app(argc, argv);
    tst_clsVowrenApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_clsVowrenApplication.moc"
