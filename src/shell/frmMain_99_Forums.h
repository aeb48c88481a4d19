#pragma once

#include "shell/usrPage.h"

#include <QWidget>

class QLineEdit;

// The forums page. The forums themselves open in the desktop's browser; the page keeps the user's forum
// name and password (below the root key as ForumLoginName and ForumLoginPassword) so that they are at
// hand when the forums ask for them.
class frmMain_99_Forums : public usrPage {
    Q_OBJECT

public:
    explicit frmMain_99_Forums(QWidget* parent = nullptr);

    static QString LoginName();
    static QString LoginPassword();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void OpenForums();
    void SaveLogin();

    QLineEdit* txtName = nullptr;
    QLineEdit* txtPassword = nullptr;
    bool mShown = false;
};
