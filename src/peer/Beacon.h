#pragma once

#include "peer/LinkEnvironment.h"

#include <QObject>

#include <functional>

class QTimer;
class QUdpSocket;

namespace Zandrove {

/// The datagrams of discovery: announces this copy to every network it is in, and hears what others announce.
/// What the datagrams say is not known here. A datagram that cannot be sent, or a port that cannot be bound,
/// goes without a word.
class Beacon final : public QObject
{
    Q_OBJECT

public:
    /// `environment` has to live as long as the beacon. `buildFrame` is asked for each announcement, which
    /// goes to all targets as the same frame.
    Beacon(const LinkEnvironment &environment, std::function<QByteArray()> buildFrame, QObject *parent);

    /// Opens the port to hear on, unless it is open. False where it cannot be.
    bool bind();
    /// Announces every 500 ms from now on. Hearing is always on.
    void start();
    void stop();
    [[nodiscard]] bool isActive() const;
    /// Announces five times, 50 ms apart, the first time at once.
    void startBurst();

Q_SIGNALS:
    void heard(const QByteArray &datagram, const QHostAddress &sender);

private:
    void announce();
    void sendBurst();
    void sendDatagram(const QByteArray &datagram, const QHostAddress &target);
    void onReadyRead();

    const LinkEnvironment &m_environment;
    std::function<QByteArray()> m_buildFrame;
    QUdpSocket *m_socket;
    QTimer *m_timer;
    QTimer *m_burstTimer;
    bool m_hears = false; ///< the port is open
    int m_burstLeft = 0;  ///< announcements of the burst still to be sent
};

} // namespace Zandrove
