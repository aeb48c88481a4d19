// The custom reports dialog: the catalogue grouped by category, a query into the SQL tab, what Run
// refuses and writes, and the download of a newer catalogue from a small HTTP server of the test's own,
// bounded in size and time.
#include "TestDatabase.h"
#include "UiTestTools.h"
#include "platform/clsShell.h"
#include "reports/RtfTestTools.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsRTFSQL.h"
#include "reports/clsReportCatalogue.h"
#include "reports/clsSQLCatalogue.h"
#include "reports/modReportRegistry.h"
#include "reports/ui/frmReportsSQL.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/controls/usrHyperlink.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QNetworkProxy>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

using namespace UiTestTools;

namespace {

// Answers every request with the same bytes, or with nothing at all.
class TinyHttpServer {
public:
    explicit TinyHttpServer(QByteArray response) : mResponse(std::move(response)) {
        QVERIFY(mServer.listen(QHostAddress::LocalHost));
        QObject::connect(&mServer, &QTcpServer::newConnection, &mServer, [this] {
            while (QTcpSocket* socket = mServer.nextPendingConnection()) {
                QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                    mRequest += socket->readAll();
                    if (!mRequest.contains("\r\n\r\n") || mResponse.isEmpty())
                        return; // a server that never answers
                    socket->write(mResponse);
                    socket->disconnectFromHost();
                });
            }
        });
    }
    QString Address() const {
        return QStringLiteral("http://127.0.0.1:%1/vowren/sql.xml").arg(mServer.serverPort());
    }

    static QByteArray Answer(const QByteArray& status, const QByteArray& body, bool announceLength = true) {
        QByteArray head = "HTTP/1.1 " + status + "\r\nContent-Type: application/xml\r\nConnection: close\r\n";
        if (announceLength)
            head += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
        return head + "\r\n" + body;
    }

private:
    QTcpServer mServer;
    QByteArray mResponse;
    QByteArray mRequest;
};

QByteArray Catalogue(const QStringList& names) {
    QByteArray text;
    for (const QString& name : names)
        text += "<SQL_ITEM>\r\n<SQL_CATEGORY>Downloaded</SQL_CATEGORY>\r\n<SQL_NAME>" + name.toUtf8() +
                "</SQL_NAME>\r\n<SQL>SELECT 1 AS One</SQL>\r\n</SQL_ITEM>\r\n";
    return text;
}

QStringList QueryNames(QTreeWidget* grid) {
    QStringList names;
    for (int g = 0; g < grid->topLevelItemCount(); ++g) {
        for (int i = 0; i < grid->topLevelItem(g)->childCount(); ++i)
            names << grid->topLevelItem(g)->child(i)->text(0);
    }
    return names;
}

QTreeWidgetItem* QueryRow(QTreeWidget* grid, const QString& name) {
    const QList<QTreeWidgetItem*> found = grid->findItems(name, Qt::MatchExactly | Qt::MatchRecursive, 0);
    return found.isEmpty() ? nullptr : found.first();
}

QString Status(const frmReportsSQL& form) {
    return Child<QLabel>(form, QStringLiteral("lblStatus"))->text();
}

} // namespace

class tst_frmReportsSQL : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> mDb;

    // The dialog as it opens, with the download (if any) bounded to a short time for the tests.
    std::unique_ptr<frmReportsSQL> Open(const QString& address, bool download) {
        gApp().SetCustomReportsURL(address);
        gApp().SetShowDownloadCommand(download);
        auto form = std::make_unique<frmReportsSQL>(nullptr, true);
        form->Download().TimeoutMs = 700;
        return form;
    }

private slots:
    void initTestCase() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
    void init() {
        mDb = std::make_unique<TestDatabase>();
        RegisterReportClasses();
        ReportDialogs::RegisterOwnDialogs();
        gRTFMasterTemp() = clsRTFMasterTemp();
    }
    void cleanup() { mDb.reset(); }

    void listsTheCatalogueByCategory() {
        const auto form = Open(QString(), false);
        auto* grid = Child<QTreeWidget>(*form, QStringLiteral("grid"));
        const clsSQLCatalogue shipped = clsSQLCatalogue::Shipped();
        QStringList categories;
        for (int g = 0; g < grid->topLevelItemCount(); ++g) {
            categories << grid->topLevelItem(g)->text(0);
            QVERIFY(!(grid->topLevelItem(g)->flags() & Qt::ItemIsSelectable));
            for (int i = 0; i < grid->topLevelItem(g)->childCount(); ++i) {
                const QString name = grid->topLevelItem(g)->child(i)->text(0);
                QCOMPARE(shipped.Find(name)->SQL_CATEGORY, categories.last());
            }
        }
        QCOMPARE(categories, shipped.Categories());
        QCOMPARE(QueryNames(grid).size(), shipped.Items.size());
        QVERIFY(grid->isColumnHidden(3));

        // A row shows its description, and its statement broken into lines in the SQL tab.
        grid->setCurrentItem(QueryRow(grid, QStringLiteral("Free seats per table")));
        const clsSQL_XML* item = shipped.Find(QStringLiteral("Free seats per table"));
        QCOMPARE(Child<QPlainTextEdit>(*form, QStringLiteral("txtDesc"))->toPlainText(), item->SQL_DESC);
        const QString sql = Child<QPlainTextEdit>(*form, QStringLiteral("txtSQL"))->toPlainText();
        QVERIFY2(sql.contains(QStringLiteral("\n  FROM DINING_TABLE")), qPrintable(sql));
        QVERIFY(sql.startsWith(QStringLiteral("SELECT ")));

        // The box keeps its setting.
        Toggle(Child<QCheckBox>(*form, QStringLiteral("chkDownload")));
        QVERIFY(gApp().ShowDownloadCommand());
    }

    void runWritesTheChosenQuery() {
        const auto form = Open(QString(), false);
        auto* grid = Child<QTreeWidget>(*form, QStringLiteral("grid"));
        QTreeWidgetItem* row = QueryRow(grid, QStringLiteral("Free seats per table"));
        grid->setCurrentItem(row);
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdRun")), Qt::LeftButton);
        const QString file = form->WrittenFile();
        QVERIFY(QFileInfo(file).fileName().startsWith(QStringLiteral("99_Custom_")));
        const QString text = RtfTestTools::DecodeRtf(QString::fromUtf8(RtfTestTools::FileBytes(file))).Text;
        QVERIFY(text.contains(QStringLiteral("Free seats per table")));
        QVERIFY(text.contains(QStringLiteral("Seated")));
        QCOMPARE(mDb->Messages().Prompts, QStringList());
    }

    void runRefusesAndSaysWhy_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("says");
        QTest::newRow("not a select") << "DELETE FROM CONTACT"
                                      << "SQL must be a 'SELECT' statement.";
        QTest::newRow("the engine's words") << "select * from NOWHERE"
                                            << "no such table: NOWHERE";
    }
    void runRefusesAndSaysWhy() {
        QFETCH(QString, sql);
        QFETCH(QString, says);
        const auto form = Open(QString(), false);
        Child<QPlainTextEdit>(*form, QStringLiteral("txtSQL"))->setPlainText(sql);
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdRun")), Qt::LeftButton);
        const clsCapturingMessageSink& messages = mDb->Messages();
        QCOMPARE(messages.Prompts.size(), 1);
        QVERIFY2(messages.Prompts.first().contains(says), qPrintable(messages.Prompts.first()));
        QCOMPARE(messages.Titles.first(), QStringLiteral("Vowren"));
        QCOMPARE(form->WrittenFile(), QString());
        QCOMPARE(QDir(gApp().ReportPath()).entryList(QDir::Files), QStringList());
        QCOMPARE(mDb->Scalar("SELECT COUNT(*) FROM CONTACT"), QStringLiteral("2"));
    }

    void downloadsWithinItsBounds_data() {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<bool>("kept");
        QTest::addColumn<QString>("status");
        using S = TinyHttpServer;
        const QByteArray huge(clsSQLCatalogue::MaxBytes + 4096, 'x');
        QTest::newRow("a catalogue") << S::Answer("200 OK", Catalogue({"First", "Second"})) << true
                                     << "2 custom reports downloaded from 127.0.0.1.";
        QTest::newRow("too big, announced")
            << S::Answer("200 OK", huge) << false << "is larger than 1,024 KB";
        QTest::newRow("too big, unannounced")
            << S::Answer("200 OK", huge, false) << false << "is larger than 1,024 KB";
        QTest::newRow("too slow") << QByteArray() << false << "took longer than 0.7 seconds";
        QTest::newRow("not found") << S::Answer("404 Not Found", "") << false << "answered 404 Not Found";
        QTest::newRow("not a catalogue")
            << S::Answer("200 OK", "<html>Moved</html>") << false << "was not kept: it holds no query";
    }
    void downloadsWithinItsBounds() {
        QFETCH(QByteArray, answer);
        QFETCH(bool, kept);
        QFETCH(QString, status);
        TinyHttpServer server(answer);
        const auto form = Open(server.Address(), true);
        QSignalSpy finished(&form->Download(), &clsCatalogueDownload::Finished);
        QVERIFY(finished.wait(5000));
        QVERIFY2(Status(*form).contains(status), qPrintable(Status(*form)));
        QCOMPARE(finished.first().first().toBool(), kept);
        QCOMPARE(QFileInfo::exists(clsSQLCatalogue::KeptPath()), kept);
        const QStringList names = QueryNames(Child<QTreeWidget>(*form, QStringLiteral("grid")));
        QCOMPARE(names.size() == 2, kept);
        QVERIFY(Child<QPushButton>(*form, QStringLiteral("cmdDownload"))->isEnabled());
    }

    void theWindowGoesOnWhileItDownloads() {
        TinyHttpServer silent{QByteArray()};
        auto form = Open(silent.Address(), false);
        form->Download().TimeoutMs = 2000;
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdDownload")), Qt::LeftButton);
        QVERIFY(form->Download().IsRunning());
        QVERIFY(!Child<QPushButton>(*form, QStringLiteral("cmdDownload"))->isEnabled());
        QVERIFY(Status(*form).startsWith(QStringLiteral("Downloading the custom reports from 127.0.0.1")));
        // The list can be used meanwhile: a query is chosen and run.
        auto* grid = Child<QTreeWidget>(*form, QStringLiteral("grid"));
        grid->setCurrentItem(QueryRow(grid, QStringLiteral("Meals per table")));
        QTest::mouseClick(Child<QPushButton>(*form, QStringLiteral("cmdRun")), Qt::LeftButton);
        QVERIFY(!form->WrittenFile().isEmpty());
        QTest::qWait(100);
        QVERIFY(form->Download().IsRunning());
        // Closed before the answer: the transfer goes with the window, and nothing is kept.
        form.reset();
        QTest::qWait(100);
        QVERIFY(!QFileInfo::exists(clsSQLCatalogue::KeptPath()));
    }

    void saysWhatTheCatalogueLeftOut() {
        QFile kept(clsSQLCatalogue::KeptPath());
        QVERIFY(kept.open(QIODevice::WriteOnly));
        kept.write(Catalogue({"Whole"}) + "<SQL_ITEM>\r\n<SQL_NAME>Cut</SQL_NAME>\r\n");
        kept.close();
        const auto form = Open(QString(), false);
        QCOMPARE(QueryNames(Child<QTreeWidget>(*form, QStringLiteral("grid"))), QStringList{"Whole"});
        QVERIFY2(Status(*form).startsWith(QStringLiteral("1 custom report. The catalogue has 1 problem")),
                 qPrintable(Status(*form)));
        QVERIFY(Status(*form).contains(QStringLiteral("ends inside the query \"Cut\"")));
    }

    void theForumLinkOpensTheCustomReportsTopic() {
        const auto form = Open(QString(), false);
        QStringList opened;
        gShell().SetOpener([&opened](const QString& target) {
            opened << target;
            return true;
        });
        qunsetenv("VOWREN_NO_OPEN");
        QTest::keyClick(Child<usrHyperlink>(*form, QStringLiteral("linkForum")), Qt::Key_Space);
        qputenv("VOWREN_NO_OPEN", "1");
        gShell().SetOpener(nullptr);
        QCOMPARE(opened, QStringList{gApp().ForumsURL() + QStringLiteral("/forum_topics.asp?FID=12")});
    }

    void theReportScreenOffersIt() {
        const QList<clsReportCatalogue::FilterRow> rows =
            clsReportCatalogue::FilterRows(clsReportCatalogue::Custom);
        const clsReportRoute route = clsReportCatalogue::Route(clsReportCatalogue::Custom, rows, 0);
        QCOMPARE(route.Dialog, QStringLiteral("frmReportsSQL"));
        QVERIFY(ReportDialogs::RouteAvailable(route));
    }

    void saysWhenItCannotDownload_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("status");
        QTest::newRow("no address") << ""
                                    << "No address is set for the custom reports";
        QTest::newRow("not a web address") << "ftp://example.org/sql.xml"
                                           << "is not a web address";
        QTest::newRow("nobody there") << "closed"
                                      << "could not be reached";
    }
    void saysWhenItCannotDownload() {
        QFETCH(QString, address);
        QFETCH(QString, status);
        if (address == QLatin1String("closed")) {
            QTcpServer gone;
            QVERIFY(gone.listen(QHostAddress::LocalHost));
            address = QStringLiteral("http://127.0.0.1:%1/sql.xml").arg(gone.serverPort());
        }
        const auto form = Open(address, true);
        QSignalSpy finished(&form->Download(), &clsCatalogueDownload::Finished);
        QVERIFY(finished.wait(5000));
        QVERIFY2(Status(*form).contains(status), qPrintable(Status(*form)));
        QCOMPARE(QueryNames(Child<QTreeWidget>(*form, QStringLiteral("grid"))).size(),
                 clsSQLCatalogue::Shipped().Items.size());
    }
};

QTEST_MAIN(tst_frmReportsSQL)
#include "tst_frmReportsSQL.moc"
