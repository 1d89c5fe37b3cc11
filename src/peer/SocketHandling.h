#pragma once

#include <QList>
#include <QSet>
#include <QTcpSocket>

namespace Zandrove {

/// The sockets of which a signal is being handled right now. A slot far down may run a dialog with an event
/// loop of its own, and in that the socket may be replaced: deleted there, it would be missing under the code
/// that emits the signal. So a socket that is discarded while it is handled is deleted afterwards.
class HandledSockets final
{
public:
    /// Deletes the socket from the event loop, as soon as nothing handles it.
    void discard(QTcpSocket *socket)
    {
        if (m_handled.contains(socket))
            m_discarded.insert(socket);
        else
            socket->deleteLater();
    }

private:
    friend class SocketHandling;

    void begin(QTcpSocket *socket) { m_handled.append(socket); }
    void end()
    {
        QTcpSocket *socket = m_handled.takeLast();
        if (!m_handled.contains(socket) && m_discarded.remove(socket))
            socket->deleteLater();
    }

    QList<QTcpSocket *> m_handled; ///< outermost first; one that is handled in a nested way stands repeatedly
    QSet<QTcpSocket *> m_discarded;
};

/// Marks a socket as handled for as long as it lives.
class [[nodiscard]] SocketHandling final
{
public:
    SocketHandling(HandledSockets &sockets, QTcpSocket *socket)
        : m_sockets(sockets)
    {
        m_sockets.begin(socket);
    }
    ~SocketHandling() { m_sockets.end(); }
    Q_DISABLE_COPY_MOVE(SocketHandling)

private:
    HandledSockets &m_sockets;
};

} // namespace Zandrove
