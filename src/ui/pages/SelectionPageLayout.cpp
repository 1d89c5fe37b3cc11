// SelectionPage: what it is made of.

#include "ui/Theme.h"
#include "ui/pages/SelectionPage.h"
#include "ui/widgets/FileBrowserWidget.h"
#include "ui/widgets/Labels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

constexpr int RowSpacing = 4;

QString tabStyle()
{
    return u"QTabWidget::pane { border: none; border-top: 1px solid %1; }"
           " QTabBar::tab { background: transparent; color: %2; font-size: 14px; padding: 12px 24px;"
           " border: none; border-bottom: 2px solid transparent; }"
           " QTabBar::tab:hover { color: %3; }"
           " QTabBar::tab:selected { color: %4; border-bottom-color: %4; }"_s.arg(
               Colour::Border, Colour::TextMuted, Colour::TextSecondary, Colour::Primary);
}

QString comboStyle()
{
    return u"QComboBox { background: %1; color: %2; border: 1px solid %3; border-radius: 6px; padding: 6px "
           u"10px;"
           " font-size: 13px; }"
           " QComboBox:hover { border-color: %4; }"
           " QComboBox::drop-down { border: none; width: 24px; }"
           " QComboBox::down-arrow { image: url(:/icons/chevron-down.svg); width: 14px; height: 14px; }"
           " QComboBox QAbstractItemView { background: %1; color: %2; border: 1px solid %3; outline: none;"
           " selection-background-color: %5; selection-color: %2; }"_s.arg(
               Colour::White, Colour::TextSecondary, Colour::Border, Colour::BorderStrong, Colour::BlueTint);
}

QCheckBox *createSelectAll(const QString &text)
{
    auto *box = new QCheckBox(text);
    // The box stands above those of the rows.
    box->setStyleSheet(
        Theme::checkBoxStyle() +
        u"QCheckBox { color: %1; font-size: 13px; padding-left: 12px; }"_s.arg(Colour::TextSecondary));
    box->setCursor(Qt::PointingHandCursor);
    return box;
}

QVBoxLayout *createRows()
{
    auto *rows = new QVBoxLayout;
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(RowSpacing);
    return rows;
}

/// `layout` on a page that scrolls.
QScrollArea *createScrollArea(QLayout *layout)
{
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setStyleSheet(Theme::scrollAreaStyle());
    auto *content = new QWidget;
    content->setLayout(layout);
    area->setWidget(content);
    return area;
}

/// A choice behind its caption, at the end of `row`.
QComboBox *addChoice(QBoxLayout *row, const QString &caption, const QStringList &choices)
{
    QLabel *label = makeLabel(caption, 13, Colour::TextSecondary);
    auto *combo = new QComboBox;
    combo->addItems(choices);
    combo->setMinimumWidth(100);
    combo->setStyleSheet(comboStyle());
    combo->setAccessibleName(caption);
    label->setBuddy(combo);
    row->addWidget(label);
    row->addWidget(combo);
    return combo;
}

} // namespace

void SelectionPage::setupUi()
{
    m_tabs = new QTabWidget;
    m_tabs->setStyleSheet(tabStyle());
    m_tabs->tabBar()->setExpanding(false);
    m_tabs->tabBar()->setElideMode(Qt::ElideNone);
    m_appsTab = createAppsTab();
    m_filesTab = createFilesTab();
    m_settingsTab = createSettingsTab();
    m_tabs->addTab(m_appsTab, tr("Applications"));
    m_tabs->addTab(m_filesTab, tr("Files"));
    m_tabs->addTab(m_settingsTab, tr("Accounts & Settings").replace(u'&', "&&"_L1));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 20, 32, 16);
    layout->setSpacing(12);
    layout->addLayout(createHeader());
    layout->addWidget(m_tabs, 1);
    layout->addWidget(createConflictBar());
}

QBoxLayout *SelectionPage::createHeader()
{
    m_totalLabel = makeLabel(tr("Total: 0 GB"), 14, Colour::Primary, Theme::Medium);
    m_totalLabel->setObjectName(u"totalLabel"_s);
    auto *header = new QHBoxLayout;
    header->addWidget(makeLabel(tr("Select Content to Transfer"), 20, Colour::Text, Theme::Bold));
    header->addStretch();
    header->addWidget(m_totalLabel);
    return header;
}

QWidget *SelectionPage::createAppsTab()
{
    m_selectAllApps = createSelectAll(tr("Select All Applications"));
    m_selectAllApps->setObjectName(u"selectAllApps"_s);
    m_appLayout = createRows();
    m_appLayout->addStretch();

    auto *tab = new QWidget;
    auto *layout = new QVBoxLayout(tab);
    layout->setContentsMargins(0, 12, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_selectAllApps);
    layout->addWidget(createScrollArea(m_appLayout), 1);
    return tab;
}

QWidget *SelectionPage::createFilesTab()
{
    m_fileBrowser = new FileBrowserWidget;
    auto *tab = new QWidget;
    auto *layout = new QVBoxLayout(tab);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_fileBrowser);
    return tab;
}

QWidget *SelectionPage::createSettingsTab()
{
    m_accountLayout = createRows();
    m_settingLayout = createRows();

    auto *sections = new QVBoxLayout;
    sections->setContentsMargins(0, 12, 0, 0);
    sections->setSpacing(8);
    sections->addWidget(makeLabel(tr("User Accounts"), 14, Colour::Text, Theme::SemiBold));
    sections->addLayout(m_accountLayout);
    sections->addSpacing(12);
    sections->addLayout(createSettingsHeading());
    sections->addLayout(m_settingLayout);
    sections->addStretch();
    return createScrollArea(sections);
}

QBoxLayout *SelectionPage::createSettingsHeading()
{
    m_selectAllSettings = createSelectAll(tr("Select All"));
    m_selectAllSettings->setObjectName(u"selectAllSettings"_s);
    auto *heading = new QHBoxLayout;
    heading->addWidget(makeLabel(tr("System Settings"), 14, Colour::Text, Theme::SemiBold));
    heading->addStretch();
    heading->addWidget(m_selectAllSettings);
    return heading;
}

QWidget *SelectionPage::createConflictBar()
{
    auto *bar = new QWidget;
    bar->setObjectName(u"ConflictBar"_s);
    bar->setStyleSheet(Theme::boxStyle("#ConflictBar"_L1, Colour::Panel, 12));
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(16, 10, 16, 10);
    layout->setSpacing(8);
    m_fileConflictCombo =
        addChoice(layout, tr("Same-name files:"), {tr("Skip"), tr("Overwrite"), tr("Rename")});
    layout->addSpacing(24 - layout->spacing());
    m_appConflictCombo = addChoice(layout, tr("Existing apps:"), {tr("Skip"), tr("Overwrite")});
    layout->addStretch();
    return bar;
}

} // namespace Zandrove
