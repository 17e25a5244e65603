#include "shell/single_instance.h"

#include <QDir>
#include <QLocalSocket>

namespace zolt::shell {

SingleInstance::SingleInstance(const QString& lockPath, const QString& serverName)
    : lock_(std::make_unique<QLockFile>(lockPath)), serverName_(serverName) {
    lock_->setStaleLockTime(0);
    first_ = lock_->tryLock(0);
    if (!first_)
        return;
    // The lock is ours, so a socket left by a crashed instance is stale.
    QLocalServer::removeServer(serverName_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::receive);
    server_.listen(serverName_);
}

// One path a connection, UTF-8, ended by the sender closing its side.
void SingleInstance::receive() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        const auto take = [this, socket] {
            const QString path = QString::fromUtf8(socket->readAll());
            socket->deleteLater();
            if (!path.isEmpty())
                emit FileHandedOver(path);
        };
        // A quick sender may be gone before the connection is taken.
        if (socket->state() == QLocalSocket::UnconnectedState)
            take();
        else
            connect(socket, &QLocalSocket::disconnected, this, take);
    }
}

bool SingleInstance::HandOver(const QString& path, int timeoutMs) const {
    QLocalSocket socket;
    socket.connectToServer(serverName_);
    if (!socket.waitForConnected(timeoutMs))
        return false;
    socket.write(path.toUtf8());
    const bool sent = socket.waitForBytesWritten(timeoutMs);
    socket.disconnectFromServer();
    return sent && (socket.state() == QLocalSocket::UnconnectedState ||
                    socket.waitForDisconnected(timeoutMs));
}

QString DefaultInstanceLockPath() {
    return QDir::temp().filePath(QStringLiteral("zolt-6.0.lock"));
}

QString DefaultInstanceServerName() {
    return QStringLiteral("zolt-6.0-") + QDir::home().dirName();
}

} // namespace zolt::shell
