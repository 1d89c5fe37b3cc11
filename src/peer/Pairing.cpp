#include "peer/Pairing.h"

namespace Zandrove {

void Pairing::dialled(const PCInfo &target)
{
    begin(State::Dialling, target);
}

void Pairing::cameIn()
{
    begin(State::Unpaired, PCInfo());
}

void Pairing::ended()
{
    begin(State::Idle, PCInfo());
}

void Pairing::peerLeft()
{
    if (m_state == State::Accepted)
        m_state = State::Unpaired;
    m_questionOpen = false;
    forgetPeer();
}

void Pairing::asked(const PCInfo &asker)
{
    if (m_state == State::Idle)
        return;
    m_candidate = asker;
    ++m_questions;
    m_questionOpen = true;
}

bool Pairing::toldYes()
{
    if (m_state != State::Dialling)
        return false;
    accept();
    return true;
}

bool Pairing::toldNo()
{
    if (m_state != State::Dialling)
        return false;
    m_state = State::Unpaired;
    return true;
}

bool Pairing::answerYes(quint64 question)
{
    if (!mayAnswer(question))
        return false;
    accept();
    return true;
}

bool Pairing::answerNo(quint64 question)
{
    if (!mayAnswer(question))
        return false;
    m_state = State::Unpaired;
    m_questionOpen = false;
    return true;
}

void Pairing::begin(State state, const PCInfo &candidate)
{
    m_state = state;
    m_questionOpen = false;
    m_candidate = candidate;
}

void Pairing::accept()
{
    m_state = State::Accepted;
    m_questionOpen = false;
    ++m_links;
    m_peer = m_candidate;
}

bool Pairing::mayAnswer(quint64 question) const
{
    if (m_state == State::Idle)
        return false;
    if (m_questions == 0)
        return true;
    return m_questionOpen && (question == 0 || question == m_questions);
}

} // namespace Zandrove
