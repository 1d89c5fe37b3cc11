#include "SettingRuns.h"
#include "SettingsTests.h"

#include "inventory/SettingScanner.h"
#include "platform/Registry.h"
#include "platform/SystemParameters.h"

#include <numeric>

using namespace Zandrove;

namespace {

const QString Explorer = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\"_s;

/// `text` of a .reg file with the long names of what it shortens.
QString spelledOut(QString text)
{
    return text.replace("EXPLORER\\"_L1, Explorer)
        .replace("THEMES\\"_L1, QString(Explorer).replace("Explorer"_L1, "Themes"_L1))
        .replace("HKCU\\"_L1, "HKEY_CURRENT_USER\\"_L1);
}

/// What the registry holds in the place of these lines, each with a value's path, "=" and its text.
QStringList asFound(const QStringList &lines)
{
    QStringList found;
    for (const QString &line : lines) {
        const QString path = line.section(u'=', 0, 0);
        const Platform::RegistryKey key(spelledOut(path.section(u'\\', 0, -2) + u'\\').chopped(1));
        found.append(path + u'=' + key.text(path.section(u'\\', -1), u"(missing)"_s));
    }
    return found;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(missing)";
}

/// Makes `content` the picture on the desktop. Returns its path.
QString showPicture(SimulatedPc &pc, const QString &name, const QByteArray &content)
{
    const QString path = QDir::toNativeSeparators(pc.writeFile(name, content));
    if (!Platform::setWallpaper(path))
        qFatal("The wallpaper can't be set.");
    return path;
}

/// The number of bytes in the messages' chunks of files, once their indexes have been found to be in order.
QList<qsizetype> chunkSizes(const Messages &messages)
{
    QList<qsizetype> sizes;
    for (const auto &[type, payload] : messages) {
        const Data data = Data::fromPayload(payload);
        if (type == 113 && data.content == Data::Content::File && data.chunkIndex == sizes.size())
            sizes.append(data.bytes.size());
    }
    return sizes;
}

} // namespace

/// Settings on their way from one PC to another: through the messages, into registry, files and system.
class SettingMoveTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everySettingMoves();
    void aKeyGoesByItsName_data();
    void aKeyGoesByItsName();
    void picturesMoveInChunks_data();
    void picturesMoveInChunks();
    void aHugeKeyMoves();
    void onlyTheImportReplacesPath();
};

void SettingMoveTest::initTestCase()
{
    if (!SimulatedPc::isMadeUp() && !qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC"))
        QSKIP("Needs a PC that ZANDROVE_SCRATCH_PC gives away for tests");
}

void SettingMoveTest::everySettingMoves()
{
    const bool isMadeUp = SimulatedPc::isMadeUp(); // Wine has no powercfg
    Messages messages;
    {
        SimulatedPc pc;
        showPicture(pc, u"sea ü.bmp"_s, "BM");
        pc.addRegistry(spelledOut(uR"([HKCU\Control Panel\Desktop]
"WallpaperStyle"="6"
"Other"="1"
[EXPLORER\StuckRects3]
"Settings"=hex:41,00
[EXPLORER\Advanced]
"Hidden"=dword:00000001
[HKCU\Control Panel\Mouse]
"DoubleClickSpeed"="400"
"SwapMouseButtons"="1"
[HKCU\Control Panel\Keyboard]
"KeyboardSpeed"="20"
"KeyboardDelay"="2"
[HKCU\Environment]
"PATH"="C:\\old"
"TEMP"=hex(2):25,00,58,00,25,00,00,00
"Zoo"="ä"
[THEMES\Personalize]
"AppsUseLightTheme"=dword:00000000
[HKCU\AppEvents\Schemes]
@=".Old"
[HKCU\AppEvents\Schemes\Apps\Beep]
@="ding.wav"
)"_s));
        SettingScanner scanner;
        QSignalSpy scanned(&scanner, &SettingScanner::finished);
        scanner.start();
        auto settings = scanned.first().first().value<QList<SettingInfo>>();
        for (SettingInfo &setting : settings)
            setting.selected = true;
        const Export sent(settings);
        QCOMPARE(sent.failed, isMadeUp ? QStringList() : QStringList(u"Power Settings"_s));
        QCOMPARE(sent.finished, isMadeUp ? (QVariantList{9, 0}) : (QVariantList{8, 1}));
        QCOMPARE(sent.percents, (QList<int>{0, 11, 22, 33, 44, 55, 66, 77, 88}));
        QVERIFY(leftovers().isEmpty());
        messages = sent.messages;
        const QString advanced = u"reg|export|EXPLORER\\Advanced|FILE|/y"_s;
        const QStringList calls = {u"reg|export|HKCU\\Control Panel\\Desktop|FILE|/y"_s,
                                   u"reg|export|EXPLORER\\StuckRects3|FILE|/y"_s,
                                   advanced,
                                   advanced,
                                   u"reg|export|HKCU\\Control Panel\\Mouse|FILE|/y"_s,
                                   u"reg|export|HKCU\\Control Panel\\Keyboard|FILE|/y"_s,
                                   u"powercfg|/export|FILE|SCHEME_CURRENT"_s,
                                   u"reg|export|HKCU\\Environment|FILE|/y"_s,
                                   u"reg|export|THEMES\\Personalize|FILE|/y"_s,
                                   u"reg|export|HKCU\\AppEvents\\Schemes|FILE|/y"_s};
        for (qsizetype i = 0; isMadeUp && i < calls.size(); ++i)
            QCOMPARE(callsOf(pc).value(i), spelledOut(calls[i]).replace("HKEY_CURRENT_USER"_L1, "HKCU"_L1));
    }

    SimulatedPc pc;
    pc.addRegistry(spelledOut(uR"([HKCU\Control Panel\Desktop]
"TileWallpaper"="1"
[HKCU\Control Panel\Mouse]
"Kept"="1"
[HKCU\Environment]
"Path"="C:\\new"
"Kept"="1"
)"_s));
    Receiver receiver;
    {
        const LogRecorder recorder;
        receiver.hear(messages);
    }
    QCOMPARE(receiver.finished, (QList<QVariantList>{{isMadeUp ? 9 : 8, 0}}));
    QCOMPARE(receiver.progress.last(), (QVariantList{isMadeUp ? 90 : 80, u"Sound Scheme"_s}));
    QVERIFY(leftovers().isEmpty());
    const QStringList values = {u"HKCU\\Control Panel\\Desktop\\WallpaperStyle=6"_s,
                                u"HKCU\\Control Panel\\Desktop\\TileWallpaper=0"_s,
                                u"HKCU\\Control Panel\\Desktop\\Other=(missing)"_s,
                                u"EXPLORER\\StuckRects3\\Settings=A"_s,
                                u"EXPLORER\\Advanced\\Hidden=1"_s,
                                u"HKCU\\Control Panel\\Mouse\\DoubleClickSpeed=400"_s,
                                u"HKCU\\Control Panel\\Mouse\\SwapMouseButtons=1"_s,
                                u"HKCU\\Control Panel\\Mouse\\Kept=1"_s,
                                u"HKCU\\Control Panel\\Keyboard\\KeyboardSpeed=20"_s,
                                u"HKCU\\Control Panel\\Keyboard\\KeyboardDelay=2"_s,
                                u"HKCU\\Environment\\PATH=C:\\old"_s,
                                u"HKCU\\Environment\\TEMP=%X%"_s,
                                u"HKCU\\Environment\\Zoo=ä"_s,
                                u"HKCU\\Environment\\Kept=1"_s,
                                u"THEMES\\Personalize\\AppsUseLightTheme=0"_s,
                                u"HKCU\\AppEvents\\Schemes\\.=.Old"_s,
                                u"HKCU\\AppEvents\\Schemes\\Apps\\Beep\\.=ding.wav"_s};
    QCOMPARE(asFound(values), values);
    QVERIFY(pc.registryText(u"HKEY_CURRENT_USER\\Environment"_s).contains("\"TEMP\"=hex(2):"_L1));
    const QString picture = Platform::wallpaper().value_or(QString());
    QCOMPARE(QDir::fromNativeSeparators(picture), pc.homePath(u"Pictures/Zandrove/sea ü.bmp"_s));
    QCOMPARE(contentOf(QDir::fromNativeSeparators(picture)), QByteArray("BM"));
    if (!isMadeUp)
        return;
    const QString imported = u"reg|import|FILE"_s;
    QCOMPARE(callsOf(pc), (QStringList{imported,
                                       imported,
                                       u"setting change \"TraySettings\""_s,
                                       imported,
                                       u"setting change \"\""_s,
                                       u"associations changed"_s,
                                       imported,
                                       u"action 113 value 1"_s,
                                       u"action 33 value 1"_s,
                                       u"action 32 value 400"_s,
                                       imported,
                                       u"action 23 value 2"_s,
                                       u"action 11 value 20"_s,
                                       u"powercfg|/import|FILE"_s,
                                       u"powercfg|/setactive|GUID"_s,
                                       imported,
                                       u"setting change \"Environment\""_s,
                                       imported,
                                       u"setting change \"ImmersiveColorSet\""_s,
                                       imported}));
    const QString scheme = pc.programCalls().filter(u"/setactive|"_s).value(0).section(u'|', -1);
    QVERIFY(pc.registryText().contains(u"\"ActivePowerScheme\"=\"%1\""_s.arg(scheme)));
}

void SettingMoveTest::aKeyGoesByItsName_data()
{
    QTest::addColumn<QString>("registryPath"); // as the setting names it
    QTest::addColumn<QString>("keys");         // on the Old PC
    QTest::addColumn<QString>("exported");     // as the package names it
    QTest::addColumn<Values>("metadata");

    const QString own = u"HKEY_CURRENT_USER/Software/ZandroveTest/Pens"_s;
    QTest::newRow("pens") << own << spelledOut(u"[HKCU\\Software\\ZandroveTest\\Pens]\n\"Ink\"=\"1\"\n"_s)
                          << own << Values();
    QTest::newRow("Mouse") << own << QString() << QString() << Values(); // ids mind the case
    QTest::newRow("nowhere") << QString() << QString() << QString() << Values();
    QTest::newRow("taskbar") << QString()
                             << spelledOut(u"[-EXPLORER\\StuckRects3]\n[EXPLORER\\Taskband]\n\"A\"=\"1\"\n"
                                           "[-EXPLORER\\Advanced]\n"_s)
                             << Explorer + u"Taskband"_s << Values();
    QTest::newRow("keyboard") << QString()
                              << spelledOut(u"[HKCU\\Control Panel\\Keyboard]\n\"Other\"=\"1\"\n"
                                            "\"KeyboardDelay\"=-\n\"KeyboardSpeed\"=-\n"_s)
                              << u"HKEY_CURRENT_USER\\Control Panel\\Keyboard"_s
                              << Values{{u"KeyboardDelay"_s, u"1"_s}, {u"KeyboardSpeed"_s, u"31"_s}};
    QTest::newRow("mouse") << QString()
                           << spelledOut(u"[HKCU\\Control Panel\\Mouse]\n\"MouseSpeed\"=dword:2\n"
                                         "\"MouseSensitivity\"=-\n\"SwapMouseButtons\"=-\n"
                                         "\"DoubleClickSpeed\"=-\n"_s)
                           << u"HKEY_CURRENT_USER\\Control Panel\\Mouse"_s
                           << Values{{u"MouseSpeed"_s, u"2"_s},
                                     {u"MouseSensitivity"_s, u"10"_s},
                                     {u"SwapMouseButtons"_s, u"0"_s},
                                     {u"DoubleClickSpeed"_s, u"500"_s}};
}

void SettingMoveTest::aKeyGoesByItsName()
{
    QFETCH(const QString, registryPath);
    QFETCH(const QString, keys);
    QFETCH(const QString, exported);
    SimulatedPc pc;
    pc.addRegistry(keys);
    const Export sent({chosen(QString::fromLatin1(QTest::currentDataTag()), registryPath)});
    QCOMPARE(sent.types(), exported.isEmpty() ? (QList<int>{115}) : (QList<int>{112, 113, 114, 115}));
    const SettingPackage package = SettingMessages::readStart(sent.messages.first().second);
    QCOMPARE(package.registryPath, exported);
    QTEST(package.metadata, "metadata");
}

void SettingMoveTest::picturesMoveInChunks_data()
{
    constexpr qsizetype Chunk = 524288;
    QTest::addColumn<QList<qsizetype>>("chunks");
    QTest::newRow("empty") << QList<qsizetype>();
    QTest::newRow("a byte") << QList<qsizetype>{1};
    QTest::newRow("a byte less") << QList<qsizetype>{Chunk - 1};
    QTest::newRow("one full chunk") << QList<qsizetype>{Chunk};
    QTest::newRow("a byte more") << QList<qsizetype>{Chunk, 1};
    QTest::newRow("two full chunks") << QList<qsizetype>{Chunk, Chunk};
    QTest::newRow("6 MiB") << QList<qsizetype>(12, Chunk);
}

void SettingMoveTest::picturesMoveInChunks()
{
    QFETCH(const QList<qsizetype>, chunks);
    QByteArray content(std::accumulate(chunks.begin(), chunks.end(), qsizetype(0)), 'x');
    for (qsizetype i = 0; i < content.size(); i += 1021)
        content[i] = char(i);
    SimulatedPc pc;
    const QString picture = showPicture(pc, u"sea.bmp"_s, content);
    const Export sent({chosen(u"wallpaper"_s)});
    QCOMPARE(sent.finished, (QVariantList{1, 0}));
    QCOMPARE(chunkSizes(sent.messages), chunks);
    QCOMPARE(SettingMessages::readStart(sent.messages.first().second).originalFilePath, picture);

    Receiver receiver;
    receiver.hear(sent.messages);
    const bool applied = !chunks.isEmpty(); // a picture without a byte is none
    QCOMPARE(receiver.finished, (QList<QVariantList>{{int(applied), int(!applied)}}));
    for (qsizetype i = 0; i < chunks.size(); ++i)
        QCOMPARE(receiver.percents[i][1].toInt(), int((i + 1) * 100 / chunks.size()));
    if (applied)
        QVERIFY(contentOf(pc.homePath(u"Pictures/Zandrove/sea.bmp"_s)) == content);
}

void SettingMoveTest::aHugeKeyMoves()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The programs of the PC at hand stay.");
    SimulatedPc pc;
    pc.replaceProgram(u"reg"_s, "case $1 in export) head -c 104857600 /dev/zero > \"$3\";;\n"
                                "*) wc -c < \"$2\" > imported;; esac");
    Receiver receiver;
    receiver.hear(Export({chosen(u"Pens"_s, u"HKCU\\Pens"_s)}).messages);
    QCOMPARE(receiver.finished, (QList<QVariantList>{{1, 0}}));
    QCOMPARE(contentOf(pc.path(u"imported"_s)).trimmed(), QByteArray("104857600"));
    QVERIFY(leftovers().isEmpty());
}

void SettingMoveTest::onlyTheImportReplacesPath()
{
    SimulatedPc pc;
    pc.addRegistry(u"[HKEY_CURRENT_USER\\Environment]\n\"Path\"=\"C:\\\\new\"\n\"Old\"=\"1\"\n"_s);
    const QString variables = uR"({"pAth":"%1","Zoo":"ä","Bad":5,"":"x"})"_s;
    Receiver receiver;
    const auto apply = [&](const QByteArray &key, const Values &metadata) {
        receiver.begin(u"environment"_s, metadata);
        if (!key.isEmpty())
            receiver.addKey(u"environment"_s, key);
        return receiver.end(u"environment"_s);
    };
    // The variables alone leave it as it is, and say so where it hasn't got the other PC's.
    const LogRecorder log;
    const QString skipped = u"[Environment] Skipping PATH merge for safety"_s;
    QCOMPARE(apply({}, {{u"EnvironmentVars"_s, variables.arg("C:\\\\old"_L1)}}), true);
    QStringList values = {u"HKCU\\Environment\\PATH=C:\\new"_s, u"HKCU\\Environment\\Zoo=ä"_s,
                          u"HKCU\\Environment\\Old=1"_s, u"HKCU\\Environment\\Bad=(missing)"_s,
                          u"HKCU\\Environment\\.=(missing)"_s};
    QCOMPARE(asFound(values), values);
    QCOMPARE(log.lines.count(skipped), 1);

    // The key replaces it before they are looked at, so that there is nothing to say then.
    const QByteArray key = "Windows Registry Editor Version 5.00\r\n\r\n"
                           "[HKEY_CURRENT_USER\\Environment]\r\n\"PATH\"=\"C:\\\\old\"\r\n";
    QCOMPARE(apply(key, {{u"EnvironmentVars"_s, variables.arg("C:\\\\old"_L1)}}), true);
    values[0] = u"HKCU\\Environment\\PATH=C:\\old"_s;
    QCOMPARE(asFound(values), values);
    QCOMPARE(log.lines.count(skipped), 1);
    QCOMPARE(apply({}, {}), false);
    QCOMPARE(apply({}, {{u"EnvironmentVars"_s, u"[]"_s}}), true); // told of variables, of none
}

std::unique_ptr<QObject> makeSettingMoveTest()
{
    return std::make_unique<SettingMoveTest>();
}

#include "SettingMoveTest.moc"
