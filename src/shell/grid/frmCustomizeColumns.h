#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;
class usrGrid;

// Lets the user show, hide and order the columns of one grid. OK applies the choice to the grid; the page
// stores it with GridLayout when it unloads. Cancel leaves the grid as it was.
class frmCustomizeColumns : public QDialog {
    Q_OBJECT

public:
    enum Command { CmdMoveUp = 0, CmdMoveDown, CmdShow, CmdHide, CmdOK, CmdCancel };

    explicit frmCustomizeColumns(usrGrid* grid, QWidget* parent = nullptr);

private:
    void Fill();
    void MoveSelected(int step);
    void CheckSelected(bool checked);
    void UpdateCommands();
    void Apply();
    static bool CanHide(const QString& caption);

    usrGrid* mGrid;
    QListWidget* mList;
    QPushButton* mCmd[6] = {};
};
