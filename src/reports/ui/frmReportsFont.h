#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class usrHyperlink;

// Shows a font's name and size in two links, each in that very font (at a size the form can hold).
void ShowFontLinks(usrHyperlink* fontLink, usrHyperlink* sizeLink, const QString& fontName,
                   const QString& fontSize);

// "Select Font": the one font of a report and its size, with a sample that follows both lists.
class frmReportsFont : public QDialog {
    Q_OBJECT
public:
    frmReportsFont(const QString& fontName, const QString& fontSize, QWidget* parent = nullptr);

    QString FontName() const;
    QString FontSize() const;

signals:
    void FontChanged(const QString& rsFONT_NAME, const QString& rsFONT_SIZE);

private:
    void UpdateExample();
    void cmdOK_Click();

    QComboBox* cboFont = nullptr;
    QComboBox* cboFontSize = nullptr;
    QLabel* lblExample = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
