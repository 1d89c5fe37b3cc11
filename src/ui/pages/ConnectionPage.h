#pragma once

#include "core/common/Records.h"

#include <QString>
#include <QWidget>

class QBoxLayout;
class QStackedWidget;

namespace Zandrove {

class CodeCards;
class ConnectionQuestions;
class DeviceCard;
class DiagnosisPanel;
class SearchNotice;
class TransferEngine;

/// The page where two PCs find each other: the PCs in reach to pick one from, this PC's own code to read out,
/// boxes for the other's code or a field for its address, and the questions whether another PC may connect.
class ConnectionPage final : public QWidget
{
    Q_OBJECT

public:
    /// `engine` outlives the events that the page handles.
    explicit ConnectionPage(TransferEngine *engine, QWidget *parent = nullptr);

    /// A name as it came from the network, made fit for a sentence on `widget`.
    [[nodiscard]] static QString shownName(const QString &pcName, const QWidget *widget);

public Q_SLOTS:
    /// Shows a fresh code and the PCs known by now. The first showing of the page does the same.
    void startDiscovery();

Q_SIGNALS:
    /// There is a link to another PC. Comes twice on the side that was asked.
    void connectionEstablished();
    /// New PC, half a second after the link came up: the user need not press Next.
    void requestAutoAdvance();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void setupUi();
    [[nodiscard]] QBoxLayout *createColumns();
    [[nodiscard]] QWidget *createLeft();
    void connectEngine();
    void connectQuestions();
    void onPicked(const PCInfo &pc);
    void onCodeEntered(const QString &code);
    void onAddressEntered(const QString &address);
    void onAccepted(const QString &pcName);
    void onConnected();
    void onConnectionFailed(const QString &reason);
    void onRefreshClicked();
    void diagnose();
    void showDevices();
    void onDirectScanStarted();
    void onDirectScanProgress(int scanned, int total);
    void onDirectScanFinished(bool found);

    TransferEngine *m_engine;
    bool m_discoveryStarted = false;
    QString m_enteredAddress;         ///< while it is dialled
    QStackedWidget *m_left = nullptr; ///< one of the two
    DeviceCard *m_devices = nullptr;
    DiagnosisPanel *m_diagnosis = nullptr;
    CodeCards *m_codes = nullptr;
    ConnectionQuestions *m_questions;
    SearchNotice *m_notice;
};

} // namespace Zandrove
