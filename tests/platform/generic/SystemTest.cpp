#include "../PlatformTests.h"

#include "platform/Drives.h"
#include "platform/Identity.h"
#include "platform/LastError.h"
#include "platform/SpecialFolders.h"
#include "platform/SystemParameters.h"

#include <QStandardPaths>
#include <QStringEncoder>

#include <sys/stat.h>
#include <unistd.h>

using Platform::SpecialFolder;

namespace {

const QString Header = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;

QByteArray registryFile(const QString &text)
{
    return QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom)(text);
}

} // namespace

/// The simulated PC: a registry in a file, folders from the environment, links as texts, programs on PATH.
class SystemTest : public PcTest
{
    Q_OBJECT

private Q_SLOTS:
    void linksPipesAndForeignFilesAreTold()
    {
        const QString own = m_pc->writeFile(u"own"_s, "");
        QCOMPARE(::mkfifo("pipe", 0600), 0);
        for (const QString &target : {u"own"_s, u"pipe"_s, u"missing"_s})
            QVERIFY(QFile::link(m_pc->path(target), m_pc->path(u"to "_s + target)));
        for (const QString &place : {u"own"_s, u"."_s, u"missing"_s, u"own/below a file"_s})
            QVERIFY2(!Platform::isForeignOrLink(m_pc->path(place)), qPrintable(place));
        for (const QString &place : {u"to own"_s, u"to missing"_s})
            QVERIFY2(Platform::isForeignOrLink(m_pc->path(place)), qPrintable(place));
        QVERIFY(Platform::isRegularFile(m_pc->path(u"to own"_s)));
        for (const QString &place : {u"pipe"_s, u"to pipe"_s, u"missing"_s})
            QVERIFY2(!Platform::isRegularFile(m_pc->path(place)), qPrintable(place));

        const bool isRoot = ::geteuid() == 0;
        QVERIFY(!isRoot || ::chown("own", 1, 1) == 0);
        QVERIFY(Platform::isForeignOrLink(isRoot ? own : u"/"_s));
    }

    void crashedProgramHasNotFinished()
    {
        m_pc->replaceProgram(u"reg"_s, "printf part; kill -9 $$");
        const auto result = Platform::runProgram(u"reg"_s, {});
        QVERIFY(!result.finished && result.exitCode == -1);
        QCOMPARE(result.standardOutput, "part"_ba);
    }

    void registryFileIsReadAsItMayBeWritten_data()
    {
        const auto whole = addColumns<QString, QString>("text", "value");
        const auto row = [&](const char *name, const QString &lines, const QString &value) {
            whole(name, Header + lines, value);
        };
        const QString key = u"[HKCU\\K]\n"_s;
        const QString x = key + u"\"v\"=\"x\"\n"_s;
        row("blanks, comments, line ends", u"; x\n\n  [HKCU\\K]  \n; x\n \t\"v\" = \"x\" ; y"_s, u"x"_s);
        row("text over several lines", u"[HKCU\\K]\r\n\"v\"=\"a\r\n[HKCU\\L]\r\nb\"\r\n"_s,
            u"a\r\n[HKCU\\L]\r\nb"_s);
        row("escapes", key + u"\"v\"=\"\\\\n\\n\\\"\\x\\\\\"\n"_s, u"\\n\n\"\\x\\"_s);
        row("key with brackets", x + u"[HKCU\\[K]]\n\"v\"=\"y\"\n"_s, u"x"_s);
        row("value removed", x + u"\"V\"=-\n"_s, u"none"_s);
        row("key removed", u"[HKCU\\K\\L]\n\"v\"=\"x\"\n"_s + x + u"[-HKCU\\k]\n\"v\"=\"y\"\n"_s, u"none"_s);
        row("last value wins", x + u"[HKCU\\k]\n\"v\"=\"y\"\n"_s, u"y"_s);
        row("bytes over several lines", key + u"\"v\"=hex(1):61,00,\\\r\n  62,00,\\ \n\t00,00\n"_s, u"ab"_s);
        row("bytes of no known type", key + u"\"v\"=hex(ffff0011):61,00\n"_s, u"a"_s);
        row("text without its end", key + u"\"v\"=hex(1):61,00,62\n"_s, u"a"_s);
        row("number of the wrong size", key + u"\"v\"=hex(4):61,00\n"_s, u"a"_s);
        row("no such form", x + u"\"v\"=dword:xyz\n\"v\"=hex(:1\n\"v\"=hex(1)\n\"v\"\n\"v\"=what\n"_s,
            u"x"_s);
        row("text that never ends", x + u"\"v\"=\"y\n"_s, u"x"_s);
        row("bytes that go on at the end", key + u"\"v\"=hex(1):61,00,\\"_s, u"a"_s);
        row("value before any key", u"\"v\"=\"x\"\n"_s + key, u"none"_s);
        row("value below no known root", key + u"[HKEY_NOWHERE\\K]\n\"v\"=\"x\"\n[\n[]\n"_s, u"none"_s);
        row("key too deep", key + u"[HKCU"_s + u"\\K"_s.repeated(2000) + u"]\n\"v\"=\"x\"\n"_s, u"none"_s);
        whole("other header", u"REGEDIT4\n\n"_s + x, u"none"_s);
        whole("header alone", u"Windows Registry Editor Version 5.00"_s, u"none"_s);
    }
    void registryFileIsReadAsItMayBeWritten()
    {
        QFETCH(QString, text);
        for (const QByteArray &bytes : {registryFile(text), text.toUtf8()}) {
            m_pc->writeFile(u"registry.reg"_s, bytes);
            QTEST(RegistryKey(u"HKEY_CURRENT_USER\\K"_s).text(u"v"_s, u"none"_s), "value");
        }
    }

    void registryFileIsWrittenInTheFormOfReg()
    {
        // As the real program of Windows writes it.
        const QString text =
            Header + u"[HKEY_CURRENT_USER]\r\n\r\n[HKEY_CURRENT_USER\\K]\r\n@=\"def\"\r\n"
                     "\"a\\\\b\\\"c\"=\"x \\\"y\\\" \\\\ z\"\r\n"
                     "\"bin\"=hex:00,01,02,03,04,05,06,07,08,09,0a,0b,0c,0d,0e,0f,10,11,12,13,14,15,16,\\\r\n"
                     "  17,18,19,1a,1b,1c,1d,1e,1f,20,21,22,23,24,25,26,27,28,29,2a,2b,2c,2d,2e,2f\r\n"
                     "\"dw\"=dword:ffffffff\r\n\"empty\"=\"\"\r\n"
                     "\"exp\"=hex(2):25,00,55,00,53,00,45,00,52,00,50,00,52,00,4f,00,46,00,49,00,4c,00,\\\r\n"
                     "  45,00,25,00,5c,00,55,00,6d,00,6c,00,e4,00,75,00,74,00,00,00\r\n"
                     "\"multi\"=hex(7):6f,00,6e,00,65,00,00,00,74,00,77,00,6f,00,00,00,00,00\r\n"
                     "\"none\"=hex(0):78,00,00,00\r\n\"qw\"=hex(b):01,00,00,00,01,00,00,00\r\n\r\n"
                     "[HKEY_CURRENT_USER\\K\\Sub/Key]\r\n\r\n"_s;
        m_pc->writeFile(u"registry.reg"_s, registryFile(text));
        m_pc->addRegistry(u"[HKCU\\K\\Sub/Key]\n"_s);
        QCOMPARE(contentOf(m_pc->path(u"registry.reg"_s)), registryFile(text));
        QCOMPARE(m_pc->registryText(u"HKEY_CURRENT_USER\\K\\Sub/Key"_s),
                 Header + u"[HKEY_CURRENT_USER\\K\\Sub/Key]\r\n\r\n"_s);
    }

    void fileThatIsNoRegistryIsLeftAlone()
    {
        const QString diary = m_pc->writeFile(u"registry.reg"_s, "my only diary\n");
        RegistryKey key(u"HKEY_CURRENT_USER\\K"_s);
        QVERIFY(!key.setText(u"v"_s, u"x"_s));
        QVERIFY(!key.exists());
        QCOMPARE(contentOf(diary), "my only diary\n");
    }

    void withoutRegistryNothingIsReadOrWritten()
    {
        m_pc->removeRegistry();
        const QStringList before = QDir().entryList(QDir::AllEntries | QDir::Hidden);
        RegistryKey key(u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s);
        QVERIFY(!key.setText(u"Wallpaper"_s, u"x"_s));
        QVERIFY(!key.exists());
        QVERIFY(!Platform::setWallpaper(u"x"_s));
        QVERIFY(!Platform::errorText(Platform::lastErrorCode()).isEmpty());
        QVERIFY(!Platform::wallpaper());
        QVERIFY(!Platform::setSystemParameter(Platform::SystemParameter::MouseSpeed, 10));
        QVERIFY(!Platform::broadcastSettingChange(QString()));
        QCOMPARE(Platform::registeredSystemVersion().productName, QString());
        QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::Hidden), before);
    }

    void foldersAndDrivesAreTheSimulatedOnes()
    {
        const auto place = Platform::specialFolder;
        QCOMPARE(place(SpecialFolder::LocalAppData), m_pc->homePath(u"AppData/Local"_s));
        QCOMPARE(place(SpecialFolder::RoamingAppData), m_pc->homePath(u"AppData/Roaming"_s));
        QCOMPARE(place(SpecialFolder::CommonAppData), m_pc->path(u"C:/ProgramData"_s));
        QCOMPARE(place(SpecialFolder::StartMenuPrograms),
                 m_pc->homePath(u"AppData/Roaming/Microsoft/Windows/Start Menu/Programs"_s));
        QCOMPARE(place(SpecialFolder::ProgramFiles), m_pc->path(u"C:/Program Files"_s));
        QCOMPARE(place(SpecialFolder::ProgramFilesX86), m_pc->path(u"C:/Program Files (x86)"_s));
        QVERIFY(QDir().mkpath(u"E:"_s));
        m_pc->writeFile(u"D:"_s, "no folder");
        QCOMPARE(Platform::fixedDrives(), QStringList({u"C:"_s, u"E:"_s}));

        for (const char *name : {"LOCALAPPDATA", "APPDATA", "ProgramData", "ProgramFiles"})
            m_pc->environment().unset(name);
        m_pc->environment().set("ProgramFiles(x86)", "");
        QCOMPARE(place(SpecialFolder::LocalAppData), m_pc->homePath(u".cache"_s));
        QVERIFY(place(SpecialFolder::RoamingAppData).startsWith(m_pc->homePath(u".local/share/"_s)));
        QCOMPARE(place(SpecialFolder::StartMenuPrograms), QString());
        QCOMPARE(place(SpecialFolder::CommonAppData), u"C:/ProgramData"_s);
        QCOMPARE(place(SpecialFolder::ProgramFilesX86), u"C:/Program Files (x86)"_s);
        QDir::setCurrent(m_pc->path(u"Scratch"_s)); // where there is no C drive
        for (const SpecialFolder folder : {SpecialFolder::CommonAppData, SpecialFolder::ProgramFiles})
            QVERIFY(place(folder).startsWith(m_pc->homePath(u".local/share/"_s)));
    }

    void identityIsTheSimulatedOne()
    {
        QCOMPARE(Platform::userName(), u"alice"_s);
        m_pc->environment().unset("USER");
        QCOMPARE(Platform::userName(), QString());
        QVERIFY(!Platform::shortComputerName());
        m_pc->addRegistry(u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion]\n"
                          "\"ProductName\"=\"Windows 10 Pro\"\n\"CurrentBuildNumber\"=\"19045\"\n"_s);
        const auto version = Platform::registeredSystemVersion();
        QCOMPARE(version.productName + version.displayVersion, u"Windows 10 Pro"_s);
        QCOMPARE(version.currentBuildNumber, u"19045"_s);
    }

    void shellLinkIsReadAndWrittenAsText()
    {
        const QByteArray text = "[ShellLink]\nPath=C:\\x.exe\nArguments= a=b \nWorkingDirectory=\n"
                                "IconPath=C:\\x.ico\nIconIndex=-3\nDescription=ü\n";
        const auto linkIn = [this](const QByteArray &content) {
            return Platform::readShellLink(m_pc->writeFile(u"x.lnk"_s, content));
        };
        for (const QByteArray &good : {text, text.chopped(1)}) {
            const auto link = linkIn(good);
            QVERIFY(link == (ShellLink{u"C:\\x.exe"_s, u" a=b "_s, {}, u"C:\\x.ico"_s, -3, u"ü"_s}));
            QVERIFY(Platform::writeShellLink(m_pc->path(u"copy.lnk"_s), *link));
            QCOMPARE(contentOf(m_pc->path(u"copy.lnk"_s)), text);
        }
        const auto with = [&](const char *old, const char *changed) {
            return linkIn(QByteArray(text).replace(old, changed));
        };
        QVERIFY2(!with("[ShellLink]", "[Link]"), "another title");
        QVERIFY2(!with("WorkingDirectory=\n", ""), "a line missing");
        QVERIFY2(!linkIn(text + "More=x\n"), "a line more");
        QVERIFY2(!with("WorkingDirectory", "Folder"), "another field");
        QVERIFY2(!with("-3", "x"), "no number");
        QVERIFY2(!with("ü", "\xff"), "no UTF-8");
    }

    void shellLinkIsRefusedWhereItCantStand()
    {
        const QString file = m_pc->path(u"x.lnk"_s);
        QVERIFY(!Platform::writeShellLink(u"/zandrove-test.lnk"_s, {.path = u"C:\\x.exe"_s}));
        QVERIFY(!Platform::writeShellLink(file, {.path = u"C:\\x.exe"_s, .description = u"two\nlines"_s}));
        QVERIFY(!QFile::exists(u"/zandrove-test.lnk"_s) && !QFile::exists(file));
    }
};

ZANDROVE_TEST(SystemTest)
#include "SystemTest.moc"
