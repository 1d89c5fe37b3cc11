#include "SettingsTests.h"

#include "SimulatedPc.h"

#include "inventory/SettingScanner.h"
#include "platform/Registry.h"
#include "platform/SystemParameters.h"
#include "settings/SettingMigrator.h"

#include <QDir>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <limits>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using SettingMessages::Data;

namespace {

using Values = QMap<QString, QString>;

const QByteArray PathKey = "Windows Registry Editor Version 5.00\r\n\r\n"
                           "[HKEY_CURRENT_USER\\Environment]\r\n\"PATH\"=\"C:\\\\old\"\r\n";
const QByteArray NoKey = "no key";
const QByteArray Hangs = "exec sleep 100"; // a program's script
const QString Wallpaper = u"wallpaper"_s;

/// The key that such a short name stands for.
QString spelledOut(QString text)
{
    return text.replace("WINDOWS\\"_L1, "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\"_L1);
}

QStringList lines(const char *text)
{
    return spelledOut(QString::fromUtf8(text)).split(u'\n', Qt::SkipEmptyParts);
}

/// What the registry holds in the place of these lines, each a value's path, "=" and its text.
QStringList found(const QStringList &values)
{
    QStringList texts;
    for (const QString &value : values) {
        const QString path = value.section(u'=', 0, 0);
        const Platform::RegistryKey key(path.section(u'\\', 0, -2));
        texts.append(path + u'=' + key.text(path.section(u'\\', -1), u"(missing)"_s));
    }
    return texts;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(missing)";
}

SettingInfo chosen(const QString &id, const QString &registryPath = QString())
{
    SettingInfo setting;
    setting.id = setting.name = id;
    setting.registryPath = registryPath;
    setting.selected = true;
    return setting;
}

/// One PC's half of a run, and all that it says.
struct Half
{
    SettingMigrator migrator;
    QSignalSpy sent{&migrator, &SettingMigrator::requestSendCommand};
    QSignalSpy started{&migrator, &SettingMigrator::settingStarted};
    QSignalSpy percents{&migrator, &SettingMigrator::settingProgress};
    QSignalSpy ended{&migrator, &SettingMigrator::settingFinished};
    QSignalSpy progress{&migrator, &SettingMigrator::progress};
    QSignalSpy finished{&migrator, &SettingMigrator::finished};

    void hear(int type, const QByteArray &payload)
    {
        constexpr std::array Slots = {&SettingMigrator::onSettingStart, &SettingMigrator::onSettingData,
                                      &SettingMigrator::onSettingEnd, &SettingMigrator::onSettingComplete};
        (migrator.*Slots[std::size_t(type - 112)])(payload);
    }
    void hearAll(const QList<QVariantList> &messages)
    {
        migrator.startReceiving();
        for (const QVariantList &message : messages)
            hear(message[0].toInt(), message[1].toByteArray());
    }
    void begin(const QString &key, const Values &metadata = {})
    {
        SettingPackage package;
        package.key = package.name = key;
        package.metadata = metadata;
        hear(112, SettingMessages::startPayload(package));
    }
    void addKey(const QString &key, const QByteArray &content)
    {
        if (!content.isEmpty())
            hear(113, Data{.key = key, .content = Data::Content::Registry, .bytes = content}.toPayload());
    }
    void addFile(const QString &name, const QByteArray &bytes, int index = 0, int total = 1)
    {
        hear(113, Data{Wallpaper, Data::Content::File, bytes, true, index, total, name}.toPayload());
    }
    /// Whether the current setting was applied; "dropped" where it did not end.
    QString end(const QString &key)
    {
        ended.clear();
        hear(114, SettingMessages::End{key, key}.toPayload());
        return ended.isEmpty() ? u"dropped"_s : ended[0][1].toBool() ? u"applied"_s : u"failed"_s;
    }
};

QStringList loggedLines;

/// The system's calls come between those of its programs, so that all of them have one order.
void recordLine(QtMsgType, const QMessageLogContext &, const QString &line)
{
    loggedLines.append(line);
    const QString mark = u"[SystemParameters] "_s;
    QFile calls(qEnvironmentVariable("ZANDROVE_STANDIN_CALLS", u"."_s));
    if (line.startsWith(mark) && calls.open(QIODevice::WriteOnly | QIODevice::Append))
        calls.write(line.mid(mark.size()).toUtf8() + '\n');
}

/// Runs `action` and keeps what is logged meanwhile.
template <typename Action>
void record(Action action)
{
    loggedLines.clear();
    const auto restore =
        qScopeGuard([before = qInstallMessageHandler(recordLine)] { qInstallMessageHandler(before); });
    action();
}

} // namespace

/// Settings from one PC to another: its registry, programs and files, the messages, and the other's.
class SettingMigratorTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { beAnotherPc(); }
    void cleanup();

    void everySettingMoves();
    void picturesMoveInChunks_data();
    void picturesMoveInChunks();
    void onlyTheImportReplacesPath();
    void aKeyGoesByItsName_data();
    void aKeyGoesByItsName();
    void aHugeKeyMoves();
    void contentsDecide_data();
    void contentsDecide();
    void programsFail_data();
    void programsFail();
    void aPictureIsWrittenBelowItsFolderOnly_data();
    void aPictureIsWrittenBelowItsFolderOnly();
    void messagesOfAnyPeerAreTaken();
    void contentsHaveALimit();
    void aCancelledExportEndsSilently();
    void everyRunIsCounted();

private:
    void beAnotherPc();
    void addRegistry(const char *text);
    [[nodiscard]] QStringList calls() const;
    [[nodiscard]] QString pictureOfNewPc(const QString &name) const;

    std::unique_ptr<SimulatedPc> m_pc;
};

void SettingMigratorTest::initTestCase()
{
    if (!SimulatedPc::isMadeUp() && !qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC"))
        QSKIP("Needs a PC that ZANDROVE_SCRATCH_PC gives away for tests");
}

void SettingMigratorTest::beAnotherPc()
{
    m_pc.reset();
    m_pc = std::make_unique<SimulatedPc>();
}

void SettingMigratorTest::cleanup()
{
    QCOMPARE(QDir::temp().entryList({u"zandrove_*"_s}), QStringList());
    if (!SimulatedPc::isMadeUp()) { // there it would be the next test's picture too
        QDir(m_pc->homePath(u"Pictures/Zandrove"_s)).removeRecursively();
        QVERIFY(Platform::setWallpaper(u""_s));
    }
    m_pc.reset();
}

void SettingMigratorTest::addRegistry(const char *text)
{
    m_pc->addRegistry(spelledOut(QString::fromUtf8(text)).replace("HKCU"_L1, "HKEY_CURRENT_USER"_L1));
}

/// What the system was called with, without what differs each time.
QStringList SettingMigratorTest::calls() const
{
    static const QRegularExpression file(
        u"[^|]*/zandrove_(reg_(ex|im)port_\\d{13}\\.reg|power_(ex|im)port\\.pow)"_s);
    return m_pc->programCalls().replaceInStrings(file, u"FILE"_s);
}

QString SettingMigratorTest::pictureOfNewPc(const QString &name) const
{
    return m_pc->homePath(u"Pictures/Zandrove/"_s + name);
}

void SettingMigratorTest::everySettingMoves()
{
    const bool isMadeUp = SimulatedPc::isMadeUp();
    const auto movable = isMadeUp ? 9 : 8; // Wine has no powercfg
    QVERIFY(Platform::setWallpaper(m_pc->writeFile(u"sea ü.bmp"_s, "BM")));
    // Wine's calls lose sight of these keys when they are removed in the end, so nothing else is added there.
    using Platform::RegistryKey;
    QVERIFY(RegistryKey(u"HKCU\\Control Panel\\Desktop"_s).setText(u"WallpaperStyle"_s, u"6"_s));
    QVERIFY(RegistryKey(u"HKCU\\Control Panel\\Mouse"_s).setText(u"DoubleClickSpeed"_s, u"400"_s));
    QVERIFY(RegistryKey(u"HKCU\\Control Panel\\Mouse"_s).setText(u"SwapMouseButtons"_s, u"1"_s));
    QVERIFY(RegistryKey(u"HKCU\\Control Panel\\Keyboard"_s).setText(u"KeyboardDelay"_s, u"2"_s));
    addRegistry(R"(
[WINDOWS\Explorer\StuckRects3]
"Settings"=hex:41,00
[WINDOWS\Explorer\Advanced]
"Hidden"=dword:00000001
[HKCU\Environment]
"PATH"="C:\\old"
"Zed"=hex(2):25,00,58,00,25,00,00,00
"Zoo"="ä"
[WINDOWS\Themes\Personalize]
"AppsUseLightTheme"=dword:00000000
[HKCU\AppEvents\Schemes\Apps\Beep]
@="ding.wav"
)");
    SettingScanner scanner;
    QSignalSpy scanned(&scanner, &SettingScanner::finished);
    scanner.start();
    auto settings = scanned[0][0].value<QList<SettingInfo>>();
    for (SettingInfo &setting : settings)
        setting.selected = true;
    Half oldPc;
    oldPc.migrator.start(settings);
    QCOMPARE(oldPc.finished, (QList<QVariantList>{{movable, 9 - movable}}));
    QCOMPARE(oldPc.progress.last(), (QVariantList{88, u"Sound Scheme"_s}));
    if (isMadeUp)
        QCOMPARE(calls(), lines(R"(
reg|export|HKCU\Control Panel\Desktop|FILE|/y
reg|export|WINDOWS\Explorer\StuckRects3|FILE|/y
reg|export|WINDOWS\Explorer\Advanced|FILE|/y
reg|export|WINDOWS\Explorer\Advanced|FILE|/y
reg|export|HKCU\Control Panel\Mouse|FILE|/y
reg|export|HKCU\Control Panel\Keyboard|FILE|/y
powercfg|/export|FILE|SCHEME_CURRENT
reg|export|HKCU\Environment|FILE|/y
reg|export|WINDOWS\Themes\Personalize|FILE|/y
reg|export|HKCU\AppEvents\Schemes|FILE|/y)"));

    beAnotherPc();
    addRegistry("[HKCU\\Environment]\n\"Path\"=\"C:\\\\new\"\n\"Kept\"=\"1\"\n");
    Half newPc;
    record([&] { newPc.hearAll(oldPc.sent); });
    QCOMPARE(newPc.finished, (QList<QVariantList>{{movable, 0}}));
    const QStringList values = lines(R"(
HKCU\Control Panel\Desktop\WallpaperStyle=6
HKCU\Control Panel\Desktop\TileWallpaper=0
WINDOWS\Explorer\StuckRects3\Settings=A
WINDOWS\Explorer\Advanced\Hidden=1
HKCU\Control Panel\Mouse\DoubleClickSpeed=400
HKCU\Control Panel\Mouse\SwapMouseButtons=1
HKCU\Control Panel\Keyboard\KeyboardDelay=2
HKCU\Environment\PATH=C:\old
HKCU\Environment\Zed=%X%
HKCU\Environment\Zoo=ä
HKCU\Environment\Kept=1
WINDOWS\Themes\Personalize\AppsUseLightTheme=0
HKCU\AppEvents\Schemes\Apps\Beep\.=ding.wav)");
    QCOMPARE(found(values), values);
    QVERIFY(m_pc->registryText(u"HKEY_CURRENT_USER\\Environment"_s).contains("\"Zed\"=hex(2):"_L1));
    const QString picture = pictureOfNewPc(u"sea ü.bmp"_s);
    QCOMPARE(QDir::fromNativeSeparators(Platform::wallpaper().value()), picture);
    QCOMPARE(contentOf(picture), QByteArray("BM"));
    if (!isMadeUp)
        return;
    const QString scheme = calls().filter(u"setactive"_s).value(0).section(u'|', 2);
    QVERIFY(m_pc->registryText().contains(u"\"ActivePowerScheme\"=\"%1\""_s.arg(scheme)));
    QCOMPARE(calls().replaceInStrings(scheme, u"GUID"_s), lines(R"(
reg|import|FILE
reg|import|FILE
setting change "TraySettings"
reg|import|FILE
setting change ""
associations changed
reg|import|FILE
action 113 value 1
action 33 value 1
action 32 value 400
reg|import|FILE
action 23 value 2
action 11 value 31
powercfg|/import|FILE
powercfg|/setactive|GUID
reg|import|FILE
setting change "Environment"
reg|import|FILE
setting change "ImmersiveColorSet"
reg|import|FILE)"));
}

void SettingMigratorTest::picturesMoveInChunks_data()
{
    constexpr qsizetype Chunk = 524288;
    QTest::addColumn<QList<qsizetype>>("chunks");
    QTest::newRow("empty") << QList<qsizetype>();
    QTest::newRow("a byte") << QList<qsizetype>{1};
    QTest::newRow("a byte less") << QList<qsizetype>{Chunk - 1};
    QTest::newRow("one chunk") << QList<qsizetype>{Chunk};
    QTest::newRow("a byte more") << QList<qsizetype>{Chunk, 1};
    QTest::newRow("two chunks") << QList<qsizetype>{Chunk, Chunk};
    QTest::newRow("6 MiB") << QList<qsizetype>(12, Chunk);
}

void SettingMigratorTest::picturesMoveInChunks()
{
    QFETCH(const QList<qsizetype>, chunks);
    QByteArray content(std::accumulate(chunks.begin(), chunks.end(), qsizetype(0)), 'x');
    for (qsizetype i = 0; i < content.size(); i += 1021)
        content[i] = char(i);
    QVERIFY(Platform::setWallpaper(m_pc->writeFile(u"sea.bmp"_s, content)));
    Half oldPc;
    oldPc.migrator.start({chosen(Wallpaper)});
    QCOMPARE(oldPc.finished, (QList<QVariantList>{{1, 0}}));
    QList<qsizetype> sizes;
    for (const QVariantList &message : std::as_const(oldPc.sent)) {
        const Data data = Data::fromPayload(message[1].toByteArray());
        if (data.content == Data::Content::File && data.chunkIndex == sizes.size())
            sizes.append(data.bytes.size());
    }
    QCOMPARE(sizes, chunks);

    Half newPc;
    newPc.hearAll(oldPc.sent);
    const bool isPicture = !chunks.isEmpty();
    QCOMPARE(newPc.finished, (QList<QVariantList>{{int(isPicture), int(!isPicture)}}));
    QCOMPARE(newPc.percents.value(0).value(1).toInt(), isPicture ? int(100 / chunks.size()) : 0);
    QVERIFY(!isPicture || contentOf(pictureOfNewPc(u"sea.bmp"_s)) == content);
}

void SettingMigratorTest::onlyTheImportReplacesPath()
{
    addRegistry("[HKCU\\Environment]\n\"Path\"=\"C:\\\\new\"\n");
    Half newPc;
    const auto apply = [&newPc](const QByteArray &key, const Values &metadata) {
        QString outcome;
        record([&] {
            newPc.begin(u"environment"_s, metadata);
            newPc.addKey(u"environment"_s, key);
            outcome = newPc.end(u"environment"_s);
        });
        return outcome;
    };
    const Values variables = {{u"EnvironmentVars"_s, uR"({"pAth":"C:\\old","Zoo":"ä","Bad":5,"":"x"})"_s}};
    const QString skipped = u"[Environment] Skipping PATH merge for safety"_s;
    QStringList values = lines(R"(
HKCU\Environment\PATH=C:\new
HKCU\Environment\Zoo=ä
HKCU\Environment\Bad=(missing)
HKCU\Environment\.=(missing))");
    QCOMPARE(apply({}, variables), u"applied"_s);
    QCOMPARE(found(values), values);
    QVERIFY(loggedLines.contains(skipped));

    values[0] = u"HKCU\\Environment\\PATH=C:\\old"_s; // by the key, before the variables are looked at
    QCOMPARE(apply(PathKey, variables), u"applied"_s);
    QCOMPARE(found(values), values);
    QVERIFY(!loggedLines.contains(skipped));
    QCOMPARE(apply({}, {}), u"failed"_s);
    QCOMPARE(apply({}, {{u"EnvironmentVars"_s, u"[]"_s}}), u"applied"_s);
}

void SettingMigratorTest::aKeyGoesByItsName_data()
{
    QTest::addColumn<QString>("registryPath"); // as the setting names it
    QTest::addColumn<QString>("exported");     // as the package names it; empty where none leaves
    QTest::addColumn<Values>("metadata");
    const QString pens = u"HKEY_CURRENT_USER/Software/ZandroveTest/Pens"_s;
    const QString panel = u"HKEY_CURRENT_USER\\Control Panel\\"_s;
    QTest::newRow("pens") << pens << pens << Values();
    QTest::newRow("Mouse") << QString() << QString() << Values(); // ids mind the case
    QTest::newRow("taskbar")
        << QString()
        << spelledOut(u"WINDOWS\\Explorer\\Taskband"_s).replace("HKCU"_L1, "HKEY_CURRENT_USER"_L1)
        << Values();
    QTest::newRow("keyboard") << QString() << panel + u"Keyboard"_s
                              << Values{{u"KeyboardDelay"_s, u"1"_s}, {u"KeyboardSpeed"_s, u"31"_s}};
    QTest::newRow("mouse") << QString() << panel + u"Mouse"_s
                           << Values{{u"MouseSpeed"_s, u"2"_s},
                                     {u"MouseSensitivity"_s, u"10"_s},
                                     {u"SwapMouseButtons"_s, u"0"_s},
                                     {u"DoubleClickSpeed"_s, u"500"_s}};
}

void SettingMigratorTest::aKeyGoesByItsName()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("Needs a PC without values of its own.");
    QFETCH(const QString, registryPath);
    QFETCH(const QString, exported);
    addRegistry(
        "[HKCU\\Software\\ZandroveTest\\Pens]\n\"Ink\"=\"1\"\n[WINDOWS\\Explorer\\Taskband]\n\"A\"=\"1\"\n"
        "[HKCU\\Control Panel\\Keyboard]\n\"Other\"=\"1\"\n"
        "[HKCU\\Control Panel\\Mouse]\n\"MouseSpeed\"=dword:2\n");
    Half oldPc;
    oldPc.migrator.start({chosen(QString::fromLatin1(QTest::currentDataTag()), registryPath)});
    QCOMPARE(oldPc.sent.size(), exported.isEmpty() ? 1 : 4);
    const SettingPackage package = SettingMessages::readStart(oldPc.sent[0][1].toByteArray());
    QCOMPARE(package.registryPath, exported);
    QTEST(package.metadata, "metadata");
}

void SettingMigratorTest::aHugeKeyMoves()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The programs of the PC at hand stay.");
    m_pc->replaceProgram(u"reg"_s, "[ $1 = export ] && exec head -c 104857600 /dev/zero > \"$3\"\n"
                                   "wc -c < \"$2\" > imported");
    Half oldPc, newPc;
    oldPc.migrator.start({chosen(u"pens"_s, u"HKCU\\Pens"_s)});
    newPc.hearAll(oldPc.sent);
    QCOMPARE(newPc.finished, (QList<QVariantList>{{1, 0}}));
    QCOMPARE(contentOf(m_pc->path(u"imported"_s)).trimmed(), QByteArray("104857600"));
}

void SettingMigratorTest::contentsDecide_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<Values>("metadata");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QStringList>("calls");
    const auto row = [](const char *name, const QByteArray &key, const Values &metadata, bool applied,
                        const char *calls) {
        QTest::newRow(name) << key << metadata << (applied ? u"applied"_s : u"failed"_s) << lines(calls);
    };
    const Values advanced = {{u"AdvancedSettings"_s, QString::fromLatin1(PathKey.toBase64())}};
    row("taskbar, only the extra", {}, advanced, false, "");
    row("taskbar, bad key", NoKey, advanced, false,
        "reg|import|FILE\nreg|import|FILE\nsetting change \"TraySettings\"");
    row("taskbar, bad extra", PathKey, {{u"AdvancedSettings"_s, u"?"_s}}, true,
        "reg|import|FILE\nsetting change \"TraySettings\"");
    row("explorer, bad key", NoKey, {}, false, "reg|import|FILE\nsetting change \"\"\nassociations changed");
    row("mouse, bad key", NoKey, {{u"SwapMouseButtons"_s, u"true"_s}}, true,
        "reg|import|FILE\naction 33 value 0");
    row("keyboard, half", {}, {{u"KeyboardDelay"_s, u"2"_s}}, true, "");
    row("environment, bad key", NoKey, {}, false, "reg|import|FILE\nsetting change \"Environment\"");
    row("sound, no key", {}, {}, false, "");
    row("sound, bad key", NoKey, {}, false, "reg|import|FILE");
    row("display, no key", {}, {{u"AppsUseLightTheme"_s, u"1"_s}}, false,
        "setting change \"ImmersiveColorSet\"");
    row("power, no scheme", PathKey, {}, false, "");
    row("wallpaper, no file", PathKey, {}, false, "");
    row("pens", PathKey, {}, true, "reg|import|FILE");
}

void SettingMigratorTest::contentsDecide()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The calls to the PC at hand are not recorded.");
    QFETCH(const QByteArray, key);
    QFETCH(const Values, metadata);
    const QString id = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    Half newPc;
    record([&] {
        newPc.begin(id, metadata);
        newPc.addKey(id, key);
        QTEST(newPc.end(id), "outcome");
    });
    QTEST(calls(), "calls");
}

void SettingMigratorTest::programsFail_data()
{
    QTest::addColumn<bool>("isExport");
    QTest::addColumn<QByteArray>("script"); // of the program; empty where it is missing
    QTest::addColumn<QString>("log");
    const auto row = [](const char *name, bool isExport, const QByteArray &script, const char *log) {
        QTest::newRow(name) << isExport << script << QString::fromLatin1(log);
    };
    row("sound, missing", true, "", R"([Registry] Export timeout for: "HKCU\\AppEvents\\Schemes")");
    row("sound, hanging", true, Hangs, R"([Registry] Export timeout for: "HKCU\\AppEvents\\Schemes")");
    row("sound, failing", true, "echo x > $3; echo no >&2; exit 3", R"(  Error: "no\n")");
    row("sound, lazy", true, "exit 0", R"([SettingMigrator] Exporting: "sound" - "sound")");
    row("sound, empty", true, ": > $3", R"([Registry] Exported: "HKCU\\AppEvents\\Schemes" size: 0)");
    row("power, missing", true, "", "[Power] powercfg export timeout");
    row("power, failing", true, "echo no >&2; exit 3", R"([Power] powercfg export failed: "no\n")");
    row("power, lazy", true, "exit 0", R"([SettingMigrator] Exporting: "power" - "power")");
    row("sound, missing at last", false, "", "[Registry] Import timeout");
    row("sound, hanging at last", false, Hangs, "[Registry] Import timeout");
    row("sound, failing at last", false, "echo no >&2; exit 3", R"([Registry] Import failed: "no\n")");
    row("power, hanging at last", false, Hangs, R"([SettingMigrator] Applying setting: "power")");
    row("power, failing at last", false, "exit 3", "[Power] Applied settings, success: false");
}

void SettingMigratorTest::programsFail()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The programs of the PC at hand stay.");
    QFETCH(const bool, isExport);
    QFETCH(const QByteArray, script);
    QFETCH(const QString, log);
    const QString id = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    const QString program = id == "power"_L1 ? u"powercfg"_s : u"reg"_s;
    m_pc->removeProgram(program);
    if (!script.isEmpty())
        m_pc->replaceProgram(program, script);
    QVariantList ended;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        Half half;
        if (isExport) {
            half.migrator.start({chosen(id)});
        } else {
            half.begin(id);
            half.addKey(id, PathKey);
            Data file{id, Data::Content::File, "x", true, 0, 1, u"../not written"_s};
            half.hear(113, file.toPayload());
            half.end(id);
        }
        ended = half.ended.value(0);
    }));
    record([&] {
        thread->start();
        if (script == Hangs)
            thread->requestInterruption(); // ends the wait as if the time were over
        QVERIFY(thread->wait());
    });
    QCOMPARE(ended, (QVariantList{id, false, isExport ? u"Export failed"_s : u"Failed to apply setting"_s}));
    QVERIFY2(loggedLines.contains(log), qPrintable(loggedLines.join(u'\n')));
}

void SettingMigratorTest::aPictureIsWrittenBelowItsFolderOnly_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"sea ..bmp", "", ".", "..", "../sea.bmp", "a/sea.bmp", "..\\sea.bmp", "/sea.bmp"})
        QTest::newRow(qPrintable(u"<%1>"_s.arg(QLatin1StringView(name)))) << QString::fromLatin1(name);
    QTest::newRow("NUL") << u"sea.bmp"_s + QChar(QChar::Null);
    if (!SimulatedPc::isMadeUp())
        QTest::newRow("a stream") << u"sea.bmp:x"_s;
}

void SettingMigratorTest::aPictureIsWrittenBelowItsFolderOnly()
{
    QFETCH(const QString, name);
    const QString older = m_pc->writeFile(pictureOfNewPc(u"sea ..bmp"_s), "an older and longer picture");
    Half newPc;
    newPc.begin(Wallpaper);
    newPc.addFile(u"not the last name"_s, "sea ", 0, 2);
    newPc.addFile(name, "view", 1, 2);
    const bool isGood = older == pictureOfNewPc(name);
    QCOMPARE(newPc.end(Wallpaper), isGood ? u"applied"_s : u"failed"_s);
    QCOMPARE(contentOf(older), isGood ? QByteArray("sea view") : QByteArray("an older and longer picture"));
    const QDir pictures(m_pc->homePath(u"Pictures"_s));
    QCOMPARE(pictures.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"Zandrove"_s));
    QCOMPARE(QDir(pictures.filePath(u"Zandrove"_s)).entryList(QDir::Files), QStringList(u"sea ..bmp"_s));
}

void SettingMigratorTest::messagesOfAnyPeerAreTaken()
{
    constexpr int Largest = std::numeric_limits<int>::max();
    Half newPc;
    QCOMPARE(newPc.end(Wallpaper), u"dropped"_s); // none has begun
    QCOMPARE(newPc.end({}), u"failed"_s);         // fits the one without an id, which can't be applied

    newPc.begin(Wallpaper);
    newPc.addKey(u"mouse"_s, PathKey);
    newPc.addFile(u"sea.bmp"_s, "3", Largest, 0);
    newPc.addFile(u"sea.bmp"_s, "1", Largest, 1);
    newPc.addFile(u"sea.bmp"_s, "2", -Largest, 1);
    QCOMPARE(newPc.percents, (QList<QVariantList>{{Wallpaper, 0}, {Wallpaper, 100}, {Wallpaper, 0}}));
    QCOMPARE(newPc.end(u"mouse"_s), u"dropped"_s);
    QCOMPARE(newPc.end(Wallpaper), u"applied"_s); // what counts is the order of arrival
    QCOMPARE(contentOf(pictureOfNewPc(u"sea.bmp"_s)), QByteArray("312"));

    newPc.begin(Wallpaper);
    newPc.addFile(u"sea.bmp"_s, "x");
    newPc.hear(113, R"({"key":"wallpaper","dataType":"file","fileName":"y","data":"?"})");
    QCOMPARE(newPc.end(Wallpaper), u"failed"_s);
    newPc.begin(Wallpaper);
    newPc.hear(112, "no JSON"); // the one before is given up all the same
    QCOMPARE(newPc.end(Wallpaper), u"dropped"_s);
}

void SettingMigratorTest::contentsHaveALimit()
{
    Half newPc;
    newPc.migrator.setContentLimit(PathKey.size());
    for (const auto excess : {0, 1}) {
        newPc.begin(Wallpaper);
        newPc.addFile(u"sea.bmp"_s, "1234");
        newPc.addFile(u"sea.bmp"_s, QByteArray(PathKey.size() - 4 + excess, 'x'));
        QCOMPARE(newPc.end(Wallpaper), excess == 0 ? u"applied"_s : u"failed"_s);
        newPc.begin(u"sound"_s);
        newPc.addKey(u"sound"_s, NoKey); // a second key takes the place of the first
        newPc.addKey(u"sound"_s, PathKey + QByteArray(excess, '\n'));
        QCOMPARE(newPc.end(u"sound"_s), excess == 0 ? u"applied"_s : u"failed"_s);
    }
}

void SettingMigratorTest::aCancelledExportEndsSilently()
{
    m_pc->addRegistry(u"[HKEY_CURRENT_USER\\Software\\ZandroveTest]\n\"A\"=\"b\"\n"_s);
    const SettingInfo pens = chosen(u"pens"_s, u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s);
    SettingInfo missing = pens;
    missing.available = false;
    Half oldPc;
    SettingMigrator &migrator = oldPc.migrator;
    migrator.start({missing, SettingInfo()}); // none to move, so no message either
    QCOMPARE(oldPc.finished.takeFirst(), (QVariantList{0, 0}));

    const auto cancelling = connect(&migrator, &SettingMigrator::settingStarted, &migrator, [&] {
        migrator.start({pens}); // dropped: one is on
        migrator.cancel();
    });
    migrator.start({pens, pens});
    QCOMPARE(oldPc.started.size(), 1);
    QCOMPARE(oldPc.sent.size(), 3); // the setting in hand still leaves whole
    QCOMPARE(oldPc.finished.size(), 0);

    disconnect(cancelling);
    migrator.start({pens});
    QCOMPARE(oldPc.finished.size(), 1);
    migrator.stop();
    migrator.start({pens});
    QCOMPARE(oldPc.started.size(), 2);
    QVERIFY(!migrator.isRunning());
}

void SettingMigratorTest::everyRunIsCounted()
{
    Half newPc;
    for (const int percent : {60, 120}) {
        newPc.migrator.startReceiving();
        QVERIFY(newPc.migrator.isRunning());
        for (const QString &key : {u"mouse"_s, u"sound"_s, u"mouse"_s, u"sound"_s, u"sound"_s, u"sound"_s}) {
            newPc.begin(key);
            newPc.end(key);
        }
        newPc.migrator.cancel(); // means nothing to what is received
        newPc.hear(115, "[]");
        QCOMPARE(newPc.finished.takeFirst(), (QVariantList{2, 4}));
        QCOMPARE(newPc.progress.last().first().toInt(), percent);
        QVERIFY(!newPc.migrator.isRunning());
    }
}

std::unique_ptr<QObject> makeSettingMigratorTest()
{
    return std::make_unique<SettingMigratorTest>();
}

#include "SettingMigratorTest.moc"
