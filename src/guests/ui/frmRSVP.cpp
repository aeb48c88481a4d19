#include "guests/ui/frmRSVP.h"

#include "core/clsDICT.h"
#include "shell/modContactEditor.h"
#include "guests/ui/modGuestEditors.h"
#include "shell/controls/modLayout.h"
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
    QLabel* label = modLayout::BoldLabel(QString(), parent);
    label->setText(text);
    label->setStyleSheet(QStringLiteral("color: palette(dark);"));
    return label;
}

} // namespace

frmRSVP::frmRSVP(const QString& inviteId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmRSVP"));
    setWindowTitle(QStringLiteral("Open RSVP"));
    SetAdding(false);
    RecordIO::Attempt([this, &inviteId] { mInvite.OpenRecord(inviteId, true); });
    connect(this, &frmEditorBase::Updated, this, &frmRSVP::RSVPUpdated);

    mSummary = new QLabel(this);
    mSummary->setObjectName(QStringLiteral("lblSummary"));
    QFont font = mSummary->font();
    font.setBold(true);
    mSummary->setFont(font);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(BuildTop());
    layout->addWidget(BuildLines(), 1);
    layout->addWidget(mSummary);
    layout->addWidget(ButtonRow());

    RefreshEnabling();
    RefreshSummary();
    MarkClean();
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

    QLabel* header = Header(top);
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
            [this, id = person.CONTACT_ID] {
                modContactEditor::Open(this, id, {}, [this](const QString& updated) { mfrmContact_Updated(updated); });
            });
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

// A meal counts only for a person who comes.
QStringList frmRSVP::Snapshot() const {
    QStringList state{Flag(mReceived->isChecked())};
    for (const Line& line : mLines) {
        const bool attending = line.Attending->isChecked();
        state << Flag(attending) << (attending ? line.Meal->Code() : QString());
    }
    return state;
}

bool frmRSVP::SaveRecord() {
    clsINVITE reply = mInvite;
    reply.RSVP_RECEIVED_FG = Flag(mReceived->isChecked());
    for (int i = 0; i < reply.GUESTS.size(); ++i) {
        reply.GUESTS[i].ATTENDING_FG = Flag(mLines.at(i).Attending->isChecked());
        reply.GUESTS[i].MEAL_ID = mLines.at(i).Meal->Code();
    }
    if (!RecordIO::Attempt([&reply] { reply.SaveReply(); }))
        return false;
    mInvite = reply;
    return true;
}

// The name of a person changed in the contact editor: the line follows, and so do the envelopes.
void frmRSVP::mfrmContact_Updated(const QString& contactId) {
    clsCONTACT contact;
    if (!RecordIO::Read([&] { return contact.OpenRecord(contactId); }))
        return;
    for (int i = 0; i < mInvite.GUESTS.size(); ++i) {
        if (mInvite.GUESTS.at(i).CONTACT_ID != contactId)
            continue;
        mInvite.GUESTS[i] = contact;
        mLines[i].Name->setCaption(contact.FirstLast());
    }
    clsINVITE labels = mInvite;
    const bool relabelled = RecordIO::Attempt([&labels] {
        labels.RefreshLabeling(true, false);
        labels.Save(false);
    });
    if (relabelled) {
        mInvite.DISPLAY_AS_TX = labels.DISPLAY_AS_TX;
        mInvite.OUTER_ENVELOPE_TX = labels.OUTER_ENVELOPE_TX;
        mInvite.INNER_ENVELOPE_TX = labels.INNER_ENVELOPE_TX;
    }
}
