#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

// Writes a songlist, or every song, as a playlist file. Children: "usrSONGLIST" (the lists, "(All)"
// first, each with its count), "txtPath", "chkPlay", "cmdGenerate", "cmdCancel". A file that cannot be
// written is reported and the dialog stays open.
class frmCreateWPL : public QDialog {
    Q_OBJECT

public:
    explicit frmCreateWPL(QWidget* parent = nullptr);

    bool cmdGenerate_Click();

signals:
    void PlaylistCreated(const QString& path, bool playNow);

private:
    void usrSONGLIST_Change();
    void UpdateGenerate();

    QComboBox* mList = nullptr;
    QLineEdit* mPath = nullptr;
    QCheckBox* mPlay = nullptr;
    QPushButton* mGenerate = nullptr;
};
