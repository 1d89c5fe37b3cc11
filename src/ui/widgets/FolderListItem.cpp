#include "ui/widgets/FolderListItem.h"

#include "support/Utilities.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int RowHeight = 56;

} // namespace

FolderListItem::FolderListItem(QWidget *parent)
    : CheckRow(RowHeight, parent)
    , m_nameLabel(new ElidedLabel(QString(), 13, Theme::Colour::Text, Theme::Medium))
    , m_pathLabel(new ElidedLabel(QString(), 11, Theme::Colour::TextFaint))
    , m_contentLabel(new ElidedLabel(QString(), 11, Theme::Colour::TextFaint))
{
    m_pathLabel->setElideMode(Qt::ElideMiddle);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(m_nameLabel);
    texts->addWidget(m_pathLabel);
    texts->addWidget(m_contentLabel);
    texts->addStretch();
    rowLayout()->addWidget(makeLabel(u"📁"_s, 20));
    rowLayout()->addLayout(texts, 1);
}

void FolderListItem::setFolderInfo(const FolderInfo &info)
{
    m_nameLabel->setText(info.name);
    m_pathLabel->setText(info.path);
    m_contentLabel->setText(
        tr("%1 files, %2").arg(QString::number(info.fileCount), formatSize(info.totalSize)));
    setBoxName(info.name, info.path + u", "_s + m_contentLabel->text());
}

} // namespace Zandrove
