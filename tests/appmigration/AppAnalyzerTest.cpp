#include "PcTest.h"

#include "appmigration/AppAnalyzer.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"

#include <QDir>

using Platform::SpecialFolder;
using Platform::specialFolder;

class AppAnalyzerTest : public ScratchPcTest
{
    Q_OBJECT

private Q_SLOTS:
    void foldersAreClaimed_data()
    {
        const auto row = addColumns<QString, QString, QString, bool, bool>("name", "publisher", "folder",
                                                                           "asAppData", "asProgramData");
        row("whole name", u"Zq Xw"_s, u""_s, u"my zq xw 2"_s, true, true);
        row("a word of three", u"Zqx Yw"_s, u""_s, u"abzqxcd"_s, true, true);
        row("a word of two", u"Zq Xyw"_s, u""_s, u"zq"_s, true, true); // part of the name
        row("letters of two", u"Zq Xyw"_s, u""_s, u"azqb"_s, false, false);
        row("name of two", u"Zq"_s, u""_s, u"azqb"_s, true, true);
        row("joined", u"Zqx.Yw"_s, u""_s, u"ZQX-YW"_s, true, true);
        row("only separators", u"Zqx"_s, u""_s, u"-_-"_s, true, true);
        row("other", u"Zqx"_s, u""_s, u"Vwv"_s, false, false);
        row("publisher", u"Zqx"_s, u"Vwv Inc"_s, u"the vwv inc"_s, true, true);
        row("word of publisher", u"Zqx"_s, u"Vwvk Group"_s, u"xvwvkx"_s, true, false);
        row("no name", u""_s, u""_s, u"Vwv"_s, false, false);
    }
    void foldersAreClaimed()
    {
        QFETCH(QString, name);
        QFETCH(QString, publisher);
        QFETCH(QString, folder);
        const auto place = [&](SpecialFolder root) {
            return QDir::cleanPath(specialFolder(root) + u'/' + folder);
        };
        for (const auto root :
             {SpecialFolder::LocalAppData, SpecialFolder::RoamingAppData, SpecialFolder::CommonAppData})
            m_pc->writeFile(place(root) + u"/file"_s, "x");
        const AppInfo info = app(name);
        QTEST(findAppData(info, publisher, true).contains(place(SpecialFolder::LocalAppData)), "asAppData");
        QTEST(findAppData(info, publisher, false).contains(place(SpecialFolder::RoamingAppData)),
              "asAppData");
        QTEST(findProgramData(info, publisher).contains(place(SpecialFolder::CommonAppData)),
              "asProgramData");
    }

    void installFoldersComeFromManySources()
    {
        for (const QString &place : {u"Target/Own"_s, u"Target/Registered"_s, u"C:/Program Files/Zqxw Corp"_s,
                                     u"C:/Program Files/Other"_s, u"C:/Program Files (x86)/zqxwplus"_s})
            m_pc->writeFile(place + u"/file"_s, "x");
        m_pc->addRegistry(
            u"[HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
            "Zqxw Plus]\n\"InstallLocation\"=\"%1\"\n"_s.arg(m_pc->path(u"Target/Registered/"_s)));
        const QString own = m_pc->path(u"Target/Own"_s);
        QCOMPARE(findInstallDirs(app(u"Zqxw Plus"_s, own + u'/')),
                 (QStringList{own, m_pc->path(u"Target/Registered"_s), u"C:/Program Files/Zqxw Corp"_s,
                              u"C:/Program Files (x86)/zqxwplus"_s}));
        QCOMPARE(findInstallDirs(app(u"Vwv"_s, m_pc->path(u"Target/Gone"_s))), QStringList());
    }

    void keysAreClaimed()
    {
        const QString user = u"HKEY_CURRENT_USER\\SOFTWARE"_s;
        const QString machine32 = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node"_s;
        const QString uninstall =
            u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;
        const QStringList keys = {uninstall + u"\\zqxw_is1"_s, machine32 + u"\\The Zqxw"_s,
                                  user + u"\\Plus"_s, user + u"\\Vwv\\Zqxw"_s, user + u"\\ZQXW"_s};
        for (const QString &key : keys)
            m_pc->addRegistry(u"[%1]\n\"v\"=\"x\"\n"_s.arg(key));
        AppInfo info = app(u"Zqxw Plus"_s);
        info.hkcuRegPath = u"HKEY_CURRENT_USER\\Software\\Vwv\\Zqxw"_s;
        expectLog(u"  Found registry key: \"%1\" matched by keyword: \"Zqxw\""_s.arg(keys[4]).replace(
            u'\\', u"\\\\"_s));
        QCOMPARE(findRegistryKeys(info), (QStringList{info.hkcuRegPath, keys[0], keys[1], keys[4]}));
    }

    void shortcutsAreClaimed()
    {
        const QString menu = specialFolder(SpecialFolder::StartMenuPrograms);
        const QString target = m_pc->writeFile(u"Target/Zqxw/bin/a.exe"_s, "x");
        const QString outside = m_pc->writeFile(u"Target/Other/a.exe"_s, "x");
        const QString taken = writeLink(menu + u"/Corp/Zqxw Plus.lnk"_s, target);
        const QString other = writeLink(m_pc->homePath(u"Desktop/My zqxw.lnk"_s), outside);
        writeLink(menu + u"/Plus.lnk"_s, target);
        m_pc->writeFile(menu + u"/Zqxw broken.lnk"_s, "x");

        const AppInfo info = app(u"Zqxw Plus"_s);
        expectLog(u"  Found shortcut: \"%1\" matched by keyword: \"Zqxw Plus\""_s.arg(taken));
        const QList<ShortcutInfo> inside = findShortcuts(info, m_pc->path(u"TARGET/zqxw/"_s));
        QCOMPARE(inside.size(), 1);
        QCOMPARE(inside.first().shortcutPath, taken);
        QCOMPARE(QDir::fromNativeSeparators(inside.first().targetPath), target);
        QCOMPARE(inside.first().arguments, u"-a"_s);
        const QList<ShortcutInfo> anywhere = findShortcuts(info, QString());
        QCOMPARE(anywhere.size(), 2);
        QCOMPARE(anywhere.last().shortcutPath, other);

        if (!SimulatedPc::isMadeUp())
            return;
        QFile link(taken); // zeros in its last field harm nothing
        for (const auto &[size, found] : {std::pair(LargestShortcut, 1), std::pair(LargestShortcut + 1, 0)}) {
            QVERIFY(link.resize(link.size() - 1) && link.resize(size));
            QCOMPARE(findShortcuts(info, m_pc->path(u"Target/Zqxw"_s)).size(), found);
        }
    }

private:
    static AppInfo app(const QString &name, const QString &installPath = QString())
    {
        AppInfo info;
        info.name = name;
        info.installPath = installPath;
        return info;
    }
    QString writeLink(const QString &file, const QString &target)
    {
        if (!Platform::writeShellLink(file, {.path = target, .arguments = u"-a"_s}))
            qFatal("%s can't be written.", qPrintable(file));
        return file;
    }
};

ZANDROVE_TEST(AppAnalyzerTest)
#include "AppAnalyzerTest.moc"
