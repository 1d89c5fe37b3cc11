#include "ui/LinkWatch.h"

#include "core/engine/TransferEngine.h"
#include "support/RunTexts.h"
#include "ui/widgets/NoticeBar.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// A name may have any length; a sentence of this one only so much.
QString shortened(const QString &name)
{
    constexpr int MostCharacters = 40;
    return name.size() > MostCharacters ? name.first(MostCharacters) + u'…' : name;
}

} // namespace

LinkWatch::LinkWatch(TransferEngine *engine, NoticeBar *bar, QObject *parent)
    : QObject(parent)
    , m_engine(engine)
    , m_bar(bar)
{
    connect(m_engine, &TransferEngine::connected, this, &LinkWatch::onConnected);
    connect(m_engine, &TransferEngine::runEnded, this, &LinkWatch::onRunEnded);
    connect(m_engine, &TransferEngine::runRevised, this, &LinkWatch::onRunEnded);
    connect(m_engine, &TransferEngine::disconnected, this, &LinkWatch::onLinkGone);
    connect(m_engine, &TransferEngine::connectionFailed, this, [this] {
        if (!m_engine->isConnected())
            onLinkGone();
    });
    connect(m_engine, &TransferEngine::linkSilent, this, [this](int seconds) {
        const QString peer = m_engine->connectedPC().name;
        m_silentText = peer.isEmpty() ? tr("No answer from the other PC for %1 s").arg(seconds)
                                      : tr("No answer from %1 for %2 s").arg(shortened(peer)).arg(seconds);
        refresh();
    });
    connect(m_engine, &TransferEngine::linkAnswers, this, [this] {
        m_silentText.clear();
        refresh();
    });
    connect(m_bar, &NoticeBar::actionClicked, this, &LinkWatch::onActionClicked);
}

void LinkWatch::setPlace(Place place)
{
    m_place = place;
    if (m_place == Place::Elsewhere)
        m_lostText.clear();
    refresh();
}

void LinkWatch::onConnected()
{
    m_isUp = true;
    m_goneInRun = false;
    m_peerName = m_engine->connectedPC().name;
    m_silentText.clear();
    const bool wasLost = isLost();
    m_lostText.clear();
    refresh();
    if (wasLost)
        Q_EMIT regained();
}

void LinkWatch::onRunEnded(const RunSummary &summary)
{
    // Where another link stands by now, it is that one which the window is about.
    const bool isGone = std::exchange(m_goneInRun, false) || summary.end == RunEnd::LinkLost;
    if (!isGone || m_place == Place::Elsewhere || m_engine->hasAcceptedLink())
        return;
    m_endedRun = summary.total() > 0;
    const QString lost = tr("The connection to %1 is lost.").arg(shortened(summary.peerName));
    lose(m_endedRun ? lost + u' ' + arrivedFilesText(summary) + u'.' : lost);
}

/// Behind the end of the run, where there was one.
void LinkWatch::onLinkGone()
{
    m_silentText.clear();
    const bool wasUp = std::exchange(m_isUp, false);
    if (m_engine->isRunUnderWay()) {
        m_goneInRun = true; // it works off what has arrived, and says how it ended
        refresh();
        return;
    }
    // On the page of connections most ends are those of a dial; that of a link is news there, too.
    if (m_place == Place::Elsewhere || (m_place == Place::Connections && !wasUp) || isLost()) {
        refresh();
        return;
    }
    m_endedRun = false;
    lose(m_peerName.isEmpty() ? tr("The connection to the other PC is lost.")
                              : tr("The connection to %1 is lost.").arg(shortened(m_peerName)));
}

void LinkWatch::lose(const QString &text)
{
    const bool isNews = !isLost();
    m_silentText.clear();
    m_lostText = text;
    refresh();
    if (isNews)
        Q_EMIT lost();
}

void LinkWatch::onActionClicked()
{
    if (m_place == Place::Connections)
        Q_EMIT outcomeWanted();
    else
        Q_EMIT connectionsWanted();
}

void LinkWatch::refresh()
{
    if (m_place == Place::Elsewhere)
        m_bar->tell(QString());
    else if (!isLost())
        m_bar->tell(m_silentText);
    else if (m_place != Place::Connections)
        m_bar->tell(m_lostText, tr("Back to connections"));
    else
        m_bar->tell(m_lostText, m_endedRun ? tr("Show report") : QString());
}

} // namespace Zandrove
