#include "pipeline/SendPhases.h"

#include "pipeline/Log.h"

namespace Zandrove {

SendPhases::SendPhases(bool withApps, bool withSettings)
    : m_packing(withApps ? Packing::Running : Packing::Through)
    , m_settings(withSettings ? Settings::Exporting : Settings::Through)
{
}

SendPhases::Actions SendPhases::packed()
{
    m_packing = Packing::Through;
    qCDebug(logPipeline) << "[Serial] All app files queued. pendingTasks=" << m_appFiles;
    if (m_appFiles == 0) {
        m_appLane = AppFiles::Through;
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
        return checked(true);
    }
    m_files = Files::Through;
    qCDebug(logPipeline) << "[Serial] Folders phase done. appFilesAllQueued="
                         << (m_packing == Packing::Through) << "pendingAppTasks=" << m_appFiles;
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
    return checked();
}

SendPhases::Actions SendPhases::settingsThrough()
{
    m_settings = Settings::Through;
    return checked();
}

SendPhases::Actions SendPhases::checked(bool sendHeldEnds) const
{
    const bool filesThrough = m_files == Files::Through && m_appLane == AppFiles::Through;
    const bool settingsThrough = m_settings == Settings::Through;
    qCDebug(logPipeline) << "checkAllCompleted() -"
                         << "fileTransferDone:" << filesThrough
                         << "appMigrationDone:" << (m_appLane == AppFiles::Through)
                         << "settingPhaseDone:" << settingsThrough << "role:" << 0;
    return {.sendHeldEnds = sendHeldEnds, .complete = filesThrough && settingsThrough};
}

} // namespace Zandrove
