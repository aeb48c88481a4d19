#pragma once

#include "shell/usrPage.h"

#include <QList>
#include <QMap>
#include <QWidget>

class QDialog;
class QGridLayout;
class QLabel;
class QPushButton;
class usrHyperlink;
class QTimer;

// The first page: today's date and time, one card per part of the planning with its counts and a link
// to its page, and the links to everything else. Every visit makes the page anew, so the counts are
// always current.
class frmMain_00_Home : public usrPage {
    Q_OBJECT

public:
    explicit frmMain_00_Home(QWidget* parent = nullptr);

    // The texts of a card, by the page index of its row (1 Contacts ... 10 Notebook).
    QString MainText(int index) const;
    QString SubText(int index) const;
    // The three budget figures: estimated, actual, and the difference.
    QString BudgetText() const;
    QString BudgetActualText() const;
    QString BudgetPlusMinusText() const;

    // "1 vendor", "2 vendors": the noun gets its "s" unless the number is 1.
    static QString Counted(long number, const QString& noun);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* BuildHeading();
    QWidget* BuildCard(int index);
    QWidget* BuildLinks();
    usrHyperlink* Link(const QString& name, const QString& caption, const QString& icon, bool available);
    usrHyperlink* PageLink(const QString& name, const QString& caption, const QString& icon, int index);
    usrHyperlink* SubPageLink(const QString& name, const QString& caption, const QString& icon,
                              const QString& form);
    usrHyperlink* DialogLink(const QString& name, const QString& caption, const QString& icon,
                             const QString& form);
    void FillCounts();
    void SetCard(int index, const QString& main, const QString& sub);
    void ArrangeCards();
    void UpdateClock();
    void ShowNotices();
    // The notice this visit brings, marked as shown, or none: the screen hint, the tour, the forums.
    static QDialog* TakeNotice(QWidget* owner);

    QLabel* lblDate = nullptr;
    QLabel* lblTime = nullptr;
    QLabel* lblBudget = nullptr;
    QLabel* lblBudgetPlusMinus = nullptr;
    QMap<int, QLabel*> lblGM;
    QMap<int, QLabel*> lblGMSub;
    QMap<int, usrHyperlink*> linkGM;
    QList<QWidget*> mCards;
    QGridLayout* mCardGrid = nullptr;
    QList<usrHyperlink*> mMoreLinks;
    QGridLayout* mMoreGrid = nullptr;
    int mColumns = 0;
    QTimer* timer = nullptr;
    bool mShown = false;
};
