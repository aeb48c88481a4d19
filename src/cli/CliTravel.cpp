// Hotels and flights from a script: the guests from out of town given a room or a seat on a plane, as
// the boards do it, and the list of both.
#include "cli/CliCommand.h"

#include "seating/clsFLIGHT.h"
#include "seating/clsHOTEL.h"
#include "seating/modTravel.h"

namespace {

// What differs between the hotel and the flight command.
struct TravelKind {
    modTravel::Kind Kind;
    QString Command; // "house"
    QString Option;  // "--hotel"
    QString Noun;    // "hotel"
    QString Usage;
};

const TravelKind kHotel{modTravel::Kind::Hotel, QStringLiteral("house"), QStringLiteral("--hotel"),
                        QStringLiteral("hotel"), QStringLiteral("house (--hotel NUMBER | --none) ID...")};
const TravelKind kFlight{modTravel::Kind::Flight, QStringLiteral("board"), QStringLiteral("--flight"),
                         QStringLiteral("flight"), QStringLiteral("board (--flight NUMBER | --none) ID...")};

QString Capitalised(const QString& noun) {
    return noun.left(1).toUpper() + noun.mid(1);
}

int Assign(const TravelKind& kind, const QStringList& args, QTextStream& out, QTextStream& err) {
    const bool none = args.value(0) == QLatin1String("--none");
    const QString number = args.value(1);
    const QStringList ids = args.mid(none ? 1 : 2);
    if ((!none && (args.value(0) != kind.Option || !AreKeys({number}))) || !AreKeys(ids)) {
        err << "vowren-cli: " << kind.Command << ": usage: " << kind.Usage
            << " (numbers and keys are whole numbers above 0)\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    return Guarded(kind.Command, err, [&] {
        const QString key = none ? QString() : modTravel::KeyOfNumber(kind.Kind, number);
        if (!none && key.isEmpty()) {
            err << "vowren-cli: " << kind.Command << ": there is no " << kind.Noun << " #" << number
                << ". Nothing was changed.\n";
            return kExitFailed;
        }
        modTravel::Assign(kind.Kind, ids, key);
        const QString where = none ? QStringLiteral("No ") + kind.Noun
                                   : QString(Capitalised(kind.Noun) + QStringLiteral(" #") + number);
        out << where << ": " << ids.join(QLatin1Char(' ')) << '\n';
        return kExitOk;
    });
}

QString Counted(long count, const QString& one) {
    return QString::number(count) + QLatin1Char(' ') + one + (count == 1 ? QString() : QStringLiteral("s"));
}

QString Named(const QString& number, const QString& name) {
    return name.isEmpty() ? number : number + QStringLiteral(" - ") + name;
}

int ListTravel(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (!args.isEmpty()) {
        err << "vowren-cli: travel: usage: travel\n";
        return kExitUsage;
    }
    if (!StartForReading(err))
        return kExitFailed;
    return Guarded(QStringLiteral("travel"), err, [&] {
        for (const clsHOTEL& h : clsHOTEL::OpenRecords())
            out << "Hotel #" << Named(h.HOTEL_NB, h.HOTEL_NM) << ": "
                << Counted(clsHOTEL::TotalOccupants(h.HOTEL_ID), QStringLiteral("guest")) << ", "
                << Counted(h.ROOMS_NB.toLong(), QStringLiteral("room")) << '\n';
        for (const clsFLIGHT& f : clsFLIGHT::OpenRecords())
            out << "Flight #" << Named(f.FLIGHT_NB, f.FLIGHT_NM) << ": "
                << Counted(clsFLIGHT::TotalPassengers(f.FLIGHT_ID), QStringLiteral("passenger")) << '\n';
        return kExitOk;
    });
}

} // namespace

CliCommand HouseCommand() {
    return {kHotel.Command, kHotel.Usage,
            QStringLiteral("Give the contacts of these keys the hotel of that number, or none; all of them "
                           "or, when a key is unknown, none."),
            [](const QStringList& args, QTextStream& out, QTextStream& err) {
                return Assign(kHotel, args, out, err);
            }};
}

CliCommand BoardCommand() {
    return {kFlight.Command, kFlight.Usage,
            QStringLiteral("Put the contacts of these keys on the flight of that number, or on none; all of "
                           "them or, when a key is unknown, none."),
            [](const QStringList& args, QTextStream& out, QTextStream& err) {
                return Assign(kFlight, args, out, err);
            }};
}

CliCommand TravelCommand() {
    return {QStringLiteral("travel"), QStringLiteral("travel"),
            QStringLiteral("Every hotel with its guests and rooms (\"Hotel #n - name: g guests, r rooms\"), "
                           "then every flight with its passengers."),
            ListTravel};
}
