#pragma once

#include "core/common/Records.h"
#include "ui/widgets/CheckRow.h"

namespace Zandrove {

class ElidedLabel;

/// The row of a user account, 56 pixels high.
class AccountListItem final : public CheckRow
{
    Q_OBJECT

public:
    explicit AccountListItem(QWidget *parent = nullptr);

    void setAccountInfo(const AccountInfo &info);

private:
    ElidedLabel *m_nameLabel = nullptr;
    ElidedLabel *m_typeLabel = nullptr;
};

} // namespace Zandrove
