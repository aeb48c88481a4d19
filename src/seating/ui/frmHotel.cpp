#include "seating/ui/frmHotel.h"

#include "seating/ui/modTravelEditors.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrHyperlink.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace modTravelEditors;

frmHotel::frmHotel(const QString& key, QWidget* parent) : frmTravelEditor(parent) {
    setObjectName(QStringLiteral("frmHotel"));
    SetRecordNoun(QStringLiteral("Hotel"));
    SetAdding(key.isEmpty());

    mNumber = NumberBox(QStringLiteral("txt_0"), this);
    mName = LineBox(QStringLiteral("txt_1"), this);
    QPlainTextEdit* address = TextBox(QStringLiteral("txt_2"), this, 3);
    QLineEdit* contact = LineBox(QStringLiteral("txt_3"), this);
    QLineEdit* phone = LineBox(QStringLiteral("txt_4"), this);
    QLineEdit* fax = LineBox(QStringLiteral("txt_5"), this);
    mEmail = LineBox(QStringLiteral("txt_6"), this);
    mWeb = LineBox(QStringLiteral("txt_7"), this);
    mRooms = new QSpinBox(this);
    mRooms->setObjectName(QStringLiteral("txt_8"));
    mRooms->setRange(0, 9999);
    QPlainTextEdit* notes = TextBox(QStringLiteral("txt_9"), this, 3);
    mPicEmail = EmailPicture(mEmail, this);
    mPicWeb = WebPicture(mWeb, this);

    QFormLayout* form = modLayout::Form(nullptr);
    modLayout::CaptionedRow(form, QStringLiteral("&Hotel #"), mNumber);
    modLayout::CaptionedRow(form, QStringLiteral("&Hotel"), mName);
    modLayout::CaptionedRow(form, QStringLiteral("&Address"), address);
    modLayout::CaptionedRow(form, QStringLiteral("&Contact"), contact);
    modLayout::CaptionedRow(form, QStringLiteral("&Phone"), phone);
    modLayout::CaptionedRow(form, QStringLiteral("&Fax"), fax);
    modLayout::CaptionedRow(form, QStringLiteral("&E-mail"), WithPicture(mEmail, mPicEmail, this), mEmail);
    modLayout::CaptionedRow(form, QStringLiteral("&Web Site"), WithPicture(mWeb, mPicWeb, this), mWeb);
    modLayout::CaptionedRow(form, QStringLiteral("# of Rooms"), mRooms);
    modLayout::CaptionedRow(form, QStringLiteral("&Notes"), notes);

    mFields.Add(mNumber, &clsHOTEL::HOTEL_NB);
    mFields.Add(mName, &clsHOTEL::HOTEL_NM);
    mFields.Add(address, &clsHOTEL::ADDRESS_TX);
    mFields.Add(contact, &clsHOTEL::CONTACT_NM);
    mFields.Add(phone, &clsHOTEL::PHONE_TX);
    mFields.Add(fax, &clsHOTEL::FAX_TX);
    mFields.Add(mEmail, &clsHOTEL::EMAIL_TX);
    mFields.Add(mWeb, &clsHOTEL::WEB_SITE_TX);
    mFields.Add(notes, &clsHOTEL::NOTES_TX);

    Lay(form, mNumber, {mName});

    if (IsAdding())
        StartNew();
    else if (RecordIO::Attempt([&] { mHotel.OpenRecord(key); })) {
        mFields.Load(mHotel);
        mRooms->setValue(mHotel.ROOMS_NB.toInt());
    }
    Ready(mName);
}

void frmHotel::StartNew() {
    mHotel = clsHOTEL();
    mFields.Clear();
    mRooms->setValue(0);
    mNumber->setText(RecordIO::Read([] { return clsHOTEL::NEXT_NB(); }));
    mName->setFocus();
}

QStringList frmHotel::Snapshot() const {
    return mFields.Snapshot() << QString::number(mRooms->value());
}

// A new hotel's box starts at the top left; the page moves it to a free place.
bool frmHotel::SaveRecord() {
    clsHOTEL hotel = mHotel;
    mFields.Store(hotel);
    hotel.ROOMS_NB = QString::number(mRooms->value());
    const bool adding = IsAdding();
    if (adding) {
        hotel.POS_X = QStringLiteral("0");
        hotel.POS_Y = QStringLiteral("0");
    }
    if (!RecordIO::Attempt([&] { hotel.Save(adding); }))
        return false;
    mHotel = hotel;
    return true;
}
