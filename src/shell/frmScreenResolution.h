#pragma once

#include <QDialog>

// The hint shown by Home on a screen of at most 800 by 600 pixels.
class frmScreenResolution : public QDialog {
    Q_OBJECT

public:
    explicit frmScreenResolution(QWidget* parent = nullptr);
};
