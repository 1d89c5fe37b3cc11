#pragma once

#include "cli/Session.h"

#include <QHash>

namespace Zandrove::Cli {

/// Lists the PCs of the other role as they come, change their code and go. Lets nobody in.
class DiscoverSession final : public Session
{
    Q_OBJECT

public:
    DiscoverSession(const Options &options, TransferEngine &engine, Output &output,
                    QObject *parent = nullptr);

    void start() override;

protected:
    void onInterrupt() override;

private:
    void show(const PCInfo &pc);
    void showChangedCodes();

    QHash<quint64, QString> m_codes; ///< by the key of each peer, as last shown
    QTimer m_changeTimer;
};

} // namespace Zandrove::Cli
