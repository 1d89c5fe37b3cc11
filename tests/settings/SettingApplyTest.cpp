#include "SettingsTests.h"

#include "SimulatedPc.h"

#include "platform/Registry.h"
#include "settings/SettingMigrator.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using SettingMessages::Data;

namespace {

using Values = QMap<QString, QString>;

const QByteArray Header = "Windows Registry Editor Version 5.00\r\n\r\n";
const QByteArray PenKey = Header + "[HKEY_CURRENT_USER\\Software\\Pen]\r\n\"Ink\"=\"blue\"\r\n";

QStringList systemCalls;

void recordSystemCalls(QtMsgType, const QMessageLogContext &, const QString &line)
{
    if (line.startsWith("[SystemParameters] "_L1))
        systemCalls.append(line.mid(19));
}

SettingPackage package(const QString &key, const QByteArray &registryData, const Values &metadata = {})
{
    SettingPackage made;
    made.key = made.name = key;
    made.registryData = registryData;
    made.metadata = metadata;
    return made;
}

QByteArray chunk(const QByteArray &bytes, const QString &fileName = u"sea.jpg"_s, int index = 0,
                 int total = 1)
{
    return Data{u"wallpaper"_s, Data::Content::File, bytes, true, index, total, fileName}.toPayload();
}

/// A New PC's migrator that has begun to receive.
struct Receiver
{
    SettingMigrator migrator;
    QSignalSpy settingFinished{&migrator, &SettingMigrator::settingFinished};
    QSignalSpy percents{&migrator, &SettingMigrator::settingProgress};

    Receiver() { migrator.startReceiving(); }

    void begin(const SettingPackage &made)
    {
        migrator.onSettingStart(SettingMessages::startPayload(made));
        if (!made.registryData.isEmpty())
            migrator.onSettingData(
                Data{made.key, Data::Content::Registry, made.registryData, true, 0, 0, {}}.toPayload());
    }

    /// Whether the current setting was applied.
    bool end(const QString &key)
    {
        migrator.onSettingEnd(SettingMessages::End{key, key}.toPayload());
        return !settingFinished.isEmpty() && settingFinished.takeLast().at(1).toBool();
    }

    bool apply(const SettingPackage &made) { return begin(made), end(made.key); }
};

} // namespace

/// The New PC's half, from the messages to the registry, the files and the system calls of a made-up PC.
class SettingApplyTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAndCallsOfASetting_data();
    void keysAndCallsOfASetting();
    void theImportReplacesPathAndTheVariablesDoNot();
    void aPictureIsWrittenBelowItsFolderOnly_data();
    void aPictureIsWrittenBelowItsFolderOnly();
    void messagesOfAnyPeerCostTheirSettingOnly();
    void aPowerSchemeIsPutToUse();
    void aRunIsCounted();
};

void SettingApplyTest::keysAndCallsOfASetting_data()
{
    QTest::addColumn<QByteArray>("registryData");
    QTest::addColumn<Values>("metadata");
    QTest::addColumn<bool>("applied");
    QTest::addColumn<int>("imports");
    QTest::addColumn<QStringList>("calls");

    const Values mouse = {
        {u"MouseSpeed"_s, u"2"_s}, {u"SwapMouseButtons"_s, u"true"_s}, {u"DoubleClickSpeed"_s, u"400"_s}};
    const QStringList mouseCalls = {u"action 113 value 2"_s, u"action 33 value 0"_s,
                                    u"action 32 value 400"_s};
    const Values advanced = {{u"AdvancedSettings"_s, QString::fromLatin1(PenKey.toBase64())}};
    const QStringList toTray = {u"setting change \"TraySettings\""_s};
    const QStringList toThemes = {u"setting change \"ImmersiveColorSet\""_s};
    QTest::newRow("taskbar") << PenKey << advanced << true << 2 << toTray;
    QTest::newRow("taskbar, only the extra") << QByteArray() << advanced << false << 0 << QStringList();
    QTest::newRow("explorer") << PenKey << Values() << true << 1
                              << QStringList{u"setting change \"\""_s, u"associations changed"_s};
    QTest::newRow("mouse") << PenKey << mouse << true << 1 << mouseCalls;
    QTest::newRow("mouse, bad key") << QByteArray("no key") << Values{{u"SwapMouseButtons"_s, u"1"_s}} << true
                                    << 1 << QStringList(u"action 33 value 1"_s);
    QTest::newRow("keyboard") << QByteArray()
                              << Values{{u"KeyboardDelay"_s, u"2"_s}, {u"KeyboardSpeed"_s, u"30"_s}} << true
                              << 0 << QStringList{u"action 23 value 2"_s, u"action 11 value 30"_s};
    QTest::newRow("keyboard, half") << PenKey << Values{{u"KeyboardDelay"_s, u"2"_s}} << true << 1
                                    << QStringList();
    QTest::newRow("display") << PenKey << Values() << true << 1 << toThemes;
    QTest::newRow("display, no key") << QByteArray() << Values() << false << 0 << toThemes;
    QTest::newRow("pens") << PenKey << Values() << true << 1 << QStringList();
    QTest::newRow("pens, bad key") << QByteArray("no key") << Values() << false << 1 << QStringList();
}

void SettingApplyTest::keysAndCallsOfASetting()
{
    QFETCH(const QByteArray, registryData);
    QFETCH(const Values, metadata);
    QFETCH(const bool, applied);
    const SimulatedPc pc;
    Receiver receiver;
    const QString key = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    systemCalls.clear();
    const auto before = qInstallMessageHandler(recordSystemCalls);
    const bool result = receiver.apply(package(key, registryData, metadata));
    qInstallMessageHandler(before);
    QCOMPARE(result, applied);
    QTEST(systemCalls, "calls");
    QTEST(int(pc.programCalls()
                  .filter(QRegularExpression(u"^reg\\|import\\|.*zandrove_reg_import_\\d+.reg$"_s))
                  .size()),
          "imports");
    QCOMPARE(pc.registryText().contains(u"\"Ink\"=\"blue\""_s), registryData == PenKey);
    QVERIFY(QDir(QDir::tempPath()).isEmpty());
}

void SettingApplyTest::theImportReplacesPathAndTheVariablesDoNot()
{
    SimulatedPc pc;
    pc.addRegistry(u"[HKEY_CURRENT_USER\\Environment]\n\"Path\"=\"C:\\\\new\"\n\"Old\"=\"1\"\n"_s);
    const Values variables = {{u"EnvironmentVars"_s, uR"({"pAth":"C:\\vars","Zoo":"ä","Bad":5,"":"x"})"_s}};
    const auto text = [](const QString &name) {
        return Platform::RegistryKey(u"HKEY_CURRENT_USER\\Environment"_s).text(name, u"-"_s);
    };
    Receiver receiver;
    QVERIFY(receiver.apply(package(u"environment"_s, {}, variables)));
    QCOMPARE(text(u"PATH"_s), u"C:\\new"_s);
    QCOMPARE(text(u"Zoo"_s) + text(u"Old"_s) + text(u"Bad"_s) + text(u"."_s), u"ä1--"_s);

    const QByteArray key = Header + "[HKEY_CURRENT_USER\\Environment]\r\n\"PATH\"=\"C:\\\\old\"\r\n";
    QVERIFY(receiver.apply(package(u"environment"_s, key, variables)));
    QCOMPARE(text(u"PATH"_s), u"C:\\old"_s);
    QVERIFY(!receiver.apply(package(u"environment"_s, {})));
}

void SettingApplyTest::aPictureIsWrittenBelowItsFolderOnly_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("applied");
    QTest::newRow("a name") << u"sea ü..jpg"_s << true;
    for (const char *name : {"", ".", "..", "../sea.jpg", "a/sea.jpg", "..\\sea.jpg", "/sea.jpg"})
        QTest::newRow(qPrintable(u"bad %1"_s.arg(QLatin1StringView(name))))
            << QString::fromLatin1(name) << false;
    QTest::newRow("NUL") << u"sea.jpg"_s + QChar(QChar::Null) << false;
}

void SettingApplyTest::aPictureIsWrittenBelowItsFolderOnly()
{
    QFETCH(const QString, fileName);
    QFETCH(const bool, applied);
    SimulatedPc pc;
    const QDir folder(pc.homePath(u"Pictures"_s));
    const QString path = folder.filePath(u"Zandrove/"_s + fileName);
    if (applied)
        pc.writeFile(path, "an older and longer picture");
    Receiver receiver;
    receiver.begin(package(u"wallpaper"_s, PenKey, {{u"TileWallpaper"_s, u"1"_s}}));
    receiver.migrator.onSettingData(chunk("sea ", fileName, 0, 2));
    receiver.migrator.onSettingData(chunk("view", fileName, 1, 2));
    QCOMPARE(receiver.percents.last().at(1).toInt(), 100);
    QCOMPARE(receiver.end(u"wallpaper"_s), applied);
    QVERIFY(pc.programCalls().isEmpty());
    QCOMPARE(pc.registryText().contains(u"\"TileWallpaper\"=\"1\"\r\n\"Wallpaper\"="_s), applied);
    QFile picture(path);
    QCOMPARE(applied && picture.open(QIODevice::ReadOnly) ? picture.readAll() : "sea view", "sea view");
    QVERIFY(applied || folder.entryList(QDir::Files).isEmpty());
    QVERIFY(applied || QDir(folder.filePath(u"Zandrove"_s)).isEmpty());
}

void SettingApplyTest::messagesOfAnyPeerCostTheirSettingOnly()
{
    const SimulatedPc pc;
    Receiver receiver;
    const SettingPackage picture = package(u"wallpaper"_s, {});
    SettingMigrator &migrator = receiver.migrator;
    migrator.onSettingEnd("{\"key\":\"wallpaper\"}");
    QCOMPARE(receiver.settingFinished.size(), 0);
    QVERIFY(!receiver.end(QString())); // fits the empty setting, which can't be applied

    receiver.begin(picture);
    migrator.onSettingData("{\"key\":\"mouse\",\"dataType\":\"file\",\"data\":\"eA==\"}");
    migrator.onSettingData(chunk("x", u"sea.jpg"_s, std::numeric_limits<int>::max(), 0));
    migrator.onSettingData(chunk("x", u"sea.jpg"_s, std::numeric_limits<int>::max(), 1));
    migrator.onSettingData(chunk("x", u"sea.jpg"_s, std::numeric_limits<int>::min(), 1));
    QCOMPARE(receiver.percents.size(), 3);
    QCOMPARE(receiver.percents[0].at(1).toInt() + receiver.percents[2].at(1).toInt(), 0);
    QVERIFY(receiver.end(u"wallpaper"_s)); // what counts is the order of arrival

    receiver.begin(picture);
    migrator.onSettingData(chunk("x"));
    migrator.onSettingData(R"({"key":"wallpaper","dataType":"file","fileName":"y","data":"?"})");
    QVERIFY(!receiver.end(u"wallpaper"_s));

    migrator.setContentLimit(8);
    for (const QByteArray &second : {QByteArray("5678"), QByteArray("56789")}) {
        receiver.begin(picture);
        migrator.onSettingData(chunk("1234"));
        migrator.onSettingData(chunk(second));
        QCOMPARE(receiver.end(u"wallpaper"_s), second.size() == 4);
    }
    migrator.setContentLimit(PenKey.size()); // a second key takes the place of the first
    receiver.begin(package(u"pens"_s, QByteArray(PenKey.size(), 'x')));
    QVERIFY(receiver.apply(package(u"pens"_s, PenKey)));
    receiver.begin(package(u"pens"_s, PenKey));
    migrator.onSettingData(Data{u"pens"_s, Data::Content::Registry, PenKey, true, 0, 0, {}}.toPayload());
    QVERIFY(receiver.end(u"pens"_s));
}

void SettingApplyTest::aPowerSchemeIsPutToUse()
{
    SimulatedPc pc;
    Receiver receiver;
    const auto applyScheme = [&receiver](const QByteArray &scheme) {
        receiver.begin(package(u"power"_s, {}));
        receiver.migrator.onSettingData(
            Data{u"power"_s, Data::Content::File, scheme, true, 0, 1, u"../x"_s}.toPayload());
        return receiver.end(u"power"_s);
    };
    QVERIFY(applyScheme("power scheme x"));
    const QStringList calls = pc.programCalls();
    QCOMPARE(calls.size(), 2);
    QVERIFY(calls[0].startsWith("powercfg|/import|"_L1) &&
            calls[0].endsWith("/zandrove_power_import.pow"_L1));
    QVERIFY(pc.registryText().contains(u"\"ActivePowerScheme\"=\"%1\""_s.arg(calls[1].section(u'|', 2))));
    QVERIFY(!applyScheme("something else"));
    QVERIFY(!applyScheme({}));
    pc.replaceProgram(u"powercfg"_s, "[ $1 = /import ] && echo 381b4222-f694-41f0-9685-ff5bb260df2e");
    QVERIFY(applyScheme("x")); // added, though it could not be put to use
    pc.removeProgram(u"powercfg"_s);
    QVERIFY(!applyScheme("power scheme x"));
    QVERIFY(QDir(QDir::tempPath()).isEmpty());
}

void SettingApplyTest::aRunIsCounted()
{
    SimulatedPc pc;
    pc.removeProgram(u"reg"_s);
    SettingMigrator migrator;
    QSignalSpy finished(&migrator, &SettingMigrator::finished);
    QSignalSpy progress(&migrator, &SettingMigrator::progress);
    for (const int percent : {20, 40}) {
        migrator.startReceiving();
        QVERIFY(migrator.isRunning());
        for (const char *key : {"mouse", "sound"}) {
            migrator.onSettingStart(QByteArray("{\"key\":\"") + key + "\"}");
            migrator.onSettingEnd(QByteArray("{\"key\":\"") + key + "\"}");
        }
        migrator.onSettingComplete("[]");
        QCOMPARE(finished.takeFirst(), (QList<QVariant>{1, 1}));
        QVERIFY(!migrator.isRunning());
        QCOMPARE(progress.last().first().toInt(), percent);
    }
}

std::unique_ptr<QObject> makeSettingApplyTest()
{
    return std::make_unique<SettingApplyTest>();
}

#include "SettingApplyTest.moc"
