#include "UiTests.h"

#include "SimulatedPc.h"
#include "ui/widgets/FileBrowserWidget.h"

#include <QDir>
#include <QListWidget>
#include <QSignalSpy>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

QStringList numbered(const QString &prefix, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(prefix + QString::number(i).rightJustified(3, u'0'));
    return names;
}

} // namespace

/// The tree of folders to tick: what it lists, and what it says is ticked.
class FileBrowserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_pc = std::make_unique<SimulatedPc>();
        m_browser = std::make_unique<FileBrowserWidget>();
        m_tree = m_browser->findChild<QTreeWidget *>();
        m_shortcuts = m_browser->findChild<QListWidget *>();
        // The drives come late and would replace what a test shows.
        QTRY_VERIFY(m_tree->topLevelItemCount() > 0);
    }

    void cleanup()
    {
        m_browser.reset();
        m_pc.reset();
    }

    void subfoldersAreListed_data()
    {
        columns<QStringList, QStringList, int>("folders", "listed", "limitLines");
        const QStringList hundred = numbered(u"d"_s, 100);
        QTest::newRow("none") << QStringList() << QStringList() << 0;
        QTest::newRow("by name whatever the case")
            << QStringList{u"b"_s, u"A"_s, u"c"_s} << QStringList{u"A"_s, u"b"_s, u"c"_s} << 0;
        QTest::newRow("not of the system") << u".git $x Recovery recovery2 perflogs MSOCache"_s.split(u' ')
                                           << QStringList{u"perflogs"_s, u"recovery2"_s} << 0;
        QTest::newRow("just the limit") << hundred << hundred << 0;
        QTest::newRow("one above it") << numbered(u"d"_s, 101) << hundred << 1;
        QTest::newRow("skipped ones don't count") << numbered(u"$"_s, 50) + hundred << hundred << 0;
    }

    void subfoldersAreListed()
    {
        QFETCH(QStringList, folders);
        makeFolders(folders);
        QTEST(countLogLines("Reached max items limit for:"_L1, [this] { show(u"My Documents"_s); }),
              "limitLines");
        const QTreeWidgetItem *documents = m_tree->topLevelItem(0);
        QStringList listed;
        for (int i = 0; i < documents->childCount(); ++i)
            listed.append(documents->child(i)->text(0));
        QTEST(listed, "listed");
    }

    void ticksMakeTheSelection_data()
    {
        // Each step: "+" ticks, "-" unticks, ">" opens; then the folder's path, "." for Documents.
        columns<QString, QString, Qt::CheckState>("steps", "selected", "rootState");
        QTest::newRow("folder stands for what is not open") << u"+a"_s << u"a"_s << Qt::PartiallyChecked;
        QTest::newRow("opened below a tick") << u"+a >a"_s << u"a a/x a/y"_s << Qt::PartiallyChecked;
        QTest::newRow("parent by its children is not entered") << u"+a +b"_s << u"a b"_s << Qt::Checked;
        QTest::newRow("parent takes its children along") << u">a +."_s << u". a a/x a/y b"_s << Qt::Checked;
        QTest::newRow("parent stays when a child goes") << u"+. -b"_s << u". a"_s << Qt::PartiallyChecked;
        QTest::newRow("partly ticked child") << u">a +a/x"_s << u"a/x"_s << Qt::PartiallyChecked;
        QTest::newRow("all gone") << u"+. -."_s << QString() << Qt::Unchecked;
    }

    void ticksMakeTheSelection()
    {
        QFETCH(QString, steps);
        makeFolders({u"a/x"_s, u"a/y"_s, u"b"_s});
        const QTreeWidgetItem *documents = show(u"My Documents"_s);
        const QSignalSpy changes(m_browser.get(), &FileBrowserWidget::selectionChanged);
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
        makeFolders({u"a/x"_s});
        show(u"My Documents"_s)->child(0)->setCheckState(0, Qt::Checked);
        show(u"This PC"_s);
        QTreeWidgetItem *again = show(u"My Documents"_s)->child(0);
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
        QStringList labels;
        for (int row = 0; row < m_shortcuts->count(); ++row)
            labels.append(m_shortcuts->item(row)->text());
        QCOMPARE(labels.join(u'|'), u"Desktop|My Documents|Pictures|Videos|Music|Downloads||This PC"_s);
        m_shortcuts->setCurrentRow(5);
        QTest::keyClick(m_shortcuts, Qt::Key_Return);
        QCOMPARE(m_tree->topLevelItem(0)->text(0), u"Downloads"_s);
        QTest::keyClick(m_shortcuts, Qt::Key_Down);
        QTest::keyClick(m_shortcuts, Qt::Key_Space);
        QVERIFY(m_tree->topLevelItem(0)->text(0).contains(" free of "_L1));
    }

private:
    void makeFolders(const QStringList &names) const
    {
        for (const QString &name : names)
            QVERIFY(QDir(m_pc->homePath(u"Documents"_s)).mkpath(name));
    }

    /// Shows the place of that name, and returns its item.
    QTreeWidgetItem *show(const QString &place) const
    {
        Q_EMIT m_shortcuts->itemClicked(m_shortcuts->findItems(place, Qt::MatchExactly).first());
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
    std::unique_ptr<FileBrowserWidget> m_browser;
    QTreeWidget *m_tree = nullptr;
    QListWidget *m_shortcuts = nullptr;
};

QObject *makeFileBrowserTest()
{
    return new FileBrowserTest;
}

#include "FileBrowserTest.moc"
