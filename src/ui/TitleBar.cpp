#include "ui/TitleBar.h"

#include "core/common/AppConfig.h"
#include "core/common/Languages.h"
#include "support/LinkManager.h"
#include "ui/Log.h"
#include "ui/Theme.h"
#include "ui/WinButton.h"
#include "ui/widgets/Labels.h"

#include <QAction>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int BarHeight = 44;
constexpr int CornerRadius = 12;

QLabel *createLogo()
{
    auto *logo = new QLabel(AppConfig::appName().left(1));
    logo->setFixedSize(28, 28);
    logo->setAlignment(Qt::AlignCenter);
    const QString background =
        Theme::gradient(Theme::Colour::Orange, Theme::Colour::OrangeLight, Theme::Colour::Gold);
    logo->setStyleSheet(u"QLabel { %1 color: %2; font-size: 16px; font-weight: 700; }"_s.arg(
        Theme::boxProperties(background, 7), Theme::Colour::White));
    return logo;
}

Theme::ButtonLook activateLook()
{
    Theme::ButtonLook look;
    look.background = Theme::Colour::Orange;
    look.hover = Theme::Colour::OrangeHover;
    look.pressed = Theme::Colour::OrangePressed;
    look.fontPixels = 12;
    look.padding = "6px 16px"_L1;
    look.radius = 4;
    return look;
}

void setTip(WinButton *button, const QString &tip)
{
    button->setToolTip(tip);
    button->setAccessibleName(tip);
}

void styleMenu(QMenu *menu)
{
    menu->setStyleSheet(Theme::menuStyle());
    // Without these the round corners would lie on a square window.
    menu->setWindowFlags(menu->windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    menu->setAttribute(Qt::WA_TranslucentBackground);
}

} // namespace

TitleBar::TitleBar(QWidget *parent, const License &license)
    : QWidget(parent)
    , m_license(license)
{
    const QSettings settings(AppConfig::userOrganisation(), AppConfig::appName());
    m_currentLanguage = settings.value(LanguageKey, u"en"_s).toString();
    setObjectName(u"TitleBar"_s);
    setFixedHeight(BarHeight);
    setupUi();
    setupMenu();
    refreshActivateButton();
}

void TitleBar::setupUi()
{
    m_logoLabel = createLogo();
    m_nameLabel = makeLabel(AppConfig::appName(), 13, Theme::Colour::White, Theme::SemiBold);
    m_versionLabel = makeLabel(u"v"_s + AppConfig::appVersion(), 11, Theme::Colour::SlateMuted);
    m_activateButton = new QPushButton(tr("Activate"));
    m_activateButton->setObjectName(u"activateBtn"_s);
    m_activateButton->setCursor(Qt::PointingHandCursor);
    m_activateButton->setFocusPolicy(Qt::TabFocus);
    m_activateButton->setStyleSheet(Theme::buttonStyle(activateLook()));
    m_menuButton = new WinButton(WinButton::Menu);
    m_minimizeButton = new WinButton(WinButton::Minimize);
    m_maximizeButton = new WinButton(WinButton::Maximize);
    m_closeButton = new WinButton(WinButton::Close);
    setTip(m_menuButton, tr("Menu"));
    setTip(m_minimizeButton, tr("Minimize"));
    setTip(m_maximizeButton, tr("Maximize"));
    setTip(m_closeButton, tr("Close"));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_logoLabel);
    layout->addSpacing(8);
    layout->addWidget(m_nameLabel);
    layout->addSpacing(6);
    layout->addWidget(m_versionLabel);
    layout->addStretch();
    layout->addWidget(m_activateButton);
    layout->addSpacing(8);
    for (WinButton *button : {m_menuButton, m_minimizeButton, m_maximizeButton, m_closeButton})
        layout->addWidget(button);

    connect(m_activateButton, &QPushButton::clicked, this, &TitleBar::activateClicked);
    connect(m_menuButton, &QPushButton::clicked, this, &TitleBar::showMenu);
    connect(m_minimizeButton, &QPushButton::clicked, this, &TitleBar::minimizeClicked);
    connect(m_maximizeButton, &QPushButton::clicked, this, &TitleBar::maximizeClicked);
    connect(m_closeButton, &QPushButton::clicked, this, &TitleBar::closeClicked);
}

void TitleBar::setupMenu()
{
    m_menu = new QMenu(this);
    styleMenu(m_menu);
    const auto addEntry = [this](const QString &text, void (TitleBar::*signal)()) {
        connect(m_menu->addAction(text), &QAction::triggered, this, signal);
    };
    addEntry(u"ℹ️  "_s + tr("About"), &TitleBar::aboutClicked);
    m_menu->addSeparator();
    addEntry(u"🔑  "_s + tr("Register"), &TitleBar::activateClicked);
    addEntry(u"🛒  "_s + tr("Purchase"), &TitleBar::purchaseClicked);
    m_menu->addSeparator();
    setupLanguageMenu();
    m_menu->addSeparator();
    addEntry(u"❓  "_s + tr("Help"), &TitleBar::helpClicked);
    addEntry(u"💬  "_s + tr("Support"), &TitleBar::supportClicked);
}

void TitleBar::setupLanguageMenu()
{
    QMenu *menu = m_menu->addMenu(u"🌐  "_s + tr("Language"));
    styleMenu(menu);
    m_languageGroup = new QActionGroup(this);
    m_languageGroup->setExclusive(true);
    for (const Language &language : languages()) {
        QAction *action = menu->addAction(language.ownName.toString());
        action->setCheckable(true);
        action->setData(QString(language.code));
        action->setChecked(language.code == m_currentLanguage);
        m_languageGroup->addAction(action);
    }
    connect(m_languageGroup, &QActionGroup::triggered, this,
            [this](const QAction *action) { onLanguageChosen(action->data().toString()); });
}

void TitleBar::onLanguageChosen(const QString &code)
{
    if (code == m_currentLanguage)
        return;
    m_currentLanguage = code;
    QSettings settings(AppConfig::userOrganisation(), AppConfig::appName());
    settings.setValue(LanguageKey, code);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qCWarning(logUi) << "[TitleBar] The language could not be kept in" << settings.fileName();
    LinkManager::instance().setLanguage(code);
    Q_EMIT languageChanged(code);
}

void TitleBar::showMenu()
{
    m_menu->exec(m_menuButton->mapToGlobal(QPoint(0, m_menuButton->height())));
}

void TitleBar::setRole(bool isNewPC)
{
    m_isNewPC = isNewPC;
    refreshActivateButton();
}

void TitleBar::setMaximized(bool maximized)
{
    m_isMaximized = maximized;
    m_maximizeButton->setType(maximized ? WinButton::Restore : WinButton::Maximize);
    setTip(m_maximizeButton, maximized ? tr("Restore") : tr("Maximize"));
}

void TitleBar::refreshActivateButton()
{
    m_activateButton->setVisible(!m_isNewPC && !m_license.isRegistered());
}

void TitleBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_dragging = true;
    m_dragPosition = event->globalPosition().toPoint() - window()->frameGeometry().topLeft();
    event->accept();
}

void TitleBar::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragging || !event->buttons().testFlag(Qt::LeftButton)) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    window()->move(event->globalPosition().toPoint() - m_dragPosition);
    event->accept();
}

void TitleBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_dragging = false;
    event->accept();
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT maximizeClicked();
}

void TitleBar::paintEvent(QPaintEvent * /*event*/)
{
    constexpr qreal Diameter = 2.0 * CornerRadius;
    const qreal right = width();
    const qreal bottom = height();

    QPainterPath path(QPointF(0.0, bottom));
    path.lineTo(0.0, CornerRadius);
    path.arcTo(QRectF(0.0, 0.0, Diameter, Diameter), 180.0, -90.0);
    path.lineTo(right - CornerRadius, 0.0);
    path.arcTo(QRectF(right - Diameter, 0.0, Diameter, Diameter), 90.0, -90.0);
    path.lineTo(right, bottom);
    path.closeSubpath();

    QLinearGradient gradient(0.0, 0.0, right, 0.0);
    gradient.setColorAt(0.0, QColor(Theme::Colour::PrimaryDark));
    gradient.setColorAt(0.5, QColor(Theme::Colour::Primary));
    gradient.setColorAt(1.0, QColor(Theme::Colour::PrimaryHover));

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, gradient);
}

} // namespace Zandrove
