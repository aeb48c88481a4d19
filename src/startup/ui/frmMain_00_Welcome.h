#pragma once

#include "guests/clsCONTACT.h"
#include "shell/usrPage.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QTime>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;
class QCalendarWidget;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTableWidget;
class QTableWidgetItem;
class QTimeEdit;
class usrNumberBox;

// The four steps a new database shows instead of Home until the couple's names and the wedding date are
// known: the names (with the couple's pictures), the wedding day and time, the budget, and the first
// estimates of the budget categories. The fourth Continue writes it all and goes on to Home.
class frmMain_00_Welcome : public usrPage {
    Q_OBJECT

public:
    explicit frmMain_00_Welcome(QWidget* parent = nullptr);

    // A share of the total budget suggested for a category on the fourth step.
    struct CategoryShare {
        QString Label;
        int CategoryId;
        double Share;
    };
    // In alphabetical order; Honeymoon is not offered and keeps its estimate.
    static const QList<CategoryShare>& DefaultShares();

    int Step() const;
    // The parsed names as they will be saved.
    const clsCONTACT& Bride() const { return mBride; }
    const clsCONTACT& Groom() const { return mGroom; }
    // The wedding moment as saved: "12-Jun-2027 3:30 PM".
    QString WeddingDateTimeText() const;
    // The estimate of a row of the fourth step: the budget times the row's share.
    double Estimate(int row) const;

private:
    QWidget* BuildNames();
    QWidget* BuildDay();
    QWidget* BuildBudget();
    QWidget* BuildEstimates();
    QWidget* PersonRow(bool bride);
    void GoTo(int step);
    void OnContinue();
    void OnBack();
    void ParseName(bool bride);
    void ChooseIcon(bool bride, int index);
    void UpdateContinue();
    void FillEstimates();
    void OnShareEdited(QTableWidgetItem* item);
    bool Finish();
    // Each category's estimate by its key, as the grid shows it.
    QMap<QString, double> Estimates() const;
    double Budget() const;

    QStackedWidget* mSteps = nullptr;
    QList<QLabel*> mStepLabels;
    QLineEdit* txtBride = nullptr;
    QLineEdit* txtGroom = nullptr;
    QLabel* lblBrideParts = nullptr;
    QLabel* lblGroomParts = nullptr;
    QLabel* imgBride = nullptr;
    QLabel* imgGroom = nullptr;
    QCalendarWidget* monthYear = nullptr;
    QTimeEdit* timePicker = nullptr;
    usrNumberBox* usrNumber = nullptr;
    QTableWidget* grid = nullptr;
    QLabel* lblTotal = nullptr;
    QLabel* lblWhen = nullptr;
    QPushButton* imgContinue = nullptr;
    QPushButton* imgBack = nullptr;
    QList<double> mShares;
    clsCONTACT mBride;
    clsCONTACT mGroom;
    bool mFilling = false;
};
