#include "ui/pages/WelcomePage.h"

#include "core/common/AppConfig.h"
#include "core/engine/TransferEngine.h"
#include "ui/Theme.h"
#include "ui/pages/CentredContent.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/ModeCard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int ContentWidth = 500;

QLabel *createPcTile(QLatin1StringView from, QLatin1StringView to)
{
    return makeTile(u"🖥️"_s, 28, 64, 16, Theme::gradient(from, to));
}

} // namespace

WelcomePage::WelcomePage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
{
    setupUi();
    connect(m_networkCard, &ModeCard::clicked, this, &WelcomePage::onNetworkSelected);
    connect(m_cableCard, &ModeCard::clicked, this, &WelcomePage::onCableSelected);
    m_engine->setMode(m_connectionMode);
}

void WelcomePage::setupUi()
{
    m_networkCard = createNetworkCard();
    m_cableCard = createCableCard();
    m_networkCard->setSelected(true);

    QVBoxLayout *layout = createCentredContent(this, ContentWidth);
    layout->addLayout(createIconRow());
    addGap(layout, 24);
    layout->addWidget(makeCentredLabel(AppConfig::appName(), 28, Theme::Colour::Text, Theme::Bold));
    addGap(layout, 8);
    layout->addWidget(makeCentredLabel(tr("Transfer files, apps and settings to your new PC"), 14,
                                       Theme::Colour::TextMuted));
    addGap(layout, 40);
    layout->addWidget(m_networkCard);
    addGap(layout, 12);
    layout->addWidget(m_cableCard);
}

QBoxLayout *WelcomePage::createIconRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addStretch();
    row->addWidget(createPcTile(Theme::Colour::Primary, Theme::Colour::Indigo));
    row->addWidget(makeLabel(u"→"_s, 24, Theme::Colour::TextFaint));
    row->addWidget(createPcTile(Theme::Colour::Teal, Theme::Colour::TealDark));
    row->addStretch();
    return row;
}

ModeCard *WelcomePage::createNetworkCard()
{
    auto *card = new ModeCard;
    card->setIcons(u":/icons/wifi-gray.svg"_s, u":/icons/wifi-white.svg"_s);
    card->setTitle(tr("Network Mode"));
    card->setSubtitle(tr("Wi-Fi / LAN (Same Network)"));
    card->setBadge(QString(), QString());
    return card;
}

ModeCard *WelcomePage::createCableCard()
{
    auto *card = new ModeCard;
    card->setIcons(u":/icons/cable-gray.svg"_s, u":/icons/cable-white.svg"_s);
    card->setTitle(tr("Cable Mode"));
    card->setSubtitle(tr("USB-C or Ethernet Cable"));
    card->setBadge(QString(), QString());
    return card;
}

void WelcomePage::onNetworkSelected()
{
    selectMode(NetworkMode);
}

void WelcomePage::onCableSelected()
{
    selectMode(CableMode);
}

void WelcomePage::selectMode(int mode)
{
    m_connectionMode = mode;
    m_networkCard->setSelected(mode == NetworkMode);
    m_cableCard->setSelected(mode == CableMode);
    m_engine->setMode(mode);
}

} // namespace Zandrove
