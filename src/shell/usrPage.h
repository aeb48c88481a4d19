#pragma once

#include <QList>
#include <QWidget>

class QAction;

// A page of the main window. The frame connects to these signals when it shows the page; a page raises
// only those it needs.
class usrPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    // The breadcrumb's second link was clicked: the page goes back to its top level. Most pages have
    // only one level and do nothing.
    virtual void GoToTopLevel() {}
    // A sub-page this page opened has gone; what it changed may show here.
    virtual void SubPageClosed(const QString& formName) { Q_UNUSED(formName); }
    // The page is about to go (another page was chosen, its sub-page was closed, the window closes):
    // the last chance to write what it keeps on leaving.
    virtual void Leaving() {}
    // The page's entries of the frame's Edit menu (Undo and Redo, say); the menu is there only while
    // the page shown offers some.
    virtual QList<QAction*> EditActions() const { return {}; }

signals:
    // Change to another page (or 13, the options dialog).
    void ShowForm(int index);
    // Show page index (when it is not the one shown) and over it its sub-page of that form name.
    void ShowSubPage(int index, const QString& formName);
    // Levels joined by ">", shown after "Home". Raised when the page shows, not in its constructor.
    void Breadcrumb(const QString& text);
    // Home tells whether the header's links may be used.
    void EnableToolbar(bool enable);
    // The couple's names or the wedding day changed.
    void UpdateWeddingCouple();
    // A playlist was written: the footer makes it the current one, and plays it when asked to.
    void PlaylistCreated(const QString& path, bool playNow);
};
