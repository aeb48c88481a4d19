#pragma once

#include "shell/usrPage.h"

#include <QList>
#include <QPair>

class QButtonGroup;
class QStackedWidget;
class usrEventSide;
class usrSongsSide;
class usrVowsSide;
class usrWidgetSide;
class usrWordingSide;

// The wedding widgets: the sides "Invitation Wording" (0), "Wedding Vows" (1), "Songs" (2) and one side
// per event other than the wedding day, chosen by the options "opt_0", "opt_1" ... The chosen side is
// kept as "optWidget"; one that is gone falls back to 0. "linkPrint" opens the reports on the side's row.
class frmMain_12_Widgets : public usrPage {
    Q_OBJECT

public:
    explicit frmMain_12_Widgets(QWidget* parent = nullptr);

    void Leaving() override;
    // Shows the side of that index; the side left asks about what it would lose first.
    void opt_Click(int index);
    int CurrentSide() const { return mCurrent; }
    int SideCount() const;

    // An event's name as its option shows it: at most 20 characters, with "..." behind when longer.
    static QString EventCaption(const QString& eventName);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* BuildOptions();
    usrWidgetSide* Side(int index) const;

    // The events with a side: id and name, in the order of the events.
    QList<QPair<QString, QString>> mEvents;
    QButtonGroup* mOptions = nullptr;
    QStackedWidget* mStack = nullptr;
    usrWordingSide* mWording = nullptr;
    usrVowsSide* mVows = nullptr;
    usrSongsSide* mSongs = nullptr;
    usrEventSide* mEvent = nullptr;
    int mCurrent = -1;
};
