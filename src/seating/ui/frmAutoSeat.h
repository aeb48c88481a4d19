#pragma once

#include "seating/clsSeater.h"
#include "seating/modSeating.h"

#include <QDialog>
#include <atomic>
#include <functional>

class QCheckBox;
class QGraphicsScene;
class QGraphicsView;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QThread;
class QTimer;

// "Seat automatically…": the options, then the seater at work off the screen's thread with a progress bar
// and Cancel, then the proposed chart on the floor with its score and its explanation. Nothing is written
// until Apply; Discard writes nothing.
class frmAutoSeat : public QDialog {
    Q_OBJECT

public:
    explicit frmAutoSeat(QWidget* parent = nullptr);
    ~frmAutoSeat() override;

    // Writes the changes of the proposal (where the people sat, where they go); false after the message,
    // and the proposal stays on screen. The opener writes them, so that they are one step to undo.
    std::function<bool(const modSeating::Seats& before, const modSeating::Seats& after)> OnApply;

    // Starts the seater with the options shown.
    void Start();
    // Stops a run; nothing is proposed.
    void Cancel();
    // Stops a run and proposes the best chart found so far.
    void Stop();
    // The whole run on the calling thread, then the proposal (for the pictures of the program).
    void ProposeNow();
    void Apply();
    void Discard();
    bool IsRunning() const { return mWorker != nullptr; }
    bool HasProposal() const { return mHasProposal; }
    const SeatingChart& Proposal() const { return mChart; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowTopLeft();
    bool ReadWedding(SeatingInstance& instance);
    SeaterOptions Options();
    void Finished();
    void ShowProposal();
    void DrawFloor();
    void ShowState();

    QCheckBox* chkKeepSeated = nullptr;
    QSpinBox* spnSeconds = nullptr;
    QPushButton* cmdStart = nullptr;
    QProgressBar* prgSeat = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdStop = nullptr;
    QLabel* lblScore = nullptr;
    QGraphicsView* picProposal = nullptr;
    QGraphicsScene* mFloor = nullptr;
    QPlainTextEdit* txtExplanation = nullptr;
    QPushButton* cmdApply = nullptr;
    QPushButton* cmdDiscard = nullptr;

    QThread* mWorker = nullptr;
    QTimer* mTicker = nullptr;
    std::atomic<int> mDone{0}; // thousandths of the moves
    std::atomic<bool> mCancelled{false};
    bool mKeepBest = false; // a stop that proposes the best chart so far
    SeatingChart mChart;
    bool mHasProposal = false;
    qint64 mStartedMs = 0;
};
