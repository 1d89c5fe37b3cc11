#include "ui/widgets/AppListItem.h"

#include "support/Utilities.h"
#include "ui/widgets/AppIconHelper.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>

namespace Zandrove {

namespace {

constexpr int RowHeight = 56;
constexpr QSize IconSize(32, 32);

} // namespace

AppListItem::AppListItem(QWidget *parent)
    : CheckRow(RowHeight, parent)
{
    setupUi();
}

void AppListItem::setupUi()
{
    m_iconLabel = new QLabel;
    m_iconLabel->setFixedSize(IconSize);
    m_iconLabel->setAlignment(Qt::AlignCenter);
    m_nameLabel = new ElidedLabel(QString(), 13, Theme::Colour::Text, Theme::Medium);
    m_versionLabel = new ElidedLabel(QString(), 11, Theme::Colour::TextFaint);
    m_sizeLabel = makeLabel(QString(), 11, Theme::Colour::TextFaint);
    m_statusLabel = makeLabel(QString(), 11, Theme::Colour::TextMuted);

    QHBoxLayout *layout = rowLayout();
    layout->addWidget(m_iconLabel);
    layout->addWidget(m_nameLabel);
    layout->addWidget(m_versionLabel);
    layout->addWidget(m_sizeLabel);
    layout->addStretch();
    layout->addWidget(m_statusLabel);
}

void AppListItem::setAppInfo(const AppInfo &info)
{
    m_info = info;
    m_nameLabel->setText(info.name);
    m_versionLabel->setText(info.version);
    m_sizeLabel->setText(formatSize(info.size));
    m_statusLabel->setText(info.canTransfer ? QString() : tr("System App"));
    setBoxEnabled(info.canTransfer);
    setBoxName(info.name, m_statusLabel->text());
    setIcon(info.iconPath.isEmpty() ? AppIconHelper::defaultAppIcon()
                                    : AppIconHelper::iconForPath(info.iconPath));
}

void AppListItem::setIcon(const QIcon &icon)
{
    QPixmap pixmap = icon.pixmap(IconSize, devicePixelRatio());
    if (pixmap.isNull())
        pixmap = AppIconHelper::defaultAppIcon().pixmap(IconSize, devicePixelRatio());
    m_iconLabel->setPixmap(pixmap);
}

} // namespace Zandrove
