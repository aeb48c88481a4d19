#pragma once

#include "guests/clsCONTACT.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <array>

// The formal wording of the wedding invitation, assembled from the couple's records: who hosts (one of
// 19 templates, whose index is its meaning), the request phrase, the wedding day spelled out in words,
// the place and an optional reception line. Nothing here reads the screen; the page and the command line
// hand in the same choices and get the same lines.
namespace modWording {

inline constexpr int kTemplateCount = 19;
inline constexpr int kDefaultTemplate = 11;

// The hosts' templates in their fixed order (never sorted: the index is the meaning).
const QStringList& TemplateNames();
// 0 "request the honour of your presence", 1 "request the pleasure of your company".
const QStringList& Phrases();

// What the user chose, kept below the widgets page's settings key under the names the page's controls
// carry ("cbo_0", "txt_2", "linkre_4" ...), with their defaults for whatever was never stored.
struct Choices {
    int Template = kDefaultTemplate;
    int Phrase = 0;
    QString Place = DefaultPlace();
    bool Reception = true;
    QString ReceptionPlace = DefaultReceptionPlace();
    // The contact chosen as the new spouse of the parent of roles 3 to 6; empty for none.
    std::array<QString, 4> Remarried;

    QString& RemarriedTo(int roleId) { return Remarried.at(static_cast<size_t>(roleId - 3)); }
    const QString& RemarriedTo(int roleId) const { return Remarried.at(static_cast<size_t>(roleId - 3)); }

    static QString DefaultPlace();
    static QString DefaultReceptionPlace();
    static Choices Load();
    void Save() const;
};

// The settings key of the widgets page, below which the choices and the chosen side are kept.
QString SettingsKey();

// The people the templates name: the couple, the parents, and the new
// husband of the bride's mother (an empty contact when there is none).
struct People {
    clsCONTACT Bride;
    clsCONTACT Groom;
    clsCONTACT BrideFather;
    clsCONTACT BrideMother;
    clsCONTACT GroomFather;
    clsCONTACT GroomMother;
    clsCONTACT NewHusband;

    // The parent of the role 3 to 6.
    const clsCONTACT& Parent(int roleId) const;

    // Reads them from the database: the couple by their rows, the parents by the roles 3 to 6, the new
    // husband by the contact chosen for the mother of the bride. Throws clsDbError.
    static People Open(const Choices& choices);
};

// ---- The date in words ----
// "first" ... "thirty-first" for 1 to 31; empty otherwise.
QString DayWord(int day);
// "one" ... "ninety-nine" for 1 to 99; empty otherwise.
QString NumberWord(int number);
// "Two thousand and twenty-seven"; "Two thousand" for 2000; any year outside 2000 to 2099 reads
// "Two thousand and [enter appropriate date]".
QString YearLine(int year);
// "at six o'clock in the evening", "at half past two in the afternoon", "at a quarter to seven in the
// evening", "at ten minutes past six in the evening".
QString TimeLine(const QTime& time);
// Three lines: "Saturday the fourteenth of June", the year line, the time line.
QStringList DateLines(const QDateTime& when);

// ---- The wording ----
// The lines of the invitation, starting with one empty line; empty for a template outside 0 to 18.
QStringList Lines(const Choices& choices, const People& people, const QDateTime& when);
// The lines joined by CR LF, as the text is kept.
QString Text(const Choices& choices, const People& people, const QDateTime& when);

} // namespace modWording
