#include "widgets/ui/usrEventSide.h"

#include "core/RecordIO.h"
#include "shell/controls/modLayout.h"
#include "widgets/clsINVITE_WIDGET.h"
#include "widgets/ui/usrEventList.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

usrEventSide::usrEventSide(QWidget* parent) : usrWidgetSide(parent) {
    setObjectName(QStringLiteral("usrEventSide"));
    mPicture = new QLabel(this);
    mPicture->setObjectName(QStringLiteral("picBridalShower"));
    mCaption = new QLabel(this);
    mCaption->setObjectName(QStringLiteral("lblEvent"));
    mCaption->setWordWrap(true);
    mInvitations = new QRadioButton(QStringLiteral("Invitations"), this);
    mInvitations->setObjectName(QStringLiteral("optList_0"));
    mInvitations->setChecked(true);
    mContacts = new QRadioButton(QStringLiteral("Contacts"), this);
    mContacts->setObjectName(QStringLiteral("optList_1"));
    mInvitedHeader = modLayout::BoldLabel(QStringLiteral("lblInvited"), this);
    mCandidates = new usrEventList(this);
    mCandidates->setObjectName(QStringLiteral("lvw_0"));
    mInvited = new usrEventList(this);
    mInvited->setObjectName(QStringLiteral("lvw_1"));

    auto* header = new QHBoxLayout;
    header->addWidget(mPicture);
    header->addWidget(mCaption, 1);
    auto* choice = new QHBoxLayout;
    choice->addWidget(mInvitations);
    choice->addWidget(mContacts);
    choice->addStretch();
    auto* lists = new QGridLayout;
    lists->addLayout(choice, 0, 0);
    lists->addWidget(mInvitedHeader, 0, 1);
    lists->addWidget(mCandidates, 1, 0);
    lists->addWidget(mInvited, 1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(header);
    layout->addLayout(lists, 1);

    connect(mInvitations, &QRadioButton::toggled, this, &usrEventSide::LoadLists);
    // A drop reloads both lists once the drag is over.
    for (usrEventList* list : {mCandidates, mInvited})
        connect(list, &usrEventList::Dropped, this, &usrEventSide::lvw_Dropped, Qt::QueuedConnection);
}

QString usrEventSide::PictureName(const QString& eventName) {
    const QString upper = eventName.toUpper();
    if (upper.contains(QLatin1String("SHOWER")))
        return QStringLiteral("shower");
    if (upper.contains(QLatin1String("REHEARSAL")))
        return QStringLiteral("rehearsal");
    return QStringLiteral("event");
}

void usrEventSide::ShowEvent(const QString& eventId, const QString& eventName) {
    mEventId = eventId;
    mEventName = eventName;
    mPicture->setProperty("Picture", PictureName(eventName));
    mPicture->setPixmap(QIcon(QStringLiteral(":/widgets/%1.svg").arg(PictureName(eventName))).pixmap(72, 72));
    mCaption->setText(
        QStringLiteral("Drag contacts or invitations to the ") + eventName +
        QStringLiteral(" Invitations list.\nWhen you are done with your list, click 'Print reports'."));
    LoadLists();
}

void usrEventSide::LoadLists() {
    mCandidates->clear();
    mInvited->clear();
    const bool contacts = mContacts->isChecked();
    RecordIO::Attempt([&] {
        for (const clsINVITE_WIDGET::Candidate& candidate : clsINVITE_WIDGET::Candidates(mEventId, contacts))
            mCandidates->AddItem(candidate.Key, candidate.Caption);
        for (const clsINVITE_WIDGET& row : clsINVITE_WIDGET::OpenRecords(mEventId)) {
            if (row.CONTACT_ID.isEmpty())
                mInvited->AddItem(QStringLiteral("INVITE") + row.INVITE_ID, row.DISPLAY_NM);
            else
                mInvited->AddItem(QStringLiteral("CONTACT") + row.CONTACT_ID, row.NAME_TX);
        }
    });
    mInvitedHeader->setText(mEventName + QStringLiteral(" Invitations (") +
                            QString::number(mInvited->count()) + QLatin1Char(')'));
}

void usrEventSide::lvw_Dropped(const QStringList& keys, const QString& fromList) {
    const bool toTheList = fromList == mCandidates->objectName();
    RecordIO::Attempt([&] {
        if (toTheList)
            clsINVITE_WIDGET::Invite(mEventId, keys);
        else
            clsINVITE_WIDGET::Uninvite(mEventId, keys);
    });
    LoadLists();
}
