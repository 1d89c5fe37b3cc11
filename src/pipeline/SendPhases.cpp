#include "pipeline/SendPhases.h"

#include "pipeline/Log.h"

namespace Zandrove {

SendPhases::SendPhases(bool withApps, bool withSettings)
    : m_withApps(withApps)
    , m_packing(withApps ? Packing::Running : Packing::Through)
    , m_settings(withSettings ? Settings::Exporting : Settings::Through)
{
}

SendPhases::Actions SendPhases::packed()
{
    m_packing = Packing::Through;
    if (m_announcedAppFiles > 0)
        qCDebug(logPipeline) << "[Serial] All app files queued. queued=" << m_announcedAppFiles
                             << "pendingTasks=" << m_appFiles;
    if (m_appFiles == 0) {
        m_appLane = AppFiles::Through;
        if (m_announcedAppFiles > 0)
            qCDebug(logPipeline) << "[Serial] No app files to send, app migration done";
        return checked();
    }
    if (m_files != Files::Through)
        return {};
    m_appLane = AppFiles::Sending;
    return {.sendAppFiles = true};
}

SendPhases::Actions SendPhases::listThrough()
{
    if (m_appLane == AppFiles::Sending) {
        m_appLane = AppFiles::Through;
        qCDebug(logPipeline) << "[Serial] App file phase done.";
        logFiles();
        return checked(true);
    }
    m_files = Files::Through;
    qCDebug(logPipeline) << "[Serial] Folders phase done. appFilesAllQueued="
                         << (m_packing == Packing::Through) << "pendingAppTasks=" << m_appFiles
                         << "hasAppsToMigrate=" << m_withApps;
    if (m_packing == Packing::Running) {
        qCDebug(logPipeline) << "[Serial] Waiting AppMigrator to finish queueing...";
        return {};
    }
    if (m_appFiles > 0) {
        m_appLane = AppFiles::Sending;
        return {.sendAppFiles = true};
    }
    m_appLane = AppFiles::Through;
    qCDebug(logPipeline) << "[Serial] No app files to send, marking app file phase done.";
    logFiles();
    return checked();
}

SendPhases::Actions SendPhases::settingsThrough()
{
    m_settings = Settings::Through;
    return checked();
}

bool SendPhases::areFilesThrough() const
{
    return m_files == Files::Through && m_appLane == AppFiles::Through;
}

void SendPhases::logFiles() const
{
    qCDebug(logPipeline) << "[Serial] fileTransferDone=" << areFilesThrough()
                         << "appMigrationDone=" << (m_appLane == AppFiles::Through);
}

SendPhases::Actions SendPhases::checked(bool sendHeldEnds) const
{
    const bool settingsThrough = m_settings == Settings::Through;
    logAllCompletedCheck(areFilesThrough(), m_appLane == AppFiles::Through, settingsThrough, 0);
    return {.sendHeldEnds = sendHeldEnds, .complete = areFilesThrough() && settingsThrough};
}

} // namespace Zandrove
