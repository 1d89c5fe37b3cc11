#pragma once

#include "ui/Theme.h"

#include <QLabel>

namespace Zandrove {

/// A label of one line that shortens its text with an ellipsis where the line is too narrow, and then shows
/// the whole of it as a tool tip. The text is shown as it is, never as markup; line breaks in it become
/// blanks.
///
/// text() is the whole text.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);
    /// Size in pixels, colour and weight as in Theme::textStyle().
    ElidedLabel(const QString &text, int pixels, QLatin1StringView colour = Theme::Colour::Text,
                int weight = Theme::Regular, QWidget *parent = nullptr);

    /// Where an ellipsis goes; at the end by default, in the middle for paths.
    void setElideMode(Qt::TextElideMode mode);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString shownText() const;

    Qt::TextElideMode m_elideMode = Qt::ElideRight;
};

} // namespace Zandrove
