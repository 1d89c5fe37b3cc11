#include "cli/Admission.h"

#include "cli/Output.h"
#include "core/engine/TransferEngine.h"
#include "platform/Terminal.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace Zandrove::Cli {

namespace {

// Long enough for an answer on its way to find that its question has gone.
constexpr auto PauseBeforeNext = 500ms;

} // namespace

Admission::Admission(TransferEngine &engine, Output &output, bool flushes, QObject *parent)
    : QObject(parent)
    , m_engine(engine)
    , m_output(output)
    , m_flushes(flushes)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(PauseBeforeNext);
    connect(&m_pause, &QTimer::timeout, this, [this] { putOldest(true); });
    connect(&m_engine, &TransferEngine::questionEnded, this, &Admission::onEnded);
}

void Admission::put(const ConnectionQuestion &question)
{
    m_shown.insert(question.number, question);
    // It is shown once that is over, if it is the next one then. A person sees one question at a time, and
    // answers the one that was read last.
    if (m_pause.isActive() || (m_flushes && m_current != 0))
        return;
    show(question);
    if (m_current == 0)
        m_current = question.number;
}

void Admission::show(const ConnectionQuestion &question)
{
    if (m_flushes)
        Platform::discardTypedInput();
    m_output.request(question, true);
}

void Admission::answer(quint64 number, bool admit)
{
    const auto question = m_shown.constFind(number != 0 ? number : m_current);
    if (question == m_shown.cend()) {
        m_output.warning(tr("No request is open that this could answer."));
        return;
    }
    if (admit)
        this->admit(ConnectionQuestion(*question));
    else
        refuse(ConnectionQuestion(*question), {});
}

void Admission::admit(const ConnectionQuestion &question)
{
    m_shown.remove(question.number);
    m_admitting = true;
    m_engine.acceptConnection(m_engine.verifyCode(), question.number);
    m_admitting = false;
    if (m_current == question.number)
        putOldest(m_flushes);
    if (m_engine.isConnected())
        return;
    m_output.warning(tr("%1 is not there any more.").arg(question.name));
    m_engine.restartBroadcast();
}

void Admission::refuse(const ConnectionQuestion &question, const QString &why)
{
    m_shown.remove(question.number);
    m_engine.rejectConnection(question.number);
    m_output.refused(question.name, why);
    if (m_current == question.number)
        putOldest(m_flushes);
}

/// Makes the oldest question the one that an answer without a number is for.
void Admission::putOldest(bool anew)
{
    const QList<quint64> open = m_shown.keys();
    const auto oldest = std::min_element(open.cbegin(), open.cend());
    m_current = oldest != open.cend() ? *oldest : 0;
    if (anew && m_current != 0)
        show(m_shown.value(m_current));
}

void Admission::onEnded(quint64 number)
{
    const auto question = m_shown.constFind(number);
    if (question == m_shown.cend())
        return;
    const QString name = question->name;
    m_shown.erase(question);
    if (m_admitting)
        m_output.refused(name, {});
    else
        m_output.warning(tr("%1 is not there any more.").arg(name));
    if (m_current != number)
        return;
    m_current = 0;
    m_pause.start();
}

} // namespace Zandrove::Cli
