#pragma once

#include "core/common/Records.h"
#include "diagnosis/Finding.h"

#include <QList>
#include <QObject>
#include <QString>

#include <chrono>

class QThread;

namespace Zandrove {

/// What a diagnosis is to look at.
struct DiagnosisOptions
{
    int role = -1;                   ///< a `Role`, what this PC is; -1 where it isn't said
    QString target;                  ///< an address or a host name that is tried as well; may be empty
    std::chrono::seconds hearing{5}; ///< how long others are listened for, from 1 s on
};

/// Looks for what keeps this PC and another one from finding each other: adapters and addresses, the two
/// ports, firewalls, VPN routes, who is heard, and who answers. It changes nothing and announces nothing: the
/// datagrams that it sends are ignored by every copy, and the connections that it makes close at once.
///
/// Main thread; the tests run on a thread of their own. The same object may be started again once it has
/// finished. It may run beside the engine of the same program, whose ports then count as this program's own.
class Diagnosis final : public QObject
{
    Q_OBJECT

public:
    explicit Diagnosis(QObject *parent = nullptr);
    /// Cancels, and waits for the test in work: a moment, and some seconds where the system doesn't answer.
    ~Diagnosis() override;

    /// Begins to look, for `options.hearing` and at most some 10 s more. Emits `finding` for each finding as
    /// it is made, those about this PC first, and in the end `finished`. Nothing happens while it runs.
    void start(const DiagnosisOptions &options);
    /// Ends it at once: neither `finding` nor `finished` comes any more.
    void cancel();
    [[nodiscard]] bool isRunning() const { return m_thread != nullptr; }

    /// Whether the system can be asked to run the command of a finding with an administrator's rights; where
    /// not, a face shows the command alone.
    [[nodiscard]] static bool canAskForRights();
    /// Has the system ask its user for the rights to run `command`, one of a finding, and runs it. Emits
    /// `commandEnded`.
    void runWithRights(const QString &command);

Q_SIGNALS:
    void finding(const Zandrove::Finding &finding);
    /// `problems` findings stand in the way, 0 where nothing does.
    void finished(int problems);
    void commandEnded(const QString &command, bool succeeded);

private:
    void take(quint64 number, const QList<Finding> &findings);
    void end(quint64 number);

    QThread *m_thread = nullptr; ///< of the diagnosis that runs
    quint64 m_number = 0;        ///< of the last one that was begun or cancelled
    int m_problems = 0;
};

} // namespace Zandrove
