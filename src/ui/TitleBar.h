#pragma once

#include "core/common/License.h"

#include <QPoint>
#include <QWidget>

class QActionGroup;
class QLabel;
class QMenu;
class QPushButton;

namespace Zandrove {

class WinButton;

/// What the frame of a system would supply: the product's name, dragging, the window buttons; beside them the
/// program's menu with the languages, and a button to activate an unregistered copy. Every action leaves by a
/// signal; only dragging moves the window itself.
class TitleBar final : public QWidget
{
    Q_OBJECT

public:
    /// `license` must outlive the bar.
    explicit TitleBar(QWidget *parent = nullptr, const License &license = License::ofThisCopy());

    /// The New PC needs no registration, so it is not offered the activate button.
    void setRole(bool isNewPC);
    /// Shows the window as maximized or not; the bar does not find out by itself.
    void setMaximized(bool maximized);
    /// Looks again whether this copy is registered.
    void refreshActivateButton();

Q_SIGNALS:
    void minimizeClicked();
    void maximizeClicked();
    void closeClicked();
    void settingsClicked(); ///< reserved; nothing emits it yet
    void activateClicked();
    void aboutClicked();
    void helpClicked();
    void supportClicked();
    void purchaseClicked();
    /// The user chose another language; it stands in the settings already and needs a restart.
    void languageChanged(const QString &langCode);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void showMenu();

private:
    void setupUi();
    void setupMenu();
    void setupLanguageMenu();
    void onLanguageChosen(const QString &code);

    const License &m_license;
    QLabel *m_logoLabel = nullptr;
    QLabel *m_nameLabel = nullptr;
    QLabel *m_versionLabel = nullptr;
    bool m_isNewPC = false;
    QPushButton *m_activateButton = nullptr;
    WinButton *m_menuButton = nullptr;
    WinButton *m_minimizeButton = nullptr;
    WinButton *m_maximizeButton = nullptr;
    WinButton *m_closeButton = nullptr;
    QMenu *m_menu = nullptr;
    QActionGroup *m_languageGroup = nullptr;
    QString m_currentLanguage;
    bool m_dragging = false;
    QPoint m_dragPosition;
    bool m_isMaximized = false;
};

} // namespace Zandrove
