#include "SilentEngine.h"
#include "UiTests.h"
#include "WizardView.h"

#include "ui/MainWindow.h"
#include "ui/pages/CompletePage.h"
#include "ui/pages/ConnectionPage.h"
#include "ui/pages/TransferPage.h"
#include "ui/widgets/SettingListItem.h"

#include <QApplication>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Step = std::function<void()>;

/// The wizard: which page follows which, for whom, and what can be pressed there.
class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { makeWindow(License::ofThisCopy()); }
    void cleanup() { m_window.reset(); }

    void windowIsPaintedByItself()
    {
        QCOMPARE(int(m_window->windowFlags()), 0xC801);
        QVERIFY(!m_window->windowIcon().pixmap(32).isNull());
        const QImage picture = m_window->grab().toImage().convertToFormat(QImage::Format_ARGB32);
        const int middle = picture.height() / 2;
        QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
        QVERIFY(qAlpha(picture.pixel(1, middle)) > 0);
        QVERIFY(qAlpha(picture.pixel(1, middle)) < qAlpha(picture.pixel(10, middle)));
        QCOMPARE(picture.pixel(20, middle), qRgb(255, 255, 255));
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

    void navigationFollowsThePage_data()
    {
        columns<int, int, QString>("role", "page", "enabled");
        QTest::newRow("welcome") << int(OldPC) << 0 << u"Next"_s;
        QTest::newRow("role, none chosen") << int(OldPC) << 1 << u"Back"_s;
        QTest::newRow("connection, none") << int(OldPC) << 2 << u"Back"_s;
        QTest::newRow("scanning") << int(OldPC) << 3 << QString();
        QTest::newRow("selection, none") << int(OldPC) << 4 << u"Back"_s;
        QTest::newRow("transfer, Old PC") << int(OldPC) << 5 << QString();
        QTest::newRow("transfer, New PC") << int(NewPC) << 5 << QString();
        QTest::newRow("complete") << int(NewPC) << 6 << QString();
    }

    void navigationFollowsThePage()
    {
        QFETCH(int, role);
        QFETCH(int, page);
        if (page > MainWindow::PageSelection)
            offerOneSetting();
        walkTo(page, role);
        QCOMPARE(view().page(), page);
        QStringList enabled;
        for (const QString &name : {u"Back"_s, u"Next"_s, u"Finish"_s}) {
            const QWidget *button = view().control(name);
            if (button && button->isEnabled())
                enabled.append(name);
        }
        QTEST(enabled.join(u' '), "enabled");
    }

    void signalsMoveTheWizard_data()
    {
        columns<int, int, int, Step>("role", "from", "to", "step");
        const auto row = [](const char *name, int role, int from, int to, const Step &step) {
            QTest::newRow(name) << role << from << to << step;
        };
        const Step connected = [this] { Q_EMIT m_engine->connected(); };
        const Step autoAdvance = [this] { Q_EMIT the<ConnectionPage>().requestAutoAdvance(); };
        const Step localCancel = [this] { Q_EMIT the<TransferPage>().transferCancelled(); };
        const Step peerCancel = [this] { Q_EMIT m_engine->peerCancelled(); };
        const Step sessionEnd = [this] { Q_EMIT m_engine->sessionEndReceived(); };
        const Step reset = [this] { Q_EMIT m_engine->transferReset(); };
        const Step newTransfer = [this] { Q_EMIT m_engine->newTransferStarted(); };
        const Step sendMore = [this] { Q_EMIT the<CompletePage>().backToSelectionRequested(); };
        const Step finish = [this] { Q_EMIT the<CompletePage>().sessionEndRequested(); };
        const auto back = [this](const QString &name) {
            return [this, name] { Q_EMIT the<TransferPage>().navigateBack(name); };
        };
        // What the pages hear queued arrives after the window has gone.
        const auto endBehind = [sessionEnd](const Step &step) {
            return [=] {
                step();
                sessionEnd();
                QCoreApplication::processEvents();
            };
        };

        row("connected on the role page", OldPC, 1, 1, connected);
        row("connected", OldPC, 2, 3, connected);
        row("connected, New PC", NewPC, 2, 2, connected);
        row("auto-advance", NewPC, 2, 5, autoAdvance);
        row("auto-advance, Old PC", OldPC, 2, 2, autoAdvance);
        row("auto-advance elsewhere", NewPC, 1, 1, autoAdvance);
        row("local cancel", OldPC, 5, 4, localCancel);
        row("local cancel, New PC", NewPC, 5, 5, localCancel);
        row("peer cancels", OldPC, 3, 4, peerCancel);
        row("peer cancels, New PC", NewPC, 5, 5, peerCancel);
        row("session end", OldPC, 4, 1, sessionEnd);
        row("session end, New PC", NewPC, 6, 1, sessionEnd);
        row("session end behind the last file", NewPC, 5, 1,
            endBehind([this] { Q_EMIT m_engine->transferCompleted({}); }));
        row("session end behind a cancel", OldPC, 5, 1, endBehind(peerCancel));
        row("reset", NewPC, 6, 5, reset);
        row("reset, Old PC", OldPC, 6, 6, reset);
        row("new transfer", NewPC, 6, 5, newTransfer);
        row("new transfer, Old PC", OldPC, 6, 6, newTransfer);
        row("send more", OldPC, 6, 4, sendMore);
        row("finished", OldPC, 6, 1, finish);
        row("back to selection", OldPC, 5, 4, back(u"SelectionPage"_s));
        row("back to waiting", NewPC, 5, 2, back(u"WaitingPage"_s));
        row("back to nowhere", NewPC, 5, 5, back(u"Elsewhere"_s));
    }

    void signalsMoveTheWizard()
    {
        QFETCH(int, role);
        QFETCH(int, from);
        QFETCH(Step, step);
        offerOneSetting();
        walkTo(from, role);
        QCOMPARE(view().page(), from);
        step();
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

    void unregisteredCopyDoesNotSend()
    {
        UnregisteredCopy license;
        makeWindow(license);
        offerOneSetting();
        walkTo(MainWindow::PageSelection, OldPC);
        const auto *activate = m_window->findChild<QPushButton *>(u"activateBtn"_s);
        QVERIFY(activate->isVisible());
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
        QStringList names;
        for (int step = 0; step < 8; ++step) {
            names.append(m_window->focusWidget()->accessibleName());
            QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names,
                 u"Network Mode,Cable Mode,Next,Menu,Minimize,Maximize,Close,Network Mode"_s.split(u','));
        QTest::keyClick(view().control(u"Next"_s), Qt::Key_Space);
        QCOMPARE(m_window->focusWidget()->accessibleName(), u"Old PC"_s);
    }

private:
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

    TransferEngine *m_engine = nullptr;
    std::unique_ptr<MainWindow> m_window;
};

QObject *makeMainWindowTest()
{
    return new MainWindowTest;
}

#include "MainWindowTest.moc"
