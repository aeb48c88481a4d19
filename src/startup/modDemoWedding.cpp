#include "startup/modDemoWedding.h"

#include "core/clsDB.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"
#include "planning/clsGIFT.h"
#include "planning/clsNOTEBOOK.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "planning/clsVENDOR.h"
#include "seating/clsDINING_TABLE.h"
#include "seating/clsFLIGHT.h"
#include "seating/clsHOTEL.h"
#include "seating/clsTENTCARD.h"
#include "widgets/clsINVITE_WIDGET.h"
#include "widgets/clsSONG.h"
#include "widgets/clsWORDING.h"

#include <QDate>
#include <QRandomGenerator>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace {

const QString kCrLf = QStringLiteral("\r\n");
const QDate kWeddingDay(2027, 6, 12);

// A step that reports failure through its own message stops the whole fill.
struct DemoFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

void Must(bool ok, const char* what) {
    if (!ok)
        throw DemoFailure(what);
}

QString Iso(const QDate& date, int hour = 0, int minute = 0) {
    if (hour == 0 && minute == 0)
        return date.toString(QStringLiteral("yyyy-MM-dd"));
    return date.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(" %1:%2:00")
                                                             .arg(hour, 2, 10, QLatin1Char('0'))
                                                             .arg(minute, 2, 10, QLatin1Char('0'));
}

QString Num(qint64 n) {
    return QString::number(n);
}

// ---- Word lists ------------------------------------------------------------------------------------

const QStringList kMen = {"James",  "Michael", "Robert",  "David",    "William", "Richard",
                          "Thomas", "Daniel",  "Matthew", "Andrew",   "Joshua",  "Ryan",
                          "Brian",  "Kevin",   "Jason",   "Samuel",   "Nathan",  "Patrick",
                          "Henry",  "Charles", "George",  "Edward",   "Peter",   "Paul",
                          "Mark",   "Steven",  "Anthony", "Jonathan", "Gregory", "Timothy"};
const QStringList kWomen = {"Mary",    "Jennifer", "Elizabeth", "Sarah",   "Jessica",  "Emily",
                            "Laura",   "Rachel",   "Hannah",    "Megan",   "Lauren",   "Katherine",
                            "Anna",    "Olivia",   "Grace",     "Claire",  "Margaret", "Susan",
                            "Karen",   "Nancy",    "Rebecca",   "Amanda",  "Victoria", "Julia",
                            "Natalie", "Abigail",  "Caroline",  "Allison", "Diane",    "Helen"};
const QStringList kBoys = {"Liam", "Noah", "Owen", "Lucas", "Ethan", "Caleb", "Jack", "Leo", "Henry", "Finn"};
const QStringList kGirls = {"Emma", "Ava", "Lily", "Chloe", "Zoe", "Mia", "Ella", "Ruby", "Nora", "Ivy"};
const QStringList kMiddleMen = {"Lee", "James", "John", "Alan", "Thomas", "Wayne", "Scott", "Edward"};
const QStringList kMiddleWomen = {"Ann", "Marie", "Lynn", "Rose", "Louise", "Jane", "Elaine", "Kay"};
const QStringList kLast = {"Anderson",   "Bennett", "Brooks",  "Campbell", "Carter",   "Collins", "Cooper",
                           "Davis",      "Edwards", "Fisher",  "Foster",   "Graham",   "Harris",  "Hayes",
                           "Howard",     "Hughes",  "Jenkins", "Johnson",  "Kelly",    "Lawson",  "Mitchell",
                           "Morgan",     "Murphy",  "Nelson",  "O'Brien",  "Parker",   "Porter",  "Reed",
                           "Richardson", "Russell", "Sanders", "Stewart",  "Sullivan", "Taylor",  "Turner",
                           "Walker",     "Warren",  "Watson",  "Wright",   "Young"};
const QStringList kGermanMen = {"Klaus", "Stefan", "Jürgen", "Matthias", "Wolfgang"};
const QStringList kGermanWomen = {"Petra", "Sabine", "Ulrike", "Monika", "Birgit"};
const QStringList kGermanLast = {"Schmidt", "Becker", "Hoffmann", "Wagner", "Schäfer"};
const QStringList kFrenchMen = {"Jean-Luc", "Pierre", "François", "Marc", "Étienne"};
const QStringList kFrenchWomen = {"Isabelle", "Sophie", "Nathalie", "Chantal", "Geneviève"};
const QStringList kFrenchLast = {"Tremblay", "Gagnon", "Roy", "Côté", "Bouchard"};
const QStringList kSpanishMen = {"Carlos", "José", "Miguel", "Alejandro", "Luis"};
const QStringList kSpanishWomen = {"María", "Carmen", "Lucía", "Rosa", "Elena"};
const QStringList kSpanishLast = {"García", "Rodríguez", "Martínez", "Hernández", "López"};
const QStringList kStreets = {"Oak Street",        "Maple Avenue",  "King Street",   "Meeting Street",
                              "Rutledge Avenue",   "Church Street", "Legare Street", "Wentworth Street",
                              "Coleman Boulevard", "Pitt Street",   "Queen Street",  "Tradd Street"};

struct Place {
    const char* City; // the last line(s) of the address, without the street
    const char* Area; // telephone area code or prefix
};
const Place kLocal[] = {{"Charleston, SC 29401", "843"},
                        {"Mount Pleasant, SC 29464", "843"},
                        {"Summerville, SC 29483", "843"},
                        {"North Charleston, SC 29405", "843"},
                        {"Goose Creek, SC 29445", "843"}};
const Place kFarUS[] = {{"Chicago, IL 60614", "312"}, {"Denver, CO 80206", "303"},
                        {"Boston, MA 02116", "617"},  {"Seattle, WA 98109", "206"},
                        {"Austin, TX 78704", "512"},  {"Atlanta, GA 30306", "404"}};
const Place kCanada[] = {{"Toronto, ON  M4W 1A5", "416"},
                         {"Vancouver, BC  V6B 1A1", "604"},
                         {"Ottawa, ON  K1P 5J9", "613"},
                         {"Halifax, NS  B3J 2K9", "902"}};
const Place kQuebec[] = {{"Montréal, QC  H2X 3K8", "514"}, {"Québec, QC  G1R 4P5", "418"}};
const Place kUK[] = {{"London  W8 4PX", "20"},
                     {"Manchester  M1 1AE", "161"},
                     {"Edinburgh  EH1 2NG", "131"},
                     {"Bristol  BS1 4DJ", "117"}};
const Place kSpanishUS[] = {{"Miami, FL 33133", "305"}, {"San Antonio, TX 78209", "210"}};

enum class Region { Local, FarUS, Canada, Quebec, UK, SpanishUS };

// ---- The households, built in memory before anything is written ----------------------------------------

struct Household {
    QList<clsCONTACT> People; // the first is the primary contact; a brought guest comes last
    bool Brought = false;     // the last person is brought by the first
    bool Invited = true;
    bool Sent = false;
    bool Received = false;
    bool Gift = false;
    bool Rehearsal = false; // on the list of the rehearsal dinner
    Region Where = Region::Local;
    QString InviteId;
};

class Generator {
public:
    explicit Generator(quint32 seed) : mRandom(seed) {}

    int Below(int n) { return n <= 1 ? 0 : static_cast<int>(mRandom.bounded(static_cast<quint32>(n))); }
    bool Chance(int percent) { return Below(100) < percent; }
    const QString& Pick(const QStringList& list) { return list.at(Below(static_cast<int>(list.size()))); }
    template <size_t N> const Place& Pick(const Place (&places)[N]) {
        return places[Below(static_cast<int>(N))];
    }

    QString Middle(char gender) {
        return Chance(55) ? Pick(gender == 'M' ? kMiddleMen : kMiddleWomen) : QString();
    }

    // The address block and telephone of a household in that region.
    void Address(Region region, clsCONTACT& c) {
        const int number = 1 + Below(2400);
        const QString street = Pick(kStreets);
        const int line = 100 + Below(9900);
        switch (region) {
        case Region::Local:
        case Region::FarUS:
        case Region::SpanishUS: {
            const Place& p = region == Region::Local   ? Pick(kLocal)
                             : region == Region::FarUS ? Pick(kFarUS)
                                                       : Pick(kSpanishUS);
            c.ADDRESS_TX = Num(number) + QLatin1Char(' ') + street + kCrLf + QString::fromUtf8(p.City);
            c.PHONE_TX =
                QStringLiteral("(%1) 555-%2").arg(QLatin1String(p.Area)).arg(line, 4, 10, QLatin1Char('0'));
            break;
        }
        case Region::Canada:
        case Region::Quebec: {
            const Place& p = region == Region::Canada ? Pick(kCanada) : Pick(kQuebec);
            const QString road = region == Region::Quebec ? QStringLiteral("rue Saint-Denis") : street;
            c.ADDRESS_TX = Num(number) + QLatin1Char(' ') + road + kCrLf + QString::fromUtf8(p.City) + kCrLf +
                           QStringLiteral("Canada");
            c.PHONE_TX =
                QStringLiteral("(%1) 555-%2").arg(QLatin1String(p.Area)).arg(line, 4, 10, QLatin1Char('0'));
            break;
        }
        case Region::UK: {
            const Place& p = Pick(kUK);
            c.ADDRESS_TX = Num(number % 200 + 1) + QLatin1Char(' ') + street + kCrLf +
                           QString::fromUtf8(p.City) + kCrLf + QStringLiteral("United Kingdom");
            c.PHONE_TX =
                QStringLiteral("+44 %1 496 %2").arg(QLatin1String(p.Area)).arg(line, 4, 10, QLatin1Char('0'));
            break;
        }
        }
        c.OUT_OF_TOWNER_FG = region == Region::Local ? QStringLiteral("N") : QStringLiteral("Y");
    }

    static clsCONTACT Person(const QString& title, const QString& first, const QString& middle,
                             const QString& last, char gender) {
        clsCONTACT c;
        c.TITLE_TX = title;
        c.FIRST_NM = first;
        c.MIDDLE_NM = middle;
        c.LAST_NM = last;
        c.GENDER_FG = QString(QLatin1Char(gender));
        c.CHILD_FG = QStringLiteral("N");
        return c;
    }

    static QString Email(const clsCONTACT& c, int n) {
        QString local = (c.FIRST_NM + QLatin1Char('.') + c.LAST_NM).toLower();
        local.remove(QLatin1Char('\''));
        local = local.normalized(QString::NormalizationForm_D);
        QString ascii;
        for (const QChar ch : local) {
            if (ch.unicode() < 128 && ch != QLatin1Char(' '))
                ascii += ch;
        }
        return ascii + (n % 3 == 0 ? QString() : Num(n % 100)) + QStringLiteral("@example.com");
    }

    // A grown-up of a household; the draws happen one after the other so that a seed always gives the
    // same people, whatever order a compiler evaluates arguments in.
    clsCONTACT Adult(const QString& title, const QStringList& names, const QString& last, char gender,
                     bool withMiddle = true) {
        const QString first = Pick(names);
        const QString middle = withMiddle ? Middle(gender) : QString();
        return Person(title, first, middle, last, gender);
    }

    // One household of the kind drawn; roles are handed out by the caller.
    Household Make(int kind) {
        Household h;
        const QString last = Pick(kLast);
        switch (kind) {
        case 0: // married couple
            h.People << Adult(QStringLiteral("Mr."), kMen, last, 'M');
            h.People << Adult(QStringLiteral("Mrs."), kWomen, last, 'F');
            break;
        case 1: { // family with children
            h.People << Adult(QStringLiteral("Mr."), kMen, last, 'M');
            h.People << Adult(QStringLiteral("Mrs."), kWomen, last, 'F');
            const int children = 1 + Below(3);
            for (int i = 0; i < children; ++i) {
                const bool boy = Chance(50);
                clsCONTACT child = Adult(QString(), boy ? kBoys : kGirls, last, boy ? 'M' : 'F', false);
                child.CHILD_FG = QStringLiteral("Y");
                h.People << child;
            }
            break;
        }
        case 2:   // single with an anonymous guest
        case 3: { // single with a named guest
            const bool man = Chance(45);
            const QString title =
                man ? QStringLiteral("Mr.") : (Chance(60) ? QStringLiteral("Ms.") : QStringLiteral("Miss"));
            h.People << Adult(title, man ? kMen : kWomen, last, man ? 'M' : 'F');
            clsCONTACT guest;
            if (kind == 2) {
                guest = Person(QString(), QString(), QStringLiteral("Guest"), QString(), man ? 'F' : 'M');
            } else {
                const bool guestMan = !man || Chance(10);
                const QString guestLast = Pick(kLast);
                guest = Adult(guestMan ? QStringLiteral("Mr.") : QStringLiteral("Ms."),
                              guestMan ? kMen : kWomen, guestLast, guestMan ? 'M' : 'F', false);
            }
            h.People << guest;
            h.Brought = true;
            break;
        }
        case 4: { // single alone
            const bool man = Chance(50);
            clsCONTACT c = Adult(man ? QStringLiteral("Mr.") : QStringLiteral("Ms."), man ? kMen : kWomen,
                                 last, man ? 'M' : 'F');
            if (man && Chance(15))
                c.SUFFIX_TX = Chance(50) ? QStringLiteral("Jr.") : QStringLiteral("III");
            if (Chance(20))
                c.NICK_NM = c.FIRST_NM.left(3);
            h.People << c;
            break;
        }
        case 5: { // a couple with a title of office
            static const char* const titles[] = {"Dr.", "Judge", "Rev.", "Dr."};
            const QString title = QLatin1String(titles[Below(4)]);
            if (Chance(50)) {
                h.People << Adult(title, kWomen, last, 'F');
                h.People << Adult(QStringLiteral("Mr."), kMen, last, 'M');
            } else {
                h.People << Adult(title, kMen, last, 'M');
                const QString hers = Chance(30) ? QStringLiteral("Dr.") : QStringLiteral("Mrs.");
                h.People << Adult(hers, kWomen, last, 'F');
            }
            break;
        }
        case 6: { // a couple with two last names
            h.People << Adult(QStringLiteral("Mr."), kMen, last, 'M');
            const QString hers = Pick(kLast);
            h.People << Adult(QStringLiteral("Ms."), kWomen, hers, 'F');
            break;
        }
        case 7: { // German
            const QString l = Pick(kGermanLast);
            h.People << Adult(QStringLiteral("Herr"), kGermanMen, l, 'M', false);
            h.People << Adult(QStringLiteral("Frau"), kGermanWomen, l, 'F', false);
            h.Where = Region::FarUS;
            break;
        }
        case 8: { // French Canadian
            const QString l = Pick(kFrenchLast);
            h.People << Adult(QStringLiteral("M."), kFrenchMen, l, 'M', false);
            h.People << Adult(QStringLiteral("Mme"), kFrenchWomen, l, 'F', false);
            h.Where = Region::Quebec;
            break;
        }
        default: { // Spanish
            const QString l = Pick(kSpanishLast);
            h.People << Adult(QStringLiteral("Sr."), kSpanishMen, l, 'M', false);
            h.People << Adult(QStringLiteral("Sra."), kSpanishWomen, l, 'F', false);
            h.Where = Region::SpanishUS;
            break;
        }
        }
        if (kind < 7) {
            const int r = Below(100);
            h.Where = r < 68 ? Region::Local : r < 84 ? Region::FarUS : r < 93 ? Region::Canada : Region::UK;
        }
        return h;
    }

    int DrawKind() {
        static const int weights[] = {24, 14, 10, 8, 22, 9, 6, 2, 3, 2};
        int r = Below(100);
        for (int kind = 0; kind < 10; ++kind) {
            if (r < weights[kind])
                return kind;
            r -= weights[kind];
        }
        return 4;
    }

private:
    QRandomGenerator mRandom;
};

// ---- Steps -------------------------------------------------------------------------------------------

struct Couple {
    QString BrideFirst, BrideMiddle, BrideLast, GroomFirst, GroomMiddle, GroomLast;
};

Couple FillCouple(Generator& g) {
    static const char* const brides[][3] = {{"Emily", "Rose", "Carter"},
                                            {"Charlotte", "Anne", "Hayes"},
                                            {"Sophia", "Grace", "Bennett"},
                                            {"Madeline", "Claire", "Foster"}};
    static const char* const grooms[][3] = {{"Daniel", "James", "Whitaker"},
                                            {"Alexander", "Reid", "Monroe"},
                                            {"Benjamin", "Scott", "Hollis"},
                                            {"Christopher", "Lee", "Dalton"}};
    const int b = g.Below(4);
    const int m = g.Below(4);
    Couple couple{QString::fromLatin1(brides[b][0]), QString::fromLatin1(brides[b][1]),
                  QString::fromLatin1(brides[b][2]), QString::fromLatin1(grooms[m][0]),
                  QString::fromLatin1(grooms[m][1]), QString::fromLatin1(grooms[m][2])};
    for (int id = 1; id <= 2; ++id) {
        clsCONTACT c;
        Must(c.OpenRecord(Num(id)), "the couple's rows are missing");
        const bool bride = id == 1;
        c.TITLE_TX = bride ? QStringLiteral("Ms.") : QStringLiteral("Mr.");
        c.FIRST_NM = bride ? couple.BrideFirst : couple.GroomFirst;
        c.MIDDLE_NM = bride ? couple.BrideMiddle : couple.GroomMiddle;
        c.LAST_NM = bride ? couple.BrideLast : couple.GroomLast;
        c.ADDRESS_TX = QStringLiteral("27 Society Street") + kCrLf + QStringLiteral("Charleston, SC 29401");
        c.PHONE_TX = bride ? QStringLiteral("(843) 555-0142") : QStringLiteral("(843) 555-0178");
        c.EMAIL_TX = Generator::Email(c, 3);
        c.ATTENDING_FG = QStringLiteral("Y");
        c.MEAL_ID = bride ? QStringLiteral("3") : QStringLiteral("1");
        c.Save(false, false);
    }
    return couple;
}

void FillEvents(QStringList& eventIds) {
    clsEVENT wedding;
    Must(wedding.OpenRecord(QStringLiteral("1")), "the wedding day is missing");
    wedding.EVENT_TX = QStringLiteral("Wedding Day");
    wedding.EVENT_DT = modDemoWedding::WeddingDateTime();
    wedding.ADDRESS_TX = QStringLiteral("Magnolia Hall") + kCrLf + QStringLiteral("135 Ashley River Road") +
                         kCrLf + QStringLiteral("Charleston, SC 29407");
    wedding.CONTACT_NM = QStringLiteral("Lydia Pearce");
    wedding.PHONE_TX = QStringLiteral("(843) 555-0100");
    wedding.EMAIL_TX = QStringLiteral("events@magnoliahall.example.com");
    wedding.WEB_SITE_TX = QStringLiteral("https://magnoliahall.example.com");
    wedding.NOTES_TX = QStringLiteral("Ceremony on the lawn; the oak room if it rains.");
    wedding.Save(false);
    eventIds << QStringLiteral("1");

    struct Other {
        const char* Name;
        QDate Day;
        int Hour, Minute;
        const char* Address;
    };
    const Other others[] = {
        {"Bridal Shower", QDate(2027, 5, 15), 11, 0,
         "The Garden Room\r\n8 Vendue Range\r\nCharleston, SC 29401"},
        {"Rehearsal Dinner", QDate(2027, 6, 11), 18, 30,
         "Harbor House\r\n201 East Bay Street\r\nCharleston, SC 29401"},
        {"Farewell Brunch", QDate(2027, 6, 13), 10, 0,
         "Magnolia Hall\r\n135 Ashley River Road\r\nCharleston, SC 29407"},
    };
    for (const Other& o : others) {
        clsEVENT e;
        e.EVENT_TX = QString::fromLatin1(o.Name);
        e.EVENT_DT = Iso(o.Day, o.Hour, o.Minute);
        e.ADDRESS_TX = QString::fromLatin1(o.Address);
        e.Save(true);
        eventIds << e.EVENT_ID;
    }

    struct Entry {
        int Event; // index into eventIds
        QDate Day;
        int H1, M1, H2, M2;
        const char* What;
        const char* Who;
    };
    const Entry entries[] = {
        {0, kWeddingDay, 9, 0, 11, 30, "Hair and makeup", "Bride, bridesmaids"},
        {0, kWeddingDay, 12, 0, 13, 0, "Lunch for the wedding party", ""},
        {0, kWeddingDay, 13, 0, 14, 30, "Photographs before the ceremony", "Photographer"},
        {0, kWeddingDay, 15, 0, 15, 30, "Guests arrive; prelude music", "Ushers"},
        {0, kWeddingDay, 15, 30, 16, 0, "Ceremony", "Officiant"},
        {0, kWeddingDay, 16, 0, 17, 0, "Cocktail hour on the terrace", "Caterer"},
        {0, kWeddingDay, 17, 15, 17, 30, "Grand entrance", "DJ"},
        {0, kWeddingDay, 17, 30, 18, 30, "Dinner and toasts", "Best Man, Maid of Honor"},
        {0, kWeddingDay, 18, 30, 18, 45, "First dance", "DJ"},
        {0, kWeddingDay, 19, 30, 19, 45, "Cake cutting", "Baker"},
        {0, kWeddingDay, 22, 30, 23, 0, "Sparkler send-off", ""},
        {2, QDate(2027, 6, 11), 17, 0, 18, 0, "Ceremony rehearsal", "Officiant, wedding party"},
        {2, QDate(2027, 6, 11), 18, 30, 21, 0, "Rehearsal dinner", "Groom's family"},
        {1, QDate(2027, 5, 15), 11, 0, 13, 0, "Brunch and gifts", "Maid of Honor"},
    };
    for (const Entry& x : entries) {
        clsTIMELINE t;
        t.EVENT_ID = eventIds.at(x.Event);
        t.TIMELINE_START_DT = Iso(x.Day, x.H1, x.M1);
        t.TIMELINE_END_DT = Iso(x.Day, x.H2, x.M2);
        t.TIMELINE_DESC = QString::fromLatin1(x.What);
        t.CONTACT_NM = QString::fromLatin1(x.Who);
        t.Save(true);
    }
}

void FillTasks(Generator& g) {
    const QList<clsTASK> tasks = clsTASK().OpenRecords(clsTASK::AllTasks);
    for (clsTASK task : tasks) {
        task.DUE_DT = clsTASK::CalculateDueDate(task, kWeddingDay);
        const int group = task.TASK_GROUP_ID.toInt();
        const int done = group <= 2 ? 95 : group <= 4 ? 60 : group <= 5 ? 25 : 0;
        task.COMPLETED_FG = g.Chance(done) ? QStringLiteral("Y") : QStringLiteral("N");
        task.Save(false);
    }
    clsTASK extra;
    extra.TASK_NM = QStringLiteral("Confirm the shuttle from the hotels to Magnolia Hall");
    extra.TASK_GROUP_ID = QStringLiteral("7");
    extra.DUE_DT = clsTASK::CalculateDueDate(extra, kWeddingDay);
    extra.COMPLETED_FG = QStringLiteral("N");
    extra.NOTES_TX = QStringLiteral("Two runs: 2:30 PM and 2:50 PM; back at 11 PM.");
    extra.Save(true);
}

void FillBudget(Generator& g, int attending) {
    struct V {
        const char* Name;
        int Category;
        const char* Contact;
    };
    const V vendors[] = {
        {"Magnolia Hall", 10, "Lydia Pearce"},         {"Lowcountry Catering Co.", 3, "Marcus Dell"},
        {"Sweet Palmetto Bakery", 2, "Ivy Chen"},      {"Petal & Stem Florals", 6, "June Alvarez"},
        {"Harbor Light Photography", 9, "Sam Okafor"}, {"Reel Moments Films", 12, "Dana Kirk"},
        {"DJ Tidewater", 5, "Chris Vaughn"},           {"Paper Heron Stationery", 11, "Ada Brooks"},
        {"St. Philip's Chapel", 4, "Rev. Allen Hart"}, {"The Vendue Hotel", 7, "Front desk"},
        {"Carolina Coach Lines", 1, "Dispatch"},       {"Southern Knot Planning", 13, "Tessa Lyle"},
    };
    QStringList vendorIds;
    int i = 0;
    for (const V& v : vendors) {
        clsVENDOR vendor;
        vendor.VENDOR_NM = QString::fromLatin1(v.Name);
        vendor.VENDOR_CATEGORY_ID = Num(v.Category);
        vendor.CONTACT_NM = QString::fromLatin1(v.Contact);
        vendor.ADDRESS_TX = Num(100 + 37 * i) + QStringLiteral(" Meeting Street") + kCrLf +
                            QStringLiteral("Charleston, SC 2940") + Num(i % 9 + 1);
        vendor.PHONE_TX = QStringLiteral("(843) 555-%1").arg(200 + i, 4, 10, QLatin1Char('0'));
        vendor.EMAIL_TX = QStringLiteral("hello%1@vendor.example.com").arg(i + 1);
        vendor.Save(true);
        vendorIds << vendor.VENDOR_ID;
        ++i;
    }
    struct Line {
        const char* Item;
        int Category; // BUDGET_CATEGORY_DICT
        int Vendor;   // index into vendors, -1 none
        double Amount;
        bool PerHead;
        int DueDaysBefore;
        int PaidBy;
    };
    const Line lines[] = {
        {"Invitations and response cards", 1, 7, 640, false, 150, 1},
        {"Thank-you notes and postage", 1, 7, 180, false, -20, 3},
        {"Wedding gown and alterations", 2, -1, 2350, false, 90, 4},
        {"Groom's suit", 2, -1, 780, false, 45, 2},
        {"Chapel fee", 3, 8, 500, false, 60, 4},
        {"Officiant honorarium", 3, -1, 300, false, 1, 5},
        {"Venue rental", 4, 0, 6500, false, 120, 4},
        {"Dinner and bar", 4, 1, 92, true, 14, 4},
        {"Wedding cake", 4, 2, 7.5, true, 14, 5},
        {"Bouquets and centerpieces", 5, 3, 2800, false, 30, 4},
        {"DJ and sound", 6, 6, 1450, false, 14, 5},
        {"Photography package", 7, 4, 3900, false, 60, 3},
        {"Wedding film", 7, 5, 2600, false, 60, 3},
        {"Guest shuttle", 8, 10, 950, false, 7, 5},
        {"Wedding night suite", 8, 9, 420, false, 0, 3},
        {"Honeymoon flights", 9, -1, 1850, false, 100, 3},
        {"Day-of coordination", 10, 11, 1200, false, 30, 4},
        {"Favors", 10, -1, 2.25, true, 21, 1},
    };
    const QDate today(2027, 3, 1); // the planning day the payments are seen from
    for (const Line& l : lines) {
        clsBUDGET b;
        b.ITEM_NM = QString::fromLatin1(l.Item);
        b.BUDGET_CATEGORY_ID = Num(l.Category);
        b.VENDOR_ID = l.Vendor >= 0 ? vendorIds.at(l.Vendor) : QString();
        const double amount = l.PerHead ? l.Amount * std::max(attending, 1) : l.Amount + 10 * g.Below(20);
        b.ACTUAL_AMOUNT_NB = QString::number(amount, 'f', 2);
        const QDate due = kWeddingDay.addDays(-l.DueDaysBefore);
        b.DUE_DT = Iso(due);
        if (due < today || g.Chance(25))
            b.PAID_DT = Iso(std::min(due, today).addDays(-g.Below(10)));
        b.PAID_BY_ID = Num(l.PaidBy);
        b.Save(true);
    }
    clsBUDGET_CATEGORY_DICT dict;
    const QList<clsBUDGET_CATEGORY_DICT> categories = dict.OpenRecords();
    for (clsBUDGET_CATEGORY_DICT c : categories) {
        const double estimate =
            c.BUDGET_CATEGORY_ID.toInt() == 4 ? 8000 + 95.0 * attending : 500 + 400 * g.Below(10);
        c.ESTIMATE_AMOUNT_NB = QString::number(estimate, 'f', 2);
        c.Save(false, false);
    }
}

void FillNotesSongsWording(const Couple& couple) {
    struct Note {
        QDate Day;
        int H, M;
        const char* Subject;
        const char* Text;
    };
    const Note notes[] = {
        {QDate(2026, 6, 20), 19, 0, "We're engaged!",
         "Said yes on the Battery at sunset. Call Grandma first."},
        {QDate(2026, 8, 3), 10, 30, "Venue visit", "Magnolia Hall: lawn for 200, oak room as the rain plan."},
        {QDate(2026, 11, 14), 14, 0, "Cake tasting",
         "Lemon with raspberry for the lower tiers, almond on top."},
        {QDate(2027, 1, 9), 16, 15, "Menu ideas", "Shrimp and grits station; a vegan plate on request."},
        {QDate(2027, 2, 27), 11, 0, "First dress fitting", "Second fitting in May; bring the shoes."},
        {QDate(2027, 4, 2), 20, 0, "Seating thoughts", "Keep the college friends near the dance floor."},
    };
    for (const Note& n : notes) {
        clsNOTEBOOK nb;
        nb.NOTEBOOK_DT = Iso(n.Day, n.H, n.M);
        nb.SUBJECT_TX = QString::fromLatin1(n.Subject);
        nb.NOTES_TX = QString::fromLatin1(n.Text);
        nb.Save(true);
    }
    struct Song {
        int List;
        const char* File;
        const char* Notes;
    };
    const Song songs[] = {
        {1, "Prelude - Air on the G String.mp3", "While the guests arrive"},
        {1, "Processional - Canon in D.mp3", "Wedding party"},
        {1, "Bridal Entrance - Here Comes the Bride.mp3", ""},
        {1, "Recessional - Ode to Joy.mp3", ""},
        {2, "Grand Entrance - Signed Sealed Delivered.mp3", ""},
        {2, "First Dance - At Last.mp3", ""},
        {2, "Father-Daughter Dance - My Girl.mp3", ""},
        {2, "Mother-Son Dance - What a Wonderful World.mp3", ""},
        {2, "Cake Cutting - Sugar Sugar.mp3", ""},
        {2, "Last Dance - Don't Stop Believin'.mp3", "Then the sparklers"},
    };
    for (const Song& s : songs) {
        clsSONG song;
        song.SONGLIST_ID = Num(s.List);
        song.SONG_FILE_PATH_TX = QStringLiteral("/home/shared/Music/Wedding/") + QString::fromLatin1(s.File);
        song.NOTES_TX = QString::fromLatin1(s.Notes);
        song.Save(true);
    }
    clsWORDING wording;
    if (wording.OpenRecord(Num(clsWORDING::InvitationWording))) {
        wording.WORDING_TX =
            QStringLiteral("Together with their families\r\n") + couple.BrideFirst + QLatin1Char(' ') +
            couple.BrideLast + QStringLiteral("\r\nand\r\n") + couple.GroomFirst + QLatin1Char(' ') +
            couple.GroomLast +
            QStringLiteral("\r\nrequest the pleasure of your company\r\nat their marriage\r\n"
                           "Saturday, the twelfth of June\r\ntwo thousand twenty-seven\r\n"
                           "at half past three in the afternoon\r\nMagnolia Hall\r\n"
                           "Charleston, South Carolina");
        wording.Save(false);
    }
}

struct Totals {
    int Guests = 0, Invitations = 0, Attending = 0, Tables = 0;
};

Totals FillGuests(Generator& g, int guests, const Couple& couple, const QStringList& eventIds) {
    // 1. The households, decided in memory.
    QList<Household> households;
    int made = 0;
    // The families and the wedding party come first.
    const int special[][2] = {{0, 3},  {0, 5},  {4, 7},  {4, 8},  {4, 9},  {4, 10}, {1, 11},
                              {1, 12}, {4, 13}, {4, 14}, {4, 15}, {4, 16}, {4, 17}};
    int index = 0;
    while (made < guests) {
        const bool isSpecial = index < static_cast<int>(std::size(special));
        Household h = g.Make(isSpecial ? special[index][0] : g.DrawKind());
        if (isSpecial) {
            const int role = special[index][1];
            clsCONTACT& head = h.People.first();
            if (role == 3 || role == 5) {
                // The parents: the father and the mother of the bride or of the groom.
                const QString last = role == 3 ? couple.BrideLast : couple.GroomLast;
                h.People[0].LAST_NM = last;
                h.People[1].LAST_NM = last;
                h.People[0].ROLE_ID = Num(role);
                h.People[1].ROLE_ID = Num(role + 1);
                h.Where = role == 3 ? Region::Local : Region::FarUS;
            } else if (role == 11 || role == 12) {
                // A child of a family in the party: flower girl or ring bearer.
                clsCONTACT& child = h.People[2];
                child.FIRST_NM = role == 11 ? QStringLiteral("Lily") : QStringLiteral("Owen");
                child.GENDER_FG = role == 11 ? QStringLiteral("F") : QStringLiteral("M");
                child.ROLE_ID = Num(role);
            } else {
                const bool woman = role == 7 || role == 9 || role == 16;
                head.TITLE_TX = role == 14 ? QStringLiteral("Rev.")
                                : woman    ? QStringLiteral("Ms.")
                                           : QStringLiteral("Mr.");
                head.FIRST_NM = woman ? g.Pick(kWomen) : g.Pick(kMen);
                head.GENDER_FG = woman ? QStringLiteral("F") : QStringLiteral("M");
                head.MIDDLE_NM.clear();
                head.SUFFIX_TX.clear();
                head.NICK_NM.clear();
                head.ROLE_ID = Num(role);
            }
            h.Rehearsal = true;
        }
        if (h.People.size() > guests - made) {
            // The last household is cut to the number asked for; a guest is never left without the
            // person who brings them.
            while (h.People.size() > guests - made)
                h.People.removeLast();
            h.Brought = false;
        }
        const int side = isSpecial ? (index % 2 == 0 ? 1 : 2) : (g.Chance(10) ? 3 : 1 + g.Below(2));
        h.Invited = isSpecial || g.Chance(91);
        h.Sent = h.Invited && (isSpecial || g.Chance(86));
        h.Received = h.Sent && (isSpecial || g.Chance(82));
        const bool comes = h.Received && (isSpecial || g.Chance(86));
        for (qsizetype i = 0; i < h.People.size(); ++i) {
            clsCONTACT& c = h.People[i];
            c.FRIEND_OF_CD = Num(side);
            c.AB_LIST_CD = h.Invited ? QStringLiteral("A") : QStringLiteral("B");
            c.SORT_ORDER_NB = Num(i + 1);
            c.PRIMARY_CONTACT_FG = i == 0 && h.Invited ? QStringLiteral("Y") : QStringLiteral("N");
            const bool attends = comes && (isSpecial || i == 0 || g.Chance(94));
            c.ATTENDING_FG = attends ? QStringLiteral("Y") : QStringLiteral("N");
            if (attends && g.Chance(96))
                c.MEAL_ID = c.CHILD_FG == QLatin1String("Y") && g.Chance(80) ? QStringLiteral("6")
                                                                             : Num(1 + g.Below(5));
            // Everyone of a household lives at the same address.
            if (i == 0) {
                g.Address(h.Where, c);
                if (g.Chance(65))
                    c.EMAIL_TX = Generator::Email(c, made);
                if (g.Chance(20))
                    c.PHONE2_TX = QStringLiteral("(843) 555-%1").arg(1000 + g.Below(9000));
            } else if (!(h.Brought && i == h.People.size() - 1)) {
                c.ADDRESS_TX = h.People[0].ADDRESS_TX;
                c.PHONE_TX = h.People[0].PHONE_TX;
                c.OUT_OF_TOWNER_FG = h.People[0].OUT_OF_TOWNER_FG;
            } else {
                c.OUT_OF_TOWNER_FG = h.People[0].OUT_OF_TOWNER_FG;
            }
        }
        if (h.Received && comes && g.Chance(40))
            h.Gift = true;
        made += static_cast<int>(h.People.size());
        households << h;
        ++index;
    }

    Totals totals;
    totals.Guests = made;

    // 2. The rooms: a head table, then tables of ten for everyone who comes.
    int attending = 0;
    for (const Household& h : households) {
        for (const clsCONTACT& c : h.People)
            attending += c.ATTENDING_FG == QLatin1String("Y") ? 1 : 0;
    }
    totals.Attending = attending + 2;
    QList<clsDINING_TABLE> tables;
    QList<int> seatsLeft;
    const int guestTables = std::max(1, (attending * 94 / 100 + 9) / 10);
    for (int t = 0; t <= guestTables; ++t) {
        clsDINING_TABLE table;
        table.DINING_TABLE_NB = Num(t + 1);
        table.DINING_TABLE_NM = t == 0 ? QStringLiteral("Head Table") : QString();
        table.SEATS_NB =
            t == 0 ? QStringLiteral("12") : (t % 5 == 0 ? QStringLiteral("8") : QStringLiteral("10"));
        table.DINING_TABLE_TYPE_ID = t == 0 ? QStringLiteral("3") : Num(1 + (t % 4 == 3 ? 1 : 0));
        table.POS_X = Num(t == 0 ? 4800 : 600 + ((t - 1) % 8) * 1500);
        table.POS_Y = Num(t == 0 ? 400 : 1800 + ((t - 1) / 8) * 1500);
        table.Save(true);
        tables << table;
        seatsLeft << table.SEATS_NB.toInt();
    }
    totals.Tables = static_cast<int>(tables.size());
    // The couple at the head table.
    gDB().Execute(QStringLiteral("UPDATE CONTACT SET DINING_TABLE_ID = ? WHERE CONTACT_ID IN (1, 2)"),
                  {tables.first().DINING_TABLE_ID});
    seatsLeft[0] -= 2;

    // 3. Travel: hotels and flights in proportion to the guests from away.
    int away = 0;
    for (const Household& h : households)
        away += h.Where != Region::Local ? static_cast<int>(h.People.size()) : 0;
    const QStringList hotelNames = {"The Vendue Hotel",   "Harbourview Inn",       "King Street Suites",
                                    "Ashley River Lodge", "Market Pavilion Hotel", "Battery Carriage House"};
    QList<clsHOTEL> hotels;
    const int hotelCount = std::clamp(away / 60 + 2, 2, 40);
    for (int i = 0; i < hotelCount; ++i) {
        clsHOTEL hotel;
        hotel.HOTEL_NB = Num(i + 1);
        hotel.HOTEL_NM =
            hotelNames.at(i % hotelNames.size()) +
            (i >= hotelNames.size() ? QStringLiteral(" ") + Num(i / hotelNames.size() + 1) : QString());
        hotel.ADDRESS_TX = Num(10 + 13 * i) + QStringLiteral(" Queen Street") + kCrLf +
                           QStringLiteral("Charleston, SC 29401");
        hotel.CONTACT_NM = QStringLiteral("Group sales");
        hotel.PHONE_TX = QStringLiteral("(843) 555-%1").arg(300 + i, 4, 10, QLatin1Char('0'));
        hotel.ROOMS_NB = Num(std::max(10, away / hotelCount / 2 + 5));
        hotel.NOTES_TX = QStringLiteral("Block under \"") + couple.BrideLast + QLatin1Char('-') +
                         couple.GroomLast + QStringLiteral(" Wedding\"; release date 12-May-2027.");
        // Two columns of boxes on the map of the hotel board (484 by 496 pixels, 15 twips each).
        hotel.POS_X = Num((16 + (i % 2) * 250) * 15);
        hotel.POS_Y = Num((24 + (i / 2) * 72) * 15);
        hotel.Save(true);
        hotels << hotel;
    }
    struct Route {
        const char* Airline;
        const char* From;
        Region Where;
    };
    const Route routes[] = {{"United", "ORD", Region::FarUS},      {"Delta", "ATL", Region::FarUS},
                            {"Southwest", "DEN", Region::FarUS},   {"Air Canada", "YYZ", Region::Canada},
                            {"Air Canada", "YUL", Region::Quebec}, {"British Airways", "LHR", Region::UK},
                            {"American", "MIA", Region::SpanishUS}};
    QList<clsFLIGHT> flights;
    QList<Region> flightRegion;
    const int perRoute = std::clamp(away / 250 + 1, 1, 20);
    for (int r = 0; r < static_cast<int>(std::size(routes)); ++r) {
        for (int k = 0; k < perRoute; ++k) {
            clsFLIGHT f;
            f.FLIGHT_NB = Num(flights.size() + 1);
            f.FLIGHT_NM = QString::fromLatin1(routes[r].Airline) + QStringLiteral(" Flight #") +
                          Num(100 + 37 * r + 211 * k);
            f.DEPARTS_AIRPORT_NM = QString::fromLatin1(routes[r].From);
            f.ARRIVES_AIRPORT_NM = QStringLiteral("CHS");
            const QDate day = kWeddingDay.addDays(k % 2 == 0 ? -1 : -2);
            const int hour = 8 + (r * 2 + k) % 10;
            f.DEPARTS_DT = Iso(day, hour, 15);
            f.ARRIVES_DT = Iso(day, hour + (routes[r].Where == Region::UK ? 6 : 2), 40);
            // Three columns of boxes on the flight board.
            f.POS_X = Num((16 + (flights.size() % 3) * 230) * 15);
            f.POS_Y = Num((24 + (flights.size() / 3) * 72) * 15);
            f.Save(true);
            flights << f;
            flightRegion << routes[r].Where;
        }
    }

    // 4. Seating and travel of each household, the way a planner would do it.
    QList<int> rooms;
    int firstOpen = 1;
    for (const clsHOTEL& h : hotels)
        rooms << h.ROOMS_NB.toInt();
    for (Household& h : households) {
        QList<int> comers;
        for (int i = 0; i < h.People.size(); ++i) {
            if (h.People[i].ATTENDING_FG == QLatin1String("Y"))
                comers << i;
        }
        if (comers.isEmpty())
            continue;
        const bool party = h.Rehearsal && !h.People.first().ROLE_ID.isEmpty() &&
                           h.People.first().ROLE_ID.toInt() >= 7 && h.People.first().ROLE_ID.toInt() <= 10;
        const int want = static_cast<int>(comers.size());
        int table = -1;
        if (party && seatsLeft[0] >= want) {
            table = 0;
        } else if (g.Chance(95)) {
            // First fit from the first table that still has a seat; a few stay unseated for now.
            while (firstOpen < seatsLeft.size() && seatsLeft[firstOpen] == 0)
                ++firstOpen;
            for (int t = firstOpen; t < seatsLeft.size(); ++t) {
                if (seatsLeft[t] >= want) {
                    table = t;
                    break;
                }
            }
        }
        if (table >= 0) {
            seatsLeft[table] -= want;
            for (int i : comers)
                h.People[i].DINING_TABLE_ID = tables[table].DINING_TABLE_ID;
        }
        if (h.Where == Region::Local)
            continue;
        if (g.Chance(80)) {
            const int hotel = g.Below(static_cast<int>(hotels.size()));
            if (rooms[hotel] > 0) {
                --rooms[hotel];
                for (int i : comers)
                    h.People[i].HOTEL_ID = hotels[hotel].HOTEL_ID;
            }
        }
        if (g.Chance(65)) {
            QList<int> fitting;
            for (int f = 0; f < flights.size(); ++f) {
                if (flightRegion[f] == h.Where)
                    fitting << f;
            }
            if (!fitting.isEmpty()) {
                const int f = fitting.at(g.Below(static_cast<int>(fitting.size())));
                for (int i : comers)
                    h.People[i].FLIGHT_ID = flights[f].FLIGHT_ID;
            }
        }
    }

    // 5. Invitations and people, the envelopes written by the invitation itself.
    int rsvp = 0;
    for (Household& h : households) {
        clsINVITE invite;
        if (h.Invited) {
            invite.INVITE_RSVP_ID = Num(++rsvp);
            invite.INVITE_SENT_FG = h.Sent ? QStringLiteral("Y") : QStringLiteral("N");
            invite.RSVP_RECEIVED_FG = h.Received ? QStringLiteral("Y") : QStringLiteral("N");
            invite.AUTO_UPDATE_FG = QStringLiteral("Y");
            invite.Save(true);
            h.InviteId = invite.INVITE_ID;
            ++totals.Invitations;
        }
        for (int i = 0; i < h.People.size(); ++i) {
            clsCONTACT& c = h.People[i];
            c.INVITE_ID = h.InviteId;
            if (h.Brought && i == h.People.size() - 1)
                c.GUEST_OF_ID = h.People.first().CONTACT_ID;
            c.Save(true, false);
        }
        if (!h.Invited)
            continue;
        invite.GUESTS = h.People;
        if (h.Brought) {
            invite.GUEST_CONTACT_ID = h.People.last().CONTACT_ID;
            invite.GUEST_OF_CONTACT_ID = h.People.last().GUEST_OF_ID;
        }
        invite.RefreshLabeling(false, false);
        invite.Save(false);
    }

    // 6. Gifts: from households at the wedding, and shower gifts from the bride's friends.
    for (const Household& h : households) {
        if (h.Gift) {
            clsGIFT gift;
            gift.EVENT_ID = eventIds.at(0);
            gift.INVITE_ID = h.InviteId;
            static const QStringList things = {
                "Stand mixer",   "Crystal vase",     "Dutch oven",          "Set of wine glasses", "Check",
                "Picture frame", "Linen tablecloth", "Cookbook collection", "Espresso machine",    "Quilt"};
            gift.GIFT_TX = g.Pick(things);
            gift.RECEIVED_DT = Iso(kWeddingDay.addDays(g.Below(21)));
            gift.THANK_YOU_SENT_FG = g.Chance(55) ? QStringLiteral("Y") : QStringLiteral("N");
            gift.Save(true);
        } else if (h.Received && h.People.first().FRIEND_OF_CD == QLatin1String("1") &&
                   h.People.first().GENDER_FG == QLatin1String("F") && g.Chance(15)) {
            clsGIFT gift;
            gift.EVENT_ID = eventIds.at(1);
            gift.CONTACT_ID = h.People.first().CONTACT_ID;
            static const QStringList things = {"Bath towels", "Recipe box", "Serving platter", "Candles"};
            gift.GIFT_TX = g.Pick(things);
            gift.RECEIVED_DT = Iso(QDate(2027, 5, 15));
            gift.THANK_YOU_SENT_FG = g.Chance(80) ? QStringLiteral("Y") : QStringLiteral("N");
            gift.NOTES_TX = QStringLiteral("Opened at the shower");
            gift.Save(true);
        }
    }

    // 7. The rehearsal dinner's list: the wedding party and the couple.
    for (const QString& id : {QStringLiteral("1"), QStringLiteral("2")}) {
        clsINVITE_WIDGET w;
        w.EVENT_ID = eventIds.at(2);
        w.CONTACT_ID = id;
        w.Save(true);
    }
    for (const Household& h : households) {
        if (h.Rehearsal && !h.InviteId.isEmpty()) {
            clsINVITE_WIDGET w;
            w.EVENT_ID = eventIds.at(2);
            w.INVITE_ID = h.InviteId;
            w.Save(true);
        }
    }
    return totals;
}

} // namespace

namespace modDemoWedding {

QString WeddingDateTime() {
    return Iso(kWeddingDay, 15, 30);
}

} // namespace modDemoWedding

bool FillDemoWedding(int guests, quint32 seed, QString* message) {
    auto say = [message](const QString& text) {
        if (message)
            *message = text;
    };
    if (!gDB().IsOpen()) {
        say(QStringLiteral("No database is open."));
        return false;
    }
    if (guests < 0) {
        say(QStringLiteral("The number of guests cannot be negative."));
        return false;
    }
    try {
        const long others =
            gDB()
                .Execute(QStringLiteral("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID NOT IN (1, 2)"))
                .Scalar()
                .toLong();
        if (others > 0) {
            say(QStringLiteral(
                    "The database already holds %1 guests besides the couple; the demo wedding is only "
                    "made in a new database.")
                    .arg(others));
            return false;
        }
        Generator g(seed);
        Totals totals;
        {
            clsTransaction tx(gDB());
            QStringList eventIds;
            const Couple couple = FillCouple(g);
            FillEvents(eventIds);
            FillTasks(g);
            totals = FillGuests(g, guests, couple, eventIds);
            FillBudget(g, totals.Attending);
            FillNotesSongsWording(couple);
            clsTENTCARD::RefreshTentcards();
            tx.Commit();
        }
        gBride().OpenRecord(QStringLiteral("1"));
        gGroom().OpenRecord(QStringLiteral("2"));
        gWeddingEvent().OpenRecord(QStringLiteral("1"));
        say(QStringLiteral("Demo wedding: %1 guests, %2 invitations, %3 attending, %4 tables.")
                .arg(totals.Guests)
                .arg(totals.Invitations)
                .arg(totals.Attending)
                .arg(totals.Tables));
        return true;
    } catch (const clsDbError& e) {
        gWeddingEvent().OpenRecord(QStringLiteral("1"));
        say(QStringLiteral("The demo wedding could not be made: ") + e.Message());
    } catch (const DemoFailure& e) {
        gWeddingEvent().OpenRecord(QStringLiteral("1"));
        say(QStringLiteral("The demo wedding could not be made: ") + QString::fromUtf8(e.what()) +
            QLatin1Char('.'));
    }
    return false;
}
