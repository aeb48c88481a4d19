#include "guests/clsFilterTable.h"

#include <algorithm>
#include <iterator>

namespace {

using Couple = clsFilterRow::Couple;
constexpr bool kSent = true;

// Conditions are exact texts. Where the bride and groom clause follows, the condition ends in the space
// that stands before it.
const clsFilterRow kContactRows[] = {
    {ContactFilter::AllContacts, "", Couple::Counted, false, "All Contacts"},
    {ContactFilter::FriendOfBride, "CONTACT.FRIEND_OF_CD = 1", Couple::Counted, false, "Friend of Bride"},
    {ContactFilter::FriendOfGroom, "CONTACT.FRIEND_OF_CD = 2", Couple::Counted, false, "Friend of Groom"},
    {ContactFilter::FriendOfBoth, "CONTACT.FRIEND_OF_CD = 3", Couple::Counted, false, "Friend of Both"},
    {ContactFilter::AList, "CONTACT.AB_LIST_CD = 'A'", Couple::Counted, false, "A-list"},
    {ContactFilter::BList, "CONTACT.AB_LIST_CD = 'B'", Couple::Counted, false, "B-list"},
    {ContactFilter::Invited, "INVITE.INVITE_SENT_FG = 'Y'", Couple::Counted, kSent, "Invited"},
    {ContactFilter::NotYetInvited, "(INVITE.INVITE_ID Is Null OR INVITE.INVITE_SENT_FG = 'N') ", Couple::LeftOut,
     false, "Not Yet Invited"},
    {ContactFilter::NoAddress, "CONTACT.ADDRESS_TX Is Null", Couple::Counted, false, "No Address"},
    {ContactFilter::InvitedFriendOfBride, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 1", Couple::Counted,
     kSent},
    {ContactFilter::InvitedFriendOfGroom, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 2", Couple::Counted,
     kSent},
    {ContactFilter::InvitedFriendOfBoth, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 3", Couple::Counted,
     kSent},
    {ContactFilter::InvitedAList, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.AB_LIST_CD = 'A'", Couple::Counted, kSent},
    {ContactFilter::InvitedBList, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.AB_LIST_CD = 'B'", Couple::Counted, kSent},
    {ContactFilter::Attending, "CONTACT.ATTENDING_FG = 'Y' ", Couple::AsAsked, false, "All Attendees"},
    {ContactFilter::AttendingFriendOfBride, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 1 ",
     Couple::AsAsked, false, "Friend of Bride"},
    {ContactFilter::AttendingFriendOfGroom, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 2 ",
     Couple::AsAsked, false, "Friend of Groom"},
    {ContactFilter::AttendingFriendOfBoth, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 3 ",
     Couple::AsAsked, false, "Friend of Both"},
    {ContactFilter::AttendingAList, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.AB_LIST_CD = 'A' ", Couple::AsAsked,
     false, "A-list"},
    {ContactFilter::AttendingBList, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.AB_LIST_CD = 'B' ", Couple::AsAsked,
     false, "B-list"},
    {ContactFilter::Declined,
     "INVITE.INVITE_SENT_FG = 'Y' AND INVITE.RSVP_RECEIVED_FG = 'Y' AND CONTACT.ATTENDING_FG = 'N'", Couple::Counted,
     kSent},
    // Seated people, whether or not they still come.
    {ContactFilter::Seated, "CONTACT.DINING_TABLE_ID Is Not Null ", Couple::AsAsked, false, "Seated"},
    {ContactFilter::ToBeSeated, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.DINING_TABLE_ID Is Null ", Couple::AsAsked,
     false, "To be seated"},
    {ContactFilter::WithRole, "CONTACT.ROLE_ID Is Not Null", Couple::Counted, false},
    {ContactFilter::Local, "CONTACT.OUT_OF_TOWNER_FG = 'N'", Couple::Counted, false, "Local"},
    {ContactFilter::OutOfTowner, "CONTACT.OUT_OF_TOWNER_FG = 'Y'", Couple::Counted, false, "Out of Towner"},
    {ContactFilter::InvitedLocal, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.OUT_OF_TOWNER_FG = 'N'", Couple::Counted,
     kSent},
    {ContactFilter::InvitedOutOfTowner, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.OUT_OF_TOWNER_FG = 'Y'",
     Couple::Counted, kSent},
    {ContactFilter::AttendingLocal, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.OUT_OF_TOWNER_FG = 'N' ", Couple::AsAsked,
     false, "Local"},
    {ContactFilter::AttendingOutOfTowner, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.OUT_OF_TOWNER_FG = 'Y' ",
     Couple::AsAsked, false, "Out of Towner"},
    {ContactFilter::NoEmail, "CONTACT.EMAIL_TX Is Null", Couple::Counted, false, "No E-mail Address"},
    {ContactFilter::NoPhone, "CONTACT.PHONE_TX Is Null", Couple::Counted, false, "No Phone Number"},
    {ContactFilter::AttendingWithoutFlight, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.FLIGHT_ID Is Null"},
    {ContactFilter::AttendingWithFlight, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.FLIGHT_ID Is Not Null"},
    {ContactFilter::AttendingWithoutHotel, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.HOTEL_ID Is Null"},
    {ContactFilter::AttendingWithHotel, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.HOTEL_ID Is Not Null"},
    {ContactFilter::AwaitingReply, "INVITE.INVITE_SENT_FG = 'Y' AND INVITE.RSVP_RECEIVED_FG = 'N'", Couple::Counted,
     kSent},
    {ContactFilter::Male, "CONTACT.GENDER_FG = 'M'", Couple::Counted, false, "Male"},
    {ContactFilter::Female, "CONTACT.GENDER_FG = 'F'", Couple::Counted, false, "Female"},
    {ContactFilter::InvitedMale, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.GENDER_FG = 'M'", Couple::Counted, kSent},
    {ContactFilter::InvitedFemale, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.GENDER_FG = 'F'", Couple::Counted, kSent},
    {ContactFilter::AttendingMale, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.GENDER_FG = 'M'", Couple::Counted, false,
     "Male"},
    {ContactFilter::AttendingFemale, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.GENDER_FG = 'F'", Couple::Counted, false,
     "Female"},
    {ContactFilter::Adult, "CONTACT.CHILD_FG = 'N'", Couple::Counted, false, "Adult"},
    {ContactFilter::Child, "CONTACT.CHILD_FG = 'Y'", Couple::Counted, false, "Child"},
    {ContactFilter::InvitedAdult, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.CHILD_FG = 'N'", Couple::Counted, kSent},
    {ContactFilter::InvitedChild, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.CHILD_FG = 'Y'", Couple::Counted, kSent},
    {ContactFilter::AttendingAdult, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.CHILD_FG = 'N'", Couple::Counted, false,
     "Adult"},
    {ContactFilter::AttendingChild, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.CHILD_FG = 'Y'", Couple::Counted, false,
     "Child"},
    {ContactFilter::AttendingWithoutMeal, "CONTACT.ATTENDING_FG = 'Y' AND CONTACT.MEAL_ID Is Null ", Couple::AsAsked},
};

// Each condition is asked of the invitation's primary contact, which the gateway adds in front.
const clsFilterRow kInvitationRows[] = {
    {InviteFilter::AllInvitations, "", Couple::Counted, false, "All Invitations"},
    {InviteFilter::Sent, "INVITE.INVITE_SENT_FG = 'Y'", Couple::Counted, false, "Sent"},
    {InviteFilter::Unsent, "INVITE.INVITE_SENT_FG = 'N'", Couple::Counted, false, "Unsent"},
    {InviteFilter::Received, "INVITE.RSVP_RECEIVED_FG = 'Y' AND INVITE.INVITE_SENT_FG = 'Y'", Couple::Counted, false,
     "Received"},
    {InviteFilter::NoReply, "INVITE.RSVP_RECEIVED_FG = 'N' AND INVITE.INVITE_SENT_FG = 'Y'", Couple::Counted, false,
     "No Reply"},
    {InviteFilter::FriendOfBride, "CONTACT.FRIEND_OF_CD = 1", Couple::Counted, false, "Friend of Bride"},
    {InviteFilter::FriendOfGroom, "CONTACT.FRIEND_OF_CD = 2", Couple::Counted, false, "Friend of Groom"},
    {InviteFilter::FriendOfBoth, "CONTACT.FRIEND_OF_CD = 3", Couple::Counted, false, "Friend of Both"},
    {InviteFilter::NoAddress, "CONTACT.ADDRESS_TX Is Null", Couple::Counted, false, "No Address"},
    {InviteFilter::Local, "CONTACT.OUT_OF_TOWNER_FG = 'N'", Couple::Counted, false, "Local"},
    {InviteFilter::OutOfTowner, "CONTACT.OUT_OF_TOWNER_FG = 'Y'", Couple::Counted, false, "Out of Towner"},
    {InviteFilter::SentFriendOfBride, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 1", Couple::Counted,
     false, "Friend of Bride"},
    {InviteFilter::SentFriendOfGroom, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 2", Couple::Counted,
     false, "Friend of Groom"},
    {InviteFilter::SentFriendOfBoth, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.FRIEND_OF_CD = 3", Couple::Counted,
     false, "Friend of Both"},
    {InviteFilter::SentLocal, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.OUT_OF_TOWNER_FG = 'N'", Couple::Counted, false,
     "Local"},
    {InviteFilter::SentOutOfTowner, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.OUT_OF_TOWNER_FG = 'Y'", Couple::Counted,
     false, "Out of Towner"},
    {InviteFilter::AList, "CONTACT.AB_LIST_CD = 'A'", Couple::Counted, false, "A-list"},
    {InviteFilter::BList, "CONTACT.AB_LIST_CD = 'B'", Couple::Counted, false, "B-list"},
    {InviteFilter::SentAList, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.AB_LIST_CD = 'A'", Couple::Counted, false,
     "A-list"},
    {InviteFilter::SentBList, "INVITE.INVITE_SENT_FG = 'Y' AND CONTACT.AB_LIST_CD = 'B'", Couple::Counted, false,
     "B-list"},
};

template <size_t N> const clsFilterRow* Find(const clsFilterRow (&rows)[N], int code) {
    const auto row = std::find_if(std::begin(rows), std::end(rows), [code](const clsFilterRow& r) { return r.Code == code; });
    return row == std::end(rows) ? nullptr : row;
}

QString CaptionOf(const clsFilterRow* row) { return row != nullptr ? row->CaptionText() : QString(); }

} // namespace

const clsFilterRow* clsFilterTable::Contact(int code) { return Find(kContactRows, code); }

const clsFilterRow* clsFilterTable::Invitation(int code) { return Find(kInvitationRows, code); }

QString clsFilterTable::ContactCaption(int code) { return CaptionOf(Contact(code)); }

QString clsFilterTable::InvitationCaption(int code) { return CaptionOf(Invitation(code)); }
