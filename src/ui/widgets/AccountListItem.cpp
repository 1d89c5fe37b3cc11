#include "ui/widgets/AccountListItem.h"

#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int RowHeight = 56;
constexpr int IconSide = 36;

} // namespace

AccountListItem::AccountListItem(QWidget *parent)
    : CheckRow(RowHeight, parent)
    , m_nameLabel(new ElidedLabel(QString(), 13, Theme::Colour::Text, Theme::Medium))
    , m_typeLabel(new ElidedLabel(QString(), 11, Theme::Colour::TextFaint))
{
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(m_nameLabel);
    texts->addWidget(m_typeLabel);
    texts->addStretch();
    rowLayout()->addWidget(makeTile(u"👤"_s, 18, IconSide, IconSide / 2, Theme::Colour::BlueBorder));
    rowLayout()->addLayout(texts, 1);
}

void AccountListItem::setAccountInfo(const AccountInfo &info)
{
    m_nameLabel->setText(info.userName);
    m_typeLabel->setText(info.accountType);
    setBoxName(info.userName, info.accountType);
}

} // namespace Zandrove
