#include "guests/ui/frmRSVP.h"

#include "core/RecordIO.h"
#include "core/ShowMessage.h"
#include "core/clsDB.h"
#include "core/clsDICT.h"
#include "guests/ui/modContactEditor.h"
#include "guests/ui/modGuestEditors.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

QString Flag(bool on) {
    return on ? QStringLiteral("Y") : QStringLiteral("N");
}

QLabel* ColumnHeading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setStyleSheet(QStringLiteral("color: palette(dark);"));
    return label;
}

} // namespace

frmRSVP::frmRSVP(const QString& inviteId, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmRSVP"));
    setWindowTitle(QStringLiteral("Open RSVP"));
    mInvite.OpenRecord(inviteId, true);

    QDialogButtonBox* buttons = modGuestEditors::SaveCancelButtons(this, [this] { return SaveRSVP(); }, &mSave);

    mSummary = new QLabel(this);
    mSummary->setObjectName(QStringLiteral("lblSummary"));
    QFont font = mSummary->font();
    font.setBold(true);
    mSummary->setFont(font);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(BuildTop());
    layout->addWidget(BuildLines(), 1);
    layout->addWidget(mSummary);
    layout->addWidget(buttons);

    RefreshEnabling();
    RefreshSummary();
    resize(560, qMin(640, 300 + 34 * static_cast<int>(mLines.size())));
    mReceived->setFocus();
}

QWidget* frmRSVP::BuildTop() {
    auto* top = new QWidget(this);
    auto* row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, 0, 0);
    const int side = fontMetrics().height() * 4;
    mClosed = new QLabel(top);
    mClosed->setObjectName(QStringLiteral("imgRSVPClosed"));
    mClosed->setPixmap(modGuestEditors::ReplyPicture(false, side, devicePixelRatioF()));
    mOpen = new QLabel(top);
    mOpen->setObjectName(QStringLiteral("imgRSVPOpen"));
    mOpen->setPixmap(modGuestEditors::ReplyPicture(true, side, devicePixelRatioF()));

    QLabel* header = modGuestEditors::HeaderLabel(top);
    header->setText(QStringLiteral("RSVP ID"));
    auto* id = new QLabel(QStringLiteral("# ") + (mInvite.INVITE_RSVP_ID.isEmpty() ? QStringLiteral("?")
                                                                                   : mInvite.INVITE_RSVP_ID),
                          top);
    id->setObjectName(QStringLiteral("lblRSVPID"));
    id->setFont(header->font());
    id->setContentsMargins(header->contentsMargins());
    auto* title = new QHBoxLayout;
    title->addWidget(header);
    title->addWidget(id);
    title->addStretch(1);
    auto* name = new QLabel(mInvite.DISPLAY_AS_TX, top);
    name->setObjectName(QStringLiteral("lblInvitation"));
    name->setWordWrap(true);
    mReceived = new QCheckBox(QStringLiteral("&Received"), top);
    mReceived->setObjectName(QStringLiteral("chkRSVP_RECEIVED_FG"));
    mReceived->setChecked(mInvite.RSVP_RECEIVED_FG == QLatin1String("Y"));
    mReceived->setToolTip(QStringLiteral("Tick when the reply card has come back"));
    connect(mReceived, &QCheckBox::toggled, this, [this] {
        RefreshEnabling();
        RefreshSummary();
    });

    auto* text = new QVBoxLayout;
    text->addLayout(title);
    text->addWidget(name);
    text->addSpacing(6);
    text->addWidget(mReceived);
    text->addStretch(1);
    row->addWidget(mClosed, 0, Qt::AlignTop);
    row->addWidget(mOpen, 0, Qt::AlignTop);
    row->addSpacing(10);
    row->addLayout(text, 1);
    return top;
}

QWidget* frmRSVP::BuildLines() {
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::StyledPanel);
    auto* inner = new QWidget(area);
    inner->setObjectName(QStringLiteral("fraLines"));
    auto* grid = new QGridLayout(inner);
    grid->setHorizontalSpacing(18);
    grid->addWidget(ColumnHeading(QStringLiteral("Guest"), inner), 0, 0);
    grid->addWidget(ColumnHeading(QStringLiteral("Attending"), inner), 0, 1);
    grid->addWidget(ColumnHeading(QStringLiteral("Meal"), inner), 0, 2);
    for (int i = 0; i < mInvite.GUESTS.size(); ++i)
        AddLine(grid, i, mInvite.GUESTS.at(i));
    grid->setColumnStretch(0, 1);
    grid->setColumnMinimumWidth(2, 170);
    grid->setRowStretch(static_cast<int>(mInvite.GUESTS.size()) + 1, 1);
    area->setWidget(inner);
    return area;
}

// One line of the template: the person, whether they come, and their meal.
void frmRSVP::AddLine(QGridLayout* grid, int index, const clsCONTACT& person) {
    QWidget* parent = grid->parentWidget();
    Line line;
    line.Name = new usrHyperlink(person.TitleFirstMiddleLastSuffix(), parent);
    line.Name->setObjectName(QStringLiteral("linkContact_%1").arg(index));
    line.Name->setIndex(index);
    line.Name->setToolTip(QStringLiteral("Edit this contact"));
    connect(line.Name, &usrHyperlink::Click, this,
            [this, id = person.CONTACT_ID] { modContactEditor::Open(this, id, this); });
    line.Name->setEnabled(modContactEditor::Available());
    line.Attending = new QCheckBox(parent);
    line.Attending->setObjectName(QStringLiteral("chkATTENDING_FG_%1").arg(index));
    line.Attending->setChecked(person.ATTENDING_FG == QLatin1String("Y"));
    line.Attending->setAccessibleName(person.FirstLast() + QStringLiteral(" attending"));
    line.Meal = new usrDropdown(parent);
    line.Meal->setObjectName(QStringLiteral("usrMEAL_%1").arg(index));
    line.Meal->PopulateX(clsDICT::Meal);
    line.Meal->setCode(person.MEAL_ID);
    line.Meal->setAccessibleName(person.FirstLast() + QStringLiteral(" meal"));
    connect(line.Attending, &QCheckBox::toggled, this, [this] {
        RefreshEnabling();
        RefreshSummary();
    });
    grid->addWidget(line.Name, index + 1, 0);
    grid->addWidget(line.Attending, index + 1, 1, Qt::AlignHCenter);
    grid->addWidget(line.Meal, index + 1, 2);
    mLines.append(line);
}

void frmRSVP::RefreshEnabling() {
    const bool received = mReceived->isChecked();
    for (const Line& line : std::as_const(mLines)) {
        line.Attending->setEnabled(received);
        line.Meal->setEnabled(received && line.Attending->isChecked());
    }
    mClosed->setVisible(!received);
    mOpen->setVisible(received);
}

int frmRSVP::AttendingCount() const {
    int count = 0;
    for (const Line& line : mLines)
        count += line.Attending->isChecked() ? 1 : 0;
    return count;
}

void frmRSVP::RefreshSummary() {
    mSummary->setText(QStringLiteral("%1 of %2 attending").arg(AttendingCount()).arg(mLines.size()));
}

bool frmRSVP::IsDirty() const {
    if (Flag(mReceived->isChecked()) !=
        (mInvite.RSVP_RECEIVED_FG == QLatin1String("Y") ? QStringLiteral("Y") : QStringLiteral("N")))
        return true;
    for (int i = 0; i < mLines.size(); ++i) {
        const clsCONTACT& person = mInvite.GUESTS.at(i);
        const bool attending = mLines.at(i).Attending->isChecked();
        if (attending != (person.ATTENDING_FG == QLatin1String("Y")))
            return true;
        if (attending && mLines.at(i).Meal->Code() != person.MEAL_ID)
            return true;
    }
    return false;
}

bool frmRSVP::SaveRSVP() {
    clsINVITE invite = mInvite;
    invite.RSVP_RECEIVED_FG = Flag(mReceived->isChecked());
    QList<clsCONTACT> people = invite.GUESTS;
    try {
        clsTransaction tx(gDB());
        invite.SaveOrThrow(false);
        for (int i = 0; i < people.size(); ++i) {
            clsCONTACT& person = people[i];
            person.ATTENDING_FG = Flag(mLines.at(i).Attending->isChecked());
            person.MEAL_ID = mLines.at(i).Meal->Code();
            // A reply changes no envelope.
            person.SaveOrThrow(false, false);
        }
        tx.Commit();
    } catch (const clsDbError& e) {
        RecordIO::Report(e);
        return false;
    }
    invite.GUESTS = people;
    mInvite = invite;
    emit RSVPUpdated(mInvite.INVITE_ID);
    return true;
}

// The name of a person changed in the contact editor: the line follows, and so do the envelopes.
void frmRSVP::mfrmContact_Updated(const QString& contactId) {
    clsCONTACT contact;
    if (!contact.OpenRecord(contactId))
        return;
    for (int i = 0; i < mInvite.GUESTS.size(); ++i) {
        if (mInvite.GUESTS.at(i).CONTACT_ID != contactId)
            continue;
        mInvite.GUESTS[i] = contact;
        mLines[i].Name->setCaption(contact.FirstLast());
    }
    clsINVITE labels = mInvite;
    if (labels.RefreshLabeling(true, false) && labels.Save(false)) {
        mInvite.DISPLAY_AS_TX = labels.DISPLAY_AS_TX;
        mInvite.OUTER_ENVELOPE_TX = labels.OUTER_ENVELOPE_TX;
        mInvite.INNER_ENVELOPE_TX = labels.INNER_ENVELOPE_TX;
    }
}

void frmRSVP::reject() {
    const CloseChoice choice = AskBeforeClose(IsDirty());
    if (choice == CloseChoice::Save && SaveRSVP())
        QDialog::accept();
    else if (choice == CloseChoice::Discard)
        QDialog::reject();
}
