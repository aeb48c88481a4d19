#pragma once

#include <QDialog>

// The invitation to the forums, made once on a visit of Home after the tour's offer: its picture opens
// the forums, "Close" only closes.
class frmForums : public QDialog {
    Q_OBJECT

public:
    explicit frmForums(QWidget* parent = nullptr);
};
