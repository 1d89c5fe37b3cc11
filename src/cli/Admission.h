#pragma once

#include "core/common/Records.h"

#include <QHash>
#include <QObject>
#include <QTimer>

namespace Zandrove {
class TransferEngine;
}

namespace Zandrove::Cli {

class Output;

/// Puts the questions of PCs that want to be let in to the user, and takes each answer for the question that
/// it was given to. Engine and output outlive it.
class Admission final : public QObject
{
    Q_OBJECT

public:
    /// `flushes` where a person types at a terminal: what was typed before a question was shown is dropped.
    Admission(TransferEngine &engine, Output &output, bool flushes, QObject *parent);

    /// Shows a question that is to be answered.
    void put(const ConnectionQuestion &question);
    /// Answers the question of this number; 0 stands for the oldest one that was shown. Where that one has
    /// ended unanswered, an answer without a number counts only once the next one has been shown anew.
    void answer(quint64 number, bool admit);
    void admit(const ConnectionQuestion &question);
    /// `why` may be empty.
    void refuse(const ConnectionQuestion &question, const QString &why);

private:
    void show(const ConnectionQuestion &question);
    void putOldest(bool anew);
    void onEnded(quint64 number);

    TransferEngine &m_engine;
    Output &m_output;
    const bool m_flushes;
    QHash<quint64, ConnectionQuestion> m_shown; ///< the open ones among them
    quint64 m_current = 0;                      ///< what an answer without a number is for
    QTimer m_pause;                             ///< between a question's end and the next one, shown anew
    bool m_admitting = false;
};

} // namespace Zandrove::Cli
