#include "TestMain.h"

#include "inventory/InstallPathSearch.h"

#include <algorithm>

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
            const QString rest = path.mid(folder.size() + 1);
            if (path.startsWith(folder + u'/') && rest.contains(u'/') == folders)
                names.append(rest.section(u'/', 0, 0));
        }
        names.removeDuplicates();
        return names;
    };
    return {.exists = [=](const QString &path) { return paths.contains(path) || isFolder(path); },
            .isFolder = isFolder,
            .subfolders = [=](const QString &folder) { return below(folder, true); },
            .files = [=](const QString &folder,
                         const QString &pattern) { return below(folder, false).filter(pattern.mid(1)); }};
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
        const auto row =
            addColumns<QString, QString, QString, QString>("files", "name", "found", "publisher");
        row("exact", u"P/foo/a.exe|P/Foo/a.exe"_s, u"Foo"_s, u"P/Foo"_s, {});
        row("by publisher and name", u"P/Halden/Foo/a.exe"_s, u"Foo"_s, u"P/Halden/Foo"_s, u"Halden"_s);
        row("by publisher alone", u"P/Halden/a.exe"_s, u"Qux"_s, u"P/Halden"_s, u"Halden"_s);
        row("without its version", u"P/Foo Bar/a.exe"_s, u"Foo Bar v2"_s, u"P/Foo Bar"_s, {});
        row("no program directly in it", u"P/Foo/bin/a.exe|P/x/Foo.txt"_s, u"Foo"_s, {}, {});
        row("letter case, after one without a program", u"P/Foo/a.txt|P/FOO/a.exe"_s, u"Foo"_s, u"P/FOO"_s,
            {});
        row("punctuation", u"P/F.o_o-7/a.exe"_s, u"Foo 7"_s, u"P/F.o_o-7"_s, {});
        row("punctuation, too short", u"P/F.o_o/a.exe"_s, u"F-oo"_s, {}, {});
        row("alike below the first root, exact below the second", u"P/My Foobar/a.exe|Q/Foobar/a.exe"_s,
            u"Foobar"_s, u"P/My Foobar"_s, {});
        row("the second root", u"P/Other/a.exe|Q/Foobar/a.exe"_s, u"Foobar"_s, u"Q/Foobar"_s, {});
        row("folder contains the name", u"P/The foo app/a.exe"_s, u"Foo"_s, u"P/The foo app"_s, {});
        row("name contains the folder, two letters", u"P/oo/a.exe"_s, u"Foo Bar"_s, u"P/oo"_s, {});
        row("eight characters", u"P/old abcdefgh 1/a.exe"_s, u"Abcdefgh-ijk"_s, u"P/old abcdefgh 1"_s, {});
        row("seven characters are too few", u"P/old abcdefg 1/a.exe"_s, u"Abcdefgh-ijk"_s, {}, {});
        row("six tenths", u"P/ab.c-def/a.exe"_s, u"Zz Abcdef 7q"_s, u"P/ab.c-def"_s, {});
        row("less than six tenths", u"P/ab.c-def/a.exe"_s, u"Zz Abcdef 7qq"_s, {}, {});
        row("no Latin letters", u"P/天气预报 2/a.exe"_s, u"天气预报"_s, u"P/天气预报 2"_s, {});
    }
    void findsTheFolder()
    {
        QFETCH(QString, files);
        QFETCH(QString, name);
        QFETCH(QString, publisher);
        const QStringList roots = {QString(), u"Missing"_s, u"P"_s, u"Q"_s};
        const FolderView disk = listing(files.split(u'|'));
        QTEST(findInstallPath({name, name, publisher}, roots, disk), "found");
    }

    void picksTheIcon_data()
    {
        const auto row = addColumns<QString, QString, QString>("displayIcon", "files", "icon");
        row("what the registry names", u" \"P/Photo Lab/x.dll\" ,-101"_s, u"x.dll|lab.exe"_s, u"x.dll"_s);
        row("nothing but an index", u",0"_s, u"a.exe"_s, u"a.exe"_s);
        row("missing, so the program of that name", u"P/gone.ico"_s, u"zz.exe|Photo-Lab!.exe"_s,
            u"Photo-Lab!.exe"_s);
        row("folder contains the program's name", {}, u"a-b.exe|lab.exe"_s, u"lab.exe"_s);
        row("program begins like the folder", {}, u"zz.exe|myphotos.exe"_s, u"myphotos.exe"_s);
        row("the first that is no helper", {}, u"Photo Lab Setup.exe|UNINST.exe|zz.exe|zzz.exe"_s,
            u"zz.exe"_s);
        row("an icon file of that name", {}, u"update.exe|zz.ico|photo.big.ico"_s, u"photo.big.ico"_s);
        row("any icon file", {}, u"zz.ico|yy.ico"_s, u"zz.ico"_s);
        row("none", {}, u"readme.txt"_s, {});
        row("no folder", {}, {}, {});
    }
    void picksTheIcon()
    {
        QFETCH(QString, displayIcon);
        QFETCH(QString, files);
        QFETCH(QString, icon);
        const QString folder = u"P/Photo Lab"_s;
        QStringList paths;
        for (const QString &file : files.split(u'|', Qt::SkipEmptyParts))
            paths.append(folder + u'/' + file);
        QCOMPARE(findAppIconPath(displayIcon, folder, u"Photo Lab"_s, listing(paths)),
                 icon.isEmpty() ? icon : folder + u'/' + icon);
    }
};

ZANDROVE_TEST(SearchTest)
#include "SearchTest.moc"
