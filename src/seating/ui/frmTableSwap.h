#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;
class usrDropdown;

// Two tables exchange their guests and their labels; numbers, shapes and seats stay where they are.
// Children: "usr_0", "usr_1" (the tables), "lvw_0", "lvw_1" (their guests), "cmdSwap", "cmdCancel".
class frmTableSwap : public QDialog {
    Q_OBJECT

public:
    explicit frmTableSwap(QWidget* parent = nullptr);

    // Chooses the tables by key, as a click in the lists would.
    void SelectTables(const QString& firstKey, const QString& secondKey);

signals:
    void Swap();

private:
    void ShowGuests(int side);
    void RefreshEnabling();
    void cmdSwap_Click();

    usrDropdown* mTables[2] = {nullptr, nullptr};
    QListWidget* mGuests[2] = {nullptr, nullptr};
    QPushButton* mSwap = nullptr;
};
