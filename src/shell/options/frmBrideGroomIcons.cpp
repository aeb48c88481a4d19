#include "shell/options/frmBrideGroomIcons.h"

#include "shell/options/modBrideGroomIcons.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

frmBrideGroomIcons::frmBrideGroomIcons(bool bride, int current, QWidget* parent)
    : QDialog(parent), mBride(bride) {
    setObjectName(QStringLiteral("frmBrideGroomIcons"));
    setWindowTitle(bride ? QStringLiteral("Bride Icon") : QStringLiteral("Groom Icon"));

    auto* hint = new QLabel(QStringLiteral("Click a picture to use it."), this);
    auto* grid = new QGridLayout;
    mGroup = new QButtonGroup(this);
    mGroup->setExclusive(true);
    constexpr int kColumns = 3;
    for (int number = 1; number <= modBrideGroomIcons::kCount; ++number) {
        auto* button = new QToolButton(this);
        button->setObjectName(QStringLiteral("imgIcon_%1").arg(number));
        button->setIcon(modBrideGroomIcons::Icon(bride, number));
        button->setIconSize(QSize(64, 64));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setChecked(number == current);
        button->setToolTip(modBrideGroomIcons::Key(bride, number));
        mGroup->addButton(button, number);
        grid->addWidget(button, (number - 1) / kColumns, (number - 1) % kColumns);
    }
    connect(mGroup, &QButtonGroup::idClicked, this, [this](int number) { emit IconChosen(mBride, number); });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* done = buttons->addButton(QStringLiteral("Done"), QDialogButtonBox::AcceptRole);
    done->setObjectName(QStringLiteral("cmdDone"));
    done->setDefault(true);
    connect(done, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(hint);
    layout->addLayout(grid);
    layout->addWidget(buttons);
}
