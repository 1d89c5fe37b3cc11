#include "ui/ProductDialogs.h"

#include "core/common/AppConfig.h"
#include "core/common/License.h"
#include "support/LinkManager.h"
#include "ui/Log.h"
#include "ui/MainWindow.h" // whose the texts are
#include "ui/Theme.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace Zandrove {

ProductDialogs::ProductDialogs(QWidget *window, License &license)
    : QObject(window)
    , m_window(window)
    , m_license(license)
{
}

void ProductDialogs::showAbout()
{
    const QString text = u"<h3>%1 - %2</h3><p>%3</p><p>%4</p><p>%5</p>"_s.arg(
        AppConfig::appName(), MainWindow::tr("PC Migration Tool"),
        MainWindow::tr("Version %1").arg(AppConfig::appVersion()),
        MainWindow::tr("Transfer files, apps, and settings between PCs easily."),
        MainWindow::tr("Copyright © %1. All rights reserved.").arg(AppConfig::userOrganisation()));
    QMessageBox about(QMessageBox::NoIcon, MainWindow::tr("About Zandrove"), text, QMessageBox::Ok, m_window);
    about.setTextFormat(Qt::RichText);
    about.setStyleSheet(Theme::messageBoxStyle());
    about.exec();
}

void ProductDialogs::openHelp()
{
    LinkManager::instance().openLink(u"support"_s, u"help"_s, m_window);
}

void ProductDialogs::openSupport()
{
    LinkManager::instance().openLink(u"support"_s, u"contact"_s, m_window);
}

void ProductDialogs::openPurchase()
{
    LinkManager::instance().openLink(u"purchase"_s, u"buy_now"_s, m_window);
}

bool ProductDialogs::registerCopy()
{
    const bool registered = m_license.registerCopy();
    if (!m_registration) {
        m_registration = new QMessageBox(m_window);
        m_registration->setWindowTitle(MainWindow::tr("Register"));
        m_registration->setTextFormat(Qt::PlainText);
        m_registration->setStyleSheet(Theme::messageBoxStyle());
    }
    m_registration->setIcon(registered ? QMessageBox::Information : QMessageBox::Warning);
    m_registration->setText(registered ? MainWindow::tr("This copy of Zandrove is registered.")
                                       : MainWindow::tr("This copy of Zandrove is not registered."));
    m_registration->exec();
    return registered;
}

void ProductDialogs::restartIn(const QString &language)
{
    qCDebug(logUi) << "[MainWindow] Language changed to:" << language;
    QMessageBox::information(
        m_window, MainWindow::tr("Language Changed"),
        MainWindow::tr("Language has been changed.\n\nThe application will restart now."));
    QProcess::startDetached(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
    // Not quit(), which asks the window: the other copy is on its way already.
    QCoreApplication::exit();
}

} // namespace Zandrove
