#include "ui/pages/CentredContent.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWidget>

namespace Zandrove {

QVBoxLayout *createCentredContent(QWidget *page, int maximumWidth)
{
    auto *content = new QWidget;
    content->setMaximumWidth(maximumWidth);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(40, 60, 40, 60);
    layout->setSpacing(0);

    auto *column = new QVBoxLayout;
    column->addStretch();
    column->addWidget(content);
    column->addStretch();
    auto *outer = new QHBoxLayout(page);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    outer->addStretch();
    outer->addLayout(column, 1);
    outer->addStretch();
    return layout;
}

void addGap(QBoxLayout *layout, int pixels)
{
    layout->addItem(new QSpacerItem(0, pixels, QSizePolicy::Minimum, QSizePolicy::Maximum));
}

} // namespace Zandrove
