#include "reports/clsCustomFilter.h"

#include "guests/clsCONTACT.h"
#include "guests/clsFilterTable.h"
#include "guests/clsINVITE.h"
#include "reports/clsReportCatalogue.h"

#include <QStringList>

namespace {

using Group = clsCustomFilter::Group;

// A box with the catalogue's caption of its code, or with a caption of its own.
struct BoxOf {
    int Code;
    const char* Caption = nullptr;
};

Group BoxesOf(QString (*captionOf)(int), std::initializer_list<BoxOf> boxes)
{
    Group group;
    for (const BoxOf& box : boxes)
        group.Boxes.append({box.Caption ? QString::fromLatin1(box.Caption) : captionOf(box.Code), box.Code});
    return group;
}

Group ContactBoxes(std::initializer_list<BoxOf> boxes)
{
    return BoxesOf(&clsFilterTable::ContactCaption, boxes);
}

Group InvitationBoxes(std::initializer_list<BoxOf> boxes)
{
    return BoxesOf(&clsFilterTable::InvitationCaption, boxes);
}

QList<Group> GroupsOf(int form)
{
    using C = ContactFilter::Code;
    using I = InviteFilter::Code;
    switch (form) {
    case clsCustomFilter::Contacts:
        return {ContactBoxes({{C::FriendOfBride}, {C::FriendOfGroom}, {C::FriendOfBoth}}),
                ContactBoxes({{C::AList, "A list"}, {C::BList, "B list"}}),
                ContactBoxes({{C::Invited}, {C::NotYetInvited}}),
                ContactBoxes({{C::Male}, {C::Female}}),
                ContactBoxes({{C::Adult}, {C::Child}}),
                ContactBoxes({{C::Local}, {C::OutOfTowner}}),
                ContactBoxes({{C::NoAddress}})};
    case clsCustomFilter::Invitations:
        return {InvitationBoxes({{I::Sent}, {I::Unsent}}),
                InvitationBoxes({{I::FriendOfBride}, {I::FriendOfGroom}, {I::FriendOfBoth}}),
                InvitationBoxes({{I::AList, "A list"}, {I::BList, "B list"}}),
                InvitationBoxes({{I::Local}, {I::OutOfTowner}})};
    case clsCustomFilter::RSVPs:
        return {InvitationBoxes({{I::Received}, {I::NoReply}}),
                InvitationBoxes({{I::SentFriendOfBride}, {I::SentFriendOfGroom}, {I::SentFriendOfBoth}}),
                InvitationBoxes({{I::SentAList, "A list"}, {I::SentBList, "B list"}}),
                InvitationBoxes({{I::SentLocal}, {I::SentOutOfTowner}})};
    case clsCustomFilter::Attendees:
        return {ContactBoxes({{C::AttendingFriendOfBride}, {C::AttendingFriendOfGroom}, {C::AttendingFriendOfBoth}}),
                ContactBoxes({{C::AttendingAList, "A list"}, {C::AttendingBList, "B list"}}),
                ContactBoxes({{C::AttendingMale}, {C::AttendingFemale}}),
                ContactBoxes({{C::AttendingAdult}, {C::AttendingChild}}),
                ContactBoxes({{C::AttendingLocal}, {C::AttendingOutOfTowner}}),
                ContactBoxes({{C::Seated}, {C::ToBeSeated}})};
    default:
        return {};
    }
}

} // namespace

clsCustomFilter::clsCustomFilter(int FormNumber)
    : mFormNumber(FormNumber), mGroups(GroupsOf(FormNumber))
{
}

QString clsCustomFilter::HeaderCaption() const
{
    switch (mFormNumber) {
    case Contacts: return QStringLiteral("Contacts");
    case Invitations: return QStringLiteral("Invitations");
    case RSVPs: return QStringLiteral("RSVPs");
    case Attendees: return QStringLiteral("Attendees");
    default: return {};
    }
}

void clsCustomFilter::SetTicked(int key, bool ticked)
{
    if (ticked)
        mTicked.insert(key);
    else
        mTicked.remove(key);
}

// Contacts leave the bride and groom out; the attendees count them, as they attend.
QString clsCustomFilter::Condition(int key) const
{
    if (CountsContacts())
        return clsCONTACT::WHERE_CLAUSE(key, mFormNumber == Contacts);
    return clsINVITE::WHERE_CLAUSE(key);
}

QString clsCustomFilter::BuildWhere() const
{
    QStringList groups;
    for (const Group& group : mGroups) {
        QStringList alternatives;
        for (const Box& box : group.Boxes) {
            if (IsTicked(box.Key))
                alternatives.append(Condition(box.Key));
        }
        if (!alternatives.isEmpty())
            groups.append(QLatin1Char('(') + alternatives.join(QStringLiteral(" OR ")) + QLatin1Char(')'));
    }
    if (groups.isEmpty() && mFormNumber == RSVPs)
        return clsINVITE::WHERE_CLAUSE(InviteFilter::Sent);
    if (groups.isEmpty() && mFormNumber == Attendees)
        return clsCONTACT::WHERE_CLAUSE(ContactFilter::Attending, false);
    return groups.join(QStringLiteral(" AND "));
}

QString clsCustomFilter::FilterCaption() const
{
    QStringList captions;
    for (const Group& group : mGroups) {
        for (const Box& box : group.Boxes) {
            if (IsTicked(box.Key))
                captions.append(box.Caption);
        }
    }
    return captions.join(QLatin1Char('+'));
}

long clsCustomFilter::Count() const
{
    if (CountsContacts())
        return clsCONTACT::GetTotal(clsReportCatalogue::CustomWhereContacts, BuildWhere());
    return clsINVITE::GetTotal(clsReportCatalogue::CustomWhereInvitations, BuildWhere());
}

QString clsCustomFilter::CountText() const
{
    if (!AnyTicked())
        return {};
    return QStringLiteral("custom filter = ") + QString::number(Count()) + QStringLiteral(" records");
}

clsReportRoute clsCustomFilter::Route() const
{
    clsReportRoute route;
    route.FormNumber = mFormNumber;
    switch (mFormNumber) {
    case Contacts: route.ClassName = QStringLiteral("clsRTFContacts"); break;
    case Invitations: route.ClassName = QStringLiteral("clsRTFInvitation"); break;
    case RSVPs: route.ClassName = QStringLiteral("clsRTFRSVP"); break;
    case Attendees: route.ClassName = QStringLiteral("clsRTFAttendees"); break;
    default: return route;
    }
    route.FilterEnum = CountsContacts() ? clsReportCatalogue::CustomWhereContacts
                                        : clsReportCatalogue::CustomWhereInvitations;
    route.FilterText = FilterCaption();
    route.CustomWhere = BuildWhere();
    route.ExcludeBrideGroom = false;
    route.FilePrefix = clsReportCatalogue::FilePrefix(route.ClassName);
    return route;
}
