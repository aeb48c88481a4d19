// The import of contacts driven like a person would, from the Contacts page's link to the database.
#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/clsApp.h"
#include "guests/ui/clsImportPreviewModel.h"
#include "guests/ui/frmContactImport.h"
#include "guests/ui/frmContactImportCSV.h"
#include "guests/ui/frmContactImportDashboard.h"
#include "guests/ui/frmContactImportDuplicate.h"
#include "guests/ui/frmImportCSVDelimiter.h"
#include "guests/ui/frmMain_01_Contacts.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/usrGrid.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QtTest>

using UiTestTools::Child;

namespace {

// Runs the work on the next modal dialog of this kind, once it is up.
template <class T> void WhenShown(std::function<void(T*)> work) {
    auto* timer = new QTimer;
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, [timer, work] {
        if (auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            work(dialog);
        }
    });
    timer->start();
}

void Click(QWidget* parent, const char* name) {
    QTest::mouseClick(Child<QWidget>(parent, QLatin1String(name)), Qt::LeftButton);
}

QString Text(QWidget* parent, const char* name) {
    return Child<QLabel>(parent, QLatin1String(name))->text();
}

QString Scalar(const char* sql) {
    return TestDatabase::Scalar(QLatin1String(sql));
}

} // namespace

class tst_ContactImportDialogs : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> mDatabase;
    QString mFile;

private slots:
    void init() {
        mDatabase = std::make_unique<TestDatabase>();
        mFile = QDir(gApp().TemplatePath()).filePath(QStringLiteral("my guests.csv"));
        QDir().mkpath(gApp().TemplatePath());
        QFile file(mFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("Title;First Name;Last Name;E-mail Address;Home Postal Code;RSVP ID\r\n"
                   "Mr.;John;Smith;js@x.example;1970;9\r\n"
                   "Mrs.;Mary;Smith;;;9\r\n"
                   ";\"Zo\xC3\xAB; \"\"Z\"\"\";Lee;;;\r\n");
        file.close();
        frmContactImportDashboard::SetFileChooser(
            [this](QWidget*, const QString&, const QString&) { return mFile; });
        gApp().SetDelimiter(QStringLiteral(","));
    }
    void cleanup() {
        frmContactImportDashboard::SetFileChooser({});
        mDatabase.reset();
    }

    // From the page's link through the dashboard, the mapping (with a change of delimiter) and the
    // preview to the database, and the new rows on the page.
    void importFromTheContactsPage() {
        frmMain_01_Contacts page;
        page.LoadNow();
        const int rowsBefore = page.Grid()->Model()->rowCount();
        bool previewSeen = false;
        WhenShown<frmContactImportDashboard>([](frmContactImportDashboard* d) {
            QVERIFY(Child<QRadioButton>(d, "opt_0")->isChecked());
            Click(d, "cmdContinue");
        });
        WhenShown<frmContactImportCSV>([](frmContactImportCSV* d) {
            Click(d, "link"); // read with commas: one column only, nothing to go on
            QCOMPARE(Child<QComboBox>(d, "usr_1")->currentText(), QString());
            WhenShown<frmImportCSVDelimiter>([](frmImportCSVDelimiter* delimiter) {
                Child<QComboBox>(delimiter, "cboDelimiter")->setCurrentIndex(1);
                Click(delimiter, "cmdSave");
            });
            Click(d, "linkDelimiter");
            QCOMPARE(Child<usrHyperlink>(d, "linkDelimiter")->Caption(), QStringLiteral("Delimiter = ;"));
            QCOMPARE(Child<QComboBox>(d, "usr_1")->currentText(), QStringLiteral("First Name"));
            QCOMPARE(Child<QComboBox>(d, "usr_8")->currentText(), QStringLiteral("Home Postal Code"));
            // Nothing suggests a column for the middle name: its row is grey.
            QCOMPARE(Child<QTableWidget>(d, "grid")->item(2, 0)->background().color(), QColor(242, 242, 242));
            Child<QComboBox>(d, "usr_1")->setCurrentText(QString()); // first names not taken ...
            QTRY_COMPARE(Child<QComboBox>(d, "usr_2")->findText(QStringLiteral("First Name")), 1);
            Child<QComboBox>(d, "usr_1")->setCurrentText(QStringLiteral("First Name")); // ... after all
            QTRY_COMPARE(clsIMPORT_FIELD::GetIMPORT_FIELD_NM("FIRST_NM"), QStringLiteral("First Name"));
            Click(d, "cmdContinue");
        });
        WhenShown<frmContactImport>([&previewSeen](frmContactImport* d) {
            previewSeen = true;
            QCOMPARE(d->windowTitle(), QStringLiteral("Load Contacts from CSV"));
            QCOMPARE(Text(d, "lblCount"), QStringLiteral("3 of 3"));
            Click(d, "linkAction_1");
            QCOMPARE(Text(d, "lblCount"), QStringLiteral("0 of 3"));
            Click(d, "linkAction_2");
            QCOMPARE(Text(d, "lblCount"), QStringLiteral("3 of 3"));
            d->Model()->setData(d->Model()->index(2, clsImportPreviewModel::ICO), Qt::Unchecked,
                                Qt::CheckStateRole);
            QCOMPARE(Text(d, "lblCount"), QStringLiteral("2 of 3"));
            QCOMPARE(d->Model()->index(0, clsImportPreviewModel::Name).data().toString(),
                     QStringLiteral("Smith, John"));
            QVERIFY(Child<QCheckBox>(d, "chk5Digit")->isChecked());
            Click(d, "cmdImport");
        });
        Click(&page, "linkAction_4");
        QVERIFY(previewSeen);
        QCOMPARE(Scalar("SELECT group_concat(FIRST_NM) FROM CONTACT WHERE LAST_NM = 'Smith'"),
                 QStringLiteral("John,Mary"));
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE LAST_NM = 'Lee'"), QStringLiteral("0"));
        QCOMPARE(Scalar("SELECT ADDRESS_TX FROM CONTACT WHERE FIRST_NM = 'John'"), QStringLiteral("01970"));
        QCOMPARE(Scalar("SELECT OUTER_ENVELOPE_TX FROM INVITE WHERE INVITE_RSVP_ID = '9'"),
                 QStringLiteral("Mr. and Mrs. John Smith"));
        QCOMPARE(page.Grid()->Model()->rowCount(), rowsBefore + 2);
    }

    // The same file again: the duplicate warning counts the rows, is turned off, and replacing keeps the
    // number of contacts.
    void aSecondImportFindsTheDuplicates() {
        gApp().SetDelimiter(QStringLiteral(";"));
        for (int round = 0; round < 2; ++round) {
            bool warned = false;
            if (round == 1) {
                WhenShown<frmContactImportDuplicate>([&warned](frmContactImportDuplicate* d) {
                    warned = true;
                    QCOMPARE(Text(d, "lblCount"), QStringLiteral("3 duplicate records found"));
                    Child<QCheckBox>(d, "chkDontShow")->setChecked(true);
                    Click(d, "cmdOK");
                });
            }
            frmContactImportCSV mapping;
            QVERIFY(mapping.LoadFile(mFile));
            frmContactImport preview;
            QVERIFY(preview.Load(mapping.Table(), true));
            QAbstractItemModelTester tester(preview.Model(),
                                            QAbstractItemModelTester::FailureReportingMode::QtTest);
            QCOMPARE(preview.Model()->DuplicateCount(), round == 0 ? 0 : 3);
            QVERIFY(Child<QRadioButton>(&preview, "opt_1")->isChecked());
            QTimer::singleShot(0, &preview, [&preview, &warned, round] {
                if (round == 1)
                    QTRY_VERIFY(warned);
                Click(&preview, "cmdImport");
            });
            preview.exec();
            QCOMPARE(warned, round == 1);
            QCOMPARE(preview.Result().Replaced, round == 0 ? 0 : 3);
        }
        QVERIFY(!gApp().ShowDuplicateWarning());
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE LAST_NM IN ('Smith', 'Lee')"),
                 QStringLiteral("3"));
        QCOMPARE(Scalar("SELECT FIRST_NM FROM CONTACT WHERE LAST_NM = 'Lee'"),
                 QString::fromUtf8("Zoë; \"Z\""));
    }

    // The vCard route skips the mapping: the file chosen goes straight to the preview.
    void importVCardsFromTheDashboard() {
        QFile file(mFile);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("BEGIN:VCARD\r\nVERSION:3.0\r\nN:Okafor;Ada;;;\r\nEMAIL:ada@x.example\r\nEND:VCARD\r\n");
        file.close();
        frmContactImportDashboard dashboard;
        Child<QRadioButton>(&dashboard, "opt_1")->setChecked(true);
        bool imported = false;
        connect(&dashboard, &frmContactImportDashboard::Imported, this, [&imported] { imported = true; });
        WhenShown<frmContactImport>([](frmContactImport* d) {
            QCOMPARE(d->windowTitle(), QStringLiteral("Load Contacts from vCard"));
            QCOMPARE(Text(d, "lblCount"), QStringLiteral("1 of 1"));
            Click(d, "cmdImport");
        });
        QVERIFY(dashboard.Continue());
        QVERIFY(imported);
        QCOMPARE(Scalar("SELECT EMAIL_TX FROM CONTACT WHERE LAST_NM = 'Okafor'"),
                 QStringLiteral("ada@x.example"));
    }

    void theTemplateHoldsTheCaptions() {
        frmContactImportDashboard dashboard;
        Click(&dashboard, "linkTemplate");
        QFile file(QDir(gApp().TemplatePath()).filePath(QStringLiteral("Contacts.csv")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith(
            "\xEF\xBB\xBF\"Title\",\"First Name *\",\"Middle Name\",\"Last Name *\""));
    }
};

QTEST_MAIN(tst_ContactImportDialogs)
#include "tst_ContactImportDialogs.moc"
