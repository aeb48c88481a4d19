#pragma once

#include "widgets/clsWORDING.h"
#include "widgets/ui/usrWidgetSide.h"

#include <array>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// The couple's own vows, one text each with its own save button. Children: "lblHers", "lblHis",
// "imgBride", "imgGroom", "txtVows_2", "txtVows_3",
// "cmdSaveVows_2", "cmdSaveVows_3".
class usrVowsSide : public usrWidgetSide {
    Q_OBJECT

public:
    explicit usrVowsSide(QWidget* parent = nullptr);

    void Leaving() override;
    int ReportFilter() const override { return 2; }

    // Saves the text of row 2 (the bride's) or 3 (the groom's).
    bool cmdSaveVows_Click(int row);

private:
    QWidget* BuildVows(int row, const QString& name, const QString& caption);
    QLabel* Picture(int row);
    void UpdateSaveButton(int row);
    size_t Slot(int row) const { return static_cast<size_t>(row - clsWORDING::BrideVows); }

    std::array<clsWORDING, 2> mSaved;
    std::array<QPlainTextEdit*, 2> mText{};
    std::array<QPushButton*, 2> mSave{};
};
