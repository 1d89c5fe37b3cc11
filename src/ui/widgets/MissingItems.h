#pragma once

#include "core/common/RunSummary.h"

#include <QWidget>

class QLabel;
class QTreeView;

namespace Zandrove {

/// What did not arrive in a run, and why: the full disks first, then an item a line. The list can be copied,
/// and the report of the run saved.
class MissingItems final : public QWidget
{
    Q_OBJECT

public:
    explicit MissingItems(QWidget *parent = nullptr);

    void setSummary(const RunSummary &summary);

private:
    [[nodiscard]] QWidget *createButtons();
    void onCopyClicked();
    void onSaveClicked();

    RunSummary m_summary;
    QLabel *m_fullVolumes = nullptr;
    QTreeView *m_list = nullptr;
    QLabel *m_more = nullptr;
    QLabel *m_status = nullptr; ///< of copying and saving
};

} // namespace Zandrove
