#pragma once

#include "SimulatedPc.h"

#include "core/common/Records.h"

#include <QList>

namespace Zandrove {

/// Applications on a simulated PC, each with the outcome that a scan must have: the Uninstall keys of all
/// three roots, program folders with and without such keys, and vendors' keys. InstalledPrograms.txt lists
/// them and tells why each outcome is right.
class InstalledPrograms final
{
public:
    /// Installs everything on `pc`.
    explicit InstalledPrograms(SimulatedPc &pc);

    /// What the passes over the registry must list, in this order.
    [[nodiscard]] const QList<AppInfo> &fromUninstallKeys() const { return m_fromUninstallKeys; }
    [[nodiscard]] const QList<AppInfo> &fromUserSoftware() const { return m_fromUserSoftware; }
    /// What the pass over the disk must list, in any order.
    [[nodiscard]] const QList<AppInfo> &fromFolders() const { return m_fromFolders; }

private:
    void add(const QStringList &fields, const QString &text);
    void addFolder(const QStringList &fields);
    void addUninstallKey(const QStringList &fields);
    void addUserSoftware(const QStringList &fields);
    void addKey(const QString &key, const QStringList &values);
    [[nodiscard]] QString expanded(QString text) const;

    SimulatedPc &m_pc;
    QString m_registry; ///< the keys so far, as text
    int m_uninstallKeys = 0;
    QList<AppInfo> m_fromUninstallKeys;
    QList<AppInfo> m_fromFolders;
    QList<AppInfo> m_fromUserSoftware;
};

} // namespace Zandrove
