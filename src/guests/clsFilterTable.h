#pragma once

#include "core/FilterCode.h"

#include <QString>

// One filter code of the guest lists as data: the condition it puts behind WHERE, whether the bride and
// groom clause follows it, whether it speaks of sent invitations (and so joins INVITE with an inner
// join when contacts are counted), and the caption the report catalogue prints for it.
struct clsFilterRow {
    // Whether ExcludeBrideGroomClause follows the condition: never, as the caller asks, or always.
    enum class Couple { Counted, AsAsked, LeftOut };

    constexpr clsFilterRow(int code, const char* condition, Couple brideGroom = Couple::Counted,
                           bool needsSentInvitation = false, const char* caption = nullptr)
        : Code(code), Condition(condition), BrideGroom(brideGroom), NeedsSentInvitation(needsSentInvitation),
          Caption(caption) {}

    int Code;
    const char* Condition;
    Couple BrideGroom;
    bool NeedsSentInvitation;
    const char* Caption;

    QString CaptionText() const { return Caption != nullptr ? QString::fromLatin1(Caption) : QString(); }
};

// The two tables of filter codes, one of contacts and one of invitations. A code that is in neither
// table has no condition.
class clsFilterTable {
public:
    // The row of a code; nullptr for a code that is no row (the custom codes 1000 and 20, unknown codes).
    static const clsFilterRow* Contact(int code);
    static const clsFilterRow* Invitation(int code);
    // The catalogue's caption of a code; empty when it has none.
    static QString ContactCaption(int code);
    static QString InvitationCaption(int code);
};
