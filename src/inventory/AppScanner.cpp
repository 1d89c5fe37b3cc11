#include "inventory/AppScanner.h"

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
    const QList<AppInfo> apps;
    const auto publish = [this, run, apps] {
        if (m_runs.end(run))
            Q_EMIT finished(apps);
    };
    if (m_runs.isCurrent(run))
        QMetaObject::invokeMethod(this, publish, Qt::QueuedConnection);
}

} // namespace Zandrove
