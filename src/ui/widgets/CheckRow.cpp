#include "ui/widgets/CheckRow.h"

#include "ui/Theme.h"
#include "ui/widgets/KeyboardFocus.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>

namespace Zandrove {

CheckRow::CheckRow(int fixedHeight, QWidget *parent)
    : QWidget(parent)
    , m_layout(new QHBoxLayout(this))
    , m_checkBox(new QCheckBox)
{
    setFixedHeight(fixedHeight);
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);

    m_checkBox->setStyleSheet(Theme::checkBoxStyle());
    m_checkBox->setFocusPolicy(Qt::TabFocus);
    // A press on the box is a press on the row.
    m_checkBox->setAttribute(Qt::WA_TransparentForMouseEvents);
    KeyboardFocus::setArea(m_checkBox, this, 2);
    connect(m_checkBox, &QCheckBox::toggled, this, [this](bool checked) {
        Q_EMIT checkStateChanged(checked);
        update();
    });

    m_layout->setContentsMargins(12, 0, 16, 0);
    m_layout->setSpacing(12);
    m_layout->addWidget(m_checkBox);
}

bool CheckRow::isChecked() const
{
    return m_checkBox->isChecked();
}

void CheckRow::setChecked(bool checked)
{
    m_checkBox->setChecked(checked);
}

void CheckRow::setBoxName(const QString &name, const QString &description)
{
    m_checkBox->setAccessibleName(name);
    m_checkBox->setAccessibleDescription(description);
}

void CheckRow::setBoxEnabled(bool enabled)
{
    m_checkBox->setEnabled(enabled);
}

void CheckRow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        QWidget::mousePressEvent(event);
    else if (m_checkBox->isEnabled())
        m_checkBox->toggle();
}

void CheckRow::enterEvent(QEnterEvent *)
{
    m_hovered = true;
    update();
}

void CheckRow::leaveEvent(QEvent *)
{
    m_hovered = false;
    update();
}

void CheckRow::paintEvent(QPaintEvent *)
{
    using namespace Theme::Colour;
    QPainter painter(this);
    painter.fillRect(rect(), QColor(isChecked() ? BlueTintStrong : m_hovered ? Hover : White));
}

} // namespace Zandrove
