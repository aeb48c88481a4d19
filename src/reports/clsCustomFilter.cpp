#include "reports/clsCustomFilter.h"

#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "reports/clsReportCatalogue.h"

#include <QStringList>

namespace {

using Group = clsCustomFilter::Group;

Group Boxes(std::initializer_list<std::pair<const char*, int>> boxes)
{
    Group group;
    for (const auto& [caption, key] : boxes)
        group.Boxes.append({QString::fromUtf8(caption), key});
    return group;
}

QList<Group> GroupsOf(int form)
{
    switch (form) {
    case clsCustomFilter::Contacts:
        return {Boxes({{"Friend of Bride", 1}, {"Friend of Groom", 2}, {"Friend of Both", 3}}),
                Boxes({{"A list", 4}, {"B list", 5}}),
                Boxes({{"Invited", 6}, {"Not Yet Invited", 7}}),
                Boxes({{"Male", 37}, {"Female", 38}}),
                Boxes({{"Adult", 43}, {"Child", 44}}),
                Boxes({{"Local", 24}, {"Out of Towner", 25}}),
                Boxes({{"No Address", 8}})};
    case clsCustomFilter::Invitations:
        return {Boxes({{"Sent", 1}, {"Unsent", 2}}),
                Boxes({{"Friend of Bride", 5}, {"Friend of Groom", 6}, {"Friend of Both", 7}}),
                Boxes({{"A list", 16}, {"B list", 17}}),
                Boxes({{"Local", 9}, {"Out of Towner", 10}})};
    case clsCustomFilter::RSVPs:
        return {Boxes({{"Received", 3}, {"No Reply", 4}}),
                Boxes({{"Friend of Bride", 11}, {"Friend of Groom", 12}, {"Friend of Both", 13}}),
                Boxes({{"A list", 18}, {"B list", 19}}),
                Boxes({{"Local", 14}, {"Out of Towner", 15}})};
    case clsCustomFilter::Attendees:
        return {Boxes({{"Friend of Bride", 15}, {"Friend of Groom", 16}, {"Friend of Both", 17}}),
                Boxes({{"A list", 18}, {"B list", 19}}),
                Boxes({{"Male", 41}, {"Female", 42}}),
                Boxes({{"Adult", 47}, {"Child", 48}}),
                Boxes({{"Local", 28}, {"Out of Towner", 29}}),
                Boxes({{"Seated", 21}, {"To be seated", 22}})};
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
        return clsINVITE::WHERE_CLAUSE(1);
    if (groups.isEmpty() && mFormNumber == Attendees)
        return clsCONTACT::WHERE_CLAUSE(14, false);
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
