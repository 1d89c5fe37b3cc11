#include "ui/pages/DeviceCard.h"

#include "ui/pages/ConnectionPage.h" // whose the texts are
#include "ui/pages/PageCard.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/PCListItem.h"
#include "ui/widgets/RadarWidget.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

constexpr auto TimeToBeFound = 20s;
constexpr int RadarSide = 200;
constexpr int RadarSideWithHints = 120;

/// The vertical layout of a new view, without margins.
QVBoxLayout *createView()
{
    auto *layout = new QVBoxLayout(new QWidget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addStretch();
    return layout;
}

QProgressBar *createScanBar()
{
    constexpr int Height = 8;
    constexpr int AddressesOfASubnet = 254;
    auto *bar = new QProgressBar;
    bar->setFixedSize(280, Height);
    bar->setRange(0, AddressesOfASubnet);
    bar->setValue(0);
    bar->setTextVisible(false);
    bar->setStyleSheet(Theme::progressBarStyle(Height));
    return bar;
}

QWidget *createDirectScanView()
{
    QVBoxLayout *layout = createView();
    layout->addWidget(makeCentredLabel(u"🔌"_s, 48));
    layout->addWidget(makeCentredLabel(ConnectionPage::tr("Scanning Direct Connection..."), 16, Colour::Text,
                                       Theme::SemiBold));
    layout->addWidget(createScanBar(), 0, Qt::AlignHCenter);
    layout->addWidget(makeCentredLabel(ConnectionPage::tr("Scanned: 0 / 254"), 13, Colour::TextMuted));
    layout->addWidget(makeCentredLabel(ConnectionPage::tr("Please ensure the network cable is connected"), 12,
                                       Colour::TextFaint));
    layout->addStretch();
    return layout->parentWidget();
}

/// What to check, the likeliest first.
QStringList hintsFor(bool byCable)
{
    return {ConnectionPage::tr("Zandrove is open on the other PC too, and shows this page there."),
            byCable
                ? ConnectionPage::tr("The network cable is plugged in on both PCs, and its lights are on.")
                : ConnectionPage::tr("Both are in the same network, and neither in a guest Wi-Fi or a VPN."),
            ConnectionPage::tr("One of the two is the Old PC, and the other one the New PC."),
            ConnectionPage::tr("The firewalls of both PCs let Zandrove through.")};
}

/// A block of numbered lines under a heading, with room for other texts.
QWidget *createHints(QList<QLabel *> *lines)
{
    constexpr int Pixels = 13;
    constexpr int MostWidth = 480;
    auto *block = new QWidget;
    block->setMaximumWidth(MostWidth);
    auto *grid = new QGridLayout(block);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    QLabel *heading = makeLabel(ConnectionPage::tr("Nobody found yet. Please check, the likeliest first:"),
                                Pixels, Colour::Text, Theme::SemiBold);
    heading->setWordWrap(true);
    grid->addWidget(heading, 0, 0, 1, 2);
    const qsizetype count = hintsFor(false).size();
    for (int row = 1; row <= count; ++row) {
        grid->addWidget(makeLabel(u"%1."_s.arg(row), Pixels, Colour::TextMuted), row, 0, Qt::AlignTop);
        lines->append(makeLabel(QString(), Pixels, Colour::TextSecondary));
        lines->constLast()->setWordWrap(true);
        grid->addWidget(lines->constLast(), row, 1);
    }
    return block;
}

} // namespace

DeviceCard::DeviceCard(QWidget *parent)
    : QWidget(parent)
    , m_hintTimer(new QTimer(this))
{
    m_status = makeLabel(QString(), 12, Colour::TextFaint);
    m_status->setWordWrap(true);
    m_status->setObjectName(u"statusLabel"_s);
    m_views = new QStackedWidget;
    m_views->setObjectName(u"contentStack"_s);
    m_views->addWidget(createRadarView());
    m_views->addWidget(createListView());
    m_views->addWidget(createDirectScanView());
    m_help = makeSmallButton(ConnectionPage::tr("Can't find the other PC?"), linkButtonStyle());
    connect(m_help, &QPushButton::clicked, this, &DeviceCard::helpClicked);

    QVBoxLayout *layout = makePageCard(this);
    layout->addLayout(createHeading());
    layout->addWidget(m_status);
    layout->addWidget(m_views, 1);
    layout->addWidget(m_help, 0, Qt::AlignHCenter);
    setMinimumWidth(420);

    m_hintTimer->setObjectName(u"hintTimer"_s);
    m_hintTimer->setSingleShot(true);
    m_hintTimer->setInterval(TimeToBeFound);
    connect(m_hintTimer, &QTimer::timeout, this, [this] { showHints(true); });
}

QBoxLayout *DeviceCard::createHeading()
{
    m_title = makeLabel(ConnectionPage::tr("Available Devices"), 16, Colour::Text, Theme::SemiBold);
    m_title->setObjectName(u"devicesTitle"_s);
    m_refresh = makeSmallButton(ConnectionPage::tr("🔄 Refresh"), quietButtonStyle());
    m_refresh->setObjectName(u"refreshButton"_s);
    m_refresh->setAccessibleName(ConnectionPage::tr("Refresh"));
    connect(m_refresh, &QPushButton::clicked, this, &DeviceCard::refreshClicked);
    auto *heading = new QHBoxLayout;
    heading->addWidget(m_title);
    heading->addStretch();
    heading->addWidget(m_refresh);
    return heading;
}

QWidget *DeviceCard::createRadarView()
{
    m_radar = new RadarWidget;
    m_caption =
        makeCentredLabel(ConnectionPage::tr("Looking for devices on your network..."), 14, Colour::TextMuted);
    m_caption->setObjectName(u"radarCaption"_s);
    m_hints = createHints(&m_hintLines);
    m_hints->hide();
    auto *hints = new QHBoxLayout; // which keeps them in the middle, and as wide as they may be
    hints->addStretch();
    hints->addWidget(m_hints, 1000);
    hints->addStretch();
    QVBoxLayout *layout = createView();
    layout->addWidget(m_radar, 0, Qt::AlignHCenter);
    layout->addWidget(m_caption);
    layout->addLayout(hints);
    layout->addStretch();
    return layout->parentWidget();
}

QWidget *DeviceCard::createListView()
{
    auto *list = new QWidget;
    m_rows = new QVBoxLayout(list);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(8);
    m_rows->addStretch();
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setStyleSheet(Theme::scrollAreaStyle());
    area->setWidget(list);
    return area;
}

void DeviceCard::showPeers()
{
    if (m_items.isEmpty()) {
        showSearch();
        return;
    }
    showHints(false);
    m_radar->stop();
    m_title->setText(ConnectionPage::tr("Available Devices"));
    for (QWidget *each : std::initializer_list<QWidget *>{m_title, m_status, m_refresh, m_help})
        each->show();
    m_views->setCurrentIndex(ListView);
}

void DeviceCard::showSearch()
{
    m_title->hide();
    m_status->setVisible(m_said != Theme::Status::Neutral);
    m_refresh->show();
    m_help->show();
    m_views->setCurrentIndex(RadarView);
    m_radar->start();
    if (!m_hintTimer->isActive() && m_hints->isHidden())
        m_hintTimer->start();
}

void DeviceCard::rest()
{
    m_radar->stop();
    m_hintTimer->stop();
}

void DeviceCard::showConnected()
{
    showHints(false);
    m_radar->stop();
    m_title->setText(ConnectionPage::tr("Connected"));
    m_title->show();
    m_refresh->hide();
    m_help->hide();
    m_views->setCurrentIndex(ListView);
}

void DeviceCard::say(const QString &text, Theme::Status status)
{
    setStatus(text, status);
    m_status->setVisible(!text.isEmpty());
}

void DeviceCard::setStatus(const QString &text, Theme::Status status)
{
    m_said = status;
    m_status->setStyleSheet(Theme::statusStyle(status));
    m_status->setText(text);
}

void DeviceCard::setCaption(const QString &text)
{
    m_caption->setText(text);
}

void DeviceCard::setByCable(bool byCable)
{
    m_byCable = byCable;
}

/// The radar makes room for the hints.
void DeviceCard::showHints(bool shown)
{
    m_hintTimer->stop();
    const QStringList hints = hintsFor(m_byCable);
    for (qsizetype i = 0; i < hints.size(); ++i)
        m_hintLines[i]->setText(hints[i]);
    m_hints->setVisible(shown);
    m_help->setStyleSheet(shown ? quietButtonStyle() : linkButtonStyle());
    const int side = shown ? RadarSideWithHints : RadarSide;
    m_radar->setFixedSize(side, side);
}

void DeviceCard::showCount()
{
    if (m_said == Theme::Status::Working || m_said == Theme::Status::Success)
        return;
    const auto online = std::count_if(m_items.cbegin(), m_items.cend(),
                                      [](const PCListItem *item) { return item->pcInfo().online; });
    setStatus(ConnectionPage::tr("%1 device(s) found, %2 online").arg(m_items.size()).arg(online),
              Theme::Status::Neutral);
}

void DeviceCard::removeAll()
{
    showHints(false);
    qDeleteAll(std::exchange(m_items, {}));
}

PCListItem *DeviceCard::itemOf(quint64 key) const
{
    const auto item = std::find_if(m_items.cbegin(), m_items.cend(),
                                   [key](const PCListItem *row) { return row->pcInfo().key == key; });
    return item == m_items.cend() ? nullptr : *item;
}

void DeviceCard::setPeer(const PCInfo &pc)
{
    if (PCListItem *item = itemOf(pc.key)) {
        item->setPCInfo(pc);
        return;
    }
    const bool isFirst = m_items.isEmpty();
    addItem(pc);
    if (isFirst)
        showPeers();
    showCount();
}

void DeviceCard::addItem(const PCInfo &pc)
{
    auto *item = new PCListItem(this);
    item->setPCInfo(pc);
    connect(item, &PCListItem::clicked, this, [this, item] { onItemClicked(item); });
    m_rows->insertWidget(m_rows->count() - 1, item);
    setTabOrder(m_items.isEmpty() ? static_cast<QWidget *>(m_refresh) : m_items.constLast(), item);
    m_items.append(item);
}

void DeviceCard::removePeer(quint64 key)
{
    if (PCListItem *lost = itemOf(key)) {
        m_items.removeOne(lost);
        delete lost;
    }
    if (m_items.isEmpty())
        showSearch();
    showCount();
}

void DeviceCard::onItemClicked(PCListItem *clicked)
{
    const PCInfo pc = clicked->pcInfo();
    if (!pc.online)
        return;
    for (PCListItem *item : std::as_const(m_items))
        item->setSelected(item == clicked);
    Q_EMIT picked(pc);
}

} // namespace Zandrove
