#include "settings/SettingMigrator.h"

#include "peer/Protocol.h"
#include "settings/Log.h"
#include "settings/SettingExport.h"

#include <QThread>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace Zandrove::SettingMessages;

namespace Zandrove {

namespace {

using Milliseconds = std::chrono::duration<unsigned long, std::milli>;

// Nothing holds this stream back, so it leaves the thread that sends it some air.
constexpr Milliseconds SettingPause = 50ms;
constexpr Milliseconds ChunkPause = 10ms;
constexpr int ChunksPerPause = 10;

constexpr int PointsPerSetting = 10;

int wireType(Protocol::MessageType type)
{
    return int(type);
}

/// How much of a file has arrived, whatever numbers the peer made up.
int percentOf(const Data &chunk)
{
    if (chunk.totalChunks < 1)
        return 0;
    const qint64 percent = (qint64(chunk.chunkIndex) + 1) * 100 / chunk.totalChunks;
    return int(std::clamp<qint64>(percent, 0, 100));
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
        qCDebug(logSettings) << "[SettingMigrator] No settings selected for migration";
        Q_EMIT finished(0, 0);
        return;
    }
    beginRun();
    qCDebug(logSettings) << "[SettingMigrator] Starting export of" << chosen.size() << "settings";
    for (qsizetype i = 0; i < chosen.size() && !isCancelled(); ++i) {
        Q_EMIT settingStarted(chosen[i].name);
        Q_EMIT progress(int(i * 100 / chosen.size()), chosen[i].name);
        exportAndSend(chosen[i]);
        QThread::msleep(SettingPause.count());
    }
    if (!endRun())
        return;
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingComplete),
                              Complete{m_successCount, m_failedCount}.toPayload());
    qCDebug(logSettings) << "[SettingMigrator] Export completed. Success:" << m_successCount
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

/// False where a cancel came first.
bool SettingMigrator::endRun()
{
    State running = State::Running;
    return m_state.compare_exchange_strong(running, State::Idle);
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
        const Data data{
            .key = package.key, .content = Data::Content::Registry, .bytes = package.registryData};
        Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingData), data.toPayload());
    }
    sendFile(package);
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingEnd),
                              End{package.key, package.name}.toPayload());
    qCDebug(logSettings) << "[SettingMigrator] Sent package:" << package.key;
}

void SettingMigrator::sendFile(const SettingPackage &package)
{
    const auto chunks = int((package.fileData.size() + ChunkBytes - 1) / ChunkBytes);
    for (int index = 0; index < chunks; ++index) {
        const Data data{.key = package.key,
                        .content = Data::Content::File,
                        .bytes = package.fileData.mid(index * ChunkBytes, ChunkBytes),
                        .chunkIndex = index,
                        .totalChunks = chunks,
                        .fileName = package.fileName};
        Q_EMIT requestSendCommand(wireType(Protocol::MessageType::SettingData), data.toPayload());
        if (index % ChunksPerPause == 0)
            QThread::msleep(ChunkPause.count());
    }
}

void SettingMigrator::startReceiving()
{
    qCDebug(logSettings) << "[SettingMigrator] Starting receiver mode";
    beginRun();
}

void SettingMigrator::onSettingStart(const QByteArray &payload)
{
    m_currentPackage = readStart(payload);
    m_currentIsDamaged = false;
    qCDebug(logSettings) << "[SettingMigrator] Receiving setting:" << m_currentPackage.key
                         << m_currentPackage.name;
    Q_EMIT settingStarted(m_currentPackage.name);
}

void SettingMigrator::onSettingData(const QByteArray &payload)
{
    const Data data = Data::fromPayload(payload);
    if (data.key != m_currentPackage.key) {
        qCDebug(logSettings) << "[SettingMigrator] Key mismatch! Expected:" << m_currentPackage.key
                             << "Got:" << data.key;
        return;
    }
    addContent(data);
    if (data.content == Data::Content::Registry) {
        qCDebug(logSettings) << "[SettingMigrator] Received registry data, size:" << data.bytes.size();
    } else if (data.content == Data::Content::File) {
        Q_EMIT settingProgress(m_currentPackage.name, percentOf(data));
        qCDebug(logSettings) << "[SettingMigrator] Received file chunk" << qint64(data.chunkIndex) + 1 << "/"
                             << data.totalChunks;
    }
}

void SettingMigrator::addContent(const Data &data)
{
    if (data.content == Data::Content::Unknown)
        return;
    const bool isFile = data.content == Data::Content::File;
    if (isFile)
        m_currentPackage.fileName = data.fileName;
    // Exported keys replace each other, chunks add up.
    const qsizetype kept =
        m_currentPackage.fileData.size() + (isFile ? m_currentPackage.registryData.size() : 0);
    if (!data.intact || kept + data.bytes.size() > m_contentLimit) {
        m_currentIsDamaged = true;
        return;
    }
    if (isFile)
        m_currentPackage.fileData += data.bytes;
    else
        m_currentPackage.registryData = data.bytes;
}

void SettingMigrator::onSettingEnd(const QByteArray &payload)
{
    if (End::fromPayload(payload).key != m_currentPackage.key) {
        qCDebug(logSettings) << "[SettingMigrator] SettingEnd key mismatch!";
        return;
    }
    const SettingPackage package = std::exchange(m_currentPackage, {});
    const bool isDamaged = std::exchange(m_currentIsDamaged, false);
    qCDebug(logSettings) << "[SettingMigrator] Setting complete:" << package.key
                         << "registry:" << package.registryData.size() << "file:" << package.fileData.size();
    const ApplyResult result = applyUnlessStopped(package, isDamaged);
    QString failure = tr("Failed to apply setting");
    if (!result.reason.isEmpty())
        failure += u": "_s + result.reason;
    countOutcome(package.name, result.applied, failure);
    ++m_processedCount;
    Q_EMIT progress(m_processedCount * PointsPerSetting, package.name);
}

ApplyResult SettingMigrator::applyUnlessStopped(const SettingPackage &package, bool isDamaged) const
{
    if (m_stopped)
        return {false, tr("stopped before it was applied")};
    if (isDamaged)
        return {false, tr("it did not arrive whole")};
    ApplyResult result = applySetting(package);
    if (!result.applied && m_stopped)
        result.reason = tr("stopped while it was being applied");
    return result;
}

void SettingMigrator::giveUpReceiving(const QString &reason)
{
    const SettingPackage package = std::exchange(m_currentPackage, {});
    m_currentIsDamaged = false;
    if (!package.key.isEmpty())
        countOutcome(package.name, false, tr("Failed to apply setting") + u": "_s + reason);
}

void SettingMigrator::onSettingComplete(const QByteArray &)
{
    qCDebug(logSettings) << "[SettingMigrator] Received SettingComplete - Applied:" << m_successCount
                         << "Failed:" << m_failedCount;
    endRun();
    Q_EMIT finished(m_successCount, m_failedCount);
}

void SettingMigrator::countOutcome(const QString &name, bool success, const QString &failure)
{
    ++(success ? m_successCount : m_failedCount);
    Q_EMIT settingFinished(name, success, success ? QString() : failure);
}

} // namespace Zandrove
