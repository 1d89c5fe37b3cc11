#include "ui/widgets/NoticeBar.h"

#include "support/PrintableText.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int TextPixels = 13;

QString buttonStyle()
{
    Theme::ButtonLook look;
    look.background = Theme::Colour::White;
    look.hover = Theme::Colour::Hover;
    look.border = Theme::Colour::AmberText;
    look.text = Theme::Colour::Text;
    look.fontPixels = TextPixels;
    look.padding = "6px 14px"_L1;
    look.radius = 6;
    return Theme::buttonStyle(look);
}

} // namespace

NoticeBar::NoticeBar(QWidget *parent)
    : QWidget(parent)
{
    // A box within, so that margins around the bar go when it is hidden.
    auto *box = new QWidget;
    box->setObjectName(u"NoticeBox"_s);
    box->setAttribute(Qt::WA_StyledBackground);
    box->setStyleSheet(Theme::boxStyle("#NoticeBox"_L1, Theme::Colour::Amber, 8, Theme::Colour::AmberHover));

    m_text = makeLabel(QString(), TextPixels);
    m_text->setWordWrap(true);
    m_button = new QPushButton;
    m_button->setCursor(Qt::PointingHandCursor);
    m_button->setStyleSheet(buttonStyle());
    connect(m_button, &QPushButton::clicked, this, &NoticeBar::actionClicked);

    auto *outer = new QHBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(box);
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(16, 8, 16, 8);
    layout->setSpacing(12);
    layout->addWidget(makeLabel(u"⚠"_s, 16, Theme::Colour::AmberText));
    layout->addWidget(m_text, 1);
    layout->addWidget(m_button);
    hide();
}

void NoticeBar::tell(const QString &text, const QString &action)
{
    m_text->setText(printable(text));
    m_button->setText(action);
    m_button->setVisible(!action.isEmpty());
    setVisible(!text.isEmpty());
}

QString NoticeBar::text() const
{
    return m_text->text();
}

} // namespace Zandrove
