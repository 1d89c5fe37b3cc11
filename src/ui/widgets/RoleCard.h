#pragma once

#include "ui/widgets/SelectableCard.h"

class QLabel;

namespace Zandrove {

/// A big clickable choice between Old PC and New PC, 224 x 200.
class RoleCard final : public SelectableCard
{
    Q_OBJECT

public:
    /// `role` is a `Role`.
    explicit RoleCard(int role, QWidget *parent = nullptr);

protected:
    void showSelected(bool selected) override;

private:
    void setupUi();

    int m_role;
    QLabel *m_iconTile = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
};

} // namespace Zandrove
