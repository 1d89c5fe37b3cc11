#include "../PlatformTests.h"

#include "SimulatedPc.h"

#include "platform/Drives.h"
#include "platform/ExternalProgram.h"
#include "platform/FileAttributes.h"
#include "platform/Identity.h"
#include "platform/LastError.h"
#include "platform/Registry.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"
#include "platform/SystemParameters.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringEncoder>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Platform::RegistryKey;
using Platform::SpecialFolder;

namespace {

const QString Header = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;

QByteArray registryFile(const QString &text)
{
    return QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom)(text);
}

} // namespace

/// The simulated PC: a registry in a file, folders from the environment, links as texts, programs on PATH.
class SystemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_pc = std::make_unique<SimulatedPc>(); }
    void cleanup() { m_pc.reset(); }

    void linkOrForeignFileIsTold();
    void onlyOrdinaryFileIsRegular();
    void crashedProgramHasNotFinished();

    void registryFileIsReadAsItMayBeWritten_data();
    void registryFileIsReadAsItMayBeWritten();
    void registryFileIsWrittenInTheFormOfReg();
    void fileThatIsNoRegistryIsLeftAlone();
    void withoutRegistryNothingIsReadOrWritten();

    void foldersComeFromTheEnvironment();
    void unsetFoldersHaveSubstitutes();
    void drivesAreFoldersHere();
    void identityIsTheSimulatedOne();

    void shellLinkIsReadAndWrittenAsText_data();
    void shellLinkIsReadAndWrittenAsText();
    void shellLinkIsRefusedWhereItCantStand();

    void wallpaperIsInTheRegistry();
    void otherSystemCallsLeaveALogLine();
    void standInsKeepTheirStateInTheRegistry();

private:
    std::unique_ptr<SimulatedPc> m_pc;
};

void SystemTest::linkOrForeignFileIsTold()
{
    const QString own = m_pc->writeFile(u"own"_s, "");
    QVERIFY(QFile::link(own, m_pc->path(u"link"_s)));
    QVERIFY(QFile::link(m_pc->path(u"missing"_s), m_pc->path(u"dangling"_s)));

    QVERIFY(!Platform::isForeignOrLink(own));
    QVERIFY(!Platform::isForeignOrLink(m_pc->path(u"."_s)));
    QVERIFY(!Platform::isForeignOrLink(m_pc->path(u"missing"_s)));
    QVERIFY(!Platform::isForeignOrLink(own + u"/below a file"_s));
    QVERIFY(Platform::isForeignOrLink(m_pc->path(u"link"_s)));
    QVERIFY(Platform::isForeignOrLink(m_pc->path(u"dangling"_s)));

    QString foreign = u"/"_s;
    if (::geteuid() == 0) {
        foreign = own;
        QCOMPARE(::chown(QFile::encodeName(own).constData(), 1, 1), 0);
    }
    QVERIFY(Platform::isForeignOrLink(foreign));
}

void SystemTest::onlyOrdinaryFileIsRegular()
{
    const QString file = m_pc->writeFile(u"file"_s, "");
    const QString pipe = m_pc->path(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(QFile::link(file, m_pc->path(u"to file"_s)));
    QVERIFY(QFile::link(pipe, m_pc->path(u"to pipe"_s)));

    QVERIFY(Platform::isRegularFile(m_pc->path(u"to file"_s)));
    QVERIFY(!Platform::isRegularFile(pipe));
    QVERIFY(!Platform::isRegularFile(m_pc->path(u"to pipe"_s)));
    QVERIFY(!Platform::isRegularFile(m_pc->path(u"missing"_s)));
}

void SystemTest::crashedProgramHasNotFinished()
{
    m_pc->replaceProgram(u"reg"_s, "printf part; kill -9 $$");
    const auto result = Platform::runProgram(u"reg"_s, {});
    QVERIFY(!result.finished);
    QCOMPARE(result.exitCode, -1);
    QCOMPARE(result.standardOutput, "part"_ba);
}

void SystemTest::registryFileIsReadAsItMayBeWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");

    const auto row = [](const char *name, const QString &lines, const QString &value) {
        QTest::newRow(name) << Header + lines << value;
    };
    row("blanks, comments and other line ends", u"; x\n\n  [HKCU\\K]  \n; x\n \t\"v\" = \"x\" ; y"_s, u"x"_s);
    row("text over several lines", u"[HKCU\\K]\r\n\"v\"=\"a\r\n[HKCU\\L]\r\nb\"\r\n"_s,
        u"a\r\n[HKCU\\L]\r\nb"_s);
    row("escapes", u"[HKCU\\K]\n\"v\"=\"\\\\n\\n\\\"\\x\\\\\"\n"_s, u"\\n\n\"\\x\\"_s);
    row("key with brackets", u"[HKCU\\K]\n\"v\"=\"x\"\n[HKCU\\[K]]\n\"v\"=\"y\"\n"_s, u"x"_s);
    row("value removed", u"[HKCU\\K]\n\"v\"=\"x\"\n\"V\"=-\n"_s, u"none"_s);
    row("key removed", u"[HKCU\\K\\L]\n\"v\"=\"x\"\n[HKCU\\K]\n\"v\"=\"x\"\n[-HKCU\\k]\n\"v\"=\"y\"\n"_s,
        u"none"_s);
    row("last value wins", u"[HKCU\\K]\n\"v\"=\"x\"\n[HKCU\\k]\n\"v\"=\"y\"\n"_s, u"y"_s);
    row("bytes over several lines", u"[HKCU\\K]\n\"v\"=hex(1):61,00,\\\r\n  62,00,\\ \n\t00,00\n"_s, u"ab"_s);
    row("bytes of no known type", u"[HKCU\\K]\n\"v\"=hex(ffff0011):61,00\n"_s, u"a"_s);
    row("text without its end", u"[HKCU\\K]\n\"v\"=hex(1):61,00,62\n"_s, u"a"_s);
    row("number of the wrong size", u"[HKCU\\K]\n\"v\"=hex(4):61,00\n"_s, u"a"_s);
    row("no such form",
        u"[HKCU\\K]\n\"v\"=\"x\"\n\"v\"=dword:xyz\n\"v\"=hex(:1\n\"v\"=hex(1)\n\"v\"\n\"v\"=what\n"_s,
        u"x"_s);
    row("text that never ends", u"[HKCU\\K]\n\"v\"=\"x\"\n\"v\"=\"y\n"_s, u"x"_s);
    row("bytes that go on at the end", u"[HKCU\\K]\n\"v\"=hex(1):61,00,\\"_s, u"a"_s);
    row("value before any key", u"\"v\"=\"x\"\n[HKCU\\K]\n"_s, u"none"_s);
    row("value below no known root", u"[HKCU\\K]\n[HKEY_NOWHERE\\K]\n\"v\"=\"x\"\n[\n[]\n"_s, u"none"_s);
    row("value below a key too deep", u"[HKCU\\K]\n[HKCU"_s + u"\\K"_s.repeated(2000) + u"]\n\"v\"=\"x\"\n"_s,
        u"none"_s);
    QTest::newRow("other header") << u"REGEDIT4\n\n[HKCU\\K]\n\"v\"=\"x\"\n"_s << u"none"_s;
    QTest::newRow("header alone") << u"Windows Registry Editor Version 5.00"_s << u"none"_s;
}

void SystemTest::registryFileIsReadAsItMayBeWritten()
{
    QFETCH(QString, text);
    for (const QByteArray &bytes : {registryFile(text), text.toUtf8()}) {
        m_pc->writeFile(u"registry.reg"_s, bytes);
        const RegistryKey key(u"HKEY_CURRENT_USER\\K"_s);
        QTEST(key.text(u"v"_s, u"none"_s), "value");
    }
}

void SystemTest::registryFileIsWrittenInTheFormOfReg()
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
    QFile file(m_pc->path(u"registry.reg"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), registryFile(text));
    QCOMPARE(m_pc->registryText(u"HKEY_CURRENT_USER\\K\\Sub/Key"_s),
             Header + u"[HKEY_CURRENT_USER\\K\\Sub/Key]\r\n\r\n"_s);
}

void SystemTest::fileThatIsNoRegistryIsLeftAlone()
{
    const QByteArray content = "my only diary\n";
    const QString path = m_pc->writeFile(u"registry.reg"_s, content);
    RegistryKey key(u"HKEY_CURRENT_USER\\K"_s);
    QVERIFY(!key.setText(u"v"_s, u"x"_s));
    QVERIFY(!key.exists());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content);
}

void SystemTest::withoutRegistryNothingIsReadOrWritten()
{
    m_pc->removeRegistry();
    const QStringList before = QDir().entryList(QDir::AllEntries | QDir::Hidden);
    RegistryKey key(u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s);
    QVERIFY(!key.setText(u"Wallpaper"_s, u"x"_s));
    QVERIFY(!key.exists());
    QVERIFY(!Platform::setWallpaper(u"x"_s));
    QVERIFY(Platform::lastErrorCode() != 0);
    QVERIFY(!Platform::errorText(Platform::lastErrorCode()).isEmpty());
    QVERIFY(!Platform::wallpaper());
    QVERIFY(!Platform::setSystemParameter(Platform::SystemParameter::MouseSpeed, 10));
    QVERIFY(!Platform::broadcastSettingChange(QString()));
    QCOMPARE(Platform::registeredSystemVersion().productName, QString());
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::Hidden), before);
}

void SystemTest::foldersComeFromTheEnvironment()
{
    const auto place = [](SpecialFolder folder) { return Platform::specialFolder(folder); };
    QCOMPARE(place(SpecialFolder::LocalAppData), m_pc->homePath(u"AppData/Local"_s));
    QCOMPARE(place(SpecialFolder::RoamingAppData), m_pc->homePath(u"AppData/Roaming"_s));
    QCOMPARE(place(SpecialFolder::CommonAppData), m_pc->path(u"C:/ProgramData"_s));
    QCOMPARE(place(SpecialFolder::StartMenuPrograms),
             m_pc->homePath(u"AppData/Roaming/Microsoft/Windows/Start Menu/Programs"_s));
    QCOMPARE(place(SpecialFolder::ProgramFiles), m_pc->path(u"C:/Program Files"_s));
    QCOMPARE(place(SpecialFolder::ProgramFilesX86), m_pc->path(u"C:/Program Files (x86)"_s));
    QCOMPARE(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation),
             m_pc->homePath(u"Downloads"_s));
    QCOMPARE(QDir::tempPath(), m_pc->path(u"Scratch"_s));
}

void SystemTest::unsetFoldersHaveSubstitutes()
{
    const auto place = [](SpecialFolder folder) { return Platform::specialFolder(folder); };
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

void SystemTest::drivesAreFoldersHere()
{
    QVERIFY(QDir().mkpath(u"E:"_s));
    m_pc->writeFile(u"D:"_s, "no folder");
    QCOMPARE(Platform::fixedDrives(), QStringList({u"C:"_s, u"E:"_s}));
}

void SystemTest::identityIsTheSimulatedOne()
{
    QCOMPARE(Platform::userName(), u"alice"_s);
    m_pc->environment().unset("USER");
    QCOMPARE(Platform::userName(), QString());
    QVERIFY(!Platform::shortComputerName());

    m_pc->addRegistry(u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion]\n"
                      "\"ProductName\"=\"Windows 10 Pro\"\n\"CurrentBuildNumber\"=\"19045\"\n"_s);
    const auto version = Platform::registeredSystemVersion();
    QCOMPARE(version.productName, u"Windows 10 Pro"_s);
    QCOMPARE(version.currentBuildNumber, u"19045"_s);
    QCOMPARE(version.displayVersion, QString());
}

void SystemTest::shellLinkIsReadAndWrittenAsText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isLink");

    const QByteArray link =
        "[ShellLink]\nPath=C:\\x.exe\nArguments= a=b \nWorkingDirectory=\nIconPath=C:\\x.ico\n"
        "IconIndex=-3\nDescription=ü\n";
    QTest::newRow("as it is written") << link << true;
    QTest::newRow("without the last line end") << link.chopped(1) << true;
    QTest::newRow("other title") << QByteArray(link).replace("[ShellLink]", "[Link]") << false;
    QTest::newRow("line missing") << QByteArray(link).replace("WorkingDirectory=\n", "") << false;
    QTest::newRow("line more") << link + "More=x\n" << false;
    QTest::newRow("other field") << QByteArray(link).replace("WorkingDirectory", "Folder") << false;
    QTest::newRow("no number") << QByteArray(link).replace("-3", "x") << false;
    QTest::newRow("no UTF-8") << QByteArray(link).replace("ü", "\xff") << false;
}

void SystemTest::shellLinkIsReadAndWrittenAsText()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isLink);
    const auto link = Platform::readShellLink(m_pc->writeFile(u"x.lnk"_s, text));
    QCOMPARE(link.has_value(), isLink);
    if (!link)
        return;
    QCOMPARE(link->arguments, u" a=b "_s);
    QCOMPARE(link->iconIndex, -3);
    const QString copy = m_pc->path(u"copy.lnk"_s);
    QVERIFY(Platform::writeShellLink(copy, *link));
    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), text.endsWith('\n') ? text : text + '\n');
}

void SystemTest::shellLinkIsRefusedWhereItCantStand()
{
    QVERIFY(!Platform::writeShellLink(u"/zandrove-test.lnk"_s, {.path = u"C:\\x.exe"_s}));
    QVERIFY(!QFile::exists(u"/zandrove-test.lnk"_s));
    const QString file = m_pc->path(u"x.lnk"_s);
    QVERIFY(!Platform::writeShellLink(file, {.path = u"C:\\x.exe"_s, .description = u"two\nlines"_s}));
    QVERIFY(!QFile::exists(file));
}

void SystemTest::wallpaperIsInTheRegistry()
{
    QCOMPARE(Platform::wallpaper(), u""_s);
    QVERIFY(Platform::setWallpaper(u"C:\\Pictures\\sea.jpg"_s));
    QCOMPARE(Platform::wallpaper(), u"C:\\Pictures\\sea.jpg"_s);
    QCOMPARE(
        m_pc->registryText(u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s),
        Header +
            u"[HKEY_CURRENT_USER\\Control Panel\\Desktop]\r\n\"Wallpaper\"=\"C:\\\\Pictures\\\\sea.jpg\"\r\n\r\n"_s);
}

void SystemTest::otherSystemCallsLeaveALogLine()
{
    const QString before = m_pc->registryText();
    QTest::ignoreMessage(QtDebugMsg, "[SystemParameters] action 113 value 10");
    QVERIFY(Platform::setSystemParameter(Platform::SystemParameter::MouseSpeed, 10));
    QTest::ignoreMessage(QtDebugMsg, "[SystemParameters] setting change \"Environment\"");
    QVERIFY(Platform::broadcastSettingChange(u"Environment"_s));
    QTest::ignoreMessage(QtDebugMsg, "[SystemParameters] associations changed");
    Platform::notifyAssociationsChanged();
    QCOMPARE(m_pc->registryText(), before);
}

void SystemTest::standInsKeepTheirStateInTheRegistry()
{
    const auto run = [](const QString &program, const QStringList &arguments) {
        return Platform::runProgram(program, arguments);
    };
    const QStringList show = {u"advfirewall"_s, u"firewall"_s, u"show"_s, u"rule"_s, u"name=Some Rule"_s};
    QVERIFY(!run(u"netsh"_s, show).standardOutput.contains("Some Rule"));
    QCOMPARE(run(u"netsh"_s,
                 {u"advfirewall"_s, u"firewall"_s, u"add"_s, u"rule"_s, u"name=Some Rule"_s, u"dir=in"_s})
                 .exitCode,
             0);
    QVERIFY(run(u"netsh"_s, show).standardOutput.contains("Some Rule"));

    const QString scheme = m_pc->path(u"x.pow"_s);
    QCOMPARE(run(u"powercfg"_s, {u"/export"_s, scheme, u"SCHEME_CURRENT"_s}).exitCode, 0);
    const auto imported = run(u"powercfg"_s, {u"/import"_s, scheme});
    QCOMPARE(imported.exitCode, 0);
    const QString guid = QString::fromLatin1(imported.standardOutput.trimmed().right(36));
    QCOMPARE(run(u"powercfg"_s, {u"/setactive"_s, guid}).exitCode, 0);
    QCOMPARE(run(u"powercfg"_s, {u"/setactive"_s, QString(guid).fill(u'0')}).exitCode, 1);
    QCOMPARE(run(u"powercfg"_s, {u"/export"_s, scheme, u"SCHEME_CURRENT"_s}).exitCode, 0);
    QFile file(scheme);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains(guid.toLatin1()));

    QCOMPARE(run(u"reg.exe"_s, {u"import"_s, scheme}).exitCode, 1);
    QCOMPARE(m_pc->programCalls().last(), u"reg|import|"_s + scheme);
    QCOMPARE(m_pc->programCalls().size(), 9);
}

QObject *makeSystemTest()
{
    return new SystemTest;
}

#include "SystemTest.moc"
