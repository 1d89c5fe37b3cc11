#include "PcTest.h"

#include "appmigration/AppInstaller.h"
#include "appmigration/FileCopy.h"
#include "appmigration/RegistryText.h"
#include "platform/Identity.h"
#include "platform/Registry.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"
#include "support/Paths.h"

#include <QDir>
#include <QStandardPaths>

using Platform::SpecialFolder;
using Platform::specialFolder;

class AppInstallerTest : public ScratchPcTest
{
    Q_OBJECT

private Q_SLOTS:
    void targetIsChosen()
    {
        const QString programs = specialFolder(SpecialFolder::ProgramFiles);
        const QString users = u"C:/Users/"_s;
        const std::tuple<QString, QString, QString> targets[] = {
            // of an application's name and old place
            {u"Acme  Big Editor version 2.1"_s, u""_s, programs + u"/Acme_Big_Editor"_s},
            {u"Acme Version 2"_s, u"/"_s, programs + u"/Acme_Version_2"_s},
            {u"x"_s, u"C:\\Program Files\\Vendor\\App\\"_s, programs + u"/App"_s},
            {u"x"_s, u"E:/program files (X86)/App"_s,
             specialFolder(SpecialFolder::ProgramFilesX86) + u"/App"_s},
            {u"x"_s, u"C:\\Users\\Anna\\AppData\\App"_s, users + Platform::userName() + u"/AppData/App"_s},
            {u"x"_s, users + u"other/App"_s, users + u"other/App"_s},
            {u"x"_s, u"D:\\Games\\App"_s, u"D:/Games/App"_s},
            {u"x"_s, u"D:\\"_s, u"D:"_s}};
        for (const auto &[name, original, target] : targets) {
            AppPackageInfo info = package(name);
            info.originalInstallLocation = original;
            QCOMPARE(AppInstaller().getTargetInstallPath(info), target);
        }
    }

    void everythingLandsWhereItBelongs_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<bool>("shortcutLeads"); ///< to the installed program

        QTest::newRow("top folder") << u"C:\\Program Files\\ZandroveTest"_s << true;
        QTest::newRow("another user's") << u"C:\\Users\\anna\\AppData\\Local\\ZandroveTest"_s << true;
        // The install folder is known with slashes only, which is how Windows keeps no shortcut's path.
        QTest::newRow("vendor") << u"C:\\Program Files\\Vendor\\ZandroveTest"_s << false;
        QTest::newRow("slashes") << u"C:/Program Files/Vendor/ZandroveTest"_s << SimulatedPc::isMadeUp();
    }
    void everythingLandsWhereItBelongs()
    {
        AppPackageInfo info = package();
        QFETCH(QString, location);
        info.originalInstallLocation = location;
        const QString target = AppInstaller().getTargetInstallPath(info);
        const QList<std::pair<QString, QString>> places = {
            {u"Install/Acme/bin/a.exe"_s, target + u"/bin/a.exe"_s},
            {u"Install/Other/.hidden"_s, target + u"/.hidden"_s},
            {u"AppData/Local/Acme/a"_s, specialFolder(SpecialFolder::LocalAppData) + u"/Acme/a"_s},
            {u"AppData/Roaming/Acme/b"_s, specialFolder(SpecialFolder::RoamingAppData) + u"/Acme/b"_s},
            {u"ProgramData/Acme/c"_s, specialFolder(SpecialFolder::CommonAppData) + u"/Acme/c"_s}};
        for (const auto &[from, to] : places)
            m_pc->writeFile(info.receivedBasePath + u'/' + from, from.toUtf8());
        const QString registry =
            u"Windows Registry Editor Version 5.00\r\n\r\n[%1]\r\n"
            "\"plain\"=\"C:/Users/anna/x\"\r\n\"doubled\"=\"C:\\\\Users\\\\anna\\\\x\"\r\n"_s;
        m_pc->writeFile(info.receivedBasePath + u"/registry.reg"_s, registry.arg(Key).toUtf8());
        const QString shortcuts = info.receivedBasePath + u"/Shortcuts"_s;
        for (const QString &place : {u"/Desktop"_s, u"/StartMenu"_s})
            QVERIFY(Platform::writeShellLink(shortcuts + place + u"/Acme.lnk"_s,
                                             {.path = location + u"/bin/a.exe"_s,
                                              .arguments = u"C:/Users/anna/x"_s,
                                              .workingDirectory = u"C:\\Users\\anna\\work"_s,
                                              .iconPath = u"C:\\Users\\anna\\a.ico"_s,
                                              .iconIndex = 3,
                                              .description = u"C:/Users/anna/x"_s}));

        AppInstaller installer;
        QSignalSpy finished(&installer, &AppInstaller::finished);
        QVERIFY(installer.install(info));
        QCOMPARE(info.status, AppPackageInfo::Installed);
        QCOMPARE(finished, (QList<QVariantList>{{u"Acme"_s, true, QString()}}));

        for (const auto &[from, to] : places)
            QCOMPARE(contentOf(to), from.toUtf8());
        const Platform::RegistryKey key(Key);
        QCOMPARE(key.text(u"plain"_s), u"C:/Users/%1/x"_s.arg(Platform::userName()));
        QCOMPARE(key.text(u"doubled"_s), u"C:\\Users\\anna\\x"_s);
        const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
        QCOMPARE(contentOf(info.importedKeysCopy), registry.arg(Key).toUtf8());
        for (const QString &folder : {desktop, specialFolder(SpecialFolder::StartMenuPrograms)}) {
            const auto link =
                Platform::readShellLink(folder + u"/Acme.lnk"_s).value_or(Platform::ShellLink{});
            QTEST(QFile::exists(withSlashes(link.path)), "shortcutLeads");
            auto expected = Platform::readShellLink(shortcuts + u"/Desktop/Acme.lnk"_s).value_or(link);
            expected.path = link.path;
            expected.workingDirectory = u"C:\\Users\\%1\\work"_s.arg(Platform::userName());
            expected.iconPath = u"C:\\Users\\%1\\a.ico"_s.arg(Platform::userName());
            QVERIFY(link == expected);
        }
    }

    void onlyInstallFilesCanFail_data()
    {
        QTest::addColumn<QString>("file"); ///< in the received folder; a folder where it ends in a slash
        QTest::addColumn<QString>("location");
        QTest::addColumn<bool>("installed");

        const QString fine = u"Target/Acme"_s;
        QTest::newRow("nothing received") << u"x/"_s << fine << true;
        QTest::newRow("no folders") << u"Install/file"_s << fine << true;
        QTest::newRow("no files") << u"Install/Acme/sub/"_s << fine << false;
        QTest::newRow("files") << u"Install/Acme/file"_s << fine << true;
        QTest::newRow("a file in the way") << u"Install/Acme/file"_s << u"blocked/Acme"_s << false;
        if (SimulatedPc::isMadeUp())
            QTest::newRow("read-only folder") << u"Install/Acme/file"_s << u"/proc/Acme"_s << false;
        QTest::newRow("where packages arrive") << u"Install/Acme/file"_s << u"$T/Zandrove/x"_s << false;
        QTest::newRow("that folder by a detour") << u"Install/Acme/file"_s << u"$T/y/../Zandrove"_s << false;
        QTest::newRow("data without files") << u"AppData/Local/Acme/"_s << fine << true;
        QTest::newRow("damaged registry") << u"registry.reg"_s << fine << true;
        QTest::newRow("damaged shortcut") << u"Shortcuts/Desktop/x.lnk"_s << fine << true;
    }
    void onlyInstallFilesCanFail()
    {
        QFETCH(QString, file);
        QFETCH(QString, location);
        QFETCH(bool, installed);
        AppPackageInfo info = package(u"a/../../x"_s);
        m_pc->writeFile(u"blocked"_s, "x");
        location.replace(u"$T"_s, QStandardPaths::writableLocation(QStandardPaths::TempLocation));
        info.originalInstallLocation = m_pc->path(location);
        if (file.endsWith(u'/'))
            QVERIFY(QDir().mkpath(info.receivedBasePath + u'/' + file));
        else
            m_pc->writeFile(info.receivedBasePath + u'/' + file, "content");

        AppInstaller installer;
        QSignalSpy finished(&installer, &AppInstaller::finished);
        QCOMPARE(installer.install(info), installed);
        QCOMPARE(info.status, installed ? AppPackageInfo::Installed : AppPackageInfo::Failed);
        QCOMPARE(info.errorMessage.section(u':', 0, 0),
                 installed ? QString() : u"Failed to copy install files"_s);
        QCOMPARE(finished, (QList<QVariantList>{{info.name, installed, info.errorMessage}}));
        QVERIFY(
            !QDir(QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/Zandrove"_s).exists());
    }

    void copiesTakeTheirPlaceWholeOrNot()
    {
        const QString source = m_pc->writeFile(u"from/a"_s, QByteArray(3 << 20, 'n'));
        QFile old(m_pc->writeFile(u"to/a"_s, "old"));
        m_pc->writeFile(u"to/.a.7fffffff-0123456789abcdef-1.zandrove-part"_s, "of a killed program");
        const auto outcome = [&](const CopyControl &goOn) {
            const CopyResult result = copyDirectory(m_pc->path(u"from"_s), m_pc->path(u"to"_s), goOn);
            const QStringList files = QDir(m_pc->path(u"to"_s)).entryList(QDir::Files | QDir::Hidden);
            const QByteArray content = contentOf(old.fileName()).left(3);
            return files + QStringList{QString::fromLatin1(content), result.failures.value(0).reason};
        };
        int asked = 0;
        QCOMPARE(outcome([&](int) { return ++asked < 3; }), (QStringList{u"a"_s, u"old"_s, QString()}));
        asked = 0;
        QCOMPARE(outcome([&](int) { return ++asked != 2 || QFile::resize(source, 1 << 20); }),
                 (QStringList{u"a"_s, u"old"_s, u"it became shorter meanwhile"_s}));
        if (!SimulatedPc::isMadeUp()) { // where an open file can't be replaced
            QVERIFY(old.open(QIODevice::ReadOnly));
            QCOMPARE(outcome({}).first(2), (QStringList{u"a"_s, u"old"_s}));
            old.close();
        }
        QCOMPARE(outcome({}), (QStringList{u"a"_s, u"nnn"_s, QString()}));

        const QString folder = m_pc->path(u"to"_s);
        QCOMPARE(copyDirectory(folder, folder + u"/deep/er"_s).copied, 0);
        QVERIFY(!QDir(folder + u"/deep"_s).exists());
    }

    void gapsAndStopsAreTold()
    {
        AppPackageInfo info = package();
        for (const QString &file : {u"Install/Acme/a"_s, u"Install/Acme/b"_s, u"ProgramData/Acme/c"_s})
            m_pc->writeFile(info.receivedBasePath + u'/' + file, "new");
        for (const QString &file : {u"a"_s, u"b/inside"_s, u"kept"_s})
            m_pc->writeFile(u"Target/Acme/"_s + file, "old");
        info.filesMissing = 2;
        QVERIFY(!AppInstaller().install(info));
        QCOMPARE(
            info.errorMessage,
            u"Files of Acme that did not arrive: 2; Files that could not be copied: 1 of 3 (%1: %2)"_s.arg(
                QDir::toNativeSeparators(m_pc->path(u"Target/Acme/b"_s)),
                u"a folder of this name stands in its place"_s));
        QCOMPARE(info.files.copied, 2); // as much as can be
        for (const QString &file : {u"b/inside"_s, u"kept"_s})
            QCOMPARE(contentOf(m_pc->path(u"Target/Acme/"_s + file)), "old"_ba);
        QCOMPARE(contentOf(m_pc->path(u"Target/Acme/a"_s)), "new"_ba);

        AppInstaller installer;
        connect(&installer, &AppInstaller::progress, this, [&](const QString &, int percent) {
            if (percent == 40)
                installer.stop();
        });
        QVERIFY(!installer.install(info));
        QCOMPARE(info.errorMessage, u"Stopped: 1 of 3 files copied"_s);
    }

private:
    [[nodiscard]] AppPackageInfo package(const QString &name = u"Acme"_s) const
    {
        AppPackageInfo info;
        info.name = name;
        info.receivedBasePath = m_pc->path(u"Received/Acme"_s);
        info.originalInstallLocation = m_pc->path(u"Target/Acme"_s);
        info.sourceUser = u"anna"_s;
        return info;
    }
};

ZANDROVE_TEST(AppInstallerTest)
#include "AppInstallerTest.moc"
