#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

class QHBoxLayout;
class QProgressBar;
class usrHyperlink;

// A row of link-style tabs ("link_0", "link_1", ...), the one at SelectedIndex shown as chosen, and
// a progress bar "prgProgress" beside them that long loads show while they work. A click, or Enter or
// Space on the focused tab, selects it and raises Click with its index; Left and Right move the focus.
class usrLinks : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(int ProgressMax READ ProgressMax WRITE setProgressMax)
    Q_PROPERTY(int ProgressValue READ ProgressValue WRITE setProgressValue)
    Q_PROPERTY(bool ProgressVisible READ ProgressVisible WRITE setProgressVisible)
    Q_PROPERTY(int SelectedIndex READ SelectedIndex WRITE setSelectedIndex)

public:
    explicit usrLinks(QWidget* parent = nullptr);

    // Replaces the tabs.
    void SetLinks(const QStringList& captions);
    // Adds a tab; gives back its index.
    int AddLink(const QString& caption);
    int LinkCount() const { return static_cast<int>(mLinks.size()); }
    usrHyperlink* Link(int index) const;

    QColor ForeColor() const { return mForeColor; }
    void setForeColor(const QColor& color);
    int ProgressMax() const;
    void setProgressMax(int maximum);
    int ProgressValue() const;
    // Clamped to 0..ProgressMax.
    void setProgressValue(int value);
    bool ProgressVisible() const { return mProgressVisible; }
    void setProgressVisible(bool visible);
    // -1: none chosen. Setting it does not raise Click.
    int SelectedIndex() const { return mSelected; }
    void setSelectedIndex(int index);

signals:
    void Click(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void StyleLinks();
    void OnLinkClicked(int index);

    QHBoxLayout* mTabs = nullptr;
    QProgressBar* mProgress = nullptr;
    QList<usrHyperlink*> mLinks;
    QColor mForeColor;
    bool mProgressVisible = false;
    int mSelected = -1;
};
