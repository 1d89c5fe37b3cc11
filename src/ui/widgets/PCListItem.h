#pragma once

#include "core/common/Records.h"
#include "ui/widgets/SelectableCard.h"

class QBoxLayout;
class QLabel;

namespace Zandrove {

class ElidedLabel;

/// The row of a PC that was found, 80 pixels high. It can be pressed while the PC is online.
class PCListItem final : public SelectableCard
{
    Q_OBJECT

public:
    explicit PCListItem(QWidget *parent = nullptr);

    void setPCInfo(const PCInfo &info);
    [[nodiscard]] const PCInfo &pcInfo() const { return m_info; }

protected:
    void showSelected(bool selected) override;

private:
    void setupUi();
    [[nodiscard]] QBoxLayout *createTexts();
    void showOnline(bool online);

    PCInfo m_info;
    QLabel *m_iconTile = nullptr;
    ElidedLabel *m_nameLabel = nullptr;
    ElidedLabel *m_detailsLabel = nullptr;
    QLabel *m_statusDot = nullptr;
    QLabel *m_checkLabel = nullptr;
};

} // namespace Zandrove
