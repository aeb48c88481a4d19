#include "shell/controls/modLayout.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>

namespace modLayout {

QLabel* HeaderLabel(QWidget* parent, qreal scale) {
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("lblHeader"));
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    label->setContentsMargins(0, 0, 0, 6);
    return label;
}

QLabel* BoldLabel(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QFormLayout* Form(QWidget* parent) {
    auto* form = new QFormLayout(parent);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    return form;
}

QLabel* CaptionedRow(QFormLayout* form, const QString& caption, QWidget* field, QWidget* buddy) {
    auto* label = new QLabel(caption, field->parentWidget());
    label->setBuddy(buddy ? buddy : field);
    form->addRow(label, field);
    return label;
}

QGroupBox* Group(const QString& title, QWidget* parent, const QString& name) {
    auto* group = new QGroupBox(title, parent);
    if (!name.isEmpty())
        group->setObjectName(name);
    return group;
}

} // namespace modLayout
