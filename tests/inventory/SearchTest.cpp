#include "InventoryTests.h"

#include "inventory/InstallPathSearch.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

/// A PC that is nothing but a list of its files.
FolderView listing(const QStringList &paths)
{
    const auto isFolder = [paths](const QString &path) {
        return std::any_of(paths.begin(), paths.end(),
                           [&path](const QString &file) { return file.startsWith(path + u'/'); });
    };
    const auto below = [paths](const QString &folder, bool folders) {
        QStringList names;
        for (const QString &path : paths) {
            if (!path.startsWith(folder + u'/'))
                continue;
            const QString rest = path.mid(folder.size() + 1);
            const QString name = rest.section(u'/', 0, 0);
            if (rest.contains(u'/') == folders && !names.contains(name))
                names.append(name);
        }
        return names;
    };
    return {
        .exists = [paths, isFolder](const QString &path) { return paths.contains(path) || isFolder(path); },
        .isFolder = isFolder,
        .subfolders = [below](const QString &folder) { return below(folder, true); },
        .files =
            [below](const QString &folder, const QString &pattern) {
                const QString suffix = pattern.mid(1);
                return below(folder, false).filter(suffix);
            }};
}

} // namespace

/// Finding an application's folder and icon, over made-up listings.
class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void triesLikelyNamesFirst()
    {
        QCOMPARE(candidateFolderNames({u"foo key"_s, u"Foo Bar Version 2.1"_s, u"Halden"_s}),
                 QStringList({u"foo key"_s, u"Foo Bar Version 2.1"_s, u"Halden/foo key"_s, u"Halden"_s,
                              u"fookey"_s, u"FooBarVersion2.1"_s, u"Foo Bar"_s}));
        QCOMPARE(candidateFolderNames({u"Foo v3"_s, u"Foo v3"_s}),
                 QStringList({u"Foo v3"_s, u"Foov3"_s, u"Foo"_s}));
        // Neither the folder that is searched nor one above it, whatever a key is called.
        QCOMPARE(candidateFolderNames({u".."_s, u"..\\.."_s, u"."_s}), QStringList());
        QCOMPARE(candidateFolderNames({u" "_s, u"../Foo"_s, u"\\"_s}), QStringList());
    }

    void findsTheFolder_data()
    {
        addColumns<QStringList, QString, QString, QString>("files", "name", "publisher", "found");
        const auto row = [](const char *what, const QStringList &files, const QString &name,
                            const QString &found, const QString &publisher = {}) {
            QTest::newRow(what) << files << name << publisher << found;
        };
        row("exact", {u"P/foo/a.exe"_s, u"P/Foo/a.exe"_s}, u"Foo"_s, u"P/Foo"_s);
        row("by publisher and name", {u"P/Halden/Foo/a.exe"_s}, u"Foo"_s, u"P/Halden/Foo"_s, u"Halden"_s);
        row("by publisher alone", {u"P/Halden/a.exe"_s}, u"Qux"_s, u"P/Halden"_s, u"Halden"_s);
        row("without its version", {u"P/Foo Bar/a.exe"_s}, u"Foo Bar v2"_s, u"P/Foo Bar"_s);
        row("no program directly in it", {u"P/Foo/bin/a.exe"_s, u"P/x/Foo.txt"_s}, u"Foo"_s, u""_s);
        row("letter case, after a folder without a program", {u"P/Foo/a.txt"_s, u"P/FOO/a.exe"_s}, u"Foo"_s,
            u"P/FOO"_s);
        row("punctuation", {u"P/F.o_o-7/a.exe"_s}, u"Foo 7"_s, u"P/F.o_o-7"_s);
        row("punctuation, too short", {u"P/F.o_o/a.exe"_s}, u"F-oo"_s, u""_s);
        row("exact below the second root after alike below the first",
            {u"P/My Foobar/a.exe"_s, u"Q/Foobar/a.exe"_s}, u"Foobar"_s, u"P/My Foobar"_s);
        row("the second root", {u"P/Other/a.exe"_s, u"Q/Foobar/a.exe"_s}, u"Foobar"_s, u"Q/Foobar"_s);
        row("folder contains the name", {u"P/The foo app/a.exe"_s}, u"Foo"_s, u"P/The foo app"_s);
        row("name contains the folder, two letters", {u"P/oo/a.exe"_s}, u"Foo Bar"_s, u"P/oo"_s);
        row("the first eight characters", {u"P/old abcdefgh 1/a.exe"_s}, u"Abcdefgh-ijk"_s,
            u"P/old abcdefgh 1"_s);
        row("seven characters are too few", {u"P/old abcdefg 1/a.exe"_s}, u"Abcdefgh-ijk"_s, u""_s);
        row("six tenths", {u"P/ab.c-def/a.exe"_s}, u"Zz Abcdef 7q"_s, u"P/ab.c-def"_s);
        row("less than six tenths", {u"P/ab.c-def/a.exe"_s}, u"Zz Abcdef 7qq"_s, u""_s);
        row("no Latin letters", {u"P/天气预报 2/a.exe"_s}, u"天气预报"_s, u"P/天气预报 2"_s);
    }
    void findsTheFolder()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, name);
        QFETCH(QString, publisher);
        QTEST(findInstallPath({name, name, publisher}, {QString(), u"Missing"_s, u"P"_s, u"Q"_s},
                              listing(files)),
              "found");
    }

    void picksTheIcon_data()
    {
        addColumns<QString, QStringList, QString>("displayIcon", "files", "icon");
        const auto row = [](const char *what, const QString &displayIcon, const QStringList &files,
                            const QString &icon) { QTest::newRow(what) << displayIcon << files << icon; };
        row("what the registry names", u" \"P/x.dll\" ,-101"_s, {u"P/x.dll"_s, u"P/photo.exe"_s},
            u"P/x.dll"_s);
        row("nothing but an index", u",0"_s, {u"P/Photo Lab/a.exe"_s}, u"P/Photo Lab/a.exe"_s);
        row("missing, so the program of that name", u"P/gone.ico"_s,
            {u"P/Photo Lab/zz.exe"_s, u"P/Photo Lab/Photo-Lab!.exe"_s}, u"P/Photo Lab/Photo-Lab!.exe"_s);
        row("folder contains the program's name", {}, {u"P/Photo Lab/a-b.exe"_s, u"P/Photo Lab/lab.exe"_s},
            u"P/Photo Lab/lab.exe"_s);
        row("program begins like the folder", {}, {u"P/Photo Lab/zz.exe"_s, u"P/Photo Lab/myphotos.exe"_s},
            u"P/Photo Lab/myphotos.exe"_s);
        row("the first that is no helper", {},
            {u"P/Photo Lab/Photo Lab Setup.exe"_s, u"P/Photo Lab/UNINST.exe"_s, u"P/Photo Lab/zz.exe"_s,
             u"P/Photo Lab/zzz.exe"_s},
            u"P/Photo Lab/zz.exe"_s);
        row("an icon file of that name", {},
            {u"P/Photo Lab/update.exe"_s, u"P/Photo Lab/zz.ico"_s, u"P/Photo Lab/photo.big.ico"_s},
            u"P/Photo Lab/photo.big.ico"_s);
        row("any icon file", {}, {u"P/Photo Lab/zz.ico"_s, u"P/Photo Lab/yy.ico"_s}, u"P/Photo Lab/zz.ico"_s);
        row("none", {}, {u"P/Photo Lab/readme.txt"_s}, {});
        row("no folder", {}, {u"P/Other/a.exe"_s}, {});
    }
    void picksTheIcon()
    {
        QFETCH(QString, displayIcon);
        QFETCH(QStringList, files);
        QTEST(findAppIconPath(displayIcon, u"P/Photo Lab"_s, u"Photo Lab"_s, listing(files)), "icon");
    }
};

ZANDROVE_TEST(SearchTest)
#include "SearchTest.moc"
