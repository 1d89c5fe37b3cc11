#pragma once

#include "core/common/Records.h"
#include "inventory/ScanRuns.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QThread>

#include <atomic>

namespace Zandrove {

/// Lists the applications of this PC, on a thread of its own for each scan.
///
/// Belongs to the thread that made it, and may be destroyed in mid-scan; it then emits `cancelled` and waits
/// until the scan has left. No step fails: what can't be read counts as empty.
class AppScanner final : public QObject
{
    Q_OBJECT

public:
    explicit AppScanner(QObject *parent = nullptr);
    ~AppScanner() override;

    /// Applications that the current or last scan has found so far. Any thread.
    [[nodiscard]] int appsFound() const { return m_appsFound; }

public Q_SLOTS:
    /// Begins a scan and returns at once; does nothing while one is running. Emits `started`, `progress` and
    /// in the end `finished`, unless it is cancelled before.
    void start();
    /// Gives the scan up without waiting for it. Emits `cancelled` on the calling thread, also when none is
    /// running; nothing else comes of that scan. Any thread.
    void cancel();

Q_SIGNALS:
    void started();
    /// `percent` from 0 to 100. Comes from the scan's thread too: connect it queued, which is what the
    /// default does.
    void progress(int percent, const QString &currentItem);
    /// On the scanner's thread, with the applications in the order of discovery.
    void finished(const QList<Zandrove::AppInfo> &apps);
    void error(const QString &errorMessage); ///< never emitted: no step can fail
    void cancelled();

private:
    void scan(quint64 run);

    ScanRuns m_runs;
    std::atomic<int> m_appsFound = 0;
    QList<QPointer<QThread>> m_workers; ///< the running one, and cancelled ones that are still leaving
};

} // namespace Zandrove
