#include "TestDatabase.h"
#include "core/clsDICT.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/usrCenterMe.h"
#include "shell/controls/usrColor.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/controls/usrLinks.h"
#include "shell/controls/usrNumberBox.h"
#include "shell/controls/usrSearch.h"

#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {

QStringList Texts(const usrDropdown& dropdown) {
    QStringList texts;
    for (int i = 0; i < dropdown.ListCount(); ++i)
        texts << dropdown.ItemText(i);
    return texts;
}

QStringList Column(const QString& sql) {
    QStringList values;
    const clsRecordset rs = gDB().Execute(sql);
    for (int row = 0; row < rs.RowCount(); ++row)
        values << rs.Value(row, 0);
    return values;
}

void ShowAndActivate(QWidget& widget) {
    widget.show();
    QApplication::setActiveWindow(&widget);
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
}

} // namespace

class tst_Controls : public QObject {
    Q_OBJECT

private slots:
    // ---- usrDropdown ----

    void dropdownListsAKindAlphabetically() {
        TestDatabase db;
        usrDropdown dropdown;
        QVERIFY(dropdown.PopulateX(clsDICT::Title));
        QCOMPARE(Texts(dropdown), Column("SELECT TITLE_TX FROM TITLE_DICT ORDER BY TITLE_TX COLLATE NOCASE"));
        QVERIFY(dropdown.ListCount() > 0);
        QCOMPARE(dropdown.ListIndex(), -1);
        QCOMPARE(dropdown.Code(), QString());

        const QString code =
            TestDatabase::Scalar("SELECT TITLE_ID FROM TITLE_DICT ORDER BY TITLE_ID DESC LIMIT 1");
        dropdown.setCode(code);
        QCOMPARE(dropdown.Text(),
                 TestDatabase::Scalar("SELECT TITLE_TX FROM TITLE_DICT WHERE TITLE_ID = ?", {code}));
        dropdown.setCode(QStringLiteral("9999"));
        QCOMPARE(dropdown.ListIndex(), -1);
    }

    void dropdownRefreshesAfterTheOptionsChanged() {
        TestDatabase db;
        usrDropdown titles;
        usrDropdown meals;
        titles.PopulateX(clsDICT::Title);
        meals.PopulateX(clsDICT::Meal);
        const int titleCount = titles.ListCount();
        const int mealCount = meals.ListCount();
        titles.setListIndex(0);
        const QString chosen = titles.Code();

        clsDICT title(clsDICT::Title);
        title.TX = QStringLiteral("Aaa Honourable");
        title.Save(true);
        clsDICT meal(clsDICT::Meal);
        meal.TX = QStringLiteral("Zucchini tart");
        meal.PRICE_NB = QStringLiteral("12");
        meal.Save(true);

        usrDropdown::NotifyOptionsUpdated(clsDICT::Title);
        QCOMPARE(titles.ListCount(), titleCount + 1);
        QCOMPARE(titles.Code(), chosen); // the chosen row stays chosen though a row came before it
        QCOMPARE(meals.ListCount(), mealCount);

        usrDropdown::NotifyOptionsUpdated();
        QCOMPARE(meals.ListCount(), mealCount + 1);
        QCOMPARE(meals.ItemText(meals.FindString(QStringLiteral("zucc"))), QStringLiteral("Zucchini tart"));
    }

    void dropdownFromAQuery() {
        TestDatabase db;
        usrDropdown dropdown;
        QVERIFY(dropdown.PopulateSQL(
            QStringLiteral("SELECT ROLE_ID, ROLE_TX FROM ROLE_DICT WHERE ROLE_ID <= 2 ORDER BY ROLE_ID")));
        QCOMPARE(dropdown.ListCount(), 2);
        QCOMPARE(dropdown.ItemCode(1), QStringLiteral("2"));

        TestDatabase::Exec("UPDATE ROLE_DICT SET ROLE_TX = 'Partner' WHERE ROLE_ID = 2");
        dropdown.mfrmOptions_OptionsUpdated(clsDICT::Role);
        QCOMPARE(dropdown.ItemText(1), QStringLiteral("Partner"));

        QVERIFY(!dropdown.PopulateSQL(QStringLiteral("SELECT * FROM NO_SUCH_TABLE")));
        QCOMPARE(dropdown.ListCount(), 0);
        QCOMPARE(db.Messages().Prompts.size(), 1);
    }

    void dropdownButtonsAndKeys() {
        TestDatabase db;
        QWidget window;
        auto* dropdown = new usrDropdown(&window);
        dropdown->PopulateX(clsDICT::Title);
        dropdown->setAddIsVisible(true);
        dropdown->setEditIsVisible(true);
        ShowAndActivate(window);
        auto* combo = dropdown->findChild<QComboBox*>(QStringLiteral("cbo"));
        auto* add = dropdown->findChild<QToolButton*>(QStringLiteral("cmdAdd"));
        auto* edit = dropdown->findChild<QToolButton*>(QStringLiteral("cmdEdit"));
        QVERIFY(combo && add && edit);
        QCOMPARE(add->toolTip(), QStringLiteral("Click to add vendor"));
        QVERIFY(!edit->isEnabled()); // nothing chosen yet

        QSignalSpy clicks(dropdown, &usrDropdown::Click);
        QSignalSpy adds(dropdown, &usrDropdown::AddClick);
        QSignalSpy edits(dropdown, &usrDropdown::EditClick);
        dropdown->setFocus();
        QTest::keyClick(combo, Qt::Key_F2);
        QCOMPARE(edits.count(), 0);
        QTest::keyClick(combo, Qt::Key_Down);
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(dropdown->ListIndex(), 0);
        QTest::keyClick(combo, Qt::Key_F2);
        QCOMPARE(edits.count(), 1);
        QTest::keyClick(combo, Qt::Key_Insert);
        QTest::mouseClick(add, Qt::LeftButton);
        QCOMPARE(adds.count(), 2);

        dropdown->setAddIsVisible(false);
        QTest::keyClick(combo, Qt::Key_Insert);
        QCOMPARE(adds.count(), 2);
    }

    // ---- usrSearch ----

    void searchRaisesEachChange() {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* search = new usrSearch;
        auto* elsewhere = new QLineEdit;
        layout->addWidget(search);
        layout->addWidget(elsewhere);
        ShowAndActivate(window);
        elsewhere->setFocus();
        auto* text = search->findChild<QLineEdit*>(QStringLiteral("txtSearch"));
        auto* close = search->findChild<QToolButton*>(QStringLiteral("picClose"));
        QVERIFY(text && close);
        QCOMPARE(text->placeholderText(), QStringLiteral("Search"));

        QSignalSpy spy(search, &usrSearch::Search);
        search->SetFocusEx();
        QCOMPARE(text->placeholderText(), QString()); // the prompt goes while typing
        QTest::keyClicks(text, "Smi");
        QCOMPARE(spy.count(), 3);
        QCOMPARE(spy.last().at(0).toString(), QStringLiteral("Smi"));
        QVERIFY(close->isVisible());

        QTest::mouseClick(close, Qt::LeftButton);
        QCOMPARE(search->Text(), QString());
        QCOMPARE(spy.last().at(0).toString(), QString());
        QVERIFY(!close->isVisible());

        QTest::keyClicks(text, "Jo");
        QTest::keyClick(text, Qt::Key_Escape);
        QCOMPARE(search->Text(), QString());
        QCOMPARE(spy.count(), 7);

        search->setText(QStringLiteral("x"));
        const int before = static_cast<int>(spy.count());
        search->Reset();
        QCOMPARE(search->Text(), QString());
        QCOMPARE(spy.count(), before);
    }

    // ---- usrLinks, usrHyperlink ----

    void linksChooseAndShowProgress() {
        QWidget window;
        auto* links = new usrLinks(&window);
        links->SetLinks({QStringLiteral("Guests"), QStringLiteral("Tables"), QStringLiteral("Meals")});
        ShowAndActivate(window);
        QSignalSpy spy(links, &usrLinks::Click);
        auto* tables = links->findChild<usrHyperlink*>(QStringLiteral("link_1"));
        QVERIFY(tables);
        QTest::mouseClick(tables, Qt::LeftButton);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.last().at(0).toInt(), 1);
        QCOMPARE(links->SelectedIndex(), 1);
        QVERIFY(tables->FontBold());

        tables->setFocus();
        QTest::keyClick(tables, Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(spy.last().at(0).toInt(), 2);

        auto* bar = links->findChild<QProgressBar*>(QStringLiteral("prgProgress"));
        QVERIFY(bar && !bar->isVisible());
        links->setProgressVisible(true);
        links->setProgressMax(40);
        links->setProgressValue(10);
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->value(), 10);
        QCOMPARE(bar->maximum(), 40);
        links->setProgressValue(55);
        QCOMPARE(links->ProgressValue(), 40);
        links->setProgressVisible(false);
        QVERIFY(!bar->isVisible());
    }

    void hyperlinkClickCarriesItsIndex_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("index");
        QTest::newRow("array member") << "linkAction_3" << 3;
        QTest::newRow("single link") << "linkHelp" << 0;
    }

    void hyperlinkClickCarriesItsIndex() {
        QFETCH(QString, name);
        QFETCH(int, index);
        QWidget window;
        auto* link = new usrHyperlink(QStringLiteral("Add a new contact"), &window);
        link->setObjectName(name);
        link->setPicture(ControlIcons::Plus());
        ShowAndActivate(window);
        QSignalSpy spy(link, &usrHyperlink::Click);
        QTest::mouseClick(link, Qt::LeftButton, {}, QPoint(4, link->height() / 2)); // on the picture
        link->setFocus();
        QTest::keyClick(link, Qt::Key_Return);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).toInt(), index);
        link->setEnabled(false);
        QTest::mouseClick(link, Qt::LeftButton);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(link->property("set_caption").toString(), QStringLiteral("Add a new contact"));
    }

    // ---- usrColor, usrCenterMe ----

    void colorChoiceAndRtfEntry() {
        usrColor color;
        color.setFillColor(QColor(10, 200, 30));
        QCOMPARE(color.RTFColor(), QStringLiteral("\\red10\\green200\\blue30;"));
        QCOMPARE(color.toolTip(), QStringLiteral("R: 10 G: 200 B: 30\nClick to change color."));

        QSignalSpy spy(&color, &usrColor::ColorChanged);
        usrColor::SetChooser([](const QColor&, QWidget*, const QString&) { return QColor(); });
        QVERIFY(!color.ChooseColor());
        usrColor::SetChooser([](const QColor&, QWidget*, const QString&) { return QColor(1, 2, 3); });
        QTest::keyClick(&color, Qt::Key_Space);
        usrColor::SetChooser({});
        QCOMPARE(spy.count(), 1);
        QCOMPARE(color.FillColor(), QColor(1, 2, 3));
        QCOMPARE(color.RTFColor(), QStringLiteral("\\red1\\green2\\blue3;"));
    }

    void centerMeKeepsThePictureCentred_data() {
        QTest::addColumn<QSize>("control");
        QTest::addColumn<QRect>("picture");
        QTest::newRow("larger control") << QSize(200, 100) << QRect(80, 30, 40, 40);
        QTest::newRow("odd room") << QSize(41, 41) << QRect(0, 0, 40, 40);
        QTest::newRow("smaller control shrinks it") << QSize(20, 100) << QRect(0, 40, 20, 20);
    }

    void centerMeKeepsThePictureCentred() {
        QFETCH(QSize, control);
        QFETCH(QRect, picture);
        QPixmap pixmap(40, 40);
        pixmap.fill(Qt::red);
        usrCenterMe center;
        center.setPicture(pixmap);
        center.resize(control);
        QCOMPARE(center.PictureRect(), picture);
    }

};

QTEST_MAIN(tst_Controls)
#include "tst_Controls.moc"
