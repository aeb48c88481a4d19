#pragma once

#include <QColor>
#include <QWidget>
#include <functional>

// A colour choice: a swatch of FillColor with a caption beside it. The swatch's tool tip gives the
// colour's parts; a click, or Enter or Space, opens the colour dialog and a colour chosen there
// becomes FillColor and raises ColorChanged. RTFColor is the colour as an entry of an RTF colour table.
class usrColor : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(QColor FillColor READ FillColor WRITE setFillColor NOTIFY ColorChanged)
    Q_PROPERTY(QString RTFColor READ RTFColor STORED false)

public:
    // Asks the user for a colour, starting from the given one; an invalid colour means cancelled.
    using Chooser = std::function<QColor(const QColor& initial, QWidget* parent, const QString& title)>;

    explicit usrColor(QWidget* parent = nullptr);

    QColor BackColor() const { return mBackColor; }
    void setBackColor(const QColor& color);
    QString Caption() const { return mCaption; }
    void setCaption(const QString& caption);
    QColor FillColor() const { return mFillColor; }
    // Does not raise ColorChanged: only the user's choice does.
    void setFillColor(const QColor& color);
    // "\red" + red + "\green" + green + "\blue" + blue + ";".
    QString RTFColor() const;

    // Opens the chooser; true when a colour was taken.
    bool ChooseColor();
    // Replaces the platform's colour dialog (for tests); an empty function puts it back.
    static void SetChooser(Chooser chooser);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void ColorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    QRect SwatchRect() const;
    void UpdateToolTip();

    QColor mBackColor;
    QString mCaption;
    QColor mFillColor = Qt::white;
};
