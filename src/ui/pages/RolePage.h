#pragma once

#include "core/common/Records.h"

#include <QWidget>

namespace Zandrove {

class RoleCard;
class TransferEngine;

/// The second page: which end of the move this PC is. A click on a card goes to the engine at once; once
/// made, the choice can only be swapped.
class RolePage final : public QWidget
{
    Q_OBJECT

public:
    explicit RolePage(TransferEngine *engine, QWidget *parent = nullptr);

    /// Whether the user has chosen a role yet.
    [[nodiscard]] bool hasSelection() const { return m_hasSelection; }

Q_SIGNALS:
    /// A card was clicked, also the one that was chosen already.
    void selectionChanged();

private Q_SLOTS:
    void onOldPCSelected();
    void onNewPCSelected();

private:
    void setupUi();
    [[nodiscard]] QWidget *createHint();
    void selectRole(int role);

    TransferEngine *m_engine;
    RoleCard *m_oldPcCard = nullptr;
    RoleCard *m_newPcCard = nullptr;
    int m_role = NewPC;
    bool m_hasSelection = false;
};

} // namespace Zandrove
