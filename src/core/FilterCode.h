#pragma once

// The filter codes every list, counter and report of guests takes. A filter panel's link carries its
// code, the settings keep it as "FilterIndex", and a report gets it as FilterEnum. The conditions behind
// the codes live with the guests (clsFilterTable); the numbers are named here so that every layer can say
// which list it means.

namespace ContactFilter {
enum Code : int {
    AllContacts = 0,
    FriendOfBride = 1,
    FriendOfGroom = 2,
    FriendOfBoth = 3,
    AList = 4,
    BList = 5,
    Invited = 6,
    NotYetInvited = 7,
    NoAddress = 8,
    InvitedFriendOfBride = 9,
    InvitedFriendOfGroom = 10,
    InvitedFriendOfBoth = 11,
    InvitedAList = 12,
    InvitedBList = 13,
    Attending = 14,
    AttendingFriendOfBride = 15,
    AttendingFriendOfGroom = 16,
    AttendingFriendOfBoth = 17,
    AttendingAList = 18,
    AttendingBList = 19,
    Declined = 20,
    Seated = 21,
    ToBeSeated = 22,
    WithRole = 23,
    Local = 24,
    OutOfTowner = 25,
    InvitedLocal = 26,
    InvitedOutOfTowner = 27,
    AttendingLocal = 28,
    AttendingOutOfTowner = 29,
    NoEmail = 30,
    NoPhone = 31,
    AttendingWithoutFlight = 32,
    AttendingWithFlight = 33,
    AttendingWithoutHotel = 34,
    AttendingWithHotel = 35,
    AwaitingReply = 36,
    Male = 37,
    Female = 38,
    InvitedMale = 39,
    InvitedFemale = 40,
    AttendingMale = 41,
    AttendingFemale = 42,
    Adult = 43,
    Child = 44,
    InvitedAdult = 45,
    InvitedChild = 46,
    AttendingAdult = 47,
    AttendingChild = 48,
    AttendingWithoutMeal = 999,
    // No condition of its own: the caller's condition text is the whole filter.
    Custom = 1000,
};
} // namespace ContactFilter

namespace InviteFilter {
enum Code : int {
    AllInvitations = 0,
    Sent = 1,
    Unsent = 2,
    Received = 3,
    NoReply = 4,
    FriendOfBride = 5,
    FriendOfGroom = 6,
    FriendOfBoth = 7,
    NoAddress = 8,
    Local = 9,
    OutOfTowner = 10,
    SentFriendOfBride = 11,
    SentFriendOfGroom = 12,
    SentFriendOfBoth = 13,
    SentLocal = 14,
    SentOutOfTowner = 15,
    AList = 16,
    BList = 17,
    SentAList = 18,
    SentBList = 19,
    // No condition of its own: the caller's condition text is the whole filter.
    Custom = 20,
};
} // namespace InviteFilter
