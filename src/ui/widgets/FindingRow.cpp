#include "ui/widgets/FindingRow.h"

#include "support/PrintableText.h"
#include "ui/widgets/Labels.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

struct Mark
{
    QString glyph;
    QLatin1StringView text;
    QLatin1StringView tint;
};

Mark markOf(Severity severity)
{
    switch (severity) {
    case Severity::Ok:
        return {u"✓"_s, Colour::SuccessText, Colour::SuccessSoftTint};
    case Severity::Hint:
        return {u"!"_s, Colour::AmberText, Colour::Amber};
    case Severity::Problem:
        break;
    }
    return {u"✗"_s, Colour::DangerText, Colour::DangerTint};
}

QString meaningOf(Severity severity)
{
    switch (severity) {
    case Severity::Ok:
        return FindingRow::tr("As it should be");
    case Severity::Hint:
        return FindingRow::tr("May matter");
    case Severity::Problem:
        break;
    }
    return FindingRow::tr("In the way");
}

QLabel *createMark(Severity severity)
{
    constexpr int Side = 22;
    const Mark mark = markOf(severity);
    QLabel *label = makeLabel(mark.glyph, 13, mark.text, Theme::Bold);
    label->setStyleSheet(label->styleSheet() + Theme::boxStyle("QLabel"_L1, mark.tint, Side / 2));
    label->setFixedSize(Side, Side);
    label->setAlignment(Qt::AlignCenter);
    label->setAccessibleName(meaningOf(severity));
    return label;
}

QLabel *createText(const QString &text, int pixels, QLatin1StringView colour)
{
    QLabel *label = makeLabel(printable(text), pixels, colour);
    label->setWordWrap(true);
    return label;
}

QPushButton *createButton(const QString &text)
{
    Theme::ButtonLook look;
    look.background = Colour::White;
    look.hover = Colour::Hover;
    look.text = Colour::TextSecondary;
    look.disabledText = Colour::TextFaint;
    look.border = Colour::Border;
    look.fontPixels = 12;
    look.padding = "5px 12px"_L1;
    look.radius = 6;
    auto *button = new QPushButton(text);
    button->setStyleSheet(Theme::buttonStyle(look));
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

} // namespace

FindingRow::FindingRow(const Finding &finding, bool canRun, QWidget *parent)
    : QWidget(parent)
    , m_finding(finding)
{
    setObjectName(u"FindingRow"_s);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(Theme::boxStyle("#FindingRow"_L1, Colour::White, 10));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(createText(finding.sentence, 13, Colour::Text));
    if (!finding.advice.isEmpty())
        texts->addWidget(createText(finding.advice, 12, Colour::TextMuted));
    if (!finding.command.isEmpty())
        texts->addLayout(createCommand(canRun));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 10, 12, 10);
    layout->setSpacing(12);
    layout->addWidget(createMark(finding.severity), 0, Qt::AlignTop);
    layout->addLayout(texts, 1);
}

/// The command in a box, and below it what can be done with it.
QBoxLayout *FindingRow::createCommand(bool canRun)
{
    QLabel *command = createText(m_finding.command, 12, Colour::SlateText);
    command->setStyleSheet(u"QLabel { %1 color: %2; padding: 6px 8px; font-size: 12px; "
                           u"font-family: \"Consolas\", \"DejaVu Sans Mono\", monospace; }"_s.arg(
                               Theme::boxProperties(Colour::Hover, 6), Colour::SlateText));
    command->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPushButton *copy = createButton(tr("Copy"));
    copy->setAccessibleDescription(m_finding.command);
    connect(copy, &QPushButton::clicked, this, [this, copy] {
        QGuiApplication::clipboard()->setText(m_finding.command);
        copy->setText(tr("Copied"));
    });
    m_outcome = makeLabel(QString(), 12);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(copy);
    if (canRun) {
        QPushButton *run = createButton(tr("Run as administrator"));
        connect(run, &QPushButton::clicked, this, [this] { Q_EMIT runWanted(m_finding.command); });
        buttons->addWidget(run);
    }
    buttons->addWidget(m_outcome, 1);
    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 4, 0, 0);
    column->setSpacing(6);
    column->addWidget(command);
    column->addLayout(buttons);
    return column;
}

void FindingRow::showOutcome(bool succeeded)
{
    if (!m_outcome)
        return;
    m_outcome->setStyleSheet(Theme::statusStyle(succeeded ? Theme::Status::Success : Theme::Status::Failure));
    m_outcome->setText(succeeded ? tr("Done. Please check again.") : tr("That did not work."));
}

} // namespace Zandrove
