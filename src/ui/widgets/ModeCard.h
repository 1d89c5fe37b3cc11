#pragma once

#include "ui/widgets/SelectableCard.h"

#include <QString>

class QLabel;

namespace Zandrove {

/// A big clickable choice with an icon, a title, a subtitle and a badge; 88 pixels high.
class ModeCard final : public SelectableCard
{
    Q_OBJECT

public:
    explicit ModeCard(QWidget *parent = nullptr);

    /// SVG files, shown at 28 x 28. A file that is no SVG leaves the tile as it is;
    /// an empty path does nothing.
    void setIcons(const QString &unselectedPath, const QString &selectedPath);
    void setTitle(const QString &title);
    void setSubtitle(const QString &subtitle);
    /// A small text at the right; `kind` "green" makes it green, any other grey. An empty text hides it.
    void setBadge(const QString &text, const QString &kind);

protected:
    void showSelected(bool selected) override;

private:
    void setupUi();
    void refreshAccessibleName();

    QString m_unselectedIcon;
    QString m_selectedIcon;
    QWidget *m_iconTile = nullptr;
    QLabel *m_iconLabel = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_subtitleLabel = nullptr;
    QLabel *m_badgeLabel = nullptr;
    QLabel *m_checkLabel = nullptr;
};

} // namespace Zandrove
