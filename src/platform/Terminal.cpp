#include "platform/Terminal.h"

namespace Zandrove::Platform {

namespace {

constexpr qsizetype LongestLine = 64 * 1024; // bytes

} // namespace

void InputLines::takeBytes(const QByteArray &bytes)
{
    const bool atEnd = bytes.isEmpty();
    m_pending.append(bytes);
    if (atEnd && !m_pending.isEmpty() && !m_dropping)
        m_pending.append('\n');
    deliverLines();
    if (atEnd)
        Q_EMIT ended();
}

void InputLines::deliverLines()
{
    for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
        QByteArray line = m_pending.left(end);
        m_pending.remove(0, end + 1);
        if (line.endsWith('\r'))
            line.chop(1);
        if (!m_dropping && line.size() <= LongestLine)
            Q_EMIT lineRead(QString::fromUtf8(line));
        m_dropping = false;
    }
    if (m_pending.size() > LongestLine) {
        m_pending.clear();
        m_dropping = true;
    }
}

} // namespace Zandrove::Platform
