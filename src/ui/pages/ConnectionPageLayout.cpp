// ConnectionPage: what it is made of.

#include "ui/pages/CodeEdit.h"
#include "ui/pages/ConnectionPage.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/RadarWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

constexpr int CodeLength = 4;
constexpr int CardRadius = 16;
constexpr int AddressesOfASubnet = 254;

/// The vertical layout of a new card.
QVBoxLayout *createCard(const QString &background)
{
    auto *card = new QWidget;
    card->setObjectName(u"Card"_s);
    card->setStyleSheet(Theme::boxStyle("#Card"_L1, background, CardRadius));
    auto *layout = new QVBoxLayout(card);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    return layout;
}

/// A row at the end of `column` that keeps what is added to it in the middle.
QHBoxLayout *addCentredRow(QVBoxLayout *column)
{
    auto *centred = new QHBoxLayout;
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    centred->addStretch();
    centred->addLayout(row);
    centred->addStretch();
    column->addLayout(centred);
    return row;
}

QLabel *createCodeLabel()
{
    QLabel *label = makeLabel(u"-"_s, 24, Colour::Primary, Theme::Bold);
    label->setStyleSheet(label->styleSheet() + Theme::boxStyle("QLabel"_L1, Colour::White, 10));
    label->setFixedSize(48, 56);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QPushButton *createRefreshButton()
{
    Theme::ButtonLook look;
    look.background = Colour::White;
    look.hover = Colour::Hover;
    look.text = Colour::TextSecondary;
    look.border = Colour::Border;
    look.fontPixels = 13;
    look.padding = "6px 14px"_L1;
    auto *button = new QPushButton(ConnectionPage::tr("🔄 Refresh"));
    button->setStyleSheet(Theme::buttonStyle(look));
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

QProgressBar *createScanBar()
{
    constexpr int Height = 8;
    auto *bar = new QProgressBar;
    bar->setFixedSize(280, Height);
    bar->setRange(0, AddressesOfASubnet);
    bar->setValue(0);
    bar->setTextVisible(false);
    bar->setStyleSheet(Theme::progressBarStyle(Height));
    return bar;
}

} // namespace

void ConnectionPage::setupUi()
{
    auto *codes = new QVBoxLayout;
    codes->setSpacing(16);
    codes->addWidget(createOwnCodeCard());
    codes->addWidget(createOtherCodeCard());
    codes->addStretch();

    auto *columns = new QHBoxLayout;
    columns->setSpacing(20);
    columns->addWidget(createDeviceCard(), 1);
    columns->addLayout(codes);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 16, 32, 12);
    layout->setSpacing(4);
    layout->addWidget(makeCentredLabel(tr("Connect to Another PC"), 24, Colour::Text, Theme::Bold));
    layout->addWidget(
        makeCentredLabel(tr("Select a device or enter verification code"), 14, Colour::TextMuted));
    layout->addSpacing(12);
    layout->addLayout(columns, 1);
    layout->addSpacing(6);
    layout->addWidget(makeCentredLabel(tr("💡 Both PCs must be on the same network with Zandrove running"), 12,
                                       Colour::TextFaint));
}

QWidget *ConnectionPage::createDeviceCard()
{
    m_statusLabel = makeLabel(QString(), 12, Colour::TextFaint);
    m_statusLabel->setWordWrap(true);
    m_statusLabel->setObjectName(u"statusLabel"_s);
    m_contentStack = new QStackedWidget;
    m_contentStack->setObjectName(u"contentStack"_s);
    m_contentStack->addWidget(createRadarView());
    m_contentStack->addWidget(createListView());
    m_contentStack->addWidget(createDirectScanView());

    QVBoxLayout *layout = createCard(Colour::Panel);
    layout->addLayout(createDeviceHeading());
    layout->addWidget(m_statusLabel);
    layout->addWidget(m_contentStack, 1);
    layout->parentWidget()->setMinimumWidth(420);
    return layout->parentWidget();
}

QBoxLayout *ConnectionPage::createDeviceHeading()
{
    m_devicesTitle = makeLabel(tr("Available Devices"), 16, Colour::Text, Theme::SemiBold);
    m_devicesTitle->setObjectName(u"devicesTitle"_s);
    m_refreshButton = createRefreshButton();
    m_refreshButton->setObjectName(u"refreshButton"_s);
    m_refreshButton->setAccessibleName(tr("Refresh"));
    connect(m_refreshButton, &QPushButton::clicked, this, &ConnectionPage::onRefreshClicked);
    auto *heading = new QHBoxLayout;
    heading->addWidget(m_devicesTitle);
    heading->addStretch();
    heading->addWidget(m_refreshButton);
    return heading;
}

QWidget *ConnectionPage::createRadarView()
{
    m_radar = new RadarWidget;
    m_radarCaption = makeCentredLabel(tr("Looking for devices on your network..."), 14, Colour::TextMuted);
    m_radarCaption->setObjectName(u"radarCaption"_s);
    auto *view = new QWidget;
    auto *layout = new QVBoxLayout(view);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addStretch();
    layout->addWidget(m_radar, 0, Qt::AlignHCenter);
    layout->addWidget(m_radarCaption);
    layout->addStretch();
    return view;
}

QWidget *ConnectionPage::createListView()
{
    auto *list = new QWidget;
    m_listLayout = new QVBoxLayout(list);
    m_listLayout->setContentsMargins(0, 0, 0, 0);
    m_listLayout->setSpacing(8);
    m_listLayout->addStretch();
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setStyleSheet(Theme::scrollAreaStyle());
    area->setWidget(list);
    return area;
}

QWidget *ConnectionPage::createDirectScanView()
{
    m_directTitle = makeCentredLabel(tr("Scanning Direct Connection..."), 16, Colour::Text, Theme::SemiBold);
    m_directProgress = createScanBar();
    m_directCount = makeCentredLabel(tr("Scanned: 0 / 254"), 13, Colour::TextMuted);
    auto *view = new QWidget;
    auto *layout = new QVBoxLayout(view);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addStretch();
    layout->addWidget(makeCentredLabel(u"🔌"_s, 48));
    layout->addWidget(m_directTitle);
    layout->addWidget(m_directProgress, 0, Qt::AlignHCenter);
    layout->addWidget(m_directCount);
    layout->addWidget(
        makeCentredLabel(tr("Please ensure the network cable is connected"), 12, Colour::TextFaint));
    layout->addStretch();
    return view;
}

QWidget *ConnectionPage::createOwnCodeCard()
{
    QVBoxLayout *layout = createCard(Theme::gradient(Colour::BlueTint, Colour::IndigoTintStrong));
    layout->addWidget(makeCentredLabel(tr("Your Verification Code"), 14, Colour::Text, Theme::SemiBold));
    QHBoxLayout *row = addCentredRow(layout);
    for (int i = 0; i < CodeLength; ++i) {
        m_codeLabels.append(createCodeLabel());
        m_codeLabels.constLast()->setObjectName(u"codeLabel"_s);
        row->addWidget(m_codeLabels.constLast());
    }
    layout->addWidget(makeCentredLabel(tr("Show this code to the other PC"), 12, Colour::TextMuted));
    layout->parentWidget()->setFixedWidth(280);
    return layout->parentWidget();
}

QWidget *ConnectionPage::createOtherCodeCard()
{
    QVBoxLayout *layout = createCard(Colour::Panel);
    layout->addWidget(makeCentredLabel(tr("Or Enter Their Code"), 14, Colour::Text, Theme::SemiBold));
    QHBoxLayout *row = addCentredRow(layout);
    for (int i = 0; i < CodeLength; ++i)
        addCodeEdit(row);

    m_connectButton = new QPushButton(tr("Connect"));
    m_connectButton->setStyleSheet(Theme::buttonStyle(Theme::primaryButton()));
    m_connectButton->setCursor(Qt::PointingHandCursor);
    m_connectButton->setObjectName(u"connectButton"_s);
    m_connectButton->setEnabled(false);
    connect(m_connectButton, &QPushButton::clicked, this, &ConnectionPage::onConnectByCode);
    layout->addWidget(m_connectButton);
    layout->parentWidget()->setFixedWidth(280);
    return layout->parentWidget();
}

void ConnectionPage::addCodeEdit(QBoxLayout *row)
{
    auto *edit = new CodeEdit;
    const int index = int(m_codeEdits.size());
    edit->setAccessibleName(tr("Their code, character %1").arg(index + 1));
    connect(edit, &QLineEdit::textChanged, this,
            [this, index](const QString &text) { onCodeEdited(index, text); });
    connect(edit, &QLineEdit::returnPressed, this, &ConnectionPage::onConnectByCode);
    m_codeEdits.append(edit);
    row->addWidget(edit);
}

} // namespace Zandrove
