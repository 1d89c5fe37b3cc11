#pragma once

#include "core/common/RunSummary.h"

#include <QObject>
#include <QString>

namespace Zandrove {

class NoticeBar;
class TransferEngine;

/// Watches whether the PC at the other end is still there, and says so in the window's notice bar: that it
/// does not answer, which goes away by itself, or that the connection is lost, with what has arrived by then
/// and a way on.
class LinkWatch final : public QObject
{
    Q_OBJECT

public:
    /// What the window shows, as far as it matters here.
    enum class Place {
        Elsewhere,   ///< no link is needed; one that was lost is forgotten
        Connections, ///< where two PCs are joined
        Work,        ///< needs a link
    };

    /// All of them outlive the watch.
    LinkWatch(TransferEngine *engine, NoticeBar *bar, QObject *parent);

    void setPlace(Place place);
    [[nodiscard]] bool isLost() const { return !m_lostText.isEmpty(); }

Q_SIGNALS:
    void lost();              ///< once for each link that goes at a place that needs it
    void regained();          ///< after `lost`, when two PCs are joined again
    void connectionsWanted(); ///< the user asks for the page of connections
    void outcomeWanted();     ///< the user asks what became of the run that the link ended

private:
    void onConnected();
    void onRunEnded(const RunSummary &summary);
    void onLinkGone();
    void onActionClicked();
    void lose(const QString &text);
    void refresh();

    TransferEngine *m_engine;
    NoticeBar *m_bar;
    Place m_place = Place::Elsewhere;
    QString m_peerName;
    QString m_silentText;
    QString m_lostText;
    bool m_endedRun = false;  ///< the link that was lost
    bool m_goneInRun = false; // the link has gone, and the run is still working off what came by it
    bool m_isUp = false;      // a link has come and has not gone
};

} // namespace Zandrove
