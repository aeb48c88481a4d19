#include "seating/ui/frmTableSwap.h"

#include "guests/clsCONTACT.h"
#include "seating/clsDINING_TABLE.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDropdown.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

namespace {

// A head and shoulders; a brought guest carries a small plus beside it.
void PaintPerson(QPainter& painter, const QRectF& square, const QColor& color, bool broughtGuest) {
    const qreal s = square.width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QRectF body = broughtGuest ? QRectF(square.topLeft(), QSizeF(s * 0.72, s)) : square;
    const qreal w = body.width();
    painter.drawEllipse(QRectF(body.left() + w * 0.32, body.top() + s * 0.08, w * 0.36, s * 0.36));
    QPainterPath shoulders;
    shoulders.addRoundedRect(QRectF(body.left() + w * 0.14, body.top() + s * 0.5, w * 0.72, s * 0.46),
                             s * 0.2, s * 0.2);
    painter.drawPath(shoulders);
    if (!broughtGuest)
        return;
    painter.setPen(QPen(color, s * 0.1));
    const QPointF c(square.right() - s * 0.14, square.top() + s * 0.22);
    painter.drawLine(c - QPointF(s * 0.12, 0), c + QPointF(s * 0.12, 0));
    painter.drawLine(c - QPointF(0, s * 0.12), c + QPointF(0, s * 0.12));
}

const QIcon& PersonIcon(bool broughtGuest) {
    static const QIcon contact = ControlIcons::Drawn(
        [](QPainter& p, const QRectF& r, const QColor& c) { PaintPerson(p, r, c, false); },
        QColor(70, 90, 140));
    static const QIcon guestOf =
        ControlIcons::Drawn([](QPainter& p, const QRectF& r, const QColor& c) { PaintPerson(p, r, c, true); },
                            QColor(40, 130, 90));
    return broughtGuest ? guestOf : contact;
}

} // namespace

frmTableSwap::frmTableSwap(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmTableSwap"));
    setWindowTitle(QStringLiteral("Swap Tables"));
    auto* grid = new QGridLayout(this);
    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(windowTitle());
    auto* hint = new QLabel(QStringLiteral("The guests and the labels of the two tables change places; their "
                                           "numbers, shapes and seats stay."),
                            this);
    hint->setWordWrap(true);
    grid->addWidget(header, 0, 0, 1, 2);
    grid->addWidget(hint, 1, 0, 1, 2);
    for (int side = 0; side < 2; ++side) {
        mTables[side] = new usrDropdown(this);
        mTables[side]->setObjectName(QStringLiteral("usr_%1").arg(side));
        mTables[side]->PopulateSQL(
            QStringLiteral("SELECT DINING_TABLE_ID, DINING_TABLE_NB || IFNULL(' - ' || "
                           "DINING_TABLE_NM, '') FROM DINING_TABLE "
                           "ORDER BY DINING_TABLE_NB"));
        mTables[side]->setListIndex(-1);
        mGuests[side] = new QListWidget(this);
        mGuests[side]->setObjectName(QStringLiteral("lvw_%1").arg(side));
        mGuests[side]->setSelectionMode(QAbstractItemView::NoSelection);
        grid->addWidget(mTables[side], 2, side);
        grid->addWidget(mGuests[side], 3, side);
        connect(mTables[side]->ComboBox(), &QComboBox::currentIndexChanged, this, [this, side] {
            ShowGuests(side);
            RefreshEnabling();
        });
    }
    auto* buttons = new QDialogButtonBox(this);
    mSwap = buttons->addButton(QStringLiteral("Swap"), QDialogButtonBox::AcceptRole);
    mSwap->setObjectName(QStringLiteral("cmdSwap"));
    QPushButton* cancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(mSwap, &QPushButton::clicked, this, &frmTableSwap::cmdSwap_Click);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    grid->addWidget(buttons, 4, 0, 1, 2);
    RefreshEnabling();
    resize(520, 440);
}

void frmTableSwap::SelectTables(const QString& firstKey, const QString& secondKey) {
    mTables[0]->setCode(firstKey);
    mTables[1]->setCode(secondKey);
}

void frmTableSwap::ShowGuests(int side) {
    mGuests[side]->clear();
    const QString key = mTables[side]->Code();
    if (key.isEmpty())
        return;
    const QList<clsCONTACT> guests = RecordIO::Read([&key] {
        return clsCONTACT::OpenRecords(0,
                                       QStringLiteral("CONTACT.DINING_TABLE_ID = %1").arg(key.toLongLong()));
    });
    for (const clsCONTACT& guest : guests)
        new QListWidgetItem(PersonIcon(!guest.GUEST_OF_ID.isEmpty()), guest.LastFirstMiddleSuffix(),
                            mGuests[side]);
}

void frmTableSwap::RefreshEnabling() {
    const QString first = mTables[0]->Code();
    const QString second = mTables[1]->Code();
    mSwap->setEnabled(!first.isEmpty() && !second.isEmpty() && first != second);
}

void frmTableSwap::cmdSwap_Click() {
    const QString first = mTables[0]->Code();
    const QString second = mTables[1]->Code();
    if (!RecordIO::Attempt([&] { clsDINING_TABLE::SwapTables(first, second); }))
        return;
    emit Swap();
    accept();
}
