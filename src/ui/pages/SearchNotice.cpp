#include "ui/pages/SearchNotice.h"

#include "core/engine/TransferEngine.h"
#include "ui/pages/ConnectionPage.h" // whose the texts are
#include "ui/widgets/NoticeBar.h"

#include <QTimer>

#include <chrono>

using namespace std::chrono_literals;

namespace Zandrove {

namespace {

/// The engine tells of such a PC every 5 s.
constexpr auto RoleNoticeTime = 12s;

} // namespace

SearchNotice::SearchNotice(TransferEngine *engine, QWidget *page)
    : QObject(page)
    , m_engine(engine)
    , m_bar(new NoticeBar(page))
    , m_roleTimer(new QTimer(this))
{
    m_bar->setContentsMargins(0, 0, 0, 8);
    m_roleTimer->setSingleShot(true);
    m_roleTimer->setInterval(RoleNoticeTime);
    const auto forgetRole = [this] {
        m_roleText.clear();
        refresh();
    };
    connect(m_roleTimer, &QTimer::timeout, this, forgetRole);
    connect(m_bar, &NoticeBar::actionClicked, this, &SearchNotice::retryWanted);
    connect(m_engine, &TransferEngine::portTaken, this, &SearchNotice::onPortTaken);
    connect(m_engine, &TransferEngine::sameRolePeer, this, &SearchNotice::onSameRolePeer);
    connect(m_engine, &TransferEngine::pcDiscovered, this, forgetRole);
    connect(m_engine, &TransferEngine::connected, this, &SearchNotice::forget);
}

void SearchNotice::forget()
{
    m_portText.clear();
    m_roleText.clear();
    refresh();
}

void SearchNotice::onPortTaken(quint16 port, const QString &program)
{
    if (!m_portText.isEmpty()) // the port by which others connect is told first, and weighs more
        return;
    const QString taker =
        program.isEmpty() ? ConnectionPage::tr("another program, maybe a second Zandrove") : program;
    m_portText = (port == TcpPort
                      ? ConnectionPage::tr("Port %1 is taken by %2, so no other PC can connect to this one. "
                                           "Please close that program, then try again.")
                      : ConnectionPage::tr("Port %1 is taken by %2, so this PC does not hear other PCs. "
                                           "Please close that program, then try again."))
                     .arg(QString::number(port), taker);
    refresh();
}

/// Where a PC of the other role is there, one more of this role is nobody's trouble.
void SearchNotice::onSameRolePeer(const QString &pcName)
{
    if (!m_engine->discoveredPCs().isEmpty())
        return;
    const QString name = ConnectionPage::shownName(pcName, m_bar);
    m_roleText =
        m_engine->role() == OldPC
            ? ConnectionPage::tr("%1 is here too, but also as Old PC: choose New PC on one of the two")
                  .arg(name)
            : ConnectionPage::tr("%1 is here too, but also as New PC: choose Old PC on one of the two")
                  .arg(name);
    m_roleTimer->start();
    refresh();
}

void SearchNotice::refresh()
{
    if (!m_portText.isEmpty())
        m_bar->tell(m_portText, ConnectionPage::tr("Try again"));
    else
        m_bar->tell(m_roleText);
}

} // namespace Zandrove
