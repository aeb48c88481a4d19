#pragma once

#include <QWidget>

class frmMain_04_Attendees_Tables;
class QPushButton;
class QTreeWidget;

// The "Seating rules" panel of the table layout: the couple's rules, a rule added or deleted, and
// "Seat automatically…", whose chart the page writes as one step to undo.
class usrSeatingRules : public QWidget {
    Q_OBJECT

public:
    explicit usrSeatingRules(frmMain_04_Attendees_Tables* page);

    void Reload();
    void AddRule();
    // Enter or a double click on a rule opens it in the editor.
    void EditRule(const QString& ruleId);
    void DeleteSelectedRule();
    void SeatAutomatically();
    // The seater's Apply writes through the page, as one step to undo.
    void ConnectSeater(class frmAutoSeat& seater);
    // The keys of the rules listed, in order.
    QStringList RuleIds() const;

private:
    frmMain_04_Attendees_Tables* mPage;
    QTreeWidget* lvwRules = nullptr;
    QPushButton* cmdDeleteRule = nullptr;
};

// The pictures of the seater's dialog for the program's screenshots.
void RegisterAutoSeatScreenshots();
