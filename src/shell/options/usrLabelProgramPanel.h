#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

// The options panel that names the label program: its folder and its executable. Each change is
// written at once, and the line below says whether the report screen will hand labels to it.
// Children: "txtAppPath", "cmdBrowse", "txtExeName", "cmdClear", "lblStatus".
class usrLabelProgramPanel : public QWidget {
    Q_OBJECT

public:
    explicit usrLabelProgramPanel(QWidget* parent = nullptr);
    // Shows the stored values again.
    void Load();

private:
    void Store();
    void cmdBrowse_Click();
    void cmdClear_Click();
    void ShowStatus();

    QLineEdit* mFolder = nullptr;
    QLineEdit* mExe = nullptr;
    QLabel* mStatus = nullptr;
};
