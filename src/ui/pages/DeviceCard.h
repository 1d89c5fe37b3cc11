#pragma once

#include "core/common/Records.h"
#include "ui/Theme.h"

#include <QList>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTimer;
class QVBoxLayout;

namespace Zandrove {

class PCListItem;
class RadarWidget;

/// The left card of the page of connections: the PCs in reach to pick one from, or the search for them, under
/// one line about what is going on. A search that finds nobody for 20 s says what to check.
class DeviceCard final : public QWidget
{
    Q_OBJECT

public:
    explicit DeviceCard(QWidget *parent = nullptr);

    void setPeer(const PCInfo &pc); ///< a new row, or that of its key
    void removePeer(quint64 key);
    void removeAll();
    [[nodiscard]] bool hasPeers() const { return !m_items.isEmpty(); }

    void showPeers();     ///< the rows; the search, where there are none
    void showSearch();    ///< the radar, and above it only what is under way or has failed
    void rest();          ///< the radar stands still, and nothing is about to be checked
    void showConnected(); ///< in place of the heading and the way to search anew
    /// The line above the rows, and above the search as well. Work and success stay there until something
    /// else is said; anything else gives way to the number of PCs as soon as that changes.
    void say(const QString &text, Theme::Status status);
    [[nodiscard]] bool tellsSuccess() const { return m_said == Theme::Status::Success; }
    /// Below the radar.
    void setCaption(const QString &text);
    /// Whether the two are to be joined by a cable, which changes what is to be checked.
    void setByCable(bool byCable);

Q_SIGNALS:
    void picked(const Zandrove::PCInfo &pc); ///< a row that is online
    void refreshClicked();
    void helpClicked(); ///< the user asks why nobody is found

private:
    /// What the card shows, by index of its stack.
    enum View : int { RadarView, ListView, DirectScanView };

    [[nodiscard]] QBoxLayout *createHeading();
    [[nodiscard]] QWidget *createRadarView();
    [[nodiscard]] QWidget *createListView();
    [[nodiscard]] PCListItem *itemOf(quint64 key) const;
    void addItem(const PCInfo &pc);
    void onItemClicked(PCListItem *clicked);
    void showCount();
    void showHints(bool shown);
    void setStatus(const QString &text, Theme::Status status);

    QLabel *m_title = nullptr;
    QLabel *m_status = nullptr;
    Theme::Status m_said = Theme::Status::Neutral;
    QPushButton *m_refresh = nullptr;
    QStackedWidget *m_views = nullptr;
    RadarWidget *m_radar = nullptr;
    QLabel *m_caption = nullptr;
    QWidget *m_hints = nullptr; ///< what to check
    QList<QLabel *> m_hintLines;
    QTimer *m_hintTimer; ///< runs while nobody is found
    bool m_byCable = false;
    QVBoxLayout *m_rows = nullptr;
    QList<PCListItem *> m_items;
    QPushButton *m_help = nullptr;
};

} // namespace Zandrove
