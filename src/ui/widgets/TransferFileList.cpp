#include "ui/widgets/TransferFileList.h"

#include "support/PrintableText.h"
#include "support/RunTexts.h"
#include "ui/Theme.h"
#include "ui/widgets/Labels.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr int ListHeight = 180;
constexpr auto RefreshInterval = 60ms;

TransferFileItem::Status statusOf(ItemOutcome outcome)
{
    switch (outcome) {
    case ItemOutcome::Arrived:
        return TransferFileItem::Success;
    case ItemOutcome::WasThere:
        return TransferFileItem::WasThere;
    case ItemOutcome::WasDifferent:
        return TransferFileItem::WasDifferent;
    case ItemOutcome::Failed:
    case ItemOutcome::NotConfirmed:
        return TransferFileItem::Failed;
    case ItemOutcome::Pending:
        break;
    }
    return TransferFileItem::Pending;
}

} // namespace

TransferFileList::TransferFileList(QWidget *parent)
    : QScrollArea(parent)
{
    auto *content = new QWidget;
    m_layout = new QVBoxLayout(content);
    m_layout->setContentsMargins(0, 0, 8, 0);
    m_layout->setSpacing(4);
    m_layout->addStretch();
    setFixedHeight(ListHeight);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(Theme::scrollAreaStyle());
    setWidget(content);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(RefreshInterval);
    m_refresh.callOnTimeout(this, &TransferFileList::refresh);
}

void TransferFileList::clear()
{
    m_rows.clear();
    m_leftUnsettled.clear();
    refresh();
}

void TransferFileList::add(const QString &name)
{
    append(name, Status::Pending);
}

void TransferFileList::begin(const QString &name)
{
    Row *row = find(name, {Status::Active, Status::Pending});
    if (!row) {
        makeRoom();
        row = &append(name, Status::Active);
    }
    row->status = Status::Active;
    row->percent = 0;
    m_scrolls = true;
    changed();
}

void TransferFileList::advance(const QString &name, int percent)
{
    if (Row *row = find(name, {Status::Active, Status::Pending})) {
        row->status = Status::Active;
        row->percent = percent;
        changed();
    }
}

void TransferFileList::markSent(const QString &name)
{
    if (Row *row = find(name, {Status::Active, Status::Pending})) {
        row->status = Status::Sent;
        changed();
    }
}

void TransferFileList::fail(const QString &name, const QString &reason)
{
    Row *row = find(name, {Status::Active, Status::Pending});
    if (!row) {
        // Its outcome may have been told before.
        if (find(name, {Status::Failed}))
            return;
        makeRoom();
        row = &append(name, Status::Failed);
    }
    row->status = Status::Failed;
    row->reason = reason;
    changed();
}

void TransferFileList::settle(const ItemResult &item)
{
    if (item.outcome == ItemOutcome::Pending)
        return;
    const QString name = rowName(item.kind, item.path);
    const bool madeRoom = m_leftUnsettled.contains(name);
    Row *row = rowOf(item, name);
    if (!row) {
        if (item.outcome == ItemOutcome::Arrived || (item.outcome != ItemOutcome::Failed && madeRoom))
            return;
        makeRoom();
        row = &append(name, statusOf(item.outcome));
    }
    row->status = statusOf(item.outcome);
    row->reason = item.reason;
    row->path = item.path;
    changed();
}

/// The row that is meant by an outcome. Outcomes come in the order in which the files left, so that the
/// oldest row of the name is it, unless that one has made room before.
TransferFileList::Row *TransferFileList::rowOf(const ItemResult &item, const QString &name)
{
    const auto first = [this, &name](std::initializer_list<Status> statuses) -> Row * {
        const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row &candidate) {
            return candidate.name == name && candidate.path.isEmpty() &&
                   std::find(statuses.begin(), statuses.end(), candidate.status) != statuses.end();
        });
        return row == m_rows.end() ? nullptr : &*row;
    };
    const auto known =
        std::find_if(m_rows.begin(), m_rows.end(), [&item](const Row &row) { return row.path == item.path; });
    if (known != m_rows.end())
        return &*known;
    if (Row *row = item.outcome == ItemOutcome::Failed ? first({Status::Failed}) : nullptr)
        return row;
    if (const auto left = m_leftUnsettled.find(name); left != m_leftUnsettled.end()) {
        if (--*left == 0)
            m_leftUnsettled.erase(left);
        return nullptr;
    }
    Row *sent = first({Status::Sent});
    return sent ? sent : first({Status::Active, Status::Pending});
}

void TransferFileList::stop()
{
    for (Row &row : m_rows) {
        if (row.status == Status::Active)
            row.status = Status::Pending;
    }
    changed();
}

TransferFileList::Row *TransferFileList::find(const QString &name, std::initializer_list<Status> statuses)
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row &candidate) {
        return candidate.name == name &&
               std::find(statuses.begin(), statuses.end(), candidate.status) != statuses.end();
    });
    return row == m_rows.end() ? nullptr : &*row;
}

TransferFileList::Row &TransferFileList::append(const QString &name, Status status)
{
    m_rows.append(Row{name, {}, status, 0, {}});
    changed();
    return m_rows.last();
}

/// For a new row, by the oldest of those that say least. Unfinished rows stay, however many there are.
void TransferFileList::makeRoom()
{
    while (m_rows.size() >= MaxRows) {
        auto oldest = m_rows.end();
        for (const Status status :
             {Status::Success, Status::WasThere, Status::Sent, Status::WasDifferent, Status::Failed}) {
            if (oldest == m_rows.end())
                oldest = std::find_if(m_rows.begin(), m_rows.end(),
                                      [status](const Row &row) { return row.status == status; });
        }
        if (oldest == m_rows.end())
            return;
        if (oldest->status == Status::Sent)
            ++m_leftUnsettled[oldest->name];
        m_rows.erase(oldest);
    }
}

void TransferFileList::changed()
{
    if (!m_refresh.isActive())
        m_refresh.start();
}

void TransferFileList::refresh()
{
    for (qsizetype index = 0; index < std::max(m_rows.size(), m_items.size()); ++index) {
        if (index == m_items.size()) {
            m_items.append(new TransferFileItem(widget()));
            m_layout->insertWidget(m_layout->count() - 1, m_items.last());
        }
        if (index < m_rows.size())
            show(m_rows.at(index), *m_items.at(index));
        m_items.at(index)->setVisible(index < m_rows.size());
    }
    if (std::exchange(m_scrolls, false)) {
        widget()->layout()->activate();
        widget()->adjustSize();
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    }
}

void TransferFileList::show(const Row &row, TransferFileItem &item) const
{
    const bool settled = !row.path.isEmpty() || row.status == Status::Failed;
    QString text = row.status == Status::Sent ? m_sentText : row.reason;
    if (settled && text.isEmpty()) {
        for (const ItemOutcome outcome :
             {ItemOutcome::Arrived, ItemOutcome::WasThere, ItemOutcome::WasDifferent, ItemOutcome::Failed}) {
            if (statusOf(outcome) == row.status)
                text = outcomeText(outcome);
        }
    }
    item.setFileName(row.name);
    item.setStatus(row.status);
    item.setProgress(row.percent);
    item.setSizeText(text);
    item.setToolTip(plainToolTip(printable(row.path) +
                                 (row.path.isEmpty() || text.isEmpty() ? u""_s : u"\n"_s) + printable(text)));
}

} // namespace Zandrove
