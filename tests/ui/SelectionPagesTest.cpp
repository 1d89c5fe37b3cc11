#include "SilentEngine.h"
#include "SimulatedPc.h"
#include "TestMain.h"
#include "WizardView.h"

#include "ui/pages/AppOffer.h"
#include "ui/pages/ScanningPage.h"
#include "ui/pages/SelectionPage.h"
#include "ui/widgets/AppListItem.h"
#include "ui/widgets/CircleProgress.h"
#include "ui/widgets/FileBrowserWidget.h"
#include "ui/widgets/SettingListItem.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTreeWidget>

#include <ctime>

namespace {

AppInfo app(const QString &name, const QString &installPath, qint64 size)
{
    AppInfo info;
    info.name = name;
    info.installPath = installPath;
    info.size = size;
    return info;
}

ScanResult manyApps(int count)
{
    ScanResult result;
    result.apps.fill(app(u"App"_s, {}, 1024 * 1024), count);
    result.apps.first().canTransfer = false;
    result.settings.append(SettingInfo());
    result.accounts.append(AccountInfo());
    return result;
}

} // namespace

/// The pages that scan this PC and offer what was found, the tree of its folders among it.
class SelectionPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_pc = std::make_unique<SimulatedPc>();
        m_engine = std::make_unique<TransferEngine>(nullptr, silentEnvironment());
        m_scanning = std::make_unique<ScanningPage>(m_engine.get());
        m_page = std::make_unique<SelectionPage>(m_engine.get());
        m_browser = m_page->findChild<FileBrowserWidget *>();
        m_tree = m_browser->findChild<QTreeWidget *>();
        m_shortcuts = m_browser->findChild<QListWidget *>();
        // The drives come late and would replace what a test shows.
        QTRY_VERIFY(m_tree->topLevelItemCount() > 0);
    }

    void cleanup()
    {
        m_page.reset();
        m_scanning.reset();
        m_engine.reset();
        m_pc.reset();
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
        m_scanning->show();
        const WizardView view(m_scanning.get());
        Q_EMIT m_engine->scanProgress(40, u"Editor"_s, 7, 3, 2);
        Q_EMIT m_engine->scanFailed(u"no"_s);
        QCOMPARE(view.texts().mid(2).join(u'|'), u"7|Applications|2|Accounts|Editor"_s);
        Q_EMIT m_engine->scanCompleted(manyApps(3));
        QCOMPARE(m_scanning->findChild<CircleProgress *>()->accessibleDescription(), u"100%"_s);
        QCOMPARE(view.texts().mid(2).join(u'|'), u"3|Applications|1|Accounts|Scan complete!"_s);
        QVERIFY(finished.isEmpty() && finished.wait());
    }

    void ticksReachTheEngine()
    {
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

    void subfoldersAreListed()
    {
        QString hundred = u"d100"_s;
        for (int number = 101; number < 200; ++number)
            hundred += u" d%1"_s.arg(number);
        using Case = std::tuple<QString, QString, bool>; // folders, listed ones, whether there are too many
        for (const auto &[folders, expected, limited] :
             {Case(u"b A c .git $x Recovery recovery2 perflogs"_s, u"A b c perflogs recovery2"_s, false),
              Case(QString(hundred).replace(u'd', u'$') + u' ' + hundred, hundred, false),
              Case(hundred + u" d200"_s, hundred, true)}) {
            QVERIFY(QDir(m_pc->homePath(u"Documents"_s)).removeRecursively());
            makeFolders(folders);
            if (limited)
                QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"^Reached max items limit for:"_s));
            const QTreeWidgetItem *documents = showDocuments();
            QStringList listed;
            for (int i = 0; i < documents->childCount(); ++i)
                listed.append(documents->child(i)->text(0));
            QCOMPARE(listed.join(u' '), expected);
        }
    }

    void ticksMakeTheSelection_data()
    {
        // Each step: "+" ticks, "-" unticks, ">" opens; then the folder's path, "." for Documents.
        const auto row = addColumns<QString, QString, Qt::CheckState>("steps", "selected", "rootState");
        row("folder stands for what is not open", u"+a"_s, u"a"_s, Qt::PartiallyChecked);
        row("opened below a tick", u"+a >a"_s, u"a a/x a/y"_s, Qt::PartiallyChecked);
        row("parent by its children is not entered", u"+a +b"_s, u"a b"_s, Qt::Checked);
        row("parent takes its children along", u">a +."_s, u". a a/x a/y b"_s, Qt::Checked);
        row("parent stays when a child goes", u"+. -b"_s, u". a"_s, Qt::PartiallyChecked);
        row("partly ticked child", u">a +a/x"_s, u"a/x"_s, Qt::PartiallyChecked);
        row("all gone", u"+. -."_s, QString(), Qt::Unchecked);
    }

    void ticksMakeTheSelection()
    {
        QFETCH(QString, steps);
        makeFolders(u"a/x a/y b"_s);
        const QTreeWidgetItem *documents = showDocuments();
        const QSignalSpy changes(m_browser, &FileBrowserWidget::selectionChanged);
        for (const QString &step : steps.split(u' ')) {
            const QString path = QDir::cleanPath(m_pc->homePath(u"Documents/"_s + step.mid(1)));
            QTreeWidgetItemIterator item(m_tree);
            while (*item && (*item)->data(0, Qt::UserRole).toString() != path)
                ++item;
            QVERIFY2(*item, qPrintable(path));
            const QString before = selection();
            const qsizetype signalsBefore = changes.size();
            if (step.startsWith(u'>'))
                (*item)->setExpanded(true);
            else
                (*item)->setCheckState(0, step.startsWith(u'+') ? Qt::Checked : Qt::Unchecked);
            QCOMPARE(changes.size() - signalsBefore, before == selection() ? 0 : 1);
        }
        QTEST(selection(), "selected");
        QTEST(documents->checkState(0), "rootState");
    }

    void selectionOutlivesTheView()
    {
        makeFolders(u"a/x"_s);
        showDocuments()->child(0)->setCheckState(0, Qt::Checked);
        QTreeWidgetItem *again = showDocuments()->child(0);
        QCOMPARE(again->checkState(0), Qt::Unchecked);
        again->setExpanded(true);
        QCOMPARE(selection(), u"a"_s);

        m_browser->selectAll();
        QCOMPARE(selection(), u". a a/x"_s);
        m_browser->clearSelection();
        QCOMPARE(m_browser->selectedCount(), 0);
        QCOMPARE(again->child(0)->checkState(0), Qt::Unchecked);
    }

    void quickAccessWorksByKey()
    {
        m_shortcuts->setCurrentRow(5);
        QTest::keyClick(m_shortcuts, Qt::Key_Return);
        QCOMPARE(m_tree->topLevelItem(0)->text(0), u"Downloads"_s);
        QTest::keyClick(m_shortcuts, Qt::Key_Down); // over the line between them
        QTest::keyClick(m_shortcuts, Qt::Key_Space);
        QVERIFY(m_tree->topLevelItem(0)->text(0).contains(" free of "_L1));
    }

private:
    /// The titles of the tabs, and the total.
    [[nodiscard]] QString counts() const
    {
        const auto *tabs = m_page->findChild<QTabWidget *>();
        const QString total = m_page->findChild<QLabel *>(u"totalLabel"_s)->text();
        return u"%1|%2|%3|%4"_s.arg(tabs->tabText(0), tabs->tabText(1), tabs->tabText(2), total);
    }

    /// Makes folders of these names, which are apart by blanks, in Documents.
    void makeFolders(const QString &names) const
    {
        for (const QString &name : names.split(u' ', Qt::SkipEmptyParts))
            QVERIFY(QDir().mkpath(m_pc->homePath(u"Documents/"_s + name)));
    }

    QTreeWidgetItem *showDocuments() const
    {
        Q_EMIT m_shortcuts->itemClicked(m_shortcuts->item(1));
        return m_tree->topLevelItem(0);
    }

    /// The selected folders relative to Documents, sorted.
    [[nodiscard]] QString selection() const
    {
        const QDir documents(m_pc->homePath(u"Documents"_s));
        QStringList paths = m_browser->selectedPaths();
        for (QString &path : paths)
            path = documents.relativeFilePath(path);
        paths.sort();
        return paths.join(u' ');
    }

    std::unique_ptr<SimulatedPc> m_pc;
    std::unique_ptr<TransferEngine> m_engine;
    std::unique_ptr<ScanningPage> m_scanning;
    std::unique_ptr<SelectionPage> m_page;
    FileBrowserWidget *m_browser = nullptr;
    QTreeWidget *m_tree = nullptr;
    QListWidget *m_shortcuts = nullptr;
};

ZANDROVE_TEST(SelectionPagesTest)

#include "SelectionPagesTest.moc"
