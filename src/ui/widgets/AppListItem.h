#pragma once

#include "core/common/Records.h"
#include "ui/widgets/CheckRow.h"

class QIcon;
class QLabel;

namespace Zandrove {

class ElidedLabel;

/// The row of an application, 56 pixels high. The user cannot tick one that cannot be transferred.
class AppListItem final : public CheckRow
{
    Q_OBJECT

public:
    explicit AppListItem(QWidget *parent = nullptr);

    /// Shows `info`, its icon included.
    void setAppInfo(const AppInfo &info);
    [[nodiscard]] const AppInfo &appInfo() const { return m_info; }
    /// Shows `icon` at 32 x 32; the default icon in place of an empty one.
    void setIcon(const QIcon &icon);

private:
    void setupUi();

    AppInfo m_info;
    QLabel *m_iconLabel = nullptr;
    ElidedLabel *m_nameLabel = nullptr;
    ElidedLabel *m_versionLabel = nullptr;
    QLabel *m_sizeLabel = nullptr;
    QLabel *m_statusLabel = nullptr;
};

} // namespace Zandrove
