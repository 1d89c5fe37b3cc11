#pragma once

#include <QObject>

class QMessageBox;
class QWidget;

namespace Zandrove {

class License;

/// What the window offers about the program itself, whichever page it shows: who made it, its pages on the
/// web, its registration, and another language. Every dialog is modal over the window.
class ProductDialogs final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it; the window also owns it.
    ProductDialogs(QWidget *window, License &license);

    void showAbout();
    /// The pages on the web open in the default browser; the user is told where they don't.
    void openHelp();
    void openSupport();
    void openPurchase();

    /// Tries to register this copy, and tells the user whether it is registered now.
    bool registerCopy();
    /// Tells the user that the language has changed to `language`, and starts the program anew.
    void restartIn(const QString &language);

private:
    QWidget *m_window;
    License &m_license;
    QMessageBox *m_registration = nullptr;
};

} // namespace Zandrove
