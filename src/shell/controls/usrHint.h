#pragma once

#include <QIcon>
#include <QWidget>

class QLabel;

// A hint on a screen: the picture "imgHint" beside the wrapped caption "lblHint", on a softly
// tinted panel.
class usrHint : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)

public:
    explicit usrHint(QWidget* parent = nullptr);
    explicit usrHint(const QString& caption, QWidget* parent = nullptr);

    QString Caption() const;
    void setCaption(const QString& caption);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* mCaption = nullptr;
};
