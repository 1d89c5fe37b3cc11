#include "inventory/AppList.h"

#include "inventory/Log.h"
#include "support/Paths.h"

namespace Zandrove {

namespace {

QString comparableOrEmpty(const QString &path)
{
    return path.isEmpty() ? QString() : comparablePath(path);
}

} // namespace

bool AppList::shouldAddApp(const QString &name, const QString &location, const FolderMeasure &folderSize)
{
    const AppIdentity candidate = identityOf(name);
    const QString path = comparableOrEmpty(location);
    for (qsizetype i = 0; i < m_keys.size(); ++i) {
        const Key &known = m_keys.at(i);
        if (known.name.lowerName == candidate.lowerName)
            return false;
        if (isSameApp(known.name, candidate)) {
            const AppInfo &existing = m_apps.at(i);
            const qint64 size = folderSize(location);
            if (size <= existing.size) {
                qCDebug(logInventory)
                    << "[AppScanner] Skipping duplicate:" << name << "(existing:" << existing.name << ")";
                return false;
            }
            qCDebug(logInventory) << "[AppScanner] Replacing" << existing.name << "with" << name
                                  << "(size:" << existing.size << "->" << size << ")";
            m_apps.removeAt(i);
            m_keys.removeAt(i);
            return true;
        }
        if (!path.isEmpty() && path == known.path)
            return false;
    }
    return true;
}

void AppList::append(const AppInfo &app)
{
    m_apps.append(app);
    m_keys.append({identityOf(app.name), comparableOrEmpty(app.installPath)});
}

const AppInfo *AppList::findSameApp(const AppIdentity &name) const
{
    for (qsizetype i = 0; i < m_keys.size(); ++i) {
        if (isSameApp(m_keys.at(i).name, name))
            return &m_apps.at(i);
    }
    return nullptr;
}

} // namespace Zandrove
