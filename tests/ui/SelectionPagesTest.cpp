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
#include <QTest>

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
    SettingInfo setting;
    setting.id = setting.name = u"wallpaper"_s;
    result.settings = {setting};
    result.accounts.append(AccountInfo());
    return result;
}

/// Seconds of this process, which other programs don't slow down.
double cpuSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

#ifdef __SANITIZE_ADDRESS__
constexpr double Patience = 5.0; // seconds
#else
constexpr double Patience = 1.0;
#endif

int selectionLines = 0;

void countSelectionLines(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (text.startsWith("Selected app:"_L1))
        ++selectionLines;
}

} // namespace

/// The pages that scan this PC and offer what was found.
class SelectionPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leftOversAreNotOffered_data();
    void leftOversAreNotOffered();
    void appsAreSortedByWorth();
    void scanShowsProgressAndHandsOver();
    void ticksReachTheEngine();
    void freshResultKeepsNoTicks();
    void tabGoesDownThePage();
    void fiveHundredAppsTakeNoTime();

private:
    static QStringList titles(const SelectionPage &page)
    {
        const auto *tabs = page.findChild<QTabWidget *>();
        return {tabs->tabText(0), tabs->tabText(1), tabs->tabText(2)};
    }
};

void SelectionPagesTest::leftOversAreNotOffered_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("installPath");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("offered");
    const QString here = QDir::currentPath();
    const QString nowhere = here + u"/nowhere"_s;
    QTest::newRow("with a folder") << u"Editor"_s << here << qint64(0) << true;
    QTest::newRow("missing folder") << u"Editor"_s << nowhere << qint64(1) << false;
    QTest::newRow("large without a folder") << u"Editor"_s << QString() << qint64(102400) << true;
    QTest::newRow("small without a folder") << u"Editor"_s << QString() << qint64(102399) << false;
    for (const QString &name :
         {u"Uninstaller"_s, u"Big Uninstall Tool"_s, u"Remove Editor"_s, u"Update for X"_s, u"UpdaterX"_s,
          u"Security Update 1"_s, u"Hotfix 7"_s, u"X"_s, u"Settings"_s, u"MainWindow"_s})
        QTest::addRow("unwanted: %s", qPrintable(name)) << name << here << qint64(1) << false;
    for (const QString &name : {u"Big Uninstaller"_s, u"Remover"_s, u"Settings Pro"_s, u"X1"_s})
        QTest::addRow("wanted: %s", qPrintable(name)) << name << here << qint64(1) << true;
}

void SelectionPagesTest::leftOversAreNotOffered()
{
    QFETCH(QString, name);
    QFETCH(QString, installPath);
    QFETCH(qint64, size);
    QTEST(shouldShowApp(app(name, installPath, size)), "offered");
}

void SelectionPagesTest::appsAreSortedByWorth()
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

void SelectionPagesTest::scanShowsProgressAndHandsOver()
{
    TransferEngine engine(nullptr, silentEnvironment());
    ScanningPage page(&engine);
    const auto text = [&page](const QString &label) { return page.findChild<QLabel *>(label)->text(); };
    QSignalSpy finished(&page, &ScanningPage::scanFinished);
    Q_EMIT engine.scanProgress(40, u"Editor"_s, 7, 3, 2);
    QCOMPARE(page.findChild<CircleProgress *>()->value(), 40);
    QCOMPARE(text(u"statusLabel"_s), u"Editor"_s);
    QCOMPARE(text(u"appCountLabel"_s) + u'|' + text(u"accountCountLabel"_s), u"7|2"_s);
    Q_EMIT engine.scanFailed(u"no"_s);
    QCOMPARE(text(u"statusLabel"_s), u"Editor"_s);

    Q_EMIT engine.scanCompleted(manyApps(3));
    QCOMPARE(page.findChild<CircleProgress *>()->value(), 100);
    QCOMPARE(text(u"appCountLabel"_s) + u'|' + text(u"accountCountLabel"_s), u"3|1"_s);
    QCOMPARE(text(u"statusLabel"_s), u"Scan complete!"_s);
    QVERIFY(finished.isEmpty() && finished.wait());
}

void SelectionPagesTest::ticksReachTheEngine()
{
    const SimulatedPc pc;
    TransferEngine engine(nullptr, silentEnvironment());
    ScanningPage scanning(&engine);
    SelectionPage page(&engine);
    QSignalSpy completed(&engine, &TransferEngine::scanCompleted);
    scanning.startScan();
    QVERIFY(completed.wait(30000));
    const int accounts = int(engine.scanResult().accounts.size());
    const QList<SettingListItem *> settings = page.findChildren<SettingListItem *>();
    QVERIFY(accounts > 0 && !settings.isEmpty());
    QCOMPARE(engine.selectedCount(), 0);
    QVERIFY2(!page.hasSelection(), "accounts are ticked from the start and don't count");

    QSignalSpy changed(&page, &SelectionPage::selectionChanged);
    QTest::mouseClick(settings.constLast(), Qt::LeftButton);
    QCOMPARE(changed.size(), 1);
    QVERIFY(page.hasSelection() && engine.scanResult().settings.constLast().selected);
    QCOMPARE(engine.selectedCount(), accounts + 1);
    QCOMPARE(titles(page).constLast(), u"Settings (1)"_s);
    page.findChild<QCheckBox *>(u"selectAllSettings"_s)->click();
    QCOMPARE(engine.selectedCount(), accounts + int(settings.size()));
}

void SelectionPagesTest::freshResultKeepsNoTicks()
{
    TransferEngine engine(nullptr, silentEnvironment());
    SelectionPage page(&engine);
    const auto total = [&page] { return page.findChild<QLabel *>(u"totalLabel"_s)->text(); };
    QCOMPARE(total(), u"Total: 0 GB"_s);
    QCOMPARE(titles(page).constLast(), u"Accounts && Settings"_s);
    page.setScanResult(manyApps(4));
    auto *selectAll = page.findChild<QCheckBox *>(u"selectAllApps"_s);
    selectAll->click();
    QCOMPARE(titles(page), QStringList({u"Applications (4)"_s, u"Files (0)"_s, u"Settings (0)"_s}));
    QCOMPARE(total(), u"Total: 4.0 MB"_s);

    QSignalSpy changed(&page, &SelectionPage::selectionChanged);
    page.setScanResult(manyApps(2));
    QVERIFY(changed.isEmpty() && !selectAll->isChecked() && !page.hasSelection());
    QCOMPARE(titles(page).constFirst(), u"Applications (0)"_s);
    QCOMPARE(total(), u"Total: "_s + formatSize(0));
    QCOMPARE(page.findChildren<AppListItem *>().size(), 2);
}

void SelectionPagesTest::tabGoesDownThePage()
{
    TransferEngine engine(nullptr, silentEnvironment());
    SelectionPage page(&engine);
    page.setScanResult(manyApps(2));
    QStringList boxes;
    for (const QWidget *stop = page.nextInFocusChain(); stop != &page; stop = stop->nextInFocusChain()) {
        if (qobject_cast<const QCheckBox *>(stop))
            boxes.append(stop->objectName() + QLatin1StringView(stop->parent()->metaObject()->className()));
    }
    QCOMPARE(boxes, QStringList({u"selectAllAppsQWidget"_s, u"Zandrove::AppListItem"_s,
                                 u"Zandrove::AppListItem"_s, u"Zandrove::AccountListItem"_s,
                                 u"selectAllSettingsQWidget"_s, u"Zandrove::SettingListItem"_s}));
}

void SelectionPagesTest::fiveHundredAppsTakeNoTime()
{
    TransferEngine engine(nullptr, silentEnvironment());
    SelectionPage page(&engine);
    page.resize(956, 560);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const ScanResult result = manyApps(500);
    double start = cpuSeconds();
    page.setScanResult(result);
    QCoreApplication::processEvents();
    const double building = cpuSeconds() - start;

    selectionLines = 0;
    const QtMessageHandler before = qInstallMessageHandler(countSelectionLines);
    start = cpuSeconds();
    page.findChild<QCheckBox *>(u"selectAllApps"_s)->click();
    QCoreApplication::processEvents();
    const double ticking = cpuSeconds() - start;
    qInstallMessageHandler(before);
    QCOMPARE(selectionLines, 500 * 501 / 2);
    qInfo() << "500 rows: seconds to build" << building << "to tick" << ticking;
    QVERIFY(building < Patience && ticking < Patience);
}

QObject *makeSelectionPagesTest()
{
    return new SelectionPagesTest;
}

#include "SelectionPagesTest.moc"
