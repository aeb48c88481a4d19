#pragma once

#include <QColor>
#include <QLineEdit>

// The number field of every editor. It takes digits, one decimal symbol and a leading minus that the
// minus key switches on and off; anything else typed is dropped, and a text that is no number or lies
// outside the limits is refused (the last good text comes back). Leaving the field, or setting Value,
// shows the number with thousand delimiters and exactly DecimalPlaces decimals. The separators are the
// regional ones, read when the box is made and again with Ctrl+R.
class usrNumberBox : public QLineEdit {
    Q_OBJECT
    // Persisted under these names.
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(bool AllowNegation READ AllowNegation WRITE setAllowNegation)
    Q_PROPERTY(qint16 DecimalPlaces READ DecimalPlaces WRITE setDecimalPlaces)
    Q_PROPERTY(bool AllowInvert READ AllowInvert WRITE setAllowInvert)
    Q_PROPERTY(double MaximumValue READ MaximumValue WRITE setMaximumValue)
    Q_PROPERTY(double MinimumValue READ MinimumValue WRITE setMinimumValue)
    Q_PROPERTY(bool ReadOnly READ ReadOnly WRITE setReadOnlyBox)
    Q_PROPERTY(bool UseThousandDelimiter READ UseThousandDelimiter WRITE setUseThousandDelimiter)
    // Run-time only.
    Q_PROPERTY(QString Text READ Text WRITE SetText STORED false)
    Q_PROPERTY(double Value READ Value WRITE setValue NOTIFY Change STORED false USER true)

public:
    static constexpr double kDefaultMaximum = 999999999999.0;
    static constexpr double kDefaultMinimum = -999999999999.0;

    explicit usrNumberBox(QWidget* parent = nullptr);

    QColor BackColor() const;
    void setBackColor(const QColor& color);
    QColor ForeColor() const;
    void setForeColor(const QColor& color);

    bool AllowNegation() const { return mAllowNegation; }
    // Switching it off strips a minus at once.
    void setAllowNegation(bool allow);
    qint16 DecimalPlaces() const { return mDecimalPlaces; }
    // Reformats the text at once.
    void setDecimalPlaces(qint16 places);
    bool AllowInvert() const { return mAllowInvert; }
    void setAllowInvert(bool allow) { mAllowInvert = allow; }
    double MaximumValue() const { return mMaximumValue; }
    void setMaximumValue(double value) { mMaximumValue = value; }
    double MinimumValue() const { return mMinimumValue; }
    void setMinimumValue(double value) { mMinimumValue = value; }
    bool ReadOnly() const { return isReadOnly(); }
    void setReadOnlyBox(bool readOnly) { setReadOnly(readOnly); }
    bool UseThousandDelimiter() const { return mUseThousandDelimiter; }
    void setUseThousandDelimiter(bool use);

    // The text as shown.
    QString Text() const { return text(); }
    // Puts a text in and normalises it; a text that is no number leaves the box as it was.
    void SetText(const QString& text);
    // The delimiters removed, the decimal symbol read as a point; an empty text is 0.
    double Value() const;
    // Shows the value with up to eleven decimals before normalising, so nothing is lost on the way.
    void setValue(double value);
    // With AllowInvert, turns the sign of the value in place.
    void Invert();

    // The regional separators in use.
    QString ThousandSeparator() const { return mThousandSeparator; }
    QString DecimalSeparator() const { return mDecimalSeparator; }
    // Reads the separators of the regional settings again, converts the text, and shows them.
    void ShowCurrencySettings();

    // The normalised form of a typed text: the leading minus kept, thousand delimiters when used,
    // decimals padded or cut (never rounded) to DecimalPlaces; "" is 0, "." is "0." and "-" is "-0".
    QString NormalisedText(const QString& text) const;

signals:
    // The value changed, by typing or by the program.
    void Change();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void ReadRegionalSeparators();
    // The text stripped to "-123.45" form (a point as the decimal), or empty when it is no number.
    QString PlainNumber(const QString& text, bool* ok) const;
    bool IsAcceptable(const QString& text) const;
    void OnTextChanged(const QString& text);
    void TypeDecimal();
    void ToggleMinus();
    void Normalise();
    void ReplaceText(const QString& text, int cursor);
    void NotifyIfValueChanged();

    bool mAllowNegation = true;
    qint16 mDecimalPlaces = 2;
    bool mAllowInvert = false;
    double mMaximumValue = kDefaultMaximum;
    double mMinimumValue = kDefaultMinimum;
    bool mUseThousandDelimiter = true;
    QString mThousandSeparator = QStringLiteral(",");
    QString mDecimalSeparator = QStringLiteral(".");

    QString mLastGoodText;
    int mLastGoodCursor = 0;
    double mLastValue = 0.0;
    bool mChanging = false;
};
