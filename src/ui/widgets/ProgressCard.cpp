#include "ui/widgets/ProgressCard.h"

#include "ui/widgets/Labels.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int BarHeight = 8;

QWidget *makeBarPart(QLatin1StringView name, QLatin1StringView colour, QWidget *parent)
{
    auto *part = new QWidget(parent);
    part->setObjectName(name);
    part->setAttribute(Qt::WA_StyledBackground);
    part->setStyleSheet(Theme::boxStyle(QLatin1StringView("QWidget"), colour, BarHeight / 2));
    return part;
}

} // namespace

ProgressCard::ProgressCard(QWidget *parent)
    : QWidget(parent)
{
    setupUi();
}

void ProgressCard::setupUi()
{
    using namespace Theme::Colour;
    setObjectName(u"ProgressCard"_s);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(
        Theme::boxStyle("#ProgressCard"_L1, Theme::gradient(BlueTint, IndigoTint), 16, BlueTintStrong));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(16);
    layout->addLayout(createNumbers());
    layout->addWidget(createBar());
}

QHBoxLayout *ProgressCard::createNumbers()
{
    using namespace Theme::Colour;
    auto *numbers = new QHBoxLayout;
    numbers->setSpacing(32);
    const auto addColumn = [numbers](QLabel *value, QLabel *caption) {
        auto *column = new QVBoxLayout;
        column->setSpacing(2);
        for (QLabel *label : {value, caption}) {
            label->setAlignment(Qt::AlignCenter);
            column->addWidget(label);
        }
        numbers->addLayout(column);
    };

    m_percentLabel = makeLabel(u"0%"_s, 36, Text, Theme::Bold);
    m_speedLabel = makeLabel(u"0 MB/s"_s, 20, Text, Theme::Bold);
    m_remainingLabel = makeLabel(u"--:--"_s, 20, Text, Theme::Bold);
    m_transferredLabel = makeLabel(u"0 GB"_s, 20, Primary, Theme::Bold);
    m_totalLabel = makeLabel(QString(), 13, TextMuted);
    numbers->addWidget(m_percentLabel);
    numbers->addStretch();
    addColumn(m_speedLabel, makeLabel(tr("Speed"), 13, TextMuted));
    addColumn(m_remainingLabel, makeLabel(tr("Remaining"), 13, TextMuted));
    addColumn(m_transferredLabel, m_totalLabel);
    setSizes(m_transferredLabel->text(), u"0 GB"_s);
    return numbers;
}

QWidget *ProgressCard::createBar()
{
    m_barTrack = makeBarPart("barTrack"_L1, Theme::Colour::BlueBorder, nullptr);
    m_barTrack->setFixedHeight(BarHeight);
    m_barFill = makeBarPart("barFill"_L1, Theme::Colour::Primary, m_barTrack);
    m_barFill->setGeometry(0, 0, 0, BarHeight);
    return m_barTrack;
}

void ProgressCard::setProgress(int percent)
{
    m_percentLabel->setText(u"%1%"_s.arg(percent));
    // The product wraps around instead of being undefined.
    const int scaled = int(quint32(m_barTrack->width()) * quint32(percent));
    m_barFill->setGeometry(0, 0, scaled / 100, BarHeight);
}

void ProgressCard::setSpeed(const QString &speed)
{
    m_speedLabel->setText(speed);
}

void ProgressCard::setRemaining(const QString &remaining)
{
    m_remainingLabel->setText(remaining);
}

void ProgressCard::setSizes(const QString &transferred, const QString &total)
{
    m_transferredLabel->setText(transferred);
    m_totalLabel->setText(tr("of %1").arg(total));
}

} // namespace Zandrove
