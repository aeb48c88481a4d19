#pragma once

#include <QDialog>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// The e-mail addresses of the selected contacts in one list, to copy or to start a message with.
// Children: "lblHeader", "txt" (the list), "cmdCopy", "cmdEmail", "cmdCancel".
class frmContactEmail : public QDialog {
    Q_OBJECT

public:
    // The list as AddressList gives it, and the number of contacts selected.
    frmContactEmail(int selectedCount, const QString& addresses, QWidget* parent = nullptr);

    // Every text that holds an "@", each followed by ";"; the others are left out.
    static QString AddressList(const QStringList& emails);

    QString Addresses() const;

private:
    void cmdCopy_Click();
    void cmdEmail_Click();

    QPlainTextEdit* mList = nullptr;
    QLabel* mCopied = nullptr;
};
