#pragma once

#include <QDialog>

class QButtonGroup;

// The larger choice of pictures for the bride or the groom: every picture of that side as a button
// ("imgIcon_1" to "imgIcon_6"), the one in use checked, and "cmdDone". A click chooses at once.
class frmBrideGroomIcons : public QDialog {
    Q_OBJECT

public:
    frmBrideGroomIcons(bool bride, int current, QWidget* parent = nullptr);

signals:
    void IconChosen(bool bride, int number);

private:
    bool mBride;
    QButtonGroup* mGroup = nullptr;
};
