#include "shell/controls/usrNumberBox.h"

#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

// The number box as a user meets it: keys typed into a shown window, then the focus moved away.
class tst_usrNumberBox : public QObject {
    Q_OBJECT

private:
    // A window with the box and a second field to move the focus to.
    struct Window {
        QWidget widget;
        usrNumberBox* box;
        QLineEdit* other;
        Window() : box(new usrNumberBox), other(new QLineEdit) {
            auto* layout = new QVBoxLayout(&widget);
            layout->addWidget(box);
            layout->addWidget(other);
            widget.show();
            QApplication::setActiveWindow(&widget);
            box->setFocus();
            box->clear();
        }
        void Leave() {
            other->setFocus();
            QCoreApplication::processEvents();
        }
    };

private slots:
    void cleanup() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void typing_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<bool>("allowNegation");
        QTest::addColumn<int>("places");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("shown");

        const double lo = usrNumberBox::kDefaultMinimum;
        const double hi = usrNumberBox::kDefaultMaximum;
        QTest::newRow("digits grouped on leaving") << "en_US" << true << 2 << lo << hi << "1234567"
                                                   << "1234567" << 1234567.0 << "1,234,567.00";
        QTest::newRow("second decimal moves the caret") << "en_US" << true << 2 << lo << hi << "1.2.3"
                                                        << "1.32" << 1.32 << "1.32";
        QTest::newRow("decimals cut, not rounded") << "en_US" << true << 2 << lo << hi << "1.239"
                                                   << "1.239" << 1.239 << "1.23";
        QTest::newRow("no decimal with zero places") << "en_US" << true << 0 << lo << hi << "1.5"
                                                     << "15" << 15.0 << "15";
        QTest::newRow("letters dropped") << "en_US" << true << 2 << lo << hi << "1a2b"
                                         << "12" << 12.0 << "12.00";
        QTest::newRow("minus toggles on") << "en_US" << true << 2 << lo << hi << "12-3"
                                          << "-123" << -123.0 << "-123.00";
        QTest::newRow("minus toggles off") << "en_US" << true << 2 << lo << hi << "12--"
                                           << "12" << 12.0 << "12.00";
        QTest::newRow("minus refused without negation") << "en_US" << false << 2 << lo << hi << "5-"
                                                        << "5" << 5.0 << "5.00";
        QTest::newRow("minus refused below minimum") << "en_US" << true << 2 << 0.0 << hi << "5-"
                                                     << "5" << 5.0 << "5.00";
        QTest::newRow("digit above maximum refused") << "en_US" << true << 2 << lo << 100.0 << "1000"
                                                     << "100" << 100.0 << "100.00";
        QTest::newRow("decimal digit above maximum refused") << "en_US" << true << 2 << lo << 100.0 << "100.5"
                                                             << "100." << 100.0 << "100.00";
        QTest::newRow("point alone") << "en_US" << true << 2 << lo << hi << "."
                                     << "." << 0.0 << "0.00";
        QTest::newRow("minus alone") << "en_US" << true << 2 << lo << hi << "-"
                                     << "-" << 0.0 << "-0.00";
        QTest::newRow("leading zeros") << "en_US" << true << 2 << lo << hi << "007.5"
                                       << "007.5" << 7.5 << "7.50";
        QTest::newRow("comma is no key in en_US") << "en_US" << true << 2 << lo << hi << "1,5"
                                                  << "15" << 15.0 << "15.00";
        QTest::newRow("comma decimal") << "de_DE" << true << 2 << lo << hi << "1234,5"
                                       << "1234,5" << 1234.5 << "1.234,50";
        QTest::newRow("point key types the comma") << "de_DE" << true << 2 << lo << hi << "1234.5"
                                                   << "1234,5" << 1234.5 << "1.234,50";
        QTest::newRow("second comma refused") << "de_DE" << true << 3 << lo << hi << "1,2,3"
                                              << "1,32" << 1.32 << "1,320";
        QTest::newRow("minus in comma locale") << "de_DE" << true << 2 << lo << hi << "9876,5-"
                                               << "-9876,5" << -9876.5 << "-9.876,50";
    }

    void typing() {
        QFETCH(QString, locale);
        QFETCH(bool, allowNegation);
        QFETCH(int, places);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(QString, keys);
        QFETCH(QString, typed);
        QFETCH(double, value);
        QFETCH(QString, shown);

        QLocale::setDefault(QLocale(locale));
        Window w;
        w.box->setAllowNegation(allowNegation);
        w.box->setDecimalPlaces(static_cast<qint16>(places));
        w.box->setMinimumValue(minimum);
        w.box->setMaximumValue(maximum);
        w.box->clear();
        QTest::keyClicks(w.box, keys);
        QCOMPARE(w.box->Text(), typed);
        QCOMPARE(w.box->Value(), value);
        w.Leave();
        QCOMPARE(w.box->Text(), shown);
    }

    void secondDecimalPutsCaretBehindTheFirst() {
        Window w;
        QTest::keyClicks(w.box, "12.34");
        w.box->setCursorPosition(0);
        QTest::keyClicks(w.box, ".");
        QCOMPARE(w.box->Text(), QStringLiteral("12.34"));
        QCOMPARE(w.box->cursorPosition(), 3);
    }

    void valueIsShownNormalised_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("places");
        QTest::addColumn<bool>("thousands");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<double>("readBack");

        QTest::newRow("grouped") << "en_US" << 1234.5 << 2 << true << "1,234.50" << 1234.5;
        QTest::newRow("ungrouped") << "en_US" << 1234.5 << 2 << false << "1234.50" << 1234.5;
        QTest::newRow("cut to places") << "en_US" << 0.129 << 2 << true << "0.12" << 0.12;
        QTest::newRow("eleven decimals kept")
            << "en_US" << 0.12345678901 << 11 << true << "0.12345678901" << 0.12345678901;
        QTest::newRow("largest") << "en_US" << 999999999999.0 << 2 << true << "999,999,999,999.00"
                                 << 999999999999.0;
        QTest::newRow("comma locale") << "de_DE" << 1234567.25 << 2 << true << "1.234.567,25" << 1234567.25;
    }

    void valueIsShownNormalised() {
        QFETCH(QString, locale);
        QFETCH(double, value);
        QFETCH(int, places);
        QFETCH(bool, thousands);
        QFETCH(QString, shown);
        QFETCH(double, readBack);

        QLocale::setDefault(QLocale(locale));
        usrNumberBox box;
        box.setDecimalPlaces(static_cast<qint16>(places));
        box.setUseThousandDelimiter(thousands);
        box.setValue(value);
        QCOMPARE(box.Text(), shown);
        QCOMPARE(box.Value(), readBack);
    }

    void changeIsRaisedWhenTheValueChanges() {
        Window w;
        QSignalSpy spy(w.box, &usrNumberBox::Change);
        QTest::keyClicks(w.box, "1");
        QCOMPARE(spy.count(), 1);
        QTest::keyClicks(w.box, "."); // 1. is still 1
        QTest::keyClicks(w.box, "a"); // dropped
        QCOMPARE(spy.count(), 1);
        QTest::keyClicks(w.box, "5");
        QCOMPARE(spy.count(), 2);
        w.box->setValue(2);
        QCOMPARE(spy.count(), 3);
    }

    void settingsReshapeTheText() {
        usrNumberBox box;
        box.setValue(-1234.567);
        QCOMPARE(box.Text(), QStringLiteral("-1,234.56"));
        box.setDecimalPlaces(1);
        QCOMPARE(box.Text(), QStringLiteral("-1,234.5"));
        box.setAllowNegation(false);
        QCOMPARE(box.Text(), QStringLiteral("1,234.5"));
        box.setUseThousandDelimiter(false);
        QCOMPARE(box.Text(), QStringLiteral("1234.5"));
    }

    void invertNeedsAllowInvert() {
        usrNumberBox box;
        box.setValue(12.5);
        box.Invert();
        QCOMPARE(box.Value(), 12.5);
        box.setAllowInvert(true);
        box.Invert();
        QCOMPARE(box.Value(), -12.5);
        box.Invert();
        QCOMPARE(box.Value(), 12.5);
    }

    void readOnlyDropsEveryKey() {
        Window w;
        w.box->setValue(7);
        w.box->setReadOnlyBox(true);
        QTest::keyClicks(w.box, "12-.");
        QCOMPARE(w.box->Text(), QStringLiteral("7.00"));
    }

    void pastedTextThatIsNoNumberIsRefused() {
        Window w;
        QTest::keyClicks(w.box, "42");
        w.box->insert(QStringLiteral("x"));
        QCOMPARE(w.box->Text(), QStringLiteral("42"));
        w.box->insert(QStringLiteral("5"));
        QCOMPARE(w.box->Text(), QStringLiteral("425"));
    }

    void separatorsAreReadAgainWithCtrlR() {
        Window w;
        w.box->setValue(1234.5);
        QCOMPARE(w.box->Text(), QStringLiteral("1,234.50"));
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QTest::keyClick(w.box, Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(w.box->DecimalSeparator(), QStringLiteral(","));
        QCOMPARE(w.box->Text(), QStringLiteral("1.234,50"));
        QCOMPARE(w.box->Value(), 1234.5);
    }
};

QTEST_MAIN(tst_usrNumberBox)
#include "tst_usrNumberBox.moc"
