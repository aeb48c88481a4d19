#include "guests/ui/frmContactImportDuplicate.h"

#include "core/clsApp.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

frmContactImportDuplicate::frmContactImportDuplicate(int count, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmContactImportDuplicate"));
    setWindowTitle(QStringLiteral("Duplicate records found"));
    auto* layout = new QVBoxLayout(this);
    auto* total = new QLabel(QString::number(count) + QStringLiteral(" duplicate records found"), this);
    total->setObjectName(QStringLiteral("lblCount"));
    QFont bold = total->font();
    bold.setBold(true);
    total->setFont(bold);

    auto* legendRow = new QHBoxLayout;
    auto* mark = new QLabel(this);
    mark->setObjectName(QStringLiteral("imgLegend"));
    mark->setPixmap(QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(16, 16));
    auto* legend = new QLabel(QStringLiteral("= Duplicate record"), this);
    legend->setObjectName(QStringLiteral("lblLegend"));
    legendRow->addWidget(mark);
    legendRow->addWidget(legend, 1);

    auto* text =
        new QLabel(QStringLiteral("A duplicate indicates that an identical first name, last name and email "
                                  "address of a guest have already been entered or imported into Vowren"),
                   this);
    text->setObjectName(QStringLiteral("lblText"));
    text->setWordWrap(true);
    auto* dontShow = new QCheckBox(QStringLiteral("Don't show this again"), this);
    dontShow->setObjectName(QStringLiteral("chkDontShow"));
    connect(dontShow, &QCheckBox::toggled, this, [](bool on) { gApp().SetShowDuplicateWarning(!on); });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(total);
    layout->addLayout(legendRow);
    layout->addWidget(text);
    layout->addWidget(dontShow);
    layout->addWidget(buttons);
    setFixedWidth(380);
}
