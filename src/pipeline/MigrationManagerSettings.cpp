// MigrationManager's settings.

#include "pipeline/Log.h"
#include "pipeline/MigrationManager.h"
#include "settings/SettingMigrator.h"

#include <algorithm>
#include <iterator>

namespace Zandrove {

QList<SettingInfo> MigrationManager::settingsToMigrate() const
{
    QList<SettingInfo> settings;
    std::copy_if(m_settings.cbegin(), m_settings.cend(), std::back_inserter(settings),
                 [](const SettingInfo &setting) { return setting.selected && setting.available; });
    return settings;
}

void MigrationManager::startSettingMigration(const QList<SettingInfo> &settings)
{
    if (settings.isEmpty())
        return;
    qCDebug(logPipeline) << "Starting setting migration for" << settings.size() << "settings";
    QMetaObject::invokeMethod(
        m_settingMigrator, [migrator = m_settingMigrator, settings] { migrator->start(settings); },
        Qt::QueuedConnection);
}

void MigrationManager::onSettingMigrationFinished(int applied, int failed)
{
    qCDebug(logPipeline) << "[Setting] Migration finished - applied:" << applied << "failed:" << failed;
    m_settingsApplied = applied;
    m_settingsFailed = failed;
    settingPhaseDone = true;
    m_settingsOwed = false;
    checkAllCompleted();
    Q_EMIT settingsFinished(applied, failed);
    processDeferred();
}

void MigrationManager::beginReceivingSettings()
{
    if (!m_settingMigrator)
        return;
    m_settingsBegun = true;
    QMetaObject::invokeMethod(m_settingMigrator, &SettingMigrator::startReceiving, Qt::QueuedConnection);
}

void MigrationManager::onSettingStart(const QByteArray &payload)
{
    // Told a second time before it ran, it would count from zero twice.
    if (!m_settingsBegun)
        beginReceivingSettings();
    m_settingsOwed = true;
    m_settingsRun = m_run;
    tellSettingMigrator(&SettingMigrator::onSettingStart, payload);
}

void MigrationManager::onSettingComplete(const QByteArray &payload)
{
    m_settingsBegun = false;
    tellSettingMigrator(&SettingMigrator::onSettingComplete, payload);
}

void MigrationManager::tellSettingMigrator(void (SettingMigrator::*slot)(const QByteArray &),
                                           const QByteArray &payload)
{
    QMetaObject::invokeMethod(
        m_settingMigrator, [migrator = m_settingMigrator, slot, payload] { (migrator->*slot)(payload); },
        Qt::QueuedConnection);
}

void MigrationManager::onSettingStarted(const QString &name)
{
    qCDebug(logPipeline) << "[Setting] Started:" << name;
    Q_EMIT fileTransferStarted(tr("[Setting] %1").arg(name));
}

void MigrationManager::onSettingProgress(const QString &name, int percent)
{
    Q_EMIT fileTransferProgress(tr("[Setting] %1").arg(name), percent);
}

void MigrationManager::onSettingFinished(const QString &name, bool success, const QString &error)
{
    const QString shown = tr("[Setting] %1").arg(name);
    if (success)
        Q_EMIT fileTransferCompleted(shown);
    else
        Q_EMIT fileTransferFailed(shown, error);
    Q_EMIT settingOutcome(name, success, error);
}

} // namespace Zandrove
