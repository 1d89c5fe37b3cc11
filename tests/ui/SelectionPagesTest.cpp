#include "SilentEngine.h"
#include "SimulatedPc.h"
#include "UiTests.h"

#include "support/Utilities.h"
#include "ui/pages/AppOffer.h"
#include "ui/pages/ScanningPage.h"
#include "ui/pages/SelectionPage.h"
#include "ui/widgets/AppListItem.h"
#include "ui/widgets/CircleProgress.h"
#include "ui/widgets/SettingListItem.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QSignalSpy>
#include <QTabWidget>

#include <ctime>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

AppInfo app(const QString &name, const QString &installPath, qint64 size, bool canTransfer = true)
{
    AppInfo info;
    info.name = name;
    info.installPath = installPath;
    info.size = size;
    info.canTransfer = canTransfer;
    return info;
}

ScanResult manyApps(int count)
{
    ScanResult result;
    for (int i = 0; i < count; ++i)
        result.apps.append(app(u"App %1"_s.arg(i), {}, 1024 * 1024, i % 2 == 0));
    result.settings.append(SettingInfo());
    result.accounts.append(AccountInfo());
    return result;
}

#ifdef __SANITIZE_ADDRESS__
constexpr double Patience = 5.0; // seconds
#else
constexpr double Patience = 1.0;
#endif

/// Seconds of this process, which other programs don't slow down, that `action` takes.
double cpuSeconds(const std::function<void()> &action)
{
    const std::clock_t start = std::clock();
    action();
    QCoreApplication::processEvents();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

} // namespace

/// The pages that scan this PC and offer what was found.
class SelectionPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_engine = std::make_unique<TransferEngine>(nullptr, silentEnvironment());
        m_scanning = std::make_unique<ScanningPage>(m_engine.get());
        m_page = std::make_unique<SelectionPage>(m_engine.get());
    }

    void cleanup()
    {
        m_page.reset();
        m_scanning.reset();
        m_engine.reset();
    }

    void leftOversAreNotOffered()
    {
        const QString here = QDir::currentPath();
        QVERIFY(shouldShowApp(app(u"Editor"_s, here, 0)));
        QVERIFY2(!shouldShowApp(app(u"Editor"_s, here + u"/nowhere"_s, 1)), "missing folder");
        QVERIFY2(shouldShowApp(app(u"Editor"_s, {}, 102400)), "large without a folder");
        QVERIFY2(!shouldShowApp(app(u"Editor"_s, {}, 102399)), "small without a folder");
        for (const QString &name :
             {u"Uninstaller"_s, u"Big Uninstall Tool"_s, u"Remove Editor"_s, u"Update for X"_s, u"UpdaterX"_s,
              u"Security Update 1"_s, u"Hotfix 7"_s, u"X"_s, u"Settings"_s, u"MainWindow"_s})
            QVERIFY2(!shouldShowApp(app(name, here, 1)), qPrintable(name));
        for (const QString &name : {u"Big Uninstaller"_s, u"Remover"_s, u"Settings Pro"_s, u"X1"_s})
            QVERIFY2(shouldShowApp(app(name, here, 1)), qPrintable(name));
    }

    void appsAreSortedByWorth()
    {
        const QString here = QDir::currentPath();
        const QList<AppInfo> apps{app(u"loose"_s, {}, 900000), app(u"beta"_s, here, 5),
                                  app(u"Settings"_s, here, 9), app(u"Alpha"_s, here, 5),
                                  app(u"large"_s, here, 7),    app(u"BETA"_s, here, 5)};
        QList<int> order;
        for (const OfferedApp &offered : offeredApps(apps))
            order.append(offered.originalIndex);
        QCOMPARE(order, QList<int>({4, 3, 1, 5, 0}));
    }

    void scanShowsProgressAndHandsOver()
    {
        QSignalSpy finished(m_scanning.get(), &ScanningPage::scanFinished);
        const auto shown = [this] {
            QStringList texts(QString::number(m_scanning->findChild<CircleProgress *>()->value()));
            for (const QString &label : {u"appCountLabel"_s, u"accountCountLabel"_s, u"statusLabel"_s})
                texts.append(m_scanning->findChild<QLabel *>(label)->text());
            return texts.join(u'|');
        };
        Q_EMIT m_engine->scanProgress(40, u"Editor"_s, 7, 3, 2);
        QCOMPARE(shown(), u"40|7|2|Editor"_s);
        Q_EMIT m_engine->scanFailed(u"no"_s);
        QCOMPARE(shown(), u"40|7|2|Editor"_s);
        Q_EMIT m_engine->scanCompleted(manyApps(3));
        QCOMPARE(shown(), u"100|3|1|Scan complete!"_s);
        QVERIFY(finished.isEmpty() && finished.wait());
    }

    void ticksReachTheEngine()
    {
        const SimulatedPc pc;
        QSignalSpy completed(m_engine.get(), &TransferEngine::scanCompleted);
        m_scanning->startScan();
        QVERIFY(completed.wait(30000));
        const int accounts = int(m_engine->scanResult().accounts.size());
        const QList<SettingListItem *> settings = m_page->findChildren<SettingListItem *>();
        QVERIFY(accounts > 0 && !settings.isEmpty());
        QCOMPARE(m_engine->selectedCount(), 0);
        QVERIFY2(!m_page->hasSelection(), "accounts are ticked from the start and don't count");

        const QSignalSpy changed(m_page.get(), &SelectionPage::selectionChanged);
        QTest::mouseClick(settings.constLast(), Qt::LeftButton);
        QCOMPARE(changed.size(), 1);
        QVERIFY(m_page->hasSelection() && m_engine->scanResult().settings.constLast().selected);
        QCOMPARE(m_engine->selectedCount(), accounts + 1);
        QCOMPARE(counts(), u"Applications (0)|Files (0)|Settings (1)|Total: 0 B"_s);
        m_page->findChild<QCheckBox *>(u"selectAllSettings"_s)->click();
        QCOMPARE(m_engine->selectedCount(), accounts + int(settings.size()));
    }

    void freshResultKeepsNoTicks()
    {
        QCOMPARE(counts(), u"Applications|Files|Accounts && Settings|Total: 0 GB"_s);
        m_page->setScanResult(manyApps(4));
        auto *selectAll = m_page->findChild<QCheckBox *>(u"selectAllApps"_s);
        selectAll->click();
        QCOMPARE(counts(), u"Applications (4)|Files (0)|Settings (0)|Total: 4.0 MB"_s);

        const QSignalSpy changed(m_page.get(), &SelectionPage::selectionChanged);
        m_page->setScanResult(manyApps(2));
        QVERIFY(changed.isEmpty() && !selectAll->isChecked() && !m_page->hasSelection());
        QCOMPARE(counts(), u"Applications (0)|Files (0)|Settings (0)|Total: 0 B"_s);
        QCOMPARE(m_page->findChildren<AppListItem *>().size(), 2);
    }

    void tabGoesDownThePage()
    {
        m_page->setScanResult(manyApps(2));
        QStringList stops;
        for (const QWidget *stop = m_page->nextInFocusChain(); stop != m_page.get();
             stop = stop->nextInFocusChain()) {
            if (qobject_cast<const QCheckBox *>(stop))
                stops.append(stop->objectName() +
                             QLatin1StringView(stop->parent()->metaObject()->className()));
        }
        QCOMPARE(
            stops.join(u' ').remove(u"Zandrove::"_s),
            u"selectAllAppsQWidget AppListItem AppListItem AccountListItem selectAllSettingsQWidget SettingListItem"_s);
    }

    void fiveHundredAppsTakeNoTime()
    {
        m_page->resize(956, 560);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
        const ScanResult result = manyApps(500);
        const double building = cpuSeconds([&] { m_page->setScanResult(result); });
        double ticking = 0.0;
        QCOMPARE(countLogLines("Selected app:"_L1,
                               [&] {
                                   ticking = cpuSeconds(
                                       [&] { m_page->findChild<QCheckBox *>(u"selectAllApps"_s)->click(); });
                               }),
                 500 * 501 / 2);
        qInfo() << "500 rows: seconds to build" << building << "to tick" << ticking;
        QVERIFY(building < Patience && ticking < Patience);
    }

private:
    /// The titles of the tabs, and the total.
    [[nodiscard]] QString counts() const
    {
        const auto *tabs = m_page->findChild<QTabWidget *>();
        return QStringList{tabs->tabText(0), tabs->tabText(1), tabs->tabText(2),
                           m_page->findChild<QLabel *>(u"totalLabel"_s)->text()}
            .join(u'|');
    }

    std::unique_ptr<TransferEngine> m_engine;
    std::unique_ptr<ScanningPage> m_scanning;
    std::unique_ptr<SelectionPage> m_page;
};

QObject *makeSelectionPagesTest()
{
    return new SelectionPagesTest;
}

#include "SelectionPagesTest.moc"
