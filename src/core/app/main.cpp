#include "core/app/Log.h"
#include "core/app/StartUp.h"
#include "core/common/License.h"
#include "platform/Terminal.h"
#include "support/LinkManager.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QIcon>
#include <QString>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/icons/app.png"_s));
    StartUp::setIdentity();
    StartUp::ensureFirewallRules();
    StartUp::registerMetaTypes();
    const QString language = StartUp::initTranslation();
    LinkManager::instance().setLanguage(language);
    if (const QString styleSheet = StartUp::styleSheet(); !styleSheet.isEmpty())
        qApp->setStyleSheet(styleSheet);
    const bool registered = License::ofThisCopy().isRegistered();
    qCDebug(logApp) << "[Main] Registered:" << registered;

    const auto window = std::make_unique<MainWindow>(nullptr);
    const Platform::InterruptNotifier interrupts;
    QObject::connect(&interrupts, &Platform::InterruptNotifier::interrupted, window.get(),
                     &MainWindow::endProgram);
    window->show();
    return QApplication::exec();
}
