#pragma once

#include "core/common/Records.h"
#include "inventory/ScanRuns.h"

#include <QList>
#include <QObject>

namespace Zandrove {

/// Lists the user profiles below C:/Users, but for those that the system keeps for itself.
///
/// Works inside start(), on the calling thread, so a cancel comes from a slot connected to `progress` or from
/// another thread. No step fails: without that folder there are no accounts.
class AccountScanner final : public QObject
{
    Q_OBJECT

public:
    explicit AccountScanner(QObject *parent = nullptr);

public Q_SLOTS:
    /// Does nothing while a scan is running. Emits `started`, `progress` and, unless cancelled, `finished`.
    void start();
    /// Emits `cancelled`; the scan leaves at its next profile.
    void cancel();

Q_SIGNALS:
    void started();
    void progress(int percent, const QString &currentItem);
    void finished(const QList<Zandrove::AccountInfo> &accounts);
    void error(const QString &errorMessage); ///< never emitted: no step can fail
    void cancelled();

private:
    [[nodiscard]] QList<AccountInfo> scanAccounts(quint64 run);

    ScanRuns m_runs;
};

} // namespace Zandrove
