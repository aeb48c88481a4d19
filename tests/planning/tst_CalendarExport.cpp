#include "PlanningTestTools.h"
#include "planning/clsEVENT.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "planning/modCalendarExport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>
#include <memory>

namespace C = modCalendarExport;

namespace {

// Text that has broken calendar files before: the separators of the format, quotes, a backslash, line
// breaks, markup and other scripts.
const QString kNasty =
    QStringLiteral("Toast; \"Cheers\", \\o/ <script>alert(1)</script>\r\nΧαίρετε — 乾杯 🥂");

// Parses the file with vobject, validates it, and gives each VEVENT's values by UID; an empty object when
// no Python with vobject is there (the reason in *missing).
QJsonObject ReadWithVobject(const QString& path, QString* missing) {
    static const char* script = R"(
import json, sys, vobject
events = {}
with open(sys.argv[1], newline='') as f:
    for cal in vobject.readComponents(f.read()):
        cal.validate()
        for ev in cal.vevent_list:
            get = lambda name: ev.contents[name][0].value if name in ev.contents else None
            events[get('uid')] = {k: str(get(k)) for k in ('summary', 'description', 'dtstart', 'dtend', 'sequence', 'location', 'dtstamp')}
print(json.dumps(events))
)";
    for (const QString& python : {QStringLiteral("python3"), QStringLiteral("/usr/bin/python3")}) {
        QProcess probe;
        probe.start(python, {QStringLiteral("-c"), QStringLiteral("import vobject")});
        if (!probe.waitForFinished(30000) || probe.exitCode() != 0)
            continue;
        QProcess run;
        run.start(python, {QStringLiteral("-c"), QLatin1String(script), path});
        run.waitForFinished(60000);
        if (run.exitCode() != 0) {
            *missing =
                QStringLiteral("vobject refused the file: ") + QString::fromUtf8(run.readAllStandardError());
            return {{QStringLiteral("refused"), true}};
        }
        return QJsonDocument::fromJson(run.readAllStandardOutput()).object();
    }
    *missing = QStringLiteral("no Python 3 with vobject (python3-vobject) is installed");
    return {};
}

QByteArray FileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void AddTask(const QString& name, const QString& due, const QString& completed) {
    clsTASK task;
    task.TASK_NM = name;
    task.TASK_GROUP_ID = QStringLiteral("3");
    task.DUE_DT = due;
    task.COMPLETED_FG = completed;
    task.Save(true);
}

} // namespace

class tst_CalendarExport : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    QString Export(const QString& name = QStringLiteral("wedding.ics")) {
        const QString path = db->File(name);
        QString error;
        const int written = C::Export(path, &error);
        if (written < 0)
            qWarning("%s", qPrintable(error));
        return path;
    }

    // A wedding with a timed event, a day-only event, two timeline entries (one a moment), and tasks
    // open and done, with and without a due date.
    void FillWedding() {
        TestDatabase::Exec(QStringLiteral("DELETE FROM TIMELINE"));
        TestDatabase::Exec(QStringLiteral("DELETE FROM TASK"));
        TestDatabase::Exec(QStringLiteral("DELETE FROM EVENT"));
        AddTestEvent(QStringLiteral("1"), QStringLiteral("Wedding"), QStringLiteral("05-Jun-2027 3:30 PM"),
                     kNasty);
        AddTestEvent(QStringLiteral("2"), kNasty, QStringLiteral("2027-06-04 18:00:00"));
        AddTestEntry(QStringLiteral("1"), QStringLiteral("Ceremony"), QStringLiteral("05-Jun-2027 3:30 PM"),
                     QStringLiteral("05-Jun-2027 4:00 PM"));
        AddTestEntry(QStringLiteral("1"), QStringLiteral("Sparklers"), QStringLiteral("05-Jun-2027 11:30 PM"),
                     QStringLiteral("05-Jun-2027 11:30 PM"));
        AddTestEntry(QStringLiteral("1"), QStringLiteral("Last dance"),
                     QStringLiteral("05-Jun-2027 11:30 PM"), QStringLiteral("06-Jun-2027 12:00 AM"));
        AddTask(QStringLiteral("Order the cake"), QStringLiteral("01-May-2027"), QStringLiteral("N"));
        AddTask(QStringLiteral("Book the band"), QStringLiteral("01-Mar-2027"), QStringLiteral("Y"));
        AddTask(QStringLiteral("Write the vows"), QString(), QStringLiteral("N"));
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void textIsEscaped_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("escaped");
        QTest::newRow("separators") << "a,b;c"
                                    << "a\\,b\\;c";
        QTest::newRow("backslash first") << "C:\\new"
                                         << "C:\\\\new";
        QTest::newRow("line ends of any kind") << "one\r\ntwo\nthree\rfour"
                                               << "one\\ntwo\\nthree\\nfour";
        QTest::newRow("control characters dropped, tab kept") << QStringLiteral("a\x01\tb") << "a\tb";
        QTest::newRow("quotes and other scripts as they are") << "\"Χαίρετε\" 乾杯"
                                                              << "\"Χαίρετε\" 乾杯";
    }
    void textIsEscaped() {
        QFETCH(QString, text);
        QFETCH(QString, escaped);
        QCOMPARE(C::EscapeText(text), escaped);
    }

    void longLinesAreFolded_data() {
        QTest::addColumn<QString>("line");
        QTest::newRow("exactly 75 octets") << QString(75, QLatin1Char('x'));
        QTest::newRow("ASCII") << QStringLiteral("DESCRIPTION:") + QString(300, QLatin1Char('a'));
        QTest::newRow("two-byte characters") << QStringLiteral("SUMMARY:") + QString(120, QChar(0x00E9));
        QTest::newRow("four-byte characters")
            << QStringLiteral("SUMMARY:") + QString::fromUtf8("🥂").repeated(60);
    }
    void longLinesAreFolded() {
        QFETCH(QString, line);
        const QByteArray folded = C::FoldLine(line);
        QVERIFY(folded.endsWith("\r\n"));
        const QList<QByteArray> lines = folded.chopped(2).split('\n');
        for (QByteArray piece : lines) {
            if (piece.endsWith('\r'))
                piece.chop(1);
            QVERIFY2(piece.size() <= 75, piece.constData());
            // No piece starts or ends inside a character.
            QVERIFY(!QString::fromUtf8(piece).contains(QChar::ReplacementCharacter));
        }
        QCOMPARE(QString::fromUtf8(QByteArray(folded).replace("\r\n ", "").chopped(2)), line);
    }

    void everyDateGoesIntoTheFile() {
        FillWedding();
        const QString path = Export();
        const QByteArray bytes = FileBytes(path);
        QVERIFY(!bytes.isEmpty());
        // Every line ends in CR LF.
        QCOMPARE(bytes.count("\n"), bytes.count("\r\n"));
        QString missing;
        const QJsonObject events = ReadWithVobject(path, &missing);
        if (events.contains(QStringLiteral("refused")))
            QFAIL(qPrintable(missing));
        if (events.isEmpty())
            QSKIP(qPrintable(missing));
        const QStringList uids = events.keys();
        QCOMPARE(QSet<QString>(uids.begin(), uids.end()),
                 (QSet<QString>{"EVENT-1@vowren", "EVENT-2@vowren", "TIMELINE-1@vowren", "TIMELINE-2@vowren",
                                "TIMELINE-3@vowren", "TASK-1@vowren"}));
        const QJsonObject wedding = events.value("EVENT-1@vowren").toObject();
        QCOMPARE(wedding.value("summary").toString(), QStringLiteral("Wedding"));
        // The user's text survives whole, line break and all.
        QCOMPARE(wedding.value("description").toString(), QString(kNasty).replace("\r\n", "\n"));
        QCOMPARE(events.value("EVENT-2@vowren").toObject().value("summary").toString(),
                 QString(kNasty).replace("\r\n", "\n"));
        QCOMPARE(wedding.value("dtstart").toString(),
                 QDateTime(QDate(2027, 6, 5), QTime(15, 30)).toUTC().toString("yyyy-MM-dd HH:mm:ss+00:00"));
        QCOMPARE(events.value("EVENT-2@vowren").toObject().value("dtstart").toString(),
                 QDateTime(QDate(2027, 6, 4), QTime(18, 0)).toUTC().toString("yyyy-MM-dd HH:mm:ss+00:00"));
        const QJsonObject ceremony = events.value("TIMELINE-1@vowren").toObject();
        QCOMPARE(ceremony.value("dtend").toString(),
                 QDateTime(QDate(2027, 6, 5), QTime(16, 0)).toUTC().toString("yyyy-MM-dd HH:mm:ss+00:00"));
        QCOMPARE(events.value("TIMELINE-2@vowren").toObject().value("dtend").toString(),
                 QStringLiteral("None"));
        // An entry that ends at midnight ends at that moment, not on a day.
        QCOMPARE(events.value("TIMELINE-3@vowren").toObject().value("dtend").toString(),
                 QDateTime(QDate(2027, 6, 6), QTime(0, 0)).toUTC().toString("yyyy-MM-dd HH:mm:ss+00:00"));
        const QJsonObject cake = events.value("TASK-1@vowren").toObject();
        QCOMPARE(cake.value("summary").toString(), QStringLiteral("Due: Order the cake"));
        QCOMPARE(cake.value("dtstart").toString(), QStringLiteral("2027-05-01"));
        QCOMPARE(cake.value("dtend").toString(), QStringLiteral("2027-05-02"));
        for (const QString& uid : uids)
            QVERIFY2(events.value(uid).toObject().value("dtstamp").toString().endsWith("+00:00"),
                     qPrintable(uid));
    }

    // Keys stay, and only what changed since the last export counts up.
    void aSecondExportRaisesTheSequenceOfWhatChanged() {
        FillWedding();
        const auto sequences = [](const QString& path) {
            QMap<QString, QString> found;
            QString uid;
            for (const QByteArray& line : FileBytes(path).split('\n')) {
                const QString text = QString::fromUtf8(line).trimmed();
                if (text.startsWith("UID:"))
                    uid = text.mid(4);
                else if (text.startsWith("SEQUENCE:"))
                    found.insert(uid, text.mid(9));
            }
            return found;
        };
        const QMap<QString, QString> first = sequences(Export());
        QCOMPARE(first.value("EVENT-1@vowren"), QStringLiteral("0"));
        QCOMPARE(sequences(Export()), first);

        TestDatabase::Exec("UPDATE EVENT SET NOTES_TX = 'Rain plan: the oak room' WHERE EVENT_ID = 1");
        const QMap<QString, QString> second = sequences(Export(QStringLiteral("again.ics")));
        QCOMPARE(second.value("EVENT-1@vowren"), QStringLiteral("1"));
        QCOMPARE(second.value("EVENT-2@vowren"), QStringLiteral("0"));
        QCOMPARE(second.value("TIMELINE-1@vowren"), QStringLiteral("0"));
        QCOMPARE(second.keys(), first.keys());
    }

    void anUnwritableFileIsReportedAndLeavesTheMemory() {
        FillWedding();
        Export();
        const QByteArray memory = FileBytes(C::MemoryPath());
        TestDatabase::Exec("UPDATE EVENT SET EVENT_TX = 'Changed' WHERE EVENT_ID = 1");
        QString error;
        QCOMPARE(C::Export(db->File("no/such/folder/x.ics"), &error), -1);
        QVERIFY(!error.isEmpty());
        QCOMPARE(FileBytes(C::MemoryPath()), memory);
    }
};

QTEST_GUILESS_MAIN(tst_CalendarExport)
#include "tst_CalendarExport.moc"
