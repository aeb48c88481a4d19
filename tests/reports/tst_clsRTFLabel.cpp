#include "TestDatabase.h"
#include "guests/clsCONTACT.h"
#include "reports/GuestReportTestData.h"
#include "reports/RtfTestTools.h"
#include "reports/clsRTFLabel.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modLabels.h"

#include <QRegularExpression>
#include <QtTest>

// A sheet of labels as a table: which label stands in which cell, and which address each section
// offers. Where the labels land on paper is tested with real PDF readers in
// tst_LabelSheetGeometry.
namespace {

using C = clsReportCatalogue;

// The rows of the document, each as its label cells' texts joined by "|" (the gaps left out).
QStringList LabelRows(const QString& rtf) {
    static const QRegularExpression cell(
        QStringLiteral(R"re(\\intbl\\qc\\cf0\\sb30\\sa30 (.*?)\\cell\\pard)re"));
    QStringList rows;
    const QStringList parts = rtf.split(QStringLiteral("\\trowd"));
    for (qsizetype i = 1; i < parts.size(); ++i) {
        QStringList texts;
        int position = 0;
        for (auto it = cell.globalMatch(parts[i]); it.hasNext(); ++position) {
            const QString text = it.next().captured(1);
            if (position % 2 == 0)
                texts << text;
            else if (!text.isEmpty())
                texts << QStringLiteral("<gap:") + text + QLatin1Char('>');
        }
        rows << texts.join(QLatin1Char('|'));
    }
    return rows;
}

QList<clsLabel> Labels(const QMap<int, QString>& texts) {
    QList<clsLabel> labels;
    for (auto it = texts.begin(); it != texts.end(); ++it)
        labels.append({QString::number(it.key()), it.value()});
    return labels;
}

} // namespace

class tst_clsRTFLabel : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    QString Written(int sheet, const QList<clsLabel>& labels) {
        clsRTFMasterTemp settings;
        settings.USE_RTF = false; // the last report was CSV: labels are RTF all the same
        clsRTFLabel writer(settings);
        writer.Sheet = sheet;
        writer.Labels = labels;
        const QString file = writer.Build();
        if (!QFileInfo(file).fileName().startsWith(QLatin1String("Labels_")) || !file.endsWith(".rtf"))
            return {};
        return QString::fromLatin1(RtfTestTools::FileBytes(file));
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void labelsStandInTheirCells_data() {
        QTest::addColumn<int>("sheet");
        QTest::addColumn<QList<clsLabel>>("labels");
        QTest::addColumn<QStringList>("rows");
        const int letter = clsLabelSheet::Avery8160;
        const int a4 = clsLabelSheet::AveryL7160;
        QTest::newRow("only label 5: a row of empty labels, then the middle one")
            << letter << Labels({{5, "Five"}}) << QStringList{"||", "|Five"};
        QTest::newRow("a full row and one more")
            << letter << Labels({{1, "A"}, {2, "B"}, {3, "C"}, {4, "D"}}) << QStringList{"A|B|C", "D"};
        QTest::newRow("given out of order") << letter << Labels({{3, "C"}, {1, "A"}}) << QStringList{"A||C"};
        QStringList toTwentyTwo(7, QStringLiteral("||"));
        toTwentyTwo << QStringLiteral("Twenty-two");
        QTest::newRow("label 22 on A4: the eighth row, the first of page two")
            << a4 << Labels({{22, "Twenty-two"}}) << toTwentyTwo;
        QTest::newRow("lines of a label")
            << a4 << Labels({{1, "Ann Lee\r\n12 Oak St"}}) << QStringList{"Ann Lee \\par 12 Oak St"};
        QTest::newRow("any script, markup as text")
            << letter << Labels({{1, QStringLiteral("Zoë 結婚式 {\\b x}")}})
            << QStringList{"Zo\\u235\\'eb \\u32080\\'3f\\u23130\\'3f\\u24335\\'3f \\{\\\\b x\\}"};
    }
    void labelsStandInTheirCells() {
        QFETCH(int, sheet);
        QFETCH(QList<clsLabel>, labels);
        QFETCH(QStringList, rows);
        const QString rtf = Written(sheet, labels);
        QVERIFY(!rtf.isEmpty());
        QCOMPARE(LabelRows(rtf), rows);
    }

    // Each section's addresses carry the name above the address, in the source's order.
    void addressesOfTheSections() {
        GuestReportTestData::MakeSmallWedding();
        TestDatabase::Exec(
            "INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM, CONTACT_NM, ADDRESS_TX, VENDOR_CATEGORY_ID) "
            "VALUES (1, 'Bloom & Co', 'Iris Petal', '5 Rose Lane\r\nSalem, OR 97301', 1)");
        const auto invitations = modLabels::Addresses(C::Invitations, 0, QString());
        QVERIFY(!invitations.isEmpty());
        const auto zoe = std::find_if(invitations.begin(), invitations.end(),
                                      [](const modLabels::Address& a) { return a.Text.contains("Boston"); });
        QVERIFY(zoe != invitations.end());
        QCOMPARE(zoe->Text, "Ms. " + GuestReportTestData::Nasty() + "\r\n12 Oak St\r\nBoston, MA 02101");
        QVERIFY(zoe->HasAddress);

        const auto contacts = modLabels::Addresses(C::Contacts, 0, QString());
        QCOMPARE(long(contacts.size()),
                 clsCONTACT::GetTotal(0, QString(), true)); // as the report screen counts
        QStringList unaddressed;
        for (const modLabels::Address& contact : contacts)
            if (!contact.HasAddress)
                unaddressed << contact.Text;
        QVERIFY(unaddressed.contains(QStringLiteral("Guest")));
        QVERIFY(!unaddressed.contains(zoe->Text));

        const auto vendors = modLabels::Addresses(C::Vendors, 0, QString());
        QCOMPARE(vendors.size(), 1);
        QCOMPARE(vendors[0].Text,
                 QStringLiteral("Bloom & Co\r\nAttn: Iris Petal\r\n5 Rose Lane, Salem, OR 97301"));
        QCOMPARE(modLabels::Title(C::Widgets), QStringLiteral("Print Widgets Labels"));
        QVERIFY(modLabels::Addresses(C::RSVPs, 0, QString()).isEmpty());
    }
};

QTEST_MAIN(tst_clsRTFLabel)
#include "tst_clsRTFLabel.moc"
