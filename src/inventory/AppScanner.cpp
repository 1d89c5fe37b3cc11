#include "inventory/AppScanner.h"

#include "inventory/AppScan.h"

namespace Zandrove {

AppScanner::AppScanner(QObject *parent)
    : QObject(parent)
{
}

AppScanner::~AppScanner()
{
    if (m_runs.isRunning())
        cancel();
    for (const QPointer<QThread> &worker : std::as_const(m_workers)) {
        if (!worker)
            continue;
        worker->wait();
        delete worker;
    }
}

void AppScanner::start()
{
    const quint64 run = m_runs.begin();
    if (run == 0)
        return;
    m_appsFound = 0;
    Q_EMIT started();
    m_workers.removeAll(nullptr);
    QThread *const worker = QThread::create([this, run] { scan(run); });
    m_workers.append(worker);
    connect(worker, &QThread::finished, worker, &QObject::deleteLater);
    worker->start(QThread::InheritPriority);
}

void AppScanner::cancel()
{
    m_runs.cancel();
    Q_EMIT cancelled();
}

/// Runs on the scan's own thread. What it posts is judged on delivery, when the scan may have been given up.
void AppScanner::scan(quint64 run)
{
    AppScanHooks hooks;
    hooks.stop = [this, run] { return !m_runs.isCurrent(run); };
    hooks.announce = [this, run](int percent, const QString &text) {
        if (m_runs.isCurrent(run))
            Q_EMIT progress(percent, text);
    };
    hooks.report = [this, announce = hooks.announce](int percent, const QString &name) {
        QMetaObject::invokeMethod(
            this, [announce, percent, name] { announce(percent, name); }, Qt::QueuedConnection);
    };
    hooks.found = [this, run](int count) {
        if (m_runs.isCurrent(run))
            m_appsFound = count;
    };

    const QList<AppInfo> apps = AppScan(hooks).scanInstalledApps();
    if (!m_runs.isCurrent(run))
        return;
    const auto publish = [this, run, apps] {
        if (m_runs.end(run))
            Q_EMIT finished(apps);
    };
    QMetaObject::invokeMethod(this, publish, Qt::QueuedConnection);
}

} // namespace Zandrove
