#pragma once

#include "widgets/ui/usrWidgetSide.h"

class QLabel;
class QRadioButton;
class usrEventList;

// The guest list of an event other than the wedding day: candidates on the left (invitations or
// contacts not on the list yet), the invited on the right, moved both ways by dragging. Children:
// "picBridalShower", "lblEvent", "optList_0" (Invitations), "optList_1" (Contacts), "lvw_0", "lvw_1",
// "lblInvited" (the right list's header).
class usrEventSide : public usrWidgetSide {
    Q_OBJECT

public:
    explicit usrEventSide(QWidget* parent = nullptr);

    // Shows the event's lists.
    void ShowEvent(const QString& eventId, const QString& eventName);
    int ReportFilter() const override { return mEventId.toInt() + 99; }

    // The picture of the header by the event's name: "shower", "rehearsal" or "event".
    static QString PictureName(const QString& eventName);

private:
    void LoadLists();
    void lvw_Dropped(const QStringList& keys, const QString& fromList);

    QString mEventId;
    QString mEventName;
    QLabel* mPicture = nullptr;
    QLabel* mCaption = nullptr;
    QLabel* mInvitedHeader = nullptr;
    QRadioButton* mInvitations = nullptr;
    QRadioButton* mContacts = nullptr;
    usrEventList* mCandidates = nullptr;
    usrEventList* mInvited = nullptr;
};
