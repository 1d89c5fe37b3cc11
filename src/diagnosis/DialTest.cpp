#include "diagnosis/DialTest.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QHostInfo>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <deque>

using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto AnswerTimeout = 3000ms;
constexpr auto Glance = 100ms;

/// The first IPv4 address that a name stands for; null where it stands for none.
QHostAddress addressOf(const QString &target)
{
    const QHostAddress written(target);
    if (!written.isNull())
        return written;
    const QList<QHostAddress> addresses = QHostInfo::fromName(target).addresses();
    const auto found = std::find_if(addresses.begin(), addresses.end(), [](const QHostAddress &address) {
        return address.protocol() == QHostAddress::IPv4Protocol;
    });
    return found == addresses.end() ? QHostAddress() : *found;
}

DialFacts::Outcome outcomeOf(QAbstractSocket::SocketError error)
{
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return DialFacts::Refused;
    case QAbstractSocket::SocketTimeoutError:
        return DialFacts::Silent;
    default:
        return DialFacts::Failed;
    }
}

/// The connections that are under way.
class Dials
{
public:
    void add(DialFacts &facts, const QHostAddress &address)
    {
        QTcpSocket &socket = m_sockets.emplace_back();
        socket.setProxy(QNetworkProxy::NoProxy);
        ++m_open;
        QObject::connect(&socket, &QTcpSocket::connected, &socket, [this, &facts, &socket] {
            facts.outcome = DialFacts::Answered;
            settle(socket);
        });
        QObject::connect(&socket, &QTcpSocket::errorOccurred, &socket, [this, &facts, &socket] {
            facts.outcome = outcomeOf(socket.error());
            facts.error = socket.errorString();
            settle(socket);
        });
        facts.outcome = DialFacts::Silent;
        socket.connectToHost(address, TcpPort);
    }

    void wait()
    {
        const QDeadlineTimer deadline(AnswerTimeout);
        while (m_open > 0 && !deadline.hasExpired() && !QThread::currentThread()->isInterruptionRequested()) {
            QEventLoop loop;
            QTimer::singleShot(Glance, &loop, &QEventLoop::quit);
            loop.exec();
        }
    }

private:
    void settle(QTcpSocket &socket)
    {
        QObject::disconnect(&socket, nullptr, &socket, nullptr);
        --m_open;
    }

    std::deque<QTcpSocket> m_sockets; // which don't move
    int m_open = 0;
};

} // namespace

QList<DialFacts> dialAll(const QStringList &targets, const QList<QHostAddress> &own)
{
    QList<DialFacts> facts(targets.size());
    Dials dials;
    for (qsizetype i = 0; i < targets.size(); ++i) {
        const QHostAddress address = addressOf(targets.at(i));
        facts[i].address = address.toString();
        if (address.isNull())
            facts[i].outcome = DialFacts::UnknownName;
        else if (own.contains(address) || address.isLoopback())
            facts[i].outcome = DialFacts::OwnAddress;
        else
            dials.add(facts[i], address);
    }
    dials.wait();
    return facts;
}

} // namespace Zandrove
