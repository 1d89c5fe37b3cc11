#pragma once

#include "core/common/Records.h"
#include "ui/Theme.h"

#include <QString>
#include <QWidget>

class QBoxLayout;
class QLabel;

namespace Zandrove {

class CircleProgress;
class TransferEngine;

/// The page of the Old PC that scans it and shows how far that has come. It has nothing to press and ends by
/// itself; a scan that fails or is cancelled leaves it as it stands.
class ScanningPage final : public QWidget
{
    Q_OBJECT

public:
    /// `engine` outlives the events that the page handles.
    explicit ScanningPage(TransferEngine *engine, QWidget *parent = nullptr);

public Q_SLOTS:
    /// Shows a scan that is about to begin, and begins it a moment later.
    void startScan();
    void cancelScan();

Q_SIGNALS:
    /// The result has been on the screen for a moment. Also comes, during a new scan, for
    /// one that has just ended.
    void scanFinished();

private Q_SLOTS:
    void onScanProgress(int percent, const QString &currentItem, int appsFound, int foldersFound,
                        int accountsFound);
    void onScanCompleted(const Zandrove::ScanResult &result);

private:
    void setupUi();
    [[nodiscard]] QBoxLayout *createCounts();
    QLabel *addCount(QBoxLayout *row, const QString &caption, QLatin1StringView colour);

    TransferEngine *m_engine;
    CircleProgress *m_circleProgress = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    QLabel *m_statusLabel = nullptr;
    QLabel *m_appCountLabel = nullptr;
    QLabel *m_accountCountLabel = nullptr;
};

} // namespace Zandrove
