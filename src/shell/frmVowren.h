#pragma once

#include <QWidget>

class QTimer;

// The splash: a borderless picture shown while the database is brought up to date. Its first showing
// runs the patches and opens the global records; 1.7 seconds after that the main window comes up and the
// splash goes. A click on the picture skips the wait.
class frmVowren : public QWidget {
    Q_OBJECT

public:
    static constexpr int kWaitMilliseconds = 1700;

    // With runOnShow false the splash only shows its picture (screenshots).
    explicit frmVowren(bool runOnShow = true, QWidget* parent = nullptr);

    bool Patched() const { return mPatched; }

signals:
    // The main window is up; the splash closes itself.
    void MainWindowShown(QWidget* mainWindow);

protected:
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FirstActivation();
    void ShowMain();

    QTimer* timer = nullptr;
    bool mRunOnShow = true;
    bool mActivated = false;
    bool mPatched = false;
    bool mSkipWait = false;
    bool mDone = false;
};
