#include "seating/ui/modTravelEditors.h"

#include "core/modGeneral.h"
#include "platform/clsShell.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/usrHyperlink.h"

#include <QHBoxLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPainterPath>
#include <QPlainTextEdit>

namespace modTravelEditors {

namespace {

QIcon EnvelopeIcon() {
    return ControlIcons::Drawn([](QPainter& p, const QRectF& r, const QColor& color) {
        const QRectF body =
            r.adjusted(r.width() * 0.1, r.height() * 0.25, -r.width() * 0.1, -r.height() * 0.2);
        p.setPen(QPen(color, 1.4));
        p.setBrush(Qt::NoBrush);
        p.drawRect(body);
        p.drawPolyline(
            QPolygonF{body.topLeft(), QPointF(body.center().x(), body.center().y() + 1), body.topRight()});
    });
}

QIcon GlobeIcon() {
    return ControlIcons::Drawn([](QPainter& p, const QRectF& r, const QColor& color) {
        const QRectF ball =
            r.adjusted(r.width() * 0.12, r.height() * 0.12, -r.width() * 0.12, -r.height() * 0.12);
        p.setPen(QPen(color, 1.3));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(ball);
        p.drawEllipse(ball.adjusted(ball.width() * 0.3, 0, -ball.width() * 0.3, 0));
        p.drawLine(QPointF(ball.left(), ball.center().y()), QPointF(ball.right(), ball.center().y()));
    });
}

// A web address the browser can open: one without a scheme is taken as http.
QString WebAddress(const QString& text) {
    return text.contains(QLatin1String("://")) ? text : QStringLiteral("http://") + text;
}

usrHyperlink* Picture(const QString& name, const QIcon& icon, const QString& tip, QWidget* parent) {
    auto* picture = new usrHyperlink(QString(), parent);
    picture->setObjectName(name);
    picture->setPicture(icon);
    picture->setToolTip(tip);
    return picture;
}

} // namespace

QLineEdit* LineBox(const QString& name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    return box;
}

QLineEdit* NumberBox(const QString& name, QWidget* parent) {
    QLineEdit* box = LineBox(name, parent);
    box->setValidator(new QIntValidator(1, 999999, box));
    box->setMaximumWidth(90);
    return box;
}

QPlainTextEdit* TextBox(const QString& name, QWidget* parent, int lines) {
    auto* box = new QPlainTextEdit(parent);
    box->setObjectName(name);
    box->setTabChangesFocus(true);
    box->setFixedHeight(box->fontMetrics().lineSpacing() * lines + 12);
    return box;
}

usrHyperlink* EmailPicture(QLineEdit* box, QWidget* parent) {
    usrHyperlink* picture =
        Picture(QStringLiteral("picEmail"), EnvelopeIcon(), QStringLiteral("Send an e-mail"), parent);
    const auto refresh = [box, picture] { picture->setEnabled(box->text().contains(QLatin1Char('@'))); };
    QObject::connect(box, &QLineEdit::textChanged, picture, refresh);
    QObject::connect(picture, &usrHyperlink::Click, picture, [box] { SendEmail(box->text().trimmed()); });
    refresh();
    return picture;
}

usrHyperlink* WebPicture(QLineEdit* box, QWidget* parent) {
    usrHyperlink* picture =
        Picture(QStringLiteral("picWeb"), GlobeIcon(), QStringLiteral("Visit the web site"), parent);
    const auto refresh = [box, picture] { picture->setEnabled(!box->text().trimmed().isEmpty()); };
    QObject::connect(box, &QLineEdit::textChanged, picture, refresh);
    QObject::connect(picture, &usrHyperlink::Click, picture,
                     [box] { gShell().OpenDocument(WebAddress(box->text().trimmed())); });
    refresh();
    return picture;
}

QWidget* WithPicture(QWidget* box, usrHyperlink* picture, QWidget* parent) {
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box, 1);
    layout->addWidget(picture);
    return row;
}

} // namespace modTravelEditors
