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
    [[nodiscard]] const SettingInfo &settingInfo() const { return m_info; }

private:
    SettingInfo m_info;
    ElidedLabel *m_nameLabel = nullptr;
};

} // namespace Zandrove
