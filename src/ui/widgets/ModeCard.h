#pragma once

#include <QString>
#include <QWidget>

class QLabel;

namespace Zandrove {

/// A big clickable choice with an icon, a title, a subtitle and a badge; 88 pixels high. Selecting it is up
/// to its owner.
class ModeCard final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)

public:
    explicit ModeCard(QWidget *parent = nullptr);

    /// SVG files, shown at 28 x 28. A file that is no SVG leaves the tile as it is; an empty path does
    /// nothing.
    void setIcons(const QString &unselectedPath, const QString &selectedPath);
    void setTitle(const QString &title);
    void setSubtitle(const QString &subtitle);
    /// A small text at the right; `kind` "green" makes it green, any other grey. An empty text hides it.
    void setBadge(const QString &text, const QString &kind);

    [[nodiscard]] bool isSelected() const { return m_selected; }
    void setSelected(bool selected);

Q_SIGNALS:
    /// A press of the left button, Space or Enter.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setupUi();
    void refreshTile();
    void refreshAccessibleName();

    QString m_unselectedIcon;
    QString m_selectedIcon;
    QWidget *m_iconTile = nullptr;
    QLabel *m_iconLabel = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    QLabel *m_badgeLabel = nullptr;
    QLabel *m_checkLabel = nullptr;
    bool m_selected = false;
    bool m_hovered = false;
};

} // namespace Zandrove
