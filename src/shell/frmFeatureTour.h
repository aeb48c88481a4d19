#pragma once

#include <QDialog>

// The offer of the feature tour, made once on the first visit of Home: "Take the Tour" opens the tour's
// web page, "Close" only closes.
class frmFeatureTour : public QDialog {
    Q_OBJECT

public:
    explicit frmFeatureTour(QWidget* parent = nullptr);
};
