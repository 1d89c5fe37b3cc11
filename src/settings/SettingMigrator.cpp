#include "settings/SettingMigrator.h"

#include "peer/Protocol.h"
#include "settings/SettingExport.h"

#include <QDebug>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <iterator>

using namespace std::chrono_literals;
using namespace Zandrove::SettingMessages;

namespace Zandrove {

namespace {

using Milliseconds = std::chrono::duration<unsigned long, std::milli>;

// Nothing holds this stream back, so it leaves the thread that sends it some air.
constexpr Milliseconds SettingPause = 50ms;
constexpr Milliseconds ChunkPause = 10ms;
constexpr int ChunksPerPause = 10;

int wireType(Protocol::MessageType type)
{
    return int(type);
}

} // namespace

SettingMigrator::SettingMigrator(QObject *parent)
    : QObject(parent)
{
}

void SettingMigrator::start(const QList<SettingInfo> &settings)
{
    if (m_stopped || isRunning())
        return;
    QList<SettingInfo> chosen;
    std::copy_if(settings.cbegin(), settings.cend(), std::back_inserter(chosen),
                 [](const SettingInfo &setting) { return setting.selected && setting.available; });
    if (chosen.isEmpty()) {
        qDebug() << "[SettingMigrator] No settings selected for migration";
        Q_EMIT finished(0, 0);
        return;
    }
    beginRun();
    qDebug() << "[SettingMigrator] Starting export of" << chosen.size() << "settings";
    for (qsizetype i = 0; i < chosen.size() && !isCancelled(); ++i) {
        Q_EMIT settingStarted(chosen[i].name);
        Q_EMIT progress(int(i * 100 / chosen.size()), chosen[i].name);
        exportAndSend(chosen[i]);
        QThread::msleep(SettingPause.count());
    }
    State running = State::Running;
    if (!m_state.compare_exchange_strong(running, State::Idle))
        return;
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingComplete),
                              Complete{m_successCount, m_failedCount}.toPayload());
    qDebug() << "[SettingMigrator] Export completed. Success:" << m_successCount
             << "Failed:" << m_failedCount;
    Q_EMIT finished(m_successCount, m_failedCount);
}

void SettingMigrator::cancel()
{
    m_state = State::Cancelled;
}

void SettingMigrator::stop()
{
    m_stopped = true;
    cancel();
}

void SettingMigrator::beginRun()
{
    m_state = State::Running;
    // A stop that came in between would be forgotten otherwise.
    if (m_stopped)
        cancel();
    m_successCount = 0;
    m_failedCount = 0;
}

bool SettingMigrator::isCancelled() const
{
    return m_state == State::Cancelled;
}

void SettingMigrator::exportAndSend(const SettingInfo &setting)
{
    const std::optional<SettingPackage> package = exportSetting(setting);
    if (package)
        sendPackage(*package);
    countOutcome(setting.name, package.has_value(), tr("Export failed"));
}

void SettingMigrator::sendPackage(const SettingPackage &package)
{
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingStart), startPayload(package));
    if (!package.registryData.isEmpty()) {
        const Data data{package.key, Data::Content::Registry, package.registryData, true, 0, 0, {}};
        Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingData), data.toPayload());
    }
    sendFile(package);
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingEnd),
                              End{package.key, package.name}.toPayload());
    qDebug() << "[SettingMigrator] Sent package:" << package.key;
}

void SettingMigrator::sendFile(const SettingPackage &package)
{
    const auto chunks = int((package.fileData.size() + ChunkBytes - 1) / ChunkBytes);
    for (int index = 0; index < chunks; ++index) {
        const Data data{package.key,
                        Data::Content::File,
                        package.fileData.mid(index * ChunkBytes, ChunkBytes),
                        true,
                        index,
                        chunks,
                        package.fileName};
        Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingData), data.toPayload());
        if (index % ChunksPerPause == 0)
            QThread::msleep(ChunkPause.count());
    }
}

void SettingMigrator::countOutcome(const QString &name, bool success, const QString &failure)
{
    ++(success ? m_successCount : m_failedCount);
    Q_EMIT settingFinished(name, success, success ? QString() : failure);
}

} // namespace Zandrove
