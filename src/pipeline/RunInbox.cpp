#include "pipeline/RunInbox.h"

#include "pipeline/Log.h"

#include <algorithm>
#include <utility>

namespace Zandrove {

using Protocol::MessageType;

namespace {

bool beginsOrResets(MessageType type)
{
    return type == MessageType::TransferStart || type == MessageType::TransferReset;
}

} // namespace

bool RunInbox::keep(MessageType type, const QByteArray &payload, RunState run, bool isPaused)
{
    if (type == MessageType::TransferPause || type == MessageType::TransferResume)
        return false;
    if (type == MessageType::SessionEnd && isPaused)
        return false;
    const bool isOver = run == RunState::WorkingOff || run == RunState::Settling;
    const bool mustWait = !m_messages.isEmpty() || (isOver && beginsOrResets(type)) ||
                          (run == RunState::WorkingOff && type == MessageType::SessionEnd);
    if (mustWait)
        m_messages.append({type, payload});
    return mustWait;
}

void RunInbox::trace(MessageType type, qsizetype size)
{
    constexpr int TracedMessages = 100;
    ++m_traced;
    if (type != MessageType::FileData && (m_traced <= TracedMessages || type == MessageType::FileHeader))
        qCDebug(logPipeline) << "MSG#" << m_traced << "type:" << Qt::showbase << Qt::hex << int(type)
                             << Qt::dec << int(type) << "size:" << size;
}

std::optional<RunMessage> RunInbox::take(RunState run)
{
    if (m_messages.isEmpty() || run == RunState::WorkingOff)
        return std::nullopt;
    if (run == RunState::Settling && beginsOrResets(m_messages.constFirst().type))
        return std::nullopt;
    return m_messages.takeFirst();
}

bool RunInbox::drop()
{
    const QList<RunMessage> dropped = std::exchange(m_messages, {});
    return std::any_of(dropped.cbegin(), dropped.cend(),
                       [](const RunMessage &message) { return message.type == MessageType::SessionEnd; });
}

} // namespace Zandrove
