#include "peer/WaitingRoom.h"

#include "peer/Link.h"
#include "peer/Log.h"
#include "peer/PeerText.h"
#include "support/Json.h"

#include <QJsonObject>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr size_t MostNewcomers = 8;
constexpr int SecondsToAsk = 10;
constexpr int RefusalsToSilence = 3;
constexpr int SecondsOfSilence = 60;
/// Addresses whose refusals are remembered.
constexpr qsizetype MostAddresses = 256;
/// A request is a few hundred bytes.
constexpr qsizetype LimitBytes = 64 << 10;

} // namespace

WaitingRoom::WaitingRoom(std::chrono::milliseconds second, std::function<bool(const QString &ip)> isBusy,
                         QObject *parent)
    : QObject(parent)
    , m_second(second)
    , m_isBusy(std::move(isBusy))
{
}

void WaitingRoom::admit(Link *link)
{
    ConnectionQuestion question;
    question.ip = link->peerIp();
    m_newcomers.push_back({link, question});
    link->setFrameLimit(LimitBytes);
    connect(link, &Link::frameReceived, this,
            [this, link](Protocol::MessageType type, const QByteArray &payload) {
                onFrame(link, type, payload);
            });
    connect(link, &Link::closed, this, [this, link] { remove(link); });
    connect(link, &Link::failed, this, [this, link] { remove(link); });
    QTimer::singleShot(m_second * SecondsToAsk, link, [this, link] {
        const Place place = placeOf(link);
        if (place != m_newcomers.end() && place->question.number == 0)
            remove(link);
    });
    if (m_newcomers.size() > MostNewcomers)
        vacate(oneToLeave())->abandon();
}

/// Where there is no room: the oldest one that has not asked, of the address that has most of them here. Who
/// comes in numbers displaces itself. The last one to come where all others have asked.
WaitingRoom::Place WaitingRoom::oneToLeave()
{
    const auto crowd = [this](const Newcomer &newcomer) {
        return std::count_if(m_newcomers.cbegin(), m_newcomers.cend(), [&newcomer](const Newcomer &other) {
            return other.question.ip == newcomer.question.ip;
        });
    };
    const auto rank = [&crowd](const Newcomer &newcomer) {
        return newcomer.question.number != 0 ? 0 : crowd(newcomer);
    };
    return std::max_element(m_newcomers.begin(), m_newcomers.end(),
                            [&rank](const Newcomer &a, const Newcomer &b) { return rank(a) < rank(b); });
}

QList<ConnectionQuestion> WaitingRoom::questions() const
{
    QList<ConnectionQuestion> questions;
    for (const Newcomer &newcomer : m_newcomers) {
        if (newcomer.question.number != 0)
            questions.append(newcomer.question);
    }
    std::sort(questions.begin(), questions.end(),
              [](const ConnectionQuestion &a, const ConnectionQuestion &b) { return a.number < b.number; });
    return questions;
}

bool WaitingRoom::isOpen(quint64 question) const
{
    const QList<ConnectionQuestion> open = questions();
    return question == 0
               ? !open.isEmpty()
               : std::any_of(open.cbegin(), open.cend(),
                             [question](const ConnectionQuestion &each) { return each.number == question; });
}

Link *WaitingRoom::take(quint64 question)
{
    const Place place = placeOf(question);
    if (place == m_newcomers.end() || !place->link->isEstablished())
        return nullptr;
    m_refusals.remove(place->question.ip);
    return vacate(place);
}

bool WaitingRoom::refuse(quint64 question)
{
    const Place place = placeOf(question);
    if (place == m_newcomers.end())
        return false;
    countRefusal(place->question.ip);
    turnDown(place);
    return true;
}

void WaitingRoom::refuseAll()
{
    while (!m_newcomers.empty()) {
        const quint64 question = m_newcomers.front().question.number;
        turnDown(m_newcomers.begin());
        if (question != 0)
            Q_EMIT ended(question);
    }
}

void WaitingRoom::askAnew(quint64 question)
{
    const Place place = placeOf(question);
    if (place == m_newcomers.end())
        return;
    place->question.number = ++m_questions;
    Q_EMIT asked(ConnectionQuestion(place->question));
}

void WaitingRoom::onFrame(Link *link, Protocol::MessageType type, const QByteArray &payload)
{
    if (type == Protocol::MessageType::ConnectRequest)
        onRequest(link, payload);
    else if (type == Protocol::MessageType::Disconnect)
        remove(link);
}

void WaitingRoom::onRequest(Link *link, const QByteArray &payload)
{
    const Place place = placeOf(link);
    if (place == m_newcomers.end() || place->question.number != 0)
        return;
    ConnectionQuestion &question = place->question;
    const QJsonObject json = parseJsonObject(payload).value_or(QJsonObject());
    question.name = boundedText(json["name"_L1]);
    question.os = boundedText(json["os"_L1]);
    qCDebug(logPeer) << "Received ConnectRequest from:" << question.name;
    if (isUnheard(question.ip) || m_isBusy(question.ip)) {
        turnDown(place);
        return;
    }
    const bool mayAsk =
        std::none_of(m_newcomers.cbegin(), m_newcomers.cend(), [&question](const auto &other) {
            return other.question.number != 0 && other.question.ip == question.ip;
        });
    if (!mayAsk) {
        if (!takesOver(link, question))
            turnDown(place);
        return;
    }
    question.number = ++m_questions;
    Q_EMIT asked(ConnectionQuestion(question));
}

/// Whoever asks again under the same name from the same address means the same question, and its earlier
/// connection is most likely dead. Its yes goes to the later one.
bool WaitingRoom::takesOver(const Link *link, const ConnectionQuestion &question)
{
    const auto earlier = std::find_if(m_newcomers.begin(), m_newcomers.end(), [&question](const auto &other) {
        return other.question.number != 0 && other.question.ip == question.ip;
    });
    if (earlier->question.name != question.name)
        return false;
    placeOf(link)->question.number = earlier->question.number;
    vacate(earlier)->hangUp();
    return true;
}

void WaitingRoom::remove(const Link *link)
{
    const Place place = placeOf(link);
    if (place == m_newcomers.end())
        return;
    const quint64 question = place->question.number;
    vacate(place)->abandon();
    if (question != 0)
        Q_EMIT ended(question);
}

Link *WaitingRoom::vacate(Place place)
{
    Link *const link = place->link;
    m_newcomers.erase(place);
    QObject::disconnect(link, nullptr, this, nullptr);
    return link;
}

void WaitingRoom::turnDown(Place place)
{
    Link *const link = vacate(place);
    link->send(Protocol::MessageType::ConnectReject, {});
    link->hangUp();
}

bool WaitingRoom::isUnheard(const QString &ip) const
{
    const auto refusals = m_refusals.constFind(ip);
    return refusals != m_refusals.cend() && refusals->count >= RefusalsToSilence &&
           !refusals->silence.hasExpired();
}

void WaitingRoom::countRefusal(const QString &ip)
{
    if (m_refusals.size() >= MostAddresses && !m_refusals.contains(ip))
        m_refusals.erase(m_refusals.begin());
    Refusals &refusals = m_refusals[ip];
    if (refusals.count >= RefusalsToSilence) // and that minute is over
        refusals.count = 0;
    if (++refusals.count == RefusalsToSilence)
        refusals.silence.setRemainingTime(m_second * SecondsOfSilence);
}

WaitingRoom::Place WaitingRoom::placeOf(const Link *link)
{
    return std::find_if(m_newcomers.begin(), m_newcomers.end(),
                        [link](const Newcomer &newcomer) { return newcomer.link == link; });
}

/// 0 stands for the oldest question.
WaitingRoom::Place WaitingRoom::placeOf(quint64 question)
{
    if (question == 0) {
        const QList<ConnectionQuestion> open = questions();
        if (open.isEmpty())
            return m_newcomers.end();
        question = open.first().number;
    }
    return std::find_if(m_newcomers.begin(), m_newcomers.end(), [question](const Newcomer &newcomer) {
        return newcomer.question.number == question;
    });
}

} // namespace Zandrove
