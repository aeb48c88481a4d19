#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/ShowMessage.h"
#include "seating/SeatingTestData.h"
#include "seating/clsSEATING_RULE.h"
#include "seating/modAutoSeat.h"
#include "seating/ui/frmAutoSeat.h"
#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "seating/ui/frmSeatingRule.h"
#include "seating/ui/usrSeatingRules.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QUndoStack>
#include <QtTest>
#include <memory>
#include <tuple>

using namespace SeatingTestData;
using UiTestTools::Child;

class tst_AutoSeat : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;
    clsCapturingMessageSink* messages = nullptr;
    QString first, second;
    QStringList guests;

    // Two tables of two and two pairs that asked to sit together; the first of each pair apart.
    void TwoPairs() {
        first = AddTable("1", 2);
        second = AddTable("2", 2);
        TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = 'N' WHERE CONTACT_ID IN (1, 2)");
        guests = AddGuests(4);
        for (const auto& [a, b, kind] :
             {std::tuple{0, 1, "T"}, std::tuple{2, 3, "T"}, std::tuple{0, 2, "A"}}) {
            clsSEATING_RULE rule;
            rule.CONTACT_ID = guests[a];
            rule.OTHER_CONTACT_ID = guests[b];
            rule.RULE_CD = kind;
            rule.WEIGHT_NB = "50";
            rule.Save(true);
        }
    }

    // A proposal made on the page's seater, its time limit short.
    static void Propose(frmAutoSeat& seater) {
        Child<QSpinBox>(seater, "spnSeconds")->setValue(1);
        QTest::mouseClick(Child<QPushButton>(seater, "cmdStart"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(seater.HasProposal(), 30000);
    }

    static QString SeatsInDb() {
        return TestDatabase::Scalar("SELECT group_concat(COALESCE(DINING_TABLE_ID, '-'), ',') FROM "
                                    "(SELECT DINING_TABLE_ID FROM CONTACT ORDER BY CONTACT_ID)");
    }

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        auto sink = std::make_unique<clsCapturingMessageSink>();
        messages = sink.get();
        SetMessageSink(std::move(sink));
    }
    void cleanup() {
        SetMessageSink(nullptr);
        db.reset();
    }

    void ruleEditor_data() {
        QTest::addColumn<int>("other");
        QTest::addColumn<bool>("apart");
        QTest::addColumn<QString>("saved"); // the rule as listed, or "" when refused
        QTest::newRow("together") << 1 << false << "Ann Guest0010 and Ann Guest0011: Keep together (70)";
        QTest::newRow("apart") << 1 << true << "Ann Guest0010 and Ann Guest0011: Keep apart";
        QTest::newRow("one person twice") << 0 << true << "";
    }
    void ruleEditor() {
        QFETCH(int, other);
        QFETCH(bool, apart);
        QFETCH(QString, saved);
        guests = AddGuests(2);
        frmMain_04_Attendees_Tables page;
        auto* panel = Child<usrSeatingRules>(page, "usrSeatingRules");
        frmSeatingRule editor;
        connect(&editor, &frmEditorBase::Added, panel, &usrSeatingRules::Reload);
        auto* a = Child<QComboBox>(editor, "cboContact_0");
        auto* b = Child<QComboBox>(editor, "cboContact_1");
        a->setCurrentIndex(a->findData(guests[0]));
        b->setCurrentIndex(b->findData(guests[other]));
        Child<QRadioButton>(editor, apart ? "optApart" : "optTogether")->setChecked(true);
        Child<QSpinBox>(editor, "spnWeight")->setValue(70);
        QTest::mouseClick(Child<QPushButton>(editor, "cmdSave"), Qt::LeftButton);

        const QList<clsSEATING_RULE> rules = clsSEATING_RULE::OpenRecords();
        QCOMPARE(rules.size(), saved.isEmpty() ? 0 : 1);
        QCOMPARE(panel->RuleIds().size(), rules.size());
        if (saved.isEmpty())
            QCOMPARE(messages->Prompts, QStringList("A seating rule is about two different people."));
        else
            QCOMPARE(rules[0].Caption(), saved);
        if (saved.isEmpty())
            return;
        // Opened again, the rule shows as stored; a change is written over it, not beside it.
        frmSeatingRule again;
        QVERIFY(again.EditRule(rules[0].SEATING_RULE_ID));
        QCOMPARE(again.windowTitle(), QStringLiteral("Edit Seating Rule"));
        QCOMPARE(Child<QRadioButton>(again, "optApart")->isChecked(), apart);
        Child<QRadioButton>(again, apart ? "optTogether" : "optApart")->setChecked(true);
        QVERIFY(again.cmdSave_Click());
        const QList<clsSEATING_RULE> edited = clsSEATING_RULE::OpenRecords();
        QCOMPARE(edited.size(), 1);
        QCOMPARE(edited[0].SEATING_RULE_ID, rules[0].SEATING_RULE_ID);
        QCOMPARE(edited[0].RULE_CD, apart ? clsSEATING_RULE::KeepTogether : clsSEATING_RULE::KeepApart);
    }

    // Discard writes nothing; Apply writes the chart as one step, which Ctrl+Z takes back.
    void discardApplyUndo() {
        TwoPairs();
        frmMain_04_Attendees_Tables page;
        auto* panel = Child<usrSeatingRules>(page, "usrSeatingRules");
        const QString before = SeatsInDb();
        {
            frmAutoSeat seater;
            panel->ConnectSeater(seater);
            Propose(seater);
            QCOMPARE(seater.Proposal().Score, 100L);
            QVERIFY(Child<QPlainTextEdit>(seater, "txtExplanation")->toPlainText().contains("kept together"));
            QCOMPARE(SeatsInDb(), before);
            QTest::mouseClick(Child<QPushButton>(seater, "cmdDiscard"), Qt::LeftButton);
            QCOMPARE(seater.result(), int(QDialog::Rejected));
        }
        QCOMPARE(SeatsInDb(), before);
        QCOMPARE(page.UndoStack()->count(), 0);

        frmAutoSeat seater;
        panel->ConnectSeater(seater);
        Propose(seater);
        QTest::mouseClick(Child<QPushButton>(seater, "cmdApply"), Qt::LeftButton);
        QCOMPARE(seater.result(), int(QDialog::Accepted));
        QCOMPARE(TableOf(guests[0]), TableOf(guests[1]));
        QCOMPARE(TableOf(guests[2]), TableOf(guests[3]));
        QVERIFY(TableOf(guests[0]) != TableOf(guests[2]));
        QCOMPARE(modAutoSeat::MeasureCurrent().Score, 100L);
        QCOMPARE(page.UnseatedIds(), QStringList());
        QCOMPARE(page.GuestsAt(first), SeatedInDb(first));
        QCOMPARE(page.UndoStack()->count(), 1);

        page.UndoStack()->undo();
        QCOMPARE(SeatsInDb(), before);
        QCOMPARE(page.UnseatedIds().size(), 4);
    }

    // Another program holds the file: the "in use" message, nothing written, the proposal kept.
    void applyWhileTheFileIsLocked() {
        TwoPairs();
        frmMain_04_Attendees_Tables page;
        frmAutoSeat seater;
        Child<usrSeatingRules>(page, "usrSeatingRules")->ConnectSeater(seater);
        Propose(seater);
        const QString before = SeatsInDb();
        {
            OtherWriter other;
            QVERIFY(other.Locked);
            QTest::mouseClick(Child<QPushButton>(seater, "cmdApply"), Qt::LeftButton);
        }
        QCOMPARE(messages->Prompts.size(), 1);
        QVERIFY2(messages->Prompts.first().contains("in use"), qPrintable(messages->Prompts.first()));
        QCOMPARE(SeatsInDb(), before);
        QVERIFY(seater.HasProposal());
        QVERIFY(Child<QPushButton>(seater, "cmdApply")->isEnabled());
        QCOMPARE(page.UndoStack()->count(), 0);
    }

    // Cancel throws the run away; "Stop and Show Best" proposes what was found so far, within the rules.
    void cancelProposesNothingStopProposesTheBestSoFar_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("proposal");
        QTest::newRow("cancel") << "cmdCancel" << false;
        QTest::newRow("stop") << "cmdStop" << true;
    }
    void cancelProposesNothingStopProposesTheBestSoFar() {
        QFETCH(QString, button);
        QFETCH(bool, proposal);
        AddTable("1", 200);
        AddGuests(150);
        frmAutoSeat seater;
        seater.show();
        Child<QSpinBox>(seater, "spnSeconds")->setValue(120);
        QTest::mouseClick(Child<QPushButton>(seater, "cmdStart"), Qt::LeftButton);
        QVERIFY(seater.IsRunning());
        QVERIFY(!Child<QPushButton>(seater, "cmdApply")->isEnabled());
        QTest::mouseClick(Child<QPushButton>(seater, button), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(!seater.IsRunning(), 30000);
        QCOMPARE(seater.HasProposal(), proposal);
        QCOMPARE(Child<QPushButton>(seater, "cmdApply")->isEnabled(), proposal);
        QVERIFY(Child<QPushButton>(seater, "cmdStop")->isHidden());
        if (proposal)
            QVERIFY(Child<QLabel>(seater, "lblScore")->text().startsWith("Stopped early"));
    }

    void noTablesNoRun() {
        AddGuests(3);
        frmAutoSeat seater;
        QTest::mouseClick(Child<QPushButton>(seater, "cmdStart"), Qt::LeftButton);
        QVERIFY(!seater.IsRunning());
        QCOMPARE(messages->Prompts, QStringList(modAutoSeat::NoTablesMessage()));
    }
};

QTEST_MAIN(tst_AutoSeat)
#include "tst_AutoSeat.moc"
