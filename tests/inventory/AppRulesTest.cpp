#include "InventoryTests.h"

#include "inventory/AppIdentity.h"
#include "inventory/AppList.h"
#include "inventory/PathExclusion.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

AppInfo app(const QString &name, const QString &path, qint64 size)
{
    AppInfo info;
    info.name = name;
    info.installPath = path;
    info.size = size;
    return info;
}

} // namespace

/// What one application is, what is none, and which of its files stay behind.
class AppRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalizesNames_data();
    void normalizesNames();
    void comparesNames_data();
    void comparesNames();
    void tellsSystemParts_data();
    void tellsSystemParts();
    void keepsTheBiggerOfTwoFinds_data();
    void keepsTheBiggerOfTwoFinds();
    void tellsFilesThatStayBehind_data();
    void tellsFilesThatStayBehind();
};

void AppRulesTest::normalizesNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("form");

    const auto row = [](const QString &name, const QString &form) {
        QTest::addRow("%s", qPrintable(name)) << name << form;
    };
    row(u"  Foo Bar "_s, u"foobar"_s);
    row(u"Foo (x64 en)"_s, u"foo"_s);
    row(u"Foo (x86)"_s, u"foo"_s);
    row(u"Foo (64-bit)"_s, u"foo"_s);
    row(u"Foo (32 bit)"_s, u"foo"_s);
    row(u"Foo (64bit)"_s, u"foo"_s);
    row(u"Foo (64--bit)"_s, u"foo64bit"_s);
    row(u"Foo x64"_s, u"foo"_s);
    row(u"Max64Tool"_s, u"matool"_s);
    row(u"Foox86"_s, u"foo"_s);
    row(u"Foo (de-AT)"_s, u"foo"_s);
    row(u"Foo (deu-at)"_s, u"foodeuat"_s);
    row(u"Foo Version 3.1 Pro"_s, u"foopro"_s);
    row(u"Foo v3.1"_s, u"foo"_s);
    row(u"Foo 3.1 (x64)"_s, u"foo"_s);
    row(u"Foo3"_s, u"foo3"_s);
    row(u"7 Foo"_s, u"foo"_s);
    row(u"v2 Foo 3"_s, u"foo"_s);
    row(u"Foo 1 2"_s, u"foo1"_s);
    row(u"Foo -"_s, u"foo"_s);
    row(u"Foo 2 -"_s, u"foo2"_s);
    row(u"天气 2.0"_s, u"天气"_s);
    row(u"天气 预报 X"_s, u"x"_s);
    row(u"***"_s, u"***"_s);
}

void AppRulesTest::normalizesNames()
{
    QFETCH(QString, name);
    QTEST(normalizeAppName(name), "form");
}

void AppRulesTest::comparesNames_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("same");

    const auto rows = [](bool same, const QList<std::pair<QString, QString>> &pairs) {
        for (const auto &[a, b] : pairs)
            QTest::addRow("%s / %s", qPrintable(a), qPrintable(b)) << a << b << same;
    };
    rows(true, {
                   // equal forms
                   {u"Foo"_s, u"foo"_s},
                   {u"Foo"_s, u"Foo 2.1"_s},
                   {u"Foo"_s, u"F-O-O"_s},
                   {u"Foo 1"_s, u"Foo v9.9"_s},
                   {u"Foo (x64)"_s, u"Foo (x86)"_s},
                   {u"Foo 64"_s, u"Foo"_s},
                   {u"Foo (en-us)"_s, u"Foo (zh-cn)"_s},
                   {u"Foo (64-bit)"_s, u"Foo (32-bit)"_s},
                   {u"Foo Version 1.0"_s, u"Foo Version 2.0"_s},
                   {u"2023 Foo"_s, u"Foo"_s},
                   {u"Foo -"_s, u"Foo"_s},
                   {u"A"_s, u"a 3"_s},
                   {u"Max64Tool"_s, u"Matool"_s},
                   {u"天气"_s, u"天气 2.0"_s},
                   {u"Uninstall Foo"_s, u"UNINSTALL foo 2"_s},
                   {u"1.0"_s, u"1.0 "_s},
                   {u""_s, u" "_s},
                   // a word of at least five in both, kept where there are no Latin letters
                   {u"长江记事本"_s, u"长江记事本 增强"_s},
                   {u"长江记事本 标准"_s, u"增强 长江记事本"_s},
                   {u"программа один"_s, u"программа два"_s},
                   // at least half of the longer one, from five characters on
                   {u"Stone"_s, u"Stonebridg"_s},
                   {u"Stone"_s, u"Bridgstone"_s},
                   {u"Stone"_s, u"Bristoneab"_s},
                   {u"Foo Edit"_s, u"My Foo Edit"_s},
                   {u"Photo Lab"_s, u"Photo Lab Pro"_s},
                   {u"Photo Lab"_s, u"Photo Laboratory"_s},
                   {u"Viewer"_s, u"The Viewer"_s},
                   {u"Notes"_s, u"Notes+ 64"_s},
                   // a common beginning of six or more, and seven tenths of the shorter one
                   {u"Clarityabc"_s, u"Clarityxyz"_s},
                   {u"Clarityabc"_s, u"Clarityxyzuvwxyz"_s},
                   {u"Quicktab"_s, u"Quicktor"_s},
                   {u"Foobarx"_s, u"Foobary"_s},
                   {u"Painter One"_s, u"Painter Two"_s},
                   {u"Developer Kit"_s, u"Developer Kip"_s},
               });
    rows(false, {
                    // only one removes the other
                    {u"Uninstall Foo"_s, u"Foo"_s},
                    {u"Uninstall Foo"_s, u"UninstallFoo"_s},
                    {u"uninstall Photo Lab"_s, u"Photo Lab"_s},
                    // below four characters only equality counts
                    {u"Abc"_s, u"Abd"_s},
                    {u"Abc"_s, u"Abcd"_s},
                    {u"Foo"_s, u"Foo Pro"_s},
                    {u"A"_s, u"B"_s},
                    {u"三国"_s, u"三国志"_s},
                    {u"Foo"_s, u"Foo (deu-at)"_s},
                    // words that are no common ones, or too short
                    {u"长江记事 标准"_s, u"增强 长江记事"_s},
                    {u"长江记事本"_s, u"黄河记事本"_s},
                    {u"один два"_s, u"один три"_s},
                    // less than half, or too short to be contained
                    {u"Stone"_s, u"Stonebridge"_s},
                    {u"Stone"_s, u"The Old Stone House"_s},
                    {u"Edit"_s, u"My Edit"_s},
                    {u"Word"_s, u"Words"_s},
                    {u"View"_s, u"Viewer"_s},
                    // a common beginning too short, or too little of it
                    {u"Horizoabcd"_s, u"Horizowxyz"_s},
                    {u"Abcdexy"_s, u"Abcdeuv"_s},
                    {u"Paint Box"_s, u"Paint Set"_s},
                    {u"Spring Data"_s, u"Spring Mail"_s},
                    {u"Amber Notes"_s, u"Amber Draw"_s},
                    {u"Photo Lab"_s, u"Video Lab"_s},
                    {u"Alpha"_s, u"Omega"_s},
                    {u"Foo 3"_s, u"Bar 3"_s},
                    {u"Foobar Tool"_s, u"Tool Foobar"_s},
                    {u"Office"_s, u""_s},
                    {u"天气"_s, u"Weather"_s},
                });
}

void AppRulesTest::comparesNames()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, same);
    QCOMPARE(isSameApp(a, b), same);
    QCOMPARE(isSameApp(b, a), same);
}

void AppRulesTest::tellsSystemParts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("publisher");
    QTest::addColumn<bool>("isSystem");

    const auto row = [](bool isSystem, const QString &name, const QString &location = {},
                        const QString &publisher = {}) {
        QTest::addRow("%s, %s, %s", qPrintable(name), qPrintable(location), qPrintable(publisher))
            << name << location << publisher << isSystem;
    };
    row(true, u"WINDOWS Thing"_s);
    row(true, u"Microsoft Windows Thing"_s);
    row(false, u"Thing for Windows"_s);
    row(true, u"Auto Update"_s);
    row(false, u"Auto Updates"_s);
    row(true, u"kb4471332"_s);
    row(false, u"KBoard 2"_s);
    row(false, u"My KB123"_s);
    row(true, u"Hotfix Update 3"_s);
    row(true, u"Foo Update"_s, {}, u"Microsoft Corporation"_s);
    row(false, u"Foo Update"_s, {}, u"Halden"_s);
    row(true, u"Foo"_s, u"D:\\Windows\\Foo"_s);
    row(true, u"Foo"_s, u"C:\\WindowsApps"_s);
    row(true, u"Foo"_s, u"D:\\a\\SysWOW64\\b"_s);
    row(false, u"Foo"_s, u"D:\\WindowsApps\\Foo"_s);
    row(false, u"Foo"_s, u"C:/Windows/System32/Foo"_s);
    row(true, u"Visual C++ 2015 Runtime"_s);
    row(false, u"Visual C++ Guide"_s);
    row(true, u"My .NET Core Host"_s);
    row(true, u"Sound Driver"_s, {}, u"Realtek Semiconductor"_s);
    row(false, u"Sound Driver"_s, {}, u"Halden"_s);
    row(false, u"Sound"_s, {}, u"Intel"_s);
    row(true, u"Photo Setup"_s);
    row(true, u"VS_Community 2022"_s);
    row(true, u" 10.2.3 "_s);
    row(false, u"10.2 b"_s);
    row(false, u"Photo Lab"_s, u"C:\\Program Files\\Photo Lab"_s, u"Halden"_s);
}

void AppRulesTest::tellsSystemParts()
{
    QFETCH(QString, name);
    QFETCH(QString, location);
    QFETCH(QString, publisher);
    QTEST(isSystemApp(name, location, publisher), "isSystem");
}

void AppRulesTest::keepsTheBiggerOfTwoFinds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("location");
    QTest::addColumn<qint64>("measured");
    QTest::addColumn<bool>("isAdded");
    QTest::addColumn<QStringList>("remaining");

    const QStringList all{u"Photo Lab"_s, u"Mail"_s};
    const auto row = [](const char *what, const QString &name, const QString &location, qint64 measured,
                        bool isAdded, const QStringList &remaining) {
        QTest::newRow(what) << name << location << measured << isAdded << remaining;
    };
    row("a new one", u"Chess"_s, u"C:\\Chess"_s, 1, true, all);
    row("equal name, however big", u"photo lab"_s, u"D:\\x"_s, 999, false, all);
    row("the same, bigger", u"Photo Lab 2"_s, u"D:\\x"_s, 101, true, {u"Mail"_s});
    row("the same, as big", u"Photo Lab 2"_s, u"D:\\x"_s, 100, false, all);
    row("the same without a folder, 0 is not more than 0", u"Mail 2"_s, u""_s, 0, false, all);
    row("the folder of another, in another form", u"Chess"_s, u"c:/PHOTO\\sub/..\\"_s, 999, false, all);
    row("no folder is not the same as no folder", u"Chess"_s, u""_s, 0, true, all);
}

void AppRulesTest::keepsTheBiggerOfTwoFinds()
{
    QFETCH(QString, name);
    QFETCH(QString, location);
    QFETCH(qint64, measured);
    AppList list;
    list.append(app(u"Photo Lab"_s, u"C:\\Photo"_s, 100));
    list.append(app(u"Mail"_s, {}, 0));

    QTEST(list.shouldAddApp(name, location, [measured](const QString &) { return measured; }), "isAdded");
    QStringList names;
    for (const AppInfo &info : list.apps())
        names.append(info.name);
    QTEST(names, "remaining");
}

void AppRulesTest::tellsFilesThatStayBehind_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("staysBehind");

    const auto row = [](bool staysBehind, const QString &path) {
        QTest::addRow("%s", qPrintable(path)) << path << staysBehind;
    };
    row(true, u"C:/App/CACHE/a.bin"_s);
    row(true, u"C:\\App\\Code Cache\\a.bin"_s);
    row(true, u"C:/App/fontcache/a.bin"_s);
    row(true, u"C:/App/DiskCache/a.bin"_s);
    row(false, u"C:\\App\\DiskCache\\a.bin"_s); // no form with backslashes
    row(false, u"C:/App/mycache/a.bin"_s);
    row(false, u"C:/App/cache"_s);
    row(true, u"C:/temp/App/app.exe"_s);
    row(true, u"C:\\App\\.temp\\a"_s);
    row(false, u"C:/App/templates/a"_s);
    row(true, u"C:\\App\\Crash Reports\\a.dmp"_s);
    row(true, u"C:/App/foo-updater/a.dll"_s);
    row(true, u"C:\\App\\Update\\a.dll"_s);
    row(true, u"C:/App/AutoUpdate.exe"_s);
    row(true, u"C:/App/mysetup.EXE"_s);
    row(false, u"C:/App/setup.exe.config"_s);
    row(true, u"C:/App/Thumbs.db"_s);
    row(true, u"C:/App/~$report.docx"_s);
    row(true, u"C:\\App\\~$report.docx"_s);
    row(true, u"C:/App/report~$"_s);
    row(false, u"C:/~$App/report.docx"_s);
    row(true, u"C:/App/IndexedDB/1"_s);
    row(true, u"C:\\network\\App\\a.dll"_s);
    row(true, u"C:/App/data.db-wal"_s);
    row(false, u"C:/App/data.db"_s);
    row(true, u"C:/Downloads/App.zip"_s);
    row(true, u"C:\\Downloads\\a\\App.7z"_s);
    row(false, u"C:/Downloads/notes.txt"_s);
    row(false, u"C:/App/App.zip"_s);
    row(false, u"C:/Program Files/App/app.exe"_s);
    row(false, u""_s);
}

void AppRulesTest::tellsFilesThatStayBehind()
{
    QFETCH(QString, path);
    QTEST(isExcludedFile(path), "staysBehind");
}

QObject *makeAppRulesTest()
{
    return new AppRulesTest;
}

#include "AppRulesTest.moc"
