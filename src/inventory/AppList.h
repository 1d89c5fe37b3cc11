#pragma once

#include "core/common/Records.h"
#include "inventory/AppIdentity.h"

#include <QList>
#include <QString>

#include <functional>

namespace Zandrove {

/// The applications found so far, each once: of two finds of one application the bigger stays. Keeps what the
/// comparison needs of each, so that a candidate is compared with all of them at little cost.
class AppList final
{
public:
    /// Bytes of the folder at a path.
    using FolderMeasure = std::function<qint64(const QString &path)>;

    /// Whether the candidate `name`, in the folder `location` by its own account, is to be appended. May
    /// remove one smaller find of the same application. `folderSize` is asked for
    /// `location` when one is there.
    [[nodiscard]] bool shouldAddApp(const QString &name, const QString &location,
                                    const FolderMeasure &folderSize);
    void append(const AppInfo &app);

    /// The first one that is the same application as `name`; null where there is none.
    [[nodiscard]] const AppInfo *findSameApp(const AppIdentity &name) const;

    [[nodiscard]] const QList<AppInfo> &apps() const { return m_apps; }

private:
    struct Key
    {
        AppIdentity name;
        QString path; ///< comparable; empty for an application without a folder
    };

    QList<AppInfo> m_apps;
    QList<Key> m_keys; ///< of the application at the same position
};

} // namespace Zandrove
