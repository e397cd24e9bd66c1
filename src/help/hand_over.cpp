#include "help/hand_over.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>

namespace qarn {
namespace {

constexpr int patience = 2000;  // milliseconds
constexpr auto streamVersion = QDataStream::Qt_6_0;

// A folder that belongs to the person alone, or none: what lies where others write could be theirs.
QString TrustedFolder() {
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    struct stat status {};
    const bool trusted = QDir::isAbsolutePath(QFile::decodeName(folder)) &&
                         stat(folder.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
                         status.st_uid == geteuid() && (status.st_mode & 077) == 0;
    return trusted ? QFile::decodeName(folder) : QString();
}

// The name stands for the file and the display. Without a trusted folder it is empty.
QString NameFor(const QString& helpFilePath) {
    const QString folder = TrustedFolder();
    if (folder.isEmpty()) return {};
    const QFileInfo file(helpFilePath);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(file.canonicalFilePath().toUtf8());
    hash.addData(qgetenv("DISPLAY") + '\n' + qgetenv("WAYLAND_DISPLAY"));
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
    if (socketName_.isEmpty()) return false;
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
