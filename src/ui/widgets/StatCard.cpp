#include "ui/widgets/StatCard.h"

#include "ui/widgets/Labels.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

struct StatLook
{
    QLatin1StringView background;
    QLatin1StringView text;
};

StatLook lookOf(int type)
{
    using namespace Theme::Colour;
    switch (type) {
    case 0:
        return {SuccessTint, SuccessText};
    case 1:
        return {BlueTint, PrimaryHover};
    default:
        return {VioletTint, VioletText};
    }
}

} // namespace

StatCard::StatCard(int type, QWidget *parent)
    : QWidget(parent)
    , m_type(type)
{
    const StatLook look = lookOf(m_type);
    setFixedSize(128, 96);
    setObjectName(u"StatCard"_s);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(Theme::boxStyle("#StatCard"_L1, look.background, 12));

    m_valueLabel = makeCentredLabel(u"0"_s, 28, look.text, Theme::Bold);
    m_valueLabel->setWordWrap(false);
    m_captionLabel = makeCentredLabel(QString(), 13, look.text);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(4);
    layout->addStretch();
    layout->addWidget(m_valueLabel);
    layout->addWidget(m_captionLabel);
    layout->addStretch();
}

void StatCard::setValue(const QString &value)
{
    m_valueLabel->setText(value);
    refreshAccessibleName();
}

void StatCard::setLabel(const QString &label)
{
    m_captionLabel->setText(label);
    refreshAccessibleName();
}

void StatCard::refreshAccessibleName()
{
    setAccessibleName(u"%1: %2"_s.arg(m_captionLabel->text(), m_valueLabel->text()));
}

} // namespace Zandrove
