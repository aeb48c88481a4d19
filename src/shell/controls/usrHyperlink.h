#pragma once

#include <QColor>
#include <QIcon>
#include <QWidget>

// A link: an optional picture and a caption in the link colour, underlined under the mouse or with
// the keyboard focus (or always). A click on either, or Enter or Space, raises Click with the index of
// the link in its array (the number behind the last "_" of the object name, "linkAction_3" is 3,
// unless Index is set).
class usrHyperlink : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool AlwaysUnderline READ AlwaysUnderline WRITE setAlwaysUnderline)
    Q_PROPERTY(bool Autosize READ Autosize WRITE setAutosize)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(QString set_caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(bool FontBold READ FontBold WRITE setFontBold)
    Q_PROPERTY(double FontSize READ FontSize WRITE setFontSize)
    Q_PROPERTY(QFont Font READ font WRITE setLinkFont)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(int IndentCaptionLeft READ IndentCaptionLeft WRITE setIndentCaptionLeft)
    Q_PROPERTY(int IndentCaptionTop READ IndentCaptionTop WRITE setIndentCaptionTop)
    Q_PROPERTY(int IndentIconLeft READ IndentIconLeft WRITE setIndentIconLeft)
    Q_PROPERTY(int IndentIconTop READ IndentIconTop WRITE setIndentIconTop)
    Q_PROPERTY(QIcon Picture READ Picture WRITE setPicture)
    Q_PROPERTY(QString ToolTip READ toolTip WRITE setToolTip)
    Q_PROPERTY(int Index READ Index WRITE setIndex STORED false)

public:
    explicit usrHyperlink(QWidget* parent = nullptr);
    explicit usrHyperlink(const QString& caption, QWidget* parent = nullptr);

    bool AlwaysUnderline() const { return mAlwaysUnderline; }
    void setAlwaysUnderline(bool always);
    bool Autosize() const { return mAutosize; }
    void setAutosize(bool autosize);
    // Invalid: the parent shows through.
    QColor BackColor() const { return mBackColor; }
    void setBackColor(const QColor& color);
    QString Caption() const { return mCaption; }
    void setCaption(const QString& caption);
    bool FontBold() const { return font().bold(); }
    void setFontBold(bool bold);
    double FontSize() const { return font().pointSizeF(); }
    void setFontSize(double points);
    void setLinkFont(const QFont& font);
    // The link colour; the program's hyperlink colour unless set (on a dark palette, the palette's).
    QColor ForeColor() const;
    void setForeColor(const QColor& color);
    int IndentCaptionLeft() const { return mIndentCaptionLeft; }
    void setIndentCaptionLeft(int pixels);
    int IndentCaptionTop() const { return mIndentCaptionTop; }
    void setIndentCaptionTop(int pixels);
    int IndentIconLeft() const { return mIndentIconLeft; }
    void setIndentIconLeft(int pixels);
    int IndentIconTop() const { return mIndentIconTop; }
    void setIndentIconTop(int pixels);
    QIcon Picture() const { return mPicture; }
    void setPicture(const QIcon& picture);
    int Index() const;
    void setIndex(int index) { mIndex = index; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void Click(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int IconSide() const;
    QRect IconRect() const;
    int CaptionWidth() const;
    QRect CaptionRect() const;
    void Relayout();
    void Activate();

    QString mCaption;
    QIcon mPicture;
    QColor mForeColor;
    QColor mBackColor;
    bool mAlwaysUnderline = false;
    bool mAutosize = true;
    bool mHovered = false;
    bool mPressed = false;
    int mIndentCaptionLeft = 0;
    int mIndentCaptionTop = 0;
    int mIndentIconLeft = 0;
    int mIndentIconTop = 0;
    int mIndex = -1;
};
