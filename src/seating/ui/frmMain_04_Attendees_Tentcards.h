#pragma once

#include "shell/usrListPage.h"

class clsTENTCARD;

// The tent cards, one row a card, by table: the wording can be edited by hand, and "Refresh
// tentcards" makes them all anew from the seating in the chosen etiquette.
class frmMain_04_Attendees_Tentcards : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_04_Attendees_Tentcards(QWidget* parent = nullptr);

    enum ActionIndex : int {
        EditTentcard = 0,
        RefreshTentcards,
        SetEtiquette,
        PrintReports,
        OpenReportFolder
    };
    enum Column : int { ICO = 0, TENTCARD_TX, DINING_TABLE_NB, DINING_TABLE_NM, ColumnCount };
    // The one entry of the panel: every card.
    static constexpr int AllTentcards = 0;

    // "Set etiquette (Formal)" or "Set etiquette (Personal)", as the cards are worded now.
    static QString EtiquetteCaption();
    // The wording on one line of the grid.
    static QString OneLine(const QString& wording);

public slots:
    void mfrmOptions_EtiquetteTentCardUpdated();
    void mfrmTentcard_Updated(const QString& tentcardId);

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildActions();
    void OpenEditor(const QString& tentcardId);
    void cmdRefresh_Click();
};
