#pragma once

#include <QObject>
#include <QSet>
#include <QTimer>

namespace Zandrove {
class TransferEngine;
}

namespace Zandrove::Cli {

class Output;

/// Says on the output, once each, what may keep two PCs from coming together while nothing happens: a port
/// that another program has, a PC of the same role, nobody found for 20 s, an answer that is still waited
/// for.
class Notices final : public QObject
{
    Q_OBJECT

public:
    /// `target` is the peer that is looked for; empty for any. Engine and output outlive it.
    Notices(TransferEngine &engine, Output &output, const QString &target, QObject *parent);

    /// Discovery begins: from now on somebody ought to be found.
    void lookingBegins();

private:
    void onSameRolePeer(const QString &name);
    void onPortTaken(quint16 port, const QString &program);
    void onNobodyFound();

    TransferEngine &m_engine;
    Output &m_output;
    const QString m_target;
    QSet<QString> m_sameRole; ///< those that were told of
    QTimer m_nobodyFound;
    QTimer m_waiting; ///< from the question to its first second
    QString m_waitingFor;
};

} // namespace Zandrove::Cli
