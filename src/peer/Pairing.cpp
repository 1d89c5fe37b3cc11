#include "peer/Pairing.h"

namespace Zandrove {

void Pairing::dialled(const PCInfo &target)
{
    m_state = State::Dialling;
    m_target = target;
}

void Pairing::admitted(const PCInfo &asker)
{
    accept(asker);
}

void Pairing::ended()
{
    m_state = State::Idle;
}

void Pairing::peerLeft()
{
    if (m_state == State::Accepted)
        m_state = State::Unpaired;
    forgetPeer();
}

bool Pairing::toldYes(const QString &ip)
{
    if (m_state != State::Dialling)
        return false;
    m_target.ip = ip;
    accept(m_target);
    return true;
}

bool Pairing::toldNo()
{
    if (m_state != State::Dialling)
        return false;
    m_state = State::Unpaired;
    return true;
}

void Pairing::accept(const PCInfo &peer)
{
    m_state = State::Accepted;
    ++m_links;
    m_peer = peer;
}

} // namespace Zandrove
