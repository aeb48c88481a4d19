// The frame knows no subsystem: every screen reaches it through the registrations the program makes at
// start. These check that the wiring leads where the user expects.
#include "TestDatabase.h"
#include "app/modKnownScreens.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"
#include "shell/usrListPage.h"

#include <QtTest>

class tst_KnownScreens : public QObject {
    Q_OBJECT

private slots:
    void init() {
        modPages::Clear();
        RegisterKnownScreens();
    }
    void cleanup() { modPages::Clear(); }

    void printingFromAPageOpensItsReportSection_data() {
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("section");
        QTest::newRow("contacts") << 1 << int(clsReportCatalogue::Contacts);
        QTest::newRow("invitations") << 2 << int(clsReportCatalogue::Invitations);
        QTest::newRow("replies") << 3 << int(clsReportCatalogue::RSVPs);
        QTest::newRow("attendees") << 4 << int(clsReportCatalogue::Attendees);
        QTest::newRow("checklist") << 6 << int(clsReportCatalogue::Checklist);
        QTest::newRow("notebook") << 10 << int(clsReportCatalogue::Notebook);
    }

    void printingFromAPageOpensItsReportSection() {
        QFETCH(int, page);
        QFETCH(int, section);
        TestDatabase db;
        QList<int> asked;
        modPages::RegisterReports([&asked](QWidget*, int sectionKey, int filterIndex) {
            asked = {sectionKey, filterIndex};
        });
        std::unique_ptr<usrPage> made(modPages::CreatePage(page, nullptr));
        auto* list = qobject_cast<usrListPage*>(made.get());
        QVERIFY(list);
        list->LoadNow();
        usrHyperlink* print = nullptr;
        for (usrHyperlink* link : list->findChildren<usrHyperlink*>())
            if (link->Caption() == QLatin1String("Print reports"))
                print = link;
        QVERIFY(print);
        QTest::mouseClick(print, Qt::LeftButton);
        QCOMPARE(asked, (QList<int>{section, list->CurrentFilter()}));
    }

    void everyBuiltScreenIsPluggedIn() {
        TestDatabase db;
        for (int index : {0, 1, 2, 3, 4, 13, 99})
            QVERIFY2(modPages::IsAvailable(index), qPrintable(modPages::FormName(index)));
        for (const char* dialog : {"frmBackup", "frmReports", "frmCaptureMap"})
            QVERIFY2(modPages::HasDialog(QLatin1String(dialog)), dialog);
        for (const QString& subPage : {modPages::HotelsSubPage(), modPages::FlightsSubPage()})
            QVERIFY2(modPages::HasSubPage(subPage), qPrintable(subPage));
        std::unique_ptr<usrPage> welcome(modPages::CreateWelcome(nullptr));
        QVERIFY(welcome);
        QCOMPARE(welcome->objectName(), QStringLiteral("frmMain_00_Welcome"));
    }
};

QTEST_MAIN(tst_KnownScreens)
#include "tst_KnownScreens.moc"
