#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

// The search box of the list pages: an empty field shows the grey prompt "Search" (gone while the
// field has the focus), every change raises Search with the text, and the clear button "picClose"
// or the Escape key empties it. Children: "txtSearch", "picClose".
class usrSearch : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(QString Text READ Text WRITE setText STORED false)

public:
    explicit usrSearch(QWidget* parent = nullptr);

    // The typed text; empty while the prompt shows.
    QString Text() const;
    // Puts a text in; raises Search when it differs.
    void setText(const QString& text);
    // Empties the field without raising Search (the page resets its own state).
    void Reset();
    // Puts the focus into the field with its text selected, ready to type over (Ctrl+F on a page).
    void SetFocusEx();

    QLineEdit* LineEdit() const { return mText; }

signals:
    void Search(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PlaceClearButton();
    void ShowPrompt(bool show);

    QLineEdit* mText = nullptr;
    QToolButton* mClose = nullptr;
};
