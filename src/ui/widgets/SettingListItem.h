#pragma once

#include "core/common/Records.h"
#include "ui/widgets/CheckRow.h"

namespace Zandrove {

class ElidedLabel;

/// The row of a system setting, 44 pixels high.
class SettingListItem final : public CheckRow
{
    Q_OBJECT

public:
    explicit SettingListItem(QWidget *parent = nullptr);

    void setSettingInfo(const SettingInfo &info);

private:
    ElidedLabel *m_nameLabel = nullptr;
};

} // namespace Zandrove
