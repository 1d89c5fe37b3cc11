#include "SilentEngine.h"
#include "TestMain.h"
#include "WizardView.h"

#include "core/common/AppConfig.h"
#include "core/common/License.h"
#include "ui/MainWindow.h"
#include "ui/TitleBar.h"
#include "ui/pages/CompletePage.h"
#include "ui/pages/ConnectionPage.h"
#include "ui/pages/TransferPage.h"
#include "ui/widgets/RoleCard.h"
#include "ui/widgets/SettingListItem.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QMouseEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Step = std::function<void()>;

/// The window's own frame, and the wizard in it: which page follows which, and what can be pressed there.
class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_settings.clear();
        makeWindow(License::ofThisCopy());
    }

    void cleanup() { m_window.reset(); }

    void resourcesAreThere()
    {
        for (const QString &icon : QDir(u":/icons"_s).entryList({u"*.svg"_s}))
            QVERIFY2(QSvgRenderer(u":/icons/"_s + icon).isValid(), qPrintable(icon));
        QVERIFY(QFile::exists(u":/styles/style.qss"_s) && !m_window->windowIcon().pixmap(32).isNull());
    }

    void titleBarMovesAndMaximizesByTheLeftButton()
    {
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
            const QPoint before = m_window->pos();
            const auto send = [&](QEvent::Type type, const QPoint &moved, Qt::MouseButton changed) {
                const QPointF grip(200.0, 20.0);
                QMouseEvent event(type, grip, before + grip + moved, changed, button, Qt::NoModifier);
                QCoreApplication::sendEvent(&the<TitleBar>(), &event);
            };
            send(QEvent::MouseButtonPress, {}, button);
            send(QEvent::MouseMove, QPoint(30, 20), Qt::NoButton);
            send(QEvent::MouseButtonRelease, QPoint(30, 20), button);
            send(QEvent::MouseMove, QPoint(90, 90), Qt::NoButton);
            QCOMPARE(m_window->pos() - before, button == Qt::LeftButton ? QPoint(30, 20) : QPoint());
            send(QEvent::MouseButtonDblClick, {}, button);
            QCOMPARE(m_window->isMaximized(), button == Qt::LeftButton);
        }
        QVERIFY(view().click(u"Restore"_s) && !m_window->isMaximized());
        QVERIFY(view().click(u"Maximize"_s) && m_window->isMaximized());
    }

    void otherLanguageIsKeptAndTold()
    {
        const TitleBar bar;
        const QSignalSpy told(&bar, &TitleBar::languageChanged);
        const QList<QAction *> languages = bar.findChild<QActionGroup *>()->actions();
        QVERIFY(languages[0]->isChecked());
        languages[0]->trigger();
        QVERIFY(told.isEmpty() && !m_settings.contains("language"_L1));
        languages[3]->trigger();
        QCOMPARE(told, (QList<QVariantList>{{u"de"_s}}));
        QVERIFY(TitleBar().findChild<QActionGroup *>()->actions()[3]->isChecked());
    }

    void choicesGoToTheEngine()
    {
        const QSignalSpy changes(m_engine, &TransferEngine::stateChanged);
        for (const int changed : {1, 1}) {
            QVERIFY(view().click(u"Cable Mode"_s));
            QCOMPARE(changes.size(), changed);
        }
        const QList<RoleCard *> roles = m_window->findChildren<RoleCard *>();
        for (const int role : {NewPC, NewPC, OldPC}) {
            QTest::mouseClick(roles[role], Qt::LeftButton);
            QCOMPARE(m_engine->role(), role);
            QVERIFY(roles[role]->isSelected() && !roles[1 - role]->isSelected());
        }
    }

    /// Qt drops without a word what stands beside a rule or within another.
    void styleSheetsAreLists()
    {
        static const QRegularExpression List(u"^(\\s*[^{}]+\\{[^{}]*\\})*\\s*$"_s);
        for (const QWidget *widget : m_window->findChildren<QWidget *>()) {
            const QString sheet = widget->styleSheet();
            QVERIFY2(!sheet.contains(u'{') || List.match(sheet).hasMatch(), qPrintable(sheet));
        }
    }

    void signalsMoveTheWizard_data()
    {
        addColumns<int, int, int, Step>("role", "from", "to", "step");
        const auto row = [](const char *name, int role, int from, int to, const Step &step) {
            QTest::newRow(name) << role << from << to << step;
        };
        const Step completed = [this] { Q_EMIT m_engine->transferCompleted({}); };
        const Step connected = [this] { Q_EMIT m_engine->connected(); };
        const Step autoAdvance = [this] { Q_EMIT the<ConnectionPage>().requestAutoAdvance(); };
        const Step localCancel = [this] { Q_EMIT the<TransferPage>().transferCancelled(); };
        const Step peerCancel = [this] { Q_EMIT m_engine->peerCancelled(); };
        const Step sessionEnd = [this] { Q_EMIT m_engine->sessionEndReceived(); };
        const Step reset = [this] { Q_EMIT m_engine->transferReset(); };
        const Step newTransfer = [this] { Q_EMIT m_engine->newTransferStarted(); };
        const Step sendMore = [this] { Q_EMIT the<CompletePage>().backToSelectionRequested(); };
        const Step finish = [this] { Q_EMIT the<CompletePage>().sessionEndRequested(); };
        const Step endedThere = [this] {
            RunSummary ended;
            ended.end = RunEnd::Reset;
            ended.peerName = u"NEWBOX"_s;
            Q_EMIT m_engine->runEnded(ended);
            QCoreApplication::processEvents();
            QVERIFY(view().texts().contains(u"Transfer ended by NEWBOX"_s) && !view().control(u"Pause"_s));
            view().click(u"Back to selection"_s);
        };

        row("welcome", OldPC, 0, 0, [] {});
        row("connected", OldPC, 2, 3, connected);
        row("connected, New PC", NewPC, 2, 2, connected);
        row("auto-advance", NewPC, 2, 5, autoAdvance);
        row("auto-advance, Old PC", OldPC, 2, 2, autoAdvance);
        row("local cancel", OldPC, 5, 4, localCancel);
        row("local cancel, New PC", NewPC, 5, 5, localCancel);
        row("peer cancels", OldPC, 3, 4, peerCancel);
        row("peer cancels, New PC", NewPC, 5, 5, peerCancel);
        row("session end", OldPC, 4, 1, sessionEnd);
        row("session end behind the last file", NewPC, 5, 1, [=] { completed(), sessionEnd(); });
        row("session end behind a cancel", OldPC, 5, 1, [=] { peerCancel(), sessionEnd(); });
        row("reset", NewPC, 6, 5, reset);
        row("reset, Old PC", OldPC, 6, 6, reset);
        row("new transfer", NewPC, 6, 5, newTransfer);
        row("new transfer, Old PC", OldPC, 6, 6, newTransfer);
        row("send more", OldPC, 6, 4, sendMore);
        row("finished", OldPC, 6, 1, finish);
        row("ended by the other PC", OldPC, 5, 4, endedThere);
    }

    void signalsMoveTheWizard()
    {
        QFETCH(int, role);
        QFETCH(int, from);
        QFETCH(Step, step);
        offerOneSetting();
        walkTo(from, role);
        QCOMPARE(view().page(), from);
        static const QStringList Navigation = {
            u"(Back) Next"_s, u"Back (Next)"_s, u"Back (Next)"_s, {}, u"Back (Next)"_s, {}, {}};
        QStringList navigation;
        for (const QString &name : {u"Back"_s, u"Next"_s, u"Finish"_s}) {
            if (const QWidget *button = view().control(name))
                navigation.append(button->isEnabled() ? name : u'(' + name + u')');
        }
        QCOMPARE(navigation.join(u' '), Navigation.at(from));
        step();
        QCoreApplication::processEvents(); // what the pages hear queued arrives after the window has gone
        QTEST(view().page(), "to");
    }

    void backFromSelectionScansAnew()
    {
        const QSignalSpy scans(m_engine, &TransferEngine::scanStarted);
        walkTo(MainWindow::PageSelection, OldPC);
        view().click(u"Back"_s);
        QCOMPARE(view().page(), int(MainWindow::PageScanning));
        QTRY_COMPARE(scans.count(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(view().page(), int(MainWindow::PageSelection), 20'000);
    }

    void lostLinkKeepsTheSelection()
    {
        RunSummary lost;
        lost.end = RunEnd::LinkLost;
        lost.peerName = u"NEWBOX"_s;
        lost.files = {12, 0, 0, 1, 27, 0};
        const QString line =
            u"The connection to NEWBOX is lost. 12 of 40 files arrived; nothing was deleted on the Old PC."_s;
        for (const int role : {OldPC, NewPC}) {
            makeWindow(License::ofThisCopy());
            offerOneSetting();
            walkTo(MainWindow::PageTransfer, role);
            const QSignalSpy searches(m_engine, &TransferEngine::discoveryStarted);
            Q_EMIT m_engine->runEnded(lost);
            Q_EMIT m_engine->disconnected();
            QCoreApplication::processEvents();
            QVERIFY(view().texts().contains(line));
            QVERIFY(!searches.isEmpty());
            if (role == OldPC)
                QVERIFY(!view().control(u"Pause"_s) && view().click(u"Back to connections"_s));
            QCOMPARE(view().page(), int(MainWindow::PageConnection));
            Q_EMIT m_engine->connected();
            QTRY_COMPARE(view().page(),
                         int(role == OldPC ? MainWindow::PageSelection : MainWindow::PageTransfer));
            QVERIFY(!view().texts().contains(line));
            if (role == OldPC)
                QVERIFY(the<SettingListItem>().isChecked() && view().control(u"Next"_s)->isEnabled());
        }
    }

    void closingAsksInARun()
    {
        walkTo(MainWindow::PageTransfer, NewPC);
        m_engine->startReceiving();
        Q_EMIT m_engine->fileTransferStarted(u"a"_s);
        QCoreApplication::processEvents();
        const QSignalSpy cancelled(m_engine, &TransferEngine::transferCancelled);
        for (const QString &answer : {u"Continue Transfer"_s, u"Cancel and Close"_s}) {
            QTimer::singleShot(0, this, [this, &answer] { view().click(answer); });
            QCOMPARE(m_window->close(), answer != "Continue Transfer"_L1);
            QCOMPARE(cancelled.count(), answer != "Continue Transfer"_L1 ? 1 : 0);
        }
    }

    void unregisteredCopyDoesNotSend()
    {
        UnregisteredCopy license;
        makeWindow(license);
        offerOneSetting();
        walkTo(MainWindow::PageSelection, OldPC);
        const auto *activate = m_window->findChild<QPushButton *>(u"activateBtn"_s);
        for (const bool receives : {true, false}) {
            the<TitleBar>().setRole(receives);
            QCOMPARE(activate->isVisible(), !receives);
        }
        for (const bool registers : {false, true}) {
            license.registers = registers;
            bool asked = false;
            QTimer::singleShot(0, this, [this, &asked] { asked = view().front()->close(); });
            tickAndGo();
            QVERIFY(asked);
            QCOMPARE(view().page(), int(registers ? MainWindow::PageTransfer : MainWindow::PageSelection));
            QCOMPARE(activate->isVisible(), !registers);
        }
        m_window.reset();
    }

    void focusGoesAlongToTheNextPage()
    {
        QCOMPARE(m_window->focusWidget()->accessibleName(), u"Network Mode"_s);
        QTest::keyClick(view().control(u"Next"_s), Qt::Key_Space);
        QCOMPARE(m_window->focusWidget()->accessibleName(), u"Old PC"_s);
    }

private:
    struct UnregisteredCopy final : License
    {
        [[nodiscard]] bool isRegistered() const override { return registered; }
        [[nodiscard]] bool registerCopy() override { return registered = registers; }

        bool registered = false;
        bool registers = false; ///< whether an attempt succeeds
    };

    void makeWindow(License &license)
    {
        m_engine = new TransferEngine(nullptr, silentEnvironment());
        m_window = std::make_unique<MainWindow>(nullptr, license, m_engine);
        m_window->show();
    }

    [[nodiscard]] WizardView view() const { return WizardView(m_window.get()); }

    template <typename Part>
    [[nodiscard]] Part &the() const
    {
        return *m_window->findChild<Part *>();
    }

    /// Ends a scan that has found something to tick.
    void offerOneSetting() const
    {
        ScanResult result;
        result.settings.append(SettingInfo());
        Q_EMIT m_engine->scanCompleted(result);
    }

    void tickAndGo() const
    {
        the<SettingListItem>().setChecked(true);
        view().click(u"Next"_s);
    }

    /// Walks to `page` as the PC of that role.
    void walkTo(int page, int role) const
    {
        const bool receives = role == NewPC;
        if (page > MainWindow::PageWelcome)
            view().click(u"Next"_s);
        m_engine->setRole(role);
        if (page == MainWindow::PageConnection || page == MainWindow::PageScanning) {
            view().click(receives ? u"New PC"_s : u"Old PC"_s);
            view().click(u"Next"_s);
        }
        if (page == MainWindow::PageScanning)
            Q_EMIT m_engine->connected();
        // Two ways past the search for the other PC, which takes its time.
        if (page >= MainWindow::PageSelection && !receives)
            Q_EMIT m_engine->peerCancelled();
        QCoreApplication::processEvents();
        if (page >= MainWindow::PageTransfer && receives)
            Q_EMIT m_engine->transferReset();
        if (page >= MainWindow::PageTransfer && !receives)
            tickAndGo();
        if (page == MainWindow::PageComplete)
            Q_EMIT the<TransferPage>().transferFinished();
    }

    QSettings m_settings{AppConfig::userOrganisation(), AppConfig::appName()};
    TransferEngine *m_engine = nullptr;
    std::unique_ptr<MainWindow> m_window;
};

ZANDROVE_TEST(MainWindowTest)

#include "MainWindowTest.moc"
