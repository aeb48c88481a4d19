#pragma once

#include <QColor>
#include <QWidget>

class QComboBox;
class QToolButton;

// Carries the options screen's news to every drop-down that is alive: after a dictionary changed,
// each drop-down fed by that kind (or by a query) fills itself again.
class usrDropdownNotifier : public QObject {
    Q_OBJECT
signals:
    // kind -1: any dictionary may have changed.
    void OptionsUpdated(int kind);
};

// A list to choose one row of a dictionary or of a query, with an optional add button ("Click to add
// vendor", key Insert) and edit button (key F2) beside it. Each row has a text and a key (Code).
// Children: "cbo" (the list), "cmdAdd", "cmdEdit".
class usrDropdown : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool AddIsVisible READ AddIsVisible WRITE setAddIsVisible STORED false)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(QString Code READ Code WRITE setCode STORED false)
    Q_PROPERTY(bool EditIsVisible READ EditIsVisible WRITE setEditIsVisible)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(int ListCount READ ListCount STORED false)
    Q_PROPERTY(int ListIndex READ ListIndex WRITE setListIndex STORED false)
    Q_PROPERTY(QString Text READ Text WRITE setText STORED false)

public:
    explicit usrDropdown(QWidget* parent = nullptr);

    bool AddIsVisible() const { return mAddIsVisible; }
    void setAddIsVisible(bool visible);
    bool EditIsVisible() const { return mEditIsVisible; }
    void setEditIsVisible(bool visible);
    QColor BackColor() const;
    void setBackColor(const QColor& color);

    // The selected row's key; "" when nothing is selected. Setting a key that no row has selects nothing.
    QString Code() const { return ItemCode(ListIndex()); }
    void setCode(const QString& code);
    int ListCount() const;
    // -1 when nothing is selected.
    int ListIndex() const;
    void setListIndex(int index);
    // The selected row's text; setting a text selects the first row that has it (any case).
    QString Text() const;
    void setText(const QString& text);
    QString ItemText(int index) const;
    QString ItemCode(int index) const;

    void AddItem(const QString& text, const QString& code = QString());
    void Clear();
    // The first row whose text begins with the given text, in any case; -1 when none does.
    int FindString(const QString& text) const;
    // Fills the list with the rows of a dictionary kind (songlists in their order, the rest
    // alphabetically) and remembers the kind for refreshes. False after a message.
    bool PopulateX(int kind);
    // Fills the list from a query: the first column is the key, the second the text (the first again
    // when there is only one). Remembered for refreshes. False after a message.
    bool PopulateSQL(const QString& sql);
    // Makes the opened list wide enough for its longest text.
    void ResizeDropdownArea();

    // The tool tips of the two buttons.
    void setAddToolTip(const QString& tip);
    void setEditToolTip(const QString& tip);

    QComboBox* ComboBox() const { return mCombo; }

    // The one notifier all drop-downs listen to, and a shorthand that tells them all.
    static usrDropdownNotifier& Notifier();
    static void NotifyOptionsUpdated(int kind = -1);

public slots:
    // Fills the list again after a dictionary changed, keeping the selected row when it still exists.
    // Does nothing when the kind is not the one this list shows (-1 means any).
    void mfrmOptions_OptionsUpdated(int kind = -1);

signals:
    // The user chose a row (by mouse or keyboard).
    void Click();
    void AddClick();
    void EditClick();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Source { None, Kind, Query };
    bool Refill();
    bool FillFromKind(int kind);
    bool FillFromQuery(const QString& sql);
    void UpdateButtons();
    bool HandleKey(int key);

    QComboBox* mCombo = nullptr;
    QToolButton* mAdd = nullptr;
    QToolButton* mEdit = nullptr;
    bool mAddIsVisible = false;
    bool mEditIsVisible = false;
    Source mSource = Source::None;
    int mKind = -1;
    QString mSql;
};
