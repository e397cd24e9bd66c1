#include "help/hand_over.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

namespace qarn {
namespace {

constexpr int patience = 2000;  // milliseconds
constexpr auto streamVersion = QDataStream::Qt_6_0;

// The folder belongs to the person alone; the name stands for the file and the display.
QString NameFor(const QString& helpFilePath) {
    const QFileInfo file(helpFilePath);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(file.canonicalFilePath().toUtf8());
    hash.addData(qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY"));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QDir(folder).filePath("qarn-help-" + hash.result().toHex().left(16));
}

// The answer assures the sender that the topic has arrived.
void TakeTopic(QLocalSocket* socket, HandOver* receiver) {
    QDataStream stream(socket);
    stream.setVersion(streamVersion);
    stream.startTransaction();
    QString topic;
    QByteArray activationToken;
    stream >> topic >> activationToken;
    if (!stream.commitTransaction()) return;

    socket->write("taken");
    socket->flush();
    if (!activationToken.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", activationToken);
    emit receiver->TopicReceived(topic);
}

}  // namespace

HandOver::HandOver(const QString& helpFilePath) : socketName_(NameFor(helpFilePath)) {
    connect(&server_, &QLocalServer::newConnection, this, &HandOver::Accept);
}

bool HandOver::GiveAway(const QString& topic) {
    // Of two viewers started at once, the second waits until the first one listens.
    QLockFile lock(socketName_ + ".lock");
    lock.tryLock(patience);
    if (Send(topic)) return true;
    Listen();
    return false;
}

bool HandOver::Send(const QString& topic) const {
    QLocalSocket socket;
    socket.connectToServer(socketName_);
    if (!socket.waitForConnected(patience)) return false;
    QDataStream stream(&socket);
    stream.setVersion(streamVersion);
    stream << topic << qgetenv("XDG_ACTIVATION_TOKEN");
    return socket.waitForBytesWritten(patience) && socket.waitForReadyRead(patience);
}

// A viewer that has crashed leaves its socket behind.
void HandOver::Listen() {
    QLocalServer::removeServer(socketName_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.listen(socketName_);
}

void HandOver::Accept() {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this,
                [this, socket] { TakeTopic(socket, this); });
    }
}

}  // namespace qarn
