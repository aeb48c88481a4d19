#include "seating/ui/frmFlight.h"

#include "core/ShowMessage.h"
#include "core/modGeneral.h"
#include "seating/ui/modTravelEditors.h"
#include "shell/controls/modLayout.h"

#include <QDateTimeEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace modTravelEditors;

namespace {

// A new flight leaves tomorrow morning and lands two hours later.
QDateTime DefaultDeparture() {
    return QDateTime(QDate::currentDate().addDays(1), QTime(9, 0));
}

QString PickerFormat() {
    QString time = TimePickerFormat();
    time.replace(QLatin1String("tt"), QLatin1String("AP"));
    return QStringLiteral("dd-MMM-yyyy ") + time;
}

} // namespace

frmFlight::frmFlight(const QString& key, QWidget* parent) : frmTravelEditor(parent) {
    setObjectName(QStringLiteral("frmFlight"));
    SetRecordNoun(QStringLiteral("Flight"));
    SetAdding(key.isEmpty());

    mNumber = NumberBox(QStringLiteral("txt_0"), this);
    mName = LineBox(QStringLiteral("txt_1"), this);
    mFrom = LineBox(QStringLiteral("txt_2"), this);
    mTo = LineBox(QStringLiteral("txt_3"), this);
    QPlainTextEdit* notes = TextBox(QStringLiteral("txt_4"), this, 3);
    mDeparts = Picker(QStringLiteral("dtp_0"));
    mArrives = Picker(QStringLiteral("dtp_1"));
    auto* example = new QLabel(QStringLiteral("Ex: Southwest Flight #555"), this);
    example->setObjectName(QStringLiteral("lblExample"));
    example->setEnabled(false);

    QFormLayout* form = modLayout::Form(nullptr);
    modLayout::CaptionedRow(form, QStringLiteral("&Flight #"), mNumber);
    modLayout::CaptionedRow(form, QStringLiteral("F&light"), mName);
    form->addRow(QString(), example);
    modLayout::CaptionedRow(form, QStringLiteral("From &airport"), mFrom);
    modLayout::CaptionedRow(form, QStringLiteral("&Departs"), mDeparts);
    modLayout::CaptionedRow(form, QStringLiteral("&To airport"), mTo);
    modLayout::CaptionedRow(form, QStringLiteral("A&rrives"), mArrives);
    modLayout::CaptionedRow(form, QStringLiteral("&Notes"), notes);

    mFields.Add(mNumber, &clsFLIGHT::FLIGHT_NB);
    mFields.Add(mName, &clsFLIGHT::FLIGHT_NM);
    mFields.Add(mFrom, &clsFLIGHT::DEPARTS_AIRPORT_NM);
    mFields.Add(mTo, &clsFLIGHT::ARRIVES_AIRPORT_NM);
    mFields.Add(notes, &clsFLIGHT::NOTES_TX);

    Lay(form, mNumber, {mName, mFrom, mTo});

    if (IsAdding())
        StartNew();
    else if (RecordIO::Attempt([&] { mFlight.OpenRecord(key); })) {
        mFields.Load(mFlight);
        mDeparts->setDateTime(ParseDateTimeText(mFlight.DEPARTS_DT));
        mArrives->setDateTime(ParseDateTimeText(mFlight.ARRIVES_DT));
    }
    Ready(mName);
}

QDateTimeEdit* frmFlight::Picker(const QString& name) {
    auto* picker = new QDateTimeEdit(this);
    picker->setObjectName(name);
    picker->setCalendarPopup(true);
    picker->setDisplayFormat(PickerFormat());
    return picker;
}

QString frmFlight::ArrivesBeforeDepartsMessage() {
    return QStringLiteral("The flight arrives before it departs.\n\nPlease check the dates and times of "
                          "departure and arrival.");
}

void frmFlight::StartNew() {
    mFlight = clsFLIGHT();
    mFields.Clear();
    mDeparts->setDateTime(DefaultDeparture());
    mArrives->setDateTime(DefaultDeparture().addSecs(2 * 3600));
    mNumber->setText(RecordIO::Read([] { return clsFLIGHT::NEXT_NB(); }));
    mName->setFocus();
}

QStringList frmFlight::Snapshot() const {
    return mFields.Snapshot() << mDeparts->dateTime().toString(Qt::ISODate)
                              << mArrives->dateTime().toString(Qt::ISODate);
}

// A new flight's box starts at the top left; the page moves it to a free place.
bool frmFlight::SaveRecord() {
    if (mArrives->dateTime() < mDeparts->dateTime()) {
        ShowMessage(ArrivesBeforeDepartsMessage(), Msg::OKOnly | Msg::Exclamation);
        return false;
    }
    clsFLIGHT flight = mFlight;
    mFields.Store(flight);
    flight.DEPARTS_DT = FormatDateTime(mDeparts->dateTime(), DateTimeFormat());
    flight.ARRIVES_DT = FormatDateTime(mArrives->dateTime(), DateTimeFormat());
    const bool adding = IsAdding();
    if (adding) {
        flight.POS_X = QStringLiteral("0");
        flight.POS_Y = QStringLiteral("0");
    }
    if (!RecordIO::Attempt([&] { flight.Save(adding); }))
        return false;
    mFlight = flight;
    return true;
}
