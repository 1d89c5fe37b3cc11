#pragma once

#include "core/common/Records.h"

#include <QWidget>

class QBoxLayout;

namespace Zandrove {

class ModeCard;
class TransferEngine;

/// The first page: how the two PCs are linked. A click on a card goes to the engine at once.
class WelcomePage final : public QWidget
{
    Q_OBJECT

public:
    /// Sets the engine to the network mode.
    explicit WelcomePage(TransferEngine *engine, QWidget *parent = nullptr);

private Q_SLOTS:
    void onNetworkSelected();
    void onCableSelected();

private:
    void setupUi();
    [[nodiscard]] QBoxLayout *createIconRow();
    [[nodiscard]] ModeCard *createNetworkCard();
    [[nodiscard]] ModeCard *createCableCard();
    void selectMode(int mode);

    TransferEngine *m_engine;
    ModeCard *m_networkCard = nullptr;
    ModeCard *m_cableCard = nullptr;
    int m_connectionMode = NetworkMode;
};

} // namespace Zandrove
