#include "SilentEngine.h"

#include "core/common/License.h"
#include "ui/MainWindow.h"
#include "ui/pages/CompletePage.h"
#include "ui/pages/ConnectionPage.h"
#include "ui/pages/RolePage.h"
#include "ui/pages/TransferPage.h"
#include "ui/widgets/RoleCard.h"
#include "ui/widgets/SettingListItem.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

class UnregisteredCopy final : public License
{
public:
    bool isRegistered() const override { return m_registered; }
    bool registerCopy() override { return m_registered = m_succeeds; }

    bool m_succeeds = false;

private:
    bool m_registered = false;
};

/// A scan result in which something can be ticked.
ScanResult oneSetting()
{
    SettingInfo setting;
    setting.id = u"mouse"_s;
    setting.name = u"Mouse"_s;
    ScanResult result;
    result.settings = {setting};
    return result;
}

} // namespace

/// The wizard: which page follows which, for whom, and what can be pressed there.
class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void windowIsFramelessAndHasAnIcon();
    void softEdgeIsPainted();
    void styleSheetsAreLists();
    void navigationFollowsThePage_data();
    void navigationFollowsThePage();
    void signalsMoveTheWizard_data();
    void signalsMoveTheWizard();
    void backFromSelectionScansAnew();
    void unregisteredCopyDoesNotSend();
    void focusGoesAlongToTheNextPage();
    void tabGoesFromThePageOverTheNavigationToTheTitleBar();

private:
    [[nodiscard]] int page() const
    {
        return m_window->findChild<QStackedWidget *>(u"PageStack"_s)->currentIndex();
    }
    [[nodiscard]] QPushButton *button(const QString &accessibleName) const;
    void press(const QString &accessibleName) { QTest::mouseClick(button(accessibleName), Qt::LeftButton); }
    /// Ticks the setting that the selection offers, and goes on.
    void tickAndGo();
    /// Walks to `page` as the PC of that role.
    void walkTo(int page, int role);

    template <typename PageClass>
    PageClass &the() const
    {
        return *m_window->findChild<PageClass *>();
    }

    UnregisteredCopy m_unregistered;
    TransferEngine *m_engine = nullptr;
    std::unique_ptr<MainWindow> m_window;
};

void MainWindowTest::init()
{
    m_engine = new TransferEngine(nullptr, silentEnvironment());
    m_window = std::make_unique<MainWindow>(nullptr, License::ofThisCopy(), m_engine);
    m_window->show();
}

void MainWindowTest::cleanup()
{
    m_window.reset();
}

QPushButton *MainWindowTest::button(const QString &accessibleName) const
{
    for (QPushButton *candidate : m_window->findChildren<QPushButton *>()) {
        if (candidate->accessibleName() == accessibleName)
            return candidate;
    }
    return nullptr;
}

void MainWindowTest::walkTo(int page, int role)
{
    const bool receives = role == NewPC;
    if (page > MainWindow::PageWelcome)
        press(u"Next"_s);
    m_engine->setRole(role);
    if (page == MainWindow::PageConnection || page == MainWindow::PageScanning) {
        QTest::keyClick(the<RolePage>().findChildren<RoleCard *>().at(role), Qt::Key_Space);
        press(u"Next"_s);
    }
    if (page == MainWindow::PageScanning)
        Q_EMIT m_engine->connected();
    // Two ways past the search for the other PC, which takes its time.
    if (page >= MainWindow::PageSelection && !receives)
        Q_EMIT m_engine->peerCancelled();
    if (page >= MainWindow::PageTransfer && receives)
        Q_EMIT m_engine->transferReset();
    if (page >= MainWindow::PageTransfer && !receives)
        tickAndGo();
    if (page == MainWindow::PageComplete)
        Q_EMIT the<TransferPage>().transferFinished();
}

void MainWindowTest::tickAndGo()
{
    the<SettingListItem>().setChecked(true);
    press(u"Next"_s);
}

void MainWindowTest::windowIsFramelessAndHasAnIcon()
{
    QCOMPARE(int(m_window->windowFlags()), 0xC801);
    QCOMPARE(m_window->minimumSize(), QSize(900, 640));
    QCOMPARE(m_window->size(), QSize(980, 700));
    QVERIFY(!m_window->windowIcon().pixmap(32).isNull());
}

void MainWindowTest::softEdgeIsPainted()
{
    const QImage picture = m_window->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    const int middle = picture.height() / 2;
    QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
    QVERIFY(qAlpha(picture.pixel(1, middle)) > 0);
    QVERIFY(qAlpha(picture.pixel(1, middle)) < qAlpha(picture.pixel(10, middle)));
    QCOMPARE(picture.pixel(20, middle), qRgb(255, 255, 255));
}

/// Qt drops without a word what stands beside a rule or within another.
void MainWindowTest::styleSheetsAreLists()
{
    static const QRegularExpression List(u"^(\\s*[^{}]+\\{[^{}]*\\})*\\s*$"_s);
    for (const QWidget *widget : m_window->findChildren<QWidget *>()) {
        const QString sheet = widget->styleSheet();
        QVERIFY2(!sheet.contains(u'{') || List.match(sheet).hasMatch(), qPrintable(sheet));
    }
}

void MainWindowTest::navigationFollowsThePage_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("back");
    QTest::addColumn<bool>("next");
    QTest::addColumn<bool>("shown");

    QTest::newRow("welcome") << int(OldPC) << 0 << false << true << true;
    QTest::newRow("role, none chosen") << int(OldPC) << 1 << true << false << true;
    QTest::newRow("connection, none") << int(OldPC) << 2 << true << false << true;
    QTest::newRow("scanning") << int(OldPC) << 3 << false << false << false;
    QTest::newRow("selection, none") << int(OldPC) << 4 << true << false << true;
    QTest::newRow("transfer, Old PC") << int(OldPC) << 5 << false << false << false;
    QTest::newRow("transfer, New PC") << int(NewPC) << 5 << false << false << false;
    QTest::newRow("complete") << int(NewPC) << 6 << false << true << false;
}

void MainWindowTest::navigationFollowsThePage()
{
    QFETCH(int, role);
    QFETCH(int, page);
    if (page > MainWindow::PageSelection && role == OldPC)
        Q_EMIT m_engine->scanCompleted(oneSetting());
    walkTo(page, role);
    QCOMPARE(this->page(), page);
    QTEST(button(u"Back"_s)->isEnabled(), "back");
    QPushButton *next = button(page == MainWindow::PageComplete ? u"Finish"_s : u"Next"_s);
    QVERIFY(next);
    QTEST(next->isEnabled(), "next");
    QTEST(next->isVisible(), "shown");
}

void MainWindowTest::signalsMoveTheWizard_data()
{
    using Step = std::function<void(MainWindowTest &)>;
    QTest::addColumn<int>("role");
    QTest::addColumn<int>("from");
    QTest::addColumn<Step>("step");
    QTest::addColumn<int>("to");

    const auto row = [](const char *name, int role, int from, int to, const Step &step) {
        QTest::newRow(name) << role << from << step << to;
    };
    const Step connected = [](auto &test) { Q_EMIT test.m_engine->connected(); };
    const Step autoAdvance = [](auto &test) {
        Q_EMIT test.template the<ConnectionPage>().requestAutoAdvance();
    };
    const Step localCancel = [](auto &test) { Q_EMIT test.template the<TransferPage>().transferCancelled(); };
    const Step peerCancel = [](auto &test) { Q_EMIT test.m_engine->peerCancelled(); };
    const Step sessionEnd = [](auto &test) { Q_EMIT test.m_engine->sessionEndReceived(); };
    const Step reset = [](auto &test) { Q_EMIT test.m_engine->transferReset(); };
    const Step newTransfer = [](auto &test) { Q_EMIT test.m_engine->newTransferStarted(); };
    const Step sendMore = [](auto &test) {
        Q_EMIT test.template the<CompletePage>().backToSelectionRequested();
    };
    const Step finish = [](auto &test) { Q_EMIT test.template the<CompletePage>().sessionEndRequested(); };
    const Step finishButton = [](auto &test) { test.button(u"Finish"_s)->click(); };
    const auto back = [](const QString &name) {
        return Step([name](auto &test) { Q_EMIT test.template the<TransferPage>().navigateBack(name); });
    };

    // What the pages hear queued arrives after the window has gone.
    const auto endBehind = [](auto signal, auto... arguments) {
        return Step([=](MainWindowTest &test) {
            Q_EMIT(test.m_engine->*signal)(arguments...);
            Q_EMIT test.m_engine->sessionEndReceived();
            QCoreApplication::processEvents();
        });
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
        endBehind(&TransferEngine::transferCompleted, MigrationReport()));
    row("session end behind a cancel", OldPC, 5, 1, endBehind(&TransferEngine::peerCancelled));
    row("reset", NewPC, 6, 5, reset);
    row("reset, Old PC", OldPC, 6, 6, reset);
    row("new transfer", NewPC, 6, 5, newTransfer);
    row("new transfer, Old PC", OldPC, 6, 6, newTransfer);
    row("send more", OldPC, 6, 4, sendMore);
    row("finished", OldPC, 6, 1, finish);
    row("finish button", NewPC, 6, 1, finishButton);
    row("back to selection", OldPC, 5, 4, back(u"SelectionPage"_s));
    row("back to waiting", NewPC, 5, 2, back(u"WaitingPage"_s));
    row("back to nowhere", NewPC, 5, 5, back(u"Elsewhere"_s));
}

void MainWindowTest::signalsMoveTheWizard()
{
    using Step = std::function<void(MainWindowTest &)>;
    QFETCH(int, role);
    QFETCH(int, from);
    QFETCH(Step, step);
    Q_EMIT m_engine->scanCompleted(oneSetting());
    walkTo(from, role);
    QCOMPARE(page(), from);
    step(*this);
    QTEST(page(), "to");
}

void MainWindowTest::backFromSelectionScansAnew()
{
    const QSignalSpy scans(m_engine, &TransferEngine::scanStarted);
    walkTo(MainWindow::PageSelection, OldPC);
    press(u"Back"_s);
    QCOMPARE(page(), int(MainWindow::PageScanning));
    QTRY_COMPARE(scans.count(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(page(), int(MainWindow::PageSelection), 20'000);
}

void MainWindowTest::unregisteredCopyDoesNotSend()
{
    m_engine = new TransferEngine(nullptr, silentEnvironment());
    m_window = std::make_unique<MainWindow>(nullptr, m_unregistered, m_engine);
    m_window->show();
    Q_EMIT m_engine->scanCompleted(oneSetting());
    walkTo(MainWindow::PageSelection, OldPC);
    the<SettingListItem>().setChecked(true);
    auto *activate = m_window->findChild<QPushButton *>(u"activateBtn"_s);
    QVERIFY(activate->isVisible());

    int dialogs = 0;
    const auto closeDialog = [&dialogs] {
        QTimer::singleShot(0, qApp, [&dialogs] {
            QVERIFY(QApplication::activeModalWidget());
            ++dialogs;
            QApplication::activeModalWidget()->close();
        });
    };
    closeDialog();
    press(u"Next"_s);
    QCOMPARE(page(), int(MainWindow::PageSelection));

    m_unregistered.m_succeeds = true;
    closeDialog();
    press(u"Next"_s);
    QCOMPARE(dialogs, 2);
    QCOMPARE(page(), int(MainWindow::PageTransfer));
    QVERIFY(!activate->isVisible());
}

void MainWindowTest::focusGoesAlongToTheNextPage()
{
    for (int at : {MainWindow::PageWelcome, MainWindow::PageRole}) {
        if (at == MainWindow::PageRole)
            QTest::keyClick(button(u"Next"_s), Qt::Key_Space);
        const QWidget *shown = m_window->findChild<QStackedWidget *>(u"PageStack"_s)->currentWidget();
        QVERIFY(m_window->focusWidget());
        QVERIFY2(shown->isAncestorOf(m_window->focusWidget()), QByteArray::number(at).constData());
    }
}

void MainWindowTest::tabGoesFromThePageOverTheNavigationToTheTitleBar()
{
    QStringList names;
    for (int step = 0; step < 8; ++step) {
        names.append(m_window->focusWidget()->accessibleName());
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names, u"Network Mode,Cable Mode,Next,Menu,Minimize,Maximize,Close,Network Mode"_s.split(u','));
}

QObject *makeMainWindowTest()
{
    return new MainWindowTest;
}

#include "MainWindowTest.moc"
