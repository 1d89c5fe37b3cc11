#pragma once

#include "core/common/RunSummary.h"
#include "ui/widgets/TransferFileItem.h"

#include <QHash>
#include <QList>
#include <QScrollArea>
#include <QString>
#include <QTimer>

class QVBoxLayout;

namespace Zandrove {

/// The files at work in a transfer, one row each, 180 pixels high: what runs now and the last ones. However
/// fast it is told, it shows the news some times a second, and scrolls to the newest row.
///
/// Files are known by their bare names, which may come again. A row of such a name is the one at work; one
/// that is through is not begun again. No row shows a file as arrived before `settle` said so of one.
class TransferFileList final : public QScrollArea
{
    Q_OBJECT

public:
    static constexpr int MaxRows = 30; ///< more only while all of them are unfinished

    explicit TransferFileList(QWidget *parent = nullptr);

    /// What a row says of a file that is through, but not settled.
    void setSentText(const QString &text) { m_sentText = text; }
    void clear();
    /// A further row that waits for its file.
    void add(const QString &name);
    void begin(const QString &name);
    /// Ignored for a name without a row at work.
    void advance(const QString &name, int percent);
    void markSent(const QString &name);
    void fail(const QString &name, const QString &reason);
    /// The outcome of an item, told by its absolute path. A failed one without a row gets one.
    void settle(const ItemResult &item);
    /// Nothing is at work any more.
    void stop();

private:
    struct Row
    {
        QString name;
        QString path; ///< once it is known
        TransferFileItem::Status status = TransferFileItem::Pending;
        int percent = 0;
        QString reason;
    };
    using Status = TransferFileItem::Status;

    [[nodiscard]] Row *find(const QString &name, std::initializer_list<Status> statuses);
    [[nodiscard]] Row *rowOf(const ItemResult &item, const QString &name);
    Row &append(const QString &name, Status status);
    void makeRoom();
    void changed();
    void refresh();
    void show(const Row &row, TransferFileItem &item) const;

    QList<Row> m_rows;
    QList<TransferFileItem *>
        m_items; ///< as many as there were rows at most; those behind the rows are hidden
    QHash<QString, int> m_leftUnsettled; ///< rows that made room before their files had an outcome, by name
    QString m_sentText;
    QVBoxLayout *m_layout = nullptr;
    QTimer m_refresh;
    bool m_scrolls = false; ///< to the newest row
};

} // namespace Zandrove
