#include "shell/modSingleInstance.h"

#include "core/ShowMessage.h"
#include "core/modDatabaseLock.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <unistd.h>

namespace modSingleInstance {
namespace {

const QByteArray kRaise = QByteArrayLiteral("raise\n");

// One name per user and database file.
QString ServerName(const QString& databasePath) {
    const QByteArray path = QFileInfo(databasePath).absoluteFilePath().toUtf8();
    return QStringLiteral("vowren-%1-%2")
        .arg(getuid())
        .arg(QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().left(16)));
}

void RaiseMainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window) && window->isVisible()) {
            window->setWindowState((window->windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
            window->raise();
            window->activateWindow();
        }
    }
}

void Listen(const QString& databasePath) {
    auto* server = new QLocalServer(qApp);
    QLocalServer::removeServer(ServerName(databasePath)); // one left by a Vowren that died
    if (!server->listen(ServerName(databasePath)))
        return; // a second start then can't raise this window, but is still told who holds the file
    QObject::connect(server, &QLocalServer::newConnection, server, [server] {
        while (QLocalSocket* socket = server->nextPendingConnection()) {
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket] {
                if (socket->readAll().contains(kRaise.trimmed()))
                    RaiseMainWindow();
                socket->disconnectFromServer();
            });
            QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

bool AskOtherToRaise(const QString& databasePath) {
    QLocalSocket socket;
    socket.connectToServer(ServerName(databasePath));
    if (!socket.waitForConnected(1000))
        return false;
    socket.write(kRaise);
    return socket.waitForBytesWritten(1000);
}

} // namespace

bool Claim(const QString& databasePath) {
    QString holder;
    if (modDatabaseLock::Acquire(databasePath, 0, &holder)) {
        Listen(databasePath);
        return true;
    }
    QMessageBox box;
    box.setWindowTitle(ProgramTitle());
    box.setIcon(QMessageBox::Information);
    box.setText(QStringLiteral("Vowren is already open on this database."));
    box.setInformativeText(QStringLiteral("\"%1\" is in use by %2.\n\nBring that window forward, or quit?")
                               .arg(databasePath, holder));
    QPushButton* forward = box.addButton(QStringLiteral("Bring Forward"), QMessageBox::AcceptRole);
    box.addButton(QStringLiteral("Quit"), QMessageBox::RejectRole);
    box.setDefaultButton(forward);
    box.exec();
    if (box.clickedButton() == forward && !AskOtherToRaise(databasePath))
        ShowMessage(QStringLiteral("The other Vowren window could not be reached. Look for it on your desktop."),
                    Msg::OKOnly | Msg::Information);
    return false;
}

} // namespace modSingleInstance
