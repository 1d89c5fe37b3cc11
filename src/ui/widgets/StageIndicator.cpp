#include "ui/widgets/StageIndicator.h"

#include "ui/Theme.h"
#include "ui/widgets/Labels.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int CircleSide = 20;
constexpr int LineHeight = 2;

} // namespace

StageIndicator::StageIndicator(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const QStringList names = {tr("Prepare"), tr("Files"), tr("Apps"), tr("Settings"), tr("Verify")};
    for (qsizetype index = 0; index < names.size(); ++index)
        addStage(names[index], index == names.size() - 1);
}

void StageIndicator::addStage(const QString &name, bool isLast)
{
    auto *row = static_cast<QHBoxLayout *>(layout());
    Stage stage;
    stage.circle = new QWidget;
    stage.circle->setFixedSize(CircleSide, CircleSide);
    stage.circle->setAttribute(Qt::WA_StyledBackground);
    stage.circle->setStyleSheet(u"background: %1; border: 2px solid %2; border-radius: %3px;"_s.arg(
        Theme::Colour::White, Theme::Colour::BorderStrong, QString::number(CircleSide / 2)));
    stage.label = makeLabel(name, 13, Theme::Colour::TextFaint);

    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(stage.circle, 0, Qt::AlignHCenter);
    column->addWidget(stage.label, 0, Qt::AlignHCenter);
    row->addLayout(column);

    if (!isLast) {
        stage.line = new QWidget;
        stage.line->setFixedHeight(LineHeight);
        stage.line->setAttribute(Qt::WA_StyledBackground);
        stage.line->setStyleSheet(u"background: %1;"_s.arg(Theme::Colour::Border));
        // On the level of the circles' middle.
        auto *level = new QVBoxLayout;
        level->setContentsMargins(0, (CircleSide - LineHeight) / 2, 0, 0);
        level->addWidget(stage.line);
        level->addStretch();
        row->addLayout(level, 1);
    }
    m_stages.append(stage);
}

} // namespace Zandrove
