#pragma once

#include "core/common/Records.h"
#include "inventory/ScanRuns.h"

#include <QList>
#include <QObject>
#include <QStringList>

namespace Zandrove {

/// Measures this user's standard folders: documents, pictures, music, videos, downloads and desktop.
///
/// Works inside start(), on the calling thread, so a cancel comes from a slot connected to `progress` or from
/// another thread. No step fails: a folder that doesn't exist is left out.
class FileScanner final : public QObject
{
    Q_OBJECT

public:
    explicit FileScanner(QObject *parent = nullptr);

public Q_SLOTS:
    /// Does nothing while a scan is running. Emits `started`, `progress` and, unless cancelled, `finished`.
    void start();
    /// Emits `cancelled`; the scan leaves at its next file.
    void cancel();

Q_SIGNALS:
    void started();
    void progress(int percent, const QString &currentItem);
    void finished(const QList<Zandrove::FolderInfo> &folders);
    void error(const QString &errorMessage); ///< never emitted: no step can fail
    void cancelled();

private:
    [[nodiscard]] FolderInfo scanFolder(const QString &path, quint64 run) const;

    ScanRuns m_runs;
    QStringList m_folderPaths;
};

} // namespace Zandrove
