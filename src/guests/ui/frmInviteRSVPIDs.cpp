#include "guests/ui/frmInviteRSVPIDs.h"

#include "core/clsApp.h"
#include "guests/clsINVITE.h"
#include "guests/ui/frmInviteTip.h"
#include "guests/ui/modGuestEditors.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrHyperlink.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel* Paragraph(const QString& name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

frmInviteRSVPIDs::frmInviteRSVPIDs(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmInviteRSVPIDs"));
    setWindowTitle(QStringLiteral("Sort RSVP IDs"));
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(QStringLiteral("Sort RSVP IDs"));

    QLabel* text =
        Paragraph(QStringLiteral("lblText"),
                  QStringLiteral("Click 'Sort RSVP IDs' to associate a unique number with each invitation.  "
                                 "IDs will be assigned alphabetically by Invitation name."),
                  this);
    QLabel* why = Paragraph(QStringLiteral("lblWhy"), QStringLiteral("Why this is done"), this);
    QFont bold = why->font();
    bold.setBold(true);
    why->setFont(bold);
    QLabel* whyText = Paragraph(
        QStringLiteral("lblWhyText"),
        QStringLiteral(
            "When addressing invitations, gently write the guests' RSVP IDs somewhere on the back of the "
            "corresponding response cards.  If you receive an RSVP without a name, you will know who has "
            "responded by referring to the RSVP ID."),
        this);
    auto* sample = new usrHyperlink(QStringLiteral("View sample RSVP"), this);
    sample->setObjectName(QStringLiteral("linkSample"));
    sample->setPicture(modGuestEditors::CardIcon());
    connect(sample, &usrHyperlink::Click, this, [this] {
        frmInviteTip tip(this);
        tip.exec();
    });

    const bool locked = gApp().LockRSVPIDs();
    QLabel* lockedNote =
        Paragraph(QStringLiteral("lblLocked"),
                  QStringLiteral("Your RSVP IDs are locked. Unlock them on the Invitations page "
                                 "to sort them again."),
                  this);
    lockedNote->setStyleSheet(QStringLiteral("color: #a33;"));
    lockedNote->setVisible(locked);

    auto* buttons = new QDialogButtonBox(this);
    mSort = buttons->addButton(QStringLiteral("Sort RSVP IDs"), QDialogButtonBox::ActionRole);
    mSort->setObjectName(QStringLiteral("cmdSort"));
    mSort->setEnabled(!locked);
    mSort->setDefault(!locked);
    QPushButton* close = buttons->addButton(QStringLiteral("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(mSort, &QPushButton::clicked, this, &frmInviteRSVPIDs::SortRSVPIDs);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addWidget(text);
    layout->addSpacing(10);
    layout->addWidget(why);
    layout->addWidget(whyText);
    layout->addWidget(sample, 0, Qt::AlignLeft);
    layout->addWidget(lockedNote);
    layout->addStretch(1);
    layout->addWidget(buttons);
    setMinimumWidth(460);
    resize(500, 270);
    if (locked)
        close->setFocus();
    else
        mSort->setFocus();
}

bool frmInviteRSVPIDs::SortRSVPIDs() {
    if (gApp().LockRSVPIDs())
        return false;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool sorted = RecordIO::Attempt([] { clsINVITE::SortRSVPIDs(); });
    QApplication::restoreOverrideCursor();
    if (!sorted)
        return false;
    emit RSVPIDsChanged();
    accept();
    return true;
}
