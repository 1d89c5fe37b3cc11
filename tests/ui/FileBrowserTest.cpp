#include "UiTests.h"

#include "SimulatedPc.h"
#include "ui/widgets/FileBrowserWidget.h"

#include <QDir>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

QStringList childNames(const QTreeWidgetItem &parent)
{
    QStringList names;
    for (int i = 0; i < parent.childCount(); ++i)
        names.append(parent.child(i)->text(0));
    return names;
}

QStringList numbered(const QString &prefix, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(prefix + QString::number(i).rightJustified(3, u'0'));
    return names;
}

int limitLines = 0;

void countLimitLines(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (text.startsWith("Reached max items limit for:"_L1))
        ++limitLines;
}

} // namespace

/// The tree of folders to tick: what it lists, and what it says is ticked.
class FileBrowserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void subfoldersAreListed_data();
    void subfoldersAreListed();
    void ticksMakeTheSelection_data();
    void ticksMakeTheSelection();
    void selectionOutlivesTheView();
    void quickAccessWorksByKey();

private:
    [[nodiscard]] QTreeWidget *tree() const { return m_browser->findChild<QTreeWidget *>(); }
    [[nodiscard]] QListWidget *shortcuts() const { return m_browser->findChild<QListWidget *>(); }
    void makeFolders(const QStringList &names) const
    {
        for (const QString &name : names)
            QVERIFY(QDir(m_pc->homePath(u"Documents"_s)).mkpath(name));
    }
    /// Shows the place of that name, and returns its item.
    QTreeWidgetItem *show(const QString &place) const
    {
        Q_EMIT shortcuts()->itemClicked(shortcuts()->findItems(place, Qt::MatchExactly).first());
        return tree()->topLevelItem(0);
    }
    /// The selected folders relative to Documents, sorted.
    [[nodiscard]] QStringList selection() const
    {
        const QDir documents(m_pc->homePath(u"Documents"_s));
        QStringList paths = m_browser->selectedPaths();
        for (QString &path : paths)
            path = documents.relativeFilePath(path);
        paths.sort();
        return paths;
    }

    std::unique_ptr<SimulatedPc> m_pc;
    std::unique_ptr<FileBrowserWidget> m_browser;
};

void FileBrowserTest::init()
{
    m_pc = std::make_unique<SimulatedPc>();
    m_browser = std::make_unique<FileBrowserWidget>();
    // The drives come late and would replace what a test shows.
    QTRY_VERIFY(tree()->topLevelItemCount() > 0);
}

void FileBrowserTest::cleanup()
{
    m_browser.reset();
    m_pc.reset();
}

void FileBrowserTest::subfoldersAreListed_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<int>("limitLines");
    QTest::newRow("none") << QStringList() << QStringList() << 0;
    QTest::newRow("by name whatever the case")
        << QStringList{u"b"_s, u"A"_s, u"c"_s} << QStringList{u"A"_s, u"b"_s, u"c"_s} << 0;
    QTest::newRow("not of the system")
        << QStringList{u".git"_s, u"$x"_s, u"Recovery"_s, u"recovery2"_s, u"perflogs"_s, u"MSOCache"_s}
        << QStringList{u"perflogs"_s, u"recovery2"_s} << 0;
    QTest::newRow("just the limit") << numbered(u"d"_s, 100) << numbered(u"d"_s, 100) << 0;
    QTest::newRow("one above it") << numbered(u"d"_s, 101) << numbered(u"d"_s, 100) << 1;
    QTest::newRow("skipped ones don't count")
        << numbered(u"$"_s, 50) + numbered(u"d"_s, 100) << numbered(u"d"_s, 100) << 0;
}

void FileBrowserTest::subfoldersAreListed()
{
    QFETCH(QStringList, folders);
    makeFolders(folders);
    limitLines = 0;
    const QtMessageHandler before = qInstallMessageHandler(countLimitLines);
    const QTreeWidgetItem *documents = show(u"My Documents"_s);
    qInstallMessageHandler(before);
    QTEST(childNames(*documents), "listed");
    QTEST(limitLines, "limitLines");
}

void FileBrowserTest::ticksMakeTheSelection_data()
{
    // Each step: "+" ticks, "-" unticks, ">" opens; then the folder's path, "." for Documents.
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<Qt::CheckState>("rootState");
    QTest::newRow("folder stands for what is not open")
        << QStringList{u"+a"_s} << QStringList{u"a"_s} << Qt::PartiallyChecked;
    QTest::newRow("opened below a tick")
        << QStringList{u"+a"_s, u">a"_s} << QStringList{u"a"_s, u"a/x"_s, u"a/y"_s} << Qt::PartiallyChecked;
    QTest::newRow("parent by its children is not entered")
        << QStringList{u"+a"_s, u"+b"_s} << QStringList{u"a"_s, u"b"_s} << Qt::Checked;
    QTest::newRow("parent takes its children along")
        << QStringList{u">a"_s, u"+."_s} << QStringList{u"."_s, u"a"_s, u"a/x"_s, u"a/y"_s, u"b"_s}
        << Qt::Checked;
    QTest::newRow("parent stays when a child goes")
        << QStringList{u"+."_s, u"-b"_s} << QStringList{u"."_s, u"a"_s} << Qt::PartiallyChecked;
    QTest::newRow("partly ticked child")
        << QStringList{u">a"_s, u"+a/x"_s} << QStringList{u"a/x"_s} << Qt::PartiallyChecked;
    QTest::newRow("all gone") << QStringList{u"+."_s, u"-."_s} << QStringList() << Qt::Unchecked;
}

void FileBrowserTest::ticksMakeTheSelection()
{
    QFETCH(QStringList, steps);
    makeFolders({u"a/x"_s, u"a/y"_s, u"b"_s});
    QTreeWidgetItem *documents = show(u"My Documents"_s);
    const QSignalSpy changes(m_browser.get(), &FileBrowserWidget::selectionChanged);
    for (const QString &step : steps) {
        const QString path = QDir::cleanPath(m_pc->homePath(u"Documents/"_s + step.mid(1)));
        QTreeWidgetItemIterator item(tree());
        while (*item != nullptr && (*item)->data(0, Qt::UserRole).toString() != path)
            ++item;
        QVERIFY2(*item != nullptr, qPrintable(path));
        const QStringList before = selection();
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

void FileBrowserTest::selectionOutlivesTheView()
{
    makeFolders({u"a/x"_s});
    show(u"My Documents"_s)->child(0)->setCheckState(0, Qt::Checked);
    show(u"This PC"_s);
    QTreeWidgetItem *again = show(u"My Documents"_s)->child(0);
    QCOMPARE(again->checkState(0), Qt::Unchecked);
    again->setExpanded(true);
    QCOMPARE(selection(), QStringList{u"a"_s});

    m_browser->selectAll();
    QCOMPARE(selection(), (QStringList{u"."_s, u"a"_s, u"a/x"_s}));
    m_browser->clearSelection();
    QCOMPARE(m_browser->selectedCount(), 0);
    QCOMPARE(again->child(0)->checkState(0), Qt::Unchecked);
}

void FileBrowserTest::quickAccessWorksByKey()
{
    QStringList labels;
    for (int row = 0; row < shortcuts()->count(); ++row)
        labels.append(shortcuts()->item(row)->text());
    QCOMPARE(labels, (QStringList{u"Desktop"_s, u"My Documents"_s, u"Pictures"_s, u"Videos"_s, u"Music"_s,
                                  u"Downloads"_s, QString(), u"This PC"_s}));
    shortcuts()->setCurrentRow(5);
    QTest::keyClick(shortcuts(), Qt::Key_Return);
    QCOMPARE(tree()->topLevelItem(0)->text(0), u"Downloads"_s);
    QTest::keyClick(shortcuts(), Qt::Key_Down);
    QTest::keyClick(shortcuts(), Qt::Key_Space);
    QVERIFY(tree()->topLevelItem(0)->text(0).contains(" free of "_L1));
}

QObject *makeFileBrowserTest()
{
    return new FileBrowserTest;
}

#include "FileBrowserTest.moc"
