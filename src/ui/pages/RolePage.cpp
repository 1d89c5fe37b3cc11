#include "ui/pages/RolePage.h"

#include "core/engine/TransferEngine.h"
#include "ui/Theme.h"
#include "ui/pages/CentredContent.h"
#include "ui/widgets/Labels.h"
#include "ui/widgets/RoleCard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int ContentWidth = 560;

} // namespace

RolePage::RolePage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
{
    setupUi();
    connect(m_oldPcCard, &RoleCard::clicked, this, &RolePage::onOldPCSelected);
    connect(m_newPcCard, &RoleCard::clicked, this, &RolePage::onNewPCSelected);
}

void RolePage::setupUi()
{
    m_oldPcCard = new RoleCard(OldPC);
    m_newPcCard = new RoleCard(NewPC);
    auto *cards = new QHBoxLayout;
    cards->setSpacing(24);
    cards->addStretch();
    cards->addWidget(m_oldPcCard);
    cards->addWidget(m_newPcCard);
    cards->addStretch();

    QVBoxLayout *layout = createCentredContent(this, ContentWidth);
    layout->addWidget(makeCentredLabel(tr("Select This PC's Role"), 24, Theme::Colour::Text, Theme::Bold));
    addGap(layout, 8);
    layout->addWidget(makeCentredLabel(tr("Choose what role this computer plays in the transfer"), 14,
                                       Theme::Colour::TextMuted));
    addGap(layout, 40);
    layout->addLayout(cards);
    addGap(layout, 32);
    layout->addWidget(createHint());
}

QWidget *RolePage::createHint()
{
    auto *hint = new QWidget;
    hint->setObjectName(u"RoleHint"_s);
    hint->setStyleSheet(Theme::boxStyle("#RoleHint"_L1, Theme::Colour::BlueTint, 12));
    QLabel *text =
        makeLabel(tr("Both computers need Zandrove installed and running"), 13, Theme::Colour::TextSecondary);
    text->setWordWrap(true);
    auto *layout = new QHBoxLayout(hint);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(12);
    layout->addWidget(makeTile(u"ℹ️"_s, 16, 20, 0, u"transparent"_s));
    layout->addWidget(text, 1);
    return hint;
}

void RolePage::onOldPCSelected()
{
    selectRole(OldPC);
}

void RolePage::onNewPCSelected()
{
    selectRole(NewPC);
}

void RolePage::selectRole(int role)
{
    m_role = role;
    m_hasSelection = true;
    m_oldPcCard->setSelected(role == OldPC);
    m_newPcCard->setSelected(role == NewPC);
    m_engine->setRole(role);
    Q_EMIT selectionChanged();
}

} // namespace Zandrove
