// Renders the window in its notable states to PNG files: zandrove-gallery [--language XX] FOLDER
// [PART-OF-A-NAME]. Each state is reached through the window's own ways: its buttons, and what the engine
// would tell it. Texts that are cut off are named.

#include "SilentEngine.h"
#include "WizardView.h"

#include "core/app/StartUp.h"
#include "core/engine/TransferEngine.h"
#include "diagnosis/Diagnosis.h"
#include "inventory/SettingScanner.h"
#include "peer/NetworkManager.h"
#include "peer/Protocol.h"
#include "support/Utilities.h"
#include "ui/LinkWatch.h"
#include "ui/MainWindow.h"
#include "ui/TitleBar.h"
#include "ui/pages/ConnectionPage.h"
#include "ui/pages/ScanningPage.h"
#include "ui/pages/SelectionPage.h"
#include "ui/pages/TransferPage.h"
#include "ui/pages/WelcomePage.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/FileBrowserWidget.h"
#include "ui/widgets/RoleCard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTcpSocket>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace Zandrove;

namespace {

constexpr auto LookInterval = 20ms;
constexpr auto SettlingTime = 100ms;

PCInfo peer(const QString &name, const QString &ip, bool online = true)
{
    PCInfo pc;
    pc.id = name;
    pc.key = qHash(name);
    pc.name = name;
    pc.ip = ip;
    pc.os = u"Windows 11 Pro 23H2 (Build 22631)"_s;
    pc.online = online;
    return pc;
}

/// A window on a PC that hears and is heard by nobody.
struct Stage
{
    Stage()
        : engine(new TransferEngine(nullptr, silentEnvironment()))
        , window(nullptr, License::ofThisCopy(), engine)
        , view(&window)
    {
        window.show();
        window.activateWindow();
        settle();
    }

    /// Lets rows find their places.
    static void settle() { QCoreApplication::processEvents(); }

    void choose(int role)
    {
        view.click(MainWindow::tr("Next"));
        view.click(role == OldPC ? RoleCard::tr("Old PC") : RoleCard::tr("New PC"));
    }

    void connectTo(int role)
    {
        choose(role);
        view.click(MainWindow::tr("Next"));
    }

    void select()
    {
        connectTo(OldPC);
        // The scan of the PC at hand comes first, or it would take the place of the made-up one.
        QSignalSpy scanned(engine, &TransferEngine::scanCompleted);
        Q_EMIT engine->connected();
        scanned.wait();
        Q_EMIT engine->scanCompleted(scanResult());
        Q_EMIT window.findChild<ScanningPage *>()->scanFinished();
    }

    void transfer(int role)
    {
        if (role == NewPC) {
            connectTo(NewPC);
            Q_EMIT window.findChild<ConnectionPage *>()->requestAutoAdvance();
            return;
        }
        select();
        view.click(SelectionPage::tr("Select All Applications"));
        view.click(MainWindow::tr("Next"));
    }

    void transferSome(int role)
    {
        transfer(role);
        settle(); // without a link it has failed by now
        window.findChild<TransferPage *>()->resetForNewTransfer();
        const auto send = [this](const QString &name) {
            Q_EMIT engine->fileTransferStarted(name);
            Q_EMIT engine->fileTransferCompleted(name);
        };
        const auto tell = [this](const QString &name, ItemOutcome outcome, const QString &reason = {}) {
            Q_EMIT engine->itemSettled(
                {ItemKind::File, outcome, u"/home/anna/Pictures/"_s + name, reason, 1});
        };
        send(u"letter.odt"_s);
        tell(u"letter.odt"_s, ItemOutcome::Arrived);
        send(u"taxes.ods"_s);
        tell(u"taxes.ods"_s, ItemOutcome::WasDifferent);
        send(u"写真 2024.jpg"_s);
        tell(u"写真 2024.jpg"_s, ItemOutcome::WasThere);
        tell(u"locked.raw"_s, ItemOutcome::Failed,
             u"No access: the file belongs to another user, and what keeps it goes on for long"_s);
        send(u"Größe ä ö ü.txt"_s);
        Q_EMIT engine->fileTransferStarted(u"<b>holiday</b> in the mountains.mp4"_s);
        Q_EMIT engine->fileTransferProgress(u"<b>holiday</b> in the mountains.mp4"_s, 60);
        TransferProgress progress;
        progress.overallPercent = 42;
        progress.bytesPerSecond = 58.3 * 1024 * 1024;
        progress.remainingSeconds = 754;
        progress.transferredBytes = 34LL << 30;
        progress.totalBytes = 81LL << 30;
        progress.failedItems = 1;
        Q_EMIT engine->transferProgressChanged(progress);
    }

    void finish(int role, const RunSummary &summary)
    {
        transferSome(role);
        if (summary.end == RunEnd::Complete)
            Q_EMIT engine->transferCompleted({});
        Q_EMIT engine->runEnded(summary);
        if (summary.end == RunEnd::LinkLost)
            Q_EMIT engine->disconnected();
    }

    /// Finds a PC whose user does not answer, and picks it.
    void dialSilentPeer(int role)
    {
        LinkEnvironment environment = silentEnvironment();
        environment.sendDatagram = [this](const QByteArray &datagram, const QHostAddress &, quint16) {
            announcement = datagram;
        };
        silentPeer = std::make_unique<TransferEngine>(nullptr, environment);
        silentPeer->setRole(role == OldPC ? NewPC : OldPC);
        silentPeer->startDiscovery();
        engine->findChild<NetworkManager *>()->handleDatagram(announcement, QHostAddress(u"127.0.0.2"_s));
        settle();
        view.click(getComputerName());
    }

    /// A PC that asks to be let in.
    void beAskedBy(const QByteArray &name)
    {
        asker.connectToHost(QHostAddress::LocalHost, engine->findChild<NetworkManager *>()->serverPort());
        asker.write(
            Protocol::buildFrame(Protocol::MessageType::ConnectRequest, "{\"name\":\"" + name + "\"}", 1));
        QSignalSpy(engine, &TransferEngine::connectionRequested).wait();
    }

    /// The panel with findings that are nobody's.
    void diagnose(bool finds)
    {
        view.click(ConnectionPage::tr("Can't find the other PC?"));
        auto *diagnosis = window.findChild<Diagnosis *>();
        diagnosis->cancel();
        Q_EMIT diagnosis->finding(
            {u"adapter"_s,
             u"eth0"_s,
             Severity::Ok,
             u"eth0 (wired) has the address 192.168.1.23, and broadcasts leave by it."_s,
             {},
             {}});
        if (finds) {
            Q_EMIT diagnosis->finding(
                {u"vpn"_s,
                 u"tun0"_s,
                 Severity::Hint,
                 u"The VPN tun0 takes what is not for a local network."_s,
                 u"Disconnect it if the PCs don't find each other: many a VPN keeps its "
                 "PC away from the local network."_s,
                 {}});
            Q_EMIT diagnosis->finding({u"firewall"_s, u"ufw"_s, Severity::Problem,
                                       u"ufw is on, and keeps out TCP port 52024 and UDP port 52025."_s,
                                       u"Have it let both ports in."_s,
                                       u"sudo ufw allow 52024/tcp && sudo ufw allow 52025/udp"_s});
        }
        Q_EMIT diagnosis->finished(finds ? 1 : 0);
    }

    static ScanResult scanResult();

    bool isChanging = false; ///< the dialog that stands there is not ready
    QTcpSocket asker;
    QByteArray announcement; ///< the last one of the silent peer
    std::unique_ptr<TransferEngine> silentPeer;
    TransferEngine *engine;
    MainWindow window;
    WizardView view;
};

ScanResult Stage::scanResult()
{
    ScanResult result;
    const auto addApp = [&result](const QString &name, const QString &version, qint64 size,
                                  bool canTransfer) {
        AppInfo app;
        app.name = name;
        app.version = version;
        app.size = size;
        app.canTransfer = canTransfer;
        result.apps.append(app);
    };
    addApp(u"Photo Workshop"_s, u"12.4.1"_s, 3LL << 30, true);
    addApp(u"Office Suite Professional"_s, u"24.2"_s, 2LL << 30, true);
    addApp(u"System Runtime"_s, u"6.0.1"_s, 180LL << 20, false);
    addApp(u"An application whose maker could not stop writing its name before the row was full of it"_s,
           u"1.0.0.0-beta.17"_s, 90LL << 20, true);
    for (int index = 1; index <= 8; ++index)
        addApp(u"Little Helper %1"_s.arg(index), u"%1.0"_s.arg(index), qint64(index) << 20, true);
    for (const char *name : {"anna", "bruno"}) {
        AccountInfo account;
        account.userName = QString::fromUtf8(name);
        account.accountType = u"Local User"_s;
        result.accounts.append(account);
    }
    for (const char *name : {"Desktop Wallpaper", "Mouse Settings", "Keyboard Settings", "Power Settings"}) {
        SettingInfo setting;
        setting.id = QString::fromUtf8(name);
        setting.name = SettingScanner::tr(name);
        result.settings.append(setting);
    }
    return result;
}

RunSummary goodSummary(RunEnd end = RunEnd::Complete)
{
    RunSummary summary;
    summary.end = end;
    summary.ownName = u"ANNAS-LAPTOP"_s;
    summary.peerName = u"NEWBOX"_s;
    summary.startTime = QDateTime(QDate(2026, 11, 20), QTime(14, 12));
    summary.endTime = summary.startTime.addSecs(4000);
    summary.files.arrived = 1834;
    summary.apps.arrived = 12;
    summary.settings.arrived = 7;
    return summary;
}

RunSummary summaryWithFailures(int role, RunEnd end = RunEnd::Complete)
{
    RunSummary summary = goodSummary(end);
    summary.role = role;
    summary.files = {1834, 21, 2, 1204, 3, 0};
    summary.apps.failed = 1;
    summary.fullVolumes = {{u"D:"_s, u"NEWBOX"_s, 1204, 3100LL << 20}};
    for (int index = 1; index <= 1207; ++index)
        summary.notArrived.append({ItemKind::File, ItemOutcome::Failed,
                                   u"C:/Users/anna/Pictures/Holiday in the mountains/IMG %1.jpg"_s.arg(index),
                                   u"no space left"_s, 1});
    summary.notArrived.append({ItemKind::Application, ItemOutcome::Failed, u"Photo Workshop"_s,
                               u"can't be written: photo.dll"_s, 0});
    summary.different = {{ItemKind::File, ItemOutcome::WasDifferent, u"C:/Users/anna/taxes.ods"_s, {}, 1}};
    return summary;
}

RunSummary summaryWithFolders()
{
    RunSummary summary = goodSummary();
    const auto addFolder = [&summary](const QString &name, const QString &path, int count,
                                      const QString &sample) {
        summary.savedFolderPaths[name] = path;
        summary.savedFolderCounts[name] = count;
        summary.savedFolderSamples[name] = sample;
    };
    addFolder(u"Documents"_s, u"C:/Users/anna/Documents"_s, 1204,
              u"(letter.odt, taxes.ods, notes.txt, ...)"_s);
    addFolder(u"Pictures"_s, u"C:/Users/anna/Pictures"_s, 611, u"(写真 2024.jpg, Größe.png)"_s);
    addFolder(u"<b>Projects</b>"_s,
              u"C:/Users/anna/Downloads/Zandrove/a folder that lies deep down/and deeper still/in a tree of "
              "folders/that goes on and on/Projects"_s,
              19, QString());
    return summary;
}

struct Scene
{
    QString name;
    std::function<void(Stage &)> arrange;
};

void listPeers(Stage &stage)
{
    Q_EMIT stage.engine->pcDiscovered(peer(u"ANNAS-LAPTOP"_s, u"192.168.1.23"_s));
    Q_EMIT stage.engine->pcDiscovered(
        peer(u"<img src='x'> a name far too long for the list that it stands in"_s, u"192.168.1.40"_s));
    Q_EMIT stage.engine->pcDiscovered(peer(u"OFFICE-PC"_s, u"192.168.1.7"_s, false));
}

void showTab(Stage &stage, int index)
{
    stage.select();
    stage.window.findChild<QTabWidget *>()->setCurrentIndex(index);
}

/// A picture of what `then` makes of the page that `before` leads to.
template <typename Before, typename Then>
Scene scene(const QString &name, Before before, Then then)
{
    return {name, [before, then](Stage &stage) {
                before(stage);
                then(stage);
            }};
}

const auto Nothing = [](Stage &) {};

/// Pages that look the same on both PCs but for their roles.
QList<Scene> connectionScenes(int role)
{
    const auto connection = [role](const QString &state, auto then) {
        const QString name = u"2-connection-%1-%2"_s.arg(role == OldPC ? u"old"_s : u"new"_s, state);
        return scene(
            name, [role](Stage &stage) { stage.connectTo(role); }, then);
    };
    return {
        connection(u"empty"_s, Nothing),
        connection(u"listing"_s, listPeers),
        connection(u"connecting"_s, [role](Stage &stage) { stage.dialSilentPeer(role); }),
        connection(u"failed"_s,
                   [](Stage &stage) {
                       listPeers(stage);
                       Q_EMIT stage.engine->connectionFailed(NetworkManager::tr("Connection rejected"));
                   }),
        connection(u"direct-scan"_s,
                   [](Stage &stage) {
                       Q_EMIT stage.engine->directScanStarted();
                       Q_EMIT stage.engine->directScanProgress(96, 254);
                   }),
        connection(u"port-taken"_s,
                   [](Stage &stage) { Q_EMIT stage.engine->portTaken(TcpPort, u"Acme Backup Service"_s); }),
        connection(u"same-role"_s, [](Stage &stage) { Q_EMIT stage.engine->sameRolePeer(u"OLDBOX"_s); }),
        connection(u"diagnosis"_s, [](Stage &stage) { stage.diagnose(true); }),
        connection(u"diagnosis-clear"_s, [](Stage &stage) { stage.diagnose(false); }),
        connection(u"nobody"_s,
                   [](Stage &stage) { stage.window.findChild<QTimer *>(u"hintTimer"_s)->start(0ms); }),
        connection(u"address"_s,
                   [](Stage &stage) {
                       stage.view.click(ConnectionPage::tr("Enter an address instead"));
                       stage.view.type(u"192.168.1"_s);
                       stage.view.press(Qt::Key_Return);
                   }),
        connection(u"question-deaf"_s, [](Stage &stage) { stage.beAskedBy("<b>ANNAS-LAPTOP</b>"); }),
        connection(u"question"_s,
                   [](Stage &stage) {
                       stage.beAskedBy("<b>ANNAS-LAPTOP</b>");
                       stage.isChanging = true;
                       (void)QTest::qWaitFor([&stage] {
                           const QWidget *yes = stage.view.control(QMessageBox::tr("Yes"));
                           return yes && yes->isEnabled();
                       });
                       stage.isChanging = false;
                   }),
    };
}

QList<Scene> transferScenes(int role)
{
    const QString pc = role == OldPC ? u"old"_s : u"new"_s;
    const auto running = [role, pc](const QString &state, auto then) {
        return scene(
            u"5-transfer-%1-%2"_s.arg(pc, state), [role](Stage &stage) { stage.transferSome(role); }, then);
    };
    return {
        {u"5-transfer-%1-begin"_s.arg(pc),
         [role](Stage &stage) {
             stage.transfer(role);
             stage.settle(); // without a link it has failed by now
             if (role == OldPC)
                 Q_EMIT stage.engine->transferProgressChanged({});
         }},
        running(u"running"_s, Nothing),
        running(u"paused"_s, [](Stage &stage) { Q_EMIT stage.engine->pausedByPeer(); }),
        running(u"failed"_s,
                [](Stage &stage) {
                    Q_EMIT stage.engine->transferFailed(
                        TransferEngine::tr("Cannot start transfer. Check connection and selection."));
                }),
        running(u"silent"_s, [](Stage &stage) { Q_EMIT stage.engine->linkSilent(20); }),
        running(u"installing"_s,
                [role](Stage &stage) {
                    if (role == NewPC)
                        Q_EMIT stage.engine->spaceShort(81LL << 30, 3LL << 30, u"D:"_s);
                    Q_EMIT stage.engine->installing(u"Acme Writer"_s, 40);
                }),
        {u"5-transfer-%1-link-lost"_s.arg(pc),
         [role](Stage &stage) { stage.finish(role, summaryWithFailures(role, RunEnd::LinkLost)); }},
        running(u"close-question"_s,
                [](Stage &stage) {
                    stage.settle();
                    stage.window.close();
                }),
        {u"6-complete-%1-failures"_s.arg(pc),
         [role](Stage &stage) { stage.finish(role, summaryWithFailures(role)); }},
        {u"6-complete-%1-link-lost"_s.arg(pc),
         [role](Stage &stage) {
             stage.finish(role, summaryWithFailures(role, RunEnd::LinkLost));
             stage.settle();
             stage.view.click(LinkWatch::tr("Back to connections"));
             stage.view.click(LinkWatch::tr("Show report"));
         }},
        running(u"cancel-question"_s, [](Stage &stage) { stage.view.click(TransferPage::tr("Cancel")); }),
        running(u"cancelled-by-peer"_s, [](Stage &stage) { Q_EMIT stage.engine->peerCancelled(); }),
    };
}

QList<Scene> scenes()
{
    const auto scan = [](Stage &stage) {
        stage.connectTo(OldPC);
        Q_EMIT stage.engine->connected();
    };
    const auto select = [](Stage &stage) { stage.select(); };
    QList<Scene> scenes = {
        {u"0-welcome-network"_s, Nothing},
        {u"0-welcome-cable"_s, [](Stage &stage) { stage.view.click(WelcomePage::tr("Cable Mode")); }},
        {u"0-welcome-menu"_s, [](Stage &stage) { stage.view.click(TitleBar::tr("Menu")); }},
        {u"0-welcome-keyboard"_s, [](Stage &stage) { stage.view.press(Qt::Key_Tab); }},
        {u"1-role-none"_s, [](Stage &stage) { stage.view.click(MainWindow::tr("Next")); }},
        {u"1-role-old"_s, [](Stage &stage) { stage.choose(OldPC); }},
        {u"1-role-new"_s, [](Stage &stage) { stage.choose(NewPC); }},
        {u"3-scanning-begin"_s, scan},
        scene(u"3-scanning-running"_s, scan,
              [](Stage &stage) { Q_EMIT stage.engine->scanProgress(64, u"Photo Workshop"_s, 23, 0, 2); }),
        scene(u"3-scanning-done"_s, scan,
              [](Stage &stage) { Q_EMIT stage.engine->scanCompleted(Stage::scanResult()); }),
        {u"4-selection-apps"_s, select},
        scene(u"4-selection-apps-ticked"_s, select,
              [](Stage &stage) { stage.view.click(u"Photo Workshop"_s); }),
        scene(
            u"4-selection-files"_s, [](Stage &stage) { showTab(stage, 1); },
            [](Stage &stage) { stage.view.clickListEntry(FileBrowserWidget::tr("My Documents")); }),
        {u"4-selection-settings"_s, [](Stage &stage) { showTab(stage, 2); }},
        scene(u"4-selection-link-lost"_s, select,
              [](Stage &stage) {
                  stage.view.click(u"Photo Workshop"_s);
                  Q_EMIT stage.engine->disconnected();
              }),
        scene(u"4-selection-empty"_s, select, [](Stage &stage) { Q_EMIT stage.engine->scanCompleted({}); }),
        {u"6-complete-old"_s, [](Stage &stage) { stage.finish(OldPC, goodSummary()); }},
        {u"6-complete-new-folders"_s, [](Stage &stage) { stage.finish(NewPC, summaryWithFolders()); }},
        {u"6-complete-new-no-folders"_s, [](Stage &stage) { stage.finish(NewPC, goodSummary()); }},
    };
    for (int role : {OldPC, NewPC})
        scenes += connectionScenes(role) + transferScenes(role);
    return scenes;
}

/// Texts of visible labels and buttons below `window` that have less room than they need.
QStringList cutTexts(const QWidget *window)
{
    QStringList result;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        if (button && widget->width() < widget->sizeHint().width())
            result.append(button->text());
        else if (label && !qobject_cast<const ElidedLabel *>(widget) &&
                 (label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                                    : label->width() < label->sizeHint().width()))
            result.append(label->text());
    }
    return result;
}

/// Makes the picture once the scene stands, or a dialog or menu of it stands open, and all
/// that is queued has arrived.
bool render(const Scene &scene, const QString &file)
{
    Stage stage;
    bool arranged = false;
    bool saved = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &stage.window, [&] {
        if (!arranged && (stage.isChanging || stage.view.front() == &stage.window))
            return;
        look.stop();
        QTimer::singleShot(SettlingTime, &stage.window, [&] {
            saved = stage.view.picture().save(file);
            for (const QString &text : cutTexts(stage.view.front()))
                QTextStream(stderr) << scene.name << ": cut off: " << text << Qt::endl;
            QApplication::exit();
        });
    });
    QTimer::singleShot(0, &stage.window, [&] {
        scene.arrange(stage);
        arranged = true;
    });
    look.start(LookInterval);
    QApplication::exec();
    return saved;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    StartUp::setIdentity();
    StartUp::registerMetaTypes();
    application.setStyleSheet(StartUp::styleSheet());
    application.setQuitOnLastWindowClosed(false);

    QCommandLineParser arguments;
    arguments.addOption({u"language"_s, u"The language of the window."_s, u"XX"_s, u"en"_s});
    arguments.process(application);
    const QString language = arguments.value(u"language"_s);
    if (!StartUp::installTranslation(QApplication::applicationDirPath(), language) && language != "en"_L1) {
        QTextStream(stderr) << "zandrove-gallery: there is no translation " << language << Qt::endl;
        return 1;
    }

    const QDir folder(arguments.positionalArguments().value(0));
    const QString only = arguments.positionalArguments().value(1);
    int failures = 0;
    for (const Scene &one : scenes()) {
        if (!one.name.contains(only))
            continue;
        const QString file = folder.filePath(one.name + u".png"_s);
        if (!render(one, file)) {
            QTextStream(stderr) << "zandrove-gallery: cannot write " << file << Qt::endl;
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
