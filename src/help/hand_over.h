#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

namespace qarn {

/// Keeps one viewer window for each person, display and help file: the first viewer listens, and
/// the next one hands its topic over to it. Where the person has no runtime folder of their own,
/// every viewer has its own window.
class HandOver : public QObject {
    Q_OBJECT

public:
    /// For the help file at this path.
    explicit HandOver(const QString& helpFilePath);

    /// Gives the topic to the viewer that is open on the same file. Gives false when there is none,
    /// or when it does not answer within a few seconds; from then on topics come to this one.
    bool GiveAway(const QString& topic);

    /// The name of the local socket; empty where nothing can be handed over.
    const QString& SocketName() const { return socketName_; }

signals:
    void TopicReceived(const QString& topic);

private:
    bool Send(const QString& topic) const;
    void Listen();
    void Accept();

    QString socketName_;
    QLocalServer server_;
};

}  // namespace qarn
