#include "TestMain.h"

#include "inventory/AppIdentity.h"
#include "inventory/AppList.h"
#include "inventory/PathExclusion.h"

namespace {

/// The items of a table: one or several a line, with semicolons between them.
QStringList itemsIn(QString table)
{
    QStringList items;
    const QStringList texts = table.replace(u'\n', u';').split(u';', Qt::SkipEmptyParts);
    for (const QString &text : texts)
        items.append(text.trimmed());
    items.removeAll(QString());
    return items;
}

/// Items of two texts each.
QList<std::pair<QString, QString>> pairsIn(const QString &table, QChar separator)
{
    QList<std::pair<QString, QString>> pairs;
    for (const QString &item : itemsIn(table))
        pairs.append({item.section(separator, 0, 0).trimmed(), item.section(separator, 1).trimmed()});
    return pairs;
}

} // namespace

/// What one application is, what is none, and which of its files stay behind.
class AppRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalizesNames()
    {
        for (const auto &[name, form] : pairsIn(uR"(
            Foo Bar > foobar ; Foo - > foo ; Foo3 > foo3 ; Foo 2 - > foo2
            Foo (x64 en) > foo ; Foo (x86) > foo ; Foo x64 > foo ; Max64Tool > matool ; Foox86 > foo
            Foo (64-bit) > foo ; Foo (32 bit) > foo ; Foo (64bit) > foo ; Foo (64--bit) > foo64bit
            Foo (de-AT) > foo ; Foo (deu-at) > foodeuat
            Foo Version 3.1 Pro > foopro ; Foo v3.1 > foo ; Foo 3.1 (x64) > foo ; Foo 1 2 > foo1
            7 Foo > foo ; v2 Foo 3 > foo
            天气 2.0 > 天气 ; 天气 预报 X > x ; *** > ***)"_s,
                                                u'>'))
            QCOMPARE(name + u" > "_s + normalizeAppName(name), name + u" > "_s + form);
    }

    void comparesNames()
    {
        const auto judge = [](bool same, const QString &text) {
            for (const auto &[a, b] : pairsIn(text, u'/')) {
                QVERIFY2(isSameApp(a, b) == same, qPrintable(a + u" / "_s + b));
                QVERIFY2(isSameApp(b, a) == same, qPrintable(b + u" / "_s + a));
            }
        };
        // One rule a line: equal forms; a word of five; half of the longer one; a common beginning.
        judge(true, uR"(
            Foo / foo ; Foo / F-O-O ; A / a 3 ; Foo - / Foo ; 1.0 / (1.0) ; Foo 64 / Foo ; 2023 Foo / Foo
            Foo / Foo 2.1 ; Foo 1 / Foo v9.9 ; Foo Version 1.0 / Foo Version 2.0 ; 天气 / 天气 2.0
            Foo (x64) / Foo (x86) ; Foo (en-us) / Foo (zh-cn) ; Foo (64-bit) / Foo (32-bit)
            Max64Tool / Matool ; Uninstall Foo / UNINSTALL foo 2
            长江记事本 / 长江记事本 增强 ; 长江记事本 标准 / 增强 长江记事本 ; программа один / программа два
            Stone / Stonebridg ; Stone / Bridgstone ; Stone / Bristoneab ; Photo Lab / Photo Laboratory
            Foo Edit / My Foo Edit ; Photo Lab / Photo Lab Pro ; Viewer / The Viewer ; Notes / Notes+ 64
            Clarityabc / Clarityxyz ; Clarityabc / Clarityxyzuvwxyz ; Quicktab / Quicktor
            Foobarx / Foobary ; Painter One / Painter Two ; Developer Kit / Developer Kip)"_s);
        // Only one removes the other; below four characters; no or too little in common; too short a start.
        judge(false, uR"(
            Uninstall Foo / Foo ; Uninstall Foo / UninstallFoo ; uninstall Photo Lab / Photo Lab
            Abc / Abd ; Abc / Abcd ; Foo / Foo Pro ; A / B ; 三国 / 三国志 ; Foo / Foo (deu-at) ; Foo 3 / Bar 3
            长江记事 标准 / 增强 长江记事 ; 长江记事本 / 黄河记事本 ; один два / один три ; 天气 / Weather
            Stone / Stonebridge ; Stone / The Old Stone House ; Edit / My Edit ; Word / Words ; View / Viewer
            Horizoabcd / Horizowxyz ; Abcdexy / Abcdeuv ; Paint Box / Paint Set ; Spring Data / Spring Mail
            Amber Notes / Amber Draw ; Photo Lab / Video Lab ; Alpha / Omega ; One Two / Two Three
            Mail x64 / Maps x64 ; Foobar Tool / Tool Foobar)"_s);
    }

    void tellsSystemParts()
    {
        // name @ location @ publisher
        const auto judge = [](bool isSystem, const QString &text) {
            for (const QString &item : itemsIn(text)) {
                const auto part = [&item](int i) { return item.section(u'@', i, i).trimmed(); };
                QVERIFY2(isSystemApp(part(0), part(1), part(2)) == isSystem, qPrintable(item));
            }
        };
        judge(true, u"WINDOWS Thing ; Microsoft Windows Thing ; Auto Update ; kb4471332 ; Hotfix Update 3 ;"
                    "Visual C++ 2015 Runtime ; My .NET Core Host ; Photo Setup ; VS_Community 2022 ; 10.2.3 ;"
                    "Microsoft OneDrive ; Microsoft Edge WebView2 Runtime ; vcredist_x64 ; Update ;"
                    "Shared Redistributable Pack ; Security Patch Update ; 7 ;"
                    "Foo Update @ @ Microsoft Corporation ; Sound Driver @ @ Realtek Semiconductor ;"
                    "Foo @ D:\\Windows\\Foo ; Foo @ C:\\WindowsApps ; Foo @ D:\\a\\SysWOW64\\b"_s);
        judge(false, u"Thing for Windows ; Auto Updates ; KBoard 2 ; My KB123 ; Visual C++ Guide ; 10.2 b ;"
                     "Foo Update @ @ Halden ; Sound Driver @ @ Halden ; Sound @ @ Intel ;"
                     "Foo @ D:\\WindowsApps\\Foo ; Foo @ C:/Windows/System32/Foo ;"
                     "Photo Lab @ C:\\Program Files\\Photo Lab @ Halden"_s);
    }

    void keepsTheBiggerOfTwoFinds_data()
    {
        const auto row = addColumns<QString, QString, qint64, bool, QString>("name", "location", "measured",
                                                                             "isAdded", "remaining");
        const QString all = u"Photo Lab, Mail"_s;
        row("a new one", u"Chess"_s, u"C:\\Chess"_s, 1, true, all);
        row("equal name, however big", u"photo lab"_s, u"D:\\x"_s, 999, false, all);
        row("the same, bigger", u"Photo Lab 2"_s, u"D:\\x"_s, 101, true, u"Mail"_s);
        row("the same, as big", u"Photo Lab 2"_s, u"D:\\x"_s, 100, false, all);
        row("the same without a folder, 0 is not more than 0", u"Mail 2"_s, u""_s, 0, false, all);
        row("the folder of another, in another form", u"Chess"_s, u"c:/PHOTO\\sub/..\\"_s, 999, false, all);
        row("no folder is not the same as no folder", u"Chess"_s, u""_s, 0, true, all);
    }
    void keepsTheBiggerOfTwoFinds()
    {
        QFETCH(QString, name);
        QFETCH(QString, location);
        QFETCH(qint64, measured);
        QList<AppInfo> known(2);
        known[0].name = u"Photo Lab"_s;
        known[0].installPath = u"C:\\Photo"_s;
        known[0].size = 100;
        known[1].name = u"Mail"_s;
        AppList list;
        for (const AppInfo &app : known)
            list.append(app);
        QTEST(list.shouldAddApp(name, location, [measured](const QString &) { return measured; }), "isAdded");
        QStringList names;
        for (const AppInfo &info : list.apps())
            names.append(info.name);
        QTEST(names.join(u", "_s), "remaining");
    }

    void tellsFilesThatStayBehind()
    {
        const auto judge = [](bool staysBehind, const QString &text) {
            for (const QString &path : itemsIn(text))
                QVERIFY2(isExcludedFile(path) == staysBehind, qPrintable(path));
        };
        judge(true, uR"(
            C:/App/CACHE/a.bin ; C:\App\Code Cache\a.bin ; C:/App/fontcache/a.bin ; C:/App/DiskCache/a.bin
            C:/temp/App/app.exe ; C:\App\.temp\a ; C:\App\Crash Reports\a.dmp
            C:/App/foo-updater/a.dll ; C:\App\Update\a.dll ; C:/App/AutoUpdate.exe ; C:/App/mysetup.EXE
            C:/App/Thumbs.db ; C:/App/~$report.docx ; C:\App\~$report.docx ; C:/App/report~$
            C:/App/IndexedDB/1 ; C:\network\App\a.dll ; C:/App/data.db-wal
            C:/Downloads/App.zip ; C:\Downloads\a\App.7z)"_s);
        judge(false, uR"(
            C:\App\DiskCache\a.bin ; C:/App/mycache/a.bin ; C:/App/cache ; C:/App/templates/a
            C:/App/setup.exe.config ; C:/~$App/report.docx ; C:/App/data.db
            C:/Downloads/notes.txt ; C:/App/App.zip ; C:/Program Files/App/app.exe)"_s);
    }
};

ZANDROVE_TEST(AppRulesTest)
#include "AppRulesTest.moc"
