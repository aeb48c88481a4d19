#pragma once

#include "widgets/clsWORDING.h"
#include "widgets/modWording.h"
#include "widgets/ui/usrWidgetSide.h"

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class usrHyperlink;

// The invitation wording: the parents' links, the questions, and the generated or saved text with its
// save button. Children: "link_3" to "link_6" and "linkRE_3" to "linkRE_6" (the parents and their
// "remarried" links), "lblBrideHeader", "lblGroomHeader", "cbo_0", "cbo_1", "txt_2", "txt_3",
// "chkReceptionWording", "optPreview_0", "optPreview_1", "lblInvitation", "txtInvitation",
// "cmdSaveInvitation".
class usrWordingSide : public usrWidgetSide {
    Q_OBJECT

public:
    explicit usrWordingSide(QWidget* parent = nullptr);

    void Leaving() override;
    int ReportFilter() const override { return 1; }

    // Writes the text on the screen to the saved wording.
    bool cmdSaveInvitation_Click();
    // Makes the text anew from the inputs (nothing while "Saved" is shown).
    void Generate();

private:
    QWidget* BuildFamilies();
    QWidget* BuildQuestions();
    QWidget* BuildResult();
    void LoadPeople();
    void ShowParent(int roleId);
    void ShowRemarried(int roleId, const QString& contactId);
    void link_Click(int roleId);
    void linkRE_Click(int roleId);
    void optPreview_Click(bool preview);
    void InputChanged();
    void UpdateSaveButton();
    void AskToSave();
    modWording::Choices ChoicesOnScreen() const;
    bool IsPreview() const;

    modWording::Choices mChoices;
    modWording::People mPeople;
    clsWORDING mSaved;
    std::array<usrHyperlink*, 4> mLink{};
    std::array<usrHyperlink*, 4> mRemarried{};
    QLabel* mBrideHeader = nullptr;
    QLabel* mGroomHeader = nullptr;
    QComboBox* mTemplate = nullptr;
    QComboBox* mPhrase = nullptr;
    QPlainTextEdit* mPlace = nullptr;
    QCheckBox* mReception = nullptr;
    QPlainTextEdit* mReceptionPlace = nullptr;
    QRadioButton* mPreview = nullptr;
    QRadioButton* mSavedOption = nullptr;
    QLabel* mInvitationLabel = nullptr;
    QPlainTextEdit* mInvitation = nullptr;
    QPushButton* mSave = nullptr;
    bool mLoading = false;
};
