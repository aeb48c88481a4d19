#include "planning/ui/usrMoneyBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

usrMoneyBox::usrMoneyBox(QWidget* parent) : QWidget(parent) {
    mEdit = new QLineEdit(this);
    mEdit->setObjectName(QStringLiteral("txt"));
    mEdit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    mEdit->setPlaceholderText(clsMoney().Editable());
    mError = new QLabel(this);
    mError->setObjectName(QStringLiteral("lblError"));
    mError->setWordWrap(true);
    mError->setStyleSheet(QStringLiteral("color: #c00000;"));
    mError->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(mEdit);
    layout->addWidget(mError);
    setFocusProxy(mEdit);
    connect(mEdit, &QLineEdit::textChanged, this, [this] {
        ShowError();
        emit Changed();
    });
    connect(mEdit, &QLineEdit::editingFinished, this, [this] {
        const clsMoney::ParseResult result = Result();
        if (result.Ok() && !mEdit->text().trimmed().isEmpty())
            mEdit->setText(result.Amount().Editable());
    });
}

void usrMoneyBox::SetAmount(clsMoney amount) {
    mEdit->setText(amount.Editable());
}

clsMoney::ParseResult usrMoneyBox::Result() const {
    return clsMoney::Parse(mEdit->text());
}

QString usrMoneyBox::Text() const {
    return mEdit->text();
}

void usrMoneyBox::ShowError() {
    const QString error = Result().Error;
    mError->setText(error);
    mError->setVisible(!error.isEmpty());
}
