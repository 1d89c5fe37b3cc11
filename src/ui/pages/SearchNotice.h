#pragma once

#include <QObject>
#include <QString>

class QTimer;

namespace Zandrove {

class NoticeBar;
class TransferEngine;

/// Says on the page of connections what keeps this PC and another one from finding each other, as far as
/// discovery itself notices it: a port that another program has, or a PC that has this one's own role.
class SearchNotice final : public QObject
{
    Q_OBJECT

public:
    /// `page` owns this object and is to show bar().
    SearchNotice(TransferEngine *engine, QWidget *page);

    [[nodiscard]] NoticeBar *bar() const { return m_bar; }
    /// Before a new search, which tells anew what still holds.
    void forget();

Q_SIGNALS:
    void retryWanted();

private:
    void onPortTaken(quint16 port, const QString &program);
    void onSameRolePeer(const QString &pcName);
    void refresh();

    TransferEngine *m_engine;
    NoticeBar *m_bar;
    QString m_portText;
    QString m_roleText;
    QTimer *m_roleTimer; ///< since the other PC of this role was last heard
};

} // namespace Zandrove
