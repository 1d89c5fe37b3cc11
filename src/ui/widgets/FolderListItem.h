#pragma once

#include "core/common/Records.h"
#include "ui/widgets/CheckRow.h"

namespace Zandrove {

class ElidedLabel;

/// The row of a folder, 56 pixels high: its name, its path, and what it holds.
class FolderListItem final : public CheckRow
{
    Q_OBJECT

public:
    explicit FolderListItem(QWidget *parent = nullptr);

    void setFolderInfo(const FolderInfo &info);

private:
    ElidedLabel *m_nameLabel = nullptr;
    ElidedLabel *m_pathLabel = nullptr;
    ElidedLabel *m_contentLabel = nullptr;
};

} // namespace Zandrove
