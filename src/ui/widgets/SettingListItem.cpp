#include "ui/widgets/SettingListItem.h"

#include "ui/widgets/ElidedLabel.h"

#include <QHBoxLayout>

namespace Zandrove {

namespace {

constexpr int RowHeight = 44;

} // namespace

SettingListItem::SettingListItem(QWidget *parent)
    : CheckRow(RowHeight, parent)
    , m_nameLabel(new ElidedLabel(QString(), 13, Theme::Colour::TextSecondary))
{
    rowLayout()->addWidget(m_nameLabel, 1);
}

void SettingListItem::setSettingInfo(const SettingInfo &info)
{
    m_nameLabel->setText(info.name);
    setBoxName(info.name, info.description);
}

} // namespace Zandrove
