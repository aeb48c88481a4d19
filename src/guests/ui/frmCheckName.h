#pragma once

#include "guests/clsParseName.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;

// The parts of a person's name laid out one by one, for correcting by hand what the parse of the
// one-line name got wrong. The caller gives the title and the full name; OK hands back the corrected
// parts by NameChecked (with the title flag set, so the receiver takes the title too). Children:
// "cbo_0" title, "txt_1" first, "txt_2" middle, "txt_3" last, "cbo_4" suffix, "chk", "cmdOK",
// "cmdCancel".
class frmCheckName : public QDialog {
    Q_OBJECT

public:
    frmCheckName(const QString& title, const QString& fullName, QWidget* parent = nullptr);

    // Puts the dialog just below a rectangle in screen coordinates (the link that opened it), kept on
    // that screen.
    void PlaceBelow(const QRect& globalRect);

signals:
    void NameChecked(const clsParseName& name);

private:
    void BuildControls();
    void FillLists();
    void ShowParts(const QString& title, const QString& fullName);
    void cmdOK_Click();

    QComboBox* mTitle = nullptr;
    QLineEdit* mFirst = nullptr;
    QLineEdit* mMiddle = nullptr;
    QLineEdit* mLast = nullptr;
    QComboBox* mSuffix = nullptr;
    QCheckBox* mShowWhenUnclear = nullptr;
};
