#include "shell/controls/usrNumberBox.h"

#include <QKeyEvent>
#include <QLocale>
#include <QRegularExpression>
#include <QToolTip>
#include <cmath>

namespace {

// "-123.45" and its unfinished forms ("", "-", ".", "12.").
bool IsPlainNumber(const QString& plain) {
    static const QRegularExpression pattern(QStringLiteral("^-?[0-9]*(\\.[0-9]*)?$"));
    return pattern.match(plain).hasMatch();
}

double PlainToDouble(QString plain) {
    const bool negative = plain.startsWith(QLatin1Char('-'));
    if (negative)
        plain.remove(0, 1);
    if (plain.startsWith(QLatin1Char('.')))
        plain.prepend(QLatin1Char('0'));
    if (plain.endsWith(QLatin1Char('.')))
        plain.append(QLatin1Char('0'));
    const double value = plain.isEmpty() ? 0.0 : plain.toDouble();
    return negative ? -value : value;
}

// The format "0.0##########": at least one and at most eleven decimals, never an exponent.
QString RenderWithElevenDecimals(double value) {
    if (!std::isfinite(value) || value == 0.0)
        value = 0.0;
    QString text = QString::number(value, 'f', 11);
    while (text.endsWith(QLatin1Char('0')) && !text.endsWith(QLatin1String(".0")))
        text.chop(1);
    return text;
}

QString GroupedDigits(const QString& digits, const QString& separator) {
    QString grouped;
    for (int i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            grouped += separator;
        grouped += digits.at(i);
    }
    return grouped;
}

} // namespace

usrNumberBox::usrNumberBox(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    ReadRegionalSeparators();
    connect(this, &QLineEdit::textChanged, this, &usrNumberBox::OnTextChanged);
    Normalise();
    mLastValue = Value();
}

// ---- Looks ----

QColor usrNumberBox::BackColor() const {
    return palette().color(QPalette::Base);
}

void usrNumberBox::setBackColor(const QColor& color) {
    QPalette p = palette();
    p.setColor(QPalette::Base, color);
    setPalette(p);
}

QColor usrNumberBox::ForeColor() const {
    return palette().color(QPalette::Text);
}

void usrNumberBox::setForeColor(const QColor& color) {
    QPalette p = palette();
    p.setColor(QPalette::Text, color);
    setPalette(p);
}

// ---- Settings that reshape the text ----

void usrNumberBox::setAllowNegation(bool allow) {
    mAllowNegation = allow;
    if (!allow && text().startsWith(QLatin1Char('-')))
        ReplaceText(text().mid(1), qMax(0, cursorPosition() - 1));
}

void usrNumberBox::setDecimalPlaces(qint16 places) {
    mDecimalPlaces = qMax<qint16>(0, places);
    Normalise();
}

void usrNumberBox::setUseThousandDelimiter(bool use) {
    mUseThousandDelimiter = use;
    Normalise();
}

// ---- Text and value ----

void usrNumberBox::SetText(const QString& newText) {
    bool ok = false;
    PlainNumber(newText, &ok);
    if (!ok)
        return;
    const QString normalised = NormalisedText(newText);
    ReplaceText(normalised, static_cast<int>(normalised.size()));
}

double usrNumberBox::Value() const {
    bool ok = false;
    const QString plain = PlainNumber(text(), &ok);
    return ok ? PlainToDouble(plain) : 0.0;
}

void usrNumberBox::setValue(double value) {
    QString rendered = RenderWithElevenDecimals(value);
    rendered.replace(QLatin1Char('.'), mDecimalSeparator);
    const QString normalised = NormalisedText(rendered);
    ReplaceText(normalised, static_cast<int>(normalised.size()));
}

void usrNumberBox::Invert() {
    if (!mAllowInvert)
        return;
    const QString current = text();
    const bool negative = current.startsWith(QLatin1Char('-'));
    const QString inverted = negative ? current.mid(1) : QString(QLatin1Char('-') + current);
    if (IsAcceptable(inverted))
        ReplaceText(inverted, qMax(0, cursorPosition() + (negative ? -1 : 1)));
}

QString usrNumberBox::PlainNumber(const QString& value, bool* ok) const {
    QString plain = value.trimmed();
    if (!mThousandSeparator.isEmpty())
        plain.remove(mThousandSeparator);
    if (mDecimalSeparator != QLatin1String("."))
        plain.replace(mDecimalSeparator, QLatin1String("."));
    *ok = IsPlainNumber(plain);
    return *ok ? plain : QString();
}

bool usrNumberBox::IsAcceptable(const QString& candidate) const {
    bool ok = false;
    const QString plain = PlainNumber(candidate, &ok);
    if (!ok)
        return false;
    const double value = PlainToDouble(plain);
    return value <= mMaximumValue && value >= mMinimumValue;
}

QString usrNumberBox::NormalisedText(const QString& typed) const {
    bool ok = false;
    QString plain = PlainNumber(typed, &ok);
    if (!ok)
        return typed;
    const bool negative = plain.startsWith(QLatin1Char('-'));
    if (negative)
        plain.remove(0, 1);
    const qsizetype point = plain.indexOf(QLatin1Char('.'));
    QString whole = point < 0 ? plain : plain.left(point);
    const QString decimals = point < 0 ? QString() : plain.mid(point + 1);
    while (whole.size() > 1 && whole.startsWith(QLatin1Char('0')))
        whole.remove(0, 1);
    if (whole.isEmpty())
        whole = QStringLiteral("0");

    QString result = negative ? QStringLiteral("-") : QString();
    result += mUseThousandDelimiter ? GroupedDigits(whole, mThousandSeparator) : whole;
    if (mDecimalPlaces > 0)
        result +=
            mDecimalSeparator + decimals.left(mDecimalPlaces).leftJustified(mDecimalPlaces, QLatin1Char('0'));
    return result;
}

// ---- Regional settings ----

void usrNumberBox::ReadRegionalSeparators() {
    const QLocale locale;
    mDecimalSeparator = locale.decimalPoint();
    mThousandSeparator = locale.groupSeparator();
    if (mThousandSeparator == mDecimalSeparator)
        mThousandSeparator.clear();
}

void usrNumberBox::ShowCurrencySettings() {
    bool ok = false;
    QString plain = PlainNumber(text(), &ok);
    ReadRegionalSeparators();
    if (ok) {
        plain.replace(QLatin1Char('.'), mDecimalSeparator);
        ReplaceText(NormalisedText(plain), 0);
    }
    QToolTip::showText(mapToGlobal(QPoint(0, height())),
                       tr("Decimal symbol: \"%1\"   Digit grouping symbol: \"%2\"\n"
                          "These come from the language and region settings of the desktop.")
                           .arg(mDecimalSeparator, mThousandSeparator),
                       this);
}

// ---- Typing ----

void usrNumberBox::keyPressEvent(QKeyEvent* event) {
    if (isReadOnly()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const Qt::KeyboardModifiers mods = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (mods == Qt::ControlModifier && event->key() == Qt::Key_R) {
        ShowCurrencySettings();
        return;
    }
    const QString typed = event->text();
    if (mods == Qt::NoModifier && (event->key() == Qt::Key_Minus || typed == QLatin1String("-"))) {
        if (mAllowNegation)
            ToggleMinus();
        return;
    }
    if (mods == Qt::NoModifier && (typed == QLatin1String(".") || typed == mDecimalSeparator)) {
        TypeDecimal();
        return;
    }
    const bool printable = !typed.isEmpty() && typed.at(0).isPrint() && mods == Qt::NoModifier;
    if (printable && !(typed.size() == 1 && typed.at(0).isDigit() && typed.at(0).unicode() < 128))
        return; // a key the box does not take is dropped
    mLastGoodCursor = cursorPosition();
    QLineEdit::keyPressEvent(event);
}

void usrNumberBox::TypeDecimal() {
    if (mDecimalPlaces == 0)
        return;
    const qsizetype existing = text().indexOf(mDecimalSeparator);
    if (existing >= 0) {
        deselect();
        setCursorPosition(static_cast<int>(existing + mDecimalSeparator.size()));
        return;
    }
    mLastGoodCursor = cursorPosition();
    insert(mDecimalSeparator);
}

void usrNumberBox::ToggleMinus() {
    const QString current = text();
    const int cursor = cursorPosition();
    const bool negative = current.startsWith(QLatin1Char('-'));
    const QString toggled = negative ? current.mid(1) : QString(QLatin1Char('-') + current);
    if (IsAcceptable(toggled))
        ReplaceText(toggled, qMax(0, cursor + (negative ? -1 : 1)));
}

void usrNumberBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    Normalise();
}

// ---- Keeping the text good ----

void usrNumberBox::OnTextChanged(const QString& current) {
    if (mChanging)
        return;
    if (!IsAcceptable(current)) {
        ReplaceText(mLastGoodText, mLastGoodCursor);
        return;
    }
    mLastGoodText = current;
    mLastGoodCursor = cursorPosition();
    NotifyIfValueChanged();
}

void usrNumberBox::Normalise() {
    const int fromEnd = static_cast<int>(text().size()) - cursorPosition();
    const QString normalised = NormalisedText(text());
    ReplaceText(normalised, qMax(0, static_cast<int>(normalised.size()) - fromEnd));
}

void usrNumberBox::ReplaceText(const QString& newText, int cursor) {
    mChanging = true;
    if (newText != text())
        setText(newText);
    setCursorPosition(qBound(0, cursor, static_cast<int>(newText.size())));
    mChanging = false;
    mLastGoodText = newText;
    mLastGoodCursor = cursorPosition();
    NotifyIfValueChanged();
}

void usrNumberBox::NotifyIfValueChanged() {
    const double value = Value();
    if (value == mLastValue)
        return;
    mLastValue = value;
    emit Change();
}
