#include "ui/widgets/VerifyCodeWidget.h"

#include "ui/widgets/Labels.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int CodeLength = 4;
constexpr int Spacing = 12;
constexpr int Margin = 16;

QLabel *makeCodeLabel()
{
    auto *label = new QLabel(u"-"_s);
    label->setTextFormat(Qt::PlainText);
    label->setFixedSize(40, 48);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(u"QLabel { %1 color: %2; font-size: 24px; font-weight: %3; }"_s.arg(
        Theme::boxProperties(Theme::Colour::White, 8, Theme::Colour::Border), Theme::Colour::Primary,
        QString::number(Theme::Bold)));
    return label;
}

} // namespace

VerifyCodeWidget::VerifyCodeWidget(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"VerifyCodeWidget"_s);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(Theme::boxStyle("#VerifyCodeWidget"_L1, Theme::Colour::Panel, 12));

    auto *characters = new QHBoxLayout;
    characters->setSpacing(8);
    characters->addStretch();
    for (int i = 0; i < CodeLength; ++i) {
        m_codeLabels.append(makeCodeLabel());
        characters->addWidget(m_codeLabels.last());
    }
    characters->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addWidget(
        makeCentredLabel(tr("Verification Code"), 13, Theme::Colour::TextSecondary, Theme::Medium));
    layout->addLayout(characters);
    layout->addWidget(makeCentredLabel(tr("Enter on the other PC"), 11, Theme::Colour::TextFaint));
}

void VerifyCodeWidget::setCode(const QString &code)
{
    for (qsizetype i = 0; i < m_codeLabels.size(); ++i)
        m_codeLabels[i]->setText(i < code.size() ? QString(code[i]) : u"-"_s);
}

} // namespace Zandrove
